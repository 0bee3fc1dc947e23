#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "Core/Values/Time.h"

namespace tarnsim {

/// Records one on top of the other, the latest on top: a time in ns each, and letters of one width.
///
/// A record of one letter takes two bytes: the letter, and how much later it is than the record below. The latest ones
/// stand in the object itself: parts look back by their delay, seldom further, so on a board with thousands of signals
/// the object is all that a write and a read need to touch. The others lie in blocks, which are written once and whole.
/// (Shift registers of 4,096 flip-flops took half as long again while records went out four at a time.)
///
/// Wider records lie in chunks of some hundred bytes, times and letters side by side, so that nothing moves when there
/// are more. Of those of up to 16 letters the latest two stand in the object.
class RecordStack {
public:
    RecordStack() : RecordStack(0) {}
    /// `width` letters a record.
    explicit RecordStack(std::size_t width) : width_(static_cast<std::uint8_t>(width)) {}
    RecordStack(const RecordStack& other);
    RecordStack(RecordStack&&) noexcept = default;
    RecordStack& operator=(const RecordStack&) = delete;
    RecordStack& operator=(RecordStack&&) noexcept = default;
    ~RecordStack() = default;

    std::size_t size() const { return std::size_t{below_} + recent_; }
    std::size_t width() const { return width_; }

    /// REQUIRES: later than the top
    void push(Time time, const char* letters) {
        if (width_ == 1) {
            pushLetter(time, *letters);
        } else {
            pushText(time, letters);
        }
    }
    /// The same for records of one letter.
    void pushLetter(Time time, char letter) {
        const std::uint32_t gap = distance(time, latest_);
        const std::uint8_t code = kCodes[static_cast<std::uint8_t>(letter)];
        if (used_ == kUnits) flush();
        if (gap <= kMostGap && code != kLong) {
            units_[used_++] = static_cast<Unit>(gap << kCodeBits | code);
        } else {
            pushLong(gap, letter);
        }
        latest_ = time;
        ++recent_;
    }

    /// The number of records that aren't later than `time`.
    std::size_t countNotLater(Time time) const;
    /// The letters of the latest record that isn't later than `time`; null if all are later. Good until a push or pop.
    const char* lettersInForceAt(Time time) const;
    /// For records of one letter; `none` if all are later.
    char letterInForceAt(Time time, char none) const {
        if (recent_ == 0) return none;
        const Unit top = units_[used_ - 1U];
        if (latest_ <= time) return letterOf(top);
        // A part's inputs have mostly changed once since the time that it looks at, if at all.
        const bool isSecondNear = recent_ > 1 && !isLong(top);
        if (isSecondNear && earlierBy(latest_, top >> kCodeBits) <= time) return letterOf(units_[used_ - 2U]);
        return letterFurtherBackAt(time, none);
    }

    // REQUIRES: size() > 0

    Time topTime() const { return latest_; }
    /// For records of one letter.
    char topLetter() const { return letterOf(units_[used_ - 1U]); }
    const char* topLetters() const;
    void pop();
    /// Gives the top other letters.
    void replaceTop(const char* letters);

    // REQUIRES: i < size(); the lowest is 0

    Time timeOf(std::size_t i) const;
    const char* lettersOf(std::size_t i) const;

private:
    /// A record of one letter, or the upmost of the three of a long one: its code, and above that the gap to the record
    /// below in ns, or in a long one its letter. Below that a long one has the gap, the high half under the low one.
    using Unit = std::uint16_t;
    static constexpr unsigned kCodeBits = 3;
    static constexpr std::uint8_t kLong = 7;
    static constexpr std::uint32_t kMostGap = (1U << (16 - kCodeBits)) - 1;
    static constexpr std::size_t kLongLength = 3;

    static constexpr std::string_view kLetters = "LHUZX";
    static constexpr std::array<std::uint8_t, 256> kCodes = [] {
        std::array<std::uint8_t, 256> codes{};
        codes.fill(kLong);
        for (std::size_t i = 0; i < kLetters.size(); ++i) {
            codes[static_cast<std::uint8_t>(kLetters[i])] = static_cast<std::uint8_t>(i);
        }
        return codes;
    }();

