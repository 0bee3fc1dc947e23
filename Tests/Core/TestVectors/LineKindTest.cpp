#include "Core/TestVectors/LineKind.h"

#include <array>
#include <map>
#include <regex>
#include <string>

#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

constexpr std::array kKinds = {LineKind::ComponentOptions, LineKind::PortAssignment, LineKind::Header,
                               LineKind::TestVector, LineKind::Empty};

/// The kinds as they are written down: the first expression that matches the whole line.
LineKind matchedKindOf(const std::string& line) {
    static const std::array kExpressions = {std::regex("[a-zA-Z0-9_][a-zA-Z0-9_]*[(].*[)].*"),
                                            std::regex(R"([a-zA-Z0-9_][a-zA-Z0-9_.]*\s*=\s*[a-zA-Z0-9_]+.*)"),
                                            std::regex("time.*"), std::regex("[0-9]+ .*"), std::regex("^$")};
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
        if (std::regex_match(line, kExpressions[i])) return kKinds[i];
    }
    return LineKind::NoMatch;
}

struct Case {
    const char* line;
    LineKind kind;
};

void expectKinds(std::initializer_list<Case> cases) {
    for (const auto& [line, kind] : cases) EXPECT_EQ(lineKindOf(line), kind) << line;
}

TEST(LineKind, IsOptionsForANameWithSomethingInParentheses) {
    expectKinds({{"u(delay=5)", LineKind::ComponentOptions},
                 {"u()", LineKind::ComponentOptions},
                 {"0_a(b) and more", LineKind::ComponentOptions},
                 {"u((", LineKind::NoMatch},
                 {"u)(", LineKind::NoMatch},
                 {"u (a)", LineKind::NoMatch},
                 {"a.b(c)", LineKind::NoMatch},
                 {"(a)", LineKind::NoMatch}});
}

TEST(LineKind, IsAnAssignmentForANameAndAWord) {
    expectKinds({{"a=H", LineKind::PortAssignment},
                 {"u.a \t=\v$", LineKind::NoMatch},
                 {"u.a \t=\v0 and more", LineKind::PortAssignment},
                 {"a.=_", LineKind::PortAssignment},
                 {".a=H", LineKind::NoMatch},
                 {"a=", LineKind::NoMatch},
                 {"a==b", LineKind::NoMatch},
                 {"a == b", LineKind::NoMatch},
                 {"a b=c", LineKind::NoMatch}});
}

TEST(LineKind, IsAHeaderForWhateverBeginsWithTime) {
    expectKinds({{"time", LineKind::Header},
                 {"time a b => c", LineKind::Header},
                 {"timer", LineKind::Header},
                 {"time==(dT)=>", LineKind::Header},
                 {"Time a", LineKind::NoMatch},
                 {" time", LineKind::NoMatch}});
}

TEST(LineKind, IsAVectorForDigitsAndABlank) {
    expectKinds({{"100 H L", LineKind::TestVector},
                 {"0 ", LineKind::TestVector},
                 {"100", LineKind::NoMatch},
                 {"100\tH", LineKind::NoMatch},
                 {"-1 H", LineKind::NoMatch},
                 {"1a H", LineKind::NoMatch}});
}

TEST(LineKind, IsTriedInTheOrderOfTheKinds) {
    expectKinds({{"time(a)", LineKind::ComponentOptions},
                 {"time=1", LineKind::PortAssignment},
                 {"time = 1", LineKind::PortAssignment},
                 {"time a(b)", LineKind::Header},
                 {"time ==(dT)=> a", LineKind::Header},
                 {"1(a) 2", LineKind::ComponentOptions},
                 {"1 =2", LineKind::PortAssignment},
                 {"1 = ", LineKind::TestVector},
                 {"a(=b", LineKind::NoMatch}});
}

TEST(LineKind, IsEmptyForNothingAtAll) {
    expectKinds({{"", LineKind::Empty}, {" ", LineKind::NoMatch}, {"\n", LineKind::NoMatch}});
}

TEST(LineKind, DoesNotReachOverACarriageReturn) {
    expectKinds({{"time\ra", LineKind::NoMatch},
                 {"u(a\r)", LineKind::NoMatch},
                 {"u(a)\r", LineKind::NoMatch},
                 {"a=b\r", LineKind::NoMatch},
                 {"a\r=\rb", LineKind::PortAssignment},
                 {"1 \r", LineKind::NoMatch}});
}

TEST(LineKind, AgreesWithItsExpressionsForEveryCharacter) {
    for (int c = 0; c < 256; ++c) {
        const std::string letter(1, static_cast<char>(c));
        for (const std::string& line :
             {letter, letter + "(a)", "a" + letter + "(b)", "a(b" + letter + ")", "a(b)" + letter, letter + "=b",
              "a" + letter + "=b", "a=" + letter, "a=b" + letter, "a=" + letter + "b", "time" + letter, "1" + letter,
              "1" + letter + " ", "1 " + letter}) {
            EXPECT_EQ(lineKindOf(line), matchedKindOf(line)) << c << " in '" << line << "'";
        }
    }
}

TEST(LineKind, AgreesWithItsExpressionsOnRandomLines) {
    RandomTexts lines({"time", "time", "a",  "0",  "17", "_",  "(",   ")",  ".",  "=",  "=", " ",
                       " ",    "\t",   "\r", "\n", "#",  "=>", "(a)", "u1", "1 ", "a=", "H"},
                      7);
    std::map<LineKind, int> seen;
    for (int i = 0; i < 30000; ++i) {
        const std::string line = lines.next();
        const LineKind expected = matchedKindOf(line);
        ASSERT_EQ(lineKindOf(line), expected) << "'" << line << "'";
        ++seen[expected];
    }
    for (const LineKind kind : kKinds) EXPECT_GT(seen[kind], 200) << static_cast<int>(kind);
    EXPECT_GT(seen[LineKind::NoMatch], 200);
}

TEST(LineKind, WalksLinesOfMegabytes) {
    const std::string letters(kMegabytes, 'a');
    const std::string blanks(kMegabytes, ' ');
    const std::string digits(kMegabytes, '7');
    EXPECT_EQ(lineKindOf(letters), LineKind::NoMatch);
    EXPECT_EQ(lineKindOf(letters + "(" + letters + ")" + letters), LineKind::ComponentOptions);
    EXPECT_EQ(lineKindOf(letters + std::string(kMegabytes, '(')), LineKind::NoMatch);
    EXPECT_EQ(lineKindOf(letters + blanks + "=" + blanks + letters), LineKind::PortAssignment);
    EXPECT_EQ(lineKindOf(letters + blanks + "=" + blanks), LineKind::NoMatch);
    EXPECT_EQ(lineKindOf("time" + blanks), LineKind::Header);
    EXPECT_EQ(lineKindOf(digits + blanks), LineKind::TestVector);
    EXPECT_EQ(lineKindOf(digits), LineKind::NoMatch);
}

}  // namespace
}  // namespace tarnsim
