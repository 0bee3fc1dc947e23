#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

// The passes that build a circuit from its statements.

struct LoadCase {
    std::string text;
    std::string message;
};

void expectRefusals(const std::vector<LoadCase>& cases) {
    for (const LoadCase& each : cases) EXPECT_EQ(errorOfLoading(each.text), each.message) << each.text;
}

std::string describe(const Port* port) {
    static const char* const kDirections[] = {"Input", "Output", "Inout"};
    return port->getName() + ":" + kDirections[static_cast<int>(port->direction())] + ":" +
           std::to_string(port->width()) + (port->getZtr() ? "" : ":off");
}

Texts portsOf(const Circuit& circuit) {
    Texts ports;
    for (const Port* port : circuit.getPorts()) ports.push_back(describe(port));
    return ports;
}

TEST(CircuitBuild, TakesNameAndFileFromTheStatements) {
    const auto board = circuitFrom("Circuit D {\n}\n");
    EXPECT_EQ(board->getName(), "board.nlx");
    EXPECT_EQ(board->getType(), "Circuit");
    EXPECT_EQ(board->getFilePath(), "board.nlx");
    EXPECT_FALSE(board->isNotLoaded());
    const Circuit* declaration = board->getDeclarations()[0];
    EXPECT_EQ(declaration->getName(), "D");
    EXPECT_EQ(declaration->getType(), "D");
    EXPECT_EQ(declaration->getParent(), board.get());
    EXPECT_EQ(declaration->getFilePath(), "");
    EXPECT_TRUE(declaration->isNotLoaded());
    EXPECT_TRUE(declaration->isInline());
}

TEST(CircuitBuild, GivesADeclarationInAFileOfItsOwnTheNameOfTheFileAsWritten) {
    const Workplace here;
    here.write("dir/part.nlx", "Unit Inv i\n");
    here.write("dir/board.nlx", "Circuit D \"part.nlx\"\nUnit D u\n");
    const auto board = CircuitFileReader().load("dir/board.nlx");
    EXPECT_EQ(board->getDeclarations()[0]->getFilePath(), "part.nlx");
    EXPECT_TRUE(board->getDeclarations()[0]->hasOwnFile());
    EXPECT_EQ(board->findCircuit("u")->getFilePath(), "part.nlx");
}

TEST(CircuitBuild, KnowsItsStatementsAsLongAsTheyLive) {
    const Workplace here;
    here.write("board.nlx", "Circuit D {\nCircuit E {\n}\n}\n");
    Circuit board("board", nullptr);
    const Circuit* declaration = nullptr;
    const Circuit* inner = nullptr;
    {
        const CircuitSpec spec("board.nlx");
        board.setSpec(spec);
        declaration = board.getDeclarations()[0];
        inner = declaration->getDeclarations()[0];
        EXPECT_EQ(board.getSpec(), &spec);
        EXPECT_EQ(declaration->getSpec(), spec.subSpecs[0].get());
        EXPECT_EQ(declaration->getFilePath(), "board.nlx") << "the file around it, as long as it is known";
        EXPECT_EQ(inner->getFilePath(), "board.nlx");
        EXPECT_EQ(board.getFilePath(), "board.nlx");
    }
    EXPECT_EQ(board.getSpec(), nullptr);
    EXPECT_EQ(declaration->getSpec(), nullptr);
    EXPECT_EQ(declaration->getFilePath(), "");
    EXPECT_EQ(inner->getFilePath(), "");
    EXPECT_EQ(board.getFilePath(), "board.nlx");
}

