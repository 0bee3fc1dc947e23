#include "Core/Components/TtlDecoders.h"

#include "Core/Simulation/Net.h"
#include "Tests/Core/Components/PartBench.h"
#include "Tests/Support/RandomText.h"

namespace tarnsim {
namespace {

/// `count` outputs of which the one of that number is low; all high for -1.
std::string lowAt(int number, std::size_t count) {
    std::string letters(count, 'H');
    if (number >= 0) letters[count - 1 - static_cast<std::size_t>(number)] = 'L';
    return letters;
}

std::string address3(int number) {
    const auto letter = [&](int bit) { return (number >> bit & 1) != 0 ? "H" : "L"; };
    return std::string("A=") + letter(0) + " B=" + letter(1) + " C=" + letter(2);
}

TEST(DM74LS137, DecodesTheAddressWhileItsLatchIsOpen) {
    DM74LS137 chip("u", 38U);
    PartBench bench(chip, 38);
    for (int number = 0; number < 8; ++number) {
        EXPECT_EQ(bench.step("_GL=L G1=H _G2=L " + address3(number), "Y"), lowAt(number, 8));
    }
}

TEST(DM74LS137, CountsAnyLetterOfItsAddressButHAs0) {
    DM74LS137 chip("u", 38U);
    PartBench bench(chip, 38);
    bench.expectSteps("Y", {{"_GL=L G1=H _G2=L C=U B=H A=H", "HHHHLHHH"},
                            {"C=H B=Z", "HHLHHHHH"},
                            {"A=X", "HHHLHHHH"},
                            {"C=X B=X A=X", "HHHHHHHL"},
                            {"C=H B=H A=H", "LHHHHHHH"}});
}

/// The enables' rules, for an address of 5 that was never latched.
std::string expectedY(char gl, char g1, char g2) {
    std::string y = lowAt(-1, 8);
    if (gl == 'L' && g1 == 'H' && g2 == 'L') y = lowAt(5, 8);
    if (g1 == 'H' && g2 == 'U') y = lowAt(5, 8);
    if (g1 == 'U' && (g2 == 'L' || g2 == 'U')) y = lowAt(5, 8);
    if (gl == 'H' && g1 == 'H' && g2 == 'L') y = std::string(8, 'U');
    return y;
}

TEST(DM74LS137, PullsTheDecodedLineLowAtUndefinedEnablesTooAndIsHighAtOthers) {
    for (const char gl : kPinLetters) {
        for (const char g1 : kPinLetters) {
            for (const char g2 : kPinLetters) {
                DM74LS137 chip("u", 38U);
                PartBench bench(chip, 38);
                const std::string inputs = std::string("_GL=") + gl + " G1=" + g1 + " _G2=" + g2 + " A=H B=L C=H";
                EXPECT_EQ(bench.step(inputs, "Y"), expectedY(gl, g1, g2)) << inputs;
            }
        }
    }
}

TEST(DM74LS137, KeepsTheAddressOfTheTimeAtWhichItsLatchWasOpenLast) {
    DM74LS137 chip("u", 38U);
    PartBench bench(chip, 38);
    bench.expectSteps("Y", {{"_GL=L G1=H _G2=L C=L B=H A=H", "HHHHLHHH"},
                            {"C=H", "LHHHHHHH"},
                            {"_GL=H C=L B=L A=L", "LHHHHHHH"},
                            {"A=H", "LHHHHHHH"},
                            {"C=U", "LHHHHHHH"},
                            {"_GL=U", "HHHHHHHH"},
                            {"_GL=H", "LHHHHHHH"},
                            {"G1=L", "HHHHHHHH"},
                            {"_GL=L", "HHHHHHHH"},  // open while disabled: that address counts
                            {"_GL=H G1=H B=H", "HHHHHHLH"}});
}

TEST(DM74LS137, TakesTheLatchedAddressAsItStoodInTheLastNanosecondOfTheOpenLatch) {
    DM74LS137 chip("u", 38U);
    PartBench bench(chip, 38);
    bench.set("_GL=L G1=H _G2=L A=L B=L C=L", 0);
    bench.set("A=H", 99);
    bench.set("_GL=H B=H", 100);
    chip.evaluate(100 + 38);
    EXPECT_EQ(bench.read("Y", 138), lowAt(1, 8));
    EXPECT_EQ(bench.read("Y", 137), "UUUUUUUU");
}

TEST(DM74LS137, FindsALatchThatWasOpenLongAgoAndOneThatWasOpenAt0) {
    DM74LS137 chip("u", 38U);
    PartBench bench(chip, 38);
    bench.set("_GL=L G1=H _G2=L A=H B=H C=L", 0);
    bench.set("_GL=H A=L", 1);
    chip.evaluate(1 + 38);
    EXPECT_EQ(bench.read("Y", 39), lowAt(3, 8));
    chip.evaluate(3'000'000);
    EXPECT_EQ(bench.read("Y", 3'000'000), lowAt(3, 8));
    chip.evaluate(kLatestTime);
    EXPECT_EQ(bench.read("Y", kLatestTime), lowAt(3, 8));
}

TEST(DM74LS137, FindsNoLatchThatWasOpenBefore0) {
    DM74LS137 chip("u", 38U);
    PartBench bench(chip, 38);
    bench.set("_GL=L G1=H _G2=L A=H B=H C=L", -50);
    chip.evaluate(-50 + 38);
    EXPECT_EQ(bench.read("Y", -12), lowAt(3, 8));
    bench.set("_GL=H", -20);
    chip.evaluate(-20 + 38);
    EXPECT_EQ(bench.read("Y", 18), "UUUUUUUU");
    chip.evaluate(500);
    EXPECT_EQ(bench.read("Y", 500), "UUUUUUUU");
}

/// The latch by going back ns by ns.
std::string walkedY(const Component& chip, Time u) {
    const auto letter = [&](const char* pin, Time time) { return chip.findPin(pin)->level(time); };
    const auto addressAt = [&](Time time) {
        return (letter("C", time) == 'H' ? 4 : 0) + (letter("B", time) == 'H' ? 2 : 0) +
               (letter("A", time) == 'H' ? 1 : 0);
    };
    const char gl = letter("_GL", u);
    const char g1 = letter("G1", u);
    const char g2 = letter("_G2", u);
    if (gl == 'H' && g1 == 'H' && g2 == 'L') {
        for (Time s = u; s >= 0; --s) {
            if (letter("_GL", s) == 'L') return lowAt(addressAt(s), 8);
        }
        return std::string(8, 'U');
    }
    const bool isOpen = gl == 'L' && g1 == 'H' && g2 == 'L';
    const bool isUnknown = (g1 == 'H' && g2 == 'U') || (g1 == 'U' && (g2 == 'L' || g2 == 'U'));
    return lowAt(isOpen || isUnknown ? addressAt(u) : -1, 8);
}

/// A decoder whose pins are driven directly or through nets.
class DrivenDecoder {
public:
    explicit DrivenDecoder(bool throughNets) {
        if (!throughNets) return;
        for (Port* port : chip.getPorts()) {
            if (port->direction() != Direction::Input) continue;
            auto& line = lines_[port->getName()];
            line = std::make_unique<Line>();
            line->net.addPort(&line->driver, kOutside);
            line->net.addPort(port, kOutside);
        }
    }
    void set(const std::string& pin, char letter, Time time) {
        const auto line = lines_.find(pin);
        Pin& driven = line == lines_.end() ? *chip.findPin(pin) : line->second->driver;
        driven.setLevel(letter, time);
    }

