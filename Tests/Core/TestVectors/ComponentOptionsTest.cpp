#include "Core/TestVectors/ComponentOptions.h"

#include "Core/Circuit/Circuit.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(ComponentOptions, ALineNamesTheComponentAndItsOptions) {
    const ComponentOptions options("U5(delay=20, fast)", "why\n");
    EXPECT_EQ(options.name(), "U5");
    EXPECT_EQ(options.option("delay"), "20");
    EXPECT_EQ(options.option("fast"), "true") << "a key alone means true";
    EXPECT_EQ(options.option("slow"), "");
    EXPECT_EQ(options.options().size(), 2U);
    EXPECT_EQ(options.objectId(), "");
    EXPECT_EQ(options.getCommentText(), "why\n");
}

TEST(ComponentOptions, ItemsAreSeparatedByCommasAndTrimmed) {
    const std::vector<std::pair<std::string, std::string>> lines = {
        {"U1()", ""},
        {"U1(a=1)", "a=1"},
        {"U1(a=1) trailing words", "a=1"},
        {"U1(a=1) ) x", "a=1)"},
        {"U1(a=(1))", "a=(1)"},
        {"U1(a=1,a=2)", "a=2"},
        {"U1(a=1,)", "a=1"},
        {"U1( b = x y ,\ta )", "a=true,b=x y"},
        {"U1(b=2,B=1,a=3)", "B=1,a=3,b=2"},
        {"U1(=5)", "=5"},
        {"U1(a=)", "a=true"},
    };
    for (const auto& [line, expected] : lines) EXPECT_EQ(ComponentOptions(line, "").toString(), expected) << line;
}

TEST(ComponentOptions, BothParenthesesMustBeThere) {
    const std::string opening = "Parse error: component options must have an opening parenthesis";
    EXPECT_EQ(errorOf([] { ComponentOptions("", ""); }), opening);
    EXPECT_EQ(errorOf([] { ComponentOptions("U1 a=1)", ""); }), opening);
    EXPECT_EQ(errorOf([] { ComponentOptions("U1(a=1", ""); }),
              "Parse error: component options must have an closing parenthesis");
}

TEST(ComponentOptions, AnItemHasOneEqualSign) {
    EXPECT_EQ(errorOf([] { ComponentOptions("U1(a=1=2)", ""); }), "Too many equal signs in options string: 'a=1=2'");
    EXPECT_EQ(errorOf([] { ComponentOptions("U1(b, a==2)", ""); }), "Too many equal signs in options string: ' a==2'");
}

TEST(ComponentOptions, AnItemInFrontOfACommaIsNotEmpty) {
    EXPECT_EQ(errorOf([] { ComponentOptions("U1(a=1,,b=2)", ""); }), "Empty item in options string: 'a=1,,b=2'");
    EXPECT_EQ(errorOf([] { ComponentOptions("U1(,)", ""); }), "Empty item in options string: ','");
}

TEST(ComponentOptions, ParsingAddsToTheMap) {
    ComponentOptions options("U1(a=1,b=2)", "");
    options.parseOptions("b=3,c");
    EXPECT_EQ(options.toString(), "a=1,b=3,c=true");
    options.parseOptions("");
    EXPECT_EQ(options.toString(), "a=1,b=3,c=true");
}

TEST(ComponentOptions, OptionsAreSetAndRemoved) {
    ComponentOptions options("U1(a=1)", "");
    options.setName("U2");
    options.setOption("b", "2");
    options.setOption("a", "x");
    EXPECT_EQ(options.name(), "U2");
    EXPECT_EQ(options.toString(), "a=x,b=2");
    options.removeOption("a");
    options.removeOption("absent");
    EXPECT_EQ(options.toString(), "b=2");
}

TEST(ComponentOptions, TheNameResolvesToAComponent) {
    Circuit circuit("root", nullptr);
    const Component* gate = circuit.addComponent("And", "g");
    ComponentOptions known("g(delay=1)", "");
    ComponentOptions unknown("h(delay=1)", "");
    known.resolve(circuit);
    unknown.resolve(circuit);
    EXPECT_EQ(known.objectId(), gate->getId());
    EXPECT_EQ(unknown.objectId(), "");
}

}  // namespace
}  // namespace tarnsim
