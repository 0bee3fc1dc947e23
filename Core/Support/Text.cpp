#include "Core/Support/Text.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <stdexcept>

namespace tarnsim {

std::string& rtrim(std::string& text, std::string_view set) {
    text.erase(text.find_last_not_of(set) + 1);  // npos + 1 is 0: nothing but `set` leaves nothing
    return text;
}

std::string& ltrim(std::string& text, std::string_view set) {
    text.erase(0, text.find_first_not_of(set));
    return text;
}

std::string& trim(std::string& text, std::string_view set) {
    return ltrim(rtrim(text, set), set);
}

std::string trimmed(std::string_view text, std::string_view set) {
    std::string copy(text);
    return trim(copy, set);
}

void toLower(std::string& text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
}

std::vector<std::string> split(std::string_view text, char delimiter) {
    std::vector<std::string> fields;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(delimiter), text.size());
        fields.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return fields;
}

std::vector<std::string> splitWords(std::string_view text) {
    std::vector<std::string> words;
    for (std::string_view word = takeWord(text); !word.empty(); word = takeWord(text)) words.emplace_back(word);
    return words;
}

std::string_view takeWord(std::string_view& text) {
    const auto* begin = std::ranges::find_if_not(text, isWhiteSpace);
    const auto* end = std::find_if(begin, text.end(), isWhiteSpace);
    const std::string_view word(begin, end);
    text = {end, text.end()};
    return word;
}

std::string format(const char* format, ...) {
    char buffer[1024];
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    std::string result;
    if (length >= 0 && static_cast<std::size_t>(length) < sizeof buffer) {
        result.assign(buffer, static_cast<std::size_t>(length));
    } else if (length >= 0) {
        result.resize(static_cast<std::size_t>(length));
        std::vsnprintf(result.data(), result.size() + 1, format, again);
    }
    va_end(again);
    return result;
}

std::string quote(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\\' || c == '"') {
            quoted += '\\';
            quoted += c;
        } else if (c == '\r') {
            quoted += "\\r";
        } else if (c == '\n') {
            quoted += "\\n";
        } else if (c == '\t') {
            quoted += "\\t";
        } else if ((byte >= 0x20 && byte <= 0x7E) || byte > 0x80) {
            quoted += c;
        } else {
            quoted += tarnsim::format("\\x%02X", static_cast<unsigned>(byte));
        }
    }
    return quoted + '"';
}

bool isInteger(const std::string& text) {
    char* end = nullptr;
    std::strtol(text.c_str(), &end, 10);
    return *end == '\0';
}

std::optional<std::int32_t> takeLeadingInteger(std::string_view& text) {
    std::size_t at = std::min(text.find_first_not_of(kWhiteSpace), text.size());
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    const std::size_t firstDigit = at;
    constexpr std::int64_t kLimit = std::int64_t{1} << 31;
    std::int64_t number = 0;
    for (; at < text.size() && isDigit(text[at]); ++at) {
        number = std::min(number * 10 + (text[at] - '0'), kLimit + 1);  // stays beyond 32 bits once it is
    }
    if (negative) number = -number;
    if (at == firstDigit || number < -kLimit || number >= kLimit) return std::nullopt;
    text.remove_prefix(at);
    return static_cast<std::int32_t>(number);
}

std::optional<std::int32_t> readLeadingInteger(std::string_view text) {
    return takeLeadingInteger(text);
}

namespace {

unsigned digitValue(char c) {
    if (isDigit(c)) return static_cast<unsigned>(c - '0');
    return static_cast<unsigned>((c | 0x20) - 'a') + 10;
}

std::uint32_t readDigits(std::string_view digits, unsigned base) {
    std::uint64_t number = 0;
    for (const char c : digits) {
        number = number * base + digitValue(c);
        if (number > std::numeric_limits<std::uint32_t>::max()) throw std::out_of_range("stoul");
    }
    return static_cast<std::uint32_t>(number);
}

/// One way of writing a number: what stands in front of its digits, and which digits there are.
struct NumberForm {
    bool (*digit)(char);
    unsigned base;
    char first;   ///< first character of the prefix, 0 for none
    char second;  ///< second one in lower case, 0 for none
};

constexpr bool isBinaryDigit(char c) {
    return c == '0' || c == '1';
}

constexpr NumberForm kNumberForms[] = {
    {isHexDigit, 16, '0', 'x'}, {isHexDigit, 16, '$', 0}, {isBinaryDigit, 2, '0', 'b'}, {isDigit, 10, 0, 0}};

/// The first run of digits in `text` that stands behind the form's prefix; empty if there is none.
std::string_view findDigits(std::string_view text, const NumberForm& form) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        std::size_t begin = at;
        if (form.first != 0 && text[begin++] != form.first) continue;
        if (form.second != 0 && (begin == text.size() || (text[begin++] | 0x20) != form.second)) continue;
        std::size_t end = begin;
        while (end < text.size() && form.digit(text[end])) ++end;
        if (end > begin) return text.substr(begin, end - begin);
    }
    return {};
}

bool allOf(std::string_view text, std::string_view set) {
    return !text.empty() && text.find_first_not_of(set) == std::string_view::npos;
}

}  // namespace

std::uint32_t parseNumber(const std::string& text) {
    for (const NumberForm& form : kNumberForms) {
        const std::string_view digits = findDigits(text, form);
        if (!digits.empty()) return readDigits(digits, form.base);
    }
    std::fprintf(stderr, "***ERROR : can't parse '%s' as a number\n", text.c_str());
    return 0;
}

bool isLogicText(std::string_view text) {
    return allOf(text, "HLUZXhluzx");
}

bool isHexText(std::string_view text) {
    return allOf(text, "0123456789abcdefABCDEF");
}

bool isLevelText(std::string_view text) {
    return allOf(text, "HLUZhluz");
}

int countTrailingZeros(const char* digits) {
    const std::string_view text(digits);
    const std::size_t last = text.find_last_not_of('0');
    return static_cast<int>(text.size() - (last + 1));
}

}  // namespace tarnsim
