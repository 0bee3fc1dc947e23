#include "Core/Components/Primitives.h"

#include <stdexcept>

#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

TEST(ThreeStateBuf, FloatsAtAHighGateAndIsUndefinedAtAnUndefinedOneAndElseGivesItsInput) {
    ThreeStateBuf buffer("b", 3U);
    PartBench bench(buffer, 3);
    for (const char in : kPinLetters) {
        const std::string letter(1, in);
        bench.expectSteps("out", {{"in=" + letter + " _g=H", "Z"},
                                  {"_g=U", "U"},
                                  {"_g=L", letter},
                                  {"_g=Z", letter},
                                  {"_g=H", "Z"},
                                  {"_g=X", letter}});
    }
}

TEST(ThreeStateBuf, ReadsBothInputsOneDelayAgo) {
    ThreeStateBuf buffer("b", 7U);
    buffer.findPort("_g")->set(Value("L"), 0);
    EXPECT_EQ(readingDelay(buffer, "in", "out"), 7);
    EXPECT_EQ(readingDelay(buffer, "_g", "out"), 7);
}

TEST(BusBuffer, FloatsAtAHighGateAndIsUndefinedAtAnUndefinedOneAndElseGivesItsInput) {
    for (const std::uint32_t size : {1U, 4U, 9U, 255U}) {
        BusBuffer buffer("b", 10U, size);
        PartBench bench(buffer, 10);
        for (const char in : kPinLetters) {
            const std::string letters = std::string(size - 1, 'H') + in;
            bench.expectSteps("out", {{"in=" + letters + " _g=H", std::string(size, 'Z')},
                                      {"_g=U", std::string(size, 'U')},
                                      {"_g=L", letters},
                                      {"_g=U", std::string(size, 'U')},
                                      {"_g=Z", letters},
                                      {"_g=H", std::string(size, 'Z')},
                                      {"_g=X", letters}});
        }
    }
}

TEST(BusBuffer, IsMadeFromItsDelayAndItsSize) {
    BusBuffer buffer("b", 12U, 5U);
    EXPECT_EQ(buffer.getName(), "b");
    EXPECT_EQ(buffer.getType(), "BusBuffer");
    EXPECT_EQ(buffer.getDelay(), 12U);
    EXPECT_EQ(buffer.findPort("in")->width(), 5U);
    EXPECT_EQ(buffer.findPort("out")->width(), 5U);
    EXPECT_EQ(readingDelay(buffer, "_g", "out"), 12);
}

TEST(BusBuffer, KeepsItsPortsWhenLaterParametersHaveAnotherSize) {
    BusBuffer buffer("b", ParaMap("(delay=10,size=4)"));
    const std::vector<Port*> ports = buffer.getPorts();
    buffer.setParameters(ParaMap("(delay=6,size=2)"));
    EXPECT_EQ(buffer.getPorts(), ports);
    EXPECT_EQ(buffer.findPort("in")->width(), 4U);
    EXPECT_EQ(buffer.findPort("out")->width(), 4U);
    EXPECT_EQ(buffer.getDelay(), 6U);
    PartBench bench(buffer, 6);
    bench.expectSteps("out", {{"in=HLHL _g=L", "HLHL"}, {"_g=H", "ZZZZ"}, {"_g=U", "UUUU"}});
}

TEST(DFlipFlop, TakesDOverAtTheExactPairLThenHOfItsClockAndAtNoOther) {
    for (const char before : kPinLetters) {
        for (const char now : kPinLetters) {
            D_flip_flop flipFlop("f", 10U);
            PartBench bench(flipFlop, 10);
            const std::string first = std::string("D=H _OE=L clk=") + before;
            const std::string second = std::string("clk=") + now;
            const bool isEdge = before == 'L' && now == 'H';
            bench.expectSteps("Q _Q", {{first, "U U"}, {second, isEdge ? "H L" : "U U"}});
        }
    }
}

TEST(DFlipFlop, StoresAnyLetterOfDAndShowsBothOutputsUndefinedUnlessItIsALevel) {
    D_flip_flop flipFlop("f", 10U);
    PartBench bench(flipFlop, 10);
    bench.expectSteps("Q _Q", {{"_OE=L clk=L D=H", "U U"},
                               {"clk=H", "H L"},
                               {"clk=L D=L", "H L"},
                               {"clk=H", "L H"},
                               {"clk=L D=U", "L H"},
                               {"clk=H", "U U"},
                               {"clk=L D=H", "U U"},
                               {"clk=H", "H L"},
                               {"clk=L D=Z", "H L"},
                               {"clk=H", "U U"},
                               {"clk=L D=L", "U U"},
                               {"clk=H", "L H"},
                               {"clk=L D=X", "L H"},
                               {"clk=H", "U U"}});
}

