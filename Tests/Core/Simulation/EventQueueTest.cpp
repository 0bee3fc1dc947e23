#include "Core/Simulation/EventQueue.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>

#include "Tests/Core/Simulation/Probe.h"

namespace tarnsim {
namespace {

using Pair = std::pair<std::string, std::uint64_t>;
using Pairs = std::vector<Pair>;

class EventsOfProbes : public testing::Test {
protected:
    Journal journal;
    Probe a{"a", nullptr, journal};
    Probe b{"b", nullptr, journal};
    EventDirectory directory;

    EventNumber number(Probe& target, std::uint64_t tag = 0) { return directory.numberOf({&target, tag}); }
    Pairs pairsOf(std::span<const EventNumber> pass) const {
        Pairs pairs;
        for (const EventNumber each : pass) pairs.emplace_back(directory[each].target->getName(), directory[each].tag);
        return pairs;
    }
};

class EventDirectoryTest : public EventsOfProbes {};

TEST_F(EventDirectoryTest, GivesAnEventTheSameNumberAlways) {
    const EventNumber plain = number(a);
    const EventNumber tagged = number(a, 7);
    const EventNumber other = number(b);
    EXPECT_EQ((std::set{plain, tagged, other, number(b, 7)}.size()), 4U);
    EXPECT_EQ(number(a), plain);
    EXPECT_EQ(number(a, 7), tagged);
    EXPECT_EQ(directory[tagged], (Event{&a, 7}));
}

TEST_F(EventDirectoryTest, KnowsATargetThatHasANumberElsewhere) {
    EventDirectory other;
    other.numberOf({&b, 0});
    const EventNumber inOther = other.numberOf({&a, 0});
    const EventNumber here = number(a);
    EXPECT_EQ(here, 0U);
    EXPECT_EQ(inOther, 1U);
    EXPECT_EQ(other[other.numberOf({&a, 0})].target, &a);
    EXPECT_EQ(directory[number(a)].target, &a);
}

TEST_F(EventDirectoryTest, OrdersByCreationOfTheTargetThenByTag) {
    const EventNumber second = number(b);
    const EventNumber first = number(a);
    const EventNumber tagged = number(a, ~std::uint64_t{0});
    EXPECT_TRUE(directory.comesBefore(first, second));
    EXPECT_FALSE(directory.comesBefore(second, first));
    EXPECT_TRUE(directory.comesBefore(first, tagged));
    EXPECT_TRUE(directory.comesBefore(tagged, second));
    EXPECT_FALSE(directory.comesBefore(first, first));
}

TEST_F(EventDirectoryTest, SeesWhetherItsNumbersAreInOrder) {
    number(a);
    number(a, 1);
    number(a, 5);
    number(b);
    EXPECT_TRUE(directory.isInOrder());
    number(a, 3);
    EXPECT_FALSE(directory.isInOrder());
}

TEST_F(EventDirectoryTest, HasOneNumberForAGroup) {
    const EventNumber last = number(b);
    const EventNumber first = number(a, 1);
    const EventNumber group = directory.numberOfGroup({last, first});
    EXPECT_TRUE(EventDirectory::isGroup(group));
    EXPECT_FALSE(EventDirectory::isGroup(first));
    EXPECT_EQ(pairsOf(directory.membersOf(group)), (Pairs{{"a", 1}, {"b", 0}}));
    EXPECT_NE(directory.numberOfGroup({last, first}), group);
    EXPECT_EQ(pairsOf(directory.membersOf(group)), (Pairs{{"a", 1}, {"b", 0}}));
}

TEST_F(EventDirectoryTest, NotesWhatIsEnteredTwiceInARow) {
    const EventNumber single = number(a);
    const EventNumber group = directory.numberOfGroup({single});
    for (const EventNumber each : {single, group}) {
        EXPECT_TRUE(directory.note(each, 7));
        EXPECT_FALSE(directory.note(each, 7));
        EXPECT_TRUE(directory.note(each, 8));
        EXPECT_TRUE(directory.note(each, 7));
    }
}

class EventSetTest : public EventsOfProbes {
protected:
    EventSet set{directory};
    std::vector<EventNumber> entered;
};

TEST_F(EventSetTest, TakesEachEventOnce) {
    entered = {number(a, 1), number(a), number(a, 1), number(a, 1)};
    EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"a", 0}, {"a", 1}}));
    EXPECT_TRUE(entered.empty());
    EXPECT_TRUE(set.take(entered).empty());
}

