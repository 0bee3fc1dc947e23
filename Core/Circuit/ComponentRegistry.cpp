#include "Core/Circuit/ComponentRegistry.h"

#include <array>
#include <unordered_map>

#include "Core/Components/CPUs/MOS6502/MOS6502.h"
#include "Core/Components/CPUs/W65C02/W65C02.h"
#include "Core/Components/Connectors.h"
#include "Core/Components/DualPortRam.h"
#include "Core/Components/Gates.h"
#include "Core/Components/Memories.h"
#include "Core/Components/Primitives.h"
#include "Core/Components/Sources.h"
#include "Core/Components/TtlArithmetic.h"
#include "Core/Components/TtlCounters.h"
#include "Core/Components/TtlDecoders.h"
#include "Core/Components/TtlFlipFlops.h"
#include "Core/Components/TtlGates.h"
#include "Core/Components/TtlRegisters.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

template <class Part>
std::string_view typeNameOf() {
    return cutChipPrefix(Part::info.typeName);
}

template <class Part>
std::unique_ptr<Component> create(const std::string& name, const ParaMap& parameters) {
    return std::make_unique<Part>(name, parameters);
}

template <class Part>
ParaMap defaultsOf() {
    return ParaMap(std::string(Part::info.defaults));
}

template <class Part>
std::string documentationOf() {
    return std::string(Part::info.documentation);
}

/// A part says all of this about itself in its `info`.
template <class Part>
constexpr ComponentType row = {&typeNameOf<Part>, &create<Part>, &defaultsOf<Part>, &documentationOf<Part>};

constexpr std::array kComponentTypes = {
    row<High>,      row<Low>,       row<Inv>,       row<And>,        row<Nand>,        row<Xor>,
    row<Xnor>,      row<Or>,        row<Nor>,       row<Oscillator>, row<D_flip_flop>, row<ThreeStateBuf>,
    row<BusBuffer>, row<Demux1to4>, row<Join>,      row<Split>,      row<Splice>,      row<Const>,
    row<DM74LS00>,  row<DM74LS04>,  row<DM74LS08>,  row<DM74LS32>,   row<SN74x74>,     row<DM74LS78A>,
    row<DM74LS125>, row<DM74LS137>, row<DM74LS139>, row<DM74LS154>,  row<SN74x174>,    row<DM74LS191>,
    row<DM74LS244>, row<SN74x273>,  row<DM74LS283>, row<DM74LS374>,  row<DM74x574>,    row<SN74x688>,
    row<SN74AS867>, row<HM62256B>,  row<MC27C64>,   row<IDT7132LA>,  row<MOS6502>,     row<W65C02>,
};

static_assert(kComponentTypes.size() == 42);

}  // namespace

std::span<const ComponentType> componentTypes() {
    return kComponentTypes;
}

const ComponentType* findComponentType(std::string_view type) {
    static const auto byName = [] {
        std::unordered_map<std::string_view, const ComponentType*> map;
        for (const ComponentType& each : kComponentTypes) map.emplace(each.typeName(), &each);
        return map;
    }();
    const auto found = byName.find(type);
    return found == byName.end() ? nullptr : found->second;
}

}  // namespace tarnsim
