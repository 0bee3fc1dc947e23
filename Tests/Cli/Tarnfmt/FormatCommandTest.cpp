#include "Cli/Tarnfmt/FormatCommand.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "Cli/Tarnfmt/FileReplacement.h"
#include "Core/Support/TextFile.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

namespace fs = std::filesystem;

using Arguments = std::vector<std::string>;

/// What the program does with a command line.
struct Call {
    std::string output;
    std::string errors;
    int status = -1;

    explicit Call(const Arguments& arguments) {
        errors = errorOutputOf([&] { output = outputOf([&] { status = runTarnfmt(arguments); }); });
    }
};

/// Its status in a process of its own, after `prepare`.
int statusInChild(const std::function<void()>& prepare, const Arguments& arguments) {
    const pid_t child = fork();
    if (child == 0) {
        prepare();
        _exit(runTarnfmt(arguments));
    }
    int state = 0;
    waitpid(child, &state, 0);
    return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
}

constexpr const char* kSignals = "time a => q\n0 L X\n";
constexpr const char* kTidySignals = "time a => q \n0000 L    X \n";

TEST(FormatCommand, OptionsMayStandAnywhere) {
    const FormatOptions options = parseFormatOptions({"a.nlx", "-i", "b", "--force", "--signals", "--", "-i", "--"});
    EXPECT_TRUE(options.inPlace);
    EXPECT_TRUE(options.force);
    EXPECT_EQ(options.kind, FileKind::Signals);
    EXPECT_EQ(options.files, (Arguments{"a.nlx", "b", "-i", "--"}));
    EXPECT_FALSE(options.help || options.version);
}

TEST(FormatCommand, OneFileIsEnough) {
    const FormatOptions options = parseFormatOptions({"a.sig"});
    EXPECT_EQ(options.files, Arguments{"a.sig"});
    EXPECT_FALSE(options.kind || options.inPlace || options.force);
}

TEST(FormatCommand, HelpAndVersionNeedNoFile) {
    EXPECT_TRUE(parseFormatOptions({"--help"}).help);
    EXPECT_TRUE(parseFormatOptions({"-h", "--circuit"}).help);
    EXPECT_TRUE(parseFormatOptions({"--version"}).version);
}

TEST(FormatCommand, TakesOnlyWholeOptions) {
    for (const char* option : {"-", "-I", "-ih", "--forc", "--force=1", "--Help", "-v"}) {
        EXPECT_EQ(errorOf([&] {
                      parseFormatOptions({option, "a.nlx"});
                  }),
                  std::string("unknown option '").append(option).append("'"));
    }
}

TEST(FormatCommand, WrongUsageTouchesNoFile) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.sig", kSignals);
    const Call call({"-i", path, folder.path("b.txt")});
    EXPECT_EQ(call.status, 2);
    EXPECT_EQ(call.output, "");
    EXPECT_EQ(readBytes(path), kSignals);
}

TEST(FormatCommand, PrintsAndLeavesTheFileAlone) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.sig", kSignals);
    const Call call({path});
    EXPECT_EQ(call.output, kTidySignals);
    EXPECT_EQ(call.errors, "");
    EXPECT_EQ(call.status, 0);
    EXPECT_EQ(readBytes(path), kSignals);
}

TEST(FormatCommand, ReplacesInPlaceAndPrintsNothing) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.sig", kSignals);
    const Call call({"-i", path});
    EXPECT_EQ(call.output + call.errors, "");
    EXPECT_EQ(call.status, 0);
    EXPECT_EQ(readBytes(path), kTidySignals);
}

TEST(FormatCommand, DoesNotReplaceAFileByTheSame) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.sig", kTidySignals);
    const FileStamp before = readSnapshot(path).stamp;
    EXPECT_EQ(Call({"-i", path}).status, 0);
    EXPECT_EQ(readSnapshot(path).stamp, before);
}

TEST(FormatCommand, APipeCanBePrintedButNotReplaced) {
    const TemporaryFolder folder;
    const std::string path = folder.path("pipe.sig");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const Call call({"-i", path});
    EXPECT_EQ(call.errors, "tarnfmt: " + path + ": is no regular file, it cannot be replaced\n");
    EXPECT_EQ(call.status, 1);

    const pid_t writer = fork();
    if (writer == 0) {
        const int pipe = open(path.c_str(), O_WRONLY);
        writeOutput(pipe, kSignals);
        _exit(0);
    }
    EXPECT_EQ(Call({path}).output, kTidySignals);
    waitpid(writer, nullptr, 0);
}

TEST(FormatCommand, AFullOutputIsAFailure) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.sig", kSignals);
    for (const Arguments& arguments : {Arguments{path}, Arguments{"--help"}, Arguments{"--version"}}) {
        const std::string errors = errorOutputOf(
            [&] { EXPECT_EQ(statusInChild([] { dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO); }, arguments), 1); });
        EXPECT_NE(errors.find("the standard output"), std::string::npos) << errors;
        EXPECT_NE(errors.find("cannot be written: No space left on device\n"), std::string::npos) << errors;
    }
}

TEST(FormatCommand, AFullDiskLeavesTheFileAlone) {
    const TemporaryFolder folder;
    std::string units = "Unit And";
    for (int i = 0; i < 500; ++i) units += "   gate" + std::to_string(i);
    const std::string path = folder.write("a.nlx", units + "\n");
    const std::string errors = errorOutputOf([&] {
        EXPECT_EQ(statusInChild(
                      [] {
                          std::signal(SIGXFSZ, SIG_IGN);
                          const rlimit limit = {2000, 2000};
                          setrlimit(RLIMIT_FSIZE, &limit);
                      },
                      {"-i", path}),
                  1);
    });
    EXPECT_EQ(errors, "tarnfmt: " + path + ": cannot be written: File too large\n");
    EXPECT_EQ(readBytes(path), units + "\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path("")), fs::directory_iterator()), 1);
}

}  // namespace
}  // namespace tarnsim
