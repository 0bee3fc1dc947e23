#pragma once

#include <cstdint>

namespace tarnsim {

/// The place of an object in the order of creation, counted over the whole process. A copy is a new object with a
/// number of its own. Orders by this number are the same on every run, which orders by address are not.
class CreationNumber {
public:
    CreationNumber() : value_(++lastNumber) {}
    CreationNumber(const CreationNumber&) : CreationNumber() {}
    CreationNumber& operator=(const CreationNumber&) { return *this; }

    /// Never 0.
    std::uint64_t value() const { return value_; }

private:
    inline static std::uint64_t lastNumber = 0;
    std::uint64_t value_;
};

}  // namespace tarnsim
