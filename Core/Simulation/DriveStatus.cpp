#include "Core/Simulation/DriveStatus.h"

#include "Core/Support/Error.h"

namespace tarnsim {

void checkDriverCount(int total) {
    if (total > 255) throw Error("*** ERROR: Maximum size of a a network is reached. Max 255 ports per net.");
}

void PinDriveStatus::add(char letter) {
    checkDriverCount(total_ + 1);
    ++total_;
    if (letter == 'L') ++low_;
    if (letter == 'Z') ++z_;
    if (letter == 'H') ++high_;
}

void PinDriveStatus::add(const PinDriveStatus& status) {
    checkDriverCount(total_ + status.total_);
    total_ = static_cast<std::uint8_t>(total_ + status.total_);
    high_ = static_cast<std::uint8_t>(high_ + status.high_);
    low_ = static_cast<std::uint8_t>(low_ + status.low_);
    z_ = static_cast<std::uint8_t>(z_ + status.z_);
}

char PinDriveStatus::state() const {
    if (z_ == total_) return 'Z';
    if (z_ != total_ - 1) return 'U';
    if (high_ == 1) return 'H';
    return low_ == 1 ? 'L' : 'U';
}

PortDriveStatus::PortDriveStatus(std::uint32_t width) : width_(static_cast<std::uint8_t>(width)) {
    if (width_ > kInlineWidth) heapBits_ = std::make_unique<PinDriveStatus[]>(width_);
}

void PortDriveStatus::add(const Value& value) {
    if (value.width() != width_) {
        throw Error("*** ERROR: mismatch between Port and PortDriveStatus sizes; %d vs %d", value.width(), width_);
    }
    for (std::size_t i = 0; i < width_; ++i) bits()[i].add(value[i]);
}

void PortDriveStatus::add(const PortDriveStatus& other) {
    if (other.width_ != width_) {
        throw Error("*** ERROR: mismatch between PortDriveStatus sizes; %d vs %d", other.width_, width_);
    }
    for (std::size_t i = 0; i < width_; ++i) bits()[i].add(other.bits()[i]);
}

Value PortDriveStatus::toValue() const {
    Value value(width_);
    for (std::size_t i = 0; i < width_; ++i) value[i] = bits()[i].state();
    return value;
}

}  // namespace tarnsim
