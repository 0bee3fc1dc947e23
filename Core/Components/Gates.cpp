#include "Core/Components/Gates.h"

namespace tarnsim {

Inv::Inv(const std::string& name, const ParaMap& parameters)
    : SingleDelayComponent(std::string(info.typeName), name, parameters) {
    SingleDelayComponent::applyParameters();
}

Inv::Inv(const std::string& name, std::uint32_t delay)
    : SingleDelayComponent(std::string(info.typeName), name, delay) {}

void Inv::evaluate(Time time) {
    out.set(Logic::Not(delayedInput(in, time)), time);
}

}  // namespace tarnsim
