#include "Core/Circuit/FileParser.h"

#include <string>
#include <vector>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

class CommentCollector : public FileParser {
public:
    void addCommentLine(const std::string& text) override { comments.push_back(text); }

    std::vector<std::string> comments;
};

struct PrepareCase {
    std::string raw;
    std::string rest;
    std::vector<std::string> comments;
};

class FileParserLine : public testing::TestWithParam<PrepareCase> {};

TEST_P(FileParserLine, IsTrimmedAndLosesItsComment) {
    CommentCollector parser;
    std::string line = GetParam().raw;
    parser.prepareLine(line);
    EXPECT_EQ(line, GetParam().rest);
    EXPECT_EQ(parser.comments, GetParam().comments);
}

INSTANTIATE_TEST_SUITE_P(
    FileParser, FileParserLine,
    testing::Values(PrepareCase{"Unit And a # first", "Unit And a", {"first"}},          // behind a statement
                    PrepareCase{"   # only a comment", "", {"only a comment"}},          // blanks and a comment
                    PrepareCase{"", "", {}},                                             // nothing
                    PrepareCase{" \t\n\v\f\r", "", {}},                                  // every trimmed character
                    PrepareCase{"\t\v\f\r Net a b \r\f\v\t", "Net a b", {}},             // at both ends
                    PrepareCase{"a\t b", "a\t b", {}},                                   // not in the middle
                    PrepareCase{"#", "", {""}},                                          // an empty comment is one
                    PrepareCase{"# \t ", "", {""}},                                      // and so is a blank one
                    PrepareCase{"a # b # c", "a", {"b # c"}},                            // the first # counts
                    PrepareCase{"## b", "", {"# b"}},                                    // also of two in a row
                    PrepareCase{"Import \"a#b\"", "Import \"a", {"b\""}},                // inside quotes too
                    PrepareCase{"MetaData k \\# v", "MetaData k \\", {"v"}},             // nothing escapes it
                    PrepareCase{"a#\v\f b \r", "a", {"b"}},                              // the comment is trimmed
                    PrepareCase{"\xC2\xA0 a # \xC2\xA0", "\xC2\xA0 a", {"\xC2\xA0"}}));  // other bytes aren't blanks

TEST(FileParser, EachPreparedLineHandsOverItsOwnComment) {
    CommentCollector parser;
    for (std::string line : {"a # 1", "b", "# 2"}) parser.prepareLine(line);
    EXPECT_EQ(parser.comments, (std::vector<std::string>{"1", "2"}));
}

}  // namespace
}  // namespace tarnsim
