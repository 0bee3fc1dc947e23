#include "Core/Components/TtlCounters.h"

#include <stdexcept>

#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

std::string binary(unsigned number, std::size_t width) {
    std::string letters;
    for (std::size_t bit = width; bit-- > 0;) letters += (number >> bit & 1) != 0 ? 'H' : 'L';
    return letters;
}

class UpDownCounter : public testing::Test {
protected:
    /// Loads a number, with the clock low and the count enabled.
    void load(const std::string& number, const std::string& direction) {
        bench.step("_LOAD=L CLK=L _CTEN=L D_U=" + direction + " DCBA=" + number, "QDCBA");
        bench.step("_LOAD=H DCBA=UUUU", "QDCBA");
    }

    DM74LS191 chip{"u", 52U};
    PartBench bench{chip, 52};
};

TEST_F(UpDownCounter, CountsUpThroughAllNumbersAndWraps) {
    load("LLLL", "L");
    for (unsigned i = 1; i <= 17; ++i) {
        const std::string number = binary(i % 16, 4);
        const std::string isMaximum = i == 15 ? "H" : "L";
        EXPECT_EQ(bench.step("CLK=H", "QDCBA MAXMIN _RCO"), number + " " + isMaximum + " H");
        EXPECT_EQ(bench.step("CLK=L", "QDCBA MAXMIN _RCO"), number + " " + isMaximum + (i == 15 ? " L" : " H"));
    }
}

TEST_F(UpDownCounter, CountsDownThroughAllNumbersAndWraps) {
    load("LLHL", "H");
    for (unsigned i = 1; i <= 19; ++i) {
        const std::string number = binary((18 - i) % 16, 4);
        const std::string isMinimum = (18 - i) % 16 == 0 ? "H" : "L";
        EXPECT_EQ(bench.step("CLK=H", "QDCBA MAXMIN _RCO"), number + " " + isMinimum + " H");
        EXPECT_EQ(bench.step("CLK=L", "QDCBA MAXMIN _RCO"),
                  number + " " + isMinimum + (isMinimum == "H" ? " L" : " H"));
    }
}

TEST_F(UpDownCounter, CountsAtTheExactPairLThenHOnlyWhileEnabled) {
    for (const char before : kPinLetters) {
        for (const char now : kPinLetters) {
            for (const char cten : kPinLetters) {
                bench.reset();
                load("LHLH", "L");
                bench.step(std::string("_CTEN=H CLK=") + before, "QDCBA");
                const bool counts = before == 'L' && now == 'H' && cten == 'L';
                EXPECT_EQ(bench.step(std::string("_CTEN=") + cten + " CLK=" + now, "QDCBA"), counts ? "LHHL" : "LHLH")
                    << before << now << cten;
            }
        }
    }
}

TEST_F(UpDownCounter, SeesAnEdgeOfTheVeryNanosecondOnly) {
    load("LHLH", "L");
    const Time edge = bench.now() + 100;
    bench.set("CLK=H", edge);
    chip.evaluate(edge + 51);
    EXPECT_EQ(bench.read("QDCBA", edge + 51), "LHLH");
    chip.evaluate(edge + 52);
    EXPECT_EQ(bench.read("QDCBA", edge + 52), "LHHL");
    chip.evaluate(edge + 53);
    EXPECT_EQ(bench.read("QDCBA", edge + 53), "LHHL");

    bench.set("CLK=L", edge + 200);
    bench.set("CLK=H", edge + 300);
    chip.evaluate(edge + 353);  // the first evaluation after the edge, and yet too late
    EXPECT_EQ(bench.read("QDCBA", edge + 353), "LHHL");
}

TEST_F(UpDownCounter, EvaluatedTwiceAtOneTimeCountsOnce) {
    load("LHLH", "L");
    bench.step("CLK=H", "QDCBA");
    chip.evaluate(bench.now() + 52);
    EXPECT_EQ(bench.read("QDCBA", bench.now() + 52), "LHHL");
}

TEST_F(UpDownCounter, LoadsAtOnceWhateverClockAndEnableDo) {
    load("LLLL", "L");
    bench.expectSteps("QDCBA", {{"_LOAD=L DCBA=HLLH CLK=H", "HLLH"},
                                {"DCBA=LHHL _CTEN=H", "LHHL"},
                                {"_LOAD=H DCBA=LLLL", "LHHL"},
                                {"_LOAD=L DCBA=LUHL", "LUHL"},
                                {"_LOAD=Z DCBA=LLLL", "LUHL"},
                                {"_LOAD=L CLK=U _CTEN=U", "LLLL"},
                                {"_LOAD=U DCBA=HHHH", "LLLL"},
                                {"_LOAD=X", "LLLL"}});
}

