#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Core/Components/CPUs/CycleCore.h"
#include "Core/Components/Component.h"
#include "Core/Components/PartInfo.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"
#include "Core/Values/LetterWord.h"

namespace tarnsim {

/// Help text of the bus times; the last paragraph is for a processor with a `BE`.
inline constexpr std::string_view kBusTimesDocumentation =
    "<b>t_ads</b> The Address Setup Time, in ns. Time from negative clock flank until address, R/W, SYNC and _VP "
    "has stabilized. Default 30 ns.<p>"
    "<b>t_ah</b> The Address Hold Time, in ns. The time the address, R/W, SYNC and _VP are stable after negative "
    "clock flank. Default 10 ns.<p>"
    "<b>t_mds</b> The Write Delay Time, in ns. The time after positive clock flank that the (write) data becomes "
    "valid. Default 25 ns.<p>"
    "<b>t_dhw</b> The Write Hold Time, in ns. The time after negative clock flank that the (write) data still is "
    "valid. Default 10 ns.<p>"
    "<b>t_bvd</b> The BE to Valida Data time, in ns. The time from positive BE flank until address, R/W and data "
    "lines are valid. Default is 25 ns. The data sheet provides no value for the negative flank until invalid "
    "data, but states that it probably is the same, and that is the value used in this model.";

/// What the processors have in common that put a cycle core on pins: the core's record and mask, the pins that all of
/// them have, the data bus inside, and access for hosts. `Part` is the processor; it says how its read/write pin is
/// called (`kReadWrite`).
///
/// A falling flank of `PHI0` is a tick of the core; outputs follow at the times of the data sheet, in ns after the
/// flank: `t_ah` until the old address is gone, `t_ads` until the new one is there, `t_mds` from the rising flank to
/// the data of a write, `t_dhw` until they are gone.
///
/// The data bus is a net inside of `D`, on which the core reads and drives through two ports of its own, which are in
/// no list.
template <class Part, class Core, class Descriptor>
class Processor : public Component {
public:
    Processor(const std::string& name, const ParaMap& parameters)
        : Component(std::string(Part::info.typeName), name, parameters) {
        releaseData();
        databus_.addPort(&D, kInside);
        databus_.addPort(&d_read, kOutside);
        databus_.addPort(&d_write, kOutside);
        resetCore();
    }
    Processor(const Processor&) = delete;
    Processor& operator=(const Processor&) = delete;

    void reset() override {
        lastTime_ = -1;
        lastClock_ = 'U';
        resetCore();
        databus_.clear();
        d_read.clear();
        d_write.clear();
        Component::reset();
    }
    void start(Time /*endTime*/) override { releaseData(); }
    /// The port that changed is the tag of the event.
    void inputChanged(Port* port, const Value& /*oldValue*/, const Value& /*newValue*/, Time time) override {
        scheduleTagged(this, port->getCreationNumber(), time);
    }
    Response responseTo(const Port& port) const override { return {Response::Kind::Event, port.getCreationNumber()}; }
    void applyParameters() override {
        readTime("t_ads", t_ads);
        readTime("t_ah", t_ah);
        readTime("t_mds", t_mds);
        readTime("t_dhw", t_dhw);
    }

    // For hosts; a run uses none of it.

    std::uint8_t getA() const { return core_.a; }
    std::uint8_t getX() const { return core_.x; }
    std::uint8_t getY() const { return core_.y; }
    std::uint8_t getS() const { return core_.s; }
    std::uint8_t getP() const { return core_.p; }
    std::uint16_t getPC() const { return core_.pc; }
    void setA(std::uint8_t value) { core_.a = value; }
    void setX(std::uint8_t value) { core_.x = value; }
    void setY(std::uint8_t value) { core_.y = value; }
    void setS(std::uint8_t value) { core_.s = value; }
    void setP(std::uint8_t value) { core_.p = value; }
    void setPC(std::uint16_t value) { core_.pc = value; }
    bool isReadCycle() const { return (pins_ & CyclePin::kRW) != 0; }
    bool isWriteCycle() const { return !isReadCycle(); }
    bool isSync() const { return (pins_ & CyclePin::kSync) != 0; }
    /// Initialises the core anew. (`reset` is that of all components.)
    void resetCore() {
        const Descriptor descriptor;
        pins_ = initialise(&core_, &descriptor);
    }
    /// Ticks the core without any bus activity.
    void step(int ticks) {
        for (int i = 0; i < ticks; ++i) pins_ = tick(&core_, pins_);
    }

protected:
    using Byte = std::array<char, 8>;
    using Address = std::array<char, 16>;

