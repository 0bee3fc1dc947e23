#include <cctype>
#include <limits>
#include <map>
#include <regex>
#include <stdexcept>

#include "Core/Values/Value.h"
#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

TEST(ValueNumbers, AreReadFromLeftToRight) {
    const std::pair<std::string, std::uint32_t> cases[] = {
        {"", 0}, {"H", 1}, {"HLL", 4}, {"LHLH", 5}, {"hH", 1}, {"q?H", 1}, {std::string(32, 'H'), 4294967295}};
    for (const auto& [letters, number] : cases) EXPECT_EQ(Value(letters).toNumber(), number) << letters;
}

TEST(ValueNumbers, LoseTheBitsAbove32) {
    EXPECT_EQ(Value("H" + std::string(32, 'L')).toNumber(), 0U);
    EXPECT_EQ(Value("HHH" + std::string(29, 'L') + "HLH").toNumber(), 5U);
}

TEST(ValueNumbers, CannotBeReadFromUndefinedLetters) {
    const auto domainErrorOf = [](const char* letters) {
        return standardExceptionOf<std::domain_error>([&] { Value(letters).toNumber(); });
    };
    EXPECT_EQ(domainErrorOf("HZ"), "Cannot interpret 'Z' as a binary digit.");
    EXPECT_EQ(domainErrorOf("HU"), "Cannot interpret 'U' as a binary digit.");
    EXPECT_EQ(domainErrorOf("XZ"), "Cannot interpret 'X' as a binary digit.");
    EXPECT_EQ(standardExceptionOf<std::domain_error>([] { Value("LU").toHexText(); }),
              "Cannot interpret 'U' as a binary digit.");
}

TEST(ValueNumbers, AreShownInLowerCaseHexadecimal) {
    EXPECT_EQ(Value("HHHHHLHL").toHexText(), "fa");
    EXPECT_EQ(Value("LLLL").toHexText(), "0");
    EXPECT_EQ(Value().toHexText(), "0");
    EXPECT_EQ(Value("HHHHHLHL").toDisplayText(), "fa");
    EXPECT_EQ(Value("HHHHHLHZ").toDisplayText(), "HHHHHLHZ");
    EXPECT_EQ(Value("UU").toDisplayText(), "UU");
    EXPECT_EQ(Value("XL").toDisplayText(), "XL");
}

/// The letters after setNumber, or the message.
std::string afterSetNumber(std::uint32_t width, std::int32_t number) {
    Value value(width);
    const std::string message = standardExceptionOf<std::out_of_range>([&] { value.setNumber(number); });
    return message == "(none)" ? value.c_str() : message;
}

const std::string kRefused = "Number cannot be represented in value";

TEST(ValueNumbers, AreSetUpToTheLargestOfTheWidth) {
    EXPECT_EQ(afterSetNumber(4, 15), "HHHH");
    EXPECT_EQ(afterSetNumber(4, 16), kRefused);
    EXPECT_EQ(afterSetNumber(4, 6), "LHHL");
    EXPECT_EQ(afterSetNumber(1, 1), "H");
    EXPECT_EQ(afterSetNumber(1, 2), kRefused);
    EXPECT_EQ(afterSetNumber(30, (1 << 30) - 1), std::string(30, 'H'));
    EXPECT_EQ(afterSetNumber(30, 1 << 30), kRefused);
    EXPECT_EQ(afterSetNumber(0, 0), "");
    EXPECT_EQ(afterSetNumber(0, 1), kRefused);
}

TEST(ValueNumbers, AreSetInTwosComplementWhenNegative) {
    EXPECT_EQ(afterSetNumber(4, -1), "HHHH");
    EXPECT_EQ(afterSetNumber(4, -2), "HHHL");
    EXPECT_EQ(afterSetNumber(4, -16), "LLLL");
    EXPECT_EQ(afterSetNumber(30, -1), std::string(30, 'H'));
    EXPECT_EQ(afterSetNumber(30, kLeast), std::string(30, 'L'));
    EXPECT_EQ(afterSetNumber(0, -1), "");
}

