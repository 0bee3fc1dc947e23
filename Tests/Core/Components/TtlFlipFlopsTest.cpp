#include "Core/Components/TtlFlipFlops.h"

#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

/// What the two outputs of an SN74x74 get, "Q _Q"; "" if nothing is written.
std::string expected74(char cd, char sd, char before, char now, char d) {
    const auto isLevel = [](char letter) { return letter == 'H' || letter == 'L'; };
    if (cd == 'L' && sd == 'H') return "L H";
    if (cd == 'H' && sd == 'L') return "H L";
    if (cd == 'L' && sd == 'L') return "H H";
    if (cd == 'H' && sd == 'H') {
        if (!isLevel(before) || !isLevel(now)) return "U U";
        if (before != 'L' || now != 'H') return "";
        const char inverse = d == 'L' ? 'H' : d == 'H' ? 'L' : 'U';
        return {d, ' ', inverse};
    }
    return "U U";
}

TEST(SN74x74, FollowsItsFunctionTableForEveryLetterOnEveryPin) {
    SN74x74 chip("u", 35U);
    for (const char cd : kPinLetters) {
        for (const char sd : kPinLetters) {
            for (const char before : kPinLetters) {
                for (const char now : kPinLetters) {
                    for (const char d : kPinLetters) {
                        PartBench bench(chip, 35);
                        bench.reset();
                        // Both halves are clear, with the clock as it was before.
                        const std::string clock = std::string("CP1=") + before + " CP2=" + before;
                        bench.step("_CD1=L _SD1=H _CD2=L _SD2=H D1=U D2=U " + clock, "Q1");
                        const std::string inputs =
                            std::string("_CD2=") + cd + " _SD2=" + sd + " CP2=" + now + " D2=" + d;
                        const std::string expected = expected74(cd, sd, before, now, d);
                        ASSERT_EQ(bench.step(inputs, "Q1 _Q1 Q2 _Q2"),
                                  "L H " + (expected.empty() ? "(L) (H)" : expected))
                            << inputs << " after " << before;
                    }
                }
            }
        }
    }
}

TEST(SN74x74, KeepsItsOutputsBetweenRisingEdges) {
    SN74x74 chip("u", 35U);
    PartBench bench(chip, 35);
    bench.expectSteps("Q1 _Q1 Q2 _Q2", {{"_CD1=L _SD1=H CP1=L D1=H _CD2=H _SD2=L CP2=L D2=L", "L H H L"},
                                        {"_CD1=H _SD2=H", "(L) (H) (H) (L)"},
                                        {"CP1=H", "H L (H) (L)"},
                                        {"D1=L CP2=H", "(H) (L) L H"},
                                        {"CP1=L CP2=L", "(H) (L) (L) (H)"},
                                        {"CP1=H D2=H", "L H (L) (H)"},
                                        {"CP2=H D1=U", "(L) (H) H L"}});
}

TEST(SN74x74, WithPresetAndClearLowHasBothOutputsHighAndIsNotClocked) {
    SN74x74 chip("u", 35U);
    PartBench bench(chip, 35);
    bench.expectSteps("Q1 _Q1", {{"_CD1=L _SD1=L CP1=L D1=L", "H H"},
                                 {"CP1=H", "H H"},
                                 {"_CD1=H _SD1=H", "(H) (H)"},
                                 {"CP1=L", "(H) (H)"},
                                 {"CP1=H", "L H"}});
}

TEST(SN74x74, ComparesItsClockWithThatOfItsLastEvaluation) {
    SN74x74 chip("u", 35U);
    PartBench bench(chip, 35);
    bench.set("_CD1=H _SD1=H CP1=L D1=H", 0);
    chip.evaluate(35);
    EXPECT_EQ(bench.read("Q1 _Q1", 35), "U U");
    bench.set("CP1=H", 10);
    bench.set("D1=L", 20);
    chip.evaluate(60);  // late: the clock at 25 against the one at 0, with the D of 25
    EXPECT_EQ(bench.read("Q1 _Q1", 60), "L H");
}

