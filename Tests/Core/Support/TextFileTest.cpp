#include "Core/Support/TextFile.h"

#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

#include "Tests/Support/BusyWriter.h"
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

/// More than is read at once.
std::string longText() {
    std::string text;
    while (text.size() < kMegabytes) text += "a line\n";
    return text;
}

/// The message when `change` happens to a file behind its first line.
std::string errorAfter(const std::function<void(const std::string& path)>& change) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", longText());
    TextFile file(path);
    std::string line;
    EXPECT_TRUE(file.readLine(line));
    change(path);
    std::string message = errorOf([&] {
        while (file.readLine(line)) EXPECT_EQ(line, "a line");
    });
    if (const std::size_t at = message.find(path); at != std::string::npos) message.replace(at, path.size(), "PATH");
    return message;
}

TEST(TextFile, RefusesAFileThatChangesWhileItIsRead) {
    const std::string refusal = "Error: file 'PATH' was changed while it was read.";
    namespace fs = std::filesystem;
    EXPECT_EQ(errorAfter([](const std::string& path) { fs::resize_file(path, 0); }), refusal);
    EXPECT_EQ(errorAfter([](const std::string& path) { fs::resize_file(path, 7 * 20'000); }), refusal);
    EXPECT_EQ(errorAfter([](const std::string& path) { std::ofstream(path, std::ios::app) << "a line\n"; }), refusal);
    EXPECT_EQ(errorAfter([](const std::string& path) {
                  fs::last_write_time(path, fs::last_write_time(path) + std::chrono::seconds(1));  // of the same size
              }),
              refusal);
}

TEST(TextFile, ReadsAFileToItsEndThatVanishes) {
    namespace fs = std::filesystem;
    EXPECT_EQ(errorAfter([](const std::string& path) { fs::remove(path); }), "(no Error)");
    EXPECT_EQ(errorAfter([](const std::string& path) {
                  fs::rename(path, path + ".old");
                  fs::create_directory(path);
              }),
              "(no Error)");
    EXPECT_EQ(errorAfter([](const std::string& path) {
                  std::ofstream(path + ".new") << "another line";
                  fs::rename(path + ".new", path);
              }),
              "(no Error)");
}

TEST(ReadBytes, RefusesAFileThatChangesWhileItIsRead) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "x");
    const BusyWriter writer(path);
    EXPECT_EQ(errorOfTries(1'000'000, [&] { readBytes(path); }),
              "Error: file '" + path + "' was changed while it was read.");
}

TEST(ReadBytes, DoesNotWaitForAPipe) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(readBytes(folder.path("pipe")), std::nullopt);
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
