#include "Cli/Tarnfmt/Formatter.h"

#include <stdexcept>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Texts = std::vector<std::string>;

/// As "line: what".
Texts lossesIn(FileKind kind, const std::string& path, const std::string& contents) {
    const NormalForm form = normalFormOf(kind, path, contents);
    EXPECT_EQ(form.readingFailure, "");
    Texts texts;
    for (const Loss& loss : form.losses) texts.push_back(std::to_string(loss.line) + ": " + loss.text);
    return texts;
}

Texts circuitLosses(const std::string& contents) {
    return lossesIn(FileKind::Circuit, "board.nlx", contents);
}

Texts signalLosses(const std::string& contents) {
    return lossesIn(FileKind::Signals, "board.sig", contents);
}

TEST(Formatter, TellsTheKindsApartByTheirEndings) {
    EXPECT_EQ(fileKindOf("a/b.nlx"), FileKind::Circuit);
    EXPECT_EQ(fileKindOf("b.sig"), FileKind::Signals);
    EXPECT_EQ(fileKindOf(".sig"), FileKind::Signals);
    for (const char* path : {"", "nlx", "b.NLX", "b.nlx~", "b.sig.txt", "a.nlx/b"}) EXPECT_FALSE(fileKindOf(path));
}

TEST(Formatter, AnEmptyCircuitHasAnEmptyNormalForm) {
    const NormalForm form = normalFormOf(FileKind::Circuit, "board.nlx", "\n  \n");
    EXPECT_EQ(form.text, "");
    EXPECT_TRUE(form.losses.empty());
}

TEST(Formatter, WritesDeltaTimesWhereTheFileHasThem) {
    EXPECT_EQ(normalFormOf(FileKind::Signals, "b.sig", "time a ==(dT)=> q\n5 L 7 H\n").text,
              "time a ==(dT)=> q \n0005 L     7    H \n");
    EXPECT_EQ(normalFormOf(FileKind::Signals, "b.sig", "time a => q\n5 L H\n").text, "time a => q \n0005 L    H \n");
}

TEST(Formatter, ANormalFormIsItsOwnNormalForm) {
    for (const char* contents :
         {"# free\n\nPin Input a # of a\nPort Inout 8 c b\nUnit And g[3] k(delay=9)\nNet n a g[1].a # joins\n",
          "Circuit Box {\n# in\n\nPin Output q\nUnit Inv i\nNet n q i.out\n}\nMetaData k 'v'\nUnit Box b c\n",
          "# one\n# two\nCircuit A {\nCircuit B {\nPin Input x\n}\nUnit B b\n}\nImportPath \"lib\"\nUnit A a\n"}) {
        const NormalForm form = normalFormOf(FileKind::Circuit, "board.nlx", contents);
        EXPECT_TRUE(form.losses.empty()) << contents;
        const NormalForm again = normalFormOf(FileKind::Circuit, "board.nlx", form.text);
        EXPECT_EQ(again.text, form.text);
        EXPECT_TRUE(again.losses.empty()) << contents;
    }
}

TEST(Formatter, RaisesWhatLoadingRaises) {
    EXPECT_EQ(errorOf([] { normalFormOf(FileKind::Circuit, "b.nlx", "Units And g\n"); }),
              "Error in b.nlx:1: Illegal keyword: 'Units'.");
    EXPECT_EQ(errorOf([] { normalFormOf(FileKind::Signals, "b.sig", "\n"); }),
              "Test vector file ('b.sig') must at least contain a header.\n");
    EXPECT_EQ(standardExceptionOf<std::out_of_range>(
                  [] { normalFormOf(FileKind::Circuit, "b.nlx", "Unit And g(delay=4294967296)\n"); }),
              "stoul");
}

