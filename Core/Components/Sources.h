#pragma once

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
    void drive() { out.set(Value(Level, 1), 0); }

    Pin& out = *createPin(Direction::Output, "out");
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

}  // namespace tarnsim
