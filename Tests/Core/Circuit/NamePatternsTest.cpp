#include "Core/Circuit/NamePatterns.h"

#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// The two groups of a match; nothing if there is none.
using Groups = std::vector<std::string>;

Groups instanceGroups(std::string_view text) {
    const auto match = matchInstanceText(text);
    return match ? Groups{std::string(match->name), std::string(match->list)} : Groups{};
}

Groups portGroups(std::string_view text) {
    const auto match = matchPortText(text);
    return match ? Groups{std::string(match->name), std::string(match->list)} : Groups{};
}

Groups arrayGroups(std::string_view text) {
    const auto match = matchArrayName(text);
    return match ? Groups{std::string(match->prefix), std::string(match->count)} : Groups{};
}

Groups groupsOf(const std::string& text, const std::regex& expression) {
    std::smatch match;
    return std::regex_match(text, match, expression) ? Groups{match[1], match[2]} : Groups{};
}

/// Compares a matcher with its expression over random texts, many of which match and many of which don't.
void expectSameGroups(Groups (*matcher)(std::string_view), const char* expression, std::vector<std::string> pieces) {
    const std::regex compiled(expression);
    RandomTexts texts(std::move(pieces), 5);
    std::size_t matched = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::string text = texts.next();
        const Groups expected = groupsOf(text, compiled);
        ASSERT_EQ(matcher(text), expected) << "'" << text << "'";
        matched += expected.empty() ? 0 : 1;
    }
    EXPECT_GT(matched, 500U);
    EXPECT_LT(matched, 19000U);
}

/// Compares a matcher with its expression for every character within a name, and within a list.
void expectSameCharacters(Groups (*matcher)(std::string_view), const char* expression) {
    const std::regex compiled(expression);
    for (int c = 0; c < 256; ++c) {
        const std::string letter(1, static_cast<char>(c));
        for (const std::string& text :
             {letter, "a" + letter, "a(" + letter + ")", "a(b" + letter + "c)", letter + "[1]", "a[" + letter + "]",
              "a(b)" + letter, "a[1]" + letter, letter + "a(b)"}) {
            EXPECT_EQ(matcher(text), groupsOf(text, compiled)) << c << " in '" << text << "'";
        }
    }
}

constexpr const char* kInstanceExpression = R"(([a-zA-Z0-9\[\]_]+)([(][$a-zA-Z0-9_=.+-/#%,:;]*[)])?)";
constexpr const char* kPortExpression = R"(([a-zA-Z0-9=<>\[\]_]+)([(][a-zA-Z0-9=.+-/#%,:]+[)])?)";
constexpr const char* kArrayExpression = R"(([a-zA-Z0-9_(),]+)\[([0-9]+)\])";

TEST(InstanceText, IsANameWithOrWithoutAList) {
    EXPECT_EQ(instanceGroups("alu"), (Groups{"alu", ""}));
    EXPECT_EQ(instanceGroups("alu(delay=10,value=$ff)"), (Groups{"alu", "(delay=10,value=$ff)"}));
    EXPECT_EQ(instanceGroups("alu()"), (Groups{"alu", "()"}));
    EXPECT_EQ(instanceGroups("u[3]"), (Groups{"u[3]", ""}));
    EXPECT_EQ(instanceGroups("u[3](file=../a-b/c.bin)"), (Groups{"u[3]", "(file=../a-b/c.bin)"}));
}

TEST(InstanceText, IsNoListWithAnArrayBehindIt) {
    EXPECT_EQ(instanceGroups("u(delay=5)[3]"), Groups{});
}

TEST(InstanceText, IsRefusedWhenOneCharacterDoesNotFit) {
    for (const char* text : {"", "(a)", "a b", "a(b", "a(b c)", "a((b))", "a(b)c", "a(\"b\")", "a-b", "$a", "a(b)(c)"})
        EXPECT_EQ(instanceGroups(text), Groups{}) << text;
}

TEST(InstanceText, MatchesAsItsExpressionDoes) {
    expectSameCharacters(instanceGroups, kInstanceExpression);
    expectSameGroups(instanceGroups, kInstanceExpression,
                     {"a",  "Z", "0", "_", "[",  "]",  "()", "(",  "(", ")",  ")",  "$",  "=",  ".",
                      "+",  ",", "-", "/", "#",  "%",  ":",  ";",  "a", "a(", "a(", "b)", "b)", "a=1",
                      "u1", "x", "y", "7", "ab", "c2", "D(", "e)", "f", "g",  " ",  "\n"});
}

