#include "Core/Components/EdgeDetector.h"

#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

TEST(ClockStep, IsAnEdgeForTheExactPairOfLevelsOnly) {
    for (const char before : kPinLetters) {
        for (const char now : kPinLetters) {
            const ClockStep step = {before, now};
            const std::string pair = {before, now};
            EXPECT_EQ(step.isRising(), pair == "LH") << pair;
            EXPECT_EQ(step.isFalling(), pair == "HL") << pair;
            EXPECT_EQ(step.isDefined(), pair == "LL" || pair == "LH" || pair == "HL" || pair == "HH") << pair;
        }
    }
}

/// The letters of a step, "LH".
std::string lettersOf(const ClockStep& step) {
    return {step.before, step.now};
}

class EdgeDetectors : public testing::Test {
protected:
    void SetUp() override {
        clock.setLevel('L', 0);
        clock.setLevel('H', 10);
        clock.setLevel('L', 20);
        clock.setLevel('Z', 30);
    }

    Pin clock{Direction::Input, "clk"};
};

TEST_F(EdgeDetectors, CompareTheClockOfTheLastEvaluationWithThePresentOneBothOneDelayAgo) {
    EdgeDetector edges(-1);
    EXPECT_EQ(lettersOf(edges.step(clock, 5, 5)), "UL");
    edges.evaluatedAt(5);
    EXPECT_EQ(lettersOf(edges.step(clock, 15, 5)), "LH");
    EXPECT_EQ(lettersOf(edges.step(clock, 14, 5)), "LL");
    edges.evaluatedAt(15);
    EXPECT_EQ(lettersOf(edges.step(clock, 25, 5)), "HL");
    EXPECT_EQ(lettersOf(edges.step(clock, 35, 5)), "HZ");
    EXPECT_EQ(lettersOf(edges.step(clock, 35, 15)), "LL");
    edges.evaluatedAt(35);
    EXPECT_EQ(lettersOf(edges.step(clock, 40, 5)), "ZZ");
    EXPECT_EQ(lettersOf(edges.step(clock, 25, 5)), "ZL");  // the present needn't be later
}

TEST_F(EdgeDetectors, SeeNothingOfWhatLiesBetweenTwoEvaluations) {
    EdgeDetector edges(-1);
    edges.evaluatedAt(0);
    EXPECT_EQ(lettersOf(edges.step(clock, 25, 0)), "LL");
}

TEST_F(EdgeDetectors, BeforeTheFirstEvaluationSeeTheClockOfTheTimeThatTheyAreGiven) {
    EXPECT_EQ(lettersOf(EdgeDetector(-1).step(clock, 12, 0)), "UH");
    EXPECT_EQ(lettersOf(EdgeDetector(0).step(clock, 12, 0)), "LH");
    EXPECT_EQ(lettersOf(EdgeDetector(0).step(clock, 12, 1)), "UH");
}

}  // namespace
}  // namespace tarnsim
