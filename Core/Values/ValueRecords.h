#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "Core/Values/Time.h"
#include "Core/Values/Value.h"

namespace tarnsim {

/// The past of one signal: a letter text of a fixed width for each time at which it was written, in order of time.
///
/// Kept as times and letters side by side in chunks of some hundred bytes, so a record of a one-bit signal takes 5
/// bytes, nothing moves when there are more, and what all signals of a board write next lies close together in memory.
/// Writing at or behind the latest time, which is what a run does nearly always, takes constant time. Writing further
/// back opens a gap there: the records behind the gap lie in a second stack, in reverse, and move over as the writing
/// proceeds. So a run that works its way up through stimuli that were all set before it takes constant time a write,
/// too.
///
/// The latest records of one letter stand in the object itself and go to the chunks a few at a time: parts look back by
/// their delay, seldom further, and on a board with thousands of signals the object's one cache line is all that a
/// write and a read need to touch.
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
        if (!append(time, letters.data(), letters.size())) storeAnywhere(time, letters);
    }
    /// The same for records of one letter.
    void storeLetter(Time time, char letter) {
        if (!append(time, &letter, 1)) storeAnywhere(time, {&letter, 1});
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
        const char* letter = lettersInForceAt(time);
        return letter == nullptr ? none : *letter;
    }

    // REQUIRES: i < size()

    Time timeOf(std::size_t i) const {
        const bool isBehind = behind_ && i >= before_.size();
        return isBehind ? behind_->timeOf(size() - 1 - i) : before_.timeOf(i);
    }
    std::string_view lettersOf(std::size_t i) const {
        const bool isBehind = behind_ && i >= before_.size();
        return {isBehind ? behind_->lettersOf(size() - 1 - i) : before_.lettersOf(i), before_.width()};
    }

private:
    /// Records one on top of the other.
    class Stack {
    public:
        Stack() = default;
        explicit Stack(std::size_t width) : width_(static_cast<std::uint8_t>(width)) {}
        Stack(const Stack& other);
        Stack& operator=(const Stack&) = delete;
        Stack& operator=(Stack&&) = default;

        std::uint32_t size() const { return inChunks_ + recent_; }
        std::size_t width() const { return width_; }
        Time timeOf(std::size_t i) const { return i < inChunks_ ? timeInChunk(i) : recentTimes_[i - inChunks_]; }
        const char* lettersOf(std::size_t i) const {
            return i < inChunks_ ? lettersInChunk(i) : &recentLetters_[i - inChunks_];
        }
        /// REQUIRES: size() > 0
        Time topTime() const {
            return recent_ > 0 ? recentTimes_[recent_ - std::size_t{1}] : timeInChunk(inChunks_ - std::size_t{1});
        }
        void push(Time time, const char* letters) {
            if (width_ != 1) return pushToChunk(time, letters);
            if (recent_ == kRecent) flush();
            recentTimes_[recent_] = time;
            recentLetters_[recent_] = *letters;
            ++recent_;
        }
        void pop() { recent_ > 0 ? --recent_ : --inChunks_; }
        /// Null if all records are later. In a stack with the latest on top.
        const char* lettersInForceAt(Time time) const {
            if (const std::size_t recent = countRecentNotLater(time); recent > 0) return &recentLetters_[recent - 1];
            const std::size_t count = countInChunksNotLater(time);
            return count == 0 ? nullptr : lettersInChunk(count - 1);
        }
        /// The number of records that aren't later than `time`, in a stack with the latest on top.
        std::size_t countNotLater(Time time) const;
        /// And that of those that are later, in one with the earliest on top.
        std::size_t countLater(Time time) const;

    private:
        static constexpr std::uint8_t kRecent = 6;

        /// Records a chunk: 64 of one letter, fewer of more; a power of two.
        std::size_t chunkLength() const { return std::size_t{64} >> chunkShift(); }
        std::size_t chunkShift() const { return width_ == 1 ? 0 : width_ <= 8 ? 1 : width_ <= 32 ? 2 : 3; }
        const char* chunkOf(std::size_t i) const { return chunks_[i >> (6 - chunkShift())].get(); }
        Time timeInChunk(std::size_t i) const {
            return reinterpret_cast<const Time*>(chunkOf(i))[i & (chunkLength() - 1)];
        }
        const char* lettersInChunk(std::size_t i) const {
            return chunkOf(i) + sizeof(Time) * chunkLength() + (i & (chunkLength() - 1)) * width_;
        }
        std::size_t countRecentNotLater(Time time) const {
            std::size_t count = recent_;
            while (count > 0 && recentTimes_[count - 1] > time) --count;
            return count;
        }
        std::size_t countInChunksNotLater(Time time) const;
        void pushToChunk(Time time, const char* letters);
        void flush();
        /// The first of the records `begin` to `end` in chunks for which `isBehind(time)`; `end` if there is none.
        template <class Predicate>
        std::size_t search(std::size_t begin, std::size_t end, Predicate isBehind) const;

        std::array<Time, kRecent> recentTimes_{};
        std::array<char, kRecent> recentLetters_{};
        std::uint8_t recent_ = 0;  ///< how many of these there are, behind those in chunks
        std::uint8_t width_ = 0;   ///< letters a record
        std::uint32_t inChunks_ = 0;
        mutable std::uint32_t lastFound_ = 0;                ///< in chunks
        std::uint32_t room_ = 0;                             ///< for records in `chunks_`
        std::unique_ptr<std::unique_ptr<char[]>[]> chunks_;  ///< each the times, then the letters
    };

    /// The way of nearly every write; to look for the gap first would double its cost.
    bool append(Time time, const char* letters, std::size_t width) {
        if (countBehind() > 0 || before_.size() == 0 || before_.topTime() >= time || before_.width() != width) {
            return false;
        }
        before_.push(time, letters);
        return true;
    }
    std::size_t countBehind() const { return behind_ ? behind_->size() : 0; }
    void storeAnywhere(Time time, std::string_view letters);
    /// Opens the gap behind the last record that isn't later than `time`.
    void moveGapTo(Time time);
    static void moveTop(Stack& from, Stack& to);

    Stack before_;                   ///< up to the gap, the latest on top
    std::unique_ptr<Stack> behind_;  ///< behind the gap, the earliest on top; null until a write went further back
};

}  // namespace tarnsim
