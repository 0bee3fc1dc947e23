#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

/// A circuit named `board` with own pins `p` and `q` and inverters `a`, `b`, `c`.
class NetsOfACircuit : public testing::Test {
protected:
    NetsOfACircuit() {
        for (const std::string name : {"p", "q"}) board.createPin(Direction::Input, name);
        for (const std::string name : {"a", "b", "c"}) board.addComponent("Inv", name);
    }

    Port* port(const std::string& path) const { return board.findPort(path); }
    Texts netNames() const { return namesOf(board.getNets()); }

    Circuit board{"board", nullptr};
};

TEST_F(NetsOfACircuit, MeetOwnPortsInsideAndPortsOfUnitsOutside) {
    Net* net = board.createNet("n", {port("p"), port("a.in")});
    EXPECT_EQ(net->getName(), "n");
    EXPECT_EQ(port("p")->getNet(kInside), net);
    EXPECT_EQ(port("p")->getNet(kOutside), nullptr);
    EXPECT_EQ(port("a.in")->getNet(kOutside), net);
    EXPECT_EQ(port("a.in")->getNet(kInside), nullptr);
    EXPECT_EQ(net->getPorts(), (std::vector<Port*>{port("p"), port("a.in")}));
    EXPECT_EQ(board.getNets(), std::vector<Net*>{net});
}

TEST_F(NetsOfACircuit, TakeTheirNameFromTheFirstPort) {
    EXPECT_EQ(board.createNet({port("q"), port("a.in")})->getName(), "q");
    EXPECT_EQ(board.createNet({port("b.in")})->getName(), "in");
    EXPECT_EQ(board.createNet({}), nullptr);
    EXPECT_EQ(netNames(), (Texts{"q", "in"}));
}

TEST_F(NetsOfACircuit, MayHaveNoPorts) {
    EXPECT_TRUE(board.createNet("n", {})->getPorts().empty());
    EXPECT_EQ(netNames(), Texts{"n"});
}

TEST_F(NetsOfACircuit, OfOneNameAreRefused) {
    board.createNet("n", {port("a.in")});
    EXPECT_EQ(errorOf([&] { board.createNet("n", {port("b.in")}); }), "Duplicate net names: 'n', in circuit 'board'.");
    EXPECT_EQ(port("b.in")->getNet(kOutside), nullptr);
}

TEST_F(NetsOfACircuit, OverAPortOfAListedNetAreRefusedAfterTheRename) {
    board.createNet("n", {port("a.in")});
    EXPECT_EQ(errorOf([&] {
                  board.createNet("m", {port("a.in"), port("b.in")});
              }),
              "Error: There is already a net called 'm' in circuit 'Circuit'/'board'. ");
    EXPECT_EQ(netNames(), Texts{"m"});
}

TEST_F(NetsOfACircuit, MergeWithNetsThatAreNotListed) {
    Net first("first", 1);
    Net second("second", 1);
    first.addPort(port("a.in"), kOutside);
    second.addPort(port("p"), kInside);
    second.addPort(port("b.in"), kOutside);
    Net* net = board.createNet("n", {port("b.in"), port("c.in"), port("a.in")});
    EXPECT_EQ(net, &first) << "the one that was created first";
    EXPECT_EQ(net->getName(), "n");
    EXPECT_TRUE(second.getPorts().empty());
    EXPECT_EQ(net->getPorts(), (std::vector<Port*>{port("a.in"), port("p"), port("b.in"), port("c.in")}));
    EXPECT_EQ(port("p")->getNet(kInside), &first);
    EXPECT_EQ(port("b.in")->getNet(kOutside), &first);
    EXPECT_EQ(board.getNets(), std::vector<Net*>{net});
    board.deleteNet(net);
}

TEST_F(NetsOfACircuit, KeepTheSidesOfAPortApart) {
    Net outside("outside", 1);
    outside.addPort(port("p"), kOutside);
    Net* net = board.createNet("n", {port("p")});
    EXPECT_NE(net, &outside);
    EXPECT_EQ(port("p")->getNet(kInside), net);
    EXPECT_EQ(port("p")->getNet(kOutside), &outside);
}

TEST_F(NetsOfACircuit, OfPortsOfDifferentSizesAreRefused) {
    board.createPort(4, Direction::Input, "wide");
    EXPECT_EQ(errorOf([&] {
                  board.createNet("n", {port("p"), port("wide")});
              }),
              "The port 'wide' has size 4, but is added to net 'n' with size 1.");
}

TEST_F(NetsOfACircuit, CanBeListedByAnotherOwner) {
    Net net("n", 1);
    board.addNet(&net, "");
    EXPECT_EQ(board.findNet("n"), &net);
    EXPECT_EQ(errorOf([&] { board.addNet(&net, ""); }),
              "Error: There is already a net called 'n' in circuit 'Circuit'/'board'. ");
    Net other("other", 1);
    EXPECT_EQ(errorOf([&] { board.addNet(&other, "n"); }),
              "Error: There is already a net called 'n' in circuit 'Circuit'/'board'. ");
    board.addNet(&net, "free name");
    EXPECT_EQ(netNames(), Texts{"n"}) << "none twice, and none renamed";
    board.deleteNet(&net);
}

