#include "Core/Simulation/PinSpec.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

/// Takes a bit number off the front of a segment; characters behind it stay and are the caller's to judge.
std::optional<std::int32_t> takeBitNumber(std::string_view& segment) {
    const auto number = takeLeadingInteger(segment);
    return number && *number >= 0 ? number : std::nullopt;
}

/// The two ends of a segment, which are equal for a single number. Nothing if it is malformed.
struct Range {
    std::int32_t first;
    std::int32_t last;
};
std::optional<Range> readSegment(std::string_view segment) {
    const bool isRange = segment.find(':') != std::string_view::npos;
    const auto first = takeBitNumber(segment);
    if (!first) return std::nullopt;
    if (!isRange) return Range{*first, *first};

    if (segment.empty() || segment.front() != ':') return std::nullopt;
    segment.remove_prefix(1);
    const auto last = takeBitNumber(segment);
    return last ? std::optional(Range{*first, *last}) : std::nullopt;
}

/// In the order of the text.
std::vector<Range> readRanges(const std::string& expression) {
    std::vector<Range> ranges;
    for (const std::string& segment : split(expression, ';')) {
        const auto range = readSegment(segment);
        if (!range) throw Error("Invalid pin spec expression: '%s'.", expression.c_str());
        ranges.push_back(*range);
    }
    return ranges;
}

}  // namespace

PinSpec::PinSpec(const std::string& expression) : expression_(expression) {
    for (const auto& [first, last] : readRanges(expression)) {
        bits_.push_back(first);
        const std::int32_t step = first < last ? 1 : -1;
        for (std::int32_t bit = first; bit != last;) bits_.push_back(bit += step);
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

std::int32_t PinSpec::maxBitOf(const std::string& expression) {
    std::int32_t highest = 0;
    for (const auto& [first, last] : readRanges(expression)) highest = std::max({highest, first, last});
    return highest;
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
