#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Core/Simulation/PinSpec.h"
#include "Core/Support/BaseObject.h"
#include "Core/Support/Comment.h"
#include "Core/Support/CreationNumber.h"
#include "Core/Values/ValueHistory.h"

namespace tarnsim {

class Net;
class Port;
class Wire;

/// Nets that a walk has been through already.
using NetSet = std::set<const Net*>;

/// A bundle of wires of one width. Ports attach to it by their inside (side 0) or outside (side 1).
///
/// Drivers are the Outputs of the components on the net, the Inputs of the circuit that the net lies in, and Inouts of
/// that circuit on which a value was ever set. The net resolves what they put on it, bit by bit, whenever one of them
/// is set, for the time of that value: no driver gives `Z`, one gives its level, two give `U`. It records the result
/// and sets the ports that follow it: Inputs of the components on it, and Outputs of the circuit it lies in. An Inout
/// joins the two nets that it lies between: they resolve as one.
///
/// Ports aren't owned. A net that dies detaches all its ports.
class Net : public BaseObject, public ValueHistory, public CommentableObject {
public:
    /// A width of 0 is taken over from the first port.
    explicit Net(std::uint32_t width);
    Net(const std::string& name, std::uint32_t width);
    ~Net() override;

    /// Attaches a port of the net's width. Raises an Error if the port has a net on that side, or another width.
    void addPort(Port* port, int side);
    /// Attaches a port to the bits that `spec` names; the net's width plays no part. `spec` isn't owned and lives as
    /// long as the port is attached. Raises an Error if the port has a net on that side, or `spec` another size.
    void addPort(Port* port, const PinSpec* spec, int side);
    /// The same for the bits from `first` to `last`.
    void addPort(Port* port, std::int32_t first, std::int32_t last, int side);

    /// Forgets the port and clears the side on which it points here.
    void removePort(Port* port);
    /// Detaches every port on each side on which it is attached here.
    void disconnectAll();
    /// Moves all ports of `other` here, each to its side. The bit ranges that `other` held aren't carried over; it
    /// receives this net's ones.
    void takeOver(Net& other);

    /// In order of attachment; a port attached on both sides stands twice.
    const std::vector<Port*>& getPorts() const { return ports_; }
    /// Raises std::out_of_range ("map::at") for a port that is attached to the whole net.
    const PinSpec* getPinSpec(const Port* port) const;
    /// Null for a port that is attached to the whole net.
    const PinSpec* findPinSpec(const Port* port) const;
    bool hasPinSpecs() const { return special_ && !special_->pinSpecs.empty(); }
    /// Makes room for that many ports.
    void reserve(std::size_t count) { ports_.reserve(count); }

    /// The attached ports by what they do here, each list in order of attachment. Good until a port is attached or
    /// detached, or its sides or its direction change.
    struct Roles {
        std::vector<Port*> drivers;  ///< that aren't Inouts
        std::vector<Port*> followers;
        std::vector<Port*> inouts;
        bool isWhole = false;  ///< no bit ranges, and all ports as wide as the net
        bool isPlain = false;  ///< the same, and no Inouts
    };
    const Roles& roles() const;
    /// For ports: one of these has changed.
    void rolesChange() { roles_.reset(); }

    /// Whether the port drives this net.
    bool isDriver(const Port& port) const;
    /// Whether the port takes on this net's value.
    bool isFollower(const Port& port) const;
    /// The net on the port's other side; null if there is none.
    Net* otherNet(const Port& port) const;

    /// The resolved value as `port` sees it: its bits of it, or all of it if the port is null or attached to the whole.
    Value valueFor(Time time, const Port* port) const;
    /// What the drivers attached to this very net put on it; nothing is recorded.
    Value driveValue(Time time) const;

    /// Resolves at `time`, records the result, and passes it on: to the nets joined by Inouts that aren't in `visited`,
    /// then to the ports that follow. Raises an Error that names the nets if the value comes round to this net again,
    /// which it would then do for ever.
    void update(Time time, const NetSet& visited);
    void update(Time time) { update(time, NetSet()); }

    /// For a walk over joined nets: true the first time that a walk of this number asks.
    bool isNewTo(const CreationNumber& walk) const {
        const std::uint64_t former = std::exchange(lastWalk_, walk.value() << kNoteBits);
        return former >> kNoteBits != walk.value();
    }
    /// What the walk of this number has noted of the net last; 0 if that is nothing, or other walks have come by.
    std::uint8_t noteOf(const CreationNumber& walk) const {
        return lastWalk_ >> kNoteBits == walk.value() ? static_cast<std::uint8_t>(lastWalk_) : std::uint8_t{0};
    }
    void setNote(const CreationNumber& walk, std::uint8_t note) const { lastWalk_ = walk.value() << kNoteBits | note; }

    /// One line with the names of the ports, through TLog.
    void dump() const;

    // For Wire.

    void joinWire(Wire* wire, const std::shared_ptr<ValueRecords>& records);
    void leaveWire() { wire_ = nullptr; }
    Wire* getWire() const { return wire_; }

protected:
    void leaveSharedRecords() override { cutWire(); }

private:
    class Update;

    void cutWire();
    /// `ports_` or their bit ranges are about to change.
    void portsChange() {
        cutWire();
        rolesChange();
    }

    void checkSideIsFree(const Port& port, int side) const;
    /// Clears every side on which the port points here.
    void letGo(Port& port) const;
    /// Moves one attachment to another net. If that refuses it, the port stays, and so do all that still point here.
    void handOver(Port& port, int side, Net& receiver);

    /// What hardly any net has.
    struct Special {
        std::unordered_map<const Port*, const PinSpec*> pinSpecs;  ///< ports attached to a part of the net
        std::vector<std::unique_ptr<PinSpec>> ownedPinSpecs;       ///< those that this net made itself
        std::vector<Port*> halfRemoved;  ///< removed, but pointing here by a second side that removePort left alone
    };
    Special& special();

    std::vector<Port*> ports_;                    ///< not owned
    std::unique_ptr<Special> special_;            ///< null until it's needed
    Wire* wire_ = nullptr;                        ///< not owned; null while the net isn't part of one
    mutable std::unique_ptr<const Roles> roles_;  ///< null until they are asked for
    static constexpr unsigned kNoteBits = 8;
    mutable std::uint64_t lastWalk_ = 0;  ///< its number, and below it what it noted
    const Update* updates_ = nullptr;     ///< what is under way on this net, innermost first
};

/// Makes nets and owns them.
class NetFactory {
public:
    NetFactory() = default;
    virtual ~NetFactory() = default;
    NetFactory(const NetFactory&) = delete;
    NetFactory& operator=(const NetFactory&) = delete;

    Net* createNet(std::uint32_t width);
    Net* createNet(const std::string& name, std::uint32_t width);
    /// Detaches all ports of all nets.
    void disconnectAll();
    /// The nets that no port is attached to.
    std::unordered_set<const Net*> emptyNets() const;
    /// Deletes them.
    void removeEmptyNets();

private:
    std::vector<std::unique_ptr<Net>> nets_;
};

}  // namespace tarnsim
