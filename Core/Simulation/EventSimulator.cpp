#include "Core/Simulation/EventSimulator.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <string_view>

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
    std::size_t width;  ///< printed characters
};

template <class Signal>
Column<Signal> makeColumn(const Signal& signal, const std::string& name) {
    return {&signal, name, std::max<std::size_t>(signal.width(), name.size())};
}

constexpr std::uint32_t kRowsPerHeader = 50;

void padTo(std::string& row, std::size_t width, std::size_t textSize) {
    if (textSize < width) row.append(width - textSize, ' ');
}

void appendRight(std::string& row, std::size_t width, std::string_view text) {
    padTo(row, width, text.size());
    row += text;
}

/// As `% 6d` prints it.
void appendTime(std::string& row, Time time) {
    std::array<char, 12> digits{' '};
    char* begin = digits.data() + (time < 0 ? 0 : 1);
    const char* end = std::to_chars(begin, digits.data() + digits.size(), time).ptr;
    appendRight(row, 6, {digits.data(), end});
}

/// The letters that a port shows, written where they are to stand: a long table has millions of cells.
void appendValue(std::string& row, std::size_t width, const Port& port, Time time) {
    const std::size_t size = port.width();
    // Where the width isn't known, or values wrap, they have other letters.
    if (size == 0 || size > kMaxValueWidth) return appendRight(row, width, port.get(time).letters());
    padTo(row, width, size);
    row.resize(row.size() + size);
    port.lettersAt(time, row.data() + row.size() - size);
}

}  // namespace

struct EventSimulator::Table {
    std::vector<Column<Port>> ports;
    std::size_t firstOutput = 0;  ///< the column behind the arrow
    std::vector<Column<Net>> nets;
    std::string row;  ///< kept for its room

    bool printHeader() {
        row = "Time    ";
        for (std::size_t i = 0; i < ports.size(); ++i) {
            if (i == firstOutput) row += " => ";
            appendRight(row, ports[i].width, ports[i].name);
            row += ' ';
        }
        for (const auto& net : nets) {
            row += '#';
            appendRight(row, net.width, net.name);
            row += ' ';
        }
        return printRow();
    }

    bool printValues(Time time) {
        row.clear();
        appendTime(row, time);
        row += ": ";
        for (std::size_t i = 0; i < ports.size(); ++i) {
            if (i == firstOutput) row += "    ";
            appendValue(row, ports[i].width, *ports[i].signal, time);
            row += ' ';
        }
        for (const auto& net : nets) {
            row += ' ';
            appendRight(row, net.width, net.signal->get(time).letters());
            row += ' ';
        }
        return printRow();
    }

private:
    bool printRow() {
        row += '\n';
        return std::fwrite(row.data(), 1, row.size(), stdout) == row.size();
    }
};

EventSimulator::Table EventSimulator::makeTable(const std::vector<std::string>& inputs,
                                                const std::vector<std::string>& outputs,
                                                const std::vector<std::string>& nets) const {
    Table table;
    table.firstOutput = inputs.size();
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

bool EventSimulator::printRow(Table& table, Time time) {
    if (printedRows_++ % kRowsPerHeader == 0 && !table.printHeader()) return false;
    return table.printValues(time);
}

void EventSimulator::printEvery(const std::vector<std::string>& inputs, const std::vector<std::string>& outputs,
                                const std::vector<std::string>& nets, Time step) {
    if (step < 1) throw Error("Error: a table needs a time step above 0, not %d.", step);
    Table table = makeTable(inputs, outputs, nets);
    printedRows_ = 0;
    for (std::int64_t stop = 0; stop <= endTime_; stop += step) {
        if (!printRow(table, static_cast<Time>(stop))) return;
    }
}

void EventSimulator::printAt(const std::vector<std::string>& inputs, const std::vector<std::string>& outputs,
                             const std::vector<std::string>& nets, const std::vector<Time>& times) {
    Table table = makeTable(inputs, outputs, nets);
    printedRows_ = 0;
    for (const Time time : times) {
        if (!printRow(table, time)) return;
    }
}

}  // namespace tarnsim