TEST_F(EventSetTest, TargetsComeInOrderOfCreationWhereverTheyLieInMemory) {
    for (const std::array<std::size_t, 3> creation : {std::array<std::size_t, 3>{0, 1, 2}, {2, 1, 0}, {1, 2, 0}}) {
        std::array<std::optional<Probe>, 3> slots;  // ascending addresses
        slots[creation[0]].emplace("first", nullptr, journal);
        slots[creation[1]].emplace("second", nullptr, journal);
        slots[creation[2]].emplace("third", nullptr, journal);
        set.begin();
        for (auto& slot : slots) entered.push_back(number(*slot));
        EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"first", 0}, {"second", 0}, {"third", 0}}));
    }
}

TEST_F(EventSetTest, ALaterPassHasWhatNoPassBeforeHad) {
    entered = {number(b)};
    EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"b", 0}}));
    entered = {number(b), number(b, 1), number(a)};
    EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"a", 0}, {"b", 1}}));
    entered = {number(a), number(b, 1)};
    EXPECT_TRUE(set.take(entered).empty());
    entered = {number(b), number(a, 3)};
    EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"a", 3}}));
    set.begin();
    entered = {number(b), number(a, 3)};
    EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"a", 3}, {"b", 0}}));
}

TEST_F(EventSetTest, TakesTheMembersOfGroups) {
    const EventNumber group = directory.numberOfGroup({number(b), number(a), number(a, 4)});
    entered = {group};
    EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"a", 0}, {"a", 4}, {"b", 0}}));
    entered = {group, number(b, 2)};
    EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"b", 2}}));
    set.begin();
    entered = {number(a), number(b, 1), group, number(a, 5)};
    EXPECT_EQ(pairsOf(set.take(entered)), (Pairs{{"a", 0}, {"a", 4}, {"a", 5}, {"b", 0}, {"b", 1}}));
}

/// Numbers are given out in the order of the events, or not, and there are few events or many: it's all sorted alike.
TEST_F(EventSetTest, DoesTheSameAsAnOrderedSetOfPairs) {
    std::vector<std::unique_ptr<Probe>> targets;
    for (int i = 10; i < 50; ++i) targets.push_back(std::make_unique<Probe>(std::to_string(i), nullptr, journal));
    std::minstd_rand random(20240611);
    for (int round = 0; round < 400; ++round) {
        EventDirectory numbers;
        EventSet events(numbers);
        if (round % 2 == 0) {
            for (const auto& target : targets) {
                for (std::uint64_t tag = 0; tag < 3; ++tag) numbers.numberOf({target.get(), tag});
            }
        }
        std::set<Pair> done;
        for (int pass = 0; pass < 6; ++pass) {
            if (random() % 5 == 0) {
                events.begin();
                done.clear();
            }
            std::set<Pair> expected;
            for (std::uint_fast32_t i = random() % (round % 3 == 0 ? 100 : 8); i > 0; --i) {
                Probe* target = targets[random() % targets.size()].get();
                const std::uint64_t tag = random() % 3;
                entered.push_back(numbers.numberOf({target, tag}));
                if (!done.contains({target->getName(), tag})) expected.emplace(target->getName(), tag);
            }
            Pairs taken;
            for (const EventNumber each : events.take(entered)) {
                taken.emplace_back(numbers[each].target->getName(), numbers[each].tag);
            }
            ASSERT_EQ(taken, Pairs(expected.begin(), expected.end())) << "round " << round;
            done.insert(expected.begin(), expected.end());
        }
    }
}

class EventLogTest : public testing::Test {
protected:
    using Events = std::vector<std::pair<Time, EventNumber>>;
    EventLog log;
};

