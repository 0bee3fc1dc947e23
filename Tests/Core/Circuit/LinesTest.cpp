#include "Core/Circuit/Lines.h"

#include <type_traits>

#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

constexpr int kLine = 7;
constexpr const char* kFile = "board.nlx";

template <class Record>
Record read(const std::string& statement) {
    return Record(splitWords(statement), kLine, kFile);
}

template <class Record>
std::string errorOfStatement(const std::string& statement) {
    return errorOf([&] { read<Record>(statement); });
}

/// What a record of every kind has.
void expectPlace(const Line& line) {
    EXPECT_EQ(line.lineNumber, kLine);
    EXPECT_EQ(line.fileName, kFile);
    EXPECT_TRUE(line.hasNoComment());
}

struct Refusal {
    std::string statement;
    std::string message;
};

template <class Record>
void expectRefusals(const std::vector<Refusal>& refusals) {
    for (const Refusal& each : refusals) EXPECT_EQ(errorOfStatement<Record>(each.statement), each.message);
}

constexpr const char* kNetShape = "Error in board.nlx:7: Net needs a name and at least one port: Net <name> <ports...>";
constexpr const char* kPinShape =
    "Error on line 7, in file board.nlx: Pin takes at least 2 arguments: Pin <direction> <name>";
constexpr const char* kPortShape =
    "Error on line 7, in file board.nlx: Port takes at least 3 arguments: Port <direction> <size> <name>";
constexpr const char* kUnitShape =
    "Error on line 7, in file board.nlx: Unit takes at least 2 arguments: Unit <type> <name>";

TEST(Line, IsAValueWhoseCopyHasACommentOfItsOwn) {
    UnitLine line = read<UnitLine>("Unit And a");
    line.setCommentText("first\n");
    UnitLine copy = line;
    copy.setCommentText("second\n");
    EXPECT_EQ(line.getCommentText(), "first\n");
    line = copy;
    EXPECT_EQ(line.getCommentText(), "second\n");
    EXPECT_TRUE(std::has_virtual_destructor_v<Line>);
}

TEST(MetaDataLine, StoresKeyAndValueUnchanged) {
    const MetaDataLine line(" key ", "a \"value\" ", kLine, kFile);
    EXPECT_EQ(line.key, " key ");
    EXPECT_EQ(line.value, "a \"value\" ");
    expectPlace(line);
}

TEST(NetLine, HoldsItsPortsInOrderAsWritten) {
    const NetLine line = read<NetLine>("Net n u1.b a ./x.y u1.a");
    EXPECT_EQ(line.name, "n");
    EXPECT_EQ(line.ports, (Texts{"u1.b", "a", "./x.y", "u1.a"}));
    expectPlace(line);
}

TEST(NetLine, WithoutANameOrWithoutAPortIsRefusedWithOneMessage) {
    expectRefusals<NetLine>({{"Net", kNetShape}, {"Net a", kNetShape}});
}

TEST(NetLine, WithOnePortWarnsOnTheErrorStreamAndIsMade) {
    Texts ports;
    const Streams streams = streamsOf([&] { ports = read<NetLine>("Net a x.p").ports; });
    EXPECT_EQ(streams.error, "*** WARNING board.nlx:7: Only one port in Net. May indicate missing net name.\n");
    EXPECT_EQ(streams.output, "");
    EXPECT_EQ(ports, Texts{"x.p"});
}

TEST(NetLine, WithTwoPortsDoesNotWarn) {
    const Streams streams = streamsOf([] { read<NetLine>("Net a x.p y.p"); });
    EXPECT_EQ(streams.error, "");
    EXPECT_EQ(streams.output, "");
}

TEST(NetLine, RefusesTheFirstPortThatComesAgain) {
    expectRefusals<NetLine>({{"Net a x.p x.p", "Error in board.nlx:7: Repeated port: 'x.p'."},
                             {"Net a p q r q p", "Error in board.nlx:7: Repeated port: 'q'."}});
}

TEST(NetLine, TakesItsOwnNameForAPortOfThatName) {
    EXPECT_EQ(read<NetLine>("Net a a b").ports, (Texts{"a", "b"}));
}

struct SharedPortCase {
    std::string one;
    std::string other;
    std::string shared;
};

class SharedPort : public testing::TestWithParam<SharedPortCase> {};

TEST_P(SharedPort, IsTheFirstOfTheOneNetThatTheOtherNamesToo) {
    const auto& [one, other, shared] = GetParam();
    EXPECT_EQ(read<NetLine>(one).sharedPort(read<NetLine>(other)), shared);
}

INSTANTIATE_TEST_SUITE_P(NetLine, SharedPort,
                         testing::Values(SharedPortCase{"Net a p q", "Net b r s", ""},
                                         SharedPortCase{"Net a p q", "Net b r q", "q"},
                                         SharedPortCase{"Net a p q r", "Net b r q p", "p"},
                                         SharedPortCase{"Net a x.y q", "Net b ./x.y r", ""},
                                         SharedPortCase{"Net a p q", "Net p a b", ""}));

TEST(PinLine, HoldsDirectionAndNames) {
    const PinLine line = read<PinLine>("Pin Output q(ztr=off) b a");
    EXPECT_EQ(line.direction, "Output");
    EXPECT_EQ(line.names, (Texts{"q(ztr=off)", "b", "a"}));
    expectPlace(line);
}

TEST(PinLine, TakesAnyWordForADirection) {
    const PinLine line = read<PinLine>("Pin Sideways a");
    EXPECT_EQ(line.direction, "Sideways");
    EXPECT_EQ(line.names, Texts{"a"});
}

