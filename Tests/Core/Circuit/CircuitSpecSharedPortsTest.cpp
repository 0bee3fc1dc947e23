#include <algorithm>
#include <random>

#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

struct SharedCase {
    std::string text;
    std::string message;
};

TEST(SharedPorts, OfTwoNetsInABodyAreRefused) {
    const std::vector<SharedCase> cases = {
        {"Net a p q\nNet b q r\n", "Error in line board.nlx:1: net 'a' and net 'b' shares the pin 'q'."},
        {"Net a p q\nNet b r s\nNet c s p\n", "Error in line board.nlx:1: net 'a' and net 'c' shares the pin 'p'."},
        {"Net a p q\nNet b r s\nNet c s t\n", "Error in line board.nlx:2: net 'b' and net 'c' shares the pin 's'."},
        {"Net a p q\nNet a q r\n", "Error in line board.nlx:1: net 'a' and net 'a' shares the pin 'q'."},
        {"Net a p q r\nNet b r q\n", "Error in line board.nlx:1: net 'a' and net 'b' shares the pin 'q'."},
        {"Circuit x {\nNet a p q\nNet b q r\n}\n",
         "Error in line board.nlx:2: net 'a' and net 'b' shares the pin 'q'."},
    };
    for (const SharedCase& each : cases) EXPECT_EQ(errorOfReading(each.text), each.message);
}

TEST(SharedPorts, AreLookedForInTheOrderOfPairsAndNotOfStatements) {
    EXPECT_EQ(errorOfReading("Net a p q\nNet b r s\nNet c s t\nNet d q u\n"),
              "Error in line board.nlx:1: net 'a' and net 'd' shares the pin 'q'.");
}

TEST(SharedPorts, AreRefusedWhenTheBodyEndsAndNotAtTheSecondStatement) {
    EXPECT_EQ(errorOfReading("Net a p q\nNet b q r\nNonsense\n"), "Error in board.nlx:3: Illegal keyword: 'Nonsense'.");
    EXPECT_EQ(errorOfReading("Circuit x {\nNet a p q\nNet b q r\n}\nNonsense\n"),
              "Error in line board.nlx:2: net 'a' and net 'b' shares the pin 'q'.");
}

TEST(SharedPorts, OfABodyThatIsNeverClosedAreRefusedAtTheEndOfTheFile) {
    EXPECT_EQ(errorOfReading("Circuit x {\nNet a p q\nNet b q r\n"),
              "Error in line board.nlx:2: net 'a' and net 'b' shares the pin 'q'.");
}

TEST(SharedPorts, MayStandInDifferentBodies) {
    EXPECT_EQ(errorOfReading("Net a p q\nCircuit x {\nNet b q r\n}\nCircuit y {\nNet b q r\n}\n"), "(no Error)");
}

TEST(SharedPorts, AreComparedAsWritten) {
    EXPECT_EQ(errorOfReading("Net a x.p q\nNet b ./x.p r\n"), "(no Error)");
}

TEST(SharedPorts, AreLookedForWhenAnImportedFileEnds) {
    const Workplace here;
    here.write("part.nlx", "Net b q r\n");
    here.write("board.nlx", "\nNet a p q\nImport \"part.nlx\"\nNonsense\n");
    EXPECT_EQ(errorOf([] { const CircuitSpec spec("board.nlx"); }),
              "Error in line board.nlx:2: net 'a' and net 'b' shares the pin 'q'.");
}

TEST(SharedPorts, OfAnImportedNetNameTheImportedFile) {
    const Workplace here;
    here.write("part.nlx", "\n\nNet a p q\n");
    here.write("board.nlx", "Import \"part.nlx\"\nNet b q r\n");
    EXPECT_EQ(errorOf([] { const CircuitSpec spec("board.nlx"); }),
              "Error in line part.nlx:3: net 'a' and net 'b' shares the pin 'q'.");
}

TEST(SharedPorts, OfAFileOfItsOwnAreRefusedWhenItEnds) {
    const Workplace here;
    here.write("part.nlx", "Net a p q\nNet b q r\n");
    here.write("board.nlx", "\n\nCircuit x \"part.nlx\"\nNonsense\n");
    EXPECT_EQ(errorOf([] { const CircuitSpec spec("board.nlx"); }),
              "Error in line board.nlx:1: net 'a' and net 'b' shares the pin 'q'.");
}

