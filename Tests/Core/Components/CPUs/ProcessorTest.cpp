#include "Core/Components/CPUs/Processor.h"

#include "Core/Circuit/Circuit.h"
#include "Core/Components/CPUs/MOS6502/MOS6502.h"
#include "Core/Components/CPUs/W65C02/W65C02.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// What both processors offer to a host.
template <class Part>
class ProcessorHostAccess : public testing::Test {
protected:
    Part processor{"cpu", ParaMap(std::string(Part::info.defaults))};
};
using BothProcessors = testing::Types<MOS6502, W65C02>;
TYPED_TEST_SUITE(ProcessorHostAccess, BothProcessors);

TYPED_TEST(ProcessorHostAccess, BeginsInAnOpcodeFetch) {
    EXPECT_TRUE(this->processor.isReadCycle());
    EXPECT_FALSE(this->processor.isWriteCycle());
    EXPECT_TRUE(this->processor.isSync());
    EXPECT_EQ(this->processor.getP(), 0x02);
}

TYPED_TEST(ProcessorHostAccess, ReachesEachRegister) {
    auto& cpu = this->processor;
    cpu.setA(1);
    cpu.setX(2);
    cpu.setY(3);
    cpu.setS(4);
    cpu.setP(5);
    cpu.setPC(0x1234);
    EXPECT_EQ(cpu.getA(), 1);
    EXPECT_EQ(cpu.getX(), 2);
    EXPECT_EQ(cpu.getY(), 3);
    EXPECT_EQ(cpu.getS(), 4);
    EXPECT_EQ(cpu.getP(), 5);
    EXPECT_EQ(cpu.getPC(), 0x1234);
    cpu.resetCore();
    EXPECT_EQ(cpu.getA(), 0);
    EXPECT_EQ(cpu.getP(), 2);
    EXPECT_EQ(cpu.getPC(), 0);
}

TYPED_TEST(ProcessorHostAccess, StepsWithoutABus) {
    auto& cpu = this->processor;
    cpu.step(0);
    cpu.step(-3);
    EXPECT_TRUE(cpu.isSync());
    cpu.step(1);
    EXPECT_FALSE(cpu.isSync());
    EXPECT_EQ(cpu.getS(), 0);
    // The reset reads its vector from a bus on which the status byte 22 that it would have pushed still stands.
    cpu.step(6);
    EXPECT_TRUE(cpu.isSync());
    EXPECT_EQ(cpu.getS(), 0xFD);
    EXPECT_EQ(cpu.getPC(), 0x2222);
    EXPECT_EQ(cpu.getP(), 0x16);
    EXPECT_EQ(cpu.findPort("A")->recordCount(), 0U);
}

TYPED_TEST(ProcessorHostAccess, FloatsItsDataFromTheStartOfARun) {
    this->processor.start(1000);
    EXPECT_EQ(this->processor.findPort("D")->recordCount(), 0U);
    EXPECT_EQ(this->processor.findPort("D")->getNet(kInside)->get(-1), "ZZZZZZZZ");
}

/// A clock on a processor whose data bus says NOP.
template <class Part>
class ProcessorRun : public testing::Test {
protected:
    static constexpr Time kPeriod = 1000;
    static constexpr int kCycles = 12;

    ProcessorRun() {
        const std::string type(Part::info.typeName);
        cpu = board.addComponent(type, "cpu");
        board.addComponent("Const", "nops(value=0xEA)");
        board.addComponent("Oscillator", "clock");
        board.createNet("d", {cpu->findPort("D"), board.findPort("nops.out")});
        board.createNet("clk", {cpu->findPort("PHI0"), board.findPort("clock.out")});
    }
    std::vector<std::string> run() {
        constexpr Time kEnd = kPeriod * kCycles;
        EventSimulator simulator(&board);
        simulator.prepare(kEnd);
        cpu->findPin("_RES")->setLevel('H', 0);
        if (Pin* busEnable = cpu->findPin("BE")) busEnable->setLevel('H', 0);
        simulator.run(kEnd);
        std::vector<std::string> addresses;
        for (int i = 0; i < kCycles; ++i) addresses.emplace_back(cpu->findPort("A")->get(kPeriod * i + 999).c_str());
        board.setSimulator(nullptr);
        return addresses;
    }

    Circuit board{"board", nullptr};
    Component* cpu = nullptr;
};
TYPED_TEST_SUITE(ProcessorRun, BothProcessors);

TYPED_TEST(ProcessorRun, CountsItsAddressUpOverNops) {
    const auto addresses = this->run();
    // A reset of seven cycles from the first falling flank at 500 on, then two cycles a NOP from EAEA on.
    EXPECT_EQ(addresses[4], "HHHHHHHHHHHHHHLL");
    EXPECT_EQ(addresses[5], "HHHHHHHHHHHHHHLH");
    EXPECT_EQ(addresses[6], "HHHLHLHLHHHLHLHL");
    EXPECT_EQ(addresses[7], "HHHLHLHLHHHLHLHH");
    EXPECT_EQ(addresses[8], "HHHLHLHLHHHLHLHH");
    EXPECT_EQ(addresses[9], "HHHLHLHLHHHLHHLL");
}

TYPED_TEST(ProcessorRun, RunsASecondTimeAsTheFirst) {
    const auto first = this->run();
    EXPECT_EQ(this->run(), first);
}

}  // namespace
}  // namespace tarnsim
