#pragma once

#include <cstdint>

#include "Core/Components/CPUs/CycleCore.h"

// What happens in one clock cycle, as named actions. `CycleSequences.h` puts steps together from them.

namespace tarnsim::CycleAction {

// Addresses. `ad` is latched where a later step needs it.

inline void readPc(CycleCore& c) {
    setAddress(c, c.pc);
}
inline void readOperand(CycleCore& c) {
    setAddress(c, c.pc++);
}
inline void latchLow(CycleCore& c) {
    c.ad = dataOf(c);
}
inline void latchHigh(CycleCore& c) {
    c.ad = static_cast<std::uint16_t>(c.ad | unsigned{dataOf(c)} << 8U);
}
inline void readLatch(CycleCore& c) {
    setAddress(c, c.ad);
}
inline void readZeroPage(CycleCore& c) {
    setAddress(c, dataOf(c));
}
/// The byte behind the latched zero-page address, which is in the zero page too.
inline void readNextZeroPage(CycleCore& c) {
    setAddress(c, (c.ad + 1U) & 0xFFU);
}
/// Adds an index within the zero page.
template <auto index>
void indexZeroPage(CycleCore& c) {
    c.ad = static_cast<std::uint8_t>(c.ad + c.*index);
}
/// The sum of the latched address and an index, without the carry into the high byte.
template <auto index>
void readUncarried(CycleCore& c) {
    setAddress(c, (c.ad & 0xFF00U) | ((c.ad + c.*index) & 0xFFU));
}
template <auto index>
bool crossesPage(const CycleCore& c) {
    return ((c.ad ^ (c.ad + c.*index)) & 0xFF00) != 0;
}
template <auto index>
void readIndexed(CycleCore& c) {
    setAddress(c, static_cast<unsigned>(c.ad + c.*index));
}
/// Leaves out the next step if the address was right already.
template <auto index>
void skipIfSamePage(CycleCore& c) {
    if (!crossesPage<index>(c)) ++c.ir;
}

// Data

inline void latchByte(CycleCore& c) {
    c.ad = dataOf(c);
}
/// The same byte back.
inline void writeBack(CycleCore& c) {
    writeByte(c, dataOf(c));
}
template <auto Change>
void writeChanged(CycleCore& c) {
    writeByte(c, Change(c, static_cast<std::uint8_t>(c.ad)));
}
template <auto Value>
void write(CycleCore& c) {
    writeByte(c, Value(c));
}

// Stack

inline void readStack(CycleCore& c) {
    setAddress(c, 0x100U | c.s);
}
inline void push(CycleCore& c) {
    setAddress(c, 0x100U | c.s--);
}
/// The byte under the top comes next.
inline void pull(CycleCore& c) {
    setAddress(c, 0x100U | c.s++);
}
inline std::uint8_t pcHigh(CycleCore& c) {
    return static_cast<std::uint8_t>(c.pc >> 8U);
}
inline std::uint8_t pcLow(CycleCore& c) {
    return static_cast<std::uint8_t>(c.pc);
}
/// From the latched low byte and the high byte just read.
inline void jump(CycleCore& c) {
    c.pc = static_cast<std::uint16_t>(unsigned{dataOf(c)} << 8U | (c.ad & 0xFFU));
}

// Branches

inline void latchTarget(CycleCore& c) {
    c.ad = static_cast<std::uint16_t>(c.pc + static_cast<std::int8_t>(dataOf(c)));
}
/// Always taken, for BRA.
inline constexpr std::uint8_t kAlways = 0;
/// Ends the instruction unless the flag is as the condition wants it.
template <std::uint8_t flag, bool isSet>
void fetchUnlessTaken(CycleCore& c) {
    if (flag != kAlways && ((c.p & flag) != 0) != isSet) fetch(c);
}
inline void readTargetUncarried(CycleCore& c) {
    setAddress(c, (c.pc & 0xFF00U) | (c.ad & 0xFFU));
}
/// Ends the instruction, and delays interrupts by one cycle.
inline void fetchIfSamePage(CycleCore& c) {
    if (((c.pc ^ c.ad) & 0xFF00) != 0) return;
    c.pc = c.ad;
    c.irqPipeline = static_cast<std::uint16_t>(c.irqPipeline >> 1U);
    c.nmiPipeline = static_cast<std::uint16_t>(c.nmiPipeline >> 1U);
    fetch(c);
}
inline void goToLatch(CycleCore& c) {
    c.pc = c.ad;
}

// The BRK sequence, which interrupts and reset share

inline void skipSignature(CycleCore& c) {
    if ((c.brkFlags & (BreakCause::kIrq | BreakCause::kNmi)) == 0) ++c.pc;
}
/// As a push, but a reset only reads.
template <auto Value>
void pushUnlessReset(CycleCore& c) {
    push(c);
    const std::uint64_t direction = c.brkFlags & BreakCause::kReset ? CyclePin::kRW : 0;
    writeByte(c, Value(c));
    c.pins |= direction;
}
inline void latchVector(CycleCore& c) {
    if ((c.brkFlags & BreakCause::kReset) != 0) {
        c.ad = 0xFFFC;
    } else {
        c.ad = (c.brkFlags & BreakCause::kNmi) != 0 ? 0xFFFA : 0xFFFE;
    }
}
inline void readVector(CycleCore& c) {
    setAddress(c, c.ad++);
    c.p |= CycleFlag::kI | CycleFlag::kB;
    c.brkFlags = 0;
}

}  // namespace tarnsim::CycleAction
