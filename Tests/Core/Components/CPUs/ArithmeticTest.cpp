#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"
#include "Tests/Core/Components/CPUs/ArithmeticModel.h"
#include "Tests/Core/Components/CPUs/CoreBench.h"

namespace tarnsim {
namespace {

constexpr std::uint16_t kStart = 0x0200;
constexpr std::uint8_t kAdc = 0x69;
constexpr std::uint8_t kSbc = 0xE9;
constexpr std::uint8_t kArr = 0x6B;

/// I, D, B and the unused bit, which arithmetic keeps.
constexpr unsigned kKeptFlags = 0x3C;

Sum sumOf(const CycleCore& core) {
    return {core.a, (core.p & CycleFlag::kN) != 0, (core.p & CycleFlag::kV) != 0, (core.p & CycleFlag::kZ) != 0,
            (core.p & CycleFlag::kC) != 0};
}
std::string text(const Sum& sum) {
    return format("a=%02x n%d v%d z%d c%d", sum.a, sum.n, sum.v, sum.z, sum.c);
}

/// Runs `opcode #v` for each a, v and carry, with the other flags as in `flags`, and compares with `model`.
template <class Core, class Descriptor, class Model>
void compareAllInputs(std::uint8_t opcode, unsigned flags, bool isBcdDisabled, int cycles, Model model) {
    CoreBench<Core, Descriptor> bench;
    const Descriptor descriptor{.bcd_disabled = isBcdDisabled};
    initialise(&bench.core, &descriptor);
    bench.memory[kStart] = opcode;
    int differing = 0;
    for (unsigned input = 0; input < 0x20000 && differing < 10; ++input) {
        const unsigned a = input & 0xFFU;
        const unsigned v = input >> 8U & 0xFFU;
        const unsigned carry = input >> 16U;
        // N, V and Z come in as the opposite of what they often become, so that each must be set anew.
        const unsigned stale = (a & 1U) != 0 ? 0xC2U : 0U;
        bench.core.a = static_cast<std::uint8_t>(a);
        bench.core.p = static_cast<std::uint8_t>(flags | carry | stale);
        bench.core.pc = kStart;
        bench.memory[kStart + 1] = static_cast<std::uint8_t>(v);
        bench.pins = bench.core.pins = CyclePin::kRW | CyclePin::kSync | kStart;
        bench.bus.clear();
        const bool ended = bench.runInstruction(cycles);
        const Sum expected = model(static_cast<int>(a), static_cast<int>(v), static_cast<int>(carry));
        const bool hasCount = ended && bench.bus.size() == static_cast<std::size_t>(cycles);
        if (hasCount && sumOf(bench.core) == expected && (bench.core.p & kKeptFlags) == flags) continue;
        ++differing;
        ADD_FAILURE() << format("%02x a=%02x v=%02x carry=%u flags=%02x: ", opcode, a, v, carry, flags)
                      << text(sumOf(bench.core)) << format(" p=%02x", bench.core.p) << ", expected " << text(expected);
    }
}

template <class Model>
void compareNmos(std::uint8_t opcode, unsigned flags, Model model) {
    compareAllInputs<m6502, m6502Descriptor>(opcode, flags, false, 2, model);
}
template <class Model>
void compareCmos(std::uint8_t opcode, unsigned flags, int cycles, Model model) {
    compareAllInputs<w65c02, w65c02Descriptor>(opcode, flags, false, cycles, model);
}

TEST(Arithmetic, TheNmosCoreAddsAndSubtractsBinary) {
    compareNmos(kAdc, 0x10, addedBinary);
    compareNmos(kSbc, 0x10, subtractedBinary);
    compareNmos(kAdc, 0x34, addedBinary);
    compareNmos(kSbc, 0x34, subtractedBinary);
}

TEST(Arithmetic, TheNmosCoreAddsAndSubtractsDecimalWithTheFlagsOfTheChip) {
    compareNmos(kAdc, 0x18, addedDecimal);
    compareNmos(kSbc, 0x18, subtractedDecimal);
    compareNmos(kSbc + 2, 0x18, subtractedDecimal);  // the undocumented copy, EB
}

TEST(Arithmetic, TheCmosCoreAddsAndSubtractsBinary) {
    compareCmos(kAdc, 0x10, 2, addedBinary);
    compareCmos(kSbc, 0x10, 2, subtractedBinary);
}

/// The same numbers, and in a third cycle N and Z of the result; C and V stay those of the NMOS chip.
Sum seenAgain(Sum sum) {
    sum.n = sum.a >= 128;
    sum.z = sum.a == 0;
    return sum;
}

TEST(Arithmetic, TheCmosCoreTakesAThirdCycleInDecimalModeForNAndZ) {
    compareCmos(kAdc, 0x18, 3, [](int a, int v, int c) { return seenAgain(addedDecimal(a, v, c)); });
    compareCmos(kSbc, 0x18, 3, [](int a, int v, int c) { return seenAgain(subtractedDecimal(a, v, c)); });
}

TEST(Arithmetic, WithDecimalModeDisabledDSelectsNothing) {
    compareAllInputs<m6502, m6502Descriptor>(kAdc, 0x18, true, 2, addedBinary);
    compareAllInputs<m6502, m6502Descriptor>(kSbc, 0x18, true, 2, subtractedBinary);
    compareAllInputs<m6502, m6502Descriptor>(kArr, 0x18, true, 2, andRotatedBinary);
    // The CMOS core looks at D alone when it adds its cycle.
    compareAllInputs<w65c02, w65c02Descriptor>(kAdc, 0x18, true, 3, addedBinary);
    compareAllInputs<w65c02, w65c02Descriptor>(kSbc, 0x18, true, 3, subtractedBinary);
}

TEST(Arithmetic, ArrRotatesTheAndAndCorrectsItsDigitsInDecimalMode) {
    compareNmos(kArr, 0x14, andRotatedBinary);
    compareNmos(kArr, 0x1C, andRotatedDecimal);
}

TEST(Arithmetic, TheModelGivesTheWorkedExamplesOfTheBooks) {
    EXPECT_EQ(text(addedDecimal(0x99, 0x01, 0)), "a=00 n1 v0 z0 c1");  // the binary sum is 9A, so Z is clear
    EXPECT_EQ(text(addedDecimal(0x58, 0x46, 1)), "a=05 n1 v1 z0 c1");
    EXPECT_EQ(text(addedDecimal(0x12, 0x34, 0)), "a=46 n0 v0 z0 c0");
    EXPECT_EQ(text(addedDecimal(0x15, 0x26, 0)), "a=41 n0 v0 z0 c0");
    EXPECT_EQ(text(addedDecimal(0x81, 0x92, 0)), "a=73 n0 v1 z0 c1");
    EXPECT_EQ(text(subtractedDecimal(0x46, 0x12, 1)), "a=34 n0 v0 z0 c1");
    EXPECT_EQ(text(subtractedDecimal(0x40, 0x13, 1)), "a=27 n0 v0 z0 c1");
    EXPECT_EQ(text(subtractedDecimal(0x32, 0x02, 0)), "a=29 n0 v0 z0 c1");
    EXPECT_EQ(text(subtractedDecimal(0x12, 0x21, 1)), "a=91 n1 v0 z0 c0");
    EXPECT_EQ(text(addedBinary(0x7F, 0x01, 0)), "a=80 n1 v1 z0 c0");
    EXPECT_EQ(text(addedBinary(0xFF, 0x01, 0)), "a=00 n0 v0 z1 c1");
    EXPECT_EQ(text(subtractedBinary(0x80, 0x01, 1)), "a=7f n0 v1 z0 c1");
    EXPECT_EQ(text(subtractedBinary(0x00, 0x01, 1)), "a=ff n1 v0 z0 c0");
}

}  // namespace
}  // namespace tarnsim
