#include "Core/TestVectors/TestVector.h"

#include "Core/Support/Text.h"
#include "Core/TestVectors/TestVectorHeader.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// A vector together with the header that it points to.
struct Line {
    TestVectorHeader header;
    TestVector vector;

    Line(const std::string& headerLine, const std::string& vectorLine)
        : header(splitWords(headerLine), 1, ""), vector(splitWords(vectorLine), 9, &header, "said") {}
};

std::string errorOfLine(const std::string& headerLine, const std::string& vectorLine) {
    return errorOf([&] { Line(headerLine, vectorLine); });
}

/// Cells as `~LLLH HH => L`, a `~` for reversed ones.
std::string textOf(const TestVector& vector) {
    std::string text;
    for (const TestColumn& cell : vector.inputs()) text += (cell.reversed ? "~" : "") + cell.value + " ";
    text += "=>";
    for (const TestColumn& cell : vector.outputs()) text += " " + std::string(cell.reversed ? "~" : "") + cell.value;
    return text;
}

TEST(TestVector, MadeByCodeEndsWithinTheRangeOfTimes) {
    TestVector vector(2147483647U);
    vector.setDeltaTime(1);
    EXPECT_EQ(vector.endTime(), kLatestTime);
    vector.setTime(kEarliestTime);
    vector.setDeltaTime(-1);
    EXPECT_EQ(vector.endTime(), kEarliestTime);
    EXPECT_EQ(TestVector(4294967295U).time(), kLatestTime) << "never in the past";
}

TEST(TestVector, AVectorMadeByCodeIsEmpty) {
    const TestVector vector(120U);
    EXPECT_EQ(vector.time(), 120);
    EXPECT_EQ(vector.deltaTime(), 0);
    EXPECT_EQ(vector.endTime(), 120);
    EXPECT_EQ(vector.inputCount(), 0);
    EXPECT_EQ(vector.outputCount(), 0);
    EXPECT_EQ(vector.getHeader(), nullptr);
    EXPECT_TRUE(vector.hasNoComment());
}

TEST(TestVector, ALineGivesTimeInputsAndOutputs) {
    const Line line("time a b => q", "0100 H 2 L");
    EXPECT_EQ(line.vector.time(), 100);
    EXPECT_EQ(line.vector.deltaTime(), 0);
    EXPECT_EQ(textOf(line.vector), "H LLHL => L");
    EXPECT_EQ(line.vector.inputCount(), 2);
    EXPECT_EQ(line.vector.outputCount(), 1);
    EXPECT_EQ(line.vector.getLineNumber(), 9);
    EXPECT_EQ(line.vector.getHeader(), &line.header);
    EXPECT_EQ(line.vector.getCommentText(), "said");
    EXPECT_EQ(line.vector.inputs()[0].objectId, "");
}

TEST(TestVector, TheDeltaTimeStandsBetweenInputsAndOutputs) {
    const Line line("time a ==(dT)=> b", "100 H 25 L");
    EXPECT_EQ(line.vector.time(), 100);
    EXPECT_EQ(line.vector.deltaTime(), 25);
    EXPECT_EQ(line.vector.endTime(), 125);
    EXPECT_EQ(textOf(line.vector), "H => L");
}

TEST(TestVector, TheDeltaTimeIsReadFromTheDigitsInFront) {
    EXPECT_EQ(Line("time a ==(dT)=> b", "100 H 1a L").vector.deltaTime(), 1);
    EXPECT_EQ(Line("time a ==(dT)=>", "100 H 007").vector.deltaTime(), 7);
}

TEST(TestVector, TheNumberOfFieldsMustBeTheHeaders) {
    EXPECT_EQ(errorOfLine("time a b => q", "0 H"), "Error on line 9: Missing fields: 3 in header, 1 in vector.");
    EXPECT_EQ(errorOfLine("time a => b", "100 H => L"),
              "Error on line 9: Extraneous fields: 2 in header, 3 in vector.");
    EXPECT_EQ(errorOfLine("time a ==(dT)=> b", "0 H L"), "Error on line 9: Missing fields: 3 in header, 2 in vector.");
    EXPECT_EQ(errorOfLine("time a b", "0 H L L"), "Error on line 9: Extraneous fields: 2 in header, 3 in vector.");
}

