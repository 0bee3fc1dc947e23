#include <cmath>
#include <limits>

#include "Core/Circuit/Circuit.h"
#include "Core/Components/Sources.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/Values/Recorder.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// The changes that an oscillator lays down for a run, such as "L@0 H@100 L@600".
std::string changesOf(Oscillator& clock, Time endTime) {
    Recorder recorder;
    Port* out = clock.findPort("out");
    out->subscribe(&recorder);
    clock.start(endTime);
    out->unsubscribe(&recorder);
    std::string text;
    for (const HeardChange& each : recorder.heard)
        text += (text.empty() ? "" : " ") + each.newLetters + "@" + std::to_string(each.time);
    return text;
}

struct Clock {
    std::string parameters;
    Time endTime;
    std::string changes;
};

void expectChanges(const std::vector<Clock>& clocks) {
    for (const Clock& each : clocks) {
        Oscillator clock("clk", ParaMap(each.parameters));
        EXPECT_EQ(changesOf(clock, each.endTime), each.changes) << each.parameters << " to " << each.endTime;
    }
}

TEST(Oscillator, LaysItsWholeClockDownAtTheStart) {
    expectChanges({
        {"(frequency=1000000,offset=0)", 2500, "L@0 H@0 L@500 H@1000 L@1500 H@2000 L@2500"},
        {"(frequency=1000000,offset=100)", 2500, "L@0 H@100 L@600 H@1100 L@1600 H@2100 L@2600"},
        {"(frequency=5000000,offset=30)", 400, "L@0 H@30 L@130 H@230 L@330 H@430 L@530"},
    });
}

TEST(Oscillator, BeginsItsLastPeriodByTheNumberOfWholePeriodsInTheRun) {
    expectChanges({
        {"(frequency=1000000,offset=0)", 0, "L@0 H@0 L@500"},
        {"(frequency=1000000,offset=0)", 999, "L@0 H@0 L@500"},
        {"(frequency=1000000,offset=0)", 1000, "L@0 H@0 L@500 H@1000 L@1500"},
        {"(frequency=1000000,offset=0)", 1001, "L@0 H@0 L@500 H@1000 L@1500"},
        {"(frequency=1000000,offset=700)", 999, "L@0 H@700 L@1200"},
        {"(frequency=1000000,offset=5000)", 1000, "L@0 H@5000 L@5500 H@6000 L@6500"},
    });
}

TEST(Oscillator, OfAnOddPeriodIsHighForTheShorterHalf) {
    expectChanges({
        {"(frequency=3000000,offset=0)", 666, "L@0 H@0 L@166 H@333 L@499 H@666 L@832"},  // 333.3 ns
        {"(frequency=40000000,offset=1)", 50, "L@0 H@1 L@13 H@26 L@38 H@51 L@63"},       // 25 ns
        {"(frequency=3e8,offset=0)", 6, "L@0 H@0 L@1 H@3 L@4 H@6 L@7"},
    });
}

TEST(Oscillator, LosesThePartOfThePeriodBelowANanosecond) {
    expectChanges({
        {"(frequency=1.5,offset=0)", 0, "L@0 H@0 L@333333333"},  // 666666666.7 ns
        {"(frequency=0.5,offset=0)", 0, "L@0 H@0 L@1000000000"},
        {"(frequency=600000000,offset=0)", 2, "L@0 H@0 L@0 H@1 L@1 H@2 L@2"},  // 1.67 ns: no time is left for H
        {"(frequency=1000000000,offset=2)", 1, "L@0 H@2 L@2 H@3 L@3"},
    });
}

TEST(Oscillator, WithoutOffsetIsHighAtTime0WithOneRecordThere) {
    Oscillator clock("clk", 1e6F, 0);
    clock.start(0);
    const Port* out = clock.findPort("out");
    EXPECT_EQ(out->get(-1), "U");
    EXPECT_EQ(out->get(0), "H");
    EXPECT_EQ(out->recordCount(), 2U);
}

