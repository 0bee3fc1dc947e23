#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "Core/Simulation/Event.h"
#include "Core/Simulation/Port.h"
#include "Core/Support/BaseObject.h"
#include "Core/Support/Comment.h"
#include "Core/Support/NamedList.h"
#include "Core/Support/ParaMap.h"
#include "Core/Values/ValueHistory.h"

namespace tarnsim {

class Circuit;
class EventSimulator;

/// What a component does when an Input changes.
struct Response {
    enum class Kind {
        Anything,  ///< whatever its inputChanged does
        Nothing,
        Event,  ///< enters an event of its own `delay` ns after the change, and does nothing else
    };

    Kind kind = Kind::Anything;
    std::uint64_t tag = 0;    ///< of the event
    std::uint32_t delay = 0;  ///< ns
};

/// The base of everything that can stand in a circuit: gates, chips, memories, processors and Circuit itself.
///
/// A component owns the ports that it makes, keeps its parameters, and hears of the changes of its Input ports. Its
/// life: a factory constructs it and applies the parameters of its unit; the circuit becomes its parent and connects
/// its ports; `onLoaded` when the whole file is there; before a run `reset`, then `start`; during the run `evaluate`
/// and `evaluateTagged` from the queue.
///
/// The name is the unit's instance name, the type the name that files use for the kind of part.
class Component : public BaseObject, public CommentableObject, public ValueChangeSubscriber {
public:
    /// `type` goes through cutChipPrefix.
    Component(const std::string& type, const std::string& name, Circuit* parent);
    /// Without parent. Takes a copy of the parameters but doesn't apply them: the concrete type does.
    Component(const std::string& type, const std::string& name, const ParaMap& parameters);
    /// Detaches all ports from their nets.
    ~Component() override;
    Component& operator=(const Component&) = delete;

    /// The file is loaded; `owner` is the circuit that this component stands in.
    virtual void onLoaded(Circuit* owner);
    /// Forgets the state of earlier runs. Parts with a state clear it and call this one, which clears the ports'
    /// histories.
    virtual void reset();
    /// The run to come ends at `endTime`. Sources drive, clocks schedule.
    virtual void start(Time endTime);
    /// Reads the inputs and sets the outputs at `time`.
    virtual void evaluate(Time time) = 0;
    /// What calls `evaluate`. A class that nothing derives from answers with a function that goes straight to its own:
    /// the object needn't be looked at to find it, and where it begins nothing else is of interest.
    virtual Evaluator evaluator() const {
        return [](Component& component, Time time) { component.evaluate(time); };
    }
    /// The same for an event that this component scheduled with a `tag`.
    virtual void evaluateTagged(Time time, std::uint64_t tag);
    /// An Input port's history changes. Leads to inputChanged; not for parts to override.
    void valueChanged(ValueHistory* history, const ValueChange& change) override;
    /// An Input port changes at `time`. The port still holds the old value.
    virtual void inputChanged(Port* port, const Value& oldValue, const Value& newValue, Time time);
    /// What inputChanged does for `port`. Who overrides one of the two overrides both, and calls `responsesChange` when
    /// the answer becomes another.
    virtual Response responseTo(const Port& port) const;
    /// Leaves the nets outside.
    virtual void disconnectPorts();
    /// Reads `getParameters()` into the part's own settings.
    virtual void applyParameters() = 0;
    virtual Circuit* getParent() { return parent_; }
    virtual const Circuit* getParent() const { return parent_; }
    Component* asComponent() override { return this; }
    /// This component as a circuit; null if it's none. Asked so often that a dynamic_cast would be felt.
    virtual Circuit* asCircuit() { return nullptr; }
    const Circuit* asCircuit() const { return const_cast<Component*>(this)->asCircuit(); }
    /// A text for a display; empty unless a part has something to say.
    virtual std::string getDescription() const;

    /// Adds a port at the end; subscribes to it if it is an Input. The port isn't owned unless this component made it.
    /// Raises an Error for null.
    void addPort(Port* port);
    /// Renames the port, then adds it.
    void addPort(Port* port, const std::string& name);
    Port* createPort(std::uint32_t size, Direction direction, const std::string& name);
    Pin* createPin(Direction direction, const std::string& name);
    /// Takes the port off its nets and out of the list, and ends the subscription.
    void removePort(Port* port);

    /// The first port of that name or id; null if there is none.
    Port* findPort(std::string_view name) const { return ports_.findFirst(name); }
    Port* findPortById(const std::string& id) const;
    /// As findPort; null if the port isn't a Pin.
    Pin* findPin(const std::string& name) const;
    bool hasPort(const Port* port) const { return ports_.contains(port); }
    std::size_t countPorts(const std::string& name) const { return ports_.count(name); }
    bool hasPortNamed(const std::string& name) const { return findPort(name) != nullptr; }
    std::size_t countPortsById(const std::string& id) const;
    bool hasPortId(const std::string& id) const { return findPortById(id) != nullptr; }
    /// In order of creation.
    const std::vector<Port*>& getPorts() const { return ports_.items(); }

