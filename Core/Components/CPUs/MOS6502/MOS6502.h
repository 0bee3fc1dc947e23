#pragma once

#include <array>
#include <string>

#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/Processor.h"

namespace tarnsim {

/// The NMOS 6502 on its pins.
class MOS6502 final : public Processor<MOS6502, m6502, m6502Descriptor> {
public:
    static constexpr PartInfo info = {"MOS6502", "(t_ads=30,t_ah=10,t_mds=25,t_dhw=10)",
                                      // It has no _VP; the text is the other processor's.
                                      kBusTimesDocumentation.substr(0, kBusTimesDocumentation.find("<b>t_bvd</b>"))};
    static constexpr const char* kReadWrite = "_R/W";

    MOS6502(const std::string& name, const ParaMap& parameters);

    void evaluate(Time time) override;
    void evaluateTagged(Time time, std::uint64_t tag) override;

private:
    void startCycle(Time time, Time base);
    void driveData(Time base);
    bool canRefreshFirst(Time time) const;
    void refreshBus(Time time);
    void finish(Time time, bool isRefreshed);

    const std::array<Port*, 4> busPins = {&A, &d_write, &RW, &SYNC};  ///< in the order in which they are refreshed
};

}  // namespace tarnsim
