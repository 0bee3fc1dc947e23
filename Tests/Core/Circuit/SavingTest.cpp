// Circuits that are loaded, edited, saved and loaded again, as a program on the library would do it.

#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

/// What the pin `q` shows when the pins `p` are all high from 0 on.
char levelOfQ(Circuit& board) {
    EventSimulator simulator(&board);
    simulator.prepare(100);
    for (Port* port : board.getPorts()) {
        if (port->direction() == Direction::Input) port->set(Value("H"), 0);
    }
    simulator.run(100);
    board.setSimulator(nullptr);
    return board.findPin("q")->level(100);
}

constexpr const char* kGate =
    "Pin Input p\n"
    "Pin Output q\n"
    "\n"
    "Unit Inv g\n"
    "\n"
    "Net n p g.in\n"
    "Net m g.out q\n"
    "\n";

constexpr const char* kHierarchy =
    "Circuit Half {\n"
    "   Pin Input i\n"
    "   Pin Output o\n"
    "\n"
    "   Unit Inv g\n"
    "\n"
    "   Net n i g.in\n"
    "   Net m g.out o\n"
    "\n"
    "}\n"
    "\n"
    "Pin Input p\n"
    "Pin Output q\n"
    "\n"
    "Unit Half a b\n"
    "\n"
    "Net n p a.i\n"
    "Net m a.o b.i\n"
    "Net k b.o q\n"
    "\n";

// Nothing edited.

TEST(Saving, ACircuitInItsNormalFormStaysAsItIs) {
    EXPECT_EQ(savedFrom(""), "");
    EXPECT_EQ(savedFrom(kGate), kGate);
    EXPECT_EQ(savedFrom(kHierarchy), kHierarchy);
    EXPECT_EQ(levelOfQ(*savedAndLoaded(*circuitFrom(kGate), kGate)), 'L');
    EXPECT_EQ(levelOfQ(*savedAndLoaded(*circuitFrom(kHierarchy), kHierarchy)), 'H');
}

// Meta data, comments, import paths.

TEST(Saving, MetaDataIsSetAddedAndRemoved) {
    const auto board = circuitFrom("MetaData a \"1\"\nMetaData a \"2\"\nMetaData b \"3\"\nMetaData c \"4\"\n");
    board->setMetaData("a", "only");
    board->addMetaData("b", "second of b");
    board->addMetaData("d", "new");
    board->removeMetaData("c");
    const auto again = savedAndLoaded(*board,
                                      "MetaData a \"only\"\n"
                                      "MetaData b \"3\"\n"
                                      "MetaData b \"second of b\"\n"
                                      "MetaData d \"new\"\n"
                                      "\n");
    EXPECT_EQ(again->getMetaDataKeys(), (Texts{"a", "b", "d"}));
    EXPECT_EQ(again->getMetaData("b"), (Texts{"3", "second of b"}));
}

TEST(Saving, FreeCommentsAreAddedChangedAndRemoved) {
    const auto board = circuitFrom("# one\n\n# two\n\n# three\n\n");
    board->addComment("four\nin two lines\n");
    board->setComment(0, "first\n");
    board->removeComment(board->getComment(1));
    const auto again = savedAndLoaded(*board, "# first\n\n# three\n\n# four\n# in two lines\n\n");
    ASSERT_EQ(again->countComments(), 3U);
    EXPECT_EQ(again->getComment(2)->getText(), "four\nin two lines\n");
}

TEST(Saving, CommentsOfUnitsPortsAndNetsAreSetAndCleared) {
    const auto board =
        circuitFrom("# u\nUnit Inv u\nUnit Inv v\n# p\nPin Input p\nPort Input 2 d\n# n\nNet n p u.in\n");
    board->findComponent("u")->setCommentText("");
    board->findComponent("v")->setCommentText("about v\nand more\n");
    board->findPort("p")->setCommentText("");
    board->findPort("d")->getComment().setText("about d\n");
    board->findNet("n")->setCommentText("about n");
    const auto again = savedAndLoaded(*board,
                                      "Pin Input p\n"
                                      "\n"
                                      "# about d\n"
                                      "Port Input 2 d\n"
                                      "\n"
                                      "# about v\n"
                                      "# and more\n"
                                      "Unit Inv v\n"
                                      "Unit Inv u\n"
                                      "\n"
                                      "# about n\n"
                                      "Net n p u.in\n"
                                      "\n");
    EXPECT_EQ(again->findComponent("v")->getCommentText(), "about v\nand more\n");
    EXPECT_TRUE(again->findComponent("u")->hasNoComment());
    EXPECT_EQ(again->findNet("n")->getCommentText(), "about n\n") << "a line of a file ends";
}

