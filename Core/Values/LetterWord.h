#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tarnsim {

/// Eight letters in a machine word, so that what happens to all bits of a bus alike happens to eight of them at once.
/// The first letter, that of the most significant bit, is the lowest byte.
class LetterWord {
public:
    static constexpr std::size_t kLetters = 8;

    constexpr LetterWord() = default;
    constexpr explicit LetterWord(std::uint64_t bytes) : bytes_(bytes) {}

    static constexpr LetterWord allOf(char letter) { return LetterWord(kOnes * static_cast<unsigned char>(letter)); }
    /// The levels of a byte.
    static constexpr LetterWord ofNumber(std::uint8_t number) {
        // Byte i keeps bit 7 - i, which then becomes the one bit by which H differs from L.
        constexpr std::uint64_t kOwnBits = 0x0102'0408'1020'4080;
        const std::uint64_t bits = (kOnes * number) & kOwnBits;
        return LetterWord(kOnes * 'L' - (((bits + kOnes * 0x7F) >> 7U) & kOnes) * ('L' - 'H'));
    }
    /// `count` letters, at most 8; the bytes behind them are 0.
    static LetterWord load(const char* letters, std::size_t count) {
        if (count == kLetters) return LetterWord(read<std::uint64_t>(letters));
        // Two halves that may overlap: a copy of `count` letters would be a call.
        if (count >= 4) {
            const std::uint64_t rest = read<std::uint32_t>(letters + count - 4);
            return LetterWord(read<std::uint32_t>(letters) | rest << (8 * (count - 4)));
        }
        std::uint64_t bytes = 0;
        for (std::size_t i = 0; i < count; ++i)
            bytes |= std::uint64_t{static_cast<unsigned char>(letters[i])} << (8 * i);
        return LetterWord(bytes);
    }
    void store(char* letters, std::size_t count) const {
        const std::uint64_t bytes = firstLowest(bytes_);
        if (count == kLetters) {
            std::memcpy(letters, &bytes, kLetters);  // of a known length, so no call
        } else {
            std::memcpy(letters, &bytes, count);
        }
    }

    constexpr std::uint64_t bytes() const { return bytes_; }
    constexpr bool operator==(const LetterWord&) const = default;

    // Masks: 0xFF for each letter of which something is true, 0 for the others.

    constexpr std::uint64_t equalTo(LetterWord other) const {
        constexpr std::uint64_t kLow = kOnes * 0x7F;
        const std::uint64_t difference = bytes_ ^ other.bytes_;
        const std::uint64_t isDifferent = (((difference & kLow) + kLow) | difference) & ~kLow;  // in bit 7
        return ~((isDifferent >> 7U) * 0xFF);
    }
    constexpr std::uint64_t equalTo(char letter) const { return equalTo(allOf(letter)); }
    /// H differs from L in one bit.
    constexpr std::uint64_t levels() const {
        static_assert(('L' | 'H') == 'L');
        return LetterWord(bytes_ | (kOnes * ('L' ^ 'H'))).equalTo('L');
    }
    /// The first `count`, at most 8.
    static constexpr std::uint64_t first(std::size_t count) {
        return count == kLetters ? ~std::uint64_t{0} : (std::uint64_t{1} << (8 * count)) - 1;
    }

    /// REQUIRES: all eight are levels
    constexpr std::uint8_t toNumber() const {
        // Brings the bits of the eight bytes together in the highest one, the first byte's on top.
        constexpr std::uint64_t kGather = 0x8040'2010'0804'0201;
        const std::uint64_t isHigh = (~bytes_ >> 2U) & kOnes;
        return static_cast<std::uint8_t>((isHigh * kGather) >> 56U);
    }

    /// A 1 in each byte.
    static constexpr std::uint64_t kOnes = 0x0101'0101'0101'0101;

private:
    static constexpr std::uint64_t firstLowest(std::uint64_t bytes) {
        return std::endian::native == std::endian::big ? __builtin_bswap64(bytes) : bytes;
    }
    template <class Bytes>
    static std::uint64_t read(const char* letters) {
        Bytes bytes;  // NOLINT(cppcoreguidelines-init-variables): filled next
        std::memcpy(&bytes, letters, sizeof(bytes));
        return firstLowest(bytes) >> (std::endian::native == std::endian::big ? 64 - 8 * sizeof(bytes) : 0);
    }

    std::uint64_t bytes_ = 0;
};

}  // namespace tarnsim
