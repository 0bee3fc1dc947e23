#include "Core/Components/Connectors.h"

#include "Core/Circuit/Circuit.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

using PortNames = std::vector<std::string>;

PortNames portNamesOf(const Component& part) {
    PortNames names;
    for (const Port* port : part.getPorts()) names.push_back(port->getName());
    return names;
}

TEST(Connectors, MadeByCallsWriteTheParametersThatMakeTheSame) {
    const Connector::Declarations ports = {{"z", "0"}, {"a", "7:4"}, {"m", "3;1"}};
    const Join join("j", 8, ports);
    EXPECT_EQ(join.getInstanceText(), "j(a=7:4,m=3;1,out=8,z=0)");
    EXPECT_EQ(portNamesOf(join), (PortNames{"out", "a", "m", "z"}));
    const Split split("s", 8, ports);
    EXPECT_EQ(split.getInstanceText(), "s(a=7:4,in=8,m=3;1,z=0)");
    EXPECT_EQ(portNamesOf(split), (PortNames{"in", "a", "m", "z"}));
    const Splice splice("p", 8, ports);
    EXPECT_EQ(splice.getInstanceText(), "p(a=7:4,m=3;1,size=8,z=0)");
    EXPECT_EQ(portNamesOf(splice), (PortNames{"a", "m", "z"}));

    EXPECT_EQ(portNamesOf(Join("j", join.getParameters())), portNamesOf(join));
    EXPECT_EQ(portNamesOf(Split("s", split.getParameters())), portNamesOf(split));
    EXPECT_EQ(portNamesOf(Splice("p", splice.getParameters())), portNamesOf(splice));
}

TEST(Connectors, MakePortsAsWideAsTheirBitsAreMany) {
    const Join join("j", 16, {{"one", "9"}, {"five", "8:5;0"}, {"eight", "10:15;2;1"}});
    EXPECT_EQ(join.findPort("out")->width(), 16U);
    EXPECT_EQ(join.findPort("one")->width(), 1U);
    EXPECT_EQ(join.findPort("five")->width(), 5U);
    EXPECT_EQ(join.findPort("eight")->width(), 8U);
    EXPECT_EQ(join.findPort("five")->direction(), Direction::Input);
    EXPECT_EQ(Split("s", 8, {{"a", "3:1"}}).findPort("a")->direction(), Direction::Output);
    EXPECT_EQ(Splice("p", 8, {{"a", "3:1"}}).findPort("a")->direction(), Direction::Inout);
}

TEST(Connectors, KeepTheirPortsWhateverParametersComeLater) {
    Join join("j", 8, {{"a", "3:0"}});
    Split split("s", 8, {{"a", "3:0"}});
    Splice splice("p", 8, {{"a", "3:0"}});
    for (Component* part :
         {static_cast<Component*>(&join), static_cast<Component*>(&split), static_cast<Component*>(&splice)}) {
        const std::vector<Port*> ports = part->getPorts();
        part->setParameters(ParaMap("(b=1)"));
        part->applyParameters();
        EXPECT_EQ(part->getPorts(), ports);
        EXPECT_EQ(part->findPort("a")->width(), 4U);
        EXPECT_EQ(part->getParameterText(), "(b=1)");
    }
}

TEST(Connectors, RefuseParametersThatMakeNoSense) {
    const struct {
        std::string type;
        std::string parameters;
        std::string message;
    } cases[] = {
        {"Join", "(a=1)", "A Join unit needs an 'out' parameter."},
        {"Split", "(a=1)", "A Split unit needs an 'in' parameter."},
        {"Splice", "(a=1)", "A Splice unit needs a 'size' parameter."},
        {"Join", "(outer=8,a=1)", "A Join unit needs an 'out' parameter."},
        {"Split", "", "A Split unit needs an 'in' parameter."},
        {"Join", "(out=4,a=4)", "Port 'a' (4) is too big to fit into size 4."},
        {"Split", "(in=4,a=0:4)", "Port 'a' (0:4) is too big to fit into size 4."},
        {"Splice", "(size=4,a=3;9;1)", "Port 'a' (3;9;1) is too big to fit into size 4."},
        {"Join", "(out=8,a=3:0,b=3)", "BusJoin Overlap. Ports 'a' and 'b' both drive pin 3."},
        {"Join", "(out=8,b=7:2,a=5:3)", "BusJoin Overlap. Ports 'a' and 'b' both drive pin 3."},
        {"Join", "(out=8,a=7;3,2)", "BusJoin Overlap. Ports 'a' and '2' both drive pin 3."},
        {"Join", "(out=8,a=x)", "Invalid pin spec expression: 'x'."},
        {"Split", "(in=8,a=1;-2)", "Invalid pin spec expression: '1;-2'."},
        {"Splice", "(size=8,a=:3)", "Invalid pin spec expression: ':3'."},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(errorOf([&] {
                      const ParaMap parameters(each.parameters);
                      if (each.type == "Join") Join("u", parameters);
                      if (each.type == "Split") Split("u", parameters);
                      if (each.type == "Splice") Splice("u", parameters);
                  }),
                  each.message)
            << each.type << each.parameters;
    }
}

