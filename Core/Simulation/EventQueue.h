#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <unordered_set>
#include <vector>

#include "Core/Values/Time.h"

namespace tarnsim {

class Component;

/// That a component is to be called at some time. Two words: no value travels with an event.
struct Event {
    Component* target;  ///< not owned
    std::uint64_t tag;  ///< 0 for a plain event

    bool operator==(const Event&) const = default;
};

/// The events of one point in time, each pair (target, tag) once. They are taken in passes: first all that were entered
/// before the time was reached, then again and again those that the last pass added.
///
/// Within a pass events come in the order in which their targets were created, then by tag. That order carries no
/// meaning; it's there so that the same design runs in the same way every time.
class EventSet {
public:
    /// A pair that is in the set already isn't entered again, also if it has been taken.
    void insert(const Event& event);

    // What is taken stays in the set. The result is valid until the next taking; `insert` doesn't disturb it.

    /// Every event of the set.
    std::span<const Event> takeAll();
    /// The events that weren't taken before.
    std::span<const Event> takeFresh();

private:
    struct Hash {
        std::size_t operator()(const Event& event) const noexcept {
            return std::hash<Component*>{}(event.target) * 31 + std::hash<std::uint64_t>{}(event.tag);
        }
    };

    std::vector<Event> taken_;    ///< each pair once, pass by pass
    std::vector<Event> entered_;  ///< entered since the last taking; a pair may stand in it repeatedly or in taken_ too
    /// The pairs of taken_, while there are passes behind the first. Most times have none and never need it.
    std::unique_ptr<std::unordered_set<Event, Hash>> known_;
};

/// The events of a run by time. Nothing is ever removed: what has run stays.
class EventQueue {
public:
    using Points = std::map<Time, EventSet>;

    void insert(const Event& event, Time time) { points_[time].insert(event); }

    /// The points in time in ascending order. Entries and iterators stay valid while events are inserted.
    Points& points() { return points_; }

private:
    Points points_;
};

}  // namespace tarnsim
