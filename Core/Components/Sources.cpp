#include "Core/Components/Sources.h"

#include "Core/Components/PartParameters.h"
#include "Core/Support/Error.h"

namespace tarnsim {

Const::Const(const std::string& name, const ParaMap& parameters)
    : Component(std::string(info.typeName), name, parameters), number_(checked(readNumber())) {
    drive(0);
}

Const::Const(const std::string& name, std::uint32_t size, std::uint32_t value)
    : Component(std::string(info.typeName), name, nullptr), number_(checked({size, value})) {
    drive(0);
}

void Const::applyParameters() {
    number_ = checked(readNumber());
}

Const::Number Const::readNumber() const {
    const ParaMap& parameters = getParameters();
    Number number{};
    if (!parameters.has("size")) throw Error("A Const unit needs a 'size' parameter.");
    parameters.get("size", &number.size);
    if (!parameters.has("value")) throw Error("A Const unit needs a 'value' parameter.");
    parameters.get("value", &number.value);
    return number;
}

Const::Number Const::checked(Number number) const {
    checkedSize(*this, "size", number.size);
    number.value &= (1U << (number.size & 31U)) - 1U;
    return number;
}

void Const::drive(Time time) {
    Value value(out.width());
    value.setNumber(static_cast<std::int32_t>(number_.value));
    out.set(value, time);
}

Oscillator::Oscillator(const std::string& name, const ParaMap& parameters)
    : Component(std::string(info.typeName), name, parameters), frequency_(0), offset_(0) {
    Oscillator::applyParameters();
}

Oscillator::Oscillator(const std::string& name, float frequency, std::uint32_t offset)
    : Component(std::string(info.typeName), name, nullptr), frequency_(frequency), offset_(offset) {}

void Oscillator::applyParameters() {
    getParameters().get("frequency", &frequency_);
    getParameters().get("offset", &offset_);
}

Time Oscillator::period() const {
    const double period = 1000000000.0 / static_cast<double>(frequency_);
    // Put so that it also refuses what is no number.
    if (!(period >= 1.0 && period < double{kLatestTime} + 1.0)) {
        throw Error("Error: Oscillator '%s': a frequency of %g Hz has no period from 1 to %d ns.", getName().c_str(),
                    static_cast<double>(frequency_), kLatestTime);
    }
    return static_cast<Time>(period);
}

void Oscillator::start(Time endTime) {
    const std::int64_t whole = period();
    const std::int64_t half = whole / 2;
    const std::int64_t count = endTime / whole;
    const auto setFrom = [&](char letter, std::int64_t time) {
        if (time <= kLatestTime) out.setLevel(letter, static_cast<Time>(time));
    };
    out.setLevel('L', 0);
    for (std::int64_t i = 0; i <= count; ++i) {
        const std::int64_t rise = offset_ + i * whole;
        setFrom('H', rise);
        setFrom('L', rise + half);
    }
}

}  // namespace tarnsim
