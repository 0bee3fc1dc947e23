#include "Core/Components/TtlCounters.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "Core/Support/TLog.h"

namespace tarnsim {

namespace {

/// `count` plus `difference`, going round at the ends.
Value counted(const Value& count, int difference) {
    const int modulus = 1 << count.width();
    Value next(count.width());
    next.setNumber((static_cast<int>(count.toNumber()) + difference + modulus) % modulus);
    return next;
}

}  // namespace

void DM74LS191::reset() {
    count_.clear();
    Chip::reset();
}

Value DM74LS191::nextCount(Time time) const {
    switch (downUp.level(inputTime(time))) {
        case 'L': return counted(count_.get(earlier(time, 1)), +1);
        case 'H': return counted(count_.get(earlier(time, 1)), -1);
        default: return Value("UUUU");
    }
}

void DM74LS191::evaluate(Time time) {
    const Time then = inputTime(time);
    const char cten = CTEN.level(then);
    const char clk = CLK.level(then);
    const char du = downUp.level(then);

    count_.set(count_.get(earlier(time, 1)), time);
    if (LOAD.level(then) == 'L') {
        count_.set(DCBA.get(then), time);
    } else if (cten == 'L' && CLK.level(earlier(then, 1)) == 'L' && clk == 'H') {
        count_.set(nextCount(time), time);
    }
    const Value count = count_.get(time);

    char maxMin = 'L';
    if (du == 'U' || count.contains('U')) {
        maxMin = 'U';
    } else if ((count == "HHHH" && du == 'L') || (count == "LLLL" && du == 'H')) {
        maxMin = 'H';
    }
    MAXMIN.setLevel(maxMin, time);

    char rco = 'H';
    if (cten == 'U' || clk == 'U' || maxMin == 'U') {
        rco = 'U';
    } else if (clk == 'L' && cten == 'L' && maxMin == 'H') {
        rco = 'L';
    }
    RCO.setLevel(rco, time);

    QDCBA.set(count, time);
}

void SN74AS867::reset() {
    edges_.evaluatedAt(0);
    count_.clear();
    Chip::reset();
}

void SN74AS867::evaluate(Time time) {
    const Time then = inputTime(time);
    const ClockStep clock = edges_.step(CLK, time, getDelay());
    edges_.evaluatedAt(time);
    const char s0 = S0.level(then);
    const char s1 = S1.level(then);
    const char ent = ENT.level(then);
    const char enp = ENP.level(then);

    if (!clock.isDefined() || !std::ranges::all_of(std::array{s0, s1, ent, enp}, isLevel)) {
        const TLog line("867: some input is undefined at t=%d/it=%d: clk0=%c, clk1=%c, s0=%c, s1=%c, _ent=%c, _enp=%c",
                        time, then, clock.before, clock.now, s0, s1, ent, enp);
        count_.set(Value("UUUUUUUU"), time);
        RCO.setLevel('U', time);
    } else if (s1 == 'L' && s0 == 'L') {
        count_.set(Value("LLLLLLLL"), time);
        RCO.setLevel('H', time);
    } else {
        if (clock.isRising()) clockMode(s1, s0, ent == 'L' && enp == 'L', time);
        RCO.setLevel(carry(s1, s0, time), time);
    }
    QHA.set(count_.get(time), time);
}

void SN74AS867::clockMode(char s1, char s0, bool isEnabled, Time time) {
    if (s0 == 'L') return count_.set(HA.get(inputTime(time)), time);
    if (!isEnabled) return;
    if (s1 == 'L') {
        step(-1, "decrement", time);
    } else {
        step(+1, "increment", time);
    }
}

void SN74AS867::step(int difference, const char* word, Time time) {
    const Value count = count_.get(earlier(time, 1));
    if (count.isDefined()) return count_.set(counted(count, difference), time);
    std::fprintf(
        stderr,
        "***WARNING: Evaluation error at time=%d, in component '%s' (SN74AS867): Trying to %s internal unknown "
        "value '%s'.\n",
        time, getName().c_str(), word, count.c_str());
}

/// The terminal count is decoded from the mode; the enables have no part in it.
char SN74AS867::carry(char s1, char s0, Time time) const {
    const Value count = count_.get(time);
    if (!count.isDefined()) return 'U';
    const bool isLast = s0 == 'H' && (s1 == 'L' ? count == "LLLLLLLL" : count == "HHHHHHHH");
    return isLast ? 'L' : 'H';
}

}  // namespace tarnsim
