#pragma once

#include <cstdint>

#include "Core/Simulation/Port.h"
#include "Core/Values/Time.h"

namespace tarnsim {

/// A clock at two times. Only the exact pair of levels is an edge: what comes from or goes to U, Z or X is none.
struct ClockStep {
    char before;
    char now;

    bool isRising() const { return before == 'L' && now == 'H'; }
    bool isFalling() const { return before == 'H' && now == 'L'; }
    bool isDefined() const { return isLevel(before) && isLevel(now); }
};

/// Finds the edges of a clocked part's clock: it compares what the part's last evaluation saw of it with what the
/// present one sees. So it needs no state but the time of the last evaluation; levels come from the pin's past.
class EdgeDetector {
public:
    /// What counts as the last evaluation until there is one. Before time 0 pins read U, at 0 they may have a level.
    explicit EdgeDetector(Time lastEvaluation) : lastEvaluation_(lastEvaluation) {}

    /// For an evaluation at `time` of a part with `delay` ns. The clock is a Pin, or one that is held as an InputPin.
    template <class ClockPin>
    ClockStep step(const ClockPin& clock, Time time, std::uint32_t delay) const {
        return {clock.level(earlier(lastEvaluation_, delay)), clock.level(earlier(time, delay))};
    }

    /// Ends an evaluation, or with the time that the constructor took, a reset.
    void evaluatedAt(Time time) { lastEvaluation_ = time; }

private:
    Time lastEvaluation_;
};

}  // namespace tarnsim
