#include "Core/Circuit/Circuit.h"

#include <algorithm>
#include <filesystem>

#include "Core/Circuit/CircuitSpec.h"
#include "Core/Circuit/Lines.h"
#include "Core/Circuit/Wiring.h"
#include "Core/Simulation/Port.h"
#include "Core/Support/Error.h"
#include "Core/Support/TLog.h"

namespace tarnsim {

namespace {

/// The side on which a net of `circuit` meets the port.
int sideTowards(const Circuit& circuit, const Port* port) {
    return circuit.hasPort(port) ? kInside : kOutside;
}

}  // namespace

Circuit::Circuit(const std::string& name, Circuit* parent) : Circuit("Circuit", name, parent) {}

Circuit::Circuit(const std::string& type, const std::string& name, Circuit* parent) : Component(type, name, parent) {}

Circuit::~Circuit() {
    wiring_.reset();
    dissolveNets();
    for (Port* port : getPorts()) {
        port->disconnect(kInside);
        port->disconnect(kOutside);
    }
    for (Component* child : children_) child->disconnectPorts();
    children_.clear();
    declarations_.clear();
}

void Circuit::dissolveNets() {
    // All nets at once: that they lose their ports one by one would take time in the square of a net's size. And once
    // for the whole hierarchy: the circuits inside have nothing left to do when their turn to die comes.
    if (netsAreDissolved_) return;
    netsAreDissolved_ = true;
    nets_.clear();
    netFactory_.disconnectAll();
    componentFactory_.dissolveNets();
}

void Circuit::onLoaded(Circuit* /*owner*/) {
    for (Component* child : children_) child->onLoaded(this);
}

void Circuit::reset() {
    Component::reset();
    for (Net* net : nets_) net->clear();
    for (Component* child : children_) child->reset();
    for (Circuit* declaration : declarations_) declaration->reset();
}

void Circuit::start(Time endTime) {
    for (Component* child : children_) child->start(endTime);
    for (Circuit* declaration : declarations_) declaration->start(endTime);
}

void Circuit::setSimulator(EventSimulator* simulator) {
    cutWires();
    simulator_ = simulator;
}

void Circuit::layWires(EventSimulator& simulator) {
    wiring_.reset();
    wiring_ = std::make_unique<Wiring>(*this, simulator);
}

void Circuit::cutWires() {
    for (Circuit* each = this; each != nullptr; each = each->getParent()) each->wiring_.reset();
}

void Circuit::evaluate(Time time) {
    for (Component* child : children_) {
        child->refreshInputs(time);
        child->evaluate(time);
        child->refreshOutputs(time);
    }
}

void Circuit::disconnectPorts() {
    for (Component* child : children_) child->disconnectPorts();
    Component::disconnectPorts();
    // Where all nets go they needn't be looked for, and a circuit that dies for want of memory may ask for none.
    if (!netsAreDissolved_) removeEmptyNets();
}

void Circuit::removeEmptyNets() {
    // The list first: it mustn't name what the factory deletes.
    const auto doomed = netFactory_.emptyNets();
    if (doomed.empty()) return;
    nets_.removeIf([&](const Net* net) { return doomed.contains(net); });
    netFactory_.removeEmptyNets();
}

std::string Circuit::getFilePath() const {
    const CircuitSpec* spec = getSpec();
    return spec == nullptr || !filePath_.empty() ? filePath_ : spec->getFileName();
}

void Circuit::setFilePath(const std::string& path) {
    filePath_ = path;
    notLoaded_ = false;
}

bool Circuit::isInside(const Circuit* other) const {
    for (const Circuit* each = this; each != nullptr; each = each->getParent()) {
        if (each == other) return true;
    }
    return false;
}

EventSimulator* Circuit::findSimulator() const {
    for (const Circuit* each = this; each != nullptr; each = each->getParent()) {
        if (each->simulator_ != nullptr) return each->simulator_;
    }
    return nullptr;
}

bool Circuit::hasOwnFile() const {
    return getParent() != nullptr && !filePath_.empty();
}

bool Circuit::isInline() const {
    return getParent() != nullptr && filePath_.empty() && !ComponentFactory::isBuiltIn(getType());
}

const Circuit* Circuit::getFileRoot() const {
    const Circuit* root = this;
    while (root->isInline()) root = root->getParent();
    return root;
}

std::string Circuit::getRelativeFilePath() const {
    const Circuit* root = getFileRoot();
    if (root->getParent() == nullptr) return root->filePath_;
    const std::filesystem::path directory =
        std::filesystem::path(root->getParent()->getFileRoot()->filePath_).parent_path();
    const std::filesystem::path relative = std::filesystem::path(root->filePath_).lexically_relative(directory);
    return directory.empty() || relative.empty() ? root->filePath_ : relative.generic_string();
}

void Circuit::addChild(Component* component, const Line* line) {
    const char* name = component->getName().c_str();
    if (hasComponent(component->getName())) {
        if (line == nullptr) throw Error("Error: Duplicated component instance name: '%s'.", name);
        throw Error("Error in %s:%d: Duplicated component instance name: '%s'.", line->fileName.c_str(),
                    line->lineNumber, name);
    }
    const Circuit* parent = component->getParent();
    if (parent != nullptr && parent != this) {
        throw Error("Component '%s' already belongs to parent circuit '%s', cannot be added to circuit '%s'", name,
                    parent->getName().c_str(), getName().c_str());
    }
    component->setParent(this);
    children_.append(component);

    Circuit* circuit = component->asCircuit();
    if (circuit == nullptr || ComponentFactory::isBuiltIn(circuit->getType()) || findDeclaration(circuit->getType()))
        return;
    circuit->clearFilePath();
    copyDeclarationIn(*circuit);
}

void Circuit::removeComponent(Component* component) {
    component->disconnectPorts();
    children_.remove(component);
    removeEmptyNets();
}

void Circuit::moveChild(Component* component) {
    if (Circuit* former = component->getParent()) {
        former->removeComponent(component);
        component->setParent(nullptr);
        if (auto owned = former->componentFactory_.release(component)) componentFactory_.adopt(std::move(owned));
    }
    addChild(component, nullptr);
}

void Circuit::replaceChild(Component* oldComponent, Component* newComponent) {
    for (Port* oldPort : oldComponent->getPorts()) {
        Net* net = oldPort->getNet(kOutside);
        if (net == nullptr) continue;
        if (Port* newPort = newComponent->Component::findPort(oldPort->getName())) {
            newPort->setId(oldPort->getId());
            net->addPort(newPort, kOutside);
        }
        oldPort->disconnect(kOutside);
    }
    children_.remove(oldComponent);
    addChild(newComponent, nullptr);
}

std::vector<std::string> Circuit::getMetaData(const std::string& key) const {
    const auto found = metaData_.find(key);
    return found == metaData_.end() ? std::vector<std::string>() : found->second;
}

std::string Circuit::getMetaDataFirst(const std::string& key) const {
    const auto found = metaData_.find(key);
    return found == metaData_.end() || found->second.empty() ? "" : found->second.front();
}

std::vector<std::string> Circuit::getMetaDataKeys() const {
    std::vector<std::string> keys;
    for (const auto& [key, values] : metaData_) keys.push_back(key);
    return keys;
}

void Circuit::addComment(const std::string& text) {
    comments_.push_back(std::make_unique<Comment>(text));
}

void Circuit::removeComment(const Comment* comment) {
    std::erase_if(comments_, [&](const auto& each) { return each.get() == comment; });
}

void Circuit::addImportPath(const std::string& path) {
    const std::string file = getFilePath();
    const std::size_t slash = file.rfind('/');
    const std::string directory = slash == std::string::npos ? "" : file.substr(0, slash);
    std::string relative = path;
    if (relative.starts_with(directory)) relative.erase(0, directory.size());
    if (relative.empty()) relative = "./";
    if (relative.front() == '/') relative.erase(0, 1);
    importPaths_.insert(relative);
}

Net* Circuit::createNet(const std::string& name, const std::vector<Port*>& ports) {
    if (hasNet(name)) throw Error("Duplicate net names: '%s', in circuit '%s'.", name.c_str(), getName().c_str());
    const std::vector<Net*> present = collectNets(ports);
    Net* net = present.empty() ? netFactory_.createNet(name, 0) : mergeNets(present, name);
    net->reserve(net->getPorts().size() + ports.size());
    for (Port* port : ports) {
        const int side = sideTowards(*this, port);
        if (port->getNet(side) == nullptr) net->addPort(port, side);
    }
    if (present.empty()) {
        nets_.append(net);  // a new one, and its name is free
    } else {
        addNet(net, name);
    }
    return net;
}

Net* Circuit::createNet(const std::vector<Port*>& ports) {
    return ports.empty() ? nullptr : createNet(ports.front()->getName(), ports);
}

std::vector<Net*> Circuit::collectNets(const std::vector<Port*>& ports) const {
    std::vector<Net*> found;
    for (const Port* port : ports) {
        if (Net* net = port->getNet(sideTowards(*this, port))) found.push_back(net);
    }
    std::ranges::sort(found, {}, &Net::getCreationNumber);
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

Net* Circuit::mergeNets(const std::vector<Net*>& nets, const std::string& name) {
    Net* net = nets.front();
    net->setName(name);
    for (std::size_t i = 1; i < nets.size(); ++i) net->takeOver(*nets[i]);
    return net;
}

void Circuit::addNet(Net* net, const std::string& name) {
    if (net == nullptr) throw Error(R"(Internal error: net is NULL in ..\..\Core\Circuit\Circuit.cpp:339)");
    const std::string& freeName = name.empty() ? net->getName() : name;
    if (hasNet(freeName)) {
        throw Error("Error: There is already a net called '%s' in circuit '%s'/'%s'. ", freeName.c_str(),
                    getType().c_str(), getName().c_str());
    }
    if (!nets_.contains(net)) nets_.append(net);
}

void Circuit::replaceNet(Net* oldNet, Net* newNet) {
    if (oldNet == nullptr) throw Error(R"(Internal error: old_net is NULL in ..\..\Core\Circuit\Circuit.cpp:963)");
    if (newNet == nullptr) throw Error(R"(Internal error: new_net is NULL in ..\..\Core\Circuit\Circuit.cpp:964)");
    nets_.remove(oldNet);
    if (!nets_.contains(newNet)) nets_.append(newNet);
    newNet->setName(oldNet->getName());
}

void Circuit::renameNet(Net* net, const std::string& name) {
    if (net == nullptr) throw Error(R"(Internal error: net is NULL in ..\..\Core\Circuit\Circuit.cpp:945)");
    net->setName(name);
}

void Circuit::deleteNet(Net* net) {
    net->disconnectAll();
    nets_.remove(net);
}

void Circuit::pruneNets(std::size_t minPorts) {
    nets_.removeIf([&](Net* net) {
        const bool isPruned = net->getPorts().size() < minPorts;
        if (isPruned) net->disconnectAll();
        return isPruned;
    });
    for (Component* child : children_) {
        if (Circuit* circuit = child->asCircuit()) circuit->pruneNets(minPorts);
    }
    removeEmptyNets();
}

void Circuit::checkConnections() const {
    for (const Component* child : children_) {
        child->Component::checkConnections();
        if (const Circuit* circuit = child->asCircuit()) circuit->checkConnections();
    }
}

namespace {

/// One line for each member of a list of components, one level deeper than its heading.
template <class List>
void printComponents(const List& list, const char* lineFormat, bool deep) {
    TLog entries(nullptr);
    int index = 0;
    for (const auto* each : list) {
        entries.log(lineFormat, index++, each->getType().c_str(), each->getName().c_str(),
                    static_cast<const void*>(each));
        const Circuit* circuit = static_cast<const Component*>(each)->asCircuit();
        if (deep && circuit != nullptr) circuit->print(deep);
    }
}

}  // namespace

void Circuit::print(bool deep) const {
    TLog log("Circuit: '%s' / '%s' (0x%p) file: '%s'", getName().c_str(), getType().c_str(),
             static_cast<const void*>(this), filePath_.c_str());
    log.log("Components [%d]:", static_cast<int>(children_.size()));
    printComponents(children_, "[%d]: '%s' : '%s'  (0x%p)", deep);
    log.log("Declarations [%d]:", static_cast<int>(declarations_.size()));
    printComponents(declarations_, "[%d]: '%s' '%s'  (0x%p)", deep);
    log.log("Ports [%d]:", static_cast<int>(getPorts().size()));
    for (const Port* port : getPorts()) port->dump();
    log.log("Nets [%d]:", static_cast<int>(nets_.size()));
    for (const Net* net : nets_) net->dump();
    Dict::print();
}

}  // namespace tarnsim
