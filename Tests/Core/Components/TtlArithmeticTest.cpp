#include "Core/Components/TtlArithmetic.h"

#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

std::string binary(unsigned number, std::size_t width) {
    std::string letters;
    for (std::size_t bit = width; bit-- > 0;) letters += (number >> bit & 1) != 0 ? 'H' : 'L';
    return letters;
}

TEST(DM74LS283, AddsAllNumbersWithBothCarries) {
    DM74LS283 chip("u", 24U);
    PartBench bench(chip, 24);
    for (unsigned a = 0; a < 16; ++a) {
        for (unsigned b = 0; b < 16; ++b) {
            for (unsigned cin = 0; cin < 2; ++cin) {
                const unsigned sum = a + b + cin;
                EXPECT_EQ(bench.step("A=" + binary(a, 4) + " B=" + binary(b, 4) + " cin=" + binary(cin, 1), "C cout"),
                          binary(sum % 16, 4) + " " + binary(sum / 16, 1))
                    << a << " " << b << " " << cin;
            }
        }
    }
}

TEST(DM74LS283, IsUndefinedIfAnyInputBitIsWhateverTheOthersAre) {
    DM74LS283 chip("u", 24U);
    PartBench bench(chip, 24);
    for (const char letter : {'U', 'Z', 'X'}) {
        for (std::size_t bit = 0; bit < 4; ++bit) {
            std::string number = "LLLL";
            number[bit] = letter;
            EXPECT_EQ(bench.step("A=" + number + " B=LLLL cin=L", "C cout"), "UUUU U");
            EXPECT_EQ(bench.step("A=LHLH B=" + number, "C cout"), "UUUU U");
        }
        EXPECT_EQ(bench.step(std::string("A=LLLL B=LLLL cin=") + letter, "C cout"), "UUUU U");
        EXPECT_EQ(bench.step("cin=H", "C cout"), "LLLH L");
    }
}

TEST(DM74LS283, ReadsAllItsInputsOneDelayAgo) {
    for (const std::string output : {"C", "cout"}) {
        DM74LS283 chip("u", ParaMap("(delay=13)"));
        PartBench(chip, 13).set("A=HHHH B=LLLL cin=L", 0);
        EXPECT_EQ(readingDelay(chip, "cin", output), 13);
    }
}

TEST(SN74x688, IsLowForEqualNumbersWhileEnabled) {
    SN74x688 chip("u", 25U);
    PartBench bench(chip, 25);
    bench.expectSteps("_P=Q", {{"_G=L P=HLHLHLHL Q=HLHLHLHL", "L"},
                               {"Q=HLHLHLHH", "H"},
                               {"P=LLHLHLHH", "H"},
                               {"Q=LLHLHLHH", "L"},
                               {"P=LLLLLLLL Q=LLLLLLLL", "L"},
                               {"_G=H", "H"}});
}

TEST(SN74x688, IsUndefinedForUndefinedNumbersAndAtAnEnableThatIsNoLevel) {
    SN74x688 chip("u", 25U);
    PartBench bench(chip, 25);
    bench.expectSteps("_P=Q", {{"_G=L P=LLLLLLLU Q=LLLLLLLU", "U"},
                               {"P=LLLLLLLL", "U"},
                               {"_G=H", "H"},
                               {"_G=L P=LLLLLLLZ Q=LLLLLLLL", "U"},
                               {"P=LLLLLLLL Q=XLLLLLLL", "U"},
                               {"_G=U Q=LLLLLLLL", "U"},
                               {"_G=L", "L"},
                               {"_G=Z", "U"},
                               {"_G=L Q=LLLLLLLH", "H"},
                               {"_G=X", "U"}});
}

TEST(SN74x688, HasTheDelayOfItsFamily) {
    EXPECT_EQ(SN74x688("u", ParaMap("(family=LS)")).getDelay(), 25U);
    EXPECT_EQ(SN74x688("u", ParaMap("(family=ALS)")).getDelay(), 22U);
    EXPECT_EQ(SN74x688("u", ParaMap()).getDelay(), 25U);
    for (const std::string family : {"AS", "F", "ls", "", "LSx"}) {
        EXPECT_EQ(errorOf([&] { SN74x688("u", ParaMap("(family=" + family + ")")); }),
                  "Error: unknown/unsupported device family of SN74x688: '" + family + "'.");
    }
}

TEST(SN74x688, TakesADelayFromItsParametersWhenItIsMadeOnly) {
    SN74x688 chip("u", ParaMap("(delay=7,family=ALS)"));
    EXPECT_EQ(chip.getDelay(), 7U);
    EXPECT_EQ(readingDelay(chip, "_G", "_P=Q"), 7);
    chip.applyParameters();
    EXPECT_EQ(chip.getDelay(), 22U);
    chip.setParameters(ParaMap("(delay=7)"));
    EXPECT_EQ(chip.getDelay(), 25U);
    EXPECT_EQ(readingDelay(chip, "_G", "_P=Q"), 25);
    EXPECT_EQ(SN74x688("u", ParaMap("(delay=7)")).getDelay(), 7U);
}

TEST(SN74x688, IsMadeFromADelayAndTellsIt) {
    SN74x688 chip("u", 9U);
    EXPECT_EQ(chip.getDelay(), 9U);
    EXPECT_EQ(chip.getDescription(), "<br>Delay: <i>9</i>");
    EXPECT_EQ(readingDelay(chip, "_G", "_P=Q"), 9);
    chip.applyParameters();
    EXPECT_EQ(chip.getDescription(), "<br>Delay: <i>25</i>");
}

TEST(TtlArithmetic, TheComparatorFindsTheAdderRightForAllNumbersAndBothCarries) {
    DM74LS283 adder("adder", 24U);
    SN74x688 comparator("comparator", 25U);
    PartBench adding(adder, 24);
    PartBench comparing(comparator, 25);
    for (unsigned i = 0; i < 512; ++i) {
        const unsigned a = i / 32;
        const unsigned b = i / 2 % 16;
        const unsigned cin = i % 2;
        adding.step("A=" + binary(a, 4) + " B=" + binary(b, 4) + " cin=" + binary(cin, 1), "C");
        const Time time = adding.now() + 24;
        const std::string sum = "LLL" + adding.read("cout", time) + adding.read("C", time);
        EXPECT_EQ(comparing.step("_G=L P=" + sum + " Q=" + binary(a + b + cin, 8), "_P=Q"), "L") << i;
        EXPECT_EQ(comparing.step("Q=" + binary(a + b + 1 - cin, 8), "_P=Q"), "H") << i;
    }
}

}  // namespace
}  // namespace tarnsim
