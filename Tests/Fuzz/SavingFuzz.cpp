#include <algorithm>
#include <sstream>

#include "Cli/Tarnfmt/Formatter.h"
#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitFileWriter.h"
#include "Tests/Fuzz/FuzzSupport.h"
#include "Tests/Fuzz/FuzzTargets.h"

namespace tarnsim {

namespace {

/// Null if the file is refused, or too large.
std::unique_ptr<Circuit> load(const std::string& text) {
    std::unique_ptr<Circuit> circuit;
    const bool isLoaded = completes(
        [&] {
            CircuitSpec spec("circuit.nlx", text);
            if (!isSmall(spec)) return;
            circuit = std::make_unique<Circuit>(spec.getName(), nullptr);
            circuit->setSpec(std::move(spec));
        },
        {isNumberTooLarge, isRefusedValue, isPastTheMemory});
    return isLoaded ? std::move(circuit) : nullptr;
}

/// The reader knows none of the escapes that the writer makes, so such meta data grows with every saving.
bool needsEscapes(const Circuit& circuit) {
    const auto isPlain = [](char c) { return c >= ' ' && c <= '~' && c != '\\' && c != '"'; };
    for (const std::string& key : circuit.getMetaDataKeys()) {
        for (const std::string& value : circuit.getMetaData(key)) {
            if (!std::ranges::all_of(value, isPlain)) return true;
        }
    }
    return std::ranges::any_of(circuit.getDeclarations(), [](const Circuit* each) { return needsEscapes(*each); });
}

std::string saved(const Circuit& circuit) {
    std::ostringstream text;
    CircuitFileWriter(&circuit).write(text, false);
    return text.str();
}

}  // namespace

// Loading may end as it may in fuzzNlx. Saving never ends in an exception. A first saving may lose things, and what is
// saved then may even be refused (an array whose units have different types); but a file that was saved and loaded is
// saved alike from then on.
void fuzzSaving(std::string_view input) {
    const FuzzInput files(input);
    if (!files.isModest()) return;
    const FuzzFolder here(files.files);
    const auto circuit = load(files.circuit);
    if (circuit == nullptr || needsEscapes(*circuit)) return;
    completes([&] { normalFormOf(FileKind::Circuit, "circuit.nlx", files.circuit); },
              {isNumberTooLarge, isRefusedValue, isPastTheMemory});
    const auto once = load(saved(*circuit));
    if (once == nullptr) return;
    const std::string text = saved(*once);
    const auto twice = load(text);
    check(twice != nullptr, "a circuit is refused when it is saved for the second time");
    checkSame(saved(*twice), text, "saving isn't stable");
}

}  // namespace tarnsim
