#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

/// Reads `board.nlx` of the working directory.
std::string errorOfBoard() {
    return errorOf([] { const CircuitSpec spec("board.nlx"); });
}

Texts unitNames(const CircuitSpec& spec) {
    Texts names;
    for (const UnitLine& line : spec.unitLines) names.insert(names.end(), line.names.begin(), line.names.end());
    return names;
}

TEST(CircuitFile, ThatIsNotThereIsNamedAsGiven) {
    const Workplace here;
    EXPECT_EQ(errorOf([] { const CircuitSpec spec("dir/none.nlx"); }), "Error: File not found: 'dir/none.nlx'.");
    EXPECT_EQ(errorOf([] { const CircuitSpec spec(""); }), "Error: File not found: ''.");
}

TEST(CircuitFile, ThatIsNotThereIsNamedInFullWhateverItsLength) {
    const std::string name(5000, 'x');
    EXPECT_EQ(errorOf([&] { const CircuitSpec spec(name); }), "Error: File not found: '" + name + "'.");
}

TEST(CircuitFile, MayHaveContentsThatAreNotOnTheDisk) {
    const Workplace here;
    here.write("dir/part.nlx", "Unit And b\n");
    const CircuitSpec spec("dir/board.nlx", "Unit And a\nImport \"part.nlx\"\n");
    EXPECT_EQ(unitNames(spec), (Texts{"a", "b"}));
    EXPECT_EQ(spec.getName(), "dir/board.nlx");
    EXPECT_EQ(spec.getFileName(), "dir/board.nlx");
    EXPECT_EQ(spec.getSourceFile(), "dir/board.nlx");
    EXPECT_EQ(errorOf([] { const CircuitSpec bad("x.nlx", "\nUnits\n"); }),
              "Error in x.nlx:2: Illegal keyword: 'Units'.");
    here.write("dir/loop.nlx", "");
    EXPECT_EQ(errorOf([] { const CircuitSpec bad("dir/loop.nlx", "Import \"loop.nlx\"\n"); }),
              "Error in dir/loop.nlx:1: 'dir/loop.nlx' is being read already, it imports itself.");
}

TEST(CircuitFile, ThatIsImportedIsReadAsIfItsLinesStoodThere) {
    const Workplace here;
    here.write("part.nlx", "Unit And b\nCircuit x {\nUnit Or inner\n}\nMetaData k 'v'\n");
    here.write("board.nlx", "Unit And a\nImport \"part.nlx\"\nUnit And c\n");
    const CircuitSpec spec("board.nlx");
    EXPECT_EQ(unitNames(spec), (Texts{"a", "b", "c"}));
    ASSERT_EQ(spec.subSpecs.size(), 1u);
    EXPECT_EQ(unitNames(*spec.subSpecs[0]), Texts{"inner"});
    EXPECT_EQ(spec.metaDataLines.size(), 1u);
    EXPECT_EQ(spec.getFileName(), "board.nlx");
}

TEST(CircuitFile, MayBeImportedWithSingleQuotes) {
    const Workplace here;
    here.write("my part.nlx", "Unit And b\n");
    here.write("board.nlx", "Import 'my part.nlx'\n");
    EXPECT_EQ(unitNames(CircuitSpec("board.nlx")), Texts{"b"});
}

TEST(CircuitFile, OfACircuitIsOneClosedBody) {
    const Workplace here;
    here.write("lib/part.nlx", "Unit And inner\n");
    here.write("board.nlx", "Circuit x \"lib/part.nlx\" ignored\nUnit And outer\n");
    const CircuitSpec spec("board.nlx");
    ASSERT_EQ(spec.subSpecs.size(), 1u);
    EXPECT_EQ(spec.subSpecs[0]->getName(), "x");
    EXPECT_EQ(spec.subSpecs[0]->getFileName(), "lib/part.nlx");
    EXPECT_FALSE(spec.subSpecs[0]->isInline());
    EXPECT_EQ(unitNames(*spec.subSpecs[0]), Texts{"inner"});
    EXPECT_EQ(unitNames(spec), Texts{"outer"});
}

