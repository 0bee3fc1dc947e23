#include "Core/Values/Logic.h"

#include <string>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

constexpr std::string_view kLetters = "LHUZX";

using Operation = Value (*)(const Value&, const Value&);
using Rule = char (*)(char, char);

bool either(char a, char b, char letter) {
    return a == letter || b == letter;
}

bool differ(char a, char b) {
    return either(a, b, 'H') && either(a, b, 'L');
}

/// Runs all 25 pairs at once, as the bits of two wide values.
void expectRule(Operation operation, Rule rule) {
    std::string a;
    std::string b;
    std::string expected;
    for (const char x : kLetters) {
        for (const char y : kLetters) {
            a += x;
            b += y;
            expected += rule(x, y);
        }
    }
    EXPECT_EQ(std::string(operation(Value(a), Value(b)).c_str()), expected) << a << "\n" << b;
}

TEST(Logic, AndIsLowWithAnyLowElseUndefinedWithAnyUndefinedElseHigh) {
    expectRule(Logic::And, [](char a, char b) { return either(a, b, 'L') ? 'L' : either(a, b, 'U') ? 'U' : 'H'; });
}

TEST(Logic, NandIsHighWithAnyLowElseUndefinedWithAnyUndefinedElseLow) {
    expectRule(Logic::Nand, [](char a, char b) { return either(a, b, 'L') ? 'H' : either(a, b, 'U') ? 'U' : 'L'; });
}

TEST(Logic, OrIsHighWithAnyHighElseUndefinedWithAnyUndefinedElseLow) {
    expectRule(Logic::Or, [](char a, char b) { return either(a, b, 'H') ? 'H' : either(a, b, 'U') ? 'U' : 'L'; });
}

TEST(Logic, NorIsLowWithAnyHighElseUndefinedWithAnyUndefinedElseHigh) {
    expectRule(Logic::Nor, [](char a, char b) { return either(a, b, 'H') ? 'L' : either(a, b, 'U') ? 'U' : 'H'; });
}

TEST(Logic, XorIsHighForHighWithLowElseUndefinedWithAnyUndefinedElseLow) {
    expectRule(Logic::Xor, [](char a, char b) { return differ(a, b) ? 'H' : either(a, b, 'U') ? 'U' : 'L'; });
}

TEST(Logic, XnorIsLowForHighWithLowElseUndefinedWithAnyUndefinedElseHigh) {
    expectRule(Logic::Xnor, [](char a, char b) { return differ(a, b) ? 'L' : either(a, b, 'U') ? 'U' : 'H'; });
}

TEST(Logic, NotIsHighForLowUndefinedForUndefinedElseLow) {
    EXPECT_STREQ(Logic::Not(Value("LHUZX")).c_str(), "HLULL");
}

TEST(Logic, TakesAFloatingBitForWhateverDoesNotDecide) {
    EXPECT_STREQ(Logic::And(Value("H"), Value("Z")).c_str(), "H");
    EXPECT_STREQ(Logic::Or(Value("L"), Value("Z")).c_str(), "L");
    EXPECT_STREQ(Logic::Not(Value("Z")).c_str(), "L");
}

TEST(Logic, RefusesOperandsOfDifferentWidths) {
    for (const Operation operation : {Logic::And, Logic::Nand, Logic::Or, Logic::Nor, Logic::Xor, Logic::Xnor}) {
        EXPECT_EQ(errorOf([&] { operation(Value("HL"), Value("HLH")); }), "Mismatching value sizes. ");
        EXPECT_EQ(errorOf([&] { operation(Value("H"), Value()); }), "Mismatching value sizes. ");
    }
}

TEST(Logic, TakesAnyWidthAndKeepsIt) {
    for (const std::uint32_t width : {0U, 1U, 8U, 9U, 255U}) {
        const Value low(std::string(width, 'L'));
        const std::string high(width, 'H');
        EXPECT_EQ(Logic::Nand(low, low).letters(), high);
        EXPECT_EQ(Logic::Nor(low, low).letters(), high);
        EXPECT_EQ(Logic::Not(low).letters(), high);
    }
}

TEST(Logic, LeavesItsOperandsAlone) {
    const Value a("HHHHHHHHHH");
    const Value b("LLLLLLLLLL");
    Logic::And(a, b);
    EXPECT_EQ(a.letters(), "HHHHHHHHHH");
    EXPECT_EQ(b.letters(), "LLLLLLLLLL");
}

}  // namespace
}  // namespace tarnsim
