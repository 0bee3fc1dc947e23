#include "Core/Simulation/EventSimulator.h"

#include <algorithm>
#include <cstdio>

#include "Core/Circuit/Circuit.h"
#include "Core/Components/Component.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Core/Support/Error.h"

namespace tarnsim {

EventSimulator::EventSimulator(Circuit* circuit) : circuit_(circuit) {
    circuit_->setSimulator(this);
}

void EventSimulator::prepare(Time endTime) {
    circuit_->reset();
    circuit_->layWires(*this);
    circuit_->start(endTime);
}

void EventSimulator::run(Time endTime) {
    endTime_ = endTime;
    if (abortFlag_ != nullptr) *abortFlag_ = 0;
    now_ = 0;
    queue_.rewind();
    while (const auto time = queue_.next()) {
        now_ = *time;
        if (now_ > endTime) break;
        if (abortFlag_ != nullptr && *abortFlag_ != 0) break;
        workThrough(now_);
    }
    if (now_ == 0) now_ = endTime;
}

void EventSimulator::workThrough(Time time) {
    for (auto pass = queue_.takePass(); !pass.empty(); pass = queue_.takePass()) {
        // The parts of a large board don't fit into the caches: asking for them while others are evaluated hides most
        // of what fetching them costs (4,096 flip-flops on one clock take two thirds of the time).
        constexpr std::size_t kAhead = 4;
        for (std::size_t i = 0; i < pass.size(); ++i) {
            if (i + kAhead < pass.size()) events_.prefetch(pass[i + kAhead]);
            events_.call(pass[i], time);
        }
    }
}

namespace {

template <class Signal>
struct Column {
    const Signal* signal;
    std::string name;
    int width;  ///< printed characters
};

template <class Signal>
Column<Signal> makeColumn(const Signal& signal, const std::string& name) {
    return {&signal, name, static_cast<int>(std::max<std::size_t>(signal.width(), name.size()))};
}

constexpr std::uint32_t kRowsPerHeader = 50;

}  // namespace

struct EventSimulator::Table {
    std::vector<Column<Port>> ports;
    std::size_t firstOutput;  ///< the column behind the arrow
    std::vector<Column<Net>> nets;

    void printHeader() const {
        std::printf("Time    ");
        for (std::size_t i = 0; i < ports.size(); ++i) {
            if (i == firstOutput) std::printf(" => ");
            std::printf("%*s ", ports[i].width, ports[i].name.c_str());
        }
        for (const auto& net : nets) std::printf("#%*s ", net.width, net.name.c_str());
        std::printf("\n");
    }

    void printValues(Time time) const {
        std::printf("% 6d: ", time);
        for (std::size_t i = 0; i < ports.size(); ++i) {
            if (i == firstOutput) std::printf("    ");
            std::printf("%*s ", ports[i].width, ports[i].signal->get(time).c_str());
        }
        for (const auto& net : nets) std::printf(" %*s ", net.width, net.signal->get(time).c_str());
        std::printf("\n");
    }
};

EventSimulator::Table EventSimulator::makeTable(const std::vector<std::string>& inputs,
                                                const std::vector<std::string>& outputs,
                                                const std::vector<std::string>& nets) const {
    Table table{{}, inputs.size(), {}};
    for (const auto* names : {&inputs, &outputs}) {
        for (const std::string& name : *names) {
            const Port* port = circuit_->findPort(name);
            if (port == nullptr) throw Error("Error: can't find port '%s'.", name.c_str());
            table.ports.push_back(makeColumn(*port, name));
        }
    }
    for (const std::string& name : nets) table.nets.push_back(makeColumn(*circuit_->requireNet(name, "", 0), name));
    return table;
}

void EventSimulator::printRow(const Table& table, Time time) {
    if (printedRows_++ % kRowsPerHeader == 0) table.printHeader();
    table.printValues(time);
}

void EventSimulator::printEvery(const std::vector<std::string>& inputs, const std::vector<std::string>& outputs,
                                const std::vector<std::string>& nets, Time step) {
    if (step < 1) throw Error("Error: a table needs a time step above 0, not %d.", step);
    const Table table = makeTable(inputs, outputs, nets);
    printedRows_ = 0;
    for (std::int64_t stop = 0; stop <= endTime_; stop += step) printRow(table, static_cast<Time>(stop));
}

void EventSimulator::printAt(const std::vector<std::string>& inputs, const std::vector<std::string>& outputs,
                             const std::vector<std::string>& nets, const std::vector<Time>& times) {
    const Table table = makeTable(inputs, outputs, nets);
    printedRows_ = 0;
    for (const Time time : times) printRow(table, time);
}

}  // namespace tarnsim
