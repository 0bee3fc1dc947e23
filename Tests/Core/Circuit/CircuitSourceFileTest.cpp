#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

/// The source files of a circuit's declarations, in their order.
Texts sourcesOf(const std::vector<Circuit*>& circuits) {
    Texts sources;
    for (const Circuit* circuit : circuits) sources.push_back(circuit->getSourceFile());
    return sources;
}

Texts sourcesOf(const std::vector<std::unique_ptr<CircuitSpec>>& bodies) {
    Texts sources;
    for (const auto& body : bodies) sources.push_back(body->getSourceFile());
    return sources;
}

const Circuit& unit(const Circuit& circuit, const std::string& name) {
    return dynamic_cast<const Circuit&>(*circuit.findComponent(name));
}

/// Reads `dir/board.nlx`, and expects that the circuit built from it says of its declarations what its bodies say.
void expectSourcesOfBoard(const Texts& sources) {
    const CircuitSpec spec("dir/board.nlx");
    EXPECT_EQ(spec.getSourceFile(), "dir/board.nlx");
    EXPECT_EQ(sourcesOf(spec.subSpecs), sources);
    const auto board = CircuitFileReader().load("dir/board.nlx");
    EXPECT_EQ(board->getSourceFile(), "dir/board.nlx");
    EXPECT_EQ(sourcesOf(board->getDeclarations()), sources);
}

TEST(SourceFile, OfATopCircuitIsItsPathAsGiven) {
    const Workplace here;
    here.write("dir/board.nlx", "");
    for (const std::string path : {"dir/board.nlx", "./dir/board.nlx", "dir//board.nlx", "dir/../dir/board.nlx"}) {
        EXPECT_EQ(CircuitSpec(path).getSourceFile(), path);
        const auto board = CircuitFileReader().load(path);
        EXPECT_EQ(board->getSourceFile(), path);
        EXPECT_EQ(board->getFilePath(), path);
    }
}

TEST(SourceFile, IsEmptyForACircuitThatWasNotRead) {
    Circuit board("board", nullptr);
    EXPECT_EQ(board.getSourceFile(), "");
    board.setFilePath("dir/board.nlx");
    EXPECT_EQ(board.getSourceFile(), "") << "a file path says where it is to go";
    EXPECT_EQ(Circuit(board).getSourceFile(), "");
}

TEST(SourceFile, StaysWhenTheFilePathBecomesAnother) {
    const Workplace here;
    here.write("dir/board.nlx", "");
    const auto board = CircuitFileReader().load("dir/board.nlx");
    board->setFilePath("elsewhere/board.nlx");
    EXPECT_EQ(board->getSourceFile(), "dir/board.nlx");
    board->clearFilePath();
    EXPECT_EQ(board->getSourceFile(), "dir/board.nlx");
}

TEST(SourceFile, OfABodyInBracesIsTheFileThatItStandsInAtAnyDepth) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X {\nCircuit Y {\nCircuit Z {\n}\n}\n}\nCircuit W {\n}\n");
    expectSourcesOfBoard({"dir/board.nlx", "dir/board.nlx"});
    const auto board = CircuitFileReader().load("dir/board.nlx");
    const Circuit& y = *board->getDeclarations()[0]->getDeclarations()[0];
    EXPECT_EQ(y.getSourceFile(), "dir/board.nlx");
    EXPECT_EQ(sourcesOf(y.getDeclarations()), Texts{"dir/board.nlx"});
}

TEST(SourceFile, OfACircuitWithAFileIsWhereThatWasFoundAndItsFilePathIsAsWritten) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X \"lib/x.nlx\"\nCircuit Y \"../y.nlx\"\n");
    here.write("dir/lib/x.nlx", "Circuit Z \"z.nlx\"\nCircuit V {\n}\n");
    here.write("dir/lib/z.nlx", "");
    here.write("y.nlx", "");
    expectSourcesOfBoard({"dir/lib/x.nlx", "dir/../y.nlx"});
    const auto board = CircuitFileReader().load("dir/board.nlx");
    const Circuit& x = *board->getDeclarations()[0];
    EXPECT_EQ(x.getFilePath(), "lib/x.nlx");
    EXPECT_EQ(sourcesOf(x.getDeclarations()), (Texts{"dir/lib/z.nlx", "dir/lib/x.nlx"}));
}

TEST(SourceFile, OfACircuitFoundOnAnImportPathIsThere) {
    const Workplace here;
    here.write("dir/board.nlx", "ImportPath \"lib\"\nCircuit X \"parts/x.nlx\"\n");
    here.write("lib/x.nlx", "Circuit Y {\n}\n");
    expectSourcesOfBoard({"lib/x.nlx"});
    const auto board = CircuitFileReader().load("dir/board.nlx");
    EXPECT_EQ(board->getDeclarations()[0]->getFilePath(), "parts/x.nlx");
    EXPECT_EQ(sourcesOf(board->getDeclarations()[0]->getDeclarations()), Texts{"lib/x.nlx"});
}

