#include "Core/Circuit/Wiring.h"

#include <algorithm>
#include <deque>
#include <span>
#include <typeinfo>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Core/Circuit/Circuit.h"
#include "Core/Simulation/Bus.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Core/Simulation/Wire.h"

namespace tarnsim {

namespace {

/// A net with more drivers raises an Error when it's resolved.
constexpr std::size_t kMostDrivers = 255;

/// The net that a port follows.
Net* nearNet(const Port& port) {
    return port.getNet(port.direction() == Direction::Output ? kInside : kOutside);
}

/// The nets that Inouts join to this one, itself first.
std::vector<Net*> joinedNets(Net& net) {
    std::vector<Net*> nets = {&net};
    if (net.roles().inouts.empty()) return nets;
    std::unordered_set<const Net*> known = {&net};
    for (std::size_t i = 0; i < nets.size(); ++i) {
        for (const Port* inout : nets[i]->roles().inouts) {
            Net* other = nets[i]->otherNet(*inout);
            if (other != nullptr && known.insert(other).second) nets.push_back(other);
        }
    }
    return nets;
}

void collectComponents(Circuit& circuit, std::vector<Component*>& components) {
    std::vector<Circuit*> open = {&circuit};
    while (!open.empty()) {
        Circuit* next = open.back();
        open.pop_back();
        components.push_back(next);
        for (Component* child : next->getComponents()) {
            if (auto* inner = dynamic_cast<Circuit*>(child)) {
                open.push_back(inner);
            } else {
                components.push_back(child);
            }
        }
        open.insert(open.end(), next->getDeclarations().begin(), next->getDeclarations().end());
    }
}

}  // namespace

/// Looks at every net once. Works with lists and not on the stack: there may be any number of levels.
class Wiring::Finder {
public:
    explicit Finder(EventSimulator& simulator) : simulator_(simulator) {}

    /// All signals behind the net can be on the wire of its only driver.
    bool canBeWired(Net& net) { return stateOf(net) == State::Wired; }
    /// All signals behind the net, and behind those that Inouts join to it, can be on one wire, which the drivers of
    /// them all drive together.
    bool canBeBus(Net& net) { return stateOf(net) == State::Bus; }

    Response responseOf(const ValueChangeSubscriber& subscriber, const Port& port) const {
        const auto* component = dynamic_cast<const Component*>(&subscriber);
        if (component == nullptr) return {};
        if (typeid(*component) == typeid(Circuit)) return {Response::Kind::Nothing};
        const Response response = component->responseTo(port);
        if (response.kind != Response::Kind::Event || component->getSimulator() == &simulator_) return response;
        return {component->getSimulator() == nullptr ? Response::Kind::Nothing : Response::Kind::Anything};
    }

    /// Nobody who listens to the port needs to be called.
    bool isPlain(const Port& port) const {
        return port.direction() != Direction::Inout && port.width() > 0 && port.recordCount() == 0 &&
               std::ranges::all_of(port.subscribers(), [&](const ValueChangeSubscriber* each) {
                   return responseOf(*each, port).kind != Response::Kind::Anything;
               });
    }

private:
    enum class State { Open, Refused, Wired, Bus };

    State stateOf(Net& net) {
        std::vector<Net*> path = {&net};
        while (!path.empty()) {
            Net& next = *path.back();
            if (!nets_.contains(&next)) {
                const auto group = joinedNets(next);
                const State state = isPlain(group) ? State::Open : State::Refused;
                for (const Net* each : group) nets_.emplace(each, state);
            }
            if (nets_.at(&next) != State::Open || !pushNextLevel(next, path)) path.pop_back();
        }
        return nets_.at(&net);
    }

    /// Puts a net that has to be looked at first on the path. If there is none, the net is decided on, and those that
    /// are joined to it.
    bool pushNextLevel(Net& net, std::vector<Net*>& path) {
        const auto group = joinedNets(net);
        State state = State::Wired;
        for (const Net* each : group) {
            for (const Port* port : each->roles().followers) {
                Net* next = port->farNet();
                if (next == nullptr) continue;
                const auto known = nets_.find(next);
                if (known == nets_.end()) {
                    path.push_back(next);
                    return true;
                }
                // An open one is a ring.
                if (known->second != State::Wired) state = State::Refused;
            }
            const bool isDrivenByOne = each->roles().drivers.size() == 1 && each->roles().inouts.empty();
            if (state == State::Wired && !isDrivenByOne) state = State::Bus;
        }
        for (const Net* each : group) nets_[each] = state;
        return false;
    }

