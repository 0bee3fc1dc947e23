#include "Core/TestVectors/LineKind.h"

#include <algorithm>

#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

/// How many characters at the front of `text` are of a class.
std::size_t countLeading(std::string_view text, bool (*isInClass)(char)) {
    return static_cast<std::size_t>(std::ranges::find_if_not(text, isInClass) - text.begin());
}

bool isAssignedNameCharacter(char c) {
    return isWordCharacter(c) || c == '.';
}

/// The `.*` of the patterns: anything but an end of line, which a carriage return within the line is too.
bool isPlain(std::string_view text) {
    return text.find('\n') == std::string_view::npos && text.find('\r') == std::string_view::npos;
}

bool isComponentOptions(std::string_view line) {
    const std::size_t nameLength = countLeading(line, isWordCharacter);
    if (nameLength == 0 || nameLength == line.size() || line[nameLength] != '(') return false;
    const std::string_view rest = line.substr(nameLength + 1);
    return isPlain(rest) && rest.find(')') != std::string_view::npos;
}

bool isPortAssignment(std::string_view line) {
    if (line.empty() || !isWordCharacter(line.front())) return false;
    line.remove_prefix(countLeading(line, isAssignedNameCharacter));
    line.remove_prefix(countLeading(line, isWhiteSpace));
    if (line.empty() || line.front() != '=') return false;
    line.remove_prefix(1);
    line.remove_prefix(countLeading(line, isWhiteSpace));
    return !line.empty() && isWordCharacter(line.front()) && isPlain(line);
}

bool isHeader(std::string_view line) {
    return line.starts_with("time") && isPlain(line);
}

bool isTestVector(std::string_view line) {
    const std::size_t digits = countLeading(line, isDigit);
    return digits > 0 && digits < line.size() && line[digits] == ' ' && isPlain(line);
}

}  // namespace

LineKind lineKindOf(std::string_view line) {
    if (isComponentOptions(line)) return LineKind::ComponentOptions;
    if (isPortAssignment(line)) return LineKind::PortAssignment;
    if (isHeader(line)) return LineKind::Header;
    if (isTestVector(line)) return LineKind::TestVector;
    return line.empty() ? LineKind::Empty : LineKind::NoMatch;
}

}  // namespace tarnsim
