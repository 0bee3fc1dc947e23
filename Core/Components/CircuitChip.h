#pragma once

#include <memory>
#include <string>
#include <type_traits>

#include "Core/Circuit/Circuit.h"
#include "Core/Components/PartInfo.h"

namespace tarnsim {

/// A chip that is a circuit: it may be made of units and nets, and yet has an `evaluate` of its own, one delay after a
/// change of its inputs. Otherwise it reads as a Chip does; a part with an `applyParameters` of its own, or one that
/// overrides `setDelay`, calls it in its constructors.
template <class Part>
class CircuitChip : public Circuit {
public:
    /// Takes a copy of the parameters but doesn't apply them: the part does, when it is complete.
    CircuitChip(const std::string& name, const ParaMap& parameters)
        : Circuit(std::string(Part::info.typeName), name, nullptr) {
        getParameters() = parameters;
    }
    /// `delay` in ns.
    CircuitChip(const std::string& name, std::uint32_t delay)
        : Circuit(std::string(Part::info.typeName), name, nullptr), delay_(delay) {}
    /// Parts refer to their own ports and units.
    CircuitChip(const CircuitChip&) = delete;
    CircuitChip& operator=(const CircuitChip&) = delete;

    void inputChanged(Port* /*port*/, const Value& /*oldValue*/, const Value& /*newValue*/, Time time) override {
        scheduleAfter(time, delay_);
    }
    Response responseTo(const Port& /*port*/) const override {
        static_assert(std::is_same_v<decltype(&Part::inputChanged), decltype(&CircuitChip::inputChanged)>);
        return {Response::Kind::Event, 0, delay_};
    }
    void applyParameters() override {
        std::uint32_t delay = delay_;
        getParameters().get("delay", &delay);
        setDelay(delay);
    }
    /// Another chip of the kind: a copy that is nothing but a circuit couldn't evaluate itself.
    std::unique_ptr<Circuit> cloneCircuit(const Circuit& source) const override {
        auto clone = std::make_unique<Part>(source.getName(), delay_);
        clone->getParameters() = source.getParameters();
        clone->setCommentText(source.getCommentText());
        clone->setId(source.getId());
        clone->setSimulator(source.findSimulator());
        return clone;
    }

    std::uint32_t getDelay() const { return delay_; }
    virtual void setDelay(std::uint32_t delay) {
        if (delay != delay_) responsesChange();
        delay_ = delay;
    }

protected:
    Time inputTime(Time time) const { return earlier(time, delay_); }

private:
    std::uint32_t delay_ = Part::kDelay;  ///< ns
};

}  // namespace tarnsim
