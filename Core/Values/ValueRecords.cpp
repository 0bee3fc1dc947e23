#include "Core/Values/ValueRecords.h"

#include <algorithm>

namespace tarnsim {

namespace {

auto offset(std::size_t n) {
    return static_cast<std::ptrdiff_t>(n);
}

}  // namespace

void ValueRecords::clear() {
    times_.clear();
    letters_.clear();
}

void ValueRecords::store(Time time, std::string_view letters) {
    if (times_.empty()) width_ = letters.size();
    const std::size_t at = firstFrom(time);
    const auto place = letters_.begin() + offset(at * width_);
    if (at < size() && times_[at] == time) {
        std::ranges::copy(letters, place);
        return;
    }
    letters_.insert(place, letters.begin(), letters.end());
    times_.insert(times_.begin() + offset(at), time);
}

std::optional<std::size_t> ValueRecords::inForceAt(Time time) const {
    if (!times_.empty() && times_.back() <= time) return size() - 1;
    const auto next = std::ranges::upper_bound(times_, time);
    if (next == times_.begin()) return std::nullopt;
    return static_cast<std::size_t>(next - times_.begin() - 1);
}

std::size_t ValueRecords::firstFrom(Time time) const {
    if (times_.empty() || times_.back() < time) return size();
    return static_cast<std::size_t>(std::ranges::lower_bound(times_, time) - times_.begin());
}

}  // namespace tarnsim
