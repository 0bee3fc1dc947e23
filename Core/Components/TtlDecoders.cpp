#include "Core/Components/TtlDecoders.h"

#include <algorithm>
#include <optional>

#include "Core/Simulation/Net.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

/// The latest time, from `time` back to 0, at which `pin` was low. Goes back record by record and not ns by ns: the
/// latch may have been closed a long time ago.
std::optional<Time> latestLow(const Pin& pin, Time time) {
    const Net* net = pin.getNet(kOutside);
    const ValueHistory& history = net == nullptr ? static_cast<const ValueHistory&>(pin) : *net;
    while (time >= 0) {
        if (pin.level(time) == 'L') return time;
        const Time change = history.lastChange(time);
        if (change == kEarliestTime) break;
        time = change - 1;
    }
    return std::nullopt;
}

/// Whatever isn't high counts as 0.
std::size_t weight(const Pin& pin, Time time, std::size_t ifHigh) {
    return pin.level(time) == 'H' ? ifHigh : 0;
}

}  // namespace

std::size_t DM74LS137::address(Time time) const {
    return weight(C, time, 4) + weight(B, time, 2) + weight(A, time, 1);
}

void DM74LS137::evaluate(Time time) {
    const Time then = inputTime(time);
    const char gl = GL.level(then);
    const char g1 = G1.level(then);
    const char g2 = G2.level(then);

    Value decoded("HHHHHHHH");
    if (gl == 'L' && g1 == 'H' && g2 == 'L') decoded[address(then)] = 'L';
    // On purpose: an unknown enable pulls the line low all the same, latched or not, so `Y` never shows a U for it.
    if (g1 == 'H' && g2 == 'U') decoded[address(then)] = 'L';
    if (g1 == 'U' && (g2 == 'L' || g2 == 'U')) decoded[address(then)] = 'L';
    if (gl == 'H' && g1 == 'H' && g2 == 'L') {
        if (const auto latched = latestLow(GL, then)) {
            decoded[address(*latched)] = 'L';
        } else {
            decoded.setUndefined();
        }
    }
    Y.set(decoded, time);
}

DM74LS154::DM74LS154(const std::string& name, std::uint32_t delay, Unwired /*unused*/) : CircuitChip(name, delay) {}

DM74LS154::DM74LS154(const std::string& name, const ParaMap& parameters) : DM74LS154(name, kDelay, Unwired()) {
    getParameters() = parameters;
    wire();
    applyParameters();
}

DM74LS154::DM74LS154(const std::string& name, std::uint32_t delay) : DM74LS154(name, delay, Unwired()) {
    wire();
}

DM74LS154::~DM74LS154() {
    for (Port* pin : split_.getPorts()) removePort(pin);
}

Connector::Declarations DM74LS154::pinDeclarations() {
    Connector::Declarations pins;
    for (int i = 0; i < 16; ++i) pins.emplace_back(format("Y%d", i), format("%d", i));
    return pins;
}

void DM74LS154::wire() {
    createNet("y_net", {&Y, split_.findPort("in"), &decoded_});
    for (int i = 0; i < 16; ++i) addPort(split_.findPort(format("Y%d", i)));
}

void DM74LS154::reset() {
    decoded_.clear();
    CircuitChip::reset();
}

void DM74LS154::evaluate(Time time) {
    const Time then = inputTime(time);
    const auto isAt = [then](char letter) { return [=](const Pin* pin) { return pin->level(then) == letter; }; };
    const std::array<const Pin*, 2> enables = {&G1, &G2};
    const std::array<const Pin*, 4> address = {&A, &B, &C, &D};

    Value decoded("HHHHHHHHHHHHHHHH");
    if (std::ranges::all_of(enables, isAt('L'))) {
        decoded[weight(D, then, 8) + weight(C, then, 4) + weight(B, then, 2) + weight(A, then, 1)] = 'L';
    }
    if (std::ranges::any_of(address, isAt('U')) || std::ranges::any_of(enables, isAt('U'))) decoded.setUndefined();
    decoded_.set(decoded, time);
    split_.evaluate(time);  // at once: the pins change with the bus
}

}  // namespace tarnsim
