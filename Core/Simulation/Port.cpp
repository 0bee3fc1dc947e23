#include "Core/Simulation/Port.h"

#include <utility>

#include "Core/Simulation/Net.h"
#include "Core/Support/Error.h"
#include "Core/Support/TLog.h"

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
    Port::disconnect(kInside);
    Port::disconnect(kOutside);
}

void Port::set(const Value& value, Time time) {
    if (Net* farNet = record(value, time)) farNet->update(time);
}

Net* Port::record(const Value& value, Time time) {
    ValueHistory::set(value, time);
    return direction_ == Direction::Output ? outsideNet_ : insideNet_;
}

Value Port::get(Time time) const {
    if (direction_ == Direction::Inout) return withoutZ(readInout(time));
    const Net* source = direction_ == Direction::Input ? outsideNet_ : insideNet_;
    return source == nullptr ? recordedValue(time) : withoutZ(readThrough(*source, time));
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
    direction_ = direction;
}

Net* Port::getNet(int side) const {
    return side == kInside ? insideNet_ : outsideNet_;
}

void Port::setNet(Net* net, int side) {
    (side == kInside ? insideNet_ : outsideNet_) = net;
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
    set(get(time), time);
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

void Pin::pulse(Time period, int count, Time start) {
    Time time = start;
    for (int i = 0; i < count; ++i) {
        set(Value('L', 1), time);
        set(Value('H', 1), time + period / 2);
        time += period;
    }
}

Port* PortFactory::createPort(std::uint32_t size, Direction direction, const std::string& name) {
    return ports_.emplace_back(std::make_unique<Port>(size, direction, name)).get();
}

Pin* PortFactory::createPin(Direction direction, const std::string& name) {
    auto pin = std::make_unique<Pin>(direction, name);
    Pin* result = pin.get();
    ports_.push_back(std::move(pin));
    return result;
}

Port* PortFactory::copyPort(const Port& other) {
    if (const auto* pin = dynamic_cast<const Pin*>(&other))
        return ports_.emplace_back(std::make_unique<Pin>(*pin)).get();
    return ports_.emplace_back(std::make_unique<Port>(other)).get();
}

}  // namespace tarnsim
