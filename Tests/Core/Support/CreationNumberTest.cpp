#include "Core/Support/CreationNumber.h"

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(CreationNumber, GrowsWithEachObjectAndIsNever0) {
    const CreationNumber first;
    const CreationNumber second;
    EXPECT_GT(first.value(), 0U);
    EXPECT_EQ(second.value(), first.value() + 1);
}

TEST(CreationNumber, OfACopyIsItsOwn) {
    const CreationNumber first;
    const CreationNumber copy(first);
    EXPECT_EQ(copy.value(), first.value() + 1);
}

TEST(CreationNumber, StaysWhenItIsAssignedTo) {
    const CreationNumber first;
    CreationNumber second;
    const auto value = second.value();
    second = first;
    EXPECT_EQ(second.value(), value);
}

}  // namespace
}  // namespace tarnsim
