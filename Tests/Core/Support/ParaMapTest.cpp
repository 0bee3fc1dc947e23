#include "Core/Support/ParaMap.h"

#include <stdexcept>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Pairs = std::map<std::string, std::string>;

/// What a getter leaves in a target that held `before`.
template <class T>
T got(const ParaMap& map, const std::string& key, T before) {
    map.get(key, &before);
    return before;
}

TEST(ParaMap, BeginsEmpty) {
    const ParaMap map;
    EXPECT_EQ(map.size(), 0U);
    EXPECT_EQ(map.map(), Pairs{});
    EXPECT_EQ(map.toString(), "");
}

TEST(ParaMap, ParsesPairs) {
    const std::pair<std::string, Pairs> cases[] = {
        {"", {}},
        {"()", {}},
        {"(", {}},
        {"ab", {}},
        {"(a)", {{"a", ""}}},
        {"(a=1)", {{"a", "1"}}},
        {"(a=1,)", {{"a", "1"}}},
        {"( a = 1 , b=2 )", {{"a", "1"}, {"b", "2"}}},
        {"(\t\n\v\f\r a\t\n\v\f\r =\t\n\v\f\r 1\t\n\v\f\r )", {{"a", "1"}}},
        {"(=5)", {{"", "5"}}},
        {"( )", {{"", ""}}},
        {"(=)", {{"", ""}}},
        {"a=1", {{"", ""}}},
        {"[a=1]", {{"a", "1"}}},
        {"(a=1,a=2)", {{"a", "2"}}},
        {"(a=1,a)", {{"a", ""}}},
        {"(a=)", {{"a", ""}}},
        {"(a=b=c)", {{"a", "b"}}},
        {"(a==b)", {{"a", ""}}},
        {"(a=(1),b=[2])", {{"a", "(1)"}, {"b", "[2]"}}},
        {"(a b=c d)", {{"a b", "c d"}}},
        {"(value=$ff,delay=10)", {{"delay", "10"}, {"value", "$ff"}}},
    };
    for (const auto& [text, pairs] : cases) EXPECT_EQ(ParaMap(text).map(), pairs) << text;
}

TEST(ParaMap, RefusesAnEmptyFieldAndKeepsThePairsInFrontOfIt) {
    const std::pair<std::string, Pairs> cases[] = {{"(a=1,,b=2)", {{"a", "1"}}},
                                                   {"(a=1,,)", {{"a", "1"}}},
                                                   {"(,a=1)", {}},
                                                   {"(,)", {}},
                                                   {"(a,b,,)", {{"a", ""}, {"b", ""}}}};
    for (const auto& each : cases) {
        const std::string& text = each.first;
        ParaMap map;
        EXPECT_EQ(errorOf([&] { map.parse(text); }), "Parameters malformed: '" + text + "'");
        EXPECT_EQ(map.map(), each.second) << text;
    }
}

TEST(ParaMap, RefusesAnEmptyFieldInItsConstructor) {
    EXPECT_EQ(errorOf([] { ParaMap("(a=1,,b=2)"); }), "Parameters malformed: '(a=1,,b=2)'");
}

TEST(ParaMap, ParsesIntoWhatItHolds) {
    ParaMap map("(a=1,b=2)");
    map.parse("(b=3,c=4)");
    EXPECT_EQ(map.map(), (Pairs{{"a", "1"}, {"b", "3"}, {"c", "4"}}));
}

TEST(ParaMap, IsCopiedAsAWhole) {
    ParaMap map("(a=1)");
    ParaMap copy(map);
    copy["a"] = "2";
    EXPECT_EQ(map.at("a"), "1");
    map = copy;
    EXPECT_EQ(map.at("a"), "2");
}

TEST(ParaMap, FindsAKeyWithAnEmptyValue) {
    const ParaMap map("(a)");
    EXPECT_TRUE(map.has("a"));
    EXPECT_FALSE(map.has("A"));
    EXPECT_FALSE(map.has(""));
    EXPECT_EQ(map.at("a"), "");
}

TEST(ParaMap, RaisesTheStandardExceptionForAMissingKey) {
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([] { static_cast<void>(ParaMap("(a=1)").at("b")); }), "map::at");
}

TEST(ParaMap, InsertsAnEmptyValueThroughItsIndex) {
    ParaMap map;
    EXPECT_EQ(map["a"], "");
    EXPECT_EQ(map.size(), 1U);
    map["b"] = " 2 ";
    EXPECT_EQ(map.map(), (Pairs{{"a", ""}, {"b", " 2 "}}));
    map.clear();
    EXPECT_EQ(map.size(), 0U);
}