TEST(Formatter, ReadsTheFilesThatACircuitNamesFromTheFoldersOfItsPath) {
    const TemporaryFolder folder;
    folder.write("design/part.nlx", "Pin Input a\n");
    const WorkingDirectory inside(folder.path(""));
    const NormalForm form =
        normalFormOf(FileKind::Circuit, "design/board.nlx", "Circuit Part \"part.nlx\"\nUnit Part p\n");
    EXPECT_EQ(form.text, "Circuit Part \"part.nlx\"\n\nUnit Part p\n\n");
    EXPECT_EQ(form.readingFailure, "");
    EXPECT_TRUE(form.losses.empty());
}

TEST(Formatter, WarnsOnceOfWhatItReadsTwice) {
    const std::string warnings =
        errorOutputOf([] { normalFormOf(FileKind::Circuit, "b.nlx", "Unit Inv i\nNet n i.out\n"); });
    EXPECT_EQ(warnings, "*** WARNING b.nlx:2: Only one port in Net. May indicate missing net name.\n");
}

TEST(Formatter, SaysWhyANormalFormCannotBeReadAgain) {
    const NormalForm form = normalFormOf(FileKind::Circuit, "b.nlx", "Unit And a-b\n");
    EXPECT_EQ(form.readingFailure,
              "Error on line 1, in file b.nlx: Unit takes at least 2 arguments: Unit <type> <name>");
}

TEST(Formatter, RefusesArraysWithWideGaps) {
    EXPECT_EQ(errorOf([] { normalFormOf(FileKind::Circuit, "b.nlx", "Unit And g[4098]()\n"); }),
              "Error: unit 'g[4098]' would become an array of 4099 units.");
    const std::string inside = "Circuit Box {\nUnit And g[999999999]()\n}\nUnit Box b\n";
    EXPECT_EQ(errorOf([&] { normalFormOf(FileKind::Circuit, "b.nlx", inside); }),
              "Error: unit 'g[999999999]' would become an array of 1000000000 units.");
    EXPECT_EQ(normalFormOf(FileKind::Circuit, "b.nlx", "Unit And g[4097]()\n").text, "Unit And g[4098]\n\n");
}

TEST(Formatter, NamesWhatArraysLose) {
    EXPECT_EQ(circuitLosses("# c\n\n# two\nUnit And g[2]\n"), Texts{"4: loses the comment of unit 'g[0]': \"two\""});
    EXPECT_EQ(circuitLosses("Unit And g[0](delay=9) g[1](delay=3)\n"),
              Texts{"1: loses the parameters of unit 'g[0]': \"(delay=9)\""});
    EXPECT_EQ(circuitLosses("Unit And g[2]()\nUnit And g[0]()\n"), Texts{"0: adds unit 'g[1]'"});
    EXPECT_EQ(circuitLosses("Unit And g[0]()\nUnit Or g[1]()\n"),
              Texts{"1: changes the type of unit 'g[0]' from \"And\" to \"Or\""});
    EXPECT_EQ(circuitLosses("Unit And g[1]h\n"),
              (Texts{"1: loses unit 'g[1]h'", "0: adds unit 'g[0]'", "0: adds unit 'g[1]'"}));
    EXPECT_EQ(circuitLosses("Unit And h g[0]\n"), Texts{"1: leaves out 'g[0]', which makes no unit"});
}

TEST(Formatter, NamesUnusedDeclarationsButNotTheirContents) {
    EXPECT_EQ(circuitLosses("\nCircuit Box {\nPin Output q(ztr=off)\n}\n"), Texts{"2: loses circuit 'Box'"});
    EXPECT_EQ(circuitLosses("Circuit A {\nCircuit B {\nPin Input a\n}\n}\nUnit A a\n"),
              Texts{"2: loses circuit 'B' in circuit 'A'"});
}

