#include "Core/Values/ValueHistory.h"

#include <functional>
#include <memory>
#include <string>

#include "Tests/Core/Values/Recorder.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Heard = std::vector<HeardChange>;

/// Writes values at their times, in this order.
void write(ValueHistory& history, std::initializer_list<std::pair<Time, const char*>> records) {
    for (const auto& [time, letters] : records) history.set(Value(letters), time);
}

TEST(ValueHistory, IsUndefinedWithoutRecords) {
    const ValueHistory history(4);
    EXPECT_STREQ(history.get(0).c_str(), "UUUU");
    EXPECT_STREQ(history.get(kLatestTime).c_str(), "UUUU");
    EXPECT_EQ(history.recordCount(), 0U);
    EXPECT_EQ(history.width(), 4U);
    EXPECT_STREQ(ValueHistory(0).get(0).c_str(), "");
}

TEST(ValueHistory, HoldsAValueFromItsTimeOn) {
    ValueHistory history(2);
    history.set(Value("HL"), 5);
    EXPECT_STREQ(history.get(4).c_str(), "UU");
    EXPECT_STREQ(history.get(5).c_str(), "HL");
    EXPECT_STREQ(history.get(1000).c_str(), "HL");
}

TEST(ValueHistory, IsWrittenInAnyOrder) {
    ValueHistory history(1);
    write(history, {{10, "H"}, {-5, "L"}, {3, "Z"}});
    EXPECT_STREQ(history.get(-6).c_str(), "U");
    EXPECT_STREQ(history.get(-5).c_str(), "L");
    EXPECT_STREQ(history.get(2).c_str(), "L");
    EXPECT_STREQ(history.get(3).c_str(), "Z");
    EXPECT_STREQ(history.get(10).c_str(), "H");
    EXPECT_EQ(history.recordCount(), 3U);
}

TEST(ValueHistory, ReplacesARecordOfTheSameTime) {
    ValueHistory history(1);
    write(history, {{5, "H"}, {5, "L"}});
    EXPECT_EQ(history.recordCount(), 1U);
    EXPECT_STREQ(history.get(5).c_str(), "L");
}

TEST(ValueHistory, TakesTheWidthOfTheFirstValue) {
    ValueHistory history(0);
    history.set(Value("HLH"), 0);
    EXPECT_EQ(history.width(), 3U);
    EXPECT_STREQ(history.get(-1).c_str(), "UUU");
    EXPECT_EQ(errorOf([&] { history.set(Value("HL"), 1); }),
              "ValueHistory: mismatching type width. ValueHistory width=2, but value width=3");
}

TEST(ValueHistory, NamesTheWidthOfTheValueBeforeItsOwn) {
    ValueHistory history(4);
    Recorder recorder;
    history.subscribe(&recorder);
    EXPECT_EQ(errorOf([&] { history.set(Value("HL"), 1); }),
              "ValueHistory: mismatching type width. ValueHistory width=2, but value width=4");
    EXPECT_EQ(errorOf([&] { history.set(Value("HLHLHLHLH"), 1); }),
              "ValueHistory: mismatching type width. ValueHistory width=9, but value width=4");
    EXPECT_EQ(errorOf([&] { history.set(Value(), 1); }),
              "ValueHistory: mismatching type width. ValueHistory width=0, but value width=4");
    EXPECT_EQ(history.recordCount(), 0U);
    EXPECT_EQ(recorder.heard, Heard{});
}

TEST(ValueHistory, IsBoundToAWidthOf0ByAValueOfThatWidth) {
    ValueHistory history(0);
    history.set(Value(), 0);
    EXPECT_EQ(history.recordCount(), 1U);
    EXPECT_EQ(errorOf([&] { history.set(Value("H"), 1); }),
              "ValueHistory: mismatching type width. ValueHistory width=1, but value width=0");
}

TEST(ValueHistory, KeepsWidthAndSubscribersWhenItIsCleared) {
    ValueHistory history(0);
    Recorder recorder;
    history.subscribe(&recorder);
    history.set(Value("HL"), 0);
    history.clear();
    EXPECT_EQ(history.recordCount(), 0U);
    EXPECT_EQ(history.width(), 2U);
    EXPECT_STREQ(history.get(0).c_str(), "UU");
    history.set(Value("HH"), 3);
    EXPECT_EQ(recorder.heard, (Heard{{"UU", "HL", 0}, {"UU", "HH", 3}}));
}

TEST(ValueHistory, KnowsTheLargestNumberOfItsWidth) {
    const std::pair<std::uint32_t, std::int32_t> cases[] = {{0, 0}, {1, 1}, {8, 255}, {30, 1073741823}};
    for (const auto& [width, number] : cases) EXPECT_EQ(ValueHistory(width).maxNumber(), number) << width;
}

TEST(ValueHistory, TellsAChangeWithTheOldAndTheNewValue) {
    ValueHistory history(1);
    Recorder recorder;
    history.subscribe(&recorder);
    write(history, {{0, "L"}, {10, "H"}});
    EXPECT_EQ(recorder.heard, (Heard{{"U", "L", 0}, {"L", "H", 10}}));
    EXPECT_EQ(recorder.source, &history);
}

