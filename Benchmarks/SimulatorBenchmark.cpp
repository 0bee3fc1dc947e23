// What it costs to queue and run an event, to evaluate a gate, and to load a circuit.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitFileReader.h"
#include "Core/Simulation/EventSimulator.h"

namespace tarnsim {
namespace {

/// Does nothing when it's called.
class Idle : public Component {
public:
    Idle() : Component("Idle", "idle", nullptr) {}
    void evaluate(Time /*time*/) override {}
    void applyParameters() override {}
};

void scheduleAndRun(benchmark::State& state) {
    const std::int64_t eventsATime = state.range(0);
    constexpr std::int64_t kEvents = 100'000;
    Circuit root("root", nullptr);
    std::vector<Idle> targets(static_cast<std::size_t>(eventsATime));
    for (auto _ : state) {
        EventSimulator simulator(&root);
        for (std::int64_t i = 0; i < kEvents; ++i) {
            simulator.schedule(&targets[static_cast<std::size_t>(i % eventsATime)], static_cast<Time>(i / eventsATime));
        }
        simulator.run(static_cast<Time>(kEvents));
    }
    state.SetItemsProcessed(state.iterations() * kEvents);
}
BENCHMARK(scheduleAndRun)->ArgName("eventsATime")->RangeMultiplier(10)->Range(1, 1000);

/// A chain of inverters that a square wave runs through: an item is one evaluation of a gate.
std::string chainText(std::int64_t gates) {
    const std::string count = std::to_string(gates);
    std::string text = "Pin Input a\nUnit Inv g[" + count + "]\nNet na a g[0].in\n";
    for (std::int64_t i = 0; i + 1 < gates; ++i) {
        text += "Net n" + std::to_string(i) + " g[" + std::to_string(i) + "].out g[" + std::to_string(i + 1) + "].in\n";
    }
    return text;
}

/// The text in a file that goes away with the object.
class CircuitFile {
public:
    explicit CircuitFile(const std::string& text) { std::ofstream(path_) << text; }
    ~CircuitFile() { std::remove(path_.c_str()); }
    CircuitFile(const CircuitFile&) = delete;
    CircuitFile& operator=(const CircuitFile&) = delete;
    const std::string& path() const { return path_; }

private:
    std::string path_ = "/tmp/tarnsim-benchmark-" + std::to_string(std::rand()) + ".nlx";
};

/// A change on a wire with that many listeners of one delay: a record, and the events of all.
void changeWire(benchmark::State& state) {
    const std::int64_t gates = state.range(0);
    std::string text = "Pin Input a\nUnit Inv g[" + std::to_string(gates) + "]\nNet na a";
    for (std::int64_t i = 0; i < gates; ++i) text += " g[" + std::to_string(i) + "].in";
    const CircuitFile file(text + "\n");
    const auto circuit = CircuitFileReader().load(file.path());
    auto* input = dynamic_cast<Pin*>(circuit->findPort("a"));
    constexpr Time kChanges = 10'000;
    for (auto _ : state) {
        EventSimulator simulator(circuit.get());
        simulator.prepare(0);
        for (Time change = 0; change < kChanges; ++change) input->setLevel(change % 2 == 0 ? 'L' : 'H', change * 50);
    }
    state.SetItemsProcessed(state.iterations() * kChanges);
}
BENCHMARK(changeWire)->ArgName("listeners")->Arg(1)->Arg(4)->Arg(16)->Arg(256);

void evaluateGates(benchmark::State& state) {
    constexpr std::int64_t kGates = 1000;
    constexpr Time kEdges = 200;
    const CircuitFile file(chainText(kGates));
    const auto circuit = CircuitFileReader().load(file.path());
    Port* input = circuit->findPort("a");
    for (auto _ : state) {
        EventSimulator simulator(circuit.get());
        simulator.prepare(0);
        for (Time edge = 0; edge < kEdges; ++edge) input->set(Value(edge % 2 == 0 ? 'L' : 'H', 1), edge * 50);
        simulator.run(kEdges * 50 + 10'000);
    }
    state.SetItemsProcessed(state.iterations() * kGates * kEdges);
}
BENCHMARK(evaluateGates)->Unit(benchmark::kMillisecond);

/// Loading should grow with the number of gates and not faster.
void loadFlatCircuit(benchmark::State& state) {
    const CircuitFile file(chainText(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(CircuitFileReader().load(file.path()));
    state.SetComplexityN(state.range(0));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(loadFlatCircuit)->RangeMultiplier(2)->Range(12'500, 100'000)->Complexity()->Unit(benchmark::kMillisecond);

/// The same for a declared circuit and two units of it: three copies in all.
void loadDeclaredCircuit(benchmark::State& state) {
    const CircuitFile file("Circuit chain {\n" + chainText(state.range(0)) + "}\nUnit chain u v\n");
    for (auto _ : state) benchmark::DoNotOptimize(CircuitFileReader().load(file.path()));
    state.SetComplexityN(state.range(0));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(loadDeclaredCircuit)->RangeMultiplier(2)->Range(12'500, 100'000)->Complexity()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnsim
