#pragma once

#include <cstdint>
#include <string>

namespace tarnsim {

/// What the command line asks for.
struct CommandLineOptions {
    std::string circuitFile;
    std::string ioFile;
    std::string pins;             ///< ports to print, with commas between them
    std::string nets;             ///< nets to print, with commas between them
    std::int32_t resolution = 0;  ///< time step of the table in ns; below 1 the times of the signal file
    bool verify = false;
};

/// Reads the command line. Returns only if it is good: `-h` ends the process with status 0, everything wrong with
/// status 1 and the usage text on the error stream.
void parseOptions(int argc, char** argv, CommandLineOptions& options);

/// Simulates and compares. Gives the number of failed comparisons, or 1 after an Error.
std::uint32_t verifyRun(const CommandLineOptions& options);

/// Simulates and prints.
void printRun(const CommandLineOptions& options);

}  // namespace tarnsim
