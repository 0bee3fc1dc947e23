#pragma once

#include "Core/Components/Chip.h"
#include "Core/Components/EdgeDetector.h"

namespace tarnsim {

// 74-series counters. Delays in ns.

/// Presettable 4-bit up/down counter, counting on the rising edge while `_CTEN` is low, up while `D_U` is low. A low
/// `_LOAD` takes `DCBA` over at once and comes before the clock.
///
/// Counting from a value with an undefined bit raises std::domain_error: the first load must precede the first count.
class DM74LS191 final : public Chip<DM74LS191> {
public:
    static constexpr PartInfo info = {"DM74LS191", "(delay=52)", kDelayDocumentation};
    using Chip::Chip;

    void reset() override;
    void evaluate(Time time) override;

private:
    Value nextCount(Time time) const;

    Pin& CTEN = inputPin("_CTEN");
    Pin& downUp = inputPin("D_U");
    Pin& CLK = inputPin("CLK");
    Pin& LOAD = inputPin("_LOAD");
    Pin& MAXMIN = outputPin("MAXMIN");
    Pin& RCO = outputPin("_RCO");
    Port& DCBA = input("DCBA", 4);
    Port& QDCBA = output("QDCBA", 4);

    Port& count_ = internalSignal(4);
};

/// 8-bit synchronous up/down counter. The mode `S1` `S0`: LL clear, at once; LH count down; HL load `HA`; HH count up;
/// the latter three on the rising edge. Counting wants `_ENT` and `_ENP` low.
///
/// Undefined clock and control inputs make the count undefined and are reported through TLog; counting from an
/// undefined count is reported on the error stream and leaves it as it is.
class SN74AS867 final : public Chip<SN74AS867> {
public:
    static constexpr PartInfo info = {"SN74AS867", "(delay=16)", kDelayDocumentation};
    using Chip::Chip;

    void reset() override;
    void evaluate(Time time) override;

private:
    void clockMode(char s1, char s0, bool isEnabled, Time time);
    void step(int difference, const char* word, Time time);
    char carry(char s1, char s0, Time time) const;

    Pin& S0 = inputPin("S0");
    Pin& S1 = inputPin("S1");
    Pin& ENT = inputPin("_ENT");
    Pin& ENP = inputPin("_ENP");
    Pin& CLK = inputPin("CLK");
    Pin& RCO = outputPin("_RCO");
    Port& HA = input("HA", 8);
    Port& QHA = output("QHA", 8);

    Port& count_ = internalSignal(8);
    EdgeDetector edges_{-1};
};

}  // namespace tarnsim
