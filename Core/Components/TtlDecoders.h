#pragma once

#include <array>
#include <string>
#include <string_view>

#include "Core/Components/Chip.h"
#include "Core/Components/CircuitChip.h"
#include "Core/Components/Connectors.h"
#include "Core/Components/GateArray.h"
#include "Core/Components/Primitives.h"

namespace tarnsim {

// 74LS decoders. Outputs are active low. Delays are the data sheets' greatest for LS, in ns.

/// 3-to-8 decoder with an address latch: `_GL` low lets the address through, high keeps the one it had before.
class DM74LS137 final : public Chip<DM74LS137> {
public:
    static constexpr PartInfo info = {"DM74LS137", "(delay=38)", kDelayDocumentation};
    using Chip::Chip;

    void evaluate(Time time) override;

private:
    std::size_t address(Time time) const;

    Pin& A = inputPin("A");
    Pin& B = inputPin("B");
    Pin& C = inputPin("C");
    Pin& GL = inputPin("_GL");
    Pin& G1 = inputPin("G1");
    Pin& G2 = inputPin("_G2");
    Port& Y = output("Y", 8);
};

/// Two 2-to-4 decoders. Unlike on the package, the address and the outputs of a half are a bus each: enable `E#`,
/// address `A#`, outputs `O#`.
class DM74LS139 final : public GateArray<DM74LS139, Demux1to4, /*busIo=*/true> {
public:
    static constexpr PartInfo info = {"DM74LS139", "(delay=38)", kDelayDocumentation};
    static constexpr std::size_t gateCount = 2;
    static constexpr std::array<std::string_view, 3> pins = {"E#", "A#", "O#"};
    using GateArray::GateArray;
};

/// 4-to-16 decoder. The outputs are there twice, as the bus `Y` and as the pins `Y0` to `Y15`, which a Split inside
/// takes from it.
class DM74LS154 final : public CircuitChip<DM74LS154> {
public:
    static constexpr PartInfo info = {"DM74LS154", "(delay=23)", kDelayDocumentation};
    static constexpr std::uint32_t kDelay = 23;

    DM74LS154(const std::string& name, const ParaMap& parameters);
    DM74LS154(const std::string& name, std::uint32_t delay);
    /// The Split, whose pins stand in this list of ports too, dies before the list does.
    ~DM74LS154() override;

    void reset() override;
    void evaluate(Time time) override;

private:
    /// The constructors begin with a complete object, so that the destructor runs also when what follows fails.
    struct Unwired {};
    DM74LS154(const std::string& name, std::uint32_t delay, Unwired /*unused*/);
    void wire();

    Pin& A = inputPin("A");
    Pin& B = inputPin("B");
    Pin& C = inputPin("C");
    Pin& D = inputPin("D");
    Pin& G1 = inputPin("_G1");
    Pin& G2 = inputPin("_G2");
    Port& Y = output("Y", 16);

    Port& decoded_ = internalSignal(16);  ///< drives Y and the split from inside, as no circuit drives its own outputs
    Split& split_ = addPart<Split>("ysplit", 16U, pinDeclarations());

    static Connector::Declarations pinDeclarations();
};

}  // namespace tarnsim