TEST(Formatter, NamesMetaDataThatNeedsEscapes) {
    EXPECT_EQ(circuitLosses("MetaData k \"plain\"\nMetaData k \"a\\b\"\n"),
              Texts{"2: changes the value of meta data 'k' from \"a\\\\b\" to \"a\\\\\\\\b\""});
    EXPECT_EQ(circuitLosses("MetaData k 'a\"b'\n"),
              Texts{"1: changes the value of meta data 'k' from \"a\\\"b\" to \"a\\\\\""});
    EXPECT_EQ(circuitLosses("MetaData k 'a\tb'\n"),
              Texts{"1: changes the value of meta data 'k' from \"a\\tb\" to \"a\\\\tb\""});
}

TEST(Formatter, NamesPortOptionsButNotThoseThatChangeNothing) {
    EXPECT_EQ(
        circuitLosses("Pin Output q(ztr=off) r(ztr=on)\nPort Output 8 d(ztr=off)\n"),
        (Texts{"1: loses the options of port 'q': \"(ztr=off)\"", "2: loses the options of port 'd': \"(ztr=off)\""}));
}

TEST(Formatter, APortOfOneBitIsAPin) {
    EXPECT_EQ(circuitLosses("Port Input 1 a\nPort Input +08 b\n"), Texts());
}

TEST(Formatter, NamesPortsOfNoBits) {
    EXPECT_EQ(circuitLosses("Pin Input a\nPort Input 0 p\n"), Texts{"2: loses port 'p'"});
}

TEST(Formatter, NamesImportsWithTheirLines) {
    const TemporaryFolder folder;
    folder.write("inc.nlx", "Pin Output q(ztr=off)\n");
    const std::string contents = "Pin Input a\n\nImport 'inc.nlx'\n";
    EXPECT_EQ(lossesIn(FileKind::Circuit, folder.path("board.nlx"), contents),
              (Texts{"3: has the contents of 'inc.nlx' in place of the Import",
                     "0: loses the options of port 'q': \"(ztr=off)\""}));
}

TEST(Formatter, NamesTextThatEveryReaderSkips) {
    EXPECT_EQ(circuitLosses("Circuit B { b {\nPin Input p\n}\nMetaData k 'v' w\nImportPath \"x\" # y\nUnit B b\n"),
              (Texts{"1: leaves out 'b {', which has no effect", "4: leaves out 'w', which has no effect"}));
    EXPECT_EQ(circuitLosses("Circuit B {{\n}\nUnit B b\n"), Texts{"1: leaves out '{', which has no effect"});
    EXPECT_EQ(
        circuitLosses("Unit And g(delay=1,delay=2)\nUnit Or h(delay=4=5)\nUnit Inv i(delay=1)\n"),
        (Texts{"1: leaves out repetitions in 'g(delay=1,delay=2)'", "2: leaves out repetitions in 'h(delay=4=5)'"}));
}

TEST(Formatter, NamesTheCommentBehindTheLastStatement) {
    EXPECT_EQ(circuitLosses("# first\nPin Input a # of a\n  # the\n# end\n"),
              Texts{"3: loses the comment behind the last statement"});
    EXPECT_EQ(circuitLosses("Pin Input a\n# kept\n\n"), Texts());
    EXPECT_EQ(circuitLosses("Pin Input a\n# kept\n\n# lost\n"),
              Texts{"4: loses the comment behind the last statement"});
    EXPECT_EQ(circuitLosses("Pin Input a\n#\n"), Texts());
}

TEST(Formatter, CountsTheLinesBehindABody) {
    EXPECT_EQ(circuitLosses("Circuit B {\n\n\nPin Input p\n}\nUnit B b\nPin Output q(ztr=off)\n"),
              Texts{"7: loses the options of port 'q': \"(ztr=off)\""});
}

TEST(Formatter, NamesWhatBecomesOfImportPaths) {
    EXPECT_EQ(circuitLosses("ImportPath \"a\"\nImportPath \"b\"\nImportPath \"a\"\n"), Texts());
    EXPECT_EQ(circuitLosses("ImportPath \"b\"\nImportPath \"a\"\n"), Texts{"0: changes the order of the import paths"});
    EXPECT_EQ(circuitLosses("ImportPath \"./\"\n"), Texts{"1: loses import path './'"});
    EXPECT_EQ(circuitLosses("ImportPath \"/a\"\n"), (Texts{"1: loses import path '/a'", "0: adds import path 'a'"}));
}

