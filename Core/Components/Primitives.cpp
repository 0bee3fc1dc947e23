#include "Core/Components/Primitives.h"

#include "Core/Components/PartParameters.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

using Letters = std::array<char, kMaxValueWidth>;

constexpr Letters allOf(char letter) {
    Letters letters{};
    letters.fill(letter);
    return letters;
}

}  // namespace

void ThreeStateBuf::evaluate(Time time) {
    const Time then = inputTime(time);
    switch (g.level(then)) {
        case 'H': return out.setLevel('Z', time);
        case 'U': return out.setLevel('U', time);
        default: return out.setLevel(in.level(then), time);
    }
}

BusBuffer::BusBuffer(const std::string& name, const ParaMap& parameters)
    : Chip(name, parameters), size_(checkedSize(*this, "size", readSize())) {}

BusBuffer::BusBuffer(const std::string& name, std::uint32_t delay, std::uint32_t size)
    : Chip(name, delay), size_(checkedSize(*this, "size", size)) {}

std::uint32_t BusBuffer::readSize() const {
    std::uint32_t size = 8;
    getParameters().get("size", &size);
    return size;
}

void BusBuffer::applyParameters() {
    Chip::applyParameters();
    readSize();
}

void BusBuffer::evaluate(Time time) {
    // The evaluations of a bus are most of a board's: no Values.
    static constexpr auto kFloating = allOf('Z');
    static constexpr auto kUnknown = allOf('U');
    const Time then = inputTime(time);
    switch (g.level(then)) {
        case 'H': return out.setLetters({kFloating.data(), size_}, time);
        case 'U': return out.setLetters({kUnknown.data(), size_}, time);
        default: break;
    }
    Letters letters;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    in.lettersAt(then, letters.data());
    out.setLetters({letters.data(), size_}, time);
}

void D_flip_flop::reset() {
    edges_.evaluatedAt(0);
    state_.clear();
    Chip::reset();
}

void D_flip_flop::evaluate(Time time) {
    const Time then = inputTime(time);
    if (edges_.step(clk, time, getDelay()).isRising()) state_.storeLetter(time, D.level(then), kUndefinedBit);
    edges_.evaluatedAt(time);

    const auto write = [&](char q, char inverse) {
        Q.setLevel(q, time);
        notQ.setLevel(inverse, time);
    };
    switch (OE.level(then)) {
        case 'H': return write('Z', 'Z');
        case 'U': return write('U', 'U');
        case 'L': break;
        default: return;
    }
    switch (state_.letterInForceAt(time, kUndefinedBit)) {
        case 'H': return write('H', 'L');
        case 'L': return write('L', 'H');
        default: return write('U', 'U');
    }
}

Demux1to4::Demux1to4(const std::string& name, const ParaMap& parameters) : Chip(name, parameters) {
    bool busIo = false;
    getParameters().get("bus_io", &busIo);
    makePorts(busIo);
}

Demux1to4::Demux1to4(const std::string& name, std::uint32_t delay, bool busIo) : Chip(name, delay) {
    makePorts(busIo);
}

void Demux1to4::makePorts(bool busIo) {
    if (busIo) {
        S = &input("S", 2);
        Y = &output("Y", 4);
        return;
    }
    for (std::size_t i = 0; i < y.size(); ++i) y[i] = &outputPin(format("y%zu", i));
    for (std::size_t i = 0; i < s.size(); ++i) s[i] = &inputPin(format("s%zu", i));
}

void Demux1to4::evaluate(Time time) {
    const Time then = inputTime(time);
    switch (x.level(then)) {
        case 'H': return write("HHHH", time);
        case 'U': return write("UUUU", time);
        case 'L': break;
        default: return;
    }
    const std::array<char, 2> select = selectBits(then);
    if (select[0] == 'U' || select[1] == 'U') return write("UUUU", time);
    switch (Value::ofLetters({select.data(), select.size()}).toNumber()) {
        case 0: return write("HHHL", time);
        case 1: return write("HHLH", time);
        case 2: return write("HLHH", time);
        default: return write("LHHH", time);
    }
}

std::array<char, 2> Demux1to4::selectBits(Time time) const {
    if (S == nullptr) return {s[1]->level(time), s[0]->level(time)};
    std::array<char, 2> bits{};
    S->lettersAt(time, bits.data());
    return bits;
}

/// The last of the four letters is for the output with the number 0.
void Demux1to4::write(std::string_view letters, Time time) {
    if (Y != nullptr) return Y->setLetters(letters, time);
    for (std::size_t i = 0; i < y.size(); ++i) y[i]->setLevel(letters[y.size() - 1 - i], time);
}

}  // namespace tarnsim
