#include "Core/Simulation/EventSimulator.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

/// A board with the declaration `D` of a gate `g`, and its two units `u` and `v`.
std::unique_ptr<Circuit> boardWithTwoUnits() {
    return circuitFrom(
        "Circuit D {\n"
        "# free\n\n"
        "Pin Input a b\nPin Output q(ztr=off)\n"
        "# gate\nUnit And g(delay=9)\n"
        "# net\nNet na a g.a\nNet nb b g.b\nNet nq q g.out\n"
        "MetaData author 'somebody'\n"
        "}\n"
        "Unit D u v\n");
}

TEST(CircuitCopy, IsSharedByNoTwoUnitsOfOneType) {
    const auto board = boardWithTwoUnits();
    const Circuit* u = board->findCircuit("u");
    const Circuit* v = board->findCircuit("v");
    EXPECT_NE(u->findComponent("g"), v->findComponent("g"));
    EXPECT_NE(u->findNet("na"), v->findNet("na"));
    EXPECT_NE(u->findPort("a"), v->findPort("a"));
    u->findPort("a")->set(Value("H"), 5);
    EXPECT_EQ(u->findPort("g.a")->get(5), "H");
    EXPECT_EQ(v->findNet("na")->recordCount(), 0u);
    EXPECT_EQ(v->findPort("g.a")->recordCount(), 0u);
    EXPECT_EQ(board->getDeclarations()[0]->findNet("na")->recordCount(), 0u);
}

TEST(CircuitCopy, HasPortsUnitsNetsAndCommentsOfItsSource) {
    const auto board = boardWithTwoUnits();
    const Circuit& source = *board->getDeclarations()[0];
    const Circuit copy(source);
    EXPECT_EQ(copy.getType(), "D");
    EXPECT_EQ(copy.getName(), "D");
    EXPECT_EQ(copy.getId(), source.getId());
    EXPECT_EQ(namesOf(copy.getPorts()), (Texts{"a", "b", "q"}));
    EXPECT_FALSE(copy.findPort("q")->getZtr());
    EXPECT_EQ(namesOf(copy.getNets()), (Texts{"na", "nb", "nq"}));
    for (const Net* net : copy.getNets()) EXPECT_EQ(net->getPorts().size(), 2u) << net->getName();
    EXPECT_EQ(copy.findPort("q")->getNet(kInside), copy.findPort("g.out")->getNet(kOutside));
    EXPECT_EQ(copy.getNets()[0]->getCommentText(), "net\n");
    EXPECT_EQ(copy.findComponent("g")->getCommentText(), "gate\n");
    EXPECT_EQ(copy.findComponent("g")->getParent(), &copy);
    ASSERT_EQ(copy.countComments(), 1u);
    EXPECT_NE(const_cast<Circuit&>(copy).getComment(0), const_cast<Circuit&>(source).getComment(0));
    EXPECT_EQ(const_cast<Circuit&>(copy).getComment(0)->getText(), "free\n");
}

TEST(CircuitCopy, HasNeitherParentNorMetaDataNorStatements) {
    const Workplace here;
    here.write("board.nlx", "MetaData k 'v'\n");
    const CircuitSpec spec("board.nlx");
    Circuit root("root", nullptr);
    Circuit source("S", "s", &root);
    source.setSpec(spec);
    source.addImportPath("lib");
    EventSimulator simulator(&root);
    const Circuit copy(source);
    EXPECT_EQ(copy.getParent(), nullptr);
    EXPECT_EQ(copy.getSpec(), nullptr);
    EXPECT_TRUE(copy.getMetaDataKeys().empty());
    EXPECT_EQ(source.getMetaDataFirst("k"), "v") << "the source is left as it was";
    EXPECT_EQ(source.getParent(), &root);
    EXPECT_EQ(copy.findSimulator(), &simulator) << "the one that the source found around it";
    EXPECT_EQ(copy.getImportPaths(), (std::set<std::string>{"./", "lib"}));
    EXPECT_EQ(copy.getFilePath(), "board.nlx");
    EXPECT_FALSE(copy.isNotLoaded());
}

TEST(CircuitCopy, OfACircuitThatWasNeverLoadedCountsAsLoaded) {
    const Circuit source("s", nullptr);
    EXPECT_TRUE(source.isNotLoaded());
    EXPECT_FALSE(Circuit(source).isNotLoaded());
}

TEST(CircuitCopy, OfAMetaDataDeclarationLeavesTheDataThere) {
    const auto board = boardWithTwoUnits();
    EXPECT_EQ(board->getDeclarations()[0]->getMetaDataFirst("author"), "somebody");
    EXPECT_TRUE(board->findCircuit("u")->getMetaDataKeys().empty());
}

TEST(CircuitCopy, MakesPartsOfTheLibraryAnewFromTheirText) {
    const auto board = boardWithTwoUnits();
    const Component* source = board->getDeclarations()[0]->findComponent("g");
    const auto* gate = dynamic_cast<SingleDelayComponent*>(board->findCircuit("u")->findComponent("g"));
    ASSERT_NE(gate, nullptr);
    EXPECT_EQ(gate->getDelay(), 9u);
    EXPECT_EQ(gate->getParameterText(), "(delay=9)");
    EXPECT_NE(gate->getId(), source->getId());
    EXPECT_EQ(board->findCircuit("u")->getId(), board->getDeclarations()[0]->getId());
}

