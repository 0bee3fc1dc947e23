#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Core/Components/Chip.h"
#include "Core/Components/MemoryCells.h"
#include "Core/Components/MemoryImages.h"

namespace tarnsim {

// Memories with one port. The delay is the access time in ns, 0 without the parameter.

/// An EPROM of 8K words.
class MC27C64 final : public ImageMemory<Chip<MC27C64>> {
public:
    static constexpr PartInfo info = {
        "MC27C64", "",
        "<b>delay</b> The access time in ns; the time from address, _OE and _CS stabilization to data "
        "stabilization.<p><b>cbmfile</b> A Commodore-style object file to be loaded into the memory, where the two "
        "first bytes are the load address, in LSB order.<p><b>rawfile</b> A raw binary file to be loaded into the "
        "memory.<p><b>rawaddress</b> The memory location the rawfile will be loaded into. Default is 0x0000."};
    using ImageMemory::ImageMemory;

    void reset() override;
    void evaluate(Time time) override;

    std::uint32_t getSize() const override { return kSize; }
    std::uint32_t getWordSize() const override { return 8; }
    /// Addresses go round at the size. The time plays no part.
    Value read(std::uint32_t address, Time time) const override;
    void write(const Value& value, std::uint32_t address, Time time) override;

private:
    static constexpr std::uint32_t kSize = 8192;

    void load(const Circuit* owner) override;

    Port& A = input("A", 13);
    Port& D = output("D", 8);
    Pin& OE = inputPin("_OE");
    Pin& CS = inputPin("_CS");

    std::vector<Value> words_ = std::vector<Value>(kSize, Value(8));
};

/// A static RAM of 32K words. Writing is level sensitive: while `_WE` and `_CS` are low, every evaluation stores what
/// `Din` was one delay before.
class HM62256B final : public ImageMemory<Chip<HM62256B>> {
public:
    static constexpr PartInfo info = {
        "HM62256B", "",
        "<b>delay</b> The access time in ns; the time from address, _OE and _CS stabilization to data "
        "stabilization.<p><b>cbmfile</b> A commodore-style object file to be loaded into the memory, where the two "
        "first bytes are the load address, in LSB order.<p><b>rawfile</b> A raw binary file to be loaded into the "
        "memory.<p><b>rawaddress</b> The memory location the rawfile will be loaded into. Default is 0x0000."};
    using ImageMemory::ImageMemory;

    void reset() override;
    void evaluate(Time time) override;

    std::uint32_t getSize() const override { return kSize; }
    std::uint32_t getWordSize() const override { return 8; }
    /// Both raise std::out_of_range beyond the size.
    Value read(std::uint32_t address, Time time) const override { return cells_.read(address, time); }
    void write(const Value& value, std::uint32_t address, Time time) override { cells_.write(value, address, time); }

private:
    static constexpr std::uint32_t kSize = 32768;

    void load(const Circuit* owner) override;
    void writeFromPins(Time time);

    Port& A = input("A", 15);
    Port& Din = input("Din", 8);
    Port& Dout = output("Dout", 8);
    Pin& WE = inputPin("_WE");
    Pin& OE = inputPin("_OE");
    Pin& CS = inputPin("_CS");

    MemoryCells cells_{kSize, 8};
};

}  // namespace tarnsim
