#include "Core/Components/TtlGates.h"

#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

TEST(DM74LS00, HoldsFourNands) {
    DM74LS00 chip("u", 10U);
    PartBench bench(chip, 10);
    bench.expectSteps("Y1 Y2 Y3 Y4", {{"A1=L B1=L A2=L B2=H A3=H B3=L A4=H B4=H", "H H H L"},
                                      {"A1=H B1=H A4=L", "L H H H"},
                                      {"A1=U A2=H B2=U A3=L B3=U A4=X", "U U H L"},
                                      {"B1=L B2=H B3=H B4=Z", "H L H L"}});
}

TEST(DM74LS04, HoldsSixInverters) {
    DM74LS04 chip("u", 10U);
    PartBench bench(chip, 10);
    bench.expectSteps("Y1 Y2 Y3 Y4 Y5 Y6", {{"A1=L A2=H A3=L A4=H A5=H A6=L", "H L H L L H"},
                                            {"A1=H A2=L A3=U A4=Z A5=X A6=H", "L H U L L L"}});
}

TEST(DM74LS08, HoldsFourAnds) {
    DM74LS08 chip("u", 13U);
    PartBench bench(chip, 13);
    bench.expectSteps("Y1 Y2 Y3 Y4", {{"A1=L B1=L A2=L B2=H A3=H B3=L A4=H B4=H", "L L L H"},
                                      {"A1=H B1=H A4=L", "H L L L"},
                                      {"A1=U A2=H B2=U A3=L B3=U A4=X", "U U L H"}});
}

TEST(DM74LS32, HoldsFourOrs) {
    DM74LS32 chip("u", ParaMap("(delay=14)"));
    PartBench bench(chip, 14);
    bench.expectSteps("Y1 Y2 Y3 Y4", {{"A1=L B1=L A2=L B2=H A3=H B3=L A4=H B4=H", "L H H H"},
                                      {"A1=H B2=L A4=L B4=L", "H L H L"},
                                      {"A1=U B1=H A2=L B2=U A3=U B3=U A4=X", "H U U L"}});
}

TEST(DM74LS32, MadeFromADelayKeepsThe3OfItsGatesUntilParametersAreApplied) {
    DM74LS32 chip("u", 20U);
    for (const char* input : {"B1", "B2", "B3", "B4"}) chip.findPort(input)->set(Value("L"), 0);
    EXPECT_EQ(chip.getDelay(), 20U);
    EXPECT_EQ(readingDelay(chip, "A1", "Y1"), 3);
    EXPECT_EQ(readingDelay(chip, "A4", "Y4"), 3);
    chip.applyParameters();  // there are none
    EXPECT_EQ(readingDelay(chip, "A2", "Y2"), 20);
    EXPECT_EQ(readingDelay(chip, "A3", "Y3"), 20);
}

TEST(DM74LS125, HoldsFourBuffersThatFloatAtAHighGate) {
    DM74LS125 chip("u", 25U);
    PartBench bench(chip, 25);
    bench.expectSteps("Y1 Y2 Y3 Y4", {{"A1=H C1=L A2=L C2=L A3=H C3=H A4=H C4=U", "H L Z U"},
                                      {"C1=H C2=U C3=L C4=L", "Z U H H"},
                                      {"A1=L C1=X C2=Z A3=Z A4=X", "L L Z X"}});
}

TEST(DM74LS244, FloatsAHalfAtItsHighGateAndIsUndefinedAtAnUndefinedOneAndElseGivesItsInput) {
    DM74LS244 chip("u", 33U);
    PartBench bench(chip, 33);
    bench.expectSteps("1Y 2Y", {{"1A=HLLH 1_G=L 2A=LHLH 2_G=H", "HLLH ZZZZ"},
                                {"1_G=U 2_G=L", "UUUU LHLH"},
                                {"1_G=Z 2_G=X", "HLLH LHLH"},
                                {"1A=UZXH 1_G=X 2A=ZZZZ 2_G=Z", "UZXH ZZZZ"},
                                {"1_G=H 2_G=U", "ZZZZ UUUU"}});
    bench.reset();
    bench.set("1A=HLLH", 0);
    EXPECT_EQ(readingDelay(chip, "1_G", "1Y"), 33);
    EXPECT_EQ(readingDelay(chip, "2_G", "2Y"), 33);
}

