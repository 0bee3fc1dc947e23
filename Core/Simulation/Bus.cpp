#include "Core/Simulation/Bus.h"

#include <algorithm>

#include "Core/Simulation/Port.h"

namespace tarnsim {

Bus::Bus(Wire& wire, std::span<Port* const> drivers)
    : wire_(wire),
      drivers_(drivers),
      width_(drivers.front()->width()),
      active_(width_),
      letters_(width_),
      state_(width_),
      former_(width_) {}

void Bus::join() {
    wire_.joinBus(this);
    for (Port* driver : drivers_) driver->joinBus(this);
    count(latest_);
}

void Bus::add(const char* letters, bool isAdded) {
    for (std::size_t i = 0; i < width_; ++i) {
        const auto isActive = static_cast<std::uint8_t>(letters[i] != 'Z');
        active_[i] = static_cast<std::uint8_t>(isAdded ? active_[i] + isActive : active_[i] - isActive);
        letters_[i] = static_cast<char>(letters_[i] ^ (isActive != 0 ? letters[i] : 0));
    }
}

void Bus::count(Time time) {
    std::ranges::fill(active_, 0);
    std::ranges::fill(letters_, 0);
    for (const Port* driver : drivers_) {
        driver->lettersAt(time, former_.data());
        add(former_.data(), true);
    }
}

std::string_view Bus::state() {
    for (std::size_t i = 0; i < width_; ++i) {
        const char letter = active_[i] == 1 && isLevel(letters_[i]) ? letters_[i] : kUndefinedBit;
        state_[i] = active_[i] == 0 ? 'Z' : letter;
    }
    return {state_.data(), width_};
}

bool Bus::show(Time time) {
    const std::string_view letters = state();
    const bool isShown = wire_.passes(letters);
    if (isShown) {
        wire_.set(letters, time);
    } else {
        cut();
    }
    return isShown;
}

bool Bus::set(Port& driver, std::string_view letters, Time time) {
    if (time < latest_) {
        driver.recordLetters(letters, time);
        count(time);
        const bool isShown = show(time);
        count(latest_);
        return isShown;
    }
    driver.lettersAt(time, former_.data());
    driver.recordLetters(letters, time);
    latest_ = time;
    if (letters != std::string_view(former_.data(), width_)) {
        add(former_.data(), false);
        add(letters.data(), true);
    }
    return show(time);
}

void Bus::cut() {
    for (Port* driver : drivers_) driver->leaveBus();
    drivers_ = {};
    wire_.cut();
}

}  // namespace tarnsim
