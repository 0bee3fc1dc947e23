#include "Core/Circuit/Wiring.h"

#include <algorithm>
#include <map>

#include "Core/Components/Gates.h"
#include "Core/Components/Memories.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Simulation/Wire.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"
#include "Tests/Support/RandomCircuit.h"
#include "Tests/Support/RandomRun.h"
#include "Tests/Support/RandomSignals.h"

namespace tarnsim {
namespace {

/// On a signal with such a listener there is no wire: somebody has to be called.
class Listener : public ValueChangeSubscriber {
public:
    void valueChanged(ValueHistory* /*history*/, const ValueChange& change) override { changes.push_back(change.time); }

    std::vector<Time> changes;
};

/// Calls `visit` for each port and net of the circuit and of what is in it, in the same order always.
void visitSignals(const Circuit& circuit, const std::function<void(ValueHistory&)>& visit) {
    for (Port* port : circuit.getPorts()) visit(*port);
    for (Net* net : circuit.getNets()) visit(*net);
    for (Component* unit : circuit.getComponents()) {
        if (const auto* inner = dynamic_cast<const Circuit*>(unit)) {
            visitSignals(*inner, visit);
        } else {
            for (Port* port : unit->getPorts()) visit(*port);
        }
    }
    for (const Circuit* declaration : circuit.getDeclarations()) visitSignals(*declaration, visit);
}

/// All that can be read of a signal up to `end`: at its changes, the latest first, and at every 50th nanosecond.
std::string everythingOf(const ValueHistory& history, Time end) {
    std::string text = format("%zu records:", history.recordCount());
    const auto tellAt = [&](Time time) {
        text += format(" %d %s", time, history.get(time).c_str());
        if (history.changedAt(time)) text += "*";
        if (history.risingEdgeAt(time)) text += "+";
        if (history.fallingEdgeAt(time)) text += "-";
    };
    for (Time time = history.lastChange(end); time > kEarliestTime; time = history.lastChange(time - 1)) tellAt(time);
    for (Time time = -1; time <= end; time += 50) tellAt(time);
    return text;
}

/// A board of all kinds of parts, with hierarchy, runs with wires and without, and every history is compared.
TEST(Wiring, NobodyCanTellWiredSignalsFromOthers) {
    constexpr Time kEnd = 700;
    int runs = 0;
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(format("seed %u", seed));
        const Workplace here;
        RandomChoices choices(seed);
        RandomCircuitStyle style;
        style.saveable = false;
        const RandomCircuit random = makeRandomCircuit(choices, style);
        random.writeTo(".");
        here.write("test.sig", makeRandomSignals(choices, random).text);

        Listener listener;
        std::map<bool, std::vector<std::string>> histories;
        std::map<bool, RandomRun> results;
        for (const bool isWired : {true, false}) {
            std::unique_ptr<Circuit> circuit;
            streamsOf([&] { circuit = CircuitFileReader().load(RandomCircuit::kFile); });
            if (!isWired) visitSignals(*circuit, [&](ValueHistory& history) { history.subscribe(&listener); });
            results[isWired] = runRandomCircuit(*circuit, "test.sig", random);
            visitSignals(*circuit,
                         [&](ValueHistory& history) { histories[isWired].push_back(everythingOf(history, kEnd)); });
        }
        ASSERT_EQ(results[true].error, results[false].error);
        ASSERT_EQ(results[true].report, results[false].report);
        ASSERT_EQ(histories[true].size(), histories[false].size());
        for (std::size_t i = 0; i < histories[true].size(); ++i) ASSERT_EQ(histories[true][i], histories[false][i]);
        if (results[true].error.empty()) ++runs;
    }
    EXPECT_GT(runs, 16);
}

/// A processor that runs a program from an EPROM and counts in a RAM, at 10 MHz.
std::string computer(const std::string& processor, const std::string& times, std::uint32_t accessTime) {
    const std::string readWrite = processor == "MOS6502" ? "_R/W" : "R/W";
    std::string text = format(
        "Pin Input _reset\n"
        "Port Output 16 address\n"
        "Pin Output sync\n"
        "Unit Oscillator clock(frequency=10000000,offset=50)\n"
        "Unit %s cpu(%s)\n"
        "Unit 27C64 rom(delay=%u,rawfile=count.bin)\n"
        "Unit HM62256B ram(delay=%u,rawfile=count.bin)\n"
        "Unit 74LS00 gates(delay=3)\n"
        "Unit High high\n"
        "Unit Split lines(in=16,high=15,ram=14:0,rom=12:0)\n"
        "Net n_reset _reset cpu._RES\n"
        "Net n_clock clock.out cpu.PHI0\n"
        "Net n_sync sync cpu.SYNC\n"
        "Net n_address address cpu.A lines.in\n"
        "Net n_ram lines.ram ram.A\n"
        "Net n_rom lines.rom rom.A\n"
        "Net n_data cpu.D rom.D ram.Din ram.Dout\n"
        "Net n_block lines.high ram._CS gates.A1 gates.B1\n"
        "Net n_rom_select gates.Y1 rom._CS\n"
        "Net n_rw cpu.%s gates.A2 gates.B2\n"
        "Net n_write gates.Y2 gates.A3 rom._OE ram._OE\n"
        "Net n_phi2 cpu.PHI2 gates.B3\n"
        "Net n_strobe gates.Y3 ram._WE\n",
        processor.c_str(), times.c_str(), accessTime, accessTime, readWrite.c_str());
    text += "Net n_high high.out cpu._IRQ cpu._NMI cpu.RDY cpu._SO";
    text += processor == "W65C02" ? " cpu.BE\n" : "\n";
    return text;
}

/// For both memories. At FFE0: `lda #0`, `sta $40`, and then `inc $40`, `lda $40`, `sta $41` over and over. Where the
/// bus times are such that the processor reads what isn't meant for it, it finds all sorts of bytes elsewhere; none
/// that stops it.
const std::string kCountingProgram = [] {
    std::string image;
    for (unsigned i = 0; i < 0x1FE0; ++i) {
        const unsigned byte = i * 73 + (i >> 5U);
        image += static_cast<char>((byte & 0x0FU) == 2 || (byte & 0x0FU) == 0x0B ? byte + 1 : byte);
    }
    image.append("\xA9\x00\x85\x40\xE6\x40\xA5\x40\x85\x41\x4C\xE4\xFF", 13).resize(0x1FFC);
    return image + "\xE0\xFF\xE0\xFF";
}();

/// Processors set their pins for times to come and refresh them for the present, and memories that answer in between
/// set the data bus for times before its latest.
TEST(Wiring, NobodyCanTellTheWiresOfAComputerFromOthers) {
    constexpr Time kEnd = 5000;
    for (const char* processor : {"MOS6502", "W65C02"}) {
        for (const char* times : {"t_ads=30,t_ah=10,t_mds=25,t_dhw=10", "t_ads=0,t_ah=0,t_mds=0,t_dhw=0",
                                  "t_ads=9,t_ah=20,t_mds=5,t_dhw=30", "t_ads=30,t_ah=10,t_mds=25,t_dhw=0",
                                  "t_ads=4,t_ah=2,t_mds=90,t_dhw=45", "t_ads=30,t_ah=4294967295,t_mds=25,t_dhw=10"}) {
            for (const std::uint32_t accessTime : {0U, 3U, 15U}) {
                SCOPED_TRACE(format("%s(%s), %u ns", processor, times, accessTime));
                const Workplace here;
                here.write("count.bin", kCountingProgram);
                here.write("board.nlx", computer(processor, times, accessTime));
                Listener listener;
                std::map<bool, std::vector<std::string>> histories;
                bool hasCounted = false;
                for (const bool isWired : {true, false}) {
                    std::unique_ptr<Circuit> board;
                    streamsOf([&] {
                        board = CircuitFileReader().load("board.nlx");
                        if (!isWired) {
                            visitSignals(*board, [&](ValueHistory& history) { history.subscribe(&listener); });
                        }
                        EventSimulator simulator(board.get());
                        simulator.prepare(kEnd);
                        board->findPort("_reset")->set(Value("L"), 0);
                        board->findPort("_reset")->set(Value("H"), 420);
                        simulator.run(kEnd);
                        board->setSimulator(nullptr);
                    });
                    visitSignals(*board, [&](ValueHistory& history) {
                        histories[isWired].push_back(everythingOf(history, kEnd));
                    });
                    const auto* ram = dynamic_cast<HM62256B*>(board->findComponent("ram"));
                    hasCounted = ram->read(0x41, kEnd) != ram->read(0x41, 0);
                }
                ASSERT_EQ(histories[true].size(), histories[false].size());
                for (std::size_t i = 0; i < histories[true].size(); ++i) {
                    ASSERT_EQ(histories[true][i], histories[false][i]);
                }
                if (accessTime < 15 && std::string_view(times).starts_with("t_ads=30,t_ah=10,t_mds=25,t_dhw=10")) {
                    EXPECT_TRUE(hasCounted);
                }
            }
        }
    }
}

/// An inverter in a circuit of its own, between `a` and `y`, and `b` and `c` straight through.
class WiredBoard : public testing::Test {
protected:
    WiredBoard() {
        here.write("board.nlx",
                   "Circuit Inner {\n"
                   "   Pin Input a b\n"
                   "   Pin Output y c\n"
                   "   Unit Inv inv(delay=4)\n"
                   "   Net na a inv.in\n"
                   "   Net ny inv.out y\n"
                   "   Net nb b c\n"
                   "}\n"
                   "Pin Input a b\n"
                   "Pin Output y c\n"
                   "Unit Inner u\n"
                   "Unit Xor gate(delay=2)\n"
                   "Net na a u.a gate.a\n"
                   "Net nb b u.b\n"
                   "Net ny u.y y\n"
                   "Net nc u.c c gate.b\n");
        board = CircuitFileReader().load("board.nlx");
        simulator = std::make_unique<EventSimulator>(board.get());
        simulator->prepare(100);
    }
    Port& port(const std::string& path) const { return *board->findPort(path); }
    Wire* wireOf(const std::string& path) const { return port(path).getWire(); }
    std::string read(const std::string& path, Time time) const { return port(path).get(time).c_str(); }
    void drive(const std::string& path, char letter, Time time) const { port(path).set(Value(letter, 1), time); }