TEST(TestVector, TheTimeMustBeANumberOf32Bits) {
    EXPECT_EQ(errorOfLine("time a", "x1 H"), "Error on line 9: First column must be a number: 'x1' is not.");
    EXPECT_EQ(errorOfLine("time a", "2147483648 H"),
              "Error on line 9: First column must be a number: '2147483648' is not.");
    EXPECT_EQ(Line("time a", "2147483647 H").vector.time(), 2147483647);
}

TEST(TestVector, TheDeltaTimeMustBeANumberOf32Bits) {
    const std::string message = "Error on line 9: delta-time-specification not an integer: ";
    EXPECT_EQ(errorOfLine("time a ==(dT)=> b", "0 H HL L"), message + "'HL'");
    EXPECT_EQ(errorOfLine("time a ==(dT)=> b", "0 H a1 L"), message + "'a1'") << "the word as it stands in the file";
    EXPECT_EQ(errorOfLine("time a ==(dT)=> b", "0 H ~1 L"), message + "'~1'");
    EXPECT_EQ(errorOfLine("time a ==(dT)=> b", "0 H 2147483648 L"), message + "'2147483648'");
}

TEST(TestVector, TheEndTimeMustBeANumberOf32BitsToo) {
    EXPECT_EQ(errorOfLine("time a ==(dT)=> b", "2147483640 H 8 L"),
              "Error on line 9: 2147483640 + 8 is beyond the latest time, 2147483647.");
    EXPECT_EQ(Line("time a ==(dT)=> b", "2147483640 H 7 L").vector.endTime(), 2147483647);
}

TEST(TestVector, CellsMixHexadecimalDigitsAndLevels) {
    const std::vector<std::pair<std::string, std::string>> cells = {
        {"2h", "LLHLh"},
        {"0", "LLLL"},
        {"HL", "HL"},
        {"hlxzu", "hlxzu"},
        {"HLXZU", "HLXZU"},
        {"1Z", "LLLHZ"},
        {"aF", "HLHLHHHH"},
        {"bBcCdDeE", "HLHHHLHHHHLLHHLLHHLHHHLHHHHLHHHL"},
        {"3456", "LLHHLHLLLHLHLHHL"},
        {"789A", "LHHHHLLLHLLHHLHL"},
        {"~", "~"},
        {"~HL", "~LH"},
        {"~1", "~HLLL"},
        {"~Z1", "~HLLLZ"},
    };
    for (const auto& [word, expected] : cells) {
        EXPECT_EQ(textOf(Line("time a => b", "0 " + word + " H").vector), expected + " => H") << word;
        EXPECT_EQ(textOf(Line("time a => b", "0 H " + word).vector), "H => " + expected) << word;
    }
}

TEST(TestVector, TheFirstCharacterOutsideTheAlphabetIsNamed) {
    const std::string message = "Error on line 9: Illegal character in vector: ";
    EXPECT_EQ(errorOfLine("time a", "0 g"), message + "'g'.");
    EXPECT_EQ(errorOfLine("time a", "0 HyLw"), message + "'y'.");
    EXPECT_EQ(errorOfLine("time a", "0 ~HyLw"), message + "'w'.") << "the text is reversed by then";
    EXPECT_EQ(errorOfLine("time a", "0 H~"), message + "'~'.");
    EXPECT_EQ(errorOfLine("time a", "0 ~~H"), message + "'~'.");
    EXPECT_EQ(errorOfLine("time a => b", "0 H !"), message + "'!'.");
    EXPECT_EQ(errorOfLine("time a ==(dT)=> b", "0 H 5ns L"), message + "'n'.");
    EXPECT_EQ(errorOfLine("time a ==(dT)=> b", "0 H -5 L"), message + "'-'.");
}

TEST(TestVector, AReversedColumnReversesItsCells) {
    EXPECT_EQ(textOf(Line("time ~a b => c ~d", "0 1 1 1 1").vector), "HLLL LLLH => LLLH HLLL");
    EXPECT_EQ(textOf(Line("time ~a b => c ~d", "0 ~1 ~1 ~1 ~1").vector), "~LLLH ~HLLL => ~HLLL ~LLLH");
}

TEST(TestVector, BesideADeltaTimeAnOutputTakesTheReversalOfItsRightNeighbour) {
    EXPECT_EQ(textOf(Line("time ~a ==(dT)=> b ~c d", "0 1 5 1 1 1").vector), "HLLL => HLLL LLLH LLLH");
    EXPECT_EQ(textOf(Line("time a ==(dT)=> ~b", "0 1 12 1").vector), "LLLH => LLLH");
    EXPECT_EQ(Line("time a ==(dT)=> ~b", "0 1 12 1").vector.deltaTime(), 12);
}

