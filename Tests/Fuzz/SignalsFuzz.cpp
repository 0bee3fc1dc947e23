#include <sstream>
#include <utility>

#include "Cli/Tarnfmt/Formatter.h"
#include "Core/TestVectors/ExpectedOutputs.h"
#include "Core/TestVectors/TestSequence.h"
#include "Core/TestVectors/TestSequenceFileReader.h"
#include "Core/TestVectors/TestSequenceFileWriter.h"
#include "Tests/Fuzz/FuzzSupport.h"
#include "Tests/Fuzz/FuzzTargets.h"

namespace tarnsim {

namespace {

void read(const std::string& text, TestSequence& sequence) {
    TestSequenceFileReader().read("test.sig", text, sequence);
}

std::string written(const TestSequence& sequence) {
    std::ostringstream text;
    TestSequenceFileWriter().write(sequence, text, sequence.hasDeltaTime());
    return text.str();
}

/// Beside a delta time a cell takes the `~` of the next output when it is read, and its own when it is written.
bool isReversedOnReading(const TestSequence& sequence) {
    const TestVectorHeader& header = *sequence.header();
    if (!header.hasDeltaTime()) return false;
    for (int i = header.separatorColumn(); i < header.columnCount(); ++i) {
        if (header.isReversed(i)) return true;
    }
    return false;
}

}  // namespace

// A signal file is read or refused in an Error; nothing else ends it. What was read can be written, and what was
// written can be read. A first saving may lose things (a comment moves to the file, four equal letters become one, and
// of many such letters again with each saving), but what was saved and read is soon saved alike.
void fuzzSignals(std::string_view input) {
    completes([&] { normalFormOf(FileKind::Signals, "test.sig", std::string(input)); });
    TestSequence sequence(TestSequence::kEmpty);
    if (!completes([&] { read(std::string(input), sequence); })) return;
    const ExpectedOutputs expected(sequence);
    for (const std::string& name : sequence.header()->outputNames()) {
        for (const auto& vector : sequence.vectors()) expected.at(name, vector->endTime());
    }
    const std::string once = written(sequence);
    // Names are written as the C library prints texts, which end at a NUL.
    if (input.find('\0') != std::string_view::npos) return;
    TestSequence saved(TestSequence::kEmpty);
    check(completes([&] { read(once, saved); }), "a saved signal file is refused");
    check(saved.vectorCount() == sequence.vectorCount(), "saving has changed the number of vectors");
    check(saved.optionCount() == sequence.optionCount(), "saving has changed the number of options");
    check(saved.assignmentCount() == sequence.assignmentCount(), "saving has changed the number of assignments");
    check(saved.lastEndTime() == sequence.lastEndTime(), "saving has changed the end");
    if (isReversedOnReading(saved)) return;
    std::string text = written(saved);
    std::string before;
    // Each saving but the last leaves a cell at most half as long.
    for (std::size_t length = input.size(); before != text && length > 0; length /= 2) {
        TestSequence again(TestSequence::kEmpty);
        check(completes([&] { read(text, again); }), "a signal file is refused when it is saved once more");
        before = std::exchange(text, written(again));
    }
    checkSame(text, before, "saving isn't stable");
}

}  // namespace tarnsim
