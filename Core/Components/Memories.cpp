#include "Core/Components/Memories.h"

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
    const Value address = A.get(then);
    if (cs == 'H' || (cs == 'L' && oe == 'H')) return D.set(Value("ZZZZZZZZ"), time);
    if (cs == 'L' && oe == 'L' && address.isDefined()) return D.set(read(address.toNumber(), time), time);
    D.set(Value("UUUUUUUU"), time);
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
        if (cs == 'H') return Value("ZZZZZZZZ");
        if (cs != 'L') return Value("UUUUUUUU");
        if (we == 'L') return Value(isLevel(oe) ? "ZZZZZZZZ" : "UUUUUUUU");
        if (we == 'H' && oe == 'H') return Value("ZZZZZZZZ");
        const Value address = A.get(then);
        if (we == 'H' && oe == 'L' && address.isDefined()) return read(address.toNumber(), then);
        return Value("UUUUUUUU");
    };
    Dout.set(output(), time);
    if (cs == 'L' && we == 'L') writeFromPins(time);
}

void HM62256B::writeFromPins(Time time) {
    const Time then = inputTime(time);
    const Value address = A.get(then);
    if (!address.isDefined()) {
        const TLog line("*** WARNING: writing to memory '%s' ('%s') with unstable address at time=%d!!",
                        getName().c_str(), getType().c_str(), time);
        return;
    }
    write(Din.get(then), address.toNumber(), time);
}

}  // namespace tarnsim
