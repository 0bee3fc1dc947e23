#include <limits>
#include <regex>
#include <stdexcept>

#include "Core/Support/Text.h"
#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

struct Reading {
    std::string text;
    std::uint32_t number;
};

/// What parseNumber makes of a text: the number, "out of range" or the message.
std::string outcomeOf(const std::string& text) {
    std::string outcome;
    const std::string message = errorOutputOf([&] {
        try {
            outcome = std::to_string(parseNumber(text));
        } catch (const std::out_of_range& error) {
            outcome = std::string("out of range ") + error.what();
        }
    });
    return outcome + message;
}

std::string refusalOf(const std::string& text) {
    return "0***ERROR : can't parse '" + text + "' as a number\n";
}

TEST(ParseNumber, ReadsItsFourForms) {
    const Reading readings[] = {{"$ff", 255},  {"0XFF", 255},
                                {"0xaB", 171}, {"0b101", 5},
                                {"0B11", 3},   {"007", 7},
                                {"0", 0},      {"4294967295", 4294967295},
                                {"$0", 0},     {"$FFFFFFFF", 4294967295}};
    for (const auto& [text, number] : readings) EXPECT_EQ(outcomeOf(text), std::to_string(number)) << text;
}

TEST(ParseNumber, IgnoresWhatStandsAroundANumber) {
    const Reading readings[] = {{"12abc", 12}, {"abc7", 7}, {"x0x10", 16}, {"-5", 5}, {" 8 9", 8}, {"1.5", 1}};
    for (const auto& [text, number] : readings) EXPECT_EQ(outcomeOf(text), std::to_string(number)) << text;
}

TEST(ParseNumber, TriesTheFormsInOrderAndNotByPlace) {
    const Reading readings[] = {{"0b11", 3},   {"0x0b11", 2833}, {"10b1", 1},        {"7 $a 0x9", 9},
                                {"7 $a", 10},  {"0b1 $a", 10},   {"0b2", 0},         {"0xg 12", 0},
                                {"$g 12", 12}, {"00x1", 1},      {"0x 0xg 0x1f", 31}};
    for (const auto& [text, number] : readings) EXPECT_EQ(outcomeOf(text), std::to_string(number)) << text;
}

TEST(ParseNumber, ReportsTextWithoutANumberOnTheErrorStreamAndGoesOnWith0) {
    for (const char* text : {"", "none", "$", "$g", "xyz", "-"}) EXPECT_EQ(outcomeOf(text), refusalOf(text));
}

TEST(ParseNumber, KeepsTheStandardOutputFreeOfItsReport) {
    EXPECT_EQ(outputOf([] { errorOutputOf([] { parseNumber("none"); }); }), "");
}

TEST(ParseNumber, RaisesTheStandardExceptionBeyond32Bits) {
    for (const char* text : {"4294967296", "99999999999999999999999", "0x100000000", "$100000000",
                             "0b100000000000000000000000000000000", "0x1ffffffff 7"}) {
        EXPECT_EQ(outcomeOf(text), "out of range stoul") << text;
    }
}

TEST(ParseNumber, CountsNoLeadingZeros) {
    EXPECT_EQ(outcomeOf("0000000000000000000000000012"), "12");
    EXPECT_EQ(outcomeOf("0x00000000000000000ff"), "255");
}

/// The same rule, as it is written down: four expressions, each searched for.
std::string expressionOutcomeOf(const std::string& text) {
    static const std::pair<std::regex, int> kForms[] = {{std::regex("0[xX]([0-9a-fA-F]+)"), 16},
                                                        {std::regex("[$]([0-9a-fA-F]+)"), 16},
                                                        {std::regex("0[bB]([01]+)"), 2},
                                                        {std::regex("([0-9]+)"), 10}};
    for (const auto& [expression, base] : kForms) {
        std::smatch match;
        if (!std::regex_search(text, match, expression)) continue;
        unsigned long long number = std::numeric_limits<unsigned long long>::max();
        try {
            number = std::stoull(match[1], nullptr, base);
        } catch (const std::out_of_range&) {
        }
        const bool fits = number <= std::numeric_limits<std::uint32_t>::max();
        return fits ? std::to_string(number) : "out of range stoul";
    }
    return refusalOf(text);
}

TEST(ParseNumber, ReadsRandomTextsAsItsExpressionsDo) {
    RandomTexts texts(piecesOf("00011xXbB$$afFg29 -\n"), 7);
    std::size_t refused = 0;
    for (int i = 0; i < 10000; ++i) {
        const std::string text = texts.next();
        const std::string expected = expressionOutcomeOf(text);
        ASSERT_EQ(outcomeOf(text), expected) << text;
        refused += expected == refusalOf(text) ? 1 : 0;
    }
    EXPECT_GT(refused, 1000U);
    EXPECT_LT(refused, 9000U);
}

TEST(ParseNumber, ReadsRandomNumbersAroundTheLimitAsItsExpressionsDo) {
    RandomTexts texts({"0x", "$", "0b", "f", "ffff", "0000", "9", "4294967", "29", "11111111", "x"}, 7);
    std::size_t beyond = 0;
    for (int i = 0; i < 5000; ++i) {
        const std::string text = texts.next();
        const std::string expected = expressionOutcomeOf(text);
        ASSERT_EQ(outcomeOf(text), expected) << text;
        beyond += expected == "out of range stoul" ? 1 : 0;
    }
    EXPECT_GT(beyond, 500U);
}

