#include "Core/Simulation/PinSpec.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

/// No bus comes near to this; a slip of the pen mustn't take all memory.
constexpr std::int64_t kLongestRange = 1 << 20;

/// Takes a bit number off the front of a segment; characters behind it stay and are the caller's to judge.
std::optional<std::int32_t> takeBitNumber(std::string_view& segment) {
    const auto number = takeLeadingInteger(segment);
    return number && *number >= 0 ? number : std::nullopt;
}

/// Appends the bits of one segment in the order of the text. False if it is malformed.
bool appendSegment(std::string_view segment, std::vector<std::int32_t>& bits) {
    const bool isRange = segment.find(':') != std::string_view::npos;
    const auto first = takeBitNumber(segment);
    if (!first) return false;
    bits.push_back(*first);
    if (!isRange) return true;

    if (segment.empty() || segment.front() != ':') return false;
    segment.remove_prefix(1);
    const auto last = takeBitNumber(segment);
    if (!last || std::abs(std::int64_t{*last} - *first) > kLongestRange) return false;
    const std::int32_t step = *first < *last ? 1 : -1;
    for (std::int32_t bit = *first; bit != *last;) bits.push_back(bit += step);
    return true;
}

}  // namespace

PinSpec::PinSpec(const std::string& expression) : expression_(expression) {
    for (const std::string& segment : split(expression, ';')) {
        if (!appendSegment(segment, bits_)) throw Error("Invalid pin spec expression: '%s'.", expression.c_str());
    }
    std::ranges::reverse(bits_);
}

PinSpec::PinSpec(std::int32_t first, std::int32_t last) : PinSpec(format("%d:%d", first, last)) {}

std::int32_t PinSpec::maxBit() const {
    return bits_.empty() ? 0 : *std::ranges::max_element(bits_);
}

std::int32_t PinSpec::bitAt(std::size_t i) const {
    return bits_.empty() ? static_cast<std::int32_t>(i) : bits_[i];
}

bool PinSpec::contains(std::int32_t bit) const {
    return bit >= 0 && (bits_.empty() || std::ranges::find(bits_, bit) != bits_.end());
}

std::int32_t PinSpec::indexOf(std::int32_t bit) const {
    if (bits_.empty()) return bit;
    const auto found = std::ranges::find(bits_, bit);
    if (found == bits_.end()) throw Error("Cannot find bit %s in PinSpec.", std::to_string(bit).c_str());
    return static_cast<std::int32_t>(found - bits_.begin());
}

}  // namespace tarnsim
