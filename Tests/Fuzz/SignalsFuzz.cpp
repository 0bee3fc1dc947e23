#include <sstream>

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

}  // namespace

// A signal file is read or refused in an Error; nothing else ends it. What was read can be written, and what was
// written can be read.
void fuzzSignals(std::string_view input) {
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
}

}  // namespace tarnsim
