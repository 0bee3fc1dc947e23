#include "Core/Simulation/Net.h"

#include <algorithm>
#include <forward_list>
#include <iterator>
#include <stdexcept>

#include "Core/Simulation/NetResolver.h"
#include "Core/Simulation/Port.h"
#include "Core/Simulation/Wire.h"
#include "Core/Support/Error.h"
#include "Core/Support/TLog.h"

namespace tarnsim {

/// One net in the middle of its update. Updates form a chain from the net that was set to the innermost one; they are
/// kept in a list and not on the stack, so that a value passes through as many levels of hierarchy as there are.
///
/// A net knows the updates that are under way on it. If a value reaches it again for the same time, it would go round
/// for ever; a deep chain of nets that meets each one once is no such ring, however long it is.
class Net::Update {
public:
    /// The first update, at the hands of somebody outside, who says which nets aren't to be visited.
    Update(Net& net, Time time, const NetSet& visited) : Update(net, time, nullptr, &visited) {}
    /// The update that `caller` has asked for.
    Update(Net& net, Update& caller) : Update(net, caller.time_, &caller, nullptr) {}
    ~Update() { net_.updates_ = outer_; }
    Update(const Update&) = delete;
    Update& operator=(const Update&) = delete;

    Update* caller() const { return caller_; }

    void resolve() {
        value_ = NetResolver::resolve(net_, time_);
        net_.set(value_, time_);
    }

    /// Passes the value on until another net has to be updated first, and gives that net; null when all is done. First
    /// come the nets joined by Inouts, then the ports that follow.
    Net* advance() {
        // Asked for anew each time: whoever listens may connect something.
        while (nextJoin_ < net_.roles().inouts.size()) {
            Net* other = net_.otherNet(*net_.roles().inouts[nextJoin_++]);
            if (other != nullptr && !isVisited(*other)) return other;
        }
        isFollowing_ = true;
        while (nextFollower_ < net_.roles().followers.size()) {
            Port& port = *net_.roles().followers[nextFollower_++];
            if (Net* farNet = port.follow(value_, time_)) return farNet;
        }
        return nullptr;
    }

private:
    Update(Net& net, Time time, Update* caller, const NetSet* visited)
        : net_(net),
          time_(time),
          caller_(caller),
          joins_(caller == nullptr || caller->isFollowing_ ? this : caller->joins_),
          visited_(visited),
          outer_(net.updates_) {
        for (const Update* each = outer_; each != nullptr; each = each->outer_) {
            if (each->time_ == time) throw Error(ringMessage());
        }
        net_.updates_ = this;
    }

    /// Inouts don't lead back to a net that lies on the way of Inouts to here.
    bool isVisited(const Net& other) const {
        for (const Update* each = other.updates_; each != nullptr; each = each->outer_) {
            if (each->joins_ == joins_) return true;
        }
        return joins_->visited_ != nullptr && joins_->visited_->contains(&other);
    }

    std::string ringMessage() const {
        std::vector<const Net*> ring = {&net_};  // innermost first
        for (const Update* each = caller_; each != nullptr; each = each->caller_) {
            ring.push_back(&each->net_);
            if (&each->net_ == &net_) break;
        }
        std::ranges::reverse(ring);
        std::string names;
        for (const Net* net : ring) names.append(names.empty() ? "'" : " -> '").append(net->getName()).append("'");
        return "Error: a value comes back to the net that it left, through units that connect an input straight to an "
               "output: " +
               names + ".";
    }

