#include "Core/Simulation/Net.h"

#include <array>
#include <optional>
#include <stdexcept>

#include "Core/Circuit/Circuit.h"
#include "Core/Simulation/Port.h"
#include "Core/Support/Text.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Ports = std::vector<Port*>;

TEST(Net, ANewNetIsEmptyAndMayHaveNoName) {
    const Net named("n", 4);
    EXPECT_EQ(named.getName(), "n");
    EXPECT_EQ(named.width(), 4U);
    EXPECT_TRUE(named.getPorts().empty());
    EXPECT_EQ(named.recordCount(), 0U);
    EXPECT_EQ(named.get(0), "UUUU");
    const Net nameless(2);
    EXPECT_EQ(nameless.getName(), "");
    EXPECT_EQ(nameless.width(), 2U);
}

TEST(Net, PortsStandInOrderOfAttachmentAndOneOnBothSidesTwice) {
    Net net("n", 1);
    Port a(1, Direction::Input, "a");
    Port b(1, Direction::Inout, "b");
    net.addPort(&b, kInside);
    net.addPort(&a, kOutside);
    net.addPort(&b, kOutside);
    EXPECT_EQ(net.getPorts(), (Ports{&b, &a, &b}));
    EXPECT_EQ(b.getNet(kInside), &net);
    EXPECT_EQ(b.getNet(kOutside), &net);
    EXPECT_EQ(a.getNet(kInside), nullptr);
}

TEST(Net, ANetWithoutWidthTakesThatOfItsFirstPort) {
    Net net("n", 0);
    Port port(4, Direction::Input, "p");
    Port other(8, Direction::Input, "q");
    net.addPort(&port, kOutside);
    EXPECT_EQ(net.width(), 4U);
    EXPECT_EQ(errorOf([&] { net.addPort(&other, kOutside); }),
              "The port 'q' has size 8, but is added to net 'n' with size 4.");
}

TEST(Net, APortOfAnotherWidthIsRefused) {
    Net net("bus", 8);
    Port port(4, Direction::Output, "nibble");
    EXPECT_EQ(errorOf([&] { net.addPort(&port, kOutside); }),
              "The port 'nibble' has size 4, but is added to net 'bus' with size 8.");
    EXPECT_TRUE(net.getPorts().empty());
    EXPECT_EQ(port.getNet(kOutside), nullptr);
}

TEST(Net, ASideThatHasANetIsRefused) {
    Net first("first", 1);
    Net second("second", 1);
    Port port(1, Direction::Inout, "p");
    first.addPort(&port, kInside);
    EXPECT_EQ(errorOf([&] { second.addPort(&port, kInside); }),
              "The port 'p' already belongs to net 'first' (on the inside), and is being attempted to be added to net "
              "'second'.");
    second.addPort(&port, kOutside);
    EXPECT_EQ(errorOf([&] { first.addPort(&port, kOutside); }),
              "The port 'p' already belongs to net 'second' (on the outside), and is being attempted to be added to "
              "net 'first'.");
    EXPECT_EQ(errorOf([&] { first.addPort(&port, kInside); }),
              "The port 'p' already belongs to net 'first' (on the inside), and is being attempted to be added to net "
              "'first'.");
    EXPECT_EQ(first.getPorts(), Ports{&port});
    EXPECT_EQ(second.getPorts(), Ports{&port});
}

TEST(Net, ASideThatHasANetIsRefusedForAPartOfANetToo) {
    Net first("first", 1);
    Net second("second", 4);
    Port port(1, Direction::Inout, "p");
    const PinSpec spec("2");
    first.addPort(&port, kOutside);
    const std::string message =
        "The port 'p' already belongs to net 'first' (on the outside), and is being attempted to be added to net "
        "'second'.";
    EXPECT_EQ(errorOf([&] { second.addPort(&port, &spec, kOutside); }), message);
    EXPECT_EQ(errorOf([&] { second.addPort(&port, 2, 2, kOutside); }), message);
    EXPECT_TRUE(second.getPorts().empty());
}

