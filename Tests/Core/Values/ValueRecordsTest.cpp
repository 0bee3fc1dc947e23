#include "Core/Values/ValueRecords.h"

#include <map>
#include <string>

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

/// Writes at random times, nearly always late or, with `mostlyForward`, hardly ever, and compares with a map.
void compareWithAMap(std::size_t width, bool mostlyForward) {
    RandomNumbers numbers;
    ValueRecords records;
    Records map;
    Time latest = 0;
    for (int i = 0; i < 2000; ++i) {
        const bool isLate = !mostlyForward || numbers.below(10) == 0;
        latest += isLate ? 0 : numbers.between(0, 3);
        const Time time = isLate ? numbers.between(-50, latest + 50) : latest;
        std::string letters;
        while (letters.size() < width) letters += numbers.letterOf("LHUZX");
        records.store(time, letters);
        map[time] = letters;
        const Time asked = numbers.between(-60, latest + 60);
        const auto next = map.upper_bound(asked);
        const auto inForce = records.inForceAt(asked);
        ASSERT_EQ(inForce.has_value(), next != map.begin());
        if (inForce) {
            ASSERT_EQ(records.lettersOf(*inForce), std::prev(next)->second);
        }
        ASSERT_EQ(records.firstFrom(asked), std::distance(map.begin(), map.lower_bound(asked)));
    }
    EXPECT_EQ(recordsOf(records), map);
    EXPECT_EQ(records.size(), map.size());
}

TEST(ValueRecords, HoldWhatAMapHolds) {
    for (const std::size_t width : {1U, 8U, 255U}) {
        compareWithAMap(width, true);
        compareWithAMap(width, false);
    }
}

}  // namespace
}  // namespace tarnsim
