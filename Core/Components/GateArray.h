#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "Core/Components/Component.h"
#include "Core/Components/PartInfo.h"

namespace tarnsim {

/// A package of like gates that have nothing but the supply in common. `Part` is a page of the data book with two lines
/// more than others: `gateCount`, and `pins`, the names for the ports of a gate, in the order in which the gate has
/// them, with `#` for the gate's number from 1 on. `gateArguments` go to the gate's constructor behind name and delay.
///
/// The ports are the gates' own: a gate's port stands in the list of the package as well, under its name there. The
/// gates are in no circuit, so what they schedule for themselves goes nowhere; the package, which hears of the same
/// changes, evaluates them.
template <class Part, class Gate, auto... gateArguments>
class GateArray : public SingleDelayComponent {
public:
    // Each begins with a complete object without gates: so the destructor runs also when what follows fails.

    GateArray(const std::string& name, const ParaMap& parameters) : GateArray(name, parameters, WithoutGates()) {
        makeGates();
        this->readDelay();
    }
    /// `delay` in ns.
    GateArray(const std::string& name, std::uint32_t delay) : GateArray(name, ParaMap(), WithoutGates()) {
        makeGates();
        GateArray::setDelay(delay);
    }
    /// The gates die here, before the base class lets go of the ports: these have to leave its list first.
    ~GateArray() override {
        for (const auto& gate : gates_) {
            for (Port* port : gate->getPorts()) removePort(port);
        }
    }

    Response responseTo(const Port& /*port*/) const override { return this->template responseOf<Part>(); }
    void evaluate(Time time) override {
        for (const auto& gate : gates_) gate->evaluate(time);
    }
    void reset() override {
        for (const auto& gate : gates_) gate->reset();
        SingleDelayComponent::reset();
    }
    void setDelay(std::uint32_t delay) override {
        SingleDelayComponent::setDelay(delay);
        setGateDelay(delay);
    }

protected:
    void setGateDelay(std::uint32_t delay) {
        for (const auto& gate : gates_) gate->setDelay(delay);
    }

private:
    struct WithoutGates {};
    GateArray(const std::string& name, const ParaMap& parameters, WithoutGates /*unused*/)
        : SingleDelayComponent(std::string(Part::info.typeName), name, parameters) {}

    void makeGates() {
        for (std::size_t i = 0; i < Part::gateCount; ++i) {
            const std::string number = std::to_string(i + 1);
            // Kept before it lends its ports: the destructor takes back those of the gates that are here.
            Gate& gate = *gates_.emplace_back(std::make_unique<Gate>("gate" + number, 0U, gateArguments...));
            for (std::size_t k = 0; k < Part::pins.size(); ++k) {
                std::string pin(Part::pins[k]);
                addPort(gate.getPorts()[k], pin.replace(pin.find('#'), 1, number));
            }
        }
    }

    std::vector<std::unique_ptr<Gate>> gates_;
};

}  // namespace tarnsim
