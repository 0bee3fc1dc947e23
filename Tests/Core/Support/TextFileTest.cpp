#include "Core/Support/TextFile.h"

#include <filesystem>
#include <fstream>
#include <optional>
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

TEST(TextFile, ReadsLinesOfAnyLength) {
    const TemporaryFolder folder;
    std::string text;
    std::vector<std::string> lines;
    for (std::size_t length = 4090; length < 4100; ++length) {
        for (const std::size_t size : {length, 2 * length}) {
            lines.push_back(std::string(size, static_cast<char>('a' + length % 26)));
            text += lines.back() + "\n";
        }
        const std::string path = folder.write("file", text);
        EXPECT_EQ(linesOf(path), lines) << length;
        folder.write("file", text.substr(0, text.size() - 1));
        EXPECT_EQ(linesOf(path), lines) << length << " without the last line feed";
    }
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

TEST(TextFile, StandsForAFileWithGivenContents) {
    const TemporaryFolder folder;
    TextFile file(folder.write("file", "on the disk\n"), "a\n\nb");
    ASSERT_TRUE(file.isOpen());
    std::vector<std::string> lines;
    for (std::string line; file.readLine(line);) lines.push_back(line);
    EXPECT_EQ(lines, (std::vector<std::string>{"a", "", "b"}));
}

TEST(TextFile, NamesTheFileThatTheSystemCannotReadOn) {
    // The first page of a process is never mapped: this file opens, and reading its first byte is an error.
    TextFile file("/proc/self/mem");
    ASSERT_TRUE(file.isOpen());
    std::string line;
    EXPECT_EQ(errorOf([&] { file.readLine(line); }), "Error: cannot read file '/proc/self/mem'.");
}

TEST(ReadBytes, GivesAFileAsItIs) {
    const TemporaryFolder folder;
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    for (const std::string& bytes : {std::string(), std::string("a"), std::string("a\r\n\n\x1a z\n"),
                                     std::string(3, '\0'), all, std::string(kMegabytes, '\xff')}) {
        EXPECT_EQ(readBytes(folder.write("file", bytes)), std::optional(bytes));
    }
}

TEST(ReadBytes, GivesNothingWhereThereIsNoFileToRead) {
    const TemporaryFolder folder;
    EXPECT_EQ(readBytes(folder.path("nothing")), std::nullopt);
    EXPECT_EQ(readBytes(folder.write("file", "x") + "/"), std::nullopt);
    EXPECT_EQ(readBytes(folder.path("")), std::nullopt);
    EXPECT_EQ(readBytes("."), std::nullopt);
    EXPECT_EQ(readBytes(""), std::nullopt);
}

TEST(ReadBytes, GivesNothingForAFileThatTheSystemCannotReadOn) {
    EXPECT_EQ(readBytes("/proc/self/mem"), std::nullopt);  // opens, and reading its first byte is an error
}

TEST(ReadBytes, GivesNothingForAFileThatMayNotBeRead) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "x");
    std::filesystem::permissions(path, std::filesystem::perms::none);
    if (std::ifstream(path).is_open()) GTEST_SKIP() << "this user may read every file";
    EXPECT_EQ(readBytes(path), std::nullopt);
}

TEST(ReadBytes, FollowsALink) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink(folder.write("file", "x"), folder.path("link"));
    std::filesystem::create_symlink(folder.path("nothing"), folder.path("dangling"));
    EXPECT_EQ(readBytes(folder.path("link")), std::optional<std::string>("x"));
    EXPECT_EQ(readBytes(folder.path("dangling")), std::nullopt);
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
