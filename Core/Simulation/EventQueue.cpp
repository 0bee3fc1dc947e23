#include "Core/Simulation/EventQueue.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace tarnsim {

void EventSet::begin() {
    for (const EventNumber number : taken_) isTaken_[number] = false;
    taken_.clear();
    pass_.clear();
}

std::span<const EventNumber> EventSet::take(std::vector<EventNumber>& entered) {
    // Most times have one pass; only those that have more need to know what the former ones took.
    if (isTaken_.size() < directory_.size()) isTaken_.resize(directory_.size());
    if (!pass_.empty()) {
        for (const EventNumber number : pass_) isTaken_[number] = true;
        taken_.insert(taken_.end(), pass_.begin(), pass_.end());
        pass_.clear();
    }
    pass_.swap(entered);
    if (std::ranges::any_of(pass_, EventDirectory::isGroup)) spreadGroups();
    if (!taken_.empty()) std::erase_if(pass_, [this](EventNumber number) { return isTaken_[number]; });
    sort();
    return pass_;
}

void EventSet::spreadGroups() {
    spread_.clear();
    for (const EventNumber number : pass_) {
        if (EventDirectory::isGroup(number)) {
            const auto members = directory_.membersOf(number);
            spread_.insert(spread_.end(), members.begin(), members.end());
        } else {
            spread_.push_back(number);
        }
    }
    pass_.swap(spread_);
}

/// A pass of a large board is a few hundred events out of some thousand: to set a bit for each and read the bits back
/// is less work than to sort them.
void EventSet::sortByBits(EventNumber least, EventNumber greatest) {
    bits_.resize((directory_.size() + 63) / 64);
    for (const EventNumber number : pass_) bits_[number / 64] |= std::uint64_t{1} << (number % 64);
    std::size_t count = 0;
    for (std::size_t word = least / 64; word <= greatest / 64; ++word) {
        for (std::uint64_t rest = std::exchange(bits_[word], 0); rest != 0; rest &= rest - 1) {
            pass_[count++] = static_cast<EventNumber>(word * 64) + static_cast<EventNumber>(std::countr_zero(rest));
        }
    }
    pass_.resize(count);
}

void EventSet::sort() {
    if (pass_.size() < 2) return;
    if (!directory_.isInOrder()) {
        std::ranges::sort(pass_, [this](EventNumber a, EventNumber b) { return directory_.comesBefore(a, b); });
    } else {
        if (std::ranges::adjacent_find(pass_, std::greater_equal()) == pass_.end()) return;
        constexpr std::size_t kFew = 8;
        const auto [least, greatest] = std::ranges::minmax(pass_);
        if (pass_.size() > kFew && (greatest - least) / 64 < pass_.size()) return sortByBits(least, greatest);
        std::ranges::sort(pass_);
    }
    pass_.erase(std::unique(pass_.begin(), pass_.end()), pass_.end());
}

void EventLog::makeRoom() {
    constexpr std::size_t kMostBytes = 5;
    if (end_ - next_ >= static_cast<std::ptrdiff_t>(kMostBytes)) return;
    if (!blocks_.empty()) lengths_.push_back(static_cast<std::size_t>(next_ - blocks_.back()->data()));
    auto& block = *blocks_.emplace_back(std::make_unique_for_overwrite<Block>());
    next_ = block.data();
    end_ = next_ + block.size();
}

/// Takes the numbers back, one after the other.
class EventLog::Reader {
public:
    explicit Reader(const EventLog& log) : log_(log) { openBlock(); }

    bool isAtEnd() const { return place_ == end_; }
    std::uint32_t get() {
        std::uint32_t number = 0;
        for (unsigned shift = 0;; shift += 7) {
            const std::uint8_t byte = *place_++;
            number |= (byte & 0x7FU) << shift;
            if (byte <= 0x7F) break;
        }
        if (isAtEnd()) openBlock();
        return number;
    }

private:
    /// The next one with anything in it.
    void openBlock() {
        while (isAtEnd() && next_ < log_.blocks_.size()) {
            place_ = log_.blocks_[next_]->data();
            end_ = next_ < log_.lengths_.size() ? place_ + log_.lengths_[next_] : log_.next_;
            ++next_;
        }
    }