TEST(CircuitBuild, MakesDeclarationsThenUnitsThenPortsThenPinsThenNets) {
    const auto board = circuitFrom(
        "Net n p d.in\n"
        "Pin Input p\n"
        "Unit D d\n"
        "Pin Output q\n"
        "Port Inout 4 bus data\n"
        "Unit Inv g\n"
        "Circuit D {\nPin Input in\n}\n"
        "Net m q g.out\n");
    EXPECT_EQ(portsOf(*board), (Texts{"bus:Inout:4", "data:Inout:4", "p:Input:1", "q:Output:1"}));
    EXPECT_EQ(namesOf(board->getComponents()), (Texts{"d", "g"}));
    EXPECT_EQ(namesOf(board->getNets()), (Texts{"n", "m"}));
    EXPECT_EQ(board->findNet("n")->getPorts(), (std::vector<Port*>{board->findPort("p"), board->findPort("d.in")}));
}

TEST(CircuitBuild, MakesMetaDataImportPathsAndFreeCommentsLast) {
    const auto board = circuitFrom(
        "# one\n\nMetaData k 'v'\nMetaData k 'w'\nImportPath 'lib'\nCircuit D {\nMetaData k 'x'\nImportPath 'aux'\n"
        "# inner\n}\n# two\n\n");
    EXPECT_EQ(board->getMetaData("k"), (Texts{"v", "w"}));
    EXPECT_EQ(board->getImportPaths(), (std::set<std::string>{"./", "aux", "lib"}));
    ASSERT_EQ(board->countComments(), 2u);
    EXPECT_EQ(board->getComment(0)->getText(), "one\n");
    EXPECT_EQ(board->getComment(1)->getText(), "two\n");
    Circuit* declaration = board->getDeclarations()[0];
    EXPECT_EQ(declaration->getMetaData("k"), Texts{"x"});
    EXPECT_EQ(declaration->getImportPaths(), std::set<std::string>{"./"});
    ASSERT_EQ(declaration->countComments(), 1u);
    EXPECT_EQ(declaration->getComment(0)->getText(), "inner\n");
}

TEST(CircuitBuild, GivesACommentToTheFirstThingOfAStatement) {
    const auto board = circuitFrom(
        "Circuit D {\n}\n"
        "# units\nUnit And a b\n# copies\nUnit D c d\n# ports\nPort Input 2 p q\n# pins\nPin Input r s\n"
        "# net\nNet n r a.a\n");
    const auto textOf = [&](const std::string& unit) { return board->findComponent(unit)->getCommentText(); };
    EXPECT_EQ(textOf("a"), "units\n");
    EXPECT_EQ(textOf("b"), "");
    EXPECT_EQ(textOf("c"), "copies\n");
    EXPECT_EQ(textOf("d"), "");
    EXPECT_EQ(board->findPort("p")->getCommentText(), "ports\n");
    EXPECT_EQ(board->findPort("q")->getCommentText(), "");
    EXPECT_EQ(board->findPort("r")->getCommentText(), "pins\n");
    EXPECT_EQ(board->findPort("s")->getCommentText(), "");
    EXPECT_EQ(board->findNet("n")->getCommentText(), "net\n");
}

TEST(CircuitBuild, MakesUnitsWithParametersAndArrays) {
    const auto board = circuitFrom("Circuit D {\n}\nUnit And g(delay=5) h[2] e[0]\nUnit D u[2] v(delay=5)\n");
    EXPECT_EQ(namesOf(board->getComponents()), (Texts{"g", "h[0]", "h[1]", "u[0]", "u[1]", "v(delay=5)"}))
        << "a declared type takes the text as the name";
    EXPECT_EQ(board->findComponent("g")->getParameterText(), "(delay=5)");
    EXPECT_EQ(board->findComponent("h[1]")->getParameterText(), "(delay=3)");
}

TEST(CircuitBuild, MakesOneNamelessUnitOfAnArrayWithParameters) {
    const auto board = circuitFrom("Unit And u(delay=5)[3]\n");
    EXPECT_EQ(namesOf(board->getComponents()), Texts{""});
    EXPECT_EQ(board->getComponents()[0]->getParameterText(), "(delay=3)");
    EXPECT_EQ(errorOfLoading("Unit And u(delay=5)[3] v(delay=5)[3]\n"),
              "Error in board.nlx:1: Duplicated component instance name: ''.");
    EXPECT_EQ(namesOf(circuitFrom("Unit And g[2]h\n")->getComponents()), Texts{"g[2]h"});
}