/// The delay of every gate of a package as its constructors and parameters leave it. `inputs` and `outputs` are gate by
/// gate; all other inputs are low.
template <class Chip>
void expectGatesToFollowTheDelay(const std::vector<std::string>& inputs, const std::vector<std::string>& outputs,
                                 const std::string& others) {
    const auto expectDelay = [&](Component& chip, Time delay) {
        chip.reset();
        PartBench(chip, 0).set(others, 0);
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            EXPECT_EQ(readingDelay(chip, inputs[i], outputs[i]), delay) << chip.getType() << " " << inputs[i];
        }
    };
    Chip chip("u", ParaMap("(delay=17)"));
    const std::vector<Port*> ports = chip.getPorts();
    EXPECT_EQ(chip.getDelay(), 17U);
    expectDelay(chip, 17);
    chip.setParameters(ParaMap("(delay=0x6)"));
    EXPECT_EQ(chip.getDelay(), 6U);
    expectDelay(chip, 6);
    chip.setParameters(ParaMap("(colour=red)"));  // no delay: it stays
    expectDelay(chip, 6);
    chip.setDelay(0);
    EXPECT_EQ(chip.getDelay(), 0U);
    expectDelay(chip, 0);
    EXPECT_EQ(chip.getPorts(), ports);
    Chip without("u", ParaMap());
    expectDelay(without, 0);
}

TEST(TtlGates, TakeTheDelayThatTheirPackageIsGiven) {
    expectGatesToFollowTheDelay<DM74LS00>({"A1", "B2", "A3", "B4"}, {"Y1", "Y2", "Y3", "Y4"}, "B1=H A2=H B3=H A4=H");
    expectGatesToFollowTheDelay<DM74LS04>({"A1", "A2", "A3", "A4", "A5", "A6"}, {"Y1", "Y2", "Y3", "Y4", "Y5", "Y6"},
                                          "");
    expectGatesToFollowTheDelay<DM74LS08>({"A1", "B2", "A3", "B4"}, {"Y1", "Y2", "Y3", "Y4"}, "B1=H A2=H B3=H A4=H");
    expectGatesToFollowTheDelay<DM74LS32>({"A1", "B2", "A3", "B4"}, {"Y1", "Y2", "Y3", "Y4"}, "B1=L A2=L B3=L A4=L");
    expectGatesToFollowTheDelay<DM74LS125>({"A1", "C2", "A3", "C4"}, {"Y1", "Y2", "Y3", "Y4"}, "C1=L A2=L C3=L A4=H");
}

TEST(TtlGates, MadeFromADelayHaveItInAllGatesButTheOrs) {
    DM74LS00 nands("u", 12U);
    DM74LS04 inverters("u", 12U);
    DM74LS08 ands("u", 12U);
    DM74LS125 buffers("u", 12U);
    for (Component* chip : {static_cast<Component*>(&nands), static_cast<Component*>(&ands)}) {
        PartBench(*chip, 0).set("B1=H B4=H", 0);
        EXPECT_EQ(readingDelay(*chip, "A1", "Y1"), 12) << chip->getType();
        EXPECT_EQ(readingDelay(*chip, "A4", "Y4"), 12) << chip->getType();
        EXPECT_EQ(chip->getParameterText(), "");
    }
    EXPECT_EQ(readingDelay(inverters, "A6", "Y6"), 12);
    PartBench(buffers, 0).set("C4=L", 0);
    EXPECT_EQ(readingDelay(buffers, "A4", "Y4"), 12);
}

TEST(TtlGates, HaveTheCutTypeNameAndNothingToDescribe) {
    const DM74LS00 chip("u7", 10U);
    EXPECT_EQ(chip.getType(), "74LS00");
    EXPECT_EQ(chip.getName(), "u7");
    EXPECT_EQ(chip.getDescription(), "");
    EXPECT_EQ(DM74LS244("u", 33U).getType(), "74LS244");
    EXPECT_EQ(DM74LS244("u", 33U).getDelay(), 33U);
}

}  // namespace
}  // namespace tarnsim
