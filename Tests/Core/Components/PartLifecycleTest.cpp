#include <algorithm>
#include <stdexcept>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// What a unit's text needs beside its name.
std::string neededParameters(std::string_view type) {
    if (type == "Join") return "(a=3:0,b=7:5,out=8)";
    if (type == "Split") return "(a=3:0,b=7:2,in=8)";
    if (type == "Splice") return "(a=3:0,b=7:2,size=8)";
    return "";
}

std::unique_ptr<Component> makePart(const ComponentType& row) {
    ParaMap parameters = row.defaults();
    parameters.parse(neededParameters(row.typeName()));
    return row.create("u", parameters);
}

/// A net of its own on the outside of every port.
std::vector<std::unique_ptr<Net>> netsAround(const Component& part) {
    std::vector<std::unique_ptr<Net>> nets;
    for (Port* port : part.getPorts()) {
        nets.push_back(std::make_unique<Net>(port->getName(), port->width()));
        nets.back()->addPort(port, kOutside);
    }
    return nets;
}

void connectAll(Circuit& board, const Component& part) {
    for (Port* port : std::vector<Port*>(part.getPorts())) board.createNet("n_" + port->getName(), {port});
}

/// Ports of a part may be shared with others inside it, so a copy of the list is what a test can go through.
void expectOnNoNetOutside(const Component& part) {
    for (const Port* port : part.getPorts()) EXPECT_EQ(port->getNet(kOutside), nullptr) << port->getName();
}

/// Each test is for all parts of the library.
class PartLifecycle : public testing::TestWithParam<const ComponentType*> {
protected:
    const ComponentType& row() const { return *GetParam(); }
    std::string type() const { return std::string(row().typeName()); }
    std::string unitText(const std::string& name) const { return name + neededParameters(type()); }
};

TEST_P(PartLifecycle, APartThatDiesLeavesItsNets) {
    auto part = makePart(row());
    const auto nets = netsAround(*part);
    part.reset();
    for (const auto& net : nets) EXPECT_TRUE(net->getPorts().empty()) << net->getName();
}

TEST_P(PartLifecycle, NetsThatDieLeaveThePart) {
    const auto part = makePart(row());
    netsAround(*part);  // they die at once
    expectOnNoNetOutside(*part);
}

TEST_P(PartLifecycle, EveryPortCanBeRemoved) {
    const auto part = makePart(row());
    const auto nets = netsAround(*part);
    for (Port* port : std::vector<Port*>(part->getPorts())) part->removePort(port);
    EXPECT_TRUE(part->getPorts().empty());
    for (const auto& net : nets) EXPECT_TRUE(net->getPorts().empty()) << net->getName();
}

// A part that refuses its parameters when its ports are there already: some parts have ports of others among them,
// which die first.
TEST_P(PartLifecycle, APartThatIsRefusedInTheMakingTakesItsPortsAlong) {
    const std::vector<std::string> readDelaysAtOnce = {"74LS00",  "74LS04",  "74LS08", "74LS32",
                                                       "74LS125", "74LS139", "74LS154"};
    ParaMap parameters = row().defaults();
    parameters.parse(neededParameters(row().typeName()));
    parameters["delay"] = "4294967296";
    std::string refusal;
    const std::string error =
        errorOf([&] { refusal = standardExceptionOf<std::out_of_range>([&] { row().create("u", parameters); }); });
    if (std::ranges::find(readDelaysAtOnce, type()) == readDelaysAtOnce.end()) return;
    EXPECT_EQ(error, "(no Error)");
    EXPECT_EQ(refusal, "stoul");
}

TEST_P(PartLifecycle, AUnitDiesWithItsCircuit) {
    Circuit board("board", nullptr);
    connectAll(board, *board.addComponent(type(), unitText("u")));
    EXPECT_EQ(board.getNets().size(), board.getComponents()[0]->getPorts().size());
}