TEST(PortText, IsANameWithOrWithoutAList) {
    EXPECT_EQ(portGroups("clk"), (Groups{"clk", ""}));
    EXPECT_EQ(portGroups("Q(ztr=off)"), (Groups{"Q", "(ztr=off)"}));
    EXPECT_EQ(portGroups("A<B"), (Groups{"A<B", ""}));
    EXPECT_EQ(portGroups("A=B[0](a=1)"), (Groups{"A=B[0]", "(a=1)"}));
}

TEST(PortText, HasNoEmptyListAndNoUnderscoreInAList) {
    EXPECT_EQ(portGroups("Q()"), Groups{});
    EXPECT_EQ(portGroups("Q(a_b=1)"), Groups{});
    EXPECT_EQ(portGroups("Q(a=$1)"), Groups{});
    EXPECT_EQ(portGroups("Q(a=1;b)"), Groups{});
}

TEST(PortText, MatchesAsItsExpressionDoes) {
    expectSameCharacters(portGroups, kPortExpression);
    expectSameGroups(portGroups, kPortExpression,
                     {"a",  "Z",   "0",  "_", "[", "]", "()", "(",  "(",  ")",  ")", "=",  "<",  ">",
                      ".",  "+",   ",",  "-", "/", "#", "%",  ":",  ";",  "$",  "a", "a(", "a(", "b)",
                      "b)", "a=1", "u1", "x", "y", "7", "ab", "c2", "D(", "e)", "f", "g",  " ",  "\n"});
}

TEST(ArrayName, IsAPrefixWithACount) {
    EXPECT_EQ(arrayGroups("u[3]"), (Groups{"u", "3"}));
    EXPECT_EQ(arrayGroups("u[0]"), (Groups{"u", "0"}));
    EXPECT_EQ(arrayGroups("u(a,b)[007]"), (Groups{"u(a,b)", "007"}));
    EXPECT_EQ(arrayGroups("u[99999999999999999999]"), (Groups{"u", "99999999999999999999"}));
}

TEST(ArrayName, HasNoValueInFrontOfItsBracket) {
    EXPECT_EQ(arrayGroups("u(delay=5)[3]"), Groups{});
}

TEST(ArrayName, IsRefusedWhenOneCharacterDoesNotFit) {
    for (const char* text :
         {"", "u", "[3]", "u[]", "u[3", "u3]", "u[a]", "u[-1]", "u[3] ", "u[1][2]", "u[[1]]", "u.[1]"})
        EXPECT_EQ(arrayGroups(text), Groups{}) << text;
}

TEST(ArrayName, MatchesAsItsExpressionDoes) {
    expectSameCharacters(arrayGroups, kArrayExpression);
    expectSameGroups(arrayGroups, kArrayExpression,
                     {"a",    "a",   "b",   "Z0", "12",   "_",  "(", "a,b)", "[1]", "[1]", "[1]",
                      "[23]", "[0]", "[7]", "a[", "u[9]", "7]", "[", "]",    "=",   "\n"});
}

TEST(NamePatterns, WalkTextsOfMegabytes) {
    const std::string name(kMegabytes, 'a');
    EXPECT_EQ(instanceGroups(name + "(" + name + ")"), (Groups{name, "(" + name + ")"}));
    EXPECT_EQ(instanceGroups(name + "(" + name), Groups{});
    EXPECT_EQ(portGroups(name + "(" + name + ")"), (Groups{name, "(" + name + ")"}));
    EXPECT_EQ(portGroups(name + "(" + name), Groups{});
    EXPECT_EQ(arrayGroups(name + "[1]"), (Groups{name, "1"}));
    EXPECT_EQ(arrayGroups("a[" + std::string(kMegabytes, '1') + "]"), (Groups{"a", std::string(kMegabytes, '1')}));
    EXPECT_EQ(arrayGroups(std::string(kMegabytes, '[')), Groups{});
}

}  // namespace
}  // namespace tarnsim