TEST_F(EventLogTest, BeginsEmpty) {
    EXPECT_EQ(log.readAll(), Events());
}

TEST_F(EventLogTest, GivesBackWhatWasPutIn) {
    constexpr EventNumber kLargest = ~EventNumber{0};
    log.append(kEarliestTime, std::vector<EventNumber>{0, 1, kLargest});
    log.append(kLatestTime, std::vector<EventNumber>{});
    log.append(kLatestTime, std::vector<EventNumber>{300, 5});
    log.append(-1, std::vector<EventNumber>{7});
    EXPECT_EQ(log.readAll(), (Events{{kEarliestTime, 0},
                                     {kEarliestTime, 1},
                                     {kEarliestTime, kLargest},
                                     {kLatestTime, 300},
                                     {kLatestTime, 5},
                                     {-1, 7}}));
    log.clear();
    EXPECT_EQ(log.readAll(), Events());
    log.append(3, std::vector<EventNumber>{4});
    EXPECT_EQ(log.readAll(), (Events{{3, 4}}));
}

TEST_F(EventLogTest, HoldsAnyNumberOfEvents) {
    std::minstd_rand random(1);
    Events events;
    for (Time time = 0; time < 2000; ++time) {
        std::set<EventNumber> pass;
        for (std::uint_fast32_t i = random() % 100; i > 0; --i)
            pass.insert(static_cast<EventNumber>(random() >> random() % 32));
        log.append(time, std::vector<EventNumber>(pass.begin(), pass.end()));
        for (const EventNumber each : pass) events.emplace_back(time, each);
    }
    EXPECT_EQ(log.readAll(), events);
}

class EventQueueTest : public EventsOfProbes {
protected:
    EventQueue queue{directory};

    /// What the queue has for its next time, pass by pass.
    std::string takeNext() {
        const auto time = queue.next();
        if (!time) return "nothing";
        std::string text = std::to_string(*time) + ":";
        for (auto pass = queue.takePass(); !pass.empty(); pass = queue.takePass()) {
            for (const auto& [target, tag] : pairsOf(pass)) text += " " + target + std::to_string(tag);
        }
        return text;
    }
};

TEST_F(EventQueueTest, TimesComeInAscendingOrderNegativeOnesFirst) {
    for (const Time time : {20, -3, 0, kLatestTime, 7, 5000, kEarliestTime, 20}) queue.insert(number(a), time);
    std::vector<Time> times;
    while (const auto time = queue.next()) {
        times.push_back(*time);
        while (!queue.takePass().empty()) {
        }
    }
    EXPECT_EQ(times, (std::vector<Time>{kEarliestTime, -3, 0, 7, 20, 5000, kLatestTime}));
}

TEST_F(EventQueueTest, FindsWhatIsEnteredWhileItIsWorkedThrough) {
    queue.insert(number(a), 10);
    queue.insert(number(a), 30);
    EXPECT_EQ(queue.next(), 10);
    EXPECT_EQ(pairsOf(queue.takePass()), (Pairs{{"a", 0}}));
    for (Time time = 100000; time > 30; time -= 10) queue.insert(number(a), time);
    queue.insert(number(b), 20);
    queue.insert(number(b), 10);
    EXPECT_EQ(pairsOf(queue.takePass()), (Pairs{{"b", 0}}));
    EXPECT_TRUE(queue.takePass().empty());
    EXPECT_EQ(takeNext(), "20: b0");
    EXPECT_EQ(takeNext(), "30: a0");
    for (Time time = 40; time <= 100000; time += 10) ASSERT_EQ(takeNext(), std::to_string(time) + ": a0");
    EXPECT_EQ(takeNext(), "nothing");
}

TEST_F(EventQueueTest, WhatIsEnteredForThePastWaitsForARewind) {
    queue.insert(number(a), 10000);
    EXPECT_EQ(takeNext(), "10000: a0");
    queue.insert(number(b), 9999);
    queue.insert(number(b), 5);
    queue.insert(number(b), -5);
    EXPECT_EQ(takeNext(), "nothing");
    queue.rewind();
    EXPECT_EQ(takeNext(), "-5: b0");
    EXPECT_EQ(takeNext(), "5: b0");
    EXPECT_EQ(takeNext(), "9999: b0");
    EXPECT_EQ(takeNext(), "10000: a0");
    EXPECT_EQ(takeNext(), "nothing");
}

