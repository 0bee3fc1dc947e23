// What a circuit file doesn't keep of a circuit that is saved and loaded again.

#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

TEST(SavingLoses, ParametersOfArrayUnits) {
    const auto again = savedAndLoaded(*circuitFrom("Unit And g[0](delay=9)\n"), "Unit And g[1]\n\n");
    EXPECT_EQ(dynamic_cast<SingleDelayComponent&>(*again->findComponent("g[0]")).getDelay(), 3U);
}

TEST(SavingLoses, CommentsOfArrayUnits) {
    const auto again = savedAndLoaded(*circuitFrom("# about g\nUnit And g[2]\n"), "Unit And g[2]\n\n");
    EXPECT_TRUE(again->findComponent("g[0]")->hasNoComment());
}

TEST(SavingLoses, GapsInArrays) {
    const auto board = circuitFrom("Unit And g[3]\n");
    board->removeComponent(board->findComponent("g[0]"));
    EXPECT_EQ(board->countComponents(), 2U);
    EXPECT_EQ(savedAndLoaded(*board, "Unit And g[3]\n\n")->countComponents(), 3U);
}

TEST(SavingLoses, DifferentTypesInOneArray) {
    const auto again = savedAndLoaded(*circuitFrom("Unit And g[0]()\nUnit Or g[1]()\n"), "Unit Or g[2]\n\n");
    EXPECT_EQ(again->findComponent("g[0]")->getType(), "Or");
}

TEST(SavingLoses, NumbersOfArraysWhoseNameIsNoArrayToTheReader) {
    // Such a unit is one unit with brackets in its name, and becomes another one with each file.
    EXPECT_EQ(savedFrom("Unit And [3]\n"), "Unit And [4]\n\n");
    EXPECT_EQ(savedFrom("Unit And [4]\n"), "Unit And [5]\n\n");
    EXPECT_EQ(savedFrom("Circuit H {\n}\nUnit H a-b[3]\n"), "Circuit H {\n}\n\nUnit H a-b[4]\n\n");
    EXPECT_EQ(savedFrom("Circuit H {\n}\nUnit H h(x=1)[3]\n"), "Circuit H {\n}\n\nUnit H h(x=1)[4]\n\n");
    EXPECT_EQ(circuitFrom(savedFrom("Unit And g[2]h\n"))->countComponents(), 3U) << "written as g[3]";
}

TEST(SavingLoses, UnusedDeclarations) {
    const auto again =
        savedAndLoaded(*circuitFrom("Circuit H {\n# about H\n\nUnit And g\n}\nUnit And g\n"), "Unit And g\n\n");
    EXPECT_TRUE(again->getDeclarations().empty());
}

TEST(SavingLoses, MetaDataThatNeedsEscapes) {
    const auto saved = [](const std::string& text) {
        const Workplace here;
        here.write("board.nlx", text);
        CircuitFileWriter(CircuitFileReader().load("board.nlx").get()).save("board.nlx", false);
        return CircuitFileReader().load("board.nlx")->getMetaDataFirst("k");
    };
    EXPECT_EQ(saved("MetaData k 'a\"b'\n"), "a\\") << "the reader takes the first quote for the last";
    EXPECT_EQ(saved("MetaData k \"a\\b\"\n"), "a\\\\b");
    EXPECT_EQ(saved("MetaData k \"a\tb\"\n"), "a\\tb");
    EXPECT_EQ(saved("MetaData k \"\xC3\xA9\"\n"), "\\xC3\\xA9");
    EXPECT_EQ(saved("MetaData k \"it's\"\n"), "it's") << "this one needs none";
}

TEST(SavingLoses, PortOptions) {
    const auto board = circuitFrom("Pin Output a(ztr=off) b\nPort Output 4 c(ztr=off)\n");
    EXPECT_FALSE(board->findPort("a")->getZtr());
    const auto again = savedAndLoaded(*board, "Pin Output a b\n\nPort Output 4 c\n\n");
    EXPECT_TRUE(again->findPort("a")->getZtr());
    EXPECT_TRUE(again->findPort("c")->getZtr());
}