    const std::string& getType() const { return *type_; }
    /// As it stands: no prefix is cut.
    void setType(const std::string& type);
    ParaMap& getParameters() { return parameters_; }
    const ParaMap& getParameters() const { return parameters_; }
    std::string getParameterText() const { return parameters_.toString(); }
    std::string getParameterTextExcept(const ParaMap& defaults) const { return parameters_.toStringExcept(defaults); }
    /// The registry's help text for the type.
    std::string getTypeDoc() const;
    /// Takes over the entries of `parameters` in place of those that are there, and applies them.
    void setParameters(const ParaMap& parameters);
    /// `name(a=b,c=d)`: from this text and the type a factory makes the same part.
    std::string getInstanceText() const { return getName() + getParameterText(); }
    void setParent(Circuit* circuit);

    /// The simulator of the circuit that this component stands in; null if there is none.
    EventSimulator* getSimulator() const;
    /// Has `target` evaluated at `time`, absolute and in ns. Without a simulator nothing happens.
    void schedule(Component* target, Time time) const;
    void scheduleTagged(Component* target, std::uint64_t tag, Time time) const;

    /// For the run's directory: the number of this component's plain event.
    EventNumber& plainEvent() { return plainEvent_; }
    /// The cache lines of this object that an evaluation looks at: what its class has beside this one.
    std::array<const void*, 3> hotPlaces() const {
        const auto* end = reinterpret_cast<const char*>(&plainEvent_);
        return {end, end + 64, end + 128};
    }

    /// Sets each Input, or each Output, to what it reads at `time`. Inouts are left alone.
    void refreshInputs(Time time);
    void refreshOutputs(Time time);

    /// Prints a warning for each Input that has no net outside.
    void checkConnections() const;

protected:
    void responsesChange() const;
    /// For a circuit, which alone is copied: copies of the ports, on no nets, in their order.
    Component(const Component& other);

    /// For ports that are made first and added later.
    PortFactory& portFactory() { return portFactory_; }

    // New ports at the end of the list. Parts have them as members, so that a class's members are its port table.

    Pin& inputPin(const std::string& name) { return *createPin(Direction::Input, name); }
    Pin& outputPin(const std::string& name) { return *createPin(Direction::Output, name); }
    Port& input(const std::string& name, std::uint32_t width) { return *createPort(width, Direction::Input, name); }
    Port& output(const std::string& name, std::uint32_t width) { return *createPort(width, Direction::Output, name); }
    /// A signal with a history that isn't in the list: a part's own. Its class clears it in `reset`.
    Port& internalSignal(std::uint32_t width) { return *portFactory_.createPort(width, Direction::Output, "Unnamed"); }

    /// Has this component evaluated `delay` ns after `time`; never, if that is beyond kLatestTime.
    void scheduleAfter(Time time, std::uint32_t delay);

    /// What getDescription says for a part with one delay in ns.
    static std::string describeDelay(std::uint32_t delay);

private:
    void refreshAll(Direction direction, Time time);

    Circuit* parent_;        ///< not owned
    NamedList<Port> ports_;  ///< not owned here but by a factory, mostly the one below
    PortFactory portFactory_;
    ParaMap parameters_;
    const std::string* type_;  ///< one for all components of the type
    EventNumber plainEvent_ = std::numeric_limits<EventNumber>::max();
};

/// A component whose outputs follow its inputs after one delay: `evaluate(t)` reads the inputs at `t - delay` and sets
/// the outputs at `t`. So every change comes through, pulses shorter than the delay too.
class SingleDelayComponent : public Component {
public:
    /// A delay of 0 until applyParameters reads one.
    SingleDelayComponent(const std::string& type, const std::string& name, const ParaMap& parameters);
    SingleDelayComponent(const std::string& type, const std::string& name, std::uint32_t delay);
    /// Parts refer to their own ports and are made anew from type, name and parameters.
    SingleDelayComponent(const SingleDelayComponent&) = delete;
    SingleDelayComponent& operator=(const SingleDelayComponent&) = delete;

    /// Schedules the evaluation of this component for `time + delay`, whatever changed.
    void inputChanged(Port* port, const Value& oldValue, const Value& newValue, Time time) override;
    /// Reads the delay.
    void applyParameters() override { readDelay(); }

    std::uint32_t getDelay() const { return delay_; }
    /// In ns. Parts that are made of others pass it on.
    virtual void setDelay(std::uint32_t delay) {
        if (delay != delay_) responsesChange();
        delay_ = delay;
    }

protected:
    /// Sets `delay` as the parameters have it; an absent one leaves it as it is.
    void readDelay();
    /// The response of the concrete `Part`, if it leaves inputChanged as it is here.
    template <class Part>
    Response responseOf() const {
        using Inherited = decltype(&SingleDelayComponent::inputChanged);
        if constexpr (std::is_same_v<decltype(&Part::inputChanged), Inherited>) {
            return {Response::Kind::Event, 0, delay_};
        } else {
            return {};
        }
    }
    /// When the change took place that leads to an evaluation at `time`.
    Time inputTime(Time time) const { return earlier(time, delay_); }

private:
    std::uint32_t delay_;  ///< ns
};

}  // namespace tarnsim
