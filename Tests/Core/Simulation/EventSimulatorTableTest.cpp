#include "Core/Circuit/Circuit.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Names = std::vector<std::string>;

/// A circuit without units, whose own ports are written by hand: `a` is high from 20 on, the bus always the same.
class ResultTable : public testing::Test {
protected:
    ResultTable() {
        a.set(Value("L"), 0);
        a.set(Value("H"), 20);
        q.set(Value("H"), 0);
        q.set(Value("L"), 20);
        bus.set(Value("HLZUXHLH"), 0);
        clock.set(Value("H"), 0);
        root.createNet("n1", {&n});
        n.set(Value("L"), 5);
    }

    std::string printedAt(const Names& inputs, const Names& outputs, const Names& nets,
                          const std::vector<Time>& times) {
        return outputOf([&] { simulator.printAt(inputs, outputs, nets, times); });
    }
    std::string printedEvery(const Names& inputs, const Names& outputs, const Names& nets, Time step) {
        return outputOf([&] { simulator.printEvery(inputs, outputs, nets, step); });
    }

    Circuit root{"root", nullptr};
    EventSimulator simulator{&root};
    Pin& a = *root.createPin(Direction::Input, "a");
    Pin& q = *root.createPin(Direction::Output, "q");
    Pin& n = *root.createPin(Direction::Input, "n");
    Port& bus = *root.createPort(8, Direction::Input, "b");
    Pin& clock = *root.createPin(Direction::Input, "clock");
};

TEST_F(ResultTable, HasInputsAnArrowOutputsAndNets) {
    EXPECT_EQ(printedAt({"a"}, {"q"}, {"n1"}, {20}),
              "Time    a  => q #n1 \n"
              "    20: H     L   L \n");
}

TEST_F(ResultTable, HasNoArrowWithoutOutputs) {
    EXPECT_EQ(printedAt({"a", "clock"}, {}, {"n1"}, {0}),
              "Time    a clock #n1 \n"
              "     0: L     H   U \n");
}

TEST_F(ResultTable, BeginsWithTheArrowWithoutInputs) {
    EXPECT_EQ(printedAt({}, {"q", "a"}, {}, {0}),
              "Time     => q a \n"
              "     0:     H L \n");
}

TEST_F(ResultTable, ShowsNetsAlone) {
    EXPECT_EQ(printedAt({}, {}, {"n1", "n1"}, {5}),
              "Time    #n1 #n1 \n"
              "     5:   L   L \n");
}

TEST_F(ResultTable, ShowsNothingButTimesWithoutNames) {
    EXPECT_EQ(printedAt({}, {}, {}, {7}),
              "Time    \n"
              "     7: \n");
}

TEST_F(ResultTable, AColumnIsAsWideAsThePortOrItsNameWhicheverIsMore) {
    EXPECT_EQ(printedAt({"b", "clock"}, {"b"}, {}, {0}),
              "Time           b clock  =>        b \n"
              "     0: HLZUXHLH     H     HLZUXHLH \n");
}

TEST_F(ResultTable, ANetColumnIsAsWideAsTheNetOrItsNameWhicheverIsMore) {
    Port& wide = *root.createPort(4, Direction::Input, "w");
    root.createNet("m", {&wide});
    wide.set(Value("LHLH"), 0);
    EXPECT_EQ(printedAt({"a"}, {}, {"m", "n1"}, {5}),
              "Time    a #   m #n1 \n"
              "     5: L  LHLH   L \n");
}

TEST_F(ResultTable, PortsAndNetsOfUnitsAreNamedByTheirPathsAsWritten) {
    Circuit inner("inner", "u1", nullptr);
    Pin& in = *inner.createPin(Direction::Input, "in");
    inner.createNet("wire", {&in});
    in.set(Value("H"), 0);
    root.copyDeclarationIn(inner);
    root.addChild(&inner, nullptr);
    EXPECT_EQ(printedAt({"u1.in"}, {}, {"u1.wire"}, {0}),
              "Time    u1.in #u1.wire \n"
              "     0:     H        H \n");
    root.removeComponent(&inner);
}

TEST_F(ResultTable, StopsComeInTheGivenOrderAndMayBeNegativeOrHuge) {
    EXPECT_EQ(printedAt({"a"}, {}, {}, {1000000, 20, 20, 19, -1, -100000, 123456}),
              "Time    a \n"
              " 1000000: H \n"
              "    20: H \n"
              "    20: H \n"
              "    19: L \n"
              "    -1: U \n"
              "-100000: U \n"
              " 123456: H \n");
}

TEST_F(ResultTable, WithoutStopsThereIsNoHeaderEither) {
    EXPECT_EQ(printedAt({"a"}, {"q"}, {"n1"}, {}), "");
}

TEST_F(ResultTable, EveryStepGoesUpToTheEndOfTheRun) {
    simulator.run(30);
    EXPECT_EQ(printedEvery({"a"}, {"q"}, {}, 10),
              "Time    a  => q \n"
              "     0: L     H \n"
              "    10: L     H \n"
              "    20: H     L \n"
              "    30: H     L \n");
}