    DM74LS137 chip{"u", 5U};

private:
    struct Line {
        Net net{1};
        Pin driver{Direction::Output, "driver"};
    };
    std::map<std::string, std::unique_ptr<Line>> lines_;
};

TEST(DM74LS137, FindsTheSameAsGoingBackNanosecondByNanosecond) {
    RandomNumbers numbers;
    for (int round = 0; round < 80; ++round) {
        DrivenDecoder decoder(round % 2 == 1);
        for (int i = 0; i < 40; ++i) {
            const Time time = numbers.between(-20, 150);
            for (const std::string pin : {"A", "B", "C"}) {
                if (numbers.below(3) == 0) decoder.set(pin, numbers.letterOf("LHLHLHU"), time);
            }
            if (numbers.below(3) == 0) decoder.set("_GL", numbers.letterOf("LHHHHUZX"), time);
            if (numbers.below(8) == 0) decoder.set("G1", numbers.letterOf("LHHHHHHU"), time);
            if (numbers.below(8) == 0) decoder.set("_G2", numbers.letterOf("LLLLLLHU"), time);
        }
        decoder.set("G1", 'H', 20);
        decoder.set("_G2", 'L', 20);
        for (Time time = -15; time < 160; ++time) {
            decoder.chip.evaluate(time);
            ASSERT_EQ(decoder.chip.findPort("Y")->get(time), walkedY(decoder.chip, time - 5))
                << "round " << round << " at " << time;
        }
    }
}

TEST(DM74LS137, FindsALatchThatWasOpenOnItsNetBeforeItHungThere) {
    Net net("n", 1);
    Pin driver(Direction::Output, "driver");
    net.addPort(&driver, kOutside);
    driver.setLevel('L', 10);
    driver.setLevel('H', 20);
    DM74LS137 chip("u", 38U);
    net.addPort(chip.findPort("_GL"), kOutside);
    PartBench(chip, 38).set("G1=H _G2=L A=L B=H C=L", 0);
    chip.evaluate(500);
    EXPECT_EQ(chip.findPort("Y")->get(500), lowAt(2, 8));
}

TEST(DM74LS137, ReadsAddressAndEnablesOneDelayAgo) {
    for (const std::string input : {"A", "G1", "_G2"}) {
        DM74LS137 chip("u", 21U);
        PartBench(chip, 21).set("_GL=L G1=H _G2=L A=L B=L C=L", 0);
        EXPECT_EQ(readingDelay(chip, input, "Y"), 21) << input;
    }
}

TEST(DM74LS139, HoldsTwoDecodersWithTheirAddressesAsBuses) {
    DM74LS139 chip("u", 38U);
    PartBench bench(chip, 38);
    bench.expectSteps("O1 O2", {{"E1=L A1=LL E2=L A2=HH", "HHHL LHHH"},
                                {"A1=LH A2=HL", "HHLH HLHH"},
                                {"E1=H A2=UL", "HHHH UUUU"},
                                {"E2=U", "HHHH UUUU"},
                                {"E1=Z E2=L A2=LL", "(HHHH) HHHL"},
                                {"E1=X E2=Z A2=HH", "(HHHH) (HHHL)"}});
}

TEST(DM74LS139, GivesItsDelayToBothDecoders) {
    DM74LS139 chip("u", ParaMap("(delay=38)"));
    PartBench(chip, 0).set("A1=LL A2=LL", 0);
    EXPECT_EQ(readingDelay(chip, "E1", "O1"), 38);
    EXPECT_EQ(readingDelay(chip, "E2", "O2"), 38);
    chip.setParameters(ParaMap("(delay=6,bus_io=no)"));
    EXPECT_EQ(readingDelay(chip, "E1", "O1"), 6);
    EXPECT_EQ(readingDelay(chip, "E2", "O2"), 6);
    EXPECT_EQ(chip.findPort("A1")->width(), 2U);
}

/// What a DM74LS154 shows for its enables and its address, D first.
std::string expected154(char g1, char g2, const std::string& address) {
    const bool isEnabled = g1 == 'L' && g2 == 'L';
    if (address.find('U') != std::string::npos) return std::string(16, 'U');
    if (!isEnabled && (g1 == 'U' || g2 == 'U')) return std::string(16, 'U');
    int number = 0;
    for (const char letter : address) number = 2 * number + (letter == 'H' ? 1 : 0);
    return lowAt(isEnabled ? number : -1, 16);
}

/// A step with the bus and its pins: these have to be the same.
void expect154(PartBench& bench, char g1, char g2, const std::string& address) {
    const std::string inputs = std::string("_G1=") + g1 + " _G2=" + g2 + " D=" + address[0] + " C=" + address[1] +
                               " B=" + address[2] + " A=" + address[3];
    std::string pins;
    for (const char letter : expected154(g1, g2, address)) pins += std::string(" ") + letter;
    EXPECT_EQ(bench.step(inputs, "Y Y15 Y14 Y13 Y12 Y11 Y10 Y9 Y8 Y7 Y6 Y5 Y4 Y3 Y2 Y1 Y0"),
              expected154(g1, g2, address) + pins)
        << inputs;
}

TEST(DM74LS154, DecodesItsAddressOnTheBusAndOnThePins) {
    DM74LS154 chip("u", 23U);
    PartBench bench(chip, 23);
    for (const char d : {'L', 'H'}) {
        for (const char c : {'L', 'H'}) {
            for (const char b : {'L', 'H'}) {
                for (const char a : {'L', 'H'}) expect154(bench, 'L', 'L', {d, c, b, a});
            }
        }
    }
}

TEST(DM74LS154, IsHighUnlessBothEnablesAreLowAndUndefinedIfThatIsNotKnown) {
    DM74LS154 chip("u", 23U);
    PartBench bench(chip, 23);
    for (const char g1 : kPinLetters) {
        for (const char g2 : kPinLetters) expect154(bench, g1, g2, "LHLH");
    }
}

TEST(DM74LS154, IsUndefinedAtAnyUndefinedAddressEvenWhenDisabledAndCountsOtherLettersAs0) {
    DM74LS154 chip("u", 23U);
    PartBench bench(chip, 23);
    for (const std::string address : {"ULLL", "LUHH", "HHUH", "HHHU", "UUUU", "UZXL", "ZHHH", "HXHH", "HHZX", "ZZZZ"}) {
        for (const char g1 : kPinLetters) expect154(bench, g1, 'L', address);
    }
}

TEST(DM74LS154, ChangesBusAndPinsAtTheSameTimeOneDelayAfterItsInputs) {
    DM74LS154 chip("u", 19U);
    PartBench(chip, 19).set("_G1=L _G2=L B=L C=L D=L", 0);
    EXPECT_EQ(readingDelay(chip, "A", "Y"), 19);
    EXPECT_EQ(chip.findPort("Y1")->get(1018), "H");
    EXPECT_EQ(chip.findPort("Y1")->get(1019), "L");
    chip.setParameters(ParaMap("(delay=4)"));
    EXPECT_EQ(readingDelay(chip, "A", "Y0"), 4);
}

TEST(DM74LS154, ForgetsItsOutputsByReset) {
    DM74LS154 chip("u", 23U);
    PartBench bench(chip, 23);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(bench.step("_G1=L _G2=L A=L B=L C=H D=L", "Y Y4 Y5"), "HHHHHHHHHHHLHHHH L H");
        bench.reset();
        EXPECT_EQ(bench.read("Y", 1000), std::string(16, 'U'));
        for (const Port* port : chip.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

}  // namespace
}  // namespace tarnsim