TEST_F(UpDownCounter, CountsWhileItsLoadIsAnythingButLow) {
    for (const std::string letter : {"H", "U", "Z", "X"}) {
        load("LHLH", "L");
        bench.expectSteps("QDCBA", {{"CLK=L", "LHLH"}, {"CLK=H _LOAD=" + letter, "LHHL"}});
    }
}

TEST_F(UpDownCounter, IsUndefinedByACountWithoutDirection) {
    for (const std::string direction : {"U", "Z", "X"}) {
        load("LHLH", "L");
        bench.expectSteps("QDCBA", {{"D_U=" + direction, "LHLH"}, {"CLK=H", "UUUU"}, {"CLK=L D_U=L", "UUUU"}});
        // That needs no number, so it goes on without failure.
        bench.expectSteps("QDCBA", {{"D_U=" + direction, "UUUU"}, {"CLK=H", "UUUU"}});
    }
}

TEST_F(UpDownCounter, CannotCountFromAnUndefinedValue) {
    EXPECT_EQ(bench.step("_LOAD=H CLK=L _CTEN=L D_U=L", "QDCBA"), "UUUU");
    EXPECT_EQ(standardExceptionOf<std::domain_error>([&] { bench.step("CLK=H", "QDCBA"); }),
              "Cannot interpret 'U' as a binary digit.");
    for (const std::string direction : {"L", "H"}) {
        load("HLUL", direction);
        EXPECT_EQ(standardExceptionOf<std::domain_error>([&] { bench.step("CLK=H", "QDCBA"); }),
                  "Cannot interpret 'U' as a binary digit.");
    }
}

TEST_F(UpDownCounter, ShowsTheEndOfItsRangeInItsDirection) {
    bench.expectSteps("MAXMIN", {{"_LOAD=L CLK=L _CTEN=L D_U=L DCBA=HHHH", "H"},
                                 {"D_U=H", "L"},
                                 {"D_U=Z", "L"},
                                 {"D_U=X", "L"},
                                 {"D_U=U", "U"},
                                 {"DCBA=LLLL", "U"},
                                 {"D_U=H", "H"},
                                 {"D_U=L", "L"},
                                 {"DCBA=HHHL", "L"},
                                 {"DCBA=HHHU", "U"},
                                 {"D_U=H DCBA=LLLU", "U"},
                                 {"DCBA=LLLH", "L"}});
}

TEST_F(UpDownCounter, RipplesItsCarryWhileClockAndEnableAreLow) {
    load("HHHH", "L");
    for (const char clock : kPinLetters) {
        for (const char cten : kPinLetters) {
            std::string expected = "H";
            if (clock == 'L' && cten == 'L') expected = "L";
            if (clock == 'U' || cten == 'U') expected = "U";
            bench.step(std::string("_CTEN=H CLK=") + clock, "QDCBA");  // so that no edge counts
            EXPECT_EQ(bench.step(std::string("_CTEN=") + cten, "QDCBA MAXMIN _RCO"), "HHHH H " + expected)
                << clock << cten;
        }
    }
    bench.expectSteps("MAXMIN _RCO", {{"_CTEN=L CLK=L D_U=H", "L H"}, {"D_U=U", "U U"}, {"_CTEN=H", "U U"}});
}