TEST_F(ResultTable, EveryStepStopsShortOfAnEndBetweenTwoSteps) {
    simulator.run(29);
    EXPECT_EQ(printedEvery({"a"}, {}, {}, 10),
              "Time    a \n"
              "     0: L \n"
              "    10: L \n"
              "    20: H \n");
}

TEST_F(ResultTable, EveryStepGivesNothingForANegativeEnd) {
    simulator.run(-1);
    EXPECT_EQ(printedEvery({"a"}, {}, {}, 10), "");
}

TEST_F(ResultTable, EveryStepGivesOneRowForAnEndAtZero) {
    simulator.run(0);
    EXPECT_EQ(printedEvery({"a"}, {}, {}, 10),
              "Time    a \n"
              "     0: L \n");
}

/// The table of `a` with `rows` stops from 0 on, a header above every fiftieth.
std::string tableOf(int rows) {
    std::string table;
    for (int row = 0; row < rows; ++row) {
        if (row % 50 == 0) table += "Time    a \n";
        table += (row < 10    ? "     "
                  : row < 100 ? "    "
                              : "   ") +
                 std::to_string(row) + (row < 20 ? ": L \n" : ": H \n");
    }
    return table;
}

TEST_F(ResultTable, TheHeaderStandsAboveRows1And51And101) {
    simulator.run(119);
    const std::string table = printedEvery({"a"}, {}, {}, 1);
    EXPECT_EQ(table, tableOf(120));
    std::size_t headers = 0;
    for (auto at = table.find("Time"); at != std::string::npos; at = table.find("Time", at + 1)) ++headers;
    EXPECT_EQ(headers, 3U);
}

TEST_F(ResultTable, FiftyRowsHaveOneHeader) {
    simulator.run(49);
    EXPECT_EQ(printedEvery({"a"}, {}, {}, 1), tableOf(50));
}

TEST_F(ResultTable, EachTableCountsItsRowsAnew) {
    simulator.run(59);
    EXPECT_EQ(printedEvery({"a"}, {}, {}, 1), tableOf(60));
    EXPECT_EQ(printedAt({"a"}, {}, {}, {0}),
              "Time    a \n"
              "     0: L \n");
}

TEST_F(ResultTable, ReadingChangesNoHistory) {
    const std::size_t records = a.recordCount();
    printedAt({"a"}, {"q"}, {"n1"}, {0, 5, 20});
    EXPECT_EQ(a.recordCount(), records);
}

TEST_F(ResultTable, AnInputOfAUnitThatFloatsReadsUndefined) {
    Circuit inner("inner", "u1", nullptr);
    Pin& in = *inner.createPin(Direction::Input, "in");
    Pin& out = *inner.createPin(Direction::Output, "out");
    root.copyDeclarationIn(inner);
    root.addChild(&inner, nullptr);
    root.createNet("x", {&in, &out});
    out.set(Value("Z"), 0);
    EXPECT_EQ(printedAt({"u1.in"}, {}, {"x"}, {0}),
              "Time    u1.in #x \n"
              "     0:     U  Z \n");
    root.removeComponent(&inner);
}

TEST_F(ResultTable, NeedsAStepThatLeadsOn) {
    EXPECT_EQ(errorOf([&] { simulator.printEvery({"a"}, {}, {}, 0); }),
              "Error: a table needs a time step above 0, not 0.");
    EXPECT_EQ(errorOf([&] { simulator.printEvery({"a"}, {}, {}, -5); }),
              "Error: a table needs a time step above 0, not -5.");
}

TEST_F(ResultTable, AMissingPortIsAnErrorAndNothingIsPrinted) {
    std::string message;
    const std::string printed =
        outputOf([&] { message = errorOf([&] { simulator.printAt({"a"}, {"nowhere.q"}, {"missing"}, {0}); }); });
    EXPECT_EQ(message, "Error: can't find port 'nowhere.q'.");
    EXPECT_EQ(printed, "");
    EXPECT_EQ(errorOf([&] { simulator.printEvery({"n1"}, {}, {}, 10); }), "Error: can't find port 'n1'.");
}

TEST_F(ResultTable, AMissingPortIsAnErrorWithoutAnyStopToo) {
    EXPECT_EQ(errorOf([&] { simulator.printAt({"x"}, {}, {}, {}); }), "Error: can't find port 'x'.");
}

TEST_F(ResultTable, AMissingNetIsAnErrorThatListsTheNetsThereAre) {
    std::string message;
    const std::string printed =
        outputOf([&] { message = errorOf([&] { simulator.printEvery({"a"}, {"q"}, {"missing"}, 10); }); });
    EXPECT_EQ(message,
              "Error: cannot find net 'missing'.\n"
              "Available nets:\n"
              "  - 'n1'\n");
    EXPECT_EQ(printed, "");
}

TEST_F(ResultTable, ANetInAMissingUnitIsAnErrorThatNamesTheUnit) {
    EXPECT_EQ(errorOf([&] { simulator.printAt({}, {}, {"u7.n1"}, {0}); }),
              "Error: cannot find net 'n1'.\n"
              "Can't find a circuit named 'u7'.");
}

}  // namespace
}  // namespace tarnsim
