// Signal files that are read, edited, written and read again, as a program on the library would do it.

#include "Core/Circuit/Circuit.h"
#include "Tests/Core/TestVectors/SequenceSupport.h"

namespace tarnsim {
namespace {

/// Writes the sequence, with delta times if it has them, expects this file, and reads it again. The file must say all
/// that it says itself: written once more it is the same.
std::unique_ptr<TestSequence> writtenAndRead(TestSequence& sequence, const std::string& file) {
    EXPECT_EQ(writtenText(sequence, sequence.hasDeltaTime()), file);
    auto again = sequenceFrom(file);
    EXPECT_EQ(writtenText(*again, again->hasDeltaTime()), file);
    return again;
}

constexpr const char* kTable =
    "time  a  b =>  q  p \n"
    "0000 LH  H     L HZ \n"
    "0010 HL HL    LL  X \n"
    "0020  H  Z     H  U \n";

TEST(SavingSequences, ASequenceInItsNormalFormStaysAsItIs) {
    const auto again = writtenAndRead(*sequenceFrom(kTable), kTable);
    EXPECT_EQ(again->vectorCount(), 3);
    EXPECT_EQ(again->vector(1)->output(0), "LL");
    const char* withDeltaTimes =
        "# file\n"
        "\n"
        "time a ==(dT)=> q \n"
        "# first\n"
        "0000 H     5    L \n";
    EXPECT_EQ(writtenAndRead(*sequenceFrom(withDeltaTimes), withDeltaTimes)->vector(0)->endTime(), 5);
}

TEST(SavingSequences, ANewFileIsAnExampleToStartFrom) {
    TestSequence sequence(TestSequence::kNewFile);
    EXPECT_EQ(writtenText(sequence),
              "# New test sequence\n"
              "time <example> => <example> \n"
              "0000         U            U \n");
    sequence.header()->setCommentText("");
    sequence.addComment("Mine");
    sequence.header()->setInputName(0, "a");
    sequence.header()->setOutputName(0, "q");
    sequence.vector(0)->setInput(0, "H");
    const auto again = writtenAndRead(sequence, "# Mine\n\ntime a => q \n0000 H    U \n");
    EXPECT_EQ(again->header()->inputName(0), "a");
    EXPECT_EQ(again->comments(), std::vector<std::string>{"Mine"});
}

TEST(SavingSequences, ATableIsBuiltByCode) {
    TestSequence sequence(TestSequence::kEmpty);
    auto* header = new TestVectorHeader({"time", "=>"}, -1, "");
    sequence.setHeader(header);
    header->addInput("b", "");
    header->addOutput("q", "");
    header->insertInput(0, "a", "");
    header->insertOutput(1, "p", "");
    for (const Time time : {0, 50}) {
        auto* vector = new TestVector(static_cast<std::uint32_t>(time));
        vector->setHeader(header);
        vector->addInput("LH");
        vector->insertInput(0, "H");
        vector->addOutput("L");
        vector->insertOutput(0, "HHHHLLLL");
        sequence.addVector(vector);
    }
    const auto again = writtenAndRead(sequence,
                                      "time a  b =>        q p \n"
                                      "0000 H LH          F0 L \n"
                                      "0050 H LH          F0 L \n");
    EXPECT_EQ(again->vector(1)->output(0), "HHHHLLLL");
}

TEST(SavingSequences, AClearedSequenceIsFilledAnew) {
    const auto sequence = sequenceFrom("# c\nU(a)\nx=H\ntime a => q\n0 H L\n");
    sequence->clear();
    sequence->setHeader(new TestVectorHeader({"time", "b", "=>", "r"}, -1, ""));
    writtenAndRead(*sequence, "time b => r \n");
}

TEST(SavingSequences, AnotherHeaderMayReverseAndRenameColumns) {
    const auto sequence = sequenceFrom("time a => q\n0 LLLH 3\n");
    sequence->setHeader(new TestVectorHeader({"time", "~i", "=>", "o"}, -1, ""));
    sequence->vector(0)->setHeader(sequence->header());
    const auto again = writtenAndRead(*sequence,
                                      "time   ~i =>    o \n"
                                      "0000    8       3 \n");
    EXPECT_EQ(again->vector(0)->input(0), "LLLH") << "the bits are the same, their notation isn't";
}

// Records.

TEST(SavingSequences, FileCommentsAreAddedAndCleared) {
    const auto sequence = sequenceFrom("# one\ntime a => q\n0 H L\n");
    sequence->addComment("");
    sequence->addComment("two");
    writtenAndRead(*sequence, "# one\n#\n# two\n\ntime a => q \n0000 H    L \n");
    sequence->clearComments();
    writtenAndRead(*sequence, "time a => q \n0000 H    L \n");
}

TEST(SavingSequences, OptionsAreAddedInsertedRemovedAndChanged) {
    const auto sequence = sequenceFrom("U1(a=1, b=2)\nU2(a=1)\ntime a => q\n");
    sequence->addOption(new ComponentOptions("U4(z)", "about U4\n"));
    sequence->insertOption(1, new ComponentOptions("U3(c=3)", ""));
    sequence->removeOption(sequence->option(2));
    ComponentOptions* first = sequence->option(0);
    first->setName("U0");
    first->setOption("a", "5");
    first->setOption("n", "new");
    first->removeOption("b");
    sequence->option(1)->parseOptions("d=4, e");
    const auto again = writtenAndRead(*sequence,
                                      "U0(a=5, n=new)\n"
                                      "U3(c=3, d=4, e=true)\n"
                                      "# about U4\n"
                                      "U4(z=true)\n"
                                      "\n"
                                      "time a => q \n");
    EXPECT_EQ(again->option(1)->option("e"), "true");
    EXPECT_EQ(again->option(2)->getCommentText(), "about U4\n");
}

TEST(SavingSequences, AssignmentsAreAddedInsertedRemovedAndChanged) {
    const auto sequence = sequenceFrom("x=H\ny=L\nz=H\ntime a => q\n");
    sequence->addAssignment(new PortAssignment("v = 12", "about v\n"));
    sequence->insertAssignment(0, new PortAssignment("w=0", ""));
    sequence->removeAssignment(sequence->assignment(2));
    sequence->assignment(1)->setName("u.x");
    sequence->assignment(2)->setValue("LLH");
    sequence->assignment(2)->setObjectId("of no effect");
    const auto again = writtenAndRead(*sequence,
                                      "w=0\n"
                                      "u.x=H\n"
                                      "z=LLH\n"
                                      "# about v\n"
                                      "v=12\n"
                                      "\n"
                                      "time a => q \n");
    EXPECT_EQ(again->assignment(1)->name(), "u.x");
    EXPECT_EQ(again->assignment(2)->objectId(), "");
}

TEST(SavingSequences, CommentsOfRecordsAreChanged) {
    const auto sequence = sequenceFrom("U(a=1)\nx=H\ntime a => q\n# former\n0 H L\n");
    sequence->assignment(0)->setCommentText("x\n");
    sequence->header()->setCommentText("header\nin two lines\n");
    sequence->vector(0)->setCommentText("");
    const auto again = writtenAndRead(*sequence,
                                      "U(a=1)\n"
                                      "\n"
                                      "# x\n"
                                      "x=H\n"
                                      "\n"
                                      "# header\n"
                                      "# in two lines\n"
                                      "time a => q \n"
                                      "0000 H    L \n");
    EXPECT_EQ(again->header()->getCommentText(), "header\nin two lines\n");
}

// Vectors.

TEST(SavingSequences, VectorsAreAddedInsertedAndRemoved) {
    const auto sequence = sequenceFrom(kTable);
    for (const int position : {3, 1}) {
        auto* vector = new TestVector(position == 3 ? 30U : 5U);
        for (int i = 0; i < 2; ++i) {
            vector->addInput("L");
            vector->addOutput("X");
        }
        if (position == 3) {
            sequence->addVector(vector);
        } else {
            sequence->insertVector(position, vector);
        }
    }
    sequence->removeVector(2);
    const auto again = writtenAndRead(*sequence,
                                      "time  a b => q  p \n"
                                      "0000 LH H    L HZ \n"
                                      "0005  L L    X  X \n"
                                      "0020  H Z    H  U \n"
                                      "0030  L L    X  X \n");
    EXPECT_EQ(again->vector(1)->time(), 5);
}

TEST(SavingSequences, TimesAreShiftedAndSet) {
    const auto sequence = sequenceFrom("time a ==(dT)=> q\n0 H 5 L\n10 L 5 H\n20 H 5 L\n");
    sequence->shiftFrom(1, 99990);
    sequence->vector(0)->setTime(7);
    sequence->vector(2)->setDeltaTime(1000000);
    const auto again = writtenAndRead(*sequence,
                                      "time   a ==(dT)=> q \n"
                                      "000007 H     5    L \n"
                                      "100000 L     5    H \n"
                                      "100010 H 1000000    L \n");
    EXPECT_EQ(again->lastTime(), 100010);
    EXPECT_EQ(again->lastEndTime(), 1100010);
}

TEST(SavingSequences, CellsAreSet) {
    const auto sequence = sequenceFrom(kTable);
    sequence->vector(0)->setInput(1, "HHHHHHHH");
    sequence->vector(0)->setOutput(0, "LLLX");
    sequence->vector(2)->setOutput(1, "HHHH");
    const auto again = writtenAndRead(*sequence,
                                      "time  a        b =>    q    p \n"
                                      "0000 LH       FF    LLLX   HZ \n"
                                      "0010 HL       HL      LL    X \n"
                                      "0020  H        Z       H    F \n");
    EXPECT_EQ(again->vector(0)->input(1), "HHHHHHHH");
    EXPECT_EQ(again->vector(2)->output(1), "HHHH");
}

// Columns.

TEST(SavingSequences, ColumnsAreRenamed) {
    const auto sequence = sequenceFrom("time ~a => q\n0 H L\n");
    sequence->header()->setInputName(0, "address");
    sequence->header()->setOutputName(0, "u1.out");
    const auto again = writtenAndRead(*sequence, "time ~address => u1.out \n0000        H         L \n");
    EXPECT_TRUE(again->header()->isReversed(1));
}

TEST(SavingSequences, ColumnsAreInserted) {
    const auto sequence = sequenceFrom("time a => q\n0 LH H\n10 H L\n");
    sequence->insertColumn(1, "first", "");
    sequence->insertColumn(3, "last", "");
    sequence->insertColumn(5, "out", "");
    sequence->insertColumn(sequence->header()->columnCount(), "end", "");
    const auto again = writtenAndRead(*sequence,
                                      "time first  a last => out q end \n"
                                      "0000     U LH    U      U H   U \n"
                                      "0010     U  H    U      U L   U \n");
    EXPECT_EQ(again->vector(0)->inputCount(), 3);
}

TEST(SavingSequences, ColumnsAreRemoved) {
    const auto sequence = sequenceFrom(kTable);
    sequence->removeColumn(1);
    sequence->removeColumn(3);
    writtenAndRead(*sequence,
                   "time  b =>  p \n"
                   "0000  H    HZ \n"
                   "0010 HL     X \n"
                   "0020  Z     U \n");
    sequence->removeColumn(3);
    writtenAndRead(*sequence,
                   "time  b => \n"
                   "0000  H    \n"
                   "0010 HL    \n"
                   "0020  Z    \n");
}

TEST(SavingSequences, ColumnsAreMoved) {
    const auto sequence = sequenceFrom(kTable);
    sequence->moveColumnRight(1);
    sequence->moveColumnLeft(5);
    const char* swapped =
        "time  b  a =>  p  q \n"
        "0000  H LH    HZ  L \n"
        "0010 HL HL     X LL \n"
        "0020  Z  H     U  H \n";
    writtenAndRead(*sequence, swapped);
    sequence->moveColumnLeft(1);
    sequence->moveColumnRight(2);
    sequence->moveColumnLeft(4);
    sequence->moveColumnRight(5);
    writtenAndRead(*sequence, swapped);
}

TEST(SavingSequences, HeaderAndVectorsAreEditedOneByOne) {
    const auto sequence = sequenceFrom(kTable);
    TestVectorHeader* header = sequence->header();
    header->moveColumnLeft(2);
    header->moveColumnRight(4);
    header->removeInput(1);
    header->removeOutput(1);
    for (const auto& vector : sequence->vectors()) {
        vector->moveCellLeft(2);
        vector->moveCellRight(4);
        vector->removeInput(1);
        vector->removeOutput(1);
    }
    writtenAndRead(*sequence,
                   "time  b =>  p \n"
                   "0000  H    HZ \n"
                   "0010 HL     X \n"
                   "0020  Z     U \n");
}

TEST(SavingSequences, AMovedColumnKeepsItsTilde) {
    const auto sequence = sequenceFrom("time ~a b => q\n0 ~LH HL L\n");
    sequence->moveColumnLeft(2);
    const auto again = writtenAndRead(*sequence,
                                      "time  b  ~a => q \n"
                                      "0000 HL ~LH    L \n");
    EXPECT_TRUE(again->header()->isReversed(2));
    EXPECT_EQ(again->vector(0)->input(1), "LH");
}

TEST(SavingSequences, ResolvingLeavesTheFileAsItIs) {
    Circuit board("board", nullptr);
    board.createPin(Direction::Input, "a");
    const auto sequence = sequenceFrom(kTable);
    sequence->resolve(board);
    EXPECT_EQ(sequence->header()->inputObjectId(0), board.findPort("a")->getId());
    EXPECT_EQ(writtenAndRead(*sequence, kTable)->header()->inputObjectId(0), "");
}

TEST(SavingSequences, TheFileIsWrittenUnderItsOwnName) {
    const TemporaryFolder folder;
    TestSequence sequence(folder.write("table.sig", kTable));
    sequence.removeVector(2);
    TestSequenceFileWriter().write(sequence, sequence.fileName(), false);
    sequence.setFileName("elsewhere");
    const TestSequence again(folder.path("table.sig"));
    EXPECT_EQ(again.vectorCount(), 2);
}

}  // namespace
}  // namespace tarnsim
