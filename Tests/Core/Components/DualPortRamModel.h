#pragma once

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Core/Support/Text.h"
#include "Core/Values/Time.h"

namespace tarnsim {

/// Letters over time, for the model below: as plain as can be, and nothing that the program uses.
class ModelSignal {
public:
    explicit ModelSignal(std::size_t width) : undefined_(width, 'U') {}

    void set(const std::string& letters, Time time) { records_[time] = letters; }
    const std::string& get(Time time) const {
        const auto after = records_.upper_bound(time);
        return after == records_.begin() ? undefined_ : std::prev(after)->second;
    }
    bool changedAt(Time time) const { return get(time - 1) != get(time); }
    bool isStable(Time from, Time to) const {
        const std::string letters = get(from);
        for (auto record = records_.lower_bound(from); record != records_.end() && record->first <= to; ++record) {
            if (record->second != letters) return false;
        }
        return true;
    }
    /// Has that value all the time.
    bool is(const std::string& letters, Time from, Time to) const { return get(from) == letters && isStable(from, to); }
    /// When the value in force at `time` began.
    Time lastChange(Time time) const {
        Time change = kEarliestTime;
        std::string before = undefined_;
        for (const auto& [start, letters] : records_) {
            if (start > time) break;
            if (letters != before) change = start;
            before = letters;
        }
        return change;
    }

private:
    std::string undefined_;
    std::map<Time, std::string> records_;
};

/// The columns of the data sheet for one speed grade of the dual-port RAM, in ns.
struct ModelGrade {
    std::string device;
    Time accessTime, enableTime, holdTime, lowZTime, highZTime, addressWindow, writePulse, writeRecovery, busyTime;
};

inline const std::vector<ModelGrade> kModelGrades = {{"LA20", 20, 11, 3, 0, 10, 15, 15, 10, 20},
                                                     {"LA25", 25, 12, 3, 0, 10, 20, 15, 10, 20},
                                                     {"LA35", 35, 20, 3, 0, 15, 30, 25, 15, 20},
                                                     {"LA55", 55, 25, 3, 5, 25, 40, 30, 30, 30},
                                                     {"LA100", 100, 40, 10, 5, 40, 90, 55, 40, 50}};

/// A pin of one side, by its name without the side. The data come from a bus driver outside, with its own enable.
enum class RamPin { A, RW, OE, CE, Data, DataEnable };

/// A change of a pin.
struct RamStimulus {
    int side;  ///< 0 left, 1 right
    RamPin pin;
    std::string letters;
    Time time;
};

/// The dual-port RAM again, written down as it is told, step by step, without a thought of speed: for comparison.
class DualPortRamModel {
public:
    struct Side {
        ModelSignal A{11}, RW{1}, OE{1}, CE{1}, BUSY{1};
        ModelSignal bufferIn{8}, bufferEnable{1}, bufferOut{8};
        ModelSignal driverIn{8}, driverEnable{1}, driverOut{8};
        ModelSignal bus{8};  ///< what the data pins read
    };
    /// How often something took place: a comparison of nothing proves nothing.
    struct Counts {
        int stored = 0, read = 0, undefinedReads = 0, held = 0, collisions = 0, undefinedWrites = 0;
        std::array<int, 2> losses{};
    };

    DualPortRamModel(ModelGrade grade, std::string name) : t_(std::move(grade)), name_(std::move(name)) {}

    /// `stimuli` are in ascending order of time.
    void run(const std::vector<RamStimulus>& stimuli, Time endTime) {
        for (const RamStimulus& each : stimuli) enter(each);
        for (const auto& [time, tags] : events_) {
            if (time > endTime) break;
            for (const int tag : tags) {
                if (tag < kFirstRamTag) {
                    evaluateDriver(sides[static_cast<std::size_t>(tag)], time);
                } else {
                    evaluateTagged(tag, time);
                }
            }
        }
    }

