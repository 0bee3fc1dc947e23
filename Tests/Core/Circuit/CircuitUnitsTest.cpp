#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

// Adding, moving and replacing units, and the declarations that they are copies of.

TEST(CircuitUnits, AreMadeFromTheLibraryOrFromADeclaration) {
    const auto board = circuitFrom("Circuit D {\nUnit Inv i\n}\n");
    Component* gate = board->addComponent("And", "g(delay=5)");
    Component* unit = board->addComponent("D", "u");
    EXPECT_EQ(gate->getName(), "g");
    EXPECT_EQ(gate->getParameterText(), "(delay=5)");
    EXPECT_EQ(gate->getParent(), board.get());
    EXPECT_EQ(unit->getType(), "D");
    EXPECT_EQ(unit->getParent(), board.get());
    EXPECT_EQ(namesOf(board->getComponents()), (Texts{"g", "u"}));
    Component* loose = board->createUnit("D", "v");
    EXPECT_EQ(loose->getName(), "v");
    EXPECT_EQ(loose->getParent(), nullptr);
    EXPECT_FALSE(board->hasComponent("v")) << "not a unit yet";
}

TEST(CircuitUnits, OfATypeThatIsNowhereAreRefused) {
    Circuit board("board", nullptr);
    EXPECT_EQ(errorOf([&] { board.createUnit("X", "u"); }), "Can't find a declaration of circuit of type 'X'.");
    EXPECT_EQ(errorOf([&] { board.addComponent("X", "u"); }), "Can't find a declaration of circuit of type 'X'.");
    EXPECT_EQ(board.instantiate("X", "u"), nullptr);
}

TEST(CircuitUnits, AreNamedAfterTheDeclarationWhereNoNameIsGiven) {
    const auto board = circuitFrom("Circuit XY74 {\n}\n");
    EXPECT_EQ(board->instantiate("74", "")->getName(), "XY74_copy");
    EXPECT_EQ(board->instantiate("74", "u")->getName(), "u");
    EXPECT_EQ(board->instantiate("74", "u")->getType(), "74");
}

TEST(CircuitUnits, OfOneNameAreRefused) {
    Circuit board("board", nullptr);
    board.addComponent("And", "g");
    Circuit twin("D", "g", nullptr);
    EXPECT_EQ(errorOf([&] { board.addChild(&twin, nullptr); }), "Error: Duplicated component instance name: 'g'.");
    const UnitLine line({"Unit", "D", "g"}, 12, "board.nlx");
    EXPECT_EQ(errorOf([&] { board.addChild(&twin, &line); }),
              "Error in board.nlx:12: Duplicated component instance name: 'g'.");
    EXPECT_EQ(board.countComponents(), 1u);
}

TEST(CircuitUnits, OfAnotherCircuitAreRefused) {
    Circuit here("here", nullptr);
    Circuit there("there", nullptr);
    Component* gate = there.addComponent("And", "g");
    EXPECT_EQ(errorOf([&] { here.addChild(gate, nullptr); }),
              "Component 'g' already belongs to parent circuit 'there', cannot be added to circuit 'here'");
    EXPECT_EQ(errorOf([&] { there.addChild(gate, nullptr); }), "Error: Duplicated component instance name: 'g'.");
}

TEST(CircuitUnits, BringTheirDeclarationAlong) {
    Circuit unit("D", "u", nullptr);
    unit.addComponent("Inv", "i");
    unit.setFilePath("d.nlx");
    Circuit twin("D", "v", nullptr);
    twin.setFilePath("d.nlx");
    Circuit board("board", nullptr);
    board.addChild(&unit, nullptr);
    ASSERT_EQ(board.getDeclarations().size(), 1u);
    const Circuit* declaration = board.findDeclaration("D");
    EXPECT_NE(declaration, &unit);
    EXPECT_EQ(declaration->getParent(), &board);
    EXPECT_TRUE(declaration->hasComponent("i"));
    EXPECT_EQ(unit.getFilePath(), "");
    EXPECT_EQ(declaration->getFilePath(), "");
    board.addChild(&twin, nullptr);
    EXPECT_EQ(board.getDeclarations().size(), 1u) << "one is there already";
    EXPECT_EQ(twin.getFilePath(), "d.nlx");
}

TEST(CircuitUnits, OfALibraryTypeBringNoDeclaration) {
    Circuit unit("And", "u", nullptr);
    Circuit board("board", nullptr);
    board.addChild(&unit, nullptr);
    EXPECT_TRUE(board.getDeclarations().empty());
}

