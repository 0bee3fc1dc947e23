#include "Core/Components/DualPortRam.h"
#include "Core/Components/Memories.h"
#include "Core/Simulation/EventSimulator.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

/// When each of the three memories loads: the tests are the same for all.
template <class Memory>
class MemoryLoading : public testing::Test {
protected:
    MemoryLoading() { here_.write("rom", "A"); }

    static std::string loaded(const std::string& path = "rom") {
        return "Loaded 1 bytes from file '" + path + "' into address 0x0000 in 'u'.\n";
    }
    static std::string missing(const std::string& path) {
        return "*** Error: Memory component " + std::string(Memory::info.typeName) +
               " cannot find the specified file '" + path + "'.\n";
    }

    const Workplace here_;
    Circuit board_{"board", nullptr};
    Memory memory_{"u", ParaMap("(rawfile=rom)")};
    const std::string a_ = "LHLLLLLH";
    const std::string undefined_ = "UUUUUUUU";
};

using Memories = testing::Types<MC27C64, HM62256B, IDT7132LA>;
TYPED_TEST_SUITE(MemoryLoading, Memories);

TYPED_TEST(MemoryLoading, DoesNotTakePlaceWithoutACircuit) {
    auto& memory = this->memory_;
    const Streams streams = streamsOf([&] {
        const TypeParam another("u", ParaMap("(rawfile=nothing)"));
        memory.onLoaded(nullptr);
        memory.start(1000);
        memory.applyParameters();
        memory.setParameters(ParaMap("(cbmfile=nothing,rawfile=rom)"));
    });
    EXPECT_EQ(streams.output + streams.error, "");
    EXPECT_EQ(memory.read(0, 0), this->undefined_);
}

TYPED_TEST(MemoryLoading, TakesPlaceForTheCircuitThatIsLoadedWithoutBeingItsParent) {
    auto& memory = this->memory_;
    EXPECT_EQ(outputOf([&] { memory.onLoaded(&this->board_); }), this->loaded());
    EXPECT_EQ(memory.read(0, 0), this->a_);
    EXPECT_EQ(memory.getParent(), nullptr);
    EXPECT_EQ(outputOf([&] { memory.start(1000); }), "") << "has no parent";
}

TYPED_TEST(MemoryLoading, LooksBesideTheCircuitThatIsLoadedThenBesideTheParent) {
    auto& memory = this->memory_;
    this->here_.write("one/rom", "1");
    this->here_.write("two/rom", "2");
    Circuit one("one", nullptr);
    Circuit two("two", nullptr);
    one.setFilePath("one/board.nlx");
    two.setFilePath("two/board.nlx");
    memory.setParent(&two);
    EXPECT_EQ(outputOf([&] { memory.onLoaded(&one); }), this->loaded("one/rom"));
    EXPECT_EQ(memory.read(0, 0), "LLHHLLLH");
    EXPECT_EQ(outputOf([&] { memory.start(1000); }), this->loaded("two/rom"));
    EXPECT_EQ(memory.read(0, 0), "LLHHLLHL");
    memory.setParent(nullptr);
}

TYPED_TEST(MemoryLoading, TakesPlaceAtEachStartAndEachTimeThatParametersAreApplied) {
    auto& memory = this->memory_;
    memory.setParent(&this->board_);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(outputOf([&] { memory.start(1000); }), this->loaded());
        EXPECT_EQ(outputOf([&] { memory.applyParameters(); }), this->loaded());
        EXPECT_EQ(outputOf([&] { memory.setParameters(ParaMap("(rawfile=rom,delay=3)")); }), this->loaded());
    }
    EXPECT_EQ(errorOutputOf([&] { memory.setParameters(ParaMap("(rawfile=gone)")); }), this->missing("gone"));
    EXPECT_EQ(memory.read(0, 0), this->a_) << "what isn't found leaves the memory as it was";
    EXPECT_EQ(outputOf([&] { memory.setParameters(ParaMap()); }), "");
    memory.setParent(nullptr);
}

TYPED_TEST(MemoryLoading, OverwritesWhatItReachesAndLeavesTheRest) {
    auto& memory = this->memory_;
    memory.setParent(&this->board_);
    memory.write(Value("HHHHHHHH"), 0, 0);
    memory.write(Value("HHHHHHHH"), 1, 0);
    outputOf([&] { memory.start(1000); });
    EXPECT_EQ(memory.read(0, 0), this->a_);
    EXPECT_EQ(memory.read(1, 0), "HHHHHHHH");
    memory.setParent(nullptr);
}