TEST(SN74x74, HasTheDelayOfItsFamilyUnlessADelayIsGiven) {
    const std::map<std::string, std::uint32_t> delays = {
        {"(family=F)", 11},         {"(family=AS)", 11},         {"(family=ALS)", 18}, {"(family=LS)", 35},
        {"(delay=9,family=LS)", 9}, {"(delay=50,family=F)", 50}, {"(delay=12)", 12},   {"(delay=0,family=AS)", 0}};
    for (const auto& [parameters, delay] : delays) {
        SN74x74 chip("u", ParaMap(parameters));
        EXPECT_EQ(chip.getDelay(), delay) << parameters;
        EXPECT_EQ(chip.getDescription(), "<br>Delay: <i>" + std::to_string(delay) + "</i>");
        SN74x74 later("u", 99U);
        EXPECT_EQ(later.getDelay(), 99U);
        later.setParameters(ParaMap(parameters));
        EXPECT_EQ(later.getDelay(), delay) << parameters;
        later.setParameters(ParaMap("(colour=red)"));  // neither: nothing sets the delay
        EXPECT_EQ(later.getDelay(), delay) << parameters;
    }
    for (const std::string family : {"S", "ls", "", "HCT"}) {
        EXPECT_EQ(errorOf([&] { SN74x74("u", ParaMap("(delay=9,family=" + family + ")")); }),
                  "Error: unknown device family of SN74x74: '" + family + "'.");
    }
    EXPECT_EQ(SN74x74("u", ParaMap()).getDelay(), 35U);  // as in LS
}

