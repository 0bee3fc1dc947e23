#include "Core/TestVectors/TestVectorHeader.h"

#include "Core/Circuit/Circuit.h"
#include "Core/Support/Text.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TestVectorHeader headerFrom(const std::string& line, int lineNumber = 1) {
    return TestVectorHeader(splitWords(line), lineNumber, "");
}

/// The names with `~` and the object ids, as `a ~b/id => c`.
std::string textOf(const TestVectorHeader& header) {
    std::string text;
    for (int i = 1; i < header.columnCount(); ++i) {
        text += (i > 1 ? " " : "") + std::string(header.isReversed(i) ? "~" : "") + header.columnName(i);
        const std::string id = header.isInputColumn(i) ? header.inputObjectId(header.inputIndex(i))
                                                       : header.outputObjectId(header.outputIndex(i));
        if (!id.empty()) text += "/" + id;
    }
    return text;
}

TEST(TestVectorHeader, WordsBeforeTheSeparatorAreInputsAndBehindItOutputs) {
    const TestVectorHeader header(splitWords("time a b => c"), 7, "a comment");
    EXPECT_EQ(textOf(header), "a b => c");
    EXPECT_EQ(header.inputCount(), 2);
    EXPECT_EQ(header.outputCount(), 1);
    EXPECT_FALSE(header.hasDeltaTime());
    EXPECT_EQ(header.fieldsPerVector(), 3);
    EXPECT_EQ(header.getLineNumber(), 7);
    EXPECT_EQ(header.getCommentText(), "a comment");
}

TEST(TestVectorHeader, WithoutSeparatorThereAreOnlyInputs) {
    const TestVectorHeader header = headerFrom("time a b");
    EXPECT_EQ(header.inputCount(), 2);
    EXPECT_EQ(header.outputCount(), 0);
    EXPECT_EQ(header.fieldsPerVector(), 2);
}

TEST(TestVectorHeader, FurtherSeparatorsAddNoColumn) {
    EXPECT_EQ(textOf(headerFrom("time a => b => c")), "a => b c");
    EXPECT_EQ(textOf(headerFrom("time a ~=> b ~c")), "a => b ~c");
}

TEST(TestVectorHeader, AnySeparatorMayAnnounceTheDeltaTime) {
    for (const char* line :
         {"time a ==(dT)=> b", "time a ~==(dT)=> b", "time a => ==(dT)=> b", "time a => b ==(dT)=>"}) {
        const TestVectorHeader header = headerFrom(line);
        EXPECT_EQ(textOf(header), "a => b") << line;
        EXPECT_TRUE(header.hasDeltaTime()) << line;
        EXPECT_EQ(header.fieldsPerVector(), 3) << line;
    }
}

TEST(TestVectorHeader, ATildeMarksTheColumnAndLeavesTheName) {
    const TestVectorHeader header = headerFrom("time ~a b => c ~d ~~e");
    EXPECT_EQ(textOf(header), "~a b => c ~d ~~e");
    EXPECT_EQ(header.inputName(0), "a");
    EXPECT_EQ(header.outputName(1), "d");
    EXPECT_EQ(header.outputName(2), "~e");
}

TEST(TestVectorHeader, NamesAreNotChecked) {
    EXPECT_EQ(textOf(headerFrom("time u.a[0] => 12 time")), "u.a[0] => 12 time");
}

TEST(TestVectorHeader, TheFirstWordMustBeTime) {
    const std::string message = "Error on line 4: The header must start with the keyword 'time'.";
    EXPECT_EQ(errorOf([] { headerFrom("timex a => b", 4); }), message);
    EXPECT_EQ(errorOf([] { headerFrom("Time a => b", 4); }), message);
    EXPECT_EQ(errorOf([] { headerFrom("", 4); }), message);
}

TEST(TestVectorHeader, AFileMustNameAnInput) {
    EXPECT_EQ(errorOf([] { headerFrom("time", 1); }), "Error on line 1: No inputs defined.");
    EXPECT_EQ(errorOf([] { headerFrom("time => q", 0); }), "Error on line 0: No inputs defined.");
    EXPECT_EQ(headerFrom("time => q", -1).outputCount(), 1);
    EXPECT_EQ(headerFrom("time", -1).columnCount(), 2);
}

