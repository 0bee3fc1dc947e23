#include "Core/Components/CPUs/MOS6502/m6502.h"

#include "Tests/Core/Components/CPUs/CoreBench.h"

namespace tarnsim {
namespace {

using Bench = CoreBench<m6502, m6502Descriptor>;

constexpr std::uint64_t kLines = CyclePin::kIrq | CyclePin::kNmi | CyclePin::kRdy | CyclePin::kRes;

TEST(NmosJam, PutsAllAddressAndDataLinesHighAndStaysThroughEverything) {
    for (const int opcode : {0x02, 0x12, 0x22, 0x32, 0x42, 0x52, 0x62, 0x72, 0x92, 0xB2, 0xD2, 0xF2}) {
        constexpr std::uint64_t kAllHigh = 0x1FF'FFFF;  // bits 0 to 24
        Bench bench;
        bench.standAt(0x300);
        bench.memory[0x300] = static_cast<std::uint8_t>(opcode);
        bench.tick();
        EXPECT_EQ(bench.address(), 0x301);
        bench.tick();
        EXPECT_EQ(bench.pins, kAllHigh);
        const std::uint16_t ir = bench.core.ir;
        EXPECT_EQ(ir, opcode * 8 + 1);
        for (unsigned i = 0; i < 64; ++i) {
            bench.tick((std::uint64_t{i} << 26U) & kLines);
            const bool isHeld = (i & 4U) != 0;  // then the mask shows what was read
            EXPECT_EQ(bench.pins & kAllHigh, isHeld ? kAllHigh & ~CyclePin::kData : kAllHigh);
            EXPECT_EQ(bench.pins & CyclePin::kSync, 0U);
            EXPECT_EQ(bench.core.ir, ir);
        }
        bench.restart();
        for (int i = 0; i < 7; ++i) bench.tick(i == 0 ? CyclePin::kRes : 0);
        EXPECT_NE(bench.pins & CyclePin::kSync, 0U) << opcode;
    }
}

TEST(NmosJump, IndirectTakesTheHighByteFromTheStartOfTheSamePage) {
    Bench bench;
    bench.standAt(0x300);
    bench.memory[0x300] = 0x6C;
    bench.memory[0x301] = 0xFF;
    bench.memory[0x302] = 0x10;
    bench.memory[0x10FF] = 0x78;
    bench.memory[0x1000] = 0x56;
    bench.memory[0x1100] = 0x99;
    ASSERT_TRUE(bench.runInstruction());
    EXPECT_EQ(bench.core.pc, 0x5678);
    EXPECT_EQ(bench.bus.size(), 5U);
    EXPECT_EQ(bench.bus.back().address, 0x1000);
}

TEST(NmosBreak, LeavesDecimalModeOn) {
    Bench bench;
    bench.standAt(0x300);
    bench.core.p = 0x18;
    bench.core.s = 0xFF;
    ASSERT_TRUE(bench.runInstruction());
    EXPECT_EQ(bench.core.p, 0x1C);
    EXPECT_EQ(bench.memory[0x1FD], 0x38);  // pushed with B and the unused bit
    EXPECT_EQ(bench.memory[0x1FE], 0x02);  // the byte behind BRK is skipped
}

/// What a 6510's surroundings see.
struct Surroundings {
    std::uint8_t in = 0;
    int out = -1;
    int calls = 0;
};
std::uint8_t readPins(void* userData) {
    auto* s = static_cast<Surroundings*>(userData);
    ++s->calls;
    return s->in;
}
void drivePins(std::uint8_t byte, void* userData) {
    auto* s = static_cast<Surroundings*>(userData);
    ++s->calls;
    s->out = byte;
}

class NmosPort : public testing::Test {
public:
    NmosPort() {
        const m6502Descriptor descriptor{.bcd_disabled = true,
                                         .in_cb = readPins,
                                         .out_cb = drivePins,
                                         .userData = &surroundings,
                                         .ioPullup = 0x17,
                                         .ioFloating = 0xC8};
        initialise(&core, &descriptor);
    }
    /// Returns what the port drives.
    int write(unsigned address, unsigned byte) {
        const std::uint64_t pins = address | std::uint64_t{byte} << 16U;
        EXPECT_EQ(requestIo(&core, pins), pins);
        return surroundings.out;
    }
    /// Returns the byte read.
    unsigned read(unsigned address) {
        constexpr std::uint64_t kStale = 0xA5'0000;
        const std::uint64_t pins = requestIo(&core, address | CyclePin::kRW | CyclePin::kSync | kStale);
        EXPECT_EQ(pins & ~CyclePin::kData, address | CyclePin::kRW | CyclePin::kSync);
        return static_cast<unsigned>((pins & CyclePin::kData) >> 16U);
    }

