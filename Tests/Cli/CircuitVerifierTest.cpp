#include "Cli/CircuitVerifier.h"

#include "Cli/CliCircuitVerifier.h"
#include "Core/Components/Gates.h"
#include "Tests/Cli/VerifierSupport.h"

namespace tarnsim {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kWireBoard = "Pin Input a\nPin Output q\nNet n a q\n";

TEST(CircuitVerifier, ASequenceWithoutVectorsPasses) {
    Bench bench("time a => q\n");
    bench.wire(1, "a", "q");
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(verifier.getEndTime(), 0);
    EXPECT_TRUE(verifier.runAndVerify());
    EXPECT_EQ(verifier.getSimulator()->getTime(), 1);
    EXPECT_EQ(verifier.getFailureCount(), 0U);
}

TEST(CircuitVerifier, TheLastVectorsEndTimeIsTheEnd) {
    Bench bench("time a ==(dT)=> q\n0 1 100 X\n10 0 5 X\n");
    bench.wire(1, "a", "q");
    const RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(verifier.getEndTime(), 15);
    EXPECT_EQ(verifier.getCircuit(), &bench.circuit);
    EXPECT_EQ(verifier.getSimulator()->getCircuit(), &bench.circuit);
    EXPECT_EQ(bench.circuit.findSimulator(), verifier.getSimulator());
}

TEST(CircuitVerifier, TheRunGoesOneNanosecondFurther) {
    Bench beyond("time a ==(dT)=> q\n0 0 1 U\n");
    beyond.inverter("a", "q");
    RecordingVerifier(&beyond.circuit, beyond.sequence.get(), true).run();
    EXPECT_EQ(beyond.at("q", 3), "U");

    Bench reached("time a ==(dT)=> q\n0 0 2 U\n");
    reached.inverter("a", "q");
    RecordingVerifier(&reached.circuit, reached.sequence.get(), true).run();
    EXPECT_EQ(reached.at("q", 3), "H");
}

TEST(CircuitVerifier, TheEndTimeCanBeSet) {
    Bench bench("time a => q\n0 0 U\n");
    bench.inverter("a", "q");
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    verifier.setEndTime(2);
    EXPECT_EQ(verifier.getEndTime(), 2);
    verifier.run();
    EXPECT_EQ(bench.at("q", 3), "H");
}

TEST(CircuitVerifier, OutputsAreComparedWithTheirTexts) {
    struct Row {
        std::uint32_t size;
        std::string stimulus, expected, mismatch;
    };
    const std::vector<Row> rows = {
        {1, "H", "X", ""},          {4, "HLZU", "X", ""},  {1, "H", "HX", ""},
        {2, "HL", "H", "H HL"},     {4, "HLHL", "A", ""},  {4, "A", "HLHL", ""},
        {4, "A", "B", "HLHH HLHL"}, {1, "H", "1", ""},     {2, "HL", "2", ""},
        {2, "HL", "hl", ""},        {2, "HL", "XL", ""},   {2, "HL", "xL", "xL HL"},
        {2, "HH", "HHLL", "LL HH"}, {2, "HL", "~", " HL"}, {1, "Z", "Z", "Z U"},
        {1, "Z", "U", ""},          {8, "5A", "5A", ""},   {8, "5A", "A", "HLHL LHLHHLHL"},
    };
    for (const Row& row : rows) {
        Bench bench("time a => q\n0 " + row.stimulus + " " + row.expected + "\n");
        bench.wire(row.size, "a", "q");
        RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
        EXPECT_EQ(verifier.runAndVerify(), row.mismatch.empty()) << row.expected;
        EXPECT_EQ(verifier.mismatches, row.mismatch.empty() ? Texts{} : Texts{"0 q " + row.mismatch}) << row.expected;
    }
}

TEST(CircuitVerifier, FailuresAreCountedForEachOutputAndVector) {
    Bench bench("time a b ==(dT)=> q p\n0 0 1 1 H L\n10 0 1 1 H L\n20 1 1 1 L L\n");
    bench.wire(1, "a", "q");
    bench.wire(1, "b", "p");
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_FALSE(verifier.runAndVerify());
    EXPECT_EQ(verifier.getFailureCount(), 6U);
    EXPECT_EQ(verifier.mismatches, (Texts{"1 q H L", "1 p L H", "11 q H L", "11 p L H", "21 q L H", "21 p L H"}));
}

TEST(CircuitVerifier, ExpectationsAreLookedUpByTimeNotByVector) {
    // The first two vectors end at 20, where the second one's cell holds; nothing is expected at the third one's end.
    Bench bench("time a ==(dT)=> q\n0 1 20 H\n10 0 10 L\n15 0 50 L\n30 0 0 L\n");
    bench.wire(1, "a", "q");
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_FALSE(verifier.runAndVerify());
    EXPECT_EQ(verifier.mismatches, (Texts{"65 q ! L"}));
}

TEST(CircuitVerifier, AnOutputMustExist) {
    Bench bench("time a => zz\n0 1 H\n");
    bench.wire(1, "a", "q");
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(errorOf([&] { verifier.runAndVerify(); }), "No such output: 'zz'");
}

TEST(CircuitVerifier, WithoutVerifyingNothingIsCompared) {
    Bench bench("time a => zz\n0 1 L\n");
    bench.wire(1, "a", "q");
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), false);
    EXPECT_TRUE(verifier.runAndVerify());
    EXPECT_EQ(verifier.getFailureCount(), 0U);
    EXPECT_EQ(verifier.mismatches, Texts{});
}

