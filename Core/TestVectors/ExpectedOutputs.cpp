#include "Core/TestVectors/ExpectedOutputs.h"

#include <algorithm>

#include "Core/TestVectors/TestSequence.h"

namespace tarnsim {

namespace {

Time endTimeOf(const std::unique_ptr<TestVector>& vector) {
    return vector->endTime();
}

}  // namespace

ExpectedOutputs::ExpectedOutputs(const TestSequence& sequence)
    : sequence_(sequence), endTimesAscend_(std::ranges::is_sorted(sequence.vectors(), {}, endTimeOf)) {
    const TestVectorHeader* header = sequence.header();
    const int count = header == nullptr ? 0 : header->outputCount();
    for (int i = 0; i < count; ++i) columns_.emplace(header->outputName(i), i);
}

std::string ExpectedOutputs::at(const std::string& name, Time time) const {
    const auto column = columns_.find(name);
    if (column == columns_.end()) return "?";
    const TestVector* vector = inForceAt(time);
    return vector == nullptr ? "!" : vector->output(column->second);
}

const TestVector* ExpectedOutputs::inForceAt(Time time) const {
    const auto& vectors = sequence_.vectors();
    if (vectors.empty()) return nullptr;
    if (endTimesAscend_) {
        const auto next = std::ranges::upper_bound(vectors, time, {}, endTimeOf);
        if (next != vectors.end()) return next == vectors.begin() ? nullptr : std::prev(next)->get();
    } else {
        const auto holds = [&](const auto& a, const auto& b) { return time >= a->endTime() && time < b->endTime(); };
        const auto found = std::ranges::adjacent_find(vectors, holds);
        if (found != vectors.end()) return found->get();
    }
    return vectors.back()->endTime() == time ? vectors.back().get() : nullptr;
}

}  // namespace tarnsim
