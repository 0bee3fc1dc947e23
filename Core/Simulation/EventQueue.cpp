#include "Core/Simulation/EventQueue.h"

#include <algorithm>

#include "Core/Components/Component.h"

namespace tarnsim {

namespace {

bool comesBefore(const Event& a, const Event& b) {
    if (a.target == b.target) return a.tag < b.tag;
    return a.target->getCreationNumber() < b.target->getCreationNumber();
}

}  // namespace

void EventSet::insert(const Event& event) {
    // A component whose inputs change one after the other at one time comes in a row.
    if (entered_.empty() || entered_.back() != event) entered_.push_back(event);
}

std::span<const Event> EventSet::takeAll() {
    taken_.insert(taken_.end(), entered_.begin(), entered_.end());
    entered_.clear();
    known_.reset();
    std::ranges::sort(taken_, comesBefore);
    taken_.erase(std::unique(taken_.begin(), taken_.end()), taken_.end());
    return taken_;
}

std::span<const Event> EventSet::takeFresh() {
    if (entered_.empty()) {
        known_.reset();
        return {};
    }
    if (!known_) known_ = std::make_unique<std::unordered_set<Event, Hash>>(taken_.begin(), taken_.end());
    const std::size_t first = taken_.size();
    for (const Event& event : entered_) {
        if (known_->insert(event).second) taken_.push_back(event);
    }
    entered_.clear();
    std::sort(taken_.begin() + static_cast<std::ptrdiff_t>(first), taken_.end(), comesBefore);
    return std::span<const Event>(taken_).subspan(first);
}

}  // namespace tarnsim