TEST_P(PartLifecycle, AUnitThatIsRemovedLeavesItsNetsAndCanComeBack) {
    Circuit board("board", nullptr);
    Component* unit = board.addComponent(type(), unitText("u"));
    for (int i = 0; i < 2; ++i) {
        connectAll(board, *unit);
        board.removeComponent(unit);
        EXPECT_EQ(board.countComponents(), 0U);
        expectOnNoNetOutside(*unit);
        for (Net* net : std::vector<Net*>(board.getNets())) board.deleteNet(net);
        board.moveChild(unit);
        EXPECT_EQ(unit->getParent(), &board);
    }
}

TEST_P(PartLifecycle, APartOwnedByOthersMayDieBeforeTheCircuitThatItWasRemovedFrom) {
    Circuit board("board", nullptr);
    auto part = makePart(row());
    board.addChild(part.get(), nullptr);
    connectAll(board, *part);
    board.removeComponent(part.get());
    part.reset();
    EXPECT_EQ(board.countComponents(), 0U);
}

TEST_P(PartLifecycle, APartOwnedByOthersMayDieAfterItsCircuit) {
    const auto part = makePart(row());
    {
        Circuit board("board", nullptr);
        board.addChild(part.get(), nullptr);
        connectAll(board, *part);
    }
    expectOnNoNetOutside(*part);
}

TEST_P(PartLifecycle, AUnitThatMovesOutlivesItsFormerCircuit) {
    Circuit there("there", nullptr);
    Component* unit = nullptr;
    {
        Circuit here("here", nullptr);
        unit = here.addComponent(type(), unitText("u"));
        connectAll(here, *unit);
        there.moveChild(unit);
    }
    expectOnNoNetOutside(*unit);
    EXPECT_EQ(unit->getParent(), &there);
    connectAll(there, *unit);
}

TEST_P(PartLifecycle, TwoUnitsOfACircuitDieInAnyOrder) {
    for (const bool firstGoesFirst : {true, false}) {
        Circuit board("board", nullptr);
        Component* u = board.addComponent(type(), unitText("u"));
        Component* v = board.addComponent(type(), unitText("v"));
        for (std::size_t i = 0; i < u->getPorts().size(); ++i) {
            board.createNet("n" + std::to_string(i), {u->getPorts()[i], v->getPorts()[i]});
        }
        board.removeComponent(firstGoesFirst ? u : v);
        const Component* other = firstGoesFirst ? v : u;
        for (const Port* port : other->getPorts()) {
            ASSERT_NE(port->getNet(kOutside), nullptr);
            EXPECT_EQ(port->getNet(kOutside)->getPorts().size(), 1U);
        }
    }
}

TEST_P(PartLifecycle, ACopyOfItsCircuitRunsWithoutTheSource) {
    auto source = std::make_unique<Circuit>("board", nullptr);
    connectAll(*source, *source->addComponent(type(), unitText("u")));
    Circuit copy(*source);
    const std::string instance = source->getComponents()[0]->getInstanceText();
    source.reset();
    ASSERT_EQ(copy.countComponents(), 1U);
    Component* unit = copy.getComponents()[0];
    EXPECT_EQ(unit->getType(), type());
    EXPECT_EQ(unit->getInstanceText(), instance);
    EXPECT_EQ(copy.getNets().size(), unit->getPorts().size());

    EventSimulator simulator(&copy);
    outputOf([&] {
        for (int run = 0; run < 2; ++run) {
            simulator.prepare(400);
            for (Port* port : unit->getPorts()) {
                if (port->direction() != Direction::Input) continue;
                port->set(Value('L', port->width()), 0);
                port->set(Value('H', port->width()), 200);
            }
        }
        simulator.run(400);
    });
}

std::vector<const ComponentType*> allRows() {
    std::vector<const ComponentType*> rows;
    for (const ComponentType& row : componentTypes()) rows.push_back(&row);
    return rows;
}

INSTANTIATE_TEST_SUITE_P(AllParts, PartLifecycle, testing::ValuesIn(allRows()),
                         [](const auto& each) { return std::string(each.param->typeName()); });

}  // namespace
}  // namespace tarnsim
