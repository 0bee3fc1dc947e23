#include "Cli/CommandLine.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Arguments = std::vector<std::string>;

const std::string kUsage =
    "Tarnsim, version 2.6.52.\n"
    "Usage: tarnsim <circuit file> <io file> -v -p <pins> -n <nets> \n"
    "              -R<print time step> \n"
    "<circuit file>:   [Mandatory] The circuit file, described in NLX.\n"
    "<io file>:        [Mandatory] The signal input/output file.\n"
    "-v:               [Optional]  Verify that the outputs assumes the values\n"
    "                              specified in the io file. Inhibits printing.\n"
    "-p <pins>:        [Optional]  Print the content of these pins/ports for\n"
    "                              every simulation stop. Overridden by the\n"
    "                              -v option.\n"
    "-n <nets>:        [Optional]  Print the content of these nets for\n"
    "                              every simulation stop. Overridden by the\n"
    "                              -v option.\n"
    "-R <resolution>:  [Optional]  The resolution which results are printed width.\n"
    "                              A value of 0 means the times in the signal io file.\n"
    "                              Default: 0.\n";

CommandLineOptions parse(Arguments arguments) {
    arguments.insert(arguments.begin(), "tarnsim");
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    optind = 0;  // getopt starts anew
    CommandLineOptions options;
    parseOptions(static_cast<int>(arguments.size()), argv.data(), options);
    return options;
}

/// What a process does that reads a command line which ends it.
struct Ending {
    std::string output;
    std::string errors;
    int status = -1;

    explicit Ending(const Arguments& arguments) {
        errors = errorOutputOf([&] { output = outputOf([&] { run(arguments); }); });
    }

private:
    void run(const Arguments& arguments) {
        std::fflush(nullptr);
        const pid_t child = fork();
        if (child == 0) {
            parse(arguments);
            _exit(99);  // the command line was good
        }
        int state = 0;
        waitpid(child, &state, 0);
        status = WIFEXITED(state) ? WEXITSTATUS(state) : -1;
    }
};

TEST(CommandLine, TwoFilesAreEnough) {
    const CommandLineOptions options = parse({"a.nlx", "b.sig"});
    EXPECT_EQ(options.circuitFile, "a.nlx");
    EXPECT_EQ(options.ioFile, "b.sig");
    EXPECT_EQ(options.pins, "");
    EXPECT_EQ(options.nets, "");
    EXPECT_EQ(options.resolution, 0);
    EXPECT_FALSE(options.verify);
}

TEST(CommandLine, OptionsMayStandAnywhere) {
    for (const Arguments& arguments :
         {Arguments{"-v", "-p", "x,y", "-n", "m", "-R", "7", "a", "b"}, Arguments{"a", "-R7", "-nm", "b", "-vpx,y"},
          Arguments{"a", "b", "-n", "m", "-p", "x,y", "-v", "-R", "7"}}) {
        const CommandLineOptions options = parse(arguments);
        EXPECT_EQ(options.circuitFile, "a");
        EXPECT_EQ(options.ioFile, "b");
        EXPECT_EQ(options.pins, "x,y");
        EXPECT_EQ(options.nets, "m");
        EXPECT_EQ(options.resolution, 7);
        EXPECT_TRUE(options.verify);
    }
}

TEST(CommandLine, OptionsStandBehindTheFilesWhateverTheEnvironmentSays) {
    setenv("POSIXLY_CORRECT", "1", 1);
    const CommandLineOptions options = parse({"a", "b", "-v"});
    unsetenv("POSIXLY_CORRECT");
    EXPECT_EQ(options.circuitFile, "a");
    EXPECT_EQ(options.ioFile, "b");
    EXPECT_TRUE(options.verify);
}

TEST(CommandLine, ARepeatedOptionOverwritesTheFormerText) {
    const CommandLineOptions options =
        parse({"-p", "x", "-n", "m", "a", "-R", "1", "b", "-p", "y", "-n", "", "-R", "2"});
    EXPECT_EQ(options.pins, "y");
    EXPECT_EQ(options.nets, "");
    EXPECT_EQ(options.resolution, 2);
}

TEST(CommandLine, FurtherArgumentsAreIgnored) {
    const CommandLineOptions options = parse({"a", "b", "c", "d"});
    EXPECT_EQ(options.circuitFile, "a");
    EXPECT_EQ(options.ioFile, "b");
}

TEST(CommandLine, WhatFollowsTwoDashesIsNoOption) {
    const CommandLineOptions options = parse({"--", "-v", "-h"});
    EXPECT_EQ(options.circuitFile, "-v");
    EXPECT_EQ(options.ioFile, "-h");
    EXPECT_FALSE(options.verify);
}

TEST(CommandLine, TheResolutionIsReadFromTheDigitsInFront) {
    const std::vector<std::pair<std::string, int>> texts = {{"5", 5},    {"5x", 5},   {"-3", -3}, {"+4", 4},
                                                            {" 12", 12}, {"0x10", 0}, {"007", 7}, {"2.5", 2}};
    for (const auto& [text, expected] : texts) EXPECT_EQ(parse({"a", "b", "-R", text}).resolution, expected) << text;
}

