#pragma once

#include <array>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace tarnsim {

/// One instruction of a real processor, with every bus cycle: recorded cases that lie beside the checkout on machines
/// that have them.
struct ProcessorCase {
    struct Cell {
        std::uint16_t address;
        std::uint8_t value;
    };
    struct State {
        std::uint16_t pc;
        std::uint8_t s, a, x, y, p;
        std::vector<Cell> memory;
    };
    struct BusCycle {
        std::uint16_t address;
        std::uint8_t data;
        bool isRead;
    };

    std::string name;
    State before;
    State after;
    std::vector<BusCycle> bus;

    int opcode() const { return std::stoi(name.substr(0, 2), nullptr, 16); }
};

/// The cases of one file; none if it isn't there.
class ProcessorCases {
public:
    explicit ProcessorCases(const std::string& path) {
        std::ifstream stream(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(stream), {});
    }

    std::vector<ProcessorCase> read() {
        std::vector<ProcessorCase> cases;
        while (position_ < bytes_.size()) cases.push_back(readCase());
        return cases;
    }

private:
    std::uint8_t byte() { return static_cast<std::uint8_t>(bytes_.at(position_++)); }
    std::uint16_t word() {
        const unsigned high = byte();
        return static_cast<std::uint16_t>(high << 8U | byte());
    }
    ProcessorCase::State readState() {
        ProcessorCase::State state{};
        state.pc = word();
        for (std::uint8_t* each : {&state.s, &state.a, &state.x, &state.y, &state.p}) *each = byte();
        for (int left = byte(); left > 0; --left) {
            const std::uint16_t address = word();
            state.memory.push_back({address, byte()});
        }
        return state;
    }
    ProcessorCase readCase() {
        ProcessorCase result;
        result.name = bytes_.substr(position_, 10).c_str();
        position_ += 10;
        result.before = readState();
        result.after = readState();
        for (int left = byte(); left > 0; --left) {
            const std::uint16_t address = word();
            const std::uint8_t data = byte();
            result.bus.push_back({address, data, byte() == 'r'});
        }
        return result;
    }

    std::string bytes_;
    std::size_t position_ = 0;
};

}  // namespace tarnsim
