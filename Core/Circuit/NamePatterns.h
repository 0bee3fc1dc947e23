#pragma once

#include <optional>
#include <string_view>

namespace tarnsim {

// What names of units and ports may look like in a file. Each matcher walks the text once, so a line may be of any
// length.

/// A name with an optional list in parentheses behind it. The list keeps its parentheses; it's empty where there is
/// none.
struct NameWithList {
    std::string_view name;
    std::string_view list;
};

/// A unit, `name(key=value,...)`: the whole text must match ([a-zA-Z0-9\[\]_]+)([(][$a-zA-Z0-9_=.+-/#%,:;]*[)])?
std::optional<NameWithList> matchInstanceText(std::string_view text);

/// A port, `name(key=value,...)`: the whole text must match ([a-zA-Z0-9=<>\[\]_]+)([(][a-zA-Z0-9=.+-/#%,:]+[)])?
std::optional<NameWithList> matchPortText(std::string_view text);

/// An array of units, `name[count]`.
struct ArrayName {
    std::string_view prefix;
    std::string_view count;
};

/// The whole text must match ([a-zA-Z0-9_(),]+)\[([0-9]+)\]
std::optional<ArrayName> matchArrayName(std::string_view text);

}  // namespace tarnsim
