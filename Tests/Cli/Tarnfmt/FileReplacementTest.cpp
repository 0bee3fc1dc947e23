#include "Cli/Tarnfmt/FileReplacement.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>

#include "Core/Support/TextFile.h"
#include "Tests/Support/BusyWriter.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

namespace fs = std::filesystem;

std::string contentsOf(const std::string& path) {
    return readBytes(path).value_or("(no file)");
}

std::size_t filesIn(const std::string& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

/// Whether `action` gives true in a process of its own, which may change what it wants about itself.
bool isTrueInChild(const std::function<bool()>& action) {
    const pid_t child = fork();
    if (child == 0) _exit(action() ? 0 : 1);
    int state = 0;
    waitpid(child, &state, 0);
    return WIFEXITED(state) && WEXITSTATUS(state) == 0;
}

/// The permissions of the super-user know no limits.
void becomeNobody() {
    if (geteuid() == 0 && seteuid(65534) != 0) std::abort();
}

TEST(FileReplacement, ReadsAWholeFile) {
    const TemporaryFolder folder;
    const std::string text = std::string(200000, 'x') + std::string(1, '\0') + "\n";
    const FileSnapshot file = readSnapshot(folder.write("a", text));
    EXPECT_EQ(file.contents, text);
    EXPECT_EQ(file.path, folder.path("a"));
}

TEST(FileReplacement, SaysWhyAFileCannotBeRead) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { readSnapshot(folder.path("none")); }), "cannot be read: No such file or directory");
    EXPECT_EQ(errorOf([&] { readSnapshot(folder.path("")); }), "cannot be read: Is a directory");
}

TEST(FileReplacement, PutsTheContentsIntoAnotherFileOfThatName) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "old");
    const FileSnapshot old = readSnapshot(path);
    replaceFile(old, "new contents");
    EXPECT_EQ(contentsOf(path), "new contents");
    EXPECT_NE(readSnapshot(path).stamp.number, old.stamp.number);
    EXPECT_EQ(filesIn(folder.path("")), 1U);
}

TEST(FileReplacement, FindsTheFolderOfAFileWithoutOne) {
    const TemporaryFolder folder;
    folder.write("a", "old");
    const WorkingDirectory inside(folder.path(""));
    replaceFile(readSnapshot("a"), "new");
    EXPECT_EQ(contentsOf("a"), "new");
}

TEST(FileReplacement, KeepsTheMode) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "old");
    for (const mode_t mode : {0600U, 0644U, 0666U, 0755U, 02751U}) {
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
        replaceFile(readSnapshot(path), "new");
        EXPECT_EQ(readSnapshot(path).mode, mode);
    }
}

TEST(FileReplacement, KeepsTheOwnerIfItMay) {
    if (geteuid() != 0) GTEST_SKIP() << "only the super-user may give files away";
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "old");
    ASSERT_EQ(chown(path.c_str(), 65534, 65533), 0);
    replaceFile(readSnapshot(path), "new");
    const FileSnapshot file = readSnapshot(path);
    EXPECT_EQ(file.owner, 65534U);
    EXPECT_EQ(file.group, 65533U);
}

TEST(FileReplacement, OfALinkReplacesTheFileBehindIt) {
    const TemporaryFolder folder;
    folder.write("deep/file", "old");
    fs::create_directory(folder.path("links"));
    fs::create_symlink("../deep/file", folder.path("links/one"));
    fs::create_symlink("one", folder.path("links/two"));
    replaceFile(readSnapshot(folder.path("links/two")), "new");
    EXPECT_EQ(contentsOf(folder.path("deep/file")), "new");
    EXPECT_FALSE(fs::is_symlink(folder.path("deep/file")));
    EXPECT_EQ(fs::read_symlink(folder.path("links/one")), "../deep/file");
    EXPECT_EQ(fs::read_symlink(folder.path("links/two")), "one");
    EXPECT_EQ(filesIn(folder.path("links")), 2U);
}

TEST(FileReplacement, RefusesAFileThatChangesWhileItIsRead) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "x");
    const BusyWriter writer(path);
    EXPECT_EQ(errorOfTries(1'000'000, [&] { readSnapshot(path); }), "was changed by somebody else meanwhile");
}

