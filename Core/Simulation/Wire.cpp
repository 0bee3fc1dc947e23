#include "Core/Simulation/Wire.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Core/Simulation/Bus.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Core/Values/LetterWord.h"

namespace tarnsim {

Wire::Wire(EventSimulator& simulator, const Members& members)
    : simulator_(simulator),
      listeners_(members.listeners.data()),
      ports_(members.ports.data()),
      nets_(members.nets.data()),
      listenerCount_(static_cast<std::uint32_t>(members.listeners.size())),
      portCount_(static_cast<std::uint32_t>(members.ports.size())),
      netCount_(static_cast<std::uint32_t>(members.nets.size())),
      passesZ_(members.passesZ),
      driver_(members.driver) {}

void Wire::join(const std::shared_ptr<void>& owner) {
    const std::shared_ptr<ValueRecords> records(owner, &records_);
    // The nets first: a port asks its net whether it is on this wire, too.
    for (Net* net : nets()) net->joinWire(this, records);
    for (Port* port : ports()) port->joinWire(this, records);
}

bool Wire::passes(std::string_view letters) const {
    for (std::size_t i = 0; i < letters.size(); i += LetterWord::kLetters) {
        const std::size_t count = std::min(LetterWord::kLetters, letters.size() - i);
        const auto word = LetterWord::load(letters.data() + i, count);
        const std::uint64_t passing =
            word.levels() | word.equalTo(kUndefinedBit) | (passesZ_ ? word.equalTo('Z') : std::uint64_t{0});
        if ((~passing & LetterWord::first(count)) != 0) return false;
    }
    return true;
}

bool Wire::set(std::string_view letters, Time time) {
    if (letters.size() == 1) {
        const bool isPassed = passes(letters.front());
        if (isPassed) setLetter(letters.front(), time);
        return isPassed;
    }
    const char* before = records_.lettersInForceAt(time);
    const bool isChange = before == nullptr ? letters.find_first_not_of(kUndefinedBit) != std::string_view::npos
                                            : letters != std::string_view(before, letters.size());
    if (isChange) return change(letters, time);
    repeat(letters, time);
    return true;
}

bool Wire::change(std::string_view letters, Time time) {
    if (!passes(letters)) return false;
    records_.store(time, letters);
    notify(time);
    return true;
}

void Wire::refresh(Time time) {
    // A copy, since entering a record moves others.
    std::array<char, kMaxValueWidth> letters;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    const std::size_t width = driver_->width();
    const char* recorded = records_.lettersInForceAt(time);
    if (recorded == nullptr) {
        std::fill_n(letters.data(), width, kUndefinedBit);
    } else {
        std::copy_n(recorded, width, letters.data());
    }
    records_.store(time, {letters.data(), width});
}

void Wire::cut() {
    if (Bus* bus = std::exchange(bus_, nullptr)) return bus->cut();
    for (Port* port : ports()) port->leaveWire();
    for (Net* net : nets()) net->leaveWire();
    listenerCount_ = portCount_ = netCount_ = 0;
    driver_ = nullptr;
}

}  // namespace tarnsim
