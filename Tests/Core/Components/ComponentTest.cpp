#include "Core/Components/Component.h"

#include <array>
#include <optional>

#include "Core/Circuit/Circuit.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Simulation/Net.h"
#include "Tests/Core/Components/TestParts.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Ports = std::vector<Port*>;

TEST(CutChipPrefix, CutsTheMakersLettersOffTheNamesThatItKnows) {
    const std::pair<std::string, std::string> cases[] = {
        {"MC27C64", "27C64"},
        {"DM74LS00", "74LS00"},
        {"SN74x74", "74x74"},
        {"XY74", "74"},
        {"IDT7132LA", "IDT7132LA"},
        {"HM62256B", "HM62256B"},
        {"74LS00", "74LS00"},
        {"27C64", "27C64"},
        {"MC27C64A", "MC27C64A"},
        {"xMC27C64", "xMC27C64"},
        {"mc27c64", "mc27c64"},
        {"XX7474", "7474"},
        {"7474", "74"},
        {"A74", "A74"},
        {"ABC74", "ABC74"},
        {"XY7", "XY7"},
        {"74", "74"},
        {"XY", "XY"},
        {"X", "X"},
        {"", ""},
        {"And", "And"},
        {"MOS6502", "MOS6502"},
        {"W65C02", "W65C02"},
    };
    for (const auto& [type, cut] : cases) {
        EXPECT_EQ(cutChipPrefix(type), cut);
        EXPECT_EQ(NotingPart(type, "u", nullptr).getType(), cut);
        EXPECT_EQ(NotingPart(type, "u", ParaMap()).getType(), cut);
    }
}

TEST(Component, HasANameATypeAndAParentButNoPortsAndNoParameters) {
    Circuit circuit("circuit", nullptr);
    NotingPart part("DM74LS00", "u1", &circuit);
    EXPECT_EQ(part.getName(), "u1");
    EXPECT_EQ(part.getType(), "74LS00");
    EXPECT_EQ(part.getParent(), &circuit);
    EXPECT_EQ(static_cast<const Component&>(part).getParent(), &circuit);
    EXPECT_TRUE(part.getPorts().empty());
    EXPECT_EQ(part.getParameters().size(), 0U);
    EXPECT_EQ(part.getDescription(), "");
    part.setName("u2");
    EXPECT_EQ(part.getName(), "u2");
    part.setParent(nullptr);
    EXPECT_EQ(part.getParent(), nullptr);
}

TEST(Component, ASetTypeStandsAsItIs) {
    NotingPart part("And", "u", nullptr);
    part.setType("DM74LS00");
    EXPECT_EQ(part.getType(), "DM74LS00");
}

TEST(Component, KeepsACopyOfItsParametersAndDoesntApplyThem) {
    ParaMap parameters("(delay=5,value=$ff)");
    NotingPart part("Part", "u", parameters);
    parameters["delay"] = "6";
    EXPECT_EQ(part.getParent(), nullptr);
    EXPECT_EQ(part.getParameterText(), "(delay=5,value=$ff)");
    EXPECT_EQ(part.journal, Journal());
}

TEST(Component, SetParametersTakeThePlaceOfTheFormerOnesAndAreApplied) {
    NotingPart part("Part", "u", ParaMap("(a=1,b=2)"));
    part.setParameters(ParaMap("(b=3,c=4)"));
    EXPECT_EQ(part.getParameterText(), "(b=3,c=4)");
    EXPECT_EQ(part.journal, (Journal{"apply(b=3,c=4)"}));
}

TEST(Component, TheParameterMapCanBeChangedInPlace) {
    NotingPart part("Part", "u", ParaMap("(a=1)"));
    part.getParameters()["a"] = "2";
    EXPECT_EQ(part.getParameterText(), "(a=2)");
}

TEST(Component, ParametersAreWrittenWholeOrWithoutTheDefaults) {
    const NotingPart part("Part", "u", ParaMap("(a=1,b=2)"));
    EXPECT_EQ(part.getParameterTextExcept(ParaMap("(a=1)")), "(b=2)");
    EXPECT_EQ(part.getParameterTextExcept(ParaMap("(a=1,b=2)")), "");
    EXPECT_EQ(part.getInstanceText(), "u(a=1,b=2)");
    EXPECT_EQ(NotingPart("Part", "v", nullptr).getInstanceText(), "v");
}

TEST(Component, TheHelpTextIsThatOfItsType) {
    EXPECT_EQ(NotingPart("Inv", "u", nullptr).getTypeDoc(), "<b>delay</b> The gate delay in ns.");
    EXPECT_EQ(NotingPart("High", "u", nullptr).getTypeDoc(), "");
    EXPECT_EQ(NotingPart("Unheard", "u", nullptr).getTypeDoc(), "");
}

