#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "Core/Values/Time.h"

namespace tarnsim {

class TestSequence;
class TestVector;

/// Answers what the outputs of a sequence should show, for the many questions of a verification: columns are found by
/// hash, and where the vectors' end times never go back, as they hardly ever do, vectors by bisection. Reads the
/// sequence, which must stay as it is meanwhile.
class ExpectedOutputs {
public:
    explicit ExpectedOutputs(const TestSequence& sequence);

    /// As TestSequence::expectedOutput.
    std::string at(const std::string& name, Time time) const;

private:
    /// The vector whose expectations hold at `time`; null if there is none.
    const TestVector* inForceAt(Time time) const;

    const TestSequence& sequence_;
    std::unordered_map<std::string, int> columns_;  ///< the first of each name
    bool endTimesAscend_;
};

}  // namespace tarnsim
