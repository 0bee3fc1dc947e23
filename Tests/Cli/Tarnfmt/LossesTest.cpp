#include "Cli/Tarnfmt/Losses.h"

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

std::vector<std::string> textsOf(const std::vector<Loss>& losses) {
    std::vector<std::string> texts;
    for (const Loss& loss : losses) texts.push_back(std::to_string(loss.line) + ": " + loss.text);
    return texts;
}

using Texts = std::vector<std::string>;

TEST(Losses, EqualFactsLoseNothingInAnyOrder) {
    const Facts before = {{"unit 'a'", {{"type", "And"}}}, {"unit 'b'", {{"type", "Or"}}}};
    const Facts after = {{"unit 'b'", {{"type", "Or"}}}, {"unit 'a'", {{"type", "And"}}}};
    EXPECT_EQ(textsOf(lossesBetween(before, after, {})), Texts());
}

TEST(Losses, SaysWhatIsLostAddedAndChanged) {
    SourceLines lines;
    lines.add("port 'p'", 3);
    lines.add("unit 'u'", 8);
    const Facts before = {{"port 'p'", {}}, {"unit 'u'", {{"type", "And"}, {"comment", "one\ntwo\n"}, {"text", ""}}}};
    const Facts after = {{"unit 'u'", {{"type", "Or"}, {"comment", ""}, {"text", "new"}}}, {"unit 'v'", {}}};
    EXPECT_EQ(textsOf(lossesBetween(before, after, lines)),
              (Texts{"3: loses port 'p'", "8: loses the comment of unit 'u': \"one\\ntwo\"",
                     "8: gives unit 'u' the text \"new\"", "8: changes the type of unit 'u' from \"And\" to \"Or\"",
                     "0: adds unit 'v'"}));
}

TEST(Losses, AnAspectThatIsNotThereIsLost) {
    EXPECT_EQ(textsOf(lossesBetween({{"line", {{"value", "1"}}}}, {{"line", {}}}, {})),
              Texts{"0: loses the value of line: \"1\""});
}

TEST(Losses, TheLineOfAFactGoesBeforeTheListOfLines) {
    SourceLines lines;
    lines.add("vector", 3);
    EXPECT_EQ(textsOf(lossesBetween({{"vector", {}, 7}}, {}, lines)), Texts{"7: loses vector"});
}

TEST(Losses, FactsOfOneSubjectArePairedInTheirOrder) {
    SourceLines lines;
    lines.add("meta data 'k'", 4);
    lines.add("meta data 'k'", 6);
    const Facts before = {{"meta data 'k'", {{"value", "1"}}}, {"meta data 'k'", {{"value", "2"}}}};
    const Facts changed = {{"meta data 'k'", {{"value", "1"}}}, {"meta data 'k'", {{"value", "3"}}}};
    EXPECT_EQ(textsOf(lossesBetween(before, changed, lines)),
              Texts{"6: changes the value of meta data 'k' from \"2\" to \"3\""});
    EXPECT_EQ(textsOf(lossesBetween(before, {changed[0]}, lines)), Texts{"6: loses meta data 'k'"});
    EXPECT_EQ(textsOf(lossesBetween({changed[0]}, before, lines)), Texts{"0: adds meta data 'k'"});
}

TEST(SourceLines, HasNoLineForWhatItDoesNotKnow) {
    SourceLines lines;
    lines.add("a", 2);
    EXPECT_EQ(lines.lineOf("a", 0), 2);
    EXPECT_EQ(lines.lineOf("a", 1), 0);
    EXPECT_EQ(lines.lineOf("b", 0), 0);
}

}  // namespace
}  // namespace tarnsim
