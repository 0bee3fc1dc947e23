#include "Core/Simulation/NetResolver.h"

#include <memory>
#include <stdexcept>
#include <string>

#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using PortList = std::vector<std::unique_ptr<Port>>;

/// A new output of a component on `net`, at `level` from 0 on.
Port& addDriver(PortList& ports, Net& net, const std::string& level) {
    ports.push_back(std::make_unique<Port>(level.size(), Direction::Output, "driver"));
    net.addPort(ports.back().get(), kOutside);
    ports.back()->set(Value(level), 0);
    return *ports.back();
}

/// A new Inout between two nets.
Port& join(PortList& ports, Net& outside, Net& inside) {
    ports.push_back(std::make_unique<Port>(inside.width(), Direction::Inout, "bridge"));
    outside.addPort(ports.back().get(), kOutside);
    inside.addPort(ports.back().get(), kInside);
    return *ports.back();
}

TEST(NetResolver, TheDriversOfANetGiveOneLevel) {
    const struct {
        std::string drivers;
        std::string level;
    } cases[] = {{"", "Z"},   {"Z", "Z"},  {"ZZ", "Z"},  {"H", "H"},   {"L", "L"},   {"U", "U"},  {"X", "U"},
                 {"HZ", "H"}, {"ZL", "L"}, {"HH", "U"},  {"LL", "U"},  {"HL", "U"},  {"XZ", "U"}, {"UZ", "U"},
                 {"HX", "U"}, {"UU", "U"}, {"ZZZ", "Z"}, {"ZHZ", "H"}, {"HZZL", "U"}};
    for (const auto& each : cases) {
        Net net("n", 1);
        PortList ports;
        for (const char level : each.drivers) addDriver(ports, net, std::string(1, level));
        net.update(0);
        EXPECT_EQ(net.get(0), each.level) << each.drivers;
        EXPECT_EQ(NetResolver::resolve(net, 0), each.level) << each.drivers;
        EXPECT_EQ(net.driveValue(0), each.level) << each.drivers;
    }
}

TEST(NetResolver, EachBitIsResolvedOnItsOwn) {
    Net net("n", 10);
    PortList ports;
    addDriver(ports, net, "HLZUXHHLLZ");
    addDriver(ports, net, "ZZZZZHLLHH");
    EXPECT_EQ(net.get(0), "HLZUUUUUUH");
}

TEST(NetResolver, ADriverThatWasNeverSetIsUndefined) {
    Net net("n", 1);
    Port silent(1, Direction::Output, "silent");
    net.addPort(&silent, kOutside);
    EXPECT_EQ(NetResolver::resolve(net, 0), "U");
}

TEST(NetResolver, WhoDrivesANetDependsOnDirectionAndSide) {
    const struct {
        Direction direction;
        int side;
        bool isSet;
        bool isDriver;
    } cases[] = {
        {Direction::Output, kOutside, false, true}, {Direction::Output, kInside, true, false},
        {Direction::Input, kInside, false, true},   {Direction::Input, kOutside, true, false},
        {Direction::Inout, kInside, true, true},    {Direction::Inout, kInside, false, false},
        {Direction::Inout, kOutside, true, false},  {Direction::Inout, kOutside, false, false},
    };
    for (const auto& each : cases) {
        Net net("n", 1);
        Port port(1, each.direction, "p");
        net.addPort(&port, each.side);
        if (each.isSet) port.ValueHistory::set(Value("H"), 0);
        EXPECT_EQ(net.isDriver(port), each.isDriver) << static_cast<int>(each.direction) << " on " << each.side;
        if (!each.isDriver) {
            EXPECT_EQ(NetResolver::resolve(net, 0), "Z");
        }
    }
}

TEST(NetResolver, APortThatIsNotOnTheNetDoesntDriveIt) {
    const Net net("n", 1);
    for (const Direction direction : {Direction::Input, Direction::Output, Direction::Inout}) {
        Port port(1, direction, "p");
        port.set(Value("H"), 0);
        EXPECT_FALSE(net.isDriver(port));
        EXPECT_FALSE(net.isFollower(port));
    }
}

TEST(NetResolver, AnInoutThatWasSetDrivesAtEveryTimeAlsoBeforehand) {
    Net net("n", 1);
    Port inout(1, Direction::Inout, "p");
    net.addPort(&inout, kInside);
    EXPECT_EQ(NetResolver::resolve(net, 0), "Z");
    inout.set(Value("H"), 10);
    EXPECT_EQ(NetResolver::resolve(net, 10), "H");
    EXPECT_EQ(NetResolver::resolve(net, 9), "U");
    EXPECT_EQ(NetResolver::resolve(net, 0), "U");
    inout.clear();
    EXPECT_EQ(NetResolver::resolve(net, 10), "Z");
}

