#include "Core/Values/ValueRecords.h"

#include <algorithm>

namespace tarnsim {

void ValueRecords::Stack::push(Time time, std::string_view text) {
    times.push_back(time);
    letters.insert(letters.end(), text.begin(), text.end());
}

void ValueRecords::Stack::pop(std::size_t width) {
    times.pop_back();
    letters.resize(letters.size() - width);
}

void ValueRecords::clear() {
    before_.times.clear();
    before_.letters.clear();
    behind_.reset();
}

void ValueRecords::moveTop(Stack& from, Stack& to) const {
    to.push(from.times.back(), from.lettersOf(from.times.size() - 1, width_));
    from.pop(width_);
}

void ValueRecords::moveGapTo(Time time) {
    while (!before_.times.empty() && before_.times.back() > time) {
        if (!behind_) behind_ = std::make_unique<Stack>();
        moveTop(before_, *behind_);
    }
    while (behind_ && !behind_->times.empty() && behind_->times.back() <= time) moveTop(*behind_, before_);
}

void ValueRecords::store(Time time, std::string_view letters) {
    if (empty()) width_ = letters.size();
    // The way of nearly every write; to look for the gap first would double its cost.
    if (!behind_ && !before_.times.empty() && before_.times.back() < time) return before_.push(time, letters);
    moveGapTo(time);
    if (!before_.times.empty() && before_.times.back() == time) before_.pop(width_);
    before_.push(time, letters);
}

Time ValueRecords::timeOf(std::size_t i) const {
    const bool isBehind = behind_ && i >= before_.times.size();
    return isBehind ? behind_->times[size() - 1 - i] : before_.times[i];
}

std::string_view ValueRecords::lettersOf(std::size_t i) const {
    const bool isBehind = behind_ && i >= before_.times.size();
    return isBehind ? behind_->lettersOf(size() - 1 - i, width_) : before_.lettersOf(i, width_);
}

std::optional<std::size_t> ValueRecords::inForceAt(Time time) const {
    std::size_t later = before_.times.size();  // the first record that is later than `time`
    if (!before_.times.empty() && before_.times.back() > time) {
        later = static_cast<std::size_t>(std::ranges::upper_bound(before_.times, time) - before_.times.begin());
    } else if (behind_) {
        const auto notLater = std::ranges::upper_bound(behind_->times.rbegin(), behind_->times.rend(), time);
        later += static_cast<std::size_t>(notLater - behind_->times.rbegin());
    }
    if (later == 0) return std::nullopt;
    return later - 1;
}

std::size_t ValueRecords::firstFrom(Time time) const {
    const auto record = inForceAt(time);
    if (!record) return 0;
    return timeOf(*record) == time ? *record : *record + 1;
}

}  // namespace tarnsim