TEST_F(UpDownCounter, ForgetsItsCountByReset) {
    for (int i = 0; i < 2; ++i) {
        bench.expectSteps("QDCBA MAXMIN _RCO", {{"_LOAD=H CLK=L _CTEN=L D_U=L", "UUUU U U"},
                                                {"_LOAD=L DCBA=HHHL", "HHHL L H"},
                                                {"_LOAD=H", "HHHL L H"},
                                                {"CLK=H", "HHHH H H"}});
        bench.reset();
        for (const Port* port : chip.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

TEST(DM74LS191, ReadsAllItsInputsOneDelayAgo) {
    DM74LS191 chip("u", ParaMap("(delay=19)"));
    PartBench(chip, 19).set("_LOAD=L DCBA=HHHH CLK=L _CTEN=L", 0);
    EXPECT_EQ(readingDelay(chip, "D_U", "MAXMIN"), 19);
    EXPECT_EQ(chip.getDescription(), "");
}

/// Controls of an SN74AS867.
const std::string kClear = "S1=L S0=L";
const std::string kDown = "S1=L S0=H";
const std::string kLoad = "S1=H S0=L";
const std::string kUp = "S1=H S0=H";

class SynchronousCounter : public testing::Test {
protected:
    /// A step whose reports, to either stream, don't matter.
    std::string quietStep(const std::string& inputs, const std::string& outputs) {
        std::string result;
        outputOf([&] { errorOutputOf([&] { result = bench.step(inputs, outputs); }); });
        return result;
    }
    void load(const std::string& number) {
        quietStep(kLoad + " CLK=L _ENT=L _ENP=L HA=" + number, "QHA");
        quietStep("CLK=L", "QHA");
        quietStep("CLK=H", "QHA");
        quietStep("CLK=L HA=UUUUUUUU", "QHA");
    }

    SN74AS867 chip{"u8", 16U};
    PartBench bench{chip, 16};
};

TEST_F(SynchronousCounter, CountsUpThroughAllNumbersAndWraps) {
    load("LLLLLLLL");
    bench.step(kUp, "QHA");
    for (unsigned i = 1; i <= 258; ++i) {
        const std::string expected = binary(i % 256, 8) + (i == 255 ? " L" : " H");
        ASSERT_EQ(bench.step("CLK=H", "QHA _RCO"), expected);
        ASSERT_EQ(bench.step("CLK=L", "QHA _RCO"), expected);
    }
}

TEST_F(SynchronousCounter, CountsDownThroughAllNumbersAndWraps) {
    load("LLLLLLHL");
    bench.step(kDown, "QHA");
    for (unsigned i = 1; i <= 259; ++i) {
        const std::string expected = binary((258 - i) % 256, 8) + ((258 - i) % 256 == 0 ? " L" : " H");
        ASSERT_EQ(bench.step("CLK=H", "QHA _RCO"), expected);
        ASSERT_EQ(bench.step("CLK=L", "QHA _RCO"), expected);
    }
}

TEST_F(SynchronousCounter, DoesAtARisingEdgeWhatItsModeSaysAndCountsWithBothEnablesOnly) {
    const std::map<std::string, std::string> results = {{kDown, "LLHLLLLH"}, {kUp, "LLHLLLHH"}, {kLoad, "HLHLHLHL"}};
    for (const auto& [mode, counted] : results) {
        for (const std::string enables : {"_ENT=L _ENP=L", "_ENT=L _ENP=H", "_ENT=H _ENP=L", "_ENT=H _ENP=H"}) {
            load("LLHLLLHL");
            bench.step(mode + " HA=HLHLHLHL " + enables, "QHA");
            const bool isDone = mode == kLoad || enables == "_ENT=L _ENP=L";
            EXPECT_EQ(bench.step("CLK=H", "QHA"), isDone ? counted : "LLHLLLHL") << mode << " " << enables;
            EXPECT_EQ(bench.step("CLK=L", "QHA"), isDone ? counted : "LLHLLLHL") << mode << " " << enables;
        }
    }
}

TEST_F(SynchronousCounter, ClearsAtOnceWhateverClockAndEnablesDo) {
    load("HHHHHHHH");
    bench.expectSteps("QHA _RCO", {{kClear, "LLLLLLLL H"}, {kUp, "LLLLLLLL H"}, {"CLK=H", "LLLLLLLH H"}});
    bench.expectSteps("QHA _RCO", {{kClear + " _ENT=H _ENP=H", "LLLLLLLL H"}, {kDown, "LLLLLLLL L"}});
}

TEST_F(SynchronousCounter, DecodesItsCarryFromModeAndCountAndNotFromItsEnables) {
    load("HHHHHHHH");
    bench.expectSteps("_RCO", {{kUp, "L"}, {"_ENT=H _ENP=H", "L"}, {kDown, "H"}, {kLoad, "H"}, {kUp + " CLK=H", "L"}});
    load("LLLLLLLL");
    bench.expectSteps("_RCO", {{kDown, "L"}, {"_ENP=H", "L"}, {kUp, "H"}, {kLoad, "H"}});
}

TEST_F(SynchronousCounter, ReportsAnyClockOrControlThatIsNoLevelAndForgetsItsCount) {
    const struct {
        std::string inputs;
        std::string letters;
    } cases[] = {
        {"S0=U", "clk0=L, clk1=L, s0=U, s1=H, _ent=L, _enp=L"},
        {"S0=Z", "clk0=L, clk1=L, s0=Z, s1=H, _ent=L, _enp=L"},
        {"S1=X", "clk0=L, clk1=L, s0=H, s1=X, _ent=L, _enp=L"},
        {"_ENT=Z", "clk0=L, clk1=L, s0=H, s1=H, _ent=Z, _enp=L"},
        {"_ENP=U", "clk0=L, clk1=L, s0=H, s1=H, _ent=L, _enp=U"},
        {"CLK=X", "clk0=L, clk1=X, s0=H, s1=H, _ent=L, _enp=L"},
        {"CLK=U S0=L S1=L _ENT=H", "clk0=L, clk1=U, s0=L, s1=L, _ent=H, _enp=L"},
    };
    for (const auto& each : cases) {
        bench.reset();
        load("LLLLHHHH");
        EXPECT_EQ(bench.step(kUp, "QHA _RCO"), "LLLLHHHH H");
        std::string result;
        const std::string report = outputOf([&] { result = bench.step(each.inputs, "QHA _RCO"); });
        EXPECT_EQ(result, "UUUUUUUU U") << each.inputs;
        EXPECT_EQ(report, "867: some input is undefined at t=" + std::to_string(bench.now() + 16) +
                              "/it=" + std::to_string(bench.now()) + ": " + each.letters + "\n");
    }
}

TEST_F(SynchronousCounter, ReportsTheClockOfItsLastEvaluationToo) {
    load("LLLLHHHH");
    quietStep("CLK=Z", "QHA");
    const std::string report = outputOf([&] { EXPECT_EQ(bench.step("CLK=H", "QHA _RCO"), "UUUUUUUU U"); });
    EXPECT_EQ(report, "867: some input is undefined at t=" + std::to_string(bench.now() + 16) +
                          "/it=" + std::to_string(bench.now()) + ": clk0=Z, clk1=H, s0=L, s1=H, _ent=L, _enp=L\n");
    EXPECT_EQ(outputOf([&] { EXPECT_EQ(bench.step("CLK=L", "QHA _RCO"), "UUUUUUUU U"); }), "");
}

TEST_F(SynchronousCounter, CountingFromAnUnknownValueIsReportedAndLeavesIt) {
    load("LLUZXLLL");
    for (const std::string& mode : {kUp, kDown}) {
        EXPECT_EQ(bench.step("CLK=L " + mode, "QHA _RCO"), "LLUZXLLL U");
        const std::string word = mode == kUp ? "increment" : "decrement";
        std::string output;
        const std::string report = errorOutputOf(
            [&] { output = outputOf([&] { EXPECT_EQ(bench.step("CLK=H", "QHA _RCO"), "LLUZXLLL U"); }); });
        EXPECT_EQ(report, "***WARNING: Evaluation error at time=" + std::to_string(bench.now() + 16) +
                              ", in component 'u8' (SN74AS867): Trying to " + word +
                              " internal unknown value 'LLUZXLLL'.\n");
        EXPECT_EQ(output, "");
    }
}

TEST_F(SynchronousCounter, LoadsAnUndefinedNumberWithoutAWord) {
    load("LLLLLLLL");
    bench.step("HA=HUHUHUHU " + kLoad, "QHA");
    std::string result;
    EXPECT_EQ(outputOf([&] { EXPECT_EQ(errorOutputOf([&] { result = bench.step("CLK=H", "QHA _RCO"); }), ""); }), "");
    EXPECT_EQ(result, "HUHUHUHU U");
}

TEST_F(SynchronousCounter, ForgetsItsCountByReset) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(quietStep(kUp + " CLK=H _ENT=L _ENP=L", "QHA _RCO"), "UUUUUUUU U");  // what was the clock before?
        EXPECT_EQ(quietStep("CLK=L", "QHA _RCO"), "UUUUUUUU U");
        EXPECT_EQ(quietStep(kClear, "QHA _RCO"), "LLLLLLLL H");
        EXPECT_EQ(quietStep(kUp + " CLK=H", "QHA _RCO"), "LLLLLLLH H");
        bench.reset();
        for (const Port* port : chip.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

TEST(SN74AS867, WithoutDelayHasSeenNothingBeforeTheFirstEvaluationUntilAResetPutsThatTo0) {
    SN74AS867 chip("u", 0U);
    PartBench bench(chip, 0);
    const auto loadFromStart = [&] {
        bench.set(kLoad + " CLK=L _ENT=H _ENP=H HA=HHLLHHLL", 0);
        bench.set("CLK=H", 5);
        outputOf([&] { chip.evaluate(5); });
        return bench.read("QHA", 5);
    };
    EXPECT_EQ(loadFromStart(), "UUUUUUUU");
    chip.reset();
    EXPECT_EQ(loadFromStart(), "HHLLHHLL");
}

TEST(SN74AS867, ReadsAllItsInputsOneDelayAgo) {
    SN74AS867 chip("u", ParaMap("(delay=11)"));
    PartBench(chip, 11).set(kClear + " CLK=L _ENT=L _ENP=L", 0);
    outputOf([&] { chip.evaluate(11); });
    EXPECT_EQ(readingDelay(chip, "S0", "_RCO"), 11);  // from clear to counting down, which ends at 0
    EXPECT_EQ(chip.getDescription(), "");
}

}  // namespace
}  // namespace tarnsim
