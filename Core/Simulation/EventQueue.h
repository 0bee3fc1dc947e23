#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "Core/Simulation/Event.h"
#include "Core/Values/Time.h"

namespace tarnsim {

/// The events of the point in time that is being worked through, each once. They are taken in passes: first all that
/// were entered before the time was reached, then again and again those that the last pass added.
class EventSet {
public:
    explicit EventSet(const EventDirectory& directory) : directory_(directory) {}

    /// Begins with another point in time.
    void begin();
    /// The next pass: those of `entered` that no pass since `begin` had, in order, each once. Empties `entered`. Valid
    /// until the next call.
    std::span<const EventNumber> take(std::vector<EventNumber>& entered);

private:
    /// Puts their members in the place of groups.
    void spreadGroups();
    void sort();
    void sortByBits(EventNumber least, EventNumber greatest);

    const EventDirectory& directory_;
    std::vector<EventNumber> pass_;
    std::vector<EventNumber> spread_;  ///< for spreadGroups; its memory is kept
    std::vector<std::uint64_t> bits_;  ///< all 0 between two calls
    std::vector<EventNumber> taken_;   ///< by the passes before this one
    std::vector<bool> isTaken_;        ///< the same, by number
};

/// Events that have run. A long run has hundreds of millions, so they are kept as small as they get: a byte or two
/// each.
class EventLog {
public:
    void append(Time time, std::span<const EventNumber> pass);
    void clear();
    std::vector<std::pair<Time, EventNumber>> readAll() const;

private:
    class Reader;

    static constexpr std::size_t kBlockSize = 1U << 16U;
    using Block = std::array<std::uint8_t, kBlockSize>;

    void makeRoom();
    void put(std::uint32_t number) {
        for (; number > 0x7F; number >>= 7U) *next_++ = static_cast<std::uint8_t>(number | 0x80U);
        *next_++ = static_cast<std::uint8_t>(number);
    }

    /// Seven bits a byte, the lowest first, the last without bit 7. A number stands in one block.
    std::vector<std::unique_ptr<Block>> blocks_;
    std::vector<std::size_t> lengths_;  ///< of all blocks but the last, in bytes
    std::uint8_t* next_ = nullptr;
    std::uint8_t* end_ = nullptr;  ///< of the room in the last block
    Time lastTime_ = 0;
};

/// The events of a run by time.
///
/// The near future is a window of a few microseconds with a slot for each of its times; what lies behind it waits in
/// batches, a window each, and is laid out when its window comes up. So entering and finding take constant time however
/// many events wait.
///
/// Nothing is ever lost: what has run is remembered, and `rewind` enters it again.
class EventQueue {
public:
    explicit EventQueue(EventDirectory& directory) : directory_(directory), set_(directory), slots_(kWindow) {}

    /// An event that is entered for the time that is being worked through belongs to its next pass; for an earlier one
    /// it comes too late and waits for a rewind.
    void insert(EventNumber event, Time time) {
        if (!directory_.note(event, time)) return;
        const std::int64_t place = std::int64_t{time} - windowBegin_;
        if (place >= position_ && place < kWindow) {
            enter(event, static_cast<std::size_t>(place));
        } else {
            insertElsewhere(event, time);
        }
    }

    /// Everything that was ever entered stands in the queue again.
    void rewind();
    /// Goes on to the next time for which there are events; nothing if there is none.
    std::optional<Time> next();
    /// The next pass of that time, in order of the events; empty when the time is done. Valid until the next call of
    /// the queue other than `insert`.
    std::span<const EventNumber> takePass();

private:
    static constexpr int kWindowBits = 12;
    static constexpr std::int64_t kWindow = std::int64_t{1} << kWindowBits;  ///< ns
    using Batch = std::vector<std::pair<Time, EventNumber>>;

    void insertElsewhere(EventNumber event, Time time);
    Batch& batchFor(Time time);
    void openNextWindow();
    void enter(EventNumber event, std::size_t slot) {
        slots_[slot].push_back(event);
        occupied_[slot / 64] |= std::uint64_t{1} << (slot % 64);
    }
    void vacate(std::size_t slot) {
        slots_[slot].clear();
        occupied_[slot / 64] &= ~(std::uint64_t{1} << (slot % 64));
    }
    std::optional<std::size_t> firstOccupied(std::size_t from) const;
    Time timeOf(std::size_t slot) const { return static_cast<Time>(windowBegin_ + static_cast<std::int64_t>(slot)); }

    EventDirectory& directory_;
    EventSet set_;
    std::vector<std::vector<EventNumber>> slots_;  ///< a time each, from `windowBegin_` on
    std::array<std::uint64_t, kWindow / 64> occupied_{};
    std::int64_t windowBegin_ = kNoWindow;
    std::int64_t position_ = 0;              ///< slot of the time that is being worked through
    std::map<std::int64_t, Batch> batches_;  ///< by window number, all behind the present window
    std::int64_t latestWindow_ = 0;          ///< of the batch that an event was put into last
    Batch* latestBatch_ = nullptr;
    Batch late_;  ///< entered for times that had passed
    EventLog log_;

    /// Before the first window: no time lies in it, and none before it.
    static constexpr std::int64_t kNoWindow = std::int64_t{kEarliestTime} - 2 * kWindow;
};

}  // namespace tarnsim
