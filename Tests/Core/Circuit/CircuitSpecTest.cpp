#include "Core/Circuit/CircuitSpec.h"

#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

struct ReadingCase {
    std::string text;
    std::string message;
};

TEST(CircuitSpec, OfAnEmptyFileIsEmptyAndNamedAfterTheFile) {
    const auto spec = specFrom("");
    EXPECT_EQ(spec->getName(), "board.nlx");
    EXPECT_EQ(spec->getFileName(), "board.nlx");
    EXPECT_FALSE(spec->isInline());
    EXPECT_EQ(spec->countUnits(), 0u);
    EXPECT_EQ(spec->countNets(), 0u);
    EXPECT_TRUE(spec->portLines.empty());
    EXPECT_TRUE(spec->pinLines.empty());
    EXPECT_TRUE(spec->subSpecs.empty());
    EXPECT_TRUE(spec->metaDataLines.empty());
    EXPECT_TRUE(spec->importPaths.empty());
    EXPECT_TRUE(spec->freeComments.empty());
    EXPECT_FALSE(spec->hasPendingComment());
}

TEST(CircuitSpec, KeepsEachKindOfStatementInTheOrderOfTheFile) {
    const auto spec = specFrom(
        "Net n1 p q\n"
        "Unit And b a[2]\n"
        "Pin Input p\n"
        "Port Output 4 d\n"
        "MetaData k \"v w\"\n"
        "Unit Or c\n"
        "Net n2 r s\n"
        "ImportPath \"lib\"\n"
        "Port Input 8 e f\n"
        "Pin Output q r\n"
        "MetaData k 'x'\n"
        "ImportPath 'aux lib'\n");
    ASSERT_EQ(spec->unitLines.size(), 2u);
    EXPECT_EQ(spec->unitLines[0].names, (Texts{"b", "a[0]", "a[1]"}));
    EXPECT_EQ(spec->unitLines[1].type, "Or");
    EXPECT_EQ(spec->unitLines[1].lineNumber, 6);
    EXPECT_EQ(spec->unitLines[1].fileName, "board.nlx");
    ASSERT_EQ(spec->netLines.size(), 2u);
    EXPECT_EQ(spec->netLines[0].name, "n1");
    EXPECT_EQ(spec->netLines[1].lineNumber, 7);
    ASSERT_EQ(spec->portLines.size(), 2u);
    EXPECT_EQ(spec->portLines[0].size, "4");
    EXPECT_EQ(spec->portLines[1].names, (Texts{"e", "f"}));
    ASSERT_EQ(spec->pinLines.size(), 2u);
    EXPECT_EQ(spec->pinLines[0].direction, "Input");
    EXPECT_EQ(spec->pinLines[1].lineNumber, 10);
    ASSERT_EQ(spec->metaDataLines.size(), 2u);
    EXPECT_EQ(spec->metaDataLines[0].key, "k");
    EXPECT_EQ(spec->metaDataLines[0].value, "v w");
    EXPECT_EQ(spec->metaDataLines[0].lineNumber, 5);
    EXPECT_EQ(spec->metaDataLines[0].fileName, "board.nlx");
    EXPECT_EQ(spec->metaDataLines[1].value, "x");
    EXPECT_EQ(spec->importPaths, (Texts{"lib", "aux lib"}));
    EXPECT_EQ(spec->countUnits(), 4u);
    EXPECT_EQ(spec->countNets(), 2u);
}

TEST(CircuitSpec, TakesFieldsApartAtAnyWhiteSpace) {
    const auto spec = specFrom("\tUnit\t And\v a \f b\r\n  Net n\tp  q");
    ASSERT_EQ(spec->unitLines.size(), 1u);
    EXPECT_EQ(spec->unitLines[0].names, (Texts{"a", "b"}));
    ASSERT_EQ(spec->netLines.size(), 1u);
    EXPECT_EQ(spec->netLines[0].ports, (Texts{"p", "q"})) << "a last line without line feed counts";
}

TEST(CircuitSpec, RefusesAWordThatIsNoKeyword) {
    const std::vector<ReadingCase> cases = {
        {"unit And a\n", "Error in board.nlx:1: Illegal keyword: 'unit'."},
        {"\n\nUNIT And a\n", "Error in board.nlx:3: Illegal keyword: 'UNIT'."},
        {"Unit And a\nNets n p q", "Error in board.nlx:2: Illegal keyword: 'Nets'."},
        {"{\n", "Error in board.nlx:1: Illegal keyword: '{'."},
        {"}x\n", "Error in board.nlx:1: Illegal keyword: '}x'."},
        {"Import\"x\"\n", "Error in board.nlx:1: Illegal keyword: 'Import\"x\"'."},
    };
    for (const ReadingCase& each : cases) EXPECT_EQ(errorOfReading(each.text), each.message);
}

