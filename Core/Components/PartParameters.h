#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "Core/Components/Component.h"
#include "Core/Support/ParaMap.h"

namespace tarnsim {

// What parts read from their parameters besides a delay.

/// `size` itself, the value of the parameter `key`, if a bus can have so many bits: 1 to 255. Raises an Error that
/// names the unit if not.
std::uint32_t checkedSize(const Component& part, const char* key, std::uint32_t size);

/// A part's delay in one device family.
struct FamilyDelay {
    std::string_view family;
    std::uint32_t delay;  ///< ns
};

/// The delay of the family that the parameter `family` names; nothing without that parameter. Raises an Error with
/// `message`, a format with one %s for the name, if the part isn't made in that family.
std::optional<std::uint32_t> familyDelay(const ParaMap& parameters, std::span<const FamilyDelay> families,
                                         const char* message);

}  // namespace tarnsim
