#include "Core/Support/TLog.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// Puts the log's settings back, whatever a test does.
class TLogTest : public testing::Test {
protected:
    void TearDown() override {
        TLog::enable();
        TLog::setIndentText("   ");
    }
};

TEST_F(TLogTest, TheFirstObjectIsNotIndented) {
    EXPECT_EQ(outputOf([] {
                  TLog log("loading %s", "board.nlx");
                  log.log("%d units", 3);
              }),
              "loading board.nlx\n3 units\n");
}

TEST_F(TLogTest, ANestedObjectIsIndentedByOneStep) {
    EXPECT_EQ(outputOf([] {
                  TLog outer("outer");
                  {
                      TLog middle("middle");
                      const TLog inner("inner");
                      middle.log("at the level of the innermost");
                  }
                  outer.log("outer again");
              }),
              "outer\n"
              "   middle\n"
              "      inner\n"
              "      at the level of the innermost\n"
              "outer again\n");
}

TEST_F(TLogTest, ANullFormatPrintsNothingButCounts) {
    EXPECT_EQ(outputOf([] {
                  const TLog silent(nullptr);
                  const TLog inner("inner");
              }),
              "   inner\n");
}

TEST_F(TLogTest, CountsLevelsWhileItIsDisabled) {
    EXPECT_EQ(outputOf([] {
                  TLog::disable();
                  TLog outer("outer");
                  outer.log("nothing");
                  const TLog middle("middle");
                  TLog::enable();
                  const TLog inner("inner");
              }),
              "      inner\n");
}

TEST_F(TLogTest, ComesBackToItsLevelWhileItIsDisabled) {
    EXPECT_EQ(outputOf([] {
                  TLog::disable();
                  { const TLog outer("outer"); }
                  TLog::enable();
                  const TLog next("next");
              }),
              "next\n");
}

TEST_F(TLogTest, TakesAnotherIndentText) {
    EXPECT_EQ(outputOf([] {
                  TLog::setIndentText("> ");
                  const TLog outer("a");
                  const TLog middle("b");
                  const TLog inner("c");
              }),
              "a\n> b\n> > c\n");
}

TEST_F(TLogTest, AnEmptyFormatMakesAnEmptyLine) {
    EXPECT_EQ(outputOf([] {
                  TLog outer("%s", "");
                  const TLog inner("%s", "");
              }),
              "\n   \n");
}

TEST_F(TLogTest, IsCalledThroughAReferenceToItsBase) {
    class Counting : public TLog {
    public:
        Counting() : TLog(nullptr) {}
        void log(const char*, ...) override { ++calls; }
        int calls = 0;
    };
    Counting counting;
    TLog& log = counting;
    log.log("one");
    EXPECT_EQ(counting.calls, 1);
}

TEST_F(TLogTest, WritesToTheStandardOutput) {
    EXPECT_EQ(errorOutputOf([] { outputOf([] { const TLog log("line"); }); }), "");
}

TEST_F(TLogTest, FlushesEachLine) {
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_NONBLOCK), 0);
    std::fflush(stdout);
    const int standardOutput = dup(STDOUT_FILENO);
    dup2(ends[1], STDOUT_FILENO);
    TLog log("first");
    char line[16] = "";
    const ssize_t first = read(ends[0], line, sizeof line);
    log.log("second");
    const ssize_t second = read(ends[0], line, sizeof line);
    dup2(standardOutput, STDOUT_FILENO);
    for (const int file : {ends[0], ends[1], standardOutput}) close(file);
    EXPECT_EQ(first, 6);
    EXPECT_EQ(second, 7);
    EXPECT_STREQ(line, "second\n");
}

}  // namespace
}  // namespace tarnsim
