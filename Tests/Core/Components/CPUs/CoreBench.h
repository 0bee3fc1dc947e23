#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "Core/Components/CPUs/CycleCore.h"
#include "Core/Support/Text.h"

namespace tarnsim {

/// A core on 64 KiB of memory, that notes its bus cycles.
template <class Core, class Descriptor>
class CoreBench {
public:
    struct BusCycle {
        std::uint16_t address;
        std::uint8_t data;
        bool isRead;
        bool operator==(const BusCycle&) const = default;
    };

    CoreBench() { restart(); }

    void restart() {
        const Descriptor descriptor;
        pins = initialise(&core, &descriptor);
    }

    /// Leaves the reset behind: the next tick gets the byte at `pc` as its opcode.
    void standAt(std::uint16_t pc) {
        restart();
        core.pc = pc;
        core.p = CycleFlag::kB;
        pins = core.pins = CyclePin::kRW | CyclePin::kSync | pc;
    }

    /// Carries out the bus cycle that the mask asks for and ticks, with the lines in `lines` active.
    void tick(std::uint64_t lines = 0) {
        const auto address = static_cast<std::uint16_t>(pins & CyclePin::kAddress);
        if ((pins & CyclePin::kRW) != 0) {
            pins = (pins & ~CyclePin::kData) | std::uint64_t{memory[address]} << CyclePin::kDataShift;
            bus.push_back({address, memory[address], true});
        } else {
            memory[address] = static_cast<std::uint8_t>(pins >> CyclePin::kDataShift);
            bus.push_back({address, memory[address], false});
        }
        pins = tarnsim::tick(&core, (pins & ~kLines) | lines);
    }
    /// Up to the cycle that fetches the next opcode, which isn't carried out. False after `limit` ticks.
    bool runInstruction(int limit = 16) {
        for (int i = 0; i < limit; ++i) {
            tick();
            if ((pins & CyclePin::kSync) != 0) return true;
        }
        return false;
    }
    std::uint16_t address() const { return static_cast<std::uint16_t>(pins & CyclePin::kAddress); }

    static constexpr std::uint64_t kLines = CyclePin::kIrq | CyclePin::kNmi | CyclePin::kRdy | CyclePin::kRes;

    Core core{};
    std::uint64_t pins = 0;
    std::vector<std::uint8_t> memory = std::vector<std::uint8_t>(0x10000);
    std::vector<BusCycle> bus;  ///< since the start
};

}  // namespace tarnsim
