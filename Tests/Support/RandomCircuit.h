#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "Tests/Support/Choices.h"

namespace tarnsim {

/// A place in a random circuit that a signal file can name.
struct RandomPort {
    std::string path;
    std::uint32_t width = 1;
};

/// A circuit of parts of the library and of circuits declared in it, as a set of files. It always loads, and no run of
/// it takes long. A run may end in an error, which is rare: a counter that counts from U, or a loop of wires through
/// units.
struct RandomCircuit {
    /// The circuit's own file among `files`.
    static constexpr const char* kFile = "circuit.nlx";

    /// Circuit files and memory images, by their paths in the folder that they belong to, which is to be the working
    /// directory when the circuit is loaded.
    std::map<std::string, std::string> files;
    /// Ports that a signal file may drive; there is at least one. Those of the circuit itself come first.
    std::vector<RandomPort> inputs;
    /// Ports to look at.
    std::vector<RandomPort> outputs;
    /// Paths of nets.
    std::vector<std::string> nets;
    /// Parts of the library at the top whose delay a component option may change to another one above 0.
    std::vector<std::string> delayedUnits;
    /// How often there is what, counted where it's written and not for each instance: a part type by its name in files,
    /// all else by a word of its own.
    std::map<std::string, std::size_t> made;

    /// Writes the files into a folder.
    void writeTo(const std::string& folder) const;
};

/// How large a circuit may get, and what may be in it.
struct RandomCircuitStyle {
    /// Leaves out what a circuit loses when it is saved and loaded again: comments and parameters of array units,
    /// unequal or missing array units, unused declarations, meta data that needs escapes, options of ports, imports.
    ///
    /// Saving also puts units into another order. Where a part without delay hears of two changes at one time, one
    /// after the other, that order decides whether it sees the second one. So its inputs are then such that they all
    /// change before it is evaluated; the same holds for parts that look at the present state of their inputs. And
    /// there is one processor of a kind at most, since all of a kind share what they know of a reset.
    bool saveable = true;
    std::size_t maxUnits = 6;  ///< unit statements in one body
    std::size_t maxDepth = 3;  ///< declarations within each other
    std::size_t budget = 20;   ///< about the number of parts that the loaded circuit has
};

RandomCircuit makeRandomCircuit(Choices& choices, const RandomCircuitStyle& style = {});

}  // namespace tarnsim
