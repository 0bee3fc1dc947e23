#include <algorithm>

#include "Cli/CommandLine.h"
#include "Cli/StandardStreams.h"
#include "Cli/Termination.h"

int main(int argc, char** argv) {
    tarnsim::prepareTermination();
    tarnsim::prepareStandardStreams();
    tarnsim::CommandLineOptions options;
    tarnsim::parseOptions(argc, argv, options);
    if (!options.verify) {
        tarnsim::printRun(options);
        tarnsim::finishOutput();
        return 0;
    }
    const std::uint32_t failures = std::min(tarnsim::verifyRun(options), 255U);
    // A verdict that nobody could read is none.
    const std::uint32_t leastStatus = tarnsim::finishOutput() ? 0 : 1;
    return static_cast<int>(std::max(failures, leastStatus));
}
