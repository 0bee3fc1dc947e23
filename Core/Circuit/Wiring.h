#pragma once

#include <memory>

namespace tarnsim {

class Circuit;
class EventSimulator;

/// The wires and buses of a circuit and of everything in it, found when a run is prepared. They serve that run's
/// simulator and go with this object; the signals don't depend on it.
class Wiring {
public:
    /// REQUIRES: no signal of the circuit has a record
    Wiring(Circuit& root, EventSimulator& simulator);
    ~Wiring();
    Wiring(const Wiring&) = delete;
    Wiring& operator=(const Wiring&) = delete;

private:
    class Finder;
    class Layer;
    struct Wires;

    std::shared_ptr<Wires> wires_;  ///< the signals that have their records keep them alive, too
};

}  // namespace tarnsim