    Net& net_;
    Time time_;
    Update* caller_;
    const Update* joins_;    ///< where the way of Inouts to here began: the net that was set
    const NetSet* visited_;  ///< of the first update, what its caller said; not owned
    const Update* outer_;    ///< the update of the same net, for another time, that this one stands in
    Value value_;
    std::size_t nextJoin_ = 0;      ///< port to look at next for joined nets
    std::size_t nextFollower_ = 0;  ///< and for followers
    bool isFollowing_ = false;
};

Net::Net(std::uint32_t width) : Net("", width) {}

Net::Net(const std::string& name, std::uint32_t width) : BaseObject(name), ValueHistory(width) {}

Net::~Net() {
    cutWire();
    for (Port* port : ports_) letGo(*port);
    if (!special_) return;
    for (Port* port : special_->halfRemoved) letGo(*port);
}

Net::Special& Net::special() {
    if (!special_) special_ = std::make_unique<Special>();
    return *special_;
}

void Net::joinWire(Wire* wire, const std::shared_ptr<ValueRecords>& records) {
    wire_ = wire;
    shareRecords(records);
    roles_.reset();  // a wire has no use for them
}

void Net::cutWire() {
    if (wire_ != nullptr) wire_->cut();
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
    portsChange();
    ports_.push_back(port);
    port->setNet(this, side);
}

void Net::addPort(Port* port, const PinSpec* spec, int side) {
    checkSideIsFree(*port, side);
    if (spec->size() != port->width()) {
        throw Error("Port and pin-spec sizes does not match: %d bits in port and %d bits in pin-spec.", port->width(),
                    static_cast<int>(spec->size()));
    }
    portsChange();
    special().pinSpecs[port] = spec;
    ports_.push_back(port);
    port->setNet(this, side);
}

void Net::addPort(Port* port, std::int32_t first, std::int32_t last, int side) {
    auto& owned = special().ownedPinSpecs;
    owned.push_back(std::make_unique<PinSpec>(first, last));
    addPort(port, owned.back().get(), side);
}

void Net::removePort(Port* port) {
    portsChange();
    std::erase(ports_, port);
    if (special_) {
        special_->pinSpecs.erase(port);
        std::erase(special_->halfRemoved, port);
    }
    port->setNet(nullptr, port->getNet(kInside) == this ? kInside : kOutside);
    if (port->getNet(kOutside) == this) special().halfRemoved.push_back(port);
}

void Net::disconnectAll() {
    portsChange();
    for (Port* port : ports_) letGo(*port);
    ports_.clear();
    if (special_) special_->pinSpecs.clear();
}

void Net::takeOver(Net& other) {
    portsChange();
    other.portsChange();
    for (Port* port : other.ports_) {
        for (const int side : {kInside, kOutside}) {
            if (port->getNet(side) == &other) other.handOver(*port, side, *this);
        }
    }
    if (other.special_) other.special_->pinSpecs.clear();
    if (special_) {
        Special& receiver = other.special();
        receiver.pinSpecs.swap(special_->pinSpecs);
        // Where they are used, they live.
        std::ranges::move(special_->ownedPinSpecs, std::back_inserter(receiver.ownedPinSpecs));
        special_->ownedPinSpecs.clear();
    }
    other.ports_.clear();
    rolesChange();
    other.rolesChange();
}

void Net::handOver(Port& port, int side, Net& receiver) {
    port.setNet(nullptr, side);
    try {
        receiver.addPort(&port, side);
    } catch (...) {
        port.setNet(this, side);
        rolesChange();
        std::erase_if(ports_, [this](const Port* each) {
            return each->getNet(kInside) != this && each->getNet(kOutside) != this;
        });
        throw;
    }
}

const PinSpec* Net::getPinSpec(const Port* port) const {
    const PinSpec* spec = findPinSpec(port);
    if (spec == nullptr) throw std::out_of_range("map::at");
    return spec;
}

const PinSpec* Net::findPinSpec(const Port* port) const {
    if (!hasPinSpecs()) return nullptr;
    const auto found = special_->pinSpecs.find(port);
    return found == special_->pinSpecs.end() ? nullptr : found->second;
}

const Net::Roles& Net::roles() const {
    if (!roles_) {
        auto roles = std::make_unique<Roles>();
        roles->isWhole = !hasPinSpecs();
        for (Port* port : ports_) {
            const bool isInout = port->direction() == Direction::Inout;
            if (isInout) roles->inouts.push_back(port);
            if (!isInout && isDriver(*port)) roles->drivers.push_back(port);
            if (isFollower(*port)) roles->followers.push_back(port);
            if (port->width() != width()) roles->isWhole = false;
        }
        roles->isPlain = roles->isWhole && roles->inouts.empty();
        roles_ = std::move(roles);
    }
    return *roles_;
}

bool Net::isDriver(const Port& port) const {
    if (port.direction() == Direction::Inout) return port.getNet(kInside) == this && port.recordCount() > 0;
    return port.getNet(port.direction() == Direction::Output ? kOutside : kInside) == this;
}

bool Net::isFollower(const Port& port) const {
    if (port.direction() == Direction::Inout) return false;
    return port.getNet(port.direction() == Direction::Output ? kInside : kOutside) == this;
}

Net* Net::otherNet(const Port& port) const {
    return port.getNet(port.getNet(kOutside) == this ? kInside : kOutside);
}

Value Net::valueFor(Time time, const Port* port) const {
    const PinSpec* spec = port == nullptr ? nullptr : findPinSpec(port);
    if (spec == nullptr) return get(time);
    const Value full = get(time);
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
    Update first(*this, time, visited);
    first.resolve();
    std::forward_list<Update> deeper;  // innermost in front
    for (Update* current = &first; current != nullptr;) {
        if (Net* next = current->advance()) {
            current = &deeper.emplace_front(*next, *current);
            current->resolve();
        } else {
            current = current->caller();
            if (!deeper.empty()) deeper.pop_front();
        }
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

std::unordered_set<const Net*> NetFactory::emptyNets() const {
    std::unordered_set<const Net*> empty;
    for (const auto& net : nets_) {
        if (net->getPorts().empty()) empty.insert(net.get());
    }
    return empty;
}

void NetFactory::removeEmptyNets() {
    std::erase_if(nets_, [](const std::unique_ptr<Net>& net) { return net->getPorts().empty(); });
}

}  // namespace tarnsim