TEST(DFlipFlop, LeavesItsOutputsAloneAtAnOutputEnableThatIsNeitherLevelNorUndefined) {
    D_flip_flop flipFlop("f", 10U);
    PartBench bench(flipFlop, 10);
    bench.expectSteps("Q _Q", {{"_OE=L clk=L D=H", "U U"},
                               {"clk=H", "H L"},
                               {"_OE=Z", "(H) (L)"},
                               {"clk=L D=L", "(H) (L)"},
                               {"clk=H", "(H) (L)"},  // clocked all the same
                               {"_OE=X", "(H) (L)"},
                               {"_OE=L", "L H"},
                               {"_OE=H", "Z Z"},
                               {"_OE=X", "(Z) (Z)"},
                               {"_OE=U", "U U"},
                               {"_OE=Z", "(U) (U)"},
                               {"_OE=L", "L H"}});
}

TEST(DFlipFlop, IsClockedWhileItFloatsOrIsUndefined) {
    D_flip_flop flipFlop("f", 10U);
    PartBench bench(flipFlop, 10);
    bench.expectSteps("Q _Q", {{"_OE=H clk=L D=H", "Z Z"},
                               {"clk=H", "Z Z"},
                               {"_OE=L", "H L"},
                               {"_OE=U clk=L D=L", "U U"},
                               {"clk=H", "U U"},
                               {"_OE=L D=H", "L H"}});
}

TEST(DFlipFlop, LooksForAnEdgeFromItsLastEvaluationToThePresentOne) {
    D_flip_flop flipFlop("f", 10U);
    PartBench bench(flipFlop, 10);
    bench.set("_OE=L D=H clk=L", 0);
    flipFlop.evaluate(10);
    bench.set("clk=H", 20);
    bench.set("clk=L", 30);
    bench.set("clk=H", 40);
    bench.set("D=L", 45);
    bench.set("D=H", 65);
    flipFlop.evaluate(70);  // the clock at 60 against the one at 0, with the D of 60
    EXPECT_EQ(bench.read("Q _Q", 70), "L H");
    EXPECT_EQ(bench.read("Q _Q", 69), "U U");
    flipFlop.evaluate(71);  // high both at 60 and 61
    EXPECT_EQ(bench.read("Q _Q", 71), "L H");
}

TEST(DFlipFlop, WithoutDelayHasSeenNothingBeforeTheFirstEvaluationUntilAResetPutsThatTo0) {
    D_flip_flop flipFlop("f", 0U);
    PartBench bench(flipFlop, 0);
    const auto clockFromStart = [&] {
        bench.set("_OE=L D=H clk=L", 0);
        bench.set("clk=H", 5);
        flipFlop.evaluate(5);
        return bench.read("Q _Q", 5);
    };
    EXPECT_EQ(clockFromStart(), "U U");
    flipFlop.reset();
    EXPECT_EQ(clockFromStart(), "H L");
}

TEST(DFlipFlop, ForgetsItsBitAndItsPortsByReset) {
    D_flip_flop flipFlop("f", 10U);
    PartBench bench(flipFlop, 10);
    const std::vector<BenchStep> run = {
        {"clk=H D=H _OE=L", "U U"}, {"clk=L", "U U"}, {"clk=H", "H L"}, {"_OE=H", "Z Z"}};
    for (int i = 0; i < 3; ++i) {
        bench.expectSteps("Q _Q", run);
        bench.reset();
        for (const Port* port : flipFlop.getPorts()) EXPECT_EQ(port->recordCount(), 0U) << port->getName();
    }
}

TEST(DFlipFlop, HasNoBitInASecondRunThatDoesNotClockIt) {
    D_flip_flop flipFlop("f", 10U);
    PartBench bench(flipFlop, 10);
    bench.expectSteps("Q _Q", {{"clk=L D=H _OE=L", "U U"}, {"clk=H", "H L"}});
    bench.reset();
    bench.expectSteps("Q _Q", {{"clk=L D=H _OE=L", "U U"}, {"D=L", "U U"}, {"D=H", "U U"}});
}

