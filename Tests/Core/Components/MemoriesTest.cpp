#include "Core/Components/Memories.h"

#include "Core/Support/Text.h"
#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

const std::string kFloating = "ZZZZZZZZ";
const std::string kUndefined = "UUUUUUUU";
const std::string kWord = "HLLHLLHH";     // lies in the memory
const std::string kNewWord = "LLHHLHLH";  // lies on the data pins

/// One address for each letter that its lowest bit can hold; all but the first two are undefined.
std::vector<std::string> addressesOf(std::uint32_t width) {
    std::vector<std::string> addresses;
    for (const char letter : kPinLetters) addresses.push_back(std::string(width - 1, 'H') + letter);
    for (const char letter : {'U', 'Z', 'X'}) addresses.push_back(letter + std::string(width - 1, 'L'));
    return addresses;
}

/// Sets a pin at 100 and evaluates at each time: how long after it the output first is another one.
Time accessTimeOf(Component& memory, const std::string& pin, const std::string& from, const std::string& to,
                  const std::string& output) {
    memory.findPort(pin)->set(Value(from), 0);
    memory.findPort(pin)->set(Value(to), 100);
    const Port* out = memory.findPort(output);
    memory.evaluate(99);
    const Value before = out->get(99);
    for (Time time = 100; time < 300; ++time) {
        memory.evaluate(time);
        if (out->get(time) != before) return time - 100;
    }
    return -1;
}

// The EPROM.

/// What the data pins hold by the function table.
std::string epromOutput(char cs, char oe, const Value& address) {
    if (cs == 'H') return kFloating;
    if (cs != 'L') return kUndefined;
    if (oe == 'H') return kFloating;
    if (oe != 'L') return kUndefined;
    return address.isDefined() ? kWord : kUndefined;
}

TEST(MC27C64, FollowsItsFunctionTableForEveryLetterOfEveryControlPin) {
    for (const char cs : kPinLetters) {
        for (const char oe : kPinLetters) {
            for (const std::string& address : addressesOf(13)) {
                MC27C64 chip("u", 45U);
                if (Value(address).isDefined()) chip.write(Value(kWord), Value(address).toNumber(), 0);
                PartBench bench(chip, 45);
                const std::string pins = std::string("_CS=") + cs + " _OE=" + oe + " A=" + address;
                EXPECT_EQ(bench.step(pins, "D"), epromOutput(cs, oe, Value(address))) << pins;
            }
        }
    }
}

TEST(MC27C64, AnswersWithTheWordOfEachAddress) {
    MC27C64 chip("u", 45U);
    PartBench bench(chip, 45);
    for (std::uint32_t address = 0; address < 8192; address += 37) {
        Value word(8);
        word.setNumber(static_cast<std::int32_t>(address % 251));
        chip.write(word, address, 0);
        Value pins(13);
        pins.setNumber(static_cast<std::int32_t>(address));
        EXPECT_EQ(bench.step("_CS=L _OE=L A=" + std::string(pins.letters()), "D"), word.letters()) << address;
    }
}

TEST(MC27C64, PutsTheLettersOfAWordOnItsPinsAsTheyAre) {
    MC27C64 chip("u", 45U);
    chip.write(Value("HLUZXLHU"), 8191, 0);
    EXPECT_EQ(PartBench(chip, 45).step("_CS=L _OE=L A=HHHHHHHHHHHHH", "D"), "HLUZXLHU");
}

TEST(MC27C64, ReadsAllItsInputsOneAccessTimeAgo) {
    MC27C64 chip("u", 45U);
    chip.write(Value(kWord), 0, 0);
    PartBench(chip, 45).set("_CS=L _OE=L A=LLLLLLLLLLLLL", 0);
    EXPECT_EQ(accessTimeOf(chip, "_CS", "L", "H", "D"), 45);
    chip.findPort("_CS")->set(Value("L"), 100);
    EXPECT_EQ(accessTimeOf(chip, "_OE", "L", "H", "D"), 45);
    chip.findPort("_OE")->set(Value("L"), 100);
    EXPECT_EQ(accessTimeOf(chip, "A", "LLLLLLLLLLLLL", "LLLLLLLLLLLLH", "D"), 45);
}

// The static RAM.

/// What the data pins hold by the function table, and whether the memory is written.
struct RamRow {
    std::string output;
    bool writes;
};

RamRow ramRow(char cs, char we, char oe, const Value& address) {
    const bool isLevelOe = oe == 'H' || oe == 'L';
    if (cs == 'H') return {kFloating, false};
    if (cs != 'L') return {kUndefined, false};
    if (we == 'L') return {isLevelOe ? kFloating : kUndefined, true};
    if (we != 'H') return {kUndefined, false};
    if (oe == 'H') return {kFloating, false};
    if (oe != 'L') return {kUndefined, false};
    return {address.isDefined() ? kWord : kUndefined, false};
}