TEST(Join, PutsBitsWhereTheirExpressionsSayAndLeavesTheOthersUndefined) {
    Join join("j", 8, {{"up", "6:4"}, {"down", "0:2"}});
    PartBench bench(join, 0);
    bench.expectSteps("out", {{"up=HLL down=HLL", "UHLLULLH"},  // down's leftmost letter is for bit 0
                              {"up=LLH", "ULLHULLH"},
                              {"down=LHL", "ULLHULHL"},
                              {"down=UHL up=HLU", "UHLUULHU"},
                              {"down=ZXL up=XLZ", "UXLZULXZ"}});
}

TEST(Join, WithoutInputsStaysUndefined) {
    Join join("j", 3, {});
    PartBench bench(join, 0);
    bench.expectSteps("out", {{"", "UUU"}});
}

TEST(Join, OfAnInputWithoutExpressionTakesTheBitsAsTheyCome) {
    Join join("j", ParaMap("(a,out=4)"));
    PartBench bench(join, 0);
    bench.expectSteps("out", {{"a=HL", "UUHL"}});
}

/// Of an empty expression each bit is its own number, in as many bits as there are.
TEST(SplitUnit, GivesAnOutputWithoutBitsOfItsOwnAsManyAsItHas) {
    Split split("s", 8, {{"all", ""}});
    Port& all = *split.findPort("all");
    split.findPort("in")->set(Value("LLLLLHLL"), 5);
    split.evaluate(5);
    EXPECT_EQ(all.recordCount(), 0U);  // no width, no value
    all.set(Value("UUU"), 6);
    split.evaluate(7);
    EXPECT_EQ(all.get(7), "HLL");
}

TEST(SplitUnit, GivesEachOutputItsBits) {
    Split split("s", 8, {{"hi", "7:4"}, {"mirror", "0:3"}, {"pick", "6;0;6"}, {"bit", "5"}});
    PartBench bench(split, 0);
    bench.expectSteps(
        "hi mirror pick bit",
        {{"in=HLHLHHLL", "HLHL LLHH LLL H"}, {"in=LHLLLLLH", "LHLL HLLL HHH L"}, {"in=UZXHUZXH", "UZXH HXZU ZHZ X"}});
}

TEST(Connectors, ReadAndWriteAtTheVeryTime) {
    Join join("j", 2, {{"a", "1:0"}});
    Split split("s", 2, {{"a", "1:0"}});
    join.findPort("a")->set(Value("HL"), 10);
    split.findPort("in")->set(Value("HL"), 10);
    join.findPort("a")->set(Value("LH"), 11);
    split.findPort("in")->set(Value("LH"), 11);
    join.evaluate(10);
    split.evaluate(10);
    EXPECT_EQ(join.findPort("out")->get(9), "UU");
    EXPECT_EQ(join.findPort("out")->get(10), "HL");
    EXPECT_EQ(split.findPort("a")->get(9), "UU");
    EXPECT_EQ(split.findPort("a")->get(10), "HL");
}

/// Connectors in a circuit that is simulated.
class ConnectorRun : public testing::Test {
protected:
    /// Puts a unit between ports of the board that are named as its own.
    void place(Component& part) {
        board.addChild(&part, nullptr);
        for (Port* port : part.getPorts()) {
            Port* outer = board.createPort(port->width(), port->direction(), port->getName());
            board.createNet(port->getName(), {outer, port});
        }
    }

    Join join{"j", 4, {{"a", "3:2"}, {"b", "1:0"}}};
    Split split{"s", 4, {{"a", "3:2"}, {"b", "1:0"}}};
    Splice splice{"p", 4, {{"whole", "3:0"}, {"low", "0"}}};
    Circuit board{"board", nullptr};
    EventSimulator simulator{&board};
};

TEST_F(ConnectorRun, AJoinPassesAChangeOnAtTheSameTimeButInALaterEvent) {
    place(join);
    board.findPort("a")->set(Value("HL"), 7);
    board.findPort("b")->set(Value("LH"), 9);
    EXPECT_EQ(board.findPort("out")->recordCount(), 0U);
    simulator.run(100);
    EXPECT_EQ(board.findPort("out")->get(6), "UUUU");
    EXPECT_EQ(board.findPort("out")->get(7), "HLUU");
    EXPECT_EQ(board.findPort("out")->get(9), "HLLH");
}

