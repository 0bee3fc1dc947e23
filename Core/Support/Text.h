#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnsim {

/// What counts as white space everywhere in the program: tab, line feed, vertical tab, form feed, carriage return,
/// blank.
inline constexpr std::string_view kWhiteSpace = "\t\n\v\f\r ";

// Character classes. They take ASCII alone and don't look at the locale: files mean the same on every machine.

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
constexpr bool isHexDigit(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}
constexpr bool isWordCharacter(char c) {
    return isLetter(c) || isDigit(c) || c == '_';
}
constexpr bool isWhiteSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Removes characters of `set` from the end of `text`, in place, and returns it.
std::string& rtrim(std::string& text, std::string_view set = kWhiteSpace);
/// Removes characters of `set` from the front of `text`, in place, and returns it.
std::string& ltrim(std::string& text, std::string_view set = kWhiteSpace);
/// Both of the above.
std::string& trim(std::string& text, std::string_view set = kWhiteSpace);
/// A trimmed copy, for texts that aren't the caller's to change.
std::string trimmed(std::string_view text, std::string_view set = kWhiteSpace);

/// ASCII lower case of each character, in place.
void toLower(std::string& text);

/// The fields between delimiters, read as lines are read from a stream: an empty field at the very end doesn't exist.
/// "" gives none, "a," one, ",a" two, "a,,b" three.
std::vector<std::string> split(std::string_view text, char delimiter);

/// The words between runs of white space; never an empty one.
std::vector<std::string> splitWords(std::string_view text);
/// The first of them, taken off the front of `text`; empty if there is none.
std::string_view takeWord(std::string_view& text);

/// printf into a string, of any length. Gives "" if the C library can't format.
std::string format(const char* format, ...) __attribute__((format(printf, 1, 2)));

/// `text` in double quotes. Backslash and double quote get a backslash in front; carriage return, line feed and tab
/// become `\r`, `\n`, `\t`; other bytes outside 0x20 to 0x7E become `\x` and two upper-case digits, but bytes above
/// 0x80 (the parts of UTF-8 characters) stand as they are.
std::string quote(std::string_view text);

/// True if all of `text`, up to its first NUL, is a decimal number with an optional sign and leading white space. The
/// empty text counts as one, as nothing in it is wrong.
bool isInteger(const std::string& text);

/// The number at the front of `text`: leading white space and a sign may precede it, anything may follow it. Nothing
/// if there is no digit, or if the number doesn't fit into 32 bits.
std::optional<std::int32_t> readLeadingInteger(std::string_view text);

/// As above, and takes what it read off the front of `text`. Leaves `text` alone when there is no number.
std::optional<std::int32_t> takeLeadingInteger(std::string_view& text);

/// A number in one of the forms `0x1F`, `$1F`, `0b101`, `31`. The forms are looked for in this order, each anywhere in
/// the text, and what stands around the number is ignored. Text without a number is reported on the error stream and
/// counts as 0. Raises std::out_of_range ("stoul") for a number beyond 32 bits.
std::uint32_t parseNumber(const std::string& text);

/// One or more bit letters H, L, U, Z, X, in either case.
bool isLogicText(std::string_view text);
/// One or more hexadecimal digits.
bool isHexText(std::string_view text);
/// As isLogicText, without X.
bool isLevelText(std::string_view text);

/// How many `0` stand at the end of `digits`.
int countTrailingZeros(const char* digits);

/// The name under which files know a part: "MC27C64" becomes "27C64", and a name with `74` as its third and fourth
/// characters loses the maker's two letters ("DM74LS00" becomes "74LS00"). Any other name stays.
constexpr std::string_view cutChipPrefix(std::string_view type) {
    if (type == "MC27C64" || type.substr(type.size() < 2 ? type.size() : 2, 2) == "74") type.remove_prefix(2);
    return type;
}

}  // namespace tarnsim