TEST(CircuitFile, OfACircuitIsNamedInTheBodyAsWrittenAndNotAsFound) {
    const Workplace here;
    here.write("dir/part.nlx", "Circuit y {\n}\n");
    here.write("dir/board.nlx", "Circuit x \"part.nlx\"\n");
    const CircuitSpec spec("dir/board.nlx");
    EXPECT_EQ(spec.subSpecs[0]->getFileName(), "part.nlx");
    EXPECT_EQ(spec.subSpecs[0]->subSpecs[0]->getFileName(), "part.nlx");
}

TEST(CircuitFile, IsLookedForInTheDirectoryOfTheFileThatNamesIt) {
    const Workplace here;
    here.write("dir/board.nlx", "Import \"sub/one.nlx\"\nCircuit x \"sub/two.nlx\"\n");
    here.write("dir/sub/one.nlx", "Import \"../three.nlx\"\n");
    here.write("dir/sub/two.nlx", "Import \"four.nlx\"\n");
    here.write("dir/three.nlx", "Unit And three\n");
    here.write("dir/sub/four.nlx", "Unit And four\n");
    const CircuitSpec spec("dir/board.nlx");
    EXPECT_EQ(unitNames(spec), Texts{"three"});
    EXPECT_EQ(unitNames(*spec.subSpecs[0]), Texts{"four"});
}

TEST(CircuitFile, WithAnAbsoluteNameIsStillTakenForARelativeOne) {
    const Workplace here;
    here.write("dir/board.nlx", "Import \"/part.nlx\"\n");
    here.write("dir/part.nlx", "Unit And a\n");
    EXPECT_EQ(unitNames(CircuitSpec("dir/board.nlx")), Texts{"a"});
    here.write("dir/board.nlx", "Import \"/none/none.nlx\"\n");
    EXPECT_EQ(errorOf([] { const CircuitSpec spec("dir/board.nlx"); }), "Error: File not found: 'dir//none/none.nlx'.");
}

TEST(CircuitFile, WithABackslashInItsNameHasNoDirectoryThere) {
    const Workplace here;
    here.write("dir\\board.nlx", "Import \"part.nlx\"\n");
    here.write("part.nlx", "Unit And a\n");
    EXPECT_EQ(unitNames(CircuitSpec("dir\\board.nlx")), Texts{"a"});
}

TEST(CircuitFile, IsLookedForBesideTheFileThenOnTheImportPathsInOrderWithItsLastNameAlone) {
    const Workplace here;
    here.makeDirectory("first");
    here.write("dir/board.nlx", "ImportPath \"first\"\nImportPath \"second\"\nImport \"x/y.nlx\"\n");
    const auto find = [] { return unitNames(CircuitSpec("dir/board.nlx")); };
    EXPECT_EQ(errorOf([&] { find(); }), "Error: File not found: 'dir/x/y.nlx'.");
    here.write("x/y.nlx", "Unit And not_in_the_working_directory\n");
    here.write("second/x/y.nlx", "Unit And not_with_the_directory\n");
    EXPECT_EQ(errorOf([&] { find(); }), "Error: File not found: 'dir/x/y.nlx'.");
    here.write("second/y.nlx", "Unit And in_second\n");
    EXPECT_EQ(find(), Texts{"in_second"});
    here.write("first/y.nlx", "Unit And in_first\n");
    EXPECT_EQ(find(), Texts{"in_first"});
    here.write("dir/x/y.nlx", "Unit And beside\n");
    EXPECT_EQ(find(), Texts{"beside"});
}

TEST(CircuitFile, IsNotHelpedByAnImportPathBelow) {
    const Workplace here;
    here.write("lib/part.nlx", "");
    here.write("board.nlx", "Import \"part.nlx\"\nImportPath \"lib\"\n");
    EXPECT_EQ(errorOfBoard(), "Error: File not found: 'part.nlx'.");
}