TEST(CircuitSpec, PutsTheRefusalsOfTheRecordsInFileAndLine) {
    const std::vector<ReadingCase> cases = {
        {"\nUnit And\n", "Error on line 2, in file board.nlx: Unit takes at least 2 arguments: Unit <type> <name>"},
        {"\n\nNet n\n", "Error in board.nlx:3: Net needs a name and at least one port: Net <name> <ports...>"},
        {"Pin Input\n", "Error on line 1, in file board.nlx: Pin takes at least 2 arguments: Pin <direction> <name>"},
        {"# x\nPort Input 8\n",
         "Error on line 2, in file board.nlx: Port takes at least 3 arguments: Port <direction> <size> <name>"},
    };
    for (const ReadingCase& each : cases) EXPECT_EQ(errorOfReading(each.text), each.message);
}

TEST(CircuitSpec, LeavesAnArrayCountBeyond32BitsToTheStandardException) {
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([] { specFrom("Unit And g[9999999999]\n"); }), "stoi");
}

struct QuotedCase {
    std::string line;
    std::string value;
};

class QuotedValue : public testing::TestWithParam<QuotedCase> {};

TEST_P(QuotedValue, StandsBetweenTheFirstQuoteOfTheLineAndTheNextOneOfItsKind) {
    const auto spec = specFrom(GetParam().line + "\n");
    ASSERT_EQ(spec->metaDataLines.size(), 1u);
    EXPECT_EQ(spec->metaDataLines[0].value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(CircuitSpec, QuotedValue,
                         testing::Values(QuotedCase{"MetaData k \"v\"", "v"},                //
                                         QuotedCase{"MetaData k 'v'", "v"},                  //
                                         QuotedCase{"MetaData k \" v  w \"", " v  w "},      //
                                         QuotedCase{"MetaData k \"it's\"", "it's"},          //
                                         QuotedCase{"MetaData k 'a \"b\" c'", "a \"b\" c"},  //
                                         QuotedCase{"MetaData k \"a\\\"b\"", "a\\"},         //
                                         QuotedCase{"MetaData k \"v\" and \"more\"", "v"},   //
                                         QuotedCase{"MetaData k v w \"x\"", "x"},            //
                                         QuotedCase{"MetaData it's \"v'\"", "s \"v"}));

TEST(CircuitSpec, TakesTheSecondFieldForTheKeyEvenIfItIsTheValue) {
    const auto spec = specFrom("MetaData \"v\"\n");
    ASSERT_EQ(spec->metaDataLines.size(), 1u);
    EXPECT_EQ(spec->metaDataLines[0].key, "\"v\"");
    EXPECT_EQ(spec->metaDataLines[0].value, "v");
}

TEST(CircuitSpec, RefusesAStatementWhoseQuotesAreNotThere) {
    for (const std::string statement :
         {"Import", "Import x.nlx", "Import \"x.nlx", "Import \"x.nlx'", "ImportPath lib", "ImportPath 'lib",
          "MetaData", "MetaData k v", "MetaData k \"v", "MetaData k \"a#b\"", "Circuit x \"file"}) {
        EXPECT_EQ(errorOfReading("\n" + statement + "\n"),
                  "Error in board.nlx:2: Syntax error in path specification statement.")
            << statement;
    }
}

TEST(CircuitSpec, NamesTheLineOfTheInnerBodyWhereQuotesAreMissing) {
    EXPECT_EQ(errorOfReading("Circuit x {\n\n\nMetaData k v\n}\n"),
              "Error in board.nlx:4: Syntax error in path specification statement.");
}

TEST(CircuitSpec, WarnsOfAnEmptyQuotedValueWithoutALineFeedOnTheErrorStream) {
    for (const std::string statement : {"MetaData k \"\"", "MetaData k ''", "ImportPath \"\""}) {
        const Streams streams = streamsOf([&] { specFrom("\n\n" + statement + "\n"); });
        EXPECT_EQ(streams.error, "Warning: Empty Import (-Path) or MetaData statement in board.nlx:3") << statement;
        EXPECT_EQ(streams.output, "") << statement;
    }
}

TEST(CircuitSpec, GoesOnWithAnEmptyQuotedValue) {
    std::unique_ptr<CircuitSpec> spec;
    streamsOf([&] { spec = specFrom("MetaData k \"\"\nImportPath ''\n"); });
    ASSERT_EQ(spec->metaDataLines.size(), 1u);
    EXPECT_EQ(spec->metaDataLines[0].value, "");
    EXPECT_EQ(spec->importPaths, Texts{""});
}

TEST(CircuitSpec, CountsTheLinesOfTheInnerBodyInTheWarningOfAnEmptyValue) {
    const Streams streams = streamsOf([] { specFrom("Circuit x {\n\nMetaData k ''\n}\n"); });
    EXPECT_EQ(streams.error, "Warning: Empty Import (-Path) or MetaData statement in board.nlx:3");
}

TEST(CircuitSpec, NestsBodiesInBraces) {
    const auto spec = specFrom(
        "Circuit a {\n"
        "Circuit b {\n"
        "Unit And inner\n"
        "}\n"
        "Unit And middle\n"
        "MetaData k 'v'\n"
        "ImportPath 'lib'\n"
        "}\n"
        "Circuit c { Unit And ignored\n"
        "}\n"
        "Unit And outer\n");
    ASSERT_EQ(spec->subSpecs.size(), 2u);
    const CircuitSpec& a = *spec->subSpecs[0];
    EXPECT_EQ(a.getName(), "a");
    EXPECT_TRUE(a.isInline());
    EXPECT_EQ(a.getFileName(), "board.nlx");
    ASSERT_EQ(a.subSpecs.size(), 1u);
    EXPECT_EQ(a.subSpecs[0]->getName(), "b");
    EXPECT_EQ(a.subSpecs[0]->getFileName(), "board.nlx");
    ASSERT_EQ(a.subSpecs[0]->unitLines.size(), 1u);
    EXPECT_EQ(a.subSpecs[0]->unitLines[0].names, Texts{"inner"});
    ASSERT_EQ(a.unitLines.size(), 1u);
    EXPECT_EQ(a.unitLines[0].names, Texts{"middle"});
    EXPECT_EQ(a.metaDataLines.size(), 1u);
    EXPECT_EQ(spec->metaDataLines.size(), 0u);
    EXPECT_EQ(spec->importPaths, Texts{"lib"}) << "import paths belong to the whole load";
    EXPECT_TRUE(a.importPaths.empty());
    EXPECT_EQ(spec->subSpecs[1]->countUnits(), 0u) << "what follows the brace is ignored";
    ASSERT_EQ(spec->unitLines.size(), 1u);
    EXPECT_EQ(spec->unitLines[0].names, Texts{"outer"});
}

TEST(CircuitSpec, OpensABodyWhateverStandsBehindTheBrace) {
    const auto spec = specFrom("Circuit x {y z\nUnit And g\n}\n");
    ASSERT_EQ(spec->subSpecs.size(), 1u);
    EXPECT_EQ(spec->subSpecs[0]->getName(), "x");
    EXPECT_EQ(spec->subSpecs[0]->countUnits(), 1u);
}

TEST(CircuitSpec, DoesNotMindABodyThatIsNeverClosed) {
    const auto spec = specFrom("Circuit x {\nUnit And g\n");
    ASSERT_EQ(spec->subSpecs.size(), 1u);
    EXPECT_EQ(spec->subSpecs[0]->countUnits(), 1u);
    EXPECT_EQ(spec->countUnits(), 0u);
}

TEST(CircuitSpec, RefusesBracesAndCircuitsOfTheWrongShape) {
    const std::vector<ReadingCase> cases = {
        {"\nCircuit\n", "Circuit syntax error in board.nlx:2."},
        {"Circuit x\n", "Circuit syntax error in board.nlx:1."},
        {"Circuit x{\n", "Circuit syntax error in board.nlx:1."},
        {"Circuit x y\n", "Unrecognized field following Circuit keyword in board.nlx:1: 'y'"},
        {"Circuit x 'part.nlx'\n", "Unrecognized field following Circuit keyword in board.nlx:1: ''part.nlx''"},
        {"Circuit x y {\n", "Unrecognized field following Circuit keyword in board.nlx:1: 'y'"},
        {"Circuit x {\n} a b\n", "Unrecognized field following } keyword in board.nlx:2: 'b'"},
        {"Circuit x {\n} a\n", "Unrecognized field following } keyword in board.nlx:2: 'a'"},
        {"Circuit x {\n\nCircuit y\n}\n", "Circuit syntax error in board.nlx:3."},
        {"Circuit x {\n\nCircuit y z\n}\n", "Unrecognized field following Circuit keyword in board.nlx:3: 'z'"},
        {"}\n", "Error in board.nlx:1: } without an open Circuit."},
        {"Circuit x {\n}\n\n}\nUnit And a\n", "Error in board.nlx:3: } without an open Circuit."},
    };
    for (const ReadingCase& each : cases) EXPECT_EQ(errorOfReading(each.text), each.message);
}

TEST(CircuitSpec, TakesTheFirstQuoteOfACircuitLineThoughItIsNotTheOneOfTheFile) {
    EXPECT_EQ(errorOfReading("Circuit it's \"part.nlx\"\n"),
              "Error in board.nlx:1: Syntax error in path specification statement.");
}

TEST(CircuitSpec, OfANestedBodyInheritsTheFileButNotTheStatements) {
    const auto outer = specFrom("Unit And a\n");
    CircuitSpec inner(outer.get(), "inner");
    EXPECT_EQ(inner.getName(), "inner");
    EXPECT_TRUE(inner.isInline());
    EXPECT_EQ(inner.getFileName(), "board.nlx");
    EXPECT_EQ(inner.countUnits(), 0u);
    EXPECT_TRUE(outer->subSpecs.empty()) << "who makes a body enters it";
    inner.setName("other");
    EXPECT_EQ(inner.getName(), "other");
}

TEST(CircuitSpec, IsWatchedUntilItDies) {
    std::weak_ptr<const CircuitSpec> watch;
    {
        const auto spec = specFrom("");
        watch = spec->watch();
        EXPECT_EQ(watch.lock().get(), spec.get());
    }
    EXPECT_EQ(watch.lock(), nullptr);
}

}  // namespace
}  // namespace tarnsim
