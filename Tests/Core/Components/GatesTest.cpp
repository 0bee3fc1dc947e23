#include "Core/Components/Gates.h"

#include <map>
#include <memory>
#include <stdexcept>
#include <type_traits>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

constexpr std::string_view kLetters = "LHUZX";

/// What each gate makes of `a` (rows) and `b` (columns), both in the order of kLetters.
const std::map<std::string, std::vector<std::string>> kTruthTables = {
    {"And", {"LLLLL", "LHUHH", "LUUUU", "LHUHH", "LHUHH"}}, {"Nand", {"HHHHH", "HLULL", "HUUUU", "HLULL", "HLULL"}},
    {"Or", {"LHULL", "HHHHH", "UHUUU", "LHULL", "LHULL"}},  {"Nor", {"HLUHH", "LLLLL", "ULUUU", "HLUHH", "HLUHH"}},
    {"Xor", {"LHULL", "HLULL", "UUUUU", "LLULL", "LLULL"}}, {"Xnor", {"HLUHH", "LHUHH", "UUUUU", "HHUHH", "HHUHH"}},
};

std::unique_ptr<Component> make(const std::string& type, const std::string& parameters) {
    return findComponentType(type)->create("g", ParaMap(parameters));
}

static_assert(!std::is_copy_constructible_v<And> && !std::is_copy_constructible_v<Inv>,
              "a copy would work the pins of its source");

TEST(Gates, FollowTheirTruthTablesForAllFiveLetters) {
    for (const auto& [type, rows] : kTruthTables) {
        const auto gate = make(type, "(delay=3)");
        Time time = 100;
        for (std::size_t a = 0; a < kLetters.size(); ++a) {
            for (std::size_t b = 0; b < kLetters.size(); ++b, time += 10) {
                gate->findPort("a")->set(Value(kLetters[a], 1), time);
                gate->findPort("b")->set(Value(kLetters[b], 1), time);
                gate->evaluate(time + 3);
                EXPECT_EQ(gate->findPort("out")->get(time + 3), rows[a][b])
                    << type << " of " << kLetters[a] << " and " << kLetters[b];
            }
        }
    }
}

TEST(Gates, AnInverterFollowsItsTruthTableForAllFiveLetters) {
    Inv gate("g", 0U);
    const std::string results = "HLULL";
    for (std::size_t i = 0; i < kLetters.size(); ++i) {
        const auto time = static_cast<Time>(i);
        gate.findPort("in")->set(Value(kLetters[i], 1), time);
        gate.evaluate(time);
        EXPECT_EQ(gate.findPort("out")->get(time), results[i]) << kLetters[i];
    }
}

TEST(Gates, HaveTheirPinsInOrderAndTheirClassNameAsType) {
    for (const auto& [type, rows] : kTruthTables) {
        const auto gate = make(type, "");
        EXPECT_EQ(gate->getType(), type);
        EXPECT_EQ(gate->getName(), "g");
        EXPECT_EQ(gate->getParent(), nullptr);
        EXPECT_EQ(gate->getDescription(), "");
        ASSERT_EQ(gate->getPorts().size(), 3U);
        for (const std::size_t i : {0U, 1U, 2U}) {
            const Port* pin = gate->getPorts()[i];
            EXPECT_EQ(pin->getName(), (std::vector<std::string>{"a", "b", "out"})[i]);
            EXPECT_EQ(pin->direction(), i == 2 ? Direction::Output : Direction::Input);
            EXPECT_EQ(gate->findPin(pin->getName()), pin);
            EXPECT_EQ(pin->recordCount(), 0U);
        }
    }
    const Inv inverter("i", 0U);
    EXPECT_EQ(inverter.getType(), "Inv");
    ASSERT_EQ(inverter.getPorts().size(), 2U);
    EXPECT_EQ(inverter.getPorts()[0], inverter.findPin("in"));
    EXPECT_EQ(inverter.getPorts()[1], inverter.findPin("out"));
    EXPECT_EQ(inverter.findPin("in")->direction(), Direction::Input);
    EXPECT_EQ(inverter.findPin("out")->direction(), Direction::Output);
}

template <class Gate>
class EveryGate : public testing::Test {};

using GateTypes = testing::Types<And, Or, Nand, Nor, Xor, Xnor, Inv>;
TYPED_TEST_SUITE(EveryGate, GateTypes);

TYPED_TEST(EveryGate, TakesItsDelayFromParametersOrFromTheConstructor) {
    EXPECT_EQ(TypeParam("g", 7U).getDelay(), 7U);
    EXPECT_EQ(TypeParam("g", 7U).getParameterText(), "");
    EXPECT_EQ(TypeParam("g", ParaMap()).getDelay(), 0U);
    EXPECT_EQ(TypeParam("g", ParaMap("(delay=12)")).getDelay(), 12U);
    EXPECT_EQ(TypeParam("g", ParaMap("(delay=0x10)")).getDelay(), 16U);
    EXPECT_EQ(TypeParam("g", ParaMap("(delay=$1F)")).getDelay(), 31U);
    EXPECT_EQ(TypeParam("g", ParaMap("(delay=0b101)")).getDelay(), 5U);
}

