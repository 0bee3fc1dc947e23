#include "Core/TestVectors/TestSequenceFileWriter.h"

#include <sstream>

#include "Core/Support/Text.h"
#include "Tests/Core/TestVectors/SequenceSupport.h"

namespace tarnsim {
namespace {

// The file.

TEST(TestSequenceFileWriter, TheSequenceIsNamedAfterTheFile) {
    const TemporaryFolder folder;
    const auto sequence = sequenceFrom("time a => q\n");
    TestSequenceFileWriter().write(*sequence, folder.path("new.sig"), false);
    EXPECT_EQ(sequence->fileName(), folder.path("new.sig"));
    EXPECT_EQ(readBytes(folder.path("new.sig")), "time a => q \n");
}

TEST(TestSequenceFileWriter, AStreamReceivesTheSameTextAndGivesNoName) {
    const auto sequence = sequenceFrom("# c\nU(a)\nx=H\ntime a ==(dT)=> q\n0 H 5 L\n");
    const std::string name = sequence->fileName();
    std::ostringstream stream;
    TestSequenceFileWriter().write(*sequence, stream, true);
    EXPECT_EQ(sequence->fileName(), name);
    EXPECT_EQ(stream.str(), writtenText(*sequence, true));
}

TEST(TestSequenceFileWriter, AFormerFileIsReplacedAsAWhole) {
    const TemporaryFolder folder;
    const std::string path = folder.write("old.sig", std::string(10000, '#'));
    const auto sequence = sequenceFrom("time a => q\n");
    TestSequenceFileWriter().write(*sequence, path, false);
    EXPECT_EQ(readBytes(path), "time a => q \n");
}

TEST(TestSequenceFileWriter, ASequenceWithoutAHeaderIsRefusedAndTheFormerFileKept) {
    const TemporaryFolder folder;
    const std::string path = folder.write("old.sig", "time a => q\n");
    TestSequence empty(TestSequence::kNewFile);
    empty.clear();
    EXPECT_EQ(errorOf([&] { TestSequenceFileWriter().write(empty, path, false); }),
              "A test sequence without a header cannot be written.");
    EXPECT_EQ(readBytes(path), "time a => q\n");
}

TEST(TestSequenceFileWriter, OnlyAFileThatCannotBeOpenedIsRefused) {
    const TemporaryFolder folder;
    const TestSequenceFileWriter writer;
    const auto sequence = sequenceFrom("time a => q\n0 H L\n");
    const std::string path = folder.path("none/new.sig");
    EXPECT_EQ(errorOf([&] { writer.write(*sequence, path, false); }), "File '" + path + "' cannot be created.");
    EXPECT_EQ(sequence->fileName(), path) << "the name is given first";
    EXPECT_EQ(errorOf([&] { writer.write(*sequence, folder.path("."), false); }),
              "File '" + folder.path(".") + "' cannot be created.");
    EXPECT_EQ(errorOf([&] { writer.write(*sequence, "/dev/full", false); }), "(no Error)");
}

TEST(TestSequenceFileWriter, WithoutAHeaderTheFormerFileStays) {
    const TemporaryFolder folder;
    const std::string path = folder.write("old.sig", "time a => q\n");
    TestSequence sequence(TestSequence::kEmpty);
    EXPECT_NE(errorOf([&] { TestSequenceFileWriter().write(sequence, path, false); }), "(no Error)");
    EXPECT_EQ(readBytes(path), "time a => q\n");
}

// What stands above the table.

TEST(TestSequenceFileWriter, FileCommentsComeFirst) {
    EXPECT_EQ(writtenFrom("# one\n\n#\n#   two  \ntime a => q\n"),
              "# one\n"
              "#\n"
              "# two\n"
              "\n"
              "time a => q \n");
}

TEST(TestSequenceFileWriter, OptionsAreSortedByKey) {
    EXPECT_EQ(writtenFrom("U5(delay=20, fast,B = x y)\nU1() ignored\nU2(a=(1),b=)\ntime a => q\n"),
              "U5(B=x y, delay=20, fast=true)\n"
              "U1()\n"
              "U2(a=(1), b=true)\n"
              "\n"
              "time a => q \n");
}

TEST(TestSequenceFileWriter, AssignmentsAreWrittenWithoutBlanks) {
    EXPECT_EQ(writtenFrom("x = H\nclk.en =  0 1  \n12 =3\ntime a => q\n"),
              "x=H\n"
              "clk.en=0 1\n"
              "12=3\n"
              "\n"
              "time a => q \n");
}

TEST(TestSequenceFileWriter, RecordsStandInGroupsWithTheirComments) {
    EXPECT_EQ(writtenFrom("# of the file\n"
                          "y = L\n"
                          "time a => q # of the header\n"
                          "# of the first vector\n"
                          "0 H L\n"
                          "# of the option\n"
                          "#\n"
                          "# in three lines\n"
                          "U1(a=1)\n"
                          "x = H # of the assignment\n"
                          "# of the second vector\n"
                          "10 L H # in two lines\n"
                          "U2(a=1)\n"),
              "# of the file\n"
              "\n"
              "# of the option\n"
              "# \n"
              "# in three lines\n"
              "U1(a=1)\n"
              "U2(a=1)\n"
              "\n"
              "y=L\n"
              "# of the assignment\n"
              "x=H\n"
              "\n"
              "# of the header\n"
              "time a => q \n"
              "# of the first vector\n"
              "0000 H    L \n"
              "# of the second vector\n"
              "# in two lines\n"
              "0010 L    H \n");
}

TEST(TestSequenceFileWriter, CommentsAreCutAtEachLineFeed) {
    const auto sequence = sequenceFrom("time a => q\n0 H L\n10 H L\n");
    sequence->header()->setCommentText("no line feed");
    sequence->vector(0)->setCommentText("\n  blanks\n\n");
    sequence->vector(1)->setCommentText("\n");
    EXPECT_EQ(writtenText(*sequence),
              "# no line feed\n"
              "time a => q \n"
              "# \n"
              "#   blanks\n"
              "# \n"
              "0000 H    L \n"
              "# \n"
              "0010 H    L \n");
}

// The layout of the table.

TEST(TestSequenceFileWriter, AHeaderAloneIsATable) {
    EXPECT_EQ(writtenFrom("time alpha b => q\n"), "time alpha b => q \n");
}

TEST(TestSequenceFileWriter, OutputsMayBeMissing) {
    EXPECT_EQ(writtenFrom("time a b\n5 H L\n"),
              "time a b => \n"
              "0005 H L    \n");
}

TEST(TestSequenceFileWriter, TheLongestTimeDecidesAboutTheWidthOfAllTimes) {
    EXPECT_EQ(writtenFrom("time a => q\n1 H L\n99999 H L\n123456 L L\n"),
              "time   a => q \n"
              "000001 H    L \n"
              "099999 H    L \n"
              "123456 L    L \n");
    EXPECT_EQ(writtenFrom("time a => q\n0007 H L\n9999 H L\n"),
              "time a => q \n"
              "0007 H    L \n"
              "9999 H    L \n");
}

TEST(TestSequenceFileWriter, AColumnIsAsWideAsItsNameOrItsWidestBits) {
    EXPECT_EQ(writtenFrom("time alpha b => c out\n0 H 3 U L\n10 L H 12 H\n"),
              "time alpha    b =>        c out \n"
              "0000     H    3           U   L \n"
              "0010     L    H          12   H \n")
        << "the bits count as they are stored: four for each digit";
}

TEST(TestSequenceFileWriter, TheTildeCountsInTheWidth) {
    EXPECT_EQ(writtenFrom("time ~ab c => ~d q\n0 H ~LH L ~L\n"),
              "time ~ab   c => ~d  q \n"
              "0000   H ~LH     L ~L \n");
}

TEST(TestSequenceFileWriter, AVectorMayLackCells) {
    const auto sequence = sequenceFrom("time a b => q\n0 H L H\n");
    sequence->addVector(new TestVector(5U));
    sequence->vector(1)->addInput("LLL");
    EXPECT_EQ(writtenText(*sequence),
              "time   a b => q \n"
              "0000   H L    H \n"
              "0005 LLL    \n");
}

// Delta times.

TEST(TestSequenceFileWriter, DeltaTimesStandInTheSeparatorsColumn) {
    EXPECT_EQ(writtenFrom("time a ==(dT)=> q\n0 H 25 L\n100 L 123456 H\n", true),
              "time a ==(dT)=> q \n"
              "0000 H    25    L \n"
              "0100 L 123456    H \n");
}

TEST(TestSequenceFileWriter, TheCallerDecidesWhetherDeltaTimesAreWritten) {
    EXPECT_EQ(writtenFrom("time a ==(dT)=> q\n0 H 25 L\n", false), "time a => q \n0000 H    L \n");
    EXPECT_EQ(writtenFrom("time a => q\n0 H L\n", true), "time a ==(dT)=> q \n0000 H     0    L \n");
}

// Cells.

/// The cell that is written for this one, in a plain column.
std::string writtenCell(const std::string& cell) {
    const auto sequence = sequenceFrom("time a => q\n0 " + cell + " L\n");
    const std::string text = writtenText(*sequence);
    const std::string row = text.substr(text.find('\n') + 1);
    return splitWords(row).at(1);
}

TEST(TestSequenceFileWriter, GroupsOfFourBitsBecomeDigits) {
    for (const char* cell : {"0", "9", "12", "0F", "89ABCDEF0123", "H", "L", "Z", "HL", "LLH", "H0F", "LL7", "HHLB"}) {
        EXPECT_EQ(writtenCell(cell), cell);
    }
    EXPECT_EQ(writtenCell("LLLLHHHH"), "0F");
    EXPECT_EQ(writtenCell("HLLLLHHHH"), "H0F");
    EXPECT_EQ(writtenCell("abcdef"), "ABCDEF");
}

TEST(TestSequenceFileWriter, ACellWithAnyOtherGroupStandsAsItsBits) {
    EXPECT_EQ(writtenCell("2h"), "LLHLh");
    EXPECT_EQ(writtenCell("ZLLL"), "ZLLL");
    EXPECT_EQ(writtenCell("FHXLL"), "HHHHHXLL");
    EXPECT_EQ(writtenCell("FhhhhF"), "HHHHhhhhHHHH") << "lower-case letters make no digit";
    EXPECT_EQ(writtenCell("zzzz"), "zzzz");
}

TEST(TestSequenceFileWriter, ReversedCellsAndColumnsReadBack) {
    EXPECT_EQ(writtenFrom("time ~a b => ~c d\n0 1 ~1 ~1 1\n"),
              "time   ~a     b =>    ~c    d \n"
              "0000    1    ~1       ~1    1 \n");
    const auto sequence = sequenceFrom("time ~a b => ~c d\n0 1 ~1 ~1 1\n");
    EXPECT_EQ(sequence->vector(0)->input(0), "HLLL");
    EXPECT_EQ(sequence->vector(0)->input(1), "HLLL");
    EXPECT_EQ(sequence->vector(0)->output(0), "LLLH");
    EXPECT_EQ(sequence->vector(0)->output(1), "LLLH");
}

TEST(TestSequenceFileWriter, AnEmptyReversedCellIsATilde) {
    EXPECT_EQ(writtenFrom("time a => q\n0 ~ L\n"),
              "time a => q \n"
              "0000 ~    L \n");
}

TEST(TestSequenceFileWriter, EveryOutputIsWrittenWithTheTildeOfItsOwnColumn) {
    // Beside a delta time the reader gives `~` one column further left, so q's digit is read as it stands, and p's too.
    EXPECT_EQ(writtenFrom("time a ==(dT)=> ~q p\n0 H 5 1 2\n", true),
              "time a ==(dT)=>   ~q    p \n"
              "0000 H     5       8    2 \n");
    EXPECT_EQ(writtenFrom("time a ==(dT)=> q ~p\n0 H 5 1 2\n", true),
              "time a ==(dT)=>    q   ~p \n"
              "0000 H     5       8    4 \n");
}

// Reading back.

/// All that a file gives, but for the line numbers and the file's name.
std::string contentsOf(const TestSequence& sequence) {
    std::ostringstream text;
    for (const std::string& comment : sequence.comments()) text << "comment '" << comment << "'\n";
    for (const auto& option : sequence.options()) {
        text << option->name() << " '" << option->toString() << "' '" << option->getCommentText() << "'\n";
    }
    for (const auto& assignment : sequence.assignments()) {
        text << assignment->name() << " '" << assignment->value() << "' '" << assignment->getCommentText() << "'\n";
    }
    const TestVectorHeader& header = *sequence.header();
    text << "header '" << header.getCommentText() << "' " << header.hasDeltaTime() << '\n';
    for (int i = 0; i < header.columnCount(); ++i) text << header.columnName(i) << ' ' << header.isReversed(i) << '\n';
    for (const auto& vector : sequence.vectors()) {
        text << vector->time() << ' ' << vector->deltaTime() << " '" << vector->getCommentText() << "'\n";
        for (const TestColumn& cell : vector->inputs()) text << ' ' << cell.value << ' ' << cell.reversed;
        for (const TestColumn& cell : vector->outputs()) text << ' ' << cell.value << ' ' << cell.reversed;
        text << '\n';
    }
    return text.str();
}

TEST(TestSequenceFileWriter, TheFileReadsBackToAnEqualSequence) {
    for (const std::string separator : {"=>", "==(dT)=>"}) {
        const std::string delta = separator == "=>" ? " " : " 25 ";
        const auto sequence = sequenceFrom(
            "# file\n#\n"
            "U1(b=2, a)\n"
            "# about x\n# \nx = H\n"
            "# header\ntime ~a bus " +
            separator +
            " q wide\n"
            "5 ~LH 3Z" +
            delta +
            "L ~12F\n"
            "# a vector\n100000 1 ~" +
            delta + "hZ U # of two lines\nU2()\n");
        const std::string written = writtenText(*sequence, separator != "=>");
        const auto again = sequenceFrom(written);
        EXPECT_EQ(contentsOf(*again), contentsOf(*sequence));
        EXPECT_EQ(writtenText(*again, separator != "=>"), written);
    }
}

// What doesn't read back.

TEST(TestSequenceFileWriter, FourEqualUndefinedLettersShrinkToOne) {
    for (const std::string letter : {"X", "Z", "U"}) {
        const std::string four = letter + letter + letter + letter;
        EXPECT_EQ(writtenCell(four), letter);
        EXPECT_EQ(writtenCell(four + "A"), letter + "A");
        const auto again = sequenceFrom(writtenFrom("time a => q\n0 " + four + " L\n"));
        EXPECT_EQ(again->vector(0)->input(0), letter);
        EXPECT_EQ(writtenFrom("time a => q\n0 " + four + " L\n"), "time    a => q \n0000    " + letter + "    L \n")
            << "the width is still that of the four";
        EXPECT_EQ(writtenText(*again), "time a => q \n0000 " + letter + "    L \n");
    }
}

TEST(TestSequenceFileWriter, UndefinedLettersBeforeWholeGroupsBecomeLowerCase) {
    EXPECT_EQ(writtenCell("Z0"), "z0");
    EXPECT_EQ(writtenCell("HXULLLL"), "Hxu0");
    const auto again = sequenceFrom(writtenFrom("time a => q\n0 H XF\n"));
    EXPECT_EQ(again->vector(0)->output(0), "xHHHH");
}

TEST(TestSequenceFileWriter, CommentsBehindTheLastRecordAreLost) {
    EXPECT_EQ(writtenFrom("time a => q\n0 H L\n# the end\n\n# really\n"),
              "time a => q \n"
              "0000 H    L \n");
}

TEST(TestSequenceFileWriter, TheCommentOfTheFirstRecordBecomesOneOfTheFile) {
    const std::string written = writtenFrom("time a => q\n# about U1\nU1(a=1)\n0 H L\n");
    EXPECT_EQ(written,
              "# about U1\n"
              "U1(a=1)\n"
              "\n"
              "time a => q \n"
              "0000 H    L \n");
    EXPECT_EQ(writtenFrom(written),
              "# about U1\n"
              "\n"
              "U1(a=1)\n"
              "\n"
              "time a => q \n"
              "0000 H    L \n");
    const auto again = sequenceFrom(written);
    EXPECT_EQ(again->comments(), std::vector<std::string>{"about U1"});
    EXPECT_TRUE(again->option(0)->hasNoComment());
}

TEST(TestSequenceFileWriter, ATildeOnAnOutputBesideADeltaTimeTurnsTheBitsAround) {
    const std::string once = writtenFrom("time a ==(dT)=> ~q\n0 H 5 1\n", true);
    EXPECT_EQ(once, "time a ==(dT)=>   ~q \n0000 H     5       8 \n");
    EXPECT_EQ(writtenFrom(once, true), "time a ==(dT)=>   ~q \n0000 H     5       1 \n");
}

}  // namespace
}  // namespace tarnsim
