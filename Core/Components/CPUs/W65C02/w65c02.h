#pragma once

#include <cstdint>

#include "Core/Components/CPUs/CycleCore.h"

// The CMOS 65C02 (W65C02S) by clock cycles, with its bit instructions, WAI and STP. Used as m6502 is.
//
// All 256 opcodes are defined; those without an instruction do nothing. RDY halts writes too, and RES acts at once.

namespace tarnsim {

/// The core's record.
struct w65c02 : CycleCore {
    std::uint8_t waiting;  ///< in a WAI
    std::uint8_t stopped;  ///< by an STP, until a reset
};

/// How a core is to be.
struct w65c02Descriptor {
    bool bcd_disabled = false;  ///< D has no effect on arithmetic
};

/// What assertions name.
inline constexpr const char* kW65C02Header = "Core/Components/CPUs/W65C02/w65c02.h";

/// Where no step of an instruction leads.
inline void unreachableStep(w65c02& /*c*/) {
    failAssertion("false", kW65C02Header, __LINE__);
}

/// Clears the record; the mask that it gives makes the first tick begin the reset sequence.
inline std::uint64_t initialise(w65c02* c, const w65c02Descriptor* desc) {
    if (!(c && desc)) failAssertion("c && desc", kW65C02Header, __LINE__);
    *c = w65c02{};
    c->p = CycleFlag::kZ;
    c->pins = CyclePin::kAfterReset;
    c->bcdEnabled = desc->bcd_disabled ? 0 : 1;
    return c->pins;
}

/// One clock cycle.
std::uint64_t tick(w65c02* c, std::uint64_t pins);

}  // namespace tarnsim
