#include "Core/Simulation/EventSimulator.h"

#include <array>
#include <optional>

#include "Core/Circuit/Circuit.h"
#include "Tests/Core/Simulation/Probe.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// A simulator over a root circuit, and probes in it that write one journal.
class EventSimulatorRun : public testing::Test {
protected:
    Journal journal;
    Circuit root{"root", nullptr};
    EventSimulator simulator{&root};
    Probe a{"a", &root, journal};
    Probe b{"b", &root, journal};
    Probe c{"c", &root, journal};
    Probe d{"d", &root, journal};
};

TEST_F(EventSimulatorRun, ANewSimulatorIsKnownToItsCircuitAndStandsAtZero) {
    EXPECT_EQ(simulator.getCircuit(), &root);
    EXPECT_EQ(root.findSimulator(), &simulator);
    EXPECT_EQ(simulator.getTime(), 0);
}

TEST_F(EventSimulatorRun, AnEmptyQueueEndsAtTheEndTime) {
    simulator.run(100);
    EXPECT_EQ(simulator.getTime(), 100);
}

TEST_F(EventSimulatorRun, AnEventBehindTheEndStaysUnrunAndIsTheTimeReached) {
    simulator.schedule(&a, 0);
    simulator.schedule(&b, 10);
    simulator.run(5);
    EXPECT_EQ(journal, (Journal{"a@0"}));
    EXPECT_EQ(simulator.getTime(), 10);
}

TEST_F(EventSimulatorRun, AnEventExactlyAtTheEndRuns) {
    simulator.schedule(&a, 5);
    simulator.run(5);
    EXPECT_EQ(journal, (Journal{"a@5"}));
    EXPECT_EQ(simulator.getTime(), 5);
}

TEST_F(EventSimulatorRun, ARunThatEndsAtZeroStandsAtTheEndTime) {
    simulator.schedule(&a, 0);
    simulator.run(5);
    EXPECT_EQ(journal, (Journal{"a@0"}));
    EXPECT_EQ(simulator.getTime(), 5);
}

TEST_F(EventSimulatorRun, AnUnrunEventAtZeroLeavesTheNegativeEndTime) {
    simulator.schedule(&a, 0);
    simulator.run(-1);
    EXPECT_EQ(journal, Journal());
    EXPECT_EQ(simulator.getTime(), -1);
}

TEST_F(EventSimulatorRun, TheTimeReachedIsThatOfTheLastEventNotTheEnd) {
    simulator.schedule(&a, -4);
    simulator.schedule(&a, 7);
    simulator.run(100);
    EXPECT_EQ(journal, (Journal{"a@-4", "a@7"}));
    EXPECT_EQ(simulator.getTime(), 7);
}

TEST_F(EventSimulatorRun, TheTimeIsThatOfTheEventWhileItRuns) {
    std::vector<Time> times;
    a.action = [&](Time) { times.push_back(simulator.getTime()); };
    simulator.schedule(&a, 3);
    simulator.schedule(&a, 9);
    simulator.run(20);
    EXPECT_EQ(times, (std::vector<Time>{3, 9}));
}

TEST_F(EventSimulatorRun, SeveralSchedulesForOneTimeCollapseIntoOneCall) {
    for (int i = 0; i < 3; ++i) simulator.schedule(&a, 4);
    simulator.schedule(&a, 0, 4);  // a tag of 0 is a plain event
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4"}));
}

TEST_F(EventSimulatorRun, TaggedEventsAreCalledOnceForEachTag) {
    simulator.schedule(&a, 2, 4);
    simulator.schedule(&a, 1, 4);
    simulator.schedule(&a, 2, 4);
    simulator.schedule(&a, 4);
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4", "a@4#1", "a@4#2"}));
}

TEST_F(EventSimulatorRun, ATagHas64Bits) {
    simulator.schedule(&a, std::uint64_t{1} << 32U, 4);
    simulator.schedule(&a, ~std::uint64_t{0}, 4);
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4#4294967296", "a@4#18446744073709551615"}));
}

TEST_F(EventSimulatorRun, AComponentThatSchedulesItselfForTheCurrentTimeIsntCalledAgain) {
    a.action = [&](Time time) { a.schedule(&a, time); };
    simulator.schedule(&a, 4);
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4"}));
}

