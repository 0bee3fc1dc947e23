#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include "Core/Values/RecordStack.h"
#include "Core/Values/Time.h"

namespace tarnsim {

/// The past of one signal: a letter text of a fixed width for each time at which it was written, in order of time.
///
/// Writing at or behind the latest time, which is what a run does nearly always, takes constant time. Writing further
/// back opens a gap there: the records behind the gap lie in a second stack, in reverse, and move over as the writing
/// proceeds. So a run that works its way up through stimuli that were all set before it takes constant time a write,
/// too.
///
/// One cache line, which is all that writing and reading the latest records of one letter need.
class alignas(64) ValueRecords {
public:
    ValueRecords() = default;
    ValueRecords(const ValueRecords& other);
    ValueRecords& operator=(const ValueRecords&) = delete;
    ~ValueRecords() = default;

    std::size_t size() const { return before_.size() + countBehind(); }
    bool empty() const { return size() == 0; }
    void clear();

    /// Enters `letters` at `time`, in place of a record of that very time. All records have the width of the first.
    void store(Time time, std::string_view letters) {
        if (isNext(time, letters.size())) {
            before_.push(time, letters.data());
        } else {
            storeAnywhere(time, letters);
        }
    }
    /// The same for records of one letter. Returns the one that was in force at `time`; `none` if none was.
    char storeLetter(Time time, char letter, char none) {
        if (isNext(time, 1)) {
            const char former = before_.topLetter();
            before_.pushLetter(time, letter);
            return former;
        }
        const char former = letterInForceAt(time, none);
        storeAnywhere(time, {&letter, 1});
        return former;
    }

    /// The last record that isn't later than `time`; nothing if there is none.
    std::optional<std::size_t> inForceAt(Time time) const;
    /// The first record that isn't earlier than `time`; `size()` if there is none.
    std::size_t firstFrom(Time time) const;

    /// The letters of the record in force at `time`; null if there is none.
    const char* lettersInForceAt(Time time) const {
        if (countBehind() == 0) return before_.lettersInForceAt(time);
        const auto record = inForceAt(time);
        return record ? lettersOf(*record).data() : nullptr;
    }
    /// For records of one letter: the one in force at `time`, `none` before the first record.
    char letterInForceAt(Time time, char none) const {
        if (countBehind() == 0) return before_.letterInForceAt(time, none);
        const char* letter = lettersInForceAt(time);
        return letter == nullptr ? none : *letter;
    }

    // REQUIRES: i < size()

    Time timeOf(std::size_t i) const {
        return i < before_.size() ? before_.timeOf(i) : reversed(behind_->timeOf(size() - 1 - i));
    }
    std::string_view lettersOf(std::size_t i) const {
        return {i < before_.size() ? before_.lettersOf(i) : behind_->lettersOf(size() - 1 - i), before_.width()};
    }

private:
    /// Later times come out as earlier ones.
    static Time reversed(Time time) { return ~time; }

    /// The way of nearly every write; to look for the gap first would double its cost.
    bool isNext(Time time, std::size_t width) const {
        return countBehind() == 0 && before_.size() > 0 && before_.topTime() < time && before_.width() == width;
    }
    std::size_t countBehind() const { return behind_ ? behind_->size() : 0; }
    void storeAnywhere(Time time, std::string_view letters);
    /// Opens the gap behind the last record that isn't later than `time`.
    void moveGapTo(Time time);

    RecordStack before_;                   ///< up to the gap
    std::unique_ptr<RecordStack> behind_;  ///< behind the gap, by reversed times; null until a write went further back
};
static_assert(sizeof(ValueRecords) == 64);

}  // namespace tarnsim