TEST(Net, APartOfANetLeavesItsWidthAlone) {
    Net net("bus", 8);
    Net unknown("x", 0);
    Port port(4, Direction::Inout, "p");
    const PinSpec spec("7:4");
    net.addPort(&port, &spec, kOutside);
    unknown.addPort(&port, &spec, kInside);
    EXPECT_EQ(net.width(), 8U);
    EXPECT_EQ(unknown.width(), 0U);
    EXPECT_EQ(net.getPinSpec(&port), &spec);
    EXPECT_EQ(net.getPorts(), Ports{&port});
    EXPECT_EQ(port.getNet(kOutside), &net);
}

TEST(Net, APinSpecOfAnotherSizeIsRefused) {
    Net net("bus", 8);
    Port port(4, Direction::Inout, "p");
    const PinSpec spec("2:0");
    const std::string message = "Port and pin-spec sizes does not match: 4 bits in port and 3 bits in pin-spec.";
    EXPECT_EQ(errorOf([&] { net.addPort(&port, &spec, kOutside); }), message);
    EXPECT_EQ(errorOf([&] { net.addPort(&port, 0, 2, kOutside); }), message);
    const PinSpec identity("");
    EXPECT_EQ(errorOf([&] { net.addPort(&port, &identity, kOutside); }),
              "Port and pin-spec sizes does not match: 4 bits in port and 0 bits in pin-spec.");
    EXPECT_TRUE(net.getPorts().empty());
    EXPECT_EQ(port.getNet(kOutside), nullptr);
}

TEST(Net, ARangeOfBitsBecomesAPinSpecOfTheNetsOwn) {
    Net net("bus", 8);
    Port port(4, Direction::Inout, "p");
    net.addPort(&port, 2, 5, kOutside);
    EXPECT_EQ(net.getPinSpec(&port)->getExpression(), "2:5");
    EXPECT_EQ(net.getPinSpec(&port)->getBits(), (std::vector<std::int32_t>{5, 4, 3, 2}));
}

TEST(Net, ASecondPinSpecOfAPortReplacesTheFirst) {
    Net net("bus", 8);
    Port port(2, Direction::Inout, "p");
    net.addPort(&port, 1, 0, kInside);
    net.addPort(&port, 7, 6, kOutside);
    EXPECT_EQ(net.getPinSpec(&port)->getExpression(), "7:6");
    EXPECT_EQ(net.getPorts(), (Ports{&port, &port}));
}

TEST(Net, APortOnTheWholeNetHasNoPinSpec) {
    Net net("n", 1);
    Port port(1, Direction::Inout, "p");
    net.addPort(&port, kOutside);
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { static_cast<void>(net.getPinSpec(&port)); }), "map::at");
}

TEST(Net, ARemovedPortIsForgottenWithItsPinSpec) {
    Net net("bus", 8);
    Net other("other", 1);
    Port port(1, Direction::Inout, "p");
    Port stays(8, Direction::Input, "stays");
    other.addPort(&port, kInside);
    net.addPort(&port, 3, 3, kOutside);
    net.addPort(&stays, kOutside);
    net.removePort(&port);
    EXPECT_EQ(net.getPorts(), Ports{&stays});
    EXPECT_EQ(port.getNet(kOutside), nullptr);
    EXPECT_EQ(port.getNet(kInside), &other);
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { static_cast<void>(net.getPinSpec(&port)); }), "map::at");
}

TEST(Net, APortOnBothSidesIsRemovedFromTheListAtOnceButFromOneSideOnly) {
    Net net("n", 1);
    Port port(1, Direction::Inout, "p");
    net.addPort(&port, kInside);
    net.addPort(&port, kOutside);
    net.removePort(&port);
    EXPECT_TRUE(net.getPorts().empty());
    EXPECT_EQ(port.getNet(kInside), nullptr);
    EXPECT_EQ(port.getNet(kOutside), &net);
    net.removePort(&port);
    EXPECT_EQ(port.getNet(kOutside), nullptr);
}

