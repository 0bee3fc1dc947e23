#include "Core/Simulation/DriveStatus.h"

#include <string>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

constexpr const char* kTooManyDrivers = "*** ERROR: Maximum size of a a network is reached. Max 255 ports per net.";

PinDriveStatus statusOf(const std::string& letters) {
    PinDriveStatus status;
    for (const char letter : letters) status.add(letter);
    return status;
}

TEST(PinDriveStatus, TheStateOfABitFollowsFromItsDrivers) {
    const struct {
        std::string drivers;
        char state;
    } cases[] = {
        {"", 'Z'},    {"Z", 'Z'},    {"ZZZ", 'Z'},                                // no active driver
        {"H", 'H'},   {"L", 'L'},    {"U", 'U'},   {"X", 'U'},                    // one
        {"HZ", 'H'},  {"ZL", 'L'},   {"ZUZ", 'U'}, {"ZX", 'U'}, {"ZZZHZZ", 'H'},  // one among idle ones
        {"HH", 'U'},  {"LL", 'U'},   {"HL", 'U'},  {"HU", 'U'}, {"XX", 'U'},      // contention
        {"HZH", 'U'}, {"LZZX", 'U'}, {"HHL", 'U'},
    };
    for (const auto& each : cases) EXPECT_EQ(statusOf(each.drivers).state(), each.state) << each.drivers;
}

TEST(PinDriveStatus, TwoStatusesAddUpToThatOfAllDrivers) {
    const std::string drivers[] = {"", "Z", "H", "L", "U", "X", "HZ", "LL", "ZZ"};
    for (const std::string& a : drivers) {
        for (const std::string& b : drivers) {
            PinDriveStatus sum = statusOf(a);
            sum.add(statusOf(b));
            EXPECT_EQ(sum.state(), statusOf(a + b).state()) << a << " + " << b;
        }
    }
}

TEST(PinDriveStatus, TheDriver256IsRefusedAtWhateverLevel) {
    for (const char letter : {'L', 'H', 'Z', 'U', 'X'}) {
        PinDriveStatus status = statusOf(std::string(254, 'Z'));
        EXPECT_EQ(errorOf([&] { status.add('H'); }), "(no Error)");
        EXPECT_EQ(status.state(), 'H');
        EXPECT_EQ(errorOf([&] { status.add(letter); }), kTooManyDrivers) << letter;
        EXPECT_EQ(status.state(), 'H');
    }
}

TEST(PinDriveStatus, ASumOfMoreThan255DriversIsRefused) {
    PinDriveStatus status = statusOf(std::string(127, 'Z'));
    EXPECT_EQ(errorOf([&] { status.add(statusOf(std::string(128, 'Z'))); }), "(no Error)");
    EXPECT_EQ(status.state(), 'Z');
    EXPECT_EQ(errorOf([&] { status.add(statusOf("")); }), "(no Error)");
    EXPECT_EQ(errorOf([&] { status.add(statusOf("Z")); }), kTooManyDrivers);
}

TEST(PortDriveStatus, EachBitHasItsOwnStatus) {
    PortDriveStatus status(5);
    EXPECT_EQ(status.width(), 5U);
    EXPECT_EQ(status.toValue(), "ZZZZZ");
    status.add(Value("HLZUX"));
    EXPECT_EQ(status.toValue(), "HLZUU");
    status.add(Value("ZZHZL"));
    EXPECT_EQ(status.toValue(), "HLHUU");
    status.add(Value("HZZZZ"));
    EXPECT_EQ(status.toValue(), "ULHUU");
}

TEST(PortDriveStatus, WidthsInsideAndOutsideTheObjectBehaveAlike) {
    for (const std::uint32_t width : {0U, 1U, 7U, 8U, 9U, 64U, 255U}) {
        std::string expected;
        for (std::uint32_t i = 0; i < width; ++i) expected += "HLZU"[i % 4];
        PortDriveStatus status(width);
        EXPECT_EQ(status.toValue(), std::string(width, 'Z')) << width;
        status.add(Value(expected));
        EXPECT_EQ(status.toValue(), expected) << width;
    }
}

TEST(PortDriveStatus, TwoStatusesAddUpBitByBit) {
    for (const std::uint32_t repeat : {1U, 5U}) {  // 4 bits and 20
        std::string a;
        std::string b;
        std::string sum;
        for (std::uint32_t i = 0; i < repeat; ++i) {
            a += "HZZL";
            b += "ZZLL";
            sum += "HZLU";
        }
        PortDriveStatus status(4 * repeat);
        PortDriveStatus other(4 * repeat);
        status.add(Value(a));
        other.add(Value(b));
        status.add(other);
        EXPECT_EQ(status.toValue(), sum);
        EXPECT_EQ(other.toValue(), b);
    }
}

TEST(PortDriveStatus, AValueOfAnotherWidthIsRefused) {
    PortDriveStatus status(4);
    EXPECT_EQ(errorOf([&] { status.add(Value("HH")); }),
              "*** ERROR: mismatch between Port and PortDriveStatus sizes; 2 vs 4");
    EXPECT_EQ(errorOf([&] { status.add(Value("HHHHHHHHH")); }),
              "*** ERROR: mismatch between Port and PortDriveStatus sizes; 9 vs 4");
    EXPECT_EQ(status.toValue(), "ZZZZ");
}

TEST(PortDriveStatus, AStatusOfAnotherWidthIsRefused) {
    PortDriveStatus status(4);
    EXPECT_EQ(errorOf([&] { status.add(PortDriveStatus(9)); }),
              "*** ERROR: mismatch between PortDriveStatus sizes; 9 vs 4");
    PortDriveStatus wide(16);
    EXPECT_EQ(errorOf([&] { wide.add(status); }), "*** ERROR: mismatch between PortDriveStatus sizes; 4 vs 16");
    EXPECT_EQ(wide.toValue(), std::string(16, 'Z'));
}

TEST(PortDriveStatus, TheDriver256OfABitIsRefused) {
    PortDriveStatus status(2);
    for (int i = 0; i < 255; ++i) status.add(Value("ZZ"));
    EXPECT_EQ(errorOf([&] { status.add(Value("ZZ")); }), kTooManyDrivers);
    PortDriveStatus one(2);
    one.add(Value("ZZ"));
    EXPECT_EQ(errorOf([&] { one.add(status); }), kTooManyDrivers);
}

}  // namespace
}  // namespace tarnsim
