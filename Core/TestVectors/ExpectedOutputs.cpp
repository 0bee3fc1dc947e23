#include "Core/TestVectors/ExpectedOutputs.h"

#include <algorithm>
#include <numeric>

#include "Core/TestVectors/TestSequence.h"

namespace tarnsim {

ExpectedOutputs::ExpectedOutputs(const TestSequence& sequence) : sequence_(sequence) {
    const TestVectorHeader* header = sequence.header();
    const int count = header == nullptr ? 0 : header->outputCount();
    for (int i = 0; i < count; ++i) columns_.emplace(header->outputName(i), i);
    assignSegments();
}

/// A vector's expectations hold from its end time up to the end time of the next one. Where delta times make such spans
/// overlap, the earlier vector has the segment. So vectors take in order what is still free of their span; `nextFree`
/// leads over segments that are taken, so that none is looked at twice.
void ExpectedOutputs::assignSegments() {
    const auto& vectors = sequence_.vectors();
    for (const auto& vector : vectors) endTimes_.push_back(vector->endTime());
    if (!std::ranges::is_sorted(endTimes_)) std::ranges::sort(endTimes_);
    endTimes_.erase(std::unique(endTimes_.begin(), endTimes_.end()), endTimes_.end());
    vectorOfSegment_.resize(endTimes_.size());

    std::vector<std::size_t> nextFree(endTimes_.size() + 1);
    std::iota(nextFree.begin(), nextFree.end(), std::size_t{0});
    const auto firstFreeFrom = [&](std::size_t segment) {
        while (nextFree[segment] != segment) segment = nextFree[segment] = nextFree[nextFree[segment]];
        return segment;
    };
    for (std::size_t i = 1; i < vectors.size(); ++i) {
        const std::size_t end = segmentOf(vectors[i]->endTime());
        for (std::size_t segment = firstFreeFrom(segmentOf(vectors[i - 1]->endTime())); segment < end;
             segment = firstFreeFrom(segment)) {
            vectorOfSegment_[segment] = vectors[i - 1].get();
            nextFree[segment] = segment + 1;
        }
    }
}

std::size_t ExpectedOutputs::segmentOf(Time time) const {
    const auto isIn = [&](std::size_t segment) {
        return segment < endTimes_.size() && endTimes_[segment] <= time &&
               (segment + 1 == endTimes_.size() || time < endTimes_[segment + 1]);
    };
    if (!isIn(lastSegment_) && !isIn(++lastSegment_)) {
        lastSegment_ = static_cast<std::size_t>(std::ranges::upper_bound(endTimes_, time) - endTimes_.begin()) - 1;
    }
    return lastSegment_;
}

std::optional<int> ExpectedOutputs::columnOf(const std::string& name) const {
    const auto column = columns_.find(name);
    return column == columns_.end() ? std::nullopt : std::optional(column->second);
}

std::string_view ExpectedOutputs::textAt(std::optional<int> column, Time time) const {
    if (!column) return "?";
    const TestVector* vector = inForceAt(time);
    return vector == nullptr ? "!" : vector->outputText(*column);
}

const TestVector* ExpectedOutputs::inForceAt(Time time) const {
    if (endTimes_.empty() || time < endTimes_.front()) return nullptr;
    if (const TestVector* vector = vectorOfSegment_[segmentOf(time)]) return vector;
    const TestVector* last = sequence_.vectors().back().get();
    return last->endTime() == time ? last : nullptr;
}

}  // namespace tarnsim
