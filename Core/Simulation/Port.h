#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Core/Simulation/Wire.h"
#include "Core/Support/BaseObject.h"
#include "Core/Support/Comment.h"
#include "Core/Values/ValueHistory.h"

namespace tarnsim {

class Bus;
class Net;
class HeldPin;

/// A port's direction as its component sees it.
enum class Direction : std::int32_t { Input = 0, Output = 1, Inout = 2 };

/// The sides of a port, by the numbers that the operations take: the inside faces the contents of the circuit whose
/// port it is, the outside faces the circuit that the component stands in.
inline constexpr int kInside = 0;
inline constexpr int kOutside = 1;

/// A connection point of a component or a circuit: a named signal with a direction and a fixed width in bits.
///
/// One Port object links two levels of the hierarchy through a net on either side. Neither net is owned; they are
/// attached by Net::addPort and detached by Net::removePort, and a port that dies detaches itself. The history
/// records what was set on the port, by its component, by a test or by the net that it follows.
class Port : public BaseObject, public CommentableObject, public ValueHistory {
public:
    Port(std::uint32_t size, Direction direction, const std::string& name);
    ~Port() override;
    /// Copies name, comment, size, direction and the `Z` rule, but no nets and no history.
    Port(const Port& other);
    Port& operator=(const Port&) = delete;

    /// Records the value (subscribers hear of a change), then has the net on the far side resolve at that time: the
    /// outside net of an Output, the inside net of an Input or Inout. Returns when everything reached has its value.
    void set(const Value& value, Time time) override;

    /// The first half of `set`, for the net that this port follows: records its value and gives the net on the far
    /// side, which has to resolve next; null if there is none. Nets go through a hierarchy of any depth by themselves.
    Net* follow(const Value& value, Time time);

    /// The value as the port's reader sees it: an Input reads its outside net, an Output its inside net, and without
    /// such a net its own records. An Inout between two nets reads `U` unless they agree; with one net it reads that
    /// net, but inside its own records if it has any. Unless ztrOff, a `Z` read through a net or by an Inout is `U`.
    Value get(Time time) const override;

    // The same without a Value around the letters, for parts with buses.

    void setLetters(std::string_view letters, Time time);
    /// REQUIRES: a port of one bit
    void setLetter(char letter, Time time) {
        if (drivesWire_ && wire_->passes(letter)) return wire_->setLetter(letter, time);
        setLetters({&letter, 1}, time);
    }
    /// The letters of `get`, as many as the port has bits.
    void lettersAt(Time time, char* letters) const;
    /// The number that `get` gives; nothing if it isn't defined.
    std::optional<std::uint32_t> numberAt(Time time) const;

    /// What the drivers of the net on `side` put on it; all `U` where there is no net.
    virtual Value driveValue(Time time, int side) const;

    virtual Direction direction() const;
    virtual void setDirection(Direction direction);

    /// Side 0 is the inside, every other number the outside. Null if there is no net.
    virtual Net* getNet(int side) const;
    /// Stores the pointer and nothing else: attaching is Net::addPort's.
    virtual void setNet(Net* net, int side);

    /// Whether a `Z` that is read through a net turns into `U`: a floating input is undefined to its reader.
    virtual void ztrOff();
    virtual void ztrOn();
    bool getZtr() const { return ztr_; }

    /// Leaves the net on side 0 or 1, if there is one.
    void disconnect(int side);
    /// Sets what is read at `time`, at `time`.
    void refresh(Time time);

    /// The options of a port's statement; the only one is `ztr`, `on` or `off`, for Outputs. Raises an Error for
    /// others.
    void setOptions(const std::map<std::string, std::string>& options);

    /// One line about name and inside net, through TLog.
    void dump() const;

    // For Wire and Bus.

    void joinWire(Wire* wire, const std::shared_ptr<ValueRecords>& records);
    void leaveWire();
    /// `place` is the bus's own note, below 256.
    void joinBus(Bus* bus, std::uint32_t place) {
        drivenBus_ = bus;
        busPlace_ = static_cast<std::uint8_t>(place);
    }
    void leaveBus() { drivenBus_ = nullptr; }
    Bus* getBus() const { return drivenBus_; }
    std::uint32_t getBusPlace() const { return busPlace_; }
    /// Makes a record and does nothing else.
    void recordLetters(std::string_view letters, Time time) { ownRecords().store(time, letters); }
    Wire* getWire() const { return wire_; }
    /// Where reading and setting begin; null if that's with the part that holds it.
    const void* hotPlace() const { return holder_ == nullptr ? &wire_ : nullptr; }
    /// The net that `get` reads; null if it reads the port's own records. Not for Inouts.
    const Net* readNet() const { return direction_ == Direction::Input ? outsideNet_ : insideNet_; }
    /// The net that resolves when this port is set; null if there is none.
    Net* farNet() const { return direction_ == Direction::Output ? outsideNet_ : insideNet_; }
    /// What is set on this port, a wire takes.
    bool drivesWire() const { return drivesWire_; }
    /// What is set on this port, a wire or a bus takes, and a refresh at `time` makes records but changes nothing.
    bool isSettled(Time time) const;

protected:
    void leaveSharedRecords() override { cutWire(); }
    /// What the port reads is what its wire records.
    bool readsWire() const { return readsWire_; }
    const ValueRecords& wireRecords() const { return wire_->records(); }
    /// What a reader of the port sees where the records have a `Z`.
    char readZ() const;
    /// The part that holds the pin hears whether it goes to the wire by itself.
    void updateHolder();

