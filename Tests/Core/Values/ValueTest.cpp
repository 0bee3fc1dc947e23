#include "Core/Values/Value.h"

#include <cstring>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

std::string lengthErrorOf(const std::function<void()>& action) {
    return standardExceptionOf<std::length_error>(action);
}

std::string rangeErrorOf(const std::function<void()>& action) {
    return standardExceptionOf<std::out_of_range>(action);
}

/// Whether the letters stand within the object.
bool isInline(const Value& value) {
    const auto* object = reinterpret_cast<const char*>(&value);
    const std::less<const char*> before;
    return !before(value.c_str(), object) && before(value.c_str(), object + sizeof value);
}

TEST(Value, BeginsWithEveryBitUndefined) {
    EXPECT_STREQ(Value(5).c_str(), "UUUUU");
    EXPECT_STREQ(Value(1).c_str(), "U");
    EXPECT_STREQ(Value(255).c_str(), std::string(255, 'U').c_str());
    EXPECT_EQ(Value().width(), 0U);
    EXPECT_STREQ(Value().c_str(), "");
}

TEST(Value, PutsASingleLetterIntoBit0AndPadsTheRest) {
    EXPECT_STREQ(Value('H', 4).c_str(), "LLLH");
    EXPECT_STREQ(Value('L', 4).c_str(), "LLLL");
    EXPECT_STREQ(Value('U', 4).c_str(), "UUUU");
    EXPECT_STREQ(Value('Z', 4).c_str(), "UUUZ");
    EXPECT_STREQ(Value('X', 4).c_str(), "UUUX");
    EXPECT_EQ(lengthErrorOf([] { Value('H', 0); }), "Initializer 'H' too long for type (Value 0).");
}

TEST(Value, TakesTheWidthOfItsText) {
    const Value value("HLL", 0);
    EXPECT_EQ(value.width(), 3U);
    EXPECT_EQ(value[0], 'L');
    EXPECT_EQ(value[2], 'H');
    EXPECT_EQ(value.toNumber(), 4U);
    EXPECT_EQ(Value("").width(), 0U);
}

TEST(Value, PadsAShortTextWithLowIfAllOfItIsDefinedElseWithUndefined) {
    const std::pair<const char*, const char*> cases[] = {
        {"HL", "LLHL"}, {"ZL", "UUZL"},   {"LX", "UULX"}, {"HU", "UUHU"}, {"H", "LLLH"},
        {"", "LLLL"},   {"HHHH", "HHHH"}, {"zl", "LLzl"}, {"q?", "LLq?"}, {"ZZZZ", "ZZZZ"}};
    for (const auto& [text, letters] : cases) EXPECT_STREQ(Value(text, 4).c_str(), letters) << text;
}

TEST(Value, RefusesATextThatIsTooLong) {
    EXPECT_EQ(lengthErrorOf([] { Value("HLHLH", 4); }), "Initializer 'HLHLH' too long for type (Value 4).");
}

TEST(Value, WrapsAWidthModulo256) {
    EXPECT_EQ(Value(255).width(), 255U);
    EXPECT_EQ(Value(256).width(), 0U);
    EXPECT_STREQ(Value(260).c_str(), "UUUU");
    EXPECT_STREQ(Value("H", 258).c_str(), "LH");
    Value value("HHHH");
    value.resize(257);
    EXPECT_STREQ(value.c_str(), "U");
}

TEST(Value, WrapsTheWidthOfALongTextAndThenRefusesTheText) {
    for (const auto& [length, width] : {std::pair(256, 0), std::pair(260, 4), std::pair(2000, 208)}) {
        const std::string text(static_cast<std::size_t>(length), 'H');
        const std::string message =
            "Initializer '" + text + "' too long for type (Value " + std::to_string(width) + ").";
        EXPECT_EQ(lengthErrorOf([&] { Value{std::string_view(text)}; }), message);
        Value value;
        EXPECT_EQ(lengthErrorOf([&] { value = text; }), message);
        EXPECT_EQ(value.width(), static_cast<unsigned>(width));
    }
}

TEST(Value, AdoptsAWidthFromTheFirstThingAssigned) {
    Value fromText;
    fromText = "HLZ";
    EXPECT_STREQ(fromText.c_str(), "HLZ");
    Value fromString;
    fromString = std::string("HHHHHHHHHH");
    EXPECT_STREQ(fromString.c_str(), "HHHHHHHHHH");
    Value fromValue;
    fromValue = Value("LLH");
    EXPECT_STREQ(fromValue.c_str(), "LLH");
    Value fromLetter;
    fromLetter = 'Z';
    EXPECT_STREQ(fromLetter.c_str(), "Z");
}

