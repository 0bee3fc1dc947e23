#include "Core/Components/TtlDecoders.h"
#include "Core/Components/TtlRegisters.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"
#include "Tests/Core/Components/PartBench.h"

namespace tarnsim {
namespace {

/// A board with a decoder `u`, whose output 5 enables the register `r`, both inside the circuit unit `x`.
std::unique_ptr<Circuit> boardOfTwoLevels() {
    return circuitFrom(
        "Circuit Cell {\n"
        "Pin Input A B C D clk\nPort Input 8 d\nPort Output 8 q(ztr=off)\nPort Output 16 y\n"
        "Pin Input low\n"
        "Unit 74LS154 u(delay=7)\nUnit 74x574 r(delay=4)\n"
        "Net a A u.A\nNet b B u.B\nNet c C u.C\nNet dd D u.D\nNet low low u._G1 u._G2\n"
        "Net e u.Y5 r._OE\nNet clk clk r.clk\nNet d d r.D\nNet q q r.Q\nNet y y u.Y\n"
        "}\n"
        "Unit Cell x\n");
}

/// Selects output 5 at 100, with the register clocked before. Gives what the cell shows right before and after.
std::string runCell(Circuit& cell) {
    PartBench bench(cell, 0);
    bench.set("low=L A=L B=L C=L D=L clk=L d=HLHLHLHL", 0);
    bench.set("clk=H", 50);
    bench.set("A=H C=H", 100);
    cell.findSimulator()->run(500);
    return bench.read("y q", 106) + " | " + bench.read("y q", 107) + " | " + bench.read("q", 110) + " " +
           bench.read("q", 111);
}

const std::string kCellResult = "HHHHHHHHHHHHHHHL ZZZZZZZZ | HHHHHHHHHHLHHHHH ZZZZZZZZ | ZZZZZZZZ HLHLHLHL";

TEST(CircuitChipInCircuit, WorksAsAUnitOfADeclaredCircuit) {
    const auto board = boardOfTwoLevels();
    EventSimulator simulator(board.get());
    simulator.prepare(500);
    EXPECT_EQ(runCell(*board->findCircuit("x")), kCellResult);
}

TEST(CircuitChipInCircuit, WorksInACopyOfItsCircuitAndInACopyOfTheCopyWhenTheSourceIsGone) {
    auto source = boardOfTwoLevels();
    auto first = std::make_unique<Circuit>(*source);
    source.reset();
    Circuit second(*first);
    first.reset();
    EventSimulator simulator(&second);
    simulator.prepare(500);
    EXPECT_EQ(runCell(*second.findCircuit("x")), kCellResult);
}

TEST(CircuitChipInCircuit, IsIndependentOfItsCopies) {
    const auto board = boardOfTwoLevels();
    Circuit copy(*board);
    for (const std::string name : {"u", "r"}) {
        const Component* unit = board->findCircuit("x")->findComponent(name);
        const Component* copied = copy.findCircuit("x")->findComponent(name);
        EXPECT_NE(unit, copied);
        EXPECT_EQ(namesOf(unit->getPorts()), namesOf(copied->getPorts()));
        EXPECT_EQ(unit->getParameterText(), copied->getParameterText());
        for (const Port* port : copied->getPorts()) EXPECT_FALSE(unit->hasPort(port)) << port->getName();
    }
    EXPECT_NE(dynamic_cast<DM74LS154*>(copy.findCircuit("x.u")), nullptr);
    EXPECT_NE(dynamic_cast<DM74x574*>(copy.findCircuit("x.r")), nullptr);
    EventSimulator simulator(board.get());
    simulator.prepare(500);
    runCell(*board->findCircuit("x"));
    for (const Net* net : copy.findCircuit("x")->getNets()) EXPECT_EQ(net->recordCount(), 0U) << net->getName();
}

template <class Chip>
std::unique_ptr<Chip> copiedChip(Chip& source) {
    return std::unique_ptr<Chip>(dynamic_cast<Chip*>(source.cloneCircuit(source).release()));
}

TEST(CircuitChipInCircuit, ACopiedChipOutlivesItsSourceAndWorksAtItsDelay) {
    auto decoder = std::make_unique<DM74LS154>("u", ParaMap("(delay=7)"));
    const auto decoderCopy = copiedChip(*decoder);
    decoder.reset();
    ASSERT_NE(decoderCopy, nullptr);
    EXPECT_EQ(decoderCopy->getInstanceText(), "u(delay=7)");
    EXPECT_EQ(decoderCopy->getPorts().size(), 23U);
    EXPECT_EQ(PartBench(*decoderCopy, 7).step("_G1=L _G2=L A=H B=L C=L D=L", "Y Y0 Y1"), "HHHHHHHHHHHHHHLH H L");
    EXPECT_EQ(decoderCopy->getDelay(), 7U);

    auto floating = std::make_unique<DM74x574>("u", ParaMap("(delay=9,family=AS)"));
    const auto floatingCopy = copiedChip(*floating);
    floating.reset();
    ASSERT_NE(floatingCopy, nullptr);
    PartBench(*floatingCopy, 9)
        .expectSteps("Q", {{"_OE=L clk=L D=HHHHLLLL", "UUUUUUUU"}, {"clk=H", "HHHHLLLL"}, {"_OE=H", "ZZZZZZZZ"}});
    EXPECT_EQ(floatingCopy->getDescription(), "<br>Delay: <i>9</i>");

    auto ofUnits = std::make_unique<DM74LS374>("u", ParaMap("(delay=5)"));
    const auto ofUnitsCopy = copiedChip(*ofUnits);
    ofUnits.reset();
    ASSERT_NE(ofUnitsCopy, nullptr);
    EXPECT_EQ(ofUnitsCopy->countComponents(), 10U);
    EXPECT_EQ(ofUnitsCopy->getNets().size(), 20U);
    EXPECT_EQ(dynamic_cast<D_flip_flop*>(ofUnitsCopy->findComponent("dff[7]"))->getDelay(), 5U);
}

TEST(CircuitChipInCircuit, ItsPinsAreFoundByPathUnderTheChipAndUnderTheUnitInsideIt) {
    const auto board = boardOfTwoLevels();
    Port* pin = board->findPort("x.u.Y3");
    ASSERT_NE(pin, nullptr);
    EXPECT_EQ(pin->getName(), "Y3");
    EXPECT_EQ(board->findPort("x.u.ysplit.Y3"), pin);
    EXPECT_EQ(board->findCircuit("x")->findPort("u.Y3"), pin);
    EXPECT_EQ(board->findPort("x.u.Y16"), nullptr);
    EXPECT_EQ(board->getPortPath(pin), "x.u.Y3");
    EXPECT_EQ(board->getPortPath(board->findPort("x.u.Y")), "x.u.Y");
    EXPECT_EQ(board->findNet("x.u.y_net"), board->findCircuit("x.u")->getNets()[0]);
}

TEST(CircuitChipInCircuit, ItsPortPathsAreFoundForTheUnitsOfARegisterToo) {
    Circuit board("board", nullptr);
    board.addComponent("74LS374", "r");
    const Port* pin = board.findPort("r.dff[3].D");
    ASSERT_NE(pin, nullptr);
    EXPECT_EQ(board.getPortPath(pin), "r.dff[3].D");
    EXPECT_EQ(board.findNet("r.d3"), pin->getNet(kOutside));
}

TEST(CircuitChipInCircuit, WarnsOfItsOwnInputsThatHangOnNothingAndOfNoneInside) {
    Circuit board("board", nullptr);
    board.addComponent("74LS154", "u");
    board.addComponent("74LS374", "r");
    Port* a = board.createPin(Direction::Input, "a");
    board.createNet("a", {a, board.findPort("u.A"), board.findPort("u.B"), board.findPort("r.clk")});
    const auto warning = [](const std::string& port, const std::string& unit) {
        return "*** WARNING: Input port '" + port + "' of component " + unit + " is not connected.\n";
    };
    EXPECT_EQ(outputOf([&] { board.checkConnections(); }),
              warning("C", "'74LS154'/'u'") + warning("D", "'74LS154'/'u'") + warning("_G1", "'74LS154'/'u'") +
                  warning("_G2", "'74LS154'/'u'") + warning("_OE", "'74LS374'/'r'") + warning("D", "'74LS374'/'r'"));
}

TEST(CircuitChipInCircuit, IsPrintedWithItsUnitsIfAskedToGoDeep) {
    Circuit board("board", nullptr);
    board.addComponent("74LS154", "u");
    board.addComponent("74x574", "r");
    const auto address = [](const Component* part) { return format("(0x%p)", static_cast<const void*>(part)); };
    const Circuit* decoder = board.findCircuit("u");
    const Circuit* reg = board.findCircuit("r");
    const std::string flat = outputOf([&] { board.print(false); });
    EXPECT_NE(flat.find("Components [2]:\n   [0]: '74LS154' : 'u'  " + address(decoder) + "\n   [1]: '74x574' : 'r'  " +
                        address(reg) + "\nDeclarations [0]:\n"),
              std::string::npos)
        << flat;
    EXPECT_EQ(flat.find("ysplit"), std::string::npos);
    const std::string deep = outputOf([&] { board.print(true); });
    EXPECT_NE(deep.find("      Circuit: 'u' / '74LS154' " + address(decoder) +
                        " file: ''\n      Components [1]:\n         [0]: 'Split' : 'ysplit'  " +
                        address(decoder->findComponent("ysplit")) + "\n"),
              std::string::npos)
        << deep;
    EXPECT_NE(deep.find("      Ports [23]:\n"), std::string::npos);
    EXPECT_NE(deep.find("      Circuit: 'r' / '74x574' " + address(reg) + " file: ''\n      Components [0]:\n"),
              std::string::npos);
    EXPECT_NE(deep.find("      Ports [4]:\n"), std::string::npos);
}

TEST(CircuitChipInCircuit, NeedsNoDeclarationAndBringsNone) {
    const auto board = boardOfTwoLevels();
    EXPECT_EQ(board->findCircuit("x")->getDeclarations().size(), 0U);
    DM74LS154 chip("v", 23U);
    Circuit other("other", nullptr);
    other.addChild(&chip, nullptr);
    EXPECT_EQ(other.getDeclarations().size(), 0U);
    EXPECT_FALSE(chip.isInline());
    other.removeComponent(&chip);
}

TEST(CircuitChipInCircuit, ReplacesAnotherUnitPinByPin) {
    Circuit board("board", nullptr);
    Component* byUnits = board.addComponent("74LS374", "r");
    for (Port* port : byUnits->getPorts()) {
        Port* outer = board.createPort(port->width(), port->direction(), port->getName());
        board.createNet(port->getName(), {outer, port});
    }
    board.findPort("Q")->ztrOff();
    Component* floating = board.createUnit("74x574", "f");
    board.replaceChild(byUnits, floating);
    EXPECT_EQ(board.findComponent("r"), nullptr);
    EventSimulator simulator(&board);
    simulator.prepare(500);
    PartBench(board, 0).set("_OE=H clk=L D=LLLLLLLL", 0);
    simulator.run(500);
    EXPECT_EQ(board.findPort("Q")->get(27), "UUUUUUUU");
    EXPECT_EQ(board.findPort("Q")->get(28), "ZZZZZZZZ");
}

}  // namespace
}  // namespace tarnsim
