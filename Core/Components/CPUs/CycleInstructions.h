#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "Core/Components/CPUs/CycleOperations.h"
#include "Core/Components/CPUs/CycleSequences.h"

// Instruction sets: which opcode runs which sequence, and the opcodes that both processors have in common.

namespace tarnsim {

/// Opcodes of one instruction, by addressing mode.
struct Opcodes {
    static constexpr int kNone = -1;

    int imm = kNone;
    int zp = kNone;
    int zpX = kNone;
    int zpY = kNone;
    int abs = kNone;
    int absX = kNone;
    int absY = kNone;
    int indX = kNone;  ///< (zp,X)
    int indY = kNone;  ///< (zp),Y
};

/// All instructions of a processor while they are put together, at compile time.
template <class Core>
class ProgramTable {
public:
    using Program = tarnsim::Program<Core>;
    using Step = typename Program::Step;

    /// An opcode that is given twice doesn't compile. No opcode, no entry.
    constexpr void set(int opcode, const Program& program) {
        if (opcode == Opcodes::kNone) return;
        Program& entry = programs_.at(static_cast<std::size_t>(opcode));
        if (entry.length != 0) throw "opcode given twice";
        entry = program;
    }

    constexpr bool isComplete() const {
        return std::ranges::all_of(programs_, [](const Program& each) { return each.length > 0; });
    }

    /// The table that a tick goes through, with `unreachable` behind the last step of each instruction.
    constexpr std::array<Step, 256 * kMostSteps> flatten(Step unreachable) const {
        std::array<Step, 256 * kMostSteps> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            const Program& program = programs_[i / kMostSteps];
            const std::size_t step = i % kMostSteps;
            table[i] = step < program.length ? program.steps[step] : unreachable;
        }
        return table;
    }

private:
    std::array<Program, 256> programs_{};
};

/// The instruction set of a core whose sequences are in `Sequences`: a line for each mnemonic, a column for each
/// addressing mode.
///
/// A fresh table holds what both processors have; a core enters the rest. An addressing mode that a member doesn't know
/// is passed over, and shows as an opcode that is missing from the complete set.
template <class Core, class Sequences>
class InstructionTable : public ProgramTable<Core> {
public:
    using ProgramTable<Core>::set;

    constexpr InstructionTable() {
        enterMemoryInstructions();
        enterRegisterInstructions();
        enterFlow();
    }

