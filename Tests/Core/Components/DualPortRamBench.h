#pragma once

#include <array>
#include <string>
#include <vector>

#include "Core/Circuit/Circuit.h"
#include "Core/Components/DualPortRam.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Support/Text.h"
#include "Tests/Core/Components/DualPortRamModel.h"
#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {

/// What can be seen of a run: a line whenever the pins or a word become others, then the log.
using RunRecord = std::vector<std::string>;

inline RunRecord splitLog(const std::string& log) {
    return split(log, '\n');
}

/// A dual-port RAM `u7` in a circuit, with a bus driver on either data bus. The control pins are on no nets.
class DualPortRamBench {
public:
    explicit DualPortRamBench(const std::string& parameters) {
        // The drivers come first, so at one time they have driven before the memory looks.
        for (Component*& driver : drivers_) driver = board_.addComponent("BusBuffer", "driver(delay=0)");
        ram_ = dynamic_cast<IDT7132LA*>(board_.addComponent("IDT7132LA", "u7" + parameters));
        board_.createNet("dataL", {drivers_[0]->findPort("out"), ram_->findPort("IOL")});
        board_.createNet("dataR", {drivers_[1]->findPort("out"), ram_->findPort("IOR")});
    }

    /// Runs it from reset. `addresses` are the words that are recorded.
    RunRecord run(const std::vector<RamStimulus>& stimuli, Time endTime, const std::vector<std::string>& addresses) {
        const std::string log = outputOf([&] {
            EventSimulator simulator(&board_);
            simulator.prepare(endTime);
            for (const RamStimulus& each : stimuli) portOf(each).set(Value(each.letters), each.time);
            simulator.run(endTime);
            board_.setSimulator(nullptr);
        });
        std::vector<const Port*> ports;
        for (const char* name : {"IOL", "IOR", "BUSYL", "BUSYR"}) ports.push_back(ram_->findPort(name));
        std::vector<std::uint32_t> words;
        for (const std::string& address : addresses) words.push_back(Value(address).toNumber());
        RunRecord record;
        std::string before;
        for (Time time = 0; time <= endTime; ++time) {
            std::string now;
            for (const Port* port : ports) now.append(port->get(time).letters()).append(" ");
            for (const std::uint32_t word : words) now.append(ram_->read(word, time).letters()).append(" ");
            if (now != before) record.push_back(format("%d: %s", time, now.c_str()));
            before = now;
        }
        for (const std::string& line : splitLog(log)) record.push_back(line);
        return record;
    }

    IDT7132LA& ram() { return *ram_; }
    Circuit& board() { return board_; }

private:
    Port& portOf(const RamStimulus& stimulus) {
        const std::string side = stimulus.side == 0 ? "L" : "R";
        const Component* driver = drivers_[static_cast<std::size_t>(stimulus.side)];
        switch (stimulus.pin) {
            case RamPin::A: return *ram_->findPort("A" + side);
            case RamPin::RW: return *ram_->findPort("RW" + side);
            case RamPin::OE: return *ram_->findPort("_OE" + side);
            case RamPin::CE: return *ram_->findPort("_CE" + side);
            case RamPin::Data: return *driver->findPort("in");
            default: return *driver->findPort("_g");
        }
    }

    Circuit board_{"board", nullptr};
    std::array<Component*, 2> drivers_{};
    IDT7132LA* ram_ = nullptr;
};

/// The same from the model.
inline RunRecord recordOf(const DualPortRamModel& model, Time endTime, const std::vector<std::string>& addresses) {
    RunRecord record;
    std::string before;
    const auto& [left, right] = model.sides;
    for (Time time = 0; time <= endTime; ++time) {
        std::string now = left.bus.get(time) + " " + right.bus.get(time) + " " + left.BUSY.get(time) + " " +
                          right.BUSY.get(time) + " ";
        for (const std::string& address : addresses) {
            const auto cell = model.cells.find(address);
            now += (cell == model.cells.end() ? "UUUUUUUU" : cell->second.get(time)) + " ";
        }
        if (now != before) record.push_back(format("%d: %s", time, now.c_str()));
        before = now;
    }
    for (const std::string& line : splitLog(model.log)) record.push_back(line);
    return record;
}

