#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"
#include "Tests/Core/Components/CPUs/CoreBench.h"

namespace tarnsim {
namespace {

// Short programs at 0200 with NOPs behind them, and an interrupt at one tick. Tick 0 reads the first opcode.

using NmosBench = CoreBench<m6502, m6502Descriptor>;
using CmosBench = CoreBench<w65c02, w65c02Descriptor>;

constexpr std::uint64_t kIrq = CyclePin::kIrq;
constexpr std::uint64_t kNmi = CyclePin::kNmi;
constexpr int kForEver = 100;
constexpr int kNever = -1;

template <class Bench>
class Timing : public testing::Test {
public:
    Timing() {
        std::ranges::fill(bench.memory, std::uint8_t{0xEA});
        bench.memory[0xFFFA] = 0x00;
        bench.memory[0xFFFB] = 0xFA;
        bench.memory[0xFFFE] = 0x00;
        bench.memory[0xFFFF] = 0xFE;
    }
    void program(std::vector<std::uint8_t> bytes, std::uint8_t p = CycleFlag::kB) {
        std::ranges::copy(bytes, bench.memory.begin() + 0x200);
        bench.standAt(0x200);
        bench.core.p = p;
        bench.core.s = 0xF0;
        bench.bus.clear();
    }
    /// Runs with the lines active from tick `from` on for `count` ticks. Returns the tick that begins the sequence
    /// instead of an instruction; kNever if there is none.
    int sequenceBegins(std::uint64_t lines, int from, int count) {
        for (int tick = 0; tick < 40; ++tick) {
            const bool isActive = tick >= from && tick < from + count;
            const bool isSync = (bench.pins & CyclePin::kSync) != 0;
            bench.tick(isActive ? lines : 0);
            if (isSync && bench.core.brkFlags != 0) return tick;
        }
        return kNever;
    }
    /// The return address and the status that a sequence which has just begun pushes.
    std::string pushed() {
        const std::size_t top = 0x100U + bench.core.s;
        for (int i = 0; i < 6; ++i) bench.tick();
        const auto& m = bench.memory;
        return format("%02x%02x %02x", m[top], m[top - 1], m[top - 2]);
    }

    Bench bench;
};
using Benches = testing::Types<NmosBench, CmosBench>;
TYPED_TEST_SUITE(Timing, Benches);

TYPED_TEST(Timing, AnIrqCountsThatWasThereTwoTicksBeforeAnOpcode) {
    this->program({0xEA, 0xEA, 0xEA});  // opcodes at ticks 0, 2, 4
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, 1), 2);
    EXPECT_EQ(this->pushed(), "0201 20");
    this->program({0xEA, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq, 2, 1), 4);
    EXPECT_EQ(this->pushed(), "0202 20");
}

TYPED_TEST(Timing, AnIrqForOneTickBetweenIsForgotten) {
    this->program({0xEA, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq, 1, 1), kNever);
    this->program({0xEA, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq, 1, 2), 4);  // two ticks hit one of the two phases
}

TYPED_TEST(Timing, AnNmiIsKeptUntilTheNextOpcodeThatCanSeeIt) {
    this->program({0xEA, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kNmi, 0, 1), 2);
    this->program({0xEA, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kNmi, 1, 1), 4);
    this->program({0xEE, 0x00, 0x40, 0xEA});  // INC abs, six cycles
    this->bench.memory[0x4000] = 0x01;
    EXPECT_EQ(this->sequenceBegins(kNmi, 1, 1), 6);
    EXPECT_EQ(this->pushed(), "0203 20");
}

TYPED_TEST(Timing, AnNmiThatStaysActiveIsOneNmi) {
    this->program({0xEA, 0xEA, 0xEA});
    int sequences = 0;
    for (int tick = 0; tick < 200; ++tick) {
        const bool isSync = (this->bench.pins & CyclePin::kSync) != 0;
        this->bench.tick(kNmi);
        if (isSync && this->bench.core.brkFlags != 0) ++sequences;
    }
    EXPECT_EQ(sequences, 1);
    this->bench.tick();
    EXPECT_NE(this->sequenceBegins(kNmi, 0, 1), kNever);  // the next edge
}

TYPED_TEST(Timing, AnIrqWhileIIsSetIsNotRemembered) {
    this->program({0xEA, 0x58, 0xEA, 0xEA}, CycleFlag::kB | CycleFlag::kI);  // CLI at ticks 2 and 3
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, 4), kNever);                     // clear from tick 4 on
}

TYPED_TEST(Timing, BehindCliOneMoreInstructionRuns) {
    this->program({0x58, 0xEA, 0xEA}, CycleFlag::kB | CycleFlag::kI);
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, kForEver), 4);
    EXPECT_EQ(this->pushed(), "0202 20");
}

TYPED_TEST(Timing, BehindSeiAnIrqComesAtOnceAndPushesISet) {
    this->program({0x78, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, kForEver), 2);
    EXPECT_EQ(this->pushed(), "0201 24");
    this->program({0x78, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq, 1, kForEver), kNever);
    this->program({0x78, 0x58, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq, 2, 2), kNever);  // masked by the SEI, and gone before the CLI helps
}

TYPED_TEST(Timing, PlpIsAsLateAsCliAndSei) {
    this->program({0x28, 0xEA, 0xEA}, CycleFlag::kB | CycleFlag::kI);
    this->bench.memory[0x1F1] = 0x00;  // clears I in tick 3 of 0 to 3
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, kForEver), 6);
    EXPECT_EQ(this->pushed(), "0202 20");

    this->program({0x28, 0xEA, 0xEA});
    this->bench.memory[0x1F1] = 0x04;
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, kForEver), 4);
}