    const Workplace here;
    std::unique_ptr<Circuit> board;
    std::unique_ptr<EventSimulator> simulator;
};

TEST_F(WiredBoard, AWireGoesThroughAllLevels) {
    ASSERT_NE(wireOf("a"), nullptr);
    EXPECT_EQ(wireOf("u.a"), wireOf("a"));
    EXPECT_EQ(wireOf("u.inv.in"), wireOf("a"));
    EXPECT_EQ(wireOf("gate.a"), wireOf("a"));
    EXPECT_EQ(board->findNet("u.na")->getWire(), wireOf("a"));
    EXPECT_EQ(wireOf("b"), wireOf("c"));
    EXPECT_EQ(wireOf("gate.b"), wireOf("c"));
    EXPECT_EQ(wireOf("u.inv.out"), wireOf("y"));
    EXPECT_NE(wireOf("a"), wireOf("b"));
}

TEST_F(WiredBoard, ASignalWithoutANetIsAWireOfItsOwn) {
    ASSERT_NE(wireOf("gate.out"), nullptr);
    EXPECT_EQ(wireOf("gate.out")->driver(), &port("gate.out"));
}

TEST_F(WiredBoard, RunsWithItsDelays) {
    drive("a", 'L', 0);
    drive("b", 'H', 0);
    drive("a", 'H', 10);
    simulator->run(100);
    EXPECT_EQ(read("y", 3), "U");
    EXPECT_EQ(read("y", 4), "H");
    EXPECT_EQ(read("y", 13), "H");
    EXPECT_EQ(read("y", 14), "L");
    EXPECT_EQ(read("c", 0), "H");
    EXPECT_EQ(read("gate.out", 2), "H");
    EXPECT_EQ(read("gate.out", 12), "L");
    EXPECT_NE(wireOf("a"), nullptr);
}

TEST_F(WiredBoard, AFloatingSignalGetsAsFarAsTheFirstPort) {
    drive("b", 'H', 0);
    drive("b", 'Z', 10);
    drive("b", 'L', 20);
    EXPECT_EQ(wireOf("b"), nullptr);
    EXPECT_STREQ(board->findNet("nb")->get(10).c_str(), "Z");
    EXPECT_STREQ(board->findNet("u.nb")->get(10).c_str(), "U");
    EXPECT_EQ(read("c", 10), "U");
    EXPECT_EQ(read("c", 9), "H");
    EXPECT_EQ(read("c", 20), "L");
}

TEST_F(WiredBoard, AnUnknownLetterIsUndefinedOnTheNet) {
    drive("a", 'X', 5);
    EXPECT_EQ(wireOf("a"), nullptr);
    EXPECT_EQ(read("a", 5), "X");
    EXPECT_STREQ(board->findNet("na")->get(5).c_str(), "U");
}

TEST_F(WiredBoard, AValueOfAnotherWidthIsRefusedAndChangesNothing) {
    drive("a", 'H', 0);
    EXPECT_EQ(errorOf([&] { port("a").set(Value("HL"), 5); }),
              "ValueHistory: mismatching type width. ValueHistory width=2, but value width=1");
    EXPECT_EQ(port("a").recordCount(), 1U);
    EXPECT_EQ(read("u.a", 5), "H");
}

TEST_F(WiredBoard, LateValuesDontTouchLaterOnes) {
    drive("a", 'L', 0);
    drive("a", 'L', 20);
    drive("a", 'H', 10);
    for (const char* path : {"a", "u.a", "u.inv.in", "gate.a"}) {
        EXPECT_EQ(port(path).recordCount(), 3U) << path;
        EXPECT_EQ(read(path, 9), "L");
        EXPECT_EQ(read(path, 19), "H");
        EXPECT_EQ(read(path, 20), "L");
    }
}

/// What cuts the wire of `a`. Whatever it is, the past stays, and what is driven afterwards arrives.
struct Cut {
    const char* name;
    std::function<void(Circuit&)> act;
};
class CutWire : public WiredBoard, public testing::WithParamInterface<Cut> {};

TEST_P(CutWire, KeepsItsPastAndGoesOn) {
    drive("a", 'H', 1);
    drive("a", 'L', 5);
    ASSERT_NE(wireOf("a"), nullptr);
    GetParam().act(*board);
    EXPECT_EQ(wireOf("a"), nullptr);
    EXPECT_EQ(wireOf("u.inv.in"), nullptr);
    EXPECT_EQ(board->findNet("u.na")->getWire(), nullptr);
    drive("a", 'H', 8);
    for (const char* path : {"a", "u.a", "u.inv.in"}) {
        EXPECT_EQ(read(path, 1), "H") << path;
        EXPECT_EQ(read(path, 5), "L") << path;
        EXPECT_EQ(read(path, 8), "H") << path;
    }
    simulator->run(100);
    EXPECT_EQ(read("u.inv.out", 12), "L");
}

Listener listener;
Port probe(1, Direction::Input, "probe");

INSTANTIATE_TEST_SUITE_P(
    Wiring, CutWire,
    testing::Values(
        Cut{"SomebodyListensToAPort", [](Circuit& board) { board.findPort("u.inv.in")->subscribe(&listener); }},
        Cut{"SomebodyListensToANet", [](Circuit& board) { board.findNet("u.na")->subscribe(&listener); }},
        Cut{"SomebodyStopsListening",
            [](Circuit& board) { board.findPort("gate.a")->unsubscribe(board.findComponent("gate")); }},
        Cut{"AnInnerPortIsSet", [](Circuit& board) { board.findPort("u.a")->set(Value("L"), 6); }},
        Cut{"AFollowerIsSet", [](Circuit& board) { board.findPort("gate.a")->set(Value("H"), 7); }},
        Cut{"ANetIsSet", [](Circuit& board) { board.findNet("u.na")->set(Value("L"), 5); }},
        Cut{"AFollowerIsRefreshed", [](Circuit& board) { board.findPort("gate.a")->refresh(6); }},
        Cut{"AFollowerIsCleared", [](Circuit& board) { board.findPort("gate.a")->clear(); }},
        Cut{"APortIsAttached", [](Circuit& board) { board.findNet("na")->addPort(&probe, kOutside); }},
        Cut{"APortIsDetached", [](Circuit& board) { board.findPort("gate.a")->disconnect(kOutside); }},
        Cut{"APortIsRemoved",
            [](Circuit& board) { board.findComponent("gate")->removePort(board.findPort("gate.a")); }},
        Cut{"ASideIsSet", [](Circuit& board) { board.findPort("gate.a")->setNet(nullptr, kInside); }},
        Cut{"ADirectionIsSet", [](Circuit& board) { board.findPort("gate.a")->setDirection(Direction::Input); }},
        Cut{"AUnitIsRemoved", [](Circuit& board) { board.removeComponent(board.findComponent("gate")); }},
        Cut{"ADelayChanges",
            [](Circuit& board) { dynamic_cast<SingleDelayComponent*>(board.findComponent("gate"))->setDelay(9); }},
        Cut{"ASimulatorIsSet", [](Circuit& board) { board.setSimulator(board.findSimulator()); }}),
    [](const testing::TestParamInfo<Cut>& each) { return std::string(each.param.name); });

TEST_F(WiredBoard, AWireEndsWithOneOfItsSignals) {
    drive("a", 'H', 1);
    {
        Port guest(1, Direction::Input, "guest");
        board->findNet("na")->addPort(&guest, kOutside);
        simulator->prepare(100);
        drive("a", 'L', 2);
        EXPECT_EQ(guest.get(2), 'L');
        EXPECT_EQ(guest.getWire(), wireOf("a"));
    }
    EXPECT_EQ(wireOf("a"), nullptr);
    drive("a", 'H', 3);
    EXPECT_EQ(read("u.a", 2), "L");
    EXPECT_EQ(read("u.a", 3), "H");
}

TEST_F(WiredBoard, TheCircuitMayDieBeforeItsSimulator) {
    drive("a", 'H', 1);
    board.reset();
}

TEST_F(WiredBoard, ParametersThatAreReadAgainAndStayCutNothing) {
    board->findComponent("gate")->applyParameters();
    EXPECT_NE(wireOf("a"), nullptr);
}

TEST_F(WiredBoard, AnotherDelayIsHeeded) {
    drive("a", 'H', 1);
    dynamic_cast<SingleDelayComponent*>(board->findComponent("gate"))->setDelay(9);
    drive("b", 'L', 2);
    drive("a", 'L', 20);
    simulator->run(100);
    EXPECT_EQ(read("gate.out", 28), "H");
    EXPECT_EQ(read("gate.out", 29), "L");
}

TEST_F(WiredBoard, AUnitThatFindsAParentLaterIsCalledThen) {
    Circuit other("other", nullptr);
    Component* inv = other.addComponent("Inv", "guest");
    board->findNet("na")->addPort(inv->findPort("in"), kOutside);
    simulator->prepare(100);
    EXPECT_NE(inv->findPort("in")->getWire(), nullptr);
    drive("a", 'L', 5);
    inv->setParent(board.get());
    drive("a", 'H', 20);
    simulator->run(100);
    EXPECT_EQ(inv->findPort("out")->recordCount(), 1U);
    EXPECT_EQ(inv->findPort("out")->get(23), 'L');
    inv->setParent(&other);
}

/// Three drivers of four bits on one net, which goes on into a circuit.
class BusBoard : public testing::Test {
protected:
    BusBoard() {
        inner.createNet("ni", {inside, gate->findPort("in")});
        board.addChild(&inner, nullptr);
        drivers = {board.createPort(1, Direction::Input, "d0"), board.createPort(1, Direction::Input, "d1"),
                   board.createPort(1, Direction::Input, "d2")};
        net = board.createNet("n", {drivers[0], drivers[1], drivers[2], inside});
        simulator.prepare(1000);
    }
    ~BusBoard() override { board.setSimulator(nullptr); }
    std::string at(Time time) const { return std::string(net->get(time).c_str()) + inside->get(time).c_str(); }
    void drive(std::size_t driver, char letter, Time time) const { drivers[driver]->set(Value(letter, 1), time); }

