#include "Core/Simulation/Port.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Core/Simulation/Bus.h"
#include "Core/Simulation/Net.h"
#include "Core/Support/Error.h"
#include "Core/Support/TLog.h"
#include "Core/Values/LetterWord.h"

namespace tarnsim {

Port::Port(std::uint32_t size, Direction direction, const std::string& name)
    : BaseObject(name), ValueHistory(size), direction_(direction) {}

Port::Port(const Port& other)
    : BaseObject(other),
      CommentableObject(other),
      ValueHistory(other.width()),
      direction_(other.direction_),
      ztr_(other.ztr_) {}

Port::~Port() {
    cutWire();
    Port::disconnect(kInside);
    Port::disconnect(kOutside);
}

void Port::set(const Value& value, Time time) {
    if (setTogether(value.letters(), time)) return;
    if (Net* net = recordAlone(value, time)) net->update(time);
}

void Port::setLetters(std::string_view letters, Time time) {
    if (!setTogether(letters, time)) set(Value::ofLetters(letters), time);
}

bool Port::setTogether(std::string_view letters, Time time) {
    if (letters.size() != width()) return false;
    if (drivesWire_ && wire_->set(letters, time)) return true;
    if (drivenBus_ == nullptr) return false;
    if (!drivenBus_->set(*this, letters, time)) farNet()->update(time);
    return true;
}

Net* Port::follow(const Value& value, Time time) {
    if (wire_ != nullptr && wire_->driver() == this && wire_->set(value.letters(), time)) return nullptr;
    return recordAlone(value, time);
}

Net* Port::recordAlone(const Value& value, Time time) {
    cutWire();
    ValueHistory::set(value, time);
    return farNet();
}

Value Port::get(Time time) const {
    if (readsWire_) {
        const char* letters = wireRecords().lettersInForceAt(time);
        Value value = letters == nullptr ? Value(width()) : Value::ofLetters({letters, width()});
        return readNet() == nullptr ? value : withoutZ(std::move(value));
    }
    if (direction_ == Direction::Inout) return withoutZ(readInout(time));
    const Net* source = readNet();
    return source == nullptr ? recordedValue(time) : withoutZ(readThrough(*source, time));
}

char Port::readZ() const {
    return ztr_ && readNet() != nullptr ? kUndefinedBit : 'Z';
}

void Port::joinWire(Wire* wire, const std::shared_ptr<ValueRecords>& records) {
    wire_ = wire;
    if (direction_ == Direction::Inout) return;  // joins nets of the wire, and has nothing of its own
    // What reads a net drives what it reads there, not what is set.
    drivesWire_ = wire->driver() == this && readNet() == nullptr;
    shareRecords(records);
    readsWire_ = readNet() == nullptr || readNet()->getWire() == wire;
    updateHolder();
}

void Port::leaveWire() {
    wire_ = nullptr;
    drivesWire_ = false;
    readsWire_ = false;
    updateHolder();
}

void Port::updateHolder() {
    if (holder_ == nullptr) return;
    const bool isOneWithWire = direction_ == Direction::Output ? drivesWire_ : readsWire_;
    holder_->setWire(isOneWithWire ? wire_ : nullptr);
}

void Port::lettersAt(Time time, char* letters) const {
    if (readsWire_) {
        const char* recorded = wireRecords().lettersInForceAt(time);
        if (recorded == nullptr) {
            std::fill_n(letters, width(), kUndefinedBit);
        } else {
            std::copy_n(recorded, width(), letters);
            if (ztr_ && readNet() != nullptr) std::replace(letters, letters + width(), 'Z', kUndefinedBit);
        }
    } else if (direction_ != Direction::Inout && readNet() == nullptr) {
        recordedLetters(time, letters);
    } else {
        get(time).letters().copy(letters, width());
    }
}

std::optional<std::uint32_t> Port::numberAt(Time time) const {
    // Nearly all buses that are read as a number are addresses or bytes at some level.
    constexpr std::size_t kMost = 2 * LetterWord::kLetters;
    if (width() <= kMost) {
        std::array<char, kMost> letters;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
        letters.fill('L');
        lettersAt(time, letters.data() + kMost - width());
        const auto high = LetterWord::load(letters.data(), LetterWord::kLetters);
        const auto low = LetterWord::load(letters.data() + LetterWord::kLetters, LetterWord::kLetters);
        if (~(high.levels() & low.levels()) == 0) return std::uint32_t{high.toNumber()} << 8U | low.toNumber();
        if (std::ranges::any_of(letters, isUndefinedLetter)) return std::nullopt;
    }
    const Value value = get(time);
    return value.isDefined() ? std::optional(value.toNumber()) : std::nullopt;
}

void Port::rolesChange() {
    cutWire();
    if (insideNet_ != nullptr) insideNet_->rolesChange();
    if (outsideNet_ != nullptr) outsideNet_->rolesChange();
}

void Port::cutWire() {
    if (wire_ != nullptr) wire_->cut();
    if (drivenBus_ != nullptr) drivenBus_->cut();
}

Value Port::readThrough(const Net& net, Time time) const {
    return net.valueFor(time, this);
}

Value Port::readInout(Time time) const {
    if (insideNet_ != nullptr && outsideNet_ != nullptr) {
        Value inside = readThrough(*insideNet_, time);
        return inside == readThrough(*outsideNet_, time) ? inside : Value(width());
    }
    if (insideNet_ != nullptr) return recordCount() > 0 ? recordedValue(time) : readThrough(*insideNet_, time);
    if (outsideNet_ != nullptr) return readThrough(*outsideNet_, time);
    return recordedValue(time);
}

Value Port::withoutZ(Value value) const {
    if (ztr_ && value.contains('Z')) {
        for (std::size_t i = 0; i < value.width(); ++i) {
            if (std::as_const(value)[i] == 'Z') value[i] = kUndefinedBit;
        }
    }
    return value;
}

Value Port::driveValue(Time time, int side) const {
    const Net* net = side == kInside || side == kOutside ? getNet(side) : nullptr;
    return net == nullptr ? Value(width()) : net->driveValue(time);
}

Direction Port::direction() const {
    return direction_;
}

void Port::setDirection(Direction direction) {
    rolesChange();
    direction_ = direction;
}

Net* Port::getNet(int side) const {
    return side == kInside ? insideNet_ : outsideNet_;
}

void Port::setNet(Net* net, int side) {
    rolesChange();
    (side == kInside ? insideNet_ : outsideNet_) = net;
    rolesChange();
}

void Port::ztrOff() {
    ztr_ = false;
}

void Port::ztrOn() {
    ztr_ = true;
}

void Port::disconnect(int side) {
    if (side != kInside && side != kOutside) return;
    Net* net = side == kInside ? insideNet_ : outsideNet_;
    if (net != nullptr) net->removePort(this);
}

void Port::refresh(Time time) {
    if (drivesWire_) return wire_->refresh(time);
    set(get(time), time);
}

bool Port::isSettled(Time time) const {
    return drivesWire_ || (drivenBus_ != nullptr && drivenBus_->isSettled(time));
}

void Port::setOptions(const std::map<std::string, std::string>& options) {
    for (const auto& [key, value] : options) {
        if (key != "ztr") throw Error("Invalid Port option: '%s'.", key.c_str());
        if (direction_ != Direction::Output) {
            throw Error("Invalid Port ztr usage: the ztr can only be used in Outputs.");
        }
        if (value == "on") {
            ztrOn();
        } else if (value == "off") {
            ztrOff();
        } else {
            throw Error("Invalid Port option: 'ztr' only takes 'on' or 'off' as values.");
        }
    }
}

void Port::dump() const {
    TLog line("'%s' (0x%p) (net '%s' 0x%p)", getName().c_str(), static_cast<const void*>(this),
              insideNet_ == nullptr ? "" : insideNet_->getName().c_str(), static_cast<const void*>(insideNet_));
}

Pin::Pin(Direction direction, const std::string& name) : Port(1, direction, name) {}

void Pin::holdBy(HeldPin* holder) {
    holder_ = holder;
    updateHolder();
}

void Pin::pulse(Time period, int count, Time start) {
    // Flanks beyond all time never come.
    const auto setAt = [this](char letter, std::int64_t time) {
        if (std::in_range<Time>(time)) set(Value(letter, 1), static_cast<Time>(time));
    };
    std::int64_t time = start;
    for (int i = 0; i < count && std::in_range<Time>(time); ++i) {
        setAt('L', time);
        setAt('H', time + period / 2);
        time += period;
    }
}

Port* PortFactory::createPort(std::uint32_t size, Direction direction, const std::string& name) {
    return adopt(std::make_unique<Port>(size, direction, name));
}

Pin* PortFactory::createPin(Direction direction, const std::string& name) {
    return adopt(std::make_unique<Pin>(direction, name));
}

Port* PortFactory::copyPort(const Port& other) {
    if (const auto* pin = dynamic_cast<const Pin*>(&other)) return adopt(std::make_unique<Pin>(*pin));
    return adopt(std::make_unique<Port>(other));
}

}  // namespace tarnsim
