#include "Core/Components/CircuitChip.h"

#include "Core/Circuit/ComponentRegistry.h"
#include "Core/Components/TtlDecoders.h"
#include "Core/Components/TtlRegisters.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

using ChipJournal = std::vector<std::string>;

/// A chip that inverts, and notes the delays that it's given.
class InvertingChip final : public CircuitChip<InvertingChip> {
public:
    static constexpr PartInfo info = {"XX74INV", "(delay=6)", ""};
    static constexpr std::uint32_t kDelay = 6;
    using CircuitChip::CircuitChip;

    void evaluate(Time time) override {
        out.setLevel(in.level(inputTime(time)) == 'L' ? 'H' : 'L', time);
        journal.push_back("evaluate " + std::to_string(time));
    }
    void setDelay(std::uint32_t delay) override {
        CircuitChip::setDelay(delay);
        journal.push_back("delay " + std::to_string(delay));
    }

    ChipJournal journal;

private:
    Pin& in = inputPin("in");
    Pin& out = outputPin("out");
};

TEST(CircuitChip, TakesCareOfItsNameItsCutTypeAndItsDelay) {
    const InvertingChip chip("u", 9U);
    EXPECT_EQ(chip.getName(), "u");
    EXPECT_EQ(chip.getType(), "74INV");
    EXPECT_EQ(chip.getDelay(), 9U);
    EXPECT_EQ(chip.getParent(), nullptr);
    EXPECT_EQ(chip.getParameterText(), "");
}

TEST(CircuitChip, MadeFromParametersKeepsThemAndAppliesThemWhenToldTo) {
    InvertingChip chip("u", ParaMap("(colour=red,delay=3)"));
    EXPECT_EQ(chip.getParameterText(), "(colour=red,delay=3)");
    EXPECT_EQ(chip.journal, ChipJournal());
    chip.applyParameters();
    EXPECT_EQ(chip.journal, ChipJournal{"delay 3"});
    chip.setParameters(ParaMap("(delay=$10)"));
    EXPECT_EQ(chip.getDelay(), 16U);
    chip.setParameters(ParaMap());
    EXPECT_EQ(chip.getDelay(), 16U);  // an absent one leaves it as it is
}

TEST(CircuitChip, IsEvaluatedItselfOneDelayAfterAChangeOfAnInput) {
    InvertingChip chip("u", 9U);
    Circuit board("board", nullptr);
    EventSimulator simulator(&board);
    board.addChild(&chip, nullptr);
    chip.findPort("in")->set(Value("L"), 20);
    chip.findPort("in")->set(Value("L"), 25);  // no change
    chip.findPort("in")->set(Value("H"), 30);
    simulator.run(100);
    EXPECT_EQ(chip.journal, (ChipJournal{"evaluate 29", "evaluate 39"}));
    EXPECT_EQ(chip.findPort("out")->get(28), "U");
    EXPECT_EQ(chip.findPort("out")->get(29), "H");
    EXPECT_EQ(chip.findPort("out")->get(39), "L");
}

TEST(CircuitChip, IsCopiedAsTheChipThatItIs) {
    auto source = std::make_unique<InvertingChip>("u", ParaMap("(delay=3)"));
    source->applyParameters();
    source->setCommentText("an inverter\n");
    const std::string id = source->getId();
    source->findPort("in")->set(Value("H"), 0);

    ComponentFactory factory;
    auto* copy = dynamic_cast<InvertingChip*>(factory.copy(*source));
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->getName(), "u");
    EXPECT_EQ(copy->getType(), "74INV");
    EXPECT_EQ(copy->getId(), id);
    EXPECT_EQ(copy->getDelay(), 3U);
    EXPECT_EQ(copy->getParameterText(), "(delay=3)");
    EXPECT_EQ(copy->getCommentText(), "an inverter\n");
    EXPECT_EQ(copy->getParent(), nullptr);

    source.reset();
    EXPECT_EQ(copy->findPort("in")->recordCount(), 0U);  // its own pins, without the past of the source's
    EXPECT_EQ(PartBench(*copy, 3).step("in=L", "out"), "H");
}

TEST(DM74LS154, HasOneUnitAndOneNetInside) {
    const DM74LS154 chip("u", 23U);
    ASSERT_EQ(chip.countComponents(), 1U);
    const Component* split = chip.findComponent("ysplit");
    ASSERT_NE(split, nullptr);
    EXPECT_EQ(split->getType(), "Split");
    EXPECT_EQ(split->getParent(), &chip);
    ASSERT_EQ(chip.getNets().size(), 1U);
    const Net* net = chip.findNet("y_net");
    ASSERT_NE(net, nullptr);
    EXPECT_EQ(chip.findPort("Y")->getNet(kInside), net);
    EXPECT_EQ(split->findPort("in")->getNet(kOutside), net);
    for (int i = 0; i < 16; ++i) {
        const std::string pin = "Y" + std::to_string(i);
        EXPECT_EQ(chip.findPort(pin), split->findPort(pin)) << pin;
        EXPECT_EQ(split->getParameters().at(pin), std::to_string(i));
    }
}

