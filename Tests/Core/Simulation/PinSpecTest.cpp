#include "Core/Simulation/PinSpec.h"

#include <string>
#include <vector>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Bits = std::vector<std::int32_t>;

TEST(PinSpec, TheEmptyExpressionIsTheIdentityOfAnyWidth) {
    const PinSpec spec("");
    EXPECT_EQ(spec.getExpression(), "");
    EXPECT_EQ(spec.getBits(), Bits());
    EXPECT_EQ(spec.size(), 0U);
    EXPECT_EQ(spec.maxBit(), 0);
    EXPECT_EQ(spec.bitAt(0), 0);
    EXPECT_EQ(spec.bitAt(5), 5);
    EXPECT_TRUE(spec.contains(0));
    EXPECT_TRUE(spec.contains(9));
    EXPECT_FALSE(spec.contains(-1));
    EXPECT_EQ(spec.indexOf(7), 7);
    EXPECT_EQ(spec.indexOf(-1), -1);
}

TEST(PinSpec, TheLastElementOfTheTextIsPositionZero) {
    const struct {
        std::string expression;
        Bits bits;
    } cases[] = {
        {"3:0", {0, 1, 2, 3}},
        {"0:3", {3, 2, 1, 0}},
        {"2:2", {2}},
        {"5", {5}},
        {"0", {0}},
        {"1;0", {0, 1}},
        {"7;3:2", {2, 3, 7}},
        {"7:0", {0, 1, 2, 3, 4, 5, 6, 7}},
        {"0:7", {7, 6, 5, 4, 3, 2, 1, 0}},
        {"3:0;7:4", {4, 5, 6, 7, 0, 1, 2, 3}},
        {"1:2;4:3", {3, 4, 2, 1}},
        {"1;1:0;1", {1, 0, 1, 1}},
        {"10:12", {12, 11, 10}},
        {"2147483647", {2147483647}},
        {"2147483647:2147483646", {2147483646, 2147483647}},
        {"2147483646:2147483647", {2147483647, 2147483646}},
    };
    for (const auto& each : cases) {
        const PinSpec spec(each.expression);
        EXPECT_EQ(spec.getBits(), each.bits) << each.expression;
        EXPECT_EQ(spec.size(), each.bits.size()) << each.expression;
        EXPECT_EQ(spec.getExpression(), each.expression);
    }
}

TEST(PinSpec, BlanksAndSignsAreReadAsAScannerForNumbersReadsThem) {
    EXPECT_EQ(PinSpec(" 3: 0").getBits(), (Bits{0, 1, 2, 3}));
    EXPECT_EQ(PinSpec("\t7; \n2").getBits(), (Bits{2, 7}));
    EXPECT_EQ(PinSpec("+2:+1").getBits(), (Bits{1, 2}));
    EXPECT_EQ(PinSpec("-0").getBits(), (Bits{0}));
    EXPECT_EQ(PinSpec("007").getBits(), (Bits{7}));
}

TEST(PinSpec, CharactersBehindTheLastNumberOfASegmentAreIgnored) {
    EXPECT_EQ(PinSpec("5x").getBits(), (Bits{5}));
    EXPECT_EQ(PinSpec("1 2").getBits(), (Bits{1}));
    EXPECT_EQ(PinSpec("0x10").getBits(), (Bits{0}));
    EXPECT_EQ(PinSpec("3:0 end;7,8").getBits(), (Bits{7, 0, 1, 2, 3}));
    EXPECT_EQ(PinSpec("3:1:0").getBits(), (Bits{1, 2, 3}));
}

TEST(PinSpec, ATrailingSeparatorIsNoFurtherSegment) {
    EXPECT_EQ(PinSpec("1;0;").getBits(), (Bits{0, 1}));
    EXPECT_EQ(PinSpec("1;0;").getExpression(), "1;0;");
}

