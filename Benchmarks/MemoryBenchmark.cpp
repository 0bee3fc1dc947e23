// What memories cost that nobody has touched yet, and what a word costs in use.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>

#include "Core/Components/DualPortRam.h"
#include "Core/Components/Memories.h"

namespace tarnsim {
namespace {

double bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Making and freeing a memory; `bytes` is its whole size.
template <class Memory>
void buildMemory(benchmark::State& state) {
    const double before = bytesInUse();
    const auto one = std::make_unique<Memory>("m", ParaMap());
    state.counters["bytes"] = bytesInUse() - before;
    for (auto _ : state) {
        const auto memory = std::make_unique<Memory>("m", ParaMap());
        benchmark::DoNotOptimize(memory.get());
    }
}
BENCHMARK(buildMemory<HM62256B>);
BENCHMARK(buildMemory<MC27C64>);
BENCHMARK(buildMemory<IDT7132LA>);

/// A reset after `range` words were written.
void resetRam(benchmark::State& state) {
    HM62256B ram("m", ParaMap());
    for (auto _ : state) {
        state.PauseTiming();
        for (std::uint32_t i = 0; i < static_cast<std::uint32_t>(state.range(0)); ++i)
            ram.write(Value("HHHHLLLL"), i, 0);
        state.ResumeTiming();
        ram.reset();
    }
}
BENCHMARK(resetRam)->Arg(0)->Arg(1024)->Arg(32768);

/// A write and a read of one word whose past grows.
void writeAndReadRam(benchmark::State& state) {
    auto ram = std::make_unique<HM62256B>("m", ParaMap());
    const Value word("HLHLHLHL");
    Time time = 0;
    for (auto _ : state) {
        ram->write(word, 7, ++time);
        benchmark::DoNotOptimize(ram->read(7, time));
    }
}
BENCHMARK(writeAndReadRam)->Iterations(1000000);

}  // namespace
}  // namespace tarnsim
