#include "Core/Values/Value.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <ostream>
#include <stdexcept>
#include <typeinfo>
#include <utility>

#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

/// What fills the bits in front of a text that is shorter than its value.
char padLetterFor(std::string_view text) {
    return std::ranges::any_of(text, isUndefinedLetter) ? kUndefinedBit : 'L';
}

/// The letters of the hexadecimal digits 0 to F.
constexpr std::array<std::string_view, 16> kDigitBits = {"LLLL", "LLLH", "LLHL", "LLHH", "LHLL", "LHLH",
                                                         "LHHL", "LHHH", "HLLL", "HLLH", "HLHL", "HLHH",
                                                         "HHLL", "HHLH", "HHHL", "HHHH"};

std::size_t digitValue(char digit) {
    return static_cast<std::size_t>(isDigit(digit) ? digit - '0' : (digit | 0x20) - 'a' + 10);
}

/// The digit of a group of four letters, or 0 if it has none.
char digitOf(std::string_view group) {
    const auto found = std::ranges::find(kDigitBits, group);
    if (found != kDigitBits.end()) return "0123456789ABCDEF"[found - kDigitBits.begin()];
    return group == "UUUU" || group == "ZZZZ" || group == "XXXX" ? group[0] : '\0';
}

}  // namespace

Value::Value(std::uint32_t width) {
    resize(width);
}

Value::Value(char bit, std::uint32_t width) {
    resize(width);
    assignText({&bit, 1});
}

Value::Value(std::string_view text, std::uint32_t width) {
    resize(width == 0 ? static_cast<std::uint32_t>(text.size()) : width);
    assignText(text);
}

Value::Value(std::string_view letters, AsTheyStand /*unused*/) : width_(static_cast<std::uint8_t>(letters.size())) {
    if (width_ > kInlineWidth) heapBits_ = std::make_unique_for_overwrite<char[]>(width_ + std::size_t{1});
    if (width_ > 0) std::memcpy(bits(), letters.data(), width_);
    bits()[width_] = '\0';
}

Value::Value(const Value& other) : inlineBits_(other.inlineBits_), width_(other.width_) {
    if (!other.heapBits_) return;
    heapBits_ = std::make_unique_for_overwrite<char[]>(width_ + std::size_t{1});
    std::memcpy(heapBits_.get(), other.heapBits_.get(), width_ + std::size_t{1});
}

Value::Value(Value&& other) noexcept
    : heapBits_(std::move(other.heapBits_)), inlineBits_(other.inlineBits_), width_(other.width_) {
    if (!heapBits_) return;
    other.width_ = 0;  // its letters are here now
    other.inlineBits_[0] = '\0';
}

Value Value::operator=(std::string_view text) {
    if (width_ == 0) resize(static_cast<std::uint32_t>(text.size()));
    assignText(text);
    return *this;
}

Value Value::operator=(const Value& other) {
    if (width_ == 0) resize(other.width_);
    if (width_ < other.width_) throw std::length_error(format("Initializer mismatch %d vs %d", other.width_, width_));
    if (width_ == other.width_) {
        std::memmove(bits(), other.c_str(), width_);
        return *this;
    }
    const std::string_view source = other.letters();
    const std::size_t pad = width_ - source.size();
    std::memset(bits(), padLetterFor(source), pad);
    std::reverse_copy(source.begin(), source.end(), bits() + pad);
    return *this;
}

Value Value::operator=(char bit) {
    if (width_ == 0) resize(1);
    fill(bit == kUndefinedBit ? kUndefinedBit : 'L');
    (*this)[0] = bit;
    return *this;
}

Value Value::setNumber(std::int32_t n) {
    const auto limit = static_cast<std::int32_t>(1U << (width_ % 32U));
    if (limit <= n) throw std::out_of_range("Number cannot be represented in value");
    for (std::uint32_t i = 0; i < width_; ++i) {
        const bool isSet = ((static_cast<std::uint32_t>(n) >> (i % 32U)) & 1U) != 0;
        (*this)[i] = isSet ? 'H' : 'L';
    }
    return *this;
}

Value Value::setHex(std::string_view text) {
    assignText(hexToBits(text));
    return *this;
}

