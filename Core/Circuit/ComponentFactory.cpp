#include "Core/Circuit/ComponentFactory.h"

#include <algorithm>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Core/Circuit/NamePatterns.h"

namespace tarnsim {

InstanceText::InstanceText(const std::string& text) {
    const auto parts = matchInstanceText(text);
    if (!parts) return;
    name = parts->name;
    parameters = parts->list;
}

bool ComponentFactory::isBuiltIn(const std::string& type) {
    return findComponentType(type) != nullptr;
}

ParaMap ComponentFactory::getDefaults(const std::string& type) {
    const ComponentType* found = findComponentType(type);
    return found == nullptr ? ParaMap() : found->defaults();
}

std::string ComponentFactory::getDocumentation(const std::string& type) {
    const ComponentType* found = findComponentType(type);
    return found == nullptr ? "" : found->documentation();
}

Component* ComponentFactory::create(const std::string& type, const std::string& instanceText) {
    const InstanceText instance(instanceText);
    ParaMap parameters = getDefaults(type);
    parameters.parse(instance.parameters);
    const ComponentType* found = findComponentType(type);
    if (found == nullptr) return nullptr;
    Component* component = adopt(found->create(instance.name, parameters));
    if (parameters.size() > 0) component->setParameters(parameters);
    return component;
}

Circuit* ComponentFactory::copy(const Circuit& circuit) {
    auto clone = circuit.cloneCircuit(circuit);
    Circuit* result = clone.get();
    if (clone) adopt(std::move(clone));
    return result;
}

void ComponentFactory::dissolveNets() {
    for (const auto& component : components_) {
        if (auto* circuit = dynamic_cast<Circuit*>(component.get())) circuit->dissolveNets();
    }
}

Component* ComponentFactory::adopt(std::unique_ptr<Component> component) {
    return components_.emplace_back(std::move(component)).get();
}

std::unique_ptr<Component> ComponentFactory::release(const Component* component) {
    const auto found = std::ranges::find_if(components_, [&](const auto& each) { return each.get() == component; });
    if (found == components_.end()) return nullptr;
    std::unique_ptr<Component> released = std::move(*found);
    components_.erase(found);
    return released;
}

}  // namespace tarnsim
