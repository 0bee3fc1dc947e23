#pragma once

#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"
#include "Tests/Core/Components/CPUs/CoreBench.h"

namespace tarnsim {

/// What a core has seen on an interrupt line, each with its age in ticks.
class SeenOnLine {
public:
    void note() { ages_.push_back(0); }
    void age() {
        for (int& each : ages_) ++each;
        std::erase_if(ages_, [](int each) { return each > 15; });  // the line is 16 bits long
    }
    /// A branch that is taken within its page makes everything one tick younger; what came in that tick is lost.
    void rejuvenate() {
        for (int& each : ages_) --each;
        std::erase(ages_, -1);
    }
    bool hasOfAge(int youngest, int oldest) const {
        return std::ranges::any_of(ages_, [&](int each) { return each >= youngest && each <= oldest; });
    }
    void forgetFrom(int youngest) {
        std::erase_if(ages_, [&](int each) { return each >= youngest; });
    }

private:
    std::vector<int> ages_;
};

/// Runs a core and foretells at each opcode fetch, from what was on the lines, whether a BRK sequence begins and why,
/// and what that does on the bus in each cycle. What comes out differently is collected in `differences`.
template <class Core, class Descriptor>
class InterruptWatch {
public:
    static constexpr bool kIsCmos = std::is_same_v<Core, w65c02>;

    /// As after some program: nothing seen yet.
    void standAt(std::uint16_t pc) {
        bench.standAt(pc);
        *this = InterruptWatch(std::move(bench));
    }
    InterruptWatch() = default;
    explicit InterruptWatch(CoreBench<Core, Descriptor>&& used) : bench(std::move(used)) {}

    void tick(std::uint64_t lines) {
        const bool isSync = (bench.pins & CyclePin::kSync) != 0;
        const bool isRead = (bench.pins & CyclePin::kRW) != 0;
        const Core was = bench.core;
        const std::uint64_t askedFor = bench.pins;
        const std::uint8_t read = bench.memory[bench.address()];
        bench.tick(lines);
        ++ticks;
        if (isStopped_ && (lines & CyclePin::kRes) == 0) return expect(bench.core.ir == was.ir, "stays stopped");

        const bool restarts = kIsCmos && (lines & CyclePin::kRes) != 0;
        if (restarts) {
            isStopped_ = isWaiting_ = nmiWas_ = false;
        } else if (isHeld(lines, isRead, was.p)) {
            irq_.age();
            constexpr std::uint64_t kHeld = CyclePin::kAddress | CyclePin::kRW | CyclePin::kSync | CyclePin::kVp;
            return expect((bench.pins & kHeld) == (askedFor & kHeld) && bench.core.ir == was.ir, "repeats the cycle");
        }
        if (isSync || restarts) begin(lines, read, was);
        expectStep(was);
        if (opcode_ == 0 && step_ == 4) cause_ = 0;
        if (kIsCmos && step_ == 0) enterWaitOrStop(lines);
        if (isBranch() && step_ == 2 && isWithinPage(was.pc)) {
            irq_.rejuvenate();
            nmi_.rejuvenate();
        }
        irq_.age();
        nmi_.age();
        ++step_;
    }

    CoreBench<Core, Descriptor> bench;
    std::string differences;
    int ticks = 0;
    int sequences = 0;  ///< interrupts and resets begun

private:
    void expect(bool isMet, const char* what, unsigned value = 0) {
        if (isMet || differences.size() > 2000) return;
        differences += format("tick %d, opcode %02x, step %d, cause %d: %s %02x (pins %llx)\n", ticks, opcode_, step_,
                              cause_, what, value, static_cast<unsigned long long>(bench.pins));
    }

