#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarnsim {

/// Which bits of a wider net or value a narrower port stands for: an ordered list of bit numbers.
///
/// Written like a bus, most significant end first, as numbers and ranges `a:b` (in either order) with `;` between them:
/// "7:0" is the identity on eight bits, "0:7" mirrors them, "3:0;7:4" swaps the halves. The last element of the text is
/// position 0. The empty expression is the identity of any width. A bit may occur twice; widths aren't checked here.
class PinSpec {
public:
    /// Raises an Error for a segment that is no number and no range, or is negative.
    explicit PinSpec(const std::string& expression);
    /// The range `first:last`.
    PinSpec(std::int32_t first, std::int32_t last);
    virtual ~PinSpec() = default;

    const std::string& getExpression() const { return expression_; }
    /// The net's bit for each position of the port, position 0 first; empty for the identity.
    const std::vector<std::int32_t>& getBits() const { return bits_; }
    /// Number of positions; 0 for the identity.
    std::size_t size() const { return bits_.size(); }
    /// The highest bit number; 0 for the identity.
    std::int32_t maxBit() const;
    /// The same for a text, without making the list: the numbers may be large.
    static std::int32_t maxBitOf(const std::string& expression);
    /// The net's bit for position `i`. REQUIRES: i < size(), but for the identity.
    std::int32_t bitAt(std::size_t i) const;
    /// Whether the net's `bit` is reached; the identity reaches every bit from 0 on.
    bool contains(std::int32_t bit) const;
    /// The first position of the net's `bit`. Raises an Error if there is none.
    std::int32_t indexOf(std::int32_t bit) const;

private:
    std::string expression_;
    std::vector<std::int32_t> bits_;
};

}  // namespace tarnsim
