#include "Core/Components/CPUs/MOS6502/m6502.h"

#include "Core/Components/CPUs/CycleInstructions.h"

namespace tarnsim {

namespace {

using namespace CycleAction;
using namespace CycleOperation;

// The undocumented operations on a byte that was read.

void anc(CycleCore& c) {
    andA(c);
    setFlag(c, CycleFlag::kC, (c.a & 0x80U) != 0);
}
void alr(CycleCore& c) {
    c.a &= dataOf(c);
    c.a = lsr(c, c.a);
}
void arr(CycleCore& c) {
    setAccumulator(c, CycleArithmetic::arr({c.a, c.p}, dataOf(c), isDecimal(c)));
}
/// The chip's own noise, taken as a constant.
constexpr std::uint8_t kUnstable = 0xEE;
void ane(CycleCore& c) {
    c.a = static_cast<std::uint8_t>((c.a | kUnstable) & c.x & dataOf(c));
    setNZ(c, c.a);
}
void lxa(CycleCore& c) {
    c.a = c.x = static_cast<std::uint8_t>((c.a | kUnstable) & dataOf(c));
    setNZ(c, c.a);
}
void sbx(CycleCore& c) {
    const auto both = static_cast<std::uint8_t>(c.a & c.x);
    compareWith(c, both, dataOf(c));
    c.x = static_cast<std::uint8_t>(both - dataOf(c));
}
void las(CycleCore& c) {
    c.a = c.x = c.s = static_cast<std::uint8_t>(dataOf(c) & c.s);
    setNZ(c, c.a);
}

// And on a byte that is written back: a documented change, then arithmetic with the result.

std::uint8_t slo(CycleCore& c, std::uint8_t v) {
    const std::uint8_t result = asl(c, v);
    c.a |= result;
    setNZ(c, c.a);
    return result;
}
std::uint8_t rla(CycleCore& c, std::uint8_t v) {
    const std::uint8_t result = rol(c, v);
    c.a &= result;
    setNZ(c, c.a);
    return result;
}
std::uint8_t sre(CycleCore& c, std::uint8_t v) {
    const std::uint8_t result = lsr(c, v);
    c.a ^= result;
    setNZ(c, c.a);
    return result;
}
std::uint8_t rra(CycleCore& c, std::uint8_t v) {
    const std::uint8_t result = ror(c, v);
    addToA(c, result);
    return result;
}
std::uint8_t dcp(CycleCore& c, std::uint8_t v) {
    const std::uint8_t result = dec(c, v);
    compareWith(c, c.a, result);
    return result;
}
std::uint8_t isb(CycleCore& c, std::uint8_t v) {
    const std::uint8_t result = inc(c, v);
    subtractFromA(c, result);
    return result;
}
std::uint8_t sax(CycleCore& c) {
    return c.a & c.x;
}

/// What the stores of the undocumented group take for a mask: the high byte of the indexed address plus 1.
template <Register index>
std::uint8_t highPlusOne(const CycleCore& c) {
    return static_cast<std::uint8_t>(((c.ad + c.*index) >> 8U) + 1);
}
std::uint8_t sha(CycleCore& c) {
    return c.a & c.x & highPlusOne<Y>(c);
}
std::uint8_t shs(CycleCore& c) {
    c.s = c.a & c.x;
    return c.s & highPlusOne<Y>(c);
}
std::uint8_t shx(CycleCore& c) {
    return c.x & highPlusOne<Y>(c);
}
std::uint8_t shy(CycleCore& c) {
    return c.y & highPlusOne<X>(c);
}

/// All address and data lines high, for ever.
void jam(CycleCore& c) {
    c.pins |= CyclePin::kAddress | CyclePin::kData | CyclePin::kRW;
    --c.ir;
}

/// While the NMOS chip corrects the page of an indexed address it reads at the wrong one, and before it writes a
/// changed byte it writes the old one.
struct OwnCycles {
    template <Register index>
    static void carryRead(CycleCore& c) {
        readUncarried<index>(c);
        skipIfSamePage<index>(c);
    }
    template <Register index>
    static constexpr auto carry = readUncarried<index>;
    static constexpr auto beforeChange = writeBack;
};

/// The sequences in which the NMOS chip is on its own.
struct Sequences : CommonSequences<m6502, OwnCycles> {
    template <auto Change>
    static constexpr Program absoluteIndexedShift = absoluteIndexedModify<Change, X>;
    template <auto Change>
    static constexpr Program indexedIndirectModify = {
        step<readOperand>,
        step<latchLow, readLatch>,
        step<indexZeroPage<X>, readLatch>,
        step<readNextZeroPage, latchLow>,
        step<latchHigh, readLatch>,
        step<latchByte, writeBack>,
        step<writeChanged<Change>>,
        step<fetch>,
    };
    template <auto Change>
    static constexpr Program indirectIndexedModify = {
        step<readOperand>,
        step<latchLow, readLatch>,
        step<readNextZeroPage, latchLow>,
        step<latchHigh, readUncarried<Y>>,
        step<readIndexed<Y>>,
        step<latchByte, writeBack>,
        step<writeChanged<Change>>,
        step<fetch>,
    };