TEST(ValueNumbers, AreAllRefusedByAWidthOf31) {
    for (const std::int32_t number : {kLeast, -1, 0, 1, kMost}) EXPECT_EQ(afterSetNumber(31, number), kRefused);
    EXPECT_EQ(afterSetNumber(63, 0), kRefused);
}

TEST(ValueNumbers, AreTakenBelow1ByAWidthOf32) {
    EXPECT_EQ(afterSetNumber(32, 0), std::string(32, 'L'));
    EXPECT_EQ(afterSetNumber(32, 1), kRefused);
    EXPECT_EQ(afterSetNumber(32, -1), std::string(32, 'H'));
    EXPECT_EQ(afterSetNumber(32, kLeast), "H" + std::string(31, 'L'));
}

TEST(ValueNumbers, RepeatTheirBitsAboveAWidthOf32) {
    EXPECT_EQ(afterSetNumber(33, 1), "H" + std::string(31, 'L') + "H");
    EXPECT_EQ(afterSetNumber(33, 2), kRefused);
    EXPECT_EQ(afterSetNumber(36, 10), "HLHL" + std::string(28, 'L') + "HLHL");
    EXPECT_EQ(afterSetNumber(64, 0), std::string(64, 'L'));
    EXPECT_EQ(afterSetNumber(64, 1), kRefused);
}

TEST(ValueNumbers, AreReadBack) {
    for (std::int32_t number = 0; number < 1024; ++number) {
        EXPECT_EQ(Value(10).setNumber(number).toNumber(), static_cast<std::uint32_t>(number));
    }
}

TEST(ValueHex, IsSetWithinTheWidth) {
    Value value(8);
    value.setHex("a5");
    EXPECT_STREQ(value.c_str(), "HLHLLHLH");
    value.setHex("1Z");
    EXPECT_STREQ(value.c_str(), "UUULLLHZ");
    value.setHex("F");
    EXPECT_STREQ(value.c_str(), "LLLLHHHH");
    EXPECT_EQ(standardExceptionOf<std::length_error>([&] { value.setHex("1FF"); }),
              "Initializer 'LLLHHHHHHHHH' too long for type (Value 8).");
    Value none;
    EXPECT_EQ(standardExceptionOf<std::length_error>([&] { none.setHex("1"); }),
              "Initializer 'LLLH' too long for type (Value 0).");
}

TEST(ValueHex, TurnsEachDigitIntoFourLetters) {
    EXPECT_EQ(Value::hexToBits("01234567"), "LLLLLLLHLLHLLLHHLHLLLHLHLHHLLHHH");
    EXPECT_EQ(Value::hexToBits("89ABCDEF"), "HLLLHLLHHLHLHLHHHHLLHHLHHHHLHHHH");
    EXPECT_EQ(Value::hexToBits("abcdef"), "HLHLHLHHHHLLHHLHHHHLHHHH");
    EXPECT_EQ(Value::hexToBits("1Z"), "LLLHZ");
    EXPECT_EQ(Value::hexToBits("HLUZXhluzx ~g"), "HLUZXhluzx ~g");
    EXPECT_EQ(Value::hexToBits(""), "");
}

/// The digits' table as it is written down: one replacement after the other.
std::string replacedHex(std::string text) {
    static const std::pair<const char*, const char*> kRows[] = {
        {"0", "LLLL"},    {"1", "LLLH"},    {"2", "LLHL"},    {"3", "LLHH"},   {"4", "LHLL"},    {"5", "LHLH"},
        {"6", "LHHL"},    {"7", "LHHH"},    {"8", "HLLL"},    {"9", "HLLH"},   {"[Aa]", "HLHL"}, {"[Bb]", "HLHH"},
        {"[Cc]", "HHLL"}, {"[Dd]", "HHLH"}, {"[Ee]", "HHHL"}, {"[Ff]", "HHHH"}};
    for (const auto& [pattern, letters] : kRows) text = std::regex_replace(text, std::regex(pattern), letters);
    return text;
}

