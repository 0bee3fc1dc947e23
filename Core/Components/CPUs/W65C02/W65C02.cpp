#include "Core/Components/CPUs/W65C02/W65C02.h"

#include <array>

namespace tarnsim {

W65C02::W65C02(const std::string& name, const ParaMap& parameters) : Processor(name, parameters) {
    D.ztrOff();
    applyParameters();
}

void W65C02::applyParameters() {
    Processor::applyParameters();
    const std::uint32_t former = t_bvd;
    getParameters().get("t_bvd", &t_bvd);
    if (t_bvd != former) responsesChange();
}

void W65C02::reset() {
    for (Port* signal : {&internalAddress, &internalData, &internalReadWrite}) signal->clear();
    Processor::reset();
}

void W65C02::inputChanged(Port* port, const Value& /*oldValue*/, const Value& /*newValue*/, Time time) {
    const std::int64_t due = later(time, port == &BE ? t_bvd : 0);
    if (due <= kLatestTime) scheduleTagged(this, port->getCreationNumber(), static_cast<Time>(due));
}

Response W65C02::responseTo(const Port& port) const {
    // A pin that is refreshed is written besides its net, so it can't have its records in common with that.
    for (const Pin* refreshed : {&IRQ, &NMI, &RDY, &PHI0, &SO}) {
        if (&port == refreshed) return {};
    }
    return {Response::Kind::Event, port.getCreationNumber(), &port == &BE ? t_bvd : 0};
}

void W65C02::evaluateTagged(Time time, std::uint64_t tag) {
    refreshInputPins(time);
    sampleLines(time);
    if (tag == SO.getCreationNumber()) setOverflowIfLow(time);
    if (tag != PHI0.getCreationNumber() && tag != BE.getCreationNumber()) return;
    if (tag == PHI0.getCreationNumber()) {
        // Unlike without a tag the data float behind every flank.
        if (PHI0.fallingEdgeAt(time)) startCycle(time, time, 'Z');
        if (PHI0.risingEdgeAt(time)) driveData(time);
    }
    finish(time);
    if (tag == BE.getCreationNumber()) switchBus(time);
}

void W65C02::evaluate(Time time) {
    refreshInputPins(time);
    sampleLines(time);
    setOverflowIfLow(time);
    if (RES.level(time) == 'L') resetCore();
    const Flank flank = lookAtClock(time);
    if (flank.isFalling) startCycle(time, flank.base, 'U');
    if (flank.isRising) driveData(flank.base);
    finish(time);
}

void W65C02::refreshInputPins(Time time) {
    // Nobody sees the records of this port; on a wire it needs none of its own.
    if (d_read.getWire() == nullptr) d_read.refresh(time);
    for (Pin* pin : {&IRQ, &NMI, &RDY, &PHI0, &SO}) pin->refresh(time);
}

/// `heldData` is what stands on the data lines of a write behind the hold of the last one.
void W65C02::startCycle(Time time, Time base, char heldData) {
    tickCore(time, base);
    setAt(internalData, byteOf(isReadCycle() ? 'Z' : heldData), std::int64_t{time} + t_dhw);
    schedule(internalAddress, addressLetters(), base);
    schedule(internalReadWrite, isReadCycle(), base);
    schedule(VP, (pins_ & CyclePin::kVp) == 0, base);
    schedule(SYNC, isSync(), base);
}

void W65C02::driveData(Time base) {
    if (isWriteCycle()) setAt(internalData, dataLetters(), std::int64_t{base} + t_mds);
}

/// What `signal` holds `delay` after `time` shows on the pins then.
void W65C02::copy(Port& pin, const Port& signal, Time time, Time delay) {
    const std::int64_t due = std::int64_t{time} + delay;
    if (due > kLatestTime) return;
    std::array<char, kMaxValueWidth> letters;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    signal.lettersAt(static_cast<Time>(due), letters.data());
    pin.setLetters({letters.data(), signal.width()}, static_cast<Time>(due));
}

void W65C02::finish(Time time) {
    if (BE.level(earlier(time, t_bvd)) == 'H') {
        copy(A, internalAddress, time, t_ah);
        copy(A, internalAddress, time, t_ads);
        copy(d_write, internalData, time, t_dhw);
        copy(d_write, internalData, time, t_mds);
        copy(RW, internalReadWrite, time, t_ah);
        copy(RW, internalReadWrite, time, t_ads);
    }
    driveClocks(time);
    A.refresh(time);
    for (Pin* pin : {&RW, &VP, &SYNC, &PHI1, &PHI2}) pin->refresh(time);
}

/// For the flank of `BE` whose time to show has come.
void W65C02::switchBus(Time time) {
    switch (BE.level(earlier(time, t_bvd))) {
        case 'H':
            A.set(internalAddress.get(time), time);
            d_write.set(internalData.get(time), time);
            RW.set(internalReadWrite.get(time), time);
            return;
        case 'L':
            A.set(Value(16).fill('Z'), time);
            d_write.set(Value(8).fill('Z'), time);
            RW.setLevel('Z', time);
            return;
        default:
            A.set(Value(16), time);
            d_write.set(Value(8), time);
            RW.setLevel('U', time);
            return;
    }
}

}  // namespace tarnsim
