#include "Core/Components/TtlCounters.h"

#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

std::string binary(unsigned number, std::size_t width) {
    std::string letters;
    for (std::size_t bit = width; bit-- > 0;) letters += (number >> bit & 1) != 0 ? 'H' : 'L';
    return letters;
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

TEST_F(SynchronousCounter, HasNoCountInASecondRunThatDoesNotClearOrLoadIt) {
    load("LLLLHHHH");
    bench.reset();
    quietStep(kUp + " CLK=L _ENT=L _ENP=L", "QHA");  // the clock before is unknown
    for (int i = 0; i < 5; ++i) EXPECT_EQ(bench.step("", "QHA _RCO"), "UUUUUUUU U");
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
