#pragma once

#include <array>
#include <string>

#include "Core/Components/Chip.h"
#include "Core/Components/EdgeDetector.h"

namespace tarnsim {

// 74-series flip-flops. Delays in ns.

/// Two D flip-flops with preset (`_SD`) and clear (`_CD`), clocked by the rising edge. With both of these low both
/// outputs are high.
class SN74x74 final : public Chip<SN74x74> {
public:
    static constexpr PartInfo info = {"SN74x74", "(family=LS)", kFamilyDocumentation};

    SN74x74(const std::string& name, const ParaMap& parameters);
    using Chip::Chip;

    void reset() override;
    void evaluate(Time time) override;
    /// `delay`, or else the delay of `family`; without both it stays, at first as in LS. Raises an Error for a family
    /// that isn't made.
    void applyParameters() override;
    std::string getDescription() const override { return describeDelay(getDelay()); }

private:
    struct Half {
        SN74x74& chip;
        std::string number;
        InputPin SD = chip.inputPin("_SD" + number);
        InputPin CD = chip.inputPin("_CD" + number);
        InputPin CP = chip.inputPin("CP" + number);
        InputPin D = chip.inputPin("D" + number);
        OutputPin Q = chip.outputPin("Q" + number);
        OutputPin notQ = chip.outputPin("_Q" + number);

        void write(char q, char inverse, Time time);
    };
    void evaluate(Half& half, Time time);

    std::array<Half, 2> halves = {Half{*this, "1"}, Half{*this, "2"}};

    EdgeDetector edges_{-1};
};

/// Two J-K flip-flops with a preset each and a common clear, clocked by the falling edge of a common clock. A preset
/// against a clear makes both outputs undefined.
class DM74LS78A final : public Chip<DM74LS78A> {
public:
    static constexpr PartInfo info = {"DM74LS78A", "(delay=20)", kDelayDocumentation};
    using Chip::Chip;

    void reset() override;
    void evaluate(Time time) override;

private:
    struct Half {
        DM74LS78A& chip;
        std::string number;
        InputPin PRE = chip.inputPin("_" + number + "PRE");
        InputPin J = chip.inputPin(number + "J");
        InputPin K = chip.inputPin(number + "K");
        OutputPin Q = chip.outputPin(number + "Q");
        OutputPin notQ = chip.outputPin("_" + number + "Q");

        char q = 'U';   ///< the stored bit
        char nq = 'U';  ///< its inverse, stored beside it

        void store(char stored, char inverse);
        void clock(Time time);
        void evaluateCleared(Time time);
        void evaluateUncleared(bool isClocked, Time time);
    };

    InputPin CLR = inputPin("_CLR");
    InputPin CLK = inputPin("_CLK");
    std::array<Half, 2> halves = {Half{*this, "1"}, Half{*this, "2"}};

    EdgeDetector edges_{-1};
};

}  // namespace tarnsim
