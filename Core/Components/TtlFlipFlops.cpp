#include "Core/Components/TtlFlipFlops.h"

#include "Core/Components/PartParameters.h"

namespace tarnsim {

namespace {

/// The other level; U for what is none.
char opposite(char letter) {
    switch (letter) {
        case 'H': return 'L';
        case 'L': return 'H';
        default: return 'U';
    }
}

}  // namespace

SN74x74::SN74x74(const std::string& name, const ParaMap& parameters) : Chip(name, parameters, ApplyLater()) {
    setDelay(35);
    SN74x74::applyParameters();
}

void SN74x74::applyParameters() {
    static constexpr FamilyDelay kFamilies[] = {{"F", 11}, {"AS", 11}, {"ALS", 18}, {"LS", 35}};
    setDelay(
        familyDelay(getParameters(), kFamilies, "Error: unknown device family of SN74x74: '%s'.").value_or(getDelay()));
    Chip::applyParameters();
}

void SN74x74::reset() {
    edges_.evaluatedAt(-1);
    Chip::reset();
}

void SN74x74::evaluate(Time time) {
    for (Half& half : halves) evaluate(half, time);
    edges_.evaluatedAt(time);
}

void SN74x74::evaluate(Half& half, Time time) {
    const Time then = inputTime(time);
    const char cd = half.CD.level(then);
    const char sd = half.SD.level(then);
    if (cd == 'L' && sd == 'H') return half.write('L', 'H', time);
    if (cd == 'H' && sd == 'L') return half.write('H', 'L', time);
    if (cd == 'L' && sd == 'L') return half.write('H', 'H', time);
    if (cd == 'H' && sd == 'H') {
        const ClockStep clock = edges_.step(half.CP, time, getDelay());
        if (!clock.isDefined()) return half.write('U', 'U', time);
        if (!clock.isRising()) return;
        const char d = half.D.level(then);
        return half.write(d, opposite(d), time);
    }
    half.write('U', 'U', time);
}

void SN74x74::Half::write(char q, char inverse, Time time) {
    Q.setLevel(q, time);
    notQ.setLevel(inverse, time);
}

void DM74LS78A::reset() {
    for (Half& half : halves) half.store('U', 'U');
    edges_.evaluatedAt(-1);
    Chip::reset();
}

void DM74LS78A::evaluate(Time time) {
    const Time then = inputTime(time);
    const char clr = CLR.level(then);
    const bool isFalling = edges_.step(CLK, time, getDelay()).isFalling();
    for (Half& half : halves) {
        switch (clr) {
            case 'H': half.evaluateUncleared(isFalling, then); break;
            case 'L': half.evaluateCleared(then); break;
            default: half.store('U', 'U'); break;
        }
        half.Q.setLevel(half.q, time);
        half.notQ.setLevel(half.nq, time);
    }
    edges_.evaluatedAt(time);
}

void DM74LS78A::Half::store(char stored, char inverse) {
    q = stored;
    nq = inverse;
}

void DM74LS78A::Half::evaluateUncleared(bool isClocked, Time time) {
    switch (PRE.level(time)) {
        case 'H':
            if (isClocked) clock(time);
            return;
        case 'L': return store('H', 'L');
        default: return store('U', 'U');
    }
}

void DM74LS78A::Half::evaluateCleared(Time time) {
    if (PRE.level(time) == 'H') {
        store('L', 'H');
    } else {
        store('U', 'U');
    }
}

void DM74LS78A::Half::clock(Time time) {
    const char j = J.level(time);
    const char k = K.level(time);
    if (!isLevel(j) || !isLevel(k)) return store('U', 'U');
    if (j == 'H' && k == 'H') return store(opposite(q), opposite(nq));
    if (j == 'H') return store('H', 'L');
    if (k == 'H') return store('L', 'H');
}

}  // namespace tarnsim
