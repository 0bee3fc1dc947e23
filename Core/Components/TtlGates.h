#pragma once

#include <array>
#include <string>
#include <string_view>

#include "Core/Components/Chip.h"
#include "Core/Components/GateArray.h"
#include "Core/Components/Gates.h"
#include "Core/Components/Primitives.h"

namespace tarnsim {

// 74LS gates and buffers. Delays are the data sheets' greatest for LS, in ns.

/// Four NANDs.
class DM74LS00 final : public GateArray<DM74LS00, Nand> {
public:
    static constexpr PartInfo info = {"DM74LS00", "(delay=10)", kDelayDocumentation};
    static constexpr std::size_t gateCount = 4;
    static constexpr std::array<std::string_view, 3> pins = {"A#", "B#", "Y#"};
    using GateArray::GateArray;
};

/// Six inverters.
class DM74LS04 final : public GateArray<DM74LS04, Inv> {
public:
    static constexpr PartInfo info = {"DM74LS04", "(delay=10)", kDelayDocumentation};
    static constexpr std::size_t gateCount = 6;
    static constexpr std::array<std::string_view, 2> pins = {"A#", "Y#"};
    using GateArray::GateArray;
};

/// Four ANDs.
class DM74LS08 final : public GateArray<DM74LS08, And> {
public:
    static constexpr PartInfo info = {"DM74LS08", "(delay=13)", kDelayDocumentation};
    static constexpr std::size_t gateCount = 4;
    static constexpr std::array<std::string_view, 3> pins = {"A#", "B#", "Y#"};
    using GateArray::GateArray;
};

/// Four ORs.
class DM74LS32 final : public GateArray<DM74LS32, Or> {
public:
    static constexpr PartInfo info = {"DM74LS32", "(delay=14)", kDelayDocumentation};
    static constexpr std::size_t gateCount = 4;
    static constexpr std::array<std::string_view, 3> pins = {"A#", "B#", "Y#"};

    DM74LS32(const std::string& name, const ParaMap& parameters) : GateArray(name, parameters) {}
    /// The gates keep the 3 ns of an Or, whatever `delay` says, until parameters are applied.
    DM74LS32(const std::string& name, std::uint32_t delay) : GateArray(name, delay) { setGateDelay(3); }
};

/// Four three-state buffers; `C#` high floats `Y#`.
class DM74LS125 final : public GateArray<DM74LS125, ThreeStateBuf> {
public:
    static constexpr PartInfo info = {"DM74LS125", "(delay=25)", kDelayDocumentation};
    static constexpr std::size_t gateCount = 4;
    static constexpr std::array<std::string_view, 3> pins = {"A#", "C#", "Y#"};
    using GateArray::GateArray;
};

/// Two four-bit buffers, each floating while its `_G` is high.
class DM74LS244 final : public Chip<DM74LS244> {
public:
    static constexpr PartInfo info = {"DM74LS244", "(delay=33)", kDelayDocumentation};
    using Chip::Chip;

    void evaluate(Time time) override;

private:
    struct Half {
        DM74LS244& chip;
        std::string number;
        Port& A = chip.input(number + "A", 4);
        Port& Y = chip.output(number + "Y", 4);
        Pin& G = chip.inputPin(number + "_G");
    };
    std::array<Half, 2> halves = {Half{*this, "1"}, Half{*this, "2"}};
};

}  // namespace tarnsim
