#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace tarnsim {

/// What one bit holds when nothing was ever put on it.
inline constexpr char kUndefinedBit = 'U';

/// The most bits that a value can have.
inline constexpr std::uint32_t kMaxValueWidth = 255;

/// X, Z and U say nothing about a level. (Letters in lower case aren't folded.)
constexpr bool isUndefinedLetter(char bit) {
    return bit == 'U' || bit == 'Z' || bit == 'X';
}

/// High or low.
constexpr bool isLevel(char bit) {
    return bit == 'H' || bit == 'L';
}

/// A vector of 0 to 255 logic bits, one letter a bit:
///
///   L  low                       H  high
///   U  undefined: nothing known, contention, or not yet set
///   Z  not driven                X  in an expected value a wild card, else undefined
///
/// The letters are a NUL-terminated text, most significant bit first, so bit `i` stands at position `width - 1 - i`,
/// and a value prints as it is. Letters aren't checked: whatever a text holds is stored. Up to 22 bits live inside the
/// object, so the values of gates, byte and address buses never touch the heap. A value of width 0 holds nothing yet
/// and takes the width of the first thing assigned to it; after that only `resize` changes the width. Widths of longer
/// texts wrap modulo 256.
///
/// Raises standard exceptions, not Error: std::length_error, std::out_of_range, std::domain_error, std::bad_cast.
/// A failed assignment leaves the letters as they were.
class Value {
public:
    /// Every bit `U`.
    explicit Value(std::uint32_t width = 0);
    /// `bit` at the right end, padded on the left as a text is: `Value('H', 4)` is LLLH, `Value('Z', 4)` is UUUZ.
    Value(char bit, std::uint32_t width);
    /// `text` at the right end, padded on the left with `L`, or with `U` if it holds an undefined letter. A width of 0
    /// stands for the text's length. Raises std::length_error if the text is longer than the width.
    explicit Value(std::string_view text, std::uint32_t width = 0);

    /// `letters` as they stand, and as many bits.
    static Value ofLetters(std::string_view letters) { return Value(letters, AsTheyStand()); }

    virtual ~Value() = default;
    Value(const Value& other);
    Value(Value&& other) noexcept;

    // Assignments give a copy of the result, not a reference: the result can't be used to change the target.

    /// As the constructor from a text, within the width that is there.
    Value operator=(std::string_view text);
    /// Raises std::length_error if `other` is wider. A narrower one is padded as a text is, but mirrored: its bit 0
    /// becomes the leftmost of the copied bits.
    Value operator=(const Value& other);
    /// `bit` in bit 0. All others become `U` if `bit` is `U`, and `L` if not: `Z` in four bits gives LLLZ.
    Value operator=(char bit);
    /// The number in two's complement. Raises std::out_of_range unless `n` is below 1 << (width mod 32), taken in
    /// signed 32 bits: a width of 31 refuses every number, a width of 32 all above 0, a negative `n` passes up to
    /// width 30.
    Value setNumber(std::int32_t n);
    /// Hexadecimal digits and bit letters, as hexToBits reads them.
    Value setHex(std::string_view text);
    Value setUndefined() { return fill(kUndefinedBit); }
    Value fill(char bit);
    /// Takes the new width and forgets every bit.
    Value resize(std::uint32_t width);

    std::uint32_t width() const { return width_; }

    /// Bit `i`, 0 being the rightmost. Raises std::out_of_range.
    char& operator[](std::size_t i);
    char operator[](std::size_t i) const;

    /// The letter of a one-bit value; raises std::bad_cast for any other width.
    operator char() const;  // NOLINT(google-explicit-constructor): reading a pin as a letter is what parts are made of

    /// The letters, valid until the value changes.
    const char* c_str() const { return heapBits_ ? heapBits_.get() : inlineBits_.data(); }
    std::string_view letters() const { return {c_str(), width_}; }

    /// No bit is an undefined letter. True for width 0.
    bool isDefined() const;
    /// Every bit is `U`. True for width 0.
    bool isAllUndefined() const;
    bool contains(char bit) const { return letters().find(bit) != std::string_view::npos; }

    /// The value as an unsigned number; bits above 32 are lost. Raises std::domain_error for an undefined letter.
    std::uint32_t toNumber() const;
    /// The number in lower-case hexadecimal, without leading zeros or prefix.
    std::string toHexText() const;
    /// The same, or the letters if one of them is undefined.
    std::string toDisplayText() const;

    /// One bit, and it is `bit`: a wider value is unequal to every letter.
    bool operator==(char bit) const { return width_ == 1 && inlineBits_[0] == bit; }
    bool operator!=(char bit) const { return !(*this == bit); }
    /// As above; `X` as `bit` fits every one-bit value.
    bool isBit(char bit) const { return *this == bit || (width_ == 1 && bit == 'X'); }

    /// Compares as many letters as this value has: a value equals every longer one that begins with it, and a value of
    /// width 0 equals everything. Where widths are equal, as in a history, this is plain equality.
    bool operator==(const Value& other) const;
    bool operator!=(const Value& other) const { return !(*this == other); }
    bool operator==(std::string_view text) const { return letters() == text; }
    bool operator!=(std::string_view text) const { return letters() != text; }

    /// Whether this output is what `expected` asks for: a lone `X` fits any width; else the lengths must agree, `X`
    /// fits every letter, and all else must be equal but for case.
    bool matches(std::string_view expected) const;

    /// Every hexadecimal digit becomes four letters; all else stays. "1Z" gives LLLHZ.
    static std::string hexToBits(std::string_view text);

    /// The inverse: groups of four letters, counted from the right, become digits (UUUU, ZZZZ and XXXX become U, Z, X).
    /// The letters that are left over in front stand as they are, in lower case unless H or L. If one group has no
    /// digit, the whole text stays as it is. `grouped` writes the digits in pairs with a blank in front of each.
    static std::string bitsToHex(std::string_view text, bool grouped);

private:
    static constexpr std::uint32_t kInlineWidth = 22;

    struct AsTheyStand {};
    Value(std::string_view letters, AsTheyStand /*unused*/);

    char* bits() { return heapBits_ ? heapBits_.get() : inlineBits_.data(); }
    const char& bitAt(std::size_t i) const;
    void assignText(std::string_view text);

    std::unique_ptr<char[]> heapBits_;  ///< width + 1 characters if the width is above kInlineWidth, else null
    std::array<char, kInlineWidth + 1> inlineBits_{};
    std::uint8_t width_ = 0;
};

/// The letters.
std::ostream& operator<<(std::ostream& stream, const Value& value);

}  // namespace tarnsim
