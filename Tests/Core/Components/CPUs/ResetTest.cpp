#include <cstring>

#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"
#include "Tests/Core/Components/CPUs/CoreBench.h"

namespace tarnsim {
namespace {

constexpr std::uint64_t kAfterInitialise = 0x4300'0000;  // RW, SYNC and RES

template <class Bench>
class Reset : public testing::Test {
public:
    Reset() {
        std::ranges::fill(bench.memory, std::uint8_t{0xEA});
        bench.memory[0xFFFC] = 0x34;
        bench.memory[0xFFFD] = 0x12;
    }
    /// Ticks until the next opcode fetch is asked for.
    int ticksToFetch(std::uint64_t lines = 0) {
        for (int ticks = 1; ticks < 20; ++ticks) {
            bench.tick(lines);
            if ((bench.pins & CyclePin::kSync) != 0) return ticks;
        }
        return 0;
    }
    std::string busText() const {
        std::string result;
        for (const auto& each : bench.bus) result += format("%04x%c ", each.address, each.isRead ? 'r' : 'w');
        return result;
    }

    Bench bench;
};
using Benches = testing::Types<CoreBench<m6502, m6502Descriptor>, CoreBench<w65c02, w65c02Descriptor>>;
TYPED_TEST_SUITE(Reset, Benches);

TYPED_TEST(Reset, InitialiseClearsTheRecordAndAsksForAReset) {
    auto& core = this->bench.core;
    std::memset(static_cast<void*>(&core), 0xA5, sizeof core);
    this->bench.restart();
    EXPECT_EQ(this->bench.pins, kAfterInitialise);
    EXPECT_EQ(core.pins, kAfterInitialise);
    EXPECT_EQ(core.p, 0x02);
    EXPECT_EQ(core.bcdEnabled, 1);
    EXPECT_EQ(core.ir | core.pc | core.ad | core.a | core.x | core.y | core.s, 0);
    EXPECT_EQ(core.irqPipeline | core.nmiPipeline | core.brkFlags, 0);
}

TYPED_TEST(Reset, TheFirstTickReadsAtPcWhateverTheDataByteIs) {
    for (const unsigned byte : {0x00U, 0x02U, 0xDBU, 0xEAU, 0xFFU}) {
        this->bench.restart();
        const std::uint64_t pins = tick(&this->bench.core, kAfterInitialise | std::uint64_t{byte} << 16U);
        EXPECT_EQ(this->bench.core.ir, 1);
        EXPECT_EQ(pins & CyclePin::kAddress, 0U);
        EXPECT_EQ(pins & CyclePin::kRW, CyclePin::kRW);
        EXPECT_EQ(pins & (CyclePin::kSync | CyclePin::kRes), 0U);
    }
}

TYPED_TEST(Reset, SevenTicksReadThroughTheStackToTheVector) {
    this->bench.tick(CyclePin::kRes);
    EXPECT_EQ(this->ticksToFetch(), 6);
    EXPECT_EQ(this->busText(), "0000r 0000r 0100r 01ffr 01fer fffcr fffdr ");
    const auto& core = this->bench.core;
    EXPECT_EQ(core.pc, 0x1234);
    EXPECT_EQ(this->bench.address(), 0x1234);
    EXPECT_EQ(core.s, 0xFD);
    EXPECT_EQ(core.p, 0x16);  // I and B beside the Z it began with
    EXPECT_EQ(core.brkFlags, 0);
}

TYPED_TEST(Reset, AtAnOpcodeFetchItTakesThatOpcodesPlace) {
    this->bench.standAt(0x300);
    this->bench.core.s = 0x80;
    this->bench.core.a = 0x77;
    this->bench.bus.clear();
    this->bench.tick(CyclePin::kRes);
    EXPECT_EQ(this->ticksToFetch(), 6);
    EXPECT_EQ(this->busText(), "0300r 0300r 0180r 017fr 017er fffcr fffdr ");
    EXPECT_EQ(this->bench.core.s, 0x7D);
    EXPECT_EQ(this->bench.core.a, 0x77);
}

class NmosReset : public Reset<CoreBench<m6502, m6502Descriptor>> {};
class CmosReset : public Reset<CoreBench<w65c02, w65c02Descriptor>> {};

TEST_F(NmosReset, WithinAnInstructionIsNotSeenUnlessItLastsToTheNextFetch) {
    bench.standAt(0x300);
    bench.memory[0x300] = 0xAD;  // LDA EAEA
    bench.tick();
    for (int i = 0; i < 3; ++i) bench.tick(CyclePin::kRes);
    EXPECT_EQ(bench.address(), 0x303);
    bench.tick();
    EXPECT_EQ(bench.core.brkFlags, 0);

    bench.standAt(0x300);
    bench.tick();
    for (int i = 0; i < 4; ++i) bench.tick(CyclePin::kRes);
    EXPECT_EQ(bench.core.brkFlags, BreakCause::kReset);
    EXPECT_EQ(ticksToFetch(), 6);
    EXPECT_EQ(bench.core.pc, 0x1234);
}

TEST_F(NmosReset, StaysInTheMaskOfAHostThatLeavesItThereUntilTheNextFetch) {
    bench.standAt(0x300);
    std::uint64_t pins = bench.pins | std::uint64_t{0xEA} << 16U;
    pins = tick(&bench.core, pins);
    pins = tick(&bench.core, pins | CyclePin::kRes);  // in the second cycle of a NOP
    EXPECT_EQ(pins & (CyclePin::kRes | CyclePin::kSync), CyclePin::kRes | CyclePin::kSync);
    pins = tick(&bench.core, pins);
    EXPECT_EQ(bench.core.brkFlags, BreakCause::kReset);
    EXPECT_EQ(pins & (CyclePin::kRes | CyclePin::kSync), 0U);
}

TEST_F(NmosReset, HeldDownItComesAgainBehindEachSequence) {
    bench.standAt(0x300);
    bench.tick(CyclePin::kRes);
    EXPECT_EQ(ticksToFetch(CyclePin::kRes), 6);
    EXPECT_EQ(ticksToFetch(CyclePin::kRes), 7);
    EXPECT_EQ(bench.core.pc, 0x1234);
}

TEST_F(NmosReset, ClearsThePortButNotWhatTheHostHasSetUp) {
    bench.standAt(0x300);
    auto& core = bench.core;
    core.ioDdr = core.ioInput = core.ioOutput = core.ioPins = 0xFF;
    core.ioPullup = core.ioFloating = core.ioDrive = 0xFF;
    bench.tick(CyclePin::kRes);
    EXPECT_EQ(core.ioDdr | core.ioInput | core.ioOutput | core.ioPins, 0);
    EXPECT_EQ(core.ioPullup & core.ioFloating & core.ioDrive, 0xFF);
    EXPECT_EQ(bench.pins & CyclePin::kPort, 0U);
}

TEST_F(CmosReset, WithinAnInstructionActsAtOnceAndIgnoresRdy) {
    for (int done = 1; done < 6; ++done) {
        bench.standAt(0x300);
        bench.memory[0x300] = 0xEE;  // INC EAEA
        bench.core.s = 0x80;
        for (int i = 0; i < done; ++i) bench.tick();
        const unsigned pc = bench.core.pc;
        bench.tick(CyclePin::kRes | CyclePin::kRdy | CyclePin::kIrq | CyclePin::kNmi);
        EXPECT_EQ(bench.core.ir, 1) << done;
        EXPECT_EQ(bench.pins & bench.kLines, 0U) << done;  // the mask begins anew
        EXPECT_EQ(bench.pins & (CyclePin::kAddress | CyclePin::kRW), pc | CyclePin::kRW) << done;
        EXPECT_EQ(ticksToFetch(), 6) << done;
        EXPECT_EQ(bench.core.pc, 0x1234) << done;
        EXPECT_EQ(bench.core.s, 0x7D) << done;
    }
}

TEST_F(CmosReset, HeldDownItStartsAnewInEachTick) {
    bench.standAt(0x300);
    bench.core.s = 0x80;
    for (int i = 0; i < 20; ++i) {
        bench.tick(CyclePin::kRes);
        EXPECT_EQ(bench.core.ir, 1);
        EXPECT_EQ(bench.core.s, 0x80);
    }
    EXPECT_EQ(ticksToFetch(), 6);
    EXPECT_EQ(bench.core.s, 0x7D);
}

TEST_F(CmosReset, MakesAnNmiThatStaysActiveANewEdge) {
    bench.standAt(0x300);
    for (int i = 0; i < 30; ++i) bench.tick(CyclePin::kNmi);
    bench.tick(CyclePin::kNmi | CyclePin::kRes);  // forgets the mask by which an edge is seen
    EXPECT_EQ(ticksToFetch(CyclePin::kNmi), 6);
    bench.tick(CyclePin::kNmi);
    EXPECT_EQ(bench.core.brkFlags, BreakCause::kNmi);
}

}  // namespace
}  // namespace tarnsim