    HeldPin* holder_ = nullptr;  ///< not owned; a Pin's only

private:
    void cutWire();
    /// What this port is to its nets is about to change, or has changed.
    void rolesChange();
    /// False if neither a wire nor a bus takes the letters.
    bool setTogether(std::string_view letters, Time time);
    Net* recordAlone(const Value& value, Time time);
    Value readThrough(const Net& net, Time time) const;
    Value readInout(Time time) const;
    Value withoutZ(Value value) const;

    // The first ones take the room behind the members of ValueHistory: a board has more ports than anything else.
    Direction direction_ : 8;
    bool ztr_ : 1 = true;
    bool drivesWire_ : 1 = false;
    bool readsWire_ : 1 = false;
    std::uint8_t busPlace_ = 0;
    Net* outsideNet_ = nullptr;  ///< not owned
    Net* insideNet_ = nullptr;   ///< not owned
    Wire* wire_ = nullptr;       ///< not owned; null while the port isn't part of one
    Bus* drivenBus_ = nullptr;   ///< not owned
};

/// A port of one bit.
class Pin : public Port {
public:
    Pin(Direction direction, const std::string& name);
    Pin(const Pin& other) = default;

    /// The letter that the pin reads at `time`.
    char level(Time time) const { return readsWire() ? levelOf(wireRecords(), time) : get(time); }
    void setLevel(char letter, Time time) { setLetter(letter, time); }

    /// Sets `count` periods of a square wave from `start` on, each low first and high from its middle. Times in ns.
    void pulse(Time period, int count, Time start);

    // For HeldPin

    char levelOf(const ValueRecords& records, Time time) const {
        const char letter = records.letterInForceAt(time, kUndefinedBit);
        return letter == 'Z' ? readZ() : letter;
    }
    void holdBy(HeldPin* holder);
};

/// A pin as its part holds it, as a member. Levels go straight to the wire that the pin is on: while a large board
/// runs, the ports of its parts needn't be in the caches (a third of what an evaluation touched). For the parts that
/// boards have thousands of; others hold a `Pin&`.
class HeldPin {
public:
    ~HeldPin() { pin_.holdBy(nullptr); }
    HeldPin(const HeldPin&) = delete;
    HeldPin& operator=(const HeldPin&) = delete;

    Pin& pin() const { return pin_; }

    /// For the pin: its wire has become another. Null if there is none, or if the pin isn't simply what it shows.
    void setWire(Wire* wire) { wire_ = wire; }

    /// As that of the pin.
    char level(Time time) const { return wire_ == nullptr ? pin_.level(time) : pin_.levelOf(wire_->records(), time); }

protected:
    /// The pin isn't owned and lives longer. It is held by one part.
    explicit HeldPin(Pin& pin) : pin_(pin) { pin.holdBy(this); }
    Wire* wire() const { return wire_; }

private:
    Pin& pin_;
    Wire* wire_ = nullptr;  ///< not owned
};

/// An Input of a part.
class InputPin : public HeldPin {
public:
    InputPin(Pin& pin) : HeldPin(pin) {}  // NOLINT(google-explicit-constructor): stands for the pin
};

/// An Output of a part.
class OutputPin : public HeldPin {
public:
    OutputPin(Pin& pin) : HeldPin(pin) {}  // NOLINT(google-explicit-constructor): stands for the pin

    /// As that of the pin.
    void setLevel(char letter, Time time) {
        if (wire() != nullptr && wire()->passes(letter)) return wire()->setLetter(letter, time);
        pin().setLevel(letter, time);
    }
};

/// Makes the ports of one component and owns them.
class PortFactory {
public:
    PortFactory() = default;
    virtual ~PortFactory() = default;
    PortFactory(const PortFactory&) = delete;
    PortFactory& operator=(const PortFactory&) = delete;

    Port* createPort(std::uint32_t size, Direction direction, const std::string& name);
    Pin* createPin(Direction direction, const std::string& name);
    /// A copy of the same kind: a Pin is copied as a Pin.
    Port* copyPort(const Port& other);

private:
    template <class Kind>
    Kind* adopt(std::unique_ptr<Kind> port) {
        Kind* result = port.get();
        if (ports_.empty()) ports_.reserve(3);  // as many as the smallest block of memory holds
        ports_.push_back(std::move(port));
        return result;
    }

    std::vector<std::unique_ptr<Port>> ports_;
};

}  // namespace tarnsim
