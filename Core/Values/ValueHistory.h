#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "Core/Support/CreationNumber.h"
#include "Core/Support/PointerList.h"
#include "Core/Values/Time.h"
#include "Core/Values/Value.h"
#include "Core/Values/ValueRecords.h"

namespace tarnsim {

class Component;
class ValueHistory;

/// What a subscriber is told: at `time` the signal leaves `oldValue` for `newValue`.
struct ValueChange {
    Value oldValue;
    Value newValue;
    Time time;
};

/// Somebody who wants to hear of the changes of a signal.
class ValueChangeSubscriber {
public:
    virtual ~ValueChangeSubscriber() = default;

    /// Called before the history takes the new value: whoever reads it during the call still sees the old one. The call
    /// may set other histories, but mustn't change this history's subscribers.
    virtual void valueChanged(ValueHistory* history, const ValueChange& change) = 0;

    /// This subscriber as a component; null if it's none. A dynamic_cast for each would be felt when a large board is
    /// prepared.
    virtual Component* asComponent() { return nullptr; }

    /// Subscribers of one history are told in the order in which they were created.
    std::uint64_t subscriptionOrder() const { return creationNumber_.value(); }

private:
    CreationNumber creationNumber_;
};

/// A signal's value over time: a value holds from the time at which it was set until the next time at which one was
/// set.
///
/// Times are absolute, in ns, and may be written in any order. Every `set` makes a record, changed or not; records stay
/// until `clear`, so the past can be read at any time: parts with a delay read their inputs so, and the result table is
/// read so after the run. Before the first record every bit is `U`.
///
/// A width of 0 means not yet known; the first value set decides it. Subscribers aren't owned and must unsubscribe
/// before they die.
///
/// Histories that are always set together can have their records in common (`shareRecords`); one that is then set or
/// cleared by itself goes on with records of its own. Nobody who reads can tell.
class ValueHistory {
public:
    explicit ValueHistory(std::uint32_t width);
    virtual ~ValueHistory() = default;
    ValueHistory(const ValueHistory&) = delete;
    ValueHistory& operator=(const ValueHistory&) = delete;

    /// Tells the subscribers if `value` differs from what the records hold at `time`, then makes the record. Records at
    /// later times aren't touched. Raises an Error if the width isn't the history's; nothing has happened then.
    virtual void set(const Value& value, Time time);

    /// The value in force at `time`.
    virtual Value get(Time time) const;

    /// In bits; 0 if not yet known.
    virtual std::uint32_t width() const { return width_; }

    std::size_t recordCount() const { return records_ ? records_->size() : 0; }
    /// The largest number of the width, (1 << width) - 1 in signed 32 bits.
    std::int32_t maxNumber() const;
    /// Forgets all records. Width and subscribers stay.
    void clear();

    void subscribe(ValueChangeSubscriber* subscriber);
    void unsubscribe(ValueChangeSubscriber* subscriber);
    /// In the order in which they are told. Good until it changes.
    std::span<ValueChangeSubscriber* const> subscribers() const { return subscribers_.items(); }

    // The queries read this history's own records, whatever a derived class answers to get.

    /// One bit that was `L` 1 ns before and is `H`. False for wider signals.
    bool risingEdgeAt(Time time) const;
    /// One bit that was `H` 1 ns before and is `L`. False for wider signals.
    bool fallingEdgeAt(Time time) const;
    /// The value isn't the one of 1 ns before.
    bool changedAt(Time time) const;
    /// Every record from one time to the other, both included and in either order, equals the value in force at the
    /// earlier one.
    bool stableBetween(Time t1, Time t2) const;
    /// The same, and that value is `value`.
    bool stableAt(Time t1, Time t2, const Value& value) const;
    /// When the value in force at `time` began; kEarliestTime if it never changed. The first record counts as a change
    /// unless it is all `U`.
    Time lastChange(Time time) const;

protected:
    /// The value that the records hold at `time`.
    Value recordedValue(Time time) const;
    /// Its letters, as many as `width()`.
    void recordedLetters(Time time, char* letters) const;
    /// Decides a width that isn't known yet.
    void adoptWidth(std::uint32_t width) {
        if (width_ == 0) width_ = width;
    }
    /// From now on these are the records of this history.
    void shareRecords(std::shared_ptr<ValueRecords> records) { records_ = std::move(records); }
    /// Something happens to this history alone: whoever writes it together with others has to stop.
    virtual void leaveSharedRecords() {}
    /// Records that nobody else has.
    ValueRecords& ownRecords();

private:
    bool differsFromRecords(const Value& value, Time time) const;
    bool areRecordsShared() const { return records_ && records_.use_count() > 1; }
    Value valueOfRecord(std::size_t i) const { return Value::ofLetters(records_->lettersOf(i)); }
    /// 1 ns earlier.
    Value valueBefore(Time time) const;
    bool isOneBitEdge(Time time, char before, char after) const;

    std::shared_ptr<ValueRecords> records_;           ///< null until there is one
    PointerList<ValueChangeSubscriber> subscribers_;  ///< not owned, ascending by subscriptionOrder
    std::uint32_t width_;  ///< the last member: what a derived class begins with takes the room behind it
};

}  // namespace tarnsim
