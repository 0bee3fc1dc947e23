#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

/// A board with gate `g`, and a unit `u` that holds a gate `g` and a unit `v` with an inverter `i`.
std::unique_ptr<Circuit> nestedBoard() {
    return circuitFrom(
        "Circuit D {\n"
        "Circuit E {\nPin Input in\nUnit Inv i\nNet deep in i.in\n}\n"
        "Pin Input p\nUnit And g\nUnit E v\nNet inner p g.a v.in\n"
        "}\n"
        "Pin Input p\nPin Output q\nUnit And g\nUnit D u\nNet n p g.a u.p\nNet m q g.out\n");
}

struct SplitCase {
    std::string text;
    Texts units;
    std::string leaf;
};

class SplitPath : public testing::TestWithParam<SplitCase> {};

TEST_P(SplitPath, CutsAtEveryDot) {
    const Circuit::SplitPath path = Circuit::splitPath(GetParam().text);
    EXPECT_EQ(path.units, GetParam().units);
    EXPECT_EQ(path.leaf, GetParam().leaf);
}

INSTANTIATE_TEST_SUITE_P(Circuit, SplitPath,
                         testing::Values(SplitCase{"a", {}, "a"},              //
                                         SplitCase{"u.a", {"u"}, "a"},         //
                                         SplitCase{"x.u.a", {"x", "u"}, "a"},  //
                                         SplitCase{"", {}, ""},                //
                                         SplitCase{"u.", {"u"}, ""},           //
                                         SplitCase{".a", {""}, "a"},           //
                                         SplitCase{"a..b", {"a", ""}, "b"},    //
                                         SplitCase{"./u.a", {"", "/u"}, "a"}));

TEST(CircuitLookup, OfAPortGoesThroughUnitsToTheLastName) {
    const auto board = nestedBoard();
    EXPECT_EQ(board->findPort("p"), board->getPorts()[0]);
    EXPECT_EQ(board->findPort("g.b"), board->findComponent("g")->getPorts()[1]);
    const Circuit* v = board->findCircuit("u.v");
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(board->findPort("u.v.in"), v->getPorts()[0]);
    EXPECT_EQ(board->findPort("u.v.i.out"), v->findComponent("i")->getPorts()[1]);
}

TEST(CircuitLookup, OfAPortThatIsNotThereGivesNull) {
    const auto board = nestedBoard();
    for (const std::string path :
         {"x", "g", "g.x", "x.a", "g.a.c", "g.a.b", "u.x.a", "u.g.x", "u.v.i.in.x", ".p", "p."}) {
        EXPECT_EQ(board->findPort(path), nullptr) << path;
    }
}

TEST(CircuitLookup, OfAnEmptyTextLooksForAPortWithAnEmptyName) {
    Circuit circuit("board", nullptr);
    EXPECT_EQ(circuit.findPort(""), nullptr);
    Pin* nameless = circuit.createPin(Direction::Input, "");
    EXPECT_EQ(circuit.findPort(""), nameless);
}

/// Short and long lists of ports are looked up in different ways.
class PortCount : public testing::TestWithParam<int> {};