TEST(CircuitFile, IsLookedForOnImportPathsOfTheWorkingDirectoryAndNotOfTheFile) {
    const Workplace here;
    here.write("dir/lib/part.nlx", "");
    here.write("dir/board.nlx", "ImportPath \"lib\"\nImport \"part.nlx\"\n");
    EXPECT_EQ(errorOf([] { const CircuitSpec spec("dir/board.nlx"); }), "Error: File not found: 'dir/part.nlx'.");
    here.write("lib/part.nlx", "Unit And a\n");
    EXPECT_EQ(unitNames(CircuitSpec("dir/board.nlx")), Texts{"a"});
}

TEST(CircuitFile, IsFoundOnAnImportPathOfAnyBodyReadBefore) {
    const Workplace here;
    here.write("lib/part.nlx", "Unit And a\n");
    here.write("board.nlx", "Circuit x {\nImportPath \"lib\"\n}\nCircuit y \"part.nlx\"\n");
    const CircuitSpec spec("board.nlx");
    EXPECT_EQ(unitNames(*spec.subSpecs[1]), Texts{"a"});
}

TEST(CircuitFile, FoundOnAnImportPathLooksForItsOwnFilesWhereItWasAskedFor) {
    const Workplace here;
    here.write("lib/part.nlx", "Unit And a\nImport \"more.nlx\"\n");
    here.write("lib/more.nlx", "Unit And from_lib\n");
    here.write("x/more.nlx", "Unit And from_x\n");
    here.write("board.nlx", "ImportPath \"lib\"\nImport \"x/part.nlx\"\n");
    const CircuitSpec spec("board.nlx");
    EXPECT_EQ(unitNames(spec), (Texts{"a", "from_x"}));
    EXPECT_EQ(spec.unitLines[0].fileName, "x/part.nlx");
}

TEST(CircuitFile, WithAnEmptyNameIsWarnedOfAndLookedForAfterTheDirectory) {
    const Workplace here;
    here.write("board.nlx", "\nImport \"\"\n");
    here.write("dir/board.nlx", "Import ''\n");
    std::string error;
    Streams streams = streamsOf([&] { error = errorOfBoard(); });
    EXPECT_EQ(streams.error, "Warning: Empty Import (-Path) or MetaData statement in board.nlx:2");
    EXPECT_EQ(streams.output, "");
    EXPECT_EQ(error, "Error: File not found: ''.");
    streams = streamsOf([&] { error = errorOf([] { const CircuitSpec spec("dir/board.nlx"); }); });
    EXPECT_EQ(streams.error, "Warning: Empty Import (-Path) or MetaData statement in dir/board.nlx:1");
    EXPECT_EQ(error, "Error: File not found: 'dir/'.");
}

TEST(CircuitFile, OfACircuitWithAnEmptyNameIsWarnedOfToo) {
    const Workplace here;
    here.write("board.nlx", "Circuit x \"\"\n");
    std::string error;
    const Streams streams = streamsOf([&] { error = errorOfBoard(); });
    EXPECT_EQ(streams.error, "Warning: Empty Import (-Path) or MetaData statement in board.nlx:1");
    EXPECT_EQ(error, "Error: File not found: ''.");
}

TEST(CircuitFileOfAnInlineBody, StandsAsItsNameIsWrittenIfItIsThere) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit x {\nImport \"part.nlx\"\nCircuit y \"part.nlx\"\n}\n");
    here.write("part.nlx", "Unit And as_written\n");
    here.write("dir/part.nlx", "Unit And beside\n");
    const CircuitSpec spec("dir/board.nlx");
    EXPECT_EQ(unitNames(*spec.subSpecs[0]), Texts{"as_written"});
    EXPECT_EQ(unitNames(*spec.subSpecs[0]->subSpecs[0]), Texts{"as_written"});
}

