#include "Core/Components/TtlArithmetic.h"

#include "Core/Components/PartParameters.h"

namespace tarnsim {

void DM74LS283::evaluate(Time time) {
    const Time then = inputTime(time);
    const Value a = A.get(then);
    const Value b = B.get(then);
    const Value carry = cin.get(then);
    Value sum(4);
    char carryOut = 'U';
    if (a.isDefined() && b.isDefined() && carry.isDefined()) {
        const std::uint32_t number = a.toNumber() + b.toNumber() + carry.toNumber();
        sum.setNumber(static_cast<std::int32_t>(number & 15U));
        carryOut = number > 15 ? 'H' : 'L';
    }
    C.set(sum, time);
    cout.setLevel(carryOut, time);
}

SN74x688::SN74x688(const std::string& name, const ParaMap& parameters) : Chip(name, parameters, ApplyLater()) {
    SN74x688::applyParameters();
    Chip::applyParameters();
}

void SN74x688::applyParameters() {
    static constexpr FamilyDelay kFamilies[] = {{"ALS", 22}, {"LS", 25}};
    setDelay(familyDelay(getParameters(), kFamilies, "Error: unknown/unsupported device family of SN74x688: '%s'.")
                 .value_or(25));
}

void SN74x688::evaluate(Time time) {
    const Time then = inputTime(time);
    const auto compare = [&] {
        const Value p = P.get(then);
        const Value q = Q.get(then);
        if (!p.isDefined() || !q.isDefined()) return 'U';
        return p.toNumber() == q.toNumber() ? 'L' : 'H';
    };
    switch (G.level(then)) {
        case 'H': return isEqual.setLevel('H', time);
        case 'L': return isEqual.setLevel(compare(), time);
        default: return isEqual.setLevel('U', time);
    }
}

}  // namespace tarnsim
