#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "Core/Components/CPUs/CycleActions.h"
#include "Core/Components/CPUs/CycleCore.h"
#include "Core/Components/CPUs/CycleOperations.h"

// Instructions as sequences of clock cycles, one line a cycle.
//
// A step is one cycle: a list of actions, done in order. It works on the byte that the cycle before has brought, and
// ends with the address of the next cycle in the mask. Step 0 is the cycle behind the opcode fetch; the last step puts
// the next opcode fetch into the mask, so an instruction has as many steps as it takes cycles.

namespace tarnsim {

inline constexpr std::size_t kMostSteps = 8;

/// The steps of one instruction, for a core with the record `Core`. Steps beyond its last are never reached.
template <class Core>
struct Program {
    using Step = std::uint64_t (*)(Core&, std::uint64_t pins);

    std::array<Step, kMostSteps> steps{};
    std::size_t length = 0;

    constexpr Program() = default;
    constexpr Program(std::initializer_list<Step> list) {
        for (const Step each : list) steps.at(length++) = each;  // a ninth step doesn't compile
    }
};

/// The sequences that both processors have in common. `OwnCycles` says what a chip does in the cycles that it needs for
/// itself:
/// - `carryRead<index>`: the cycle that corrects the high byte of an indexed address before a read; leaves out the next
///   step if that address was right at once
/// - `carry<index>`: the same before a write or a change, which always takes it
/// - `beforeChange`: the cycle between reading a byte and writing the changed one
template <class Core, class OwnCycles>
struct CommonSequences {
    using Program = tarnsim::Program<Core>;

    /// One cycle: the actions in order. The mask comes and goes in a register; a tick that had to wait for the record
    /// each time would take half as long again.
    template <auto... Actions>
    static std::uint64_t step(Core& c, std::uint64_t pins) {
        c.pins = pins;
        (Actions(c), ...);
        return c.pins;
    }

    template <auto Op>
    static constexpr Program implied = {
        step<CycleAction::readPc>,
        step<Op, fetch>,
    };

    template <auto Op>
    static constexpr Program immediate = {
        step<CycleAction::readOperand>,
        step<Op, fetch>,
    };

    // Reads

