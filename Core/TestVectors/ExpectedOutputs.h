#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "Core/Values/Time.h"

namespace tarnsim {

class TestSequence;
class TestVector;

/// Answers what the outputs of a sequence should show, for the many questions of a verification: columns are found by
/// hash, and vectors by bisection. Reads the sequence, which must stay as it is meanwhile.
class ExpectedOutputs {
public:
    explicit ExpectedOutputs(const TestSequence& sequence);

    /// As TestSequence::expectedOutput.
    std::string at(const std::string& name, Time time) const;

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
};

}  // namespace tarnsim
