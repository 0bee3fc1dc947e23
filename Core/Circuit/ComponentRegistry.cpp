#include "Core/Circuit/ComponentRegistry.h"

#include <algorithm>
#include <array>

#include "Core/Components/Gates.h"
#include "Core/Components/Sources.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

template <class Part>
std::string_view typeNameOf() {
    return cutChipPrefix(Part::info.typeName);
}

template <class Part>
std::unique_ptr<Component> create(const std::string& name, const ParaMap& parameters) {
    return std::make_unique<Part>(name, parameters);
}

template <class Part>
ParaMap defaultsOf() {
    return ParaMap(std::string(Part::info.defaults));
}

template <class Part>
std::string documentationOf() {
    return std::string(Part::info.documentation);
}

/// A part says all of this about itself in its `info`.
template <class Part>
constexpr ComponentType row = {&typeNameOf<Part>, &create<Part>, &defaultsOf<Part>, &documentationOf<Part>};

constexpr std::array kComponentTypes = {
    row<High>, row<Low>, row<Inv>, row<And>, row<Nand>, row<Xor>, row<Xnor>, row<Or>, row<Nor>,
};

}  // namespace

std::span<const ComponentType> componentTypes() {
    return kComponentTypes;
}

const ComponentType* findComponentType(std::string_view type) {
    const auto found =
        std::ranges::find_if(kComponentTypes, [&](const ComponentType& each) { return each.typeName() == type; });
    return found == kComponentTypes.end() ? nullptr : &*found;
}

}  // namespace tarnsim
