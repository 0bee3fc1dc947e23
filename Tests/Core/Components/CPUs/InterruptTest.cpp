#include <random>

#include "Tests/Core/Components/CPUs/InterruptWatch.h"

namespace tarnsim {
namespace {

constexpr std::uint8_t kNop = 0xEA;

/// How a run begins. The operands are EA EA, so that X and Y of 0x40 cross a page, and a branch at 0x0300.
struct Start {
    std::uint16_t pc;
    std::uint8_t p;
    std::uint8_t xy;
};
constexpr Start kStarts[] = {
    {0x0380, 0x10, 0x00}, {0x0300, 0xD3, 0x40}, {0x0380, 0xDB, 0x40}, {0x0300, 0x18, 0x00}, {0x0380, 0xD7, 0x00},
};

/// One of the opcodes among NOPs everywhere, with lines that become active at one tick of it.
template <class Watch>
class Sweep {
public:
    Sweep() {
        auto& memory = watch_.bench.memory;
        std::ranges::fill(memory, kNop);
        for (const unsigned vector : {0xFFFAU, 0xFFFCU, 0xFFFEU}) {
            memory[vector] = 0;
            memory[vector + 1] = static_cast<std::uint8_t>(vector & 0xFFU);  // FA00, FC00 and FE00
        }
    }

    /// Returns how many sequences began.
    int run(int opcode, const Start& start, std::uint64_t lines, int from, int count) {
        auto& bench = watch_.bench;
        bench.memory[start.pc] = static_cast<std::uint8_t>(opcode);
        watch_.standAt(start.pc);
        bench.core.p = start.p;
        bench.core.x = bench.core.y = start.xy;
        bench.core.a = 0x5A;
        bench.core.s = 0x80;
        for (int tick = 0; tick < 24; ++tick) watch_.tick(tick >= from && tick < from + count ? lines : 0);
        bench.memory[start.pc] = kNop;
        for (const auto& each : bench.bus) {
            if (!each.isRead) bench.memory[each.address] = kNop;
        }
        bench.bus.clear();
        if (!watch_.differences.empty()) {
            ADD_FAILURE() << format("opcode %02x p %02x at %04x, lines %llx from tick %d for %d\n", opcode, start.p,
                                    start.pc, static_cast<unsigned long long>(lines), from, count)
                          << watch_.differences;
        }
        return watch_.sequences;
    }

    /// All opcodes, with `lines` active from each of their ticks on, for each of `counts` ticks.
    int runAll(std::uint64_t lines, std::initializer_list<int> counts) {
        int sequences = 0;
        for (int opcode = 0; opcode < 0x100 && !testing::Test::HasFailure(); ++opcode) {
            for (const Start& start : kStarts) {
                for (int from = 0; from < 11; ++from) {
                    for (const int count : counts) sequences += run(opcode, start, lines, from, count);
                }
            }
        }
        return sequences;
    }

private:
    Watch watch_;
};

template <class Watch>
class Interrupts : public testing::Test {};
using Watches = testing::Types<NmosWatch, CmosWatch>;
TYPED_TEST_SUITE(Interrupts, Watches);

constexpr int kForEver = 100;

TYPED_TEST(Interrupts, AnIrqAtEachCycleOfEachOpcodeIsTakenWhereItsDelayLineSays) {
    EXPECT_GT(Sweep<TypeParam>().runAll(CyclePin::kIrq, {1, 2, kForEver}), 10000);
}

TYPED_TEST(Interrupts, AnNmiAtEachCycleOfEachOpcodeIsTakenOnceWhereItsDelayLineSays) {
    EXPECT_GT(Sweep<TypeParam>().runAll(CyclePin::kNmi, {1, kForEver}), 10000);
}

TYPED_TEST(Interrupts, OfBothAtOnceTheVectorIsTheNmis) {
    EXPECT_GT(Sweep<TypeParam>().runAll(CyclePin::kIrq | CyclePin::kNmi, {1, kForEver}), 10000);
}

TYPED_TEST(Interrupts, AResetAtEachCycleOfEachOpcode) {
    EXPECT_GT(Sweep<TypeParam>().runAll(CyclePin::kRes, {1, 3}), 2000);
    EXPECT_GT(Sweep<TypeParam>().runAll(CyclePin::kRes | CyclePin::kIrq | CyclePin::kNmi, {1, 2}), 2000);
}

/// Random programs with random lines for a long time; jams and STP only as far as a reset can leave them.
TYPED_TEST(Interrupts, RandomLinesOverRandomProgramsAreTakenAsForetold) {
    const std::set<int> jams = {0x02, 0x12, 0x22, 0x32, 0x42, 0x52, 0x62, 0x72, 0x92, 0xB2, 0xD2, 0xF2};
    std::mt19937 generator(65);
    const auto oneIn = [&](unsigned n) { return generator() % n == 0; };
    int sequences = 0;
    for (int program = 0; program < 20; ++program) {
        TypeParam watch;
        for (auto& byte : watch.bench.memory) {
            byte = static_cast<std::uint8_t>(generator());
            if (!TypeParam::kIsCmos && jams.contains(byte)) byte = kNop;
            if (oneIn(8)) byte = static_cast<std::uint8_t>(generator() % 8 * 0x20 + 0x10);  // many branches
            if (oneIn(16)) byte = 0x58;                                                     // CLI
        }
        watch.standAt(0x0400);
        std::uint64_t lines = 0;
        for (int tick = 0; tick < 20000; ++tick) {
            if (oneIn(6)) lines ^= CyclePin::kIrq;
            if (oneIn(9)) lines ^= CyclePin::kNmi;
            if (oneIn(4)) lines ^= CyclePin::kRdy;
            lines &= ~CyclePin::kRes;
            if (oneIn(150)) lines |= CyclePin::kRes;
            watch.tick(lines);
        }
        EXPECT_EQ(watch.differences, "") << "program " << program;
        sequences += watch.sequences;
    }
    EXPECT_GT(sequences, 2000);
}

}  // namespace
}  // namespace tarnsim
