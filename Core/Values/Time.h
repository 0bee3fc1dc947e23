#pragma once

#include <cstdint>
#include <limits>

namespace tarnsim {

/// A point in simulated time or a distance between two, in nanoseconds. There is no smaller step.
using Time = std::int32_t;

inline constexpr Time kEarliestTime = std::numeric_limits<Time>::min();

inline constexpr Time kLatestTime = std::numeric_limits<Time>::max();

/// `time` plus a delay in ns, in 64 bits: what lies beyond kLatestTime can be seen and never wraps into the past.
constexpr std::int64_t later(Time time, std::uint32_t delay) {
    return std::int64_t{time} + delay;
}

/// `time` minus a delay in ns; kEarliestTime if that lies before it, so it never wraps into the future.
constexpr Time earlier(Time time, std::uint32_t delay) {
    const std::int64_t result = std::int64_t{time} - delay;
    return result < kEarliestTime ? kEarliestTime : static_cast<Time>(result);
}

}  // namespace tarnsim