TEST(NetResolver, AnInoutThatWasSetToZStillDrivesUndefined) {
    Net net("n", 1);
    PortList ports;
    Port inout(1, Direction::Inout, "p");
    net.addPort(&inout, kInside);
    inout.set(Value("Z"), 0);
    EXPECT_EQ(net.get(0), "U");  // what it reads is what it drives, and it reads no Z
    addDriver(ports, net, "H");
    EXPECT_EQ(net.get(0), "U");
    inout.ztrOff();
    net.update(0);
    EXPECT_EQ(net.get(0), "H");
}

TEST(NetResolver, TheOtherNetLiesOnThePortsOtherSide) {
    Net inside("inside", 1);
    Net outside("outside", 1);
    const Net stranger("stranger", 1);
    Port port(1, Direction::Inout, "p");
    inside.addPort(&port, kInside);
    EXPECT_EQ(inside.otherNet(port), nullptr);
    outside.addPort(&port, kOutside);
    EXPECT_EQ(inside.otherNet(port), &outside);
    EXPECT_EQ(outside.otherNet(port), &inside);
    EXPECT_EQ(stranger.otherNet(port), &outside);
}

TEST(NetResolver, NetsJoinedByAnInoutResolveAsOne) {
    Net a("a", 4);
    Net b("b", 4);
    PortList ports;
    join(ports, a, b);
    Port& onA = addDriver(ports, a, "HLZZ");
    EXPECT_EQ(a.get(0), "HLZZ");
    EXPECT_EQ(b.get(0), "HLZZ");
    addDriver(ports, b, "ZHLZ");
    EXPECT_EQ(a.get(0), "HULZ");
    EXPECT_EQ(b.get(0), "HULZ");
    onA.set(Value("ZZZZ"), 5);
    EXPECT_EQ(a.get(5), "ZHLZ");
    EXPECT_EQ(b.get(5), "ZHLZ");
    EXPECT_EQ(a.driveValue(5), "ZZZZ");  // its own drivers alone
    EXPECT_EQ(b.driveValue(5), "ZHLZ");
}

TEST(NetResolver, NetsJoinedInAChainAStarOrALoopResolveAsOne) {
    using Joints = std::vector<std::pair<std::size_t, std::size_t>>;
    const Joints shapes[] = {
        {{0, 1}, {1, 2}, {2, 3}, {3, 4}},          // chain
        {{1, 0}, {2, 1}, {3, 2}, {4, 3}},          // chain the other way in
        {{0, 1}, {0, 2}, {0, 3}, {0, 4}},          // star
        {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 0}},  // loop
        {{0, 1}, {0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 2}, {4, 4}},
    };
    for (const Joints& joints : shapes) {
        for (std::size_t driven = 0; driven < 5; ++driven) {
            std::vector<std::unique_ptr<Net>> nets;
            for (int i = 0; i < 5; ++i) nets.push_back(std::make_unique<Net>(std::to_string(i), 1));
            PortList ports;
            for (const auto& [outside, inside] : joints) join(ports, *nets[outside], *nets[inside]);
            addDriver(ports, *nets[driven], "H");
            for (const auto& net : nets) EXPECT_EQ(net->get(0), "H");
            addDriver(ports, *nets[(driven + 3) % 5], "H");
            for (const auto& net : nets) EXPECT_EQ(net->get(0), "U");
        }
    }
}

TEST(NetResolver, AnyNumberOfNetsMayBeJoined) {
    constexpr std::size_t kNets = 100'000;
    std::vector<std::unique_ptr<Net>> nets;
    PortList ports;
    for (std::size_t i = 0; i < kNets; ++i) {
        nets.push_back(std::make_unique<Net>("n", 1));
        if (i > 0) join(ports, *nets[i - 1], *nets[i]);
    }
    ports.push_back(std::make_unique<Port>(1, Direction::Output, "driver"));
    ports.back()->set(Value("H"), 0);
    nets.back()->addPort(ports.back().get(), kOutside);
    EXPECT_EQ(NetResolver::resolve(*nets.front(), 0), "H");
}

TEST(NetResolver, APortWithoutWidthOnAWiderNetHasNoBitToRead) {
    Net net("n", 0);
    Port unsized(0, Direction::Output, "unsized");
    Port follower(1, Direction::Input, "follower");
    net.addPort(&unsized, kOutside);
    net.addPort(&follower, kOutside);  // the net takes its width from the first port that has one
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { NetResolver::resolve(net, 0); }),
              "Value: Index 0 larger than size 0");
}

TEST(NetResolver, APortOnAPartOfANetJoinsThoseBitsAlone) {
    Net bus("bus", 8);
    Net nibble("nibble", 4);
    PortList ports;
    Port bridge(4, Direction::Inout, "bridge");
    bus.addPort(&bridge, 5, 2, kOutside);
    nibble.addPort(&bridge, kInside);
    addDriver(ports, nibble, "HLLH");
    EXPECT_EQ(bus.get(0), "ZZHLLHZZ");
}

