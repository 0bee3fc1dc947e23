#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace tarnsim {

/// Random numbers that are the same on every run and every machine (the distributions of the library aren't).
class RandomNumbers {
public:
    /// From 0 to `limit - 1`.
    std::size_t below(std::size_t limit) { return generator_() % limit; }
    /// From `first` to `last`.
    int between(int first, int last) {
        return first + static_cast<int>(below(static_cast<std::size_t>(last - first + 1)));
    }
    char letterOf(const std::string& letters) { return letters[below(letters.size())]; }

private:
    std::mt19937 generator_;  // with its standard seed
};

/// Short random texts made of given pieces, for comparing a hand-written matcher with another form of its rule.
class RandomTexts {
public:
    RandomTexts(std::vector<std::string> pieces, std::size_t longest) : pieces_(std::move(pieces)), longest_(longest) {}

    /// From 0 to `longest` pieces.
    std::string next() {
        std::string text;
        for (std::size_t left = numbers_.below(longest_ + 1); left > 0; --left)
            text += pieces_[numbers_.below(pieces_.size())];
        return text;
    }

private:
    RandomNumbers numbers_;
    std::vector<std::string> pieces_;
    std::size_t longest_;
};

/// Every character of `letters` as a piece of its own.
inline std::vector<std::string> piecesOf(const std::string& letters) {
    std::vector<std::string> pieces;
    for (const char letter : letters) pieces.emplace_back(1, letter);
    return pieces;
}

/// Longer than any stack is deep.
inline constexpr std::size_t kMegabytes = 3'000'000;

}  // namespace tarnsim
