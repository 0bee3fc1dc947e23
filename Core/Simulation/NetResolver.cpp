#include "Core/Simulation/NetResolver.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "Core/Simulation/DriveLanes.h"
#include "Core/Simulation/DriveStatus.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"

namespace tarnsim {

namespace {

/// Collects the drivers of one bit of a net and of the nets that Inouts join to it, each net once. Works with a list of
/// its own and not on the stack: any number of nets may hang together.
class BitWalk {
public:
    BitWalk(const Net& net, std::int32_t bit, Time time) : time_(time) { enter(net, bit); }

    PinDriveStatus collect() {
        while (true) {
            if (advance()) continue;
            const PinDriveStatus status = levels_.back().status;
            levels_.pop_back();
            if (levels_.empty()) return status;
            levels_.back().status.add(status);
        }
    }

private:
    /// A net of which some ports have been looked at.
    struct Level {
        const Net* net;
        std::int32_t bit;
        /// The position found for a port with a bit range stands for the ports behind it too, until another range sets
        /// it anew; designs with a Splice on a net have their values by this rule.
        std::int32_t portBit;
        std::size_t nextPort;
        PinDriveStatus status;
    };

    void enter(const Net& net, std::int32_t bit) {
        net.isNewTo(walk_);
        levels_.push_back({&net, bit, bit, 0, {}});
    }

    /// Goes on to the next joined net. False if the innermost net is done.
    bool advance() {
        Level& level = levels_.back();
        const Net& net = *level.net;
        while (level.nextPort < net.getPorts().size()) {
            const Port* port = net.getPorts()[level.nextPort++];
            if (const PinSpec* spec = net.findPinSpec(port)) {
                if (!spec->contains(level.bit)) continue;
                level.portBit = spec->indexOf(level.bit);
            }
            if (net.isDriver(*port)) level.status.add(port->get(time_)[static_cast<std::size_t>(level.portBit)]);
            if (port->direction() != Direction::Inout) continue;
            const Net* other = net.otherNet(*port);
            if (other == nullptr || !other->isNewTo(walk_)) continue;
            const PinSpec* spec = other->findPinSpec(port);
            enter(*other, spec == nullptr ? level.portBit : spec->bitAt(static_cast<std::size_t>(level.portBit)));
            return true;
        }
        return false;
    }

    Time time_;
    CreationNumber walk_;
    std::vector<Level> levels_;  ///< innermost last
};

/// What the drivers of a net come to, if each has all its bits.
class Lanes {
public:
    explicit Lanes(std::uint32_t width) : width_(width) {
        std::fill_n(lanes_.data(), (width_ + LetterWord::kLetters - 1) / LetterWord::kLetters, DriveLanes());
    }

    void add(const Port& driver, Time time) {
        checkDriverCount(++total_);
        std::array<char, kMaxValueWidth> letters;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
        driver.lettersAt(time, letters.data());
        for (std::size_t i = 0; i < width_; i += LetterWord::kLetters) {
            lanes_[i / LetterWord::kLetters].add(LetterWord::load(&letters[i], lettersFrom(i)));
        }
    }

    Value state() const {
        std::array<char, kMaxValueWidth> letters;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
        for (std::size_t i = 0; i < width_; i += LetterWord::kLetters) {
            lanes_[i / LetterWord::kLetters].state().store(&letters[i], lettersFrom(i));
        }
        return Value::ofLetters({letters.data(), width_});
    }

private:
    std::size_t lettersFrom(std::size_t i) const { return std::min(LetterWord::kLetters, width_ - i); }

    std::size_t width_;
    int total_ = 0;
    std::array<DriveLanes, (kMaxValueWidth + LetterWord::kLetters - 1) / LetterWord::kLetters> lanes_;
};

/// Adds the drivers of the net and of all that Inouts join to it; each bit has the same ones. False if there are bit
/// ranges, or ports of another width, somewhere: then bits differ.
bool addWholeDrivers(const Net& net, Time time, Lanes& lanes) {
    const CreationNumber walk;
    net.isNewTo(walk);
    std::vector<const Net*> open = {&net};
    while (!open.empty()) {
        const Net& next = *open.back();
        open.pop_back();
        if (!next.roles().isWhole || next.width() != net.width()) return false;
        for (const Port* driver : next.roles().drivers) lanes.add(*driver, time);
        for (const Port* inout : next.roles().inouts) {
            if (next.isDriver(*inout)) lanes.add(*inout, time);
            const Net* other = next.otherNet(*inout);
            if (other != nullptr && other->isNewTo(walk)) open.push_back(other);
        }
    }
    return true;
}

}  // namespace

Value NetResolver::resolve(const Net& net, Time time) {
    if (net.width() > 0 && net.width() <= kMaxValueWidth) {
        Lanes lanes(net.width());
        if (net.roles().isPlain) {
            for (const Port* driver : net.roles().drivers) lanes.add(*driver, time);
            return lanes.state();
        }
        if (addWholeDrivers(net, time, lanes)) return lanes.state();
    }
    Value value(net.width());
    for (std::uint32_t i = 0; i < net.width(); ++i) {
        value[i] = BitWalk(net, static_cast<std::int32_t>(i), time).collect().state();
    }
    return value;
}

Value NetResolver::resolveDirectDrivers(const Net& net, Time time) {
    PortDriveStatus status(net.width());
    for (const Port* port : net.getPorts()) {
        if (net.isDriver(*port)) status.add(port->get(time));
    }
    return status.toValue();
}

}  // namespace tarnsim
