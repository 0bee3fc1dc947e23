#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Core/Values/ValueHistory.h"

namespace tarnsim {

/// The words of a memory that remembers: each has its value over time.
///
/// A word that was never written has no history of its own and reads `U`. So making or clearing the cells of a memory
/// takes one pointer a word and no more, and memory is used by what a program touches.
class MemoryCells {
public:
    /// `size` words of `wordSize` bits.
    MemoryCells(std::uint32_t size, std::uint32_t wordSize) : wordSize_(wordSize), words_(size) {}

    // Both raise std::out_of_range for an address that isn't below the size.

    Value read(std::uint32_t address, Time time) const {
        const auto& word = words_.at(address);
        return word ? word->get(time) : Value(wordSize_);
    }
    void write(const Value& value, std::uint32_t address, Time time) {
        auto& word = words_.at(address);
        if (!word) word = std::make_unique<ValueHistory>(wordSize_);
        word->set(value, time);
    }

    /// Forgets everything.
    void clear() {
        for (auto& word : words_) word.reset();
    }

private:
    std::uint32_t wordSize_;
    std::vector<std::unique_ptr<ValueHistory>> words_;  ///< null where nothing was ever written
};

}  // namespace tarnsim
