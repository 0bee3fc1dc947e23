#include "Core/Components/CPUs/MOS6502/MOS6502.h"

namespace tarnsim {

MOS6502::MOS6502(const std::string& name, const ParaMap& parameters) : Processor(name, parameters) {
    applyParameters();
}

void MOS6502::evaluateTagged(Time time, std::uint64_t tag) {
    sampleLines(time);
    if (tag == SO.getCreationNumber()) setOverflowIfLow(time);
    if (tag == PHI0.getCreationNumber()) {
        if (PHI0.fallingEdgeAt(time)) startCycle(time, time);
        if (PHI0.risingEdgeAt(time)) driveData(time);
    }
    finish(time);
}

void MOS6502::evaluate(Time time) {
    sampleLines(time);
    setOverflowIfLow(time);
    const Flank flank = lookAtClock(time);
    if (flank.isFalling) startCycle(time, flank.base);
    if (flank.isRising) driveData(flank.base);
    finish(time);
}

void MOS6502::startCycle(Time time, Time base) {
    tickCore(time, base);
    // The hold of the last write ends by the flank itself, wherever that is taken to be.
    setAt(d_write, isReadCycle() ? Value("ZZZZZZZZ") : Value("UUUUUUUU"), std::int64_t{time} + t_dhw);
    schedule(A, addressValue(), base);
    schedule(RW, isReadCycle(), base);
    schedule(SYNC, isSync(), base);
}

void MOS6502::driveData(Time base) {
    if (isWriteCycle()) setAt(d_write, dataValue(), std::int64_t{base} + t_mds);
}

void MOS6502::finish(Time time) {
    driveClocks(time);
    A.refresh(time);
    d_write.refresh(time);
    for (Pin* pin : {&RW, &SYNC, &PHI1, &PHI2}) pin->refresh(time);
}

}  // namespace tarnsim
