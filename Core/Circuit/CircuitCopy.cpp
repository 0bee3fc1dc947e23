// Copies of circuits, declarations, and the units that are made from them.

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitSpec.h"
#include "Core/Circuit/Wiring.h"
#include "Core/Support/Error.h"

namespace tarnsim {

namespace {

/// A declaration has this name until its statements are read and give it its own.
constexpr const char* kNameBeforeLoading = "spec-inst-name";

/// The name of a unit while it stands beside the one that it replaces. Nobody gives a unit such a name.
constexpr const char* kNameWhileReplacing = "qocksiKUTMCNSAL923859kkdjOLDHGj348fnSkdfj";

}  // namespace

Circuit::Circuit(const Circuit& other)
    : Component(other),
      filePath_(other.filePath_),
      sourceFile_(other.sourceFile_),
      notLoaded_(false),
      importPaths_(other.importPaths_) {
    simulator_ = other.findSimulator();
    setParent(nullptr);
    copyChildren(other);
    copyNets(other);
    for (const Circuit* declaration : other.declarations_) {
        Circuit* copy = componentFactory_.copy(*declaration);
        if (copy == nullptr) {
            throw Error("Cannot make a copy of circuit declaration '%s' in circuit '%s'.",
                        declaration->getName().c_str(), getName().c_str());
        }
        copy->setParent(this);
        declarations_.append(copy);
    }
    for (const auto& comment : other.comments_) addComment(comment->getText());
}

void Circuit::copyChildren(const Circuit& other) {
    for (Component* child : other.children_) {
        Component* copy = nullptr;
        if (ComponentFactory::isBuiltIn(child->getType())) {
            copy = componentFactory_.create(child->getType(), child->getInstanceText());
            copy->setCommentText(child->getCommentText());
        } else if (const Circuit* circuit = child->asCircuit()) {
            copy = componentFactory_.copy(*circuit);
        }
        if (copy == nullptr) {
            throw Error("Cannot make a copy of component '%s' in circuit '%s'.", child->getName().c_str(),
                        getName().c_str());
        }
        copy->setParent(this);
        children_.append(copy);
    }
}

/// For the nets of a circuit that is being copied: which ports of the copy they are to join. A path leads to each, but
/// nearly all of them hang on the circuit itself or on a unit, and these are found without writing the path out.
class Circuit::Counterparts {
public:
    Counterparts(const Circuit& source, const Circuit& copy) : source_(source), copy_(copy) {
        std::size_t ports = source.getPorts().size();
        for (const Component* child : source.children_) ports += child->getPorts().size();
        places_.resize(std::bit_ceil(2 * ports + 1));
        add(source, &copy, false);
        for (const Component* child : source.children_) {
            add(*child, copy.children_.findFirst(child->getName()), hasDot(*child));
        }
    }

    Port* of(const Port* port) {
        const Place& place = placeOf(port);
        const bool isAtHand = place.owner != nullptr && !hasDot(*port);
        Port* found = isAtHand ? place.owner->Component::findPort(port->getName()) : nullptr;
        return found != nullptr ? found : search(port);
    }

private:
    struct Place {
        const Port* port = nullptr;
        const Component* owner = nullptr;  ///< of its counterpart; null if that has to be searched
    };

    /// Such a name reads as a path.
    static bool hasDot(const BaseObject& object) { return object.getName().find('.') != std::string::npos; }

    void add(const Component& owner, const Component* counterpart, bool isSearched) {
        for (const Port* port : owner.getPorts()) {
            Place& place = placeOf(port);
            // The first path of a port stands, as in a search from the top.
            if (place.port == nullptr) place = {port, isSearched ? nullptr : counterpart};
        }
    }
    /// In an open hash table; a free place if the port isn't there.
    Place& placeOf(const Port* port) {
        const std::size_t mask = places_.size() - 1;
        std::size_t at = (reinterpret_cast<std::uintptr_t>(port) >> 4U) * 0x9E3779B1U >> 8U & mask;
        while (places_[at].port != nullptr && places_[at].port != port) at = (at + 1) & mask;
        return places_[at];
    }
    Port* search(const Port* port) {
        if (paths_.empty()) paths_ = source_.pathsOfNetPorts();
        const std::string& path = paths_.at(port);
        Port* found = copy_.findPort(path);
        if (found == nullptr) {
            throw Error("Cann't find port path '%s' in circuit '%s'", path.c_str(), copy_.getName().c_str());
        }
        return found;
    }

