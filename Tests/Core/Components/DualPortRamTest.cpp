#include "Core/Components/DualPortRam.h"

#include "Core/Circuit/ComponentFactory.h"
#include "Tests/Core/Components/DualPortRamBench.h"

namespace tarnsim {
namespace {

using Stimuli = std::vector<RamStimulus>;

/// A write of 11110000 to word 1 on the left side, then a read of it on the right side; both done after 300 ns.
Stimuli writeLeftReadRight() {
    return {{0, RamPin::DataEnable, "L", 0}, {0, RamPin::Data, "HHHHLLLL", 0},   {0, RamPin::A, "LLLLLLLLLLH", 0},
            {0, RamPin::OE, "H", 0},         {0, RamPin::CE, "L", 50},           {0, RamPin::RW, "L", 50},
            {0, RamPin::RW, "H", 130},       {1, RamPin::DataEnable, "H", 0},    {1, RamPin::RW, "H", 0},
            {1, RamPin::OE, "L", 150},       {1, RamPin::A, "LLLLLLLLLLH", 150}, {1, RamPin::CE, "L", 150}};
}

const std::vector<std::string> kWordOne = {"LLLLLLLLLLH"};

std::string refused(const std::string& device) {
    return "Error: IDT7132LA 'u': there is no device '" + device + "', only LA20, LA25, LA35, LA55 and LA100.";
}

TEST(DualPortRamDevice, IsOneOfFiveInTheirOwnSpelling) {
    for (const std::string device :
         {"", "LA", "LA2", "LA200", "la20", "LA 20", "20", "LA30", "LA10", "SA20", "LA20x"}) {
        EXPECT_EQ(errorOf([&] { IDT7132LA("u", ParaMap("(device=" + device + ")")); }), refused(device));
        ComponentFactory factory;
        EXPECT_EQ(errorOf([&] { factory.create("IDT7132LA", "u(device=" + device + ")"); }),
                  device == "LA 20" ? "(no Error)" : refused(device))
            << "a blank makes a text of another form";
    }
}

TEST(DualPortRamDevice, IsLA20WithoutTheParameterEachTimeThatParametersAreApplied) {
    IDT7132LA ram("u", ParaMap());
    EXPECT_EQ(ram.getDescription(), "<br>Access time: <i>20 ns</i>");
    ram.setParameters(ParaMap("(device=LA55)"));
    EXPECT_EQ(ram.getDescription(), "<br>Access time: <i>55 ns</i>");
    ram.setParameters(ParaMap("(rawaddress=5)"));
    EXPECT_EQ(ram.getDescription(), "<br>Access time: <i>20 ns</i>");
}

TEST(DualPortRamDevice, IsReadInFrontOfTheImages) {
    const TemporaryFolder folder;
    Circuit board("board", nullptr);
    board.setFilePath(folder.path("board.nlx"));
    folder.write("rom", "A");
    IDT7132LA ram("u", ParaMap());
    ram.setParent(&board);
    const std::string output = outputOf(
        [&] { EXPECT_EQ(errorOf([&] { ram.setParameters(ParaMap("(device=LA21,rawfile=rom)")); }), refused("LA21")); });
    EXPECT_EQ(output, "");
    EXPECT_EQ(ram.read(0, 0), "UUUUUUUU");
    EXPECT_EQ(ram.getDescription(), "<br>Access time: <i>20 ns</i>") << "as before";
    ram.setParent(nullptr);
}

TEST(DualPortRam, IsWrittenOnOneSideAndReadOnTheOther) {
    DualPortRamBench bench("(device=LA20)");
    bench.run(writeLeftReadRight(), 300, kWordOne);
    EXPECT_EQ(bench.ram().read(1, 64), "UUUUUUUU");
    EXPECT_EQ(bench.ram().read(1, 300), "HHHHLLLL");
    const Port& data = *bench.ram().findPort("IOR");
    EXPECT_EQ(data.get(160), "UUUUUUUU");
    EXPECT_EQ(data.get(170), "HHHHLLLL");
    EXPECT_EQ(data.get(300), "HHHHLLLL");
}

TEST(DualPortRam, ReadsOutOnDataPinsThatAreOnNoNet) {
    Circuit board("board", nullptr);
    Component& ram = *board.addComponent("IDT7132LA", "u");
    EventSimulator simulator(&board);
    simulator.prepare(200);
    dynamic_cast<IDT7132LA&>(ram).write(Value("HLHLHLHL"), 5, 0);
    const std::vector<std::pair<std::string, std::string>> pins = {
        {"AL", "LLLLLLLLHLH"}, {"RWL", "H"}, {"_OEL", "L"}, {"_CEL", "L"}};
    for (const auto& [pin, letters] : pins) ram.findPort(pin)->set(Value(letters), 10);
    simulator.run(200);
    EXPECT_EQ(ram.findPort("IOL")->get(29), "UUUUUUUU");
    EXPECT_EQ(ram.findPort("IOL")->get(30), "HLHLHLHL");
    EXPECT_EQ(ram.findPort("IOR")->get(30), "UUUUUUUU");
}

TEST(DualPortRam, DoesNothingAtAnEvaluationOrForATagThatIsNoneOfItsPorts) {
    DualPortRamBench bench("");
    bench.run(writeLeftReadRight(), 300, kWordOne);
    std::vector<std::size_t> records;
    for (const Port* port : bench.ram().getPorts()) records.push_back(port->recordCount());
    bench.ram().evaluate(400);
    bench.ram().evaluateTagged(400, 0);
    bench.ram().evaluateTagged(400, ~std::uint64_t{0});
    for (std::size_t i = 0; i < records.size(); ++i)
        EXPECT_EQ(bench.ram().getPorts()[i]->recordCount(), records[i]) << i;
    EXPECT_EQ(bench.ram().read(1, 500), "HHHHLLLL");
}

TEST(DualPortRam, HearsOfNoChangesOfItsOutputsAndDataPins) {
    Circuit board("board", nullptr);
    Component& ram = *board.addComponent("IDT7132LA", "u");
    EventSimulator simulator(&board);
    simulator.prepare(1000);
    for (const char* pin : {"IOL", "IOR"}) ram.findPort(pin)->set(Value("HHHHHHHH"), 10);
    for (const char* pin : {"BUSYL", "BUSYR"}) ram.findPort(pin)->set(Value("L"), 10);
    simulator.run(1000);
    EXPECT_EQ(simulator.getTime(), 1000) << "there was nothing to do";
}

TEST(DualPortRam, SchedulesNothingBeyondTheEndOfTime) {
    Circuit board("board", nullptr);
    Component& ram = *board.addComponent("IDT7132LA", "u");
    EventSimulator simulator(&board);
    simulator.prepare(kLatestTime);
    const Time late = kLatestTime - 5;
    for (const char* pin : {"RWL", "_OEL", "_CEL", "RWR", "_OER", "_CER"}) ram.findPort(pin)->set(Value("L"), late);
    for (const char* pin : {"AL", "AR"}) ram.findPort(pin)->set(Value(11).fill('L'), late);
    simulator.run(kLatestTime);
    EXPECT_EQ(simulator.getTime(), kLatestTime - 2) << "the output hold of the address";
}

TEST(DualPortRam, ForgetsWhatItReadOutByAReset) {
    DualPortRamBench bench("");
    bench.run(writeLeftReadRight(), 300, kWordOne);
    bench.board().reset();
    for (const char* pin : {"IOL", "IOR"}) EXPECT_EQ(bench.ram().findPort(pin)->get(300), "UUUUUUUU") << pin;
    for (const char* pin : {"BUSYL", "BUSYR"}) EXPECT_EQ(bench.ram().findPort(pin)->get(300), "U") << pin;
    EXPECT_EQ(bench.ram().read(1, 300), "UUUUUUUU");
}

/// A memory that has run, and the nets outside of its data pins.
struct Life {
    Life() {
        for (std::size_t side = 0; side < 2; ++side) {
            nets[side] = std::make_unique<Net>("data", 8);
            nets[side]->addPort(ram->findPort(side == 0 ? "IOL" : "IOR"), kOutside);
        }
        ram->evaluateTagged(0, ram->findPort("AL")->getCreationNumber());
        ram->evaluateTagged(50, ram->findPort("_OER")->getCreationNumber());
    }