TEST(HM62256B, FollowsItsFunctionTableForEveryLetterOfEveryControlPin) {
    const std::string controls(kPinLetters);
    for (std::size_t i = 0; i < 125; ++i) {
        const char cs = controls[i / 25];
        const char we = controls[i / 5 % 5];
        const char oe = controls[i % 5];
        for (const std::string& letters : addressesOf(15)) {
            const Value address(letters);
            HM62256B chip("u6", 70U);
            if (address.isDefined()) chip.write(Value(kWord), address.toNumber(), 0);
            PartBench bench(chip, 70);
            const std::string pins =
                std::string("_CS=") + cs + " _WE=" + we + " _OE=" + oe + " Din=" + kNewWord + " A=" + letters;
            const RamRow row = ramRow(cs, we, oe, address);
            std::string output;
            const std::string log = outputOf([&] { output = bench.step(pins, "Dout"); });
            EXPECT_EQ(output, row.output) << pins;
            const bool warns = row.writes && !address.isDefined();
            EXPECT_EQ(log, warns
                               ? "*** WARNING: writing to memory 'u6' ('HM62256B') with unstable address at time=70!!\n"
                               : "")
                << pins;
            if (!address.isDefined()) continue;
            EXPECT_EQ(chip.read(address.toNumber(), 69), kWord) << pins;
            EXPECT_EQ(chip.read(address.toNumber(), 70), row.writes ? kNewWord : kWord) << pins;
        }
    }
}

TEST(HM62256B, StoresNothingAnywhereForAnUndefinedAddress) {
    HM62256B chip("u6", 70U);
    for (std::uint32_t address = 0; address < chip.getSize(); ++address) chip.write(Value(kWord), address, 0);
    outputOf([&] { PartBench(chip, 70).step("_CS=L _WE=L _OE=H Din=" + kNewWord + " A=UZXUZXUZXUZXUZX", "Dout"); });
    for (std::uint32_t address = 0; address < chip.getSize(); ++address) {
        ASSERT_EQ(chip.read(address, 1000), kWord) << address;
    }
}

TEST(HM62256B, StoresWhatItsDataPinsHeldOneAccessTimeAgoLetterByLetter) {
    HM62256B chip("u6", 70U);
    PartBench bench(chip, 70);
    bench.set("_CS=L _WE=L _OE=H A=LLLLLLLLLLLLLLL Din=LLLLLLLL", 0);
    bench.set("Din=HLUZXLHU", 100);
    bench.set("Din=HHHHHHHH", 101);
    chip.evaluate(169);
    EXPECT_EQ(chip.read(0, 169), "LLLLLLLL");
    chip.evaluate(170);
    EXPECT_EQ(chip.read(0, 169), "LLLLLLLL");
    EXPECT_EQ(chip.read(0, 170), "HLUZXLHU");
    chip.evaluate(171);
    EXPECT_EQ(chip.read(0, 170), "HLUZXLHU");
    EXPECT_EQ(chip.read(0, 171), "HHHHHHHH");
}

TEST(HM62256B, StoresAtTheAddressOfOneAccessTimeAgo) {
    HM62256B chip("u6", 70U);
    PartBench bench(chip, 70);
    bench.set("_CS=L _WE=L _OE=H A=LLLLLLLLLLLLLLL Din=" + kWord, 0);
    bench.set("A=HHHHHHHHHHHHHHH", 100);
    chip.evaluate(169);
    EXPECT_EQ(chip.read(0, 169), kWord);
    EXPECT_EQ(chip.read(32767, 169), kUndefined);
    chip.evaluate(170);
    EXPECT_EQ(chip.read(32767, 169), kUndefined);
    EXPECT_EQ(chip.read(32767, 170), kWord);
}

TEST(HM62256B, AnswersWithWhatAWordWasOneAccessTimeAgo) {
    HM62256B chip("u6", 70U);
    PartBench bench(chip, 70);
    bench.set("_CS=L _WE=H _OE=L A=LLLLLLLLLLLLLLL", 0);
    chip.write(Value(kWord), 0, 100);
    chip.evaluate(169);
    EXPECT_EQ(bench.read("Dout", 169), kUndefined);
    chip.evaluate(170);
    EXPECT_EQ(bench.read("Dout", 170), kWord);
}

TEST(HM62256B, ReadsAllItsInputsOneAccessTimeAgo) {
    const std::map<std::string, std::string> changes = {{"_CS", "H"}, {"_OE", "H"}, {"_WE", "L"}};
    for (const auto& [pin, to] : changes) {
        HM62256B chip("u6", 70U);
        chip.write(Value(kWord), 0, 0);
        PartBench(chip, 70).set("_CS=L _OE=L _WE=H A=LLLLLLLLLLLLLLL Din=" + kWord, 0);
        EXPECT_EQ(accessTimeOf(chip, pin, to == "H" ? "L" : "H", to, "Dout"), 70) << pin;
    }
    HM62256B chip("u6", 70U);
    chip.write(Value(kWord), 0, 0);
    PartBench(chip, 70).set("_CS=L _OE=L _WE=H", 0);
    EXPECT_EQ(accessTimeOf(chip, "A", "LLLLLLLLLLLLLLL", "HLLLLLLLLLLLLLL", "Dout"), 70);
}

TEST(MemoriesWithoutADelay, AnswerAtOnce) {
    MC27C64 eprom("u", ParaMap());
    HM62256B ram("u", ParaMap());
    EXPECT_EQ(eprom.getDelay(), 0U);
    EXPECT_EQ(ram.getDelay(), 0U);
    eprom.write(Value(kWord), 0, 0);
    EXPECT_EQ(PartBench(eprom, 0).step("_CS=L _OE=L A=LLLLLLLLLLLLL", "D"), kWord);
    PartBench bench(ram, 0);
    bench.expectSteps("Dout",
                      {{"_CS=L _OE=L _WE=L A=LLLLLLLLLLLLLLL Din=" + kNewWord, kFloating}, {"_WE=H", kNewWord}});
}

}  // namespace
}  // namespace tarnsim
