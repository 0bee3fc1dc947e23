#include "Core/Values/Time.h"

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(Time, IsSignedAndHas32Bits) {
    EXPECT_EQ(kEarliestTime, -2147483647 - 1);
    EXPECT_EQ(kLatestTime, 2147483647);
}

TEST(Time, IsAddedToWithoutAWrap) {
    EXPECT_EQ(later(10, 5), 15);
    EXPECT_EQ(later(kLatestTime, 1), 2147483648);
    EXPECT_EQ(later(-1, 4294967295), 4294967294);
}

TEST(Time, ComesBackByTheDelayThatWasAdded) {
    EXPECT_EQ(earlier(15, 5), 10);
    EXPECT_EQ(earlier(0, 1), -1);
    EXPECT_EQ(earlier(5, 0), 5);
}

TEST(Time, BeforeTheEarliestTimeThereIsOnlyTheEarliest) {
    EXPECT_EQ(earlier(0, 2147483648U), kEarliestTime);
    EXPECT_EQ(earlier(0, 2147483649U), kEarliestTime);
    EXPECT_EQ(earlier(100, 4294967295U), kEarliestTime);
    EXPECT_EQ(earlier(kEarliestTime, 1), kEarliestTime);
    EXPECT_EQ(earlier(kLatestTime, 4294967295U), kEarliestTime);
    EXPECT_EQ(earlier(kLatestTime, 4294967294U), kEarliestTime + 1);
}

}  // namespace
}  // namespace tarnsim
