#include "Core/Circuit/CircuitFileWriter.h"

#include <ctime>
#include <sstream>

#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

// The file.

TEST(CircuitFileWriter, ACircuitWithoutContentGivesAnEmptyFile) {
    EXPECT_EQ(savedText(Circuit("board", nullptr)), "");
}

/// Everything in front of the body, for a file written at that time.
std::string headerOf(std::time_t time) {
    char text[64];
    std::strftime(text, sizeof text, "%a %b %e %H:%M:%S %Y", std::localtime(&time));
    return std::string("#\n# File generated at ") + text + "\n#\n\n";
}

TEST(CircuitFileWriter, TheHeaderIsACommentWithThePresentTime) {
    const Workplace here;
    const auto board = circuitFrom("Unit And g\n");
    const std::time_t before = std::time(nullptr);
    CircuitFileWriter(board.get()).save("saved.nlx", true);
    const std::time_t after = std::time(nullptr);
    const std::string saved = readBytes("saved.nlx").value();
    bool isOneOfThem = false;
    for (std::time_t time = before; time <= after; ++time) {
        isOneOfThem = isOneOfThem || saved == headerOf(time) + "Unit And g\n\n";
    }
    EXPECT_TRUE(isOneOfThem) << saved;
    EXPECT_EQ(CircuitFileReader().load("saved.nlx")->countComments(), 1U);
}

TEST(CircuitFileWriter, AStreamReceivesTheSameTextAsAFile) {
    const auto board = circuitFrom("# a\n\nUnit And g h\nPin Input p\n");
    std::ostringstream stream;
    CircuitFileWriter(board.get()).write(stream, false);
    EXPECT_EQ(stream.str(), savedText(*board));
    std::ostringstream withHeader;
    CircuitFileWriter(board.get()).write(withHeader, true);
    EXPECT_TRUE(withHeader.str().starts_with("#\n# File generated at "));
    EXPECT_TRUE(withHeader.str().ends_with("\n#\n\n" + stream.str()));
}

TEST(CircuitFileWriter, AFormerFileIsReplacedAsAWhole) {
    const Workplace here;
    here.write("saved.nlx", std::string(10000, '#'));
    const Circuit board("board", nullptr);
    CircuitFileWriter(&board).save("saved.nlx", false);
    EXPECT_EQ(readBytes("saved.nlx"), "");
}

TEST(CircuitFileWriter, OneWriterSavesAsOftenAsItIsAsked) {
    const Workplace here;
    auto board = circuitFrom("Circuit H {\nUnit And g\n}\nUnit H h\n");
    const CircuitFileWriter writer(board.get());
    writer.save("a.nlx", false);
    writer.save("b.nlx", false);
    EXPECT_EQ(readBytes("a.nlx"), readBytes("b.nlx"));
    board->addComment("later");
    writer.save("b.nlx", false);
    EXPECT_EQ(readBytes("b.nlx").value(), "# later\n\n" + readBytes("a.nlx").value());
}

TEST(CircuitFileWriter, OnlyAFileThatCannotBeOpenedIsRefused) {
    const Workplace here;
    here.makeDirectory("folder");
    const auto board = circuitFrom("Unit And g\n");
    const CircuitFileWriter writer(board.get());
    EXPECT_EQ(errorOf([&] { writer.save("folder", false); }), "Cannot save file 'folder'");
    EXPECT_EQ(errorOf([&] { writer.save("none/saved.nlx", true); }), "Cannot save file 'none/saved.nlx'");
    EXPECT_EQ(errorOf([&] { writer.save("", false); }), "Cannot save file ''");
    EXPECT_EQ(errorOf([&] { writer.save("/dev/full", true); }), "(no Error)");
}

TEST(CircuitFileWriter, TheOrderIsTheGroupsAndNotTheFiles) {
    EXPECT_EQ(savedFrom("Circuit Half {\n"
                        "Pin Input i\n"
                        "Unit Inv g\n"
                        "Net n i g.in\n"
                        "}\n"
                        "Unit Half h\n"
                        "Port Input 4 d\n"
                        "Net n p h.i\n"
                        "Pin Input p\n"
                        "ImportPath \"lib\"\n"
                        "# About the board\n"
                        "\n"
                        "MetaData author \"somebody\"\n"),
              "MetaData author \"somebody\"\n"
              "\n"
              "# About the board\n"
              "\n"
              "ImportPath \"lib\"\n"
              "\n"
              "Circuit Half {\n"
              "   Pin Input i\n"
              "\n"
              "   Unit Inv g\n"
              "\n"
              "   Net n i g.in\n"
              "\n"
              "}\n"
              "\n"
              "Pin Input p\n"
              "\n"
              "Port Input 4 d\n"
              "\n"
              "Unit Half h\n"
              "\n"
              "Net n p h.i\n"
              "\n");
}

