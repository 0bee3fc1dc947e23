// What a processor does when somebody evaluates it and no change of a pin is behind it: a circuit that is evaluated as
// a whole does so.

#include "Core/Components/CPUs/MOS6502/MOS6502.h"
#include "Core/Components/CPUs/W65C02/W65C02.h"
#include "Core/Simulation/Net.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

template <class Part>
class UntaggedProcessor : public testing::Test {
protected:
    UntaggedProcessor() {
        cpu.start(10000);
        set("_RES", 'H', -1);
        set("_IRQ", 'H', -1);
        set("_NMI", 'H', -1);
        set("RDY", 'H', -1);
        set("_SO", 'H', -1);
        if (cpu.findPin("BE") != nullptr) set("BE", 'H', -1000);
    }
    void set(const char* pin, char letter, Time time) { cpu.findPin(pin)->setLevel(letter, time); }
    std::string at(const char* port, Time time) { return cpu.findPort(port)->get(time).c_str(); }
    /// A falling flank at 100, found at 200 after a look at 80.
    void fall() {
        set("PHI0", 'H', 0);
        cpu.evaluate(80);
        set("PHI0", 'L', 100);
        cpu.evaluate(200);
    }

    Part cpu{"cpu", ParaMap(std::string(Part::info.defaults))};
};
using BothUntagged = testing::Types<MOS6502, W65C02>;
TYPED_TEST_SUITE(UntaggedProcessor, BothUntagged);

TYPED_TEST(UntaggedProcessor, TakesTheFlankForHalfWayBetweenTwoLooks) {
    this->fall();
    // Half-way between 80 and 200 is (80 + 200 + 1) / 2 = 140; t_ah is 10 and t_ads is 30.
    EXPECT_EQ(this->at("SYNC", 149), "U");
    EXPECT_EQ(this->at("SYNC", 169), "U");
    EXPECT_EQ(this->at("SYNC", 170), "L");
}

TYPED_TEST(UntaggedProcessor, TicksOnceForAFlank) {
    this->cpu.step(6);
    EXPECT_FALSE(this->cpu.isSync());
    this->fall();
    EXPECT_TRUE(this->cpu.isSync());
    this->cpu.evaluate(300);
    EXPECT_TRUE(this->cpu.isSync());
}

TYPED_TEST(UntaggedProcessor, SeesNoFlankInWhatComesOutOfNothing) {
    this->cpu.step(6);
    this->set("PHI0", 'L', 0);
    this->cpu.evaluate(50);
    this->set("PHI0", 'U', 100);
    this->cpu.evaluate(150);
    this->set("PHI0", 'L', 200);
    this->cpu.evaluate(250);
    EXPECT_FALSE(this->cpu.isSync());
}

TYPED_TEST(UntaggedProcessor, SetsOverflowAgainWhileThePinIsLow) {
    this->set("_SO", 'L', 10);
    for (const Time time : {20, 30}) {
        this->cpu.setP(0);
        this->cpu.evaluate(time);
        EXPECT_EQ(this->cpu.getP(), 0x40);
    }
    this->set("_SO", 'U', 40);
    this->cpu.setP(0);
    this->cpu.evaluate(50);
    EXPECT_EQ(this->cpu.getP(), 0);
}

TYPED_TEST(UntaggedProcessor, ClockOutputsFollowAtEveryLook) {
    const struct {
        char clock;
        const char* phi1;
        const char* phi2;
    } cases[] = {{'L', "H", "L"}, {'H', "L", "H"}, {'U', "U", "U"}, {'Z', "U", "U"}, {'X', "U", "U"}};
    Time time = 0;
    for (const auto& each : cases) {
        this->set("PHI0", each.clock, time += 10);
        this->cpu.evaluate(time += 5);
        EXPECT_EQ(this->at("PHI1", time), each.phi1) << each.clock;
        EXPECT_EQ(this->at("PHI2", time), each.phi2) << each.clock;
    }
}

TYPED_TEST(UntaggedProcessor, ForgetsTheClockWhenItIsReset) {
    this->set("PHI0", 'H', 0);
    this->cpu.evaluate(50);
    this->cpu.reset();
    this->cpu.step(6);
    this->set("PHI0", 'L', 100);
    this->cpu.evaluate(150);
    EXPECT_FALSE(this->cpu.isSync());
}

/// Something outside that gives a processor the opcode of PHA until `until`, then nothing.
struct PushOpcode {
    PushOpcode(Component& cpu, Time until) {
        bus.addPort(&driver, kOutside);
        bus.addPort(cpu.findPort("D"), kOutside);
        driver.set(Value("LHLLHLLL"), -1);
        driver.set(Value("ZZZZZZZZ"), until);
    }
    std::string at(Time time) const { return bus.get(time).c_str(); }

    Net bus{8};
    Port driver{8, Direction::Output, "opcode"};
};

