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

// The random circuits have nothing in them that is known to be lost (SavingLossesTest shows each loss): an array is
// written as one name, so its units have no parameters and comments, no gaps and one type; declarations that no unit
// uses aren't written; the reader knows no escapes, so meta data needs none; ports are written without their options.
// Imported files are written out, so there are none: what a file was made of can't come back. Neither are there nets
// over both a port of a unit and a net inside that unit.
//
// Saving sorts the units, and some circuits depend on their order, which is none of its fault; RandomCircuitStyle tells
// how these are left out.
TEST(SavingProperty, ASavedCircuitIsSavedAgainAlikeAndRunsAlike) {
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
