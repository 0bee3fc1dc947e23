#include <algorithm>
#include <numeric>

#include "Core/Components/Connectors.h"
#include "Core/Simulation/Net.h"
#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// Bit numbers, in the order in which an expression has them: for a port's leftmost letter first.
using Bits = std::vector<std::size_t>;

std::string expressionOf(const Bits& bits) {
    std::string text;
    for (const std::size_t bit : bits) text += (text.empty() ? "" : ";") + std::to_string(bit);
    return text;
}

/// Some of the bits of a bus, none twice, in any order.
Bits shuffledBits(RandomNumbers& numbers, std::size_t size) {
    Bits bits(size);
    std::iota(bits.begin(), bits.end(), 0U);
    for (std::size_t i = size; i > 1; --i) std::swap(bits[i - 1], bits[numbers.below(i)]);
    return bits;
}

std::string randomLetters(RandomNumbers& numbers, std::size_t count, const std::string& alphabet) {
    std::string letters;
    for (; count > 0; --count) letters += numbers.letterOf(alphabet);
    return letters;
}

/// Cuts a shuffled bus into ports p0, p1 and so on; some bits may be left over.
std::vector<Bits> disjointParts(RandomNumbers& numbers, std::size_t size) {
    const Bits bits = shuffledBits(numbers, size);
    std::vector<Bits> parts;
    for (std::size_t first = 0; first < size;) {
        const std::size_t last = std::min(size, first + 1 + numbers.below(9));
        parts.emplace_back(bits.begin() + static_cast<std::ptrdiff_t>(first),
                           bits.begin() + static_cast<std::ptrdiff_t>(last));
        first = last;
    }
    if (numbers.below(2) == 0) parts.pop_back();
    return parts;
}

std::string partName(std::size_t i) {
    return "p" + std::to_string(i);
}

Connector::Declarations declarationsOf(const std::vector<Bits>& parts) {
    Connector::Declarations declarations;
    for (std::size_t i = 0; i < parts.size(); ++i) declarations.emplace_back(partName(i), expressionOf(parts[i]));
    return declarations;
}

TEST(ConnectorProperties, SplittingWhatWasJoinedGivesThePartsBack) {
    RandomNumbers numbers;
    for (int round = 0; round < 300; ++round) {
        const std::size_t size = 1 + numbers.below(round % 10 == 0 ? 255 : 24);
        const std::vector<Bits> parts = disjointParts(numbers, size);
        const Connector::Declarations declarations = declarationsOf(parts);
        Join join("j", static_cast<std::uint32_t>(size), declarations);
        Split split("s", static_cast<std::uint32_t>(size), declarations);

        std::string bus(size, 'U');
        std::vector<std::string> sent;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            sent.push_back(randomLetters(numbers, parts[i].size(), "LHUZX"));
            join.findPort(partName(i))->set(Value(sent[i]), 5);
            for (std::size_t k = 0; k < parts[i].size(); ++k) bus[size - 1 - parts[i][k]] = sent[i][k];
        }
        join.evaluate(5);
        ASSERT_EQ(join.findPort("out")->get(5), bus) << join.getInstanceText();

        split.findPort("in")->set(join.findPort("out")->get(5), 5);
        split.evaluate(5);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            ASSERT_EQ(split.findPort(partName(i))->get(5), sent[i]) << split.getInstanceText();
        }
    }
}

TEST(ConnectorProperties, ASplitCopiesBitsToAnyNumberOfOutputs) {
    RandomNumbers numbers;
    for (int round = 0; round < 200; ++round) {
        const std::size_t size = 1 + numbers.below(20);
        std::vector<Bits> parts(1 + numbers.below(6));
        for (Bits& bits : parts) {
            for (std::size_t left = 1 + numbers.below(12); left > 0; --left) bits.push_back(numbers.below(size));
        }
        Split split("s", static_cast<std::uint32_t>(size), declarationsOf(parts));
        const std::string bus = randomLetters(numbers, size, "LHUZX");
        split.findPort("in")->set(Value(bus), 5);
        split.evaluate(5);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            std::string expected;
            for (const std::size_t bit : parts[i]) expected += bus[size - 1 - bit];
            ASSERT_EQ(split.findPort(partName(i))->get(5), expected) << split.getInstanceText();
        }
    }
}

/// What a wire holds on which these letters are driven: any two drivers that don't float are too many.
char resolved(const std::string& driven) {
    const auto isActive = [](char letter) { return letter != 'Z'; };
    const auto active = std::ranges::count_if(driven, isActive);
    if (active == 0) return 'Z';
    const char level = *std::ranges::find_if(driven, isActive);
    return active == 1 && (level == 'H' || level == 'L') ? level : 'U';
}

/// A net on a port of a splice, with up to two drivers.
struct SplicedNet {
    SplicedNet(Splice& splice, const std::string& port, Bits mapping)
        : bits(std::move(mapping)), net("n", static_cast<std::uint32_t>(bits.size())) {
        net.addPort(splice.findPort(port), kOutside);
    }

    void addDriver() {
        drivers.push_back(std::make_unique<Port>(net.width(), Direction::Output, "driver"));
        net.addPort(drivers.back().get(), kOutside);
    }

    Bits bits;
    Net net;
    std::vector<std::unique_ptr<Port>> drivers;
};

TEST(ConnectorProperties, ASpliceTiesEachBitToThoseOfTheSameWire) {
    RandomNumbers numbers;
    for (int round = 0; round < 300; ++round) {
        const std::size_t size = 1 + numbers.below(12);
        std::vector<Bits> mappings(1 + numbers.below(4));
        for (Bits& bits : mappings) {
            bits = shuffledBits(numbers, size);
            bits.resize(1 + numbers.below(size));
        }
        Splice splice("p", static_cast<std::uint32_t>(size), declarationsOf(mappings));
        std::vector<std::unique_ptr<SplicedNet>> nets;
        for (std::size_t i = 0; i < mappings.size(); ++i) {
            nets.push_back(std::make_unique<SplicedNet>(splice, partName(i), mappings[i]));
            for (std::size_t left = numbers.below(3); left > 0; --left) nets.back()->addDriver();
        }

        std::vector<std::string> onWires(size);
        for (const auto& each : nets) {
            for (const auto& driver : each->drivers) {
                const std::string letters = randomLetters(numbers, each->bits.size(), "LHUZZZ");
                driver->set(Value(letters), 5);
                for (std::size_t k = 0; k < letters.size(); ++k) onWires[each->bits[k]] += letters[k];
            }
        }
        for (std::size_t i = 0; i < nets.size(); ++i) {
            std::string expected;
            for (const std::size_t bit : nets[i]->bits) expected += resolved(onWires[bit]);
            const bool isReached = std::ranges::any_of(nets, [](const auto& each) { return !each->drivers.empty(); });
            if (!isReached) expected = std::string(nets[i]->bits.size(), 'U');  // nothing was ever set
            ASSERT_EQ(nets[i]->net.get(5), expected) << splice.getInstanceText() << " at " << partName(i);
        }
    }
}

}  // namespace
}  // namespace tarnsim
