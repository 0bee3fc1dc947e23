#include "Core/Simulation/Port.h"

#include "Core/Simulation/Net.h"
#include "Core/Support/Text.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// Notes the changes that it hears of.
class Listener : public ValueChangeSubscriber {
public:
    void valueChanged(ValueHistory*, const ValueChange& change) override {
        heard.push_back(format("%s>%s@%d", change.oldValue.c_str(), change.newValue.c_str(), change.time));
    }
    std::vector<std::string> heard;
};

TEST(Port, ANewPortHasNoNetsNoRecordsAndTurnsZIntoU) {
    const Port port(4, Direction::Inout, "data");
    EXPECT_EQ(port.getName(), "data");
    EXPECT_EQ(port.width(), 4U);
    EXPECT_EQ(port.direction(), Direction::Inout);
    EXPECT_EQ(port.getNet(kInside), nullptr);
    EXPECT_EQ(port.getNet(kOutside), nullptr);
    EXPECT_TRUE(port.getZtr());
    EXPECT_EQ(port.recordCount(), 0U);
    EXPECT_EQ(port.get(0), "UUUU");
}

TEST(Port, DirectionsHaveTheNumbers0To2) {
    EXPECT_EQ(static_cast<int>(Direction::Input), 0);
    EXPECT_EQ(static_cast<int>(Direction::Output), 1);
    EXPECT_EQ(static_cast<int>(Direction::Inout), 2);
}

TEST(Port, TheDirectionCanBeChanged) {
    Port port(1, Direction::Input, "p");
    port.setDirection(Direction::Output);
    EXPECT_EQ(port.direction(), Direction::Output);
}

TEST(Port, EverySideButTheInsideIsTheOutside) {
    Net inside(1);
    Net outside(1);
    Port port(1, Direction::Input, "p");
    port.setNet(&inside, 0);
    port.setNet(&outside, 7);
    EXPECT_EQ(port.getNet(0), &inside);
    EXPECT_EQ(port.getNet(1), &outside);
    EXPECT_EQ(port.getNet(-3), &outside);
    EXPECT_TRUE(inside.getPorts().empty());  // the pointer alone is stored
    port.setNet(nullptr, 0);
    port.setNet(nullptr, 1);
}

TEST(Port, AnInputWithoutNetReadsItsOwnRecords) {
    Port port(1, Direction::Input, "in");
    port.set(Value("Z"), 10);
    port.set(Value("H"), 20);
    EXPECT_EQ(port.get(9), "U");
    EXPECT_EQ(port.get(10), "Z");  // as it stands: nothing floats without a net
    EXPECT_EQ(port.get(19), "Z");
    EXPECT_EQ(port.get(20), "H");
}

TEST(Port, AnInputReadsItsNetOutsideAndNotWhatItRecorded) {
    Net net("n", 1);
    Port in(1, Direction::Input, "in");
    net.addPort(&in, kOutside);
    in.set(Value("H"), 0);
    EXPECT_EQ(in.get(0), "U");
    net.set(Value("L"), 5);
    EXPECT_EQ(in.get(5), "L");
    EXPECT_EQ(in.get(4), "U");
}

TEST(Port, AnInputDoesntReadItsNetInside) {
    Net net("n", 1);
    Port in(1, Direction::Input, "in");
    net.addPort(&in, kInside);
    in.set(Value("Z"), 0);
    net.set(Value("H"), 0);
    EXPECT_EQ(in.get(0), "Z");
}

TEST(Port, AnOutputWithoutNetOnlyRecords) {
    Port out(1, Direction::Output, "out");
    out.set(Value("Z"), 3);
    EXPECT_EQ(out.get(3), "Z");
    EXPECT_EQ(out.recordCount(), 1U);
}

TEST(Port, AnOutputOnANetOutsideReadsBackWhatWasWritten) {
    Net net("n", 1);
    Port out(1, Direction::Output, "out");
    Port rival(1, Direction::Output, "rival");
    net.addPort(&out, kOutside);
    net.addPort(&rival, kOutside);
    out.set(Value("H"), 0);
    rival.set(Value("L"), 0);
    EXPECT_EQ(net.get(0), "U");
    EXPECT_EQ(out.get(0), "H");
}

