#include "Core/Components/Primitives.h"

#include "Core/Components/PartParameters.h"
#include "Core/Support/Text.h"

namespace tarnsim {

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
    const Time then = inputTime(time);
    switch (g.level(then)) {
        case 'H': return out.set(Value(size_).fill('Z'), time);
        case 'U': return out.set(Value(size_), time);
        default: return out.set(in.get(then), time);
    }
}

void D_flip_flop::reset() {
    edges_.evaluatedAt(0);
    state_.clear();
    Chip::reset();
}

void D_flip_flop::evaluate(Time time) {
    const Time then = inputTime(time);
    if (edges_.step(clk, time, getDelay()).isRising()) state_.storeLetter(time, D.level(then));
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
    const Value select = selectBits(then);
    if (select.contains('U')) return write("UUUU", time);
    switch (select.toNumber()) {
        case 0: return write("HHHL", time);
        case 1: return write("HHLH", time);
        case 2: return write("HLHH", time);
        default: return write("LHHH", time);
    }
}

Value Demux1to4::selectBits(Time time) const {
    if (S != nullptr) return S->get(time);
    Value bits(2);
    for (std::size_t i = 0; i < s.size(); ++i) bits[i] = s[i]->level(time);
    return bits;
}

/// The last of the four letters is for the output with the number 0.
void Demux1to4::write(std::string_view letters, Time time) {
    const Value value(letters);
    if (Y != nullptr) return Y->set(value, time);
    for (std::size_t i = 0; i < y.size(); ++i) y[i]->setLevel(value[i], time);
}

}  // namespace tarnsim
