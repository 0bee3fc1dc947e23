#pragma once

#include <string>

#include "Core/Components/CPUs/Processor.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"

namespace tarnsim {

/// The CMOS 65C02 on its pins.
///
/// Its schedule goes to three internal signals; address, data and read/write pins show them while `BE` is high, and
/// float while it is low, `t_bvd` ns after the flank. `SYNC` and `_VP` go on.
class W65C02 final : public Processor<W65C02, w65c02, w65c02Descriptor> {
public:
    static constexpr PartInfo info = {"W65C02", "(t_ads=30,t_ah=10,t_mds=25,t_dhw=10,t_bvd=25)",
                                      kBusTimesDocumentation};
    static constexpr const char* kReadWrite = "R/W";

    W65C02(const std::string& name, const ParaMap& parameters);

    void reset() override;
    void evaluate(Time time) override;
    void evaluateTagged(Time time, std::uint64_t tag) override;
    /// A change of `BE` is looked at when it shows.
    void inputChanged(Port* port, const Value& oldValue, const Value& newValue, Time time) override;
    Response responseTo(const Port& port) const override;
    void applyParameters() override;

private:
    void refreshInputPins(Time time);
    void startCycle(Time time, Time base, char heldData);
    void driveData(Time base);
    void finish(Time time);
    void switchBus(Time time);
    static void copy(Port& pin, const Port& signal, Time time, Time delay);

    Pin& VP = outputPin("_VP");
    Pin& BE = inputPin("BE");

    Port& internalAddress = internalSignal(16);
    Port& internalData = internalSignal(8);
    Port& internalReadWrite = internalSignal(1);
    std::uint32_t t_bvd = 0;  ///< ns
};

}  // namespace tarnsim
