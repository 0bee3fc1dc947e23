#include "Core/Components/CPUs/W65C02/w65c02.h"

#include <cstring>

#include "Tests/Core/Components/CPUs/CoreBench.h"

namespace tarnsim {
namespace {

using Bench = CoreBench<w65c02, w65c02Descriptor>;

constexpr std::uint64_t kIrq = CyclePin::kIrq;
constexpr std::uint64_t kNmi = CyclePin::kNmi;
constexpr std::uint64_t kRdy = CyclePin::kRdy;
constexpr std::uint64_t kRes = CyclePin::kRes;

/// One instruction at 0300 among NOPs. Interrupts lead to FA00, FC00 and FE00.
class CmosCore : public testing::Test {
public:
    CmosCore() {
        std::ranges::fill(bench.memory, std::uint8_t{0xEA});
        for (const unsigned vector : {0xFFFAU, 0xFFFCU, 0xFFFEU}) {
            bench.memory[vector] = 0;
            bench.memory[vector + 1] = static_cast<std::uint8_t>(vector & 0xFFU);
        }
    }
    void begin(std::uint8_t opcode, std::uint8_t p = CycleFlag::kB, std::uint64_t lines = 0) {
        bench.memory[0x300] = opcode;
        bench.standAt(0x300);
        bench.core.p = p;
        bench.core.s = 0xF0;
        bench.bus.clear();
        bench.tick(lines);
    }
    bool isFetch() const { return (bench.pins & CyclePin::kSync) != 0; }
    /// By a host that leaves RDY in the mask as the core has put it there.
    void tickKeepingRdy(std::uint64_t lines = 0) { bench.tick((bench.pins & kRdy) | lines); }

