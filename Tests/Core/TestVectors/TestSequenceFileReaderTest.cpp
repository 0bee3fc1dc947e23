#include "Core/TestVectors/TestSequenceFileReader.h"

#include "Tests/Core/TestVectors/SequenceSupport.h"

namespace tarnsim {
namespace {

using Texts = std::vector<std::string>;

/// A signal file and what reading it raises.
struct Refusal {
    TemporaryFolder folder;
    TestSequence sequence{TestSequence::kEmpty};
    std::string path;
    std::string message;

    explicit Refusal(const std::string& text) : path(folder.write("test.sig", text)) {
        message = errorOf([&] { TestSequenceFileReader().read(path, sequence); });
    }
};

TEST(TestSequenceFileReader, ReadsContentsThatAreNotOnTheDisk) {
    TestSequence sequence(TestSequence::kEmpty);
    TestSequenceFileReader().read("none.sig", "time a => b\n5 H L\n", sequence);
    EXPECT_EQ(sequence.fileName(), "none.sig");
    EXPECT_EQ(sequence.vectorCount(), 1);
    EXPECT_EQ(errorOf([&] { TestSequenceFileReader().read("none.sig", "", sequence); }),
              "Test vector file ('none.sig') must at least contain a header.\n");
    EXPECT_EQ(sequence.vectorCount(), 0);
}

TEST(TestSequenceFileReader, AFileGivesItsRecordsInTheOrderOfEachKind) {
    const TemporaryFolder folder;
    const std::string path = folder.write("x.sig", "x = 1\nU1(a=1)\ntime a => b\n0 H L\nU2()\n10 L H\ny=2\n");
    const TestSequence sequence(path);
    EXPECT_EQ(sequence.fileName(), path);
    ASSERT_NE(sequence.header(), nullptr);
    EXPECT_EQ(sequence.header()->getLineNumber(), 3);
    ASSERT_EQ(sequence.vectorCount(), 2);
    EXPECT_EQ(sequence.vector(0)->getLineNumber(), 4);
    EXPECT_EQ(sequence.vector(1)->getLineNumber(), 6);
    EXPECT_EQ(sequence.vector(1)->getHeader(), sequence.header());
    ASSERT_EQ(sequence.optionCount(), 2);
    EXPECT_EQ(sequence.option(0)->name(), "U1");
    EXPECT_EQ(sequence.option(1)->name(), "U2");
    ASSERT_EQ(sequence.assignmentCount(), 2);
    EXPECT_EQ(sequence.assignment(0)->name(), "x");
    EXPECT_EQ(sequence.assignment(1)->name(), "y");
}

TEST(TestSequenceFileReader, AHeaderAloneIsEnough) {
    const auto sequence = sequenceFrom("time a");
    EXPECT_EQ(sequence->vectorCount(), 0);
    EXPECT_EQ(sequence->lastEndTime(), 0);
}

TEST(TestSequenceFileReader, ReadingReplacesTheFormerContents) {
    const TemporaryFolder folder;
    const auto sequence = sequenceFrom("# old\ng()\nx=1\ntime a\n0 H\n");
    const std::string path = folder.write("new.sig", "time b\n");
    TestSequenceFileReader().read(path, *sequence);
    EXPECT_EQ(sequence->header()->inputName(0), "b");
    EXPECT_EQ(sequence->vectorCount() + sequence->optionCount() + sequence->assignmentCount(), 0);
    EXPECT_TRUE(sequence->comments().empty());
    EXPECT_EQ(sequence->fileName(), path);
}

TEST(TestSequenceFileReader, AMissingFileIsReported) {
    TestSequence sequence(TestSequence::kNewFile);
    EXPECT_EQ(errorOf([&] { TestSequenceFileReader().read("no/such.sig", sequence); }), "File 'no/such.sig'not found.");
    EXPECT_EQ(sequence.header(), nullptr);
    EXPECT_EQ(sequence.fileName(), "no/such.sig");
    EXPECT_EQ(errorOf([] { TestSequence("no/such.sig"); }), "File 'no/such.sig'not found.");
}

TEST(TestSequenceFileReader, AFileMustHoldAHeader) {
    for (const char* text : {"", "\n \n", "U1()\nx=1\n"}) {
        const Refusal refusal(text);
        EXPECT_EQ(refusal.message, "Test vector file ('" + refusal.path + "') must at least contain a header.\n");
    }
    const Refusal comments("# one\n  # two\n");
    EXPECT_EQ(comments.message, "Test vector file ('" + comments.path + "') must at least contain a header.\n");
    EXPECT_EQ(comments.sequence.comments(), (Texts{"one", "two"}));
}

TEST(TestSequenceFileReader, ASecondHeaderIsRefused) {
    const Refusal refusal("time a\n\ntime b\n");
    EXPECT_EQ(refusal.message, "A second header line was discovered in line 3 in test file '" + refusal.path +
                                   "'. There can only be one.");
    EXPECT_EQ(refusal.sequence.header()->inputName(0), "a") << "what was read before stays";
}

TEST(TestSequenceFileReader, ASecondHeaderComesBeforeItsOwnMistakes) {
    const Refusal refusal("time a\ntimex\n");
    EXPECT_EQ(refusal.message, "A second header line was discovered in line 2 in test file '" + refusal.path +
                                   "'. There can only be one.");
}

TEST(TestSequenceFileReader, AVectorNeedsAHeaderAboveIt) {
    const Refusal refusal("# c\n0 H\ntime a\n");
    EXPECT_EQ(refusal.message, "Test vector parse error on line 2 in file '" + refusal.path +
                                   "': a header must precede the test vectors");
}

TEST(TestSequenceFileReader, ALineOfNoKindIsASyntaxError) {
    for (const std::string line : {"100", "100\tH", "Time a => q", "a.b(x=1)", "U1(x=1", "a = ", "a == b", "(x=1)",
                                   "-5 H", ".a=1", "=>", "tim"}) {
        const Refusal refusal("time a\n " + line + " # comment\n");
        const std::string cleaned = line == "a = " ? "a =" : line;
        EXPECT_EQ(refusal.message, "Syntax error on line 2 in test file '" + refusal.path + "': '" + cleaned + "'");
    }
}

TEST(TestSequenceFileReader, AnAssignmentComesBeforeHeaderAndVector) {
    const auto sequence = sequenceFrom("time=5\n12 =3\ntime a\n");
    ASSERT_EQ(sequence->assignmentCount(), 2);
    EXPECT_EQ(sequence->assignment(0)->name(), "time");
    EXPECT_EQ(sequence->assignment(0)->value(), "5");
    EXPECT_EQ(sequence->assignment(1)->name(), "12");
    EXPECT_EQ(sequence->assignment(1)->value(), "3");
}

TEST(TestSequenceFileReader, OptionsComeBeforeAssignmentAndHeader) {
    const auto sequence = sequenceFrom("time(a=1) b=2\ntime a\n");
    ASSERT_EQ(sequence->optionCount(), 1);
    EXPECT_EQ(sequence->option(0)->name(), "time");
    EXPECT_EQ(sequence->assignmentCount(), 0);
}

TEST(TestSequenceFileReader, TimesMustAscend) {
    const Refusal equal("time a\n5 H\n10 H\n10 L\n");
    EXPECT_EQ(equal.message,
              "Time must move strictly forward in test file. In file '" + equal.path + "': 10 cannot come after 10.");
    const Refusal back("time a\n5 H\n4 H\n3 H\n");
    EXPECT_EQ(back.message,
              "Time must move strictly forward in test file. In file '" + back.path + "': 4 cannot come after 5.");
    EXPECT_EQ(back.sequence.vectorCount(), 3);
}

TEST(TestSequenceFileReader, EndTimesMayGoBack) {
    EXPECT_EQ(sequenceFrom("time a ==(dT)=>\n0 H 50\n1 H 0\n")->lastEndTime(), 1);
}

TEST(TestSequenceFileReader, MessagesOfALineCountAllLinesAboveIt) {
    EXPECT_EQ(Refusal("# c\n\ntime\n").message, "Error on line 3: No inputs defined.");
    EXPECT_EQ(Refusal("timex a => b\n").message, "Error on line 1: The header must start with the keyword 'time'.");
    EXPECT_EQ(Refusal("time a\n# c\n\n0 H H\n").message,
              "Error on line 4: Extraneous fields: 1 in header, 2 in vector.");
    EXPECT_EQ(Refusal("time a\n0 y\n").message, "Error on line 2: Illegal character in vector: 'y'.");
}

TEST(TestSequenceFileReader, OptionsAndAssignmentsFailWithoutALine) {
    EXPECT_EQ(Refusal("time a\nU1(a=1=2)\n").message, "Too many equal signs in options string: 'a=1=2'");
    EXPECT_EQ(Refusal("time a\nx=y=z\n").message, "Too many equal signs in port assignment: 'x=y=z'");
}

TEST(TestSequenceFileReader, CommentsAboveTheFirstRecordBelongToTheFile) {
    const auto sequence = sequenceFrom("# one\n\n#\n   #  two  \ntime a # on the first record\n0 H\n");
    EXPECT_EQ(sequence->comments(), (Texts{"one", "", "two", "on the first record"}));
    EXPECT_EQ(sequence->header()->getCommentText(), "");
}

TEST(TestSequenceFileReader, EveryKindOfRecordEndsTheCommentsOfTheFile) {
    EXPECT_EQ(sequenceFrom("#1\nU1() #2\n#3\ntime a\n")->header()->getCommentText(), "3\n");
    EXPECT_EQ(sequenceFrom("#1\nx=1 #2\n#3\ntime a\n")->header()->getCommentText(), "3\n");
    EXPECT_EQ(sequenceFrom("#1\ntime a #2\n#3\n0 H\n")->vector(0)->getCommentText(), "3\n");
}

TEST(TestSequenceFileReader, ACommentGoesToTheRecordOfItsLineOrBelow) {
    const auto sequence =
        sequenceFrom("time a\n# above\n\n# more\n0 H # beside\n10 L\n# x\nx=1\nU1() # u\n20 H\n# lost\n");
    EXPECT_EQ(sequence->vector(0)->getCommentText(), "above\nmore\nbeside\n");
    EXPECT_EQ(sequence->vector(1)->getCommentText(), "");
    EXPECT_EQ(sequence->assignment(0)->getCommentText(), "x\n");
    EXPECT_EQ(sequence->option(0)->getCommentText(), "u\n");
    EXPECT_EQ(sequence->vector(2)->getCommentText(), "");
    EXPECT_TRUE(sequence->comments().empty());
}

TEST(TestSequenceFileReader, BlanksOfAllKindsSeparateWords) {
    const auto sequence = sequenceFrom(" \ttime \t a\v=>\fb \r\n 10 H\tL\r\n");
    EXPECT_EQ(sequence->header()->inputName(0), "a");
    EXPECT_EQ(sequence->header()->outputName(0), "b");
    EXPECT_EQ(sequence->vector(0)->output(0), "L");
}

}  // namespace
}  // namespace tarnsim
