#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

TEST(CircuitSpecComment, BehindAStatementBelongsToIt) {
    const auto spec = specFrom("Unit And a # note\nUnit And b\n");
    EXPECT_EQ(spec->unitLines[0].getCommentText(), "note\n");
    EXPECT_EQ(spec->unitLines[1].getCommentText(), "");
    EXPECT_TRUE(spec->freeComments.empty());
    EXPECT_FALSE(spec->hasPendingComment());
}

TEST(CircuitSpecComment, AboveAndBehindAStatementAreOneBlock) {
    const auto spec = specFrom("# one\n#  two \nNet n a b # three\n");
    EXPECT_EQ(spec->netLines[0].getCommentText(), "one\ntwo\nthree\n");
}

TEST(CircuitSpecComment, GoesToTheRecordOfEachKind) {
    const auto spec = specFrom("# u\nUnit And a\n# n\nNet n a b\n# p\nPort Input 2 p\n# q\nPin Input q\n");
    EXPECT_EQ(spec->unitLines[0].getCommentText(), "u\n");
    EXPECT_EQ(spec->netLines[0].getCommentText(), "n\n");
    EXPECT_EQ(spec->portLines[0].getCommentText(), "p\n");
    EXPECT_EQ(spec->pinLines[0].getCommentText(), "q\n");
}

TEST(CircuitSpecComment, StaysPendingOverLinesOfBlanks) {
    for (const std::string line : {" ", "\t", "\r", " \v\f"}) {
        const auto spec = specFrom("# note\n" + line + "\nUnit And a\n");
        EXPECT_EQ(spec->unitLines[0].getCommentText(), "note\n");
        EXPECT_TRUE(spec->freeComments.empty());
    }
}

TEST(CircuitSpecComment, BecomesFreeAtATrulyEmptyLine) {
    const auto spec = specFrom("# one\n# two\n\n# three\nUnit And a\n\n# four\n\n\n# five\n\n");
    EXPECT_EQ(spec->freeComments, (Texts{"one\ntwo\n", "four\n", "five\n"}));
    EXPECT_EQ(spec->unitLines[0].getCommentText(), "three\n");
}

TEST(CircuitSpecComment, BecomesFreeAtAStatementThatTakesNone) {
    const Workplace here;
    here.write("part.nlx", "");
    for (const std::string statement :
         {"Import \"part.nlx\"", "ImportPath \"lib\"", "MetaData k \"v\"", "Circuit x {", "Circuit x \"part.nlx\""}) {
        here.write("board.nlx", "# above\n" + statement + " # behind\n");
        const CircuitSpec spec("board.nlx");
        EXPECT_EQ(spec.freeComments, Texts{"above\nbehind\n"}) << statement;
        for (const auto& line : spec.metaDataLines) EXPECT_EQ(line.getCommentText(), "");
    }
}

TEST(CircuitSpecComment, InABodyStaysInTheBody) {
    const auto spec = specFrom("Circuit x {\n# one\n\n# two\nUnit And a\n# three\n} # four\n# five\n\n");
    EXPECT_EQ(spec->subSpecs[0]->freeComments, (Texts{"one\n", "three\nfour\n"}));
    EXPECT_EQ(spec->subSpecs[0]->unitLines[0].getCommentText(), "two\n");
    EXPECT_EQ(spec->freeComments, Texts{"five\n"});
}

TEST(CircuitSpecComment, OfNothingButBlanksIsNeverFree) {
    const auto spec = specFrom("#\n#  \n\nUnit And a\n");
    EXPECT_TRUE(spec->freeComments.empty());
    EXPECT_EQ(spec->unitLines[0].getCommentText(), "\n\n") << "but it waits for a statement";
}

TEST(CircuitSpecComment, OfBlanksIsFlushedWithTheTextThatFollows) {
    const auto spec = specFrom("#\n\n# text\n\n");
    EXPECT_EQ(spec->freeComments, Texts{"\ntext\n"});
}

TEST(CircuitSpecComment, AtTheEndOfTheFileStaysPending) {
    auto spec = specFrom("Unit And a\n# tail\n");
    EXPECT_TRUE(spec->freeComments.empty());
    EXPECT_TRUE(spec->hasPendingComment());
    spec->clearPendingComment();
    EXPECT_FALSE(spec->hasPendingComment());
}

TEST(CircuitSpecComment, AtTheEndOfAnImportedFileGoesToTheNextStatementOfTheImportingOne) {
    const Workplace here;
    here.write("part.nlx", "# tail\n");
    here.write("board.nlx", "Import \"part.nlx\"\nUnit And a\n");
    const CircuitSpec spec("board.nlx");
    EXPECT_EQ(spec.unitLines[0].getCommentText(), "tail\n");
}

TEST(CircuitSpecComment, CanBeAddedFromOutside) {
    auto spec = specFrom("");
    spec->addCommentLine("one");
    spec->addCommentLine("two");
    EXPECT_TRUE(spec->hasPendingComment());
    spec->clearPendingComment();
    spec->addCommentLine(" \t\v\f\r ");
    EXPECT_FALSE(spec->hasPendingComment()) << "blanks alone don't count";
}

TEST(CircuitSpecComment, OfARefusedStatementLineIsReadFirst) {
    EXPECT_EQ(errorOfReading("Nonsense # Unit\n"), "Error in board.nlx:1: Illegal keyword: 'Nonsense'.");
}

}  // namespace
}  // namespace tarnsim