TEST(Net, DisconnectsAllPortsOnTheSidesOnWhichTheyMeetIt) {
    Net net("n", 1);
    Net other("other", 1);
    Port a(1, Direction::Input, "a");
    Port b(1, Direction::Inout, "b");
    Port c(1, Direction::Inout, "c");
    net.addPort(&a, kOutside);
    other.addPort(&a, kInside);
    net.addPort(&b, kInside);
    net.addPort(&b, kOutside);
    net.addPort(&c, 0, 0, kInside);
    net.disconnectAll();
    EXPECT_TRUE(net.getPorts().empty());
    for (const Port* port : {&b, &c}) {
        EXPECT_EQ(port->getNet(kInside), nullptr);
        EXPECT_EQ(port->getNet(kOutside), nullptr);
    }
    EXPECT_EQ(a.getNet(kOutside), nullptr);
    EXPECT_EQ(a.getNet(kInside), &other);
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { static_cast<void>(net.getPinSpec(&c)); }), "map::at");
}

TEST(Net, ADyingNetLetsItsPortsGoWithTheirValues) {
    Net other("other", 1);
    Port in(1, Direction::Input, "in");
    Port both(1, Direction::Inout, "both");
    {
        Net net("n", 1);
        net.addPort(&in, kOutside);
        other.addPort(&in, kInside);
        net.addPort(&both, kInside);
        net.addPort(&both, kOutside);
        in.set(Value("H"), 4);
    }
    EXPECT_EQ(in.getNet(kOutside), nullptr);
    EXPECT_EQ(in.getNet(kInside), &other);
    EXPECT_EQ(both.getNet(kInside), nullptr);
    EXPECT_EQ(both.getNet(kOutside), nullptr);
    EXPECT_EQ(in.get(4), "H");
}

TEST(Net, TakesOverThePortsOfAnotherEachOnItsSide) {
    Net net("n", 1);
    Net other("other", 1);
    Net third("third", 1);
    Port own(1, Direction::Output, "own");
    Port a(1, Direction::Input, "a");
    Port b(1, Direction::Inout, "b");
    Port c(1, Direction::Output, "c");
    net.addPort(&own, kOutside);
    other.addPort(&b, kInside);
    other.addPort(&a, kOutside);
    other.addPort(&b, kOutside);
    other.addPort(&c, kInside);
    third.addPort(&c, kOutside);
    net.takeOver(other);
    EXPECT_EQ(net.getPorts(), (Ports{&own, &b, &b, &a, &c}));
    EXPECT_TRUE(other.getPorts().empty());
    EXPECT_EQ(a.getNet(kInside), nullptr);
    EXPECT_EQ(a.getNet(kOutside), &net);
    EXPECT_EQ(b.getNet(kInside), &net);
    EXPECT_EQ(b.getNet(kOutside), &net);
    EXPECT_EQ(c.getNet(kInside), &net);
    EXPECT_EQ(c.getNet(kOutside), &third);
}

TEST(Net, ATakeOverHandsItsOwnPinSpecsToTheOtherAndDropsThoseOfTheOther) {
    Net net("n", 4);
    Net other("other", 4);
    Port mine(2, Direction::Inout, "mine");
    Port theirs(4, Direction::Inout, "theirs");
    const PinSpec mySpec("3:2");
    const PinSpec theirSpec("0:3");
    net.addPort(&mine, &mySpec, kOutside);
    other.addPort(&theirs, &theirSpec, kOutside);
    net.takeOver(other);
    EXPECT_EQ(net.getPorts(), (Ports{&mine, &theirs}));
    EXPECT_EQ(other.getPinSpec(&mine), &mySpec);
    for (const Port* port : {&mine, &theirs}) {
        EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { static_cast<void>(net.getPinSpec(port)); }), "map::at");
    }
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { static_cast<void>(other.getPinSpec(&theirs)); }), "map::at");
}

TEST(Net, ARangeOutlivesTheNetThatMadeItWhenAnotherNetHasIt) {
    Port port(4, Direction::Inout, "p");
    Port driver(8, Direction::Output, "d");
    Net other("other", 8);
    {
        Net net("n", 8);
        net.addPort(&port, 3, 0, kOutside);
        net.takeOver(other);
        net.removePort(&port);
    }
    other.addPort(&port, other.getPinSpec(&port), kOutside);
    other.addPort(&driver, kOutside);
    driver.set(Value("LLLLHLHL"), 0);
    EXPECT_EQ(other.valueFor(0, &port), "HLHL");
}

