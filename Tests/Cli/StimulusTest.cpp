// How the stimuli of a signal file get into the circuit.

#include <stdexcept>

#include "Tests/Cli/VerifierSupport.h"

namespace tarnsim {
namespace {

TEST(Stimulus, ATextIsFittedToTheWidthOfThePort) {
    struct Row {
        std::string text;
        std::uint32_t size;
        std::string expected;
    };
    const std::vector<Row> rows = {
        {"F", 8, "LLLLHHHH"},
        {"F", 2, "HH"},
        {"HLZ", 5, "UUHLZ"},
        {"HL", 5, "LLLHL"},
        {"10", 8, "LLLHLLLL"},
        {"10", 2, "LL"},
        {"1", 1, "H"},
        {"0", 1, "L"},
        {"3", 2, "HH"},
        {"F", 6, "LLHHHH"},
        {"Z", 4, "UUUZ"},
        {"z", 4, "LLLz"},
        {"u", 2, "Lu"},
        {"x", 2, "Lx"},
        {"X", 3, "UUX"},
        {"U", 3, "UUU"},
        {"HLHLH", 3, "HLH"},
        {"ZHL", 2, "HL"},
        {" \t\n\v\f\rHL\r\n ", 3, "LHL"},
        {" a ", 4, "HLHL"},
        {"1Z", 4, "UU1Z"},
        {"", 3, "LLL"},
        {"  ", 2, "LL"},
        {"H", 0, ""},
        {"h", 3, "LLh"},
        {"dEaDbEeF", 32, "HHLHHHHLHLHLHHLHHLHHHHHLHHHLHHHH"},
    };
    for (const Row& row : rows) {
        const Port port(row.size, Direction::Input, "in");
        EXPECT_EQ(CircuitVerifier::normalize(port, row.text), row.expected) << row.text;
    }
}

TEST(Stimulus, AllVectorsAreAppliedBeforeTheRun) {
    Bench bench("time a b\n0 1 F\n20 0 HLZ\n");
    bench.port(Direction::Input, 1, "a");
    bench.port(Direction::Input, 5, "b");
    const RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(bench.at("a", -1), "U");
    EXPECT_EQ(bench.at("a", 0), "H");
    EXPECT_EQ(bench.at("a", 20), "L");
    EXPECT_EQ(bench.at("b", 19), "LHHHH");
    EXPECT_EQ(bench.at("b", 20), "UUHLZ");
}

TEST(Stimulus, AnAssignmentHoldsFromTime0BehindAllVectors) {
    Bench bench("b=A\na = Z\ntime a\n0 1\n20 0\n");
    bench.port(Direction::Input, 1, "a");
    bench.port(Direction::Input, 8, "b");
    const RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(bench.at("a", -1), "U");
    EXPECT_EQ(bench.at("a", 0), "Z") << "in place of the vector's";
    EXPECT_EQ(bench.at("a", 20), "L");
    EXPECT_EQ(bench.at("b", 0), "LLLLHLHL");
}

TEST(Stimulus, AnAssignmentThatIsTooLongIsTheValuesOwnException) {
    Bench bench("a = F\ntime a\n");
    bench.port(Direction::Input, 2, "a");
    EXPECT_EQ(
        standardExceptionOf<std::length_error>([&] { RecordingVerifier(&bench.circuit, bench.sequence.get(), true); }),
        "Initializer 'HHHH' too long for type (Value 2).");
}

TEST(Stimulus, PortsAtAnyDepthAndInoutsAreDriven) {
    Bench bench("g.in=H\ntime g.in io\n5 0 1\n");
    bench.circuit.addComponent("Inv", "g");
    bench.port(Direction::Inout, 1, "io");
    const RecordingVerifier verifier(&bench.circuit, bench.sequence.get(), true);
    EXPECT_EQ(bench.at("g.in", 0), "H");
    EXPECT_EQ(bench.at("g.in", 5), "L");
    EXPECT_EQ(bench.at("io", 5), "H");
}

TEST(Stimulus, AnUnknownPortIsRefused) {
    EXPECT_EQ(Bench("time zz\n").constructionError(), "Can't find port_name 'zz'.");
    Bench assigned("u.x=1\ntime a\n");
    assigned.port(Direction::Input, 1, "a");
    EXPECT_EQ(assigned.constructionError(), "Can't find port_name 'u.x'.");
}

TEST(Stimulus, AnOutputIsRefused) {
    Bench bench("time q\n");
    bench.port(Direction::Output, 1, "q");
    EXPECT_EQ(bench.constructionError(), "Can't use an output to drive the value of an internal net (port 'q')");
    Bench assigned("g.out=1\ntime q\n");
    assigned.port(Direction::Input, 1, "q");
    assigned.circuit.addComponent("Inv", "g");
    EXPECT_EQ(assigned.constructionError(), "Can't use an output to drive the value of an internal net (port 'g.out')");
}

/// Throws something when its input changes.
class Thrower : public Component {
public:
    explicit Thrower(std::function<void()> thrower) : Component("Thrower", "t", nullptr), throw_(std::move(thrower)) {
        createPin(Direction::Input, "in");
    }

    void evaluate(Time) override {}
    void applyParameters() override {}
    void inputChanged(Port*, const Value&, const Value&, Time) override { throw_(); }

private:
    std::function<void()> throw_;
};

/// The message of a load in which applying the second vector's second column throws, without its prefix.
std::string messageOf(const std::function<void()>& thrower) {
    Thrower part(thrower);
    Bench bench("time a b\n0 0 U\n7 1 1\n");
    bench.port(Direction::Input, 1, "a");
    bench.port(Direction::Input, 1, "b");
    bench.circuit.addChild(&part, nullptr);
    bench.net({"b", "t.in"});
    const std::string message = bench.constructionError();
    const std::string prefix =
        "Error when initializing input 'b' at time = 7 (column 3 in '" + bench.sequence->fileName() + "'): ";
    EXPECT_EQ(message.substr(0, prefix.size()), prefix);
    return message.substr(std::min(prefix.size(), message.size()));
}

TEST(Stimulus, WhateverIsThrownWhileItIsAppliedBecomesAMessageAboutTheFile) {
    EXPECT_EQ(messageOf([] { throw Error("an Error"); }), "an Error");
    EXPECT_EQ(messageOf([] { throw std::out_of_range("out of range"); }), "out of range");
    EXPECT_EQ(messageOf([] { throw std::bad_cast(); }), std::bad_cast().what());
    EXPECT_EQ(messageOf([] { throw std::string("a string"); }), "a string");
    EXPECT_EQ(messageOf([] { throw "characters"; }), "characters");
    EXPECT_EQ(messageOf([] { throw 5; }), "Unknown exception thrown.");
}

TEST(Stimulus, AValueThatRefusesATextBecomesAMessageAboutTheFile) {
    Bench bench("time a\n3 X\n");
    bench.port(Direction::Input, 260, "a");
    EXPECT_EQ(bench.constructionError(), "Error when initializing input 'a' at time = 3 (column 2 in '" +
                                             bench.sequence->fileName() + "'): Initializer '" + std::string(259, 'U') +
                                             "X' too long for type (Value 4).");
}

}  // namespace
}  // namespace tarnsim
