#include <memory>

#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Core/Support/Text.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// Notes who changed and does what the test gave it to do.
class Listener : public ValueChangeSubscriber {
public:
    void valueChanged(ValueHistory* history, const ValueChange& change) override {
        const auto* port = dynamic_cast<Port*>(history);
        heard.push_back(format("%s=%s@%d", port->getName().c_str(), change.newValue.c_str(), change.time));
        if (action) action(change);
    }
    std::vector<std::string> heard;
    std::function<void(const ValueChange&)> action;
};

/// A unit whose input and output hang on one net inside.
struct FeedThrough {
    FeedThrough(const std::string& name, Net& from, Net& to) : inside(name, 1) {
        inside.addPort(&in, kInside);
        inside.addPort(&out, kInside);
        from.addPort(&in, kOutside);
        to.addPort(&out, kOutside);
    }

    Net inside;
    Port in{1, Direction::Input, "in"};
    Port out{1, Direction::Output, "out"};
};

TEST(NetUpdate, RecordsTheResolvedValueAtEveryUpdateChangedOrNot) {
    Net net("n", 1);
    Port out(1, Direction::Output, "out");
    net.addPort(&out, kOutside);
    out.set(Value("H"), 5);
    out.set(Value("H"), 8);
    EXPECT_EQ(net.recordCount(), 2U);
    net.update(11);
    EXPECT_EQ(net.recordCount(), 3U);
    EXPECT_EQ(net.get(4), "U");
    EXPECT_EQ(net.get(5), "H");
    EXPECT_EQ(net.get(100), "H");
}

TEST(NetUpdate, ResolvesForTheTimeOfTheValueWhateverStandsLater) {
    Net net("n", 1);
    Port a(1, Direction::Output, "a");
    Port b(1, Direction::Output, "b");
    net.addPort(&a, kOutside);
    net.addPort(&b, kOutside);
    a.set(Value("H"), 10);
    b.set(Value("Z"), 0);  // a holds U at 0, and has no say at 10 any more
    EXPECT_EQ(net.get(0), "U");
    EXPECT_EQ(net.get(10), "U");
    b.set(Value("Z"), 10);
    EXPECT_EQ(net.get(10), "H");
}

TEST(NetUpdate, SetsTheInputsOutsideAndTheOutputsInsideAndNoOthers) {
    Net net("n", 1);
    Port driver(1, Direction::Output, "driver");
    Port unitInput(1, Direction::Input, "unitInput");
    Port unitInout(1, Direction::Inout, "unitInout");
    Port circuitOutput(1, Direction::Output, "circuitOutput");
    Port circuitInput(1, Direction::Input, "circuitInput");
    net.addPort(&circuitInput, kInside);
    net.addPort(&unitInput, kOutside);
    net.addPort(&unitInout, kOutside);
    net.addPort(&circuitOutput, kInside);
    net.addPort(&driver, kOutside);
    circuitInput.set(Value("Z"), 0);
    driver.set(Value("H"), 0);
    EXPECT_EQ(unitInput.recordCount(), 1U);  // both updates were for one time
    EXPECT_EQ(circuitOutput.recordCount(), 1U);
    EXPECT_EQ(unitInout.recordCount(), 0U);
    EXPECT_EQ(circuitInput.recordCount(), 1U);
    EXPECT_EQ(unitInput.get(0), "H");
    EXPECT_EQ(circuitOutput.get(0), "H");
    EXPECT_EQ(circuitInput.get(0), "Z");
    EXPECT_TRUE(net.isFollower(unitInput));
    EXPECT_TRUE(net.isFollower(circuitOutput));
    EXPECT_FALSE(net.isFollower(unitInout));
    EXPECT_FALSE(net.isFollower(circuitInput));
    EXPECT_FALSE(net.isFollower(driver));
}

TEST(NetUpdate, PassesThroughTheLevelsOfTheHierarchyAtOneTime) {
    Net outer("outer", 1);
    Net middle("middle", 1);
    Net inner("inner", 1);
    Port driver(1, Direction::Output, "driver");
    Port upper(1, Direction::Input, "upper");
    Port lower(1, Direction::Input, "lower");
    outer.addPort(&driver, kOutside);
    outer.addPort(&upper, kOutside);
    middle.addPort(&upper, kInside);
    middle.addPort(&lower, kOutside);
    inner.addPort(&lower, kInside);
    driver.set(Value("L"), 7);
    for (const Net* net : {&outer, &middle, &inner}) {
        EXPECT_EQ(net->get(7), "L");
        EXPECT_EQ(net->get(6), "U");
    }
}