TEST(CircuitFileOfAnInlineBody, IsElseLookedForBesideTheNearestFileAroundAndThenOnTheImportPaths) {
    const Workplace here;
    here.write("dir/board.nlx",
               "ImportPath \"lib\"\nCircuit x {\nCircuit y {\nImport \"part.nlx\"\nCircuit z \"part.nlx\"\n}\n}\n");
    const auto find = [] {
        const CircuitSpec spec("dir/board.nlx");
        const CircuitSpec& y = *spec.subSpecs[0]->subSpecs[0];
        EXPECT_EQ(unitNames(*y.subSpecs[0]), unitNames(y));
        return unitNames(y);
    };
    EXPECT_EQ(errorOf([&] { find(); }), "Error: File not found: 'part.nlx'.");
    here.write("lib/part.nlx", "Unit And on_path\n");
    EXPECT_EQ(find(), Texts{"on_path"});
    here.write("dir/part.nlx", "Unit And beside\n");
    EXPECT_EQ(find(), Texts{"beside"});
}

TEST(CircuitFileOfAnInlineBody, IsLookedForBesideTheImportedFileThatTheBodyStandsIn) {
    const Workplace here;
    here.write("board.nlx", "Import \"dir/outer.nlx\"\n");
    here.write("dir/outer.nlx", "Circuit x {\nImport \"part.nlx\"\n}\n");
    here.write("dir/part.nlx", "Unit And beside\nCircuit y {\nImport \"more.nlx\"\n}\n");
    here.write("dir/more.nlx", "Unit And more\n");
    const CircuitSpec spec("board.nlx");
    EXPECT_EQ(unitNames(*spec.subSpecs[0]), Texts{"beside"});
    EXPECT_EQ(unitNames(*spec.subSpecs[0]->subSpecs[0]), Texts{"more"});
    EXPECT_TRUE(spec.subSpecs[0]->isInline()) << "after the import as before";
}

TEST(CircuitFile, OfACircuitThatComesRoundToItselfIsReportedWhereItIsNamed) {
    const Workplace here;
    here.write("board.nlx", "Import \"part.nlx\"\n");
    here.write("part.nlx", "\n\nCircuit c \"board.nlx\"\n");
    EXPECT_EQ(errorOfBoard(), "Error in part.nlx:3: 'board.nlx' is being read already, it imports itself.");
}

TEST(CircuitFile, MayCloseABodyOnlyIfOneIsOpenInIt) {
    const Workplace here;
    here.write("part.nlx", "\nUnit And a\n}\n");
    here.write("board.nlx", "Circuit x \"part.nlx\"\n");
    EXPECT_EQ(errorOfBoard(), "Error in part.nlx:3: } without an open Circuit.");
    here.write("board.nlx", "Import \"part.nlx\"\n");
    EXPECT_EQ(errorOfBoard(), "Error in part.nlx:3: } without an open Circuit.");
}

TEST(CircuitFile, OfACircuitThatLeavesABodyOpenIsOpenItself) {
    const Workplace here;
    here.write("part.nlx", "Unit And a\nCircuit y {\nUnit And b\n");
    here.write("board.nlx", "Circuit x \"part.nlx\"\nUnit And c\n}\nUnit And d\n");
    const CircuitSpec spec("board.nlx");
    EXPECT_EQ(unitNames(spec), Texts{"d"});
    EXPECT_EQ(unitNames(*spec.subSpecs.at(0)), (Texts{"a", "c"}));
    EXPECT_EQ(unitNames(*spec.subSpecs.at(0)->subSpecs.at(0)), Texts{"b"});
}

TEST(CircuitFile, MayLeaveABodyOpenForTheStatementsBehindItsImport) {
    const Workplace here;
    here.write("open.nlx", "Circuit x {\nUnit And a\n");
    here.write("board.nlx", "Import \"open.nlx\"\nUnit And b\n}\nUnit And c\n");
    const CircuitSpec spec("board.nlx");
    EXPECT_EQ(unitNames(*spec.subSpecs[0]), (Texts{"a", "b"}));
    EXPECT_EQ(unitNames(spec), Texts{"c"});
}

}  // namespace
}  // namespace tarnsim