TEST_F(EventSimulatorRun, AComponentThatHasRunIsntCalledAgainForOthers) {
    a.action = [&](Time time) { simulator.schedule(&b, time); };
    b.action = [&](Time time) { simulator.schedule(&a, time); };
    simulator.schedule(&a, 4);
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4", "b@4"}));
}

TEST_F(EventSimulatorRun, ATaggedEventOfThisTimeRunsThoughThePlainOneHasRun) {
    a.action = [&](Time time) { simulator.schedule(&a, 5, time); };
    simulator.schedule(&a, 4);
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4", "a@4#5"}));
}

TEST_F(EventSimulatorRun, WhatAPassSchedulesForItsOwnTimeRunsBehindTheWholePass) {
    a.action = [&](Time time) { simulator.schedule(&b, time); };  // b is older than c, and yet comes behind it
    b.action = [&](Time time) {
        simulator.schedule(&d, time);
        simulator.schedule(&c, time);
    };
    simulator.schedule(&c, 4);
    simulator.schedule(&a, 4);
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4", "c@4", "b@4", "d@4"}));
}

TEST_F(EventSimulatorRun, ThereIsNoLimitOnThePassesOfOneTime) {
    constexpr std::uint64_t kPasses = 20000;
    std::uint64_t pass = 1;
    a.action = [&](Time time) {
        if (pass < kPasses) simulator.schedule(&a, ++pass, time);
    };
    simulator.schedule(&a, 1, 4);
    simulator.schedule(&b, 5);
    simulator.run(10);
    EXPECT_EQ(journal.size(), kPasses + 1);
    EXPECT_EQ(journal[kPasses - 1], "a@4#20000");
    EXPECT_EQ(journal.back(), "b@5");
}

TEST_F(EventSimulatorRun, EventsOfOneTimeComeInOrderOfCreationWhereverTheyLieInMemory) {
    std::array<std::optional<Probe>, 2> slots;
    slots[1].emplace("old", &root, journal);
    slots[0].emplace("young", &root, journal);
    simulator.schedule(&*slots[0], 4);
    simulator.schedule(&*slots[1], 4);
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"old@4", "young@4"}));
}

TEST_F(EventSimulatorRun, AnEventForAnEarlierTimeNeverRuns) {
    a.action = [&](Time time) { simulator.schedule(&b, time - 1); };
    simulator.schedule(&a, 4);
    EXPECT_EQ(outputOf([&] { simulator.run(10); }), "");
    EXPECT_EQ(journal, (Journal{"a@4"}));
    EXPECT_EQ(simulator.getTime(), 4);
}

TEST_F(EventSimulatorRun, AnEventForALaterTimeRunsWhenThatIsReached) {
    a.action = [&](Time time) {
        simulator.schedule(&b, time + 6);  // the end
        simulator.schedule(&c, time + 1);  // in front of what stands in the queue
        simulator.schedule(&d, time + 7);  // behind the end
    };
    simulator.schedule(&a, 4);
    simulator.schedule(&a, 6);
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4", "c@5", "a@6", "c@7", "b@10"}));
    EXPECT_EQ(simulator.getTime(), 11);
}

TEST_F(EventSimulatorRun, ASecondRunCallsEverythingAgainInOnePassATime) {
    b.action = [&](Time time) { simulator.schedule(&a, time); };
    simulator.schedule(&b, 4);
    simulator.schedule(&c, 6);
    simulator.run(5);
    EXPECT_EQ(journal, (Journal{"b@4", "a@4"}));
    journal.clear();
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@4", "b@4", "c@6"}));
}

TEST_F(EventSimulatorRun, TheAbortFlagLetsTheTimeFinishAndNothingLaterRun) {
    char flag = 0;
    simulator.setAbortFlag(&flag);
    a.action = [&](Time time) {
        flag = 1;
        simulator.schedule(&c, time);
    };
    for (const Time time : {10, 20}) {
        simulator.schedule(&a, time);
        simulator.schedule(&b, time);
    }
    simulator.run(100);
    EXPECT_EQ(journal, (Journal{"a@10", "b@10", "c@10"}));
    EXPECT_EQ(simulator.getTime(), 20);
    EXPECT_EQ(flag, 1);
}

TEST_F(EventSimulatorRun, ARunClearsTheAbortFlagFirst) {
    char flag = 1;
    simulator.setAbortFlag(&flag);
    simulator.schedule(&a, 10);
    simulator.run(100);
    EXPECT_EQ(journal, (Journal{"a@10"}));
    EXPECT_EQ(flag, 0);
}