    Bench bench;
};

class Wai : public CmosCore {
public:
    /// In the middle of a wait, for a host that keeps RDY.
    void wait(std::uint8_t p) {
        begin(0xCB, p);
        for (int i = 0; i < 20; ++i) tickKeepingRdy();
        EXPECT_EQ(bench.core.waiting, 1);
    }
};

TEST_F(Wai, PutsRdyIntoTheMaskAndReadsAtPcForAsLongAsTheHostKeepsIt) {
    begin(0xCB);
    EXPECT_EQ(bench.core.waiting, 1);
    EXPECT_EQ(bench.pins & kRdy, kRdy);
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(bench.address(), 0x301);
        EXPECT_EQ(bench.pins & (CyclePin::kRW | CyclePin::kSync), CyclePin::kRW);
        tickKeepingRdy();
    }
    EXPECT_EQ(bench.core.pc, 0x301);
    EXPECT_EQ(bench.core.waiting, 1);
}

TEST_F(Wai, WakesByAnIrqAndTakesItBehindItself) {
    wait(CycleFlag::kB);
    tickKeepingRdy(kIrq);  // only ends the wait
    EXPECT_EQ(bench.core.waiting, 0);
    EXPECT_EQ(bench.pins & kRdy, 0U);
    EXPECT_FALSE(isFetch());
    tickKeepingRdy(kIrq);
    EXPECT_FALSE(isFetch());
    tickKeepingRdy(kIrq);
    ASSERT_TRUE(isFetch());
    EXPECT_EQ(bench.address(), 0x301);
    tickKeepingRdy(kIrq);
    EXPECT_EQ(bench.core.brkFlags, BreakCause::kIrq);
    for (int i = 0; i < 6; ++i) tickKeepingRdy(kIrq);
    EXPECT_EQ(bench.core.pc, 0xFE00);
    EXPECT_EQ(bench.memory[0x1EF], 0x01);  // returns to the instruction behind
}

TEST_F(Wai, AnIrqOfOneTickOnlyWakes) {
    wait(CycleFlag::kB);
    tickKeepingRdy(kIrq);
    for (int i = 0; i < 3; ++i) tickKeepingRdy();
    EXPECT_EQ(bench.core.brkFlags, 0);
    EXPECT_EQ(bench.core.pc, 0x302);  // NOP runs
}

TEST_F(Wai, WithISetAnIrqWakesAndTheProgramGoesOn) {
    wait(CycleFlag::kB | CycleFlag::kI);
    tickKeepingRdy(kIrq);
    EXPECT_EQ(bench.core.waiting, 0);
    for (int i = 0; i < 9; ++i) tickKeepingRdy(kIrq);
    EXPECT_EQ(bench.core.brkFlags, 0);
    EXPECT_EQ(bench.core.pc, 0x305);  // WAI's last two ticks and three and a half NOPs
}

TEST_F(Wai, WakesByAnNmiAndTakesIt) {
    wait(CycleFlag::kB | CycleFlag::kI);
    tickKeepingRdy(kNmi);
    EXPECT_EQ(bench.core.waiting, 0);
    for (int i = 0; i < 9; ++i) tickKeepingRdy();
    EXPECT_TRUE(isFetch());
    EXPECT_EQ(bench.core.pc, 0xFA00);
}

TEST_F(Wai, DoesNotWaitWhileAnInterruptIsThereAlready) {
    for (const std::uint64_t line : {kIrq, kNmi}) {
        begin(0xCB, CycleFlag::kB | CycleFlag::kI, line);
        EXPECT_EQ(bench.core.waiting, 0);
        EXPECT_EQ(bench.pins & kRdy, 0U);
        tickKeepingRdy(line);
        tickKeepingRdy(line);
        EXPECT_TRUE(isFetch());
    }
}

TEST_F(Wai, WhereTheHostTakesRdyOutItLastsThreeCyclesAndTheNextInterruptFirstEndsTheWait) {
    begin(0xCB, CycleFlag::kB | CycleFlag::kI);
    bench.tick();
    bench.tick();
    EXPECT_TRUE(isFetch());
    EXPECT_EQ(bench.bus.size(), 3U);
    for (int i = 0; i < 11; ++i) bench.tick();  // the first half of a NOP is done
    EXPECT_EQ(bench.core.waiting, 1);
    const std::uint16_t ir = bench.core.ir;
    const std::uint64_t asked = bench.pins & CyclePin::kAddress;
    bench.tick(kIrq | kRdy);
    EXPECT_EQ(bench.core.waiting, 0);
    EXPECT_EQ(bench.core.ir, ir);
    EXPECT_EQ(bench.pins & CyclePin::kAddress, asked);
    EXPECT_EQ(bench.pins & kRdy, 0U);
    bench.tick(kIrq);
    EXPECT_TRUE(isFetch());
}

TEST_F(Wai, IsLeftByAReset) {
    wait(CycleFlag::kB);
    tickKeepingRdy(kRes);
    EXPECT_EQ(bench.core.waiting, 0);
    for (int i = 0; i < 6; ++i) bench.tick();
    EXPECT_EQ(bench.core.pc, 0xFC00);
    EXPECT_TRUE(isFetch());
}

class Stp : public CmosCore {};

TEST_F(Stp, GivesEachMaskBackAndTouchesNothing) {
    begin(0xDB);
    EXPECT_EQ(bench.core.stopped, 1);
    EXPECT_EQ(bench.pins & (CyclePin::kAddress | CyclePin::kRW | CyclePin::kSync), 0x301 | CyclePin::kRW);
    w65c02 before;
    std::memcpy(&before, &bench.core, sizeof before);
    for (const std::uint64_t lines : {std::uint64_t{0}, kIrq, kNmi, kRdy, kIrq | kNmi | kRdy, CyclePin::kSync}) {
        const std::uint64_t mask = (bench.pins & ~kIrq) | lines | 0x77'0000;
        for (int i = 0; i < 10; ++i) EXPECT_EQ(tick(&bench.core, mask), mask);
    }
    EXPECT_EQ(std::memcmp(&before, &bench.core, sizeof before), 0);
}

TEST_F(Stp, IsLeftByAResetOnly) {
    begin(0xDB);
    for (int i = 0; i < 10; ++i) bench.tick(kIrq | kNmi);
    bench.tick(kRes);
    EXPECT_EQ(bench.core.stopped, 0);
    EXPECT_EQ(bench.core.brkFlags, BreakCause::kReset);
    EXPECT_EQ(bench.core.ir, 1);
    for (int i = 0; i < 6; ++i) bench.tick();
    EXPECT_EQ(bench.core.pc, 0xFC00);
    EXPECT_TRUE(isFetch());
    EXPECT_EQ(bench.core.s, 0xED);
}

TEST_F(Stp, InstructionsRunAgainBehindTheReset) {
    begin(0xDB);
    bench.tick(kRes);
    for (int i = 0; i < 6; ++i) bench.tick();
    bench.tick();
    bench.tick();
    EXPECT_EQ(bench.core.pc, 0xFC01);
}

TEST_F(CmosCore, ShowsTheVectorPullInTheCycleOfItsLowByteOnly) {
    const auto pulls = [&] {
        std::string result;
        for (int i = 0; i < 8; ++i) {
            result += (bench.pins & CyclePin::kVp) != 0 ? format("%04x", bench.address()) : "-";
            bench.tick();
        }
        return result;
    };
    begin(0x00);
    EXPECT_EQ(pulls(), "----fffe---");
    begin(0xEA, CycleFlag::kB, kRes);
    EXPECT_EQ(pulls(), "----fffc---");
    begin(0x03, CycleFlag::kB, kNmi);  // NOPs of one cycle
    bench.memory[0x301] = bench.memory[0x302] = 0x03;
    bench.tick();
    EXPECT_EQ(pulls(), "-----fffa--");
}

TEST_F(CmosCore, HoldsTheVectorPullWhileRdyHolds) {
    begin(0x00);
    for (int i = 0; i < 4; ++i) bench.tick();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(bench.pins & CyclePin::kVp, CyclePin::kVp);
        bench.tick(kRdy);
    }
    bench.tick();
    EXPECT_EQ(bench.pins & CyclePin::kVp, 0U);
}

TEST_F(CmosCore, LeavesDecimalModeInABreakAndPushesItAsItWas) {
    begin(0x00, 0x18);
    for (int i = 0; i < 6; ++i) bench.tick();
    EXPECT_EQ(bench.core.p, 0x14);
    EXPECT_EQ(bench.memory[0x1EE], 0x38);
    bench.memory[0xFE00] = 0x40;  // RTI brings it back
    for (int i = 0; i < 6; ++i) bench.tick();
    EXPECT_EQ(bench.core.p, 0x18);
    EXPECT_EQ(bench.core.pc, 0x302);
}

TEST_F(CmosCore, JumpsIndirectOverAPageInSixCycles) {
    bench.memory[0x301] = 0xFF;
    bench.memory[0x302] = 0x10;
    bench.memory[0x10FF] = 0x78;
    bench.memory[0x1100] = 0x56;
    bench.memory[0x1000] = 0x99;
    begin(0x6C);
    ASSERT_TRUE(bench.runInstruction());
    EXPECT_EQ(bench.core.pc, 0x5678);
    EXPECT_EQ(bench.bus.size(), 6U);
}

TEST_F(CmosCore, HasNoPortInItsMask) {
    begin(0xEA);
    EXPECT_EQ(bench.pins >> 32U, 0U);
}

}  // namespace
}  // namespace tarnsim
