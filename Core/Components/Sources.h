#pragma once

#include <cstdint>
#include <string>

#include "Core/Components/Component.h"
#include "Core/Components/PartInfo.h"

namespace tarnsim {

/// A pin `out` that is at one level for ever. It is driven when the part is made, so that its net has a level before
/// any run, and again at the start of a run, which begins with empty histories.
template <class Source, char Level>
class LevelSource : public Component {
public:
    LevelSource(const std::string& name, const ParaMap& parameters)
        : Component(std::string(Source::info.typeName), name, parameters) {
        drive();
    }
    explicit LevelSource(const std::string& name) : LevelSource(name, ParaMap()) {}
    LevelSource(const LevelSource&) = delete;
    LevelSource& operator=(const LevelSource&) = delete;

    void start(Time /*endTime*/) override { drive(); }
    void evaluate(Time /*time*/) override {}
    void applyParameters() override {}

private:
    void drive() { out.setLevel(Level, 0); }

    Pin& out = outputPin("out");
};

class High final : public LevelSource<High, 'H'> {
public:
    static constexpr PartInfo info = {"High", "", ""};
    using LevelSource::LevelSource;
};

class Low final : public LevelSource<Low, 'L'> {
public:
    static constexpr PartInfo info = {"Low", "", ""};
    using LevelSource::LevelSource;
};

/// A bus `out` of `size` bits, 1 to 255, that holds the number `value` for ever. Driven as a level source is.
///
/// The number is cut to `size mod 32` bits and then meets the rules of Value::setNumber: sizes of 32, 64 and so on hold
/// 0; 31, 63 and so on take no number at all and raise std::out_of_range; wider ones repeat it every 32 bits.
class Const final : public Component {
public:
    static constexpr PartInfo info = {"Const", "(size=8,value=255)",
                                      "<b>size</b> The bit width of the constant.<p><b>value</b> The value of the "
                                      "constant (will be truncated to fit within 2^size-1)"};

    /// Raises an Error if one of the two parameters is missing, or for a size that no bus can have.
    Const(const std::string& name, const ParaMap& parameters);
    Const(const std::string& name, std::uint32_t size, std::uint32_t value);
    Const(const Const&) = delete;
    Const& operator=(const Const&) = delete;

    void start(Time /*endTime*/) override { drive(0); }
    void evaluate(Time time) override { drive(time); }
    /// Takes a new value. The width of `out` stays.
    void applyParameters() override;

private:
    struct Number {
        std::uint32_t size;
        std::uint32_t value;
    };
    Number readNumber() const;
    Number checked(Number number) const;
    void drive(Time time);

    Number number_;
    Port& out = output("out", number_.size);
};

/// A clock on the pin `out`: low at 0, and from `offset` ns on high for the first half of each period. The whole clock
/// is laid down at the start of a run, its last period reaching beyond the run's end.
///
/// The period is 10^9 / `frequency` (Hz) in whole ns; of an odd one the high half is the shorter by 1 ns.
class Oscillator final : public Component {
public:
    static constexpr PartInfo info = {"Oscillator", "(frequency=1000000,offset=0)",
                                      "<b>frequency</b> The frequency of the oscillator, in Hz.<p><b>offset</b> The "
                                      "time (in ns) until the osciallator makes its first positive flank."};

    Oscillator(const std::string& name, const ParaMap& parameters);
    Oscillator(const std::string& name, float frequency, std::uint32_t offset);
    Oscillator(const Oscillator&) = delete;
    Oscillator& operator=(const Oscillator&) = delete;

    /// Raises an Error for a frequency whose period isn't from 1 ns to the longest time there is.
    void start(Time endTime) override;
    void evaluate(Time /*time*/) override {}
    void applyParameters() override;

private:
    Time period() const;

    float frequency_;       ///< Hz
    std::uint32_t offset_;  ///< ns
    Pin& out = outputPin("out");
};

}  // namespace tarnsim
