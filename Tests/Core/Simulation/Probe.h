#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Core/Components/Component.h"

namespace tarnsim {

/// What was called, in order.
using Journal = std::vector<std::string>;

/// A component that notes its calls, `name@time` or `name@time#tag`, and then does what the test gave it to do.
class Probe : public Component {
public:
    Probe(const std::string& name, Circuit* parent, Journal& journal)
        : Component("Probe", name, parent), journal_(journal) {}

    void evaluate(Time time) override {
        journal_.push_back(getName() + "@" + std::to_string(time));
        if (action) action(time);
    }
    void evaluateTagged(Time time, std::uint64_t tag) override {
        journal_.push_back(getName() + "@" + std::to_string(time) + "#" + std::to_string(tag));
        if (action) action(time);
    }
    void applyParameters() override {}

    std::function<void(Time)> action;

private:
    Journal& journal_;
};

}  // namespace tarnsim
