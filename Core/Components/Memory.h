#pragma once

#include <cstdint>

#include "Core/Values/Time.h"
#include "Core/Values/Value.h"

namespace tarnsim {

/// A memory as a host sees it, apart from its pins: words that can be read and written at any time of a run, also
/// before and after it.
class MemoryInterface {
public:
    virtual ~MemoryInterface() = default;

    /// Number of words.
    virtual std::uint32_t getSize() const = 0;
    /// Bits of a word.
    virtual std::uint32_t getWordSize() const = 0;
    /// The word at `address` as it is at `time`. Memories that don't remember their past give what they hold.
    virtual Value read(std::uint32_t address, Time time) const = 0;
    /// `value` has the width of a word.
    virtual void write(const Value& value, std::uint32_t address, Time time) = 0;
};

}  // namespace tarnsim
