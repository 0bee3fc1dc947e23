#pragma once

#include <string>

#include "Core/Components/Chip.h"

namespace tarnsim {

// 74-series arithmetic. Delays in ns.

/// 4-bit full adder: `C` is the sum of `A`, `B` and the carry `cin`, `cout` its carry. Any undefined input bit makes
/// all outputs undefined.
class DM74LS283 final : public Chip<DM74LS283> {
public:
    static constexpr PartInfo info = {"DM74LS283", "(delay=24)",
                                      "<b>delay</b> The gate delay in ns. Default is 24 ns."};
    using Chip::Chip;

    void evaluate(Time time) override;

private:
    Port& A = input("A", 4);
    Port& B = input("B", 4);
    Port& C = output("C", 4);
    Pin& cin = inputPin("cin");
    Pin& cout = outputPin("cout");
};

/// 8-bit identity comparator: while `_G` is low, `_P=Q` is low when both numbers are equal.
class SN74x688 final : public Chip<SN74x688> {
public:
    static constexpr PartInfo info = {
        "SN74x688", "(family=LS)",
        "<b>family</b> Which device family variant to be considered. Supported values are: LS (25ns) and ALS (22 ns). "
        "It affects the timing behaviour.<p><b>delay</b> The gate delay in ns.<p>If both parameters are specified, the "
        "<b>delay</b> parameter overrides <b>family<b>"};

    /// Here alone a `delay` among the parameters counts.
    SN74x688(const std::string& name, const ParaMap& parameters);
    using Chip::Chip;

    void evaluate(Time time) override;
    /// Takes the delay of `family`, LS without one. Raises an Error for a family that the chip isn't made in. Against
    /// its documentation `delay` isn't looked at, so for a unit of a file, whose parameters are applied after it's
    /// made, `delay` has no effect.
    void applyParameters() override;
    std::string getDescription() const override { return describeDelay(getDelay()); }

private:
    Pin& G = inputPin("_G");
    Pin& isEqual = outputPin("_P=Q");
    Port& P = input("P", 8);
    Port& Q = input("Q", 8);
};

}  // namespace tarnsim