TEST(TestVector, TimesAreSet) {
    TestVector vector(5U);
    vector.setTime(100);
    vector.setDeltaTime(-20);
    EXPECT_EQ(vector.time(), 100);
    EXPECT_EQ(vector.deltaTime(), -20);
    EXPECT_EQ(vector.endTime(), 80);
}

TEST(TestVector, CellsAreReadAndWritten) {
    Line line("time a b => c", "0 ~HL L H");
    line.vector.setInput(0, "ZZ");
    line.vector.setOutput(0, "X");
    EXPECT_EQ(textOf(line.vector), "~ZZ L => X");
    EXPECT_EQ(line.vector.input(0), "ZZ");
    EXPECT_EQ(line.vector.input(1), "L");
    EXPECT_EQ(line.vector.output(0), "X");
}

TEST(TestVector, CellsAreAddedInsertedAndRemoved) {
    TestVector vector(0U);
    vector.addInput("a");
    vector.addInput("b");
    vector.addOutput("p");
    vector.addOutput("q");
    EXPECT_EQ(textOf(vector), "a b => p q");
    vector.insertInput(1, "i");
    vector.insertInput(3, "end");
    vector.insertOutput(0, "o");
    EXPECT_EQ(textOf(vector), "a i b end => o p q");
    vector.removeInput(0);
    vector.removeOutput(1);
    EXPECT_EQ(textOf(vector), "i b end => o q");
}

TEST(TestVector, CellsMoveAsTheColumnsDo) {
    struct Row {
        int index;
        std::string afterLeft, afterRight;
    };
    const std::vector<Row> rows = {
        {1, "H ~L Z => H L", "~L H Z => H L"}, {2, "~L H Z => H L", "H Z ~L => H L"},
        {3, "H Z ~L => H L", "H ~L Z => H L"}, {5, "H ~L Z => H L", "H ~L Z => L H"},
        {6, "H ~L Z => L H", "H ~L Z => H L"},
    };
    for (const Row& row : rows) {
        Line left("time a b c => d e", "0 H ~L Z H L");
        left.vector.moveCellLeft(row.index);
        EXPECT_EQ(textOf(left.vector), row.afterLeft) << row.index;
        Line right("time a b c => d e", "0 H ~L Z H L");
        right.vector.moveCellRight(row.index);
        EXPECT_EQ(textOf(right.vector), row.afterRight) << row.index;
    }
}

TEST(TestVector, TextsAreTheSameWithAndWithoutLists) {
    const Line line("time a b ~c ==(dT)=> q r", "7 ~ 1Z HL 20 ~XL F");
    const auto expectTexts = [&] {
        EXPECT_EQ(line.vector.inputText(-1), "");
        EXPECT_EQ(line.vector.inputText(0), "");
        EXPECT_EQ(line.vector.inputText(1), "LLLHZ");
        EXPECT_EQ(line.vector.inputText(2), "LH");
        EXPECT_EQ(line.vector.inputText(3), "");
        EXPECT_EQ(line.vector.outputText(-1), "");
        EXPECT_EQ(line.vector.outputText(0), "LX");
        EXPECT_EQ(line.vector.outputText(1), "HHHH");
        EXPECT_EQ(line.vector.outputText(2), "");
        EXPECT_EQ(line.vector.inputCount(), 3);
        EXPECT_EQ(line.vector.outputCount(), 2);
    };
    expectTexts();
    EXPECT_EQ(textOf(line.vector), "~ LLLHZ LH => ~LX HHHH");
    expectTexts();
}

TEST(TestVector, CellsOfALineCanBeChangedAtOnce) {
    Line line("time a b => q", "7 ~H 1 Z");
    line.vector.setInput(1, "U");
    EXPECT_EQ(textOf(line.vector), "~H U => Z");
    Line other("time a b => q", "7 ~H 1 Z");
    other.vector.addOutput("L");
    EXPECT_EQ(other.vector.outputText(1), "L");
    EXPECT_EQ(textOf(other.vector), "~H LLLH => Z L");
}

TEST(TestVector, TheHeaderIsSet) {
    TestVectorHeader header(splitWords("time a"), 1, "");
    TestVector vector(0U);
    vector.setHeader(&header);
    EXPECT_EQ(vector.getHeader(), &header);
}

}  // namespace
}  // namespace tarnsim
