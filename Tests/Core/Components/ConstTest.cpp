#include <stdexcept>

#include "Core/Components/Sources.h"
#include "Core/Simulation/Net.h"
#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

std::string driven(std::uint32_t size, std::uint32_t value) {
    return Const("c", size, value).findPort("out")->get(0).c_str();
}

TEST(Const, DrivesItsNumberCutToItsSize) {
    EXPECT_EQ(driven(4, 255), "HHHH");
    EXPECT_EQ(driven(4, 0x11), "LLLH");
    EXPECT_EQ(driven(8, 0x1A5), "HLHLLHLH");
    EXPECT_EQ(driven(1, 1), "H");
    EXPECT_EQ(driven(1, 2), "L");
    EXPECT_EQ(driven(16, 0x8001), "HLLLLLLLLLLLLLLH");
    EXPECT_EQ(driven(30, 0xFFFFFFFF), std::string(30, 'H'));
}

TEST(Const, OfParametersIsTheSame) {
    const std::map<std::string, std::string> cases = {{"(size=4,value=255)", "HHHH"},
                                                      {"(size=4,value=$11)", "LLLH"},
                                                      {"(size=0b11,value=0x6)", "HHL"},
                                                      {"(other=1,size=2,value=2)", "HL"}};
    for (const auto& [parameters, letters] : cases) {
        const Const part("c", ParaMap(parameters));
        EXPECT_EQ(part.findPort("out")->get(0), letters) << parameters;
        EXPECT_EQ(part.getParameterText(), parameters);
    }
}

/// What a number is in so many bits: cut to the size modulo 32, and repeated every 32 bits.
std::string lettersOf(std::uint32_t size, std::uint32_t value) {
    const std::uint64_t kept = value & ((std::uint64_t{1} << (size % 32)) - 1);
    std::string letters;
    for (std::uint32_t bit = size; bit-- > 0;) letters += ((kept >> (bit % 32)) & 1) != 0 ? 'H' : 'L';
    return letters;
}

TEST(Const, OfEachSizeThatABusCanHaveCountsItModulo32) {
    for (std::uint32_t size = 1; size <= 255; ++size) {
        for (const std::uint32_t value : {0U, 1U, 0x12345678U, 0xFFFFFFFFU}) {
            if (size % 32 == 31) {
                EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { driven(size, value); }),
                          "Number cannot be represented in value");
            } else {
                EXPECT_EQ(driven(size, value), lettersOf(size, value)) << size << " " << value;
            }
        }
    }
    EXPECT_EQ(driven(32, 1), std::string(32, 'L'));
    EXPECT_EQ(driven(33, 1), "H" + std::string(31, 'L') + "H");
}

TEST(Const, RefusesASizeThatNoBusCanHave) {
    for (const std::string size : {"0", "256", "4294967295"}) {
        const std::string message = "Error: Const 'c': 'size' is " + size + ", but must be from 1 to 255.";
        EXPECT_EQ(errorOf([&] { Const("c", ParaMap("(size=" + size + ",value=0)")); }), message);
        EXPECT_EQ(errorOf([&] { Const("c", static_cast<std::uint32_t>(std::stoul(size)), 0); }), message);
    }
}

TEST(Const, NeedsBothOfItsParametersTheSizeFirst) {
    EXPECT_EQ(errorOf([] { Const("c", ParaMap("(value=1)")); }), "A Const unit needs a 'size' parameter.");
    EXPECT_EQ(errorOf([] { Const("c", ParaMap()); }), "A Const unit needs a 'size' parameter.");
    EXPECT_EQ(errorOf([] { Const("c", ParaMap("(size=4)")); }), "A Const unit needs a 'value' parameter.");
}

TEST(Const, DrivesFromTime0WhenMade) {
    const Const part("c", 4, 5);
    EXPECT_EQ(part.findPort("out")->recordCount(), 1U);
    EXPECT_EQ(part.findPort("out")->get(-1), "UUUU");
    EXPECT_EQ(part.findPort("out")->get(0), "LHLH");
}

TEST(Const, LosesItsValueByResetAndHasItBackByStartAndByEvaluation) {
    Const part("c", 4, 5);
    const Port* out = part.findPort("out");
    for (int i = 0; i < 2; ++i) {
        part.reset();
        EXPECT_EQ(out->get(1000), "UUUU");
        part.evaluate(30);
        EXPECT_EQ(out->get(29), "UUUU");
        EXPECT_EQ(out->get(30), "LHLH");
        part.start(500);
        EXPECT_EQ(out->get(-1), "UUUU");
        EXPECT_EQ(out->get(0), "LHLH");
        EXPECT_EQ(out->recordCount(), 2U);
    }
}

TEST(Const, GivesItsNetAValueAtTheStart) {
    Const part("c", 4, 5);
    Net net("n", 4);
    net.addPort(part.findPort("out"), kOutside);
    part.reset();
    part.start(500);
    EXPECT_EQ(net.get(0), "LHLH");
    EXPECT_EQ(net.recordCount(), 1U);
}

TEST(Const, TakesANewValueFromLaterParameters) {
    Const part("c", ParaMap("(size=4,value=5)"));
    part.setParameters(ParaMap("(size=4,value=$3A)"));
    EXPECT_EQ(part.findPort("out")->get(0), "LHLH");  // until it drives again
    part.evaluate(9);
    EXPECT_EQ(part.findPort("out")->get(9), "HLHL");
    EXPECT_EQ(part.getParameterText(), "(size=4,value=$3A)");
}

TEST(Const, KeepsItsPortWhenLaterParametersHaveAnotherSize) {
    Const part("c", ParaMap("(size=4,value=5)"));
    const std::vector<Port*> ports = part.getPorts();
    part.setParameters(ParaMap("(size=8,value=5)"));
    EXPECT_EQ(part.getPorts(), ports);
    EXPECT_EQ(ports[0]->width(), 4U);
}

TEST(Const, RefusesLaterParametersThatLackOne) {
    Const part("c", ParaMap("(size=4,value=5)"));
    part.getParameters().clear();
    EXPECT_EQ(errorOf([&] { part.applyParameters(); }), "A Const unit needs a 'size' parameter.");
}

}  // namespace
}  // namespace tarnsim