Value Value::fill(char bit) {
    std::memset(bits(), bit, width_);
    return *this;
}

Value Value::resize(std::uint32_t width) {
    width_ = static_cast<std::uint8_t>(width);
    heapBits_ = width_ > kInlineWidth ? std::make_unique_for_overwrite<char[]>(width_ + std::size_t{1}) : nullptr;
    bits()[width_] = '\0';
    return setUndefined();
}

void Value::assignText(std::string_view text) {
    if (text.size() > width_) {
        throw std::length_error(
            format("Initializer '%s' too long for type (Value %d).", std::string(text).c_str(), width_));
    }
    const std::size_t pad = width_ - text.size();
    const char padLetter = padLetterFor(text);
    if (!text.empty()) std::memmove(bits() + pad, text.data(), text.size());  // an empty view may point nowhere
    std::memset(bits(), padLetter, pad);
}

char& Value::operator[](std::size_t i) {
    return const_cast<char&>(std::as_const(*this).bitAt(i));
}

char Value::operator[](std::size_t i) const {
    return bitAt(i);
}

const char& Value::bitAt(std::size_t i) const {
    if (i >= width_) {
        throw std::out_of_range(format("Value: Index %d larger than size %d", static_cast<int>(i), width_));
    }
    return c_str()[width_ - 1 - i];
}

Value::operator char() const {
    if (width_ != 1) throw std::bad_cast();
    return inlineBits_[0];
}

bool Value::isDefined() const {
    return std::ranges::none_of(letters(), isUndefinedLetter);
}

bool Value::isAllUndefined() const {
    return letters().find_first_not_of(kUndefinedBit) == std::string_view::npos;
}

std::uint32_t Value::toNumber() const {
    std::uint32_t number = 0;
    for (const char bit : letters()) {
        if (isUndefinedLetter(bit)) throw std::domain_error(format("Cannot interpret '%c' as a binary digit.", bit));
        number = number * 2 + (bit == 'H' ? 1 : 0);
    }
    return number;
}

std::string Value::toHexText() const {
    return format("%x", toNumber());
}

std::string Value::toDisplayText() const {
    return isDefined() ? toHexText() : std::string(letters());
}

bool Value::operator==(const Value& other) const {
    // The other's terminator is part of the comparison, so that a shorter value differs from this one.
    const std::string_view text = letters();
    return text.size() <= other.width_ + std::size_t{1} && std::memcmp(text.data(), other.c_str(), text.size()) == 0;
}

bool Value::matches(std::string_view expected) const {
    if (expected == "X") return true;
    const auto fits = [](char letter, char wanted) {
        return wanted == 'X' ||
               std::toupper(static_cast<unsigned char>(letter)) == std::toupper(static_cast<unsigned char>(wanted));
    };
    return std::ranges::equal(letters(), expected, fits);
}

std::string Value::hexToBits(std::string_view text) {
    std::string bits(text.size() * 4, '\0');
    char* end = bits.data();
    for (const char c : text) {
        if (isHexDigit(c)) {
            end = std::ranges::copy(kDigitBits[digitValue(c)], end).out;
        } else {
            *end++ = c;
        }
    }
    bits.resize(static_cast<std::size_t>(end - bits.data()));
    return bits;
}

std::string Value::bitsToHex(std::string_view text, bool grouped) {
    const std::size_t groups = text.size() / 4;
    const std::size_t leftOver = text.size() % 4;
    if (groups == 0) return std::string(text);

    std::string digits;
    for (std::size_t group = 0; group < groups; ++group) {
        const char digit = digitOf(text.substr(leftOver + group * 4, 4));
        if (digit == '\0') return std::string(text);
        // Pairs are counted from the right end, and no digit stands alone in front of them: three digits stay together.
        const bool startsPair = group > 1 && (groups - group) % 2 == 0;
        if (grouped && startsPair) digits += ' ';
        digits += digit;
    }

    std::string result(text.substr(0, leftOver));
    for (char& letter : result) {
        if (letter != 'H' && letter != 'L')
            letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return result + (grouped ? " " : "") + digits;
}

std::ostream& operator<<(std::ostream& stream, const Value& value) {
    return stream << value.c_str();
}

}  // namespace tarnsim
