// Looking things up in a circuit by path, and the path of a thing.

#include <algorithm>

#include "Core/Circuit/Circuit.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

std::string joinPath(const std::vector<std::string>& names) {
    std::string path;
    for (const std::string& name : names) path += (&name == &names.front() ? "" : ".") + name;
    return path;
}

/// The first non-empty answer of the units that are circuits, with the unit's name in front.
template <class Search>
std::string searchCircuits(const Circuit& circuit, Search search) {
    for (const Component* child : circuit.getComponents()) {
        const Circuit* inner = child->asCircuit();
        if (inner == nullptr) continue;
        const std::string path = search(*inner);
        if (!path.empty()) return child->getName() + "." + path;
    }
    return "";
}

/// The path of the first port that `fits` in the circuit itself, then in its units one after the other.
template <class Condition>
std::string searchPort(const Circuit& circuit, Condition fits) {
    const auto findIn = [&](const Component& component) {
        const auto found = std::ranges::find_if(component.getPorts(), fits);
        return found == component.getPorts().end() ? nullptr : *found;
    };
    if (const Port* own = findIn(circuit)) return own->getName();
    for (const Component* child : circuit.getComponents()) {
        if (const Circuit* inner = child->asCircuit()) {
            const std::string path = searchPort(*inner, fits);
            if (!path.empty()) return child->getName() + "." + path;
        } else if (const Port* port = findIn(*child)) {
            return child->getName() + "." + port->getName();
        }
    }
    return "";
}

template <class Condition>
std::string searchNet(const Circuit& circuit, Condition fits) {
    const auto found = std::ranges::find_if(circuit.getNets(), fits);
    if (found != circuit.getNets().end()) return (*found)->getName();
    return searchCircuits(circuit, [&](const Circuit& inner) { return searchNet(inner, fits); });
}

}  // namespace

Circuit::SplitPath Circuit::splitPath(const std::string& text) {
    SplitPath path;
    std::size_t begin = 0;
    for (std::size_t dot = text.find('.'); dot != std::string::npos; dot = text.find('.', begin)) {
        path.units.push_back(text.substr(begin, dot - begin));
        begin = dot + 1;
    }
    path.leaf = text.substr(begin);
    return path;
}

const Component* Circuit::walk(std::string_view& path) const {
    const Component* reached = this;
    for (std::size_t dot = path.find('.'); dot != std::string_view::npos; dot = path.find('.')) {
        const Circuit* circuit = reached == nullptr ? nullptr : reached->asCircuit();
        reached = circuit == nullptr ? nullptr : circuit->children_.findFirst(path.substr(0, dot));
        path.remove_prefix(dot + 1);
    }
    return reached;
}

Port* Circuit::findPort(std::string_view path) const {
    const Component* owner = walk(path);
    return owner == nullptr ? nullptr : owner->Component::findPort(path);
}

Circuit* Circuit::findCircuit(const std::string& path) const {
    std::string_view leaf = path;
    const Component* owner = walk(leaf);
    const Circuit* circuit = owner == nullptr ? nullptr : owner->asCircuit();
    Component* found = circuit == nullptr ? nullptr : circuit->children_.findFirst(leaf);
    return found == nullptr ? nullptr : found->asCircuit();
}

Circuit::NetPath Circuit::resolveNetPath(const std::string& path) const {
    const SplitPath split = splitPath(path);
    std::string_view leaf = path;
    const Component* owner = walk(leaf);
    const Circuit* circuit = owner == nullptr ? nullptr : owner->asCircuit();
    return {joinPath(split.units), split.leaf, circuit, findNet(path)};
}

Net* Circuit::findNet(std::string_view path) const {
    const Component* owner = walk(path);
    const Circuit* circuit = owner == nullptr ? nullptr : owner->asCircuit();
    return circuit == nullptr ? nullptr : circuit->nets_.findLast(path);
}

Net* Circuit::requireNet(const std::string& path, const std::string& file, int line) const {
    const NetPath resolved = resolveNetPath(path);
    if (resolved.net != nullptr) return resolved.net;
    std::string message =
        file.empty() ? format("Error: cannot find net '%s'.\n", resolved.leaf.c_str())
                     : format("Error in %s:%d: cannot find net '%s'.\n", file.c_str(), line, resolved.leaf.c_str());
    if (resolved.circuit == nullptr) throw Error(message + "Can't find a circuit named '" + resolved.units + "'.");
    message += "Available nets:\n";
    for (const Net* net : resolved.circuit->nets_) message += "  - '" + net->getName() + "'\n";
    throw Error(message);
}

std::vector<std::string> Circuit::getPathFromRoot() const {
    std::vector<std::string> path;
    for (const Circuit* each = this; !each->isRoot(); each = each->getParent()) path.push_back(each->getName());
    std::ranges::reverse(path);
    return path;
}

std::string Circuit::getPortPath(const Port* port) const {
    return searchPort(*this, [&](const Port* each) { return each == port; });
}

std::string Circuit::getPortPathById(const std::string& id) const {
    return searchPort(*this, [&](const Port* each) { return each->getId() == id; });
}

std::string Circuit::getComponentPathById(const std::string& id) const {
    for (const Component* child : children_) {
        if (child->getId() == id) return child->getName();
        if (const Circuit* inner = child->asCircuit()) {
            const std::string path = inner->getComponentPathById(id);
            if (!path.empty()) return child->getName() + "." + path;
        }
    }
    return "";
}

std::string Circuit::getNetPath(const Net* net) const {
    return searchNet(*this, [&](const Net* each) { return each == net; });
}

std::string Circuit::getNetPathById(const std::string& id) const {
    return searchNet(*this, [&](const Net* each) { return each->getId() == id; });
}

}  // namespace tarnsim
