#include <algorithm>
#include <iterator>
#include <map>
#include <string>

#include "Core/Values/ValueHistory.h"
#include "Tests/Core/Values/Recorder.h"
#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// The rules of a history over an ordered map, as plainly as they can be said.
class Model {
public:
    explicit Model(std::size_t width) : width_(width) {}

    void set(const std::string& letters, Time time) {
        if (get(time) != letters) heard.push_back({get(time), letters, time});
        records_[time] = letters;
    }

    std::string get(Time time) const {
        const auto next = records_.upper_bound(time);
        return next == records_.begin() ? std::string(width_, 'U') : std::prev(next)->second;
    }

    std::size_t recordCount() const { return records_.size(); }
    void clear() { records_.clear(); }

    bool changedAt(Time time) const { return get(time - 1) != get(time); }
    bool risingEdgeAt(Time time) const { return get(time - 1) == "L" && get(time) == "H"; }
    bool fallingEdgeAt(Time time) const { return get(time - 1) == "H" && get(time) == "L"; }
    bool stableBetween(Time t1, Time t2) const { return stableAt(t1, t2, get(std::min(t1, t2))); }

    bool stableAt(Time t1, Time t2, const std::string& letters) const {
        const auto from = records_.lower_bound(std::min(t1, t2));
        const auto to = records_.upper_bound(std::max(t1, t2));
        return get(std::min(t1, t2)) == letters &&
               std::all_of(from, to, [&](const auto& record) { return record.second == letters; });
    }

    Time lastChange(Time time) const {
        if (records_.empty() || records_.begin()->first > time) return kEarliestTime;
        const std::string current = get(time);
        auto record = std::prev(records_.upper_bound(time));
        while (record != records_.begin()) {
            const auto earlierRecord = std::prev(record);
            if (earlierRecord->second != current) return record->first;
            record = earlierRecord;
        }
        return get(record->first - 1) == current ? kEarliestTime : record->first;
    }

    std::vector<HeardChange> heard;

private:
    std::size_t width_;
    std::map<Time, std::string> records_;
};

constexpr Time kFirst = -20;
constexpr Time kLast = 60;

void expectEqualAtEveryTime(const ValueHistory& history, const Model& model) {
    ASSERT_EQ(history.recordCount(), model.recordCount());
    for (Time time = kFirst - 2; time <= kLast + 2; ++time) {
        ASSERT_EQ(history.get(time).letters(), model.get(time)) << time;
        ASSERT_EQ(history.changedAt(time), model.changedAt(time)) << time;
        ASSERT_EQ(history.risingEdgeAt(time), model.risingEdgeAt(time)) << time;
        ASSERT_EQ(history.fallingEdgeAt(time), model.fallingEdgeAt(time)) << time;
        ASSERT_EQ(history.lastChange(time), model.lastChange(time)) << time;
    }
}

void expectEqualBetween(const ValueHistory& history, const Model& model, Time t1, Time t2, const std::string& letters) {
    ASSERT_EQ(history.stableBetween(t1, t2), model.stableBetween(t1, t2)) << t1 << " to " << t2;
    ASSERT_EQ(history.stableAt(t1, t2, Value(letters)), model.stableAt(t1, t2, letters)) << t1 << " to " << t2;
}

/// Writes random letters at random times, most of them behind the latest record.
void compareWithTheModel(std::size_t width) {
    RandomNumbers numbers;
    const auto anyTime = [&] { return numbers.between(kFirst, kLast); };
    const auto anyLetters = [&] {
        // Few letters and long runs, so that equal values meet.
        return std::string(width - 1, 'L') + numbers.letterOf("LLLHHHUZ");
    };
    ValueHistory history(static_cast<std::uint32_t>(width));
    Recorder recorder;
    history.subscribe(&recorder);
    Model model(width);
    for (int i = 0; i < 500; ++i) {
        if (numbers.below(60) == 0) {
            history.clear();
            model.clear();
        }
        const std::string letters = numbers.below(5) == 0 ? std::string(width, 'U') : anyLetters();
        const Time time = anyTime();
        history.set(Value(letters), time);
        model.set(letters, time);
        ASSERT_EQ(recorder.heard, model.heard);
        ASSERT_NO_FATAL_FAILURE(expectEqualAtEveryTime(history, model)) << "write " << i;
        for (int j = 0; j < 20; ++j)
            ASSERT_NO_FATAL_FAILURE(expectEqualBetween(history, model, anyTime(), anyTime(), anyLetters()));
    }
    EXPECT_GT(model.heard.size(), 100U);
    EXPECT_LT(model.heard.size(), 450U);
}

TEST(ValueHistoryModel, OfOneBitAgreesThroughRandomWrites) {
    compareWithTheModel(1);
}

TEST(ValueHistoryModel, OfAByteAgreesThroughRandomWrites) {
    compareWithTheModel(8);
}

TEST(ValueHistoryModel, OfAWideBusAgreesThroughRandomWrites) {
    compareWithTheModel(40);
}

}  // namespace
}  // namespace tarnsim