TEST(TestVectorHeader, ColumnsAreNumberedThroughTimeInputsSeparatorAndOutputs) {
    const TestVectorHeader header = headerFrom("time ~a b => c ~d");
    struct Row {
        int index;
        std::string name;
        bool isTime, isInput, isOutput, isReversed;
    };
    const std::vector<Row> rows = {
        {-1, "", false, false, false, false},   {0, "Time", true, false, false, false},
        {1, "a", false, true, false, true},     {2, "b", false, true, false, false},
        {3, "=>", false, false, false, false},  {4, "c", false, false, true, false},
        {5, "d", false, false, true, true},     {6, "", false, false, false, false},
        {1000, "", false, false, false, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(header.columnName(row.index), row.name) << row.index;
        EXPECT_EQ(header.isTimeColumn(row.index), row.isTime) << row.index;
        EXPECT_EQ(header.isInputColumn(row.index), row.isInput) << row.index;
        EXPECT_EQ(header.isOutputColumn(row.index), row.isOutput) << row.index;
        EXPECT_EQ(header.isReversed(row.index), row.isReversed) << row.index;
    }
    EXPECT_EQ(header.columnCount(), 6);
    EXPECT_EQ(header.separatorColumn(), 3);
    EXPECT_EQ(TestVectorHeader::separator(), "=>");
    EXPECT_EQ(header.inputIndex(2), 1);
    EXPECT_EQ(header.outputIndex(5), 1);
}

TEST(TestVectorHeader, OutOfRangeNamesAndIdsAreEmpty) {
    TestVectorHeader header = headerFrom("time a => b");
    header.addInput("c", "id1");
    header.addOutput("d", "id2");
    for (const int i : {-1, 2, 100}) {
        EXPECT_EQ(header.inputName(i), "") << i;
        EXPECT_EQ(header.outputName(i), "") << i;
        EXPECT_EQ(header.inputObjectId(i), "") << i;
        EXPECT_EQ(header.outputObjectId(i), "") << i;
    }
    EXPECT_EQ(header.inputObjectId(1), "id1");
    EXPECT_EQ(header.outputObjectId(1), "id2");
}

TEST(TestVectorHeader, RenamingOutOfRangeIsIgnored) {
    TestVectorHeader header = headerFrom("time ~a b => c d");
    header.setInputName(0, "x");
    header.setOutputName(1, "y");
    for (const int i : {-1, 2}) {
        header.setInputName(i, "no");
        header.setOutputName(i, "no");
    }
    EXPECT_EQ(textOf(header), "~x b => c y");
}

TEST(TestVectorHeader, NewColumnsAreNotReversed) {
    TestVectorHeader header = headerFrom("time ~a => ~b");
    header.addInput("c", "1");
    header.addOutput("d", "2");
    EXPECT_EQ(textOf(header), "~a c/1 => ~b d/2");
}

TEST(TestVectorHeader, ColumnsAreInsertedInFrontOfAPosition) {
    TestVectorHeader header = headerFrom("time a => b");
    header.insertInput(0, "front", "1");
    header.insertInput(2, "end", "2");
    header.insertOutput(0, "first", "");
    header.insertOutput(1, "middle", "");
    EXPECT_EQ(textOf(header), "front/1 a end/2 => first middle b");
}

TEST(TestVectorHeader, RemovedColumnsAreFilledUpFromBehind) {
    TestVectorHeader header = headerFrom("time a ~b c => d e ~f");
    header.removeInput(0);
    header.removeOutput(1);
    EXPECT_EQ(textOf(header), "~b c => d ~f");
}

TEST(TestVectorHeader, ColumnsMoveAmongTheirOwnKindOnly) {
    struct Row {
        int index;
        std::string afterLeft, afterRight;
    };
    const std::vector<Row> rows = {
        {1, "a ~b c => d e", "~b a c => d e"}, {2, "~b a c => d e", "a c ~b => d e"},
        {3, "a c ~b => d e", "a ~b c => d e"}, {5, "a ~b c => d e", "a ~b c => e d"},
        {6, "a ~b c => e d", "a ~b c => d e"},
    };
    for (const Row& row : rows) {
        TestVectorHeader left = headerFrom("time a ~b c => d e");
        left.moveColumnLeft(row.index);
        EXPECT_EQ(textOf(left), row.afterLeft) << row.index;
        TestVectorHeader right = headerFrom("time a ~b c => d e");
        right.moveColumnRight(row.index);
        EXPECT_EQ(textOf(right), row.afterRight) << row.index;
    }
}

TEST(TestVectorHeader, InputsResolveToPortsAndOutputsToPortsOrNets) {
    Circuit circuit("root", nullptr);
    Pin* a = circuit.createPin(Direction::Input, "a");
    Pin* q = circuit.createPin(Direction::Output, "q");
    const Net* net = circuit.createNet("n", {a, q});
    circuit.createNet("q", {});

    TestVectorHeader header = headerFrom("time a n missing => q n missing");
    header.addInput("gone", "kept");
    header.resolve(circuit);
    EXPECT_EQ(header.inputObjectId(0), a->getId());
    EXPECT_EQ(header.inputObjectId(1), "") << "an input is no net";
    EXPECT_EQ(header.inputObjectId(2), "");
    EXPECT_EQ(header.inputObjectId(3), "kept");
    EXPECT_EQ(header.outputObjectId(0), q->getId()) << "the port comes before the net of its name";
    EXPECT_EQ(header.outputObjectId(1), net->getId());
    EXPECT_EQ(header.outputObjectId(2), "");
}

}  // namespace
}  // namespace tarnsim
