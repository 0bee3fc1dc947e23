// What it costs to record a signal and to read its past.

#include <benchmark/benchmark.h>

#include <random>

#include "Core/Values/ValueHistory.h"

namespace tarnsim {
namespace {

constexpr Time kPeriod = 10;

void fill(ValueHistory& history, std::int64_t records) {
    const Value high('H', history.width());
    const Value low('L', history.width());
    for (std::int64_t i = 0; i < records; ++i) history.set(i % 2 == 0 ? low : high, static_cast<Time>(i * kPeriod));
}

void appendRecords(benchmark::State& state) {
    const auto width = static_cast<std::uint32_t>(state.range(0));
    constexpr std::int64_t kRecords = 100'000;
    for (auto _ : state) {
        ValueHistory history(width);
        fill(history, kRecords);
        benchmark::DoNotOptimize(history);
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}
BENCHMARK(appendRecords)->Arg(1)->Arg(8)->Arg(16)->Arg(64);

/// A part with a delay reads just behind the end.
void readNearTheEnd(benchmark::State& state) {
    ValueHistory history(1);
    fill(history, state.range(0));
    const auto end = static_cast<Time>((state.range(0) - 1) * kPeriod);
    for (auto _ : state) benchmark::DoNotOptimize(history.get(end - kPeriod - 3));
}
BENCHMARK(readNearTheEnd)->RangeMultiplier(10)->Range(100, 1'000'000);

/// The table and the comparison read anywhere.
void readAnywhere(benchmark::State& state) {
    ValueHistory history(1);
    fill(history, state.range(0));
    std::mt19937 random(1);
    std::uniform_int_distribution<Time> times(0, static_cast<Time>(state.range(0) * kPeriod));
    for (auto _ : state) benchmark::DoNotOptimize(history.get(times(random)));
}
BENCHMARK(readAnywhere)->RangeMultiplier(10)->Range(100, 1'000'000);

/// A part that writes its outputs ahead of time makes others write a little behind the latest record.
void writeBehindTheLatest(benchmark::State& state) {
    ValueHistory history(8);
    const Value value('H', 8);
    Time time = 0;
    for (auto _ : state) {
        history.set(value, time + 5);
        history.set(value, time + 2);
        time += kPeriod;
        if (history.recordCount() > 1'000'000) {
            state.PauseTiming();
            history.clear();
            time = 0;
            state.ResumeTiming();
        }
    }
    state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(writeBehindTheLatest);

}  // namespace
}  // namespace tarnsim
