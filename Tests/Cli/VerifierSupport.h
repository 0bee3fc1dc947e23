#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Cli/CircuitVerifier.h"
#include "Core/Circuit/Circuit.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/TestVectors/SequenceSupport.h"

namespace tarnsim {

/// Keeps the mismatches that it hears of, as `3 q H L`: time, name, expected, actual.
class RecordingVerifier : public CircuitVerifier {
public:
    RecordingVerifier(const std::string& circuitFile, const std::string& ioFile)
        : CircuitVerifier(circuitFile, ioFile) {}
    RecordingVerifier(Circuit* circuit, TestSequence* sequence, bool verify)
        : CircuitVerifier(circuit, sequence, verify) {}

    std::vector<std::string> mismatches;

private:
    void reportMismatch(Time time, const std::string& name, const Value& expected, const Value& actual) override {
        mismatches.push_back(std::to_string(time) + " " + name + " " + expected.c_str() + " " + actual.c_str());
    }
};

/// A component without ports of its own that notes the parameters of each call of applyParameters.
class ParameterProbe : public Component {
public:
    explicit ParameterProbe(const std::string& name) : Component("Probe", name, nullptr) {}

    void evaluate(Time) override {}
    void applyParameters() override { applied.push_back(getParameterText()); }

    std::vector<std::string> applied;
};

/// A circuit with the inputs a and b and the outputs q and p, made of whatever a test connects.
struct Bench {
    Circuit circuit{"root", nullptr};
    std::unique_ptr<TestSequence> sequence;

    explicit Bench(const std::string& signalFile) : sequence(sequenceFrom(signalFile)) {}

    void port(Direction direction, std::uint32_t size, const std::string& name) {
        circuit.createPort(size, direction, name);
    }
    /// An input and an output of that width that shows it at once.
    void wire(std::uint32_t size, const std::string& from, const std::string& to) {
        port(Direction::Input, size, from);
        port(Direction::Output, size, to);
        net({from, to});
    }
    void net(const std::vector<std::string>& paths) {
        std::vector<Port*> ports;
        for (const std::string& path : paths) ports.push_back(circuit.findPort(path));
        circuit.createNet("n_" + paths.front(), ports);
    }
    /// An inverter of 3 ns between two pins.
    void inverter(const std::string& from, const std::string& to) {
        port(Direction::Input, 1, from);
        port(Direction::Output, 1, to);
        circuit.addComponent("Inv", "g");
        net({from, "g.in"});
        net({"g.out", to});
    }
    std::string at(const std::string& path, Time time) const { return circuit.findPort(path)->get(time).c_str(); }
    std::string constructionError() {
        return errorOf([&] { RecordingVerifier(&circuit, sequence.get(), true); });
    }
};

}  // namespace tarnsim
