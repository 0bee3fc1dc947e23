#include "Core/Circuit/ComponentFactory.h"

#include <algorithm>
#include <unordered_map>

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

namespace {

/// The parameters of a unit with that parameter text, over the defaults of its type. Units of a type mostly have the
/// same text, one after the other: what it says is kept until there's another one.
ParaMap parametersOf(const ComponentType& type, const std::string& text) {
    struct Latest {
        std::string text;
        ParaMap parameters;
    };
    static std::unordered_map<const ComponentType*, Latest> latest;
    const auto found = latest.find(&type);
    if (found != latest.end() && found->second.text == text) return found->second.parameters;
    ParaMap parameters = type.defaults();
    parameters.parse(text);
    latest[&type] = {text, parameters};
    return parameters;
}

}  // namespace

Component* ComponentFactory::create(const std::string& type, const std::string& instanceText) {
    const InstanceText instance(instanceText);
    const ComponentType* found = findComponentType(type);
    if (found == nullptr) {
        ParaMap().parse(instance.parameters);  // raises its Error for what is wrong there in any case
        return nullptr;
    }
    const ParaMap parameters = parametersOf(*found, instance.parameters);
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
        if (Circuit* circuit = component->asCircuit()) circuit->dissolveNets();
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