TEST(CircuitBuild, ReadsALineOfAnyLength) {
    const std::string name(300'000, 'g');
    std::string names;
    for (int i = 0; i < 20'000; ++i) names += " g" + std::to_string(i);
    const auto board = circuitFrom("Unit Inv " + name + names + " # " + name + "\nNet n " + name + ".in g7.out\n");
    ASSERT_EQ(board->countComponents(), 20'001u);
    EXPECT_EQ(board->getComponents()[0]->getCommentText(), name + "\n");
    EXPECT_EQ(board->findNet("n")->getPorts(),
              (std::vector<Port*>{board->findPort(name + ".in"), board->findPort("g7.out")}));
}

TEST(CircuitBuild, RefusesAUnitOfAnUnknownType) {
    expectRefusals({
        {"Unit Xyz a\n", "Error at board.nlx:1: Component type not found: 'Xyz'."},
        {"\nUnit DM74LS00 a\n", "Error at board.nlx:2: Component type not found: 'DM74LS00'."},
        {"Circuit D {\n}\nCircuit E {\nUnit D u\n}\n", "Error at board.nlx:3: Component type not found: 'D'."},
        {"Circuit D {\nCircuit E {\n}\n}\nUnit E u\n", "Error at board.nlx:2: Component type not found: 'E'."},
        {"Circuit D {\nUnit D u\n}\n", "Error at board.nlx:2: Component type not found: 'D'."},
    });
}

TEST(CircuitBuild, RefusesUnitsOfOneName) {
    expectRefusals({
        {"Unit And a\n\nUnit Or a\n", "Error in board.nlx:3: Duplicated component instance name: 'a'."},
        {"Unit And a a\n", "Error in board.nlx:1: Duplicated component instance name: 'a'."},
        {"Unit And a a(delay=1)\n", "Error in board.nlx:1: Duplicated component instance name: 'a'."},
        {"Unit And g[2] g[1]\n", "Error in board.nlx:1: Duplicated component instance name: 'g[0]'."},
        {"Circuit D {\n}\nUnit D u\nUnit Inv u\n", "Error in board.nlx:3: Duplicated component instance name: 'u'."},
    });
}

TEST(CircuitBuild, GivesPortsTheirOptions) {
    const auto board = circuitFrom("Port Output 8 d(ztr=off) e(ztr=on)\nPin Output q(ztr=off) r\nPin Inout s\n");
    EXPECT_EQ(portsOf(*board), (Texts{"d:Output:8:off", "e:Output:8", "q:Output:1:off", "r:Output:1", "s:Inout:1"}));
}

TEST(CircuitBuild, RefusesOptionsThatAPortDoesNotTake) {
    const std::string usage = "Invalid Port ztr usage: the ztr can only be used in Outputs.";
    const std::string values = "Invalid Port option: 'ztr' only takes 'on' or 'off' as values.";
    expectRefusals({
        {"Port Output 4 d(delay=5)\n", "Invalid Port option: 'delay'."},
        {"Pin Output d(delay=5)\n", "Invalid Port option: 'delay'."},
        {"Port Input 4 d(ztr=off)\n", usage},
        {"Pin Inout d(ztr=off)\n", usage},
        {"Port Output 4 d(ztr=no)\n", values},
        {"Pin Output d(ztr=no)\n", values},
    });
}

// The port is in the list before its options are looked at.
TEST(CircuitBuild, LeavesAPortOutWhoseOptionsAreRefused) {
    const Workplace here;
    Circuit board("board", nullptr);
    here.write("board.nlx", "Pin Output q\n");
    CircuitFileReader().load("board.nlx", &board);
    EXPECT_EQ(portsOf(board), Texts{"q:Output:1"});
    here.write("board.nlx", "Pin Output r(ztr=no)\n");
    EXPECT_NE(errorOf([&] { CircuitFileReader().load("board.nlx", &board); }), "(no Error)");
    EXPECT_EQ(portsOf(board), Texts{"q:Output:1"});
}

TEST(CircuitBuild, RefusesPortsOfOneName) {
    expectRefusals({
        {"Port Input 4 a a\n", "Error in board.nlx:1: pin/port name duplication 'a'."},
        {"Port Input 4 a\nPort Output 4 a(ztr=off)\n", "Error in board.nlx:2: pin/port name duplication 'a'."},
        {"Pin Input a\nPin Output a\n", "Error in board.nlx:2: pin/port name duplication 'a'."},
        {"Pin Input a a\n", "Error in board.nlx:1: pin/port name duplication 'a'."},
        {"Port Input 4 a\nPin Input a\n", "Error in board.nlx:2: pin/port name duplication 'a'."},
        {"Pin Input a\nPort Input 4 a\n", "Error in board.nlx:1: pin/port name duplication 'a'."},
    });
}

TEST(CircuitBuild, LooksForAPinByItsTextAndForAPortByItsName) {
    EXPECT_EQ(portsOf(*circuitFrom("Pin Output a\nPin Output a(ztr=off)\n")), (Texts{"a:Output:1", "a:Output:1:off"}));
    EXPECT_EQ(errorOfLoading("Port Output 1 a\nPort Output 1 a(ztr=off)\n"),
              "Error in board.nlx:2: pin/port name duplication 'a'.");
    EXPECT_EQ(portsOf(*circuitFrom("Port Output 1 a\nPin Output a(ztr=off)\n")),
              (Texts{"a:Output:1", "a:Output:1:off"}));
}

TEST(CircuitBuild, LooksForAPinThroughTheUnitsToo) {
    EXPECT_EQ(errorOfLoading("Unit And g\nPin Input g.a\n"), "Error in board.nlx:2: pin/port name duplication 'g.a'.");
}

TEST(CircuitBuild, MakesANamelessPortOfATextThatIsNoPort) {
    EXPECT_EQ(portsOf(*circuitFrom("Port Input 4 a-b\n")), Texts{":Input:4"});
    EXPECT_EQ(portsOf(*circuitFrom("Pin Output a-b a-b a(ztr=off\n")), (Texts{":Output:1", ":Output:1", ":Output:1"}));
    EXPECT_EQ(errorOfLoading("Port Input 4 a-b\nPort Input 4 c.d\n"),
              "Error in board.nlx:2: pin/port name duplication ''.");
}

TEST(CircuitBuild, AllowsAnglesBracketsAndEqualSignsInPortNames) {
    EXPECT_EQ(portsOf(*circuitFrom("Pin Input a[0] b<1> c=d _OE\n")),
              (Texts{"a[0]:Input:1", "b<1>:Input:1", "c=d:Input:1", "_OE:Input:1"}));
}

TEST(CircuitBuild, RefusesADirectionThatIsNone) {
    EXPECT_EQ(errorOfLoading("\nPin Sideways a\n"), "Unsupported pin direction 'Sideways' on line 2.");
    EXPECT_EQ(errorOfLoading("Pin input a\n"), "Unsupported pin direction 'input' on line 1.");
    const auto spec = specFrom("\n\nPort Input 4 a\n");
    spec->portLines[0].direction = "Sideways";
    EXPECT_EQ(errorOf([&] { Circuit("board", nullptr).setSpec(*spec); }),
              "Unsupported port direction 'Sideways' on line 3.");
}

TEST(CircuitBuild, RefusesASizeBelowZeroWhereThePortIsMade) {
    expectRefusals({
        {"Port Input -1 d\n", "Error in board.nlx:1: port size must not be negative, -1 is."},
        {"\nPort Output -12 d\n", "Error in board.nlx:2: port size must not be negative, -12 is."},
        {"Port Input -1 d\nUnit Xyz u\n", "Error at board.nlx:2: Component type not found: 'Xyz'."},
    });
}

TEST(CircuitBuild, TakesSizesOfAnyOtherNumber) {
    EXPECT_EQ(portsOf(*circuitFrom("Port Input +4 a\nPort Input 007 b\nPort Input 300 c\n")),
              (Texts{"a:Input:4", "b:Input:7", "c:Input:300"}));
}

TEST(CircuitBuild, LeavesASizeBeyond32BitsToTheStandardException) {
    for (const std::string size : {"2147483648", "-2147483649", "99999999999999999999"}) {
        EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { circuitFrom("Port Input " + size + " d\n"); }), "stoi");
    }
}

TEST(CircuitBuild, RefusesANetOfAnUnknownPort) {
    expectRefusals({
        {"Pin Input p\n\nNet n p x\n", "Error at board.nlx:3: Port not found: 'x'."},
        {"Unit And g\nNet n g.a g.c\n", "Error at board.nlx:2: Port not found: 'g.c'."},
        {"Unit And g\nNet n g.a.b g.a\n", "Error at board.nlx:2: Port not found: 'g.a.b'."},
        {"Circuit D {\nUnit Inv i\nNet n i.in i.x\n}\n", "Error at board.nlx:3: Port not found: 'i.x'."},
        {"Circuit D {\nPin Input a\n}\nUnit Inv i\nNet n i.in D.a\n", "Error at board.nlx:3: Port not found: 'D.a'."},
    });
}

TEST(CircuitBuild, RefusesNetsOfOneName) {
    EXPECT_EQ(errorOfLoading("Unit Inv a c\nNet n a.in a.out\nNet n c.in c.out\n"),
              "Duplicate net names: 'n', in circuit 'board.nlx'.");
    EXPECT_EQ(errorOfLoading("Circuit D {\nUnit Inv a c\nNet n a.in a.out\nNet n c.in c.out\n}\n"),
              "Duplicate net names: 'n', in circuit 'D'.");
}

TEST(CircuitBuild, MayReachIntoAUnitWithANet) {
    const auto board = circuitFrom("Circuit D {\nUnit Inv i\n}\nUnit D u\nPin Input p\nNet n p u.i.in\n");
    EXPECT_EQ(board->findPort("u.i.in")->getNet(kOutside), board->findNet("n"));
}

TEST(CircuitBuild, MergesTheNetOfAUnitsInsideThatIsReachedFromOutside) {
    const auto board =
        circuitFrom("Circuit D {\nUnit Inv i j\nNet inner i.in j.in\n}\nUnit D u\nPin Input p\nNet n p u.i.in\n");
    const Net* net = board->findNet("n");
    EXPECT_EQ(net, board->findCircuit("u")->getNets()[0]) << "the inner circuit's net took the new name";
    EXPECT_EQ(net->getPorts(),
              (std::vector<Port*>{board->findPort("u.i.in"), board->findPort("u.j.in"), board->findPort("p")}));
    EXPECT_FALSE(board->findCircuit("u")->hasNet("inner"));
}

TEST(CircuitBuild, StopsAtTheFirstRefusalAndLeavesWhatItMade) {
    const Workplace here;
    here.write("board.nlx", "Net n p x\nPin Input p\nUnit And g\nMetaData k 'v'\n");
    Circuit board("board", nullptr);
    EXPECT_EQ(errorOf([&] { CircuitFileReader().load("board.nlx", &board); }),
              "Error at board.nlx:1: Port not found: 'x'.");
    EXPECT_EQ(board.getName(), "board.nlx");
    EXPECT_EQ(namesOf(board.getComponents()), Texts{"g"});
    EXPECT_EQ(portsOf(board), Texts{"p:Input:1"});
    EXPECT_TRUE(board.getNets().empty());
    EXPECT_TRUE(board.getMetaDataKeys().empty());
}

}  // namespace
}  // namespace tarnsim