/// A demultiplexer with pins and one with buses, by the same words.
class Demultiplexers : public testing::Test {
protected:
    /// Both have to give `letters` after these levels; `select` has the letter of bit 1 first.
    void expect(const std::string& x, const std::string& select, const std::string& letters) {
        EXPECT_EQ(withBuses.step("x=" + x + " S=" + select, "Y"), letters);
        const bool isWritten = letters[0] != '(';
        std::string pins;
        for (const char letter : isWritten ? letters : letters.substr(1, 4)) {
            const std::string text(1, letter);
            pins += (pins.empty() ? "" : " ") + (isWritten ? text : "(" + text + ")");
        }
        EXPECT_EQ(withPins.step("x=" + x + " s1=" + select[0] + " s0=" + select[1], "y3 y2 y1 y0"), pins);
    }

    Demux1to4 pinPart{"p", 10U, false};
    Demux1to4 busPart{"b", 10U, true};
    PartBench withPins{pinPart, 10};
    PartBench withBuses{busPart, 10};
};

TEST_F(Demultiplexers, PullTheSelectedOutputLow) {
    expect("L", "LL", "HHHL");
    expect("L", "LH", "HHLH");
    expect("L", "HL", "HLHH");
    expect("L", "HH", "LHHH");
}

TEST_F(Demultiplexers, AreHighWhenDisabledWhateverTheSelectBitsAre) {
    for (const char s1 : kPinLetters) {
        for (const char s0 : kPinLetters) expect("H", {s1, s0}, "HHHH");
    }
}

TEST_F(Demultiplexers, AreUndefinedAtAnUndefinedEnable) {
    for (const char s1 : kPinLetters) {
        for (const char s0 : kPinLetters) expect("U", {s1, s0}, "UUUU");
    }
}

TEST_F(Demultiplexers, KeepTheirOutputsAtAnEnableThatFloatsOrIsAWildCard) {
    expect("Z", "LL", "(UUUU)");
    expect("L", "HL", "HLHH");
    expect("Z", "LL", "(HLHH)");
    expect("X", "UU", "(HLHH)");
    expect("H", "ZZ", "HHHH");
    expect("X", "ZZ", "(HHHH)");
}

TEST_F(Demultiplexers, AreUndefinedAtAnyUndefinedSelectBit) {
    for (const std::string select : {"UU", "UL", "UH", "LU", "HU", "UZ", "ZU", "UX", "XU"}) expect("L", select, "UUUU");
}

TEST_F(Demultiplexers, CannotCountWithSelectBitsThatFloatOrAreWildCards) {
    const std::map<std::string, char> firstBad = {{"ZL", 'Z'}, {"HZ", 'Z'}, {"ZZ", 'Z'}, {"XH", 'X'},
                                                  {"LX", 'X'}, {"XZ", 'X'}, {"ZX", 'Z'}};
    for (const auto& each : firstBad) {
        const std::string& select = each.first;
        const std::string message = std::string("Cannot interpret '") + each.second + "' as a binary digit.";
        EXPECT_EQ(standardExceptionOf<std::domain_error>([&] { withBuses.step("x=L S=" + select, "Y"); }), message);
        EXPECT_EQ(standardExceptionOf<std::domain_error>(
                      [&] { withPins.step("x=L s1=" + select.substr(0, 1) + " s0=" + select.substr(1), "y0"); }),
                  message);
    }
}

TEST(Demux1to4, KeepsItsPortsWhenLaterParametersHaveAnotherBusIo) {
    for (const bool busIo : {false, true}) {
        Demux1to4 part("d", 10U, busIo);
        const std::vector<Port*> ports = part.getPorts();
        part.setParameters(ParaMap(busIo ? "(bus_io=no,delay=4)" : "(bus_io=yes,delay=4)"));
        EXPECT_EQ(part.getPorts(), ports);
        EXPECT_EQ(part.getDelay(), 4U);
        PartBench bench(part, 4);
        EXPECT_EQ(bench.step(busIo ? "x=L S=HL" : "x=L s1=H s0=L", busIo ? "Y" : "y2"), busIo ? "HLHH" : "L");
    }
}

TEST(Demux1to4, ReadsAllItsInputsOneDelayAgo) {
    for (const std::string input : {"x", "s0", "s1"}) {
        Demux1to4 part("d", 9U, false);
        PartBench(part, 9).set("s0=L s1=L x=L", 0);
        EXPECT_EQ(readingDelay(part, input, "y0"), 9) << input;
    }
}

}  // namespace
}  // namespace tarnsim
