#include "Core/Circuit/Wiring.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <span>
#include <typeinfo>
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

bool hasInouts(const Net& net) {
    return std::ranges::any_of(net.getPorts(), [](const Port* port) { return port->direction() == Direction::Inout; });
}

/// The nets that Inouts join to this one, itself first, in place of what is in the list.
void findJoinedNets(Net& net, std::vector<Net*>& nets) {
    nets.assign(1, &net);
    if (!hasInouts(net)) return;
    std::unordered_set<const Net*> known = {&net};
    for (std::size_t i = 0; i < nets.size(); ++i) {
        for (const Port* inout : nets[i]->roles().inouts) {
            Net* other = nets[i]->otherNet(*inout);
            if (other != nullptr && known.insert(other).second) nets.push_back(other);
        }
    }
}

void collectComponents(Circuit& circuit, std::vector<Component*>& components) {
    std::vector<Circuit*> open = {&circuit};
    while (!open.empty()) {
        Circuit* next = open.back();
        open.pop_back();
        components.push_back(next);
        for (Component* child : next->getComponents()) {
            if (Circuit* inner = child->asCircuit()) {
                open.push_back(inner);
            } else {
                components.push_back(child);
            }
        }
        open.insert(open.end(), next->getDeclarations().begin(), next->getDeclarations().end());
    }
}

}  // namespace

/// Looks at every net once, and notes in it what it found. Works with lists and not on the stack: there may be any
/// number of levels. It goes through the ports of a net instead of asking for their roles: those would be made for
/// every net of a board, and dropped.
class Wiring::Finder {
public:
    explicit Finder(EventSimulator& simulator) : simulator_(simulator) {}

    /// All signals behind the net can be on the wire of its only driver.
    bool canBeWired(Net& net) { return stateOf(net) == State::Wired; }
    /// All signals behind the net, and behind those that Inouts join to it, can be on one wire, which the drivers of
    /// them all drive together.
    bool canBeBus(Net& net) { return stateOf(net) == State::Bus; }

    /// True the first time that it is asked of a net.
    bool isFirstFrom(const Net& net) const {
        const unsigned note = net.noteOf(walk_);
        net.setNote(walk_, static_cast<std::uint8_t>(note | kIsLaid));
        return (note & kIsLaid) == 0;
    }

    Response responseOf(ValueChangeSubscriber& subscriber, const Port& port) const {
        const Component* component = subscriber.asComponent();
        if (component == nullptr) return {};
        if (component->asCircuit() != nullptr && typeid(*component) == typeid(Circuit))
            return {Response::Kind::Nothing};
        const Response response = component->responseTo(port);
        if (response.kind != Response::Kind::Event || component->getSimulator() == &simulator_) return response;
        return {component->getSimulator() == nullptr ? Response::Kind::Nothing : Response::Kind::Anything};
    }

    /// Nobody who listens to the port needs to be called.
    bool isPlain(const Port& port) const {
        return port.direction() != Direction::Inout && port.width() > 0 && port.recordCount() == 0 &&
               std::ranges::all_of(port.subscribers(), [&](ValueChangeSubscriber* each) {
                   return responseOf(*each, port).kind != Response::Kind::Anything;
               });
    }

private:
    enum class State : std::uint8_t { Unknown, Open, Refused, Wired, Bus };
    static constexpr unsigned kIsLaid = 8;  ///< beside the state, in a net's note

    State known(const Net& net) const { return static_cast<State>(net.noteOf(walk_) & (kIsLaid - 1)); }
    void decide(State state) {
        for (const Net* each : group_) {
            each->setNote(walk_,
                          static_cast<std::uint8_t>(static_cast<unsigned>(state) | (each->noteOf(walk_) & kIsLaid)));
        }
    }

    State stateOf(Net& net) {
        if (const State state = known(net); state != State::Unknown) return state;
        path_.assign(1, &net);
        while (!path_.empty()) {
            Net& next = *path_.back();
            findJoinedNets(next, group_);
            if (known(next) == State::Unknown) decide(isPlainGroup() ? State::Open : State::Refused);
            if (known(next) != State::Open || !pushNextLevel()) path_.pop_back();
        }
        return known(net);
    }

