#include "Core/Values/Logic.h"

#include <algorithm>
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

TEST(Logic, OperandsOfDifferentWidthsAreRefused) {
    EXPECT_EQ(errorOf([] { Logic::And(Value("HL"), Value("HLH")); }), "Mismatching value sizes. ");
}

}  // namespace
}  // namespace tarnsim
