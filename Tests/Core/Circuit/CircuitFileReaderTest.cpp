#include "Core/Circuit/CircuitFileReader.h"

#include "Core/Simulation/EventSimulator.h"
#include "Core/Simulation/Port.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

TEST(CircuitFileReader, LoadsIntoACircuitThatIsThere) {
    const Workplace here;
    here.write("board.nlx", "Unit And g\n");
    Circuit board("B", "former name", nullptr);
    CircuitFileReader().load("board.nlx", &board);
    EXPECT_EQ(board.getName(), "board.nlx");
    EXPECT_EQ(board.getType(), "B");
    EXPECT_EQ(namesOf(board.getComponents()), Texts{"g"});
    EXPECT_EQ(board.getSpec(), nullptr) << "the statements are released";
}

TEST(CircuitFileReader, LoadsANewRootThatOutlivesIt) {
    const Workplace here;
    here.write("board.nlx", "Unit And g\n");
    std::unique_ptr<Circuit> board;
    {
        CircuitFileReader reader;
        board = reader.load("board.nlx");
    }
    EXPECT_TRUE(board->isRoot());
    EXPECT_EQ(board->getType(), "Circuit");
    EXPECT_EQ(board->getName(), "board.nlx");
    EXPECT_EQ(board->getSpec(), nullptr);
    EXPECT_TRUE(board->hasComponent("g"));
}

TEST(CircuitFileReader, KeepsEachCircuitThatItIsAskedToKeep) {
    const Workplace here;
    here.write("a.nlx", "Unit And g\n");
    CircuitFileReader reader;
    Circuit* first = reader.loadAndKeep("a.nlx");
    Circuit* second = reader.loadAndKeep("a.nlx");
    EXPECT_NE(first, second);
    EXPECT_EQ(first->getName(), "a.nlx");
    EXPECT_TRUE(second->hasComponent("g"));
}

TEST(CircuitFileReader, PassesOnWhatIsRefused) {
    const Workplace here;
    CircuitFileReader reader;
    Circuit board("board", nullptr);
    EXPECT_EQ(errorOf([&] { reader.load("none.nlx"); }), "Error: File not found: 'none.nlx'.");
    EXPECT_EQ(errorOf([&] { reader.load("none.nlx", &board); }), "Error: File not found: 'none.nlx'.");
    EXPECT_EQ(errorOf([&] { reader.loadAndKeep("none.nlx"); }), "Error: File not found: 'none.nlx'.");
    EXPECT_EQ(board.getName(), "board");
}

/// A circuit that notes, of itself and of all circuits that it makes, when the loading is said to be done.
class LoadedCircuit : public Circuit {
public:
    LoadedCircuit(const std::string& type, Texts& calls, Circuit* parent)
        : Circuit(type, "not loaded", parent), calls_(calls) {}
    LoadedCircuit(const LoadedCircuit& other) : Circuit(other), calls_(other.calls_) {}

    void onLoaded(Circuit* owner) override {
        calls_.push_back(getName() + " of " + owner->getName());
        Circuit::onLoaded(owner);
    }
    std::unique_ptr<Circuit> cloneCircuit(const Circuit& source) const override {
        return std::make_unique<LoadedCircuit>(dynamic_cast<const LoadedCircuit&>(source));
    }
    std::unique_ptr<Circuit> createDeclaration(const CircuitSpec& spec, Circuit* parent) const override {
        auto declaration = std::make_unique<LoadedCircuit>(spec.getName(), calls_, parent);
        declaration->setSpec(spec);
        return declaration;
    }

private:
    Texts& calls_;
};

TEST(CircuitFileReader, TellsTheRootAndItsUnitsAtTheEndAndDeclarationsOnlyAtTheEndOfTheirOwnFile) {
    const Workplace here;
    here.write("part.nlx", "Circuit Inner {\n}\nUnit Inner i\n");
    here.write("board.nlx",
               "Circuit Filed \"part.nlx\"\nCircuit Braced {\nUnit Inv g\n}\nUnit Filed f\nUnit Braced b\n");
    Texts calls;
    LoadedCircuit board("Circuit", calls, nullptr);
    CircuitFileReader().load("board.nlx", &board);
    EXPECT_EQ(calls, (Texts{"Filed of Filed", "i of Filed", "board.nlx of board.nlx", "f of board.nlx", "i of f",
                            "b of board.nlx"}));
}

TEST(CircuitFileReader, LoadsAnAdderThatAdds) {
    const Workplace here;
    here.write("lib/half.nlx",
               "Circuit HalfAdder {\n"
               "   Pin Input x y\n"
               "   Pin Output s c\n"
               "   Unit Xor g1(delay=5)\n"
               "   Unit And g2(delay=5)\n"
               "   Net nx x g1.a g2.a\n"
               "   Net ny y g1.b g2.b\n"
               "   Net ns s g1.out\n"
               "   Net nc c g2.out\n"
               "}\n");
    here.write("board.nlx",
               "ImportPath \"lib\"\nImport \"half.nlx\"\n"
               "Pin Input p q\nPin Output sum carry\nUnit HalfAdder h[2]\n"
               "Net n1 p h[0].x\nNet n2 q h[0].y\nNet n3 sum h[0].s\nNet n4 carry h[0].c\n");
    const auto board = CircuitFileReader().load("board.nlx");
    EventSimulator simulator(board.get());
    simulator.prepare(20);
    board->findPort("p")->set(Value("H"), 0);
    board->findPort("q")->set(Value("L"), 0);
    board->findPort("q")->set(Value("H"), 10);
    simulator.run(20);
    EXPECT_EQ(board->findPort("sum")->get(4), "U");
    EXPECT_EQ(board->findPort("sum")->get(5), "H");
    EXPECT_EQ(board->findPort("carry")->get(5), "L");
    EXPECT_EQ(board->findPort("sum")->get(14), "H");
    EXPECT_EQ(board->findPort("sum")->get(15), "L");
    EXPECT_EQ(board->findPort("carry")->get(15), "H");
    EXPECT_EQ(board->findPort("h[1].s")->get(15), "U") << "the other unit is driven by nobody";
}

}  // namespace
}  // namespace tarnsim
