#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "Core/Simulation/DriveLanes.h"
#include "Core/Simulation/Wire.h"
#include "Core/Values/LetterWord.h"
#include "Core/Values/Time.h"

namespace tarnsim {

class Port;

/// A net with several drivers, each with a past of its own, and what follows it: that is one wire, which shows what the
/// drivers come to. Nets that Inouts join resolve as one and are one bus.
///
/// It counts for each bit how many drivers are active, and so needs to look at none but the one that is set: a bus with
/// many buffers costs no more than one with two. Only a value for a time before the latest makes it look at all.
///
/// As a Wire, it lasts until something happens to one of its signals alone.
class Bus {
public:
    /// None of these is owned; all must live as long as the bus is whole. The drivers have no records, read no net and
    /// are as wide as the wire.
    Bus(Wire& wire, std::span<Port* const> drivers);
    ~Bus() { cut(); }
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    /// Begins: the drivers know of the bus from now on.
    void join();
    /// Records what the driver shows, and what the net makes of it. False if the net has to see to that itself, since
    /// it comes to a `Z` that gets no further than the next port: the bus has been cut then. REQUIRES: `driver` is one
    /// of the drivers and `letters` are as many as it has bits
    bool set(Port& driver, std::string_view letters, Time time);
    /// Nothing was set for a later time than `time`, and the net shows what the drivers come to. (It doesn't where one
    /// of them was set for a time before the latest.)
    bool isSettled(Time time) const;
    /// Lets go of all signals, those of the wire too.
    void cut();

private:
    std::size_t lettersIn(std::size_t word) const {
        return std::min(LetterWord::kLetters, width_ - word * LetterWord::kLetters);
    }
    bool note(const Port& driver, const char* letters);
    /// Counts anew what the drivers show at `time`.
    void count(Time time);
    bool setPast(Port& driver, Time time);

    Wire& wire_;
    std::span<Port* const> drivers_;
    std::size_t width_;
    Time latest_ = kEarliestTime;     ///< of all that was set
    std::optional<Time> recordedAt_;  ///< the time at which the wire has a record of what `lanes_` come to
    std::vector<DriveLanes> lanes_;   ///< at that time
    std::vector<LetterWord> driven_;  ///< by the drivers at that time, one after the other
    std::vector<char> shown_;         ///< by the net at that time; whole words
    std::vector<DriveLanes> past_;    ///< at an earlier time, while one is looked at
    std::vector<char> letters_;       ///< of one signal, while one is looked at
};

}  // namespace tarnsim
