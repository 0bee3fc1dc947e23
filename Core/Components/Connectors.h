#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Core/Components/Component.h"
#include "Core/Components/PartInfo.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/PinSpec.h"

namespace tarnsim {

/// What the parts that move bits between buses have in common: one parameter gives the width of a bus in bits (1 to
/// 255), and every other one declares a port, by its name and the bits of that bus (a PinSpec) that are the port's. A
/// port is as wide as its bits are many; one without any text names all bits as they come and has no width until a
/// value arrives there.
///
/// The ports stand when the part is made; parameters that change later have no effect. No part here has a delay.
/// Everything wrong with the parameters is an Error at once.
class Connector : public Component {
public:
    /// Names of ports with their bits.
    using Declarations = std::vector<std::pair<std::string, std::string>>;

    Connector(const Connector&) = delete;
    Connector& operator=(const Connector&) = delete;

    void applyParameters() override {}

protected:
    /// A declared port.
    struct Mapping {
        Port* port;
        std::unique_ptr<const PinSpec> bits;  ///< bit i of the port is this bit of the bus
        std::vector<std::uint8_t> places;     ///< the same by letters: letter i is this letter of the bus

        /// Declared without any text: all bits as they come.
        bool takesAll() const { return places.empty(); }
    };
    using Letters = std::array<char, kMaxValueWidth>;

    Connector(const PartInfo& info, const std::string& name, const ParaMap& parameters);

    /// The parameters that declare the same: a part that is made by calls can be written to a file like any other.
    static ParaMap parametersOf(const std::string& sizeKey, std::uint32_t size, const Declarations& ports);

    /// The width of the bus. `message` is the Error's text if there is no such parameter.
    std::uint32_t requireSize(const char* sizeKey, const char* message) const;

    /// Makes the declared ports, in the order of their names.
    void declarePorts(const std::string& sizeKey, std::uint32_t size, Direction direction);
    const std::vector<Mapping>& mappings() const { return mappings_; }

private:
    std::vector<Mapping> mappings_;
};

/// Puts the bits of several inputs together to the bus `out`. Bits that no input covers stay `U`; a `Z` on an input
/// stays `Z`, so the drivers of a shared bus can be joined.
class Join final : public Connector {
public:
    static constexpr PartInfo info = {
        "Join", "",
        "The Join component requires an <b>out</b> parameter specifying the size of the output port. It also requires "
        "at least one parameter describing the input ports comprising the output. The name of the input parameter can "
        "be arbitrary (not 'out' of course), but the value must follow the following format: "
        "from[:to]?[,from[:to]?]*.<p><i>from</i> indicates the index of the first bit to be included, and <i>to</i> "
        "indicates the index of the last bit to be included.<p>It is legal to omit the colon and the <i>to</i> "
        "index.<p>There may be more than one such range specified, which then would be separated by semi-colons.<p>The "
        "bit index refers to where the input bits will be placed into the output port. There cannot be overlap between "
        "to destination bits, and bits not referred to in the output will be left uninitialized. "
        "The bit width of the input port will be deduced by the "
        "specification.<p><b>Examples:</b>"
        "<p>3   - A single bit input that will be mapped to bit #3 in the output."
        "<p>3:0 - A four bit input that will be mapped to bits 3, 2, 1 and 0 in the output."
        "<p>0:3 - A four bit input mapped to 0, 1, 2, 3: i.e. in <b>bit reversed</b> order."
        "<p>7;3:1 - Four bits mapped to bits 7, 3, 2 and 1<p>7;3,2 - Three bits mapped to bits 7, 3 and 2."};

    Join(const std::string& name, const ParaMap& parameters);
    Join(const std::string& name, std::uint32_t size, const Declarations& ports);

    void evaluate(Time time) override;
    /// At the very time of the change, whatever changed.
    void inputChanged(Port* port, const Value& oldValue, const Value& newValue, Time time) override;
    Response responseTo(const Port& /*port*/) const override { return {Response::Kind::Event}; }

private:
    void refuseOverlaps() const;
    void requireFit(const Mapping& mapping, std::uint32_t width) const;