    /// Puts a net that has to be looked at before the present group on the path. If there is none, the group is decided
    /// on.
    bool pushNextLevel() {
        State state = State::Wired;
        for (const Net* each : group_) {
            std::size_t drivers = 0;
            bool isJoined = false;
            for (const Port* port : each->getPorts()) {
                if (port->direction() == Direction::Inout) {
                    isJoined = true;
                    continue;
                }
                if (each->isDriver(*port)) ++drivers;
                Net* next = each->isFollower(*port) ? port->farNet() : nullptr;
                if (next == nullptr) continue;
                const State behind = known(*next);
                if (behind == State::Unknown) {
                    path_.push_back(next);
                    return true;
                }
                // An open one is a ring.
                if (behind != State::Wired) state = State::Refused;
            }
            if (state == State::Wired && (drivers != 1 || isJoined)) state = State::Bus;
        }
        decide(state);
        return false;
    }

    /// Nobody who listens needs to be called, and drivers show what is set on them.
    bool isPlainGroup() const {
        std::size_t drivers = 0;
        bool isReadByDriver = false;
        bool isJoined = false;
        for (const Net* net : group_) {
            if (!isPlain(*net) || net->width() != group_.front()->width()) return false;
            for (const Port* port : net->getPorts()) {
                if (port->direction() == Direction::Inout) {
                    isJoined = true;
                } else if (net->isDriver(*port)) {
                    ++drivers;
                    isReadByDriver = isReadByDriver || nearNet(*port) != nullptr;
                }
            }
        }
        return drivers > 0 && drivers <= kMostDrivers && !((drivers > 1 || isJoined) && isReadByDriver);
    }
    bool isPlain(const Net& net) const {
        return net.width() > 0 && net.width() <= kMaxValueWidth && net.subscribers().empty() &&
               net.recordCount() == 0 && !net.hasPinSpecs() &&
               std::ranges::all_of(net.getPorts(), [&](const Port* port) { return isPlain(*port, net); });
    }
    bool isPlain(const Port& port, const Net& net) const {
        if (port.width() != net.width()) return false;
        if (port.direction() == Direction::Inout) return port.recordCount() == 0 && port.subscribers().empty();
        return net.isDriver(port) != net.isFollower(port) && isPlain(port);
    }

    EventSimulator& simulator_;
    CreationNumber walk_;
    std::vector<Net*> path_;
    std::vector<Net*> group_;  ///< the last net of the path and those that are joined to it
};

namespace {

/// As many wires as are known beforehand, in one block: they can't move, and many small blocks would lose a quarter to
/// the alignment of a wire.
class WireRow {
public:
    WireRow() = default;
    ~WireRow() {
        std::destroy_n(first_, size_);
        if (first_ != nullptr) std::allocator<Wire>().deallocate(first_, room_);
    }
    WireRow(const WireRow&) = delete;
    WireRow& operator=(const WireRow&) = delete;

    /// REQUIRES: called once
    void reserve(std::size_t room) {
        if (room == 0) return;
        first_ = std::allocator<Wire>().allocate(room);
        room_ = room;
    }
    /// REQUIRES: there is room
    Wire& append(EventSimulator& simulator, const Wire::Members& members) {
        Wire* wire = std::construct_at(first_ + size_, simulator, members);
        ++size_;
        return *wire;
    }
    Wire* begin() { return first_; }
    Wire* end() { return first_ + size_; }

private:
    Wire* first_ = nullptr;
    std::size_t size_ = 0;
    std::size_t room_ = 0;
};

}  // namespace

/// What wires and buses refer to, in rows: what a pass of events touches lies close together.
struct Wiring::Wires {
    std::vector<Wire::Listener> listeners;
    std::vector<Port*> ports;
    std::vector<Net*> nets;
    std::vector<Port*> busDrivers;
    /// A port that drives no net, as most outputs of a board that lead nowhere.
    struct Lone {
        Port* port;
        std::vector<Wire::Listener> listeners;
    };
    std::deque<Lone> lones;
    std::deque<Wire> loneWires;
    WireRow wires;
    std::deque<Bus> buses;
};

/// Lays one wire after the other: first all that go through nets, then those of ports that are on none of these.
class Wiring::Layer {
    template <class Item>
    static std::span<const Item> part(const std::vector<Item>& list, std::size_t begin, std::size_t end) {
        return std::span(list).subspan(begin, end - begin);
    }

public:
    /// `ports` is about the number of ports there are.
    Layer(const std::shared_ptr<Wires>& wires, EventSimulator& simulator, std::size_t ports)
        : owner_(wires), wires_(*wires), simulator_(simulator), finder_(simulator) {
        wires_.ports.reserve(ports);
        wires_.listeners.reserve(ports);
        wires_.nets.reserve(ports / 2);
        begins_.reserve(ports / 2);
    }