TEST_F(ConnectorRun, ASplitPassesAChangeOnAtTheSameTimeButInALaterEvent) {
    place(split);
    board.findPort("in")->set(Value("HLLH"), 7);
    EXPECT_EQ(board.findPort("a")->recordCount(), 0U);
    simulator.run(100);
    EXPECT_EQ(board.findPort("a")->get(6), "UU");
    EXPECT_EQ(board.findPort("a")->get(7), "HL");
    EXPECT_EQ(board.findPort("b")->get(7), "LH");
}

TEST_F(ConnectorRun, AJoinLetsWhatFloatsFloatAndASplitDoesNot) {
    Net joined("joined", 2);
    Net divided("divided", 4);
    Port onJoined(2, Direction::Output, "onJoined");
    Port onDivided(4, Direction::Output, "onDivided");
    joined.addPort(&onJoined, kOutside);
    joined.addPort(join.findPort("a"), kOutside);
    divided.addPort(&onDivided, kOutside);
    divided.addPort(split.findPort("in"), kOutside);
    onJoined.set(Value("ZH"), 5);
    onDivided.set(Value("ZHZL"), 5);
    join.evaluate(5);
    split.evaluate(5);
    EXPECT_EQ(join.findPort("out")->get(5), "ZHUU");
    EXPECT_EQ(split.findPort("a")->get(5), "UH");
    EXPECT_EQ(split.findPort("b")->get(5), "UL");
    EXPECT_FALSE(join.findPort("a")->getZtr());
    EXPECT_TRUE(join.findPort("out")->getZtr());
    EXPECT_TRUE(split.findPort("in")->getZtr());
}

TEST_F(ConnectorRun, ASpliceReversesABusWithNoTimePassingAndNoEvent) {
    Splice mirror("m", 8, {{"normal", "7:0"}, {"reverse", "0:7"}});
    Net normal("normal", 8);
    Net reverse("reverse", 8);
    Port driver(8, Direction::Output, "driver");
    normal.addPort(&driver, kOutside);
    normal.addPort(mirror.findPort("normal"), kOutside);
    reverse.addPort(mirror.findPort("reverse"), kOutside);
    driver.set(Value("HHHLHLLL"), 12);
    EXPECT_EQ(normal.get(12), "HHHLHLLL");
    EXPECT_EQ(reverse.get(12), "LLLHLHHH");
    EXPECT_EQ(reverse.get(11), "UUUUUUUU");
}

TEST(Splice, HangsItsPortsOnANetOfItsOwnName) {
    const Splice splice("bus", 16, {{"A", "15:0"}, {"a15", "15"}});
    Net* net = splice.findPort("A")->getNet(kInside);
    ASSERT_NE(net, nullptr);
    EXPECT_EQ(net->getName(), "Splice bus");
    EXPECT_EQ(net->width(), 16U);
    EXPECT_EQ(net->getPorts(), splice.getPorts());
    EXPECT_EQ(net->getPinSpec(splice.findPort("a15"))->getExpression(), "15");
    for (const Port* port : splice.getPorts()) EXPECT_FALSE(port->getZtr()) << port->getName();
}

TEST(Splice, ForgetsWhatIsOnItsOwnNetAndItsPortsByReset) {
    Splice splice("p", 4, {{"whole", "3:0"}, {"low", "0"}});
    Net net("n", 4);
    Port driver(4, Direction::Output, "driver");
    net.addPort(&driver, kOutside);
    net.addPort(splice.findPort("whole"), kOutside);
    const Net* inner = splice.findPort("low")->getNet(kInside);
    for (const std::string letters : {"HLLH", "LHHL"}) {
        driver.set(Value(letters), 3);
        EXPECT_EQ(inner->get(3), letters);
        splice.evaluate(3);  // which does nothing
        EXPECT_EQ(inner->recordCount(), 1U);
        splice.reset();
        EXPECT_EQ(inner->recordCount(), 0U);
        EXPECT_EQ(inner->getPorts().size(), 2U);
        EXPECT_EQ(net.get(3), letters);  // not the splice's own
        net.clear();
        driver.clear();
    }
    net.removePort(&driver);
    splice.findPort("low")->set(Value("H"), 3);
    EXPECT_EQ(inner->get(3), "ZZZH");
    splice.reset();
    EXPECT_EQ(splice.findPort("low")->recordCount(), 0U);
    EXPECT_EQ(inner->recordCount(), 0U);
}

}  // namespace
}  // namespace tarnsim
