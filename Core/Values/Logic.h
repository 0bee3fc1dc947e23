#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "Core/Values/Value.h"

namespace tarnsim {

/// The gate operations, bit by bit over two values of one width; the result is a new value of that width. Only `U`
/// counts as unknown: `Z` and `X` act as `H` in And and Nand, as `L` in Or and Nor, as neither in Xor and Xnor, and Not
/// makes `L` of them. (An input that floats reads `U` through its port long before it gets here.)
///
/// Raises Error if the widths differ.
class Logic {
public:
    virtual ~Logic() = default;

    static Value And(const Value& a, const Value& b) { return combine(a, b, kAnd); }
    static Value Nand(const Value& a, const Value& b) { return combine(a, b, kNand); }
    static Value Or(const Value& a, const Value& b) { return combine(a, b, kOr); }
    static Value Nor(const Value& a, const Value& b) { return combine(a, b, kNor); }
    static Value Xor(const Value& a, const Value& b) { return combine(a, b, kXor); }
    static Value Xnor(const Value& a, const Value& b) { return combine(a, b, kXnor); }
    static Value Not(const Value& a);

    // The same for single letters.

    using LetterRow = std::array<char, 5>;
    using LetterTable = std::array<LetterRow, 5>;

    static constexpr char combine(char a, char b, const LetterTable& table) { return table[indexOf(a)][indexOf(b)]; }
    static constexpr char Not(char a) { return kNot[indexOf(a)]; }

    // clang-format off
    //                                       b =    L    H    U    Z    X
    static constexpr LetterTable kAnd  = {{{'L', 'L', 'L', 'L', 'L'},    // a = L
                                           {'L', 'H', 'U', 'H', 'H'},    //     H
                                           {'L', 'U', 'U', 'U', 'U'},    //     U
                                           {'L', 'H', 'U', 'H', 'H'},    //     Z
                                           {'L', 'H', 'U', 'H', 'H'}}};  //     X

    static constexpr LetterTable kNand = {{{'H', 'H', 'H', 'H', 'H'},
                                           {'H', 'L', 'U', 'L', 'L'},
                                           {'H', 'U', 'U', 'U', 'U'},
                                           {'H', 'L', 'U', 'L', 'L'},
                                           {'H', 'L', 'U', 'L', 'L'}}};

    static constexpr LetterTable kOr   = {{{'L', 'H', 'U', 'L', 'L'},
                                           {'H', 'H', 'H', 'H', 'H'},
                                           {'U', 'H', 'U', 'U', 'U'},
                                           {'L', 'H', 'U', 'L', 'L'},
                                           {'L', 'H', 'U', 'L', 'L'}}};

    static constexpr LetterTable kNor  = {{{'H', 'L', 'U', 'H', 'H'},
                                           {'L', 'L', 'L', 'L', 'L'},
                                           {'U', 'L', 'U', 'U', 'U'},
                                           {'H', 'L', 'U', 'H', 'H'},
                                           {'H', 'L', 'U', 'H', 'H'}}};

    static constexpr LetterTable kXor  = {{{'L', 'H', 'U', 'L', 'L'},
                                           {'H', 'L', 'U', 'L', 'L'},
                                           {'U', 'U', 'U', 'U', 'U'},
                                           {'L', 'L', 'U', 'L', 'L'},
                                           {'L', 'L', 'U', 'L', 'L'}}};

    static constexpr LetterTable kXnor = {{{'H', 'L', 'U', 'H', 'H'},
                                           {'L', 'H', 'U', 'H', 'H'},
                                           {'U', 'U', 'U', 'U', 'U'},
                                           {'H', 'H', 'U', 'H', 'H'},
                                           {'H', 'H', 'U', 'H', 'H'}}};

    static constexpr LetterRow kNot    =   {'H', 'L', 'U', 'L', 'L'};
    // clang-format on

private:
    static constexpr std::uint8_t kIndexOfX = 4;
    /// The row or column of each letter. What is none of the five is as little a level as X is.
    static constexpr std::array<std::uint8_t, 256> kIndices = [] {
        std::array<std::uint8_t, 256> indices{};
        indices.fill(kIndexOfX);
        indices['L'] = 0;
        indices['H'] = 1;
        indices['U'] = 2;
        indices['Z'] = 3;
        return indices;
    }();
    static constexpr std::size_t indexOf(char letter) { return kIndices[static_cast<unsigned char>(letter)]; }

    static Value combine(const Value& a, const Value& b, const LetterTable& table);
};

}  // namespace tarnsim
