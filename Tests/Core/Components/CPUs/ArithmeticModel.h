#pragma once

// Arithmetic of the 6502 family as a book explains it: carries and digits in plain numbers, flags as truths.

namespace tarnsim {

struct Sum {
    int a;
    bool n, v, z, c;
    bool operator==(const Sum&) const = default;
};

inline int asSigned(int byte) {
    return byte < 128 ? byte : byte - 256;
}
inline Sum withFlagsOf(int result, bool v, bool c) {
    const int a = (result + 512) % 256;
    return {a, a >= 128, v, a == 0, c};
}

inline Sum addedBinary(int a, int v, int carry) {
    const int exact = asSigned(a) + asSigned(v) + carry;
    return withFlagsOf(a + v + carry, exact < -128 || exact > 127, a + v + carry > 255);
}
inline Sum subtractedBinary(int a, int v, int carry) {
    const int exact = asSigned(a) - asSigned(v) - (1 - carry);
    return withFlagsOf(a - v - (1 - carry), exact < -128 || exact > 127, a >= v + 1 - carry);
}

/// Digit by digit. N and V see the high digit before it is corrected, Z sees the binary sum.
inline Sum addedDecimal(int a, int v, int carry) {
    int low = a % 16 + v % 16 + carry;
    const bool carries = low >= 10;
    if (carries) low = (low + 6) % 16;
    const int sixteens = (a / 16 + v / 16 + (carries ? 1 : 0)) * 16;
    const int exact = asSigned(a / 16 * 16) + asSigned(v / 16 * 16) + (carries ? 16 : 0);
    const bool isOver = sixteens >= 160;
    const int result = sixteens + low + (isOver ? 96 : 0);
    return {result % 256, sixteens % 256 >= 128, exact < -128 || exact > 127, (a + v + carry) % 256 == 0, isOver};
}
/// All flags are those of the binary difference.
inline Sum subtractedDecimal(int a, int v, int carry) {
    int low = a % 16 - v % 16 - (1 - carry);
    const bool borrows = low < 0;
    if (borrows) low = (low + 32 - 6) % 16;
    int high = a / 16 - v / 16 - (borrows ? 1 : 0);
    if (high < 0) high = high + 32 - 6;
    Sum result = subtractedBinary(a, v, carry);
    result.a = high % 16 * 16 + low;
    return result;
}

/// AND, then a rotation to the right.
inline Sum andRotatedBinary(int a, int v, int carry) {
    const int rotated = (a & v) / 2 + 128 * carry;
    const bool bit6 = rotated / 64 % 2 == 1;
    const bool bit5 = rotated / 32 % 2 == 1;
    return withFlagsOf(rotated, bit6 != bit5, bit6);
}
/// The rotation's flags, then each digit of the AND that would round to above 5 has its place corrected.
inline Sum andRotatedDecimal(int a, int v, int carry) {
    const int anded = a & v;
    const int rotated = anded / 2 + 128 * carry;
    const int high = anded / 16;
    const int low = anded % 16;
    int lowResult = rotated % 16;
    int highResult = rotated / 16;
    if (low + low % 2 > 5) lowResult = (lowResult + 6) % 16;
    const bool isOver = high + high % 2 > 5;
    if (isOver) highResult = (highResult + 6) % 16;
    const bool bit6Changed = (anded / 64 % 2) != (rotated / 64 % 2);
    return {highResult * 16 + lowResult, carry == 1, bit6Changed, rotated == 0, isOver};
}

}  // namespace tarnsim
