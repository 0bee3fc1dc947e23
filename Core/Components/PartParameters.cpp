#include "Core/Components/PartParameters.h"

#include <algorithm>

#include "Core/Support/Error.h"
#include "Core/Values/Value.h"

namespace tarnsim {

std::uint32_t checkedSize(const Component& part, const char* key, std::uint32_t size) {
    if (size < 1 || size > kMaxValueWidth) {
        throw Error("Error: %s '%s': '%s' is %u, but must be from 1 to %u.", part.getType().c_str(),
                    part.getName().c_str(), key, size, kMaxValueWidth);
    }
    return size;
}

std::optional<std::uint32_t> familyDelay(const ParaMap& parameters, std::span<const FamilyDelay> families,
                                         const char* message) {
    if (!parameters.has("family")) return std::nullopt;
    const std::string& family = parameters.at("family");
    const auto found = std::ranges::find(families, family, &FamilyDelay::family);
    if (found == families.end()) throw Error(message, family.c_str());
    return found->delay;
}

}  // namespace tarnsim