    std::array<Side, 2> sides;
    std::map<std::string, ModelSignal> cells;  ///< by the letters of the address
    std::string log;
    Counts counts;

private:
    static constexpr int kFirstRamTag = 2;  ///< 0 and 1 are the drivers
    /// In the order of the ports.
    static int tagOf(int side, RamPin pin) { return kFirstRamTag + side * 4 + static_cast<int>(pin); }

    static ModelSignal& signalOf(Side& side, RamPin pin) {
        switch (pin) {
            case RamPin::A: return side.A;
            case RamPin::RW: return side.RW;
            case RamPin::OE: return side.OE;
            case RamPin::CE: return side.CE;
            case RamPin::Data: return side.driverIn;
            default: return side.driverEnable;
        }
    }

    void enter(const RamStimulus& stimulus) {
        ModelSignal& signal = signalOf(sides[static_cast<std::size_t>(stimulus.side)], stimulus.pin);
        const bool changes = signal.get(stimulus.time) != stimulus.letters;
        signal.set(stimulus.letters, stimulus.time);
        if (!changes) return;
        const auto look = [&](std::initializer_list<Time> delays) {
            for (const Time delay : delays) events_[stimulus.time + delay].insert(tagOf(stimulus.side, stimulus.pin));
        };
        const std::string& now = stimulus.letters;
        switch (stimulus.pin) {
            case RamPin::OE:
                if (now == "L") look({t_.lowZTime, t_.enableTime});
                if (now == "H") look({t_.highZTime});
                break;
            case RamPin::CE:
                if (now == "L") look({t_.lowZTime, t_.accessTime, t_.addressWindow, t_.busyTime});
                if (now == "H") look({t_.highZTime, t_.busyTime});
                break;
            case RamPin::A: look({t_.holdTime, t_.accessTime, t_.addressWindow, t_.busyTime, t_.busyTime}); break;
            case RamPin::RW: look({t_.accessTime, t_.writePulse, t_.writeRecovery}); break;
            default: events_[stimulus.time].insert(stimulus.side);
        }
    }

    static std::string throughBuffer(const ModelSignal& in, const ModelSignal& enable, Time time) {
        if (enable.get(time) == "H") return std::string(8, 'Z');
        if (enable.get(time) == "U") return std::string(8, 'U');
        return in.get(time);
    }

    static void resolve(Side& side, Time time) {
        const std::string a = side.driverOut.get(time);
        const std::string b = side.bufferOut.get(time);
        std::string letters;
        for (std::size_t i = 0; i < 8; ++i) {
            char letter = 'U';
            if (a[i] == 'Z') letter = b[i];
            if (b[i] == 'Z') letter = a[i];
            letters += letter == 'X' ? 'U' : letter;
        }
        side.bus.set(letters, time);
    }

    static void evaluateDriver(Side& side, Time time) {
        side.driverOut.set(throughBuffer(side.driverIn, side.driverEnable, time), time);
        resolve(side, time);
    }

    void evaluateTagged(int tag, Time time) {
        for (int i = 0; i < 2; ++i) {
            Side& side = sides[static_cast<std::size_t>(i)];
            if (tag == tagOf(i, RamPin::A)) addressStep(side, time);
            if (tag == tagOf(i, RamPin::OE) || tag == tagOf(i, RamPin::CE)) enableStep(side, time);
            if (tag == tagOf(i, RamPin::RW)) {
                arbitrate(time);
                checkWrite(side, time);
                checkRead(side, time);
            }
            side.bufferOut.set(throughBuffer(side.bufferIn, side.bufferEnable, time), time);
            resolve(side, time);
        }
    }

