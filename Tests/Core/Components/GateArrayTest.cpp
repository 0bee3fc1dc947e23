#include "Core/Components/GateArray.h"

#include <array>

#include "Core/Circuit/Circuit.h"
#include "Core/Components/TtlDecoders.h"
#include "Core/Components/TtlGates.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

using GateJournal = std::vector<std::string>;

/// What the gates below were called for, in order.
GateJournal& gateJournal() {
    static GateJournal journal;
    return journal;
}

/// A gate that notes its calls. Its argument `letter` is what it puts on its output.
class NotingGate : public SingleDelayComponent {
public:
    NotingGate(const std::string& name, std::uint32_t delay, char letter)
        : SingleDelayComponent("NotingGate", name, delay), letter_(letter) {}

    void evaluate(Time time) override {
        note("evaluate", time);
        out.setLevel(letter_, time);
    }
    void reset() override {
        note("reset", 0);
        SingleDelayComponent::reset();
    }
    void inputChanged(Port* port, const Value& /*oldValue*/, const Value& /*newValue*/, Time time) override {
        note("change of " + port->getName(), time);
    }
    void setDelay(std::uint32_t delay) override {
        SingleDelayComponent::setDelay(delay);
        note("delay", static_cast<Time>(delay));
    }

private:
    void note(const std::string& what, Time time) {
        gateJournal().push_back(getName() + " " + what + " " + std::to_string(time));
    }

    char letter_;
    Pin& in = inputPin("in");
    Pin& out = outputPin("out");
};

class NotingPackage final : public GateArray<NotingPackage, NotingGate, 'H'> {
public:
    static constexpr PartInfo info = {"XX74TEST", "(delay=9)", ""};
    static constexpr std::size_t gateCount = 3;
    static constexpr std::array<std::string_view, 2> pins = {"I#N", "Q#"};
    using GateArray::GateArray;
};

class GateArrays : public testing::Test {
protected:
    /// What the gates were called for since the last time.
    static GateJournal calls() { return std::exchange(gateJournal(), GateJournal()); }

    NotingPackage package{"p", 9U};
    GateJournal ofConstruction = calls();
};

TEST_F(GateArrays, NumberThePinsOfTheirGatesFrom1On) {
    std::vector<std::string> names;
    for (const Port* port : package.getPorts()) names.push_back(port->getName());
    EXPECT_EQ(names, (std::vector<std::string>{"I1N", "Q1", "I2N", "Q2", "I3N", "Q3"}));
    EXPECT_EQ(package.getType(), "74TEST");
}

TEST_F(GateArrays, EvaluateAndResetAllGatesInOrder) {
    package.evaluate(40);
    EXPECT_EQ(calls(), (GateJournal{"gate1 evaluate 40", "gate2 evaluate 40", "gate3 evaluate 40"}));
    EXPECT_EQ(package.findPort("Q2")->get(40), "H");
    EXPECT_EQ(package.findPort("Q2")->get(39), "U");
    package.reset();
    EXPECT_EQ(calls(), (GateJournal{"gate1 reset 0", "gate2 reset 0", "gate3 reset 0"}));
    for (const Port* port : package.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
}

TEST_F(GateArrays, GiveTheDelayThatIsSetOrAppliedToAllGates) {
    package.setDelay(5);
    EXPECT_EQ(calls(), (GateJournal{"gate1 delay 5", "gate2 delay 5", "gate3 delay 5"}));
    package.setParameters(ParaMap("(delay=7)"));
    EXPECT_EQ(calls(), (GateJournal{"gate1 delay 7", "gate2 delay 7", "gate3 delay 7"}));
    EXPECT_EQ(package.getDelay(), 7U);
}

TEST_F(GateArrays, HearOfAChangeTogetherWithTheGateWhosePinItIs) {
    Circuit board("board", nullptr);
    EventSimulator simulator(&board);
    board.addChild(&package, nullptr);
    package.findPort("I2N")->set(Value("H"), 30);
    EXPECT_EQ(calls(), (GateJournal{"gate2 change of I2N 30"}));
    simulator.run(100);
    // The package scheduled itself, and so all its gates.
    EXPECT_EQ(calls(), (GateJournal{"gate1 evaluate 39", "gate2 evaluate 39", "gate3 evaluate 39"}));
    board.removeComponent(&package);
}

TEST_F(GateArrays, HearNoMoreOfAPinThatIsRemoved) {
    Port* pin = package.findPort("I2N");
    package.removePort(pin);
    EXPECT_EQ(package.getPorts().size(), 5U);
    pin->set(Value("H"), 30);
    EXPECT_EQ(calls(), (GateJournal{"gate2 change of I2N 30"}));  // it's the gate's still
}

TEST(GateArray, LeavesItsNetsWhenItDies) {
    Circuit board("board", nullptr);
    auto chip = std::make_unique<DM74LS00>("u", 10U);
    for (Port* port : std::vector<Port*>(chip->getPorts())) board.createNet("n" + port->getName(), {port});
    chip.reset();
    for (const Net* net : board.getNets()) EXPECT_TRUE(net->getPorts().empty()) << net->getName();
}

TEST(GateArray, LosesItsNetsWhenTheyDie) {
    DM74LS139 chip("u", 38U);
    {
        Circuit board("board", nullptr);
        for (Port* port : std::vector<Port*>(chip.getPorts())) board.createNet("n" + port->getName(), {port});
        EXPECT_NE(chip.findPort("O1")->getNet(kOutside), nullptr);
    }
    for (const Port* port : chip.getPorts()) EXPECT_EQ(port->getNet(kOutside), nullptr) << port->getName();
}

TEST(GateArray, WorksInASimulationThroughItsPackageAlone) {
    DM74LS00 chip("u", 10U);
    Circuit board("board", nullptr);
    EventSimulator simulator(&board);
    board.addChild(&chip, nullptr);
    Port* a = board.createPin(Direction::Input, "a");
    Port* q = board.createPin(Direction::Output, "q");
    board.createNet("a", {a, chip.findPort("A3"), chip.findPort("B3")});
    board.createNet("q", {q, chip.findPort("Y3")});
    a->set(Value("L"), 0);
    a->set(Value("H"), 20);
    simulator.run(100);
    EXPECT_EQ(q->get(9), "U");
    EXPECT_EQ(q->get(10), "H");
    EXPECT_EQ(q->get(29), "H");
    EXPECT_EQ(q->get(30), "L");
    EXPECT_EQ(q->recordCount(), 2U);
}

}  // namespace
}  // namespace tarnsim
