#include "Core/TestVectors/ExpectedOutputs.h"

#include <random>

#include "Tests/Core/TestVectors/SequenceSupport.h"

namespace tarnsim {
namespace {

TEST(ExpectedOutputs, EqualEndTimesLeaveTheLaterVector) {
    const auto sequence = sequenceFrom("time a ==(dT)=> q\n0 H 20 L\n10 L 10 H\n30 L 0 Z\n");
    const ExpectedOutputs expectations(*sequence);
    EXPECT_EQ(expectations.at("q", 19), "!");
    EXPECT_EQ(expectations.at("q", 20), "H");
    EXPECT_EQ(expectations.at("q", 30), "Z");
}

TEST(ExpectedOutputs, OfEqualEndTimesAtTheEndTheLastVectorHolds) {
    const auto sequence = sequenceFrom("time a ==(dT)=> q\n0 H 5 Z\n10 H 20 L\n20 L 10 H\n");
    const ExpectedOutputs expectations(*sequence);
    EXPECT_EQ(expectations.at("q", 29), "Z");
    EXPECT_EQ(expectations.at("q", 30), "H");
    EXPECT_EQ(expectations.at("q", 31), "!");
}

TEST(ExpectedOutputs, EndTimesMayGoBack) {
    // End times 50, 15, 40: the first pair holds at no time, the second one from 15 to 39.
    const auto sequence = sequenceFrom("time a ==(dT)=> q\n0 H 50 L\n10 L 5 H\n20 L 20 Z\n");
    const ExpectedOutputs expectations(*sequence);
    EXPECT_EQ(expectations.at("q", 14), "!");
    EXPECT_EQ(expectations.at("q", 15), "H");
    EXPECT_EQ(expectations.at("q", 39), "H");
    EXPECT_EQ(expectations.at("q", 40), "Z");
    EXPECT_EQ(expectations.at("q", 50), "!");
}

TEST(ExpectedOutputs, OverlappingPairsAnswerWithTheFirst) {
    // End times 10, 30, 20, 40: at 25 the pairs (10, 30) and (20, 40) both hold.
    const auto sequence = sequenceFrom("time a ==(dT)=> q\n0 H 10 L\n10 L 20 H\n15 L 5 Z\n20 L 20 X\n");
    const ExpectedOutputs expectations(*sequence);
    EXPECT_EQ(expectations.at("q", 25), "L");
    EXPECT_EQ(expectations.at("q", 30), "Z");
    EXPECT_EQ(expectations.at("q", 40), "X");
}

TEST(ExpectedOutputs, TheFirstColumnOfANameAnswers) {
    const auto sequence = sequenceFrom("time a => q p q\n0 H L H Z\n");
    const ExpectedOutputs expectations(*sequence);
    EXPECT_EQ(expectations.at("q", 0), "L");
    EXPECT_EQ(expectations.at("p", 0), "H");
    EXPECT_EQ(expectations.at("r", 0), "?");
    EXPECT_EQ(expectations.at("r", 99), "?") << "the name comes before the time";
}

TEST(ExpectedOutputs, ColumnsCanBeLookedUpBefore) {
    const auto sequence = sequenceFrom("time a => q p q\n0 H L H Z\n");
    const ExpectedOutputs expectations(*sequence);
    EXPECT_EQ(expectations.columnOf("q"), 0);
    EXPECT_EQ(expectations.columnOf("p"), 1);
    EXPECT_EQ(expectations.columnOf("a"), std::nullopt);
    EXPECT_EQ(expectations.textAt(1, 0), "H");
    EXPECT_EQ(expectations.textAt(1, 1), "!");
    EXPECT_EQ(expectations.textAt(std::nullopt, 0), "?");
}

/// The answer by a walk over all neighbouring pairs.
std::string byWalk(const TestSequence& sequence, Time time) {
    const auto& vectors = sequence.vectors();
    for (std::size_t i = 0; i + 1 < vectors.size(); ++i) {
        if (time >= vectors[i]->endTime() && time < vectors[i + 1]->endTime()) return vectors[i]->output(0);
    }
    return vectors.back()->endTime() == time ? vectors.back()->output(0) : "!";
}

/// 200 sequences of up to 12 vectors, at all times that can make a difference. Each cell tells its vector.
void compareWithWalk(int greatestDeltaTime) {
    std::mt19937 random(20);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 200; ++round) {
        TestSequence sequence(TestSequence::kEmpty);
        sequence.setHeader(new TestVectorHeader({"time", "a", "==(dT)=>", "q"}, 1, ""));
        Time time = 0;
        for (int i = 1 + below(12); i > 0; --i) {
            auto* vector = new TestVector(static_cast<std::uint32_t>(time));
            vector->setDeltaTime(below(greatestDeltaTime + 1));
            vector->addOutput(std::to_string(i));
            sequence.addVector(vector);
            time += 1 + below(6);
        }
        const ExpectedOutputs expectations(sequence);
        for (Time at = -2; at <= time + greatestDeltaTime + 1; ++at) {
            ASSERT_EQ(expectations.at("q", at), byWalk(sequence, at)) << "round " << round << " at " << at;
        }
        for (int i = 0; i < 40; ++i) {
            const Time at = below(time + greatestDeltaTime + 4) - 2;
            ASSERT_EQ(expectations.at("q", at), byWalk(sequence, at)) << "round " << round << " at " << at;
        }
    }
}

TEST(ExpectedOutputs, AscendingEndTimesAnswerAsAWalkOverThePairs) {
    compareWithWalk(0);
}

TEST(ExpectedOutputs, MixedEndTimesAnswerAsAWalkOverThePairs) {
    compareWithWalk(2);
    compareWithWalk(15);
}

}  // namespace
}  // namespace tarnsim