TEST(NetUpdate, HandsZToItsFollowersWhoReadItAsU) {
    Net net("n", 1);
    Net inner("inner", 1);
    Port driver(1, Direction::Output, "driver");
    Port in(1, Direction::Input, "in");
    net.addPort(&driver, kOutside);
    net.addPort(&in, kOutside);
    inner.addPort(&in, kInside);
    driver.set(Value("Z"), 0);
    EXPECT_EQ(net.get(0), "Z");
    EXPECT_EQ(inner.get(0), "U");  // what `in` reads is what it drives
}

TEST(NetUpdate, FollowersAreSetInOrderOfAttachmentAndJoinedNetsComeFirst) {
    Net net("n", 1);
    Net joined("joined", 1);
    Port driver(1, Direction::Output, "driver");
    Port bridge(1, Direction::Inout, "bridge");
    Port second(1, Direction::Input, "second");
    Port first(1, Direction::Input, "first");
    Port across(1, Direction::Input, "across");
    Listener listener;
    for (Port* port : {&second, &first, &across}) port->subscribe(&listener);
    net.addPort(&first, kOutside);
    net.addPort(&second, kOutside);
    net.addPort(&driver, kOutside);
    net.addPort(&bridge, kOutside);
    joined.addPort(&bridge, kInside);
    joined.addPort(&across, kOutside);
    driver.set(Value("H"), 3);
    EXPECT_EQ(listener.heard, (std::vector<std::string>{"across=H@3", "first=H@3", "second=H@3"}));
}

TEST(NetUpdate, ANetThatWasVisitedIsntEntered) {
    Net net("n", 1);
    Net joined("joined", 1);
    Port bridge(1, Direction::Inout, "bridge");
    net.addPort(&bridge, kOutside);
    joined.addPort(&bridge, kInside);
    net.update(0, {&joined});
    EXPECT_EQ(net.recordCount(), 1U);
    EXPECT_EQ(joined.recordCount(), 0U);
    net.update(0);
    EXPECT_EQ(joined.recordCount(), 1U);
}

TEST(NetUpdate, ASubscriberStillReadsThePortsOldRecordWhileTheNetHasTheNewValue) {
    Net net("n", 1);
    Port driver(1, Direction::Output, "driver");
    Port in(1, Direction::Input, "in");
    net.addPort(&driver, kOutside);
    net.addPort(&in, kOutside);
    Listener listener;
    std::string netReads;
    std::string told;
    listener.action = [&](const ValueChange& change) {
        netReads = net.get(change.time).c_str();
        told = format("%s>%s", change.oldValue.c_str(), change.newValue.c_str());
    };
    in.subscribe(&listener);
    driver.set(Value("L"), 0);
    driver.set(Value("H"), 5);
    EXPECT_EQ(netReads, "H");
    EXPECT_EQ(told, "L>H");
}

TEST(NetUpdate, APortOnAPartOfTheNetThatFollowsIsRefusedByItsHistory) {
    Net net("bus", 4);
    Port driver(4, Direction::Output, "driver");
    Port narrow(2, Direction::Input, "narrow");
    net.addPort(&driver, kOutside);
    net.addPort(&narrow, 1, 0, kOutside);
    EXPECT_EQ(errorOf([&] { driver.set(Value("HLHL"), 0); }),
              "ValueHistory: mismatching type width. ValueHistory width=4, but value width=2");
}

TEST(NetUpdate, SeesTheNetAsThePortThatStandsOnAPartOfIt) {
    Net net("bus", 8);
    Port low(4, Direction::Inout, "low");
    Port mirrored(3, Direction::Inout, "mirrored");
    Port whole(8, Direction::Inout, "whole");
    net.addPort(&low, 3, 0, kOutside);
    net.addPort(&mirrored, 5, 7, kOutside);
    net.addPort(&whole, kOutside);
    net.set(Value("HLZUXHLH"), 2);
    EXPECT_EQ(net.valueFor(2, &low), "XHLH");
    EXPECT_EQ(net.valueFor(2, &mirrored), "ZLH");
    EXPECT_EQ(net.valueFor(2, &whole), "HLZUXHLH");
    EXPECT_EQ(net.valueFor(2, nullptr), "HLZUXHLH");
    EXPECT_EQ(net.valueFor(1, &low), "UUUU");
}

