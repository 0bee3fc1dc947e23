#include <random>

#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"
#include "Tests/Core/Components/CPUs/CoreBench.h"
#include "Tests/Core/Components/CPUs/InstructionModel.h"

namespace tarnsim {
namespace {

constexpr int kStatesPerOpcode = 100;
constexpr std::size_t kEndless = 12;  ///< cycles that are looked at of an instruction that never ends

std::string text(const ModelRegisters& r) {
    return format("pc=%04x a=%02x x=%02x y=%02x s=%02x p=%02x", r.pc, r.a, r.x, r.y, r.s, r.p);
}

/// The bus cycles that the page has for this instruction, such as " 0200:b1r"; reads show what is in `memory`.
class ExpectedTrace {
public:
    ExpectedTrace(const PageLine& line, const InstructionModel& model, const ModelMemory& memory) {
        std::size_t count = 0;
        unsigned address = 0;
        std::map<unsigned, unsigned> written;
        const auto add = [&](char direction) {
            const unsigned byte = written.contains(address) ? written[address] : memory[address];
            text += format(" %04x:%02x%c", address, byte, direction);
            ++count;
        };
        for (const std::string& entry : line.trace) {
            if (entry == "...") {
                while (count < kEndless) add('r');
                break;
            }
            const std::size_t condition = entry.find('/');
            if (condition != std::string::npos && !model.holds(entry.back())) continue;
            const std::string cycle = entry.substr(0, condition);
            const std::size_t colon = cycle.find(":=");
            const bool isWrite = colon != std::string::npos;
            address = model.place(cycle.substr(0, colon));
            if (isWrite) written[address] = model.value(cycle.substr(colon + 2));
            add(isWrite ? 'w' : 'r');
        }
    }
    std::string text;
};

template <class Core, class Descriptor>
class PageBench {
public:
    using Bench = CoreBench<Core, Descriptor>;

    PageBench(const std::string& name, bool isCmos) : page(readPage(__FILE__, name)), isCmos_(isCmos) {
        for (auto& byte : bench_.memory) byte = static_cast<std::uint8_t>(random());
    }

    /// Carries out the line's instruction on registers, operand and place that are drawn, and compares. Notes which of
    /// the line's conditions were met.
    std::string difference(const PageLine& line) {
        const ModelRegisters before = draw();
        ModelMemory& memory = bench_.memory;
        memory[before.pc] = static_cast<std::uint8_t>(line.opcode);
        const InstructionModel model(line, isCmos_, before, memory);
        const std::string expected = ExpectedTrace(line, model, memory).text;
        noteConditions(line, model);

        run(line, before);

        std::string result;
        const auto compare = [&result](const std::string& got, const std::string& wanted) {
            if (got != wanted) result += "\n  " + got + "\n  not " + wanted;
        };
        const int cycles = line.neverEnds() ? static_cast<int>(kEndless)
                                            : line.cyclesWhere([&](char each) { return model.holds(each); });
        compare(busText(), expected);
        compare(format("%zu cycles", bench_.bus.size()), format("%d cycles", cycles));
        compare(text(registers()), text(model.after));
        for (const auto& [address, byte] : model.written) {
            compare(format("%04x:%02x", address, memory[address]), format("%04x:%02x", address, byte));
        }
        return result.empty() ? "" : line.text() + " from " + text(before) + result + "\n";
    }

