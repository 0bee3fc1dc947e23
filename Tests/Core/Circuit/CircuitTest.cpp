#include "Core/Circuit/Circuit.h"

#include "Core/Simulation/EventSimulator.h"
#include "Core/Simulation/Net.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

/// A part that writes down what is called on it, with its name.
class Recorder : public Component {
public:
    Recorder(const std::string& name, Texts& calls) : Component("Recorder", name, nullptr), calls_(calls) {}

    void onLoaded(Circuit* owner) override { note("onLoaded " + owner->getName()); }
    void reset() override { note("reset"); }
    void start(Time endTime) override { note("start " + std::to_string(endTime)); }
    void evaluate(Time time) override { note("evaluate " + std::to_string(time)); }
    void disconnectPorts() override { note("disconnectPorts"); }
    void applyParameters() override {}

private:
    void note(const std::string& call) { calls_.push_back(getName() + ": " + call); }

    Texts& calls_;
};

TEST(Circuit, HasTheTypeCircuitUnlessToldOtherwise) {
    Circuit root("board", nullptr);
    Circuit inner("DM74LS00", "u1", &root);
    EXPECT_EQ(root.getType(), "Circuit");
    EXPECT_EQ(root.getName(), "board");
    EXPECT_EQ(inner.getType(), "74LS00");
    EXPECT_EQ(inner.getName(), "u1");
    EXPECT_EQ(inner.getParent(), &root);
}

TEST(Circuit, LeavesTheNetsOnBothSidesOfItsPortsAndTakesItsUnitsOffTheirNets) {
    Texts calls;
    Recorder unit("u", calls);
    Net outside("outside", 1);
    Net inside("inside", 1);
    {
        Circuit circuit("board", nullptr);
        Pin* pin = circuit.createPin(Direction::Input, "p");
        outside.addPort(pin, kOutside);
        inside.addPort(pin, kInside);
        circuit.addChild(&unit, nullptr);
    }
    EXPECT_TRUE(outside.getPorts().empty());
    EXPECT_TRUE(inside.getPorts().empty());
    EXPECT_EQ(calls, Texts{"u: disconnectPorts"});
}

TEST(Circuit, BeginsEmptyWithOneImportPath) {
    const Circuit circuit("board", nullptr);
    EXPECT_EQ(circuit.getImportPaths(), std::set<std::string>{"./"});
    EXPECT_TRUE(circuit.isNotLoaded());
    EXPECT_EQ(circuit.getFilePath(), "");
    EXPECT_EQ(circuit.getSpec(), nullptr);
    EXPECT_EQ(circuit.countComponents(), 0u);
    EXPECT_EQ(circuit.countComments(), 0u);
    EXPECT_TRUE(circuit.getNets().empty());
    EXPECT_TRUE(circuit.getDeclarations().empty());
    EXPECT_TRUE(circuit.getMetaDataKeys().empty());
    EXPECT_EQ(circuit.findSimulator(), nullptr);
}

TEST(Circuit, IsLoadedOnceItHasAFilePath) {
    Circuit circuit("board", nullptr);
    circuit.setFilePath("dir/board.nlx");
    EXPECT_EQ(circuit.getFilePath(), "dir/board.nlx");
    EXPECT_FALSE(circuit.isNotLoaded());
    circuit.clearFilePath();
    EXPECT_EQ(circuit.getFilePath(), "");
    EXPECT_FALSE(circuit.isNotLoaded());
}

TEST(Circuit, IsInsideItselfAndAllCircuitsAround) {
    Circuit root("root", nullptr);
    Circuit middle("M", "m", &root);
    const Circuit leaf("L", "l", &middle);
    EXPECT_TRUE(leaf.isInside(&leaf));
    EXPECT_TRUE(leaf.isInside(&middle));
    EXPECT_TRUE(leaf.isInside(&root));
    EXPECT_FALSE(root.isInside(&leaf));
    EXPECT_FALSE(leaf.isInside(nullptr));
    EXPECT_TRUE(root.isRoot());
    EXPECT_FALSE(leaf.isRoot());
    EXPECT_EQ(leaf.getPathFromRoot(), (Texts{"m", "l"}));
    EXPECT_EQ(root.getPathFromRoot(), Texts{});
}

