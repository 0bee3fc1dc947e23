#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Cli/Tarnfmt/Formatter.h"

namespace tarnsim {

/// What the command line of tarnfmt asks for.
struct FormatOptions {
    std::vector<std::string> files;
    std::optional<FileKind> kind;  ///< of all files; else their endings tell
    bool inPlace = false;
    bool force = false;  ///< write in place whatever gets lost
    bool help = false;
    bool version = false;
};

/// Reads the arguments behind the program's name. Raises an Error for what can't be meant.
FormatOptions parseFormatOptions(const std::vector<std::string>& arguments);

/// The program: does what the arguments ask for, with messages on the error stream. Gives the exit status: 0, or 1 if a
/// file wasn't written, or 2 for wrong usage.
int runTarnfmt(const std::vector<std::string>& arguments);

}  // namespace tarnsim
