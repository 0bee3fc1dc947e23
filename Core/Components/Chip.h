#pragma once

#include <string>
#include <type_traits>

#include "Core/Components/Component.h"
#include "Core/Components/PartInfo.h"

namespace tarnsim {

/// A part with one delay that works its outputs out from its inputs. It reads like its page in the data book:
///
///     class DM74LS283 final : public Chip<DM74LS283> {
///     public:
///         static constexpr PartInfo info = {"DM74LS283", "(delay=24)", "..."};
///         using Chip::Chip;
///         void evaluate(Time time) override;
///
///     private:
///         Port& A = input("A", 4);
///         Pin& cout = outputPin("cout");
///     };
///
/// The members are the ports in the order in which files see them, since members are initialised in order.
///
/// When this base is constructed, the part isn't there yet: it reads the delay as SingleDelayComponent does. A part
/// with an `applyParameters` of its own has it done by its own constructor, and asks for nothing here (`ApplyLater`).
template <class Part>
class Chip : public SingleDelayComponent {
public:
    Chip(const std::string& name, const ParaMap& parameters) : Chip(name, parameters, ApplyLater()) {
        this->readDelay();
    }
    /// `delay` in ns.
    Chip(const std::string& name, std::uint32_t delay)
        : SingleDelayComponent(std::string(Part::info.typeName), name, delay) {}

    Response responseTo(const Port& /*port*/) const override { return responseOf<Part>(); }
    Evaluator evaluator() const override {
        if constexpr (!std::is_final_v<Part>) return SingleDelayComponent::evaluator();
        return [](Component& part, Time time) { static_cast<Part&>(part).evaluate(time); };
    }

protected:
    struct ApplyLater {};
    Chip(const std::string& name, const ParaMap& parameters, ApplyLater /*unused*/)
        : SingleDelayComponent(std::string(Part::info.typeName), name, parameters) {}
};

}  // namespace tarnsim