TEST(CircuitUnits, MoveOutOfTheirCircuitAndOffItsNets) {
    Circuit here("here", nullptr);
    auto there = std::make_unique<Circuit>("there", nullptr);
    Component* gate = there->addComponent("Inv", "g");
    there->addComponent("Inv", "h");
    there->createNet("n", {there->findPort("g.in"), there->findPort("h.out")});
    here.moveChild(gate);
    EXPECT_EQ(gate->getParent(), &here);
    EXPECT_EQ(here.findComponent("g"), gate);
    EXPECT_FALSE(there->hasComponent("g"));
    EXPECT_EQ(gate->getPorts()[0]->getNet(kOutside), nullptr);
    EXPECT_EQ(there->findNet("n")->getPorts().size(), 1u);
    there.reset();
    EXPECT_EQ(gate->getName(), "g") << "it lives with its new circuit";
}

TEST(CircuitUnits, WithoutACircuitMoveInAsTheyAre) {
    Circuit unit("D", "u", nullptr);
    Circuit board("board", nullptr);
    board.moveChild(&unit);
    EXPECT_EQ(board.findComponent("u"), &unit);
    EXPECT_EQ(board.getDeclarations().size(), 1u);
}

TEST(CircuitUnits, ThatMoveToWhereTheirNameIsTakenAreRefused) {
    Circuit here("here", nullptr);
    here.addComponent("Or", "g");
    Circuit there("there", nullptr);
    Component* gate = there.addComponent("And", "g");
    EXPECT_EQ(errorOf([&] { here.moveChild(gate); }), "Error: Duplicated component instance name: 'g'.");
    EXPECT_EQ(gate->getParent(), nullptr);
    EXPECT_EQ(there.countComponents(), 0u);
}

TEST(CircuitUnits, AreReplacedPortByPortOfTheSameName) {
    const auto board = circuitFrom("Pin Input p\nUnit And old\nUnit Inv last\nNet n p old.a\nNet m old.out last.in\n");
    Component* old = board->findComponent("old");
    const std::string idOfOut = old->findPort("out")->getId();
    Component* fresh = board->createUnit("Inv", "fresh");
    const std::string idOfIn = fresh->findPort("in")->getId();
    board->replaceChild(old, fresh);
    EXPECT_EQ(namesOf(board->getComponents()), (Texts{"last", "fresh"}));
    EXPECT_EQ(fresh->findPort("out")->getId(), idOfOut);
    EXPECT_EQ(fresh->findPort("out")->getNet(kOutside), board->findNet("m"));
    EXPECT_EQ(board->findNet("m")->getPorts(),
              (std::vector<Port*>{board->findPort("last.in"), fresh->findPort("out")}));
    EXPECT_EQ(fresh->findPort("in")->getId(), idOfIn) << "it has no counterpart";
    EXPECT_EQ(fresh->findPort("in")->getNet(kOutside), nullptr);
    EXPECT_EQ(board->findNet("n")->getPorts(), std::vector<Port*>{board->findPort("p")});
    for (const Port* port : old->getPorts()) EXPECT_EQ(port->getNet(kOutside), nullptr);
}

TEST(CircuitUnits, AreNotReplacedByOneWhoseNameIsTaken) {
    const auto board = circuitFrom("Unit Inv old other\n");
    Component* fresh = board->createUnit("Inv", "other");
    EXPECT_EQ(errorOf([&] { board->replaceChild(board->findComponent("old"), fresh); }),
              "Error: Duplicated component instance name: 'other'.");
}

/// A board with two units `u` and `v` of a circuit `D` that inverts, and another circuit of that type that doesn't.
class RedefinedCircuit : public testing::Test {
protected:
    std::unique_ptr<Circuit> board = circuitFrom(
        "Circuit D {\nPin Input a\nPin Output q\nUnit Inv i\nNet x a i.in\nNet y q i.out\n}\n"
        "Pin Input p\nUnit D u\nUnit Inv g\nUnit D v\nNet n p u.a\nNet m u.q v.a g.in\n");
    std::unique_ptr<Circuit> other = circuitFrom("Pin Input a\nPin Output q\nNet straight a q\n");

    RedefinedCircuit() {
        other->setType("D");
        other->setName("other");
    }
};

TEST_F(RedefinedCircuit, ReplacesTheDeclarationAlone) {
    Circuit* old = board->findDeclaration("D");
    board->replaceDeclaration(*other);
    ASSERT_EQ(board->getDeclarations().size(), 1u);
    EXPECT_NE(board->findDeclaration("D"), old);
    EXPECT_NE(board->findDeclaration("D"), other.get());
    EXPECT_EQ(board->findDeclaration("D")->getName(), "other");
    EXPECT_EQ(board->findDeclaration("D")->getParent(), board.get());
    EXPECT_TRUE(board->findCircuit("u")->hasComponent("i"));
}

TEST_F(RedefinedCircuit, IsAddedAsADeclarationWhereThereIsNone) {
    other->setType("E");
    board->replaceDeclaration(*other);
    EXPECT_EQ(namesOf(board->getDeclarations()), (Texts{"D", "other"}));
}