TEST_F(EventSimulatorRun, WithoutAbortFlagARunGoesToItsEnd) {
    char flag = 0;
    simulator.setAbortFlag(&flag);
    simulator.setAbortFlag(nullptr);
    flag = 1;
    simulator.schedule(&a, 10);
    simulator.run(100);
    EXPECT_EQ(journal, (Journal{"a@10"}));
}

TEST_F(EventSimulatorRun, AnExceptionPassesThroughAndLeavesTheQueueAndTheTime) {
    b.action = [](Time) { throw Error("Error: %s.", "no"); };
    simulator.schedule(&a, 3);
    simulator.schedule(&b, 5);
    simulator.schedule(&c, 5);
    simulator.schedule(&d, 7);
    EXPECT_EQ(errorOf([&] { simulator.run(10); }), "Error: no.");
    EXPECT_EQ(journal, (Journal{"a@3", "b@5"}));
    EXPECT_EQ(simulator.getTime(), 5);

    b.action = nullptr;
    journal.clear();
    simulator.run(10);
    EXPECT_EQ(journal, (Journal{"a@3", "b@5", "c@5", "d@7"}));
}

/// Inverts what its input holds at present, and notes its calls.
class Toggle : public SingleDelayComponent {
public:
    Toggle(const std::string& name, std::uint32_t delay, Journal& journal)
        : SingleDelayComponent("Toggle", name, delay), journal_(journal) {}

    void evaluate(Time time) override {
        journal_.push_back(getName() + "@" + std::to_string(time));
        out.set(in.get(time) == 'L' ? Value("H") : Value("L"), time);
    }

    Pin& in = *createPin(Direction::Input, "in");
    Pin& out = *createPin(Direction::Output, "out");

private:
    Journal& journal_;
};

TEST(EventSimulator, UnitsWithoutDelayThatChangeEachOthersInputsRunOnceEach) {
    Journal journal;
    Toggle a("a", 0, journal);
    Toggle b("b", 0, journal);
    Circuit root("root", nullptr);
    EventSimulator simulator(&root);
    root.addChild(&a, nullptr);
    root.addChild(&b, nullptr);
    root.createNet("ab", {&a.out, &b.in});
    root.createNet("ba", {&b.out, &a.in});
    simulator.schedule(&a, 4);
    simulator.schedule(&b, 9);
    simulator.run(20);
    // At 4 the output of b changes the input of a, which has run; at 9 b sees no change of its own making.
    EXPECT_EQ(journal, (Journal{"a@4", "b@4", "b@9"}));
    EXPECT_EQ(a.out.get(4), "L");
    EXPECT_EQ(b.out.get(4), "H");
    EXPECT_EQ(a.in.get(4), "H");
    EXPECT_EQ(simulator.getTime(), 9);
}

TEST(EventSimulator, ADelayedUnitIsEvaluatedOnceForAllChangesOfOneTime) {
    Journal journal;
    Toggle unit("u", 5, journal);
    Circuit root("root", nullptr);
    EventSimulator simulator(&root);
    root.addChild(&unit, nullptr);
    unit.in.set(Value("L"), 3);
    unit.in.set(Value("H"), 3);
    unit.in.set(Value("L"), 4);
    simulator.run(20);
    EXPECT_EQ(journal, (Journal{"u@8", "u@9"}));
}

/// Notes the calls that precede a run.
class Phases : public Component {
public:
    Phases(const std::string& name, Journal& journal) : Component("Phases", name, nullptr), journal_(journal) {}

    void reset() override { journal_.push_back(getName() + " reset"); }
    void start(Time endTime) override { journal_.push_back(getName() + " start " + std::to_string(endTime)); }
    void evaluate(Time) override {}
    void applyParameters() override {}

private:
    Journal& journal_;
};

TEST(EventSimulator, PrepareResetsTheWholeCircuitAndThenStartsItWithTheEndTime) {
    Journal journal;
    Phases one("one", journal);
    Phases two("two", journal);
    Circuit root("root", nullptr);
    root.addChild(&one, nullptr);
    root.addChild(&two, nullptr);
    EventSimulator simulator(&root);
    simulator.prepare(300);
    EXPECT_EQ(journal, (Journal{"one reset", "two reset", "one start 300", "two start 300"}));
}

}  // namespace
}  // namespace tarnsim
