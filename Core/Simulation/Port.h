#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Core/Support/BaseObject.h"
#include "Core/Support/Comment.h"
#include "Core/Values/ValueHistory.h"

namespace tarnsim {

class Net;

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

    /// The first half of `set`: records the value and gives the net on the far side, which has to resolve next; null if
    /// there is none. For nets, which go through a hierarchy of any depth by themselves.
    Net* record(const Value& value, Time time);

    /// The value as the port's reader sees it: an Input reads its outside net, an Output its inside net, and without
    /// such a net its own records. An Inout between two nets reads `U` unless they agree; with one net it reads that
    /// net, but inside its own records if it has any. Unless ztrOff, a `Z` read through a net or by an Inout is `U`.
    Value get(Time time) const override;

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

private:
    Value readThrough(const Net& net, Time time) const;
    Value readInout(Time time) const;
    Value withoutZ(Value value) const;

    Direction direction_;
    Net* outsideNet_ = nullptr;  ///< not owned
    Net* insideNet_ = nullptr;   ///< not owned
    bool ztr_ = true;
};

/// A port of one bit.
class Pin : public Port {
public:
    Pin(Direction direction, const std::string& name);
    Pin(const Pin& other) = default;

    /// The letter that the pin reads at `time`.
    char level(Time time) const { return get(time); }
    void setLevel(char letter, Time time) { set(Value(letter, 1), time); }

    /// Sets `count` periods of a square wave from `start` on, each low first and high from its middle. Times in ns.
    void pulse(Time period, int count, Time start);
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
    std::vector<std::unique_ptr<Port>> ports_;
};

}  // namespace tarnsim