TEST(ValueHex, IsReadAsTheRowsOfItsTableReplaceIt) {
    RandomTexts texts(piecesOf("0123456789abcdefABCDEFgGHLUZXhluzx ~$&\\"), 6);
    for (int i = 0; i < 500; ++i) {
        const std::string text = texts.next();
        ASSERT_EQ(Value::hexToBits(text), replacedHex(text));
    }
}

struct HexCase {
    const char* letters;
    const char* plain;
    const char* grouped;
};

TEST(ValueHex, IsWrittenFromTheRight) {
    const HexCase cases[] = {
        {"", "", ""},
        {"Z", "Z", "Z"},
        {"HUX", "HUX", "HUX"},
        {"LLLL", "0", " 0"},
        {"LLLLHHHH", "0F", " 0F"},
        {"HLLLLHHHH", "H0F", "H 0F"},
        {"ZZZZHLHL", "ZA", " ZA"},
        {"XXXXUUUU", "XU", " XU"},
        {"ZLLL", "ZLLL", "ZLLL"},
        {"HHHHZLLL", "HHHHZLLL", "HHHHZLLL"},
        {"ZLLLHHHH", "ZLLLHHHH", "ZLLLHHHH"},
        {"LLLHLLHLLLHH", "123", " 123"},
        {"LLLLHHHHLLLLHHHH", "0F0F", " 0F 0F"},
        {"LLLHLLHLLLHHLHLLLHLH", "12345", " 123 45"},
        {"LLLHLLHLLLHHLHLLLHLHLHHL", "123456", " 12 34 56"},
        {"ZXUHHHH", "zxuF", "zxu F"},
        {"LHZHHHH", "LHzF", "LHz F"},
        {"hhhh", "hhhh", "hhhh"},
    };
    for (const auto& [letters, plain, grouped] : cases) {
        EXPECT_EQ(Value::bitsToHex(letters, false), plain) << letters;
        EXPECT_EQ(Value::bitsToHex(letters, true), grouped) << letters;
    }
}

std::map<std::string, std::string> digitsByLetters() {
    std::map<std::string, std::string> digits = {{"XXXX", "X"}, {"ZZZZ", "Z"}, {"UUUU", "U"}};
    for (const char digit : std::string("0123456789ABCDEF")) digits[replacedHex({digit})] = digit;
    return digits;
}

/// The same, step by step from the right end.
std::string walkedHex(const std::string& text, bool grouped) {
    static const std::map<std::string, std::string> kDigits = digitsByLetters();
    const std::size_t groups = text.size() / 4;
    if (groups == 0) return text;
    std::string remaining = text;
    std::string result;
    std::size_t found = 0;
    for (std::size_t i = 0; i < groups; ++i) {
        std::string chunk = remaining.substr(remaining.size() - 4);
        remaining.resize(remaining.size() - 4);
        if (const auto digit = kDigits.find(chunk); digit != kDigits.end()) {
            chunk = digit->second;
            ++found;
        }
        result.insert(0, chunk);
        if (grouped && found >= 1 && found % 2 == 0 && found < groups - 1) result.insert(0, " ");
    }
    if (found != groups) return text;
    for (char& letter : remaining) {
        if (letter != 'H' && letter != 'L') letter = static_cast<char>(std::tolower(letter));
    }
    return remaining + (grouped ? " " : "") + result;
}

TEST(ValueHex, IsWrittenAsAWalkFromTheRightWritesIt) {
    RandomTexts texts({"LLLH", "HLHL", "HHHH", "LLLL", "UUUU", "ZZZZ", "XXXX", "HHLL", "LHHH", "LLHL", "H", "Z"}, 9);
    std::size_t converted = 0;
    for (int i = 0; i < 2000; ++i) {
        const std::string text = texts.next();
        ASSERT_EQ(Value::bitsToHex(text, false), walkedHex(text, false)) << text;
        ASSERT_EQ(Value::bitsToHex(text, true), walkedHex(text, true)) << text;
        converted += walkedHex(text, true) == text ? 0 : 1;
    }
    EXPECT_GT(converted, 500U);
}

