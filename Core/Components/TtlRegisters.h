#pragma once

#include <array>
#include <string>
#include <vector>

#include "Core/Components/Chip.h"
#include "Core/Components/CircuitChip.h"
#include "Core/Components/Connectors.h"
#include "Core/Components/EdgeDetector.h"
#include "Core/Components/Primitives.h"

namespace tarnsim {

// 74-series registers, all clocked by the rising edge. Delays in ns.

/// Six D flip-flops with a common clear.
class SN74x174 final : public Chip<SN74x174> {
public:
    /// Neither family nor delay by default: then it's the delay of LS.
    static constexpr PartInfo info = {"SN74x174", "", kFamilyDocumentation};

    SN74x174(const std::string& name, const ParaMap& parameters);
    using Chip::Chip;

    void reset() override;
    void evaluate(Time time) override;
    /// `delay`, or else the delay of `family`; without both it stays, at first as in LS. Raises an Error for a family
    /// that isn't made.
    void applyParameters() override;
    std::string getDescription() const override { return describeDelay(getDelay()); }

private:
    struct Bit {
        SN74x174& chip;
        std::string number;
        Pin& Q = chip.outputPin(number + "Q");
        Pin& D = chip.inputPin(number + "D");
    };

    void setAll(char letter, Time time);

    Pin& CLR = inputPin("_CLR");
    Pin& CLK = inputPin("CLK");
    std::array<Bit, 6> bits = {Bit{*this, "1"}, Bit{*this, "2"}, Bit{*this, "3"},
                               Bit{*this, "4"}, Bit{*this, "5"}, Bit{*this, "6"}};

    EdgeDetector edges_{-1};
};

/// 8-bit register with clear.
class SN74x273 final : public Chip<SN74x273> {
public:
    static constexpr PartInfo info = {
        "SN74x273", "(family=LS)",
        "<b>family</b> Which device family variant to be considered. Supported values are only LS. It affects the "
        "timing behaviour.<p><b>delay</b> The gate delay in ns.<p>If both parameters are specified, the <b>delay</b> "
        "parameter overrides <b>family<b>"};

    SN74x273(const std::string& name, const ParaMap& parameters);
    using Chip::Chip;

    void reset() override;
    void evaluate(Time time) override;
    /// Sets the delay of LS, 27. Against its documentation a `delay` has no effect. Raises an Error for any other
    /// family.
    void applyParameters() override;
    std::string getDescription() const override { return describeDelay(getDelay()); }

private:
    Pin& CLR = inputPin("_CLR");
    Pin& clk = inputPin("clk");
    Port& D = input("D", 8);
    Port& Q = output("Q", 8);

    Value state_{8};
    EdgeDetector edges_{0};
};

/// 8-bit register that floats while `_OE` is high, and is clocked all the same then.
class DM74x574 final : public CircuitChip<DM74x574> {
public:
    static constexpr PartInfo info = {"DM74x574", "(delay=28,family=LS)", kFamilyDocumentation};
    static constexpr std::uint32_t kDelay = 28;

    DM74x574(const std::string& name, const ParaMap& parameters);
    using CircuitChip::CircuitChip;

    void reset() override;
    void evaluate(Time time) override;
    /// `delay`, or else the delay of `family`. As a delay is among the defaults, a family in a file never decides; but
    /// one that isn't made is an Error all the same, which names the chip by its other prefix.
    void applyParameters() override;
    std::string getDescription() const override { return describeDelay(getDelay()); }

private:
    Pin& clk = inputPin("clk");
    Pin& OE = inputPin("_OE");
    Port& Q = output("Q", 8);
    Port& D = input("D", 8);

    Value state_{8};
    EdgeDetector edges_{0};
};

/// The same chip made of units: eight D_flip_flop between a Split and a Join. While `_OE` is high its `Q` reads U
/// instead of Z, since it is read through the net inside; for shared buses there is DM74x574.
class DM74LS374 final : public CircuitChip<DM74LS374> {
public:
    static constexpr PartInfo info = {"DM74LS374", "(delay=28)", kDelayDocumentation};
    static constexpr std::uint32_t kDelay = 28;

    DM74LS374(const std::string& name, const ParaMap& parameters);
    /// In ns, for the units too.
    DM74LS374(const std::string& name, std::uint32_t delay);

    /// The units are scheduled by their own inputs too; that both happens at one time changes nothing.
    void evaluate(Time time) override;
    void setDelay(std::uint32_t delay) override;

private:
    static Connector::Declarations bitDeclarations();
    void wire();

    Pin& clk = inputPin("clk");
    Pin& OE = inputPin("_OE");
    Port& Q = output("Q", 8);
    Port& D = input("D", 8);

    Split& split_ = addPart<Split>("373split", 8U, bitDeclarations());
    Join& join_ = addPart<Join>("373join", 8U, bitDeclarations());
    std::vector<D_flip_flop*> flipFlops_;  ///< not owned here
};

}  // namespace tarnsim