// Meta data.

TEST(CircuitFileWriter, MetaDataIsSortedByKeyAndKeepsTheOrderOfItsValues) {
    EXPECT_EQ(savedFrom("MetaData b \"2\"\nMetaData a \"z\"\nMetaData B \"1\"\nMetaData a \"y\"\nMetaData a \"z\"\n"),
              "MetaData B \"1\"\n"
              "MetaData a \"z\"\n"
              "MetaData a \"y\"\n"
              "MetaData a \"z\"\n"
              "MetaData b \"2\"\n"
              "\n");
}

TEST(CircuitFileWriter, MetaDataIsQuotedInPrintableAscii) {
    Circuit board("board", nullptr);
    board.addMetaData("k", "");
    board.addMetaData("k", " it's ~}");
    board.addMetaData("k", R"(a\b"c)");
    board.addMetaData("k", "line\nfeed\ttab\rreturn");
    board.addMetaData("k", std::string("\x00\x01\x1F\x7F", 4));
    board.addMetaData("k", "\x80\xC3\xA9\xFF");
    EXPECT_EQ(savedText(board),
              "MetaData k \"\"\n"
              "MetaData k \" it's ~}\"\n"
              "MetaData k \"a\\\\b\\\"c\"\n"
              "MetaData k \"line\\nfeed\\ttab\\rreturn\"\n"
              "MetaData k \"\\x00\\x01\\x1F\\x7F\"\n"
              "MetaData k \"\\x80\\xC3\\xA9\\xFF\"\n"
              "\n");
}

// Comments.

TEST(CircuitFileWriter, EveryFreeCommentHasABlankLineBehindIt) {
    EXPECT_EQ(savedFrom("# first\n# of two lines\n\n# second\n\nUnit And g\n"),
              "# first\n"
              "# of two lines\n"
              "\n"
              "# second\n"
              "\n"
              "Unit And g\n"
              "\n");
}

TEST(CircuitFileWriter, CommentsAreSplitAtEachLineFeed) {
    Circuit board("board", nullptr);
    board.addComment("one line");
    board.addComment("ended\n");
    board.addComment("\n  in the middle\n\nand behind\n\n");
    board.addComment("");
    EXPECT_EQ(savedText(board),
              "# one line\n"
              "\n"
              "# ended\n"
              "\n"
              "# \n"
              "#   in the middle\n"
              "# \n"
              "# and behind\n"
              "# \n"
              "\n"
              "\n");
}

// Import paths.

TEST(CircuitFileWriter, ImportPathsAreSorted) {
    EXPECT_EQ(savedFrom("ImportPath \"b/c\"\nImportPath \"a b\"\nImportPath \"B\"\nImportPath \"b/c\"\n"),
              "ImportPath \"B\"\n"
              "ImportPath \"a b\"\n"
              "ImportPath \"b/c\"\n"
              "\n");
}

TEST(CircuitFileWriter, ThePresentDirectoryAloneIsNoImportPath) {
    Circuit board("board", nullptr);
    board.addImportPath("./");
    EXPECT_EQ(savedText(board), "");
    board.addImportPath("./lib");
    EXPECT_EQ(savedText(board), "ImportPath \"./lib\"\n\n");
    board.removeImportPath("./");
    EXPECT_EQ(savedText(board), "ImportPath \"./lib\"\n\n");
}

// Declarations.

TEST(CircuitFileWriter, ADeclarationStaysOnlyWithAUnit) {
    EXPECT_EQ(savedFrom("Circuit Unused {\n# gone with it\n\nUnit And g\n}\n"
                        "Circuit Used {\n# kept\n\n}\n"
                        "Circuit UsedNot {\n}\n"
                        "Unit Used u\n"),
              "Circuit Used {\n"
              "   # kept\n"
              "\n"
              "}\n"
              "\n"
              "Unit Used u\n"
              "\n");
    EXPECT_EQ(savedFrom("Circuit Unused {\n}\n"), "") << "not even a blank line";
}