TEST(ValueHistory, RecordsAnEqualValueButTellsNobody) {
    ValueHistory history(1);
    Recorder recorder;
    history.subscribe(&recorder);
    write(history, {{0, "H"}, {5, "H"}, {5, "H"}});
    EXPECT_EQ(history.recordCount(), 2U);
    EXPECT_EQ(recorder.heard, (Heard{{"U", "H", 0}}));
}

TEST(ValueHistory, ComparesALateWriteWithWhatIsInForceAtItsTime) {
    ValueHistory history(1);
    Recorder recorder;
    history.subscribe(&recorder);
    write(history, {{0, "L"}, {10, "H"}, {5, "L"}, {7, "H"}, {12, "H"}});
    EXPECT_EQ(recorder.heard, (Heard{{"U", "L", 0}, {"L", "H", 10}, {"L", "H", 7}}));
    EXPECT_STREQ(history.get(6).c_str(), "L");
    EXPECT_STREQ(history.get(10).c_str(), "H");
}

TEST(ValueHistory, TellsTheFirstValueUnlessItIsUndefined) {
    ValueHistory history(2);
    Recorder recorder;
    history.subscribe(&recorder);
    write(history, {{0, "UU"}, {1, "UZ"}});
    EXPECT_EQ(recorder.heard, (Heard{{"UU", "UZ", 1}}));
}

/// Runs an action when it hears of a change.
class Reactor final : public ValueChangeSubscriber {
public:
    explicit Reactor(std::function<void(const ValueChange&)> reaction) : reaction_(std::move(reaction)) {}
    void valueChanged(ValueHistory*, const ValueChange& change) override { reaction_(change); }

private:
    std::function<void(const ValueChange&)> reaction_;
};

TEST(ValueHistory, StillHoldsTheOldValueWhileItTells) {
    ValueHistory history(1);
    write(history, {{0, "L"}});
    std::string seen;
    Reactor reactor([&](const ValueChange& change) { seen = history.get(change.time).c_str(); });
    history.subscribe(&reactor);
    write(history, {{10, "H"}});
    EXPECT_EQ(seen, "L");
    EXPECT_STREQ(history.get(10).c_str(), "H");
}

TEST(ValueHistory, LetsASubscriberSetAnotherHistory) {
    ValueHistory first(1);
    ValueHistory second(1);
    Recorder recorder;
    second.subscribe(&recorder);
    Reactor reactor([&](const ValueChange& change) { second.set(change.newValue, change.time + 5); });
    first.subscribe(&reactor);
    write(first, {{0, "L"}, {10, "H"}});
    EXPECT_EQ(recorder.heard, (Heard{{"U", "L", 5}, {"L", "H", 15}}));
}

TEST(ValueHistory, TellsItsSubscribersInTheOrderOfTheirCreation) {
    std::string order;
    Reactor first([&](const ValueChange&) { order += '1'; });
    Reactor second([&](const ValueChange&) { order += '2'; });
    Reactor third([&](const ValueChange&) { order += '3'; });
    ValueHistory history(1);
    for (Reactor* reactor : {&third, &first, &second}) history.subscribe(reactor);
    write(history, {{0, "L"}});
    EXPECT_EQ(order, "123");
}

TEST(ValueHistory, TellsASubscriberOnceThatSubscribesTwice) {
    ValueHistory history(1);
    Recorder recorder;
    history.subscribe(&recorder);
    history.subscribe(&recorder);
    write(history, {{0, "L"}});
    EXPECT_EQ(recorder.heard.size(), 1U);
    history.unsubscribe(&recorder);
    write(history, {{1, "H"}});
    EXPECT_EQ(recorder.heard.size(), 1U);
}

TEST(ValueHistory, TakesNoNoticeOfAnUnknownSubscriberThatLeaves) {
    ValueHistory history(1);
    Recorder subscribed;
    Recorder unknown;
    history.subscribe(&subscribed);
    history.unsubscribe(&unknown);
    write(history, {{0, "L"}});
    EXPECT_EQ(subscribed.heard.size(), 1U);
    EXPECT_EQ(unknown.heard, Heard{});
}

TEST(ValueHistory, KeepsRecordsThatDoNotChangeWithTheValueThatWasSet) {
    ValueHistory history(9);
    Value value("HHHHHHHHH");
    history.set(value, 0);
    value.fill('L');
    EXPECT_STREQ(history.get(0).c_str(), "HHHHHHHHH");
}

TEST(ValueHistory, HasOneBitEdges) {
    ValueHistory history(1);
    write(history, {{0, "L"}, {10, "H"}, {20, "L"}, {30, "Z"}, {40, "H"}, {41, "L"}});
    for (Time time = -2; time < 45; ++time) {
        EXPECT_EQ(history.risingEdgeAt(time), time == 10) << time;
        EXPECT_EQ(history.fallingEdgeAt(time), time == 20 || time == 41) << time;
    }
}