TEST(Value, KeepsItsWidthWhenATextIsAssigned) {
    Value value("HHHH");
    value = "H";
    EXPECT_STREQ(value.c_str(), "LLLH");
    value = "Z";
    EXPECT_STREQ(value.c_str(), "UUUZ");
    value = "";
    EXPECT_STREQ(value.c_str(), "LLLL");
}

TEST(Value, KeepsItsLettersWhenAnAssignmentFails) {
    Value value("HLZ");
    EXPECT_EQ(lengthErrorOf([&] { value = "HHHH"; }), "Initializer 'HHHH' too long for type (Value 3).");
    EXPECT_EQ(lengthErrorOf([&] { value = Value("HHHH"); }), "Initializer mismatch 4 vs 3");
    EXPECT_EQ(lengthErrorOf([&] { value.setHex("F"); }), "Initializer 'HHHH' too long for type (Value 3).");
    EXPECT_EQ(rangeErrorOf([&] { value.setNumber(8); }), "Number cannot be represented in value");
    EXPECT_STREQ(value.c_str(), "HLZ");
}

TEST(Value, MirrorsANarrowerValueThatIsAssigned) {
    const std::pair<const char*, const char*> cases[] = {{"LH", "LLHL"},   {"HLL", "LLLH"}, {"ZL", "UULZ"},
                                                         {"HX", "UUXH"},   {"H", "LLLH"},   {"U", "UUUU"},
                                                         {"HLLL", "HLLL"}, {"", "LLLL"}};
    for (const auto& [source, letters] : cases) {
        Value value("HHHH");
        value = Value(source);
        EXPECT_STREQ(value.c_str(), letters) << source;
    }
}

TEST(Value, MirrorsAcrossTheInlineWidth) {
    Value value(12);
    value = Value("HLHLLLLLL");
    EXPECT_STREQ(value.c_str(), "LLLLLLLLLHLH");
    value = Value("HLZ");
    EXPECT_STREQ(value.c_str(), "UUUUUUUUUZLH");
}

TEST(Value, MayBeAssignedToItself) {
    for (const char* letters : {"HLZ", "HLZHLZHLZHLZHLZHLZHLZHLZHLZHLZ"}) {
        Value value(letters);
        const Value& self = value;
        value = self;
        EXPECT_STREQ(value.c_str(), letters);
    }
}

TEST(Value, TakesALetterIntoBit0AndUndefinesTheOthersForUndefinedAlone) {
    const std::pair<char, const char*> cases[] = {
        {'H', "LLLH"}, {'L', "LLLL"}, {'U', "UUUU"}, {'Z', "LLLZ"}, {'X', "LLLX"}};
    for (const auto& [letter, letters] : cases) {
        Value value("HHHH");
        value = letter;
        EXPECT_STREQ(value.c_str(), letters);
    }
}

TEST(Value, GivesACopyOfWhatWasAssigned) {
    Value value(2);
    EXPECT_STREQ((value = "HL").c_str(), "HL");
    EXPECT_STREQ((value = 'H').c_str(), "LH");
    EXPECT_STREQ((value = Value("HH")).c_str(), "HH");
    EXPECT_STREQ(value.setNumber(2).c_str(), "HL");
    EXPECT_STREQ(value.fill('Z').c_str(), "ZZ");
    EXPECT_STREQ(value.setUndefined().c_str(), "UU");
    EXPECT_STREQ(value.setHex("H").c_str(), "LH");
    EXPECT_STREQ(value.resize(3).c_str(), "UUU");
    EXPECT_TRUE((std::is_same_v<decltype(value = "HL"), Value>));
    EXPECT_TRUE((std::is_same_v<decltype(value = value), Value>));
    EXPECT_TRUE((std::is_same_v<decltype(value.setNumber(1)), Value>));
}

TEST(Value, FillsEveryBit) {
    for (const std::uint32_t width : {0U, 1U, 8U, 9U, 255U}) {
        Value value(width);
        value.fill('H');
        EXPECT_EQ(value.letters(), std::string(width, 'H'));
        value.setUndefined();
        EXPECT_EQ(value.letters(), std::string(width, 'U'));
    }
}

TEST(Value, ForgetsEveryBitWhenItIsResized) {
    Value value("HLH");
    for (const std::uint32_t width : {4U, 200U, 90U, 8U, 0U, 3U}) {
        value.resize(width);
        EXPECT_EQ(value.width(), width);
        EXPECT_STREQ(value.c_str(), std::string(width, 'U').c_str());
        EXPECT_EQ(isInline(value), width <= 8);
    }
}

