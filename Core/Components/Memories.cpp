#include "Core/Components/Memories.h"

#include <optional>

#include "Core/Circuit/Circuit.h"
#include "Core/Support/TLog.h"

namespace tarnsim {

void MC27C64::load(const Circuit* owner) {
    readDelay();
    if (owner == nullptr) return;
    loadMemoryImages(*this, info.typeName, kSize, *owner, [this](std::uint32_t address, const Value& byte) {
        if (address >= kSize) return false;
        words_[address] = byte;
        return true;
    });
}

void MC27C64::reset() {
    for (Value& word : words_) word.setUndefined();
    ImageMemory::reset();
}

Value MC27C64::read(std::uint32_t address, Time /*time*/) const {
    return words_[address % kSize];
}

void MC27C64::write(const Value& value, std::uint32_t address, Time /*time*/) {
    words_[address % kSize] = value;
}

void MC27C64::evaluate(Time time) {
    const Time then = inputTime(time);
    const char cs = CS.level(then);
    const char oe = OE.level(then);
    if (cs == 'H' || (cs == 'L' && oe == 'H')) return D.setLetters("ZZZZZZZZ", time);
    if (cs == 'L' && oe == 'L') {
        if (const auto address = A.numberAt(then)) return D.setLetters(words_[*address % kSize].letters(), time);
    }
    D.setLetters("UUUUUUUU", time);
}

void HM62256B::load(const Circuit* owner) {
    readDelay();
    if (owner == nullptr) return;
    loadMemoryImages(*this, info.typeName, kSize, *owner, [this](std::uint32_t address, const Value& byte) {
        write(byte, address, 0);
        return true;
    });
}

void HM62256B::reset() {
    cells_.clear();
    ImageMemory::reset();
}

void HM62256B::evaluate(Time time) {
    const Time then = inputTime(time);
    const char cs = CS.level(then);
    const char we = WE.level(then);
    const char oe = OE.level(then);
    const auto output = [&] {
        if (cs == 'H') return "ZZZZZZZZ";
        if (cs != 'L') return "UUUUUUUU";
        if (we == 'L') return isLevel(oe) ? "ZZZZZZZZ" : "UUUUUUUU";
        if (we == 'H' && oe == 'H') return "ZZZZZZZZ";
        return "UUUUUUUU";
    };
    const bool isRead = cs == 'L' && we == 'H' && oe == 'L';
    const auto address = isRead ? A.numberAt(then) : std::nullopt;
    if (address) {
        Dout.setLetters(read(*address, then).letters(), time);
    } else {
        Dout.setLetters(output(), time);
    }
    if (cs == 'L' && we == 'L') writeFromPins(time);
}

void HM62256B::writeFromPins(Time time) {
    const Time then = inputTime(time);
    const auto address = A.numberAt(then);
    if (!address) {
        const TLog line("*** WARNING: writing to memory '%s' ('%s') with unstable address at time=%d!!",
                        getName().c_str(), getType().c_str(), time);
        return;
    }
    write(Din.get(then), *address, time);
}

}  // namespace tarnsim
