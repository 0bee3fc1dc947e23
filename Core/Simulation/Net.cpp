#include "Core/Simulation/Net.h"

#include <algorithm>
#include <stdexcept>

#include "Core/Simulation/NetResolver.h"
#include "Core/Simulation/Port.h"
#include "Core/Support/Error.h"
#include "Core/Support/TLog.h"

namespace tarnsim {

/// Thrown when a value comes back to a net that is still passing it on, and collects the nets on the way out to there.
struct Net::Ring {
    const Net* closing;
    std::vector<std::string> names;  ///< innermost first
};

/// Stands on the stack while a net is updated, so that the net knows itself when the same update reaches it again. A
/// deep chain of nets that meets each one once is no ring, however long it is.
class Net::UpdateInProgress {
public:
    UpdateInProgress(Net& net, Time time) : net_(net), time_(time), outer_(net.updates_) {
        for (const UpdateInProgress* each = outer_; each != nullptr; each = each->outer_) {
            if (each->time_ == time) throw Ring{&net, {}};
        }
        net.updates_ = this;
    }
    ~UpdateInProgress() { net_.updates_ = outer_; }
    UpdateInProgress(const UpdateInProgress&) = delete;
    UpdateInProgress& operator=(const UpdateInProgress&) = delete;

private:
    Net& net_;
    Time time_;
    const UpdateInProgress* outer_;  ///< an update of the same net for another time
};

Net::Net(std::uint32_t width) : Net("", width) {}

Net::Net(const std::string& name, std::uint32_t width) : BaseObject(name), ValueHistory(width) {}

Net::~Net() {
    for (Port* port : ports_) letGo(*port);
}

void Net::letGo(Port& port) const {
    for (const int side : {kInside, kOutside}) {
        if (port.getNet(side) == this) port.setNet(nullptr, side);
    }
}

void Net::checkSideIsFree(const Port& port, int side) const {
    const Net* present = port.getNet(side);
    if (present == nullptr) return;
    throw Error(
        "The port '%s' already belongs to net '%s' (on the %s), and is being attempted to be added to net '%s'.",
        port.getName().c_str(), present->getName().c_str(), side == kInside ? "inside" : "outside", getName().c_str());
}

void Net::addPort(Port* port, int side) {
    checkSideIsFree(*port, side);
    adoptWidth(port->width());
    if (port->width() != width()) {
        throw Error("The port '%s' has size %d, but is added to net '%s' with size %d.", port->getName().c_str(),
                    port->width(), getName().c_str(), width());
    }
    ports_.push_back(port);
    port->setNet(this, side);
}

void Net::addPort(Port* port, const PinSpec* spec, int side) {
    checkSideIsFree(*port, side);
    if (spec->size() != port->width()) {
        throw Error("Port and pin-spec sizes does not match: %d bits in port and %d bits in pin-spec.", port->width(),
                    static_cast<int>(spec->size()));
    }
    pinSpecs_[port] = spec;
    ports_.push_back(port);
    port->setNet(this, side);
}

void Net::addPort(Port* port, std::int32_t first, std::int32_t last, int side) {
    ownedPinSpecs_.push_back(std::make_unique<PinSpec>(first, last));
    addPort(port, ownedPinSpecs_.back().get(), side);
}

void Net::removePort(Port* port) {
    pinSpecs_.erase(port);
    std::erase(ports_, port);
    port->setNet(nullptr, port->getNet(kInside) == this ? kInside : kOutside);
}

void Net::disconnectAll() {
    for (Port* port : ports_) letGo(*port);
    ports_.clear();
    pinSpecs_.clear();
}

void Net::takeOver(Net& other) {
    for (Port* port : other.ports_) {
        for (const int side : {kInside, kOutside}) {
            if (port->getNet(side) != &other) continue;
            port->setNet(nullptr, side);
            addPort(port, side);
        }
    }
    other.pinSpecs_ = std::move(pinSpecs_);
    pinSpecs_.clear();
    other.ports_.clear();
}

const PinSpec* Net::getPinSpec(const Port* port) const {
    const PinSpec* spec = findPinSpec(port);
    if (spec == nullptr) throw std::out_of_range("map::at");
    return spec;
}

const PinSpec* Net::findPinSpec(const Port* port) const {
    if (pinSpecs_.empty()) return nullptr;
    const auto found = pinSpecs_.find(port);
    return found == pinSpecs_.end() ? nullptr : found->second;
}

bool Net::isDriver(const Port& port) const {
    switch (port.direction()) {
        case Direction::Output: return port.getNet(kOutside) == this;
        case Direction::Input: return port.getNet(kInside) == this;
        case Direction::Inout: return port.getNet(kInside) == this && port.recordCount() > 0;
    }
    return false;
}

bool Net::isFollower(const Port& port) const {
    switch (port.direction()) {
        case Direction::Output: return port.getNet(kInside) == this;
        case Direction::Input: return port.getNet(kOutside) == this;
        case Direction::Inout: return false;
    }
    return false;
}

Net* Net::otherNet(const Port& port) const {
    return port.getNet(port.getNet(kOutside) == this ? kInside : kOutside);
}

Value Net::valueFor(Time time, const Port* port) const {
    const Value full = get(time);
    const PinSpec* spec = port == nullptr ? nullptr : findPinSpec(port);
    if (spec == nullptr) return full;
    Value seen(port->width());
    for (std::size_t i = 0; i < port->width(); ++i) {
        seen[i] = full[static_cast<std::size_t>(spec->bitAt(i))];
    }
    return seen;
}

Value Net::driveValue(Time time) const {
    return NetResolver::resolveDirectDrivers(*this, time);
}

void Net::update(Time time, const NetSet& visited) {
    try {
        const UpdateInProgress inProgress(*this, time);
        const Value value = NetResolver::resolve(*this, time);
        set(value, time);
        passOn(value, time, visited);
    } catch (Ring& ring) {
        // The first one to catch it is the net that refused to be entered, before its own update began anew.
        const bool isClosed = ring.closing == this && !ring.names.empty();
        if (!isClosed) {
            ring.names.push_back("'" + getName() + "'");
            throw;
        }
        std::string names = ring.names.front();
        for (auto name = ring.names.rbegin(); name != ring.names.rend(); ++name) names += " -> " + *name;
        throw Error(
            "Error: a value comes back to the net that it left, through units that connect an input straight to an "
            "output: " +
            names + ".");
    }
}

void Net::passOn(const Value& value, Time time, const NetSet& visited) {
    updateJoinedNets(time, visited);
    // By number, as a subscriber may attach a port.
    for (std::size_t i = 0; i < ports_.size(); ++i) {
        if (isFollower(*ports_[i])) ports_[i]->set(value, time);
    }
}

void Net::updateJoinedNets(Time time, const NetSet& visited) {
    NetSet reached;
    for (std::size_t i = 0; i < ports_.size(); ++i) {
        if (ports_[i]->direction() != Direction::Inout) continue;
        if (reached.empty()) {
            reached = visited;
            reached.insert(this);
        }
        Net* other = otherNet(*ports_[i]);
        if (other != nullptr && !reached.contains(other)) other->update(time, reached);
    }
}

void Net::dump() const {
    std::string names;
    for (const Port* port : ports_) names += (names.empty() ? "" : " ") + port->getName();
    TLog line("Net '%s' %p:  %s", getName().c_str(), static_cast<const void*>(this), names.c_str());
}

Net* NetFactory::createNet(std::uint32_t width) {
    return createNet("", width);
}

Net* NetFactory::createNet(const std::string& name, std::uint32_t width) {
    return nets_.emplace_back(std::make_unique<Net>(name, width)).get();
}

void NetFactory::disconnectAll() {
    for (const auto& net : nets_) net->disconnectAll();
}

void NetFactory::removeEmptyNets() {
    std::erase_if(nets_, [](const std::unique_ptr<Net>& net) { return net->getPorts().empty(); });
}

}  // namespace tarnsim
