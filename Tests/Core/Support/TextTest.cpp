#include "Core/Support/Text.h"

#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Fields = std::vector<std::string>;

const std::string kAllWhiteSpace = "\t\n\v\f\r ";

TEST(Trim, TakesWhiteSpaceOffBothEnds) {
    std::string text = kAllWhiteSpace + "a \t b" + kAllWhiteSpace;
    EXPECT_EQ(&trim(text), &text);
    EXPECT_EQ(text, "a \t b");
}

TEST(Trim, LeavesNothingOfATextOfOnlyWhiteSpace) {
    std::string text = kAllWhiteSpace;
    EXPECT_EQ(trim(text), "");
    EXPECT_EQ(rtrim(text = kAllWhiteSpace), "");
    EXPECT_EQ(ltrim(text = kAllWhiteSpace), "");
    EXPECT_EQ(trim(text = ""), "");
}

TEST(Trim, WorksAtOneEndAlone) {
    std::string text = " a ";
    EXPECT_EQ(&rtrim(text), &text);
    EXPECT_EQ(text, " a");
    text = " a ";
    EXPECT_EQ(&ltrim(text), &text);
    EXPECT_EQ(text, "a ");
}

TEST(Trim, TakesAnotherSetOfCharacters) {
    std::string text = "-+a+-";
    EXPECT_EQ(trim(text, "+-"), "a");
    EXPECT_EQ(rtrim(text = "-+a+-", "-"), "-+a+");
    EXPECT_EQ(ltrim(text = "-+a+-", "-"), "+a+-");
    EXPECT_EQ(trim(text = " a ", "x"), " a ");
}

TEST(Trim, DoesNotTakeANulOrANonBreakingBlankForWhiteSpace) {
    EXPECT_EQ(trimmed(std::string_view("\0 a\0", 4)), std::string("\0 a\0", 4));
    EXPECT_EQ(trimmed("\xA0 a \xA0"), "\xA0 a \xA0");
}

TEST(Trim, GivesATrimmedCopy) {
    const std::string text = " a ";
    EXPECT_EQ(trimmed(text), "a");
    EXPECT_EQ(trimmed("--a--", "-"), "a");
}

TEST(ToLower, FoldsAsciiLettersInPlace) {
    std::string text = "aBZ[@`{_19 \xC3\x84";
    toLower(text);
    EXPECT_EQ(text, "abz[@`{_19 \xC3\x84");
}

TEST(Split, ReadsFieldsAsLinesAreReadFromAStream) {
    EXPECT_EQ(split("", ','), Fields{});
    EXPECT_EQ(split("=", '='), Fields{""});
    EXPECT_EQ(split("a,", ','), Fields{"a"});
    EXPECT_EQ(split(",a", ','), (Fields{"", "a"}));
    EXPECT_EQ(split("a,,b", ','), (Fields{"a", "", "b"}));
    EXPECT_EQ(split(",,", ','), (Fields{"", ""}));
    EXPECT_EQ(split("a b", ','), Fields{"a b"});
}

TEST(SplitWords, CutsAtRunsOfWhiteSpace) {
    EXPECT_EQ(splitWords(kAllWhiteSpace + "Unit" + kAllWhiteSpace + "And u" + kAllWhiteSpace),
              (Fields{"Unit", "And", "u"}));
    EXPECT_EQ(splitWords(kAllWhiteSpace), Fields{});
    EXPECT_EQ(splitWords(""), Fields{});
}

TEST(TakeWord, TakesOneAfterTheOther) {
    std::string_view text = "\t Unit  And\vu ";
    EXPECT_EQ(takeWord(text), "Unit");
    EXPECT_EQ(text, "  And\vu ");
    EXPECT_EQ(takeWord(text), "And");
    EXPECT_EQ(takeWord(text), "u");
    EXPECT_EQ(takeWord(text), "");
    EXPECT_EQ(text, "");
    EXPECT_EQ(takeWord(text), "");
}

TEST(SplitWords, WalksALineOfMegabytes) {
    std::string line(kMegabytes, 'a');
    for (std::size_t i = 1; i < line.size(); i += 2) line[i] = ' ';
    EXPECT_EQ(splitWords(line).size(), kMegabytes / 2);
    EXPECT_EQ(split(line, ' ').size(), kMegabytes / 2);
    EXPECT_EQ(trimmed(std::string(kMegabytes, ' ')), "");
}

TEST(Format, FormatsAsPrintfDoes) {
    EXPECT_EQ(format("%s %d %x %5.1f%%", "a", -1, 255U, 1.25), "a -1 ff   1.2%");
    EXPECT_EQ(format("%s", ""), "");
}

TEST(Format, HasNoLimit) {
    for (const std::size_t length : {1022U, 1023U, 1024U, 1025U, 100000U}) {
        const std::string text(length, 'a');
        EXPECT_EQ(format("%s|%d", text.c_str(), 7), text + "|7");
    }
}

TEST(Format, GivesNothingWhenTheLibraryCannotFormat) {
    // A character that has no form in the "C" locale.
    EXPECT_EQ(format("%ls", L"\x20AC"), "");
}

TEST(Quote, PutsATextInDoubleQuotes) {
    EXPECT_EQ(quote(""), "\"\"");
    EXPECT_EQ(quote(" a~"), "\" a~\"");
}

TEST(Quote, PutsABackslashBeforeBackslashAndDoubleQuote) {
    EXPECT_EQ(quote("a\\b\"c'"), "\"a\\\\b\\\"c'\"");
}

TEST(Quote, NamesReturnFeedAndTab) {
    EXPECT_EQ(quote("\r\n\t"), "\"\\r\\n\\t\"");
}

TEST(Quote, WritesOtherBytesUpTo0x80InUpperCaseHexadecimal) {
    EXPECT_EQ(quote(std::string_view("\0\x01\x0B\x1F\x7F\x80", 6)), "\"\\x00\\x01\\x0B\\x1F\\x7F\\x80\"");
}

TEST(Quote, CopiesBytesAbove0x80) {
    EXPECT_EQ(quote("\x81\xC3\xA4\xFF"), "\"\x81\xC3\xA4\xFF\"");
}

TEST(CutChipPrefix, GivesTheNamesThatFilesUse) {
    EXPECT_EQ(cutChipPrefix("MC27C64"), "27C64");
    EXPECT_EQ(cutChipPrefix("DM74LS00"), "74LS00");
    EXPECT_EQ(cutChipPrefix("SN74x74"), "74x74");
    EXPECT_EQ(cutChipPrefix("XY74"), "74");
}

TEST(CutChipPrefix, LeavesAllOtherNames) {
    for (const char* name : {"", "7", "74", "74LS00", "And", "MC27C64A", "xMC27C64", "DMx74", "DM7", "IDT7132LA"})
        EXPECT_EQ(cutChipPrefix(name), name);
}

}  // namespace
}  // namespace tarnsim