    const EventLog& log_;
    std::size_t next_ = 0;
    const std::uint8_t* place_ = nullptr;
    const std::uint8_t* end_ = nullptr;
};

// Times and numbers as distances from the ones before, modulo 2^32: whatever goes down comes round.

void EventLog::append(Time time, std::span<const EventNumber> pass) {
    makeRoom();
    put(static_cast<std::uint32_t>(time) - static_cast<std::uint32_t>(lastTime_));
    lastTime_ = time;
    makeRoom();
    put(static_cast<std::uint32_t>(pass.size()));
    EventNumber last = 0;
    for (const EventNumber number : pass) {
        makeRoom();
        put(number - last);
        last = number;
    }
}

void EventLog::clear() {
    *this = EventLog();
}

std::vector<std::pair<Time, EventNumber>> EventLog::readAll() const {
    std::vector<std::pair<Time, EventNumber>> events;
    std::uint32_t time = 0;
    for (Reader reader(*this); !reader.isAtEnd();) {
        time += reader.get();
        EventNumber number = 0;
        for (std::uint32_t count = reader.get(); count > 0; --count) {
            number += reader.get();
            events.emplace_back(static_cast<Time>(time), number);
        }
    }
    return events;
}

EventQueue::Batch& EventQueue::batchFor(Time time) {
    const std::int64_t window = std::int64_t{time} >> kWindowBits;
    if (latestBatch_ == nullptr || latestWindow_ != window) {
        latestBatch_ = &batches_[window];
        latestWindow_ = window;
    }
    return *latestBatch_;
}

void EventQueue::insertElsewhere(EventNumber event, Time time) {
    const bool isBehindWindow = time >= windowBegin_ + kWindow;
    (isBehindWindow ? batchFor(time) : late_).emplace_back(time, event);
}

void EventQueue::rewind() {
    Batch everything = log_.readAll();
    log_.clear();
    while (const auto slot = firstOccupied(0)) {
        for (const EventNumber event : slots_[*slot]) everything.emplace_back(timeOf(*slot), event);
        vacate(*slot);
    }
    everything.insert(everything.end(), late_.begin(), late_.end());
    late_.clear();
    windowBegin_ = kNoWindow;
    position_ = 0;
    for (const auto& [time, event] : everything) batchFor(time).emplace_back(time, event);
}

std::optional<std::size_t> EventQueue::firstOccupied(std::size_t from) const {
    std::size_t word = from / 64;
    std::uint64_t bits = occupied_[word] & (~std::uint64_t{0} << (from % 64));
    while (bits == 0) {
        if (++word == occupied_.size()) return std::nullopt;
        bits = occupied_[word];
    }
    return word * 64 + static_cast<std::size_t>(std::countr_zero(bits));
}

void EventQueue::openNextWindow() {
    const auto batch = batches_.begin();
    windowBegin_ = batch->first << kWindowBits;
    for (const auto& [time, event] : batch->second) enter(event, static_cast<std::size_t>(time - windowBegin_));
    batches_.erase(batch);
    latestBatch_ = nullptr;
    position_ = 0;
}

std::optional<Time> EventQueue::next() {
    auto slot = firstOccupied(static_cast<std::size_t>(position_));
    if (!slot) {
        if (batches_.empty()) return std::nullopt;
        openNextWindow();
        slot = firstOccupied(0);
    }
    position_ = static_cast<std::int64_t>(*slot);
    set_.begin();
    return timeOf(*slot);
}

std::span<const EventNumber> EventQueue::takePass() {
    const auto slot = static_cast<std::size_t>(position_);
    std::span<const EventNumber> pass;
    if (!slots_[slot].empty()) {
        pass = set_.take(slots_[slot]);
        log_.append(timeOf(slot), pass);
    }
    if (pass.empty()) vacate(slot);
    return pass;
}

}  // namespace tarnsim
