// What it costs to make, copy, compare and convert values, and to combine letters.

#include <benchmark/benchmark.h>

#include <array>

#include "Core/Values/LetterWord.h"
#include "Core/Values/Logic.h"
#include "Core/Values/Value.h"

namespace tarnsim {
namespace {

void copyValue(benchmark::State& state) {
    Value value('H', static_cast<std::uint32_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(Value(value));
    }
}
BENCHMARK(copyValue)->ArgName("width")->Arg(1)->Arg(8)->Arg(64);

void compareValues(benchmark::State& state) {
    Value a('H', static_cast<std::uint32_t>(state.range(0)));
    Value b = a;
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(b);
        benchmark::DoNotOptimize(a == b);
    }
}
BENCHMARK(compareValues)->ArgName("width")->Arg(1)->Arg(8)->Arg(64);

void setNumber(benchmark::State& state) {
    Value value(16);
    std::int32_t number = 0;
    for (auto _ : state) benchmark::DoNotOptimize(value.setNumber(number++ & 0x7FFF));
}
BENCHMARK(setNumber);

void readNumber(benchmark::State& state) {
    Value value(16);
    value.setNumber(0x5A5A);
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(value.toNumber());
    }
}
BENCHMARK(readNumber);

void readHex(benchmark::State& state) {
    Value value(32);
    for (auto _ : state) benchmark::DoNotOptimize(value.setHex("DEADBEEF"));
}
BENCHMARK(readHex);

void combineLetters(benchmark::State& state) {
    constexpr std::array<char, 4> kLetters = {'L', 'H', 'U', 'Z'};
    std::size_t i = 0;
    for (auto _ : state) {
        ++i;
        benchmark::DoNotOptimize(Logic::combine(kLetters[i % 4], kLetters[i / 4 % 4], Logic::kNand));
    }
}
BENCHMARK(combineLetters);

/// Eight letters at once, as buses do.
void numberOfLetterWord(benchmark::State& state) {
    std::array<char, 8> letters = {'L', 'H', 'L', 'H', 'H', 'L', 'L', 'H'};
    for (auto _ : state) {
        benchmark::DoNotOptimize(letters);
        const LetterWord word = LetterWord::load(letters.data(), letters.size());
        benchmark::DoNotOptimize(~word.levels() == 0 ? word.toNumber() : 0);
    }
}
BENCHMARK(numberOfLetterWord);

}  // namespace
}  // namespace tarnsim