TEST(Saving, ImportPathsAreAddedAndRemoved) {
    const auto board = circuitFrom("ImportPath \"lib\"\nImportPath \"old\"\n");
    board->addImportPath("more/parts");
    board->removeImportPath("old");
    const auto again = savedAndLoaded(*board, "ImportPath \"lib\"\nImportPath \"more/parts\"\n\n");
    EXPECT_EQ(again->getImportPaths(), (std::set<std::string>{"./", "lib", "more/parts"}));
}

// Names, parameters, ports.

TEST(Saving, EverythingIsRenamed) {
    const auto board = circuitFrom(kHierarchy);
    board->findComponent("a")->setName("first");
    board->findPort("p")->setName("in");
    board->renameNet(board->findNet("m"), "between");
    Circuit* half = board->getDeclarations()[0];
    half->findComponent("g")->setName("inverter");
    half->renameNet(half->findNet("n"), "inner");
    const auto again = savedAndLoaded(*board,
                                      "Circuit Half {\n"
                                      "   Pin Input i\n"
                                      "   Pin Output o\n"
                                      "\n"
                                      "   Unit Inv inverter\n"
                                      "\n"
                                      "   Net inner i inverter.in\n"
                                      "   Net m inverter.out o\n"
                                      "\n"
                                      "}\n"
                                      "\n"
                                      "Pin Input in\n"
                                      "Pin Output q\n"
                                      "\n"
                                      "Unit Half first b\n"
                                      "\n"
                                      "Net n in first.i\n"
                                      "Net between first.o b.i\n"
                                      "Net k b.o q\n"
                                      "\n");
    EXPECT_EQ(levelOfQ(*again), 'H');
    EXPECT_NE(again->findPort("first.inverter.in"), nullptr);
}

TEST(Saving, ADeclaredTypeIsRenamedWithItsUnits) {
    const auto board = circuitFrom("Circuit Half {\n}\nUnit Half a\nUnit Half b\n");
    board->getDeclarations()[0]->setType("Whole");
    for (Component* unit : board->getComponents()) unit->setType("Whole");
    const auto again = savedAndLoaded(*board, "Circuit Whole {\n}\n\nUnit Whole a b\n\n");
    EXPECT_NE(again->findDeclaration("Whole"), nullptr);
}

TEST(Saving, ParametersAreChangedAndPutBack) {
    const auto board = circuitFrom("Unit And g(delay=9) h(delay=9) i\n");
    board->findComponent("g")->setParameters(ParaMap("(delay=3)"));
    ParaMap& parameters = board->findComponent("h")->getParameters();
    parameters["delay"] = "12";
    board->findComponent("h")->applyParameters();
    board->findComponent("i")->getParameters()["note"] = "x";
    const auto again = savedAndLoaded(*board, "Unit And g h(delay=12) i(note=x)\n\n");
    EXPECT_EQ(dynamic_cast<SingleDelayComponent&>(*again->findComponent("g")).getDelay(), 3U);
    EXPECT_EQ(dynamic_cast<SingleDelayComponent&>(*again->findComponent("h")).getDelay(), 12U);
}

TEST(Saving, PortsAreCreatedRemovedAndTurned) {
    const auto board = circuitFrom("Pin Input a b c\nUnit Inv g\nNet n b g.in\n");
    board->createPin(Direction::Output, "y");
    board->createPort(8, Direction::Inout, "d");
    board->removePort(board->findPort("b"));
    board->findPort("c")->setDirection(Direction::Output);
    Port foreign(4, Direction::Input, "f");
    board->Component::addPort(&foreign);
    Pin renamed(Direction::Input, "former");
    board->Component::addPort(&renamed, "e");
    const auto again = savedAndLoaded(*board,
                                      "Pin Input a e\n"
                                      "Pin Output c y\n"
                                      "\n"
                                      "Port Input 4 f\n"
                                      "Port Inout 8 d\n"
                                      "\n"
                                      "Unit Inv g\n"
                                      "\n"
                                      "Net n g.in\n"
                                      "\n");
    EXPECT_EQ(again->findPort("d")->width(), 8U);
    board->removePort(&foreign);
    board->removePort(&renamed);
}

// Units.

