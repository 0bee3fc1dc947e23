#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"
#include "Tests/Core/Components/CPUs/CoreBench.h"

namespace tarnsim {
namespace {

constexpr int kCycles = 16;
constexpr std::uint8_t kNop = 0xEA;

struct Start {
    std::uint8_t p;
    std::uint8_t xy;
};
// Operands are EA EA: with 0x40 in X and Y indices cross a page.
constexpr Start kStarts[] = {{0x10, 0x00}, {0xD3, 0x40}, {0x1C, 0x40}, {0xDF, 0x00}};

template <class Bench>
struct Outcome {
    std::vector<typename Bench::BusCycle> bus;
    std::string state;
};

template <class Bench>
class Ready : public testing::Test {
public:
    static constexpr bool kIsCmos = std::is_same_v<Bench, CoreBench<w65c02, w65c02Descriptor>>;

    Ready() { std::ranges::fill(bench.memory, kNop); }

    /// Runs `opcode` among NOPs until `kCycles` cycles are done, repeated ones not counted; RDY holds from tick `from`
    /// on for `count` ticks, in which a read brings a wrong byte.
    Outcome<Bench> run(int opcode, const Start& start, int from, int count) {
        auto& core = bench.core;
        bench.memory[0x300] = static_cast<std::uint8_t>(opcode);
        bench.standAt(0x300);
        core.p = start.p;
        core.x = core.y = start.xy;
        core.a = 0x5A;
        core.s = 0x80;
        bench.bus.clear();
        int done = 0;
        for (int tick = 0; done < kCycles; ++tick) {
            const bool isHeld = tick >= from && tick < from + count;
            const bool isRead = (bench.pins & CyclePin::kRW) != 0;
            std::uint8_t& byte = bench.memory[bench.address()];
            const auto wrong = static_cast<std::uint8_t>(isHeld && isRead ? 0xFF : 0);
            byte ^= wrong;
            bench.tick(isHeld ? CyclePin::kRdy : 0);
            byte ^= wrong;
            bench.bus.back().data ^= wrong;
            if (!repeats(isHeld, isRead)) ++done;
        }
        Outcome<Bench> result{bench.bus, format("pc=%04x a=%02x x=%02x y=%02x s=%02x p=%02x ir=%03x", core.pc, core.a,
                                                core.x, core.y, core.s, core.p, core.ir)};
        for (const auto& each : bench.bus) {
            if (!each.isRead) bench.memory[each.address] = kNop;
        }
        return result;
    }

    /// The NMOS core lets writes through.
    static bool repeats(bool isHeld, bool isRead) { return isHeld && (isRead || kIsCmos); }

    /// The cycles of a run without RDY, as it must repeat them.
    static auto repeated(const std::vector<typename Bench::BusCycle>& undisturbed, int from, int count) {
        std::vector<typename Bench::BusCycle> result;
        std::size_t done = 0;
        for (int tick = 0; done < undisturbed.size(); ++tick) {
            result.push_back(undisturbed[done]);
            if (!repeats(tick >= from && tick < from + count, undisturbed[done].isRead)) ++done;
        }
        return result;
    }

    Bench bench;
};

using Benches = testing::Types<CoreBench<m6502, m6502Descriptor>, CoreBench<w65c02, w65c02Descriptor>>;
TYPED_TEST_SUITE(Ready, Benches);

TYPED_TEST(Ready, HeldAtAnyCycleOfAnyOpcodeItOnlyRepeatsThatCycle) {
    for (int opcode = 0; opcode < 0x100 && !this->HasFailure(); ++opcode) {
        for (const Start& start : kStarts) {
            const Outcome<TypeParam> undisturbed = this->run(opcode, start, 0, 0);
            ASSERT_EQ(undisturbed.bus.size(), static_cast<std::size_t>(kCycles));
            for (int from = 0; from < 9; ++from) {
                for (const int count : {1, 2, 5}) {
                    const Outcome<TypeParam> held = this->run(opcode, start, from, count);
                    const auto where = format("opcode %02x p=%02x held at %d for %d", opcode, start.p, from, count);
                    EXPECT_EQ(held.bus, this->repeated(undisturbed.bus, from, count)) << where;
                    EXPECT_EQ(held.state, undisturbed.state) << where;
                }
            }
        }
    }
}

TYPED_TEST(Ready, AHeldReadGivesItsMaskBackAndLeavesTheRegisters) {
    auto& b = this->bench;
    b.memory[0x300] = 0x8D;  // STA abs: three reads and a write
    b.standAt(0x300);
    b.tick();
    const std::uint64_t held = (b.pins & ~CyclePin::kData) | CyclePin::kRdy | std::uint64_t{0x77} << 16U;
    const auto before = b.core;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(tick(&b.core, held), held);
        EXPECT_EQ(b.core.pins, held);
        EXPECT_EQ(b.core.ir, before.ir);
        EXPECT_EQ(b.core.pc, before.pc);
        EXPECT_EQ(b.core.ad, before.ad);
    }
}

TYPED_TEST(Ready, AHeldWriteGoesThroughOnTheNmosCoreOnly) {
    auto& b = this->bench;
    b.memory[0x300] = 0x85;  // STA zp
    b.standAt(0x300);
    b.tick();
    b.tick();
    ASSERT_EQ(b.pins & CyclePin::kRW, 0U);
    b.tick(CyclePin::kRdy);
    const bool isFetch = (b.pins & CyclePin::kSync) != 0;
    EXPECT_EQ(isFetch, !this->kIsCmos);
    EXPECT_EQ(b.address(), this->kIsCmos ? 0xEA : 0x302);
    EXPECT_EQ((b.pins & CyclePin::kRW) != 0, !this->kIsCmos);
}

}  // namespace
}  // namespace tarnsim
