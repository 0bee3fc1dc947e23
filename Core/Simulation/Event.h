#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Core/Values/Time.h"

namespace tarnsim {

class Component;

/// That a component is to be called. Two words: no value travels with an event.
struct Event {
    Component* target;  ///< not owned
    std::uint64_t tag;  ///< 0 for a plain event

    bool operator==(const Event&) const = default;
};

/// Evaluates a component whose class it knows.
using Evaluator = void (*)(Component& component, Time time);

/// An event within a run, by its number in the run's EventDirectory; or several, a group.
using EventNumber = std::uint32_t;

/// All events that a run has met, by number; a directory serves one queue. A run deals in numbers: they take half the
/// place of a pointer, and a few of them are sorted by setting bits.
class EventDirectory {
public:
    /// The number of the event, a new one if need be.
    EventNumber numberOf(const Event& event);
    const Event& operator[](EventNumber number) const { return entries_[number].event; }
    /// Calls the target.
    void call(EventNumber number, Time time) const;
    std::size_t size() const { return entries_.size(); }

    /// Whether `a` comes before `b`: by the order in which the targets were created, then by tag. That order carries no
    /// meaning; it's there so that the same design runs in the same way every time.
    bool comesBefore(EventNumber a, EventNumber b) const;
    /// All numbers ascend as their events do.
    bool isInOrder() const { return isInOrder_; }

    /// Events that are entered together get a number for all of them: a clock that is laid down for a whole run, with
    /// thousands of parts on it, is one entry an edge. REQUIRES: no groups among them
    EventNumber numberOfGroup(std::vector<EventNumber> members);
    static bool isGroup(EventNumber number) { return number >= kFirstGroup; }
    std::span<const EventNumber> membersOf(EventNumber group) const { return groups_[group - kFirstGroup].members; }

    /// Notes that the event is entered for `time`. False if that was the last thing that was noted of it: parts with
    /// several inputs are mostly entered in a row.
    bool note(EventNumber number, Time time) {
        std::int64_t& last = isGroup(number) ? groups_[number - kFirstGroup].lastTime : entries_[number].lastTime;
        return std::exchange(last, time) != time;
    }

    /// Makes room for that many events.
    void reserve(std::size_t events);
    void reservePlaces(std::size_t places) {
        touched_.reserve(entries_.size());
        places_.reserve(places);
    }
    /// Notes what is touched when the event is called, to be fetched shortly before. Just hints: nothing is read.
    void setTouched(EventNumber number, std::span<const void* const> places);
    /// The event is called soon.
    void prefetch(EventNumber number) const {
        if (number >= touched_.size()) return;
        const Extent& extent = touched_[number];
        const std::int64_t target = lineOf(entries_[number].event.target);
        for (std::uint32_t i = extent.begin; i < extent.end; ++i) {
            __builtin_prefetch(reinterpret_cast<const void*>((target + places_[i]) * kLine));
        }
    }

private:
    static constexpr std::int64_t kLine = 64;  ///< bytes
    /// The cache line of an address.
    static std::int64_t lineOf(const void* place) {
        return static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(place)) / kLine;
    }

    struct Hash {
        std::size_t operator()(const Event& event) const noexcept;
    };
    struct Entry {
        Event event;
        Evaluator evaluate;  ///< null for an event with a tag
        std::int64_t lastTime = std::numeric_limits<std::int64_t>::min();
    };

    struct Group {
        std::vector<EventNumber> members;  ///< in order
        std::int64_t lastTime = std::numeric_limits<std::int64_t>::min();
    };

    struct Extent {
        std::uint32_t begin = 0;
        std::uint32_t end = 0;
    };

    static constexpr EventNumber kFirstGroup = EventNumber{1} << 31U;

    std::vector<Entry> entries_;
    std::vector<Group> groups_;
    std::vector<std::uint64_t> targetCreations_;           ///< kept here, since targets may die before the run
    std::unordered_map<Event, EventNumber, Hash> tagged_;  ///< a plain one is known to its target
    std::vector<Extent> touched_;                          ///< by number, in `places_`
    std::vector<std::int32_t> places_;                     ///< in cache lines from the target: half of a pointer
    bool isInOrder_ = true;
};

}  // namespace tarnsim
