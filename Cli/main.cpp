#include <algorithm>
#include <cstdio>
#include <exception>

#include "Cli/CommandLine.h"

namespace {

/// The runtime's own way to end a process after an exception that nobody catches: says what it was, then aborts.
std::terminate_handler runtimeTerminate = nullptr;

/// What was printed so far may still sit in a buffer, as it does when the output goes to a pipe.
void flushAndTerminate() {
    std::fflush(stdout);
    runtimeTerminate();
}

}  // namespace

int main(int argc, char** argv) {
    runtimeTerminate = std::set_terminate(flushAndTerminate);
    tarnsim::CommandLineOptions options;
    tarnsim::parseOptions(argc, argv, options);
    if (options.verify) return static_cast<int>(std::min(tarnsim::verifyRun(options), 255U));
    tarnsim::printRun(options);
    return 0;
}