TEST(Circuit, FindsTheSimulatorOfTheNearestCircuitAround) {
    Circuit root("root", nullptr);
    Circuit middle("M", "m", &root);
    const Circuit leaf("L", "l", &middle);
    EXPECT_EQ(leaf.findSimulator(), nullptr);
    EventSimulator ofRoot(&root);
    EXPECT_EQ(leaf.findSimulator(), &ofRoot);
    EventSimulator ofMiddle(&middle);
    EXPECT_EQ(leaf.findSimulator(), &ofMiddle);
    EXPECT_EQ(root.findSimulator(), &ofRoot);
    middle.setSimulator(nullptr);
    EXPECT_EQ(leaf.findSimulator(), &ofRoot);
}

TEST(Circuit, IsInlineOnlyWithAParentAndWithoutAFileAndIfTheLibraryLacksItsType) {
    Circuit root("root", nullptr);
    Circuit declared("Adder", "u", &root);
    const Circuit part("And", "g", &root);
    EXPECT_FALSE(root.isInline());
    EXPECT_FALSE(part.isInline());
    EXPECT_TRUE(declared.isInline());
    EXPECT_FALSE(declared.hasOwnFile());
    declared.setFilePath("adder.nlx");
    EXPECT_FALSE(declared.isInline());
    EXPECT_TRUE(declared.hasOwnFile());
    root.setFilePath("board.nlx");
    EXPECT_FALSE(root.hasOwnFile());
}

TEST(Circuit, HasTheNearestCircuitThatIsNotInlineForItsFileRoot) {
    Circuit root("root", nullptr);
    Circuit filed("F", "f", &root);
    Circuit middle("M", "m", &filed);
    const Circuit leaf("L", "l", &middle);
    EXPECT_EQ(leaf.getFileRoot(), &root);
    filed.setFilePath("f.nlx");
    EXPECT_EQ(leaf.getFileRoot(), &filed);
    EXPECT_EQ(filed.getFileRoot(), &filed);
    EXPECT_EQ(root.getFileRoot(), &root);
}

TEST(Circuit, GivesItsFilePathRelativeToTheDirectoryOfTheFileAround) {
    Circuit root("root", nullptr);
    root.setFilePath("/work/boards/board.nlx");
    Circuit inner("F", "f", &root);
    Circuit leaf("L", "l", &inner);
    inner.setFilePath("/work/boards/lib/f.nlx");
    EXPECT_EQ(inner.getRelativeFilePath(), "lib/f.nlx");
    EXPECT_EQ(leaf.getRelativeFilePath(), "lib/f.nlx");
    inner.setFilePath("/work/lib/f.nlx");
    EXPECT_EQ(inner.getRelativeFilePath(), "../lib/f.nlx");
    leaf.setFilePath("/work/lib/l.nlx");
    EXPECT_EQ(leaf.getRelativeFilePath(), "l.nlx");
}

TEST(Circuit, CountsAndFindsItsUnitsByName) {
    const auto circuit = circuitFrom("Unit And a b[20]\n");
    EXPECT_EQ(circuit->countComponents(), 21u);
    EXPECT_EQ(circuit->findComponent("b[19]"), circuit->getComponents()[20]);
    EXPECT_EQ(circuit->findComponent("b[20]"), nullptr);
    EXPECT_TRUE(circuit->hasComponent("a"));
    EXPECT_FALSE(circuit->hasComponent(""));
    EXPECT_EQ(circuit->countComponents("a"), 1u);
    EXPECT_EQ(circuit->countComponents("x"), 0u);
}

/// Short and long lists of units are looked up in different ways.
class CircuitOfSize : public testing::TestWithParam<int> {};

TEST_P(CircuitOfSize, GivesTheFirstOfTwoUnitsOfOneNameAlsoAfterARename) {
    const auto circuit = circuitFrom("Unit And g[" + std::to_string(GetParam()) + "]\n");
    Component* first = circuit->getComponents()[1];
    Component* second = circuit->getComponents()[2];
    second->setName("twin");
    EXPECT_EQ(circuit->findComponent("twin"), second);
    EXPECT_EQ(circuit->findComponent("g[2]"), nullptr);
    first->setName("twin");
    EXPECT_EQ(circuit->findComponent("twin"), first);
    EXPECT_EQ(circuit->countComponents("twin"), 2u);
    circuit->removeComponent(first);
    EXPECT_EQ(circuit->findComponent("twin"), second);
}

INSTANTIATE_TEST_SUITE_P(Circuit, CircuitOfSize, testing::Values(3, 40));

