#include "Core/Components/DualPortRam.h"

#include <algorithm>

#include "Core/Circuit/Circuit.h"
#include "Core/Support/Error.h"
#include "Core/Support/TLog.h"
#include "Core/Support/Text.h"
#include "Core/Values/Logic.h"

namespace tarnsim {

namespace {

// clang-format off
constexpr IDT7132LA::Timing kDevices[] = {
    // device  access enable hold lowZ highZ window pulse recovery busy
    {"LA20",       20,    11,   3,   0,   10,    15,   15,      10,  20},
    {"LA25",       25,    12,   3,   0,   10,    20,   15,      10,  20},
    {"LA35",       35,    20,   3,   0,   15,    30,   25,      15,  20},
    {"LA55",       55,    25,   3,   5,   25,    40,   30,      30,  30},
    {"LA100",     100,    40,  10,   5,   40,    90,   55,      40,  50},
};
// clang-format on

/// `span` before `time`.
Time ago(Time time, Time span) {
    return earlier(time, static_cast<std::uint32_t>(span));
}

}  // namespace

IDT7132LA::Side::Side(IDT7132LA& chip, const char* name, const std::string& suffix)
    : A(chip.input("A" + suffix, 11)),
      IO(*chip.createPort(8, Direction::Inout, "IO" + suffix)),
      BUSY(chip.outputPin("BUSY" + suffix)),
      RW(chip.inputPin("RW" + suffix)),
      OE(chip.inputPin("_OE" + suffix)),
      CE(chip.inputPin("_CE" + suffix)),
      buffer(format("dbuf %s", name), 0U, 8U),
      dataNet(format("IDT7132LA databus net %s", name), 8),
      data_(*buffer.findPort("in")),
      enable_(*buffer.findPin("_g")) {
    IO.ztrOff();
    dataNet.addPort(buffer.findPort("out"), kOutside);
    dataNet.addPort(&IO, kInside);
}

void IDT7132LA::Side::reset() {
    buffer.reset();
    dataNet.clear();
}

IDT7132LA::IDT7132LA(const std::string& name, const ParaMap& parameters)
    : ImageMemory(std::string(info.typeName), name, parameters), timing_(&kDevices[0]) {
    IDT7132LA::load(nullptr);
}

void IDT7132LA::load(const Circuit* owner) {
    const std::string device = getParameters().has("device") ? getParameters().at("device") : "LA20";
    const auto* const timing = std::ranges::find(kDevices, device, &Timing::device);
    if (timing == std::end(kDevices)) {
        throw Error("Error: IDT7132LA '%s': there is no device '%s', only LA20, LA25, LA35, LA55 and LA100.",
                    getName().c_str(), device.c_str());
    }
    timing_ = timing;
    if (owner == nullptr) return;
    loadMemoryImages(*this, info.typeName, kSize, *owner, [this](std::uint32_t address, const Value& byte) {
        write(byte, address, 0);
        return true;
    });
}

void IDT7132LA::reset() {
    cells_.clear();
    left_.reset();
    right_.reset();
    Component::reset();
}

std::string IDT7132LA::getDescription() const {
    return format("<br>Access time: <i>%d ns</i>", timing_->accessTime);
}

void IDT7132LA::inputChanged(Port* port, const Value& /*oldValue*/, const Value& newValue, Time time) {
    const Timing& t = *timing_;
    const auto lookAfter = [&](std::initializer_list<Time> delays) {
        for (const Time delay : delays) {
            const std::int64_t due = later(time, static_cast<std::uint32_t>(delay));
            if (due <= kLatestTime) scheduleTagged(this, port->getCreationNumber(), static_cast<Time>(due));
        }
    };
    for (const Side* side : {&left_, &right_}) {
        if (port == &side->OE && newValue == 'L') lookAfter({t.lowZTime, t.enableTime});
        if (port == &side->OE && newValue == 'H') lookAfter({t.highZTime});
        if (port == &side->CE && newValue == 'L') lookAfter({t.lowZTime, t.accessTime, t.addressWindow, t.busyTime});
        if (port == &side->CE && newValue == 'H') lookAfter({t.highZTime, t.busyTime});
        if (port == &side->A) lookAfter({t.holdTime, t.accessTime, t.addressWindow, t.busyTime});
        if (port == &side->RW) lookAfter({t.accessTime, t.writePulse, t.writeRecovery});
    }
}

void IDT7132LA::evaluateTagged(Time time, std::uint64_t tag) {
    for (Side* side : {&left_, &right_}) {
        if (tag == side->A.getCreationNumber()) {
            addressStep(*side, time);
        } else if (tag == side->OE.getCreationNumber() || tag == side->CE.getCreationNumber()) {
            enableStep(*side, time);
        } else if (tag == side->RW.getCreationNumber()) {
            arbitrate(time);
            checkWrite(*side, time);
            checkRead(*side, time);
        }
        side->buffer.evaluate(time);
    }
}

void IDT7132LA::addressStep(Side& side, Time time) {
    // The output hold has run out.
    if (side.A.changedAt(ago(time, timing_->holdTime))) side.setData(Value("UUUUUUUU"), time);
    const bool mayWrite = side.RW.stableAt(ago(time, timing_->writePulse), time, Value('L', 1));
    const bool mayRead = side.RW.stableAt(ago(time, timing_->accessTime), time, Value('H', 1));
    arbitrate(time);
    if (mayRead) {
        checkRead(side, time);
    } else if (mayWrite) {
        checkWrite(side, time);
    }
}

void IDT7132LA::enableStep(Side& side, Time time) {
    const auto becameAgo = [&](Time span, char level) {
        const auto disabled = [&](Time at) { return Logic::Or(side.OE.get(at), side.CE.get(at)); };
        const Time change = ago(time, span);
        return disabled(earlier(change, 1)) != level && disabled(change) == level;
    };
    if (becameAgo(timing_->lowZTime, 'L')) side.setEnable('U', time);
    if (becameAgo(timing_->enableTime, 'L')) side.setEnable('L', time);
    if (becameAgo(timing_->accessTime, 'L')) side.setEnable('L', time);
    if (becameAgo(timing_->highZTime, 'H')) side.setEnable('H', time);
    arbitrate(time);
    checkWrite(side, time);
    checkRead(side, time);
}

bool IDT7132LA::isConflictAt(Time time) const {
    return left_.A.get(time) == right_.A.get(time) && left_.CE.level(time) == 'L' && right_.CE.level(time) == 'L' &&
           (left_.RW.level(time) == 'L' || right_.RW.level(time) == 'L');
}

void IDT7132LA::arbitrate(Time time) {
    const auto driveLater = [&](Pin& busy, char letter, Time change) {
        const std::int64_t due = later(change, static_cast<std::uint32_t>(timing_->busyTime));
        if (due <= kLatestTime) busy.setLevel(letter, static_cast<Time>(due));
    };
    if (!isConflictAt(time)) {
        driveLater(left_.BUSY, 'H', time);
        driveLater(right_.BUSY, 'H', time);
        return;
    }
    const auto arrival = [&](const Side& side) { return std::max(side.CE.lastChange(time), side.A.lastChange(time)); };
    const bool leftWins = arrival(left_) <= arrival(right_);
    Side& winner = leftWins ? left_ : right_;
    Side& loser = leftWins ? right_ : left_;
    driveLater(loser.BUSY, 'L', arrival(loser));
    winner.BUSY.setLevel('H', winner.A.lastChange(time));
}

void IDT7132LA::checkWrite(Side& side, Time time) {
    const Time begin = ago(time, timing_->addressWindow);
    const Value address = side.A.get(begin);
    if (isConflictAt(begin)) {
        const TLog line("Warning: access collision in memory %s, at address %s and t=%d", getName().c_str(),
                        address.c_str(), time);
        return;
    }
    const bool isWriting = side.A.stableBetween(begin, time) &&
                           side.RW.stableAt(ago(time, timing_->writePulse), time, Value('L', 1)) &&
                           side.CE.stableAt(begin, time, Value('L', 1));
    if (!isWriting) return;
    if (!address.isDefined()) {
        const TLog line("Warning: attempt to write to SRAM %s with undefined address %s at t=%d", getName().c_str(),
                        address.c_str(), time);
        return;
    }
    write(side.IO.get(time), address.toNumber() & (kSize - 1), time);
}

void IDT7132LA::checkRead(Side& side, Time time) {
    const Time begin = ago(time, timing_->accessTime);
    const Value low('L', 1);
    const bool isReading = side.A.stableBetween(begin, time) && side.RW.stableAt(begin, time, Value('H', 1)) &&
                           side.CE.stableAt(begin, time, low) &&
                           side.CE.stableAt(ago(time, timing_->enableTime), time, low);
    if (!isReading) return;
    const Value address = side.A.get(begin);
    side.setData(address.isDefined() ? read(address.toNumber() & (kSize - 1), begin) : Value(8), time);
}

}  // namespace tarnsim
