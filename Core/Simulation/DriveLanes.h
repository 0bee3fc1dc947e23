#pragma once

#include <cstdint>

#include "Core/Values/LetterWord.h"
#include "Core/Values/Value.h"

namespace tarnsim {

/// What up to 255 drivers come to on eight bits of a net, a byte for each: how many of them aren't at `Z`, and their
/// letters, combined by exclusive or: of one driver, its letter. So a driver can be taken out again. `DriveLanes()` has
/// no drivers.
class DriveLanes {
public:
    void add(LetterWord word) {
        const std::uint64_t driven = ~word.equalTo('Z');
        active_ += LetterWord::kOnes & driven;
        letters_ ^= word.bytes() & driven;
    }
    /// REQUIRES: `word` was added
    void remove(LetterWord word) {
        const std::uint64_t driven = ~word.equalTo('Z');
        active_ -= LetterWord::kOnes & driven;
        letters_ ^= word.bytes() & driven;
    }
    /// `Z` without an active driver, the level of a single one, else `U`.
    LetterWord state() const {
        const std::uint64_t floating = LetterWord(active_).equalTo('\0');
        const std::uint64_t known = LetterWord(active_).equalTo('\1') & LetterWord(letters_).levels();
        return LetterWord((floating & LetterWord::allOf('Z').bytes()) | (known & letters_) |
                          (~(floating | known) & LetterWord::allOf(kUndefinedBit).bytes()));
    }

private:
    // Not set in a row of lanes that nobody has filled: a net of one bit doesn't pay for the widest.
    std::uint64_t active_;
    std::uint64_t letters_;
};

}  // namespace tarnsim