TEST(CircuitVerifier, OptionsHoldForTheRunOnly) {
    ParameterProbe probe("u");
    Bench bench("u(fast,delay=20)\ntime a\n");
    bench.port(Direction::Input, 1, "a");
    bench.circuit.addChild(&probe, nullptr);
    probe.getParameters().parse("(delay=3,size=4)");
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(probe.applied, Texts{}) << "not before the run";
    verifier.run();
    EXPECT_EQ(probe.applied, (Texts{"(delay=20,fast=true,size=4)", "(delay=3,size=4)"}));
    EXPECT_EQ(probe.getParameterText(), "(delay=3,size=4)");
}

TEST(CircuitVerifier, EmptyOptionsApplyTheParametersToo) {
    ParameterProbe probe("u");
    Bench bench("u()\ntime a\n");
    bench.port(Direction::Input, 1, "a");
    bench.circuit.addChild(&probe, nullptr);
    RecordingVerifier(&bench.circuit, bench.sequence.get(), true).run();
    EXPECT_EQ(probe.applied, (Texts{"", ""}));
}

TEST(CircuitVerifier, TwoLinesForOneComponentLeaveTheFirstOnesEffect) {
    ParameterProbe probe("u");
    Bench bench("u(delay=5,a=1)\nu(delay=7,b=2)\ntime a\n");
    bench.port(Direction::Input, 1, "a");
    bench.circuit.addChild(&probe, nullptr);
    probe.getParameters().parse("(delay=3)");
    RecordingVerifier(&bench.circuit, bench.sequence.get(), true).run();
    EXPECT_EQ(probe.applied, (Texts{"(a=1,delay=5)", "(a=1,b=2,delay=7)", "(a=1,delay=5)", "(a=1,delay=5)"}));
    EXPECT_EQ(probe.getParameterText(), "(a=1,delay=5)");
}

TEST(CircuitVerifier, AGateGetsItsDelayBack) {
    Bench bench("g(delay=7)\ntime a ==(dT)=> q\n0 0 2 U\n");
    bench.inverter("a", "q");
    auto* gate = static_cast<Inv*>(bench.circuit.findComponent("g"));
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    verifier.run();
    // The stimulus scheduled the gate for 3, before the option; it then looked back 7 ns.
    EXPECT_EQ(bench.at("q", 3), "U");
    EXPECT_EQ(gate->getDelay(), 3U);
}

TEST(CircuitVerifier, OptionsNeedAComponent) {
    ParameterProbe probe("u");
    Bench bench("u(a=1)\nzz(a=1)\ntime a\n");
    bench.port(Direction::Input, 1, "a");
    bench.circuit.addChild(&probe, nullptr);
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(errorOf([&] { verifier.run(); }), "Erroneous component option: can't find component 'zz'.");
    EXPECT_EQ(probe.applied, Texts{"(a=1)"});
}