TEST_P(PortCount, DoesNotMatterForTheFirstOfTwoPortsOfOneName) {
    Circuit circuit("board", nullptr);
    for (int i = 0; i < GetParam(); ++i) circuit.createPin(Direction::Input, "p" + std::to_string(i));
    Port* first = circuit.getPorts()[1];
    Port* second = circuit.getPorts()[2];
    second->setName("twin");
    first->setName("twin");
    EXPECT_EQ(circuit.findPort("twin"), first);
    first->setName("other");
    EXPECT_EQ(circuit.findPort("twin"), second);
    EXPECT_EQ(circuit.findPort("p1"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(CircuitLookup, PortCount, testing::Values(3, 40));

TEST(CircuitLookup, OfACircuitGoesThroughCircuitsAlone) {
    const auto board = nestedBoard();
    EXPECT_EQ(board->findCircuit("u"), board->findComponent("u"));
    EXPECT_EQ(board->findCircuit("u.v")->getType(), "E");
    for (const std::string path : {"", "g", "x", "u.g", "u.x", "u.v.i", "u.", "u.p"}) {
        EXPECT_EQ(board->findCircuit(path), nullptr) << path;
    }
}

TEST(CircuitLookup, OfANetGivesWhereTheWalkEnded) {
    const auto board = nestedBoard();
    Circuit* v = board->findCircuit("u.v");
    Circuit::NetPath path = board->resolveNetPath("u.v.deep");
    EXPECT_EQ(path.units, "u.v");
    EXPECT_EQ(path.leaf, "deep");
    EXPECT_EQ(path.circuit, v);
    EXPECT_EQ(path.net, v->getNets()[0]);
    path = board->resolveNetPath("n");
    EXPECT_EQ(path.units, "");
    EXPECT_EQ(path.circuit, board.get());
    EXPECT_EQ(path.net, board->getNets()[0]);
    path = board->resolveNetPath("u.none");
    EXPECT_EQ(path.circuit, board->findCircuit("u"));
    EXPECT_EQ(path.net, nullptr);
    path = board->resolveNetPath("g.n");
    EXPECT_EQ(path.units, "g");
    EXPECT_EQ(path.circuit, nullptr);
    EXPECT_EQ(path.net, nullptr);
    EXPECT_TRUE(board->hasNet("u.inner"));
    EXPECT_FALSE(board->hasNet("inner"));
    EXPECT_EQ(board->findNet("u.inner"), board->findCircuit("u")->getNets()[0]);
    EXPECT_EQ(board->findNet("x.inner"), nullptr);
}

class NetCount : public testing::TestWithParam<int> {};

TEST_P(NetCount, DoesNotMatterForTheLastOfTwoNetsOfOneName) {
    Circuit circuit("board", nullptr);
    for (int i = 0; i < GetParam(); ++i) circuit.createNet("n" + std::to_string(i), {});
    Net* first = circuit.getNets()[0];
    Net* second = circuit.getNets()[1];
    circuit.renameNet(second, "twin");
    circuit.renameNet(first, "twin");
    EXPECT_EQ(circuit.findNet("twin"), second);
    circuit.renameNet(second, "other");
    EXPECT_EQ(circuit.findNet("twin"), first);
    EXPECT_EQ(circuit.findNet("n0"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(CircuitLookup, NetCount, testing::Values(3, 40));

TEST(CircuitLookup, OfARequiredNetGivesIt) {
    const auto board = nestedBoard();
    EXPECT_EQ(board->requireNet("u.inner", "board.sig", 3), board->findNet("u.inner"));
}

TEST(CircuitLookup, OfARequiredNetThatIsNotThereListsTheNetsOfTheCircuitReached) {
    const auto board = nestedBoard();
    EXPECT_EQ(errorOf([&] { board->requireNet("x", "board.sig", 3); }),
              "Error in board.sig:3: cannot find net 'x'.\nAvailable nets:\n  - 'n'\n  - 'm'\n");
    EXPECT_EQ(errorOf([&] { board->requireNet("u.v.x", "", 3); }),
              "Error: cannot find net 'x'.\nAvailable nets:\n  - 'deep'\n");
    EXPECT_EQ(errorOf([] { Circuit("empty", nullptr).requireNet("x", "", 0); }),
              "Error: cannot find net 'x'.\nAvailable nets:\n");
}

TEST(CircuitLookup, OfARequiredNetInACircuitThatIsNotThereNamesTheCircuit) {
    const auto board = nestedBoard();
    EXPECT_EQ(errorOf([&] { board->requireNet("u.w.x", "board.sig", 3); }),
              "Error in board.sig:3: cannot find net 'x'.\nCan't find a circuit named 'u.w'.");
    EXPECT_EQ(errorOf([&] { board->requireNet("g.x", "", 0); }),
              "Error: cannot find net 'x'.\nCan't find a circuit named 'g'.");
}

TEST(CircuitLookup, OfARequiredNetListsAllNetsHoweverManyThereAre) {
    Circuit circuit("board", nullptr);
    std::string expected = "Error: cannot find net 'x'.\nAvailable nets:\n";
    for (int i = 0; i < 1000; ++i) {
        const std::string name = "net" + std::to_string(i);
        circuit.createNet(name, {});
        expected += "  - '" + name + "'\n";
    }
    EXPECT_EQ(errorOf([&] { circuit.requireNet("x", "", 0); }), expected);
}

TEST(CircuitPath, OfAPortLeadsBackToIt) {
    const auto board = nestedBoard();
    for (const std::string path : {"p", "q", "g.a", "u.p", "u.g.out", "u.v.in", "u.v.i.out"}) {
        const Port* port = board->findPort(path);
        ASSERT_NE(port, nullptr) << path;
        EXPECT_EQ(board->getPortPath(port), path);
    }
    const Port stranger(1, Direction::Input, "p");
    EXPECT_EQ(board->getPortPath(&stranger), "");
    EXPECT_EQ(board->getPortPath(nullptr), "");
}

TEST(CircuitPath, OfAPortIsFoundByItsId) {
    const auto board = nestedBoard();
    for (const std::string path : {"p", "g.b", "u.v.i.out"}) {
        board->findPort(path)->setId("id of " + path);
        EXPECT_EQ(board->getPortPathById("id of " + path), path);
    }
    EXPECT_EQ(board->getPortPathById("no such id"), "");
}

TEST(CircuitPath, OfAUnitIsFoundByItsId) {
    const auto board = nestedBoard();
    board->findComponent("g")->setId("1");
    board->findCircuit("u")->setId("2");
    board->findCircuit("u.v")->findComponent("i")->setId("3");
    board->setId("4");
    EXPECT_EQ(board->getComponentPathById("1"), "g");
    EXPECT_EQ(board->getComponentPathById("2"), "u");
    EXPECT_EQ(board->getComponentPathById("3"), "u.v.i");
    EXPECT_EQ(board->getComponentPathById("4"), "") << "a circuit isn't a unit of itself";
    EXPECT_EQ(board->getComponentPathById("5"), "");
}

TEST(CircuitPath, OfANetIsFoundByTheNetAndByItsId) {
    const auto board = nestedBoard();
    for (const std::string path : {"n", "m", "u.inner", "u.v.deep"}) {
        Net* net = board->findNet(path);
        net->setId("id of " + path);
        EXPECT_EQ(board->getNetPath(net), path);
        EXPECT_EQ(board->getNetPathById("id of " + path), path);
    }
    const Net stranger("n", 1);
    EXPECT_EQ(board->getNetPath(&stranger), "");
    EXPECT_EQ(board->getNetPathById("no such id"), "");
}

TEST(CircuitLookup, OfADeclarationIsByTypeAndStaysInsideTheCircuit) {
    const auto board = nestedBoard();
    ASSERT_EQ(board->getDeclarations().size(), 1u);
    EXPECT_EQ(board->findDeclaration("D"), board->getDeclarations()[0]);
    EXPECT_EQ(board->findDeclaration("E"), nullptr);
    EXPECT_EQ(board->findDeclaration("And"), nullptr);
    const Circuit* u = board->findCircuit("u");
    EXPECT_EQ(u->findDeclaration("D"), nullptr) << "not the declarations of the circuit around it";
    ASSERT_NE(u->findDeclaration("E"), nullptr);
    EXPECT_NE(u->findDeclaration("E"), board->findDeclaration("D")->findDeclaration("E"));
    EXPECT_EQ(board->findPort("D.p"), nullptr) << "a declaration is no unit";
}

TEST(CircuitLookup, OfADeclarationGivesTheFirstOfItsTypeAndFollowsAChangeOfType) {
    const auto board = circuitFrom("Circuit A {\n}\nCircuit B {\n}\n");
    Circuit* a = board->getDeclarations()[0];
    Circuit* b = board->getDeclarations()[1];
    ASSERT_EQ(board->findDeclaration("B"), b);
    b->setType("A");
    EXPECT_EQ(board->findDeclaration("A"), a);
    EXPECT_EQ(board->findDeclaration("B"), nullptr);
    a->setType("C");
    EXPECT_EQ(board->findDeclaration("A"), b);
    EXPECT_EQ(board->findDeclaration("C"), a);
}

}  // namespace
}  // namespace tarnsim