TEST(ParaMap, SortsKeysByBytes) {
    EXPECT_EQ(ParaMap("(b=1,a=1,B=1,ab=1,_=1,1=1,\xC3\xA4=1,=1)").keys(),
              (std::vector<std::string>{"", "1", "B", "_", "a", "ab", "b", "\xC3\xA4"}));
}

TEST(ParaMap, LeavesTheTargetAloneWhenAKeyIsAbsent) {
    const ParaMap map("(a=1)");
    EXPECT_EQ(got(map, "b", 2.5F), 2.5F);
    EXPECT_EQ(got(map, "b", std::uint32_t{7}), 7U);
    EXPECT_TRUE(got(map, "b", true));
    EXPECT_FALSE(got(map, "b", false));
}

TEST(ParaMap, ReadsFloatsAsTheCLibraryDoes) {
    const std::pair<std::string, float> cases[] = {{"1.5", 1.5F},   {"1.5x", 1.5F}, {"-2e3", -2000.0F},
                                                   {"0x10", 16.0F}, {"$10", 0.0F},  {"abc", 0.0F},
                                                   {"", 0.0F},      {"0b10", 0.0F}, {"0.1", 0.1F}};
    for (const auto& [text, number] : cases) EXPECT_EQ(got(ParaMap("(f=" + text + ")"), "f", 9.0F), number) << text;
}

TEST(ParaMap, ReadsNumbersInFourForms) {
    const std::pair<std::string, std::uint32_t> cases[] = {{"0x10", 16}, {"$10", 16},  {"0b10", 2},
                                                           {"10", 10},   {"12ns", 12}, {"4294967295", 4294967295}};
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(got(ParaMap("(n=" + text + ")"), "n", std::uint32_t{9}), number) << text;
    }
}

TEST(ParaMap, ReportsABadNumberOnTheErrorStreamAndStores0) {
    for (const std::string text : {"ten", ""}) {
        std::uint32_t number = 9;
        EXPECT_EQ(errorOutputOf([&] { ParaMap("(n=" + text + ")").get("n", &number); }),
                  "***ERROR : can't parse '" + text + "' as a number\n");
        EXPECT_EQ(number, 0U);
    }
}

TEST(ParaMap, RaisesTheStandardExceptionForANumberBeyond32Bits) {
    std::uint32_t number = 9;
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { ParaMap("(n=4294967296)").get("n", &number); }), "stoul");
    EXPECT_EQ(number, 9U);
}

TEST(ParaMap, UnderstandsTheWordsOfABooleanInAnyCase) {
    for (const char* word : {"yes", "1", "true", "TRUE", "Yes", "tRuE", " 1\t"}) {
        ParaMap map;
        map["b"] = word;
        EXPECT_TRUE(got(map, "b", false)) << word;
    }
    for (const char* word : {"no", "0", "false", "FALSE", "No", " 0 "}) {
        ParaMap map;
        map["b"] = word;
        EXPECT_FALSE(got(map, "b", true)) << word;
    }
}

TEST(ParaMap, LeavesTheTargetAloneForAnyOtherBooleanWord) {
    for (const char* word : {"", "on", "off", "2", "00", "y", "truex", "t rue"}) {
        ParaMap map;
        map["b"] = word;
        EXPECT_EQ(errorOutputOf([&] {
                      EXPECT_TRUE(got(map, "b", true)) << word;
                      EXPECT_FALSE(got(map, "b", false)) << word;
                  }),
                  "");
    }
    EXPECT_TRUE(got(ParaMap("(a)"), "a", true));
}

TEST(ParaMap, IsWrittenInTheOrderOfItsKeys) {
    EXPECT_EQ(ParaMap("(b=2,a=1)").toString(), "(a=1,b=2)");
    EXPECT_EQ(ParaMap("(b,a=1)").toString(), "(a=1,b=)");
    EXPECT_EQ(ParaMap("(=5,a= x y )").toString(), "(=5,a=x y)");
}

TEST(ParaMap, IsWrittenAsADifferenceFromDefaults) {
    const ParaMap map("(a=1,b=2,c=3)");
    EXPECT_EQ(map.toStringExcept(map), "");
    EXPECT_EQ(map.toStringExcept(ParaMap()), "(a=1,b=2,c=3)");
    EXPECT_EQ(map.toStringExcept(ParaMap("(a=1,c=4,d=5)")), "(b=2,c=3)");
    EXPECT_EQ(ParaMap("(a=010)").toStringExcept(ParaMap("(a=10)")), "(a=010)");
    EXPECT_EQ(ParaMap("(a)").toStringExcept(ParaMap("(b=1)")), "(a=)");
    EXPECT_EQ(ParaMap().toStringExcept(ParaMap("(b=1)")), "");
}

}  // namespace
}  // namespace tarnsim
