#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "Core/Components/Chip.h"
#include "Core/Components/EdgeDetector.h"
#include "Core/Values/ValueRecords.h"

namespace tarnsim {

// Three-state drivers, storage and selection that aren't a maker's chip but what chips are made of.

/// Lets `in` through to `out` while `_g` is low; floats while it is high, so that others can drive the net.
class ThreeStateBuf final : public Chip<ThreeStateBuf> {
public:
    static constexpr PartInfo info = {"ThreeStateBuf", "(delay=3)", kDelayDocumentation};
    using Chip::Chip;

    void evaluate(Time time) override;

private:
    InputPin in = inputPin("in");
    InputPin g = inputPin("_g");
    OutputPin out = outputPin("out");
};

/// The same for a bus of `size` bits, 1 to 255. The width is fixed when the part is made: a size that is applied later
/// is read, so that nonsense is reported, and changes nothing.
class BusBuffer final : public Chip<BusBuffer> {
public:
    static constexpr PartInfo info = {"BusBuffer", "(delay=10,size=8)",
                                      "<b>delay</b> The buffer delay in ns. Default is 10 ns\n"
                                      "<b>size</b> The buffer bit width. Default is 8."};

    /// Raises an Error for a size that no bus can have.
    BusBuffer(const std::string& name, const ParaMap& parameters);
    BusBuffer(const std::string& name, std::uint32_t delay, std::uint32_t size);

    void evaluate(Time time) override;
    void applyParameters() override;

private:
    std::uint32_t readSize() const;

    std::uint32_t size_;  ///< bits
    Port& in = input("in", size_);
    Port& out = output("out", size_);
    InputPin g = inputPin("_g");
};

/// A flip-flop that takes `D` over when `clk` rises, and floats while `_OE` is high. It is clocked all the same then.
class D_flip_flop final : public Chip<D_flip_flop> {
public:
    static constexpr PartInfo info = {"D_flip_flop", "(delay=10)", kDelayDocumentation};
    using Chip::Chip;

    void reset() override;
    void evaluate(Time time) override;

private:
    OutputPin Q = outputPin("Q");
    OutputPin notQ = outputPin("_Q");
    InputPin D = inputPin("D");
    InputPin clk = inputPin("clk");
    InputPin OE = inputPin("_OE");

    EdgeDetector edges_{-1};
    ValueRecords state_;  ///< the stored bit over time
};

/// Pulls one of four outputs low, the one that the two select bits name, while `x` is low. With the parameter `bus_io`
/// select bits and outputs are buses, `S` and `Y`; without it they are pins, `s0` and `s1`, `y0` to `y3`. Which of both
/// is fixed when the part is made.
class Demux1to4 final : public Chip<Demux1to4> {
public:
    static constexpr PartInfo info = {
        "Demux1to4", "(delay=10)",
        "<b>delay</b> The gate delay in ns.<p><b>bus_io</b> If set to 'true', 'yes' or '1', the IO will be bus-based "
        "instead of pin-based. I.e.there will be one 2-bit bus input and a 4-bit bus output,instead of two invidual "
        "input pins, and four individual output pins."};

    Demux1to4(const std::string& name, const ParaMap& parameters);
    Demux1to4(const std::string& name, std::uint32_t delay, bool busIo);

    void evaluate(Time time) override;

private:
    void makePorts(bool busIo);
    /// The more significant one first.
    std::array<char, 2> selectBits(Time time) const;
    void write(std::string_view letters, Time time);

    InputPin x = inputPin("x");
    // With buses
    Port* S = nullptr;
    Port* Y = nullptr;
    // With pins
    std::array<Pin*, 4> y{};
    std::array<Pin*, 2> s{};
};

}  // namespace tarnsim