/// The accumulator, 5A, is pushed in the cycle that begins at the flank at 600. The one at 200 ends the reset, those at
/// 400 and 600 end the fetch of the opcode and a read that means nothing.
template <class Part>
class WritingProcessor : public UntaggedProcessor<Part> {
protected:
    WritingProcessor() {
        this->cpu.step(6);
        for (const Time flank : {200, 400}) fallAt(flank);
        this->cpu.setA(0x5A);
        fallAt(600);
    }
    /// Found half-way, 40 ns behind it, by looks 20 ns before it and 100 ns behind it.
    void fallAt(Time time) {
        this->set("PHI0", 'H', time - 50);
        this->cpu.evaluate(time - 20);
        this->set("PHI0", 'L', time);
        this->cpu.evaluate(time + 100);
    }

    PushOpcode outside{this->cpu, 500};
};
TYPED_TEST_SUITE(WritingProcessor, BothUntagged);

TYPED_TEST(WritingProcessor, LeavesItsDataUndefinedBetweenTheHoldAndTheWrite) {
    ASSERT_TRUE(this->cpu.isWriteCycle());
    // t_dhw is 10, counted from the look and not from where the flank is taken to be.
    EXPECT_EQ(this->outside.at(709), "ZZZZZZZZ");
    EXPECT_EQ(this->outside.at(710), "UUUUUUUU");
    // The rising flank is taken to be at (700 + 800 + 1) / 2 = 750; t_mds is 25. What lies behind a bus enable is
    // copied to the pins by the look itself, for t_dhw and later.
    this->set("PHI0", 'H', 760);
    this->cpu.evaluate(800);
    const Time shown = this->cpu.findPin("BE") == nullptr ? 775 : 810;
    EXPECT_EQ(this->outside.at(shown - 1), "UUUUUUUU");
    EXPECT_EQ(this->outside.at(shown), "LHLHHLHL");
}

TEST(TaggedW65C02, FloatsItsDataBetweenTheHoldAndTheWrite) {
    W65C02 cpu("cpu", ParaMap(std::string(W65C02::info.defaults)));
    const PushOpcode outside(cpu, 500);
    cpu.start(10000);
    for (const char* pin : {"_RES", "_IRQ", "_NMI", "RDY", "_SO", "BE"}) cpu.findPin(pin)->setLevel('H', -1000);
    cpu.step(6);
    cpu.setA(0x5A);
    Pin* clock = cpu.findPin("PHI0");
    const auto edge = [&](char level, Time time) {
        clock->setLevel(level, time);
        cpu.evaluateTagged(time, clock->getCreationNumber());
    };
    for (const Time flank : {200, 400, 600}) {
        edge('H', flank - 100);
        edge('L', flank);
    }
    ASSERT_TRUE(cpu.isWriteCycle());
    EXPECT_EQ(outside.at(610), "ZZZZZZZZ");
    edge('H', 700);
    EXPECT_EQ(outside.at(724), "ZZZZZZZZ");
    EXPECT_EQ(outside.at(725), "LHLHHLHL");
}

TYPED_TEST(UntaggedProcessor, KeepsTheCountOfLowResetsOverAResetOfTheRun) {
    const auto fallAt = [this](Time time) {
        this->set("PHI0", 'H', time - 10);
        this->cpu.evaluate(time - 5);
        this->set("PHI0", 'L', time);
        this->cpu.evaluate(time);
    };
    fallAt(100);  // with _RES high: whatever was counted before is forgotten
    this->set("_RES", 'L', 150);
    fallAt(200);
    fallAt(300);
    this->cpu.reset();
    this->set("_RES", 'H', 350);
    this->cpu.setA(7);
    fallAt(400);
    EXPECT_EQ(this->cpu.getA(), 0);
    this->cpu.setA(7);
    fallAt(500);
    EXPECT_EQ(this->cpu.getA(), 7);
}

TEST(UntaggedW65C02, ForgetsWhatItHadBehindItsBusEnable) {
    W65C02 cpu("cpu", ParaMap(std::string(W65C02::info.defaults)));
    const auto enableBus = [&] { cpu.findPin("BE")->setLevel('H', -1000); };
    enableBus();
    cpu.findPin("PHI0")->setLevel('H', 0);
    cpu.evaluate(80);
    cpu.findPin("PHI0")->setLevel('L', 100);
    cpu.evaluate(200);
    ASSERT_EQ(cpu.findPort("A")->get(250), "LLLLLLLLLLLLLLLL");

    cpu.reset();
    enableBus();
    cpu.evaluate(300);
    EXPECT_EQ(cpu.findPort("A")->get(400), "UUUUUUUUUUUUUUUU");
    EXPECT_EQ(cpu.findPin("R/W")->level(400), 'U');
}

TEST(UntaggedW65C02, IsInitialisedAnewAtEveryLookWhileItsResetIsLow) {
    W65C02 cpu("cpu", ParaMap(std::string(W65C02::info.defaults)));
    cpu.setA(7);
    cpu.findPin("_RES")->setLevel('L', 0);
    cpu.evaluate(10);
    EXPECT_EQ(cpu.getA(), 0);
    cpu.setA(7);
    cpu.evaluate(20);
    EXPECT_EQ(cpu.getA(), 0);

    MOS6502 other("other", ParaMap(std::string(MOS6502::info.defaults)));
    other.setA(7);
    other.findPin("_RES")->setLevel('L', 0);
    other.evaluate(10);
    EXPECT_EQ(other.getA(), 7);
}

}  // namespace
}  // namespace tarnsim