    /// Collects what the port drives through a net, if one wire can take it.
    void layFrom(Port& driver) {
        Net* net = driver.farNet();
        if (net == nullptr || driver.direction() == Direction::Inout) return;
        if (finder_.canBeBus(*net)) {
            if (finder_.isFirstFrom(*net)) layBus(*net);
        } else if (finder_.canBeWired(*net) && !isFollowerOnWire(driver)) {
            // A port may stand in the lists of two components.
            if (finder_.isFirstFrom(*net)) layWire(&driver, {&net, 1});
        }
    }

    /// Makes the wires of all that was collected. REQUIRES: called once
    void joinAll() {
        wires_.wires.reserve(begins_.size());
        begins_.push_back(extent());
        for (std::size_t i = 0; i + 1 < begins_.size(); ++i) {
            const Extent& begin = begins_[i];
            const Extent& end = begins_[i + 1];
            Wire& wire = wires_.wires.append(
                simulator_,
                Wire::Members{begin.driver, begin.passesZ, part(wires_.listeners, begin.listeners, end.listeners),
                              part(wires_.ports, begin.ports, end.ports), part(wires_.nets, begin.nets, end.nets)});
            if (begin.driver == nullptr) {
                wires_.buses.emplace_back(wire, part(wires_.busDrivers, begin.busDrivers, end.busDrivers));
            }
        }
        for (Wire& wire : wires_.wires) wire.join(owner_);
        for (Bus& bus : wires_.buses) bus.join();
    }

    /// Makes a wire of a port that drives no net, if it isn't on one and can be. REQUIRES: joinAll was called
    void joinLone(Port& port) {
        if (port.getWire() != nullptr || port.farNet() != nullptr || !finder_.isPlain(port)) return;
        if (isFollowerOnWire(port)) return;
        auto& lone = wires_.lones.emplace_back(Wires::Lone{&port, {}});
        addListeners(port, lone.listeners);
        const bool passesZ = port.readNet() == nullptr;
        const Wire::Members members{&port, passesZ, lone.listeners, {&lone.port, 1}, {}};
        wires_.loneWires.emplace_back(simulator_, members).join(owner_);
    }

private:
    /// Where the parts of a wire begin in the lists.
    struct Extent {
        Port* driver;
        bool passesZ;
        std::uint32_t listeners;
        std::uint32_t ports;
        std::uint32_t nets;
        std::uint32_t busDrivers;
    };

    Extent extent(Port* driver = nullptr) const {
        return {driver,
                false,
                static_cast<std::uint32_t>(wires_.listeners.size()),
                static_cast<std::uint32_t>(wires_.ports.size()),
                static_cast<std::uint32_t>(wires_.nets.size()),
                static_cast<std::uint32_t>(wires_.busDrivers.size())};
    }
    void layBus(Net& net) {
        std::vector<Net*> group;
        findJoinedNets(net, group);
        layWire(nullptr, group);
        for (const Net* each : group) {
            finder_.isFirstFrom(*each);
            const auto& drivers = each->roles().drivers;
            wires_.busDrivers.insert(wires_.busDrivers.end(), drivers.begin(), drivers.end());
            for (Port* inout : each->roles().inouts) wires_.ports.push_back(inout);
        }
    }
    void layWire(Port* driver, std::span<Net* const> firstLevel) {
        begins_.push_back(extent(driver));
        if (driver != nullptr) add(*driver);
        std::size_t next = wires_.nets.size();
        const std::size_t endOfFirst = next + firstLevel.size();
        wires_.nets.insert(wires_.nets.end(), firstLevel.begin(), firstLevel.end());
        // A list that grows while it is gone through: the levels behind the first one.
        while (next < wires_.nets.size()) {
            const Net& net = *wires_.nets[next++];
            for (Port* port : net.getPorts()) {
                if (!net.isFollower(*port)) continue;
                add(*port);
                if (Net* behind = port->farNet()) wires_.nets.push_back(behind);
            }
        }
        begins_.back().passesZ =
            wires_.nets.size() == endOfFirst && (driver == nullptr || driver->readNet() == nullptr);
        groupListeners(begins_.back().listeners);
    }
    /// Enters many listeners of one delay as one group. Those from `begin` on are the wire's.
    void groupListeners(std::size_t begin) {
        constexpr std::size_t kLeast = 4;
        auto& listeners = wires_.listeners;
        if (listeners.size() < begin + kLeast) return;
        std::map<std::uint32_t, std::vector<EventNumber>> byDelay;
        for (const auto& [delay, event] : std::span(listeners).subspan(begin)) byDelay[delay].push_back(event);
        listeners.resize(begin);
        for (auto& [delay, events] : byDelay) {
            if (events.size() >= kLeast) {
                listeners.push_back({delay, simulator_.events().numberOfGroup(std::move(events))});
            } else {
                for (const EventNumber event : events) listeners.push_back({delay, event});
            }
        }
    }
    bool isFollowerOnWire(const Port& port) {
        Net* net = nearNet(port);
        return net != nullptr && (finder_.canBeWired(*net) || finder_.canBeBus(*net));
    }
    void add(Port& port) {
        wires_.ports.push_back(&port);
        addListeners(port, wires_.listeners);
    }
    void addListeners(const Port& port, std::vector<Wire::Listener>& listeners) {
        for (ValueChangeSubscriber* each : port.subscribers()) {
            const Response response = finder_.responseOf(*each, port);
            if (response.kind != Response::Kind::Event) continue;
            listeners.push_back({response.delay, simulator_.numberOf({each->asComponent(), response.tag})});
        }
    }

