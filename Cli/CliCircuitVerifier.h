#pragma once

#include <string>

#include "Cli/CircuitVerifier.h"

namespace tarnsim {

/// The verifier of the command line: reports mismatches on the standard output.
class CliCircuitVerifier : public CircuitVerifier {
public:
    CliCircuitVerifier(const std::string& circuitFile, const std::string& ioFile)
        : CircuitVerifier(circuitFile, ioFile) {}

private:
    void reportMismatch(Time time, const std::string& name, const Value& expected, const Value& actual) override;
};

}  // namespace tarnsim
