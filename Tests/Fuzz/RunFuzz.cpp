#include <limits>

#include "Core/TestVectors/TestSequenceFileReader.h"
#include "Tests/Cli/VerifierSupport.h"
#include "Tests/Fuzz/FuzzSupport.h"
#include "Tests/Fuzz/FuzzTargets.h"

namespace tarnsim {

namespace {

constexpr Time kLongest = 1500;  // ns
constexpr std::int32_t kResolution = 29;

/// Names of ports of the circuit, and of its nets, as the command line takes them.
std::string namesOf(const Circuit& circuit) {
    std::string names;
    for (const Port* port : circuit.getPorts()) names.append(names.empty() ? "" : ",").append(port->getName());
    return names;
}

std::string netsOf(const Circuit& circuit) {
    std::string names;
    for (const Net* net : circuit.getNets()) names.append(names.empty() ? "" : ",").append(net->getName());
    return names;
}

}  // namespace

// Beside an Error, a run may end in numbers beyond 32 bits and in whatever a value refuses: in parameters, in
// assignments, in parts that take a value as a number, and in expected texts; and in images too large for a memory.
void fuzzRun(std::string_view input) {
    const FuzzInput files(input);
    if (!files.isModest()) return;
    const FuzzFolder here(files.files);
    completes(
        [&] {
            TestSequence sequence(TestSequence::kEmpty);
            TestSequenceFileReader().read("test.sig", files.signals, sequence);
            if (sequence.lastEndTime() > kLongest || sequence.lastTime() > kLongest) return;
            CircuitSpec spec("circuit.nlx", files.circuit);
            if (!isSmall(spec)) return;
            Circuit circuit(spec.getName(), nullptr);
            circuit.setSpec(std::move(spec));
            RecordingVerifier verifier(&circuit, &sequence, true);
            verifier.checkConnections();
            const bool passed = verifier.runAndVerify();
            check(passed == (verifier.getFailureCount() == 0), "a failed run has passed");
            check(verifier.mismatches.size() == verifier.getFailureCount(), "mismatches and failures differ");
            verifier.printResults(0, "", "");
            verifier.printResults(kResolution, namesOf(circuit), netsOf(circuit));
        },
        {isNumberTooLarge, isRefusedValue, isPastTheMemory});
}

}  // namespace tarnsim
