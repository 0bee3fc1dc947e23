#include "Core/Values/ValueRecords.h"

namespace tarnsim {

ValueRecords::ValueRecords(const ValueRecords& other) : before_(other.before_) {
    if (other.behind_) behind_ = std::make_unique<RecordStack>(*other.behind_);
}

void ValueRecords::clear() {
    before_ = RecordStack();
    behind_.reset();
}

void ValueRecords::moveGapTo(Time time) {
    while (before_.size() > 0 && before_.topTime() > time) {
        if (!behind_) behind_ = std::make_unique<RecordStack>(before_.width());
        behind_->push(reversed(before_.topTime()), before_.topLetters());
        before_.pop();
    }
    while (countBehind() > 0 && reversed(behind_->topTime()) <= time) {
        before_.push(reversed(behind_->topTime()), behind_->topLetters());
        behind_->pop();
    }
}

void ValueRecords::storeAnywhere(Time time, std::string_view letters) {
    if (empty()) {
        before_ = RecordStack(letters.size());
        behind_.reset();
    }
    moveGapTo(time);
    if (before_.size() > 0 && before_.topTime() == time) {
        before_.replaceTop(letters.data());
    } else {
        before_.push(time, letters.data());
    }
}

std::optional<std::size_t> ValueRecords::inForceAt(Time time) const {
    std::size_t count = before_.size();
    if (count > 0 && before_.topTime() > time) {
        count = before_.countNotLater(time);
    } else if (countBehind() > 0) {
        // Those that aren't later than `time` are the earlier ones, at the top.
        const std::size_t later = time == kLatestTime ? 0 : behind_->countNotLater(reversed(time) - 1);
        count += behind_->size() - later;
    }
    if (count == 0) return std::nullopt;
    return count - 1;
}

std::size_t ValueRecords::firstFrom(Time time) const {
    const auto record = inForceAt(time);
    if (!record) return 0;
    return timeOf(*record) == time ? *record : *record + 1;
}

}  // namespace tarnsim