TEST(NetUpdate, AnHonestChainOfThousandsOfFeedThroughsWorks) {
    constexpr std::size_t kLevels = 100'000;
    std::vector<std::unique_ptr<Net>> nets;
    for (std::size_t i = 0; i <= kLevels; ++i) nets.push_back(std::make_unique<Net>(std::to_string(i), 1));
    std::vector<std::unique_ptr<FeedThrough>> units;
    for (std::size_t i = 0; i < kLevels; ++i) {
        units.push_back(std::make_unique<FeedThrough>("inside", *nets[i], *nets[i + 1]));
    }
    Port driver(1, Direction::Output, "driver");
    nets.front()->addPort(&driver, kOutside);
    driver.set(Value("H"), 4);
    EXPECT_EQ(nets.back()->get(4), "H");
    EXPECT_EQ(nets.back()->get(3), "U");
}

TEST(NetUpdate, ANetMayBeReachedTwiceOneAfterTheOther) {
    Net from("from", 1);
    Net to("to", 1);
    const FeedThrough upper("upper", from, to);
    const FeedThrough lower("lower", from, to);
    Port driver(1, Direction::Output, "driver");
    from.addPort(&driver, kOutside);
    driver.set(Value("H"), 0);
    EXPECT_EQ(to.get(0), "U");  // both drive it, whether they agree or not
}

constexpr const char* kRing =
    "Error: a value comes back to the net that it left, through units that connect an input straight to an output: ";

TEST(NetUpdate, AUnitThatFeedsItsOutputToItsInputIsAnErrorThatNamesTheNets) {
    Net net("n", 1);
    FeedThrough unit("inside", net, net);
    EXPECT_EQ(errorOf([&] { unit.in.set(Value("H"), 0); }), std::string(kRing) + "'inside' -> 'n' -> 'inside'.");
    EXPECT_EQ(errorOf([&] { unit.out.set(Value("H"), 0); }), std::string(kRing) + "'n' -> 'inside' -> 'n'.");
}

TEST(NetUpdate, ALongerRingIsNamedInItsOrderWithoutTheWayThatLeadsIntoIt) {
    Net entry("entry", 1);
    Net a("a", 1);
    Net b("b", 1);
    const FeedThrough way("way", entry, a);
    const FeedThrough one("one", a, b);
    const FeedThrough two("two", b, a);
    Port driver(1, Direction::Output, "driver");
    entry.addPort(&driver, kOutside);
    EXPECT_EQ(errorOf([&] { driver.set(Value("H"), 0); }), std::string(kRing) + "'a' -> 'one' -> 'b' -> 'two' -> 'a'.");
}

TEST(NetUpdate, ARingThatWasReportedCanBeOpenedAndTheNetsWork) {
    Net net("n", 1);
    FeedThrough unit("inside", net, net);
    Port driver(1, Direction::Output, "driver");
    net.addPort(&driver, kOutside);
    EXPECT_EQ(errorOf([&] { driver.set(Value("H"), 0); }), std::string(kRing) + "'n' -> 'inside' -> 'n'.");
    unit.out.disconnect(kOutside);
    driver.set(Value("H"), 1);
    EXPECT_EQ(net.get(1), "H");
    EXPECT_EQ(unit.inside.get(1), "H");
}

TEST(NetUpdate, AnUpdateForALaterTimeFromWithinIsNoRing) {
    Net net("n", 1);
    Port driver(1, Direction::Output, "driver");
    Port in(1, Direction::Input, "in");
    net.addPort(&driver, kOutside);
    net.addPort(&in, kOutside);
    Listener listener;
    listener.action = [&](const ValueChange& change) {
        if (change.time < 30) driver.set(change.newValue == 'H' ? Value("L") : Value("H"), change.time + 10);
    };
    in.subscribe(&listener);
    driver.set(Value("H"), 0);
    EXPECT_EQ(net.get(0), "H");
    EXPECT_EQ(net.get(10), "L");
    EXPECT_EQ(net.get(20), "H");
    EXPECT_EQ(net.get(30), "L");
}

}  // namespace
}  // namespace tarnsim