TEST(SN74x74, RunsTheSameAfterAReset) {
    SN74x74 chip("u", 35U);
    PartBench bench(chip, 35);
    for (int i = 0; i < 3; ++i) {
        bench.expectSteps("Q1 _Q1", {{"_CD1=H _SD1=H CP1=H D1=H", "U U"},
                                     {"CP1=L", "(U) (U)"},
                                     {"CP1=H", "H L"},
                                     {"CP1=L D1=L", "(H) (L)"},
                                     {"CP1=H", "L H"}});
        bench.reset();
        for (const Port* port : chip.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

/// The J-K rule, for stored letters "q nq".
std::string clocked78(const std::string& stored, char j, char k) {
    const auto toggled = [](char letter) { return letter == 'H' ? 'L' : letter == 'L' ? 'H' : 'U'; };
    if (j == 'L' && k == 'L') return stored;
    if (j == 'H' && k == 'L') return "H L";
    if (j == 'L' && k == 'H') return "L H";
    if (j == 'H' && k == 'H') return {toggled(stored[0]), ' ', toggled(stored[2])};
    return "U U";
}

/// How to bring both halves of a DM74LS78A to stored letters.
const std::map<std::string, std::string> kPreparations = {
    {"H L", "_CLR=H _1PRE=L _2PRE=L"}, {"L H", "_CLR=L _1PRE=H _2PRE=H"}, {"U U", "_CLR=U _1PRE=H _2PRE=H"}};

TEST(DM74LS78A, FollowsTheJKRuleOnItsFallingEdge) {
    for (const auto& [stored, preparation] : kPreparations) {
        for (const char j : kPinLetters) {
            for (const char k : kPinLetters) {
                DM74LS78A chip("u", 20U);
                PartBench bench(chip, 20);
                bench.step(preparation + " _CLK=H", "1Q");
                bench.step("_CLR=H _1PRE=H _2PRE=H 1J=L 1K=H 2J=" + std::string(1, j) + " 2K=" + k, "1Q");
                ASSERT_EQ(bench.step("_CLK=L", "1Q _1Q 2Q _2Q"), "L H " + clocked78(stored, j, k))
                    << "from " << stored << " with J " << j << " and K " << k;
            }
        }
    }
}

TEST(DM74LS78A, IsClockedByTheExactPairHThenLAndWritesItsOutputsInEveryCase) {
    for (const char before : kPinLetters) {
        for (const char now : kPinLetters) {
            DM74LS78A chip("u", 20U);
            PartBench bench(chip, 20);
            bench.step("_CLR=L _1PRE=H _2PRE=H 1J=H 1K=L 2J=H 2K=H _CLK=H", "1Q");
            bench.step(std::string("_CLK=") + before, "1Q");
            const std::string result = bench.step(std::string("_CLR=H _CLK=") + now, "1Q _1Q 2Q _2Q");
            EXPECT_EQ(result, before == 'H' && now == 'L' ? "H L H L" : "L H L H") << before << now;
        }
    }
}

TEST(DM74LS78A, PresetsAndClearsWhateverTheClockDoes) {
    for (const char clr : kPinLetters) {
        for (const char pre : kPinLetters) {
            DM74LS78A chip("u", 20U);
            PartBench bench(chip, 20);
            bench.step("_CLR=L _1PRE=H _2PRE=H 1J=H 1K=L 2J=H 2K=L _CLK=H", "1Q");
            std::string half = "U U";
            if (clr == 'H' && pre == 'H') half = "H L";  // clocked
            if (clr == 'H' && pre == 'L') half = "H L";  // preset
            if (clr == 'L' && pre == 'H') half = "L H";
            const std::string other = clr == 'H' ? "H L" : clr == 'L' ? "L H" : "U U";
            EXPECT_EQ(bench.step(std::string("_CLK=L _CLR=") + clr + " _1PRE=" + pre, "1Q _1Q 2Q _2Q"),
                      half + " " + other)
                << "clear " << clr << ", preset " << pre;
        }
    }
}

TEST(DM74LS78A, TogglesOnEachFallingEdgeFromAKnownStateAndNeverLeavesAnUnknownOne) {
    DM74LS78A chip("u", 20U);
    PartBench bench(chip, 20);
    bench.expectSteps("1Q _1Q 2Q _2Q", {{"_CLR=L _1PRE=H _2PRE=U 1J=H 1K=H 2J=H 2K=H _CLK=H", "L H U U"},
                                        {"_CLR=H _2PRE=H", "L H U U"},
                                        {"_CLK=L", "H L U U"},
                                        {"_CLK=H", "H L U U"},
                                        {"_CLK=L", "L H U U"},
                                        {"_CLK=H", "L H U U"},
                                        {"_CLK=L", "H L U U"}});
}

TEST(DM74LS78A, StoresWhatAnUnknownPresetMakesOfIt) {
    DM74LS78A chip("u", 20U);
    PartBench bench(chip, 20);
    bench.expectSteps("1Q _1Q", {{"_CLR=H _1PRE=L 1J=L 1K=L _CLK=H", "H L"},
                                 {"_1PRE=H", "H L"},
                                 {"_1PRE=Z", "U U"},
                                 {"_1PRE=H", "U U"},
                                 {"_1PRE=L", "H L"},
                                 {"_CLR=X", "U U"},
                                 {"_CLR=L _1PRE=H", "L H"},
                                 {"_CLR=H", "L H"},
                                 {"_CLR=L _1PRE=L", "U U"},
                                 {"_CLR=H _1PRE=H", "U U"}});
}

TEST(DM74LS78A, ForgetsItsBitsByReset) {
    DM74LS78A chip("u", 20U);
    PartBench bench(chip, 20);
    for (int i = 0; i < 3; ++i) {
        bench.expectSteps("1Q _1Q 2Q _2Q", {{"_CLR=H _1PRE=H _2PRE=H 1J=L 1K=L 2J=L 2K=L _CLK=L", "U U U U"},
                                            {"_CLK=H", "U U U U"},
                                            {"_1PRE=L 2J=H _CLK=L", "H L H L"},
                                            {"_1PRE=H", "H L H L"}});
        bench.reset();
        for (const Port* port : chip.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

TEST(DM74LS78A, SeesNoEdgeAtTheStartOfASecondRunWhoseClockIsLaidDownBeforehand) {
    DM74LS78A chip("u", 20U);
    PartBench bench(chip, 20);
    for (int run = 0; run < 2; ++run) {
        bench.set("_CLR=H _1PRE=H 1J=H 1K=L _CLK=L", 0);
        bench.set("_CLK=H", 40);
        chip.evaluate(20);
        EXPECT_EQ(bench.read("1Q _1Q", 20), "U U");
        chip.evaluate(500);
        chip.reset();
    }
}

TEST(DM74LS78A, WithoutDelayHasSeenNothingBeforeTheFirstEvaluationOfARun) {
    DM74LS78A chip("u", 0U);
    for (int i = 0; i < 2; ++i) {
        PartBench bench(chip, 0);
        bench.set("_CLR=H _1PRE=H 1J=H 1K=L _CLK=H", 0);
        bench.set("_CLK=L", 5);
        chip.evaluate(5);  // the last evaluation counts as having been before 0, where the clock is undefined
        EXPECT_EQ(bench.read("1Q _1Q", 5), "U U");
        chip.reset();
    }
}

TEST(DM74LS78A, ReadsAllItsInputsOneDelayAgo) {
    for (const std::string input : {"_1PRE", "_CLR"}) {
        DM74LS78A chip("u", ParaMap("(delay=8)"));
        PartBench(chip, 8).set("_CLR=H _1PRE=H _CLK=H 1J=L 1K=L", 0);
        // A clear against the preset is undefined; without the clear it's a preset.
        if (input == "_CLR") PartBench(chip, 8).set("_1PRE=L", 0);
        if (input == "_1PRE") PartBench(chip, 8).set("_CLR=L", 0);
        EXPECT_EQ(readingDelay(chip, input, "1Q"), 8) << input;
        EXPECT_EQ(chip.getDescription(), "");
    }
}

}  // namespace
}  // namespace tarnsim