TEST(Component, PortsStandInOrderOfCreation) {
    NotingPart part("Part", "u", nullptr);
    Port* bus = part.createPort(8, Direction::Inout, "d");
    Pin* clock = part.createPin(Direction::Input, "clk");
    EXPECT_EQ(part.getPorts(), (Ports{bus, clock}));
    EXPECT_EQ(bus->width(), 8U);
    EXPECT_EQ(bus->direction(), Direction::Inout);
    EXPECT_EQ(clock->width(), 1U);
    EXPECT_EQ(clock->getName(), "clk");
}

TEST(Component, APortOfSomebodyElseCanBeAddedUnderAnotherName) {
    Port own(1, Direction::Input, "a");
    Port renamed(1, Direction::Output, "b");
    NotingPart part("Part", "u", nullptr);
    part.addPort(&own);
    part.addPort(&renamed, "q");
    EXPECT_EQ(part.getPorts(), (Ports{&own, &renamed}));
    EXPECT_EQ(renamed.getName(), "q");
    own.set(Value("H"), 1);
    EXPECT_EQ(part.journal, (Journal{"a:U>H@1"}));
}

TEST(Component, ANullPortIsAnInternalErrorAndChangesNothing) {
    NotingPart part("Part", "u", nullptr);
    const std::string message = "Internal error: port is NULL in ..\\..\\Core\\Components\\Component.cpp:121";
    EXPECT_EQ(errorOf([&] { part.addPort(nullptr); }), message);
    EXPECT_EQ(errorOf([&] { part.addPort(nullptr, "a"); }), message);
    EXPECT_TRUE(part.getPorts().empty());
}

TEST(Component, PortsAreFoundByNameIdAndIdentity) {
    NotingPart part("Part", "u", nullptr);
    Port* bus = part.createPort(2, Direction::Output, "q");
    Pin* first = part.createPin(Direction::Input, "a");
    Pin* second = part.createPin(Direction::Input, "a");
    Port stranger(1, Direction::Input, "s");
    bus->setId("b5");
    first->setId("1");
    second->setId("1");

    EXPECT_EQ(part.findPort("a"), first);
    EXPECT_EQ(part.findPort("x"), nullptr);
    EXPECT_EQ(part.findPort(""), nullptr);
    EXPECT_EQ(part.findPin("a"), first);
    EXPECT_EQ(part.findPin("q"), nullptr);
    EXPECT_EQ(part.findPin("x"), nullptr);
    EXPECT_EQ(part.findPortById("1"), first);
    EXPECT_EQ(part.findPortById("q"), nullptr);
    EXPECT_TRUE(part.hasPort(second));
    EXPECT_FALSE(part.hasPort(&stranger));
    EXPECT_EQ(part.countPorts("a"), 2U);
    EXPECT_EQ(part.countPorts("q"), 1U);
    EXPECT_EQ(part.countPorts("x"), 0U);
    EXPECT_TRUE(part.hasPortNamed("q"));
    EXPECT_FALSE(part.hasPortNamed("x"));
    EXPECT_EQ(part.countPortsById("1"), 2U);
    EXPECT_EQ(part.countPortsById("2"), 0U);
    EXPECT_TRUE(part.hasPortId("b5"));
    EXPECT_FALSE(part.hasPortId("2"));
}

TEST(Component, ARemovedPortLeavesItsNetsTheListAndTheSubscription) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    Port port(1, Direction::Input, "a");
    NotingPart part("Part", "u", nullptr);
    Pin* stays = part.createPin(Direction::Output, "q");
    part.addPort(&port);
    part.addPort(&port);
    inside.addPort(&port, kInside);
    outside.addPort(&port, kOutside);
    part.removePort(&port);
    EXPECT_EQ(part.getPorts(), Ports{stays});
    EXPECT_TRUE(inside.getPorts().empty());
    EXPECT_TRUE(outside.getPorts().empty());
    port.set(Value("H"), 0);
    EXPECT_EQ(part.journal, Journal());
}

TEST(Component, OnlyTheChangesOfInputsAreHeard) {
    NotingPart part("Part", "u", nullptr);
    Pin* in = part.createPin(Direction::Input, "in");
    Pin* out = part.createPin(Direction::Output, "out");
    Pin* inout = part.createPin(Direction::Inout, "inout");
    out->set(Value("H"), 1);
    inout->set(Value("H"), 2);
    in->set(Value("H"), 3);
    in->set(Value("H"), 4);
    in->set(Value("L"), 3);
    EXPECT_EQ(part.journal, (Journal{"in:U>H@3", "in:H>L@3"}));
}

TEST(Component, AChangeOfANullHistoryIsOneOfANullPort) {
    NotingPart part("Part", "u", nullptr);
    part.valueChanged(nullptr, ValueChange{Value("L"), Value("Z"), 9});
    EXPECT_EQ(part.journal, (Journal{"null:L>Z@9"}));
}