TEST(Oscillator, IsMadeFromItsFrequencyAndItsOffset) {
    Oscillator clock("clk", 5e6F, 30);
    EXPECT_EQ(clock.getName(), "clk");
    EXPECT_EQ(clock.getType(), "Oscillator");
    EXPECT_EQ(clock.findPort("out")->recordCount(), 0U);
    EXPECT_EQ(changesOf(clock, 399), "L@0 H@30 L@130 H@230 L@330");
}

TEST(Oscillator, ReadsItsFrequencyAsADecimalNumberAndItsOffsetInAnyForm) {
    expectChanges({
        {"(frequency=1e6,offset=$64)", 0, "L@0 H@100 L@600"},
        {"(frequency=1e6,offset=0b110)", 0, "L@0 H@6 L@506"},
        {"(frequency=2.5e6Hz,offset=0x10)", 0, "L@0 H@16 L@216"},
    });
}

TEST(Oscillator, TakesNewParametersAtTheNextStart) {
    Oscillator clock("clk", 1e6F, 0);
    clock.setParameters(ParaMap("(frequency=5e6)"));
    EXPECT_EQ(changesOf(clock, 0), "L@0 H@0 L@100");
    clock.reset();
    clock.setParameters(ParaMap("(frequency=5e6,offset=7)"));
    EXPECT_EQ(clock.findPort("out")->recordCount(), 0U);
    EXPECT_EQ(changesOf(clock, 0), "L@0 H@7 L@107");
}

TEST(Oscillator, LaysTheSameClockDownForASecondRun) {
    Oscillator clock("clk", 1e6F, 100);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(changesOf(clock, 1000), "L@0 H@100 L@600 H@1100 L@1600");
        clock.reset();
        EXPECT_EQ(clock.findPort("out")->recordCount(), 0U);
    }
    EXPECT_EQ(changesOf(clock, 999), "L@0 H@100 L@600");
}

TEST(Oscillator, DoesNothingWhenEvaluated) {
    Oscillator clock("clk", 1e6F, 0);
    clock.evaluate(5);
    clock.evaluateTagged(5, 1);
    EXPECT_EQ(clock.findPort("out")->recordCount(), 0U);
}

TEST(Oscillator, SchedulesNothing) {
    Oscillator clock("clk", 1e6F, 0);
    Circuit board("board", nullptr);
    EventSimulator simulator(&board);
    board.addChild(&clock, nullptr);
    board.createNet("n", {clock.findPort("out")});
    simulator.prepare(5000);
    simulator.run(4321);
    EXPECT_EQ(simulator.getTime(), 4321);  // the end, as the queue is empty
    EXPECT_EQ(board.findNet("n")->get(4321), "H");
    EXPECT_EQ(board.findNet("n")->get(4500), "L");
}

TEST(Oscillator, RefusesToStartWithAFrequencyThatHasNoPeriodAndNamesItself) {
    for (const std::string frequency : {"0", "-1", "-1e6", "nan", "inf", "-inf", "fast", "", "1.1e9", "2e9", "0.4",
                                        "0.46", "1e-30", "1e-60", "-0.0"}) {
        Oscillator clock("thePaceMaker", ParaMap("(frequency=" + frequency + ",offset=0)"));
        const std::string message = errorOf([&] { clock.start(1000); });
        EXPECT_NE(message.find("thePaceMaker"), std::string::npos) << frequency << ": " << message;
        EXPECT_EQ(clock.findPort("out")->recordCount(), 0U) << frequency;
    }
}

TEST(Oscillator, AcceptsTheLongestPeriodThatIsATime) {
    Oscillator clock("clk", ParaMap("(frequency=0.46566132,offset=0)"));  // 2147483479 ns with 24 bits of precision
    EXPECT_EQ(errorOf([&] { clock.start(1000); }), "(no Error)");
    EXPECT_EQ(clock.findPort("out")->get(1073741000), "H");
    EXPECT_EQ(clock.findPort("out")->get(1073742000), "L");
}

}  // namespace
}  // namespace tarnsim