TEST(PinSpec, TheHighestBitOfATextIsFoundWithoutItsList) {
    EXPECT_EQ(PinSpec::maxBitOf(""), 0);
    EXPECT_EQ(PinSpec::maxBitOf("1;9;3"), 9);
    EXPECT_EQ(PinSpec::maxBitOf("3:0;2"), 3);
    EXPECT_EQ(PinSpec::maxBitOf("0:7;2"), 7);
    EXPECT_EQ(PinSpec::maxBitOf("0:2147483647"), 2147483647);
    EXPECT_EQ(PinSpec::maxBitOf("2147483646:5;0"), 2147483646);
    EXPECT_EQ(errorOf([] { PinSpec::maxBitOf("0:2147483647;x"); }), "Invalid pin spec expression: '0:2147483647;x'.");
}

TEST(PinSpec, AMalformedSegmentIsRefusedWithTheWholeText) {
    for (const std::string expression :
         {"-1",  "a",   "3:",   ":3",   "1;;2", ";",    ";1",     "1;;",    " ", "1; ", "x5",
          "3:a", "a:3", "3:-1", "-3:1", "3 :0", "1x:0", "2:0;3:", "4;-2;1", ":", "- 1", "1;2;z"}) {
        EXPECT_EQ(errorOf([&] { PinSpec spec(expression); }), "Invalid pin spec expression: '" + expression + "'.");
    }
}

TEST(PinSpec, ARangeOfTwoNumbersReadsLikeItsText) {
    for (const auto& [first, last] : {std::pair{3, 0}, {0, 3}, {2, 2}, {12, 8}}) {
        const PinSpec spec(first, last);
        EXPECT_EQ(spec.getExpression(), std::to_string(first) + ":" + std::to_string(last));
        EXPECT_EQ(spec.getBits(), PinSpec(spec.getExpression()).getBits());
    }
    EXPECT_EQ(PinSpec(3, 0).getBits(), (Bits{0, 1, 2, 3}));
    EXPECT_EQ(PinSpec(0, 3).getBits(), (Bits{3, 2, 1, 0}));
}

TEST(PinSpec, ARangeOfNegativeNumbersIsRefusedLikeItsText) {
    EXPECT_EQ(errorOf([] { PinSpec spec(-1, 3); }), "Invalid pin spec expression: '-1:3'.");
    EXPECT_EQ(errorOf([] { PinSpec spec(3, -1); }), "Invalid pin spec expression: '3:-1'.");
}

TEST(PinSpec, TheHighestBitMayStandAnywhere) {
    EXPECT_EQ(PinSpec("1;9;3").maxBit(), 9);
    EXPECT_EQ(PinSpec("0").maxBit(), 0);
    EXPECT_EQ(PinSpec("2:6").maxBit(), 6);
}

TEST(PinSpec, PositionsAndBitsLeadToEachOther) {
    const PinSpec spec("1;9;3");
    EXPECT_EQ(spec.bitAt(0), 3);
    EXPECT_EQ(spec.bitAt(1), 9);
    EXPECT_EQ(spec.bitAt(2), 1);
    EXPECT_EQ(spec.indexOf(3), 0);
    EXPECT_EQ(spec.indexOf(9), 1);
    EXPECT_EQ(spec.indexOf(1), 2);
    EXPECT_TRUE(spec.contains(9));
    EXPECT_FALSE(spec.contains(0));
    EXPECT_FALSE(spec.contains(-1));
}

TEST(PinSpec, ABitThatOccursTwiceIsFoundAtItsFirstPosition) {
    EXPECT_EQ(PinSpec("4;2;4;7").indexOf(4), 1);
}

TEST(PinSpec, ABitThatIsntThereHasNoPosition) {
    const PinSpec spec("1;9;3");
    EXPECT_EQ(errorOf([&] { static_cast<void>(spec.indexOf(4)); }), "Cannot find bit 4 in PinSpec.");
    EXPECT_EQ(errorOf([&] { static_cast<void>(spec.indexOf(-1)); }), "Cannot find bit -1 in PinSpec.");
}

}  // namespace
}  // namespace tarnsim
