#pragma once

#include <cstddef>
#include <map>
#include <string>

#include "Tests/Support/Choices.h"
#include "Tests/Support/RandomCircuit.h"

namespace tarnsim {

/// A signal file.
struct RandomSignals {
    std::string text;
    /// How often there is what, each by a word of its own.
    std::map<std::string, std::size_t> made;
};

/// How large a signal file may get, and what may be in it.
struct RandomSignalsStyle {
    /// Leaves out what a signal file loses when it is saved and loaded again: cells with a group of four equal X, Z or
    /// U, or with such letters in front of whole groups; comments of the record that a saved file begins with, and
    /// behind the last one; `~` on outputs beside a delta time; options with a value of blanks.
    bool saveable = true;
    /// Only what a run takes: cells that a port can hold, assignments that fit, options for units that are there.
    bool runnable = true;
    std::size_t maxVectors = 6;
    std::size_t maxStep = 90;  ///< ns between two vectors, and of a delta time
};

/// A signal file for a circuit. REQUIRES: circuit.inputs isn't empty
RandomSignals makeRandomSignals(Choices& choices, const RandomCircuit& circuit, const RandomSignalsStyle& style = {});

}  // namespace tarnsim
