#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What the cycle-stepped cores of the 6502 family have in common. A core is a plain record and a function that advances
// it by one clock cycle; nothing in this folder's cores knows of circuits, values or time, so they can be lifted out.

namespace tarnsim {

/// The bits of the mask by which a core and its surroundings talk. A set bit means that the line is active in the
/// core's sense: IRQ is set while the pin is low.
namespace CyclePin {
inline constexpr std::uint64_t kAddress = 0xFFFF;
inline constexpr std::uint64_t kData = 0xFF'0000;
inline constexpr int kDataShift = 16;
inline constexpr std::uint64_t kRW = std::uint64_t{1} << 24;    ///< 1 read, 0 write
inline constexpr std::uint64_t kSync = std::uint64_t{1} << 25;  ///< the cycle fetches an opcode
inline constexpr std::uint64_t kIrq = std::uint64_t{1} << 26;
inline constexpr std::uint64_t kNmi = std::uint64_t{1} << 27;
inline constexpr std::uint64_t kRdy = std::uint64_t{1} << 28;  ///< 1: the processor is to wait
inline constexpr std::uint64_t kRes = std::uint64_t{1} << 30;
inline constexpr std::uint64_t kVp = std::uint64_t{1} << 31;  ///< reads the low byte of a vector; CMOS only
inline constexpr int kPortShift = 32;                         ///< the six bits of a 6510's port; NMOS only
inline constexpr std::uint64_t kPort = std::uint64_t{0x3F} << kPortShift;

/// What the surroundings pass to a fresh core.
inline constexpr std::uint64_t kAfterReset = kRW | kSync | kRes;
}  // namespace CyclePin

/// The flags of the status register.
namespace CycleFlag {
inline constexpr std::uint8_t kC = 0x01;
inline constexpr std::uint8_t kZ = 0x02;
inline constexpr std::uint8_t kI = 0x04;
inline constexpr std::uint8_t kD = 0x08;
inline constexpr std::uint8_t kB = 0x10;
inline constexpr std::uint8_t kUnused = 0x20;
inline constexpr std::uint8_t kV = 0x40;
inline constexpr std::uint8_t kN = 0x80;
}  // namespace CycleFlag

/// Why a BRK sequence runs, as bits; none for the instruction itself.
namespace BreakCause {
inline constexpr std::uint8_t kIrq = 1;
inline constexpr std::uint8_t kNmi = 2;
inline constexpr std::uint8_t kReset = 4;
}  // namespace BreakCause

/// The record that all cores begin with.
struct CycleCore {
    std::uint16_t ir;  ///< opcode * 8 + number of the step that comes next
    std::uint16_t pc;
    std::uint16_t ad;  ///< address latch, or the byte that an instruction works on
    std::uint8_t a;
    std::uint8_t x;
    std::uint8_t y;
    std::uint8_t s;
    std::uint8_t p;
    std::uint64_t pins;         ///< the mask that the last tick returned; while one runs, the one that it works on
    std::uint16_t irqPipeline;  ///< samples of IRQ, the latest in bit 0
    std::uint16_t nmiPipeline;  ///< edges of NMI likewise
    std::uint8_t brkFlags;      ///< BreakCause
    std::uint8_t bcdEnabled;    ///< not 0: D selects decimal arithmetic
};

/// Ends the program in every build: somebody has used a core wrongly.
[[noreturn]] inline void failAssertion(const char* expression, const char* header, int line) {
    std::fprintf(stderr, "%s:%d: Assertion `%s' failed.\n", header, line, expression);
    std::abort();
}

// What one clock cycle is put together from. Each reads the byte of the cycle before from the mask and leaves the
// address, the data and the direction of the next one in it.

inline std::uint8_t dataOf(const CycleCore& c) {
    return static_cast<std::uint8_t>(c.pins >> CyclePin::kDataShift);
}
inline void setAddress(CycleCore& c, unsigned address) {
    c.pins = (c.pins & ~CyclePin::kAddress) | (address & CyclePin::kAddress);
}
/// The next cycle writes `byte`.
inline void writeByte(CycleCore& c, unsigned byte) {
    c.pins = (c.pins & ~(CyclePin::kData | CyclePin::kRW)) | (std::uint64_t{byte & 0xFFU} << CyclePin::kDataShift);
}
/// The next cycle fetches an opcode.
inline void fetch(CycleCore& c) {
    setAddress(c, c.pc);
    c.pins |= CyclePin::kSync;
}
inline void setNZ(CycleCore& c, std::uint8_t value) {
    const auto flags = static_cast<std::uint8_t>(c.p & ~(CycleFlag::kN | CycleFlag::kZ));
    c.p = static_cast<std::uint8_t>(flags | (value == 0 ? CycleFlag::kZ : value & CycleFlag::kN));
}
inline void setFlag(CycleCore& c, std::uint8_t flag, bool isSet) {
    c.p = static_cast<std::uint8_t>(isSet ? c.p | flag : c.p & ~flag);
}

// What the head of a tick does on both cores.

/// Notes an NMI that wasn't there before, and an IRQ unless it is masked.
inline void sampleInterrupts(CycleCore& c, std::uint64_t pins) {
    if ((pins & ~c.pins & CyclePin::kNmi) != 0) c.nmiPipeline |= 1U;
    if ((pins & CyclePin::kIrq) != 0 && (c.p & CycleFlag::kI) == 0) c.irqPipeline |= 1U;
}

/// Begins the instruction whose opcode has been fetched, or a BRK sequence if an interrupt is due. Returns the mask.
inline std::uint64_t beginInstruction(CycleCore& c, std::uint64_t pins) {
    c.ir = static_cast<std::uint16_t>(((pins & CyclePin::kData) >> CyclePin::kDataShift) << 3U);
    if ((c.irqPipeline & 4U) != 0) c.brkFlags |= BreakCause::kIrq;
    if ((c.nmiPipeline & 0xFFFCU) != 0) c.brkFlags |= BreakCause::kNmi;
    if ((pins & CyclePin::kRes) != 0) c.brkFlags |= BreakCause::kReset;
    c.irqPipeline &= 3U;
    c.nmiPipeline &= 3U;
    if (c.brkFlags != 0) {
        c.ir = 0;
        setFlag(c, CycleFlag::kB, false);
        pins &= ~CyclePin::kRes;
    } else {
        ++c.pc;
    }
    return pins & ~CyclePin::kSync;
}

inline void shiftPipelines(CycleCore& c) {
    if ((c.irqPipeline | c.nmiPipeline) == 0) return;  // nearly always
    c.irqPipeline = static_cast<std::uint16_t>(c.irqPipeline << 1U);
    c.nmiPipeline = static_cast<std::uint16_t>(c.nmiPipeline << 1U);
}

}  // namespace tarnsim
