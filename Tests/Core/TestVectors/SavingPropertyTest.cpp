#include <sstream>

#include "Core/Circuit/CircuitFileReader.h"
#include "Core/Support/Text.h"
#include "Core/Support/TextFile.h"
#include "Core/TestVectors/TestSequenceFileWriter.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"
#include "Tests/Core/TestVectors/SequenceSupport.h"
#include "Tests/Support/RandomCircuit.h"
#include "Tests/Support/RandomRun.h"
#include "Tests/Support/RandomSignals.h"

namespace tarnsim {

namespace {

constexpr std::uint32_t kSeeds = 400;
constexpr std::uint32_t kRunSeeds = 25;

/// All that a sequence holds, but for the numbers of lines.
std::string contentsOf(const TestSequence& sequence) {
    std::ostringstream text;
    const auto list = [&](const std::vector<TestColumn>& cells) {
        for (const TestColumn& cell : cells) text << " " << (cell.reversed ? "~" : "") << cell.value;
    };
    for (const std::string& comment : sequence.comments()) text << "comment " << comment << "\n";
    for (const auto& option : sequence.options()) {
        text << "option " << option->name() << " " << option->toString() << "\n" << option->getCommentText();
    }
    for (const auto& assignment : sequence.assignments()) {
        text << "assignment " << assignment->name() << " " << assignment->value() << "\n"
             << assignment->getCommentText();
    }
    const TestVectorHeader& header = *sequence.header();
    text << "header " << header.hasDeltaTime();
    for (int i = 0; i < header.columnCount(); ++i) {
        text << " " << (header.isReversed(i) ? "~" : "") << header.columnName(i);
    }
    text << "\n" << header.getCommentText();
    for (const auto& vector : sequence.vectors()) {
        text << "vector " << vector->time() << " " << vector->deltaTime();
        list(vector->inputs());
        text << " =>";
        list(vector->outputs());
        text << "\n" << vector->getCommentText();
    }
    return text.str();
}

/// Some places of several widths, as no circuit has to have them: a signal file stands for itself.
RandomCircuit places() {
    RandomCircuit circuit;
    circuit.inputs = {{"clk", 1}, {"u1.A", 4}, {"_RD", 1}, {"q<3>", 2}, {"x.y.Din", 8}, {"wide", 37}};
    circuit.outputs = {{"Q", 1}, {"D", 8}, {"time", 3}, {"u2.Y[1]", 16}, {"A=B", 1}};
    circuit.delayedUnits = {"u1", "74"};
    return circuit;
}

// The random files have nothing in them that is known to be lost: a group of four equal X, Z or U is written as one
// letter, such letters in front of whole groups in lower case; the comment of the record that the saved file begins
// with is the file's when it's read again, and comments behind the last record belong to nothing; beside a delta time a
// cell takes the `~` of the next output, but is written with its own; and an option with a value of blanks is written
// as one without a value, which stands for `true`.
TEST(SavingProperty, ASavedSignalFileReadsAlikeAndIsSavedAgainAlike) {
    for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
        SCOPED_TRACE(format("seed %u", seed));
        const Workplace here;
        RandomChoices choices(seed);
        RandomSignalsStyle style;
        style.runnable = false;
        here.write("test.sig", makeRandomSignals(choices, places(), style).text);

        TestSequence sequence("test.sig");
        TestSequenceFileWriter().write(sequence, "saved.sig", sequence.hasDeltaTime());
        TestSequence saved("saved.sig");
        ASSERT_EQ(firstDifference(contentsOf(saved), contentsOf(sequence)), "");
        TestSequenceFileWriter().write(saved, "again.sig", saved.hasDeltaTime());
        ASSERT_EQ(firstDifference(readBytes("again.sig").value(), readBytes("saved.sig").value()), "");
    }
}

TEST(SavingProperty, ACircuitRunsAlikeUnderASavedSignalFile) {
    for (std::uint32_t seed = 1; seed <= kRunSeeds; ++seed) {
        SCOPED_TRACE(format("seed %u", seed));
        const Workplace here;
        RandomChoices choices(seed);
        const RandomCircuit random = makeRandomCircuit(choices);
        random.writeTo(".");
        here.write("test.sig", makeRandomSignals(choices, random).text);

        TestSequence sequence("test.sig");
        TestSequenceFileWriter().write(sequence, "saved.sig", sequence.hasDeltaTime());
        const auto runUnder = [&](const std::string& signalFile) {
            std::unique_ptr<Circuit> circuit;
            streamsOf([&] { circuit = CircuitFileReader().load(RandomCircuit::kFile); });
            return runRandomCircuit(*circuit, signalFile, random);
        };
        const RandomRun run = runUnder("test.sig");
        const RandomRun savedRun = runUnder("saved.sig");
        // The file is named where a cell is refused; here none is.
        ASSERT_EQ(savedRun.error, run.error);
        ASSERT_EQ(firstDifference(savedRun.report, run.report), "");
    }
}

// What the properties are worth: the random files have all of it in them.
TEST(SavingProperty, RandomSignalFilesHoldEverything) {
    std::map<std::string, std::size_t> made;
    std::size_t records = 0;
    for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
        RandomChoices choices(seed);
        RandomSignalsStyle style;
        style.runnable = false;
        const RandomSignals signals = makeRandomSignals(choices, places(), style);
        for (const auto& [what, number] : signals.made) made[what] += number;
        const auto sequence = sequenceFrom(signals.text);
        records += static_cast<std::size_t>(sequence->optionCount() + sequence->assignmentCount());
        ASSERT_EQ(static_cast<std::size_t>(sequence->vectorCount()),
                  signals.made.contains("vector") ? signals.made.at("vector") : 0);
    }
    EXPECT_EQ(records, made["option"] + made["assignment"]);
    for (const char* what :
         {"option", "assignment", "vector", "delta time", "comment", "comment behind a record", "reversed input",
          "reversed output", "reversed cell", "undefined letters", "letters and digits"}) {
        EXPECT_GE(made[what], 20u) << what;
    }
}

}  // namespace

}  // namespace tarnsim