TEST(CircuitFileWriter, DeclarationsKeepTheirOrderAndAreIndented) {
    EXPECT_EQ(savedFrom("Circuit Outer {\n"
                        "MetaData k \"v\"\n"
                        "# free\n"
                        "\n"
                        "Circuit Inner {\n"
                        "# two\n"
                        "# lines\n"
                        "Unit And g\n"
                        "}\n"
                        "Circuit Unused {\n"
                        "}\n"
                        "Unit Inner x\n"
                        "# p\n"
                        "Pin Input p\n"
                        "Port Input 2 q\n"
                        "# n\n"
                        "Net n p x.g.a\n"
                        "}\n"
                        "Circuit A {\n"
                        "}\n"
                        "Unit A a\n"
                        "Unit Outer o\n"),
              "Circuit Outer {\n"
              "   MetaData k \"v\"\n"
              "\n"
              "   # free\n"
              "\n"
              "   Circuit Inner {\n"
              "      # two\n"
              "      # lines\n"
              "      Unit And g\n"
              "\n"
              "   }\n"
              "\n"
              "   # p\n"
              "   Pin Input p\n"
              "\n"
              "   Port Input 2 q\n"
              "\n"
              "   Unit Inner x\n"
              "\n"
              "   # n\n"
              "   Net n p x.g.a\n"
              "\n"
              "}\n"
              "Circuit A {\n"
              "}\n"
              "\n"
              "Unit A a\n"
              "Unit Outer o\n"
              "\n");
}

TEST(CircuitFileWriter, ChipsThatAreCircuitsAreUnitsWithoutDeclaration) {
    EXPECT_EQ(savedFrom("Unit 74LS154 u\nPin Output y\nNet n u.Y3 y\n"),
              "Pin Output y\n"
              "\n"
              "Unit 74LS154 u\n"
              "\n"
              "Net n u.Y3 y\n"
              "\n");
}

TEST(CircuitFileWriter, ACircuitWithAFileOfItsOwnIsNamedAndNotWrittenOut) {
    const Workplace here;
    here.write("dir/parts/h.nlx", "MetaData k \"v\"\nUnit And g\n");
    here.write("dir/board.nlx", "Circuit H \"parts/h.nlx\"\nUnit H h\n");
    const auto board = CircuitFileReader().load("dir/board.nlx");
    EXPECT_EQ(savedText(*board), "Circuit H \"parts/h.nlx\"\n\nUnit H h\n\n");
}

/// What the path of a declaration becomes in the file of a board.
std::string writtenPath(const std::string& boardFile, const std::string& declarationFile) {
    const auto board = circuitFrom("Circuit H {\n}\nUnit H h\n");
    board->setFilePath(boardFile);
    board->getDeclarations()[0]->setFilePath(declarationFile);
    const std::string text = savedText(*board);
    const std::string before = "Circuit H \"";
    const std::string behind = "\"\n\nUnit H h\n\n";
    EXPECT_TRUE(text.starts_with(before) && text.ends_with(behind)) << text;
    return text.substr(before.size(), text.size() - before.size() - behind.size());
}

TEST(CircuitFileWriter, TheDirectoryOfTheFileAroundIsTakenOutOnce) {
    EXPECT_EQ(writtenPath("dir/board.nlx", "dir/h.nlx"), "h.nlx");
    EXPECT_EQ(writtenPath("/home/me/board.nlx", "/home/me/parts/h.nlx"), "parts/h.nlx");
    EXPECT_EQ(writtenPath("dir/board.nlx", "x/dir/y/dir/h.nlx"), "x/y/dir/h.nlx") << "wherever it first occurs";
    EXPECT_EQ(writtenPath("dir/board.nlx", "director/h.nlx"), "director/h.nlx") << "only with its slash";
    EXPECT_EQ(writtenPath("dir/board.nlx", "parts/h.nlx"), "parts/h.nlx");
    EXPECT_EQ(writtenPath("board.nlx", "parts/h.nlx"), "parts/h.nlx") << "no directory, nothing to take out";
    EXPECT_EQ(writtenPath("/board.nlx", "parts/h.nlx"), "parts/h.nlx");
}

