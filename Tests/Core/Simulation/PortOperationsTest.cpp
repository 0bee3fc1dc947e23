#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Core/Support/Text.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Options = std::map<std::string, std::string>;

TEST(Port, LeavesTheNetOfOneSide) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    Port port(1, Direction::Input, "p");
    inside.addPort(&port, kInside);
    outside.addPort(&port, kOutside);
    port.disconnect(2);
    port.disconnect(-1);
    EXPECT_EQ(port.getNet(kInside), &inside);
    EXPECT_EQ(port.getNet(kOutside), &outside);

    port.disconnect(kInside);
    EXPECT_EQ(port.getNet(kInside), nullptr);
    EXPECT_TRUE(inside.getPorts().empty());
    EXPECT_EQ(port.getNet(kOutside), &outside);

    port.disconnect(kOutside);
    EXPECT_EQ(port.getNet(kOutside), nullptr);
    EXPECT_TRUE(outside.getPorts().empty());
    port.disconnect(kOutside);  // nothing left to leave
}

TEST(Port, ADyingPortLeavesBothNets) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    {
        Port port(1, Direction::Inout, "p");
        inside.addPort(&port, kInside);
        outside.addPort(&port, kOutside);
    }
    EXPECT_TRUE(inside.getPorts().empty());
    EXPECT_TRUE(outside.getPorts().empty());
}

TEST(Port, RefreshSetsWhatIsRead) {
    Net net("n", 1);
    Port in(1, Direction::Input, "in");
    net.addPort(&in, kOutside);
    net.set(Value("Z"), 5);
    in.refresh(8);
    net.removePort(&in);
    EXPECT_EQ(in.recordCount(), 1U);
    EXPECT_EQ(in.get(7), "U");
    EXPECT_EQ(in.get(8), "U");  // the Z, as the port reads it
    EXPECT_EQ(in.get(100), "U");
}

TEST(Port, LettersAreSetAsAValueIs) {
    Net net("n", 4);
    Port out(4, Direction::Output, "out");
    Port in(4, Direction::Input, "in");
    net.addPort(&out, kOutside);
    net.addPort(&in, kOutside);
    out.setLetters("HLZX", 5);
    EXPECT_EQ(out.get(5), "HLZX");
    EXPECT_EQ(net.get(5), "HLZU");
    EXPECT_EQ(net.recordCount(), 1U);
    EXPECT_EQ(errorOf([&] { out.setLetters("HL", 6); }),
              "ValueHistory: mismatching type width. ValueHistory width=2, but value width=4");
}

TEST(Port, LettersAreThoseOfTheValueThatIsRead) {
    Net net("n", 4);
    Port in(4, Direction::Input, "in");
    Port whole(4, Direction::Inout, "whole");
    net.addPort(&in, kOutside);
    net.addPort(&whole, kOutside);
    net.set(Value("HLZU"), 5);
    const auto lettersOf = [](const Port& port, Time time) {
        std::string letters(port.width(), '?');
        port.lettersAt(time, letters.data());
        return letters;
    };
    for (const Port* port : {&in, &whole}) {
        EXPECT_EQ(lettersOf(*port, 4), "UUUU");
        EXPECT_EQ(lettersOf(*port, 5), "HLUU");
    }
    in.ztrOff();
    EXPECT_EQ(lettersOf(in, 5), "HLZU");
    Port alone(2, Direction::Input, "alone");
    alone.set(Value("ZH"), 5);
    EXPECT_EQ(lettersOf(alone, 4), "UU");
    EXPECT_EQ(lettersOf(alone, 5), "ZH");
}

TEST(Port, ANumberIsReadWhereTheValueIsDefined) {
    for (const char* letters : {"H", "L", "LHH", "HLHLLHHLH", "HHHHLLLLHHLLHLHL", "HLLLLLLLLLLLLLLLH", "aHL"}) {
        const Value value(letters);
        Port port(value.width(), Direction::Input, "port");
        EXPECT_EQ(port.numberAt(3), std::nullopt);
        port.set(value, 5);
        EXPECT_EQ(port.numberAt(5), value.toNumber()) << letters;
    }
    Port port(13, Direction::Input, "port");
    port.set(Value("HHHLLLHLHLHLH"), 1);
    EXPECT_EQ(port.numberAt(1), 0x1C55U);
    for (const char letter : {'U', 'Z', 'X'}) {
        port.set(Value(std::string("HHHLLL") + letter + "LHLHLH"), 2);
        EXPECT_EQ(port.numberAt(2), std::nullopt) << letter;
    }
}

