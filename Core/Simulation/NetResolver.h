#pragma once

#include "Core/Values/Time.h"
#include "Core/Values/Value.h"

namespace tarnsim {

class Net;

/// Works out the level of every bit of a net at one time from all its drivers, those that it reaches through Inout
/// ports included. Reads ports and nets, and changes nothing.
class NetResolver {
public:
    /// Raises the Error of PinDriveStatus if more than 255 drivers meet on one bit.
    static Value resolve(const Net& net, Time time);

    /// The drivers attached to the net itself; Inouts aren't followed and bit ranges not looked at.
    static Value resolveDirectDrivers(const Net& net, Time time);
};

}  // namespace tarnsim