TEST(CircuitFileWriter, WithoutACircuitAroundThePathStandsWhole) {
    const auto board = circuitFrom("Circuit H {\n}\nUnit H h\n");
    board->setFilePath("dir/board.nlx");
    Circuit* declaration = board->getDeclarations()[0];
    declaration->setFilePath("dir/h.nlx");
    declaration->setParent(nullptr);
    EXPECT_EQ(savedText(*board), "Circuit H \"dir/h.nlx\"\n\nUnit H h\n\n");
}

// Pins and ports.

TEST(CircuitFileWriter, PinsAreGroupedByDirectionWithTheCommentedOnesInFront) {
    EXPECT_EQ(savedFrom("Pin Inout z\n"
                        "Pin Output y x\n"
                        "# about c\n"
                        "Pin Input c b\n"
                        "# about w\n"
                        "# in two lines\n"
                        "Pin Output w\n"
                        "Pin Input a\n"
                        "# about d\n"
                        "Pin Input d\n"
                        "Pin Inout v # about v\n"),
              "# about c\n"
              "Pin Input c\n"
              "# about d\n"
              "Pin Input d\n"
              "Pin Input b a\n"
              "# about w\n"
              "# in two lines\n"
              "Pin Output w\n"
              "Pin Output y x\n"
              "# about v\n"
              "Pin Inout v\n"
              "Pin Inout z\n"
              "\n");
}

TEST(CircuitFileWriter, ADirectionWithoutPinsHasNoLine) {
    EXPECT_EQ(savedFrom("Pin Inout z\n"), "Pin Inout z\n\n");
    EXPECT_EQ(savedFrom("Pin Output y # about y\n"), "# about y\nPin Output y\n\n");
}

TEST(CircuitFileWriter, PortsOfOneBitAreWrittenAsPins) {
    EXPECT_EQ(savedFrom("Port Input 1 a\nPort Input 2 b\nPin Input c\n# o\nPort Output 1 d\n"),
              "Pin Input a c\n"
              "# o\n"
              "Pin Output d\n"
              "\n"
              "Port Input 2 b\n"
              "\n");
}

TEST(CircuitFileWriter, PortsAreGroupedByDirectionAndWidthWithTheCommentedOnesInFront) {
    EXPECT_EQ(savedFrom("Port Inout 8 z\n"
                        "Port Input 16 f\n"
                        "Port Input 8 e d\n"
                        "# about c\n"
                        "Port Input 16 c b\n"
                        "Port Output 3 y\n"
                        "# about a\n"
                        "Port Input 2 a\n"
                        "Port Input 8 g\n"
                        "# about x\n"
                        "Port Inout 4 x\n"),
              "# about c\n"
              "Port Input 16 c\n"
              "# about a\n"
              "Port Input 2 a\n"
              "Port Input 8 e d g\n"
              "Port Input 16 f b\n"
              "Port Output 3 y\n"
              "# about x\n"
              "Port Inout 4 x\n"
              "Port Inout 8 z\n"
              "\n");
}

TEST(CircuitFileWriter, PortsWithoutAWidthAreNotWritten) {
    Circuit board("board", nullptr);
    board.createPort(0, Direction::Input, "a");
    EXPECT_EQ(savedText(board), "");
}

// Units.

TEST(CircuitFileWriter, UnitsAreGroupedByTypeInTheOrderOfTheTypes) {
    EXPECT_EQ(
        savedFrom("Circuit And2 {\n}\nUnit Or o1\nUnit And a2\nUnit And2 x\nUnit Or o0\nUnit 74LS00 u\nUnit And a1\n"),
        "Circuit And2 {\n"
        "}\n"
        "\n"
        "Unit 74LS00 u\n"
        "Unit And a2 a1\n"
        "Unit And2 x\n"
        "Unit Or o1 o0\n"
        "\n");
}

TEST(CircuitFileWriter, ParametersStandOnlyWhereTheyDifferFromTheDefaults) {
    EXPECT_EQ(savedFrom("Unit And a(delay=9) b(delay=3) c d(delay=03) e() f(note=x,delay=3)\n"),
              "Unit And a(delay=9) b c d(delay=03) e f(note=x)\n\n");
    EXPECT_EQ(savedFrom("Unit Const c(value=7,size=8) d(value=$ff,size=16)\n"),
              "Unit Const c(value=7) d(size=16,value=$ff)\n\n")
        << "sorted by key";
}

