#include "Cli/Tarnfmt/Formatter.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>

#include "Cli/Tarnfmt/CircuitLosses.h"
#include "Cli/Tarnfmt/SignalLosses.h"
#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitFileWriter.h"
#include "Core/Circuit/CircuitSpec.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"
#include "Core/TestVectors/TestSequence.h"
#include "Core/TestVectors/TestSequenceFileReader.h"
#include "Core/TestVectors/TestSequenceFileWriter.h"

namespace tarnsim {

namespace {

/// A circuit whose memories stay empty: their images have nothing to do with its text, and loading them is told on the
/// standard output.
class CircuitWithoutImages : public Circuit {
public:
    using Circuit::Circuit;

    void onLoaded(Circuit* /*owner*/) override {}

    std::unique_ptr<Circuit> createDeclaration(const CircuitSpec& spec, Circuit* parent) const override {
        auto declaration = std::make_unique<CircuitWithoutImages>(spec.getName(), "", parent);
        declaration->setSpec(spec);
        return declaration;
    }
};

/// Holds the error stream shut: what is read for the second time was warned of the first time.
class QuietErrors {
public:
    QuietErrors() : former_(dup(STDERR_FILENO)) {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        std::fflush(stderr);
        if (former_ >= 0 && nowhere >= 0) dup2(nowhere, STDERR_FILENO);
        if (nowhere >= 0) close(nowhere);
    }
    ~QuietErrors() {
        std::fflush(stderr);
        if (former_ < 0) return;
        dup2(former_, STDERR_FILENO);
        close(former_);
    }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    int former_;
};

/// Units that aren't there, up to a gap that nobody would close by a slip.
constexpr std::size_t kLongestGap = 4096;

/// An array is written by its highest index. One with a wide gap would take all memory when it's read again.
void refuseWideGaps(const Circuit& circuit) {
    for (const Component* unit : circuit.getComponents()) {
        const std::size_t open = unit->getName().find('[');
        if (open == std::string::npos) continue;
        const auto index = readLeadingInteger(std::string_view(unit->getName()).substr(open + 1));
        if (index && *index > 0 && static_cast<std::size_t>(*index) > circuit.countComponents() + kLongestGap) {
            throw Error("Error: unit '%s' would become an array of %u units.", unit->getName().c_str(),
                        static_cast<unsigned>(*index) + 1);
        }
    }
    for (const Circuit* declaration : circuit.getDeclarations()) {
        if (declaration->isInline()) refuseWideGaps(*declaration);
    }
}

/// Loads the circuit, and makes sure that it can be written.
std::unique_ptr<Circuit> loadCircuit(const std::string& path, const std::string& contents) {
    // What was read doesn't outlive this function: a circuit that is written has no memory of it.
    const CircuitSpec spec(path, contents);
    auto circuit = std::make_unique<CircuitWithoutImages>(spec.getName(), nullptr);
    circuit->setSpec(spec);
    return circuit;
}

/// Without it a stream that runs out of memory leaves the rest of a text out and says nothing.
void raiseFailuresOf(std::ostream& stream) {
    stream.exceptions(std::ios::badbit);
}

void formatCircuit(const std::string& path, const std::string& contents, NormalForm& result) {
    const auto circuit = loadCircuit(path, contents);
    refuseWideGaps(*circuit);
    std::ostringstream stream;
    raiseFailuresOf(stream);
    CircuitFileWriter(circuit.get()).write(stream, false);
    result.text = stream.str();
}

void checkCircuit(const std::string& path, const std::string& contents, NormalForm& result) {
    const CircuitSource source(contents);
    const CircuitSpec before(path, contents);
    result.losses = source.losses();  // for a text that can't be read
    const CircuitSpec after(path, result.text);
    result.losses = lossesOf(before, after, source);
    loadCircuit(path, result.text);
}

void formatSignals(const std::string& path, const std::string& contents, NormalForm& result) {
    TestSequence sequence(TestSequence::kEmpty);
    TestSequenceFileReader().read(path, contents, sequence);
    std::ostringstream stream;
    raiseFailuresOf(stream);
    TestSequenceFileWriter().write(sequence, stream, sequence.hasDeltaTime());
    result.text = stream.str();
}

void checkSignals(const std::string& path, const std::string& contents, NormalForm& result) {
    const SignalSource source(contents);
    TestSequence before(TestSequence::kEmpty);
    TestSequenceFileReader().read(path, contents, before);
    result.losses = source.losses();  // for a text that can't be read
    TestSequence after(TestSequence::kEmpty);
    TestSequenceFileReader().read(path, result.text, after);
    result.losses = lossesOf(before, after, source);
}

}  // namespace

std::optional<FileKind> fileKindOf(const std::string& path) {
    if (path.ends_with(".nlx")) return FileKind::Circuit;
    if (path.ends_with(".sig")) return FileKind::Signals;
    return std::nullopt;
}

NormalForm normalFormOf(FileKind kind, const std::string& path, const std::string& contents) {
    NormalForm result;
    const bool isCircuit = kind == FileKind::Circuit;
    (isCircuit ? formatCircuit : formatSignals)(path, contents, result);
    try {
        const QuietErrors quiet;
        (isCircuit ? checkCircuit : checkSignals)(path, contents, result);
    } catch (const Error& error) {
        result.readingFailure = trimmed(error.what());
    }
    // Those without a line stand last.
    std::ranges::stable_sort(result.losses, {}, [](const Loss& loss) { return static_cast<unsigned>(loss.line) - 1; });
    return result;
}

}  // namespace tarnsim
