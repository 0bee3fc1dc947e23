#include "Core/Components/MemoryCells.h"

#include <stdexcept>

#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(MemoryCells, ReadUndefinedInTheirWidthAtAnyTimeUntilWritten) {
    for (const std::uint32_t width : {1U, 4U, 8U, 16U}) {
        const MemoryCells cells(3, width);
        for (const Time time : {kEarliestTime, -1, 0, 1, kLatestTime}) {
            for (const std::uint32_t address : {0U, 1U, 2U}) {
                EXPECT_EQ(cells.read(address, time), Value(width).letters()) << width;
            }
        }
    }
}

TEST(MemoryCells, HoldAWordFromTheTimeOfItsWriteOnAndRememberWhatWasBefore) {
    MemoryCells cells(2, 4);
    cells.write(Value("HLHL"), 1, 10);
    cells.write(Value("LZUX"), 1, 20);
    EXPECT_EQ(cells.read(1, 9), "UUUU");
    EXPECT_EQ(cells.read(1, 10), "HLHL");
    EXPECT_EQ(cells.read(1, 19), "HLHL");
    EXPECT_EQ(cells.read(1, 20), "LZUX");
    EXPECT_EQ(cells.read(1, kLatestTime), "LZUX");
    EXPECT_EQ(cells.read(0, kLatestTime), "UUUU") << "the word beside it";
}

TEST(MemoryCells, MayBeWrittenBehindALaterWrite) {
    MemoryCells cells(1, 4);
    cells.write(Value("HHHH"), 0, 20);
    cells.write(Value("LLLL"), 0, 10);
    cells.write(Value("LLHH"), 0, -5);
    EXPECT_EQ(cells.read(0, -6), "UUUU");
    EXPECT_EQ(cells.read(0, 9), "LLHH");
    EXPECT_EQ(cells.read(0, 19), "LLLL");
    EXPECT_EQ(cells.read(0, 20), "HHHH");
}

TEST(MemoryCells, TakeTheLastOfTheWritesOfOneTime) {
    MemoryCells cells(1, 4);
    cells.write(Value("HHHH"), 0, 10);
    cells.write(Value("LHLH"), 0, 10);
    EXPECT_EQ(cells.read(0, 10), "LHLH");
}

TEST(MemoryCells, HaveNoWordAtTheirSizeOrAbove) {
    MemoryCells cells(3, 4);
    const MemoryCells none(0, 4);
    for (const std::uint32_t address : {3U, 4U, 0x80000000U, 0xffffffffU}) {
        EXPECT_THROW(cells.read(address, 0), std::out_of_range) << address;
        EXPECT_THROW(cells.write(Value("HHHH"), address, 0), std::out_of_range) << address;
    }
    EXPECT_THROW(none.read(0, 0), std::out_of_range);
    for (const std::uint32_t address : {0U, 1U, 2U}) EXPECT_EQ(cells.read(address, 0), "UUUU");
}

TEST(MemoryCells, RefuseAValueOfAnotherWidthAndStayAsTheyWere) {
    MemoryCells cells(2, 4);
    cells.write(Value("HLHL"), 1, 5);
    for (const std::uint32_t address : {0U, 1U}) {
        EXPECT_EQ(errorOf([&] { cells.write(Value("HHHHH"), address, 9); }),
                  "ValueHistory: mismatching type width. ValueHistory width=5, but value width=4");
        EXPECT_EQ(errorOf([&] { cells.write(Value("H"), address, 9); }),
                  "ValueHistory: mismatching type width. ValueHistory width=1, but value width=4");
    }
    EXPECT_EQ(cells.read(0, 9), "UUUU");
    EXPECT_EQ(cells.read(1, 9), "HLHL");
}

TEST(MemoryCells, ForgetAllByClearAndCanBeWrittenAgain) {
    MemoryCells cells(3, 4);
    for (int i = 0; i < 3; ++i) {
        cells.write(Value("HLHL"), 0, 5);
        cells.write(Value("LLLL"), 2, -5);
        cells.clear();
        for (const std::uint32_t address : {0U, 1U, 2U}) EXPECT_EQ(cells.read(address, kLatestTime), "UUUU");
    }
    cells.write(Value("HHLL"), 2, 7);
    EXPECT_EQ(cells.read(2, 6), "UUUU") << "the write before the clear isn't back";
    EXPECT_EQ(cells.read(2, 7), "HHLL");
    EXPECT_THROW(cells.read(3, 0), std::out_of_range) << "the size stays";
}

TEST(MemoryCells, AreMapsFromTimeToWord) {
    RandomNumbers random;
    MemoryCells cells(4, 3);
    std::map<std::uint32_t, std::map<Time, std::string>> model;
    for (int i = 0; i < 2000; ++i) {
        const auto address = static_cast<std::uint32_t>(random.below(4));
        const Time time = random.between(-20, 200);
        if (random.below(400) == 0) {
            cells.clear();
            model.clear();
        } else if (random.below(3) == 0) {
            std::string word;
            while (word.size() < 3) word += random.letterOf("LHUZX");
            cells.write(Value(word), address, time);
            model[address][time] = word;
        } else {
            const auto& records = model[address];
            const auto after = records.upper_bound(time);
            ASSERT_EQ(cells.read(address, time), after == records.begin() ? "UUU" : std::prev(after)->second)
                << "step " << i;
        }
    }
}

}  // namespace
}  // namespace tarnsim
