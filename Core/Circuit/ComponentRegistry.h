#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "Core/Components/Component.h"
#include "Core/Support/ParaMap.h"

namespace tarnsim {

/// One part of the library.
struct ComponentType {
    std::string_view (*typeName)();  ///< as files write it
    std::unique_ptr<Component> (*create)(const std::string& name, const ParaMap& parameters);
    ParaMap (*defaults)();
    std::string (*documentation)();
};

/// All parts of the library, in a fixed order.
std::span<const ComponentType> componentTypes();

/// Null if there is no part of that name.
const ComponentType* findComponentType(std::string_view type);

}  // namespace tarnsim
