// What a processor does when somebody evaluates it and no change of a pin is behind it: a circuit that is evaluated as
// a whole does so.

#include "Core/Components/CPUs/MOS6502/MOS6502.h"
#include "Core/Components/CPUs/W65C02/W65C02.h"
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
