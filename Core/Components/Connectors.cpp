#include "Core/Components/Connectors.h"

#include <algorithm>
#include <array>

#include "Core/Components/PartParameters.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

bool isAscending(const std::vector<std::int32_t>& bits) {
    return std::ranges::adjacent_find(bits, [](std::int32_t bit, std::int32_t next) { return next != bit + 1; }) ==
           bits.end();
}

}  // namespace

Connector::Connector(const PartInfo& info, const std::string& name, const ParaMap& parameters)
    : Component(std::string(info.typeName), name, parameters) {}

ParaMap Connector::parametersOf(const std::string& sizeKey, std::uint32_t size, const Declarations& ports) {
    ParaMap parameters;
    parameters[sizeKey] = std::to_string(size);
    for (const auto& [port, bits] : ports) parameters[port] = bits;
    return parameters;
}

std::uint32_t Connector::requireSize(const char* sizeKey, const char* message) const {
    if (!getParameters().has(sizeKey)) throw Error(std::string(message));
    std::uint32_t size = 0;
    getParameters().get(sizeKey, &size);
    return checkedSize(*this, sizeKey, size);
}

void Connector::declarePorts(const std::string& sizeKey, std::uint32_t size, Direction direction) {
    for (const auto& [name, text] : getParameters().map()) {
        if (name == sizeKey) continue;
        if (PinSpec::maxBitOf(text) >= static_cast<std::int32_t>(size)) {
            throw Error("Port '%s' (%s) is too big to fit into size %d.", name.c_str(), text.c_str(),
                        static_cast<int>(size));
        }
        auto bits = std::make_unique<const PinSpec>(text);
        if (bits->size() > kMaxValueWidth) {
            throw Error("Error: %s '%s': port '%s' has %zu bits, but %u is the limit.", getType().c_str(),
                        getName().c_str(), name.c_str(), bits->size(), kMaxValueWidth);
        }
        Port* port = createPort(static_cast<std::uint32_t>(bits->size()), direction, name);
        const bool isRun = isAscending(bits->getBits());
        mappings_.push_back({port, std::move(bits), isRun});
    }
}

Join::Join(const std::string& name, const ParaMap& parameters) : Connector(info, name, parameters) {
    const std::uint32_t size = requireSize("out", "A Join unit needs an 'out' parameter.");
    out = &output("out", size);
    declarePorts("out", size, Direction::Input);
    for (const Mapping& mapping : mappings()) mapping.port->ztrOff();
    refuseOverlaps();
}

Join::Join(const std::string& name, std::uint32_t size, const Declarations& ports)
    : Join(name, parametersOf("out", size, ports)) {}

void Join::refuseOverlaps() const {
    for (const Mapping& first : mappings()) {
        for (const Mapping& second : mappings()) {
            if (&first == &second) continue;
            for (const std::int32_t bit : first.bits->getBits()) {
                if (!second.bits->contains(bit)) continue;
                throw Error("BusJoin Overlap. Ports '%s' and '%s' both drive pin %d.", first.port->getName().c_str(),
                            second.port->getName().c_str(), bit);
            }
        }
    }
}

void Join::inputChanged(Port* /*port*/, const Value& /*oldValue*/, const Value& /*newValue*/, Time time) {
    schedule(this, time);
}

void Join::evaluate(Time time) {
    Value joined(out->width());
    for (const Mapping& mapping : mappings()) {
        const Value part = mapping.port->get(time);
        if (part.width() > joined.width()) {  // only a port without any text takes what comes
            throw Error("Error: Join '%s': %u bits arrive at port '%s', but 'out' has only %u.", getName().c_str(),
                        part.width(), mapping.port->getName().c_str(), joined.width());
        }
        for (std::size_t i = 0; i < part.width(); ++i) joined[mapping.busBit(i)] = part[i];
    }
    out->set(joined, time);
}

Split::Split(const std::string& name, const ParaMap& parameters) : Connector(info, name, parameters) {
    const std::uint32_t size = requireSize("in", "A Split unit needs an 'in' parameter.");
    in = &input("in", size);
    declarePorts("in", size, Direction::Output);
}

Split::Split(const std::string& name, std::uint32_t size, const Declarations& ports)
    : Split(name, parametersOf("in", size, ports)) {}

void Split::inputChanged(Port* /*port*/, const Value& /*oldValue*/, const Value& /*newValue*/, Time time) {
    schedule(this, time);
}

void Split::evaluate(Time time) {
    std::array<char, kMaxValueWidth> whole;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    std::array<char, kMaxValueWidth> part;   // NOLINT(cppcoreguidelines-pro-type-member-init): the same
    in->lettersAt(time, whole.data());
    const std::size_t last = in->width() - std::size_t{1};
    for (const Mapping& mapping : mappings()) {
        const std::size_t width = mapping.port->width();
        if (width == 0) continue;  // declared without any text: it has nothing to show
        if (mapping.isRun) {
            mapping.port->setLetters({&whole[last - mapping.busBit(width - 1)], width}, time);
        } else {
            for (std::size_t i = 0; i < width; ++i) part[width - 1 - i] = whole[last - mapping.busBit(i)];
            mapping.port->setLetters({part.data(), width}, time);
        }
    }
}

Splice::Splice(const std::string& name, const ParaMap& parameters) : Connector(info, name, parameters) {
    const std::uint32_t size = requireSize("size", "A Splice unit needs a 'size' parameter.");
    internalNet_ = std::make_unique<Net>(format("Splice %s", name.c_str()), size);
    declarePorts("size", size, Direction::Inout);
    for (const Mapping& mapping : mappings()) {
        internalNet_->addPort(mapping.port, mapping.bits.get(), kInside);
        mapping.port->ztrOff();
    }
}

Splice::Splice(const std::string& name, std::uint32_t size, const Declarations& ports)
    : Splice(name, parametersOf("size", size, ports)) {}

void Splice::reset() {
    internalNet_->clear();
    Component::reset();
}

}  // namespace tarnsim
