#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "Tests/Core/Components/CPUs/ArithmeticModel.h"

namespace tarnsim {

/// Registers as a programmer sees them.
struct ModelRegisters {
    unsigned pc, a, x, y, s, p;
    bool operator==(const ModelRegisters&) const = default;

    /// By its letter.
    bool flag(char letter) const { return (p & maskOf(letter)) != 0; }
    void setFlag(char letter, bool isSet) { p = isSet ? p | maskOf(letter) : p & ~maskOf(letter); }
    /// Sets N and Z by the low byte, and gives it.
    unsigned nz(unsigned value) {
        const unsigned byte = value & 0xFFU;
        setFlag('N', byte >= 0x80);
        setFlag('Z', byte == 0);
        return byte;
    }

private:
    static unsigned maskOf(char letter) {
        const std::string letters = "CZIDB-VN";
        return 1U << letters.find(letter);
    }
};

/// What an operation works on.
struct ModelWork {
    ModelRegisters registers{};
    unsigned v = 0;            ///< the byte from memory; afterwards the one to store, if the instruction stores
    unsigned bit = 0;          ///< of RMB and SMB
    unsigned addressHigh = 0;  ///< the high byte of the operand's address
    bool isCmos = false;
    bool isImmediate = false;

    void setSum(const Sum& sum) {
        ModelRegisters& r = registers;
        r.a = static_cast<unsigned>(sum.a);
        r.setFlag('N', sum.n);
        r.setFlag('V', sum.v);
        r.setFlag('Z', sum.z);
        r.setFlag('C', sum.c);
    }
    int carry() const { return registers.flag('C') ? 1 : 0; }
    using Arithmetic = Sum(int a, int v, int carry);
    void compute(Arithmetic* binary, Arithmetic* decimal) {
        const bool isDecimal = registers.flag('D');
        setSum((isDecimal ? decimal : binary)(static_cast<int>(registers.a), static_cast<int>(v), carry()));
    }
    void add() { withCmosFlags(addedBinary, addedDecimal); }
    void subtract() { withCmosFlags(subtractedBinary, subtractedDecimal); }
    void compare(unsigned value) {
        registers.setFlag('C', value >= v);
        registers.nz(value - v);
    }
    void shiftLeft(bool into) {
        registers.setFlag('C', v >= 0x80);
        v = registers.nz(v * 2 + (into ? 1 : 0));
    }
    void shiftRight(bool into) {
        registers.setFlag('C', v % 2 == 1);
        v = registers.nz(v / 2 + (into ? 0x80 : 0));
    }

private:
    void withCmosFlags(Arithmetic* binary, Arithmetic* decimal) {
        compute(binary, decimal);
        if (isCmos) registers.nz(registers.a);
    }
};

enum class ModelKind { kRead, kStore, kModify };

using ModelOperation = std::pair<ModelKind, std::function<void(ModelWork&)>>;

/// Flag and wanted state; a blank for always.
inline const std::map<std::string, std::pair<char, bool>>& branchConditions() {
    static const std::map<std::string, std::pair<char, bool>> conditions = {
        {"BPL", {'N', false}}, {"BMI", {'N', true}}, {"BVC", {'V', false}}, {"BVS", {'V', true}}, {"BRA", {' ', true}},
        {"BCC", {'C', false}}, {"BCS", {'C', true}}, {"BNE", {'Z', false}}, {"BEQ", {'Z', true}}};
    return conditions;
}

/// By mnemonic, all but jumps and pushes and pulls.
inline const std::map<std::string, ModelOperation>& modelOperations() {
    using W = ModelWork&;
    constexpr ModelKind kRead = ModelKind::kRead;
    constexpr ModelKind kStore = ModelKind::kStore;
    constexpr ModelKind kModify = ModelKind::kModify;
    // clang-format off
    static const std::map<std::string, ModelOperation> operations = {
        {"NOP", {kRead, [](W) {}}},
        {"WAI", {kRead, [](W) {}}},
        {"LDA", {kRead, [](W w) { w.registers.a = w.registers.nz(w.v); }}},
        {"LDX", {kRead, [](W w) { w.registers.x = w.registers.nz(w.v); }}},
        {"LDY", {kRead, [](W w) { w.registers.y = w.registers.nz(w.v); }}},
        {"ORA", {kRead, [](W w) { w.registers.a = w.registers.nz(w.registers.a | w.v); }}},
        {"AND", {kRead, [](W w) { w.registers.a = w.registers.nz(w.registers.a & w.v); }}},
        {"EOR", {kRead, [](W w) { w.registers.a = w.registers.nz(w.registers.a ^ w.v); }}},
        {"ADC", {kRead, [](W w) { w.add(); }}},
        {"SBC", {kRead, [](W w) { w.subtract(); }}},
        {"CMP", {kRead, [](W w) { w.compare(w.registers.a); }}},
        {"CPX", {kRead, [](W w) { w.compare(w.registers.x); }}},
        {"CPY", {kRead, [](W w) { w.compare(w.registers.y); }}},
        {"BIT", {kRead, [](W w) {
            w.registers.setFlag('Z', (w.registers.a & w.v) == 0);
            if (w.isImmediate) return;
            w.registers.setFlag('N', w.v >= 0x80);
            w.registers.setFlag('V', w.v / 0x40 % 2 == 1);
        }}},

        {"STA", {kStore, [](W w) { w.v = w.registers.a; }}},
        {"STX", {kStore, [](W w) { w.v = w.registers.x; }}},
        {"STY", {kStore, [](W w) { w.v = w.registers.y; }}},
        {"STZ", {kStore, [](W w) { w.v = 0; }}},

        {"ASL", {kModify, [](W w) { w.shiftLeft(false); }}},
        {"ROL", {kModify, [](W w) { w.shiftLeft(w.registers.flag('C')); }}},
        {"LSR", {kModify, [](W w) { w.shiftRight(false); }}},
        {"ROR", {kModify, [](W w) { w.shiftRight(w.registers.flag('C')); }}},
        {"INC", {kModify, [](W w) { w.v = w.registers.nz(w.v + 1); }}},
        {"DEC", {kModify, [](W w) { w.v = w.registers.nz(w.v - 1); }}},
        {"TSB", {kModify, [](W w) { w.registers.setFlag('Z', (w.v & w.registers.a) == 0); w.v |= w.registers.a; }}},
        {"TRB", {kModify, [](W w) { w.registers.setFlag('Z', (w.v & w.registers.a) == 0); w.v &= ~w.registers.a; }}},
        {"RMB", {kModify, [](W w) { w.v &= ~(1U << w.bit); }}},
        {"SMB", {kModify, [](W w) { w.v |= 1U << w.bit; }}},

        {"TAX", {kRead, [](W w) { w.registers.x = w.registers.nz(w.registers.a); }}},
        {"TXA", {kRead, [](W w) { w.registers.a = w.registers.nz(w.registers.x); }}},
        {"TAY", {kRead, [](W w) { w.registers.y = w.registers.nz(w.registers.a); }}},
        {"TYA", {kRead, [](W w) { w.registers.a = w.registers.nz(w.registers.y); }}},
        {"TSX", {kRead, [](W w) { w.registers.x = w.registers.nz(w.registers.s); }}},
        {"TXS", {kRead, [](W w) { w.registers.s = w.registers.x; }}},
        {"INX", {kRead, [](W w) { w.registers.x = w.registers.nz(w.registers.x + 1); }}},
        {"DEX", {kRead, [](W w) { w.registers.x = w.registers.nz(w.registers.x - 1); }}},
        {"INY", {kRead, [](W w) { w.registers.y = w.registers.nz(w.registers.y + 1); }}},
        {"DEY", {kRead, [](W w) { w.registers.y = w.registers.nz(w.registers.y - 1); }}},
        {"CLC", {kRead, [](W w) { w.registers.setFlag('C', false); }}},
        {"SEC", {kRead, [](W w) { w.registers.setFlag('C', true); }}},
        {"CLI", {kRead, [](W w) { w.registers.setFlag('I', false); }}},
        {"SEI", {kRead, [](W w) { w.registers.setFlag('I', true); }}},
        {"CLD", {kRead, [](W w) { w.registers.setFlag('D', false); }}},
        {"SED", {kRead, [](W w) { w.registers.setFlag('D', true); }}},
        {"CLV", {kRead, [](W w) { w.registers.setFlag('V', false); }}},

        // Undocumented ones of the NMOS chip
        {"LAX", {kRead, [](W w) { w.registers.a = w.registers.x = w.registers.nz(w.v); }}},
        {"SAX", {kStore, [](W w) { w.v = w.registers.a & w.registers.x; }}},
        {"SLO", {kModify, [](W w) { w.shiftLeft(false); w.registers.a = w.registers.nz(w.registers.a | w.v); }}},
        {"RLA", {kModify, [](W w) { w.shiftLeft(w.registers.flag('C')); w.registers.a = w.registers.nz(w.registers.a & w.v); }}},
        {"SRE", {kModify, [](W w) { w.shiftRight(false); w.registers.a = w.registers.nz(w.registers.a ^ w.v); }}},
        {"RRA", {kModify, [](W w) { w.shiftRight(w.registers.flag('C')); w.add(); }}},
        {"DCP", {kModify, [](W w) { w.v = (w.v - 1) & 0xFFU; w.compare(w.registers.a); }}},
        {"ISB", {kModify, [](W w) { w.v = (w.v + 1) & 0xFFU; w.subtract(); }}},
        {"ANC", {kRead, [](W w) {
            w.registers.a = w.registers.nz(w.registers.a & w.v);
            w.registers.setFlag('C', w.registers.flag('N'));
        }}},
        {"ALR", {kRead, [](W w) { w.v &= w.registers.a; w.shiftRight(false); w.registers.a = w.v; }}},
        {"ARR", {kRead, [](W w) { w.compute(andRotatedBinary, andRotatedDecimal); }}},
        {"ANE", {kRead, [](W w) { w.registers.a = w.registers.nz((w.registers.a | 0xEEU) & w.registers.x & w.v); }}},
        {"LXA", {kRead, [](W w) { w.registers.a = w.registers.x = w.registers.nz((w.registers.a | 0xEEU) & w.v); }}},
        {"SBX", {kRead, [](W w) {
            const unsigned both = w.registers.a & w.registers.x;
            w.compare(both);
            w.registers.x = (both - w.v) & 0xFFU;
        }}},
        {"LAS", {kRead, [](W w) { w.registers.a = w.registers.x = w.registers.s = w.registers.nz(w.v & w.registers.s); }}},
        {"SHA", {kStore, [](W w) { w.v = w.registers.a & w.registers.x & (w.addressHigh + 1); }}},
        {"SHX", {kStore, [](W w) { w.v = w.registers.x & (w.addressHigh + 1); }}},
        {"SHY", {kStore, [](W w) { w.v = w.registers.y & (w.addressHigh + 1); }}},
        {"SHS", {kStore, [](W w) {
            w.registers.s = w.registers.a & w.registers.x;
            w.v = w.registers.s & (w.addressHigh + 1);
        }}},
    };
    // clang-format on
    return operations;
}

}  // namespace tarnsim
