#include "Core/Support/Error.h"

#include <exception>
#include <type_traits>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(Error, HoldsTheFormattedMessage) {
    EXPECT_EQ(Error("Error in %s:%d: '%c'", "board.nlx", 12, 'Z').what(), "Error in board.nlx:12: 'Z'");
}

TEST(Error, TakesATextAsItIs) {
    EXPECT_EQ(Error(std::string("100%d of %s")).what(), "100%d of %s");
}

TEST(Error, CutsAFormattedMessageAtTheEndOfItsBuffer) {
    EXPECT_EQ(Error("%s", std::string(2047, 'a').c_str()).what(), std::string(2047, 'a'));
    EXPECT_EQ(Error("%s", std::string(2048, 'a').c_str()).what(), std::string(2047, 'a'));
    EXPECT_EQ(Error("%s|", std::string(9000, 'b').c_str()).what(), std::string(2047, 'b'));
}

TEST(Error, KeepsATextOfAnyLength) {
    EXPECT_EQ(Error(std::string(9000, 'a')).what(), std::string(9000, 'a'));
}

TEST(Error, StandsOutsideTheStandardExceptions) {
    EXPECT_FALSE((std::is_base_of_v<std::exception, Error>));
    EXPECT_FALSE(std::is_polymorphic_v<Error>);
}

}  // namespace
}  // namespace tarnsim
