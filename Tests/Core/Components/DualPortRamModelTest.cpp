#include "Tests/Core/Components/DualPortRamBench.h"

namespace tarnsim {
namespace {

const std::vector<std::string> kAddresses = {"LLLLLLLLLLL", "LLLLLLLLLLH", "HHHHHHHHHHH"};
const std::vector<std::string> kOthers = {"HLLLLLLLLLL", "HLLLLLLLLLH", "LHHHHHHHHHH"};

std::vector<std::string> joined(std::vector<std::string> a, const std::vector<std::string>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

class DualPortRamGrade : public testing::TestWithParam<ModelGrade> {
protected:
    std::string parameters() const { return "(device=" + GetParam().device + ")"; }
    Time endTime() const { return GetParam().accessTime * 25; }
};

TEST_P(DualPortRamGrade, DoesWhatThePlainModelDoesForRandomAccesses) {
    RandomAccesses accesses(GetParam(), "UZX");
    DualPortRamBench bench(parameters());
    DualPortRamModel::Counts sum;
    for (int run = 0; run < 8; ++run) {
        const auto stimuli = accesses.forBothSides(kAddresses, kAddresses, endTime());
        DualPortRamModel model(GetParam(), "u7");
        model.run(stimuli, endTime());
        ASSERT_EQ(firstDifference(bench.run(stimuli, endTime(), kAddresses), recordOf(model, endTime(), kAddresses)),
                  "")
            << "run " << run;
        sum.stored += model.counts.stored;
        sum.read += model.counts.read;
        sum.undefinedReads += model.counts.undefinedReads;
        sum.held += model.counts.held;
        sum.collisions += model.counts.collisions;
        sum.undefinedWrites += model.counts.undefinedWrites;
        for (std::size_t side = 0; side < 2; ++side) sum.losses[side] += model.counts.losses[side];
    }
    // All of it took place many times.
    EXPECT_GT(sum.stored, 50);
    EXPECT_GT(sum.read, 50);
    EXPECT_GT(sum.undefinedReads, 3);
    EXPECT_GT(sum.held, 50);
    EXPECT_GT(sum.collisions, 20);
    EXPECT_GT(sum.undefinedWrites, 3);
    EXPECT_GT(sum.losses[0], 20);
    EXPECT_GT(sum.losses[1], 20);
}

TEST_P(DualPortRamGrade, HasTwoSidesThatAreAlikeWhereTheyDontMeet) {
    const auto all = joined(kAddresses, kOthers);
    RandomAccesses accesses(GetParam(), "");
    DualPortRamBench bench(parameters());
    std::size_t lines = 0;
    for (int run = 0; run < 4; ++run) {
        auto stimuli = accesses.forBothSides(kAddresses, kOthers, endTime());
        const RunRecord record = bench.run(stimuli, endTime(), all);
        for (RamStimulus& each : stimuli) each.side = 1 - each.side;
        RunRecord swapped = bench.run(stimuli, endTime(), all);
        for (std::string& line : swapped) {
            std::vector<std::string> words = split(line, ' ');  // time, IOL, IOR, BUSYL, BUSYR and the memory's words
            ASSERT_EQ(words[0].back(), ':') << "a warning: " << line;
            std::swap(words[1], words[2]);
            std::swap(words[3], words[4]);
            line.clear();
            for (const std::string& word : words) line += word + " ";
        }
        ASSERT_EQ(firstDifference(record, swapped), "") << "run " << run;
        lines += record.size();
    }
    EXPECT_GT(lines, 50U);
}

TEST_P(DualPortRamGrade, RunsTheSameAgainAfterAReset) {
    RandomAccesses accesses(GetParam(), "UZX");
    const auto stimuli = accesses.forBothSides(kAddresses, kAddresses, endTime());
    const auto others = accesses.forBothSides(kAddresses, kAddresses, endTime());
    DualPortRamBench bench(parameters());
    const RunRecord first = bench.run(stimuli, endTime(), kAddresses);
    EXPECT_NE(firstDifference(first, bench.run(others, endTime(), kAddresses)), "");
    EXPECT_EQ(firstDifference(first, bench.run(stimuli, endTime(), kAddresses)), "");
    DualPortRamBench another(parameters());
    EXPECT_EQ(firstDifference(first, another.run(stimuli, endTime(), kAddresses)), "");
}

TEST_P(DualPortRamGrade, RunsByItsNewGradeWhenParametersAreApplied) {
    RandomAccesses accesses(GetParam(), "UZX");
    DualPortRamBench bench("");
    bench.ram().setParameters(ParaMap(parameters()));
    const auto stimuli = accesses.forBothSides(kAddresses, kAddresses, endTime());
    DualPortRamModel model(GetParam(), "u7");
    model.run(stimuli, endTime());
    EXPECT_EQ(firstDifference(bench.run(stimuli, endTime(), kAddresses), recordOf(model, endTime(), kAddresses)), "");
}

INSTANTIATE_TEST_SUITE_P(All, DualPortRamGrade, testing::ValuesIn(kModelGrades),
                         [](const auto& grade) { return grade.param.device; });

}  // namespace
}  // namespace tarnsim