TEST(Port, AnOutputReadsItsNetInside) {
    Net net("n", 2);
    Port out(2, Direction::Output, "out");
    net.addPort(&out, kInside);
    net.set(Value("HZ"), 4);
    EXPECT_EQ(out.get(4), "HU");
    EXPECT_EQ(out.get(3), "UU");
}

TEST(Port, AFloatingNetReadsUndefinedThroughAnInput) {
    Net net("n", 1);
    Port gate(1, Direction::Output, "gate");
    Port in(1, Direction::Input, "in");
    net.addPort(&gate, kOutside);
    net.addPort(&in, kOutside);
    gate.set(Value("Z"), 10);
    EXPECT_EQ(net.get(10), "Z");
    EXPECT_EQ(in.get(10), "U");
    in.ztrOff();
    EXPECT_EQ(in.get(10), "Z");
    in.ztrOn();
    EXPECT_EQ(in.get(10), "U");
}

TEST(Port, AFloatingNetStaysZThroughACircuitsOutputWithZtrOff) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    Port gate(1, Direction::Output, "gate");
    Port out(1, Direction::Output, "out");
    inside.addPort(&gate, kOutside);
    inside.addPort(&out, kInside);
    outside.addPort(&out, kOutside);
    gate.set(Value("Z"), 10);
    EXPECT_EQ(out.get(10), "U");
    EXPECT_EQ(outside.get(10), "U");

    out.setOptions({{"ztr", "off"}});
    gate.set(Value("Z"), 20);
    EXPECT_EQ(out.get(20), "Z");
    EXPECT_EQ(outside.get(20), "Z");
}

TEST(Port, OnlyTheZBitsOfAReadTurnIntoU) {
    Net net("n", 10);
    Port in(10, Direction::Input, "in");
    net.addPort(&in, kOutside);
    net.set(Value("HZLXZUHZZL"), 0);
    EXPECT_EQ(in.get(0), "HULXUUHUUL");
}

TEST(Port, AnInoutReadsByTheNetsThatItHas) {
    Net inside("inside", 2);
    Net outside("outside", 2);
    Port port(2, Direction::Inout, "p");
    EXPECT_EQ(port.get(0), "UU");  // none, and no record

    outside.addPort(&port, kOutside);
    outside.set(Value("HZ"), 0);
    EXPECT_EQ(port.get(0), "HU");  // the outside alone

    port.set(Value("LL"), 0);
    EXPECT_EQ(port.get(0), "HU");  // own records don't count there

    outside.removePort(&port);
    EXPECT_EQ(port.get(0), "LL");  // none
    port.set(Value("ZH"), 1);
    EXPECT_EQ(port.get(1), "UH");  // the Z rule holds for an Inout without net as well
    port.ztrOff();
    EXPECT_EQ(port.get(1), "ZH");
}

TEST(Port, AnInoutOnANetInsideReadsTheNetUntilItHasARecordOfItsOwn) {
    Net inside("inside", 2);
    Port port(2, Direction::Inout, "p");
    inside.addPort(&port, kInside);
    inside.set(Value("HL"), 0);
    EXPECT_EQ(port.get(0), "HL");
    port.set(Value("ZH"), 10);
    EXPECT_EQ(port.get(10), "UH");
    EXPECT_EQ(port.get(9), "UU");
    inside.set(Value("LL"), 10);
    EXPECT_EQ(port.get(10), "UH");
}

TEST(Port, AnInoutBetweenTwoNetsReadsTheirCommonValue) {
    Net inside("inside", 4);
    Net outside("outside", 4);
    Port port(4, Direction::Inout, "p");
    inside.addPort(&port, kInside);
    outside.addPort(&port, kOutside);
    inside.set(Value("HLZX"), 0);
    outside.set(Value("HLZX"), 0);
    EXPECT_EQ(port.get(0), "HLUX");
    outside.set(Value("HLZL"), 5);
    EXPECT_EQ(port.get(5), "UUUU");
    EXPECT_EQ(port.get(4), "HLUX");
}

TEST(Port, AWriteReachesTheFarSideOnly) {
    const struct {
        Direction direction;
        std::size_t insideRecords;
        std::size_t outsideRecords;
    } cases[] = {{Direction::Input, 1, 0}, {Direction::Output, 0, 1}};
    for (const auto& each : cases) {
        Net inside("inside", 1);
        Net outside("outside", 1);
        Port port(1, each.direction, "p");
        inside.addPort(&port, kInside);
        outside.addPort(&port, kOutside);
        port.set(Value("H"), 0);
        EXPECT_EQ(inside.recordCount(), each.insideRecords);
        EXPECT_EQ(outside.recordCount(), each.outsideRecords);
    }
}