TEST(Saving, UnitsAreAddedWithNetsToThem) {
    const auto board = circuitFrom(kGate);
    board->addComponent("Inv", "h(delay=9)");
    board->addChild(board->createUnit("Inv", "i"), nullptr);
    board->findNet("m")->removePort(board->findPort("q"));
    board->findNet("m")->addPort(board->findPort("h.in"), kOutside);
    board->createNet("k", {board->findPort("h.out"), board->findPort("i.in")});
    board->createNet({board->findPort("q"), board->findPort("i.out")});
    const auto again = savedAndLoaded(*board,
                                      "Pin Input p\n"
                                      "Pin Output q\n"
                                      "\n"
                                      "Unit Inv g h(delay=9) i\n"
                                      "\n"
                                      "Net n p g.in\n"
                                      "Net m g.out h.in\n"
                                      "Net k h.out i.in\n"
                                      "Net q q i.out\n"
                                      "\n");
    EXPECT_EQ(levelOfQ(*again), 'L');
}

TEST(Saving, ARemovedUnitLeavesItsNets) {
    const auto board =
        circuitFrom("Pin Input p\nUnit Inv a b c\nNet n p a.in b.in\nNet m a.out c.in\nNet k b.out\nNet l c.out\n");
    board->removeComponent(board->findComponent("b"));
    const auto again = savedAndLoaded(*board,
                                      "Pin Input p\n"
                                      "\n"
                                      "Unit Inv a c\n"
                                      "\n"
                                      "Net n p a.in\n"
                                      "Net m a.out c.in\n"
                                      "Net l c.out\n"
                                      "\n");
    EXPECT_EQ(again->findNet("k"), nullptr) << "it had no port left";
}

TEST(Saving, AUnitMovesToAnotherCircuit) {
    const auto board = circuitFrom("Pin Input p\nUnit Inv a b(delay=9)\nNet n p b.in a.in\n");
    const auto other = circuitFrom("Unit Inv c\n");
    other->moveChild(board->findComponent("b"));
    savedAndLoaded(*board, "Pin Input p\n\nUnit Inv a\n\nNet n p a.in\n\n");
    savedAndLoaded(*other, "Unit Inv c b(delay=9)\n\n");
}

TEST(Saving, AMovedUnitOfADeclaredTypeBringsADeclarationAsItIsNow) {
    const auto board = circuitFrom(kHierarchy);
    Circuit other("other", nullptr);
    other.moveChild(board->findComponent("b"));
    // A unit that leaves its circuit is taken off all nets, and so is everything inside it.
    const auto again = savedAndLoaded(other,
                                      "Circuit Half {\n"
                                      "   Pin Input i\n"
                                      "   Pin Output o\n"
                                      "\n"
                                      "   Unit Inv g\n"
                                      "\n"
                                      "   Net n i\n"
                                      "   Net m o\n"
                                      "\n"
                                      "}\n"
                                      "\n"
                                      "Unit Half b\n"
                                      "\n");
    EXPECT_NE(again->findPort("b.g.in"), nullptr);
}

TEST(Saving, AnAddedCircuitBringsItsDeclaration) {
    Circuit unit("Part", "u", nullptr);
    unit.createPin(Direction::Input, "i");
    unit.setFilePath("part.nlx");
    Circuit board("board", nullptr);
    board.addChild(&unit, nullptr);
    savedAndLoaded(board,
                   "Circuit Part {\n"
                   "   Pin Input i\n"
                   "\n"
                   "}\n"
                   "\n"
                   "Unit Part u\n"
                   "\n");
    board.removeComponent(&unit);
}

TEST(Saving, AReplacedUnitHandsOverItsNets) {
    const auto board = circuitFrom(kGate);
    board->addChild(board->createUnit("And", "other"), nullptr);
    Component* buffer = board->createUnit("ThreeStateBuf", "b");
    board->replaceChild(board->findComponent("g"), buffer);
    const auto again = savedAndLoaded(*board,
                                      "Pin Input p\n"
                                      "Pin Output q\n"
                                      "\n"
                                      "Unit And other\n"
                                      "Unit ThreeStateBuf b\n"
                                      "\n"
                                      "Net n p b.in\n"
                                      "Net m q b.out\n"
                                      "\n");
    EXPECT_EQ(again->findNet("n")->getPorts().size(), 2U);
}

