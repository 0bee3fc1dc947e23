#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

// Which file and line a message or record names. The counter belongs to a body, not to a file.

struct Place {
    std::string name;
    std::string file;
    int line;

    bool operator==(const Place&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Place& place) {
    return stream << place.name << " at " << place.file << ":" << place.line;
}

std::vector<Place> placesOf(const CircuitSpec& spec) {
    std::vector<Place> places;
    for (const UnitLine& line : spec.unitLines) places.push_back({line.names.front(), line.fileName, line.lineNumber});
    return places;
}

std::string errorOfBoard() {
    return errorOf([] { const CircuitSpec spec("board.nlx"); });
}

TEST(LineNumber, CountsEveryLineOfTheFile) {
    const auto spec = specFrom("# comment\n\n  \nUnit And a\r\nUnit And b");
    EXPECT_EQ(placesOf(*spec), (std::vector<Place>{{"a", "board.nlx", 4}, {"b", "board.nlx", 5}}));
}

TEST(LineNumber, GoesOnInABodyInBracesAndStandsStillAround) {
    const auto spec = specFrom(
        "Unit And a\n"
        "Circuit x {\n"
        "\n"
        "Unit And b\n"
        "Circuit y {\n"
        "Unit And c\n"
        "}\n"
        "Unit And d\n"
        "}\n"
        "Unit And e\n");
    EXPECT_EQ(placesOf(*spec), (std::vector<Place>{{"a", "board.nlx", 1}, {"e", "board.nlx", 3}}));
    const CircuitSpec& x = *spec->subSpecs[0];
    EXPECT_EQ(placesOf(x), (std::vector<Place>{{"b", "board.nlx", 4}, {"d", "board.nlx", 6}}));
    EXPECT_EQ(placesOf(*x.subSpecs[0]), (std::vector<Place>{{"c", "board.nlx", 6}}));
}

TEST(LineNumber, StartsAnewInAnImportedFileAndResumesBehindIt) {
    const Workplace here;
    here.write("part.nlx", "\nUnit And b\n");
    here.write("board.nlx", "Unit And a\nImport \"part.nlx\"\nUnit And c\n");
    EXPECT_EQ(placesOf(CircuitSpec("board.nlx")),
              (std::vector<Place>{{"a", "board.nlx", 1}, {"b", "part.nlx", 2}, {"c", "board.nlx", 3}}));
}

TEST(LineNumber, OfARecordInABodyOfAnotherFileStandsBesideTheNameOfTheTopFile) {
    const Workplace here;
    here.write("part.nlx", "\n\nUnit And a\n");
    here.write("board.nlx", "Circuit x \"part.nlx\"\nCircuit y {\nImport \"part.nlx\"\nUnit And b\n}\nUnit And c\n");
    const CircuitSpec spec("board.nlx");
    EXPECT_EQ(placesOf(*spec.subSpecs[0]), (std::vector<Place>{{"a", "board.nlx", 3}}));
    EXPECT_EQ(placesOf(*spec.subSpecs[1]), (std::vector<Place>{{"a", "board.nlx", 3}, {"b", "board.nlx", 4}}));
    EXPECT_EQ(placesOf(spec), (std::vector<Place>{{"c", "board.nlx", 3}}));
}

TEST(LineNumber, OfARecordInABodyInsideAnImportedFileStandsBesideThatFile) {
    const Workplace here;
    here.write("part.nlx", "\nCircuit x {\nUnit And a\n}\n");
    here.write("board.nlx", "Import \"part.nlx\"\n");
    EXPECT_EQ(placesOf(*CircuitSpec("board.nlx").subSpecs[0]), (std::vector<Place>{{"a", "part.nlx", 3}}));
}

TEST(LineNumber, OfABadKeywordStandsStillInsideABody) {
    EXPECT_EQ(errorOfReading("\nCircuit x {\n\n\nNonsense\n}\n"), "Error in board.nlx:2: Illegal keyword: 'Nonsense'.");
    EXPECT_EQ(errorOfReading("\nCircuit x {\n\n}\nNonsense\n"), "Error in board.nlx:3: Illegal keyword: 'Nonsense'.");
}

TEST(LineNumber, OfABadKeywordInAnImportedFileIsTheOneThere) {
    const Workplace here;
    here.write("part.nlx", "\n\nNonsense\n");
    here.write("board.nlx", "Import \"part.nlx\"\n");
    EXPECT_EQ(errorOfBoard(), "Error in part.nlx:3: Illegal keyword: 'Nonsense'.");
}

TEST(LineNumber, OfABadKeywordInTheFileOfACircuitIsTheOneOfTheCircuitStatement) {
    const Workplace here;
    here.write("part.nlx", "\n\nNonsense\n");
    here.write("board.nlx", "\nCircuit x \"part.nlx\"\n");
    EXPECT_EQ(errorOfBoard(), "Error in board.nlx:2: Illegal keyword: 'Nonsense'.");
}

TEST(LineNumber, AndFileOfCircuitAndBraceAreThoseOfTheBodyTheyStandIn) {
    const Workplace here;
    here.write("board.nlx", "\nCircuit x \"part.nlx\"\n");
    const auto errorWithPart = [&](const std::string& text) {
        here.write("part.nlx", text);
        return errorOfBoard();
    };
    EXPECT_EQ(errorWithPart("\n\nCircuit y\n"), "Circuit syntax error in part.nlx:3.");
    EXPECT_EQ(errorWithPart("Circuit y z\n"), "Unrecognized field following Circuit keyword in part.nlx:1: 'z'");
    EXPECT_EQ(errorWithPart("Circuit y {\n\n} a b\n"), "Unrecognized field following } keyword in part.nlx:3: 'b'");
}

TEST(LineNumber, OfAMissingQuoteStandsBesideTheNameOfTheTopFile) {
    const Workplace here;
    here.write("part.nlx", "\n\nMetaData k v\n");
    here.write("board.nlx", "Circuit x \"part.nlx\"\n");
    EXPECT_EQ(errorOfBoard(), "Error in board.nlx:3: Syntax error in path specification statement.");
}

TEST(LineNumber, OfAWarningAboutAOnePortNetIsTheOneOfItsRecord) {
    const Streams streams = streamsOf([] { specFrom("Circuit x {\n\nNet n p\n}\n"); });
    EXPECT_EQ(streams.error, "*** WARNING board.nlx:3: Only one port in Net. May indicate missing net name.\n");
    EXPECT_EQ(streams.output, "");
}

}  // namespace
}  // namespace tarnsim
