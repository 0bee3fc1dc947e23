#pragma once

#include <cstdint>

#include "Core/Components/CPUs/CycleCore.h"

namespace tarnsim {

/// Accumulator and flags, before and after an operation.
struct Accumulator {
    std::uint8_t a;
    std::uint8_t p;
};

namespace CycleArithmetic {

inline constexpr std::uint8_t kKept = 0x3C;  ///< flags that adding and subtracting leave alone

constexpr std::uint8_t negativeOrZero(int value) {
    return static_cast<std::uint8_t>((value & 0xFF) == 0 ? CycleFlag::kZ : value & CycleFlag::kN);
}

constexpr Accumulator adcBinary(Accumulator in, std::uint8_t v) {
    const int sum = in.a + v + (in.p & CycleFlag::kC);
    int p = (in.p & kKept) | negativeOrZero(sum);
    if ((~(in.a ^ v) & (in.a ^ sum) & 0x80) != 0) p |= CycleFlag::kV;
    if ((sum & 0x300) != 0) p |= CycleFlag::kC;
    return {static_cast<std::uint8_t>(sum), static_cast<std::uint8_t>(p)};
}

/// As the NMOS chip does it: Z comes from the binary sum, N and V from the high digit before it is adjusted.
constexpr Accumulator adcDecimal(Accumulator in, std::uint8_t v) {
    const int carry = in.p & CycleFlag::kC;
    int p = in.p & kKept;
    int al = (in.a & 0x0F) + (v & 0x0F) + carry;
    if (al > 9) al += 6;
    int ah = (in.a >> 4) + (v >> 4) + (al > 15 ? 1 : 0);
    if (((in.a + v + carry) & 0xFF) == 0) {
        p |= CycleFlag::kZ;
    } else if ((ah & 0x08) != 0) {
        p |= CycleFlag::kN;
    }
    if ((~(in.a ^ v) & (in.a ^ (ah << 4)) & 0x80) != 0) p |= CycleFlag::kV;
    if (ah > 9) {
        p |= CycleFlag::kC;
        ah += 6;
    }
    return {static_cast<std::uint8_t>((ah << 4) | (al & 0x0F)), static_cast<std::uint8_t>(p)};
}

/// All flags come from the binary difference, in both modes.
constexpr Accumulator sbc(Accumulator in, std::uint8_t v, bool isDecimal) {
    const int borrow = (in.p & CycleFlag::kC) != 0 ? 0 : 1;
    const int diff = in.a - v - borrow;
    int p = (in.p & kKept) | negativeOrZero(diff);
    if (((in.a ^ v) & (in.a ^ diff) & 0x80) != 0) p |= CycleFlag::kV;
    if ((diff & 0xFF00) == 0) p |= CycleFlag::kC;
    if (!isDecimal) return {static_cast<std::uint8_t>(diff), static_cast<std::uint8_t>(p)};

    int al = (in.a & 0x0F) - (v & 0x0F) - borrow;
    int ah = (in.a >> 4) - (v >> 4) - (al < 0 ? 1 : 0);
    if (al < 0) al -= 6;
    if (ah < 0) ah -= 6;
    return {static_cast<std::uint8_t>((ah << 4) | (al & 0x0F)), static_cast<std::uint8_t>(p)};
}

/// The undocumented AND with a rotation to the right, whose decimal mode adjusts both digits.
constexpr Accumulator arr(Accumulator in, std::uint8_t v, bool isDecimal) {
    const int t = in.a & v;
    int r = (t >> 1) | ((in.p & CycleFlag::kC) != 0 ? 0x80 : 0);
    int p = (in.p & kKept) | negativeOrZero(r);
    if (!isDecimal) {
        if ((r & 0x40) != 0) p |= CycleFlag::kC | CycleFlag::kV;
        if ((r & 0x20) != 0) p ^= CycleFlag::kV;
        return {static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(p)};
    }
    if (((t ^ r) & 0x40) != 0) p |= CycleFlag::kV;
    if ((t & 0x0F) > 4) r = (r & 0xF0) | ((r + 6) & 0x0F);
    if ((t & 0xF0) > 0x4F) {
        p |= CycleFlag::kC;
        r += 0x60;
    }
    return {static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(p)};
}

}  // namespace CycleArithmetic

}  // namespace tarnsim
