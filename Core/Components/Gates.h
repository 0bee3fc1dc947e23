#pragma once

#include <string>

#include "Core/Components/Chip.h"
#include "Core/Values/Logic.h"

namespace tarnsim {

/// A gate with the pins `a`, `b` and `out`, whose output is that of the table one delay later.
template <class Gate, const Logic::LetterTable& table>
class TwoInputGate : public Chip<Gate> {
public:
    using Chip<Gate>::Chip;

    void evaluate(Time time) override {
        const Time then = this->inputTime(time);
        out.setLevel(Logic::combine(a.level(then), b.level(then), table), time);
    }

private:
    InputPin a = this->inputPin("a");
    InputPin b = this->inputPin("b");
    OutputPin out = this->outputPin("out");
};

class And final : public TwoInputGate<And, Logic::kAnd> {
public:
    static constexpr PartInfo info = {"And", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Nand final : public TwoInputGate<Nand, Logic::kNand> {
public:
    static constexpr PartInfo info = {"Nand", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Xor final : public TwoInputGate<Xor, Logic::kXor> {
public:
    static constexpr PartInfo info = {"Xor", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Xnor final : public TwoInputGate<Xnor, Logic::kXnor> {
public:
    static constexpr PartInfo info = {"Xnor", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Or final : public TwoInputGate<Or, Logic::kOr> {
public:
    static constexpr PartInfo info = {"Or", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Nor final : public TwoInputGate<Nor, Logic::kNor> {
public:
    static constexpr PartInfo info = {"Nor", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

/// `out` is the opposite of `in`.
class Inv final : public Chip<Inv> {
public:
    static constexpr PartInfo info = {"Inv", "(delay=3)", kDelayDocumentation};
    using Chip::Chip;

    void evaluate(Time time) override;

private:
    InputPin in = inputPin("in");
    OutputPin out = outputPin("out");
};

}  // namespace tarnsim
