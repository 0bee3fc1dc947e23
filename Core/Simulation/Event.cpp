#include "Core/Simulation/Event.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "Core/Components/Component.h"

namespace tarnsim {

std::size_t EventDirectory::Hash::operator()(const Event& event) const noexcept {
    return std::hash<Component*>{}(event.target) * 31 + std::hash<std::uint64_t>{}(event.tag);
}

EventNumber EventDirectory::numberOf(const Event& event) {
    const auto next = static_cast<EventNumber>(entries_.size());
    EventNumber& known = event.tag == 0 ? event.target->plainEvent() : tagged_.try_emplace(event, next).first->second;
    // A target remembers its number from other runs, too.
    if (known < next && entries_[known].event == event) return known;
    known = next;
    entries_.push_back({event, event.tag == 0 ? event.target->evaluator() : nullptr});
    targetCreations_.push_back(event.target->getCreationNumber());
    if (next > 0 && !comesBefore(next - 1, next)) isInOrder_ = false;
    return next;
}

EventNumber EventDirectory::numberOfGroup(std::vector<EventNumber> members) {
    std::ranges::sort(members, [this](EventNumber a, EventNumber b) { return comesBefore(a, b); });
    groups_.push_back({std::move(members)});
    return kFirstGroup + static_cast<EventNumber>(groups_.size() - 1);
}

void EventDirectory::reserve(std::size_t events) {
    entries_.reserve(events);
    targetCreations_.reserve(events);
}

void EventDirectory::call(EventNumber number, Time time) const {
    const auto& [event, evaluate, lastTime] = entries_[number];
    if (evaluate != nullptr) {
        evaluate(*event.target, time);
    } else {
        event.target->evaluateTagged(time, event.tag);
    }
}

void EventDirectory::setTouched(EventNumber number, std::span<const void* const> places) {
    if (touched_.size() <= number) touched_.resize(number + std::size_t{1});
    const auto begin = static_cast<std::uint32_t>(places_.size());
    const std::int64_t target = lineOf(entries_[number].event.target);
    for (const void* place : places) {
        const std::int64_t distance = lineOf(place) - target;
        if (std::in_range<std::int32_t>(distance)) places_.push_back(static_cast<std::int32_t>(distance));
    }
    touched_[number] = {begin, static_cast<std::uint32_t>(places_.size())};
}

bool EventDirectory::comesBefore(EventNumber a, EventNumber b) const {
    if (targetCreations_[a] != targetCreations_[b]) return targetCreations_[a] < targetCreations_[b];
    return entries_[a].event.tag < entries_[b].event.tag;
}

}  // namespace tarnsim
