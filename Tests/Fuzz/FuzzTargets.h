#pragma once

#include <array>
#include <string_view>

namespace tarnsim {

// What a fuzzer calls with any bytes. A target returns when all went as it should, be it that the input was refused. It
// raises a Finding if something doesn't hold, and lets through any exception that isn't right there; crashes, hangs and
// leaks are for the sanitizers and the fuzzer to notice. It prints nothing, and writes to a temporary folder alone.

/// A circuit file, with others that it imports: reading, building, printing.
void fuzzNlx(std::string_view input);
/// A signal file: reading, writing, reading again.
void fuzzSignals(std::string_view input);
/// A circuit with its files and a signal file: a verify run with its tables.
void fuzzRun(std::string_view input);
/// Pin expressions, parameters and numbers, and a part that gets them.
void fuzzExpressions(std::string_view input);
/// A circuit file: loading, saving, and loading and saving again.
void fuzzSaving(std::string_view input);
/// Decisions of which a circuit of library parts is made, saved, loaded again and run.
void fuzzParts(std::string_view input);

struct FuzzTarget {
    std::string_view name;  ///< of its folders with inputs
    void (*run)(std::string_view input);
};

inline constexpr std::array kFuzzTargets = {
    FuzzTarget{"nlx", fuzzNlx},       FuzzTarget{"signals", fuzzSignals},
    FuzzTarget{"run", fuzzRun},       FuzzTarget{"expressions", fuzzExpressions},
    FuzzTarget{"saving", fuzzSaving}, FuzzTarget{"parts", fuzzParts},
};

}  // namespace tarnsim
