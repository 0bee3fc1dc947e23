#include "Core/Simulation/EventQueue.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <random>
#include <set>
#include <utility>

#include "Tests/Core/Simulation/Probe.h"

namespace tarnsim {
namespace {

using Pair = std::pair<std::string, std::uint64_t>;

std::vector<Pair> pairsOf(std::span<const Event> events) {
    std::vector<Pair> pairs;
    for (const Event& event : events) pairs.emplace_back(event.target->getName(), event.tag);
    return pairs;
}

TEST(EventSet, AnEqualPairIsEnteredOnce) {
    Journal journal;
    Probe a("a", nullptr, journal);
    EventSet set;
    set.insert({&a, 1});
    set.insert({&a, 0});
    set.insert({&a, 1});
    set.insert({&a, 1});
    EXPECT_EQ(pairsOf(set.takeAll()), (std::vector<Pair>{{"a", 0}, {"a", 1}}));
}

TEST(EventSet, AnEmptySetGivesNothing) {
    EventSet set;
    EXPECT_TRUE(set.takeAll().empty());
    EXPECT_TRUE(set.takeFresh().empty());
}

TEST(EventSet, TargetsComeInOrderOfCreationWhereverTheyLieInMemory) {
    Journal journal;
    for (const std::array<std::size_t, 3> creation : {std::array<std::size_t, 3>{0, 1, 2}, {2, 1, 0}, {1, 2, 0}}) {
        std::array<std::optional<Probe>, 3> slots;  // ascending addresses
        slots[creation[0]].emplace("first", nullptr, journal);
        slots[creation[1]].emplace("second", nullptr, journal);
        slots[creation[2]].emplace("third", nullptr, journal);
        EventSet set;
        for (auto& slot : slots) set.insert({&*slot, 0});
        EXPECT_EQ(pairsOf(set.takeAll()), (std::vector<Pair>{{"first", 0}, {"second", 0}, {"third", 0}}));
        for (auto& slot : slots) set.insert({&*slot, 7});
        EXPECT_EQ(pairsOf(set.takeFresh()), (std::vector<Pair>{{"first", 7}, {"second", 7}, {"third", 7}}));
    }
}

TEST(EventSet, TheEventsOfOneTargetComeByTagAsAnUnsignedNumber) {
    Journal journal;
    Probe a("a", nullptr, journal);
    constexpr std::uint64_t kLargest = ~std::uint64_t{0};
    EventSet set;
    for (const std::uint64_t tag : {kLargest, std::uint64_t{2}, std::uint64_t{0}, std::uint64_t{1} << 32U}) {
        set.insert({&a, tag});
    }
    EXPECT_EQ(pairsOf(set.takeAll()),
              (std::vector<Pair>{{"a", 0}, {"a", 2}, {"a", std::uint64_t{1} << 32U}, {"a", kLargest}}));
}

TEST(EventSet, FreshAreThoseThatWereEnteredSinceAndNeverTaken) {
    Journal journal;
    Probe a("a", nullptr, journal);
    Probe b("b", nullptr, journal);
    EventSet set;
    set.insert({&b, 0});
    EXPECT_EQ(pairsOf(set.takeAll()), (std::vector<Pair>{{"b", 0}}));
    set.insert({&b, 0});
    set.insert({&b, 1});
    set.insert({&a, 0});
    EXPECT_EQ(pairsOf(set.takeFresh()), (std::vector<Pair>{{"a", 0}, {"b", 1}}));
    set.insert({&a, 0});
    set.insert({&b, 1});
    EXPECT_TRUE(set.takeFresh().empty());
    set.insert({&a, 3});
    EXPECT_EQ(pairsOf(set.takeFresh()), (std::vector<Pair>{{"a", 3}}));
    EXPECT_TRUE(set.takeFresh().empty());
}

TEST(EventSet, WhatWasTakenStaysAndIsAllTakenAgain) {
    Journal journal;
    Probe a("a", nullptr, journal);
    Probe b("b", nullptr, journal);
    EventSet set;
    set.insert({&b, 0});
    set.takeAll();
    set.insert({&a, 0});
    set.takeFresh();
    set.insert({&b, 0});
    EXPECT_EQ(pairsOf(set.takeAll()), (std::vector<Pair>{{"a", 0}, {"b", 0}}));
    set.insert({&a, 0});
    EXPECT_TRUE(set.takeFresh().empty());
}

TEST(EventSet, InsertingDoesntDisturbWhatIsBeingWorkedThrough) {
    Journal journal;
    Probe a("a", nullptr, journal);
    EventSet set;
    set.insert({&a, 1});
    set.insert({&a, 2});
    const auto all = set.takeAll();
    for (std::uint64_t tag = 100; tag < 1100; ++tag) set.insert({&a, tag});
    EXPECT_EQ(pairsOf(all), (std::vector<Pair>{{"a", 1}, {"a", 2}}));
    EXPECT_EQ(set.takeFresh().size(), 1000U);
}

TEST(EventSet, DoesTheSameAsAnOrderedSetOfPairs) {
    Journal journal;
    std::vector<std::unique_ptr<Probe>> targets;
    for (int i = 0; i < 6; ++i) targets.push_back(std::make_unique<Probe>(std::to_string(i), nullptr, journal));
    std::mt19937 random(20240611);
    for (int round = 0; round < 200; ++round) {
        EventSet set;
        std::set<Pair> model;
        std::set<Pair> done;
        for (int pass = 0; pass < 6; ++pass) {
            const bool begins = pass == 0 || random() % 5 == 0;
            for (std::uint32_t i = random() % 8; i > 0; --i) {
                const std::size_t target = random() % targets.size();
                const std::uint64_t tag = random() % 3;
                set.insert({targets[target].get(), tag});
                model.emplace(std::to_string(target), tag);
            }
            std::vector<Pair> expected;
            for (const Pair& pair : model) {
                if (begins || !done.contains(pair)) expected.push_back(pair);
            }
            done = model;
            ASSERT_EQ(pairsOf(begins ? set.takeAll() : set.takeFresh()), expected) << "round " << round;
        }
    }
}

TEST(EventQueue, PointsComeInAscendingOrderOfTimeNegativeOnesFirst) {
    Journal journal;
    Probe a("a", nullptr, journal);
    EventQueue queue;
    for (const Time time : {20, -3, 0, kLatestTime, 7, kEarliestTime, 20}) queue.insert({&a, 0}, time);
    std::vector<Time> times;
    for (const auto& [time, events] : queue.points()) times.push_back(time);
    EXPECT_EQ(times, (std::vector<Time>{kEarliestTime, -3, 0, 7, 20, kLatestTime}));
}

TEST(EventQueue, AWalkFindsThePointsThatAreEnteredAheadOfIt) {
    Journal journal;
    Probe a("a", nullptr, journal);
    EventQueue queue;
    queue.insert({&a, 0}, 10);
    queue.insert({&a, 0}, 30);
    auto walk = queue.points().begin();
    EventSet& first = walk->second;
    for (Time time = 1000; time > 30; --time) queue.insert({&a, 0}, time);
    queue.insert({&a, 0}, 20);
    queue.insert({&a, 0}, 5);
    EXPECT_EQ(first.takeAll().size(), 1U);
    ++walk;
    EXPECT_EQ(walk->first, 20);
    ++walk;
    EXPECT_EQ(walk->first, 30);
}

TEST(EventQueue, NothingIsEverRemoved) {
    Journal journal;
    Probe a("a", nullptr, journal);
    EventQueue queue;
    queue.insert({&a, 0}, 1);
    queue.points().begin()->second.takeAll();
    queue.points().begin()->second.takeFresh();
    EXPECT_EQ(queue.points().size(), 1U);
    EXPECT_EQ(queue.points().at(1).takeAll().size(), 1U);
}

}  // namespace
}  // namespace tarnsim