TEST(Saving, DeclaredCircuitsAreInstantiated) {
    const auto board = circuitFrom(kHierarchy);
    board->addChild(board->instantiate("Half", "c"), nullptr);
    board->addChild(board->instantiate("Half", ""), nullptr);
    board->addComponent("Half", "d");
    board->findNet("k")->removePort(board->findPort("q"));
    board->findNet("k")->addPort(board->findPort("c.i"), kOutside);
    board->createNet("o", {board->findPort("c.o"), board->findPort("q")});
    const std::string text = savedText(*board);
    EXPECT_NE(text.find("\nUnit Half a b c Half_copy d\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nNet k b.o c.i\nNet o c.o q\n"), std::string::npos) << text;
    EXPECT_EQ(levelOfQ(*savedAndLoaded(*board, text)), 'L');
}

// Declarations.

TEST(Saving, ADeclarationIsAddedFromAFile) {
    const auto board = circuitFrom("Unit Inv g\n");
    const auto parts = specFrom("Circuit Part {\nPin Input i\n}\n");
    board->addDeclaration(*parts->subSpecs[0]);
    savedAndLoaded(*board, "Unit Inv g\n\n");
    board->addComponent("Part", "u");
    savedAndLoaded(*board, "Circuit Part {\n   Pin Input i\n\n}\n\nUnit Inv g\nUnit Part u\n\n");
}

/// A circuit of the type Half that doesn't invert.
std::unique_ptr<Circuit> newHalf() {
    auto half = std::make_unique<Circuit>("Half", "new", nullptr);
    half->addComment("buffers");
    half->createPin(Direction::Output, "o");
    half->createPin(Direction::Input, "i");
    half->createNet("straight", {half->findPort("i"), half->findPort("o")});
    return half;
}

constexpr const char* kNewHalf =
    "Circuit Half {\n"
    "   # buffers\n"
    "\n"
    "   Pin Input i\n"
    "   Pin Output o\n"
    "\n"
    "   Net straight i o\n"
    "\n"
    "}\n"
    "\n";

TEST(Saving, ACopiedInDeclarationIsWrittenOnceItHasAUnit) {
    Circuit board("board", nullptr);
    board.copyDeclarationIn(*newHalf());
    savedAndLoaded(board, "");
    board.addComponent("Half", "h");
    savedAndLoaded(board, std::string(kNewHalf) + "Unit Half h\n\n");
}

TEST(Saving, ARedefinedDeclarationReachesItsUnits) {
    const auto board = circuitFrom(kHierarchy);
    EXPECT_EQ(levelOfQ(*board), 'H');
    board->redefineDeclaration(*newHalf());
    board->findNet("k")->removePort(board->findPort("q"));
    board->createNet("out", {board->addComponent("Inv", "last")->findPort("out"), board->findPort("q")});
    board->findNet("k")->addPort(board->findPort("last.in"), kOutside);
    const auto again = savedAndLoaded(*board, std::string(kNewHalf) +
                                                  "Pin Input p\n"
                                                  "Pin Output q\n"
                                                  "\n"
                                                  "Unit Half a b\n"
                                                  "Unit Inv last\n"
                                                  "\n"
                                                  "Net n p a.i\n"
                                                  "Net m a.o b.i\n"
                                                  "Net k b.o last.in\n"
                                                  "Net out last.out q\n"
                                                  "\n");
    EXPECT_EQ(levelOfQ(*again), 'L');
}

TEST(Saving, AReplacedDeclarationIsWhatTheFileSaysOfUnitsThatStillAreCopiesOfTheOldOne) {
    const auto board = circuitFrom("Circuit Half {\n   Pin Input i\n}\nUnit Half a\n");
    board->replaceDeclaration(*newHalf());
    EXPECT_EQ(board->findPort("a.o"), nullptr);
    const auto again = savedAndLoaded(*board, std::string(kNewHalf) + "Unit Half a\n\n");
    EXPECT_NE(again->findPort("a.o"), nullptr);
}

