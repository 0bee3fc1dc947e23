#include "Core/Simulation/NetResolver.h"

#include <algorithm>

#include "Core/Simulation/DriveStatus.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"

namespace tarnsim {

namespace {

/// Collects the drivers of one bit of `net` and of the nets that Inouts join to it, each net once.
PinDriveStatus driveStatus(const Net& net, std::int32_t bit, Time time, NetSet& visited) {
    PinDriveStatus status;
    // The position found for a port with a bit range stands for the ports behind it too, until another range sets it
    // anew; designs with a Splice on a net have their values by this rule.
    std::int32_t portBit = bit;
    for (const Port* port : net.getPorts()) {
        if (const PinSpec* spec = net.findPinSpec(port)) {
            if (!spec->contains(bit)) continue;
            portBit = spec->indexOf(bit);
        }
        if (net.isDriver(*port)) status.add(port->get(time)[static_cast<std::size_t>(portBit)]);
        if (port->direction() != Direction::Inout) continue;
        const Net* other = net.otherNet(*port);
        if (other == nullptr || !visited.insert(other).second) continue;
        const PinSpec* otherSpec = other->findPinSpec(port);
        const std::int32_t otherBit =
            otherSpec == nullptr ? portBit : otherSpec->bitAt(static_cast<std::size_t>(portBit));
        status.add(driveStatus(*other, otherBit, time, visited));
    }
    return status;
}

bool isInout(const Port* port) {
    return port->direction() == Direction::Inout;
}

}  // namespace

Value NetResolver::resolve(const Net& net, Time time) {
    // Almost every net is a plain one: all its drivers are its own and as wide as it is.
    if (!net.hasPinSpecs() && std::ranges::none_of(net.getPorts(), isInout)) return resolveDirectDrivers(net, time);

    Value value(net.width());
    for (std::size_t i = 0; i < net.width(); ++i) {
        NetSet visited{&net};
        value[i] = driveStatus(net, static_cast<std::int32_t>(i), time, visited).state();
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