TEST(Formatter, NamesACircuitThatIsFoundElsewhere) {
    const TemporaryFolder folder;
    folder.write("a/part.nlx", "Pin Input p\n");
    folder.write("b/part.nlx", "Pin Input p\n");
    const WorkingDirectory inside(folder.path(""));
    EXPECT_EQ(circuitLosses("ImportPath \"b\"\nCircuit Part \"part.nlx\"\nImportPath \"a\"\nUnit Part p\n"),
              (Texts{"2: changes the file of circuit 'Part' from \"b/part.nlx\" to \"a/part.nlx\"",
                     "0: changes the order of the import paths"}));
}

TEST(Formatter, NamesADeclarationWhoseNameIsCut) {
    EXPECT_EQ(circuitLosses("Circuit XY74 {\nPin Input a\n}\nUnit 74 u\n"),
              (Texts{"1: loses circuit 'XY74'", "0: adds circuit '74'"}));
}

TEST(Formatter, NamesCellsThatReadDifferently) {
    EXPECT_EQ(signalLosses("time a => q\n0 UUUU LZ\n\n5 ZLLLL LXHHHHHHHH\n7 xHHHH XXXX\n"),
              (Texts{"2: changes the cell 2 ('a') of the vector at 0 from \"UUUU\" to \"U\"",
                     "4: changes the cell 2 ('a') of the vector at 5 from \"ZLLLL\" to \"zLLLL\"",
                     "4: changes the cell 4 ('q') of the vector at 5 from \"LXHHHHHHHH\" to \"LxHHHHHHHH\"",
                     "5: changes the cell 4 ('q') of the vector at 7 from \"XXXX\" to \"X\""}));
}

TEST(Formatter, NamesOutputsThatAreReversedBesideADeltaTime) {
    EXPECT_EQ(signalLosses("time a ==(dT)=> ~q\n0 L 5 HL\n"),
              Texts{"2: changes the cell 4 ('q') of the vector at 0 from \"HL\" to \"LH\""});
    EXPECT_EQ(signalLosses("time ~a => ~q\n0 LH ~HL\n"), Texts());
}

TEST(Formatter, NamesCommentsThatChangeTheirPlace) {
    EXPECT_EQ(signalLosses("time a => q\n# slow\nu(delay=9)\n"),
              (Texts{"3: loses the comment of the options of 'u': \"slow\"", "0: adds the file's comment 'slow'"}));
    EXPECT_EQ(signalLosses("time a => q\nb = H # high\n"),
              (Texts{"2: loses the comment of the assignment to 'b': \"high\"", "0: adds the file's comment 'high'"}));
    EXPECT_EQ(signalLosses("b = H\n# table\ntime a => q\n"), Texts());
    EXPECT_EQ(signalLosses("u(x=1)\ntime a => q\n# high\nb = H\n"), Texts());
}

TEST(Formatter, NamesTheCommentBehindTheLastLine) {
    EXPECT_EQ(signalLosses("# file\n\ntime a => q\n0 L L # v\n# one\n\n# two\n"),
              Texts{"5: loses the comment behind the last line"});
    EXPECT_EQ(signalLosses("# file\ntime a => q # file too\n"), Texts());
}

TEST(Formatter, NamesOptionsThatReadDifferently) {
    EXPECT_EQ(signalLosses("time a => q\nu(a=1,b) c\nu(a=1,a=2)\nu(b= )\n"),
              (Texts{"2: leaves out 'c', which has no effect", "3: leaves out repetitions in 'u(a=1,a=2)'",
                     "4: gives the options of 'u' the value 'b' \"true\""}));
}

}  // namespace
}  // namespace tarnsim