    template <auto Op>
    static constexpr Program zeroPageRead = {
        step<CycleAction::readOperand>,
        step<CycleAction::readZeroPage>,
        step<Op, fetch>,
    };
    template <auto Op, auto index>
    static constexpr Program zeroPageIndexedRead = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readLatch>,
        step<CycleAction::indexZeroPage<index>, CycleAction::readLatch>,
        step<Op, fetch>,
    };
    template <auto Op>
    static constexpr Program absoluteRead = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readOperand>,
        step<CycleAction::latchHigh, CycleAction::readLatch>,
        step<Op, fetch>,
    };
    template <auto Op>
    static constexpr Program indexedIndirectRead = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readLatch>,
        step<CycleAction::indexZeroPage<&CycleCore::x>, CycleAction::readLatch>,
        step<CycleAction::readNextZeroPage, CycleAction::latchLow>,
        step<CycleAction::latchHigh, CycleAction::readLatch>,
        step<Op, fetch>,
    };

    template <auto Op, auto index>
    static constexpr Program absoluteIndexedRead = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readOperand>,
        step<CycleAction::latchHigh, OwnCycles::template carryRead<index>>,
        step<CycleAction::readIndexed<index>>,
        step<Op, fetch>,
    };
    template <auto Op>
    static constexpr Program indirectIndexedRead = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readLatch>,
        step<CycleAction::readNextZeroPage, CycleAction::latchLow>,
        step<CycleAction::latchHigh, OwnCycles::template carryRead<&CycleCore::y>>,
        step<CycleAction::readIndexed<&CycleCore::y>>,
        step<Op, fetch>,
    };

    // Writes

    template <auto Value>
    static constexpr Program zeroPageWrite = {
        step<CycleAction::readOperand>,
        step<CycleAction::readZeroPage, CycleAction::write<Value>>,
        step<fetch>,
    };
    template <auto Value, auto index>
    static constexpr Program zeroPageIndexedWrite = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readLatch>,
        step<CycleAction::indexZeroPage<index>, CycleAction::readLatch, CycleAction::write<Value>>,
        step<fetch>,
    };
    template <auto Value>
    static constexpr Program absoluteWrite = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readOperand>,
        step<CycleAction::latchHigh, CycleAction::readLatch, CycleAction::write<Value>>,
        step<fetch>,
    };
    template <auto Value>
    static constexpr Program indexedIndirectWrite = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readLatch>,
        step<CycleAction::indexZeroPage<&CycleCore::x>, CycleAction::readLatch>,
        step<CycleAction::readNextZeroPage, CycleAction::latchLow>,
        step<CycleAction::latchHigh, CycleAction::readLatch, CycleAction::write<Value>>,
        step<fetch>,
    };

    template <auto Value, auto index>
    static constexpr Program absoluteIndexedWrite = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readOperand>,
        step<CycleAction::latchHigh, OwnCycles::template carry<index>>,
        step<CycleAction::readIndexed<index>, CycleAction::write<Value>>,
        step<fetch>,
    };
    template <auto Value>
    static constexpr Program indirectIndexedWrite = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readLatch>,
        step<CycleAction::readNextZeroPage, CycleAction::latchLow>,
        step<CycleAction::latchHigh, OwnCycles::template carry<&CycleCore::y>>,
        step<CycleAction::readIndexed<&CycleCore::y>, CycleAction::write<Value>>,
        step<fetch>,
    };

    // Changes of a byte in memory

    template <auto Change>
    static constexpr Program zeroPageModify = {
        step<CycleAction::readOperand>,
        step<CycleAction::readZeroPage>,
        step<CycleAction::latchByte, OwnCycles::beforeChange>,
        step<CycleAction::writeChanged<Change>>,
        step<fetch>,
    };
    template <auto Change>
    static constexpr Program zeroPageIndexedModify = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readLatch>,
        step<CycleAction::indexZeroPage<&CycleCore::x>, CycleAction::readLatch>,
        step<CycleAction::latchByte, OwnCycles::beforeChange>,
        step<CycleAction::writeChanged<Change>>,
        step<fetch>,
    };
    template <auto Change>
    static constexpr Program absoluteModify = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readOperand>,
        step<CycleAction::latchHigh, CycleAction::readLatch>,
        step<CycleAction::latchByte, OwnCycles::beforeChange>,
        step<CycleAction::writeChanged<Change>>,
        step<fetch>,
    };
    template <auto Change, auto index>
    static constexpr Program absoluteIndexedModify = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readOperand>,
        step<CycleAction::latchHigh, OwnCycles::template carry<index>>,
        step<CycleAction::readIndexed<index>>,
        step<CycleAction::latchByte, OwnCycles::beforeChange>,
        step<CycleAction::writeChanged<Change>>,
        step<fetch>,
    };

    // Stack

    template <auto Value>
    static constexpr Program push = {
        step<CycleAction::readPc>,
        step<CycleAction::push, CycleAction::write<Value>>,
        step<fetch>,
    };
    template <auto Op>
    static constexpr Program pull = {
        step<CycleAction::readPc>,
        step<CycleAction::pull>,
        step<CycleAction::readStack>,
        step<Op, fetch>,
    };

    // Flow

    static constexpr Program jumpAbsolute = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readOperand>,
        step<CycleAction::jump, fetch>,
    };
    static constexpr Program jumpToSubroutine = {
        step<CycleAction::readOperand>,
        step<CycleAction::latchLow, CycleAction::readStack>,
        step<CycleAction::push, CycleAction::write<CycleAction::pcHigh>>,
        step<CycleAction::push, CycleAction::write<CycleAction::pcLow>>,
        step<CycleAction::readPc>,
        step<CycleAction::jump, fetch>,
    };
    static constexpr Program returnFromSubroutine = {
        step<CycleAction::readPc>,
        step<CycleAction::pull>,
        step<CycleAction::pull>,
        step<CycleAction::latchLow, CycleAction::readStack>,
        step<CycleAction::jump, CycleAction::readOperand>,
        step<fetch>,
    };
    static constexpr Program returnFromInterrupt = {
        step<CycleAction::readPc>,
        step<CycleAction::pull>,
        step<CycleAction::pull>,
        step<CycleOperation::pullStatus, CycleAction::pull>,
        step<CycleAction::latchLow, CycleAction::readStack>,
        step<CycleAction::jump, fetch>,
    };
    template <std::uint8_t flag, bool isSet>
    static constexpr Program branch = {
        step<CycleAction::readOperand>,
        step<CycleAction::readPc, CycleAction::latchTarget, CycleAction::fetchUnlessTaken<flag, isSet>>,
        step<CycleAction::readTargetUncarried, CycleAction::fetchIfSamePage>,
        step<CycleAction::goToLatch, fetch>,
    };
    /// `AtVector` is what the core does beside reading the low byte of the vector.
    template <auto AtVector>
    static constexpr Program breakWith = {
        step<CycleAction::readPc>,
        step<CycleAction::skipSignature, CycleAction::pushUnlessReset<CycleAction::pcHigh>>,
        step<CycleAction::pushUnlessReset<CycleAction::pcLow>>,
        step<CycleAction::pushUnlessReset<CycleOperation::status>, CycleAction::latchVector>,
        step<CycleAction::readVector, AtVector>,
        step<CycleAction::readLatch, CycleAction::latchLow>,
        step<CycleAction::jump, fetch>,
    };
};

}  // namespace tarnsim