TEST(CircuitCopy, LeavesTheStateOfPartsBehind) {
    const auto board = boardWithTwoUnits();
    const Circuit* u = board->findCircuit("u");
    u->findPort("a")->set(Value("H"), 0);
    const Circuit copy(*u);
    EXPECT_EQ(copy.findPort("a")->recordCount(), 0u);
    EXPECT_EQ(copy.findPort("g.a")->recordCount(), 0u);
    EXPECT_EQ(copy.findNet("na")->recordCount(), 0u);
}

TEST(CircuitCopy, KeepsNetsWithoutPortsAndPortsDeepInside) {
    const auto board = circuitFrom(
        "Circuit D {\nCircuit E {\nUnit Inv i\n}\nUnit E e\nUnit Inv j\nNet deep e.i.in j.out\n}\nUnit D u\n");
    Circuit* u = board->findCircuit("u");
    u->createNet("empty", {});
    const Circuit copy(*u);
    EXPECT_EQ(namesOf(copy.getNets()), (Texts{"deep", "empty"}));
    EXPECT_TRUE(copy.findNet("empty")->getPorts().empty());
    EXPECT_EQ(copy.findNet("deep")->getPorts(), (std::vector<Port*>{copy.findPort("e.i.in"), copy.findPort("j.out")}));
}

TEST(CircuitCopy, BringsDeclarationsAlongWithTheirComments) {
    const auto board = circuitFrom("Circuit D {\nCircuit E {\n# free\n\nUnit Inv i\n}\nUnit E e\n}\nUnit D u\n");
    const Circuit* u = board->findCircuit("u");
    ASSERT_EQ(u->getDeclarations().size(), 1u);
    Circuit* inner = u->getDeclarations()[0];
    EXPECT_EQ(inner->getType(), "E");
    EXPECT_EQ(inner->getParent(), u);
    EXPECT_NE(inner, board->getDeclarations()[0]->getDeclarations()[0]);
    ASSERT_EQ(inner->countComments(), 1u);
    EXPECT_EQ(inner->getComment(0)->getText(), "free\n");
}

TEST(CircuitCopy, CanBeMadeThroughAnyCircuit) {
    const auto board = boardWithTwoUnits();
    const auto copy = Circuit("any", nullptr).cloneCircuit(*board->findCircuit("u"));
    EXPECT_EQ(copy->getName(), "u");
    EXPECT_EQ(copy->countComponents(), 1u);
}

/// A part that no library has.
class Stranger : public Component {
public:
    Stranger() : Component("Stranger", "s", nullptr) {}
    void evaluate(Time /*time*/) override {}
    void applyParameters() override {}
};

TEST(CircuitCopy, OfAUnitThatNeitherTheLibraryNorACircuitMakesIsRefused) {
    Stranger stranger;
    Circuit circuit("board", nullptr);
    circuit.addChild(&stranger, nullptr);
    EXPECT_EQ(errorOf([&] { const Circuit copy(circuit); }), "Cannot make a copy of component 's' in circuit 'board'.");
}

/// A circuit that makes no copies, with declarations that make none.
class Unique : public Circuit {
public:
    using Circuit::Circuit;
    std::unique_ptr<Circuit> cloneCircuit(const Circuit& /*source*/) const override { return nullptr; }
    std::unique_ptr<Circuit> createDeclaration(const CircuitSpec& spec, Circuit* parent) const override {
        auto declaration = std::make_unique<Unique>(spec.getName(), "", parent);
        declaration->setSpec(spec);
        return declaration;
    }
};

TEST(CircuitCopy, OfADeclarationThatMakesNoneIsRefused) {
    Unique circuit("board", nullptr);
    circuit.setSpec(*specFrom("Circuit D {\n}\n"));
    EXPECT_EQ(errorOf([&] { const Circuit copy(circuit); }),
              "Cannot make a copy of circuit declaration 'D' in circuit 'board.nlx'.");
}

TEST(CircuitCopy, OfANetWhosePortsCopyCannotBeFoundIsRefused) {
    const auto board = circuitFrom("Unit Inv g\nUnit Inv h\nNet n g.in h.out\n");
    board->findComponent("g")->setName("a-b");
    EXPECT_EQ(errorOf([&] { const Circuit copy(*board); }), "Cann't find port path 'a-b.in' in circuit 'board.nlx'")
        << "the copy's name is empty, as no unit can be made of that text";
    board->findComponent("a-b")->setName("g");
    Port stranger(1, Direction::Input, "x");
    board->findNet("n")->addPort(&stranger, kOutside);
    EXPECT_EQ(errorOf([&] { const Circuit copy(*board); }), "Cann't find port path '' in circuit 'board.nlx'");
}

}  // namespace
}  // namespace tarnsim
