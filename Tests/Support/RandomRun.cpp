#include "Tests/Support/RandomRun.h"

#include <memory>
#include <vector>

#include "Core/Support/Text.h"
#include "Tests/Cli/VerifierSupport.h"
#include "Tests/Support/CapturedStreams.h"

namespace tarnsim {

namespace {

constexpr std::int32_t kResolution = 23;

void append(std::string& list, const std::string& name) {
    if (!list.empty()) list += ",";
    list += name;
}

/// Processors count the clocks of a reset in one place for all of their class, in whatever circuit. A flank of the
/// clock with the reset released sets it back, so that a run doesn't depend on the one before.
void finishResets() {
    Circuit circuit("released", nullptr);
    EventSimulator simulator(&circuit);
    for (const char* type : {"MOS6502", "W65C02"}) circuit.addComponent(type, type);
    simulator.prepare(2);
    for (const Component* processor : circuit.getComponents()) {
        processor->findPort("_RES")->set(Value("H"), 0);
        processor->findPort("PHI0")->set(Value("H"), 1);
        processor->findPort("PHI0")->set(Value("L"), 2);
    }
    simulator.run(2);
}

}  // namespace

RandomRun runRandomCircuit(Circuit& circuit, const std::string& signalFile, const RandomCircuit& places) {
    std::string pins;
    for (const RandomPort& port : places.inputs) append(pins, port.path);
    for (const RandomPort& port : places.outputs) append(pins, port.path);
    std::string nets;
    for (const std::string& net : places.nets) append(nets, net);

    if (places.made.contains("MOS6502") || places.made.contains("W65C02")) finishResets();
    RandomRun run;
    std::unique_ptr<TestSequence> sequence;
    std::unique_ptr<RecordingVerifier> verifier;
    try {
        const CapturedStreams ignored;
        sequence = std::make_unique<TestSequence>(signalFile);
        verifier = std::make_unique<RecordingVerifier>(&circuit, sequence.get(), true);
        verifier->checkConnections();
        verifier->runAndVerify();
    } catch (const Error& error) {
        run.error = error.what();
    } catch (const std::exception& exception) {
        run.error = exception.what();
    }
    if (!run.error.empty()) return run;
    for (const std::string& mismatch : verifier->mismatches) run.report += mismatch + "\n";
    CapturedStreams tables;
    verifier->printResults(0, pins, nets);
    verifier->printResults(kResolution, pins, nets);
    run.report += tables.output();
    return run;
}

std::string firstDifference(const std::string& one, const std::string& other) {
    const std::vector<std::string> lines = split(one, '\n');
    const std::vector<std::string> others = split(other, '\n');
    for (std::size_t i = 0; i < lines.size() || i < others.size(); ++i) {
        const std::string line = i < lines.size() ? lines[i] : "(end)";
        const std::string otherLine = i < others.size() ? others[i] : "(end)";
        if (line != otherLine) return format("line %zu:\n", i + 1) + line + "\n" + otherLine + "\n";
    }
    return one == other ? "" : "the end of the last line";
}

}  // namespace tarnsim
