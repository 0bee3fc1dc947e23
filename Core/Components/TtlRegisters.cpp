#include "Core/Components/TtlRegisters.h"

#include "Core/Components/PartParameters.h"
#include "Core/Support/Text.h"

namespace tarnsim {

SN74x174::SN74x174(const std::string& name, const ParaMap& parameters) : Chip(name, parameters, ApplyLater()) {
    setDelay(35);
    SN74x174::applyParameters();
}

void SN74x174::applyParameters() {
    static constexpr FamilyDelay kFamilies[] = {{"F", 14}, {"AS", 15}, {"ALS", 30}, {"LS", 35}};
    setDelay(familyDelay(getParameters(), kFamilies, "Error: unknown device family of SN74x174: '%s'.")
                 .value_or(getDelay()));
    Chip::applyParameters();
}

void SN74x174::reset() {
    edges_.evaluatedAt(-1);
    Chip::reset();
}

void SN74x174::evaluate(Time time) {
    const Time then = inputTime(time);
    const char clr = CLR.level(then);
    const ClockStep clock = edges_.step(CLK, time, getDelay());
    edges_.evaluatedAt(time);

    if (clr == 'L') return setAll('L', time);
    if (clr != 'H' || !clock.isDefined()) return setAll('U', time);
    if (!clock.isRising()) return;
    for (Bit& bit : bits) bit.Q.setLevel(bit.D.level(then), time);
}

void SN74x174::setAll(char letter, Time time) {
    for (Bit& bit : bits) bit.Q.setLevel(letter, time);
}

SN74x273::SN74x273(const std::string& name, const ParaMap& parameters) : Chip(name, parameters, ApplyLater()) {
    SN74x273::applyParameters();
}

void SN74x273::applyParameters() {
    static constexpr FamilyDelay kFamilies[] = {{"LS", 27}};
    setDelay(familyDelay(getParameters(), kFamilies, "Error: unknown/unsupported device family of SN74x273: '%s'.")
                 .value_or(27));
}

void SN74x273::reset() {
    state_.setUndefined();
    edges_.evaluatedAt(0);
    Chip::reset();
}

void SN74x273::evaluate(Time time) {
    const Time then = inputTime(time);
    if (edges_.step(clk, time, getDelay()).isRising()) state_ = D.get(then);
    edges_.evaluatedAt(time);

    switch (CLR.level(then)) {
        case 'L': state_ = "LLLLLLLL"; return Q.setLetters(state_.letters(), time);
        case 'H': return Q.setLetters(state_.letters(), time);
        default: return Q.setLetters("UUUUUUUU", time);
    }
}

DM74x574::DM74x574(const std::string& name, const ParaMap& parameters) : CircuitChip(name, parameters) {
    DM74x574::applyParameters();
}

void DM74x574::applyParameters() {
    static constexpr FamilyDelay kFamilies[] = {{"F", 13}, {"AS", 10}, {"ALS", 18}, {"LS", 28}};
    setDelay(familyDelay(getParameters(), kFamilies, "Error: unknown device family of SN74x574: '%s'.")
                 .value_or(getDelay()));
    CircuitChip::applyParameters();
}

void DM74x574::reset() {
    state_.setUndefined();
    edges_.evaluatedAt(0);
    CircuitChip::reset();
}

void DM74x574::evaluate(Time time) {
    const Time then = inputTime(time);
    if (edges_.step(clk, time, getDelay()).isRising()) state_ = D.get(then);
    edges_.evaluatedAt(time);

    switch (OE.level(then)) {
        case 'H': return Q.setLetters("ZZZZZZZZ", time);
        case 'U': return Q.setLetters("UUUUUUUU", time);
        case 'L': return Q.setLetters(state_.letters(), time);
        default: return;
    }
}

DM74LS374::DM74LS374(const std::string& name, const ParaMap& parameters) : CircuitChip(name, parameters) {
    wire();
    DM74LS374::applyParameters();
}

DM74LS374::DM74LS374(const std::string& name, std::uint32_t delay) : CircuitChip(name, delay) {
    wire();
}

Connector::Declarations DM74LS374::bitDeclarations() {
    Connector::Declarations bits;
    for (int i = 0; i < 8; ++i) bits.emplace_back(std::to_string(i), std::to_string(i));
    return bits;
}

void DM74LS374::wire() {
    createNet("D", {&D, split_.findPort("in")});
    createNet("Q", {&Q, join_.findPort("out")});
    std::vector<Port*> clocks = {&clk};
    std::vector<Port*> enables = {&OE};
    for (int i = 0; i < 8; ++i) {
        const std::string number = std::to_string(i);
        auto& flipFlop = addPart<D_flip_flop>(format("dff[%d]", i), getDelay());
        createNet("d" + number, {split_.findPort(number), flipFlop.findPort("D")});
        createNet("q" + number, {join_.findPort(number), flipFlop.findPort("Q")});
        clocks.push_back(flipFlop.findPort("clk"));
        enables.push_back(flipFlop.findPort("_OE"));
        flipFlops_.push_back(&flipFlop);
    }
    createNet("clk", clocks);
    createNet("_OE", enables);
}

void DM74LS374::setDelay(std::uint32_t delay) {
    CircuitChip::setDelay(delay);
    for (D_flip_flop* flipFlop : flipFlops_) flipFlop->setDelay(delay);
}

void DM74LS374::evaluate(Time time) {
    split_.evaluate(time);
    for (D_flip_flop* flipFlop : flipFlops_) flipFlop->evaluate(time);
    join_.evaluate(time);
}

}  // namespace tarnsim