TEST(CircuitVerifier, ConnectionsAreCheckedOnTheOutput) {
    Bench bench("time a\n");
    bench.port(Direction::Input, 1, "a");
    bench.circuit.addComponent("And", "g");
    bench.net({"a", "g.a"});
    const RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(outputOf([&] { verifier.checkConnections(); }),
              "*** WARNING: Input port 'b' of component 'And'/'g' is not connected.\n");
}

TEST(CircuitVerifier, ResultsArePrintedAtTheVectorsOrInSteps) {
    Bench bench("time a ==(dT)=> q\n2 0 1 U\n4 1 1 H\n");
    bench.inverter("a", "q");
    RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    verifier.run();
    const std::string atVectors = "Time    a  => q \n     2: L     U \n     4: H     U \n";
    EXPECT_EQ(outputOf([&] { verifier.printResults(0, "", ""); }), atVectors);
    EXPECT_EQ(outputOf([&] { verifier.printResults(-3, "", ""); }), atVectors);
    EXPECT_EQ(outputOf([&] { verifier.printResults(3, " g.in ,a,", "\tn_a"); }),
              "Time    a  => q g.in a #n_a \n"
              "     0: U     U    U U    U \n"
              "     3: L     U    L L    L \n"
              "     6: H     H    H H    H \n")
        << "the run went to 6";
    EXPECT_EQ(errorOf([&] { verifier.printResults(0, "a,,q", ""); }), "Error: can't find port ''.");
    EXPECT_EQ(errorOf([&] { verifier.printResults(0, "", ","); }),
              "Error: cannot find net ''.\nAvailable nets:\n  - 'n_a'\n  - 'n_g.out'\n");
}

TEST(CircuitVerifier, ACircuitThatWasLoadedOutlivesTheVerifier) {
    const TemporaryFolder folder;
    Circuit* circuit = nullptr;
    {
        RecordingVerifier verifier(folder.write("x.nlx", kWireBoard), folder.write("x.sig", "time a => q\n0 1 H\n"));
        EXPECT_TRUE(verifier.runAndVerify());
        circuit = verifier.getCircuit();
    }
    EXPECT_EQ(circuit->getName(), folder.path("x.nlx"));
    EXPECT_EQ(circuit->findSimulator(), nullptr);
    EXPECT_STREQ(circuit->findPort("q")->get(0).c_str(), "H");
}

TEST(CircuitVerifier, GivenObjectsOutliveTheVerifier) {
    Bench bench("time a => q\n0 1 H\n");
    bench.wire(1, "a", "q");
    EXPECT_TRUE(RecordingVerifier(&bench.circuit, bench.sequence.get(), true).runAndVerify());
    EXPECT_EQ(bench.at("q", 0), "H");
    EXPECT_EQ(bench.sequence->vectorCount(), 1);
    EXPECT_TRUE(RecordingVerifier(&bench.circuit, bench.sequence.get(), true).runAndVerify());
}

TEST(CircuitVerifier, TheCircuitFileIsReadFirst) {
    EXPECT_EQ(errorOf([] { RecordingVerifier("no.nlx", "no.sig"); }), "Error: File not found: 'no.nlx'.");
    const TemporaryFolder folder;
    const std::string good = folder.write("good.nlx", kWireBoard);
    EXPECT_EQ(errorOf([&] { RecordingVerifier(good, "no.sig"); }), "File 'no.sig'not found.");
    // It is built only when the signal file is read.
    const std::string bad = folder.write("bad.nlx", "Unit Zzz z\n");
    EXPECT_EQ(errorOf([&] { RecordingVerifier(bad, "no.sig"); }), "File 'no.sig'not found.");
    const std::string signals = folder.write("a.sig", "time a\n");
    EXPECT_EQ(errorOf([&] { RecordingVerifier(bad, signals); }),
              "Error at " + bad + ":1: Component type not found: 'Zzz'.");
}

TEST(CliCircuitVerifier, MismatchesGoToTheOutput) {
    const TemporaryFolder folder;
    CliCircuitVerifier verifier(folder.write("x.nlx", kWireBoard), folder.write("x.sig", "time a => q\n5 1 A\n"));
    EXPECT_EQ(outputOf([&] { EXPECT_FALSE(verifier.runAndVerify()); }),
              "Value mismatch at t=5 for 'q': expected L, got H\n");
}

}  // namespace
}  // namespace tarnsim
