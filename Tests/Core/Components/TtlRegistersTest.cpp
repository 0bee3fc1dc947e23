#include "Core/Components/TtlRegisters.h"

#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

const std::string kSixOutputs = "1Q 2Q 3Q 4Q 5Q 6Q";

/// What six outputs get, each of these letters, "H L ...".
std::string six(char letter) {
    std::string text(1, letter);
    for (int i = 1; i < 6; ++i) text += std::string(" ") + letter;
    return text;
}

std::string unwritten(std::string letters) {
    std::string text;
    for (const char each : letters) text += each == ' ' ? " " : std::string("(") + each + ")";
    return text;
}

TEST(SN74x174, FollowsItsFunctionTableForEveryLetterOfClearAndClock) {
    SN74x174 chip("u", 35U);
    for (const char clr : kPinLetters) {
        for (const char before : kPinLetters) {
            for (const char now : kPinLetters) {
                PartBench bench(chip, 35);
                bench.reset();
                bench.step(std::string("_CLR=L 1D=H 2D=L 3D=U 4D=Z 5D=X 6D=H CLK=") + before, "1Q");
                const bool isClockDefined = (before == 'H' || before == 'L') && (now == 'H' || now == 'L');
                const bool isRising = before == 'L' && now == 'H';
                std::string expected = six('U');
                if (clr == 'L') expected = six('L');
                if (clr == 'H' && isClockDefined) expected = isRising ? "H L U Z X H" : unwritten(six('L'));
                EXPECT_EQ(bench.step(std::string("_CLR=") + clr + " CLK=" + now, kSixOutputs), expected)
                    << "clear " << clr << ", clock " << before << now;
            }
        }
    }
}

TEST(SN74x174, HasTheDelayOfItsFamilyUnlessADelayIsGivenAndThatOfLSWithNeither) {
    const std::map<std::string, std::uint32_t> delays = {
        {"(family=F)", 14},         {"(family=AS)", 15},       {"(family=ALS)", 30}, {"(family=LS)", 35},
        {"(delay=9,family=LS)", 9}, {"(delay=1,family=F)", 1}, {"(delay=12)", 12},   {"", 35},
        {"(colour=red)", 35}};
    for (const auto& [parameters, delay] : delays) {
        SN74x174 chip("u", ParaMap(parameters));
        EXPECT_EQ(chip.getDelay(), delay) << parameters;
        EXPECT_EQ(chip.getDescription(), "<br>Delay: <i>" + std::to_string(delay) + "</i>");
        chip.setParameters(ParaMap("(colour=red)"));  // neither: nothing sets the delay
        EXPECT_EQ(chip.getDelay(), delay) << parameters;
    }
    EXPECT_EQ(SN74x174("u", 4U).getDelay(), 4U);
    EXPECT_EQ(errorOf([] { SN74x174("u", ParaMap("(family=HC)")); }),
              "Error: unknown device family of SN74x174: 'HC'.");
}

