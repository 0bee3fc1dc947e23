#include <algorithm>

#include "Core/Circuit/CircuitFileWriter.h"
#include "Core/Support/TextFile.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"
#include "Tests/Support/RandomCircuit.h"
#include "Tests/Support/RandomRun.h"
#include "Tests/Support/RandomSignals.h"

namespace tarnsim {

namespace {

constexpr std::uint32_t kSeeds = 200;

std::unique_ptr<Circuit> load(const std::string& file) {
    std::unique_ptr<Circuit> circuit;
    streamsOf([&] { EXPECT_EQ(errorOf([&] { circuit = CircuitFileReader().load(file); }), "(no Error)"); });
    return circuit;
}

/// All that a circuit holds, with its declarations, but for the order of ports and units, which saving changes.
void addContents(Texts& lines, const Circuit& circuit, const std::string& where) {
    const auto add = [&](const std::string& line) { lines.push_back(where + line); };
    for (const std::string& key : circuit.getMetaDataKeys()) {
        for (const std::string& value : circuit.getMetaData(key)) add("MetaData " + key + " " + value);
    }
    for (std::size_t i = 0; i < circuit.countComments(); ++i) add("comment " + circuit.getComment(i)->getText());
    for (const std::string& path : circuit.getImportPaths()) add("ImportPath " + path);
    Texts unordered;
    for (const Port* port : circuit.getPorts()) {
        unordered.push_back(format("Port %s %d %d ", port->getName().c_str(), static_cast<int>(port->direction()),
                                   static_cast<int>(port->width())) +
                            port->getCommentText());
    }
    for (const Component* unit : circuit.getComponents()) {
        unordered.push_back(format("Unit %s %s%s ", unit->getType().c_str(), unit->getName().c_str(),
                                   unit->getParameterText().c_str()) +
                            unit->getCommentText());
    }
    std::ranges::sort(unordered);
    for (const std::string& line : unordered) add(line);
    for (const Net* net : circuit.getNets()) {
        std::string line = format("Net %s", net->getName().c_str());
        for (const Port* port : net->getPorts()) line.append(" ").append(circuit.getPortPath(port));
        add(line + " " + net->getCommentText());
    }
    for (const Circuit* declaration : circuit.getDeclarations()) {
        add(format("Circuit %s %s", declaration->getType().c_str(), declaration->getFilePath().c_str()));
        addContents(lines, *declaration, where + declaration->getType() + ": ");
    }
}

std::string contentsOf(const Circuit& circuit) {
    Texts lines;
    addContents(lines, circuit, "");
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

// The random circuits have nothing in them that is known to be lost (SavingLossesTest shows each loss): an array is
// written as one name, so its units have no parameters and comments, no gaps and one type; declarations that no unit
// uses aren't written; the reader knows no escapes, so meta data needs none; ports are written without their options.
// Imported files are written out, so there are none: what a file was made of can't come back. Neither are there nets
// over both a port of a unit and a net inside that unit.
//
// Saving sorts the units, and some circuits depend on their order, which is none of its fault; RandomCircuitStyle tells
// how these are left out.
TEST(SavingProperty, ASavedCircuitLoadsAlikeIsSavedAgainAlikeAndRunsAlike) {
    int completeRuns = 0;
    for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
        SCOPED_TRACE(format("seed %u", seed));
        const Workplace here;
        RandomChoices choices(seed);
        const RandomCircuit random = makeRandomCircuit(choices);
        random.writeTo(".");
        here.write("test.sig", makeRandomSignals(choices, random).text);

        // Saved under its own name, which stands in messages.
        const std::unique_ptr<Circuit> circuit = load(RandomCircuit::kFile);
        ASSERT_NE(circuit, nullptr);
        CircuitFileWriter(circuit.get()).save(RandomCircuit::kFile, false);
        const std::unique_ptr<Circuit> saved = load(RandomCircuit::kFile);
        ASSERT_NE(saved, nullptr);
        ASSERT_EQ(firstDifference(contentsOf(*saved), contentsOf(*circuit)), "");
        CircuitFileWriter(saved.get()).save("again.nlx", false);
        ASSERT_EQ(firstDifference(readBytes("again.nlx").value(), readBytes(RandomCircuit::kFile).value()), "");

        const RandomRun run = runRandomCircuit(*circuit, "test.sig", random);
        const RandomRun savedRun = runRandomCircuit(*saved, "test.sig", random);
        ASSERT_EQ(savedRun.error, run.error);
        ASSERT_EQ(firstDifference(savedRun.report, run.report), "");
        if (run.error.empty()) ++completeRuns;
    }
    // A counter that counts from U ends a run: for random circuits a rare thing, that says little.
    EXPECT_GT(completeRuns, static_cast<int>(kSeeds) * 95 / 100);
}

}  // namespace

}  // namespace tarnsim
