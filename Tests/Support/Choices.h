#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tarnsim {

/// Where a generator takes its decisions from. The number 0 always stands for the least: none, free, the end of a list.
class Choices {
public:
    Choices() = default;
    virtual ~Choices() = default;
    Choices(const Choices&) = delete;
    Choices& operator=(const Choices&) = delete;

    /// From 0 to `limit - 1`. REQUIRES: limit > 0
    virtual std::size_t below(std::size_t limit) = 0;

    /// From `first` to `last`.
    std::size_t between(std::size_t first, std::size_t last) { return first + below(last - first + 1); }
    /// True one time in `times`. REQUIRES: times > 1
    bool onceIn(std::size_t times) { return below(times) == times - 1; }
    template <class T>
    const T& oneOf(const std::vector<T>& list) {
        return list[below(list.size())];
    }
    std::string oneOf(std::initializer_list<std::string_view> list) {
        return std::string(list.begin()[below(list.size())]);
    }
    char letterOf(std::string_view letters) { return letters[below(letters.size())]; }
    /// REQUIRES: list isn't empty
    template <class T>
    void shuffle(std::vector<T>& list) {
        for (std::size_t left = list.size(); left > 1; --left) std::swap(list[left - 1], list[left - 1 - below(left)]);
    }
};

/// The same on every run and every machine for the same seed.
class RandomChoices : public Choices {
public:
    explicit RandomChoices(std::uint32_t seed) : generator_(seed) {}

    std::size_t below(std::size_t limit) override { return generator_() % limit; }

private:
    std::mt19937 generator_;
};

/// Takes the decisions from bytes that somebody else owns. When they have run out all further choices are 0.
class ByteChoices : public Choices {
public:
    ByteChoices(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes), left_(size) {}

    std::size_t below(std::size_t limit) override {
        std::size_t number = 0;
        for (std::size_t range = 1; range < limit; range *= 256) {
            if (left_ == 0) return 0;
            number = number * 256 + *bytes_++;
            --left_;
        }
        return number % limit;
    }

private:
    const std::uint8_t* bytes_;
    std::size_t left_;
};

}  // namespace tarnsim