    /// Nobody who listens needs to be called, and drivers show what is set on them.
    bool isPlain(const std::vector<Net*>& group) const {
        std::size_t drivers = 0;
        bool isReadByDriver = false;
        bool isJoined = false;
        for (const Net* net : group) {
            if (!isPlain(*net) || net->width() != group.front()->width()) return false;
            drivers += net->roles().drivers.size();
            isJoined = isJoined || !net->roles().inouts.empty();
            isReadByDriver = isReadByDriver || std::ranges::any_of(net->roles().drivers, [](const Port* port) {
                                 return nearNet(*port) != nullptr;
                             });
        }
        return drivers > 0 && drivers <= kMostDrivers && !((drivers > 1 || isJoined) && isReadByDriver);
    }
    bool isPlain(const Net& net) const {
        return net.width() > 0 && net.width() <= kMaxValueWidth && net.subscribers().empty() &&
               net.recordCount() == 0 && net.roles().isWhole &&
               std::ranges::all_of(net.getPorts(), [&](const Port* port) { return isPlain(*port, net); });
    }
    bool isPlain(const Port& port, const Net& net) const {
        if (port.direction() == Direction::Inout) return port.recordCount() == 0 && port.subscribers().empty();
        return net.isDriver(port) != net.isFollower(port) && isPlain(port);
    }

    EventSimulator& simulator_;
    std::unordered_map<const Net*, State> nets_;
};

/// What wires and buses refer to, in rows: what a pass of events touches lies close together.
struct Wiring::Wires {
    std::vector<Wire::Listener> listeners;
    std::vector<Port*> ports;
    std::vector<Net*> nets;
    std::vector<Port*> busDrivers;
    std::deque<Wire> wires;
    std::deque<Bus> buses;
};

/// Collects the members of one wire after the other.
class Wiring::Layer {
    template <class Item>
    static std::span<const Item> part(const std::vector<Item>& list, std::size_t begin, std::size_t end) {
        return std::span(list).subspan(begin, end - begin);
    }

public:
    Layer(Wires& wires, EventSimulator& simulator) : wires_(wires), simulator_(simulator), finder_(simulator) {}

    void layFrom(Port& driver) {
        if (driver.direction() == Direction::Inout) return;
        Net* net = driver.farNet();
        if (net != nullptr && finder_.canBeBus(*net)) {
            if (!buses_.contains(net)) layBus(*net);
        } else if (canBeWired(driver) && !isFollowerOnWire(driver)) {
            // A port may stand in the lists of two components.
            if (!drivers_.insert(&driver).second) return;
            layWire(&driver, net == nullptr ? std::vector<Net*>() : std::vector<Net*>{net});
        }
    }

    void finish() {
        begins_.push_back(extent());
        for (std::size_t i = 0; i + 1 < begins_.size(); ++i) {
            const Extent& begin = begins_[i];
            const Extent& end = begins_[i + 1];
            Wire& wire = wires_.wires.emplace_back(
                simulator_,
                Wire::Members{begin.driver, begin.passesZ, part(wires_.listeners, begin.listeners, end.listeners),
                              part(wires_.ports, begin.ports, end.ports), part(wires_.nets, begin.nets, end.nets)});
            if (begin.driver == nullptr) {
                wires_.buses.emplace_back(wire, part(wires_.busDrivers, begin.busDrivers, end.busDrivers));
            }
        }
    }

private:
    struct Extent {
        Port* driver;
        bool passesZ;
        std::size_t listeners;
        std::size_t ports;
        std::size_t nets;
        std::size_t busDrivers;
    };

