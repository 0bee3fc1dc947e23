#include "Core/Values/LetterWord.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnsim {
namespace {

LetterWord load(const std::string& letters) {
    return LetterWord::load(letters.data(), letters.size());
}

std::string textOf(LetterWord word, std::size_t count = LetterWord::kLetters) {
    std::string letters(count, '?');
    word.store(letters.data(), count);
    return letters;
}

TEST(LetterWord, HoldsTheLettersInTheirOrder) {
    EXPECT_EQ(textOf(load("LHUZXabc")), "LHUZXabc");
    EXPECT_EQ(textOf(load("HZL"), 3), "HZL");
    const std::string all = "LHUZXabc";
    for (std::size_t count = 0; count <= all.size(); ++count) {
        const auto word = LetterWord::load(all.data(), count);
        EXPECT_EQ(textOf(word), all.substr(0, count) + std::string(all.size() - count, '\0'));
        EXPECT_EQ(textOf(word, count), all.substr(0, count));
    }
    EXPECT_EQ(load("H").bytes(), static_cast<unsigned char>('H'));
    EXPECT_EQ(load("LH").bytes(), 'L' + 0x100U * 'H');
    EXPECT_EQ(textOf(LetterWord::allOf('Z')), "ZZZZZZZZ");
}

TEST(LetterWord, ComparesLetterByLetter) {
    EXPECT_EQ(load("LHUZXLHU").equalTo(load("LLUUXXHH")), 0x00FF'00FF'00FF'00FFU);
    EXPECT_EQ(load("ZLZHZUZX").equalTo('Z'), 0x00FF'00FF'00FF'00FFU);
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; ++b) {
            ASSERT_EQ(LetterWord::allOf(static_cast<char>(a)).equalTo(static_cast<char>(b)), a == b ? ~0ULL : 0ULL);
        }
    }
}

TEST(LetterWord, OnlyHighAndLowAreLevels) {
    for (int letter = 0; letter < 256; ++letter) {
        const bool isLevel = letter == 'H' || letter == 'L';
        EXPECT_EQ(LetterWord::allOf(static_cast<char>(letter)).levels(), isLevel ? ~0ULL : 0ULL) << letter;
    }
    EXPECT_EQ(load("HULZLXHh").levels(), 0x00FF'00FF'00FF'00FFU);
}

TEST(LetterWord, TheFirstLettersOfAWord) {
    EXPECT_EQ(LetterWord::first(0), 0U);
    EXPECT_EQ(LetterWord::first(3), 0xFF'FFFFU);
    EXPECT_EQ(LetterWord::first(8), ~0ULL);
}

TEST(LetterWord, TheFirstLetterIsTheMostSignificantBit) {
    EXPECT_EQ(textOf(LetterWord::ofNumber(0x00)), "LLLLLLLL");
    EXPECT_EQ(textOf(LetterWord::ofNumber(0x80)), "HLLLLLLL");
    EXPECT_EQ(textOf(LetterWord::ofNumber(0x01)), "LLLLLLLH");
    EXPECT_EQ(textOf(LetterWord::ofNumber(0xA6)), "HLHLLHHL");
    EXPECT_EQ(load("HHLLHLHL").toNumber(), 0xCA);
    for (int number = 0; number < 256; ++number) {
        std::string letters;
        for (int bit = 7; bit >= 0; --bit) letters += (number >> bit & 1) != 0 ? 'H' : 'L';
        EXPECT_EQ(textOf(LetterWord::ofNumber(static_cast<std::uint8_t>(number))), letters);
        EXPECT_EQ(load(letters).toNumber(), number);
    }
}

}  // namespace
}  // namespace tarnsim