TEST(Value, CountsBitsFromTheRight) {
    Value value(5);
    value[4] = 'H';
    EXPECT_STREQ(value.c_str(), "HUUUU");
    value[0] = 'Z';
    EXPECT_STREQ(value.c_str(), "HUUUZ");
    EXPECT_EQ(value[4], 'H');
}

TEST(Value, RefusesABitThatItDoesNotHave) {
    Value value("HLL");
    EXPECT_EQ(rangeErrorOf([&] { value[3]; }), "Value: Index 3 larger than size 3");
    EXPECT_EQ(rangeErrorOf([&] { value[3] = 'H'; }), "Value: Index 3 larger than size 3");
    EXPECT_EQ(rangeErrorOf([&] { std::as_const(value)[300]; }), "Value: Index 300 larger than size 3");
    EXPECT_EQ(rangeErrorOf([] { Value()[0]; }), "Value: Index 0 larger than size 0");
    EXPECT_STREQ(value.c_str(), "HLL");
}

TEST(Value, IsReadAsALetterIfItHasOneBit) {
    const char letter = Value("Z");
    EXPECT_EQ(letter, 'Z');
    for (const Value& value : {Value(), Value("HL"), Value("HHHHHHHHH")})
        EXPECT_EQ(standardExceptionOf<std::bad_cast>([&] { static_cast<void>(static_cast<char>(value)); }),
                  std::bad_cast().what());
}

TEST(Value, IsPrintedAsItsLetters) {
    std::ostringstream stream;
    stream << Value("HLUZX") << ' ' << Value("HLUZXHLUZX") << ' ' << Value();
    EXPECT_EQ(stream.str(), "HLUZX HLUZXHLUZX ");
}

TEST(Value, NeedsTheHeapForWideBusesOnlyAndPrintsAlike) {
    const Value byte("HLUZXHLU");
    const Value address("HLUZXHLUZXHLUZXH");
    const std::string letters(40, 'H');
    const Value wide(letters);
    EXPECT_TRUE(isInline(byte));
    EXPECT_TRUE(isInline(address));
    EXPECT_FALSE(isInline(wide));
    EXPECT_STREQ(byte.c_str(), "HLUZXHLU");
    EXPECT_STREQ(wide.c_str(), letters.c_str());
    EXPECT_EQ(std::strlen(wide.c_str()), wide.width());
}

TEST(Value, IsCopiedDeeply) {
    for (const char* letters : {"HLZ", "HLZHLZHLZHLZHLZHLZHLZHLZHLZHLZ"}) {
        Value value(letters);
        const Value copy(value);
        EXPECT_EQ(isInline(copy), isInline(value));
        value[0] = 'X';
        EXPECT_STREQ(copy.c_str(), letters);
        EXPECT_EQ(copy.width(), std::strlen(letters));
    }
}

TEST(Value, MovesItsLetters) {
    for (const char* letters : {"HLZ", "HLZHLZHLZHLZHLZHLZHLZHLZHLZHLZ"}) {
        Value value(letters);
        const Value moved(std::move(value));
        EXPECT_STREQ(moved.c_str(), letters);
        value = Value("H");  // NOLINT(bugprone-use-after-move): it stays a value
        EXPECT_EQ(value[0], 'H');
    }
}

TEST(Value, HasAVirtualDestructorAndStoresWhateverLettersATextHolds) {
    EXPECT_TRUE(std::has_virtual_destructor_v<Value>);
    EXPECT_STREQ(Value("a1?").c_str(), "a1?");
}

TEST(Value, TellsWhetherItIsDefined) {
    struct Case {
        const char* letters;
        bool isDefined;
        bool isAllUndefined;
    };
    const Case cases[] = {{"", true, true},
                          {"HL", true, false},
                          {"HU", false, false},
                          {"HZ", false, false},
                          {"XL", false, false},
                          {"UU", false, true},
                          {"UZ", false, false},
                          {"hu", true, false},
                          {"HHHHHHHHHHU", false, false},
                          {"UUUUUUUUUUU", false, true}};
    for (const auto& [letters, isDefined, isAllUndefined] : cases) {
        EXPECT_EQ(Value(letters).isDefined(), isDefined) << letters;
        EXPECT_EQ(Value(letters).isAllUndefined(), isAllUndefined) << letters;
    }
}

TEST(Value, TellsWhetherItContainsALetter) {
    EXPECT_TRUE(Value("HLZ").contains('Z'));
    EXPECT_FALSE(Value("HLZ").contains('z'));
    EXPECT_FALSE(Value("HLZ").contains('\0'));
    EXPECT_FALSE(Value().contains('U'));
}

}  // namespace
}  // namespace tarnsim