    void addressStep(Side& side, Time time) {
        if (side.A.changedAt(time - t_.holdTime)) {
            side.bufferIn.set("UUUUUUUU", time);
            ++counts.held;
        }
        const bool writeOk = side.RW.is("L", time - t_.writePulse, time);
        const bool readOk = side.RW.is("H", time - t_.accessTime, time);
        arbitrate(time);
        if (readOk) {
            checkRead(side, time);
        } else if (writeOk) {
            checkWrite(side, time);
        }
    }

    void enableStep(Side& side, Time time) {
        const auto combined = [&](Time at) {
            const std::string letters = side.OE.get(at) + side.CE.get(at);
            if (letters.find('H') != std::string::npos) return 'H';
            return letters.find('U') != std::string::npos ? 'U' : 'L';
        };
        const auto turned = [&](Time lookBack, char level) {
            return combined(time - lookBack - 1) != level && combined(time - lookBack) == level;
        };
        if (turned(t_.lowZTime, 'L')) side.bufferEnable.set("U", time);
        if (turned(t_.enableTime, 'L')) side.bufferEnable.set("L", time);
        if (turned(t_.accessTime, 'L')) side.bufferEnable.set("L", time);
        if (turned(t_.highZTime, 'H')) side.bufferEnable.set("H", time);
        arbitrate(time);
        checkWrite(side, time);
        checkRead(side, time);
    }

    bool isConflict(Time x) const {
        const auto& [left, right] = sides;
        return left.A.get(x) == right.A.get(x) && left.CE.get(x) == "L" && right.CE.get(x) == "L" &&
               (left.RW.get(x) == "L" || right.RW.get(x) == "L");
    }

    void arbitrate(Time time) {
        if (!isConflict(time)) {
            for (Side& side : sides) side.BUSY.set("H", time + t_.busyTime);
            return;
        }
        const auto arrival = [&](const Side& side) {
            return std::max(side.CE.lastChange(time), side.A.lastChange(time));
        };
        const std::size_t loser = arrival(sides[0]) > arrival(sides[1]) ? 0 : 1;
        const Side& late = sides[loser];
        Side& winner = sides[1 - loser];
        sides[loser].BUSY.set("L",
                              std::max(late.A.lastChange(time) + t_.busyTime, late.CE.lastChange(time) + t_.busyTime));
        winner.BUSY.set("H", winner.A.lastChange(time));
        ++counts.losses[loser];
    }

    void checkWrite(Side& side, Time time) {
        const Time w = time - t_.addressWindow;
        const std::string address = side.A.get(w);
        if (isConflict(w)) {
            log += format("Warning: access collision in memory %s, at address %s and t=%d\n", name_.c_str(),
                          address.c_str(), time);
            ++counts.collisions;
            return;
        }
        if (!side.A.isStable(w, time)) return;
        if (!side.RW.is("L", time - t_.writePulse, time)) return;
        if (!side.CE.is("L", w, time)) return;
        if (address.find_first_not_of("LH") != std::string::npos) {
            log += format("Warning: attempt to write to SRAM %s with undefined address %s at t=%d\n", name_.c_str(),
                          address.c_str(), time);
            ++counts.undefinedWrites;
            return;
        }
        cells.try_emplace(address, 8).first->second.set(side.bus.get(time), time);
        ++counts.stored;
    }

    void checkRead(Side& side, Time time) {
        const Time r = time - t_.accessTime;
        if (!side.A.isStable(r, time)) return;
        if (!side.RW.is("H", r, time)) return;
        if (!side.CE.is("L", r, time)) return;
        if (!side.CE.is("L", time - t_.enableTime, time)) return;
        const std::string address = side.A.get(r);
        const bool isDefined = address.find_first_not_of("LH") == std::string::npos;
        side.bufferIn.set(isDefined ? cells.try_emplace(address, 8).first->second.get(r) : "UUUUUUUU", time);
        ++(isDefined ? counts.read : counts.undefinedReads);
    }

    ModelGrade t_;
    std::string name_;
    std::map<Time, std::set<int>> events_;  ///< tags by time
};

}  // namespace tarnsim