TYPED_TEST(Timing, BehindRtiAnIrqComesAtOnce) {
    this->program({0x40}, CycleFlag::kB | CycleFlag::kI);
    this->bench.memory[0x1F1] = 0x00;
    this->bench.memory[0x1F2] = 0x00;
    this->bench.memory[0x1F3] = 0x05;
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, kForEver), 6);
    EXPECT_EQ(this->bench.core.pc, 0x0500);
}

TYPED_TEST(Timing, ABranchTakenWithinItsPageDelaysAnIrqPastTheNextInstruction) {
    // BCC over nothing: opcodes at ticks 0, 3 and 5. An IRQ from tick 1 on is in time for tick 3 otherwise.
    this->program({0x90, 0x00, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq, 1, kForEver), 5);
    EXPECT_EQ(this->pushed(), "0203 20");
    this->program({0x90, 0x00, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, kForEver), 3);
    this->program({0xA5, 0x00, 0xEA, 0xEA});  // LDA zp, as long
    EXPECT_EQ(this->sequenceBegins(kIrq, 1, kForEver), 3);
}

TYPED_TEST(Timing, ABranchNotTakenOrOverAPageDelaysNothing) {
    this->program({0xB0, 0x00, 0xEA, 0xEA});  // BCS, two cycles
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, kForEver), 2);
    this->program({0x90, 0x80, 0xEA, 0xEA});  // to 0182, four cycles
    EXPECT_EQ(this->sequenceBegins(kIrq, 2, kForEver), 4);
    EXPECT_EQ(this->pushed(), "0182 20");
}

TYPED_TEST(Timing, AnNmiInTheLastTickOfSuchABranchIsLost) {
    this->program({0x90, 0x00, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kNmi, 2, kForEver), kNever);
    this->program({0x90, 0x00, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kNmi, 1, kForEver), 5);
    this->program({0x90, 0x00, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kNmi, 0, kForEver), 3);
    this->program({0x90, 0x00, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kNmi, 3, kForEver), 5);
}

TYPED_TEST(Timing, OfIrqAndNmiTheNmiGoesFirstAndTheIrqWaits) {
    this->program({0xEA, 0xEA, 0xEA});
    EXPECT_EQ(this->sequenceBegins(kIrq | kNmi, 0, kForEver), 2);
    EXPECT_EQ(this->bench.core.brkFlags, BreakCause::kIrq | BreakCause::kNmi);
    EXPECT_EQ(this->pushed(), "0201 20");
    EXPECT_EQ(this->bench.core.pc, 0xFA00);
    EXPECT_EQ(this->sequenceBegins(kIrq, 0, kForEver), kNever);  // I is set in its handler
}

TYPED_TEST(Timing, AnNmiDuringABrkComesBehindItAndNotThroughItsVector) {
    this->program({0x00, 0xFF, 0xEA});  // opcodes at ticks 0 and 7
    EXPECT_EQ(this->sequenceBegins(kNmi, 2, 1), 7);
    const auto& m = this->bench.memory;
    EXPECT_EQ(format("%02x%02x %02x", m[0x1F0], m[0x1EF], m[0x1EE]), "0202 30");
    EXPECT_EQ(this->bench.core.pc, 0xFE00);
    for (int i = 0; i < 6; ++i) this->bench.tick();
    EXPECT_EQ(this->bench.core.pc, 0xFA00);
    EXPECT_EQ(format("%02x%02x %02x", m[0x1ED], m[0x1EC], m[0x1EB]), "fe00 24");
}

TYPED_TEST(Timing, AnOpcodeFetchKeepsTheTwoLatestSamplesOnly) {
    this->program({0xEA, 0xEA, 0xEA});
    for (int i = 0; i < 2; ++i) this->bench.tick(kIrq | kNmi);
    EXPECT_EQ(this->bench.core.irqPipeline, 0b110);
    EXPECT_EQ(this->bench.core.nmiPipeline, 0b100);
    this->bench.tick(kIrq | kNmi);
    EXPECT_EQ(this->bench.core.irqPipeline, 0b110);  // of three, each one tick older now
    EXPECT_EQ(this->bench.core.nmiPipeline, 0);
}

TYPED_TEST(Timing, WhileRdyHoldsAnIrqGrowsOldAndAnNmiDoesNot) {
    const auto pulseThenHold = [&](std::uint64_t line, int held) {
        this->program({0xEA, 0xEA, 0xEA, 0xEA});
        this->bench.tick(line | CyclePin::kRdy);
        for (int i = 1; i < held; ++i) this->bench.tick(CyclePin::kRdy);
        return this->sequenceBegins(0, 0, 0);
    };
    EXPECT_EQ(pulseThenHold(kIrq, 2), 0);        // two ticks old at the first opcode
    EXPECT_EQ(pulseThenHold(kIrq, 1), kNever);   // one tick old at it, three at the next
    EXPECT_EQ(pulseThenHold(kIrq, 20), kNever);  // far too old
    EXPECT_EQ(pulseThenHold(kNmi, 2), 2);        // as if it had just come
    EXPECT_EQ(pulseThenHold(kNmi, 20), 2);
}

TEST(CmosTiming, AmongNopsOfOneCycleAnIrqComesTwoOfThemLater) {
    CmosBench bench;
    std::ranges::fill(bench.memory, std::uint8_t{0x03});
    bench.standAt(0x200);
    bench.tick(kIrq);
    bench.tick();
    EXPECT_EQ(bench.core.brkFlags, 0);
    bench.tick();
    EXPECT_EQ(bench.core.brkFlags, BreakCause::kIrq);
    EXPECT_EQ(bench.core.pc, 0x202);
}

}  // namespace
}  // namespace tarnsim