    Port* out;
};

/// Copies bits of the bus `in` to several outputs. A bit can go to any number of them.
class Split final : public Connector {
public:
    static constexpr PartInfo info = {
        "Split", "",
        "The Split component requires an <b>in</b> parameter specifying the size of the input port. It also requires "
        "at least one parameter describing the output port. The name of the output port parameter can be arbitrary "
        "(not 'in' of course), but the value must follow the following format: from[:to]?[,from[:to]?]*.<p><i>from</i> "
        "indicates the index of the first bit to be included, and <i>to</i> indicates the index of the last bit to be "
        "included.<p>It is legal to omit the colon and the <i>to</i> index.<p>There may be more than one such range "
        "specified, which then would be separated by semi-colons.<p>The bit index refers to where the output bits "
        "taken from in the input port. There can be overlap between to source bits, i.e. copying a input bit to "
        "multiple destinations is allowed. "
        "The bit width of the output port will be deduced by the "
        "specification. <p><b>Examples:</b>"
        "<p>3   - A single bit output that will be generated from bit #3 in the input."
        "<p>3:0 - A four bit output that will be taken form bits 3, 2, 1 and 0 in the input."
        "<p>0:3 - A four bit output generated from bits 0, 1, 2, 3: i.e. in <b>bit reversed</b> order."
        "<p>7;3:1 - Four bits mapped from bits 7, 3, 2 and 1<p>7;3,2 - Three bits mapped from bits 7, 3 and 2."};

    Split(const std::string& name, const ParaMap& parameters);
    Split(const std::string& name, std::uint32_t size, const Declarations& ports);

    void evaluate(Time time) override;
    /// At the very time of the change.
    void inputChanged(Port* port, const Value& oldValue, const Value& newValue, Time time) override;
    Response responseTo(const Port& /*port*/) const override { return {Response::Kind::Event}; }

private:
    void showAll(Port& port, std::string_view letters, Time time) const;

    Port* in;
};

/// Ties nets of unlike width together: a net on one of its Inout ports and a net on another one are the same wires
/// where their bits of the internal net are the same. It drives nothing and takes no time; whatever drives one of the
/// nets drives all.
class Splice final : public Connector {
public:
    static constexpr PartInfo info = {
        "Splice", "",
        "The Splice component makes it possible to connect Nets with different sizes, by using Inout ports (which do "
        "not themselves drive any net, merely connects them).<p>This is achieved by specifying how the bits of these "
        "ports are mapped to each other. <p>The mapping is based on the premise that there is an special, internal net "
        "that connects all the specified ports. This internal net consists of a contiguous set of bits from 0 to N-1, "
        "where N is the <b>size</b> of the internal net. This size must be specified using the <b>size</b> "
        "property.<p>Each attached port specifies how the bits of the port is mapped to this internal net.<p>The ports "
        "are specfied with a name, and an expression for how to map the bits to the internal net. The name of the port "
        "can be arbitrary (not 'size' of course), but the expression must follow the following format: "
        "from[:to]?[,from[:to]?]*.<p><i>from</i> indicates the index of the first bit to be included, and <i>to</i> "
        "indicates the index of the last bit to be included.<p>It is legal to omit the colon and the <i>to</i> "
        "index.<p>There may be more than one such range specified, which then would be separated by semi-colons.<p>The "
        "bit index refers to the bits of the internal net. There can be overlap between the bits of different ports, "
        "i.e. the nets attached to them are tied together on these bits. The bit width of the port will be deduced by "
        "the expression.<p><b>Examples:</b><p>3   - A single bit port that will be mapped to bit #3 of the internal "
        "net.<p>3:0 - A four bit port that will be mapped to bits 3, 2, 1 and 0 of the internal net.<p>0:3 - A four "
        "bit port mapped to 0, 1, 2, 3: i.e. in <b>bit reversed</b> order.<p>7;3:1 - Four bits mapped to bits 7, 3, 2 "
        "and 1<p>7;3,2 - Three bits mapped to bits 7, 3 and 2.<p><b>Port Examples</b>"
        "<p>Map a 8-bit port to two four bits buses:"
        "<table><tr><th>Property</th><th>Value</th></tr><tr><td>size</td><td>8</td></tr>"
        "<tr><td>byte</td><td>7:0</td></tr><tr><td>hi</td><td>7:4</td></tr><tr><td>lo</td><td>3:0</td></tr></table>"
        "<p>8-bit port reversal"
        "<table><tr><th>Property</th><th>Value</th></tr><tr><td>size</td><td>8</td></tr>"
        "<tr><td>normal</td><td>7:0</td></tr><tr><td>reverse</td><td>0:7</td></tr></table>"
        "<p>Pick A15 from a 16-bit address bus"
        "<table><tr><th>Property</th><th>Value</th></tr><tr><td>size</td><td>16</td></tr>"
        "<tr><td>A</td><td>15:0</td></tr><tr><td>a15</td><td>15</td></tr></table>"};

    Splice(const std::string& name, const ParaMap& parameters);
    Splice(const std::string& name, std::uint32_t size, const Declarations& ports);

    void reset() override;
    void evaluate(Time /*time*/) override {}

private:
    std::unique_ptr<Net> internalNet_;  ///< inside of all ports; "Splice" and the unit's name
};

}  // namespace tarnsim