TEST(SavingLoses, Imports) {
    const Workplace here;
    here.write("gates.nlx", "Pin Input p\nUnit Inv g\nNet n p g.in\n");
    here.write("board.nlx", "Pin Input q\nImport \"gates.nlx\"\nUnit Inv h\nNet m q h.in\n");
    const auto board = CircuitFileReader().load("board.nlx");
    savedAndLoaded(*board,
                   "Pin Input q p\n"
                   "\n"
                   "Unit Inv g h\n"
                   "\n"
                   "Net n p g.in\n"
                   "Net m q h.in\n"
                   "\n");
}

constexpr const char* kBoard =
    "Circuit Half {\n"
    "   Unit Inv g\n"
    "\n"
    "}\n"
    "\n"
    "Unit Half a b\n"
    "\n";

TEST(SavingLoses, WhatWasChangedInAUnitAndNotInItsDeclaration) {
    const auto board = circuitFrom(kBoard);
    auto& unit = dynamic_cast<Circuit&>(*board->findComponent("a"));
    unit.addComponent("And", "added");
    unit.addComment("of a alone");
    savedAndLoaded(*board, kBoard);
}

TEST(SavingLoses, ContentsOfCircuitsWithAFileOfTheirOwn) {
    const Workplace here;
    here.write("half.nlx", "Pin Input i\n");
    here.write("board.nlx", "Circuit Half \"half.nlx\"\nUnit Half h\n");
    const auto board = CircuitFileReader().load("board.nlx");
    board->getDeclarations()[0]->createPin(Direction::Input, "added");
    CircuitFileWriter(board.get()).save("board.nlx", false);
    EXPECT_EQ(CircuitFileReader().load("board.nlx")->findPort("h.added"), nullptr);
}

TEST(SavingLoses, PortsWithoutAWidth) {
    const auto again = savedAndLoaded(*circuitFrom("Port Input 0 a\nPin Input b\n"), "Pin Input b\n\n");
    EXPECT_EQ(again->findPort("a"), nullptr);
}

TEST(SavingLoses, NetsOverANetInsideAUnitAndItsPort) {
    // The net inside and the one outside are one net, with the unit's port on both sides of it after a while.
    const std::string half =
        "Circuit X {\n"
        "   Pin Input i\n"
        "\n"
        "   Unit Inv g\n"
        "\n"
        "   Net inner i g.in\n"
        "\n"
        "}\n"
        "\n"
        "Pin Input p\n"
        "\n"
        "Unit X x\n"
        "\n";
    const std::string once = savedFrom(half + "Net n x.g.in p\n");
    EXPECT_EQ(once, half + "Net n x.i x.g.in p\n\n");
    const std::string twice = savedFrom(once);
    EXPECT_EQ(twice, half + "Net n x.i x.g.in x.i p\n\n");
    // Lines inside a declaration don't count for those behind it.
    EXPECT_EQ(errorOfLoading(twice), "Error in board.nlx:7: Repeated port: 'x.i'.");
}

TEST(SavingLoses, UnitsAndPortsWhoseNameTheReaderRefused) {
    EXPECT_EQ(savedFrom("Unit And a-b\n"), "Unit And \n\n") << "it has no name at all";
    EXPECT_EQ(savedFrom("Pin Input a-b\n"), "Pin Input \n\n");
    EXPECT_EQ(savedFrom("Pin Output a a(ztr=off)\n"), "Pin Output a a\n\n") << "two pins of one name";
}

TEST(SavingLoses, ImportPathsThatAreAbsoluteOrBelowTheFilesFolder) {
    EXPECT_EQ(savedFrom("ImportPath \"/lib\"\n"), "ImportPath \"lib\"\n\n");
    const Workplace here;
    here.write("dir/board.nlx", "ImportPath \"dir/lib\"\nImportPath \"dir\"\n");
    EXPECT_EQ(savedText(*CircuitFileReader().load("dir/board.nlx")), "ImportPath \"lib\"\n\n");
}

TEST(SavingLoses, TheOrderOfImportPaths) {
    savedAndLoaded(*circuitFrom("ImportPath \"second\"\nImportPath \"first\"\n"),
                   "ImportPath \"first\"\nImportPath \"second\"\n\n");
}

}  // namespace
}  // namespace tarnsim
