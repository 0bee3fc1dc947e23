#pragma once

#include <cstdint>

#include "Core/Components/CPUs/CycleCore.h"

// The NMOS 6502 by clock cycles, with the I/O port of its sibling 6510 for hosts that want one.
//
// A host initialises the record and then calls `tick` once a cycle: it carries out the bus cycle that the returned mask
// asks for and passes the mask back, changed only in the data byte of a read and in the bits IRQ, NMI, RDY and RES.
// Nothing is allocated, and there is no state outside of the record, which the host owns.
//
// All 256 opcodes run with their published number of cycles and every dummy access. The twelve opcodes that jam the
// chip jam the core until it is initialised anew.

namespace tarnsim {

/// The core's record.
struct m6502 : CycleCore {
    void* userData;                       ///< for the callbacks; not owned
    std::uint8_t (*in_cb)(void*);         ///< what is on the pins of the port
    void (*out_cb)(std::uint8_t, void*);  ///< what the port drives
    std::uint8_t ioDdr;                   ///< directions, 1 is an output
    std::uint8_t ioInput;
    std::uint8_t ioOutput;
    std::uint8_t ioPins;
    std::uint8_t ioPullup;
    std::uint8_t ioFloating;
    std::uint8_t ioDrive;
};

/// How a core is to be.
struct m6502Descriptor {
    bool bcd_disabled = false;  ///< D has no effect on arithmetic
    std::uint8_t (*in_cb)(void*) = nullptr;
    void (*out_cb)(std::uint8_t, void*) = nullptr;
    void* userData = nullptr;
    std::uint8_t ioPullup = 0;
    std::uint8_t ioFloating = 0;
};

/// What assertions name.
inline constexpr const char* kM6502Header = "Core/Components/CPUs/MOS6502/m6502.h";

/// Where no step of an instruction leads.
inline void unreachableStep(m6502& /*c*/) {
    failAssertion("false", kM6502Header, __LINE__);
}

/// Clears the record; the mask that it gives makes the first tick begin the reset sequence.
inline std::uint64_t initialise(m6502* c, const m6502Descriptor* desc) {
    if (!(c && desc)) failAssertion("c && desc", kM6502Header, __LINE__);
    *c = m6502{};
    c->p = CycleFlag::kZ;
    c->pins = CyclePin::kAfterReset;
    c->bcdEnabled = desc->bcd_disabled ? 0 : 1;
    c->in_cb = desc->in_cb;
    c->out_cb = desc->out_cb;
    c->userData = desc->userData;
    c->ioPullup = desc->ioPullup;
    c->ioFloating = desc->ioFloating;
    return c->pins;
}

/// One clock cycle.
std::uint64_t tick(m6502* c, std::uint64_t pins);

/// A bus cycle to the registers of the port, directions at address 0 and data at 1: bit 0 of the address decides. Gives
/// the mask with the byte read. The tick doesn't call this; a host that wants a 6510 does.
inline std::uint64_t requestIo(m6502* c, std::uint64_t pins) {
    if (!(c->in_cb && c->out_cb)) failAssertion("c->in_cb && c->out_cb", kM6502Header, __LINE__);
    const bool isRead = (pins & CyclePin::kRW) != 0;
    const bool isData = (pins & 1U) != 0;
    if (!isRead) {
        const auto byte = static_cast<std::uint8_t>(pins >> CyclePin::kDataShift);
        (isData ? c->ioOutput : c->ioDdr) = byte;
        c->ioDrive = static_cast<std::uint8_t>((c->ioDrive & ~c->ioDdr) | (c->ioOutput & c->ioDdr));
        c->out_cb(static_cast<std::uint8_t>((c->ioOutput & c->ioDdr) | (c->ioPullup & ~c->ioDdr)), c->userData);
    } else {
        std::uint8_t byte = c->ioDdr;
        if (isData) {
            c->ioInput = c->in_cb(c->userData);
            byte = static_cast<std::uint8_t>((((c->ioFloating & c->ioDrive) | c->ioInput) & ~c->ioDdr) |
                                             (c->ioDdr & c->ioOutput));
        }
        pins = (pins & ~CyclePin::kData) | (std::uint64_t{byte} << CyclePin::kDataShift);
        if (!isData) return pins;
    }
    c->ioPins = static_cast<std::uint8_t>((c->ioOutput & c->ioDdr) | (c->ioInput & ~c->ioDdr));
    return pins;
}

}  // namespace tarnsim