/// Hears of changes and notes them in a journal that others write too.
class Witness : public NotingPart {
public:
    Witness(const std::string& name, Journal& common) : NotingPart("Part", name, nullptr), common_(common) {}
    void inputChanged(Port*, const Value&, const Value&, Time) override { common_.push_back(getName()); }

private:
    Journal& common_;
};

TEST(Component, SubscribersHearInOrderOfCreationWhereverTheyLieInMemory) {
    for (const std::array<std::size_t, 3> creation : {std::array<std::size_t, 3>{0, 1, 2}, {2, 1, 0}, {1, 2, 0}}) {
        Journal told;
        Port port(1, Direction::Input, "p");
        std::array<std::optional<Witness>, 3> slots;  // ascending addresses
        slots[creation[0]].emplace("first", told);
        slots[creation[1]].emplace("second", told);
        slots[creation[2]].emplace("third", told);
        for (const std::size_t i : {1U, 0U, 2U}) slots[creation[i]]->addPort(&port);
        port.set(Value("H"), 0);
        EXPECT_EQ(told, (Journal{"first", "second", "third"}));
    }
}

TEST(Component, ResetClearsTheHistoryOfEveryPort) {
    NotingPart part("Part", "u", nullptr);
    for (const Direction direction : {Direction::Input, Direction::Output, Direction::Inout}) {
        part.createPin(direction, "p")->set(Value("H"), 0);
    }
    part.reset();
    for (const Port* port : part.getPorts()) EXPECT_EQ(port->recordCount(), 0U);
}

TEST(Component, DoesNothingOnLoadStartAndTaggedEventsByDefault) {
    NotingPart part("Part", "u", nullptr);
    Pin* in = part.createPin(Direction::Input, "in");
    part.onLoaded(nullptr);
    part.start(100);
    part.evaluateTagged(5, 3);
    EXPECT_EQ(part.journal, Journal());
    EXPECT_EQ(in->recordCount(), 0U);
}

TEST(Component, DisconnectingPortsLeavesTheNetsOutsideOnly) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    NotingPart part("Part", "u", nullptr);
    Pin* pin = part.createPin(Direction::Input, "p");
    inside.addPort(pin, kInside);
    outside.addPort(pin, kOutside);
    part.disconnectPorts();
    EXPECT_TRUE(outside.getPorts().empty());
    EXPECT_EQ(pin->getNet(kInside), &inside);
}

TEST(Component, ADyingComponentLeavesAllNetsWithItsPorts) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    Port borrowed(1, Direction::Input, "borrowed");
    {
        NotingPart part("Part", "u", nullptr);
        part.addPort(&borrowed);
        inside.addPort(part.createPin(Direction::Inout, "p"), kInside);
        outside.addPort(part.findPort("p"), kOutside);
        inside.addPort(&borrowed, kInside);
        outside.addPort(&borrowed, kOutside);
    }
    EXPECT_TRUE(inside.getPorts().empty());
    EXPECT_TRUE(outside.getPorts().empty());
    EXPECT_EQ(borrowed.getNet(kInside), nullptr);
    EXPECT_EQ(borrowed.getNet(kOutside), nullptr);
}

TEST(Component, ACopyHasTheSamePortsOnNoNetsAndKeepsTheId) {
    Net net("n", 4);
    Circuit circuit("circuit", nullptr);
    NotingPart part("Part", "u", ParaMap("(a=1)"));
    part.setParent(&circuit);
    part.setType("DM74LS00");
    part.setCommentText("a remark");
    part.createPin(Direction::Input, "in");
    net.addPort(part.createPort(4, Direction::Output, "out"), kOutside);
    part.findPort("out")->ztrOff();

    NotingPart copy(part);
    EXPECT_EQ(copy.getName(), "u");
    EXPECT_EQ(copy.getId(), part.getId());
    EXPECT_EQ(copy.getCommentText(), "a remark");
    EXPECT_EQ(copy.getParent(), &circuit);
    EXPECT_EQ(copy.getType(), "DM74LS00");
    EXPECT_EQ(copy.getParameterText(), "(a=1)");
    ASSERT_EQ(copy.getPorts().size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        const Port* original = part.getPorts()[i];
        const Port* copied = copy.getPorts()[i];
        EXPECT_NE(copied, original);
        EXPECT_EQ(copied->getName(), original->getName());
        EXPECT_EQ(copied->direction(), original->direction());
        EXPECT_EQ(copied->width(), original->width());
        EXPECT_EQ(copied->getZtr(), original->getZtr());
        EXPECT_EQ(copied->getNet(kInside), nullptr);
        EXPECT_EQ(copied->getNet(kOutside), nullptr);
    }
    copy.findPort("in")->set(Value("H"), 2);
    EXPECT_EQ(copy.journal, (Journal{"in:U>H@2"}));
    EXPECT_EQ(part.journal, Journal());
}

}  // namespace
}  // namespace tarnsim
