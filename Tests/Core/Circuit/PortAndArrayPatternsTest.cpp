#include <random>
#include <regex>

#include "Core/Circuit/NamePatterns.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// Texts of a few characters that stand in the patterns, or just outside.
class RandomTexts {
public:
    explicit RandomTexts(std::string alphabet) : alphabet_(std::move(alphabet)) {}

    std::string next() {
        std::string text(length_(random_), ' ');
        for (char& c : text)
            c = alphabet_[std::uniform_int_distribution<std::size_t>(0, alphabet_.size() - 1)(random_)];
        return text;
    }

private:
    std::string alphabet_;
    std::mt19937 random_{20240607};
    std::uniform_int_distribution<std::size_t> length_{0, 7};
};

constexpr int kTexts = 20000;

TEST(PortText, IsSplitAsTheWholeTextMatchOfItsPattern) {
    const std::regex pattern(R"(([a-zA-Z0-9=<>\[\]_]+)([(][a-zA-Z0-9=.+-/#%,:]+[)])?)");
    RandomTexts texts("aZ9=<>[]_(().+-/#%,:;$ *)");
    int matched = 0;
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = texts.next();
        std::smatch expected;
        const bool matches = std::regex_match(text, expected, pattern);
        const auto found = matchPortText(text);
        ASSERT_EQ(found.has_value(), matches) << text;
        if (!matches) continue;
        ++matched;
        EXPECT_EQ(found->name, expected.str(1)) << text;
        EXPECT_EQ(found->list, expected.str(2)) << text;
    }
    EXPECT_GT(matched, 500);
}

TEST(ArrayName, IsSplitAsTheWholeTextMatchOfItsPattern) {
    const std::regex pattern(R"(([a-zA-Z0-9_(),]+)\[([0-9]+)\])");
    RandomTexts names("a9(,)_-=[");
    RandomTexts counts("0123456789]a");
    int matched = 0;
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = names.next() + (i % 8 == 0 ? "" : "[") + counts.next() + "]";
        std::smatch expected;
        const bool matches = std::regex_match(text, expected, pattern);
        const auto found = matchArrayName(text);
        ASSERT_EQ(found.has_value(), matches) << text;
        if (!matches) continue;
        ++matched;
        EXPECT_EQ(found->prefix, expected.str(1)) << text;
        EXPECT_EQ(found->count, expected.str(2)) << text;
    }
    EXPECT_GT(matched, 500);
}

TEST(PortText, IsReadAtAnyLength) {
    const std::string name(1'000'000, 'a');
    const std::string text = name + "(ztr=off)";
    const auto found = matchPortText(text);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, name);
    EXPECT_EQ(found->list, "(ztr=off)");
}

TEST(ArrayName, IsReadAtAnyLength) {
    const std::string prefix(1'000'000, 'a');
    const std::string text = prefix + "[12]";
    const auto found = matchArrayName(text);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->prefix, prefix);
    EXPECT_EQ(found->count, "12");
}

}  // namespace
}  // namespace tarnsim
