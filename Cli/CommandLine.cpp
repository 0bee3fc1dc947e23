#include "Cli/CommandLine.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "Cli/CliCircuitVerifier.h"
#include "Cli/StandardStreams.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

constexpr const char* kUsage =
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

[[noreturn]] void refuse(const char* message) {
    std::fprintf(stderr, "%s%s", message, kUsage);
    std::exit(1);
}

std::int32_t readResolution(const char* text) {
    const auto number = readLeadingInteger(text);
    if (!number) refuse("Error: time resolution must be numeric.\n");
    return *number;
}

}  // namespace

void parseOptions(int argc, char** argv, CommandLineOptions& options) {
    // Options may stand behind the files, whatever the environment says: a `-v` that is overlooked would pass every
    // test.
    unsetenv("POSIXLY_CORRECT");
    int option = 0;
    while ((option = getopt(argc, argv, "hvp:n:R:")) != -1) {
        switch (option) {
            case 'h':
                std::printf("%s", kUsage);
                finishOutput();
                std::exit(0);
            case 'v': options.verify = true; break;
            case 'p': options.pins = optarg; break;
            case 'n': options.nets = optarg; break;
            case 'R': options.resolution = readResolution(optarg); break;
            default: refuse("");
        }
    }
    if (argc - optind < 2) refuse("ERROR: Must specify both a circuit file and a signal input/output file.\n");
    options.circuitFile = argv[optind];
    options.ioFile = argv[optind + 1];
}

std::uint32_t verifyRun(const CommandLineOptions& options) {
    try {
        CliCircuitVerifier verifier(options.circuitFile, options.ioFile);
        verifier.checkConnections();
        const bool passed = verifier.runAndVerify();
        const std::uint32_t failures = passed ? 0 : verifier.getFailureCount();
        if (passed) {
            std::printf("All tests passed.\n");
        } else {
            std::printf("%d test%s failed.\n", static_cast<int>(failures), failures > 1 ? "s" : "");
        }
        verifier.printResults(options.resolution, "", "");
        return failures;
    } catch (const Error& error) {
        std::printf("%s\n", error.what().c_str());
        return 1;
    }
}

void printRun(const CommandLineOptions& options) {
    try {
        CliCircuitVerifier verifier(options.circuitFile, options.ioFile);
        verifier.checkConnections();
        verifier.run();
        verifier.printResults(options.resolution, options.pins, options.nets);
    } catch (const Error& error) {
        std::printf("%s\n", error.what().c_str());
    }
}

}  // namespace tarnsim
