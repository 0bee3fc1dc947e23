#pragma once

#include <string>
#include <vector>

#include "Core/Components/Component.h"
#include "Core/Support/Text.h"

namespace tarnsim {

/// What was called, in order.
using Journal = std::vector<std::string>;

/// A component that notes the changes of its inputs, `port:old>new@time`, and its calls, and does nothing else.
class NotingPart : public Component {
public:
    NotingPart(const std::string& type, const std::string& name, Circuit* parent) : Component(type, name, parent) {}
    NotingPart(const std::string& type, const std::string& name, const ParaMap& parameters)
        : Component(type, name, parameters) {}
    NotingPart(const NotingPart& other) : Component(other) {}

    void inputChanged(Port* port, const Value& oldValue, const Value& newValue, Time time) override {
        journal.push_back(format("%s:%s>%s@%d", port == nullptr ? "null" : port->getName().c_str(), oldValue.c_str(),
                                 newValue.c_str(), time));
    }
    void evaluate(Time time) override { journal.push_back(format("evaluate@%d", time)); }
    void applyParameters() override { journal.push_back("apply" + getParameterText()); }

    Journal journal;
};

/// A component with one delay that notes its evaluations.
class DelayedPart : public SingleDelayComponent {
public:
    using SingleDelayComponent::SingleDelayComponent;

    void evaluate(Time time) override {
        journal.push_back(format("%s@%d", getName().c_str(), time));
        seen = in.get(time - static_cast<Time>(getDelay())).c_str();
    }

    Pin& in = *createPin(Direction::Input, "in");
    Pin& other = *createPin(Direction::Input, "other");
    Pin& out = *createPin(Direction::Output, "out");
    Pin& inout = *createPin(Direction::Inout, "inout");
    Journal journal;
    std::string seen;  ///< what `in` held one delay before the last evaluation
};

}  // namespace tarnsim