TEST(DM74LS374, HasEightFlipFlopsBetweenASplitAndAJoin) {
    const DM74LS374 chip("u", 28U);
    ASSERT_EQ(chip.countComponents(), 10U);
    const Component* split = chip.findComponent("373split");
    const Component* join = chip.findComponent("373join");
    ASSERT_NE(split, nullptr);
    ASSERT_NE(join, nullptr);
    EXPECT_EQ(chip.findNet("D")->getPorts(), (std::vector<Port*>{chip.findPort("D"), split->findPort("in")}));
    EXPECT_EQ(chip.findPort("Q")->getNet(kInside), chip.findNet("Q"));
    EXPECT_EQ(join->findPort("out")->getNet(kOutside), chip.findNet("Q"));
    for (int i = 0; i < 8; ++i) {
        const std::string number = std::to_string(i);
        const auto* flipFlop = dynamic_cast<D_flip_flop*>(chip.findComponent("dff[" + number + "]"));
        ASSERT_NE(flipFlop, nullptr) << i;
        EXPECT_EQ(flipFlop->getDelay(), 28U);
        EXPECT_EQ(flipFlop->findPort("clk")->getNet(kOutside), chip.findPort("clk")->getNet(kInside));
        EXPECT_EQ(flipFlop->findPort("_OE")->getNet(kOutside), chip.findPort("_OE")->getNet(kInside));
        const Net* d = chip.findNet("d" + number);
        const Net* q = chip.findNet("q" + number);
        ASSERT_NE(d, nullptr);
        ASSERT_NE(q, nullptr);
        EXPECT_EQ(split->findPort(number)->getNet(kOutside), d);
        EXPECT_EQ(flipFlop->findPort("D")->getNet(kOutside), d);
        EXPECT_EQ(flipFlop->findPort("Q")->getNet(kOutside), q);
        EXPECT_EQ(join->findPort(number)->getNet(kOutside), q);
        EXPECT_EQ(split->getParameters().at(number), number);
        EXPECT_EQ(join->getParameters().at(number), number);
    }
}

TEST(DM74LS374, GivesItsDelayToItsFlipFlops) {
    DM74LS374 chip("u", ParaMap("(delay=12)"));
    for (const std::uint32_t delay : {12U, 5U}) {
        if (delay == 5) chip.setParameters(ParaMap("(delay=5)"));
        EXPECT_EQ(chip.getDelay(), delay);
        for (int i = 0; i < 8; ++i) {
            const std::string name = "dff[" + std::to_string(i) + "]";
            EXPECT_EQ(dynamic_cast<D_flip_flop*>(chip.findComponent(name))->getDelay(), delay) << name;
        }
    }
}

TEST(DM74LS374, EvaluatedItselfWorksItsUnitsFromInputsToOutputs) {
    DM74LS374 chip("u", 28U);
    PartBench(chip, 28).expectSteps("Q", {{"_OE=L clk=L D=HLHLHHLL", "UUUUUUUU"},
                                          {"clk=H", "HLHLHHLL"},
                                          {"D=LLLLHHHH clk=L", "HLHLHHLL"},
                                          {"clk=H", "LLLLHHHH"},
                                          {"_OE=H", "UUUUUUUU"},
                                          {"_OE=L", "LLLLHHHH"}});
}

/// One of the two chips with this pin-out, on its own board.
class OctalRegister {
public:
    explicit OctalRegister(const std::string& type) : unit_(*board_.addComponent(type, "u")) {
        for (Port* port : unit_.getPorts()) {
            Port* outer = board_.createPort(port->width(), port->direction(), port->getName());
            board_.createNet(port->getName(), {outer, port});
        }
        board_.findPort("Q")->ztrOff();
    }

    /// What `Q` shows at each of these times.
    std::string run(const std::vector<Time>& times) {
        simulator_.prepare(1000);
        PartBench bench(board_, 0);
        bench.set("_OE=L clk=L D=LHHLHLLL", 0);
        bench.set("clk=H", 100);
        bench.set("D=HHHHLLLL clk=L", 200);
        bench.set("_OE=H", 300);
        bench.set("clk=H", 350);
        bench.set("_OE=L", 400);
        simulator_.run(1000);
        std::string text;
        for (const Time time : times) text += (text.empty() ? "" : " ") + bench.read("Q", time);
        return text;
    }

private:
    Circuit board_{"board", nullptr};
    EventSimulator simulator_{&board_};
    Component& unit_;
};

TEST(OctalRegisters, DifferInWhatTheyShowWhileTheyFloat) {
    const std::vector<Time> times = {127, 128, 327, 328, 427, 428};
    EXPECT_EQ(OctalRegister("74x574").run(times), "UUUUUUUU LHHLHLLL LHHLHLLL ZZZZZZZZ ZZZZZZZZ HHHHLLLL");
    EXPECT_EQ(OctalRegister("74LS374").run(times), "UUUUUUUU LHHLHLLL LHHLHLLL UUUUUUUU UUUUUUUU HHHHLLLL");
}

TEST(OctalRegisters, ForgetTheirBitsBetweenTwoRuns) {
    for (const std::string type : {"74x574", "74LS374"}) {
        Circuit board("board", nullptr);
        auto* chip = board.addComponent(type, "u");
        for (int i = 0; i < 2; ++i) {
            EventSimulator simulator(&board);
            simulator.prepare(1000);
            PartBench bench(*chip, 0);
            EXPECT_EQ(bench.read("Q", 1000), "UUUUUUUU") << type;
            bench.set("_OE=L clk=H D=LHHLHLLL", 0);
            bench.set("clk=L", 100);
            bench.set("clk=H", 200);
            simulator.run(1000);
            EXPECT_EQ(bench.read("Q", 227), "UUUUUUUU") << type;
            EXPECT_EQ(bench.read("Q", 228), "LHHLHLLL") << type;
            board.setSimulator(nullptr);
        }
    }
}

}  // namespace
}  // namespace tarnsim