    static constexpr Byte byteOf(char letter) {
        Byte letters{};
        letters.fill(letter);
        return letters;
    }
    /// Sets `port` at a time that may lie behind kLatestTime, which is never.
    template <std::size_t width>
    static void setAt(Port& port, const std::array<char, width>& letters, std::int64_t time) {
        if (time <= kLatestTime) port.setLetters({letters.data(), width}, static_cast<Time>(time));
    }
    static void setAt(Port& pin, char letter, std::int64_t time) { setAt(pin, std::array{letter}, time); }
    /// Undefined when the old value's hold ends, the new value when it's set up; both counted from `base`.
    void schedule(Port& port, const Address& letters, Time base) const {
        constexpr Address kUndefined = [] {
            Address undefined{};
            undefined.fill(kUndefinedBit);
            return undefined;
        }();
        setAt(port, kUndefined, std::int64_t{base} + t_ah);
        setAt(port, letters, std::int64_t{base} + t_ads);
    }
    void schedule(Port& pin, bool isHigh, Time base) const {
        setAt(pin, kUndefinedBit, std::int64_t{base} + t_ah);
        setAt(pin, isHigh ? 'H' : 'L', std::int64_t{base} + t_ads);
    }
    using Component::schedule;

    void releaseData() { setAt(d_write, byteOf('Z'), -1); }

    /// Whatever isn't low doesn't count.
    void sampleLines(Time time) {
        sample(IRQ, CyclePin::kIrq, time);
        sample(NMI, CyclePin::kNmi, time);
        sample(RDY, CyclePin::kRdy, time);
    }
    void setOverflowIfLow(Time time) {
        if (SO.level(time) == 'L') core_.p |= CycleFlag::kV;
    }
    /// One tick for a falling flank at `time`, with the data that the bus holds at `base`.
    void tickCore(Time time, Time base) {
        passResetGate(time);
        if (isReadCycle()) {
            if (const auto data = d_read.numberAt(base)) {
                pins_ = (pins_ & ~CyclePin::kData) | std::uint64_t{*data} << CyclePin::kDataShift;
            }
        }
        pins_ = tick(&core_, pins_);
    }
    Address addressLetters() const {
        Address letters{};
        LetterWord::ofNumber(static_cast<std::uint8_t>(pins_ >> 8U)).store(letters.data(), 8);
        LetterWord::ofNumber(static_cast<std::uint8_t>(pins_)).store(letters.data() + 8, 8);
        return letters;
    }
    Byte dataLetters() const {
        Byte letters{};
        LetterWord::ofNumber(static_cast<std::uint8_t>(pins_ >> CyclePin::kDataShift)).store(letters.data(), 8);
        return letters;
    }
    void driveClocks(Time time) {
        const char clock = PHI0.level(time);
        PHI1.setLevel(clock == 'L' ? 'H' : clock == 'H' ? 'L' : 'U', time);
        PHI2.setLevel(isLevel(clock) ? clock : 'U', time);
    }
    /// For evaluations that nobody's change leads to: the flank is taken to have been half-way between the last look at
    /// the clock and this one.
    struct Flank {
        Time base;
        bool isFalling;
        bool isRising;
    };
    Flank lookAtClock(Time time) {
        const char clock = PHI0.level(time);
        const Flank flank = {static_cast<Time>((std::int64_t{lastTime_} + time + 1) / 2),
                             lastClock_ == 'H' && clock == 'L', lastClock_ == 'L' && clock == 'H'};
        lastTime_ = time;
        lastClock_ = clock;
        return flank;
    }

    /// The reset takes effect at the first falling flank with `_RES` high after at least two with it low.
    void passResetGate(Time time) {
        if (RES.level(time) == 'H') {
            if (resetLowCount > 1) resetCore();
            resetLowCount = 0;
        }
        if (RES.level(time) == 'L') ++resetLowCount;
    }

    Port& A = output("A", 16);
    Port& D = *createPort(8, Direction::Inout, "D");
    Pin& RW = outputPin(Part::kReadWrite);
    Pin& IRQ = inputPin("_IRQ");
    Pin& NMI = inputPin("_NMI");
    Pin& RDY = inputPin("RDY");
    Pin& SYNC = outputPin("SYNC");
    Pin& PHI0 = inputPin("PHI0");
    Pin& PHI1 = outputPin("PHI1");
    Pin& PHI2 = outputPin("PHI2");
    Pin& SO = inputPin("_SO");
    Pin& RES = inputPin("_RES");

    Port d_read{8, Direction::Input, "d_read"};     ///< how the core sees the data bus
    Port d_write{8, Direction::Output, "d_write"};  ///< how it drives it

    Core core_{};
    std::uint64_t pins_ = 0;  ///< the mask of the last tick, with the lines as they were sampled since
    Time t_ads = 0;
    Time t_ah = 0;
    Time t_mds = 0;
    Time t_dhw = 0;

private:
    void sample(const Pin& pin, std::uint64_t line, Time time) {
        pins_ = pin.level(time) == 'L' ? pins_ | line : pins_ & ~line;
    }

    /// Falling flanks with `_RES` low since it was high, of all processors of this class together: they really share
    /// it, so of two processors on one reset line only the one that ticks first behind it is initialised anew. Nothing
    /// clears it.
    static inline std::int32_t resetLowCount = 0;

    Net databus_{8};
    Time lastTime_ = -1;    ///< of the last evaluation without a tag
    char lastClock_ = 'U';  ///< the clock as it saw it

protected:
    void readTime(const char* key, Time& time) {
        auto number = static_cast<std::uint32_t>(time);
        getParameters().get(key, &number);
        time = static_cast<Time>(number);
    }
};

}  // namespace tarnsim
