#include "Core/Components/Connectors.h"

#include <algorithm>

#include "Core/Components/PartParameters.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

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
        std::vector<std::uint8_t> places;
        for (std::size_t i = bits->size(); i-- > 0;) {
            places.push_back(static_cast<std::uint8_t>(static_cast<std::int32_t>(size) - 1 - bits->bitAt(i)));
        }
        mappings_.push_back({port, std::move(bits), std::move(places)});
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
    const std::uint32_t size = out->width();
    Letters joined;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    Letters part;    // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    std::fill_n(joined.begin(), size, kUndefinedBit);
    for (const Mapping& mapping : mappings()) {
        if (mapping.takesAll()) {
            const Value all = mapping.port->get(time);
            requireFit(mapping, all.width());
            std::ranges::copy(all.letters(), joined.begin() + (size - all.width()));
            continue;
        }
        mapping.port->lettersAt(time, part.data());
        for (std::size_t i = 0; i < mapping.places.size(); ++i) joined[mapping.places[i]] = part[i];
    }
    out->setLetters({joined.data(), size}, time);
}

void Join::requireFit(const Mapping& mapping, std::uint32_t width) const {
    if (width <= out->width()) return;
    throw Error("Error: Join '%s': %u bits arrive at port '%s', but 'out' has only %u.", getName().c_str(), width,
                mapping.port->getName().c_str(), out->width());
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
    Letters whole;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    Letters part;   // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    in->lettersAt(time, whole.data());
    for (const Mapping& mapping : mappings()) {
        if (mapping.takesAll()) {
            showAll(*mapping.port, {whole.data(), in->width()}, time);
            continue;
        }
        const std::size_t size = mapping.places.size();
        if (size == 1) {
            mapping.port->setLetter(whole[mapping.places.front()], time);
            continue;
        }
        for (std::size_t i = 0; i < size; ++i) part[i] = whole[mapping.places[i]];
        mapping.port->setLetters({part.data(), size}, time);
    }
}

void Split::showAll(Port& port, std::string_view letters, Time time) const {
    if (port.width() == 0) return;  // it has nothing to show
    const Value whole = Value::ofLetters(letters);
    Value part(port.width());
    for (std::size_t i = 0; i < part.width(); ++i) part[i] = whole[i];
    port.set(part, time);
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