TEST(ValueComparison, WithALetterIsTrueForOneBitAlone) {
    EXPECT_TRUE(Value("H") == 'H');
    EXPECT_FALSE(Value("H") != 'H');
    EXPECT_FALSE(Value("H") == 'L');
    EXPECT_TRUE(Value("H") != 'X');
    EXPECT_FALSE(Value("H") == 'h');
    EXPECT_FALSE(Value("HH") == 'H');
    EXPECT_TRUE(Value("HH") != 'H');
    EXPECT_FALSE(Value("HHHHHHHHH") == 'H');
    EXPECT_TRUE(Value() != '\0');
}

TEST(ValueComparison, WithTheBitXFitsEveryOneBitValue) {
    for (const char* letter : {"L", "H", "U", "Z", "X", "h"}) EXPECT_TRUE(Value(letter).isBit('X')) << letter;
    EXPECT_TRUE(Value("Z").isBit('Z'));
    EXPECT_FALSE(Value("Z").isBit('U'));
    EXPECT_FALSE(Value("Z").isBit('x'));
    EXPECT_FALSE(Value("XX").isBit('X'));
    EXPECT_FALSE(Value().isBit('X'));
}

TEST(ValueComparison, WithAValueLooksAtAsManyLettersAsTheLeftOneHas) {
    struct Case {
        const char* left;
        const char* right;
        bool isEqual;
    };
    const Case cases[] = {{"HL", "HL", true},
                          {"HL", "HH", false},
                          {"HL", "hl", false},
                          {"HL", "HLH", true},
                          {"HLH", "HL", false},
                          {"", "HL", true},
                          {"HL", "", false},
                          {"", "", true},
                          {"HLHLHLHL", "HLHLHLHLH", true},
                          {"HLHLHLHLH", "HLHLHLHL", false},
                          {"HLHLHLHLHLHLHLHLHL", "HL", false},
                          {"HL", "LHL", false}};
    for (const auto& [left, right, isEqual] : cases) {
        EXPECT_EQ(Value(left) == Value(right), isEqual) << left << " and " << right;
        EXPECT_EQ(Value(left) != Value(right), !isEqual) << left << " and " << right;
    }
}

TEST(ValueComparison, WithATextLooksAtAllOfIt) {
    EXPECT_TRUE(Value("HL") == "HL");
    EXPECT_FALSE(Value("HL") != "HL");
    EXPECT_FALSE(Value("HL") == "HLH");
    EXPECT_TRUE(Value("HL") != "H");
    EXPECT_FALSE(Value("HL") == "hl");
    EXPECT_TRUE(Value() == "");
    EXPECT_TRUE(Value("HL") == std::string("HL"));
}

TEST(ValueMatch, TakesUpperCaseXForAWildCardAndFoldsTheRest) {
    struct Case {
        const char* letters;
        const char* expected;
        bool isMatch;
    };
    const Case cases[] = {{"ZU", "X", true},        {"ZU", "ZX", true},
                          {"ZU", "zu", true},       {"ZU", "xU", false},
                          {"ZU", "XX", true},       {"ZU", "x", false},
                          {"ZU", "Z", false},       {"ZU", "ZUX", false},
                          {"ZU", "HU", false},      {"ZU", "UU", false},
                          {"HL", "hL", true},       {"HL", "HH", false},
                          {"XL", "xl", true},       {"XL", "HL", false},
                          {"hl", "HL", true},       {"H", "X", true},
                          {"H", "x", false},        {"", "X", true},
                          {"", "", true},           {"", "H", false},
                          {"H", "", false},         {"HLHLHLHLHL", "HLHLXLHLHL", true},
                          {"HLHLHLHLHL", "X", true}};
    for (const auto& [letters, expected, isMatch] : cases) {
        EXPECT_EQ(Value(letters).matches(expected), isMatch) << letters << " and " << expected;
    }
}

}  // namespace
}  // namespace tarnsim
