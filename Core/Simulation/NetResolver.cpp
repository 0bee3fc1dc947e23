#include "Core/Simulation/NetResolver.h"

#include <algorithm>
#include <vector>

#include "Core/Simulation/DriveStatus.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"

namespace tarnsim {

namespace {

/// Collects the drivers of one bit of a net and of the nets that Inouts join to it, each net once. Works with a list of
/// its own and not on the stack: any number of nets may hang together.
class BitWalk {
public:
    BitWalk(const Net& net, std::int32_t bit, Time time) : time_(time) { enter(net, bit); }

    PinDriveStatus collect() {
        while (true) {
            if (advance()) continue;
            const PinDriveStatus status = levels_.back().status;
            levels_.pop_back();
            if (levels_.empty()) return status;
            levels_.back().status.add(status);
        }
    }

private:
    /// A net of which some ports have been looked at.
    struct Level {
        const Net* net;
        std::int32_t bit;
        /// The position found for a port with a bit range stands for the ports behind it too, until another range sets
        /// it anew; designs with a Splice on a net have their values by this rule.
        std::int32_t portBit;
        std::size_t nextPort;
        PinDriveStatus status;
    };

    void enter(const Net& net, std::int32_t bit) {
        net.isNewTo(walk_);
        levels_.push_back({&net, bit, bit, 0, {}});
    }

    /// Goes on to the next joined net. False if the innermost net is done.
    bool advance() {
        Level& level = levels_.back();
        const Net& net = *level.net;
        while (level.nextPort < net.getPorts().size()) {
            const Port* port = net.getPorts()[level.nextPort++];
            if (const PinSpec* spec = net.findPinSpec(port)) {
                if (!spec->contains(level.bit)) continue;
                level.portBit = spec->indexOf(level.bit);
            }
            if (net.isDriver(*port)) level.status.add(port->get(time_)[static_cast<std::size_t>(level.portBit)]);
            if (port->direction() != Direction::Inout) continue;
            const Net* other = net.otherNet(*port);
            if (other == nullptr || !other->isNewTo(walk_)) continue;
            const PinSpec* spec = other->findPinSpec(port);
            enter(*other, spec == nullptr ? level.portBit : spec->bitAt(static_cast<std::size_t>(level.portBit)));
            return true;
        }
        return false;
    }

    Time time_;
    CreationNumber walk_;
    std::vector<Level> levels_;  ///< innermost last
};

/// Almost every net is plain: all its drivers are its own and as wide as it is.
bool isPlain(const Net& net) {
    const auto isPlainPort = [&](const Port* port) {
        return port->direction() != Direction::Inout && port->width() == net.width();
    };
    return net.width() <= kMaxValueWidth && !net.hasPinSpecs() && std::ranges::all_of(net.getPorts(), isPlainPort);
}

}  // namespace

Value NetResolver::resolve(const Net& net, Time time) {
    if (isPlain(net)) return resolveDirectDrivers(net, time);
    Value value(net.width());
    for (std::uint32_t i = 0; i < net.width(); ++i) {
        value[i] = BitWalk(net, static_cast<std::int32_t>(i), time).collect().state();
    }
    return value;
}

Value NetResolver::resolveDirectDrivers(const Net& net, Time time) {
    PortDriveStatus status(net.width());
    for (const Port* port : net.getPorts()) {
        if (net.isDriver(*port)) status.add(port->get(time));
    }
    return status.toValue();
}

}  // namespace tarnsim