TEST_F(EventQueueTest, WhatIsEnteredAfterARewindWaitsForWhatComesBefore) {
    queue.insert(number(a), 10);
    queue.insert(number(a), 5000);
    EXPECT_EQ(takeNext(), "10: a0");
    EXPECT_EQ(takeNext(), "5000: a0");
    queue.rewind();
    queue.insert(number(b), 6000);
    queue.insert(number(b), 4999);
    EXPECT_EQ(takeNext(), "10: a0");
    EXPECT_EQ(takeNext(), "4999: b0");
    EXPECT_EQ(takeNext(), "5000: a0");
    EXPECT_EQ(takeNext(), "6000: b0");
    EXPECT_EQ(takeNext(), "nothing");
}

TEST_F(EventQueueTest, ARewindBringsGroupsBack) {
    const EventNumber group = directory.numberOfGroup({number(a), number(b)});
    for (const Time time : {1, 2, 20000}) queue.insert(group, time);
    queue.insert(number(b), 2);
    EXPECT_EQ(takeNext(), "1: a0 b0");
    for (int run = 0; run < 2; ++run) {
        queue.rewind();
        EXPECT_EQ(takeNext(), "1: a0 b0");
        EXPECT_EQ(takeNext(), "2: a0 b0");
        EXPECT_EQ(takeNext(), "20000: a0 b0");
        EXPECT_EQ(takeNext(), "nothing");
    }
}

TEST_F(EventQueueTest, ARewindBringsEverythingBackTakenOrNot) {
    queue.insert(number(a), 1);
    queue.insert(number(b), 1);
    queue.insert(number(a), 2);
    queue.insert(number(b, 4), 7000);
    EXPECT_EQ(takeNext(), "1: a0 b0");
    EXPECT_EQ(queue.next(), 2);
    for (int i = 0; i < 2; ++i) {
        queue.rewind();
        EXPECT_EQ(takeNext(), "1: a0 b0");
        EXPECT_EQ(takeNext(), "2: a0");
        EXPECT_EQ(takeNext(), "7000: b4");
        EXPECT_EQ(takeNext(), "nothing");
    }
}

TEST_F(EventQueueTest, DoesTheSameAsAMapOfSets) {
    std::minstd_rand random(7);
    for (int round = 0; round < 100; ++round) {
        EventDirectory ofRound;
        EventQueue events(ofRound);
        std::map<Time, std::set<EventNumber>> model;
        const std::array<EventNumber, 4> numbers = {ofRound.numberOf({&a, 0}), ofRound.numberOf({&a, 1}),
                                                    ofRound.numberOf({&b, 0}), ofRound.numberOf({&b, 1})};
        const auto enter = [&](Time from) {
            const auto distance = static_cast<Time>(random() % (random() % 4 == 0 ? 20000 : 30));
            const EventNumber event = numbers[random() % numbers.size()];
            events.insert(event, from + distance);
            model[from + distance].insert(event);
        };
        for (int run = 0; run < 2; ++run) {
            for (int i = 0; i < 10; ++i) enter(-10000);
            events.rewind();
            auto walk = model.begin();
            for (int i = 0; i < 200 && walk != model.end(); ++i, ++walk) {
                ASSERT_EQ(events.next(), walk->first);
                std::set<EventNumber> taken;
                for (auto pass = events.takePass(); !pass.empty(); pass = events.takePass()) {
                    taken.insert(pass.begin(), pass.end());
                    if (random() % 3 == 0) enter(walk->first);
                    if (random() % 9 == 0) enter(walk->first - 40);
                }
                ASSERT_EQ(taken, walk->second);
            }
            if (walk == model.end()) {
                ASSERT_EQ(events.next(), std::nullopt);
            }
        }
    }
}

}  // namespace
}  // namespace tarnsim