    template <auto Op>
    constexpr void read(const Opcodes& at) {
        using namespace CycleOperation;
        set(at.imm, Sequences::template immediate<Op>);
        set(at.zp, Sequences::template zeroPageRead<Op>);
        set(at.zpX, Sequences::template zeroPageIndexedRead<Op, X>);
        set(at.zpY, Sequences::template zeroPageIndexedRead<Op, Y>);
        set(at.abs, Sequences::template absoluteRead<Op>);
        set(at.absX, Sequences::template absoluteIndexedRead<Op, X>);
        set(at.absY, Sequences::template absoluteIndexedRead<Op, Y>);
        set(at.indX, Sequences::template indexedIndirectRead<Op>);
        set(at.indY, Sequences::template indirectIndexedRead<Op>);
    }
    template <auto Value>
    constexpr void write(const Opcodes& at) {
        using namespace CycleOperation;
        set(at.zp, Sequences::template zeroPageWrite<Value>);
        set(at.zpX, Sequences::template zeroPageIndexedWrite<Value, X>);
        set(at.zpY, Sequences::template zeroPageIndexedWrite<Value, Y>);
        set(at.abs, Sequences::template absoluteWrite<Value>);
        set(at.absX, Sequences::template absoluteIndexedWrite<Value, X>);
        set(at.absY, Sequences::template absoluteIndexedWrite<Value, Y>);
        set(at.indX, Sequences::template indexedIndirectWrite<Value>);
        set(at.indY, Sequences::template indirectIndexedWrite<Value>);
    }
    template <auto Change>
    constexpr void modify(const Opcodes& at) {
        set(at.zp, Sequences::template zeroPageModify<Change>);
        set(at.zpX, Sequences::template zeroPageIndexedModify<Change>);
        set(at.abs, Sequences::template absoluteModify<Change>);
    }
    /// Shifts and counts may differ where an index is added.
    template <auto Change>
    constexpr void shift(const Opcodes& at) {
        modify<Change>(at);
        set(at.absX, Sequences::template absoluteIndexedShift<Change>);
    }
    template <auto Change>
    constexpr void count(const Opcodes& at) {
        modify<Change>(at);
        set(at.absX, Sequences::template absoluteIndexedModify<Change, CycleOperation::X>);
    }
    template <auto Op>
    constexpr void implied(int opcode) {
        set(opcode, Sequences::template implied<Op>);
    }
    template <auto Value>
    constexpr void push(int opcode) {
        set(opcode, Sequences::template push<Value>);
    }
    template <auto Op>
    constexpr void pull(int opcode) {
        set(opcode, Sequences::template pull<Op>);
    }
    template <std::uint8_t flag, bool isSet>
    constexpr void branch(int opcode) {
        set(opcode, Sequences::template branch<flag, isSet>);
    }

private:
    // clang-format off
    constexpr void enterMemoryInstructions() {
        using namespace CycleOperation;
        read<load<A>>    ({.imm = 0xA9, .zp = 0xA5, .zpX = 0xB5, .abs = 0xAD, .absX = 0xBD, .absY = 0xB9, .indX = 0xA1, .indY = 0xB1});
        read<load<X>>    ({.imm = 0xA2, .zp = 0xA6, .zpY = 0xB6, .abs = 0xAE, .absY = 0xBE});
        read<load<Y>>    ({.imm = 0xA0, .zp = 0xA4, .zpX = 0xB4, .abs = 0xAC, .absX = 0xBC});
        write<valueOf<A>>({             .zp = 0x85, .zpX = 0x95, .abs = 0x8D, .absX = 0x9D, .absY = 0x99, .indX = 0x81, .indY = 0x91});
        write<valueOf<X>>({             .zp = 0x86, .zpY = 0x96, .abs = 0x8E});
        write<valueOf<Y>>({             .zp = 0x84, .zpX = 0x94, .abs = 0x8C});

        read<ora>        ({.imm = 0x09, .zp = 0x05, .zpX = 0x15, .abs = 0x0D, .absX = 0x1D, .absY = 0x19, .indX = 0x01, .indY = 0x11});
        read<andA>       ({.imm = 0x29, .zp = 0x25, .zpX = 0x35, .abs = 0x2D, .absX = 0x3D, .absY = 0x39, .indX = 0x21, .indY = 0x31});
        read<eor>        ({.imm = 0x49, .zp = 0x45, .zpX = 0x55, .abs = 0x4D, .absX = 0x5D, .absY = 0x59, .indX = 0x41, .indY = 0x51});
        read<compare<A>> ({.imm = 0xC9, .zp = 0xC5, .zpX = 0xD5, .abs = 0xCD, .absX = 0xDD, .absY = 0xD9, .indX = 0xC1, .indY = 0xD1});
        read<compare<X>> ({.imm = 0xE0, .zp = 0xE4, .abs = 0xEC});
        read<compare<Y>> ({.imm = 0xC0, .zp = 0xC4, .abs = 0xCC});
        read<bit>        ({             .zp = 0x24, .abs = 0x2C});

        shift<asl>       ({.zp = 0x06, .zpX = 0x16, .abs = 0x0E, .absX = 0x1E});
        shift<rol>       ({.zp = 0x26, .zpX = 0x36, .abs = 0x2E, .absX = 0x3E});
        shift<lsr>       ({.zp = 0x46, .zpX = 0x56, .abs = 0x4E, .absX = 0x5E});
        shift<ror>       ({.zp = 0x66, .zpX = 0x76, .abs = 0x6E, .absX = 0x7E});
        count<dec>       ({.zp = 0xC6, .zpX = 0xD6, .abs = 0xCE, .absX = 0xDE});
        count<inc>       ({.zp = 0xE6, .zpX = 0xF6, .abs = 0xEE, .absX = 0xFE});
    }

    constexpr void enterRegisterInstructions() {
        using namespace CycleOperation;
        implied<changeRegister<asl, A>>(0x0A);  implied<changeRegister<rol, A>>(0x2A);
        implied<changeRegister<lsr, A>>(0x4A);  implied<changeRegister<ror, A>>(0x6A);
        implied<changeRegister<inc, X>>(0xE8);  implied<changeRegister<dec, X>>(0xCA);
        implied<changeRegister<inc, Y>>(0xC8);  implied<changeRegister<dec, Y>>(0x88);

        implied<transfer<A, X>>(0xAA);  implied<transfer<X, A>>(0x8A);  implied<transfer<S, X>>(0xBA);
        implied<transfer<A, Y>>(0xA8);  implied<transfer<Y, A>>(0x98);  implied<txs>(0x9A);

        implied<flagTo<CycleFlag::kC, false>>(0x18);  implied<flagTo<CycleFlag::kC, true>>(0x38);
        implied<flagTo<CycleFlag::kI, false>>(0x58);  implied<flagTo<CycleFlag::kI, true>>(0x78);
        implied<flagTo<CycleFlag::kD, false>>(0xD8);  implied<flagTo<CycleFlag::kD, true>>(0xF8);
        implied<flagTo<CycleFlag::kV, false>>(0xB8);  implied<nop>(0xEA);

        push<valueOf<A>>(0x48);  pull<load<A>>(0x68);
        push<status>(0x08);      pull<pullStatus>(0x28);
    }

    constexpr void enterFlow() {
        branch<CycleFlag::kN, false>(0x10);  branch<CycleFlag::kN, true>(0x30);
        branch<CycleFlag::kV, false>(0x50);  branch<CycleFlag::kV, true>(0x70);
        branch<CycleFlag::kC, false>(0x90);  branch<CycleFlag::kC, true>(0xB0);
        branch<CycleFlag::kZ, false>(0xD0);  branch<CycleFlag::kZ, true>(0xF0);

        set(0x4C, Sequences::jumpAbsolute);      set(0x6C, Sequences::jumpIndirect);
        set(0x20, Sequences::jumpToSubroutine);  set(0x60, Sequences::returnFromSubroutine);
        set(0x00, Sequences::breakSequence);     set(0x40, Sequences::returnFromInterrupt);
    }
    // clang-format on
};

}  // namespace tarnsim