    m6502 core{};
    Surroundings surroundings;
};

TEST_F(NmosPort, InitialiseTakesTheDescriptorOver) {
    EXPECT_EQ(core.bcdEnabled, 0);
    EXPECT_EQ(core.in_cb, readPins);
    EXPECT_EQ(core.out_cb, drivePins);
    EXPECT_EQ(core.userData, &surroundings);
    EXPECT_EQ(core.ioPullup, 0x17);
    EXPECT_EQ(core.ioFloating, 0xC8);
    EXPECT_EQ(core.ioDdr | core.ioInput | core.ioOutput | core.ioPins | core.ioDrive, 0);
}

TEST_F(NmosPort, FollowsItsRegistersWriteByWrite) {
    struct {
        unsigned address, byte;
        int out;
        unsigned drive, pins;
    } const writes[] = {
        {0, 0x2F, 0x10, 0x00, 0x00},  // outputs low, the one pulled-up input high
        {1, 0x37, 0x37, 0x27, 0x27},  // 37 & 2F
        {0, 0x07, 0x17, 0x27, 0x07},  // bit 5 is an input now, and keeps what it drove
        {0, 0xFF, 0x37, 0x37, 0x37}, {1, 0xC1, 0xC1, 0xC1, 0xC1},
        {0, 0x00, 0x17, 0xC1, 0x00},  // only pull-ups are left
        {1, 0x00, 0x17, 0xC1, 0x00},
    };
    for (const auto& each : writes) {
        EXPECT_EQ(write(each.address, each.byte), each.out) << each.address << " " << each.byte;
        EXPECT_EQ(core.ioDrive, each.drive) << each.address << " " << each.byte;
        EXPECT_EQ(core.ioPins, each.pins) << each.address << " " << each.byte;
    }
    EXPECT_EQ(surroundings.calls, 7);
}

TEST_F(NmosPort, AReadMixesPinsOutputsAndTheFloatingBitsLastDriven) {
    surroundings.in = 0x5A;
    write(0, 0x2F);
    write(1, 0x37);
    EXPECT_EQ(read(1), 0x77U);  // inputs 5A & D0, outputs 37 & 2F
    EXPECT_EQ(core.ioInput, 0x5A);
    EXPECT_EQ(core.ioPins, 0x77);
    EXPECT_EQ(read(0), 0x2FU);

    write(1, 0xFF);
    write(0, 0xFF);
    write(0, 0x00);
    EXPECT_EQ(core.ioPins, 0x5A);  // the pins as they were last read
    surroundings.in = 0x02;
    EXPECT_EQ(read(1), 0xCAU);  // C8 floats high still, 02 is on the pins
    EXPECT_EQ(core.ioPins, 0x02);
}

TEST_F(NmosPort, OnlyBitZeroOfTheAddressSelectsTheRegister) {
    write(0xFFFE, 0x3F);
    EXPECT_EQ(core.ioDdr, 0x3F);
    write(0x1235, 0x15);
    EXPECT_EQ(core.ioOutput, 0x15);
    EXPECT_EQ(read(0x8000), 0x3FU);
    EXPECT_EQ(read(0x8001), 0x15U);
}

TEST_F(NmosPort, ReadingTheDirectionsCallsNobody) {
    read(0);
    EXPECT_EQ(surroundings.calls, 0);
    EXPECT_EQ(core.ioPins, 0);
}

TEST_F(NmosPort, TheMaskShowsItsLowSixBitsAtEachTickEvenWhileRdyHolds) {
    write(0, 0xFF);
    for (const unsigned pins : {0xFFU, 0x15U, 0xC0U}) {
        core.ioPins = static_cast<std::uint8_t>(pins);
        core.ir = 0xEA * 8;
        const std::uint64_t shown = std::uint64_t{pins & 0x3FU} << 32U;
        const std::uint64_t stale = CyclePin::kRW | std::uint64_t{0x2A} << 32U;
        EXPECT_EQ(tick(&core, stale) >> 32U << 32U, shown);
        EXPECT_EQ(tick(&core, stale | CyclePin::kRdy) >> 32U << 32U, shown);
        EXPECT_EQ(core.pins >> 32U << 32U, shown);
    }
}

TEST_F(NmosPort, TheTickItselfNeverCallsIt) {
    Bench bench;
    bench.core.in_cb = readPins;
    bench.core.out_cb = drivePins;
    bench.core.userData = &surroundings;
    const std::uint8_t program[] = {0x85, 0x00, 0x85, 0x01, 0xA5, 0x00, 0xA5, 0x01};  // STA and LDA of 0 and 1
    std::ranges::copy(program, bench.memory.begin() + 0x300);
    bench.core.pc = 0x300;
    bench.pins = bench.core.pins = CyclePin::kRW | CyclePin::kSync | 0x300;
    for (int i = 0; i < 4; ++i) ASSERT_TRUE(bench.runInstruction());
    EXPECT_EQ(bench.core.pc, 0x308);
    EXPECT_EQ(surroundings.calls, 0);
}

}  // namespace
}  // namespace tarnsim