    Circuit inner{"inner", nullptr};
    Port* inside = inner.createPort(1, Direction::Input, "in");
    Component* gate = inner.addComponent("Inv", "gate");
    Circuit board{"board", nullptr};
    EventSimulator simulator{&board};
    std::vector<Port*> drivers;
    Net* net;
};

TEST_F(BusBoard, DriversKeepTheirOwnPast) {
    ASSERT_NE(drivers[0]->getBus(), nullptr);
    EXPECT_EQ(drivers[2]->getBus(), drivers[0]->getBus());
    EXPECT_EQ(drivers[0]->getWire(), nullptr);
    EXPECT_EQ(inside->getWire(), net->getWire());
    drive(0, 'H', 1);
    drive(1, 'L', 2);
    EXPECT_EQ(drivers[0]->recordCount(), 1U);
    EXPECT_EQ(drivers[1]->recordCount(), 1U);
    EXPECT_EQ(drivers[2]->recordCount(), 0U);
    EXPECT_EQ(net->recordCount(), 2U);
    EXPECT_EQ(inside->recordCount(), 2U);
    EXPECT_EQ(drivers[0]->get(1), 'H');
}

TEST_F(BusBoard, OneActiveDriverCounts) {
    for (const std::size_t driver : {0U, 1U, 2U}) drive(driver, 'U', 0);
    EXPECT_EQ(at(0), "UU");
    drive(0, 'L', 1);
    drive(1, 'Z', 2);
    EXPECT_EQ(at(2), "UU");
    drive(2, 'X', 3);
    EXPECT_EQ(at(3), "UU");
    EXPECT_NE(drivers[0]->getBus(), nullptr);
}

TEST_F(BusBoard, FollowsItsDriversAtEveryTime) {
    drivers[2]->disconnect(kInside);
    simulator.prepare(1000);
    drive(0, 'Z', 0);
    drive(1, 'H', 10);
    EXPECT_EQ(at(9), "UU");  // the other one has never been set
    EXPECT_EQ(at(10), "HH");
    drive(0, 'L', 20);
    EXPECT_EQ(at(20), "UU");
    drive(1, 'Z', 30);
    EXPECT_EQ(at(30), "LL");
    drive(0, 'L', 30);
    EXPECT_EQ(at(30), "LL");
    // Late: at 15 the first one takes over from the second one, whose later values stay, and so do those of the net.
    drive(0, 'H', 15);
    EXPECT_EQ(at(14), "HH");
    EXPECT_EQ(at(15), "UU");
    EXPECT_EQ(at(30), "LL");
    drive(1, 'L', 25);
    EXPECT_EQ(at(25), "UU");
    EXPECT_EQ(at(30), "LL");
    drive(1, 'Z', 40);
    EXPECT_EQ(at(40), "LL");
    drive(0, 'H', 50);
    EXPECT_EQ(at(50), "HH");
}

TEST_F(BusBoard, AValueThatIsSetAgainShowsWhatALateOneMade) {
    drive(0, 'Z', 0);
    drive(1, 'Z', 0);
    drive(2, 'H', 0);
    drive(2, 'H', 20);
    EXPECT_EQ(at(20), "HH");
    // The first one's level reaches up to 20, but what the net has there it keeps until somebody is set there.
    drive(0, 'L', 10);
    EXPECT_EQ(at(10), "UU");
    EXPECT_EQ(at(20), "HH");
    drive(1, 'Z', 20);
    EXPECT_EQ(at(20), "UU");
    EXPECT_EQ(net->recordCount(), 3U);
    EXPECT_EQ(drivers[1]->recordCount(), 2U);
    EXPECT_NE(drivers[0]->getBus(), nullptr);
}

TEST_F(BusBoard, EachValueIsARecordOfItsDriver) {
    for (const Time time : {0, 10, 20}) {
        for (const std::size_t driver : {0U, 1U, 2U}) drive(driver, driver == 1 ? 'L' : 'Z', time);
        EXPECT_EQ(at(time), "LL");
    }
    for (const Port* driver : drivers) EXPECT_EQ(driver->recordCount(), 3U);
    EXPECT_EQ(net->recordCount(), 3U);
    EXPECT_EQ(inside->recordCount(), 3U);
}

TEST_F(BusBoard, ItIsCutWhenItFloatsIntoALevelBelow) {
    drivers[2]->disconnect(kInside);
    simulator.prepare(1000);
    drive(0, 'Z', 0);
    drive(1, 'H', 10);
    ASSERT_NE(drivers[0]->getBus(), nullptr);
    drive(1, 'Z', 20);
    EXPECT_EQ(drivers[0]->getBus(), nullptr);
    EXPECT_EQ(net->getWire(), nullptr);
    EXPECT_EQ(at(20), "ZU");
    EXPECT_EQ(at(10), "HH");
    EXPECT_STREQ(inner.findNet("ni")->get(20).c_str(), "U");
    drive(0, 'L', 30);
    EXPECT_EQ(at(30), "LL");
    EXPECT_EQ(net->recordCount(), 4U);
}

/// A buffer on either side of an Inout, each with a gate that listens.
class JoinedBoard : public testing::Test {
protected:
    JoinedBoard() {
        here.write("board.nlx",
                   "Circuit Inner {\n"
                   "   Pin Inout io\n"
                   "   Pin Input x\n"
                   "   Unit Inv ear(delay=1)\n"
                   "   Net n io x ear.in\n"
                   "}\n"
                   "Pin Input a x\n"
                   "Unit Inner u\n"
                   "Unit Inv ear(delay=1)\n"
                   "Net n a u.io ear.in\n"
                   "Net nx x u.x\n");
        board = CircuitFileReader().load("board.nlx");
        // The inner driver is to be one that is set itself.
        board->findPort("u.x")->disconnect(kOutside);
        simulator = std::make_unique<EventSimulator>(board.get());
        simulator->prepare(100);
    }
    Port& port(const std::string& path) const { return *board->findPort(path); }
    std::string at(Time time) const {
        return std::string(board->findNet("n")->get(time).c_str()) + board->findNet("u.n")->get(time).c_str() +
               port("ear.in").get(time).c_str() + port("u.ear.in").get(time).c_str();
    }
    void drive(const std::string& path, char letter, Time time) const { port(path).set(Value(letter, 1), time); }