TEST(PinLine, NeedsADirectionAndAName) {
    expectRefusals<PinLine>({{"Pin", kPinShape}, {"Pin Input", kPinShape}});
}

TEST(PortLine, HoldsDirectionSizeAndNames) {
    const PortLine line = read<PortLine>("Port Inout 8 d e");
    EXPECT_EQ(line.direction, "Inout");
    EXPECT_EQ(line.size, "8");
    EXPECT_EQ(line.names, (Texts{"d", "e"}));
    expectPlace(line);
}

TEST(PortLine, KeepsEverySizeThatIsAWholeNumberAsWritten) {
    for (const std::string size : {"-1", "+4", "0", "007", "300", "99999999999999999999999"}) {
        EXPECT_EQ(read<PortLine>("Port Input " + size + " d").size, size);
    }
}

TEST(PortLine, NeedsDirectionSizeAndName) {
    expectRefusals<PortLine>({{"Port", kPortShape}, {"Port Input", kPortShape}, {"Port Input 8", kPortShape}});
}

TEST(PortLine, RefusesASizeThatIsNoWholeNumberBeforeItLooksAtTheDirection) {
    const auto refusal = [](const std::string& size) {
        return "Error on line 7, in file board.nlx: port size must be a number. '" + size + "' is not.";
    };
    expectRefusals<PortLine>({{"Port Input 8x d", refusal("8x")},
                              {"Port Sideways 8x d", refusal("8x")},
                              {"Port Input 0x8 d", refusal("0x8")},
                              {"Port Input 1.5 d", refusal("1.5")},
                              {"Port Input d 8", refusal("d")},
                              {"Port Input - d", refusal("-")},
                              {"Port 8 Input d", refusal("Input")}});
    // A message ends at a NUL, as C texts do.
    const std::string nul(1, '\0');
    expectRefusals<PortLine>({{"Port Input " + nul + "8 d", refusal("")}, {"Port Input " + nul + " d", refusal("")}});
}

TEST(PortLine, RefusesAnyDirectionButThreeAndNamesTwo) {
    const auto refusal = [](const std::string& direction) {
        return "Error on line 7, in file board.nlx: port direction must Input or Output, '" + direction +
               "' is neither.";
    };
    expectRefusals<PortLine>({{"Port Sideways 8 d", refusal("Sideways")}, {"Port input 8 d", refusal("input")}});
}

TEST(UnitLine, NeedsATypeAndAName) {
    expectRefusals<UnitLine>({{"Unit", kUnitShape}, {"Unit And", kUnitShape}});
}

TEST(UnitLine, HoldsTypeAndNames) {
    const UnitLine line = read<UnitLine>("Unit And b a(delay=5)");
    EXPECT_EQ(line.type, "And");
    EXPECT_EQ(line.names, (Texts{"b", "a(delay=5)"}));
    expectPlace(line);
}

struct ArrayCase {
    std::string field;
    Texts names;
};

class UnitLineName : public testing::TestWithParam<ArrayCase> {};

TEST_P(UnitLineName, IsWrittenOutIfItIsAnArrayAndElseStandsAsItIs) {
    EXPECT_EQ(read<UnitLine>("Unit And " + GetParam().field).names, GetParam().names);
}

INSTANTIATE_TEST_SUITE_P(UnitLine, UnitLineName,
                         testing::Values(ArrayCase{"g[3]", {"g[0]", "g[1]", "g[2]"}},  //
                                         ArrayCase{"g[0]", {}},                        //
                                         ArrayCase{"g[1]", {"g[0]"}},                  //
                                         ArrayCase{"g[02]", {"g[0]", "g[1]"}},         //
                                         ArrayCase{"_9[1]", {"_9[0]"}},                //
                                         ArrayCase{"u(a,b)[2]", {"u(a,b)[0]", "u(a,b)[1]"}},
                                         ArrayCase{"a g[2] b", {"a", "g[0]", "g[1]", "b"}},
                                         ArrayCase{"g[2]h", {"g[2]h"}},      //
                                         ArrayCase{"g[]", {"g[]"}},          //
                                         ArrayCase{"g[-1]", {"g[-1]"}},      //
                                         ArrayCase{"g[2", {"g[2"}},          //
                                         ArrayCase{"[2]", {"[2]"}},          //
                                         ArrayCase{"g[2][3]", {"g[2][3]"}},  //
                                         ArrayCase{"a-b[2]", {"a-b[2]"}},    //
                                         ArrayCase{"g[a]", {"g[a]"}},        //
                                         ArrayCase{"u(delay=5)[3]", {"u(delay=5)[3]"}}));

TEST(UnitLine, NumbersAnArrayOfMoreThanTenInDecimal) {
    const UnitLine line = read<UnitLine>("Unit And g[12]");
    ASSERT_EQ(line.names.size(), 12u);
    EXPECT_EQ(line.names[9], "g[9]");
    EXPECT_EQ(line.names[11], "g[11]");
}

TEST(UnitLine, MakesAMillionUnitsAndAtMost16) {
    EXPECT_EQ(read<UnitLine>("Unit And g[500000] h[500000]").names.size(), 1'000'000U);
    for (const std::string names : {"g[16000001]", "g[2147483647]", "g[2] h[15999999]", "g h[16000000]"}) {
        EXPECT_TRUE(
            errorOf([&] { read<UnitLine>("Unit And " + names); }).ends_with(": Unit takes at most 16000000 units."))
            << names;
    }
}

TEST(UnitLine, LeavesAnArrayCountBeyond32BitsToTheStandardException) {
    for (const std::string count : {"2147483648", "99999999999999999999999"}) {
        EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { read<UnitLine>("Unit And g[" + count + "]"); }), "stoi");
    }
}

}  // namespace
}  // namespace tarnsim