    const std::vector<PageLine> page;
    std::set<std::string> conditionsMet;  ///< of the line at hand: each a set of letters

private:
    unsigned random() { return static_cast<unsigned>(generator_()); }
    ModelRegisters draw() {
        // B set and the unused bit clear, as in any program that runs.
        return {0x200U + random() % 0xFE00U, random() & 0xFFU, random() & 0xFFU, random() & 0xFFU, random() & 0xFFU,
                (random() & 0xCFU) | 0x10U};
    }
    void noteConditions(const PageLine& line, const InstructionModel& model) {
        std::string met;
        for (const char condition : line.cycles) {
            const bool isLetter = condition == 'p' || condition == 't' || condition == 'd';
            if (isLetter && model.holds(condition)) met += condition;
        }
        conditionsMet.insert(met);
    }
    void run(const PageLine& line, const ModelRegisters& before) {
        Core& core = bench_.core;
        bench_.standAt(static_cast<std::uint16_t>(before.pc));
        core.a = static_cast<std::uint8_t>(before.a);
        core.x = static_cast<std::uint8_t>(before.x);
        core.y = static_cast<std::uint8_t>(before.y);
        core.s = static_cast<std::uint8_t>(before.s);
        core.p = static_cast<std::uint8_t>(before.p);
        bench_.bus.clear();
        const bool ends = bench_.runInstruction(static_cast<int>(kEndless));
        if (ends == line.neverEnds()) ADD_FAILURE() << line.text() << (ends ? " ends" : " doesn't end");
        if (ends) {
            EXPECT_EQ(bench_.address(), core.pc) << line.text();
            EXPECT_EQ(bench_.pins & CyclePin::kRW, CyclePin::kRW) << line.text();
        }
    }
    std::string busText() const {
        std::string result;
        for (const auto& each : bench_.bus) {
            result += format(" %04x:%02x%c", each.address, each.data, each.isRead ? 'r' : 'w');
        }
        return result;
    }
    ModelRegisters registers() const {
        const Core& c = bench_.core;
        return {c.pc, c.a, c.x, c.y, c.s, c.p};
    }

    bool isCmos_;
    Bench bench_;
    std::mt19937 generator_{6502};
};

/// The sets of conditions that can be met together: a branch crosses a page only when it is taken.
std::set<std::string> possibleConditions(const PageLine& line) {
    if (line.cycles.ends_with("+t+p")) return {"", "t", "tp"};
    if (line.cycles.ends_with("+p+d")) return {"", "p", "d", "pd"};
    if (line.cycles.ends_with("+p")) return {"", "p"};
    if (line.cycles.ends_with("+d")) return {"", "d"};
    return {""};
}

template <class Core, class Descriptor>
void compareWithPage(const std::string& name, bool isCmos) {
    PageBench<Core, Descriptor> bench(name, isCmos);
    ASSERT_EQ(bench.page.size(), 256U);
    std::string differences;
    for (const PageLine& line : bench.page) {
        bench.conditionsMet.clear();
        for (int i = 0; i < kStatesPerOpcode; ++i) {
            const std::string difference = bench.difference(line);
            if (differences.size() < 3000) differences += difference;
        }
        EXPECT_EQ(bench.conditionsMet, possibleConditions(line)) << line.text();
    }
    EXPECT_EQ(differences, "");
}

TEST(GoldenPage, TheNmosCoreDoesWhatItsPageSaysInEveryBusCycleRegisterAndByte) {
    compareWithPage<m6502, m6502Descriptor>("m6502.txt", false);
}

TEST(GoldenPage, TheCmosCoreDoesWhatItsPageSaysInEveryBusCycleRegisterAndByte) {
    compareWithPage<w65c02, w65c02Descriptor>("w65c02.txt", true);
}

TEST(GoldenPage, EachLineIsAtItsPlaceAndCountsItsOwnTrace) {
    for (const std::string name : {"m6502.txt", "w65c02.txt"}) {
        const std::vector<PageLine> page = readPage(__FILE__, name);
        for (std::size_t i = 0; i < page.size(); ++i) {
            const PageLine& line = page[i];
            EXPECT_EQ(line.opcode, static_cast<int>(i)) << name;
            if (line.neverEnds()) {
                EXPECT_EQ(line.trace.back(), "...") << name << " " << line.text();
                continue;
            }
            std::string conditions;
            int always = 0;
            for (const std::string& cycle : line.trace) {
                const std::size_t slash = cycle.find('/');
                if (slash == std::string::npos) {
                    ++always;
                } else {
                    conditions += "+" + cycle.substr(slash + 1);
                }
            }
            EXPECT_EQ(line.cycles, std::to_string(always) + conditions) << name << " " << line.text();
        }
    }
}

}  // namespace
}  // namespace tarnsim