TEST(NetResolver, BitsOfOneNetMeetBitsOfAnotherThroughTheRangesOfBoth) {
    Net left("left", 8);
    Net right("right", 4);
    PortList ports;
    Port bridge(2, Direction::Inout, "bridge");
    addDriver(ports, right, "HHLH");
    left.addPort(&bridge, 7, 6, kOutside);  // positions 0 and 1 are bits 6 and 7
    right.addPort(&bridge, 0, 1, kInside);  // positions 0 and 1 are bits 1 and 0
    right.update(0);
    EXPECT_EQ(left.get(0), "HLZZZZZZ");
}

TEST(NetResolver, ThePositionFoundForOnePortCarriesOnToThePortsBehindIt) {
    PortList ports;
    Net bus("bus", 4);
    Port slice(1, Direction::Inout, "slice");
    addDriver(ports, bus, "ZZZH");        // in front of the slice: read at the bit itself
    bus.addPort(&slice, 2, 2, kOutside);  // bit 2 is position 0
    addDriver(ports, bus, "LZZZ");        // behind it: bit 2 is read at position 0 as well
    EXPECT_EQ(bus.get(0), "LZZH");        // nothing to see yet: position 0 is Z
    ports.back()->set(Value("ZZZL"), 1);
    ports.front()->set(Value("ZZZZ"), 1);
    EXPECT_EQ(bus.get(1), "ZLZL");  // its bit 0 appears at bit 2 too
}

TEST(NetResolver, APositionCarriesOnIntoJoinedNetsAndUntilTheNextRange) {
    PortList ports;
    Net bus("bus", 4);
    Net behind("behind", 4);
    Port high(2, Direction::Inout, "high");
    Port low(1, Direction::Inout, "low");
    bus.addPort(&high, 3, 2, kOutside);  // bits 2 and 3 are positions 0 and 1
    join(ports, bus, behind);            // so bits 2 and 3 here are bits 0 and 1 there
    bus.addPort(&low, 3, 3, kOutside);   // bit 3 is position 0
    addDriver(ports, bus, "ZZZZ");       // bit 2 is read at 0, bit 3 at 0
    addDriver(ports, behind, "LLHZ");
    EXPECT_EQ(bus.get(0), "HZHZ");
    ports[1]->set(Value("ZZZL"), 5);
    EXPECT_EQ(bus.get(5), "ULHL");
}

constexpr const char* kTooManyDrivers = "*** ERROR: Maximum size of a a network is reached. Max 255 ports per net.";

TEST(NetResolver, TheDriver256IsRefusedWhenTheBitIsResolvedNotWhenItIsAttached) {
    for (const bool isJoined : {false, true}) {
        Net net("n", 1);
        Net other("other", 1);
        PortList ports;
        for (int i = 0; i < 255; ++i) addDriver(ports, net, "Z");
        if (isJoined) join(ports, net, other);
        ports.front()->set(Value("H"), 0);
        EXPECT_EQ(net.get(0), "H");

        Port oneMore(1, Direction::Output, "oneMore");
        EXPECT_EQ(errorOf([&] { net.addPort(&oneMore, kOutside); }), "(no Error)");
        EXPECT_EQ(errorOf([&] { ports.front()->set(Value("L"), 1); }), kTooManyDrivers);
        EXPECT_EQ(errorOf([&] { net.update(2); }), kTooManyDrivers);
        EXPECT_EQ(errorOf([&] { oneMore.set(Value("Z"), 3); }), kTooManyDrivers);
        EXPECT_EQ(net.get(3), "H");
        net.removePort(&oneMore);
        ports.front()->set(Value("L"), 4);
        EXPECT_EQ(net.get(4), "L");
    }
}

TEST(NetResolver, TheLimitCountsTheDriversOfAllJoinedNets) {
    Net a("a", 1);
    Net b("b", 1);
    PortList ports;
    for (int i = 0; i < 128; ++i) addDriver(ports, a, "Z");
    for (int i = 0; i < 127; ++i) addDriver(ports, b, "Z");
    join(ports, a, b);
    a.update(0);
    EXPECT_EQ(a.get(0), "Z");
    EXPECT_EQ(errorOf([&] { addDriver(ports, b, "Z"); }), kTooManyDrivers);
    EXPECT_EQ(errorOf([&] { a.update(1); }), kTooManyDrivers);
    EXPECT_EQ(errorOf([&] { b.update(1); }), kTooManyDrivers);
}

TEST(NetResolver, InoutsAndFollowersDontCountAsDrivers) {
    Net net("n", 1);
    PortList ports;
    for (int i = 0; i < 300; ++i) {
        ports.push_back(std::make_unique<Port>(1, i % 2 == 0 ? Direction::Input : Direction::Inout, "p"));
        net.addPort(ports.back().get(), kOutside);
    }
    addDriver(ports, net, "H");
    EXPECT_EQ(net.get(0), "H");
}

}  // namespace
}  // namespace tarnsim
