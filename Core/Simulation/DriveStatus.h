#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "Core/Values/Value.h"

namespace tarnsim {

/// Raises an Error for more drivers of one bit than the 255 that are counted.
void checkDriverCount(int total);

/// What one bit of a net is driven with: how many drivers there are, and at which level. A driver at `U` or `X` is
/// counted in `total` alone.
class PinDriveStatus {
public:
    PinDriveStatus() = default;
    PinDriveStatus(const PinDriveStatus&) = default;
    PinDriveStatus& operator=(const PinDriveStatus&) = default;
    virtual ~PinDriveStatus() = default;

    /// Counts one driver. Raises an Error beyond 255.
    void add(char letter);
    /// Counts all drivers of `status`. Raises an Error beyond 255.
    void add(const PinDriveStatus& status);

    /// `Z` without an active driver, the driver's level with one, `U` with two or more, whether they agree or not.
    char state() const;

private:
    std::uint8_t total_ = 0;
    std::uint8_t high_ = 0;
    std::uint8_t low_ = 0;
    std::uint8_t z_ = 0;
};

/// The same for a whole width of 0 to 255 bits. Up to 8 bits it needs no heap.
class PortDriveStatus {
public:
    explicit PortDriveStatus(std::uint32_t width);
    virtual ~PortDriveStatus() = default;

    std::uint32_t width() const { return width_; }

    /// Counts a driver of the whole width. Raises an Error for another width.
    void add(const Value& value);
    /// Counts all drivers of `other`. Raises an Error for another width.
    void add(const PortDriveStatus& other);

    /// The state of every bit.
    Value toValue() const;

private:
    static constexpr std::uint32_t kInlineWidth = 8;

    PinDriveStatus* bits() { return heapBits_ ? heapBits_.get() : inlineBits_.data(); }
    const PinDriveStatus* bits() const { return heapBits_ ? heapBits_.get() : inlineBits_.data(); }

    std::unique_ptr<PinDriveStatus[]> heapBits_;  ///< null up to kInlineWidth
    std::array<PinDriveStatus, kInlineWidth> inlineBits_;
    std::uint8_t width_;
};

}  // namespace tarnsim
