#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "Core/Simulation/Event.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Values/Time.h"
#include "Core/Values/Value.h"
#include "Core/Values/ValueRecords.h"

namespace tarnsim {

class Bus;
class Net;
class Port;

/// Signals that are always the same: a driver that is alone on its net, that net, the ports that follow it, and so on
/// through the levels of the hierarchy. They have one past in common instead of one each, and to set the driver is to
/// enter one record and the events of whoever listens.
///
/// That's most signals of most boards. A net with several drivers, Inouts or bit ranges isn't part of one, and neither
/// is a signal on which somebody listens who does more than enter an event. So nobody is called while a wire is being
/// set, and that all its signals change at once can't be told from their changing one after the other.
///
/// A wire lasts until something happens to one of its signals alone: it is connected elsewhere, written besides its
/// driver, cleared. Then it is cut: the signals keep their past and go on one by one.
///
/// What a setting touches stands in two cache lines beside each other.
class alignas(128) Wire {
public:
    /// Somebody who listens: an event `delay` ns after a change.
    struct Listener {
        std::uint32_t delay;
        EventNumber event;
    };
    /// None of these is owned; all must live as long as the wire is whole.
    struct Members {
        Port* driver;  ///< one of the ports; null for the wire of a Bus
        bool passesZ;  ///< no port stands between the signals that makes `U` of a `Z`
        std::span<const Listener> listeners;
        std::span<Port* const> ports;
        std::span<Net* const> nets;
    };

    Wire(EventSimulator& simulator, const Members& members);
    ~Wire() { cut(); }
    Wire(const Wire&) = delete;
    Wire& operator=(const Wire&) = delete;

    /// Begins: all signals have these records from now on. They live as long as one of the signals has them, and so
    /// does `owner`.
    void join(const std::shared_ptr<void>& owner);

    const Port* driver() const { return driver_; }
    const ValueRecords& records() const { return records_; }
    /// What drives the wire instead of a driver. Ends with it.
    void joinBus(Bus* bus) { bus_ = bus; }
    /// Whether all signals show a letter of the driver as it is. A `Z` doesn't get through ports to further levels, and
    /// a net makes `U` of what is no letter that it knows.
    bool passes(char letter) const {
        return letter == 'L' || letter == 'H' || letter == kUndefinedBit || (letter == 'Z' && passesZ_);
    }
    bool passes(std::string_view letters) const;

    /// False if the letters don't pass: nothing has happened then. REQUIRES: as many letters as the signals have bits
    bool set(std::string_view letters, Time time);
    /// The same for who knows that the letters aren't those that the wire holds at `time`.
    bool change(std::string_view letters, Time time);
    /// And for who knows that they are: so they have passed before.
    void repeat(std::string_view letters, Time time) { records_.store(time, letters); }
    /// Sets once more what the wire holds at `time`.
    void refresh(Time time);
    /// REQUIRES: the signals have one bit, and the letter passes
    void setLetter(char letter, Time time) {
        if (records_.storeLetter(time, letter, kUndefinedBit) != letter) notify(time);
    }

    /// Lets go of all signals.
    void cut();

    /// The second cache line.
    const void* listenersPlace() const { return &simulator_; }

private:
    void notify(Time time) {
        for (const Listener& listener : listeners()) {
            const std::int64_t due = later(time, listener.delay);
            if (due <= kLatestTime) simulator_.schedule(listener.event, static_cast<Time>(due));
        }
    }

    std::span<const Listener> listeners() const { return {listeners_, listenerCount_}; }
    std::span<Port* const> ports() const { return {ports_, portCount_}; }
    std::span<Net* const> nets() const { return {nets_, netCount_}; }

    ValueRecords records_;
    EventSimulator& simulator_;
    // The members, packed so that they fit into the second cache line.
    const Listener* listeners_;
    Port* const* ports_;
    Net* const* nets_;
    std::uint32_t listenerCount_;
    std::uint32_t portCount_;
    std::uint32_t netCount_;
    bool passesZ_;
    const Port* driver_;
    Bus* bus_ = nullptr;  ///< not owned
};
static_assert(sizeof(Wire) == 128);

}  // namespace tarnsim
