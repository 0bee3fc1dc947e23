#include <filesystem>
#include <set>

#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"
#include "Tests/Core/Components/CPUs/CoreBench.h"
#include "Tests/Core/Components/CPUs/ProcessorCases.h"

namespace tarnsim {
namespace {

/// Beside the checkout.
std::string casesFile(const std::string& name) {
    auto top = std::filesystem::path(__FILE__);
    for (int i = 0; i < 5; ++i) top = top.parent_path();
    return (top.parent_path() / "shared" / "cpu-vectors" / name).string();
}

template <class Bench>
std::string text(const Bench& bench) {
    std::string result;
    for (const auto& each : bench.bus)
        result += format(" %04x:%02x%c", each.address, each.data, each.isRead ? 'r' : 'w');
    return result;
}
std::string text(const ProcessorCase& each) {
    std::string result;
    for (const auto& cycle : each.bus) {
        result += format(" %04x:%02x%c", cycle.address, cycle.data, cycle.isRead ? 'r' : 'w');
    }
    return result;
}
std::string registers(unsigned pc, unsigned s, unsigned a, unsigned x, unsigned y, unsigned p) {
    // The two bits that aren't flags of the chip aren't compared.
    return format("pc=%04x s=%02x a=%02x x=%02x y=%02x p=%02x", pc, s, a, x, y, p & ~0x30U);
}

/// Runs the case and returns what differs, empty if nothing does.
template <class Core, class Descriptor>
std::string difference(const ProcessorCase& each) {
    CoreBench<Core, Descriptor> bench;
    bench.standAt(each.before.pc);
    auto& core = bench.core;
    core.s = each.before.s;
    core.a = each.before.a;
    core.x = each.before.x;
    core.y = each.before.y;
    core.p = static_cast<std::uint8_t>((each.before.p & 0xCFU) | 0x10U);  // as after a reset
    for (const auto& cell : each.before.memory) bench.memory[cell.address] = cell.value;

    for (std::size_t i = 0; i < each.bus.size(); ++i) bench.tick();

    const std::string ended = (bench.pins & CyclePin::kSync) != 0 ? "" : " not at its end";
    const std::string got = registers(bench.address(), core.s, core.a, core.x, core.y, core.p) + text(bench) + ended;
    const auto& after = each.after;
    const std::string expected = registers(after.pc, after.s, after.a, after.x, after.y, after.p) + text(each);
    std::string result = got == expected ? "" : each.name + "\n expected " + expected + "\n got      " + got + "\n";
    for (const auto& cell : each.after.memory) {
        if (bench.memory[cell.address] != cell.value) result += each.name + format(" memory %04x\n", cell.address);
    }
    return result;
}

/// All cases but those that `isLeftOut` names; `count` are left.
template <class Core, class Descriptor, class LeftOut>
void compareAll(const std::string& file, std::size_t count, LeftOut isLeftOut) {
    const std::string path = casesFile(file);
    if (!std::filesystem::exists(path)) GTEST_SKIP() << "no cases at " << path;
    std::size_t compared = 0;
    std::string differences;
    for (const ProcessorCase& each : ProcessorCases(path).read()) {
        if (isLeftOut(each)) continue;
        ++compared;
        if (differences.size() < 3000) differences += difference<Core, Descriptor>(each);
    }
    EXPECT_EQ(compared, count);
    EXPECT_EQ(differences, "");
}

TEST(ProcessorCases, TheNmosCoreAgreesWithARealProcessorInEveryBusCycle) {
    const std::set<int> jams = {0x02, 0x12, 0x22, 0x32, 0x42, 0x52, 0x62, 0x72, 0x92, 0xB2, 0xD2, 0xF2};
    const std::set<int> indexedNops = {0x1C, 0x3C, 0x5C, 0x7C, 0xDC, 0xFC};
    compareAll<m6502, m6502Descriptor>("6502.bin", 7681, [&](const ProcessorCase& each) {
        // A jammed core shows all address and data lines high at once; the recorded chip goes on over the vectors
        // first.
        if (jams.contains(each.opcode())) return true;
        // The recorded cases of these lack the read of the operand that the published count has; over a page, of the
        // indexed ones.
        if (each.opcode() == 0x0C) return true;
        const bool isOverAPage = (each.bus.at(1).data + each.before.x) > 0xFF;
        return indexedNops.contains(each.opcode()) && isOverAPage;
    });
}

TEST(ProcessorCases, TheCmosCoreAgreesWithARealProcessorInEveryBusCycle) {
    compareAll<w65c02, w65c02Descriptor>("wdc65c02.bin", 8096, [](const ProcessorCase& each) {
        return each.opcode() == 0x5C;  // eight cycles here, by its data sheet; four in the recorded cases
    });
}

}  // namespace
}  // namespace tarnsim