TEST(SN74x174, RunsTheSameAfterAReset) {
    SN74x174 chip("u", 35U);
    PartBench bench(chip, 35);
    for (int i = 0; i < 3; ++i) {
        bench.expectSteps("1Q 6Q", {{"_CLR=H CLK=H 1D=H 6D=L", "U U"},
                                    {"CLK=L", "(U) (U)"},
                                    {"CLK=H", "H L"},
                                    {"CLK=L 1D=L", "(H) (L)"},
                                    {"CLK=H", "L L"}});
        bench.reset();
        for (const Port* port : chip.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

TEST(SN74x273, TakesDOverAtTheExactPairLThenHOfItsClockAndAtNoOther) {
    for (const char before : kPinLetters) {
        for (const char now : kPinLetters) {
            SN74x273 chip("u", 27U);
            PartBench bench(chip, 27);
            bench.step(std::string("_CLR=L D=HLUZXLHH clk=") + before, "Q");
            EXPECT_EQ(bench.step(std::string("_CLR=H clk=") + now, "Q"),
                      before == 'L' && now == 'H' ? "HLUZXLHH" : "LLLLLLLL")
                << before << now;
        }
    }
}

TEST(SN74x273, IsUndefinedAtAClearThatIsNoLevelButIsClockedAndKeepsItsBits) {
    SN74x273 chip("u", 27U);
    PartBench bench(chip, 27);
    bench.expectSteps("Q", {{"_CLR=H clk=L D=HHLLHLHL", "UUUUUUUU"},
                            {"clk=H", "HHLLHLHL"},
                            {"_CLR=U", "UUUUUUUU"},
                            {"_CLR=H", "HHLLHLHL"},
                            {"_CLR=Z clk=L D=LLLLHHHH", "UUUUUUUU"},
                            {"clk=H", "UUUUUUUU"},
                            {"_CLR=H", "LLLLHHHH"},
                            {"_CLR=X", "UUUUUUUU"},
                            {"_CLR=L", "LLLLLLLL"},
                            {"_CLR=H", "LLLLLLLL"}});
}

TEST(SN74x273, IsClearedEvenAtItsRisingEdge) {
    SN74x273 chip("u", 27U);
    PartBench bench(chip, 27);
    bench.expectSteps("Q",
                      {{"_CLR=H clk=L D=HHHHHHHH", "UUUUUUUU"}, {"_CLR=L clk=H", "LLLLLLLL"}, {"_CLR=H", "LLLLLLLL"}});
}

TEST(SN74x273, HasTheDelayOfLSWhateverItsParametersSay) {
    for (const std::string parameters : {"", "(family=LS)", "(delay=5)", "(delay=5,family=LS)"}) {
        SN74x273 chip("u", ParaMap(parameters));
        EXPECT_EQ(chip.getDelay(), 27U) << parameters;
        chip.setParameters(ParaMap(parameters));
        EXPECT_EQ(chip.getDescription(), "<br>Delay: <i>27</i>") << parameters;
    }
    for (const std::string family : {"AS", "ALS", "F", ""}) {
        EXPECT_EQ(errorOf([&] { SN74x273("u", ParaMap("(family=" + family + ")")); }),
                  "Error: unknown/unsupported device family of SN74x273: '" + family + "'.");
    }
}

TEST(SN74x273, MadeFromADelayKeepsItUntilParametersAreApplied) {
    SN74x273 chip("u", 5U);
    EXPECT_EQ(chip.getDelay(), 5U);
    EXPECT_EQ(chip.getDescription(), "<br>Delay: <i>5</i>");
    chip.applyParameters();
    EXPECT_EQ(chip.getDelay(), 27U);
}

TEST(SN74x273, ForgetsItsBitsByReset) {
    SN74x273 chip("u", 27U);
    PartBench bench(chip, 27);
    for (int i = 0; i < 3; ++i) {
        bench.expectSteps("Q", {{"_CLR=H clk=H D=HLHLHLHL", "UUUUUUUU"},
                                {"clk=L", "UUUUUUUU"},
                                {"clk=H", "HLHLHLHL"},
                                {"clk=L", "HLHLHLHL"}});
        bench.reset();
        for (const Port* port : chip.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

TEST(SN74x273, WithoutDelayHasSeenItsClockAt0BeforeTheFirstEvaluation) {
    SN74x273 chip("u", 0U);
    PartBench bench(chip, 0);
    bench.set("_CLR=H clk=L D=HHHHLLLL", 0);
    bench.set("clk=H", 5);
    chip.evaluate(5);
    EXPECT_EQ(bench.read("Q", 5), "HHHHLLLL");
}

TEST(DM74x574, FloatsAtAHighOutputEnableAndIsUndefinedAtAnUndefinedOneAndElseWritesNothingButAtLow) {
    DM74x574 chip("u", 28U);
    PartBench bench(chip, 28);
    bench.expectSteps("Q", {{"_OE=L clk=L D=HLHLLHLH", "UUUUUUUU"},
                            {"clk=H", "HLHLLHLH"},
                            {"_OE=H", "ZZZZZZZZ"},
                            {"_OE=Z", "(ZZZZZZZZ)"},
                            {"_OE=X", "(ZZZZZZZZ)"},
                            {"_OE=U", "UUUUUUUU"},
                            {"_OE=L", "HLHLLHLH"},
                            {"_OE=Z clk=L D=LLHHUZXL", "(HLHLLHLH)"},
                            {"clk=H", "(HLHLLHLH)"},  // clocked all the same
                            {"_OE=L", "LLHHUZXL"}});
}

TEST(DM74x574, IsClockedWhileItFloatsAndByTheExactPairLThenHOnly) {
    for (const char before : kPinLetters) {
        for (const char now : kPinLetters) {
            DM74x574 chip("u", 28U);
            PartBench bench(chip, 28);
            bench.step(std::string("_OE=H D=HLHLHLHL clk=") + before, "Q");
            bench.step(std::string("clk=") + now, "Q");
            EXPECT_EQ(bench.step("_OE=L D=LLLLLLLL", "Q"), before == 'L' && now == 'H' ? "HLHLHLHL" : "UUUUUUUU")
                << before << now;
        }
    }
}

TEST(DM74x574, HasTheDelayOfItsParametersAndThatOfItsFamilyOnlyWithoutOne) {
    const std::map<std::string, std::uint32_t> delays = {
        {"(family=F)", 13},         {"(family=AS)", 10},          {"(family=ALS)", 18}, {"(family=LS)", 28},
        {"(delay=9,family=LS)", 9}, {"(delay=28,family=AS)", 28}, {"(delay=12)", 12}};
    for (const auto& [parameters, delay] : delays) {
        DM74x574 chip("u", ParaMap(parameters));
        EXPECT_EQ(chip.getDelay(), delay) << parameters;
        EXPECT_EQ(chip.getDescription(), "<br>Delay: <i>" + std::to_string(delay) + "</i>");
        DM74x574 later("u", 99U);
        EXPECT_EQ(later.getDelay(), 99U);
        later.setParameters(ParaMap(parameters));
        EXPECT_EQ(later.getDelay(), delay) << parameters;
        later.setParameters(ParaMap("(colour=red)"));  // neither: nothing sets the delay
        EXPECT_EQ(later.getDelay(), delay) << parameters;
    }
    EXPECT_EQ(DM74x574("u", ParaMap()).getDelay(), 28U);  // as in LS
    EXPECT_EQ(errorOf([] { DM74x574("u", ParaMap("(delay=28,family=XYZ)")); }),
              "Error: unknown device family of SN74x574: 'XYZ'.");
}

TEST(DM74x574, ReadsAllItsInputsOneDelayAgo) {
    DM74x574 chip("u", 6U);
    PartBench(chip, 6).set("_OE=L clk=L D=HHHHHHHH", 0);
    EXPECT_EQ(readingDelay(chip, "clk", "Q"), 6);
    EXPECT_EQ(readingDelay(chip, "_OE", "Q"), 6);
}

TEST(DM74x574, ForgetsItsBitsByReset) {
    DM74x574 chip("u", 28U);
    PartBench bench(chip, 28);
    for (int i = 0; i < 3; ++i) {
        bench.expectSteps("Q", {{"_OE=L clk=H D=HLHLHLHL", "UUUUUUUU"},
                                {"clk=L", "UUUUUUUU"},
                                {"clk=H", "HLHLHLHL"},
                                {"_OE=H", "ZZZZZZZZ"}});
        bench.reset();
        for (const Port* port : chip.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

TEST(TtlRegisters, SeeNoEdgeAtTheStartOfASecondRunWhoseClockIsLaidDownBeforehand) {
    SN74x273 cleared("u", 27U);
    DM74x574 floating("u", 27U);
    for (Component* chip : {static_cast<Component*>(&cleared), static_cast<Component*>(&floating)}) {
        PartBench bench(*chip, 27);
        const std::string enable = chip == &cleared ? "_CLR=H" : "_OE=L";
        for (int run = 0; run < 2; ++run) {
            bench.set(enable + " D=HLHLHLHL clk=H", 0);
            bench.set("clk=L", 40);
            chip->evaluate(27);
            EXPECT_EQ(bench.read("Q", 27), "UUUUUUUU") << chip->getType();
            chip->evaluate(500);
            chip->reset();
        }
    }
}

}  // namespace
}  // namespace tarnsim
