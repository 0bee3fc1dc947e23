#include "Core/Components/Memory.h"

#include <stdexcept>

#include "Core/Components/DualPortRam.h"
#include "Core/Components/Memories.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

std::unique_ptr<MemoryInterface> eprom() {
    return std::make_unique<MC27C64>("u", ParaMap());
}
std::unique_ptr<MemoryInterface> ram() {
    return std::make_unique<HM62256B>("u", ParaMap());
}
std::unique_ptr<MemoryInterface> dualPortRam() {
    return std::make_unique<IDT7132LA>("u", ParaMap());
}

/// A memory as a host has it, which doesn't know what it is.
struct MemoryCase {
    std::string name;
    std::function<std::unique_ptr<MemoryInterface>()> make;
    std::uint32_t size;
};

const std::vector<MemoryCase> kMemories = {
    {"MC27C64", eprom, 8192}, {"HM62256B", ram, 32768}, {"IDT7132LA", dualPortRam, 2048}};
const std::vector<MemoryCase> kRams = {kMemories[1], kMemories[2]};

constexpr std::uint32_t kHighestAddress = 0xffffffff;

TEST(Memory, TellsItsWordsAndTheirWidth) {
    for (const auto& each : kMemories) {
        const auto memory = each.make();
        EXPECT_EQ(memory->getSize(), each.size) << each.name;
        EXPECT_EQ(memory->getWordSize(), 8U) << each.name;
    }
}

TEST(Memory, IsUndefinedInAllItsWordsWhenNew) {
    for (const auto& each : kMemories) {
        const auto memory = each.make();
        for (std::uint32_t address = 0; address < each.size; ++address) {
            ASSERT_EQ(memory->read(address, 0), "UUUUUUUU") << each.name << " " << address;
        }
        EXPECT_EQ(memory->read(0, kEarliestTime), "UUUUUUUU");
        EXPECT_EQ(memory->read(0, kLatestTime), "UUUUUUUU");
    }
}

TEST(Memory, HoldsAWordOfItsOwnAtEachAddress) {
    const auto wordOf = [](std::uint32_t address) {
        Value word(8);
        word.setNumber(static_cast<std::int32_t>((address * 7 + address / 256) % 256));
        return word;
    };
    for (const auto& each : kMemories) {
        const auto memory = each.make();
        for (std::uint32_t address = 0; address < each.size; ++address) memory->write(wordOf(address), address, 5);
        for (std::uint32_t address = 0; address < each.size; ++address) {
            ASSERT_EQ(memory->read(address, 5), wordOf(address).letters()) << each.name << " " << address;
        }
    }
}

TEST(Memory, KeepsAnyLetters) {
    for (const auto& each : kMemories) {
        const auto memory = each.make();
        memory->write(Value("HLUZXLHU"), 3, 0);
        EXPECT_EQ(memory->read(3, 0), "HLUZXLHU") << each.name;
        EXPECT_EQ(memory->read(2, 0), "UUUUUUUU") << each.name;
        EXPECT_EQ(memory->read(4, 0), "UUUUUUUU") << each.name;
    }
}

TEST(Memory, IsForgottenByAReset) {
    MC27C64 eprom("u", ParaMap());
    HM62256B ram("u", ParaMap());
    IDT7132LA dualPortRam("u", ParaMap());
    const auto expectForgets = [](auto& memory) {
        for (int i = 0; i < 2; ++i) {
            memory.write(Value("HHHHHHHH"), 0, 0);
            memory.write(Value("HHHHHHHH"), memory.getSize() - 1, 7);
            EXPECT_EQ(memory.read(0, 100), "HHHHHHHH") << memory.getType();
            memory.reset();
            EXPECT_EQ(memory.read(0, 100), "UUUUUUUU") << memory.getType();
            EXPECT_EQ(memory.read(memory.getSize() - 1, 100), "UUUUUUUU") << memory.getType();
        }
    };
    expectForgets(eprom);
    expectForgets(ram);
    expectForgets(dualPortRam);
}

TEST(Ram, RemembersWhatAWordWasBeforeEachWrite) {
    for (const auto& each : kRams) {
        const auto memory = each.make();
        memory->write(Value("LLLLHHHH"), 9, 100);
        memory->write(Value("HHHHLLLL"), 9, 200);
        memory->write(Value("LHLHLHLH"), 9, 150);  // behind the later one
        memory->write(Value("ZZZZZZZZ"), 9, -10);
        const std::map<Time, std::string> words = {
            {kEarliestTime, "UUUUUUUU"}, {-11, "UUUUUUUU"},        {-10, "ZZZZZZZZ"}, {99, "ZZZZZZZZ"},
            {100, "LLLLHHHH"},           {149, "LLLLHHHH"},        {150, "LHLHLHLH"}, {199, "LHLHLHLH"},
            {200, "HHHHLLLL"},           {kLatestTime, "HHHHLLLL"}};
        for (const auto& [time, word] : words) EXPECT_EQ(memory->read(9, time), word) << each.name << " " << time;
    }
}

