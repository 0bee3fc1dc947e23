#include <stdexcept>

#include "Core/Circuit/Circuit.h"
#include "Core/Components/Component.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/Components/TestParts.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(SingleDelayComponent, TheDelayIsThatOfTheConstructor) {
    const DelayedPart part("SN74x74", "u", 7U);
    EXPECT_EQ(part.getDelay(), 7U);
    EXPECT_EQ(part.getParent(), nullptr);
    EXPECT_EQ(part.getType(), "74x74");
    EXPECT_EQ(part.getParameterText(), "");
}

TEST(SingleDelayComponent, TheDelayIsZeroUntilTheParametersAreApplied) {
    DelayedPart part("Part", "u", ParaMap("(delay=12)"));
    EXPECT_EQ(part.getDelay(), 0U);
    part.applyParameters();
    EXPECT_EQ(part.getDelay(), 12U);
}

TEST(SingleDelayComponent, AnAbsentDelayLeavesTheFormerOne) {
    DelayedPart part("Part", "u", 7U);
    part.applyParameters();
    EXPECT_EQ(part.getDelay(), 7U);
    part.setParameters(ParaMap("(other=1)"));
    EXPECT_EQ(part.getDelay(), 7U);
    part.setParameters(ParaMap("(delay=9)"));
    EXPECT_EQ(part.getDelay(), 9U);
}

TEST(SingleDelayComponent, TheDelayMayHaveAnyFormOfANumber) {
    const std::pair<std::string, std::uint32_t> cases[] = {
        {"10", 10}, {"0x10", 16}, {"$10", 16}, {"0b10", 2}, {"0", 0}, {"7ns", 7}, {"4294967295", 4294967295U}};
    for (const auto& [text, delay] : cases) {
        DelayedPart part("Part", "u", 1U);
        part.setParameters(ParaMap("(delay=" + text + ")"));
        EXPECT_EQ(part.getDelay(), delay) << text;
    }
}

TEST(SingleDelayComponent, ADelayThatIsNoNumberIsReportedOnTheErrorStreamAndCountsAsZero) {
    DelayedPart part("Part", "u", 7U);
    std::string printed;
    const std::string errors =
        errorOutputOf([&] { printed = outputOf([&] { part.setParameters(ParaMap("(delay=fast)")); }); });
    EXPECT_EQ(errors, "***ERROR : can't parse 'fast' as a number\n");
    EXPECT_EQ(printed, "");
    EXPECT_EQ(part.getDelay(), 0U);
}

TEST(SingleDelayComponent, ADelayBeyond32BitsIsAStandardException) {
    DelayedPart part("Part", "u", 7U);
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { part.setParameters(ParaMap("(delay=4294967296)")); }),
              "stoul");
}

/// Two parts of different delay in a circuit that is simulated.
class DelayedRun : public testing::Test {
protected:
    Circuit root{"root", nullptr};
    EventSimulator simulator{&root};
    DelayedPart slow{"Part", "slow", 5U};
    DelayedPart instant{"Part", "instant", 0U};

    void SetUp() override {
        slow.setParent(&root);
        instant.setParent(&root);
    }
};

TEST_F(DelayedRun, AChangeLeadsToAnEvaluationOneDelayLater) {
    slow.in.set(Value("H"), 3);
    simulator.run(100);
    EXPECT_EQ(slow.journal, (Journal{"slow@8"}));
    EXPECT_EQ(slow.seen, "H");
}

TEST_F(DelayedRun, AnyInputLeadsToAnEvaluation) {
    slow.other.set(Value("H"), 3);
    simulator.run(100);
    EXPECT_EQ(slow.journal, (Journal{"slow@8"}));
    EXPECT_EQ(slow.seen, "U");
}

TEST_F(DelayedRun, SeveralChangesAtOneTimeGiveOneEvaluation) {
    slow.in.set(Value("H"), 3);
    slow.in.set(Value("L"), 3);
    slow.other.set(Value("H"), 3);
    slow.in.set(Value("H"), 4);
    simulator.run(100);
    EXPECT_EQ(slow.journal, (Journal{"slow@8", "slow@9"}));
}

TEST_F(DelayedRun, WhatDoesntChangeLeadsToNoEvaluation) {
    slow.in.set(Value("U"), 1);
    slow.in.set(Value("H"), 3);
    slow.in.set(Value("H"), 6);
    simulator.run(100);
    EXPECT_EQ(slow.journal, (Journal{"slow@8"}));
}

TEST_F(DelayedRun, OutputsAndInoutsLeadToNoEvaluation) {
    slow.out.set(Value("H"), 3);
    slow.inout.set(Value("H"), 3);
    simulator.run(100);
    EXPECT_EQ(slow.journal, Journal());
}

TEST_F(DelayedRun, WithoutDelayTheEvaluationIsAtTheTimeOfTheChange) {
    instant.in.set(Value("H"), 3);
    EXPECT_EQ(instant.journal, Journal());  // from the queue, not from the change itself
    simulator.run(100);
    EXPECT_EQ(instant.journal, (Journal{"instant@3"}));
    EXPECT_EQ(instant.seen, "H");
}

TEST_F(DelayedRun, APulseShorterThanTheDelayIsEvaluatedAtBothItsEnds) {
    slow.in.set(Value("H"), 3);
    slow.in.set(Value("L"), 4);
    simulator.run(8);
    EXPECT_EQ(slow.journal, (Journal{"slow@8"}));
    EXPECT_EQ(slow.seen, "H");
    simulator.run(9);
    EXPECT_EQ(slow.seen, "L");
}

TEST_F(DelayedRun, WithoutSimulatorAChangeIsOnlyRecorded) {
    slow.setParent(nullptr);
    slow.in.set(Value("H"), 3);
    simulator.run(100);
    EXPECT_EQ(slow.journal, Journal());
    EXPECT_EQ(slow.in.get(3), "H");
}

}  // namespace
}  // namespace tarnsim