TEST_F(RedefinedCircuit, TakesThePlaceOfAllUnitsOfItsTypeOnTheirNets) {
    const std::string idOfPort = board->findPort("u.a")->getId();
    board->redefineDeclaration(*other);
    EXPECT_EQ(namesOf(board->getComponents()), (Texts{"g", "u", "v"}));
    for (const std::string unit : {"u", "v"}) {
        const Circuit* instance = board->findCircuit(unit);
        EXPECT_TRUE(instance->hasNet("straight"));
        EXPECT_EQ(instance->countComponents(), 0u);
        EXPECT_EQ(instance->getParent(), board.get());
    }
    EXPECT_EQ(board->findPort("u.a")->getId(), idOfPort);
    EXPECT_EQ(board->findNet("n")->getPorts(), (std::vector<Port*>{board->findPort("p"), board->findPort("u.a")}));
    EXPECT_EQ(board->findNet("m")->getPorts(),
              (std::vector<Port*>{board->findPort("g.in"), board->findPort("u.q"), board->findPort("v.a")}));
}

TEST_F(RedefinedCircuit, LeavesOutTheUnitThatItIsMadeFrom) {
    Circuit* v = board->findCircuit("v");
    const Circuit* u = board->findCircuit("u");
    v->addComponent("Or", "extra");
    board->redefineDeclaration(*v);
    EXPECT_EQ(board->findCircuit("v"), v);
    EXPECT_NE(board->findCircuit("u"), u);
    EXPECT_TRUE(board->findCircuit("u")->hasComponent("extra"));
}

TEST_F(RedefinedCircuit, CannotUpdateUnitsWithoutADeclaration) {
    other->setType("E");
    EXPECT_EQ(errorOf([&] { board->updateInstances(*other); }), "Can't find a declaration of circuit of type 'E'.");
}

TEST_F(RedefinedCircuit, CanBeCopiedInBesideTheDeclarationOfItsType) {
    const Circuit* first = board->findDeclaration("D");
    board->copyDeclarationIn(*other);
    EXPECT_EQ(board->getDeclarations().size(), 2u);
    EXPECT_EQ(board->getDeclarations()[1]->getParent(), board.get());
    EXPECT_EQ(board->findDeclaration("D"), first);
}

TEST(CircuitDeclaration, IsNamedAfterItsStatementAndTypedWithoutTheMakersLetters) {
    const auto board = circuitFrom("Circuit XY74 {\n}\nUnit 74 u\n");
    EXPECT_EQ(board->getDeclarations()[0]->getName(), "XY74");
    EXPECT_EQ(board->getDeclarations()[0]->getType(), "74");
    EXPECT_EQ(board->findComponent("u")->getType(), "74");
    EXPECT_EQ(errorOfLoading("Circuit XY74 {\n}\nUnit XY74 u\n"),
              "Error at board.nlx:2: Component type not found: 'XY74'.");
}

TEST(CircuitDeclaration, WithTheNameOfAPartIsRefused) {
    EXPECT_EQ(errorOfLoading("Circuit And {\n}\n"),
              "Error: Circuit name 'And' (within 'board.nlx') identical to a component.");
    EXPECT_EQ(errorOfLoading("Circuit D {\nCircuit Inv {\n}\n}\n"),
              "Error: Circuit name 'Inv' (within 'D') identical to a component.");
}

TEST(CircuitDeclaration, OfOneNameTwiceInACircuitIsRefused) {
    EXPECT_EQ(errorOfLoading("Circuit D {\n}\nCircuit D {\n}\n"),
              "Error: Duplicated sub-circuits 'D' within circuit 'board.nlx'.");
    EXPECT_EQ(errorOfLoading("Circuit D {\nCircuit E {\n}\nCircuit E {\n}\n}\n"),
              "Error: Duplicated sub-circuits 'E' within circuit 'D'.");
    EXPECT_EQ(errorOfLoading("Circuit D {\nCircuit D {\n}\n}\n"), "(no Error)");
}

TEST(CircuitDeclaration, CanBeAddedFromARecordAlone) {
    Circuit board("board", nullptr);
    const auto spec = specFrom("Circuit D {\nUnit Inv i\n}\n");
    board.addDeclaration(*spec->subSpecs[0]);
    ASSERT_NE(board.findDeclaration("D"), nullptr);
    EXPECT_TRUE(board.findDeclaration("D")->hasComponent("i"));
    EXPECT_EQ(board.findDeclaration("D")->getParent(), &board);
    const auto loose = board.createDeclaration(*spec->subSpecs[0], &board);
    EXPECT_EQ(loose->getName(), "D");
    EXPECT_EQ(board.getDeclarations().size(), 1u);
}

}  // namespace
}  // namespace tarnsim
