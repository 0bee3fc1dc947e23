#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>

#include "Cli/CommandLine.h"
#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Support/Text.h"
#include "Core/Support/TextFile.h"
#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

// What Docs/Limits.md promises, as far as its inputs are too large, or too odd, to be kept in files.

namespace tarnsim {
namespace {

const std::string kBoard = "Pin Input a\nPin Output q\nUnit Inv g\nNet na a g.in\nNet nq g.out q\n";
const std::string kSignals = "time a ==(dT)=> q\n0 0 5 H\n10 1 5 L\n";
constexpr std::size_t kTenMegabytes = 10'000'000;

/// A verify run of two files of a folder of its own, which is the working directory meanwhile.
class Limits : public testing::Test {
protected:
    Limits() : there_(folder_.path(".")) {
        write("board.nlx", kBoard);
        write("board.sig", kSignals);
    }

    void write(const std::string& name, const std::string& text) const { folder_.write(name, text); }

    /// "ok" if all tests passed, else the first line of what it prints.
    std::string verdict(const std::string& circuit = "board.nlx", const std::string& signals = "board.sig") const {
        CommandLineOptions options;
        options.circuitFile = circuit;
        options.ioFile = signals;
        options.verify = true;
        std::uint32_t failures = 0;
        const std::string output = outputOf([&] { failures = verifyRun(options); });
        const bool isPraised = output.find("All tests passed.\n") != std::string::npos;
        EXPECT_EQ(failures == 0, isPraised);
        return isPraised ? "ok" : output.substr(0, output.find('\n'));
    }
    std::string verdictOn(const std::string& boardText) const {
        write("board.nlx", boardText);
        return verdict();
    }
    std::string verdictOnSignals(const std::string& text) const {
        write("board.sig", text);
        return verdict();
    }

private:
    TemporaryFolder folder_;
    WorkingDirectory there_;
};

std::string repeated(int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
}

TEST_F(Limits, CircuitsMayStandInOneAnother1000Deep) {
    EXPECT_EQ(verdictOn(kBoard + repeated(1000, "Circuit c {\n") + repeated(1000, "}\n")), "ok");
    EXPECT_EQ(verdictOn(kBoard + repeated(1000, "Circuit c {\n")), "ok") << "not closed";
    EXPECT_EQ(verdictOn(kBoard + repeated(1001, "Circuit c {\n") + repeated(1001, "}\n")),
              "Error in board.nlx:1006: Circuits are nested more than 1000 deep.");
    EXPECT_EQ(verdictOn(kBoard + repeated(100'000, "Circuit c {\n")),
              "Error in board.nlx:1006: Circuits are nested more than 1000 deep.");
}

TEST_F(Limits, FilesMayImportOneAnother500Deep) {
    for (const std::string statement : {"Import", "Circuit c"}) {
        const auto import = [&](int number) { return statement + " \"" + std::to_string(number) + ".nlx\"\n"; };
        for (int i = 1; i < 500; ++i) write(std::to_string(i) + ".nlx", import(i + 1));
        write("500.nlx", "# the last\n");
        EXPECT_EQ(verdictOn(kBoard + import(1)), "ok");
        write("500.nlx", "# not the last\n" + import(501));
        write("501.nlx", "");
        EXPECT_EQ(verdict(), "Error in 500.nlx:2: Imports are nested more than 500 deep.");
    }
}

TEST_F(Limits, FilesMayImportAnyNumberOneAfterTheOther) {
    write("part.nlx", "MetaData k 'v'\n");
    EXPECT_EQ(verdictOn(kBoard + repeated(2000, "Import \"part.nlx\"\n")), "ok");
}

TEST_F(Limits, AFileThatImportsItselfIsRefusedHoweverItIsNamed) {
    std::filesystem::create_hard_link("board.nlx", "same.nlx");
    std::filesystem::create_symlink("board.nlx", "link.nlx");
    for (const std::string name : {"board.nlx", "./board.nlx", "same.nlx", "link.nlx"}) {
        for (const std::string statement : {"Import", "Circuit c"}) {
            EXPECT_EQ(verdictOn("\n" + statement + " \"" + name + "\"\n"),
                      "Error in board.nlx:2: '" + name + "' is being read already, it imports itself.");
        }
    }
}

TEST_F(Limits, AnArrayOfManyUnitsLoads) {
    EXPECT_EQ(verdictOn(kBoard + "Unit High u[20000]\nUnit Inv i\nNet n u[19999].out i.in\n"), "ok");
}

TEST_F(Limits, LinesOfTenMegabytesLoad) {
    const std::string word(kTenMegabytes, 'w');
    for (const std::string& line : {"# " + word, "MetaData k '" + word + "'", "Pin Output " + word}) {
        EXPECT_EQ(verdictOn(kBoard + line + "\n"), "ok") << line.substr(0, 20);
    }
    std::string units = "Unit Inv";
    std::string net = "Net n";
    for (int i = 0; units.size() < kTenMegabytes; ++i) {
        const std::string name = "u" + std::to_string(i) + std::string(5000, '_');
        units += " " + name;
        net += " " + name + ".in";
    }
    EXPECT_EQ(verdictOn(kBoard + units + "\n" + net + "\n"), "ok");
}

TEST_F(Limits, LinesOfTenMegabytesLoadInASignalFile) {
    const std::string half(kTenMegabytes / 2, 'L');
    EXPECT_EQ(verdictOnSignals(kSignals + "g(" + half + "=1) # " + half + "\n"), "ok");
    EXPECT_EQ(verdictOnSignals(kSignals + "20 " + half + " 5 " + half + "H\n"), "ok");
}

TEST_F(Limits, WhatALineOfTenMegabytesGetsWrongIsReportedInShort) {
    const std::string word(kTenMegabytes, 'w');
    EXPECT_EQ(verdictOn(kBoard + word), ("Error in board.nlx:6: Illegal keyword: '" + word).substr(0, 2047));
    write("board.nlx", kBoard);
    EXPECT_EQ(verdictOnSignals(kSignals + word),
              ("Syntax error on line 4 in test file 'board.sig': '" + word).substr(0, 2047));
}

TEST_F(Limits, ALineThatNeverEndsIsGivenUp) {
    if (!fileExists("/dev/zero")) GTEST_SKIP() << "this system has no such file";
    EXPECT_EQ(verdict("/dev/zero"), "Error: line 1 of file '/dev/zero' has more than 268435456 characters.");
}

TEST_F(Limits, FilesThatAreNoTextsAreRefused) {
    std::string random;
    std::mt19937 generator;
    for (int i = 0; i < 100'000; ++i) random += static_cast<char>(generator() & 0xFFU);
    std::string wide;
    for (const char c : kBoard) wide += std::string{c, '\0'};
    for (const std::string& bytes : {std::string(100'000, '\0'), std::string(100'000, '\xff'),
                                     "\x7f"
                                     "ELF\2\1\1" +
                                         random,
                                     random, "\xff\xfe" + wide, "\xef\xbb\xbf" + kBoard}) {
        write("bytes", bytes);
        EXPECT_TRUE(verdict("bytes").starts_with("Error in bytes:1: Illegal keyword: '"));
        EXPECT_TRUE(verdict("board.nlx", "bytes").starts_with("Syntax error on line 1 in test file 'bytes': '"));
    }
}

TEST_F(Limits, LinesMayEndInACarriageReturnAndALineFeed) {
    const auto ended = [](const std::string& text) {
        std::string result;
        for (const char c : text) result += c == '\n' ? "\r\n" : std::string{c};
        return result;
    };
    write("board.sig", ended(kSignals));
    EXPECT_EQ(verdictOn(ended(kBoard)), "ok");
}

TEST_F(Limits, ADirectoryInPlaceOfAFileIsRefused) {
    std::filesystem::create_directory("there");
    EXPECT_EQ(verdict("there"), "Error: File not found: 'there'.");
    EXPECT_EQ(verdict("board.nlx", "there"), "File 'there'not found.");
    EXPECT_EQ(verdictOn("Import \"there\"\n"), "Error: File not found: 'there'.");
    EXPECT_EQ(verdictOn("Circuit c \"there\"\n"), "Error: File not found: 'there'.");
}

TEST_F(Limits, AFileThatMayNotBeReadIsRefused) {
    write("locked", "");
    std::filesystem::permissions("locked", std::filesystem::perms::none);
    if (std::ifstream("locked").is_open()) GTEST_SKIP() << "this user may read every file";
    EXPECT_EQ(verdict("locked"), "Error: File not found: 'locked'.");
    EXPECT_EQ(verdict("board.nlx", "locked"), "File 'locked'not found.");
    EXPECT_EQ(verdictOn("Import \"locked\"\n"), "Error: File not found: 'locked'.");
    EXPECT_EQ(verdictOn("Circuit c \"locked\"\n"), "Error: File not found: 'locked'.");
}

TEST_F(Limits, AFileThatTheSystemFailsToReadIsRefused) {
    const std::string file = "/proc/self/mem";  // opens, and reading its first byte is an error
    if (!fileExists(file)) GTEST_SKIP() << "this system has no such file";
    const std::string refusal = "Error: cannot read file '/proc/self/mem'.";
    EXPECT_EQ(verdict(file), refusal);
    EXPECT_EQ(verdict("board.nlx", file), refusal);
    std::filesystem::create_symlink(file, "link");
    EXPECT_EQ(verdictOn("Import \"link\"\n"), "Error: cannot read file 'link'.");
    EXPECT_EQ(verdictOn("Circuit c \"link\"\n"), "Error: cannot read file 'link'.");
}

TEST_F(Limits, AnImageThatCanNotBeReadIsMissing) {
    std::filesystem::create_directory("there");
    if (fileExists("/proc/self/mem")) std::filesystem::create_symlink("/proc/self/mem", "unreadable");
    for (const std::string type : {"27C64", "HM62256B", "IDT7132LA"}) {
        for (const std::string key : {"rawfile", "cbmfile"}) {
            for (const std::string name : {"there", "unreadable"}) {
                const std::string errors =
                    errorOutputOf([&] { verdictOn(kBoard + "Unit " + type + " m(" + key + "=" + name + ")\n"); });
                const std::string shown = type == "27C64" ? "MC27C64" : type;
                const std::string line =
                    "*** Error: Memory component " + shown + " cannot find the specified file '" + name + "'.\n";
                EXPECT_EQ(errors, line + line) << "once when it is loaded, once at the start";
            }
        }
    }
}

/// Of the parts that can't be made without parameters, or take long with those that they have.
const std::map<std::string_view, std::string> kParameters = {
    {"Const", "(size=8,value=255)"},
    {"Join", "(out=8,a=7:4,b=3:0)"},
    {"Split", "(in=8,a=7:4)"},
    {"Splice", "(size=8,a=7:4)"},
    {"Oscillator", "(frequency=1,offset=4294967295)"},
};

/// A board with one part, all of whose inputs change in the last nanoseconds of all time.
class LastMoment {
public:
    LastMoment(std::string_view type, const std::string& parameters)
        : part_(board_.addComponent(std::string(type), "u" + parameters)) {}
    bool isMade() const { return part_ != nullptr; }

    void run(bool withStimulus) {
        EventSimulator simulator(&board_);
        simulator.prepare(kLatestTime);
        for (Port* port : part_->getPorts()) {
            if (port->direction() != Direction::Input) continue;
            // Something that a part would show that is looked at in the past.
            port->set(Value(port->width()).fill('L'), kEarliestTime);
            if (!withStimulus) continue;
            for (const Time time : {kFirstChange, kLatestTime - 1, kLatestTime}) {
                port->set(Value(port->width()).fill((time & 1) != 0 ? 'H' : 'L'), time);
            }
        }
        simulator.run(kLatestTime);
    }
    /// What stands on all ports before anything has changed.
    std::string past() const {
        std::string letters;
        for (const Port* port : part_->getPorts()) {
            for (const Time time : {kEarliestTime, kEarliestTime + 50, -50, -1, 0, 1'000'000, kFirstChange - 1}) {
                letters.append(port->get(time).letters()) += ' ';
            }
        }
        return letters;
    }

private:
    static constexpr Time kFirstChange = kLatestTime - 60;

    Circuit board_{"board", nullptr};
    Component* part_ = nullptr;
};

class EveryPart : public testing::TestWithParam<const ComponentType*> {};

TEST_P(EveryPart, LeavesThePastAloneAtTheEndOfTime) {
    const std::string_view type = GetParam()->typeName();
    std::vector<std::string> choices = {
        "",
        "(delay=100)",
        "(delay=2147483647)",
        "(delay=2147483648)",
        "(delay=4294967295)",
        "(t_ads=2147483647,t_ah=2147483647,t_mds=2147483647,t_dhw=2147483647,t_bvd=4294967295)"};
    if (const auto needed = kParameters.find(type); needed != kParameters.end()) choices = {needed->second};
    for (const std::string& parameters : choices) {
        LastMoment idle(type, parameters);
        LastMoment busy(type, parameters);
        ASSERT_TRUE(idle.isMade());
        idle.run(false);
        busy.run(true);
        EXPECT_EQ(busy.past(), idle.past()) << parameters;
    }
}

std::vector<const ComponentType*> allTypes() {
    std::vector<const ComponentType*> types;
    for (const ComponentType& type : componentTypes()) types.push_back(&type);
    return types;
}

INSTANTIATE_TEST_SUITE_P(Limits, EveryPart, testing::ValuesIn(allTypes()),
                         [](const auto& type) { return std::string(type.param->typeName()); });

}  // namespace
}  // namespace tarnsim