TEST(Port, AWriteOnAnInoutReachesItsNetInsideAlone) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    Port inner(1, Direction::Inout, "inner");
    Port outer(1, Direction::Inout, "outer");
    inside.addPort(&inner, kInside);
    outside.addPort(&outer, kOutside);
    inner.set(Value("H"), 0);
    outer.set(Value("H"), 0);
    EXPECT_EQ(inside.get(0), "H");
    EXPECT_EQ(outside.recordCount(), 0U);
}

TEST(Port, AWriteOnACircuitsInputReachesTheComponentsInsideAtTheSameTime) {
    Net inside("inside", 1);
    Port in(1, Direction::Input, "in");
    Port gateInput(1, Direction::Input, "a");
    Listener listener;
    gateInput.subscribe(&listener);
    inside.addPort(&in, kInside);
    inside.addPort(&gateInput, kOutside);
    in.set(Value("H"), 30);
    EXPECT_EQ(gateInput.get(30), "H");
    EXPECT_EQ(listener.heard, (std::vector<std::string>{"U>H@30"}));
}

TEST(Port, AWriteThroughTheHistoryReachesTheNetToo) {
    Net net("n", 1);
    Port out(1, Direction::Output, "out");
    net.addPort(&out, kOutside);
    ValueHistory& history = out;
    history.set(Value("H"), 0);
    EXPECT_EQ(net.get(0), "H");
}

TEST(Port, AWriteMayLieBehindTheLatestRecord) {
    Net net("n", 1);
    Port out(1, Direction::Output, "out");
    net.addPort(&out, kOutside);
    out.set(Value("H"), 20);
    out.set(Value("L"), 5);
    EXPECT_EQ(net.get(4), "U");
    EXPECT_EQ(net.get(5), "L");
    EXPECT_EQ(net.get(20), "H");
}

TEST(Port, SubscribersHearWhatDiffersFromTheRecordsThoughThePortReadsANet) {
    Net net("n", 1);
    Port out(1, Direction::Output, "out");
    Port in(1, Direction::Input, "in");
    net.addPort(&out, kOutside);
    net.addPort(&in, kOutside);
    Listener listener;
    in.subscribe(&listener);
    out.set(Value("H"), 1);
    out.set(Value("H"), 2);
    out.set(Value("Z"), 3);
    out.set(Value("U"), 4);
    EXPECT_EQ(listener.heard, (std::vector<std::string>{"U>H@1", "H>Z@3", "Z>U@4"}));
}

TEST(Port, AValueOfAnotherWidthIsRefused) {
    Net net("n", 1);
    Port out(1, Direction::Output, "out");
    net.addPort(&out, kOutside);
    EXPECT_EQ(errorOf([&] { out.set(Value("HH"), 0); }),
              "ValueHistory: mismatching type width. ValueHistory width=2, but value width=1");
    EXPECT_EQ(out.recordCount(), 0U);
    EXPECT_EQ(net.recordCount(), 0U);
}

TEST(Port, TheDriversOfASideAreThoseOfItsNet) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    Port port(1, Direction::Output, "p");
    Port driver(1, Direction::Output, "driver");
    inside.addPort(&port, kInside);
    inside.addPort(&driver, kOutside);
    outside.addPort(&port, kOutside);
    driver.set(Value("L"), 7);
    EXPECT_EQ(port.driveValue(7, kInside), "L");
    EXPECT_EQ(port.driveValue(6, kInside), "U");
    EXPECT_EQ(port.driveValue(7, kOutside), "L");
}

TEST(Port, ASideWithoutNetIsDrivenUndefined) {
    Net outside("outside", 3);
    Port port(3, Direction::Input, "p");
    outside.addPort(&port, kOutside);
    EXPECT_EQ(port.driveValue(0, kInside), "UUU");
    EXPECT_EQ(port.driveValue(0, kOutside), "ZZZ");
    EXPECT_EQ(port.driveValue(0, 2), "UUU");
    EXPECT_EQ(port.driveValue(0, -1), "UUU");
}

}  // namespace
}  // namespace tarnsim