struct RandomNet {
    int line;
    Texts ports;
};

/// Random nets over a few ports; each net's ports differ, as a statement demands.
class RandomNets {
public:
    /// The one at `gap` and those behind it stand a line lower.
    std::vector<RandomNet> next(std::size_t gap) {
        const int portCount = number(8, 40);
        std::vector<RandomNet> nets(static_cast<std::size_t>(number(2, 9)));
        for (std::size_t i = 0; i < nets.size(); ++i) nets[i] = {static_cast<int>(i < gap ? i + 1 : i + 2), {}};
        for (RandomNet& net : nets) {
            while (net.ports.size() < 2 || (net.ports.size() < 6 && number(0, 2) > 0)) {
                const std::string port = "p" + std::to_string(number(1, portCount));
                if (std::ranges::find(net.ports, port) == net.ports.end()) net.ports.push_back(port);
            }
        }
        return nets;
    }

    int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

private:
    std::mt19937 random_{4711};
};

/// A Net statement for each net, and `statement` in front of the one at `gap`.
std::string textOf(const std::vector<RandomNet>& nets, std::size_t gap, const std::string& statement) {
    std::string text;
    for (std::size_t i = 0; i < nets.size(); ++i) {
        if (i == gap) text += statement;
        text += "Net n" + std::to_string(i);
        for (const std::string& port : nets[i].ports) text += " " + port;
        text += "\n";
    }
    return text;
}

/// By comparing each of the first `count` nets in order with each later one of them.
std::string refusalByAllPairs(const std::vector<RandomNet>& nets, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = i + 1; j < count; ++j) {
            for (const std::string& port : nets[i].ports) {
                if (std::ranges::find(nets[j].ports, port) == nets[j].ports.end()) continue;
                return "Error in line board.nlx:" + std::to_string(nets[i].line) + ": net 'n" + std::to_string(i) +
                       "' and net 'n" + std::to_string(j) + "' shares the pin '" + port + "'.";
            }
        }
    }
    return "(no Error)";
}

constexpr int kRounds = 300;

TEST(SharedPorts, AreTheOnesThatComparingAllPairsFinds) {
    constexpr std::size_t kNoGap = 1000;
    RandomNets random;
    const Workplace here;
    int refused = 0;
    for (int round = 0; round < kRounds; ++round) {
        const std::vector<RandomNet> nets = random.next(kNoGap);
        const std::string text = textOf(nets, kNoGap, "");
        const std::string expected = refusalByAllPairs(nets, nets.size());
        here.write("board.nlx", text);
        EXPECT_EQ(errorOf([] { const CircuitSpec spec("board.nlx"); }), expected) << text;
        if (expected != "(no Error)") ++refused;
    }
    EXPECT_GT(refused, kRounds / 4);
    EXPECT_LT(refused, kRounds * 19 / 20);
}

TEST(SharedPorts, AreTheOnesOfAllPairsAlsoWhenAnImportHasTheBodyCheckedInBetween) {
    RandomNets random;
    const Workplace here;
    here.write("empty.nlx", "");
    int foundAtTheEnd = 0;
    for (int round = 0; round < kRounds; ++round) {
        const auto gap = static_cast<std::size_t>(random.number(1, 4));
        const std::vector<RandomNet> nets = random.next(gap);
        const std::string text = textOf(nets, gap, "Import \"empty.nlx\"\n");
        std::string expected = refusalByAllPairs(nets, std::min(gap, nets.size()));
        if (expected == "(no Error)") {
            expected = refusalByAllPairs(nets, nets.size());
            if (expected != "(no Error)") ++foundAtTheEnd;
        }
        here.write("board.nlx", text);
        EXPECT_EQ(errorOf([] { const CircuitSpec spec("board.nlx"); }), expected) << text;
    }
    EXPECT_GT(foundAtTheEnd, kRounds / 10);
}

}  // namespace
}  // namespace tarnsim