TEST(Circuit, PassesOnLoadResetStartAndEvaluationInTheOrderOfItsUnits) {
    Texts calls;
    Recorder a("a", calls);
    Recorder b("b", calls);
    Circuit circuit("board", nullptr);
    circuit.addChild(&b, nullptr);
    circuit.addChild(&a, nullptr);
    circuit.onLoaded(nullptr);
    circuit.reset();
    circuit.start(99);
    circuit.evaluate(7);
    circuit.disconnectPorts();
    EXPECT_EQ(calls,
              (Texts{"b: onLoaded board", "a: onLoaded board", "b: reset", "a: reset", "b: start 99", "a: start 99",
                     "b: evaluate 7", "a: evaluate 7", "b: disconnectPorts", "a: disconnectPorts"}));
}

TEST(Circuit, EvaluatesEachUnitAndRefreshesItsPortsAtThatTime) {
    const auto circuit = circuitFrom(
        "Unit Inv first(delay=0)\nUnit Inv second(delay=0)\nUnit High h\n"
        "Pin Input in\nNet i in first.in\nNet m first.out second.in\n");
    circuit->findPort("in")->set(Value("H"), 0);
    circuit->evaluate(7);
    EXPECT_EQ(circuit->findPort("first.out")->get(7), "L");
    EXPECT_EQ(circuit->findPort("second.out")->get(7), "H");
    EXPECT_EQ(circuit->findPort("first.in")->recordCount(), 2u) << "one from the net at 0, one from the refresh";
    EXPECT_EQ(circuit->findPort("h.out")->recordCount(), 2u) << "one from the start, one from the refresh";
}

TEST(Circuit, EvaluatedOnceDoesNotComeBackToAUnitInFront) {
    const auto circuit = circuitFrom(
        "Unit Inv second(delay=0)\nUnit Inv first(delay=0)\n"
        "Pin Input in\nNet i in first.in\nNet m first.out second.in\n");
    circuit->findPort("in")->set(Value("H"), 0);
    circuit->evaluate(7);
    EXPECT_EQ(circuit->findPort("first.out")->get(7), "L");
    EXPECT_EQ(circuit->findPort("second.out")->get(7), "U");
}

TEST(Circuit, ForgetsTheHistoriesOfPortsNetsUnitsAndDeclarationsOnReset) {
    const auto circuit = circuitFrom(
        "Circuit D {\nUnit High h\nUnit Inv i\nNet n h.out i.in\n}\n"
        "Pin Input in\nUnit Inv g\nNet n in g.in\n");
    circuit->findPort("in")->set(Value("H"), 0);
    const Circuit* declaration = circuit->getDeclarations()[0];
    ASSERT_EQ(declaration->findPort("i.in")->recordCount(), 0u) << "connected after it was driven";
    declaration->findPort("h.out")->set(Value("H"), 0);
    ASSERT_GT(declaration->findNet("n")->recordCount(), 0u);
    circuit->reset();
    for (const std::string port : {"in", "g.in", "g.out"}) EXPECT_EQ(circuit->findPort(port)->recordCount(), 0u);
    EXPECT_EQ(circuit->findNet("n")->recordCount(), 0u);
    EXPECT_EQ(declaration->findNet("n")->recordCount(), 0u);
    EXPECT_EQ(declaration->findPort("i.in")->recordCount(), 0u);
}

TEST(Circuit, RunsWhatIsInItsDeclarationsWithoutReachingItsUnits) {
    const auto circuit = circuitFrom(
        "Circuit D {\nPin Output q\nUnit High h\nUnit Inv i(delay=4)\nNet n h.out i.in\nNet m i.out q\n}\n"
        "Unit D u\nUnit Inv g\nNet m u.q g.in\n");
    EventSimulator simulator(circuit.get());
    simulator.prepare(10);
    const Circuit* declaration = circuit->getDeclarations()[0];
    const Net* own = declaration->findNet("m");
    EXPECT_EQ(declaration->findNet("n")->get(0), "H");
    const std::size_t before = circuit->findNet("m")->recordCount();
    // The unit's own events stay in the queue beside those of the declaration.
    simulator.run(10);
    EXPECT_EQ(own->get(3), "U");
    EXPECT_EQ(own->get(4), "L");
    EXPECT_EQ(circuit->findNet("m")->recordCount(), before + 1) << "one driver: the unit's own inverter";
    EXPECT_EQ(circuit->findNet("m")->getPorts().size(), 2u);
}

