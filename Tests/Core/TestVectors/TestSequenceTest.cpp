#include "Core/TestVectors/TestSequence.h"

#include "Core/Circuit/Circuit.h"
#include "Core/Support/Text.h"
#include "Tests/Core/TestVectors/SequenceSupport.h"

namespace tarnsim {
namespace {

/// The table as text: `a b => q | 0 H L => U | 10 L L => H`.
std::string textOf(const TestSequence& sequence) {
    const TestVectorHeader* header = sequence.header();
    std::string text;
    for (int i = 1; i < header->columnCount(); ++i) text += (i > 1 ? " " : "") + header->columnName(i);
    for (const auto& vector : sequence.vectors()) {
        text += " | " + std::to_string(vector->time());
        for (const TestColumn& cell : vector->inputs()) text += " " + cell.value;
        text += " =>";
        for (const TestColumn& cell : vector->outputs()) text += " " + cell.value;
    }
    return text;
}

std::string optionNames(const TestSequence& sequence) {
    std::string names;
    for (const auto& option : sequence.options()) names += option->name() + " ";
    return names;
}

std::string assignmentNames(const TestSequence& sequence) {
    std::string names;
    for (const auto& assignment : sequence.assignments()) names += assignment->name() + " ";
    return names;
}

constexpr const char* kTwoVectors = "time a b => q p\n0 H L U X\n10 L Z H L\n";

TEST(TestSequence, ANewFileHasOneExampleVector) {
    const TestSequence sequence(TestSequence::kNewFile);
    EXPECT_EQ(textOf(sequence), "<example> => <example> | 0 U => U");
    EXPECT_EQ(sequence.header()->getLineNumber(), -1);
    EXPECT_EQ(sequence.header()->getCommentText(), "New test sequence");
    EXPECT_EQ(sequence.vector(0)->getHeader(), sequence.header());
    EXPECT_FALSE(sequence.hasDeltaTime());
    EXPECT_EQ(TestSequence::kNewFile, 1);
}

TEST(TestSequence, EveryOtherModeGivesNothing) {
    for (const int mode : {TestSequence::kEmpty, 2, -1}) {
        const TestSequence sequence(mode);
        EXPECT_EQ(sequence.header(), nullptr);
        EXPECT_EQ(sequence.vectorCount(), 0);
        EXPECT_EQ(sequence.optionCount(), 0);
        EXPECT_EQ(sequence.assignmentCount(), 0);
        EXPECT_TRUE(sequence.comments().empty());
        EXPECT_EQ(sequence.fileName(), "");
        EXPECT_EQ(sequence.lastTime(), 0);
        EXPECT_EQ(sequence.lastEndTime(), 0);
    }
}

TEST(TestSequence, ClearingDropsAllRecordsAndComments) {
    const auto sequence = sequenceFrom("# c\ng(a=1)\nx=1\ntime a\n0 H\n");
    const std::string fileName = sequence->fileName();
    sequence->clear();
    EXPECT_EQ(sequence->header(), nullptr);
    EXPECT_EQ(sequence->vectorCount(), 0);
    EXPECT_EQ(sequence->optionCount(), 0);
    EXPECT_EQ(sequence->assignmentCount(), 0);
    EXPECT_TRUE(sequence->comments().empty());
    EXPECT_EQ(sequence->fileName(), fileName);
}

TEST(TestSequence, TheHeaderIsReplaced) {
    TestSequence sequence(TestSequence::kNewFile);
    auto* header = new TestVectorHeader(splitWords("time a ==(dT)=> b"), -1, "");
    sequence.setHeader(header);
    EXPECT_EQ(sequence.header(), header);
    EXPECT_TRUE(sequence.hasDeltaTime());
    sequence.setHeader(nullptr);
    EXPECT_EQ(sequence.header(), nullptr);
}

TEST(TestSequence, VectorsAreAddedInsertedAndRemoved) {
    const auto sequence = sequenceFrom("time a\n0 H\n20 L\n");
    auto* added = new TestVector(30U);
    sequence->addVector(added);
    auto* inserted = new TestVector(10U);
    sequence->insertVector(1, inserted);
    EXPECT_EQ(textOf(*sequence), "a => | 0 H => | 10 => | 20 L => | 30 =>");
    EXPECT_EQ(inserted->getHeader(), sequence->header());
    EXPECT_EQ(added->getHeader(), nullptr) << "only an insertion gives the header";
    sequence->insertVector(4, new TestVector(40U));
    EXPECT_EQ(sequence->vector(4)->time(), 40);
    sequence->removeVector(0);
    EXPECT_EQ(textOf(*sequence), "a => | 10 => | 20 L => | 30 => | 40 =>");
    EXPECT_EQ(sequence->vectorCount(), 4);
    EXPECT_EQ(sequence->vector(0), inserted);
}

TEST(TestSequence, ShiftingMovesAVectorAndAllBehindIt) {
    const auto sequence = sequenceFrom("time a\n0 H\n20 L\n30 H\n");
    sequence->shiftFrom(1, 15);
    EXPECT_EQ(textOf(*sequence), "a => | 0 H => | 35 L => | 45 H =>");
    sequence->shiftFrom(2, -5);
    EXPECT_EQ(textOf(*sequence), "a => | 0 H => | 35 L => | 40 H =>");
    sequence->shiftFrom(0, 1);
    EXPECT_EQ(textOf(*sequence), "a => | 1 H => | 36 L => | 41 H =>");
}

TEST(TestSequence, ShiftingOutOfTheRangeOfTimesMovesNothing) {
    const auto sequence = sequenceFrom("time a\n0 H\n20 L\n30 H\n");
    EXPECT_EQ(errorOf([&] { sequence->shiftFrom(1, 2147483618); }),
              "Error: the vector at 30 can't be shifted by 2147483618: there is no such time.");
    EXPECT_EQ(textOf(*sequence), "a => | 0 H => | 20 L => | 30 H =>");
    sequence->shiftFrom(1, 2147483617);
    EXPECT_EQ(textOf(*sequence), "a => | 0 H => | 2147483637 L => | 2147483647 H =>");
}

TEST(TestSequence, TheLastTimesAreTheLastVectors) {
    const auto sequence = sequenceFrom("time a ==(dT)=>\n0 H 100\n20 L 5\n");
    EXPECT_EQ(sequence->lastTime(), 20);
    EXPECT_EQ(sequence->lastEndTime(), 25) << "not the greatest end time, which is 100";
}

TEST(TestSequence, OptionsAreAddedInsertedAndRemoved) {
    TestSequence sequence(TestSequence::kEmpty);
    auto* b = new ComponentOptions("b()", "");
    sequence.addOption(b);
    sequence.addOption(new ComponentOptions("d()", ""));
    sequence.insertOption(0, new ComponentOptions("a()", ""));
    sequence.insertOption(2, new ComponentOptions("c()", ""));
    EXPECT_EQ(optionNames(sequence), "a b c d ");
    EXPECT_EQ(sequence.option(1), b);
    sequence.removeOption(b);
    EXPECT_EQ(optionNames(sequence), "a c d ");
    EXPECT_EQ(sequence.optionCount(), 3);
}

TEST(TestSequence, AssignmentsAreAddedInsertedAndRemoved) {
    TestSequence sequence(TestSequence::kEmpty);
    auto* b = new PortAssignment("b=1", "");
    sequence.addAssignment(b);
    sequence.addAssignment(new PortAssignment("d=1", ""));
    sequence.insertAssignment(0, new PortAssignment("a=1", ""));
    sequence.insertAssignment(2, new PortAssignment("c=1", ""));
    EXPECT_EQ(assignmentNames(sequence), "a b c d ");
    EXPECT_EQ(sequence.assignment(1), b);
    sequence.removeAssignment(b);
    EXPECT_EQ(assignmentNames(sequence), "a c d ");
    EXPECT_EQ(sequence.assignmentCount(), 3);
}

TEST(TestSequence, CommentsAndFileNameAreKept) {
    TestSequence sequence(TestSequence::kEmpty);
    sequence.addComment("one");
    sequence.addComment("");
    EXPECT_EQ(sequence.comments(), (std::vector<std::string>{"one", ""}));
    sequence.clearComments();
    EXPECT_TRUE(sequence.comments().empty());
    sequence.setFileName("x.sig");
    EXPECT_EQ(sequence.fileName(), "x.sig");
}

TEST(TestSequence, AnInsertedColumnHoldsUInEveryVector) {
    const std::vector<std::pair<int, std::string>> rows = {
        {1, "new a b => q p | 0 U H L => U X | 10 U L Z => H L"},
        {2, "a new b => q p | 0 H U L => U X | 10 L U Z => H L"},
        {3, "a b new => q p | 0 H L U => U X | 10 L Z U => H L"},
        {4, "a b => new q p | 0 H L => U U X | 10 L Z => U H L"},
        {5, "a b => q new p | 0 H L => U U X | 10 L Z => H U L"},
        {6, "a b => q p new | 0 H L => U X U | 10 L Z => H L U"},
    };
    for (const auto& [index, expected] : rows) {
        const auto sequence = sequenceFrom(kTwoVectors);
        sequence->insertColumn(index, "new", "id");
        EXPECT_EQ(textOf(*sequence), expected) << index;
        EXPECT_EQ(sequence->header()->inputObjectId(index - 1) + sequence->header()->outputObjectId(index - 4), "id");
    }
}

TEST(TestSequence, ARemovedColumnLeavesEveryVector) {
    const std::vector<std::pair<int, std::string>> rows = {
        {1, "b => q p | 0 L => U X | 10 Z => H L"},
        {2, "a => q p | 0 H => U X | 10 L => H L"},
        {4, "a b => p | 0 H L => X | 10 L Z => L"},
        {5, "a b => q | 0 H L => U | 10 L Z => H"},
    };
    for (const auto& [index, expected] : rows) {
        const auto sequence = sequenceFrom(kTwoVectors);
        sequence->removeColumn(index);
        EXPECT_EQ(textOf(*sequence), expected) << index;
    }
}

TEST(TestSequence, AMovedColumnTakesItsCellsAlong) {
    const std::string same = "a b => q p | 0 H L => U X | 10 L Z => H L";
    const std::string swappedInputs = "b a => q p | 0 L H => U X | 10 Z L => H L";
    const std::string swappedOutputs = "a b => p q | 0 H L => X U | 10 L Z => L H";
    struct Row {
        int index;
        std::string afterLeft, afterRight;
    };
    const std::vector<Row> rows = {
        {1, same, swappedInputs}, {2, swappedInputs, same}, {4, same, swappedOutputs}, {5, swappedOutputs, same}};
    for (const Row& row : rows) {
        const auto left = sequenceFrom(kTwoVectors);
        left->moveColumnLeft(row.index);
        EXPECT_EQ(textOf(*left), row.afterLeft) << row.index;
        const auto right = sequenceFrom(kTwoVectors);
        right->moveColumnRight(row.index);
        EXPECT_EQ(textOf(*right), row.afterRight) << row.index;
    }
}

TEST(TestSequence, ResolvingReachesColumnsOptionsAndAssignments) {
    Circuit circuit("root", nullptr);
    const Pin* a = circuit.createPin(Direction::Input, "a");
    const Component* gate = circuit.addComponent("Inv", "g");
    const auto sequence = sequenceFrom("g(delay=1)\ng.in=1\ntime a => g.out\n");
    sequence->resolve(circuit);
    EXPECT_EQ(sequence->header()->inputObjectId(0), a->getId());
    EXPECT_EQ(sequence->header()->outputObjectId(0), gate->findPort("out")->getId());
    EXPECT_EQ(sequence->option(0)->objectId(), gate->getId());
    EXPECT_EQ(sequence->assignment(0)->objectId(), gate->findPort("in")->getId());
}

TEST(TestSequence, AnExpectationHoldsFromItsEndTimeToTheNext) {
    const auto sequence = sequenceFrom("time a ==(dT)=> q p\n0 H 5 L H\n10 L 5 H L\n30 L 0 Z X\n");
    const std::vector<std::pair<Time, std::string>> rows = {{0, "!"},  {4, "!"},  {5, "L"},  {14, "L"}, {15, "H"},
                                                            {29, "H"}, {30, "Z"}, {31, "!"}, {-1, "!"}};
    for (const auto& [time, expected] : rows) EXPECT_EQ(sequence->expectedOutput("q", time), expected) << time;
    EXPECT_EQ(sequence->expectedOutput("p", 15), "L");
    EXPECT_EQ(sequence->expectedOutput("a", 15), "?") << "an input";
    EXPECT_EQ(sequence->expectedOutput("", 15), "?");
}

TEST(TestSequence, ALoneVectorIsExpectedAtItsEndTimeOnly) {
    const auto sequence = sequenceFrom("time a => q\n10 H L\n");
    EXPECT_EQ(sequence->expectedOutput("q", 9), "!");
    EXPECT_EQ(sequence->expectedOutput("q", 10), "L");
    EXPECT_EQ(sequence->expectedOutput("q", 11), "!");
}

}  // namespace
}  // namespace tarnsim
