#pragma once

#include <string_view>

namespace tarnsim {

/// What the library knows of a part besides its behaviour. Stands as `static constexpr PartInfo info` in the part's
/// class.
struct PartInfo {
    std::string_view typeName;       ///< the maker's full name; files use what cutChipPrefix leaves of it
    std::string_view defaults;       ///< parameters with their default texts, `(delay=3)`; empty for none
    std::string_view documentation;  ///< help text for a display
};

inline constexpr std::string_view kDelayDocumentation = "<b>delay</b> The gate delay in ns.";

/// For chips of several device families.
inline constexpr std::string_view kFamilyDocumentation =
    "<b>family</b> Which device family variant to be considered. Supported values are: LS, AS and ALS. It affects the "
    "timing behaviour.<p><b>delay</b> The gate delay in ns.<p>If both parameters are specified, the <b>delay</b> "
    "parameter overrides <b>family<b>";

}  // namespace tarnsim
