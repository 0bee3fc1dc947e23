#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>
#include <type_traits>

#include "Core/Components/CPUs/MOS6502/m6502.h"
#include "Core/Components/CPUs/W65C02/w65c02.h"
#include "Tests/Core/Components/CPUs/GoldenPage.h"

namespace tarnsim {
namespace {

// A record can be copied and thrown away as it is, and owns nothing.
static_assert(std::is_trivially_copyable_v<m6502> && std::is_trivially_destructible_v<m6502>);
static_assert(std::is_trivially_copyable_v<w65c02> && std::is_trivially_destructible_v<w65c02>);

template <class T, auto... fields>
constexpr bool kAreAll = (std::is_same_v<std::remove_cvref_t<decltype(std::declval<m6502>().*fields)>, T> && ...);
static_assert(kAreAll<std::uint16_t, &m6502::ir, &m6502::pc, &m6502::ad, &m6502::irqPipeline, &m6502::nmiPipeline>);
static_assert(
    kAreAll<std::uint8_t, &m6502::a, &m6502::x, &m6502::y, &m6502::s, &m6502::p, &m6502::brkFlags, &m6502::bcdEnabled>);
static_assert(kAreAll<std::uint8_t, &m6502::ioDdr, &m6502::ioInput, &m6502::ioOutput, &m6502::ioPins, &m6502::ioPullup,
                      &m6502::ioFloating, &m6502::ioDrive>);
static_assert(kAreAll<std::uint64_t, &m6502::pins>);

/// Whether the fields lie in memory in this order.
template <class Core, class... Fields>
void expectInOrder(const Core& core, const Fields&... fields) {
    const std::vector<const char*> places = {reinterpret_cast<const char*>(&fields)...};
    EXPECT_EQ(places.front(), reinterpret_cast<const char*>(&core));
    for (std::size_t i = 1; i < places.size(); ++i) EXPECT_LT(places[i - 1], places[i]) << "field " << i;
}

TEST(CoreRecords, HaveTheirFieldsInTheDocumentedOrder) {
    const m6502 n{};
    expectInOrder(n, n.ir, n.pc, n.ad, n.a, n.x, n.y, n.s, n.p, n.pins, n.irqPipeline, n.nmiPipeline, n.brkFlags,
                  n.bcdEnabled, n.userData, n.in_cb, n.out_cb, n.ioDdr, n.ioInput, n.ioOutput, n.ioPins, n.ioPullup,
                  n.ioFloating, n.ioDrive);
    const w65c02 c{};
    expectInOrder(c, c.ir, c.pc, c.ad, c.a, c.x, c.y, c.s, c.p, c.pins, c.irqPipeline, c.nmiPipeline, c.brkFlags,
                  c.bcdEnabled, c.waiting, c.stopped);
    const m6502Descriptor d{};
    expectInOrder(d, d.bcd_disabled, d.in_cb, d.out_cb, d.userData, d.ioPullup, d.ioFloating);
}

TEST(CoreRecords, ACopyOfARecordRunsOnByItself) {
    const m6502Descriptor descriptor;
    m6502 first{};
    std::uint64_t pins = initialise(&first, &descriptor);
    for (int i = 0; i < 9; ++i) pins = tick(&first, pins);
    m6502 second = first;
    std::uint64_t others = pins;
    for (int i = 0; i < 50; ++i) {
        pins = tick(&first, pins);
        others = tick(&second, others);
        EXPECT_EQ(pins, others);
        EXPECT_EQ(first.ir, second.ir);
    }
}

TEST(CoreRecords, BcdIsDisabledByTheDescriptor) {
    m6502 nmos{};
    const m6502Descriptor nmosDescriptor{.bcd_disabled = true};
    initialise(&nmos, &nmosDescriptor);
    EXPECT_EQ(nmos.bcdEnabled, 0);
    w65c02 cmos{};
    const w65c02Descriptor cmosDescriptor{.bcd_disabled = true};
    initialise(&cmos, &cmosDescriptor);
    EXPECT_EQ(cmos.bcdEnabled, 0);
    EXPECT_EQ(cmos.waiting | cmos.stopped, 0);
}

// What a wrong use of a core ends with: the place in its header and the condition, in every build.

constexpr const char* kNmosHeader = "Core/Components/CPUs/MOS6502/m6502\\.h:[0-9]+:.*";
constexpr const char* kCmosHeader = "Core/Components/CPUs/W65C02/w65c02\\.h:[0-9]+:.*";

void expectAbort(const std::function<void()>& call, const std::string& message) {
    EXPECT_EXIT(call(), testing::KilledBySignal(SIGABRT), message);
}

TEST(CoreRecordsDeathTest, InitialiseNeedsBothPointers) {
    m6502 nmos{};
    const m6502Descriptor nmosDescriptor;
    w65c02 cmos{};
    const w65c02Descriptor cmosDescriptor;
    const std::string condition = "c && desc";
    expectAbort([&] { initialise(&nmos, nullptr); }, kNmosHeader + condition);
    expectAbort([&] { initialise(static_cast<m6502*>(nullptr), &nmosDescriptor); }, kNmosHeader + condition);
    expectAbort([&] { initialise(&cmos, nullptr); }, kCmosHeader + condition);
    expectAbort([&] { initialise(static_cast<w65c02*>(nullptr), &cmosDescriptor); }, kCmosHeader + condition);
}

TEST(CoreRecordsDeathTest, ThePortNeedsBothCallbacks) {
    const std::string message = std::string(kNmosHeader) + "c->in_cb && c->out_cb";
    m6502 core{};
    const m6502Descriptor in{.in_cb = [](void*) { return std::uint8_t{0}; }};
    initialise(&core, &in);
    expectAbort([&] { requestIo(&core, CyclePin::kRW); }, message);
    const m6502Descriptor out{.out_cb = [](std::uint8_t, void*) {}};
    initialise(&core, &out);
    expectAbort([&] { requestIo(&core, 0); }, message);
}

/// A core whose next step is `ir`, outside of an opcode fetch.
template <class Core, class Descriptor>
void tickAt(unsigned ir) {
    Core core{};
    const Descriptor descriptor;
    initialise(&core, &descriptor);
    core.ir = static_cast<std::uint16_t>(ir);
    tick(&core, CyclePin::kRW);
}

/// Steps behind the last one of some opcodes, and instruction registers outside of the table.
template <class Core, class Descriptor>
void expectUnreachable(const std::string& page, const std::string& header) {
    const auto expectAbortAt = [&](unsigned ir) {
        expectAbort([&] { tickAt<Core, Descriptor>(ir); }, header + "false");
    };
    for (const unsigned ir : {0x800U, 0x801U, 0xFFFFU}) expectAbortAt(ir);
    const std::vector<PageLine> lines = readPage(__FILE__, page);
    for (std::size_t i = 0; i < lines.size(); i += 11) {
        // An instruction that never ends stays in its second step.
        const std::size_t steps = lines[i].neverEnds() ? 2 : lines[i].trace.size();
        const auto first = static_cast<unsigned>(lines[i].opcode * 8);
        tickAt<Core, Descriptor>(first + static_cast<unsigned>(steps) - 1);
        if (steps < 8) expectAbortAt(first + static_cast<unsigned>(steps));
        if (steps < 7) expectAbortAt(first + 7);
    }
}

TEST(CoreRecordsDeathTest, StepsThatNoInstructionHasAreUnreachable) {
    expectUnreachable<m6502, m6502Descriptor>("m6502.txt", kNmosHeader);
    expectUnreachable<w65c02, w65c02Descriptor>("w65c02.txt", kCmosHeader);
}

/// The project's headers that a file includes, itself and in turn.
void collectIncludes(const std::filesystem::path& top, const std::string& file, std::set<std::string>& seen) {
    if (!seen.insert(file).second) return;
    std::ifstream stream(top / file);
    EXPECT_TRUE(stream.is_open()) << file;
    const std::string include = "#include \"";
    for (std::string line; std::getline(stream, line);) {
        if (!line.starts_with(include)) continue;
        collectIncludes(top, line.substr(include.size(), line.rfind('"') - include.size()), seen);
    }
}

TEST(CoreRecords, TheCoresIncludeNothingFromOutsideTheirFolder) {
    std::filesystem::path top = __FILE__;
    for (int i = 0; i < 5; ++i) top = top.parent_path();
    std::set<std::string> files;
    for (const char* core : {"MOS6502/m6502", "W65C02/w65c02"}) {
        for (const char* extension : {".h", ".cpp"}) {
            collectIncludes(top, std::string("Core/Components/CPUs/") + core + extension, files);
        }
    }
    EXPECT_GE(files.size(), 5U);
    for (const std::string& file : files) EXPECT_TRUE(file.starts_with("Core/Components/CPUs/")) << file;
}

}  // namespace
}  // namespace tarnsim