TEST(FileReplacement, RefusesAFileThatWasChangedMeanwhile) {
    constexpr const char* kRefusal = "was changed by somebody else meanwhile";
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "old");

    FileSnapshot old = readSnapshot(path);
    folder.write("a", "longer");
    EXPECT_EQ(errorOf([&] { replaceFile(old, "new"); }), kRefusal);
    EXPECT_EQ(contentsOf(path), "longer");

    // Of the same length, at another time.
    old = readSnapshot(path);
    fs::last_write_time(path, fs::last_write_time(path) + std::chrono::nanoseconds(1000));
    EXPECT_EQ(errorOf([&] { replaceFile(old, "new"); }), kRefusal);

    // Another file of the same length and time.
    old = readSnapshot(path);
    folder.write("b", "LONGER");
    fs::last_write_time(folder.path("b"), fs::last_write_time(path));
    fs::rename(folder.path("b"), path);
    EXPECT_EQ(errorOf([&] { replaceFile(old, "new"); }), kRefusal);
    EXPECT_EQ(contentsOf(path), "LONGER");
    EXPECT_EQ(filesIn(folder.path("")), 1U);
}

TEST(FileReplacement, RefusesALinkThatLeadsElsewhereMeanwhile) {
    const TemporaryFolder folder;
    folder.write("a", "old");
    folder.write("b", "old");
    fs::create_symlink("a", folder.path("link"));
    const FileSnapshot old = readSnapshot(folder.path("link"));
    fs::remove(folder.path("link"));
    fs::create_symlink("b", folder.path("link"));
    EXPECT_EQ(errorOf([&] { replaceFile(old, "new"); }), "was changed by somebody else meanwhile");
    EXPECT_EQ(contentsOf(folder.path("b")), "old");
}

TEST(FileReplacement, DoesNotBringBackAFileThatHasGone) {
    const TemporaryFolder folder;
    const FileSnapshot old = readSnapshot(folder.write("a", "old"));
    fs::remove(old.path);
    EXPECT_EQ(errorOf([&] { replaceFile(old, "new"); }), "cannot be found any longer: No such file or directory");
    EXPECT_EQ(filesIn(folder.path("")), 0U);
}

TEST(FileReplacement, LeavesTheOldFileIfTheNewOneDoesNotFit) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "old");
    EXPECT_TRUE(isTrueInChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        return errorOf([&] { replaceFile(readSnapshot(path), std::string(1001, 'x')); }) ==
               "cannot be written: File too large";
    }));
    EXPECT_EQ(contentsOf(path), "old");
    EXPECT_EQ(filesIn(folder.path("")), 1U);
}

TEST(FileReplacement, RefusesAFileThatMustNotBeWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "old");
    ASSERT_EQ(chmod(folder.path("").c_str(), 0777), 0);
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    EXPECT_TRUE(isTrueInChild([&] {
        becomeNobody();
        return errorOf([&] { replaceFile(readSnapshot(path), "new"); }) == "cannot be written: Permission denied";
    }));
    EXPECT_EQ(contentsOf(path), "old");
}

TEST(FileReplacement, RefusesAFileInAFolderThatMustNotBeWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "old");
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path("").c_str(), 0555), 0);
    EXPECT_TRUE(isTrueInChild([&] {
        becomeNobody();
        return errorOf([&] { replaceFile(readSnapshot(path), "new"); }) ==
               "no file can be made in its folder: Permission denied";
    }));
    ASSERT_EQ(chmod(folder.path("").c_str(), 0755), 0);
    EXPECT_EQ(contentsOf(path), "old");
    EXPECT_EQ(filesIn(folder.path("")), 1U);
}

TEST(FileReplacement, RefusesWhatIsNoRegularFile) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    for (const std::string& path : {folder.path("pipe"), folder.path(""), std::string("/dev/null")}) {
        EXPECT_EQ(errorOf([&] { refuseSpecialFile(path); }), "is no regular file, it cannot be replaced");
    }
    fs::create_symlink("a", folder.path("link"));
    EXPECT_EQ(errorOf([&] { refuseSpecialFile(folder.path("link")); }), "(no Error)");
    folder.write("a", "");
    EXPECT_EQ(errorOf([&] { refuseSpecialFile(folder.path("link")); }), "(no Error)");
}

TEST(FileReplacement, OutputArrivesInPipes) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    writeOutput(ends[1], "text\n");
    close(ends[1]);
    char buffer[16] = {};
    EXPECT_EQ(read(ends[0], buffer, sizeof buffer), 5);
    EXPECT_STREQ(buffer, "text\n");
    close(ends[0]);
}

TEST(FileReplacement, SaysWhyOutputDoesNotArrive) {
    const int full = open("/dev/full", O_WRONLY);
    ASSERT_GE(full, 0);
    EXPECT_EQ(errorOf([&] { writeOutput(full, "text"); }), "cannot be written: No space left on device");
    close(full);
    EXPECT_EQ(errorOf([&] { writeOutput(full, "text"); }), "cannot be written: Bad file descriptor");
}

}  // namespace
}  // namespace tarnsim