    Extent extent(Port* driver = nullptr) const {
        return {
            driver, false, wires_.listeners.size(), wires_.ports.size(), wires_.nets.size(), wires_.busDrivers.size()};
    }
    void layBus(Net& net) {
        const auto group = joinedNets(net);
        layWire(nullptr, group);
        for (const Net* each : group) {
            buses_.insert(each);
            const auto& drivers = each->roles().drivers;
            wires_.busDrivers.insert(wires_.busDrivers.end(), drivers.begin(), drivers.end());
            for (Port* inout : each->roles().inouts) wires_.ports.push_back(inout);
        }
    }
    void layWire(Port* driver, const std::vector<Net*>& firstLevel) {
        begins_.push_back(extent(driver));
        if (driver != nullptr) add(*driver);
        std::size_t next = wires_.nets.size();
        const std::size_t endOfFirst = next + firstLevel.size();
        wires_.nets.insert(wires_.nets.end(), firstLevel.begin(), firstLevel.end());
        // A list that grows while it is gone through: the levels behind the first one.
        while (next < wires_.nets.size()) {
            for (Port* port : wires_.nets[next++]->roles().followers) {
                add(*port);
                if (Net* behind = port->farNet()) wires_.nets.push_back(behind);
            }
        }
        begins_.back().passesZ =
            wires_.nets.size() == endOfFirst && (driver == nullptr || driver->readNet() == nullptr);
        if (driver == nullptr) return;
        // Nobody asks these nets for their ports' roles again, and a large board has many.
        for (std::size_t i = begins_.back().nets; i < wires_.nets.size(); ++i) wires_.nets[i]->rolesChange();
    }
    bool canBeWired(const Port& driver) {
        Net* net = driver.farNet();
        return net == nullptr ? finder_.isPlain(driver) : finder_.canBeWired(*net);
    }
    bool isFollowerOnWire(const Port& port) {
        Net* net = nearNet(port);
        return net != nullptr && (finder_.canBeWired(*net) || finder_.canBeBus(*net));
    }
    void add(Port& port) {
        wires_.ports.push_back(&port);
        for (ValueChangeSubscriber* each : port.subscribers()) {
            const Response response = finder_.responseOf(*each, port);
            if (response.kind != Response::Kind::Event) continue;
            auto* component = dynamic_cast<Component*>(each);
            wires_.listeners.push_back({response.delay, simulator_.numberOf({component, response.tag})});
        }
    }

    Wires& wires_;
    EventSimulator& simulator_;
    Finder finder_;
    std::unordered_set<const Port*> drivers_;
    std::unordered_set<const Net*> buses_;
    std::vector<Extent> begins_;
};

namespace {

/// Events get their numbers in their order, so that passes can be sorted by number.
void numberEvents(const std::vector<Component*>& components, EventSimulator& simulator) {
    std::vector<Event> events;
    for (Component* component : components) {
        events.push_back({component, 0});
        for (const Port* port : component->getPorts()) {
            if (port->direction() != Direction::Input) continue;
            const Response response = component->responseTo(*port);
            if (response.kind == Response::Kind::Event && response.tag != 0) {
                events.push_back({component, response.tag});
            }
        }
    }
    std::ranges::sort(events, {},
                      [](const Event& event) { return std::pair(event.target->getCreationNumber(), event.tag); });
    for (const Event& event : events) simulator.numberOf(event);
}

/// A small board is in the caches anyway.
constexpr std::size_t kLargeBoard = 500;

void notePlaces(const std::vector<Component*>& components, EventSimulator& simulator) {
    constexpr std::size_t kMostPorts = 8;
    std::vector<const void*> places;
    for (Component* component : components) {
        const auto own = component->hotPlaces();
        places.assign(own.begin(), own.end());
        const auto& ports = component->getPorts();
        for (const Port* port : std::span(ports).first(std::min(ports.size(), kMostPorts))) {
            if (const void* place = port->hotPlace()) places.push_back(place);
            if (const Wire* wire = port->getWire()) {
                places.push_back(wire);
                if (wire->driver() == port) places.push_back(wire->listenersPlace());
            }
        }
        simulator.events().setTouched(simulator.numberOf({component, 0}), places);
    }
}

}  // namespace

Wiring::Wiring(Circuit& root, EventSimulator& simulator) : wires_(std::make_shared<Wires>()) {
    std::vector<Component*> components;
    collectComponents(root, components);
    numberEvents(components, simulator);
    Layer layer(*wires_, simulator);
    for (const Component* component : components) {
        for (Port* port : component->getPorts()) layer.layFrom(*port);
    }
    layer.finish();
    for (Wire& wire : wires_->wires) wire.join(wires_);
    for (Bus& bus : wires_->buses) bus.join();
    if (components.size() > kLargeBoard) notePlaces(components, simulator);
}

Wiring::~Wiring() {
    for (Wire& wire : wires_->wires) wire.cut();
}

}  // namespace tarnsim