TEST(CommandLine, AResolutionWithoutNumberIsRefused) {
    for (const char* text : {"x", "", "-", "x5", "."}) {
        const Ending ending({"-R", text, "a", "b"});
        EXPECT_EQ(ending.status, 1) << text;
        EXPECT_EQ(ending.output, "") << text;
        EXPECT_EQ(ending.errors, "Error: time resolution must be numeric.\n" + kUsage) << text;
    }
}

TEST(CommandLine, FewerThanTwoFilesAreRefused) {
    for (const Arguments& arguments : {Arguments{}, Arguments{"a"}, Arguments{"-v", "a", "-p", "b"}}) {
        const Ending ending(arguments);
        EXPECT_EQ(ending.status, 1);
        EXPECT_EQ(ending.output, "");
        EXPECT_EQ(ending.errors, "ERROR: Must specify both a circuit file and a signal input/output file.\n" + kUsage);
    }
}

TEST(CommandLine, HelpGoesToTheOutput) {
    for (const Arguments& arguments :
         {Arguments{"-h"}, Arguments{"a", "b", "-h"}, Arguments{"-vh", "-R", "x"}, Arguments{"-h", "-q"}}) {
        const Ending ending(arguments);
        EXPECT_EQ(ending.status, 0);
        EXPECT_EQ(ending.output, kUsage);
        EXPECT_EQ(ending.errors, "");
    }
}

TEST(CommandLine, TheFirstOptionThatEndsTheProcessWins) {
    const Ending ending({"-R", "x", "-h"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.output, "");
}

TEST(CommandLine, UnknownAndIncompleteOptionsPrintTheUsageBehindADiagnostic) {
    for (const Arguments& arguments : {Arguments{"-q", "a", "b"}, Arguments{"a", "b", "-p"}, Arguments{"a", "b", "-n"},
                                       Arguments{"a", "b", "-R"}, Arguments{"a", "b", "--verify"}}) {
        const Ending ending(arguments);
        EXPECT_EQ(ending.status, 1);
        EXPECT_EQ(ending.output, "");
        // The diagnostic is one line of the library's own wording.
        const std::size_t firstLine = ending.errors.find('\n') + 1;
        EXPECT_GT(firstLine, 1U);
        EXPECT_EQ(ending.errors.substr(firstLine), kUsage);
    }
}

/// A board whose output shows its input at once, and three vectors of which all but the first are wrong.
struct Board {
    TemporaryFolder folder;
    CommandLineOptions options;

    Board() {
        options.circuitFile = folder.write("board.nlx", "Pin Input a\nPin Output q\nNet n a q\n");
        options.ioFile = folder.write("board.sig", "time a => q\n0 0 L\n5 1 L\n9 0 H\n");
    }
};

constexpr const char* kBoardTable =
    "Time    a  => q \n"
    "     0: L     L \n"
    "     5: H     H \n"
    "     9: L     L \n";

TEST(CommandLine, AVerifyRunGivesTheNumberOfFailures) {
    const Board board;
    std::uint32_t failures = 0;
    EXPECT_EQ(outputOf([&] { failures = verifyRun(board.options); }),
              std::string("Value mismatch at t=5 for 'q': expected L, got H\n"
                          "Value mismatch at t=9 for 'q': expected H, got L\n"
                          "2 tests failed.\n") +
                  kBoardTable);
    EXPECT_EQ(failures, 2U);
}

TEST(CommandLine, AVerifyRunPrintsNoFurtherColumns) {
    Board board;
    board.options.pins = "nobody";
    board.options.nets = "nothing";
    board.options.ioFile = board.folder.write("good.sig", "time a => q\n3 1 H\n");
    std::uint32_t failures = 99;
    EXPECT_EQ(outputOf([&] { failures = verifyRun(board.options); }),
              "All tests passed.\nTime    a  => q \n     3: H     H \n");
    EXPECT_EQ(failures, 0U);
}

TEST(CommandLine, AVerifyRunThatFailsToLoadGivesOne) {
    Board board;
    board.options.circuitFile = "no/such.nlx";
    std::uint32_t failures = 0;
    EXPECT_EQ(outputOf([&] { failures = verifyRun(board.options); }), "Error: File not found: 'no/such.nlx'.\n");
    EXPECT_EQ(failures, 1U);
}

TEST(CommandLine, AnErrorBehindTheVerdictGivesOneToo) {
    Board board;
    board.options.ioFile = board.folder.write("net.sig", "time a => zz\n");
    std::uint32_t failures = 0;
    EXPECT_EQ(outputOf([&] { failures = verifyRun(board.options); }),
              "All tests passed.\nError: can't find port 'zz'.\n");
    EXPECT_EQ(failures, 1U);
}

TEST(CommandLine, APrintRunPrintsItsColumns) {
    Board board;
    board.options.pins = "a";
    board.options.nets = "n";
    board.options.resolution = 9;
    EXPECT_EQ(outputOf([&] { printRun(board.options); }),
              "Time    a  => q a #n \n     0: L     L L  L \n     9: L     L L  L \n");
}

TEST(CommandLine, APrintRunReportsAnErrorOnTheOutput) {
    Board board;
    board.options.ioFile = "no/such.sig";
    EXPECT_EQ(outputOf([&] { printRun(board.options); }), "File 'no/such.sig'not found.\n");
}

}  // namespace
}  // namespace tarnsim
