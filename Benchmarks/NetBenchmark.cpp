// What it costs a net to find its level and to pass it on.

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "Core/Simulation/Net.h"
#include "Core/Simulation/NetResolver.h"
#include "Core/Simulation/Port.h"

namespace tarnsim {
namespace {

/// A net with drivers, of which the first is at `H` and the others at `Z`, and followers.
struct Bus {
    Bus(std::uint32_t width, std::int64_t drivers, std::int64_t followers) : net("bus", width) {
        for (std::int64_t i = 0; i < drivers; ++i) {
            Port* port = ports.createPort(width, Direction::Output, "d");
            Value value(width);
            port->set(value.fill(i == 0 ? 'H' : 'Z'), 0);
            net.addPort(port, kOutside);
            if (i == 0) driver = port;
        }
        for (std::int64_t i = 0; i < followers; ++i) {
            net.addPort(ports.createPort(width, Direction::Input, "f"), kOutside);
        }
    }

    PortFactory ports;
    Net net;
    Port* driver = nullptr;
};

void resolveDrivers(benchmark::State& state) {
    const Bus bus(static_cast<std::uint32_t>(state.range(0)), state.range(1), 0);
    for (auto _ : state) benchmark::DoNotOptimize(NetResolver::resolve(bus.net, 0));
}
BENCHMARK(resolveDrivers)->ArgNames({"width", "drivers"})->ArgsProduct({{1, 8, 64}, {1, 4, 32}});

void setDriver(benchmark::State& state) {
    constexpr Time kLongestHistory = 100'000;
    Bus bus(1, 1, state.range(0));
    const Value high("H");
    const Value low("L");
    Time time = 0;
    for (auto _ : state) {
        bus.driver->set(time % 2 == 0 ? low : high, time);
        if (++time < kLongestHistory) continue;
        state.PauseTiming();
        bus.net.clear();
        for (Port* port : bus.net.getPorts()) port->clear();
        time = 0;
        state.ResumeTiming();
    }
}
BENCHMARK(setDriver)->ArgName("followers")->RangeMultiplier(4)->Range(1, 64);

/// Nets in a row, joined by Inouts: what is set on the first one reaches all.
void setAcrossJoinedNets(benchmark::State& state) {
    PortFactory ports;
    std::vector<std::unique_ptr<Net>> nets;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        nets.push_back(std::make_unique<Net>(1));
        if (i == 0) continue;
        Port* joint = ports.createPin(Direction::Inout, "j");
        nets[static_cast<std::size_t>(i - 1)]->addPort(joint, kOutside);
        nets.back()->addPort(joint, kInside);
    }
    Port* driver = ports.createPin(Direction::Output, "d");
    nets.front()->addPort(driver, kOutside);
    const Value high("H");
    for (auto _ : state) driver->set(high, 0);
}
BENCHMARK(setAcrossJoinedNets)->ArgName("nets")->RangeMultiplier(2)->Range(1, 16);

}  // namespace
}  // namespace tarnsim
