#pragma once

#include <cstdint>
#include <string>

#include "Core/Components/MemoryCells.h"
#include "Core/Components/MemoryImages.h"
#include "Core/Components/PartInfo.h"
#include "Core/Components/Primitives.h"
#include "Core/Simulation/Net.h"

namespace tarnsim {

/// A static RAM of 2K words with two ports, left and right, that work independently until both address the same word.
///
/// It keeps all times of its data sheet. A change of an input schedules a look at the pins after each time that it
/// bears on, and an access happens if the pins have been stable for as long as it asks. Its speed grade is the
/// parameter `device`, LA20 without one.
class IDT7132LA final : public ImageMemory<Component> {
public:
    static constexpr PartInfo info = {
        "IDT7132LA", "",
        "<b>device</b> The version of the device. It determines the timing parameters. Valid values are: LA20, LA25, "
        "LA35, LA55 and LA100.<p><b>cbmfile</b> A commodore-style object file to be loaded into the memory, where the "
        "two first bytes are the load address, in LSB order.<p><b>rawfile</b> A raw binary file to be loaded into the "
        "memory.<p><b>rawaddress</b> The memory location the rawfile will be loaded into. Default is 0x0000."};

    /// Raises an Error for a `device` that isn't made.
    IDT7132LA(const std::string& name, const ParaMap& parameters);
    IDT7132LA(const IDT7132LA&) = delete;
    IDT7132LA& operator=(const IDT7132LA&) = delete;

    void reset() override;
    void evaluate(Time /*time*/) override {}
    /// `tag` is the creation number of the port that changed.
    void evaluateTagged(Time time, std::uint64_t tag) override;
    void inputChanged(Port* port, const Value& oldValue, const Value& newValue, Time time) override;
    std::string getDescription() const override;

    std::uint32_t getSize() const override { return kSize; }
    std::uint32_t getWordSize() const override { return 8; }
    /// Both raise std::out_of_range beyond the size.
    Value read(std::uint32_t address, Time time) const override { return cells_.read(address, time); }
    void write(const Value& value, std::uint32_t address, Time time) override { cells_.write(value, address, time); }

    /// The data sheet's times of a speed grade, in ns.
    struct Timing {
        std::string_view device;
        Time accessTime;
        Time enableTime;
        Time holdTime;
        Time lowZTime;
        Time highZTime;
        Time addressWindow;
        Time writePulse;
        Time writeRecovery;
        Time busyTime;
    };

private:
    static constexpr std::uint32_t kSize = 2048;

    /// One of the two ports. What it reads out goes through a buffer of its own to a net inside of its data pins.
    struct Side {
        Side(IDT7132LA& chip, const char* name, const std::string& suffix);
        void reset();

        /// Drives what the buffer lets through or what lets it through.
        void setData(const Value& value, Time time) { data_.set(value, time); }
        void setEnable(char letter, Time time) { enable_.setLevel(letter, time); }

        Port& A;
        Port& IO;
        Pin& BUSY;
        Pin& RW;
        Pin& OE;
        Pin& CE;
        BusBuffer buffer;
        Net dataNet;

    private:
        Port& data_;
        Pin& enable_;
    };

    void load(const Circuit* owner) override;

    void addressStep(Side& side, Time time);
    void enableStep(Side& side, Time time);
    void arbitrate(Time time);
    void checkWrite(Side& side, Time time);
    void checkRead(Side& side, Time time);
    bool isConflictAt(Time time) const;

    const Timing* timing_;  ///< of the device

    Side left_{*this, "left", "L"};
    Side right_{*this, "right", "R"};

    MemoryCells cells_{kSize, 8};
};

}  // namespace tarnsim