TEST(Saving, AnEditedDeclarationIsPassedOnToItsUnits) {
    const auto board = circuitFrom(kHierarchy);
    Circuit* half = board->getDeclarations()[0];
    half->findComponent("g")->setParameters(ParaMap("(delay=7)"));
    half->addComment("slow");
    half->setMetaData("k", "v");
    board->updateInstances(*half);
    const auto again = savedAndLoaded(*board,
                                      "Circuit Half {\n"
                                      "   MetaData k \"v\"\n"
                                      "\n"
                                      "   # slow\n"
                                      "\n"
                                      "   Pin Input i\n"
                                      "   Pin Output o\n"
                                      "\n"
                                      "   Unit Inv g(delay=7)\n"
                                      "\n"
                                      "   Net n i g.in\n"
                                      "   Net m g.out o\n"
                                      "\n"
                                      "}\n"
                                      "\n"
                                      "Pin Input p\n"
                                      "Pin Output q\n"
                                      "\n"
                                      "Unit Half a b\n"
                                      "\n"
                                      "Net n p a.i\n"
                                      "Net m a.o b.i\n"
                                      "Net k q b.o\n"
                                      "\n");
    EXPECT_EQ(again->findComponent("a")->getParameterText(), "");
    const auto& gate = dynamic_cast<Circuit&>(*again->findComponent("a"));
    EXPECT_EQ(dynamic_cast<SingleDelayComponent&>(*gate.findComponent("g")).getDelay(), 7U);
    EXPECT_EQ(levelOfQ(*again), 'H');
}

TEST(Saving, ADeclarationMovesIntoAFileAndBack) {
    const Workplace here;
    here.write("board.nlx", kHierarchy);
    const auto board = CircuitFileReader().load("board.nlx");
    Circuit* half = board->getDeclarations()[0];
    CircuitFileWriter(half).save("half.nlx", false);
    half->setFilePath("half.nlx");
    CircuitFileWriter(board.get()).save("board.nlx", false);
    const auto again = CircuitFileReader().load("board.nlx");
    EXPECT_EQ(again->getDeclarations()[0]->getFilePath(), "half.nlx");
    EXPECT_EQ(savedText(*again),
              "Circuit Half \"half.nlx\"\n"
              "\n"
              "Pin Input p\n"
              "Pin Output q\n"
              "\n"
              "Unit Half a b\n"
              "\n"
              "Net n p a.i\n"
              "Net m a.o b.i\n"
              "Net k b.o q\n"
              "\n");
    EXPECT_EQ(levelOfQ(*again), 'H');
    again->getDeclarations()[0]->clearFilePath();
    EXPECT_EQ(savedText(*again), kHierarchy);
}

TEST(Saving, ACopyOfACircuitSavesAsItsSourceButForTheMetaData) {
    const auto board = circuitFrom(std::string("MetaData k \"v\"\n\n# free\n\n") + kHierarchy);
    const auto copy = board->cloneCircuit(*board);
    EXPECT_EQ(savedText(*copy), std::string("# free\n\n") + kHierarchy);
}

// Nets.

TEST(Saving, NetsAreAddedReplacedDeletedAndPruned) {
    const auto board = circuitFrom(
        "Pin Input p r\nPin Output q s\nUnit Inv g h\n"
        "Net n p g.in\nNet m g.out q\nNet k r h.in\nNet l h.out\n");
    board->deleteNet(board->findNet("k"));
    board->pruneNets(2);
    NetFactory factory;
    Net* added = factory.createNet("added", 1);
    added->addPort(board->findPort("h.out"), kOutside);
    added->addPort(board->findPort("s"), kInside);
    board->addNet(added, "");
    Net* replacing = factory.createNet("any name", 1);
    Net* former = board->findNet("n");
    replacing->takeOver(*former);
    replacing->addPort(board->findPort("h.in"), kOutside);
    board->replaceNet(former, replacing);
    const auto again = savedAndLoaded(*board,
                                      "Pin Input p r\n"
                                      "Pin Output q s\n"
                                      "\n"
                                      "Unit Inv g h\n"
                                      "\n"
                                      "Net m g.out q\n"
                                      "Net added h.out s\n"
                                      "Net n p g.in h.in\n"
                                      "\n");
    EXPECT_EQ(levelOfQ(*again), 'L');
    EXPECT_EQ(again->findPin("s")->getNet(kInside), again->findNet("added"));
}

TEST(Saving, NetsThatBecomeOneAreWrittenAsOne) {
    const auto board = circuitFrom(
        "Circuit X {\nUnit Inv g h\nNet inner g.out h.in\n}\n"
        "Unit X x\nPin Output q\nNet n x.h.in q\n");
    EXPECT_EQ(savedText(*board),
              "Circuit X {\n"
              "   Unit Inv g h\n"
              "\n"
              "   Net inner g.out h.in\n"
              "\n"
              "}\n"
              "\n"
              "Pin Output q\n"
              "\n"
              "Unit X x\n"
              "\n"
              "Net n x.g.out x.h.in q\n"
              "\n");
}

}  // namespace
}  // namespace tarnsim
