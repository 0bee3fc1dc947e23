#include "Core/Support/TextFile.h"

#include <vector>

#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

std::vector<std::string> linesOf(const std::string& path) {
    TextFile file(path);
    EXPECT_TRUE(file.isOpen());
    std::vector<std::string> lines;
    for (std::string line; file.readLine(line);) lines.push_back(line);
    return lines;
}

TEST(TextFile, IsReadLineByLine) {
    const TemporaryFolder folder;
    const std::pair<std::string, std::vector<std::string>> cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\n", {"a"}},
        {"a\nb", {"a", "b"}},
        {"\n\na\n\n", {"", "", "a", ""}},
        {"a\r\nb\r\n", {"a\r", "b\r"}},
        {std::string("a\0b\n", 4), {std::string("a\0b", 3)}},
    };
    for (const auto& [text, lines] : cases) EXPECT_EQ(linesOf(folder.write("file", text)), lines) << text;
}

TEST(TextFile, ReadsALineOfMegabytes) {
    const TemporaryFolder folder;
    const std::string line(kMegabytes, 'a');
    EXPECT_EQ(linesOf(folder.write("file", line + "\nb\n")), (std::vector<std::string>{line, "b"}));
}

TEST(TextFile, StaysAtTheEnd) {
    const TemporaryFolder folder;
    TextFile file(folder.write("file", "a\n"));
    std::string line;
    EXPECT_TRUE(file.readLine(line));
    EXPECT_FALSE(file.readLine(line));
    EXPECT_FALSE(file.readLine(line));
}

TEST(TextFile, IsNotOpenWhereThereIsNoFile) {
    const TemporaryFolder folder;
    EXPECT_FALSE(TextFile(folder.path("nothing")).isOpen());
    EXPECT_FALSE(TextFile("").isOpen());
}

TEST(TextFile, DoesNotOpenADirectory) {
    const TemporaryFolder folder;
    EXPECT_FALSE(TextFile(folder.path("")).isOpen());
}

TEST(TextFile, NamesTheFileThatTheSystemCannotReadOn) {
    // The first page of a process is never mapped: this file opens, and reading its first byte is an error.
    TextFile file("/proc/self/mem");
    ASSERT_TRUE(file.isOpen());
    std::string line;
    EXPECT_EQ(errorOf([&] { file.readLine(line); }), "Error: cannot read file '/proc/self/mem'.");
}

TEST(FileExists, IsTrueForFilesAndDirectories) {
    const TemporaryFolder folder;
    EXPECT_TRUE(fileExists(folder.write("file", "")));
    EXPECT_TRUE(fileExists(folder.path("")));
    EXPECT_FALSE(fileExists(folder.path("nothing")));
    EXPECT_FALSE(fileExists(""));
}

}  // namespace
}  // namespace tarnsim
