#pragma once

#include <string>

#include "Core/Circuit/Circuit.h"
#include "Tests/Support/RandomCircuit.h"

namespace tarnsim {

/// What came of a run.
struct RandomRun {
    std::string error;   ///< what ended it before its time; empty if nothing did
    std::string report;  ///< mismatches, then the tables
};

/// Runs a circuit as the program does: all outputs are compared with what is expected, and two tables are printed, one
/// at the times of the vectors and one every few ns, with all `places` of the circuit in them. What parts say meanwhile
/// is left out, as that comes in the order of the units.
RandomRun runRandomCircuit(Circuit& circuit, const std::string& signalFile, const RandomCircuit& places);

/// What stands first in one text where the other one has something else, a line of each; empty for equal texts.
std::string firstDifference(const std::string& one, const std::string& other);

}  // namespace tarnsim
