#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "Tests/Core/Components/CPUs/GoldenPage.h"
#include "Tests/Core/Components/CPUs/InstructionOperations.h"

namespace tarnsim {

using ModelMemory = std::vector<std::uint8_t>;

/// One instruction, carried out at once on registers and memory as a programmer knows them, without clock cycles. It
/// also knows the places and bytes that the words of a page's trace mean. Memory is left as it is.
class InstructionModel {
public:
    InstructionModel(const PageLine& line, bool isCmos, const ModelRegisters& start, const ModelMemory& memory)
        : after(start), line_(line), memory_(memory), before_(start) {
        work_.isCmos = isCmos;
        findPlaces();
        after.pc = next_;
        execute();
    }

    /// Where a bus cycle of the trace goes.
    unsigned place(const std::string& word) const {
        if (word.starts_with("$")) return static_cast<unsigned>(std::stoul(word.substr(1), nullptr, 16));
        if (word.starts_with("stack")) {
            const int offset = word.size() > 5 ? std::stoi(word.substr(5)) : 0;
            return 0x100U | ((before_.s + static_cast<unsigned>(offset)) & 0xFFU);
        }
        return places_.at(word) & 0xFFFFU;
    }
    /// The byte that a cycle writes: names of bytes joined by `&`.
    unsigned value(const std::string& names) const {
        unsigned result = 0xFF;
        std::istringstream stream(names);
        for (std::string name; std::getline(stream, name, '&');) result &= values_.at(name);
        return result;
    }
    /// Whether the condition p, t or d of the page is met.
    bool holds(char condition) const {
        switch (condition) {
            case 'p': return crossesPage_ && (line_.mode != "rel" || isTaken_);
            case 't': return isTaken_;
            case 'd': return before_.flag('D');
            default: throw std::logic_error("no such condition");
        }
    }

    ModelRegisters after;
    std::vector<std::pair<unsigned, unsigned>> written;  ///< addresses and bytes that stay in memory

private:
    unsigned byteAt(unsigned address) const { return memory_[address & 0xFFFFU]; }
    unsigned wordAt(unsigned low, unsigned high) const { return byteAt(low) | byteAt(high) << 8U; }
    unsigned wordAt(unsigned address) const { return wordAt(address, address + 1); }
    unsigned stackByte(unsigned above) const { return byteAt(0x100U | ((before_.s + above) & 0xFFU)); }

    void indexBy(unsigned base, unsigned index) {
        address_ = (base + index) & 0xFFFFU;
        uncarried_ = (base & 0xFF00U) | (address_ & 0xFFU);
        crossesPage_ = address_ != uncarried_;
    }
    void findPlaces() {
        const unsigned pc = before_.pc;
        const unsigned operand = byteAt(pc + 1);
        const unsigned word = wordAt(pc + 1);
        const unsigned x = before_.x;
        const unsigned y = before_.y;
        const std::string& mode = line_.mode;
        next_ = pc + line_.size();
        if (mode == "#") indexBy(pc + 1, 0);
        if (mode == "zp" || mode == "zp,rel") indexBy(operand, 0);
        if (mode == "zp,X") indexBy((operand + x) & 0xFFU, 0);
        if (mode == "zp,Y") indexBy((operand + y) & 0xFFU, 0);
        if (mode == "abs") indexBy(word, 0);
        if (mode == "abs,X") indexBy(word, x);
        if (mode == "abs,Y") indexBy(word, y);
        if (mode == "(zp,X)") indexBy(wordAt((operand + x) & 0xFFU, (operand + x + 1) & 0xFFU), 0);
        if (mode == "(zp),Y") indexBy(wordAt(operand, (operand + 1) & 0xFFU), y);
        if (mode == "(zp)") indexBy(wordAt(operand, (operand + 1) & 0xFFU), 0);
        if (mode == "rel") branchTo(operand);
        if (mode == "zp,rel") branchTo(byteAt(pc + 2));
        pointer_ = word + (mode == "(abs,X)" ? x : 0);
        places_ = {{"opcode", pc},
                   {"operand", pc + 1},
                   {"operand2", pc + 2},
                   {"next", next_},
                   {"zp", operand},
                   {"zp+1", (operand + 1) & 0xFFU},
                   {"zp+X", (operand + x) & 0xFFU},
                   {"zp+Y", (operand + y) & 0xFFU},
                   {"zp+X+1", (operand + x + 1) & 0xFFU},
                   {"address", address_},
                   {"uncarried", uncarried_},
                   {"pointer", pointer_},
                   {"pointer+1", pointer_ + 1},
                   {"pointer+1-in-page", (pointer_ & 0xFF00U) | ((pointer_ + 1) & 0xFFU)},
                   {"pulled", stackByte(1) | stackByte(2) << 8U}};
    }
    void branchTo(unsigned offset) {
        target_ = (next_ + offset - (offset >= 0x80 ? 0x100U : 0U)) & 0xFFFFU;
        uncarried_ = (next_ & 0xFF00U) | (target_ & 0xFFU);
        crossesPage_ = target_ != uncarried_;
    }