TEST(ParseNumber, WalksTextsOfMegabytes) {
    EXPECT_EQ(outcomeOf(std::string(kMegabytes, '0') + "7"), "7");
    EXPECT_EQ(outcomeOf("0x" + std::string(kMegabytes, '0') + "1f"), "31");
    EXPECT_EQ(outcomeOf(std::string(kMegabytes, '$') + "1f"), "31");
    EXPECT_EQ(outcomeOf(std::string(kMegabytes, 'x')), refusalOf(std::string(kMegabytes, 'x')));
}

struct Predicate {
    const char* name;
    bool (*holds)(std::string_view);
    const char* expression;
    std::string letters;
};

const Predicate kPredicates[] = {{"isHexText", isHexText, "^[0-9a-fA-F]+$", "0123456789abcdefABCDEF"},
                                 {"isLogicText", isLogicText, "^[HLUZXhluzx]+$", "HLUZXhluzx"},
                                 {"isLevelText", isLevelText, "^[HLUZhluz]+$", "HLUZhluz"}};

TEST(TextPredicates, TakeJustTheirOwnLetters) {
    for (const Predicate& predicate : kPredicates) {
        for (int c = 0; c < 256; ++c) {
            const auto letter = static_cast<char>(c);
            const bool isIn = predicate.letters.find(letter) != std::string::npos;
            EXPECT_EQ(predicate.holds(std::string(1, letter)), isIn) << predicate.name << " " << c;
            EXPECT_EQ(predicate.holds(predicate.letters + letter), isIn) << predicate.name << " " << c;
        }
    }
}

TEST(TextPredicates, RefuseTheEmptyText) {
    EXPECT_FALSE(isHexText(""));
    EXPECT_FALSE(isLogicText(""));
    EXPECT_FALSE(isLevelText(""));
}

TEST(TextPredicates, TakeXForALogicLetterButNotForALevel) {
    EXPECT_TRUE(isLogicText("HLZ"));
    EXPECT_TRUE(isLogicText("X"));
    EXPECT_FALSE(isLevelText("X"));
    EXPECT_FALSE(isLevelText("HLx"));
    EXPECT_TRUE(isLevelText("HLZu"));
}

TEST(TextPredicates, AgreeWithTheirExpressionsOnRandomTexts) {
    for (const Predicate& predicate : kPredicates) {
        const std::regex expression(predicate.expression);
        RandomTexts texts(piecesOf(predicate.letters + predicate.letters + "gxX \n^$"), 4);
        std::size_t matched = 0;
        for (int i = 0; i < 5000; ++i) {
            const std::string text = texts.next();
            const bool expected = std::regex_search(text, expression);
            ASSERT_EQ(predicate.holds(text), expected) << predicate.name << " '" << text << "'";
            matched += expected ? 1 : 0;
        }
        EXPECT_GT(matched, 500U);
        EXPECT_LT(matched, 4500U);
    }
}

TEST(TextPredicates, WalkTextsOfMegabytes) {
    for (const Predicate& predicate : kPredicates) {
        const std::string text(kMegabytes, predicate.letters[0]);
        EXPECT_TRUE(predicate.holds(text)) << predicate.name;
        EXPECT_FALSE(predicate.holds(text + ' ')) << predicate.name;
    }
}

TEST(IsInteger, TakesWhatStrtolReadsToItsEnd) {
    for (const char* text : {"0", "12", "-5", "+5", " 7", "\t\n8", "007", "99999999999999999999"})
        EXPECT_TRUE(isInteger(text)) << text;
    for (const char* text : {"a", "5 ", "5a", "0x10", "-", "+-5", " ", "1.0"}) EXPECT_FALSE(isInteger(text)) << text;
}

TEST(IsInteger, TakesTheEmptyText) {
    EXPECT_TRUE(isInteger(""));
}

TEST(IsInteger, StopsAtANul) {
    EXPECT_TRUE(isInteger(std::string("12\0ab", 5)));
}

TEST(LeadingInteger, ReadsANumberInFrontOfAnything) {
    const std::pair<std::string, std::int32_t> readings[] = {{"12", 12},
                                                             {"-7x", -7},
                                                             {"+3 4", 3},
                                                             {" \t\n\v\f\r5", 5},
                                                             {"0x10", 0},
                                                             {"007", 7},
                                                             {"2147483647", 2147483647},
                                                             {"-2147483648", -2147483647 - 1},
                                                             {"1.9", 1},
                                                             {"000000000000001", 1}};
    for (const auto& [text, number] : readings) EXPECT_EQ(readLeadingInteger(text), number) << text;
}

TEST(LeadingInteger, IsNothingWithoutADigitOrBeyond32Bits) {
    for (const char* text : {"", " ", "-", "+-1", "- 1", "a1", "2147483648", "-2147483649", "9999999999999999999999"})
        EXPECT_EQ(readLeadingInteger(text), std::nullopt) << text;
}

TEST(LeadingInteger, IsTakenOffTheFront) {
    std::string_view text = " -12:7";
    EXPECT_EQ(takeLeadingInteger(text), -12);
    EXPECT_EQ(text, ":7");
    EXPECT_EQ(takeLeadingInteger(text), std::nullopt);
    EXPECT_EQ(text, ":7");
}

TEST(LeadingInteger, WalksTextsOfMegabytes) {
    EXPECT_EQ(readLeadingInteger(std::string(kMegabytes, ' ') + "5"), 5);
    EXPECT_EQ(readLeadingInteger(std::string(kMegabytes, '9')), std::nullopt);
}

TEST(CountTrailingZeros, CountsZerosAtTheEnd) {
    const std::pair<const char*, int> counts[] = {{"1000", 3}, {"101", 0}, {"0", 1}, {"000", 3}, {"", 0}, {"10", 1}};
    for (const auto& [digits, count] : counts) EXPECT_EQ(countTrailingZeros(digits), count) << digits;
}

}  // namespace
}  // namespace tarnsim
