#include "Core/Simulation/Bus.h"

#include "Core/Simulation/Port.h"

namespace tarnsim {

Bus::Bus(Wire& wire, std::span<Port* const> drivers)
    : wire_(wire),
      drivers_(drivers),
      width_(drivers.front()->width()),
      lanes_((width_ + LetterWord::kLetters - 1) / LetterWord::kLetters),
      driven_(lanes_.size() * drivers.size(), LetterWord::allOf('Z')),
      shown_(lanes_.size() * LetterWord::kLetters, kUndefinedBit),
      past_(lanes_.size()),
      letters_(width_) {}

void Bus::join() {
    wire_.joinBus(this);
    std::uint32_t place = 0;
    for (Port* driver : drivers_) driver->joinBus(this, place++);
    for (const Port* driver : drivers_) {
        driver->lettersAt(latest_, letters_.data());
        note(*driver, letters_.data());
    }
}

/// What the driver shows at the latest time. False if it was known.
bool Bus::note(const Port& driver, const char* letters) {
    bool isNew = false;
    LetterWord* driven = &driven_[driver.getBusPlace() * lanes_.size()];
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        const auto word = LetterWord::load(letters + i * LetterWord::kLetters, lettersIn(i));
        if (word == driven[i]) continue;
        lanes_[i].remove(driven[i]);
        lanes_[i].add(word);
        driven[i] = word;
        isNew = true;
    }
    return isNew;
}

void Bus::count(Time time) {
    std::ranges::fill(past_, DriveLanes());
    for (const Port* driver : drivers_) {
        driver->lettersAt(time, letters_.data());
        for (std::size_t i = 0; i < past_.size(); ++i) {
            past_[i].add(LetterWord::load(&letters_[i * LetterWord::kLetters], lettersIn(i)));
        }
    }
}

bool Bus::isSettled(Time time) const {
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        const char* shown = &shown_[i * LetterWord::kLetters];
        if (lanes_[i].state() != LetterWord::load(shown, LetterWord::kLetters)) return false;
    }
    return latest_ <= time;
}

bool Bus::set(Port& driver, std::string_view letters, Time time) {
    driver.recordLetters(letters, time);
    if (time < latest_) return setPast(driver, time);
    latest_ = time;
    const bool isNew = note(driver, letters.data());
    // What a bus is told most is that another buffer goes on floating.
    if (!isNew && recordedAt_ == time) return true;
    recordedAt_ = time;
    bool isChange = false;
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        char* shown = &shown_[i * LetterWord::kLetters];
        const LetterWord state = lanes_[i].state();
        if (state == LetterWord::load(shown, LetterWord::kLetters)) continue;
        state.store(shown, LetterWord::kLetters);
        isChange = true;
    }
    if (!isChange) {
        wire_.repeat({shown_.data(), width_}, time);
    } else if (!wire_.change({shown_.data(), width_}, time)) {
        cut();
        return false;
    }
    return true;
}

/// The rest of `set` for a time before the latest. Other drivers may have been set since.
bool Bus::setPast(Port& driver, Time time) {
    recordedAt_.reset();
    driver.lettersAt(latest_, letters_.data());
    note(driver, letters_.data());
    count(time);
    for (std::size_t i = 0; i < past_.size(); ++i) {
        past_[i].state().store(&letters_[i * LetterWord::kLetters], lettersIn(i));
    }
    const bool isShown = wire_.set({letters_.data(), width_}, time);
    if (!isShown) cut();
    return isShown;
}

void Bus::cut() {
    for (Port* driver : drivers_) driver->leaveBus();
    drivers_ = {};
    wire_.cut();
}

}  // namespace tarnsim