    /// Samples the lines; whether the cycle is then repeated.
    bool isHeld(std::uint64_t lines, bool isRead, std::uint8_t p) {
        const bool irq = (lines & CyclePin::kIrq) != 0;
        const bool nmi = (lines & CyclePin::kNmi) != 0;
        const bool rdy = (lines & CyclePin::kRdy) != 0;
        if (nmi && !nmiWas_) nmi_.note();
        nmiWas_ = nmi;
        if (irq && (p & CycleFlag::kI) == 0) irq_.note();
        if (isWaiting_ && (irq || nmi)) {
            isWaiting_ = false;
            return true;
        }
        return rdy && (kIsCmos || isRead);
    }
    void begin(std::uint64_t lines, std::uint8_t opcode, const Core& was) {
        if (irq_.hasOfAge(2, 2)) cause_ |= BreakCause::kIrq;
        if (nmi_.hasOfAge(2, 15)) cause_ |= BreakCause::kNmi;
        if ((lines & CyclePin::kRes) != 0) cause_ |= BreakCause::kReset;
        irq_.forgetFrom(2);
        nmi_.forgetFrom(2);
        opcode_ = cause_ != 0 ? 0 : opcode;
        step_ = 0;
        if (cause_ != 0) ++sequences;
        const unsigned pc = was.pc;
        returnTo_ = cause_ != 0 ? pc : (pc + 2) & 0xFFFFU;
        statusToPush_ = (cause_ != 0 ? was.p & ~unsigned{CycleFlag::kB} : was.p) | CycleFlag::kUnused;
        stack_ = was.s;
        operand_ = bench.memory[(pc + 1) & 0xFFFFU];

        expect(bench.core.brkFlags == cause_, "cause is", bench.core.brkFlags);
        expect(bench.core.ir == opcode_ * 8 + 1, "ir is", bench.core.ir);
        if (cause_ == 0) return;
        expect(bench.core.pc == pc, "pc stays");
        expect((bench.core.p & CycleFlag::kB) == 0, "B is cleared");
        expect((bench.pins & (CyclePin::kRes | CyclePin::kSync)) == 0, "RES and SYNC are taken out");
    }
    /// What the cycle asks for next, if it is one of a BRK sequence.
    void expectStep(const Core& was) {
        const bool isVectorRead = kIsCmos && opcode_ == 0 && step_ == 4;
        expect(((bench.pins & CyclePin::kVp) != 0) == isVectorRead, "VP");
        if (opcode_ != 0) return;
        if (step_ == 3) {
            const bool isNmi = (cause_ & BreakCause::kNmi) != 0;
            vector_ = (cause_ & BreakCause::kReset) != 0 ? 0xFFFCU : isNmi ? 0xFFFAU : 0xFFFEU;
        }
        const unsigned pc = bench.core.pc;
        switch (step_) {
            case 0: return expectRead(cause_ != 0 ? returnTo_ : returnTo_ - 1, false);
            case 1: return expectPush(returnTo_ >> 8U);
            case 2: return expectPush(returnTo_ & 0xFFU);
            case 3: return expectPush(statusToPush_);
            case 4: {
                const unsigned d = kIsCmos ? CycleFlag::kD : 0U;
                expect(bench.core.p == ((was.p | 0x14U) & ~d), "p is", bench.core.p);
                return expectRead(vector_, false);
            }
            case 5: return expectRead(vector_ + 1, false);
            case 6:
                expect(pc == (bench.memory[vector_] | unsigned{bench.memory[vector_ + 1]} << 8U),
                       "jumps to the vector");
                return expectRead(pc, true);
            default: return expect(false, "the sequence ends");
        }
    }
    void expectRead(unsigned address, bool isFetch) {
        constexpr std::uint64_t kWatched = CyclePin::kAddress | CyclePin::kRW | CyclePin::kSync;
        const std::uint64_t wanted = (address & 0xFFFFU) | CyclePin::kRW | (isFetch ? CyclePin::kSync : 0);
        expect((bench.pins & kWatched) == wanted, "reads at", address);
    }
    /// A reset only reads.
    void expectPush(unsigned byte) {
        const bool isReset = (cause_ & BreakCause::kReset) != 0;
        const unsigned address = 0x100U | stack_;
        stack_ = (stack_ - 1) & 0xFFU;
        if (isReset) return expectRead(address, false);
        constexpr std::uint64_t kWatched = CyclePin::kAddress | CyclePin::kData | CyclePin::kRW | CyclePin::kSync;
        expect((bench.pins & kWatched) == (address | byte << CyclePin::kDataShift), "pushes", byte);
    }

    void enterWaitOrStop(std::uint64_t lines) {
        if (opcode_ == 0xCB && (lines & (CyclePin::kIrq | CyclePin::kNmi)) == 0) isWaiting_ = true;
        if (opcode_ == 0xDB) isStopped_ = true;
    }
    bool isBranch() const { return (opcode_ & 0x1F) == 0x10 || (kIsCmos && opcode_ == 0x80); }
    /// In step 2, which a branch only has when it is taken: `pc` is behind it.
    bool isWithinPage(unsigned pc) const {
        const unsigned target = pc + operand_ - (operand_ >= 0x80 ? 0x100U : 0U);
        return (pc & 0xFF00U) == (target & 0xFF00U);
    }

    SeenOnLine irq_;
    SeenOnLine nmi_;
    bool nmiWas_ = false;
    int opcode_ = 0xEA;  ///< what runs; 0 in sequences
    int step_ = 0;
    int cause_ = 0;  ///< BreakCause of the sequence that runs, up to its vector
    unsigned operand_ = 0;
    unsigned returnTo_ = 0;
    unsigned statusToPush_ = 0;
    unsigned stack_ = 0;
    unsigned vector_ = 0;
    bool isWaiting_ = false;
    bool isStopped_ = false;
};

using NmosWatch = InterruptWatch<m6502, m6502Descriptor>;
using CmosWatch = InterruptWatch<w65c02, w65c02Descriptor>;

}  // namespace tarnsim