TEST(Port, RefreshOfACircuitsOutputHandsItsInsideOn) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    Port out(1, Direction::Output, "out");
    inside.addPort(&out, kInside);
    outside.addPort(&out, kOutside);
    inside.set(Value("H"), 5);
    EXPECT_EQ(outside.get(9), "U");
    out.refresh(9);
    EXPECT_EQ(outside.get(9), "H");
    EXPECT_EQ(outside.get(8), "U");
}

TEST(Port, AnOutputTakesZtrOnAndOff) {
    Port out(1, Direction::Output, "out");
    out.setOptions({{"ztr", "off"}});
    EXPECT_FALSE(out.getZtr());
    out.setOptions({});
    EXPECT_FALSE(out.getZtr());
    out.setOptions({{"ztr", "on"}});
    EXPECT_TRUE(out.getZtr());
}

TEST(Port, OtherOptionsAreRefused) {
    const struct {
        Direction direction;
        Options options;
        std::string message;
    } cases[] = {
        {Direction::Output, {{"pull", "up"}}, "Invalid Port option: 'pull'."},
        {Direction::Output, {{"Ztr", "on"}}, "Invalid Port option: 'Ztr'."},
        {Direction::Output, {{"", ""}}, "Invalid Port option: ''."},
        {Direction::Input, {{"pull", "up"}}, "Invalid Port option: 'pull'."},
        {Direction::Input, {{"ztr", "off"}}, "Invalid Port ztr usage: the ztr can only be used in Outputs."},
        {Direction::Inout, {{"ztr", "on"}}, "Invalid Port ztr usage: the ztr can only be used in Outputs."},
        {Direction::Input, {{"ztr", "maybe"}}, "Invalid Port ztr usage: the ztr can only be used in Outputs."},
        {Direction::Output, {{"ztr", "maybe"}}, "Invalid Port option: 'ztr' only takes 'on' or 'off' as values."},
        {Direction::Output, {{"ztr", ""}}, "Invalid Port option: 'ztr' only takes 'on' or 'off' as values."},
        {Direction::Output, {{"ztr", "OFF"}}, "Invalid Port option: 'ztr' only takes 'on' or 'off' as values."},
        {Direction::Output, {{"ztr", "maybe"}, {"abc", ""}}, "Invalid Port option: 'abc'."},  // in order of the keys
    };
    for (const auto& each : cases) {
        Port port(1, each.direction, "p");
        EXPECT_EQ(errorOf([&] { port.setOptions(each.options); }), each.message);
        EXPECT_TRUE(port.getZtr());
    }
}

TEST(Port, OptionsInFrontOfARefusedOneHold) {
    Port port(1, Direction::Output, "p");
    EXPECT_EQ(errorOf([&] { port.setOptions({{"ztr", "off"}, {"zzz", ""}}); }), "Invalid Port option: 'zzz'.");
    EXPECT_FALSE(port.getZtr());
}

TEST(Port, AnInputTakesNoOptionsAtAll) {
    Port port(1, Direction::Input, "p");
    EXPECT_EQ(errorOf([&] { port.setOptions({}); }), "(no Error)");
    EXPECT_TRUE(port.getZtr());
}

TEST(Port, ACopyHasTheSameNameCommentSizeDirectionAndZtrButNoNetsAndNoRecords) {
    Net inside("inside", 6);
    Net outside("outside", 6);
    Port port(6, Direction::Output, "q");
    port.setCommentText("the sum");
    port.ztrOff();
    inside.addPort(&port, kInside);
    outside.addPort(&port, kOutside);
    port.set(Value("HHHHHH"), 0);

    const Port copy(port);
    EXPECT_EQ(copy.getName(), "q");
    EXPECT_EQ(copy.getCommentText(), "the sum");
    EXPECT_EQ(copy.width(), 6U);
    EXPECT_EQ(copy.direction(), Direction::Output);
    EXPECT_FALSE(copy.getZtr());
    EXPECT_EQ(copy.getNet(kInside), nullptr);
    EXPECT_EQ(copy.getNet(kOutside), nullptr);
    EXPECT_EQ(copy.recordCount(), 0U);
    EXPECT_EQ(outside.getPorts(), std::vector<Port*>{&port});
}

TEST(Port, ADumpNamesThePortAndItsNetInside) {
    Net net("wire", 1);
    Port port(1, Direction::Input, "p");
    net.addPort(&port, kInside);
    EXPECT_EQ(outputOf([&] { port.dump(); }),
              format("'p' (0x%p) (net 'wire' 0x%p)\n", static_cast<void*>(&port), static_cast<void*>(&net)));
}

TEST(Port, ADumpWithoutNetInsideLeavesTheNameEmpty) {
    Net net("wire", 1);
    Port port(1, Direction::Input, "p");
    net.addPort(&port, kOutside);
    EXPECT_EQ(outputOf([&] { port.dump(); }),
              format("'p' (0x%p) (net '' 0x%p)\n", static_cast<void*>(&port), static_cast<void*>(nullptr)));
}