TEST(SourceFile, OfABodyInAnImportedFileIsThatFile) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit A {\n}\nImport \"lib/parts.nlx\"\nCircuit B {\n}\n");
    here.write("dir/lib/parts.nlx", "Circuit X {\nCircuit Y {\n}\n}\nImport \"more.nlx\"\nCircuit V {\n}\n");
    here.write("dir/lib/more.nlx", "Circuit Z {\n}\n");
    expectSourcesOfBoard(
        {"dir/board.nlx", "dir/lib/parts.nlx", "dir/lib/more.nlx", "dir/lib/parts.nlx", "dir/board.nlx"});
    const auto board = CircuitFileReader().load("dir/board.nlx");
    EXPECT_EQ(sourcesOf(board->getDeclarations()[1]->getDeclarations()), Texts{"dir/lib/parts.nlx"});
}

TEST(SourceFile, OfABodyImportedFromAnImportPathIsThere) {
    const Workplace here;
    here.write("dir/board.nlx", "ImportPath \"lib\"\nImport \"parts.nlx\"\n");
    here.write("lib/parts.nlx", "Circuit X {\n}\n");
    expectSourcesOfBoard({"lib/parts.nlx"});
}

TEST(SourceFile, OfABodyThatImportsStaysTheFileThatItStandsIn) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X {\nImport \"lib/inner.nlx\"\nCircuit B {\n}\n}\nImport \"lib/inner.nlx\"\n");
    here.write("dir/lib/inner.nlx", "Circuit A {\n}\n");
    expectSourcesOfBoard({"dir/board.nlx", "dir/lib/inner.nlx"});
    const auto board = CircuitFileReader().load("dir/board.nlx");
    EXPECT_EQ(sourcesOf(board->getDeclarations()[0]->getDeclarations()), (Texts{"dir/lib/inner.nlx", "dir/board.nlx"}));
}

TEST(SourceFile, OfACircuitWithAFileThatImportsStaysItsOwn) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X \"x.nlx\"\n");
    here.write("dir/x.nlx", "Import \"lib/inner.nlx\"\n");
    here.write("dir/lib/inner.nlx", "");
    expectSourcesOfBoard({"dir/x.nlx"});
}

TEST(SourceFile, OfAUnitIsThatOfItsDeclaration) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X \"lib/x.nlx\"\nCircuit Y {\nUnit And a\n}\nUnit X x1\nUnit Y y1\n");
    here.write("dir/lib/x.nlx", "Circuit Z {\n}\nUnit Z z1\n");
    const auto board = CircuitFileReader().load("dir/board.nlx");
    EXPECT_EQ(unit(*board, "x1").getSourceFile(), "dir/lib/x.nlx");
    EXPECT_EQ(unit(*board, "y1").getSourceFile(), "dir/board.nlx");
    EXPECT_EQ(unit(unit(*board, "x1"), "z1").getSourceFile(), "dir/lib/x.nlx");
}

TEST(SourceFile, OfACopyIsThatOfTheCircuitAtAllLevels) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X \"lib/x.nlx\"\nUnit X x1\n");
    here.write("dir/lib/x.nlx", "");
    const auto board = CircuitFileReader().load("dir/board.nlx");
    const Circuit copy(*board);
    EXPECT_EQ(copy.getSourceFile(), "dir/board.nlx");
    EXPECT_EQ(sourcesOf(copy.getDeclarations()), Texts{"dir/lib/x.nlx"});
    EXPECT_EQ(unit(copy, "x1").getSourceFile(), "dir/lib/x.nlx");
    EXPECT_EQ(board->instantiate("X", "x2")->getSourceFile(), "dir/lib/x.nlx");
}

TEST(SourceFile, IsAsSeenFromTheWorkingDirectoryOfTheReading) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X \"x.nlx\"\n");
    here.write("dir/x.nlx", "");
    const std::string top = std::filesystem::current_path().string();
    const auto board = CircuitFileReader().load(top + "/dir/board.nlx");
    EXPECT_EQ(board->getSourceFile(), top + "/dir/board.nlx");
    EXPECT_EQ(sourcesOf(board->getDeclarations()), Texts{top + "/dir/x.nlx"});
    const WorkingDirectory inside("dir");
    EXPECT_EQ(CircuitFileReader().load("board.nlx")->getSourceFile(), "board.nlx");
    EXPECT_EQ(sourcesOf(CircuitFileReader().load("board.nlx")->getDeclarations()), Texts{"x.nlx"});
}

}  // namespace
}  // namespace tarnsim
