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

TEST_F(UpDownCounter, HasNoCountInASecondRunThatDoesNotLoadIt) {
    bench.expectSteps("QDCBA", {{"_LOAD=L CLK=L _CTEN=L D_U=L DCBA=HLLH", "HLLH"}});
    bench.reset();
    bench.set("_LOAD=H CLK=L _CTEN=L D_U=L", 0);
    chip.evaluate(500);  // later than the load of the first run
    EXPECT_EQ(bench.read("QDCBA", 500), "UUUU");
}

TEST_F(UpDownCounter, GoesBackToItsFormerCountIfItsInputsTurnOutNotToChangeIt) {
    load("LHLH", "L");
    bench.expectSteps("QDCBA", {{"_LOAD=L DCBA=HHHH", "HHHH"}});
    bench.set("_LOAD=H", bench.now());
    chip.evaluate(bench.now() + 52);
    EXPECT_EQ(bench.read("QDCBA", bench.now() + 52), "LHLH");
}

TEST(DM74LS191, ReadsAllItsInputsOneDelayAgo) {
    DM74LS191 chip("u", ParaMap("(delay=19)"));
    PartBench(chip, 19).set("_LOAD=L DCBA=HHHH CLK=L _CTEN=L", 0);
    EXPECT_EQ(readingDelay(chip, "D_U", "MAXMIN"), 19);
    EXPECT_EQ(chip.getDescription(), "");
}

}  // namespace
}  // namespace tarnsim