TEST_F(NetsOfACircuit, ThatAreNullAreRefusedByName) {
    Net net("n", 1);
    EXPECT_EQ(errorOf([&] { board.addNet(nullptr, "n"); }),
              "Internal error: net is NULL in ..\\..\\Core\\Circuit\\Circuit.cpp:339");
    EXPECT_EQ(errorOf([&] { board.renameNet(nullptr, "n"); }),
              "Internal error: net is NULL in ..\\..\\Core\\Circuit\\Circuit.cpp:945");
    EXPECT_EQ(errorOf([&] { board.replaceNet(nullptr, &net); }),
              "Internal error: old_net is NULL in ..\\..\\Core\\Circuit\\Circuit.cpp:963");
    EXPECT_EQ(errorOf([&] { board.replaceNet(&net, nullptr); }),
              "Internal error: new_net is NULL in ..\\..\\Core\\Circuit\\Circuit.cpp:964");
}

TEST_F(NetsOfACircuit, CanBeReplacedAtTheEndOfTheListUnderTheOldName) {
    Net* old = board.createNet("n", {port("a.in")});
    board.createNet("m", {port("b.in")});
    Net fresh("fresh", 1);
    board.replaceNet(old, &fresh);
    EXPECT_EQ(netNames(), (Texts{"m", "n"}));
    EXPECT_EQ(board.findNet("n"), &fresh);
    EXPECT_EQ(port("a.in")->getNet(kOutside), old) << "ports stay where they are";
    board.deleteNet(&fresh);
}

TEST_F(NetsOfACircuit, CanReplaceOneThatIsNotListed) {
    const Net stranger("s", 1);
    Net fresh("fresh", 1);
    board.replaceNet(const_cast<Net*>(&stranger), &fresh);
    EXPECT_EQ(netNames(), Texts{"s"});
    board.deleteNet(&fresh);
}

TEST_F(NetsOfACircuit, CanBeRenamed) {
    Net* net = board.createNet("n", {port("a.in")});
    board.renameNet(net, "m");
    EXPECT_EQ(board.findNet("m"), net);
    EXPECT_EQ(board.findNet("n"), nullptr);
}

TEST_F(NetsOfACircuit, LetGoOfTheirPortsWhenDeleted) {
    Net* net = board.createNet("n", {port("p"), port("a.in")});
    board.deleteNet(net);
    EXPECT_TRUE(board.getNets().empty());
    EXPECT_TRUE(net->getPorts().empty()) << "the object is still there";
    EXPECT_EQ(port("p")->getNet(kInside), nullptr);
    EXPECT_EQ(port("a.in")->getNet(kOutside), nullptr);
}

TEST_F(NetsOfACircuit, ArePrunedWithFewerPortsThanDemanded) {
    board.createNet("one", {port("a.in")});
    board.createNet("two", {port("p"), port("b.in")});
    board.createNet("none", {});
    board.pruneNets(2);
    EXPECT_EQ(netNames(), Texts{"two"});
    EXPECT_EQ(port("a.in")->getNet(kOutside), nullptr);
    board.pruneNets(3);
    EXPECT_TRUE(board.getNets().empty());
    EXPECT_EQ(port("p")->getNet(kInside), nullptr);
}

TEST(NetsOfANestedCircuit, ArePrunedWithTheOuterOnes) {
    std::unique_ptr<Circuit> board;
    const std::string warning = errorOutputOf(
        [&] { board = circuitFrom("Circuit D {\nPin Input p\nUnit Inv i\nNet n p\nNet m i.in i.out\n}\nUnit D u\n"); });
    EXPECT_EQ(warning, "*** WARNING board.nlx:4: Only one port in Net. May indicate missing net name.\n");
    board->pruneNets(2);
    EXPECT_EQ(namesOf(board->findCircuit("u")->getNets()), Texts{"m"});
    EXPECT_EQ(board->getDeclarations()[0]->getNets().size(), 2u) << "declarations are no units";
}

TEST_F(NetsOfACircuit, GoWithTheLastPortOfARemovedUnit) {
    board.createNet("n", {port("a.in")});
    board.createNet("m", {port("a.out"), port("b.in")});
    Component* a = board.findComponent("a");
    board.removeComponent(a);
    EXPECT_EQ(netNames(), Texts{"m"});
    EXPECT_EQ(board.findNet("m")->getPorts(), std::vector<Port*>{port("b.in")});
    EXPECT_EQ(namesOf(board.getComponents()), (Texts{"b", "c"}));
    EXPECT_EQ(a->getName(), "a") << "the unit itself lives on";
    EXPECT_EQ(a->getParent(), &board);
}

// The list loses every empty net, not only those that the circuit owns.
TEST_F(NetsOfACircuit, OfAnotherOwnerStayListedWhenAUnitGoes) {
    Net foreign("foreign", 1);
    board.addNet(&foreign, "");
    board.removeComponent(board.findComponent("a"));
    EXPECT_EQ(netNames(), Texts{"foreign"});
    board.deleteNet(&foreign);
}

TEST(NetsOfANestedCircuit, ANetTakenOverFromAUnitLeavesTheListWhenItDiesWithThatUnit) {
    Circuit root("root", nullptr);
    Circuit box("box", nullptr);
    Component* gate = box.addComponent("Inv", "g");
    box.createNet("inner", {gate->findPort("in")});
    root.addChild(&box, nullptr);
    root.createNet("outer", {gate->findPort("in")});
    EXPECT_EQ(root.getNets(), box.getNets());
    root.removeComponent(&box);
    EXPECT_TRUE(root.getNets().empty());
    root.reset();
}

}  // namespace
}  // namespace tarnsim
