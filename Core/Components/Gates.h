#pragma once

#include <string>

#include "Core/Components/Component.h"
#include "Core/Components/PartInfo.h"
#include "Core/Values/Logic.h"

namespace tarnsim {

/// A gate with the pins `a`, `b` and `out`, whose output is `Operation(a, b)` one delay later.
template <class Gate, auto Operation>
class TwoInputGate : public SingleDelayComponent {
public:
    TwoInputGate(const std::string& name, const ParaMap& parameters)
        : SingleDelayComponent(std::string(Gate::info.typeName), name, parameters) {
        SingleDelayComponent::applyParameters();
    }
    /// `delay` in ns.
    TwoInputGate(const std::string& name, std::uint32_t delay)
        : SingleDelayComponent(std::string(Gate::info.typeName), name, delay) {}

    void evaluate(Time time) override { out.set(Operation(delayedInput(a, time), delayedInput(b, time)), time); }

private:
    // In the order of the ports.
    Pin& a = *createPin(Direction::Input, "a");
    Pin& b = *createPin(Direction::Input, "b");
    Pin& out = *createPin(Direction::Output, "out");
};

class And final : public TwoInputGate<And, Logic::And> {
public:
    static constexpr PartInfo info = {"And", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Nand final : public TwoInputGate<Nand, Logic::Nand> {
public:
    static constexpr PartInfo info = {"Nand", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Xor final : public TwoInputGate<Xor, Logic::Xor> {
public:
    static constexpr PartInfo info = {"Xor", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Xnor final : public TwoInputGate<Xnor, Logic::Xnor> {
public:
    static constexpr PartInfo info = {"Xnor", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Or final : public TwoInputGate<Or, Logic::Or> {
public:
    static constexpr PartInfo info = {"Or", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

class Nor final : public TwoInputGate<Nor, Logic::Nor> {
public:
    static constexpr PartInfo info = {"Nor", "(delay=3)", kDelayDocumentation};
    using TwoInputGate::TwoInputGate;
};

/// `out` is the opposite of `in`.
class Inv final : public SingleDelayComponent {
public:
    static constexpr PartInfo info = {"Inv", "(delay=3)", kDelayDocumentation};

    Inv(const std::string& name, const ParaMap& parameters);
    /// `delay` in ns.
    Inv(const std::string& name, std::uint32_t delay);

    void evaluate(Time time) override;

private:
    Pin& in = *createPin(Direction::Input, "in");
    Pin& out = *createPin(Direction::Output, "out");
};

}  // namespace tarnsim
