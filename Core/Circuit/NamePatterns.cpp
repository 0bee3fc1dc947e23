#include "Core/Circuit/NamePatterns.h"

#include <algorithm>

#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

bool isOneOf(char c, std::string_view set) {
    return set.find(c) != std::string_view::npos;
}

bool isInstanceNameCharacter(char c) {
    return isWordCharacter(c) || isOneOf(c, "[]");
}

bool isParameterCharacter(char c) {
    return isWordCharacter(c) || isOneOf(c, "$=+,-./#%:;");
}

bool isPortNameCharacter(char c) {
    return isWordCharacter(c) || isOneOf(c, "=<>[]");
}

bool isPortOptionCharacter(char c) {
    return isLetter(c) || isDigit(c) || isOneOf(c, "=+,-./#%:");
}

bool isArrayPrefixCharacter(char c) {
    return isWordCharacter(c) || isOneOf(c, "(),");
}

/// A non-empty name, and behind it nothing or a list in parentheses of at least `shortestList` characters.
std::optional<NameWithList> matchNameWithList(std::string_view text, bool (*inName)(char), bool (*inList)(char),
                                              std::size_t shortestList) {
    const auto nameEnd = std::ranges::find_if_not(text, inName);
    const auto nameLength = static_cast<std::size_t>(nameEnd - text.begin());
    const std::string_view list = text.substr(nameLength);
    if (nameLength == 0) return std::nullopt;
    if (list.empty()) return NameWithList{text, {}};
    if (list.size() < shortestList + 2 || list.front() != '(' || list.back() != ')') return std::nullopt;
    if (!std::ranges::all_of(list.substr(1, list.size() - 2), inList)) return std::nullopt;
    return NameWithList{text.substr(0, nameLength), list};
}

}  // namespace

std::optional<NameWithList> matchInstanceText(std::string_view text) {
    return matchNameWithList(text, isInstanceNameCharacter, isParameterCharacter, 0);
}

std::optional<NameWithList> matchPortText(std::string_view text) {
    return matchNameWithList(text, isPortNameCharacter, isPortOptionCharacter, 1);
}

std::optional<ArrayName> matchArrayName(std::string_view text) {
    const std::size_t bracket = text.find('[');
    if (bracket == std::string_view::npos || text.back() != ']') return std::nullopt;
    const std::string_view prefix = text.substr(0, bracket);
    const std::string_view count = text.substr(bracket + 1, text.size() - bracket - 2);
    if (prefix.empty() || !std::ranges::all_of(prefix, isArrayPrefixCharacter)) return std::nullopt;
    if (count.empty() || !std::ranges::all_of(count, isDigit)) return std::nullopt;
    return ArrayName{prefix, count};
}

}  // namespace tarnsim