    /// The high byte comes from the same page as the low one, even from behind its end.
    static void readNextInPage(m6502& c) { setAddress(c, (c.ad & 0xFF00U) | ((c.ad + 1U) & 0xFFU)); }
    static constexpr Program jumpIndirect = {
        step<readOperand>, step<latchLow, readOperand>, step<latchHigh, readLatch>, step<readNextInPage, latchLow>,
        step<jump, fetch>,
    };
    static constexpr Program breakSequence = breakWith<nop>;
    static constexpr Program jammed = {
        step<readPc>,
        step<jam>,
    };
};

/// What this chip has beside the common instructions.
class InstructionSet : public InstructionTable<m6502, Sequences> {
public:
    /// A change with whose result the accumulator goes on; undocumented, in all modes of the accumulator.
    template <auto Change>
    constexpr void modifyAndUse(const Opcodes& at) {
        modify<Change>(at);
        set(at.absX, Sequences::absoluteIndexedModify<Change, X>);
        set(at.absY, Sequences::absoluteIndexedModify<Change, Y>);
        set(at.indX, Sequences::indexedIndirectModify<Change>);
        set(at.indY, Sequences::indirectIndexedModify<Change>);
    }
};

constexpr InstructionSet instructions() {
    InstructionSet s;
    // clang-format off
    s.read<adc>({.imm = 0x69, .zp = 0x65, .zpX = 0x75, .abs = 0x6D, .absX = 0x7D, .absY = 0x79, .indX = 0x61, .indY = 0x71});
    s.read<sbc>({.imm = 0xE9, .zp = 0xE5, .zpX = 0xF5, .abs = 0xED, .absX = 0xFD, .absY = 0xF9, .indX = 0xE1, .indY = 0xF1});

    // What follows is undocumented
    s.modifyAndUse<slo>({.zp = 0x07, .zpX = 0x17, .abs = 0x0F, .absX = 0x1F, .absY = 0x1B, .indX = 0x03, .indY = 0x13});
    s.modifyAndUse<rla>({.zp = 0x27, .zpX = 0x37, .abs = 0x2F, .absX = 0x3F, .absY = 0x3B, .indX = 0x23, .indY = 0x33});
    s.modifyAndUse<sre>({.zp = 0x47, .zpX = 0x57, .abs = 0x4F, .absX = 0x5F, .absY = 0x5B, .indX = 0x43, .indY = 0x53});
    s.modifyAndUse<rra>({.zp = 0x67, .zpX = 0x77, .abs = 0x6F, .absX = 0x7F, .absY = 0x7B, .indX = 0x63, .indY = 0x73});
    s.modifyAndUse<dcp>({.zp = 0xC7, .zpX = 0xD7, .abs = 0xCF, .absX = 0xDF, .absY = 0xDB, .indX = 0xC3, .indY = 0xD3});
    s.modifyAndUse<isb>({.zp = 0xE7, .zpX = 0xF7, .abs = 0xEF, .absX = 0xFF, .absY = 0xFB, .indX = 0xE3, .indY = 0xF3});

    s.read<load<A, X>>({.zp = 0xA7, .zpY = 0xB7, .abs = 0xAF, .absY = 0xBF, .indX = 0xA3, .indY = 0xB3});
    s.write<sax>      ({.zp = 0x87, .zpY = 0x97, .abs = 0x8F,               .indX = 0x83});

    s.read<anc>({.imm = 0x0B});  s.read<anc>({.imm = 0x2B});
    s.read<alr>({.imm = 0x4B});  s.read<arr>({.imm = 0x6B});
    s.read<ane>({.imm = 0x8B});  s.read<lxa>({.imm = 0xAB});
    s.read<sbx>({.imm = 0xCB});  s.read<sbc>({.imm = 0xEB});
    s.read<las>({.absY = 0xBB});

    s.write<sha>({.absY = 0x9F, .indY = 0x93});
    s.write<shs>({.absY = 0x9B});  s.write<shx>({.absY = 0x9E});  s.write<shy>({.absX = 0x9C});

    // Instructions that do nothing but take their time and read their operand
    for (const int opcode : {0x1A, 0x3A, 0x5A, 0x7A, 0xDA, 0xFA}) s.implied<nop>(opcode);
    for (const int opcode : {0x80, 0x82, 0x89, 0xC2, 0xE2}) s.read<nop>({.imm = opcode});
    for (const int opcode : {0x04, 0x44, 0x64}) s.read<nop>({.zp = opcode});
    for (const int opcode : {0x14, 0x34, 0x54, 0x74, 0xD4, 0xF4}) s.read<nop>({.zpX = opcode});
    for (const int opcode : {0x1C, 0x3C, 0x5C, 0x7C, 0xDC, 0xFC}) s.read<nop>({.absX = opcode});
    s.read<nop>({.abs = 0x0C});

    for (const int opcode : {0x02, 0x12, 0x22, 0x32, 0x42, 0x52, 0x62, 0x72, 0x92, 0xB2, 0xD2, 0xF2}) {
        s.set(opcode, Sequences::jammed);
    }
    // clang-format on
    return s;
}

constexpr InstructionSet kInstructions = instructions();
static_assert(kInstructions.isComplete());

/// One dispatch a tick.
constexpr auto kSteps = kInstructions.flatten(Sequences::step<unreachableStep>);

std::uint64_t withPort(const m6502& c, std::uint64_t pins) {
    return (pins & ~CyclePin::kPort) | ((std::uint64_t{c.ioPins} << CyclePin::kPortShift) & CyclePin::kPort);
}

}  // namespace

std::uint64_t tick(m6502* c, std::uint64_t pins) {
    constexpr std::uint64_t kWatched =
        CyclePin::kSync | CyclePin::kIrq | CyclePin::kNmi | CyclePin::kRdy | CyclePin::kRes;
    if ((pins & kWatched) != 0) {
        sampleInterrupts(*c, pins);
        // A waiting processor repeats its read; a write goes through.
        if ((pins & CyclePin::kRdy) != 0 && (pins & CyclePin::kRW) != 0) {
            c->irqPipeline = static_cast<std::uint16_t>(c->irqPipeline << 1U);
            return c->pins = withPort(*c, pins);
        }
        if ((pins & CyclePin::kSync) != 0) {
            if ((pins & CyclePin::kRes) != 0) c->ioDdr = c->ioInput = c->ioOutput = c->ioPins = 0;
            pins = beginInstruction(*c, pins);
        }
    }
    const std::size_t next = c->ir++;
    if (next >= kSteps.size()) unreachableStep(*c);
    pins = kSteps[next](*c, pins | CyclePin::kRW);
    shiftPipelines(*c);
    return c->pins = withPort(*c, pins);
}

}  // namespace tarnsim