/// The first lines in which two runs differ; empty if there are none.
inline std::string firstDifference(const RunRecord& a, const RunRecord& b) {
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
        const std::string inA = i < a.size() ? a[i] : "(end)";
        const std::string inB = i < b.size() ? b[i] : "(end)";
        if (inA != inB) return (i == 0 ? "" : "after " + a[i - 1] + "\n") + inA + "\n" + inB;
    }
    return "";
}

/// Random accesses and single changes of pins, with times around those that matter to a grade.
class RandomAccesses {
public:
    RandomAccesses(const ModelGrade& grade, std::string undefinedLetters)
        : grade_(grade), undefinedLetters_(std::move(undefinedLetters)) {}

    /// For one side, at these addresses, in ascending order of time.
    std::vector<RamStimulus> forSide(int side, const std::vector<std::string>& addresses, Time endTime) {
        std::vector<RamStimulus> stimuli;
        Time time = random_.between(0, 10);
        const auto put = [&](RamPin pin, const std::string& letters) { stimuli.push_back({side, pin, letters, time}); };
        const auto wait = [&] { time += gap(); };
        const auto address = [&] { put(RamPin::A, randomAddress(addresses)); };
        while (time < endTime) {
            switch (random_.below(4)) {
                case 0:  // read
                    put(RamPin::DataEnable, "H");
                    put(RamPin::RW, "H");
                    address();
                    if (random_.below(3) == 0) wait();
                    put(RamPin::CE, "L");
                    if (random_.below(3) == 0) wait();
                    put(RamPin::OE, "L");
                    time += grade_.accessTime + random_.between(-1, 3);
                    if (random_.below(2) == 0) put(random_.below(2) == 0 ? RamPin::OE : RamPin::CE, "H");
                    break;
                case 1:  // write
                    put(RamPin::OE, "H");
                    put(RamPin::CE, "L");
                    time += random_.below(2) == 0 ? grade_.highZTime + 1 : 0;
                    put(RamPin::DataEnable, "L");
                    put(RamPin::Data, randomData());
                    address();
                    if (random_.below(2) == 0) wait();
                    put(RamPin::RW, "L");
                    time += std::max(grade_.writePulse, grade_.addressWindow) + random_.between(-1, 3);
                    if (random_.below(2) == 0) put(RamPin::RW, "H");
                    break;
                default: randomChange(side, addresses, time, stimuli);
            }
            wait();
        }
        return stimuli;
    }

    std::vector<RamStimulus> forBothSides(const std::vector<std::string>& left, const std::vector<std::string>& right,
                                          Time endTime) {
        std::vector<RamStimulus> stimuli = forSide(0, left, endTime);
        for (RamStimulus& each : forSide(1, right, endTime)) stimuli.push_back(each);
        std::ranges::stable_sort(stimuli, {}, &RamStimulus::time);
        return stimuli;
    }

private:
    Time gap() {
        const Time times[] = {0,
                              1,
                              2,
                              5,
                              grade_.holdTime,
                              grade_.enableTime,
                              grade_.highZTime,
                              grade_.addressWindow,
                              grade_.writePulse,
                              grade_.writeRecovery,
                              grade_.busyTime,
                              grade_.accessTime};
        return std::max(0, times[random_.below(std::size(times))] + random_.between(-1, 1));
    }
    std::string randomLevel() {
        const bool isOdd = !undefinedLetters_.empty() && random_.below(8) == 0;
        return std::string(1, random_.letterOf(isOdd ? undefinedLetters_ : "LH"));
    }
    std::string randomAddress(const std::vector<std::string>& addresses) {
        std::string letters = addresses[random_.below(addresses.size())];
        if (!undefinedLetters_.empty() && random_.below(10) == 0) letters[5] = random_.letterOf(undefinedLetters_);
        return letters;
    }
    std::string randomData() {
        std::string letters;
        while (letters.size() < 8) letters += randomLevel();
        return letters;
    }
    void randomChange(int side, const std::vector<std::string>& addresses, Time time,
                      std::vector<RamStimulus>& stimuli) {
        const auto pin = static_cast<RamPin>(random_.below(6));
        std::string letters = randomLevel();
        if (pin == RamPin::A) letters = randomAddress(addresses);
        if (pin == RamPin::Data) letters = randomData();
        stimuli.push_back({side, pin, letters, time});
    }

    RandomNumbers random_;
    ModelGrade grade_;
    std::string undefinedLetters_;
};

}  // namespace tarnsim
