#include "Core/Values/ValueRecords.h"

#include <map>
#include <string>

#include "Core/Support/Text.h"
#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Records = std::map<Time, std::string>;

Records recordsOf(const ValueRecords& records) {
    Records map;
    for (std::size_t i = 0; i < records.size(); ++i) map.emplace(records.timeOf(i), records.lettersOf(i));
    return map;
}

TEST(ValueRecords, BeginEmpty) {
    const ValueRecords records;
    EXPECT_TRUE(records.empty());
    EXPECT_EQ(records.size(), 0U);
    EXPECT_EQ(records.inForceAt(kLatestTime), std::nullopt);
    EXPECT_EQ(records.firstFrom(kEarliestTime), 0U);
}

TEST(ValueRecords, StandInTheOrderOfTimeWhateverTheOrderOfWriting) {
    ValueRecords records;
    for (const auto& [time, letters] :
         {std::pair(5, "HL"), std::pair(9, "LL"), std::pair(-3, "UU"), std::pair(7, "HH")})
        records.store(time, letters);
    EXPECT_EQ(records.timeOf(0), -3);
    EXPECT_EQ(records.timeOf(3), 9);
    EXPECT_EQ(recordsOf(records), (Records{{-3, "UU"}, {5, "HL"}, {7, "HH"}, {9, "LL"}}));
}

TEST(ValueRecords, ReplaceARecordOfTheSameTime) {
    ValueRecords records;
    for (const Time time : {1, 2, 3}) records.store(time, "LL");
    for (const Time time : {1, 3}) records.store(time, "HH");
    EXPECT_EQ(recordsOf(records), (Records{{1, "HH"}, {2, "LL"}, {3, "HH"}}));
}

TEST(ValueRecords, KeepARecordThatChangesNothing) {
    ValueRecords records;
    records.store(1, "L");
    records.store(2, "L");
    EXPECT_EQ(records.size(), 2U);
}

TEST(ValueRecords, AreInForceUntilTheNextOne) {
    ValueRecords records;
    records.store(5, "L");
    records.store(9, "H");
    EXPECT_EQ(records.inForceAt(4), std::nullopt);
    EXPECT_EQ(records.inForceAt(5), 0U);
    EXPECT_EQ(records.inForceAt(8), 0U);
    EXPECT_EQ(records.inForceAt(9), 1U);
    EXPECT_EQ(records.inForceAt(kLatestTime), 1U);
}

TEST(ValueRecords, AreFoundFromATimeOn) {
    ValueRecords records;
    records.store(5, "L");
    records.store(9, "H");
    EXPECT_EQ(records.firstFrom(kEarliestTime), 0U);
    EXPECT_EQ(records.firstFrom(5), 0U);
    EXPECT_EQ(records.firstFrom(6), 1U);
    EXPECT_EQ(records.firstFrom(9), 1U);
    EXPECT_EQ(records.firstFrom(10), 2U);
}

TEST(ValueRecords, ReachFromTheEarliestToTheLatestTime) {
    ValueRecords records;
    records.store(kLatestTime, "H");
    records.store(kEarliestTime, "L");
    EXPECT_EQ(records.inForceAt(kEarliestTime), 0U);
    EXPECT_EQ(records.inForceAt(kLatestTime - 1), 0U);
    EXPECT_EQ(records.inForceAt(kLatestTime), 1U);
    EXPECT_EQ(records.firstFrom(kLatestTime), 1U);
}

TEST(ValueRecords, MayHaveNoLetters) {
    ValueRecords records;
    records.store(2, "");
    records.store(1, "");
    EXPECT_EQ(recordsOf(records), (Records{{1, ""}, {2, ""}}));
}

TEST(ValueRecords, TakeAnotherWidthOnceTheyAreCleared) {
    ValueRecords records;
    records.store(1, "LLL");
    records.clear();
    EXPECT_TRUE(records.empty());
    EXPECT_EQ(records.inForceAt(1), std::nullopt);
    records.store(0, "H");
    EXPECT_EQ(recordsOf(records), (Records{{0, "H"}}));
}

struct WritingStyle {
    std::size_t width;
    bool mostlyForward;    ///< hardly ever late, or else nearly always
    Time longestStep = 3;  ///< ns from one record to the next
    std::string letters = "LHUZX";
};