    const std::shared_ptr<Wires>& owner_;
    Wires& wires_;
    EventSimulator& simulator_;
    Finder finder_;
    std::vector<Extent> begins_;
};

namespace {

/// Events get their numbers in their order, so that passes can be sorted by number.
void numberEvents(const std::vector<Component*>& components, EventSimulator& simulator) {
    struct Numbered {
        std::uint64_t creation;
        Event event;
    };
    std::vector<Numbered> events;
    events.reserve(components.size());
    for (Component* component : components) {
        const std::uint64_t creation = component->getCreationNumber();
        events.push_back({creation, {component, 0}});
        for (const Port* port : component->getPorts()) {
            if (port->direction() != Direction::Input) continue;
            const Response response = component->responseTo(*port);
            if (response.kind == Response::Kind::Event && response.tag != 0) {
                events.push_back({creation, {component, response.tag}});
            }
        }
    }
    const auto order = [](const Numbered& each) { return std::pair(each.creation, each.event.tag); };
    if (!std::ranges::is_sorted(events, {}, order)) std::ranges::sort(events, {}, order);
    simulator.events().reserve(events.size());
    for (const Numbered& each : events) simulator.numberOf(each.event);
}

/// A small board is in the caches anyway.
constexpr std::size_t kLargeBoard = 500;

void notePlaces(const std::vector<Component*>& components, EventSimulator& simulator) {
    constexpr std::size_t kMostPorts = 8;
    std::vector<const void*> places;
    simulator.events().reservePlaces(components.size() * 12);
    for (Component* component : components) {
        const auto own = component->hotPlaces();
        places.assign(own.begin(), own.end());
        const auto& ports = component->getPorts();
        for (const Port* port : std::span(ports).first(std::min(ports.size(), kMostPorts))) {
            if (const void* place = port->hotPlace()) places.push_back(place);
            const Wire* wire = port->getWire();
            if (wire == nullptr) continue;
            places.push_back(wire);
            // Who follows a net and drives none isn't asked: the wires of a board's inputs lie anywhere.
            const bool mayDrive = port->farNet() != nullptr || nearNet(*port) == nullptr;
            if (mayDrive && wire->driver() == port) places.push_back(wire->listenersPlace());
        }
        simulator.events().setTouched(simulator.numberOf({component, 0}), places);
    }
}

}  // namespace

Wiring::Wiring(Circuit& root, EventSimulator& simulator) : wires_(std::make_shared<Wires>()) {
    std::vector<Component*> components;
    collectComponents(root, components);
    numberEvents(components, simulator);
    {
        // More than is needed, but memory that isn't touched costs nothing; lists that grow would be copied.
        std::size_t ports = 0;
        for (const Component* component : components) ports += component->getPorts().size();
        Layer layer(wires_, simulator, ports);
        for (const Component* component : components) {
            for (Port* port : component->getPorts()) layer.layFrom(*port);
        }
        layer.joinAll();
        for (const Component* component : components) {
            for (Port* port : component->getPorts()) layer.joinLone(*port);
        }
    }
    if (components.size() > kLargeBoard) notePlaces(components, simulator);
}

Wiring::~Wiring() {
    for (Wire& wire : wires_->wires) wire.cut();
    for (Wire& wire : wires_->loneWires) wire.cut();
}

}  // namespace tarnsim
