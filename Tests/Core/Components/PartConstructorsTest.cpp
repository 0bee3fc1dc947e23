#include <type_traits>

#include "Core/Components/Gates.h"
#include "Core/Components/Memories.h"
#include "Core/Components/Primitives.h"
#include "Core/Components/TtlArithmetic.h"
#include "Core/Components/TtlCounters.h"
#include "Core/Components/TtlDecoders.h"
#include "Core/Components/TtlFlipFlops.h"
#include "Core/Components/TtlGates.h"
#include "Core/Components/TtlRegisters.h"
#include "Core/Support/Text.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// "A4 in, Y out": names, widths and directions of the ports.
std::string portTableOf(const Component& part) {
    std::string table;
    for (const Port* port : part.getPorts()) {
        table += port->getName() + " " + std::to_string(port->width()) +
                 (port->direction() == Direction::Input ? " in, " : " out, ");
    }
    return table;
}

/// The parts that can be made from a name and a delay alone.
template <class Part>
class PartConstructors : public testing::Test {
protected:
    static std::string type() { return std::string(cutChipPrefix(std::string(Part::info.typeName))); }
};

using PartsWithDelay =
    testing::Types<And, Nand, Or, Nor, Xor, Xnor, Inv, D_flip_flop, ThreeStateBuf, DM74LS00, DM74LS04, DM74LS08,
                   DM74LS32, SN74x74, DM74LS78A, DM74LS125, DM74LS137, DM74LS139, DM74LS154, SN74x174, DM74LS191,
                   DM74LS244, SN74x273, DM74LS283, DM74LS374, DM74x574, SN74x688, SN74AS867, HM62256B, MC27C64>;
TYPED_TEST_SUITE(PartConstructors, PartsWithDelay);

TYPED_TEST(PartConstructors, FromADelayMakeAPartWithThatDelayAndNoParameters) {
    const TypeParam part("u5", 42U);
    EXPECT_EQ(part.getName(), "u5");
    EXPECT_EQ(part.getType(), this->type());
    EXPECT_EQ(part.getParent(), nullptr);
    EXPECT_EQ(part.getDelay(), 42U);
    EXPECT_EQ(part.getInstanceText(), "u5");
}

TYPED_TEST(PartConstructors, FromParametersMakeAPartThatKeepsThem) {
    const TypeParam part("u5", ParaMap("(colour=red,delay=42)"));
    EXPECT_EQ(part.getName(), "u5");
    EXPECT_EQ(part.getType(), this->type());
    EXPECT_EQ(part.getParent(), nullptr);
    EXPECT_EQ(part.getDelay(), (std::is_same_v<TypeParam, SN74x273> ? 27U : 42U));  // which is made in one speed
    EXPECT_EQ(part.getInstanceText(), "u5(colour=red,delay=42)");
}

TYPED_TEST(PartConstructors, MakeTheSamePorts) {
    EXPECT_EQ(portTableOf(TypeParam("u", 42U)), portTableOf(TypeParam("u", ParaMap("(delay=42)"))));
    EXPECT_NE(portTableOf(TypeParam("u", 42U)), "");
}

TYPED_TEST(PartConstructors, MakeNoCopies) {
    EXPECT_FALSE(std::is_copy_constructible_v<TypeParam>);  // a copy would work the pins of its source
    EXPECT_FALSE(std::is_copy_assignable_v<TypeParam>);
}

TYPED_TEST(PartConstructors, TheDelayCanBeSetLater) {
    TypeParam part("u", 42U);
    part.setDelay(7);
    EXPECT_EQ(part.getDelay(), 7U);
}

}  // namespace
}  // namespace tarnsim
