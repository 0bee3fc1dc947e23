#pragma once

#include <cstdint>

#include "Core/Components/CPUs/CycleArithmetic.h"
#include "Core/Components/CPUs/CycleCore.h"

// What instructions do, apart from how they address memory.

namespace tarnsim::CycleOperation {

using Register = std::uint8_t CycleCore::*;
inline constexpr Register A = &CycleCore::a;
inline constexpr Register X = &CycleCore::x;
inline constexpr Register Y = &CycleCore::y;
inline constexpr Register S = &CycleCore::s;

// Operations on the byte that was read.

template <Register... targets>
void load(CycleCore& c) {
    ((c.*targets = dataOf(c)), ...);
    setNZ(c, dataOf(c));
}

inline void andA(CycleCore& c) {
    c.a &= dataOf(c);
    setNZ(c, c.a);
}
inline void ora(CycleCore& c) {
    c.a |= dataOf(c);
    setNZ(c, c.a);
}
inline void eor(CycleCore& c) {
    c.a ^= dataOf(c);
    setNZ(c, c.a);
}

inline bool isDecimal(const CycleCore& c) {
    return c.bcdEnabled != 0 && (c.p & CycleFlag::kD) != 0;
}
inline void setAccumulator(CycleCore& c, Accumulator result) {
    c.a = result.a;
    c.p = result.p;
}
inline void addToA(CycleCore& c, std::uint8_t v) {
    setAccumulator(
        c, isDecimal(c) ? CycleArithmetic::adcDecimal({c.a, c.p}, v) : CycleArithmetic::adcBinary({c.a, c.p}, v));
}
inline void subtractFromA(CycleCore& c, std::uint8_t v) {
    setAccumulator(c, CycleArithmetic::sbc({c.a, c.p}, v, isDecimal(c)));
}
inline void adc(CycleCore& c) {
    addToA(c, dataOf(c));
}
inline void sbc(CycleCore& c) {
    subtractFromA(c, dataOf(c));
}

inline void compareWith(CycleCore& c, std::uint8_t value, std::uint8_t v) {
    setNZ(c, static_cast<std::uint8_t>(value - v));
    setFlag(c, CycleFlag::kC, value >= v);
}
template <Register subject>
void compare(CycleCore& c) {
    compareWith(c, c.*subject, dataOf(c));
}

/// Only Z follows the accumulator.
inline void bitImmediate(CycleCore& c) {
    setFlag(c, CycleFlag::kZ, (c.a & dataOf(c)) == 0);
}
/// N and V are the byte's own bits 7 and 6.
inline void bit(CycleCore& c) {
    bitImmediate(c);
    setFlag(c, CycleFlag::kN, (dataOf(c) & 0x80U) != 0);
    setFlag(c, CycleFlag::kV, (dataOf(c) & 0x40U) != 0);
}

inline void nop(CycleCore& /*c*/) {}

// Operations on a byte that is written back.

inline std::uint8_t shifted(CycleCore& c, unsigned result, bool carry) {
    const auto byte = static_cast<std::uint8_t>(result);
    setFlag(c, CycleFlag::kC, carry);
    setNZ(c, byte);
    return byte;
}
inline std::uint8_t asl(CycleCore& c, std::uint8_t v) {
    return shifted(c, v * 2U, (v & 0x80U) != 0);
}
inline std::uint8_t lsr(CycleCore& c, std::uint8_t v) {
    return shifted(c, v / 2U, (v & 1U) != 0);
}
inline std::uint8_t rol(CycleCore& c, std::uint8_t v) {
    return shifted(c, v * 2U | (c.p & CycleFlag::kC), (v & 0x80U) != 0);
}
inline std::uint8_t ror(CycleCore& c, std::uint8_t v) {
    return shifted(c, v / 2U | ((c.p & CycleFlag::kC) != 0 ? 0x80U : 0U), (v & 1U) != 0);
}
inline std::uint8_t inc(CycleCore& c, std::uint8_t v) {
    setNZ(c, ++v);
    return v;
}
inline std::uint8_t dec(CycleCore& c, std::uint8_t v) {
    setNZ(c, --v);
    return v;
}

// Operations on registers alone.

/// A shift or count of a register.
template <auto Change, Register subject>
void changeRegister(CycleCore& c) {
    c.*subject = Change(c, c.*subject);
}
template <Register from, Register to>
void transfer(CycleCore& c) {
    c.*to = c.*from;
    setNZ(c, c.*to);
}
/// The one transfer without flags.
inline void txs(CycleCore& c) {
    c.s = c.x;
}
template <std::uint8_t flag, bool isSet>
void flagTo(CycleCore& c) {
    setFlag(c, flag, isSet);
}

// Bytes that are stored or pushed.

template <Register source>
std::uint8_t valueOf(CycleCore& c) {
    return c.*source;
}
/// What PHP and BRK push.
inline std::uint8_t status(CycleCore& c) {
    return c.p | CycleFlag::kUnused;
}
/// What PLP and RTI make of a pulled byte.
inline void pullStatus(CycleCore& c) {
    c.p = static_cast<std::uint8_t>((dataOf(c) & 0xCFU) | CycleFlag::kB);
}

}  // namespace tarnsim::CycleOperation
