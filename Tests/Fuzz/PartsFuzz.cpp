#include <sstream>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitFileReader.h"
#include "Core/Circuit/CircuitFileWriter.h"
#include "Tests/Fuzz/FuzzSupport.h"
#include "Tests/Fuzz/FuzzTargets.h"
#include "Tests/Support/RandomRun.h"
#include "Tests/Support/RandomSignals.h"

namespace tarnsim {

namespace {

constexpr const char* kSignals = "test.sig";

std::unique_ptr<Circuit> load() {
    std::unique_ptr<Circuit> circuit;
    check(completes([&] { circuit = CircuitFileReader().load(RandomCircuit::kFile); }), "a random circuit is refused");
    return circuit;
}

}  // namespace

// A random circuit always loads. Its run may end in an Error or in what a value refuses (a counter that counts from U),
// but the same way when it's run once more, and if it can be saved, when it was saved and loaded again.
void fuzzParts(std::string_view input) {
    ByteChoices choices(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    RandomCircuitStyle style;
    style.saveable = !choices.onceIn(2);
    const RandomCircuit random = makeRandomCircuit(choices, style);
    std::map<std::string, std::string> files = random.files;
    files[kSignals] = makeRandomSignals(choices, random).text;
    const FuzzFolder here(files);

    const std::unique_ptr<Circuit> circuit = load();
    if (style.saveable) CircuitFileWriter(circuit.get()).save(RandomCircuit::kFile, false);
    const std::unique_ptr<Circuit> other = load();
    if (style.saveable) {
        std::ostringstream again;
        CircuitFileWriter(other.get()).write(again, false);
        checkSame(again.str(), readBytes(RandomCircuit::kFile).value(), "saving isn't stable");
    }
    const RandomRun run = runRandomCircuit(*circuit, kSignals, random);
    const RandomRun otherRun = runRandomCircuit(*other, kSignals, random);
    checkSame(otherRun.error, run.error, "runs end differently");
    checkSame(otherRun.report, run.report, "runs differ");
}

}  // namespace tarnsim