TYPED_TEST(MemoryLoading, DoesNotTakePlaceAtAReset) {
    auto& memory = this->memory_;
    memory.setParent(&this->board_);
    outputOf([&] { memory.start(1000); });
    EXPECT_EQ(outputOf([&] { memory.reset(); }), "");
    EXPECT_EQ(memory.read(0, 0), this->undefined_) << "the image comes back by the start";
    EXPECT_EQ(outputOf([&] { memory.start(1000); }), this->loaded());
    EXPECT_EQ(memory.read(0, 0), this->a_);
    memory.setParent(nullptr);
}

TYPED_TEST(MemoryLoading, TakesPlaceForUnitsOfCircuitsAndOfDeclarations) {
    const std::string type = this->memory_.getType();
    this->here_.write(
        "board.nlx", "Circuit X {\nUnit " + type + " u(rawfile=rom)\n}\nUnit X x1\nUnit " + type + " u(rawfile=rom)\n");
    std::unique_ptr<Circuit> board;
    // A declaration in braces isn't loaded itself: only units of the top circuit hear of it, those of x1 through it.
    EXPECT_EQ(outputOf([&] { board = CircuitFileReader().load("board.nlx"); }), this->loaded() + this->loaded());
    EventSimulator simulator(board.get());
    EXPECT_EQ(outputOf([&] { simulator.prepare(1000); }), this->loaded() + this->loaded() + this->loaded());
}

TYPED_TEST(MemoryLoading, OfAFileThatDoesNotFitEndsAtTheLastWord) {
    auto& memory = this->memory_;
    const std::uint32_t size = memory.getSize();
    this->here_.write("rom", std::string(size + 2, 'A'));
    memory.setParent(&this->board_);
    std::string output;
    std::string raised;
    const std::string error = errorOutputOf([&] {
        output = outputOf([&] { raised = standardExceptionOf<std::out_of_range>([&] { memory.start(1000); }); });
    });
    if (std::is_same_v<TypeParam, MC27C64>) {
        EXPECT_EQ(raised, "(none)");
        EXPECT_EQ(output, "Loaded 8192 bytes from file 'rom' into address 0x0000 in 'u'.\n");
        EXPECT_EQ(error,
                  "*** WARNING: file 'rom' runs past the end of memory 'u': it is refused from address 0x2000 on.\n");
    } else {
        EXPECT_NE(raised, "(none)");
        EXPECT_EQ(output + error, "");
    }
    EXPECT_EQ(memory.read(0, 0), this->a_);
    EXPECT_EQ(memory.read(size - 1, 0), this->a_);
    memory.setParent(nullptr);
}

TYPED_TEST(MemoryLoading, IsAtTime0) {
    auto& memory = this->memory_;
    memory.setParent(&this->board_);
    outputOf([&] { memory.start(1000); });
    EXPECT_EQ(memory.read(0, -1), (std::is_same_v<TypeParam, MC27C64> ? this->a_ : this->undefined_));
    EXPECT_EQ(memory.read(0, 0), this->a_);
    memory.setParent(nullptr);
}

TEST(MemoryDelay, IsReadWhereverImagesAreLoadedAlsoWithoutACircuit) {
    MC27C64 eprom("u", ParaMap("(delay=12)"));
    HM62256B ram("u", ParaMap("(delay=12)"));
    const std::vector<std::function<void(SingleDelayComponent&)>> readings = {
        [](auto& memory) { memory.onLoaded(nullptr); },
        [](auto& memory) { memory.start(100); },
        [](auto& memory) { memory.applyParameters(); },
    };
    for (SingleDelayComponent* memory :
         {static_cast<SingleDelayComponent*>(&eprom), static_cast<SingleDelayComponent*>(&ram)}) {
        EXPECT_EQ(memory->getDelay(), 12U);
        for (const auto& read : readings) {
            memory->setDelay(99);
            read(*memory);
            EXPECT_EQ(memory->getDelay(), 12U) << memory->getType();
        }
        memory->setParameters(ParaMap());
        EXPECT_EQ(memory->getDelay(), 12U) << "an absent delay leaves it as it is";
    }
}

}  // namespace
}  // namespace tarnsim