TEST(Net, ATakeOverOfANarrowPortIsRefused) {
    Port narrow(2, Direction::Inout, "narrow");  // outlives the nets: the take-over ends halfway
    Net net("n", 4);
    Net other("other", 4);
    other.addPort(&narrow, 1, 0, kOutside);
    EXPECT_EQ(errorOf([&] { net.takeOver(other); }),
              "The port 'narrow' has size 2, but is added to net 'n' with size 4.");
}

TEST(Net, ATakeOverThatIsRefusedLeavesEachPortOnOneOfTheNets) {
    Port first(4, Direction::Inout, "first");
    Port narrow(2, Direction::Inout, "narrow");
    Port last(4, Direction::Inout, "last");
    Net net("n", 4);
    Net other("other", 4);
    other.addPort(&first, kOutside);
    other.addPort(&narrow, 1, 0, kOutside);
    other.addPort(&last, kInside);
    EXPECT_NE(errorOf([&] { net.takeOver(other); }), "");
    EXPECT_EQ(net.getPorts(), Ports{&first});
    EXPECT_EQ(other.getPorts(), (Ports{&narrow, &last}));
    EXPECT_EQ(first.getNet(kOutside), &net);
    EXPECT_EQ(narrow.getNet(kOutside), &other);
    EXPECT_EQ(last.getNet(kInside), &other);
}

TEST(Net, TheOldestOfMergingNetsStaysWhereverTheyLieInMemory) {
    for (const std::array<std::size_t, 3> creation : {std::array<std::size_t, 3>{0, 1, 2}, {2, 1, 0}, {1, 2, 0}}) {
        std::array<std::optional<Net>, 3> slots;  // ascending addresses
        for (const std::size_t slot : creation) slots[slot].emplace("net", 1);
        Port ports[3] = {Port(1, Direction::Input, "a"), Port(1, Direction::Input, "b"),
                         Port(1, Direction::Input, "c")};
        for (std::size_t i = 0; i < 3; ++i) slots[creation[i]]->addPort(&ports[i], kOutside);
        Circuit circuit("circuit", nullptr);
        EXPECT_EQ(circuit.createNet("merged", {&ports[2], &ports[1], &ports[0]}), &*slots[creation[0]]);
        EXPECT_EQ(slots[creation[0]]->getPorts(), (Ports{&ports[0], &ports[1], &ports[2]}));
        EXPECT_EQ(slots[creation[0]]->getName(), "merged");
    }
}

TEST(Net, ADumpListsThePortsByName) {
    Net net("wire", 1);
    Port a(1, Direction::Input, "a");
    Port b(1, Direction::Inout, "b");
    EXPECT_EQ(outputOf([&] { net.dump(); }), format("Net 'wire' %p:  \n", static_cast<void*>(&net)));
    net.addPort(&a, kOutside);
    net.addPort(&b, kInside);
    net.addPort(&b, kOutside);
    EXPECT_EQ(outputOf([&] { net.dump(); }), format("Net 'wire' %p:  a b b\n", static_cast<void*>(&net)));
}

/// Notes the objects that die.
class Obituaries : public NameWatcher {
public:
    void nameChanged(BaseObject&, const std::string&) override {}
    void objectDestroyed(BaseObject& object) override { names.push_back(object.getName()); }
    std::vector<std::string> names;
};

TEST(NetFactory, OwnsItsNetsAndDeletesTheEmptyOnesOnDemand) {
    Obituaries dead;
    Port port(1, Direction::Input, "p");
    {
        NetFactory factory;
        Net* used = factory.createNet("used", 1);
        used->watchName(&dead);
        factory.createNet("empty", 3)->watchName(&dead);
        Net* nameless = factory.createNet(8);
        EXPECT_EQ(nameless->getName(), "");
        EXPECT_EQ(nameless->width(), 8U);
        nameless->watchName(&dead);
        used->addPort(&port, kOutside);
        factory.removeEmptyNets();
        EXPECT_EQ(dead.names, (std::vector<std::string>{"empty", ""}));
        EXPECT_EQ(port.getNet(kOutside), used);
    }
    EXPECT_EQ(dead.names, (std::vector<std::string>{"empty", "", "used"}));
    EXPECT_EQ(port.getNet(kOutside), nullptr);
}

}  // namespace
}  // namespace tarnsim