TEST(Pin, IsAPortOfOneBit) {
    const Pin pin(Direction::Output, "out");
    EXPECT_EQ(pin.width(), 1U);
    EXPECT_EQ(pin.direction(), Direction::Output);
    EXPECT_EQ(pin.getName(), "out");
    EXPECT_TRUE(pin.getZtr());
}

TEST(Pin, APulseIsLowFirstAndHighFromTheMiddleOfThePeriod) {
    Pin pin(Direction::Input, "clock");
    pin.pulse(10, 2, 5);
    EXPECT_EQ(pin.recordCount(), 4U);
    const std::pair<Time, const char*> expected[] = {{4, "U"},  {5, "L"},  {9, "L"},  {10, "H"}, {14, "H"},
                                                     {15, "L"}, {19, "L"}, {20, "H"}, {100, "H"}};
    for (const auto& [time, letter] : expected) EXPECT_EQ(pin.get(time), letter) << time;
}

TEST(Pin, AnOddPeriodHasAShorterLowHalf) {
    Pin pin(Direction::Input, "clock");
    pin.pulse(5, 2, 0);
    const std::pair<Time, const char*> expected[] = {{0, "L"}, {1, "L"}, {2, "H"}, {4, "H"}, {5, "L"}, {7, "H"}};
    for (const auto& [time, letter] : expected) EXPECT_EQ(pin.get(time), letter) << time;
}

TEST(Pin, APulseOfNoPeriodsSetsNothing) {
    Pin pin(Direction::Input, "clock");
    pin.pulse(10, 0, 5);
    EXPECT_EQ(pin.recordCount(), 0U);
}

TEST(Pin, FlanksOfAPulseBeyondAllTimeNeverCome) {
    Pin pin(Direction::Input, "clock");
    pin.pulse(10, 2147483647, kLatestTime - 12);
    EXPECT_EQ(pin.recordCount(), 3U);
    const std::pair<Time, const char*> expected[] = {{kEarliestTime, "U"},    {0, "U"},
                                                     {kLatestTime - 13, "U"}, {kLatestTime - 12, "L"},
                                                     {kLatestTime - 7, "H"},  {kLatestTime - 2, "L"},
                                                     {kLatestTime, "L"}};
    for (const auto& [time, letter] : expected) EXPECT_EQ(pin.get(time), letter) << time;
}

TEST(Pin, APulseReachesTheNet) {
    Net net("n", 1);
    Pin pin(Direction::Output, "clock");
    net.addPort(&pin, kOutside);
    pin.pulse(20, 1, 0);
    EXPECT_EQ(net.get(9), "L");
    EXPECT_EQ(net.get(10), "H");
}

TEST(PortFactory, MakesPortsAndPins) {
    PortFactory factory;
    const Port* port = factory.createPort(4, Direction::Inout, "d");
    const Pin* pin = factory.createPin(Direction::Output, "q");
    EXPECT_EQ(port->getName(), "d");
    EXPECT_EQ(port->width(), 4U);
    EXPECT_EQ(port->direction(), Direction::Inout);
    EXPECT_EQ(pin->getName(), "q");
    EXPECT_EQ(pin->width(), 1U);
    EXPECT_EQ(pin->direction(), Direction::Output);
}

TEST(PortFactory, CopiesAPortAndKeepsAPinAPin) {
    Port port(4, Direction::Output, "d");
    port.ztrOff();
    const Pin pin(Direction::Input, "q");
    PortFactory factory;
    const Port* portCopy = factory.copyPort(port);
    const Port* pinCopy = factory.copyPort(pin);
    EXPECT_EQ(portCopy->getName(), "d");
    EXPECT_EQ(portCopy->width(), 4U);
    EXPECT_FALSE(portCopy->getZtr());
    EXPECT_EQ(dynamic_cast<const Pin*>(portCopy), nullptr);
    EXPECT_NE(dynamic_cast<const Pin*>(pinCopy), nullptr);
    EXPECT_EQ(pinCopy->getName(), "q");
}

TEST(PortFactory, TakesItsPortsAlongWhenItDies) {
    Net net("n", 1);
    {
        PortFactory factory;
        net.addPort(factory.createPin(Direction::Output, "q"), kOutside);
        net.addPort(factory.createPort(1, Direction::Input, "d"), kOutside);
        EXPECT_EQ(net.getPorts().size(), 2U);
    }
    EXPECT_TRUE(net.getPorts().empty());
}

}  // namespace
}  // namespace tarnsim
