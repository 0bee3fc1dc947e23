#include "Core/Values/ValueHistory.h"

#include <algorithm>
#include <utility>

#include "Core/Support/Error.h"

namespace tarnsim {

ValueHistory::ValueHistory(std::uint32_t width) : width_(width) {}

void ValueHistory::set(const Value& value, Time time) {
    if (width_ == 0 && recordCount() == 0) width_ = value.width();
    if (value.width() != width_) {
        // The value's width comes first, against the order of the words.
        throw Error("ValueHistory: mismatching type width. ValueHistory width=%d, but value width=%d", value.width(),
                    width_);
    }
    if (!subscribers_.empty() && differsFromRecords(value, time)) {
        const ValueChange change{recordedValue(time), value, time};
        for (ValueChangeSubscriber* subscriber : subscribers()) subscriber->valueChanged(this, change);
    }
    ownRecords().store(time, value.letters());
}

bool ValueHistory::differsFromRecords(const Value& value, Time time) const {
    const char* recorded = records_ ? records_->lettersInForceAt(time) : nullptr;
    return recorded == nullptr ? !value.isAllUndefined() : value.letters() != std::string_view(recorded, width_);
}

void ValueHistory::recordedLetters(Time time, char* letters) const {
    const char* recorded = records_ ? records_->lettersInForceAt(time) : nullptr;
    if (recorded == nullptr) {
        std::fill_n(letters, width_, kUndefinedBit);
    } else {
        std::copy_n(recorded, width_, letters);
    }
}

ValueRecords& ValueHistory::ownRecords() {
    if (records_.use_count() == 1) return *records_;  // the drivers of a bus come here at each set
    if (areRecordsShared()) leaveSharedRecords();
    if (!records_) {
        records_ = std::make_shared<ValueRecords>();
    } else if (areRecordsShared()) {
        records_ = std::make_shared<ValueRecords>(*records_);
    }
    return *records_;
}

void ValueHistory::clear() {
    leaveSharedRecords();
    records_.reset();
}

Value ValueHistory::get(Time time) const {
    return recordedValue(time);
}

Value ValueHistory::recordedValue(Time time) const {
    const char* recorded = records_ ? records_->lettersInForceAt(time) : nullptr;
    return recorded == nullptr ? Value(width_) : Value::ofLetters({recorded, width_});
}

Value ValueHistory::valueBefore(Time time) const {
    return time == kEarliestTime ? Value(width_) : recordedValue(time - 1);
}

std::int32_t ValueHistory::maxNumber() const {
    return static_cast<std::int32_t>((1U << (width_ % 32U)) - 1U);
}

void ValueHistory::subscribe(ValueChangeSubscriber* subscriber) {
    leaveSharedRecords();
    const auto known = subscribers();
    const auto place =
        std::ranges::lower_bound(known, subscriber->subscriptionOrder(), {}, &ValueChangeSubscriber::subscriptionOrder);
    if (place != known.end() && *place == subscriber) return;
    subscribers_.insert(static_cast<std::size_t>(place - known.begin()), subscriber);
}

void ValueHistory::unsubscribe(ValueChangeSubscriber* subscriber) {
    leaveSharedRecords();
    subscribers_.remove(subscriber);
}

bool ValueHistory::isOneBitEdge(Time time, char before, char after) const {
    if (width_ != 1 || time == kEarliestTime) return false;
    char letter = kUndefinedBit;
    recordedLetters(time - 1, &letter);
    if (letter != before) return false;
    recordedLetters(time, &letter);
    return letter == after;
}

bool ValueHistory::risingEdgeAt(Time time) const {
    return isOneBitEdge(time, 'L', 'H');
}

bool ValueHistory::fallingEdgeAt(Time time) const {
    return isOneBitEdge(time, 'H', 'L');
}

bool ValueHistory::changedAt(Time time) const {
    return valueBefore(time) != recordedValue(time);
}

bool ValueHistory::stableBetween(Time t1, Time t2) const {
    return stableAt(t1, t2, recordedValue(std::min(t1, t2)));
}

bool ValueHistory::stableAt(Time t1, Time t2, const Value& value) const {
    const auto [first, last] = std::minmax(t1, t2);
    if (recordedValue(first) != value) return false;
    if (!records_) return true;
    for (std::size_t i = records_->firstFrom(first); i < records_->size() && records_->timeOf(i) <= last; ++i) {
        if (valueOfRecord(i) != value) return false;
    }
    return true;
}

Time ValueHistory::lastChange(Time time) const {
    const auto inForce = records_ ? records_->inForceAt(time) : std::nullopt;
    if (!inForce) return kEarliestTime;
    const std::string_view current = records_->lettersOf(*inForce);
    std::size_t began = *inForce;
    while (began > 0 && records_->lettersOf(began - 1) == current) --began;
    // Before the first record lies U, so a signal that began with U never changed.
    const bool beganUndefined = current.find_first_not_of(kUndefinedBit) == std::string_view::npos;
    if (began == 0 && beganUndefined) return kEarliestTime;
    return records_->timeOf(began);
}

}  // namespace tarnsim
