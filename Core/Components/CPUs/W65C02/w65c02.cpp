#include "Core/Components/CPUs/W65C02/w65c02.h"

#include "Core/Components/CPUs/CycleInstructions.h"

namespace tarnsim {

namespace {

using namespace CycleAction;
using namespace CycleOperation;

// Operations that the NMOS chip lacks

std::uint8_t zero(CycleCore& /*c*/) {
    return 0;
}
/// Sets or resets the bits of a byte that are set in A; Z tells whether there was any of them.
std::uint8_t tsb(CycleCore& c, std::uint8_t v) {
    setFlag(c, CycleFlag::kZ, (c.a & v) == 0);
    return c.a | v;
}
std::uint8_t trb(CycleCore& c, std::uint8_t v) {
    setFlag(c, CycleFlag::kZ, (c.a & v) == 0);
    return static_cast<std::uint8_t>(v & ~c.a);
}
template <int number, bool isSet>
std::uint8_t setBit(CycleCore& /*c*/, std::uint8_t v) {
    return static_cast<std::uint8_t>(isSet ? v | (1U << number) : v & ~(1U << number));
}

void clearDecimal(CycleCore& c) {
    setFlag(c, CycleFlag::kD, false);
    c.pins |= CyclePin::kVp;
}

/// Ends an addition or subtraction unless D is set: then one more cycle looks at the result.
void fetchUnlessDecimal(CycleCore& c) {
    if ((c.p & CycleFlag::kD) == 0) fetch(c);
}
void flagsOfA(CycleCore& c) {
    setNZ(c, c.a);
}

void wait(w65c02& c) {
    if ((c.pins & (CyclePin::kIrq | CyclePin::kNmi)) != 0) return;
    c.waiting = 1;
    c.pins |= CyclePin::kRdy;
}
void stop(w65c02& c) {
    c.stopped = 1;
}

/// Reads the operand's last byte again.
void readLastOperand(CycleCore& c) {
    setAddress(c, c.pc - 1U);
}

/// While the CMOS chip needs a cycle for itself it reads something harmless again; before it writes a changed byte it
/// reads the old one twice.
struct OwnCycles {
    /// Without a carry the indexed address comes at once.
    template <Register index>
    static void carryRead(CycleCore& c) {
        if (crossesPage<index>(c)) {
            readLastOperand(c);
        } else {
            readIndexed<index>(c);
            ++c.ir;
        }
    }
    template <Register index>
    static constexpr auto carry = readLastOperand;
    static constexpr auto beforeChange = nop;
};

/// The sequences in which the CMOS chip is on its own.
struct Sequences : CommonSequences<w65c02, OwnCycles> {
    template <auto Op>
    static constexpr Program oneCycle = {
        step<Op, fetch>,
    };

    template <auto Op>
    static constexpr Program indirectRead = {
        step<readOperand>,          step<latchLow, readLatch>, step<readNextZeroPage, latchLow>,
        step<latchHigh, readLatch>, step<Op, fetch>,
    };
    template <auto Value>
    static constexpr Program indirectWrite = {
        step<readOperand>,
        step<latchLow, readLatch>,
        step<readNextZeroPage, latchLow>,
        step<latchHigh, readLatch, write<Value>>,
        step<fetch>,
    };

    /// A shift takes the cycle of the carry only when there is one; other changes take it always.
    template <auto Change>
    static constexpr Program absoluteIndexedShift = {
        step<readOperand>,
        step<latchLow, readOperand>,
        step<latchHigh, OwnCycles::carryRead<X>>,
        step<readIndexed<X>>,
        step<latchByte, OwnCycles::beforeChange>,
        step<writeChanged<Change>>,
        step<fetch>,
    };

    static void readNext(CycleCore& c) { setAddress(c, c.ad + 1U); }
    static constexpr Program jumpIndirect = {
        step<readOperand>, step<latchLow, readOperand>, step<latchHigh, readLatch>, step<readNext, latchLow>,
        step<nop>,  // the high byte once more
        step<jump, fetch>,
    };
    static void readFirstOperand(CycleCore& c) { setAddress(c, c.pc - 2U); }
    static void indexLatch(CycleCore& c) { c.ad = static_cast<std::uint16_t>(c.ad + c.x); }
    static constexpr Program jumpIndexedIndirect = {
        step<readOperand>,           step<latchLow, readOperand>, step<latchHigh, readFirstOperand>,
        step<indexLatch, readLatch>, step<readNext, latchLow>,    step<jump, fetch>,
    };
    static constexpr Program breakSequence = breakWith<clearDecimal>;