    const Workplace here;
    std::unique_ptr<Circuit> board;
    std::unique_ptr<EventSimulator> simulator;
};

TEST_F(JoinedBoard, NetsThatAnInoutJoinsAreOneBus) {
    ASSERT_NE(port("a").getBus(), nullptr);
    EXPECT_EQ(port("u.x").getBus(), port("a").getBus());
    drive("a", 'Z', 0);
    EXPECT_EQ(at(0), "UUUU");
    drive("u.x", 'H', 10);
    EXPECT_EQ(at(10), "HHHH");
    drive("u.x", 'Z', 20);
    EXPECT_EQ(at(20), "ZZUU");
    drive("a", 'L', 30);
    EXPECT_EQ(at(30), "LLLL");
    EXPECT_EQ(port("u.io").get(30), 'L');
    EXPECT_EQ(port("u.io").recordCount(), 0U);
    EXPECT_EQ(board->findNet("u.n")->recordCount(), 4U);
    ASSERT_NE(port("a").getBus(), nullptr);
    simulator->run(100);
    EXPECT_EQ(port("ear.out").get(31), 'H');
    EXPECT_EQ(port("u.ear.out").get(11), 'L');
}

TEST_F(JoinedBoard, AnInoutThatIsSetDrivesItsInsideFromThenOn) {
    drive("a", 'Z', 0);
    drive("u.x", 'Z', 0);
    EXPECT_EQ(at(0), "ZZUU");
    drive("u.io", 'H', 10);
    EXPECT_EQ(port("a").getBus(), nullptr);
    EXPECT_EQ(board->findNet("n")->getWire(), nullptr);
    EXPECT_EQ(at(9), "ZZUU");
    EXPECT_EQ(at(10), "UUUU");  // between two nets it reads these and not what was set, so it drives what floats
}

TEST_F(JoinedBoard, AnInoutThatIsTakenAwayPartsTheNets) {
    drive("a", 'H', 0);
    drive("u.x", 'Z', 0);
    port("u.io").disconnect(kInside);
    EXPECT_EQ(port("a").getBus(), nullptr);
    drive("a", 'L', 10);
    EXPECT_EQ(at(0), "HHHH");
    EXPECT_EQ(at(10), "LHLH");
}

TEST(Wiring, ARingOfNetsIsNoWire) {
    Circuit inner("inner", nullptr);
    Circuit root("root", nullptr);
    Pin* in = inner.createPin(Direction::Input, "in");
    Pin* out = inner.createPin(Direction::Output, "out");
    inner.createNet("through", {in, out});
    root.addChild(&inner, nullptr);
    root.createNet("back", {in, out});
    EventSimulator simulator(&root);
    simulator.prepare(10);
    EXPECT_EQ(in->getWire(), nullptr);
    EXPECT_NE(errorOf([&] { in->set(Value("H"), 1); }), "(no Error)");
}

/// A clock with many listeners, some of the same delay and some alone, and several runs over the same histories.
TEST(Wiring, ManyListenersAreEvaluatedEachAfterItsDelay) {
    constexpr int kUnits = 30;
    constexpr Time kEnd = 200;
    std::string text = "Pin Input a\nUnit Oscillator clock(frequency=50000000,offset=3)\n";
    std::string net = "Net n_clock clock.out";
    for (int i = 0; i < kUnits; ++i) {
        text += format("Unit Xor u%d(delay=%d)\n", i, i < 20 ? 3 : i % 4);
        net += format(" u%d.a", i);
    }
    text += net + "\nNet n_a a";
    for (int i = 0; i < kUnits; ++i) text += format(" u%d.b", i);
    std::map<bool, std::vector<std::string>> histories;
    for (const bool isWired : {true, false}) {
        const auto board = circuitFrom(text + "\n");
        if (!isWired) visitSignals(*board, [&](ValueHistory& history) { history.subscribe(&listener); });
        EventSimulator simulator(board.get());
        simulator.prepare(kEnd);
        EXPECT_EQ(board->findPort("clock.out")->getWire() != nullptr, isWired);
        for (const Time change : {50, 90, 91, 120}) {
            board->findPort("a")->set(Value(change % 20 == 10 ? 'H' : 'L', 1), change);
            simulator.run(kEnd);
        }
        visitSignals(*board, [&](ValueHistory& history) { histories[isWired].push_back(everythingOf(history, kEnd)); });
        // The clock rises at 3, 23, 43, 63, and `a` is high from 50 on.
        EXPECT_EQ(board->findPort("u0.out")->get(65), 'H');
        EXPECT_EQ(board->findPort("u0.out")->get(66), 'L');
    }
    EXPECT_EQ(histories[true], histories[false]);
}

TEST(Wiring, ABusOfManyBitsTakesLateValues) {
    const Value first("HLHLLLHHHLLLLHHHHLHL");
    const Value late("LLHHLHLHLLHLHLHHLLLH");
    Circuit board("board", nullptr);
    const std::vector<Port*> drivers = {board.createPort(20, Direction::Input, "a"),
                                        board.createPort(20, Direction::Input, "b")};
    Port* follower = board.createPort(20, Direction::Output, "q");
    const Net* net = board.createNet("n", {drivers[0], drivers[1], follower});
    EventSimulator simulator(&board);
    simulator.prepare(100);
    ASSERT_NE(drivers[0]->getBus(), nullptr);
    for (Port* driver : drivers) driver->set(Value(std::string(20, 'Z')), 0);
    drivers[0]->set(first, 30);
    drivers[1]->set(late, 10);
    EXPECT_EQ(net->get(10), late);
    EXPECT_EQ(follower->get(29), late);
    EXPECT_EQ(follower->get(30), first);
    board.setSimulator(nullptr);
}

/// Between two wires lies a net that somebody listens to. What its follower is set to by hand goes nowhere.
TEST(Wiring, WhatReadsANetDrivesWhatItReadsThere) {
    Listener eavesdropper;
    Circuit inner("inner", nullptr);
    Pin* in = inner.createPin(Direction::Input, "in");
    Pin* out = inner.createPin(Direction::Output, "out");
    Net* between = inner.createNet("n", {in, out});
    between->subscribe(&eavesdropper);
    Circuit board("board", nullptr);
    board.addChild(&inner, nullptr);
    Pin* a = board.createPin(Direction::Input, "a");
    Pin* q = board.createPin(Direction::Output, "q");
    board.createNet("na", {a, in});
    board.createNet("nq", {out, q});
    EventSimulator simulator(&board);
    simulator.prepare(100);
    ASSERT_EQ(between->getWire(), nullptr);
    ASSERT_NE(out->getWire(), nullptr);
    a->set(Value("L"), 1);
    EXPECT_EQ(q->get(1), 'L');
    out->set(Value("H"), 5);
    EXPECT_EQ(q->get(5), 'L');
    EXPECT_EQ(out->get(5), 'L');
    a->set(Value("H"), 7);
    EXPECT_EQ(q->get(7), 'H');
    board.setSimulator(nullptr);
    between->unsubscribe(&eavesdropper);
}

/// What a large board's events will touch is noted beforehand, and fetched when there are several at a time.
TEST(Wiring, ALargeBoardRunsAsASmallOne) {
    constexpr std::size_t kChains = 10;
    constexpr Time kLength = 60;
    Circuit root("root", nullptr);
    std::vector<std::unique_ptr<Inv>> inverters;
    std::vector<std::vector<Port*>> chains;
    for (std::size_t n = 0; n < kChains; ++n) {
        auto& chain = chains.emplace_back();
        chain.push_back(root.createPin(Direction::Input, "in" + std::to_string(n)));
        for (Time i = 0; i < kLength; ++i) {
            auto& inverter = *inverters.emplace_back(std::make_unique<Inv>("u" + std::to_string(inverters.size()), 3U));
            root.addChild(&inverter, nullptr);
            root.createNet("n" + std::to_string(inverters.size()), {chain.back(), inverter.findPort("in")});
            chain.push_back(inverter.findPort("out"));
        }
    }
    EventSimulator simulator(&root);
    simulator.prepare(1000);
    for (const auto& chain : chains) chain.front()->set(Value("H"), 10);
    simulator.run(1000);
    for (const auto& chain : chains) {
        for (Time i = 1; i <= kLength; ++i) {
            const Port& out = *chain[static_cast<std::size_t>(i)];
            EXPECT_EQ(out.get(10 + 3 * i), i % 2 == 0 ? 'H' : 'L') << i;
            EXPECT_EQ(out.get(9 + 3 * i), 'U') << i;
        }
    }
    root.setSimulator(nullptr);
}

TEST(Wiring, AnyNumberOfLevelsIsOneWire) {
    constexpr int kLevels = 20000;
    std::vector<std::unique_ptr<Circuit>> levels;
    Circuit root("root", nullptr);
    std::vector<Port*> ends = {root.createPin(Direction::Input, "in")};
    for (int i = 0; i < kLevels; ++i) {
        auto& level = *levels.emplace_back(std::make_unique<Circuit>("level" + std::to_string(i), nullptr));
        Pin* in = level.createPin(Direction::Input, "in");
        Pin* out = level.createPin(Direction::Output, "out");
        level.createNet({in, out});
        root.addChild(&level, nullptr);
        root.createNet("n" + std::to_string(i), {ends.back(), in});
        ends.push_back(out);
    }
    EventSimulator simulator(&root);
    simulator.prepare(10);
    ends.front()->set(Value("H"), 1);
    EXPECT_EQ(ends.back()->getWire(), ends.front()->getWire());
    EXPECT_EQ(ends.back()->get(1), 'H');
}

}  // namespace
}  // namespace tarnsim