    std::unique_ptr<IDT7132LA> ram = std::make_unique<IDT7132LA>("u", ParaMap());
    std::unique_ptr<Net> nets[2];
};

TEST(DualPortRamLife, MayEndBeforeThatOfItsNets) {
    Life life;
    life.ram.reset();
    for (const auto& net : life.nets) {
        EXPECT_TRUE(net->getPorts().empty());
        net->update(100);
        EXPECT_EQ(net->get(100), "ZZZZZZZZ") << "nobody drives it any more";
    }
}

TEST(DualPortRamLife, MayGoOnWithoutItsNets) {
    Life life;
    life.nets[0].reset();
    life.ram->evaluateTagged(100, life.ram->findPort("AL")->getCreationNumber());
    life.nets[1].reset();
    life.ram->evaluateTagged(100, life.ram->findPort("AR")->getCreationNumber());
    life.ram->reset();
    EXPECT_EQ(life.ram->findPort("IOL")->getNet(kOutside), nullptr);
    EXPECT_NE(life.ram->findPort("IOL")->getNet(kInside), nullptr) << "its own net inside";
}

TEST(DualPortRamLife, MayEndBetweenThoseOfItsNets) {
    Life life;
    life.nets[1].reset();
    life.ram.reset();
    EXPECT_TRUE(life.nets[0]->getPorts().empty());
}

TEST(DualPortRamLife, MayHaveItsDataPinsOnOneNet) {
    auto ram = std::make_unique<IDT7132LA>("u", ParaMap());
    Net net("data", 8);
    net.addPort(ram->findPort("IOL"), kOutside);
    net.addPort(ram->findPort("IOR"), kOutside);
    ram->evaluateTagged(0, ram->findPort("AL")->getCreationNumber());
    EXPECT_EQ(net.get(0), "UUUUUUUU");
    ram.reset();
    EXPECT_TRUE(net.getPorts().empty());
}

TEST(DualPortRamLife, MayLeaveACircuitInFrontOfItsEnd) {
    DualPortRamBench bench("");
    bench.run(writeLeftReadRight(), 300, kWordOne);
    bench.board().removeComponent(&bench.ram());
    EXPECT_EQ(bench.ram().findPort("IOL")->getNet(kOutside), nullptr);
    EXPECT_EQ(bench.ram().read(1, 300), "HHHHLLLL");
    for (Net* net : bench.board().getNets()) EXPECT_EQ(net->getPorts().size(), 1U) << "the driver stays";
}

}  // namespace
}  // namespace tarnsim