TEST(Circuit, MetaDataIsKeptByKeyWithItsValuesInOrder) {
    Circuit circuit("board", nullptr);
    circuit.addMetaData("b", "1");
    circuit.addMetaData("a", "2");
    circuit.addMetaData("b", "3");
    EXPECT_EQ(circuit.getMetaDataKeys(), (Texts{"a", "b"}));
    EXPECT_EQ(circuit.getMetaData("b"), (Texts{"1", "3"}));
    EXPECT_EQ(circuit.getMetaDataFirst("b"), "1");
    circuit.setMetaData("b", "4");
    EXPECT_EQ(circuit.getMetaData("b"), Texts{"4"});
    circuit.removeMetaData("b");
    circuit.removeMetaData("unknown");
    EXPECT_EQ(circuit.getMetaDataKeys(), Texts{"a"});
}

TEST(Circuit, MetaDataOfAnUnknownKeyIsEmptyAndStaysUnknown) {
    const Circuit circuit("board", nullptr);
    EXPECT_EQ(circuit.getMetaData("x"), Texts{});
    EXPECT_EQ(circuit.getMetaDataFirst("x"), "");
    EXPECT_TRUE(circuit.getMetaDataKeys().empty());
}

TEST(Circuit, CommentsStandInOrderAndCanBeChangedAndRemoved) {
    Circuit circuit("board", nullptr);
    for (const std::string text : {"one", "two", "three"}) circuit.addComment(text);
    circuit.setComment(2, "last");
    circuit.removeComment(circuit.getComment(1));
    ASSERT_EQ(circuit.countComments(), 2u);
    EXPECT_EQ(circuit.getComment(0)->getText(), "one");
    EXPECT_EQ(circuit.getComment(1)->getText(), "last");
    EXPECT_EQ(circuit.getCommentText(), "") << "the comment in front of the circuit is another one";
}

struct ImportPathCase {
    std::string file;
    std::string path;
    std::string kept;
};

class ImportPath : public testing::TestWithParam<ImportPathCase> {};

TEST_P(ImportPath, LosesTheDirectoryOfTheCircuitsFile) {
    Circuit circuit("board", nullptr);
    circuit.setFilePath(GetParam().file);
    circuit.removeImportPath("./");
    circuit.addImportPath(GetParam().path);
    EXPECT_EQ(circuit.getImportPaths(), std::set<std::string>{GetParam().kept});
}

INSTANTIATE_TEST_SUITE_P(Circuit, ImportPath,
                         testing::Values(ImportPathCase{"dir/board.nlx", "dir/lib", "lib"},    //
                                         ImportPathCase{"dir/board.nlx", "dir", "./"},         //
                                         ImportPathCase{"dir/board.nlx", "dir//lib", "/lib"},  //
                                         ImportPathCase{"dir/board.nlx", "directory", "ectory"},
                                         ImportPathCase{"dir/board.nlx", "lib/dir", "lib/dir"},
                                         ImportPathCase{"dir/board.nlx", "/lib", "lib"},  //
                                         ImportPathCase{"dir/board.nlx", "", "./"},       //
                                         ImportPathCase{"board.nlx", "lib", "lib"},       //
                                         ImportPathCase{"board.nlx", "/lib", "lib"},      //
                                         ImportPathCase{"", "", "./"},                    //
                                         ImportPathCase{"/a/b/board.nlx", "/a/b/lib/c", "lib/c"}));

TEST(Circuit, ImportPathsAreASortedSet) {
    Circuit circuit("board", nullptr);
    for (const std::string path : {"b", "a", "b"}) circuit.addImportPath(path);
    EXPECT_EQ(circuit.getImportPaths(), (std::set<std::string>{"./", "a", "b"}));
    circuit.removeImportPath("b");
    circuit.removeImportPath("unknown");
    EXPECT_EQ(circuit.getImportPaths(), (std::set<std::string>{"./", "a"}));
}

TEST(Circuit, WarnsOfUnconnectedInputsOfUnitsAtAnyDepthOnTheStandardOutput) {
    const auto circuit = circuitFrom(
        "Circuit D {\nPin Input in\nPin Output q\nUnit Inv i\nNet n q i.out\n}\n"
        "Pin Input a\nUnit And g\nUnit D u\nNet n a g.a\n");
    const Streams streams = streamsOf([&] { circuit->checkConnections(); });
    EXPECT_EQ(streams.output,
              "*** WARNING: Input port 'b' of component 'And'/'g' is not connected.\n"
              "*** WARNING: Input port 'in' of component 'D'/'u' is not connected.\n"
              "*** WARNING: Input port 'in' of component 'Inv'/'i' is not connected.\n");
    EXPECT_EQ(streams.error, "");
}

}  // namespace
}  // namespace tarnsim