TEST(Ram, RefusesAddressesBeyondItsSize) {
    for (const auto& each : kRams) {
        const auto memory = each.make();
        for (const std::uint32_t address : {each.size, each.size + 1, 0x80000000U, kHighestAddress}) {
            EXPECT_THROW(memory->read(address, 0), std::out_of_range) << each.name << " " << address;
            EXPECT_THROW(memory->write(Value("HHHHHHHH"), address, 0), std::out_of_range) << each.name;
        }
        EXPECT_EQ(memory->read(0, 0), "UUUUUUUU") << each.name;
        EXPECT_EQ(memory->read(each.size - 1, 0), "UUUUUUUU") << each.name;
    }
}

TEST(Ram, RefusesAWordOfAnotherWidth) {
    for (const auto& each : kRams) {
        const auto memory = each.make();
        memory->write(Value("LHLHLHLH"), 1, 0);
        for (const std::uint32_t address : {0U, 1U}) {
            EXPECT_EQ(errorOf([&] { memory->write(Value("HLHL"), address, 5); }),
                      "ValueHistory: mismatching type width. ValueHistory width=4, but value width=8");
            EXPECT_EQ(errorOf([&] { memory->write(Value(9), address, 5); }),
                      "ValueHistory: mismatching type width. ValueHistory width=9, but value width=8");
        }
        EXPECT_EQ(memory->read(0, 5), "UUUUUUUU") << each.name;
        EXPECT_EQ(memory->read(1, 5), "LHLHLHLH") << each.name;
    }
}

TEST(Eprom, HoldsItsWordsAtAllTimes) {
    const auto memory = eprom();
    memory->write(Value("LLLLHHHH"), 9, 100);
    for (const Time time : {kEarliestTime, -1, 0, 99, 100, kLatestTime}) EXPECT_EQ(memory->read(9, time), "LLLLHHHH");
    memory->write(Value("HHHHLLLL"), 9, 50);  // the last write counts, whatever its time
    for (const Time time : {kEarliestTime, 49, 50, 100, kLatestTime}) EXPECT_EQ(memory->read(9, time), "HHHHLLLL");
}

TEST(Eprom, TakesAddressesRoundItsSize) {
    const auto memory = eprom();
    memory->write(Value("LLLLLLLH"), 8192, 0);
    memory->write(Value("LLLLLLHL"), 8193 + 3 * 8192, 0);
    memory->write(Value("LLLLLLHH"), kHighestAddress, 0);
    memory->write(Value("LLLLLHLL"), 0x80000010U, 0);
    const std::map<std::uint32_t, std::string> words = {
        {0, "LLLLLLLH"},    {8192, "LLLLLLLH"},  {16384, "LLLLLLLH"}, {1, "LLLLLLHL"},    {8193, "LLLLLLHL"},
        {8191, "LLLLLLHH"}, {16383, "LLLLLLHH"}, {0x10, "LLLLLHLL"},  {2, "UUUUUUUU"},    {8194, "UUUUUUUU"},
        {8190, "UUUUUUUU"}, {0x11, "UUUUUUUU"},  {24575, "LLLLLLHH"}, {32769, "LLLLLLHL"}};
    for (const auto& [address, word] : words) EXPECT_EQ(memory->read(address, 0), word) << address;
}

TEST(Eprom, PutsANarrowerValueAtTheRightEndOfAWordMirroredAndRefusesAWiderOne) {
    const auto memory = eprom();
    memory->write(Value("HL"), 0, 0);
    memory->write(Value("ZHL"), 1, 0);
    memory->write(Value(), 2, 0);
    EXPECT_EQ(memory->read(0, 0), "LLLLLLLH");
    EXPECT_EQ(memory->read(1, 0), "UUUUULHZ");
    EXPECT_EQ(memory->read(2, 0), "LLLLLLLL");
    EXPECT_EQ(standardExceptionOf<std::length_error>([&] { memory->write(Value("HHHHHHHHH"), 0, 0); }),
              "Initializer mismatch 9 vs 8");
    EXPECT_EQ(memory->read(0, 0), "LLLLLLLH");
}

}  // namespace
}  // namespace tarnsim
