#include "Core/Components/Sources.h"

#include "Core/Circuit/Circuit.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Simulation/Net.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

template <class Source>
class LevelSources : public testing::Test {
protected:
    const char* type() const { return std::is_same_v<Source, High> ? "High" : "Low"; }
    const char* level() const { return std::is_same_v<Source, High> ? "H" : "L"; }
};

using SourceTypes = testing::Types<High, Low>;
TYPED_TEST_SUITE(LevelSources, SourceTypes);

TYPED_TEST(LevelSources, HaveOneOutputAndTheirClassNameAsType) {
    const TypeParam source("s");
    EXPECT_EQ(source.getType(), this->type());
    EXPECT_EQ(source.getName(), "s");
    EXPECT_EQ(source.getParameterText(), "");
    ASSERT_EQ(source.getPorts().size(), 1U);
    EXPECT_EQ(source.getPorts()[0], source.findPin("out"));
    EXPECT_EQ(source.findPin("out")->direction(), Direction::Output);
}

TYPED_TEST(LevelSources, DriveFromTimeZeroAsSoonAsTheyAreMade) {
    const TypeParam plain("s");
    const TypeParam withParameters("s", ParaMap("(any=1)"));
    for (const Component* source :
         {static_cast<const Component*>(&plain), static_cast<const Component*>(&withParameters)}) {
        const Port* out = source->findPort("out");
        EXPECT_EQ(out->recordCount(), 1U);
        EXPECT_EQ(out->get(-1), "U");
        EXPECT_EQ(out->get(0), this->level());
        EXPECT_EQ(out->get(1000000), this->level());
    }
    EXPECT_EQ(withParameters.getParameterText(), "(any=1)");
}

TYPED_TEST(LevelSources, LoseTheirLevelByResetAndHaveItBackByStart) {
    Net net("n", 1);
    TypeParam source("s");
    net.addPort(source.findPort("out"), kOutside);
    EXPECT_EQ(net.recordCount(), 0U);  // attached after the driving
    source.reset();
    EXPECT_EQ(source.findPort("out")->recordCount(), 0U);
    source.start(500);
    EXPECT_EQ(source.findPort("out")->recordCount(), 1U);
    EXPECT_EQ(net.get(0), this->level());
    EXPECT_EQ(net.get(-1), "U");
}

TYPED_TEST(LevelSources, DoNothingWhenEvaluatedOrGivenParameters) {
    TypeParam source("s");
    source.reset();
    source.evaluate(5);
    source.evaluateTagged(5, 1);
    source.applyParameters();
    source.setParameters(ParaMap("(delay=9)"));
    EXPECT_EQ(source.findPort("out")->recordCount(), 0U);
    EXPECT_EQ(source.getParameterText(), "(delay=9)");
}

TYPED_TEST(LevelSources, ScheduleNoEvents) {
    TypeParam source("s");
    Circuit root("root", nullptr);
    EventSimulator simulator(&root);
    root.addChild(&source, nullptr);
    root.createNet("n", {source.findPort("out")});
    simulator.prepare(100);
    simulator.run(77);
    EXPECT_EQ(simulator.getTime(), 77);  // the end, as the queue is empty
    EXPECT_EQ(root.findNet("n")->get(0), this->level());
}

}  // namespace
}  // namespace tarnsim
