#include "Core/Values/Logic.h"

#include <array>
#include <cstddef>

#include "Core/Support/Error.h"

namespace tarnsim {

namespace {

using LetterRow = std::array<char, 5>;
using LetterTable = std::array<LetterRow, 5>;

// clang-format off
//                         b =    L    H    U    Z    X
constexpr LetterTable kAnd  = {{{'L', 'L', 'L', 'L', 'L'},    // a = L
                                {'L', 'H', 'U', 'H', 'H'},    //     H
                                {'L', 'U', 'U', 'U', 'U'},    //     U
                                {'L', 'H', 'U', 'H', 'H'},    //     Z
                                {'L', 'H', 'U', 'H', 'H'}}};  //     X

constexpr LetterTable kNand = {{{'H', 'H', 'H', 'H', 'H'},
                                {'H', 'L', 'U', 'L', 'L'},
                                {'H', 'U', 'U', 'U', 'U'},
                                {'H', 'L', 'U', 'L', 'L'},
                                {'H', 'L', 'U', 'L', 'L'}}};

constexpr LetterTable kOr   = {{{'L', 'H', 'U', 'L', 'L'},
                                {'H', 'H', 'H', 'H', 'H'},
                                {'U', 'H', 'U', 'U', 'U'},
                                {'L', 'H', 'U', 'L', 'L'},
                                {'L', 'H', 'U', 'L', 'L'}}};

constexpr LetterTable kNor  = {{{'H', 'L', 'U', 'H', 'H'},
                                {'L', 'L', 'L', 'L', 'L'},
                                {'U', 'L', 'U', 'U', 'U'},
                                {'H', 'L', 'U', 'H', 'H'},
                                {'H', 'L', 'U', 'H', 'H'}}};

constexpr LetterTable kXor  = {{{'L', 'H', 'U', 'L', 'L'},
                                {'H', 'L', 'U', 'L', 'L'},
                                {'U', 'U', 'U', 'U', 'U'},
                                {'L', 'L', 'U', 'L', 'L'},
                                {'L', 'L', 'U', 'L', 'L'}}};

constexpr LetterTable kXnor = {{{'H', 'L', 'U', 'H', 'H'},
                                {'L', 'H', 'U', 'H', 'H'},
                                {'U', 'U', 'U', 'U', 'U'},
                                {'H', 'H', 'U', 'H', 'H'},
                                {'H', 'H', 'U', 'H', 'H'}}};

constexpr LetterRow kNot    =   {'H', 'L', 'U', 'L', 'L'};
// clang-format on

/// The row or column of a letter. What is none of the five is as little a level as X is.
constexpr std::size_t indexOf(char letter) {
    switch (letter) {
        case 'L': return 0;
        case 'H': return 1;
        case 'U': return 2;
        case 'Z': return 3;
        default: return 4;
    }
}

Value combine(const Value& a, const Value& b, const LetterTable& table) {
    if (a.width() != b.width()) throw Error("Mismatching value sizes. ");
    Value result(a);
    for (std::size_t i = 0; i < result.width(); ++i) result[i] = table[indexOf(a[i])][indexOf(b[i])];
    return result;
}

}  // namespace

Value Logic::And(const Value& a, const Value& b) {
    return combine(a, b, kAnd);
}

Value Logic::Nand(const Value& a, const Value& b) {
    return combine(a, b, kNand);
}

Value Logic::Or(const Value& a, const Value& b) {
    return combine(a, b, kOr);
}

Value Logic::Nor(const Value& a, const Value& b) {
    return combine(a, b, kNor);
}

Value Logic::Xor(const Value& a, const Value& b) {
    return combine(a, b, kXor);
}

Value Logic::Xnor(const Value& a, const Value& b) {
    return combine(a, b, kXnor);
}

Value Logic::Not(const Value& a) {
    Value result(a);
    for (std::size_t i = 0; i < result.width(); ++i) result[i] = kNot[indexOf(a[i])];
    return result;
}

}  // namespace tarnsim
