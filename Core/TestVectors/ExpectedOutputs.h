#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Core/Values/Time.h"

namespace tarnsim {

class TestSequence;
class TestVector;

/// Answers what the outputs of a sequence should show, for the many questions of a verification: columns are found by
/// hash, and vectors beside the last one or by bisection. Reads the sequence, which must stay as it is meanwhile.
class ExpectedOutputs {
public:
    explicit ExpectedOutputs(const TestSequence& sequence);

    /// As TestSequence::expectedOutput.
    std::string at(const std::string& name, Time time) const { return std::string(textAt(columnOf(name), time)); }

    /// The first output column of that name, by position; nothing if there is none.
    std::optional<int> columnOf(const std::string& name) const;
    /// What stands in that column; valid as long as the sequence stays as it is.
    std::string_view textAt(std::optional<int> column, Time time) const;

private:
    void assignSegments();
    /// The segment that `time` lies in. REQUIRES: it isn't before the first end time.
    std::size_t segmentOf(Time time) const;
    /// The vector whose expectations hold at `time`; null if there is none.
    const TestVector* inForceAt(Time time) const;

    const TestSequence& sequence_;
    std::unordered_map<std::string, int> columns_;  ///< the first of each name
    std::vector<Time> endTimes_;                    ///< ascending, each once; a segment reaches from one to the next
    std::vector<const TestVector*> vectorOfSegment_;
    mutable std::size_t lastSegment_ = 0;  ///< that was asked for
};

}  // namespace tarnsim