TEST(ValueHistory, HasNoEdgeFromUndefined) {
    ValueHistory history(1);
    write(history, {{0, "H"}});
    EXPECT_FALSE(history.risingEdgeAt(0));
    EXPECT_TRUE(history.changedAt(0));
}

TEST(ValueHistory, HasNoEdgesWithAnotherWidth) {
    ValueHistory history(2);
    write(history, {{0, "LL"}, {10, "HH"}, {20, "LL"}});
    EXPECT_FALSE(history.risingEdgeAt(10));
    EXPECT_FALSE(history.fallingEdgeAt(20));
    EXPECT_FALSE(ValueHistory(0).risingEdgeAt(0));
}

TEST(ValueHistory, ChangesAtARecordThatDiffers) {
    ValueHistory history(2);
    write(history, {{0, "LL"}, {5, "LL"}, {9, "HL"}});
    for (Time time = -2; time < 12; ++time) EXPECT_EQ(history.changedAt(time), time == 0 || time == 9) << time;
    ValueHistory undefined(2);
    write(undefined, {{3, "UU"}});
    EXPECT_FALSE(undefined.changedAt(3));
}

TEST(ValueHistory, IsStableWhereEveryRecordEqualsTheValueAtTheBeginning) {
    ValueHistory history(1);
    write(history, {{0, "L"}, {5, "L"}, {9, "H"}});
    struct Case {
        Time t1;
        Time t2;
        bool isStable;
    };
    const Case cases[] = {{0, 8, true},  {0, 9, false}, {-1, 0, false}, {-5, -1, true}, {9, 9, true},
                          {8, 9, false}, {9, 99, true}, {1, 4, true},   {6, 8, true}};
    for (const auto& [t1, t2, isStable] : cases) {
        EXPECT_EQ(history.stableBetween(t1, t2), isStable) << t1 << " to " << t2;
        EXPECT_EQ(history.stableBetween(t2, t1), isStable) << t2 << " to " << t1;
    }
}

TEST(ValueHistory, IsNotStableAcrossAPulseThatComesBack) {
    ValueHistory history(1);
    write(history, {{0, "L"}, {3, "H"}, {4, "L"}});
    EXPECT_FALSE(history.stableBetween(1, 5));
    EXPECT_FALSE(history.stableBetween(5, 1));
    EXPECT_TRUE(history.stableBetween(4, 5));
}

TEST(ValueHistory, IsStableAtAValue) {
    ValueHistory history(1);
    write(history, {{0, "L"}, {5, "L"}, {9, "H"}});
    EXPECT_TRUE(history.stableAt(0, 8, Value("L")));
    EXPECT_TRUE(history.stableAt(8, 0, Value("L")));
    EXPECT_FALSE(history.stableAt(0, 8, Value("H")));
    EXPECT_FALSE(history.stableAt(0, 9, Value("L")));
    EXPECT_FALSE(history.stableAt(-1, 8, Value("L")));
    EXPECT_TRUE(history.stableAt(-9, -1, Value("U")));
    EXPECT_TRUE(history.stableAt(9, 99, Value("H")));
}

TEST(ValueHistory, ChangedLastWhereTheValueInForceBegan) {
    ValueHistory history(1);
    write(history, {{0, "L"}, {5, "L"}, {9, "H"}, {12, "H"}});
    const std::pair<Time, Time> cases[] = {{-1, kEarliestTime}, {0, 0}, {4, 0}, {7, 0}, {9, 9}, {11, 9}, {99, 9}};
    for (const auto& [time, change] : cases) EXPECT_EQ(history.lastChange(time), change) << time;
}

TEST(ValueHistory, NeverChangedWithoutRecordsOrWithUndefinedOnesAlone) {
    ValueHistory history(2);
    EXPECT_EQ(history.lastChange(0), -2147483647 - 1);
    write(history, {{3, "UU"}, {5, "UU"}});
    EXPECT_EQ(history.lastChange(9), -2147483647 - 1);
    write(history, {{7, "UZ"}, {8, "UU"}});
    EXPECT_EQ(history.lastChange(7), 7);
    EXPECT_EQ(history.lastChange(9), 8);
}

TEST(ValueHistory, JudgesChangesByItsOwnRecordsWhateverADerivedClassAnswers) {
    struct Foreign : ValueHistory {
        using ValueHistory::ValueHistory;
        Value get(Time) const override { return Value("H"); }
    };
    Foreign history(1);
    Recorder recorder;
    history.subscribe(&recorder);
    write(history, {{0, "L"}, {10, "H"}});
    EXPECT_EQ(recorder.heard, (Heard{{"U", "L", 0}, {"L", "H", 10}}));
    EXPECT_TRUE(history.risingEdgeAt(10));
    EXPECT_TRUE(history.changedAt(10));
    EXPECT_FALSE(history.fallingEdgeAt(10));
    EXPECT_FALSE(history.stableBetween(0, 10));
    EXPECT_TRUE(history.stableAt(0, 9, Value("L")));
    EXPECT_EQ(history.lastChange(5), 0);
}

}  // namespace
}  // namespace tarnsim