TYPED_TEST(EveryGate, StoresOtherParametersAndIgnoresThem) {
    const TypeParam gate("g", ParaMap("(delay=4,colour=red)"));
    EXPECT_EQ(gate.getDelay(), 4U);
    EXPECT_EQ(gate.getParameterText(), "(colour=red,delay=4)");
    EXPECT_EQ(gate.getInstanceText(), "g(colour=red,delay=4)");
}

TYPED_TEST(EveryGate, RefusesADelayBeyond32Bits) {
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([] { TypeParam("g", ParaMap("(delay=99999999999)")); }), "stoul");
}

/// A gate in a circuit that is simulated, driven by hand.
class GateRun : public testing::Test {
protected:
    /// Puts the gate between input ports of the circuit and the output port `q`.
    void place(Component& gate) {
        root.addChild(&gate, nullptr);
        for (Port* pin : gate.getPorts()) {
            const bool isOutput = pin->direction() == Direction::Output;
            const std::string name = isOutput ? "q" : pin->getName();
            root.createNet(name, {root.createPin(isOutput ? Direction::Output : Direction::Input, name), pin});
        }
    }
    void set(const std::string& port, char level, Time time) { root.findPort(port)->set(Value(level, 1), time); }
    /// The levels of `q` at each ns from `first` to `last`.
    std::string levels(Time first, Time last) {
        std::string text;
        for (Time time = first; time <= last; ++time) text += root.findPort("q")->get(time).c_str();
        return text;
    }

    // The gates die behind the circuit that they stand in.
    And andGate{"g", 3U};
    And instantGate{"g", 0U};
    Or orGate{"g", 3U};
    Xor xorGate{"g", 2U};
    Inv inverter{"g", 3U};
    Circuit root{"root", nullptr};
    EventSimulator simulator{&root};
};

TEST_F(GateRun, TheOutputFollowsOneDelayLater) {
    place(andGate);
    set("a", 'H', 0);
    set("b", 'L', 0);
    set("b", 'H', 10);
    set("a", 'L', 12);
    simulator.run(100);
    EXPECT_EQ(levels(0, 16), "UUULLLLLLLLLLHHLL");
}

TEST_F(GateRun, APulseShorterThanTheDelayComesOut) {
    place(inverter);
    set("in", 'L', 0);
    set("in", 'H', 10);
    set("in", 'L', 11);
    simulator.run(100);
    EXPECT_EQ(levels(9, 16), "HHHHLHHH");
}

TEST_F(GateRun, AnUndefinedInputAtALowOneMakesAnOrUndefined) {
    place(orGate);
    set("a", 'L', 0);
    simulator.run(100);
    EXPECT_EQ(levels(3, 3), "U");
    EXPECT_EQ(root.findPort("q")->recordCount(), 1U);  // it was evaluated, and that is the result
}

TEST_F(GateRun, AHighInputDecidesAnOrWhateverTheOtherIs) {
    place(orGate);
    set("a", 'H', 0);
    simulator.run(100);
    EXPECT_EQ(levels(2, 3), "UH");
}

TEST_F(GateRun, AFloatingInputMakesAnAndUndefinedThoughItsTableTakesZForHigh) {
    Circuit board("board", nullptr);
    EventSimulator kernel(&board);
    And gate("gate", 3U);
    Port buffer(1, Direction::Output, "buffer");
    gate.setParent(&board);
    Net net("n", 1);
    net.addPort(&buffer, kOutside);
    net.addPort(gate.findPort("a"), kOutside);
    gate.findPort("b")->set(Value("H"), 0);
    buffer.set(Value("Z"), 0);
    kernel.run(100);
    EXPECT_EQ(net.get(0), "Z");
    EXPECT_EQ(gate.findPort("a")->get(0), "U");
    EXPECT_EQ(gate.findPort("out")->recordCount(), 1U);
    EXPECT_EQ(gate.findPort("out")->get(3), "U");
    EXPECT_EQ(Logic::And(Value("Z"), Value("H")), "H");
}

TEST_F(GateRun, WithoutDelayTheOutputFollowsAtTheSameTimeButThroughTheQueue) {
    place(instantGate);
    set("a", 'H', 5);
    set("b", 'H', 5);
    EXPECT_EQ(root.findPort("q")->recordCount(), 0U);
    simulator.run(100);
    EXPECT_EQ(levels(4, 5), "UH");
}

TEST_F(GateRun, AnUndefinedInputMakesAnInverterUndefined) {
    place(inverter);
    simulator.schedule(&inverter, 5);
    simulator.run(100);
    EXPECT_EQ(inverter.findPort("out")->recordCount(), 1U);
    EXPECT_EQ(levels(5, 5), "U");
}

TEST_F(GateRun, TwoInputsThatSwitchAtOnceGiveNoGlitch) {
    place(xorGate);
    set("a", 'L', 0);
    set("b", 'H', 0);
    set("a", 'H', 10);
    set("b", 'L', 10);
    simulator.run(100);
    EXPECT_EQ(levels(0, 14), "UUHHHHHHHHHHHHH");
}

TEST_F(GateRun, TwoInputsThatSwitchOneAfterTheOtherGiveOne) {
    place(xorGate);
    set("a", 'L', 0);
    set("b", 'H', 0);
    set("a", 'H', 10);
    set("b", 'L', 11);
    simulator.run(100);
    EXPECT_EQ(levels(9, 15), "HHHLHHH");
}

}  // namespace
}  // namespace tarnsim