TEST(CircuitFileWriter, UnitsWithACommentComeFirst) {
    EXPECT_EQ(savedFrom("Unit And a\n"
                        "# about o\n"
                        "Unit Or o(delay=9) p\n"
                        "# about b\n"
                        "# in two lines\n"
                        "Unit And b(delay=3)\n"
                        "Unit And c\n"),
              "# about o\n"
              "Unit Or o(delay=9)\n"
              "# about b\n"
              "# in two lines\n"
              "Unit And b\n"
              "Unit And a c\n"
              "Unit Or p\n"
              "\n");
    EXPECT_EQ(savedFrom("Unit And a # alone\n"), "# alone\nUnit And a\n\n");
}

TEST(CircuitFileWriter, ArraysFollowTheOtherUnitsOfTheirType) {
    EXPECT_EQ(savedFrom("Unit And z[2] b[3]\nUnit Or o[1]\nUnit And a\n"),
              "Unit And a b[3] z[2]\n"
              "Unit Or o[1]\n"
              "\n");
}

/// A board with gates of these names, also such as no statement gives.
std::string savedGates(const Texts& names) {
    Circuit board("board", nullptr);
    for (const std::string& name : names) board.addComponent("And", "g")->setName(name);
    return savedText(board);
}

TEST(CircuitFileWriter, ElementsOfAnArrayAreWrittenAsOneName) {
    EXPECT_EQ(savedGates({"u[0]", "u[1]", "u[5]"}), "Unit And u[6]\n\n") << "the gap is filled";
    EXPECT_EQ(savedGates({"u[5]", "v[1]", "u[0]"}), "Unit And u[6] v[2]\n\n");
    EXPECT_EQ(savedGates({"u[007]"}), "Unit And u[8]\n\n");
}

TEST(CircuitFileWriter, AnArrayNameEndsWithItsFirstBracket) {
    EXPECT_EQ(savedGates({"u[1]x", "u[2][7]"}), "Unit And u[3]\n\n") << "what follows isn't looked at";
    EXPECT_EQ(savedGates({"[2]"}), "Unit And [3]\n\n");
    EXPECT_EQ(savedGates({"u[]"}), "Unit And u[1]\n\n") << "no digit counts as 0";
    EXPECT_EQ(savedGates({"u", "u[", "u[1", "u[x]", "u[1x]", "u]1[", "u[-1]", "u[[1]"}),
              "Unit And u u[ u[1 u[x] u[1x] u]1[ u[-1] u[[1]\n\n");
}

TEST(CircuitFileWriter, AnArrayOfTwoTypesHasTheTypeOfTheLaterUnit) {
    Circuit board("board", nullptr);
    board.addComponent("And", "g[0]");
    board.addComponent("Or", "g[1]");
    EXPECT_EQ(savedText(board), "Unit Or g[2]\n\n");
    Circuit other("board", nullptr);
    other.addComponent("Or", "g[1]");
    other.addComponent("And", "g[0]");
    EXPECT_EQ(savedText(other), "Unit And g[2]\n\n") << "later in the circuit, not in the array";
}

// Nets.

TEST(CircuitFileWriter, NetsKeepTheirOrderTheirPortsAndTheirComments) {
    EXPECT_EQ(savedFrom("Circuit X {\nUnit Inv g\n}\n"
                        "Unit X x\nUnit And u\nPin Input p\nPin Output q\n"
                        "Net z u.b p\n"
                        "# about n\n"
                        "# in two lines\n"
                        "Net n u.out q\n"
                        "Net a x.g.in u.a\n"),
              "Circuit X {\n"
              "   Unit Inv g\n"
              "\n"
              "}\n"
              "\n"
              "Pin Input p\n"
              "Pin Output q\n"
              "\n"
              "Unit And u\n"
              "Unit X x\n"
              "\n"
              "Net z u.b p\n"
              "# about n\n"
              "# in two lines\n"
              "Net n u.out q\n"
              "Net a x.g.in u.a\n"
              "\n");
}

TEST(CircuitFileWriter, APortThatIsNotInTheCircuitHasNoPath) {
    Circuit board("board", nullptr);
    Pin stranger(Direction::Input, "s");
    board.createNet("n", {board.createPin(Direction::Input, "p"), &stranger});
    EXPECT_EQ(savedText(board), "Pin Input p\n\nNet n p \n\n");
    board.findNet("n")->removePort(&stranger);
}

}  // namespace
}  // namespace tarnsim
