#include "Core/Circuit/Circuit.h"
#include "Core/Components/Component.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Simulation/Net.h"
#include "Tests/Core/Components/TestParts.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(Component, WithoutParentItReachesNoSimulatorAndSchedulingIsDropped) {
    NotingPart part("Part", "u", nullptr);
    EXPECT_EQ(part.getSimulator(), nullptr);
    part.schedule(&part, 3);
    part.scheduleTagged(&part, 7, 3);
    EXPECT_EQ(part.journal, Journal());
}

TEST(Component, InACircuitWithoutSimulatorSchedulingIsDroppedToo) {
    Circuit circuit("circuit", nullptr);
    NotingPart part("Part", "u", &circuit);
    part.schedule(&part, 3);
    EventSimulator simulator(&circuit);
    simulator.run(10);
    EXPECT_EQ(part.journal, Journal());
}

TEST(Component, SchedulesAnyComponentAtAnAbsoluteTimeFromAnyDepth) {
    Circuit root("root", nullptr);
    Circuit inner("inner", &root);
    EventSimulator simulator(&root);
    NotingPart part("Part", "u", &inner);
    NotingPart target("Part", "v", nullptr);
    EXPECT_EQ(part.getSimulator(), &simulator);
    part.schedule(&target, 3);
    part.scheduleTagged(&target, 0, 5);
    part.scheduleTagged(&target, 9, 6);  // which a component by default ignores
    simulator.run(10);
    EXPECT_EQ(target.journal, (Journal{"evaluate@3", "evaluate@5"}));
    EXPECT_EQ(part.journal, Journal());
    EXPECT_EQ(simulator.getTime(), 6);
}

TEST(Component, ARootReachesNoSimulatorAsAComponentThoughItHoldsIt) {
    Circuit root("root", nullptr);
    EventSimulator simulator(&root);
    NotingPart part("Part", "u", &root);
    EXPECT_EQ(root.getSimulator(), nullptr);
    EXPECT_EQ(root.findSimulator(), &simulator);
    root.schedule(&part, 3);
    simulator.run(10);
    EXPECT_EQ(part.journal, Journal());
}

TEST(Component, RefreshingSetsWhatThePortsOfOneDirectionRead) {
    Net net("n", 1);
    NotingPart part("Part", "u", nullptr);
    Pin* in = part.createPin(Direction::Input, "in");
    Pin* out = part.createPin(Direction::Output, "out");
    Pin* inout = part.createPin(Direction::Inout, "inout");
    for (Pin* pin : {in, inout}) net.addPort(pin, kOutside);
    net.addPort(out, kInside);
    net.set(Value("H"), 4);

    part.refreshInputs(6);
    EXPECT_EQ(in->recordCount(), 1U);
    EXPECT_EQ(out->recordCount(), 0U);
    EXPECT_EQ(inout->recordCount(), 0U);
    EXPECT_EQ(part.journal, (Journal{"in:U>H@6"}));

    part.refreshOutputs(8);
    EXPECT_EQ(in->recordCount(), 1U);
    EXPECT_EQ(out->recordCount(), 1U);
    EXPECT_EQ(inout->recordCount(), 0U);
    net.removePort(out);
    EXPECT_EQ(out->get(8), "H");
    EXPECT_EQ(out->get(7), "U");
}

TEST(Component, WarnsOfEachInputWithoutNetOutside) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    NotingPart part("DM74LS00", "u1", nullptr);
    Pin* connected = part.createPin(Direction::Input, "connected");
    part.createPin(Direction::Input, "floating");
    Pin* insideOnly = part.createPin(Direction::Input, "insideOnly");
    part.createPin(Direction::Output, "out");
    part.createPin(Direction::Inout, "inout");
    outside.addPort(connected, kOutside);
    inside.addPort(insideOnly, kInside);
    std::string errors;
    EXPECT_EQ(outputOf([&] { errors = errorOutputOf([&] { part.checkConnections(); }); }),
              "*** WARNING: Input port 'floating' of component '74LS00'/'u1' is not connected.\n"
              "*** WARNING: Input port 'insideOnly' of component '74LS00'/'u1' is not connected.\n");
    EXPECT_EQ(errors, "");
}

TEST(Component, SaysNothingWhenAllInputsAreConnected) {
    Net net("n", 1);
    NotingPart part("Part", "u1", nullptr);
    net.addPort(part.createPin(Direction::Input, "in"), kOutside);
    part.createPin(Direction::Output, "out");
    EXPECT_EQ(outputOf([&] { part.checkConnections(); }), "");
}

}  // namespace
}  // namespace tarnsim