/// Writes at random times and compares with a map.
void compareWithAMap(const WritingStyle& style) {
    SCOPED_TRACE(format("%zu letters, steps of %d", style.width, style.longestStep));
    RandomNumbers numbers;
    ValueRecords records;
    Records map;
    Time latest = 0;
    for (int i = 0; i < 2000; ++i) {
        const bool isLate = !style.mostlyForward || numbers.below(10) == 0;
        latest += isLate ? 0 : numbers.between(0, style.longestStep);
        const Time time = isLate ? numbers.between(-50, latest + 50) : latest;
        std::string letters;
        while (letters.size() < style.width) letters += numbers.letterOf(style.letters);
        records.store(time, letters);
        map[time] = letters;
        // Some look near the latest record, others anywhere, and some twice.
        const Time asked = numbers.below(2) == 0 ? latest - numbers.between(0, 3 * style.longestStep)
                                                 : numbers.between(-60, latest + 60);
        for (const Time each : {asked, asked, asked - 1}) {
            const auto next = map.upper_bound(each);
            const auto inForce = records.inForceAt(each);
            ASSERT_EQ(inForce.has_value(), next != map.begin());
            if (inForce) {
                ASSERT_EQ(records.lettersOf(*inForce), std::prev(next)->second);
                ASSERT_EQ(std::string_view(records.lettersInForceAt(each), style.width), std::prev(next)->second);
            } else {
                ASSERT_EQ(records.lettersInForceAt(each), nullptr);
            }
            if (style.width == 1) {
                ASSERT_EQ(records.letterInForceAt(each, '?'), inForce ? std::prev(next)->second.front() : '?');
            }
            ASSERT_EQ(records.firstFrom(each), std::distance(map.begin(), map.lower_bound(each)));
        }
    }
    EXPECT_EQ(recordsOf(records), map);
    EXPECT_EQ(records.size(), map.size());
    EXPECT_EQ(recordsOf(ValueRecords(records)), map);
}

TEST(ValueRecords, HoldWhatAMapHolds) {
    for (const std::size_t width : {1U, 2U, 8U, 16U, 17U, 255U}) {
        compareWithAMap({.width = width, .mostlyForward = true});
        compareWithAMap({.width = width, .mostlyForward = false});
    }
}

TEST(ValueRecords, MayLieFarApart) {
    for (const std::size_t width : {1U, 8U}) {
        for (const Time longestStep : {8190, 8195, 70000, 1000000}) {
            compareWithAMap({.width = width, .mostlyForward = true, .longestStep = longestStep});
            compareWithAMap({.width = width, .mostlyForward = false, .longestStep = longestStep});
        }
    }
}

TEST(ValueRecords, TakeAnyLetter) {
    using namespace std::string_literals;
    compareWithAMap({.width = 1, .mostlyForward = true, .letters = "LHUZXlx?\xFF\0\x07"s});
    compareWithAMap({.width = 1, .mostlyForward = false, .letters = "LHUZXlx?\xFF\0\x07"s});
}

TEST(ValueRecords, AreFoundAgainWhenTheOnesBehindHaveChanged) {
    ValueRecords records;
    for (Time time = 0; time < 100; ++time) records.store(10 * time, time % 2 == 0 ? "L" : "H");
    EXPECT_EQ(records.letterInForceAt(15, '?'), 'H');
    EXPECT_EQ(records.letterInForceAt(19, '?'), 'H');
    records.store(17, "Z");
    EXPECT_EQ(records.letterInForceAt(16, '?'), 'H');
    EXPECT_EQ(records.letterInForceAt(19, '?'), 'Z');
    EXPECT_EQ(records.letterInForceAt(20, '?'), 'L');
}

TEST(ValueRecords, TellWhatALetterReplaces) {
    ValueRecords records;
    EXPECT_EQ(records.storeLetter(5, 'L', '?'), '?');
    EXPECT_EQ(records.storeLetter(9, 'H', '?'), 'L');
    EXPECT_EQ(records.storeLetter(9, 'Z', '?'), 'H');
    EXPECT_EQ(records.storeLetter(7, 'U', '?'), 'L');
    EXPECT_EQ(records.storeLetter(3, 'X', '?'), '?');
    EXPECT_EQ(recordsOf(records), (Records{{3, "X"}, {5, "L"}, {7, "U"}, {9, "Z"}}));
}

}  // namespace
}  // namespace tarnsim
