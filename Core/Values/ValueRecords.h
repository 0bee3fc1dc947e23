#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "Core/Values/Time.h"
#include "Core/Values/Value.h"

namespace tarnsim {

/// The past of one signal: a letter text of a fixed width for each time at which it was written, in order of time.
///
/// Kept as two arrays, times and letters side by side, so a record of a one-bit signal takes 5 bytes, and nothing but
/// these arrays is allocated. Writing at or behind the latest time, which is what a run does nearly always, takes
/// constant time; writing further back moves the later records up.
class ValueRecords {
public:
    std::size_t size() const { return times_.size(); }
    bool empty() const { return times_.empty(); }
    void clear();

    /// Enters `letters` at `time`, in place of a record of that very time. All records have the width of the first.
    void store(Time time, std::string_view letters);

    /// The last record that isn't later than `time`; nothing if there is none.
    std::optional<std::size_t> inForceAt(Time time) const;
    /// The first record that isn't earlier than `time`; `size()` if there is none.
    std::size_t firstFrom(Time time) const;

    // REQUIRES: i < size()

    Time timeOf(std::size_t i) const { return times_[i]; }
    std::string_view lettersOf(std::size_t i) const { return {letters_.data() + i * width_, width_}; }

private:
    std::vector<Time> times_;    ///< strictly ascending
    std::vector<char> letters_;  ///< record i stands at i * width_
    std::size_t width_ = 0;      ///< letters a record
};

}  // namespace tarnsim
