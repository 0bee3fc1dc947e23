#include "Core/Components/Component.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <set>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/ComponentFactory.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

/// The one text of a type, which lives as long as the process: there are few types, and a board has thousands of units.
const std::string* sharedType(std::string_view type) {
    static std::set<std::string, std::less<>> types;
    const auto known = types.find(type);
    return known != types.end() ? &*known : &*types.emplace(type).first;
}

}  // namespace

Component::Component(const std::string& type, const std::string& name, Circuit* parent)
    : BaseObject(name), parent_(parent), type_(sharedType(cutChipPrefix(type))) {}

Component::Component(const std::string& type, const std::string& name, const ParaMap& parameters)
    : BaseObject(name), parent_(nullptr), parameters_(parameters), type_(sharedType(cutChipPrefix(type))) {}

Component::Component(const Component& other)
    : BaseObject(other),
      CommentableObject(other),
      ValueChangeSubscriber(other),
      parent_(const_cast<Circuit*>(other.getParent())),
      parameters_(other.parameters_),
      type_(other.type_) {
    for (const Port* port : other.ports_) addPort(portFactory_.copyPort(*port));
}

Component::~Component() {
    for (Port* port : ports_) {
        port->disconnect(kInside);
        port->disconnect(kOutside);
        port->unsubscribe(this);
    }
    ports_.clear();
}

void Component::onLoaded(Circuit* /*owner*/) {}

void Component::reset() {
    for (Port* port : ports_) port->clear();
}

void Component::start(Time /*endTime*/) {}

void Component::evaluateTagged(Time /*time*/, std::uint64_t /*tag*/) {}

void Component::valueChanged(ValueHistory* history, const ValueChange& change) {
    inputChanged(static_cast<Port*>(history), change.oldValue, change.newValue, change.time);
}

void Component::inputChanged(Port* /*port*/, const Value& /*oldValue*/, const Value& /*newValue*/, Time /*time*/) {}

Response Component::responseTo(const Port& /*port*/) const {
    return {};
}

void Component::responsesChange() const {
    for (const Port* port : ports_) {
        if (port->getWire() != nullptr) port->getWire()->cut();
    }
}

void Component::disconnectPorts() {
    for (Port* port : ports_) port->disconnect(kOutside);
}

std::string Component::getDescription() const {
    return "";
}

void Component::addPort(Port* port) {
    if (port == nullptr) throw Error(R"(Internal error: port is NULL in ..\..\Core\Components\Component.cpp:121)");
    ports_.append(port);
    if (port->direction() == Direction::Input) port->subscribe(this);
}

void Component::addPort(Port* port, const std::string& name) {
    if (port != nullptr) port->setName(name);
    addPort(port);
}

Port* Component::createPort(std::uint32_t size, Direction direction, const std::string& name) {
    Port* port = portFactory_.createPort(size, direction, name);
    addPort(port);
    return port;
}

Pin* Component::createPin(Direction direction, const std::string& name) {
    Pin* pin = portFactory_.createPin(direction, name);
    addPort(pin);
    return pin;
}

void Component::removePort(Port* port) {
    port->disconnect(kInside);
    port->disconnect(kOutside);
    ports_.remove(port);
    if (port->direction() == Direction::Input) port->unsubscribe(this);
}

Port* Component::findPortById(const std::string& id) const {
    const auto found = std::ranges::find_if(ports_, [&](const Port* port) { return port->getId() == id; });
    return found == ports_.end() ? nullptr : *found;
}

Pin* Component::findPin(const std::string& name) const {
    return dynamic_cast<Pin*>(findPort(name));
}

std::size_t Component::countPortsById(const std::string& id) const {
    return static_cast<std::size_t>(
        std::ranges::count_if(ports_, [&](const Port* port) { return port->getId() == id; }));
}

void Component::setParent(Circuit* circuit) {
    // Who is evaluated by which simulator changes, for this component and for all in it.
    if (parent_ != nullptr) parent_->cutWires();
    responsesChange();
    parent_ = circuit;
}

void Component::setType(const std::string& type) {
    type_ = sharedType(type);
    if (parent_ != nullptr) parent_->declarationTypeChanged();
}

std::string Component::getTypeDoc() const {
    return ComponentFactory::getDocumentation(getType());
}

void Component::setParameters(const ParaMap& parameters) {
    parameters_ = parameters;
    applyParameters();
}

EventSimulator* Component::getSimulator() const {
    return parent_ == nullptr ? nullptr : parent_->findSimulator();
}

void Component::schedule(Component* target, Time time) const {
    if (EventSimulator* simulator = getSimulator()) simulator->schedule(target, time);
}

void Component::scheduleTagged(Component* target, std::uint64_t tag, Time time) const {
    if (EventSimulator* simulator = getSimulator()) simulator->schedule(target, tag, time);
}

void Component::scheduleAfter(Time time, std::uint32_t delay) {
    const std::int64_t due = later(time, delay);
    if (due <= kLatestTime) schedule(this, static_cast<Time>(due));  // what lies beyond all time never comes
}

std::string Component::describeDelay(std::uint32_t delay) {
    return format("<br>Delay: <i>%d</i>", static_cast<int>(delay));
}

void Component::refreshAll(Direction direction, Time time) {
    for (Port* port : ports_) {
        if (port->direction() == direction) port->refresh(time);
    }
}

void Component::refreshInputs(Time time) {
    refreshAll(Direction::Input, time);
}

void Component::refreshOutputs(Time time) {
    refreshAll(Direction::Output, time);
}

void Component::checkConnections() const {
    for (const Port* port : ports_) {
        if (port->direction() != Direction::Input || port->getNet(kOutside) != nullptr) continue;
        std::printf("*** WARNING: Input port '%s' of component '%s'/'%s' is not connected.\n", port->getName().c_str(),
                    getType().c_str(), getName().c_str());
    }
}

SingleDelayComponent::SingleDelayComponent(const std::string& type, const std::string& name, const ParaMap& parameters)
    : Component(type, name, parameters), delay_(0) {}

SingleDelayComponent::SingleDelayComponent(const std::string& type, const std::string& name, std::uint32_t delay)
    : Component(type, name, nullptr), delay_(delay) {}

void SingleDelayComponent::inputChanged(Port* /*port*/, const Value& /*oldValue*/, const Value& /*newValue*/,
                                        Time time) {
    scheduleAfter(time, delay_);
}

void SingleDelayComponent::readDelay() {
    std::uint32_t delay = delay_;
    getParameters().get("delay", &delay);
    setDelay(delay);
}

}  // namespace tarnsim