    /// Reads the target's low byte in the page of the next instruction, taken or not.
    template <int number, bool isSet>
    static void chooseTarget(CycleCore& c) {
        const bool isTaken = (((c.ad >> number) & 1U) != 0) == isSet;
        latchTarget(c);
        readTargetUncarried(c);
        if (!isTaken) c.ad = c.pc;
    }
    template <int number, bool isSet>
    static constexpr Program branchOnBit = {
        step<readOperand>,
        step<readZeroPage>,
        step<latchByte, writeBack>,
        step<readOperand>,
        step<chooseTarget<number, isSet>>,
        step<goToLatch, fetch>,
    };

    static constexpr Program waitForInterrupt = {
        step<readPc, wait>,
        step<nop>,
        step<fetch>,
    };
    static constexpr Program stopped = {
        step<readPc, stop>,
        step<fetch>,
    };

    /// Does nothing for four cycles.
    static constexpr Program idleAbsolute = {
        step<readOperand>,
        step<readOperand>,
        step<readLastOperand>,
        step<fetch>,
    };
    /// And for eight.
    static constexpr Program idleLong = {
        step<readOperand>,     step<readOperand>,     step<readLastOperand>, step<readLastOperand>,
        step<readLastOperand>, step<readLastOperand>, step<readLastOperand>, step<fetch>,
    };
};

/// Addition or subtraction: in decimal mode one more cycle, which reads the operand again and sets N and Z by the
/// result.
template <auto Op>
constexpr Program<w65c02> arithmetic(Program<w65c02> program) {
    program.steps.at(program.length - 1) = Sequences::step<Op, fetchUnlessDecimal>;
    program.steps.at(program.length++) = Sequences::step<flagsOfA, fetch>;
    return program;
}
/// With an immediate operand that cycle reads at an odd place, as the chip does.
template <auto Op, unsigned address>
constexpr Program<w65c02> immediateArithmetic() {
    auto program = arithmetic<Op>(Sequences::immediate<Op>);
    constexpr auto readOddPlace = [](CycleCore& c) { setAddress(c, address); };
    program.steps.at(1) = Sequences::step<Op, readOddPlace, fetchUnlessDecimal>;
    return program;
}

/// What this chip has beside the common instructions.
class InstructionSet : public InstructionTable<w65c02, Sequences> {
public:
    /// Additions and subtractions.
    template <auto Op, unsigned oddPlace>
    constexpr void add(const Opcodes& at) {
        set(at.imm, immediateArithmetic<Op, oddPlace>());
        set(at.zp, arithmetic<Op>(Sequences::zeroPageRead<Op>));
        set(at.zpX, arithmetic<Op>(Sequences::zeroPageIndexedRead<Op, X>));
        set(at.abs, arithmetic<Op>(Sequences::absoluteRead<Op>));
        set(at.absX, arithmetic<Op>(Sequences::absoluteIndexedRead<Op, X>));
        set(at.absY, arithmetic<Op>(Sequences::absoluteIndexedRead<Op, Y>));
        set(at.indX, arithmetic<Op>(Sequences::indexedIndirectRead<Op>));
        set(at.indY, arithmetic<Op>(Sequences::indirectIndexedRead<Op>));
    }
    /// RMB, SMB, BBR and BBS for one bit; the opcodes of the higher bits lie 0x10 apart.
    template <int number>
    constexpr void bitInstructions() {
        constexpr int column = number * 0x10;
        set(0x07 + column, Sequences::zeroPageModify<setBit<number, false>>);
        set(0x87 + column, Sequences::zeroPageModify<setBit<number, true>>);
        set(0x0F + column, Sequences::branchOnBit<number, false>);
        set(0x8F + column, Sequences::branchOnBit<number, true>);
    }
};

constexpr InstructionSet instructions() {
    InstructionSet s;
    // clang-format off
    s.add<adc, 0x7F>({.imm = 0x69, .zp = 0x65, .zpX = 0x75, .abs = 0x6D, .absX = 0x7D, .absY = 0x79, .indX = 0x61, .indY = 0x71});
    s.add<sbc, 0xB8>({.imm = 0xE9, .zp = 0xE5, .zpX = 0xF5, .abs = 0xED, .absX = 0xFD, .absY = 0xF9, .indX = 0xE1, .indY = 0xF1});

    // By (zp)
    s.set(0x12, Sequences::indirectRead<ora>);      s.set(0x32, Sequences::indirectRead<andA>);
    s.set(0x52, Sequences::indirectRead<eor>);      s.set(0xD2, Sequences::indirectRead<compare<A>>);
    s.set(0xB2, Sequences::indirectRead<load<A>>);  s.set(0x92, Sequences::indirectWrite<valueOf<A>>);
    s.set(0x72, arithmetic<adc>(Sequences::indirectRead<adc>));
    s.set(0xF2, arithmetic<sbc>(Sequences::indirectRead<sbc>));

    s.write<zero>({.zp = 0x64, .zpX = 0x74, .abs = 0x9C, .absX = 0x9E});
    s.read<bit>({.zpX = 0x34, .absX = 0x3C});
    s.read<bitImmediate>({.imm = 0x89});
    s.modify<tsb>({.zp = 0x04, .abs = 0x0C});
    s.modify<trb>({.zp = 0x14, .abs = 0x1C});

    s.bitInstructions<0>();  s.bitInstructions<1>();  s.bitInstructions<2>();  s.bitInstructions<3>();
    s.bitInstructions<4>();  s.bitInstructions<5>();  s.bitInstructions<6>();  s.bitInstructions<7>();

    s.implied<changeRegister<inc, A>>(0x1A);  s.implied<changeRegister<dec, A>>(0x3A);
    s.push<valueOf<X>>(0xDA);  s.pull<load<X>>(0xFA);
    s.push<valueOf<Y>>(0x5A);  s.pull<load<Y>>(0x7A);

    s.branch<kAlways, true>(0x80);
    s.set(0x7C, Sequences::jumpIndexedIndirect);
    s.set(0xCB, Sequences::waitForInterrupt);
    s.set(0xDB, Sequences::stopped);

    // Opcodes without an instruction
    for (int opcode = 0x03; opcode < 0x100; opcode += 0x10) s.set(opcode, Sequences::oneCycle<nop>);
    for (int opcode = 0x0B; opcode < 0x100; opcode += 0x10) {
        if (opcode != 0xCB && opcode != 0xDB) s.set(opcode, Sequences::oneCycle<nop>);
    }
    for (const int opcode : {0x02, 0x22, 0x42, 0x62, 0x82, 0xC2, 0xE2}) s.read<nop>({.imm = opcode});
    s.read<nop>({.zp = 0x44});
    for (const int opcode : {0x54, 0xD4, 0xF4}) s.read<nop>({.zpX = opcode});
    s.set(0x5C, Sequences::idleLong);
    s.set(0xDC, Sequences::idleAbsolute);
    s.set(0xFC, Sequences::idleAbsolute);
    // clang-format on
    return s;
}

constexpr InstructionSet kInstructions = instructions();
static_assert(kInstructions.isComplete());

/// One dispatch a tick.
constexpr auto kSteps = kInstructions.flatten(Sequences::step<unreachableStep>);

std::uint64_t holdIrq(w65c02& c, std::uint64_t pins) {
    c.irqPipeline = static_cast<std::uint16_t>(c.irqPipeline << 1U);
    return c.pins = pins;
}

}  // namespace

std::uint64_t tick(w65c02* c, std::uint64_t pins) {
    if (c->stopped != 0 && (pins & CyclePin::kRes) == 0) return pins;
    if ((pins & CyclePin::kRes) != 0) {
        c->stopped = 0;
        c->waiting = 0;
        c->pins = pins = CyclePin::kAfterReset;
    } else if ((pins & (CyclePin::kSync | CyclePin::kIrq | CyclePin::kNmi | CyclePin::kRdy)) != 0) {
        sampleInterrupts(*c, pins);
        if (c->waiting != 0 && (pins & (CyclePin::kIrq | CyclePin::kNmi)) != 0) {
            c->waiting = 0;
            return holdIrq(*c, pins & ~CyclePin::kRdy);
        }
        if ((pins & CyclePin::kRdy) != 0) return holdIrq(*c, pins);
    }
    if ((pins & CyclePin::kSync) != 0) pins = beginInstruction(*c, pins);
    const std::size_t next = c->ir++;
    if (next >= kSteps.size()) unreachableStep(*c);
    pins = kSteps[next](*c, (pins | CyclePin::kRW) & ~CyclePin::kVp);
    shiftPipelines(*c);
    return pins;
}

}  // namespace tarnsim
