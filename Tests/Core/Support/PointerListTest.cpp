#include "Core/Support/PointerList.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

namespace tarnsim {
namespace {

std::vector<int*> itemsOf(const PointerList<int>& list) {
    return {list.items().begin(), list.items().end()};
}

TEST(PointerList, KeepsItsItemsWhereTheyWerePut) {
    std::array<int, 3> x{};
    PointerList<int> list;
    EXPECT_TRUE(list.empty());
    EXPECT_TRUE(itemsOf(list).empty());
    list.insert(0, &x[1]);
    EXPECT_FALSE(list.empty());
    EXPECT_EQ(itemsOf(list), (std::vector<int*>{&x[1]}));
    list.insert(0, &x[0]);
    list.insert(2, &x[2]);
    EXPECT_EQ(itemsOf(list), (std::vector<int*>{&x[0], &x[1], &x[2]}));
    EXPECT_FALSE(list.empty());
}

TEST(PointerList, RemovesEveryOccurrenceAndNothingElse) {
    std::array<int, 2> x{};
    PointerList<int> list;
    list.remove(&x[0]);
    for (int* each : {&x[0], &x[1], &x[0]}) list.insert(list.items().size(), each);
    list.remove(&x[0]);
    EXPECT_EQ(itemsOf(list), (std::vector<int*>{&x[1]}));
    list.remove(&x[0]);
    EXPECT_EQ(itemsOf(list), (std::vector<int*>{&x[1]}));
    list.remove(&x[1]);
    EXPECT_TRUE(list.empty());
    for (int i = 0; i < 2; ++i) list.insert(0, &x[0]);
    list.remove(&x[0]);
    EXPECT_TRUE(list.empty()) << "all of several may go at once";
}

TEST(PointerList, DoesWhatAVectorDoes) {
    std::mt19937 random(1);
    std::array<int, 4> x{};
    PointerList<int> list;
    std::vector<int*> model;
    for (int step = 0; step < 2000; ++step) {
        int* item = &x[random() % x.size()];
        if (random() % 2 == 0) {
            list.remove(item);
            std::erase(model, item);
        } else {
            const std::size_t place = random() % (model.size() + 1);
            list.insert(place, item);
            model.insert(model.begin() + static_cast<std::ptrdiff_t>(place), item);
        }
        ASSERT_EQ(itemsOf(list), model);
        ASSERT_EQ(list.empty(), model.empty());
    }
}

}  // namespace
}  // namespace tarnsim
