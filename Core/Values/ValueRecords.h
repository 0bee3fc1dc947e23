#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "Core/Values/Time.h"
#include "Core/Values/Value.h"

namespace tarnsim {

/// The past of one signal: a letter text of a fixed width for each time at which it was written, in order of time.
///
/// Kept as arrays of times and of letters side by side, so a record of a one-bit signal takes 5 bytes. Writing at or
/// behind the latest time, which is what a run does nearly always, takes constant time. Writing further back opens a
/// gap there: the records behind the gap lie in a second pair of arrays, in reverse, and move over as the writing
/// proceeds. So a run that works its way up through stimuli that were all set before it takes constant time a write,
/// too.
class ValueRecords {
public:
    std::size_t size() const { return before_.times.size() + (behind_ ? behind_->times.size() : 0); }
    bool empty() const { return size() == 0; }
    void clear();

    /// Enters `letters` at `time`, in place of a record of that very time. All records have the width of the first.
    void store(Time time, std::string_view letters);

    /// The last record that isn't later than `time`; nothing if there is none.
    std::optional<std::size_t> inForceAt(Time time) const;
    /// The first record that isn't earlier than `time`; `size()` if there is none.
    std::size_t firstFrom(Time time) const;

    // REQUIRES: i < size()

    Time timeOf(std::size_t i) const;
    std::string_view lettersOf(std::size_t i) const;

private:
    /// Records one on top of the other.
    struct Stack {
        std::vector<Time> times;
        std::vector<char> letters;  ///< record i stands at i * width

        std::string_view lettersOf(std::size_t i, std::size_t width) const {
            return {letters.data() + i * width, width};
        }
        void push(Time time, std::string_view text);
        void pop(std::size_t width);
    };

    /// Opens the gap behind the last record that isn't later than `time`.
    void moveGapTo(Time time);
    void moveTop(Stack& from, Stack& to) const;

    Stack before_;                   ///< up to the gap, times ascending
    std::unique_ptr<Stack> behind_;  ///< behind the gap, times descending; null until a write went further back
    std::size_t width_ = 0;          ///< letters a record
};

}  // namespace tarnsim