    const Circuit& source_;
    const Circuit& copy_;
    std::vector<Place> places_;
    std::unordered_map<const Port*, std::string> paths_;  ///< empty until it's needed
};

void Circuit::copyNets(const Circuit& other) {
    Counterparts counterparts(other, *this);
    std::vector<Port*> ports;
    for (Net* net : other.nets_) {
        ports.clear();
        for (const Port* port : net->getPorts()) ports.push_back(counterparts.of(port));
        createNet(net->getName(), ports)->setCommentText(net->getCommentText());
    }
}

namespace {

using PortPaths = std::unordered_map<const Port*, std::string>;

/// The paths of all ports of a circuit and of what is in it, down to the given depth, with `prefix` in front. The first
/// path of a port stands, as in a search from the top.
void collectPortPaths(const Component& component, const std::string& prefix, int depth, PortPaths& paths) {
    for (const Port* port : component.getPorts()) paths.emplace(port, prefix + port->getName());
    const Circuit* circuit = component.asCircuit();
    if (circuit == nullptr || depth == 0) return;
    for (const Component* child : circuit->getComponents()) {
        collectPortPaths(*child, prefix + child->getName() + ".", depth - 1, paths);
    }
}

}  // namespace

/// Nets that reach into units of units are rare; only for them the walk goes further down than to the units' ports.
std::unordered_map<const Port*, std::string> Circuit::pathsOfNetPorts() const {
    PortPaths paths;
    collectPortPaths(*this, "", 1, paths);
    const auto isKnown = [&](const Port* port) { return paths.contains(port); };
    const auto isCovered = [&](const Net* net) { return std::ranges::all_of(net->getPorts(), isKnown); };
    if (std::ranges::all_of(nets_, isCovered)) return paths;

    collectPortPaths(*this, "", std::numeric_limits<int>::max(), paths);
    for (const Net* net : nets_) {
        for (const Port* port : net->getPorts()) paths.emplace(port, "");  // a port of somebody else has no path
    }
    return paths;
}

std::unique_ptr<Circuit> Circuit::cloneCircuit(const Circuit& source) const {
    return std::make_unique<Circuit>(source);
}

std::unique_ptr<Circuit> Circuit::createDeclaration(const CircuitSpec& spec, Circuit* parent) const {
    auto declaration = std::make_unique<Circuit>(spec.getName(), kNameBeforeLoading, parent);
    declaration->setSpec(spec);
    return declaration;
}

Circuit* Circuit::findDeclaration(const std::string& type) const {
    if (declarationsByType_.empty()) {
        for (Circuit* declaration : declarations_) declarationsByType_.emplace(declaration->getType(), declaration);
    }
    const auto found = declarationsByType_.find(type);
    return found == declarationsByType_.end() ? nullptr : found->second;
}

void Circuit::addDeclaration(const CircuitSpec& spec) {
    const char* name = spec.getName().c_str();
    if (ComponentFactory::isBuiltIn(spec.getName())) {
        throw Error("Error: Circuit name '%s' (within '%s') identical to a component.", name, getName().c_str());
    }
    if (declarations_.findFirst(spec.getName()) != nullptr) {
        throw Error("Error: Duplicated sub-circuits '%s' within circuit '%s'.", name, getName().c_str());
    }
    auto declaration = createDeclaration(spec, this);
    declarations_.append(declaration.get());
    componentFactory_.adopt(std::move(declaration));
    declarationTypeChanged();
}

void Circuit::copyDeclarationIn(const Circuit& circuit) {
    Circuit* copy = componentFactory_.copy(circuit);
    copy->setParent(this);
    declarations_.append(copy);
    declarationTypeChanged();
}

void Circuit::replaceDeclaration(const Circuit& circuit) {
    if (const Circuit* present = findDeclaration(circuit.getType())) {
        declarations_.remove(present);
        declarationTypeChanged();
    }
    copyDeclarationIn(circuit);
}

void Circuit::redefineDeclaration(const Circuit& circuit) {
    replaceDeclaration(circuit);
    updateInstances(circuit);
}

void Circuit::updateInstances(const Circuit& circuit) {
    const std::string type = circuit.getType();
    const Circuit* declaration = findDeclaration(type);
    if (declaration == nullptr) throw Error("Can't find a declaration of circuit of type '%s'.", type.c_str());

    std::vector<Circuit*> instances;
    for (Component* child : children_) {
        Circuit* instance = child->asCircuit();
        if (instance != nullptr && instance != &circuit && instance->getType() == type) instances.push_back(instance);
    }
    for (Circuit* instance : instances) {
        Circuit* copy = componentFactory_.copy(*declaration);
        copy->setName(kNameWhileReplacing);
        replaceChild(instance, copy);
        copy->setName(instance->getName());
    }
}

Circuit* Circuit::instantiate(const std::string& type, const std::string& name) {
    const Circuit* declaration = findDeclaration(type);
    Circuit* copy = declaration == nullptr ? nullptr : componentFactory_.copy(*declaration);
    if (copy == nullptr) return nullptr;
    copy->setName(name.empty() ? declaration->getName() + "_copy" : name);
    return copy;
}

Component* Circuit::createUnit(const std::string& type, const std::string& name) {
    if (ComponentFactory::isBuiltIn(type)) return componentFactory_.create(type, name);
    Circuit* unit = instantiate(type, name);
    if (unit == nullptr) throw Error("Can't find a declaration of circuit of type '%s'.", type.c_str());
    return unit;
}

Component* Circuit::addComponent(const std::string& type, const std::string& name) {
    Component* component = createUnit(type, name);
    children_.append(component);
    component->setParent(this);
    return component;
}

}  // namespace tarnsim