    void execute() {
        const std::string name = line_.mnemonic;
        values_ = {{"A", before_.a}, {"X", before_.x},         {"Y", before_.y},
                   {"0", 0},         {"P", before_.p | 0x20U}, {"H+1", ((address_ >> 8U) + 1) & 0xFFU}};
        work_.registers = before_;
        work_.registers.pc = next_;
        if (!executeJump(name) && !executeStack(name) && !executeOperation(name)) {
            throw std::logic_error("no operation " + name);
        }
        after = work_.registers;
        after.pc &= 0xFFFFU;
    }
    // The bit instructions carry the number of their bit in their name.
    static bool isBranchOnBit(const std::string& name) { return name.starts_with("BBR") || name.starts_with("BBS"); }
    static bool isChangeOfBit(const std::string& name) { return name.starts_with("RMB") || name.starts_with("SMB"); }
    static unsigned bitOf(const std::string& name) { return static_cast<unsigned>(name.back() - '0'); }

    bool executeJump(const std::string& name) {
        ModelRegisters& r = work_.registers;
        const auto& conditions = branchConditions();
        if (conditions.contains(name)) {
            const auto& [flag, wanted] = conditions.at(name);
            isTaken_ = flag == ' ' || r.flag(flag) == wanted;
            if (isTaken_) r.pc = target_;
        } else if (isBranchOnBit(name)) {
            values_["old"] = byteAt(places_.at("zp"));
            const bool isSet = (values_["old"] >> bitOf(name)) % 2 == 1;
            if (isSet == (name[2] == 'S')) r.pc = target_;
        } else if (name == "JMP" && line_.mode == "abs") {
            r.pc = address_;
        } else if (name == "JMP") {
            // The NMOS chip doesn't carry into the pointer's high byte.
            r.pc = wordAt(pointer_, place(work_.isCmos ? "pointer+1" : "pointer+1-in-page"));
        } else if (name == "JSR") {
            callWithReturnTo(before_.pc + 2);
            r.pc = address_;
        } else if (name == "BRK") {
            callWithReturnTo(before_.pc + 2);
            push(before_.p | 0x20U);
            r.p |= 0x14U;
            if (work_.isCmos) r.setFlag('D', false);
            r.pc = wordAt(0xFFFE);
        } else if (name == "RTS") {
            r.s = (r.s + 2) & 0xFFU;
            r.pc = places_.at("pulled") + 1;
        } else if (name == "RTI") {
            r.s = (r.s + 3) & 0xFFU;
            r.p = (stackByte(1) & 0xCFU) | 0x10U;
            r.pc = stackByte(2) | stackByte(3) << 8U;
        } else {
            return false;
        }
        return true;
    }
    void callWithReturnTo(unsigned address) {
        values_["PCH"] = (address >> 8U) & 0xFFU;
        values_["PCL"] = address & 0xFFU;
        push(values_["PCH"]);
        push(values_["PCL"]);
    }
    void push(unsigned byte) {
        unsigned& s = work_.registers.s;
        written.emplace_back(0x100U | s, byte);
        s = (s - 1) & 0xFFU;
    }

    bool executeStack(const std::string& name) {
        ModelRegisters& r = work_.registers;
        const bool isPush = name == "PHA" || name == "PHX" || name == "PHY" || name == "PHP";
        const bool isPull = name == "PLA" || name == "PLX" || name == "PLY" || name == "PLP";
        if (isPush) push(values_.at(name.substr(2)));
        if (!isPull) return isPush;
        const unsigned byte = stackByte(1);
        r.s = (r.s + 1) & 0xFFU;
        if (name == "PLP") {
            r.p = (byte & 0xCFU) | 0x10U;
        } else {
            (name == "PLA" ? r.a : name == "PLX" ? r.x : r.y) = r.nz(byte);
        }
        return true;
    }

    bool executeOperation(const std::string& name) {
        if (name == "JAM" || name == "STP") return true;
        const auto& operations = modelOperations();
        const auto found = operations.find(isChangeOfBit(name) ? name.substr(0, 3) : name);
        if (found == operations.end()) return false;
        const bool isOnA = line_.mode == "A";
        const bool isImplied = line_.mode == "implied";
        work_.bit = isChangeOfBit(name) ? bitOf(name) : 0;
        work_.isImmediate = line_.mode == "#";
        work_.addressHigh = address_ >> 8U;
        work_.v = isOnA ? before_.a : isImplied ? 0 : byteAt(address_);
        values_["old"] = work_.v;
        const auto& [kind, operation] = found->second;
        operation(work_);
        values_["new"] = work_.v;
        if (isOnA) {
            work_.registers.a = work_.v;
        } else if (kind != ModelKind::kRead) {
            written.emplace_back(address_, work_.v);
        }
        return true;
    }

    const PageLine& line_;
    const ModelMemory& memory_;
    ModelRegisters before_;
    ModelWork work_;
    unsigned next_ = 0;  ///< the address behind the instruction
    unsigned address_ = 0;
    unsigned uncarried_ = 0;
    unsigned pointer_ = 0;
    unsigned target_ = 0;
    bool crossesPage_ = false;
    bool isTaken_ = false;
    std::map<std::string, unsigned> places_;
    std::map<std::string, unsigned> values_;
};

}  // namespace tarnsim