    static constexpr std::uint8_t kUnits = 18;
    static constexpr std::size_t kBlockUnits = 16;

    /// Records of one letter that don't stand in the object any more.
    struct Block {
        const Unit* units;  ///< the last one is the top
        Time latest;
        std::uint32_t end;  ///< the number of records in this block and in all below
    };
    /// Some blocks. Allocated together: to free millions of single ones took an eighth of a run.
    struct alignas(64) Slab {
        static constexpr std::size_t kBlocks = 6;

        std::uint32_t size;  ///< blocks in it
        std::array<Time, kBlocks> latest;
        std::array<std::uint32_t, kBlocks> end;
        alignas(64) std::array<std::array<Unit, kBlockUnits>, kBlocks> units;
    };
    /// A record that was found, in force from one time until another.
    struct Found {
        Time from = 0;
        Time until = 0;
        std::size_t count = 0;  ///< of it and all below
        char letter = 0;
    };
    /// What lies below the object.
    struct Depth {
        Slab upmost;                                     ///< stands here, so that a full object has one place to go to
        std::vector<std::unique_ptr<const Slab>> slabs;  ///< the full ones below
        std::vector<std::unique_ptr<char[]>> chunks;     ///< of wider records: times, then letters
        std::size_t lastFound = 0;                       ///< a block or a record, where the last search ended
        /// What was found in blocks last. Many parts on one clock, which is laid down for the whole run, all ask for
        /// the same two times; without this it took a fifth of the time of shift registers to find them.
        std::array<Found, 2> found{};

        std::size_t blockCount() const { return slabs.size() * Slab::kBlocks + upmost.size; }
        Block block(std::size_t i) const;
    };
    /// The latest records of up to 16 letters.
    struct Texts {
        static constexpr std::size_t kLetters = 16;
        using Letters = std::array<char, kLetters>;

        Letters top;
        Letters second;
        Time secondTime;
    };
    /// Goes down the records in some units, from the top.
    class Reader;

    static std::uint32_t distance(Time later, Time earlier) {
        return static_cast<std::uint32_t>(later) - static_cast<std::uint32_t>(earlier);
    }
    static Time earlierBy(Time time, std::uint32_t gap) {
        return static_cast<Time>(static_cast<std::uint32_t>(time) - gap);
    }
    static bool isLong(Unit top) { return (top & kLong) == kLong; }
    static char letterOf(Unit top) { return isLong(top) ? static_cast<char>(top >> kCodeBits) : kLetters[top & kLong]; }

    Depth& depth();

    // Of one letter
    void pushLong(std::uint32_t gap, char letter);
    void flush();
    void restore();
    template <class Predicate>
    std::size_t firstBlock(Predicate isReached) const;
    std::size_t findBlock(Time time) const;
    char letterFurtherBackAt(Time time, char none) const;
    const Found& findInBlocks(Time time) const;
    Reader readerAt(std::size_t i) const;

    // Of more
    void pushText(Time time, const char* letters);
    void popText();
    /// Records a chunk, as a power of two: fewer of many letters.
    std::size_t chunkShift() const { return width_ <= 8 ? 5 : width_ <= 32 ? 4 : 3; }
    void pushToChunk(Time time, const char* letters);
    Time timeInChunk(std::size_t i) const;
    char* lettersInChunk(std::size_t i) const;
    std::size_t countInChunksNotLater(Time time) const;

    Time latest_ = 0;          ///< the time of the top
    std::uint32_t below_ = 0;  ///< how many records lie in `depth_`
    std::uint8_t width_ = 0;   ///< letters a record
    std::uint8_t recent_ = 0;  ///< how many stand here; of up to 16 letters, at least one if there are any
    std::uint8_t used_ = 0;    ///< in `units_`
    union {
        std::array<Unit, kUnits> units_{};  ///< of one letter
        Texts texts_;                       ///< of more
    };
    std::unique_ptr<Depth> depth_;  ///< null until it is needed
};

}  // namespace tarnsim
