#include "Core/Components/CPUs/MOS6502/MOS6502.h"

#include <algorithm>

namespace tarnsim {

MOS6502::MOS6502(const std::string& name, const ParaMap& parameters) : Processor(name, parameters) {
    applyParameters();
}

void MOS6502::evaluateTagged(Time time, std::uint64_t tag) {
    sampleLines(time);
    if (tag == SO.getCreationNumber()) setOverflowIfLow(time);
    bool isRefreshed = false;
    if (tag == PHI0.getCreationNumber()) {
        if (PHI0.fallingEdgeAt(time)) {
            isRefreshed = canRefreshFirst(time);
            if (isRefreshed) refreshBus(time);
            startCycle(time, time);
        }
        if (PHI0.risingEdgeAt(time)) driveData(time);
    }
    finish(time, isRefreshed);
}

/// Whether it makes no difference if the pins of the bus are refreshed before they are set for later times, as it may
/// where others have driven their nets. Records that are entered in order of time cost half.
bool MOS6502::canRefreshFirst(Time time) const {
    return t_ah > 0 && t_ads > 0 && t_dhw > 0 &&
           std::ranges::all_of(busPins, [time](const Port* port) { return port->isSettled(time); });
}

void MOS6502::evaluate(Time time) {
    sampleLines(time);
    setOverflowIfLow(time);
    const Flank flank = lookAtClock(time);
    if (flank.isFalling) startCycle(time, flank.base);
    if (flank.isRising) driveData(flank.base);
    finish(time, false);
}

void MOS6502::startCycle(Time time, Time base) {
    tickCore(time, base);
    // The hold of the last write ends by the flank itself, wherever that is taken to be.
    setAt(d_write, byteOf(isReadCycle() ? 'Z' : 'U'), std::int64_t{time} + t_dhw);
    schedule(A, addressLetters(), base);
    schedule(RW, isReadCycle(), base);
    schedule(SYNC, isSync(), base);
}

void MOS6502::driveData(Time base) {
    if (isWriteCycle()) setAt(d_write, dataLetters(), std::int64_t{base} + t_mds);
}

void MOS6502::refreshBus(Time time) {
    for (Port* port : busPins) port->refresh(time);
}

void MOS6502::finish(Time time, bool isRefreshed) {
    driveClocks(time);
    if (!isRefreshed) refreshBus(time);
    for (Pin* pin : {&PHI1, &PHI2}) {
        // A wire has just recorded this very level.
        if (!pin->drivesWire()) pin->refresh(time);
    }
}

}  // namespace tarnsim
