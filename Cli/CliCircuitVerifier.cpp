#include "Cli/CliCircuitVerifier.h"

#include <cstdio>

namespace tarnsim {

void CliCircuitVerifier::reportMismatch(Time time, const std::string& name, const Value& expected,
                                        const Value& actual) {
    std::printf("Value mismatch at t=%d for '%s': expected %s, got %s\n", time, name.c_str(), expected.c_str(),
                actual.c_str());
}

}  // namespace tarnsim
