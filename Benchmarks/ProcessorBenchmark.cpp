// Clock cycles of the processor cores on plain memory.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"

namespace tarnsim {
namespace {

constexpr std::uint16_t kStart = 0x0400;
constexpr std::uint16_t kEnd = 0x0425;
constexpr std::uint16_t kTable = 0x0200;

/// The sieve: marks the numbers below 256 that aren't prime in the table at 0200, over and over.
constexpr std::array<std::uint8_t, 40> kSieve = {
    0xA2, 0x00,        // 0400        ldx #0
    0xA9, 0x00,        // 0402        lda #0
    0x9D, 0x00, 0x02,  // 0404 clear  sta $0200,x
    0xE8,              // 0407        inx
    0xD0, 0xFA,        // 0408        bne clear
    0xA2, 0x02,        // 040A        ldx #2
    0xBD, 0x00, 0x02,  // 040C test   lda $0200,x
    0xD0, 0x0F,        // 040F        bne next
    0x86, 0x10,        // 0411        stx $10
    0x8A,              // 0413        txa
    0x18,              // 0414 mark   clc
    0x65, 0x10,        // 0415        adc $10
    0xB0, 0x07,        // 0417        bcs next
    0xA8,              // 0419        tay
    0x99, 0x00, 0x02,  // 041A        sta $0200,y
    0x4C, 0x14, 0x04,  // 041D        jmp mark
    0xE8,              // 0420 next   inx
    0xE0, 0x10,        // 0421        cpx #16
    0xD0, 0xE7,        // 0423        bne test
    0x4C, 0x00, 0x04,  // 0425        jmp $0400
};

/// A core with its memory.
template <class Core, class Descriptor>
struct Computer {
    Computer() {
        std::ranges::copy(kSieve, memory.begin() + kStart);
        memory[0xFFFC] = kStart & 0xFF;
        memory[0xFFFD] = kStart >> 8;
        const Descriptor descriptor;
        pins = initialise(&core, &descriptor);
    }

    void runCycle() {
        const auto address = static_cast<std::uint16_t>(pins & CyclePin::kAddress);
        if ((pins & CyclePin::kRW) != 0) {
            pins = (pins & ~CyclePin::kData) | std::uint64_t{memory[address]} << CyclePin::kDataShift;
        } else {
            memory[address] = static_cast<std::uint8_t>(pins >> CyclePin::kDataShift);
        }
        pins = tick(&core, pins);
    }
    bool isAt(std::uint16_t address) const {
        return (pins & (CyclePin::kAddress | CyclePin::kSync)) == (address | CyclePin::kSync);
    }

    std::vector<std::uint8_t> memory = std::vector<std::uint8_t>(0x10000);
    Core core{};
    std::uint64_t pins = 0;
};

template <class Core, class Descriptor>
void runSieve(benchmark::State& state) {
    Computer<Core, Descriptor> computer;
    constexpr int kTicks = 100'000;
    for (auto _ : state) {
        for (int i = 0; i < kTicks; ++i) computer.runCycle();
    }
    state.SetItemsProcessed(state.iterations() * kTicks);

    while (!computer.isAt(kEnd)) computer.runCycle();
    if (computer.memory[kTable + 251] != 0 || computer.memory[kTable + 247] == 0) state.SkipWithError("no sieve");
}
BENCHMARK(runSieve<m6502, m6502Descriptor>);
BENCHMARK(runSieve<w65c02, w65c02Descriptor>);

/// The core and nothing else: a bus on which every address holds a NOP.
template <class Core, class Descriptor>
void runNops(benchmark::State& state) {
    constexpr std::uint64_t kNop = 0xEA;
    Core core{};
    const Descriptor descriptor;
    std::uint64_t pins = initialise(&core, &descriptor);
    constexpr int kTicks = 100'000;
    for (auto _ : state) {
        for (int i = 0; i < kTicks; ++i) pins = tick(&core, (pins & ~CyclePin::kData) | kNop << CyclePin::kDataShift);
        benchmark::DoNotOptimize(pins);
    }
    state.SetItemsProcessed(state.iterations() * kTicks);
}
BENCHMARK(runNops<m6502, m6502Descriptor>);
BENCHMARK(runNops<w65c02, w65c02Descriptor>);

}  // namespace
}  // namespace tarnsim
