#include "Core/Support/NamedList.h"

#include <deque>

#include "Tests/Support/RandomText.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using List = NamedList<BaseObject>;
using Items = std::vector<BaseObject*>;

/// A list of some objects "0", "1", … of no interest, short enough to be walked or long enough to have an index.
class NamedListTest : public testing::TestWithParam<std::size_t> {
protected:
    NamedListTest() {
        for (std::size_t i = 0; i < GetParam(); ++i) list.append(&others.emplace_back(std::to_string(i)));
    }

    ~NamedListTest() override { list.clear(); }

    std::deque<BaseObject> others;
    List list;
};

INSTANTIATE_TEST_SUITE_P(ShortAndLong, NamedListTest, testing::Values(0, 5, 14, 15, 16, 17, 100));

TEST_P(NamedListTest, FindsTheFirstAndTheLastOfEqualNames) {
    BaseObject first("a");
    BaseObject middle("a");
    BaseObject last("a");
    for (BaseObject* object : {&first, &middle, &last}) list.append(object);
    EXPECT_EQ(list.findFirst("a"), &first);
    EXPECT_EQ(list.findLast("a"), &last);
    EXPECT_EQ(list.count("a"), 3U);
    list.clear();
}

TEST_P(NamedListTest, FindsNothingUnderAnUnknownName) {
    EXPECT_EQ(list.findFirst("a"), nullptr);
    EXPECT_EQ(list.findLast("a"), nullptr);
    EXPECT_EQ(list.findFirst(""), nullptr);
    EXPECT_EQ(list.count("a"), 0U);
}

TEST_P(NamedListTest, KeepsTheOrderOfAddition) {
    BaseObject z("z");
    BaseObject a("a");
    list.append(&z);
    list.append(&a);
    ASSERT_EQ(list.size(), GetParam() + 2);
    EXPECT_EQ(list[GetParam()], &z);
    EXPECT_EQ(list.items().back(), &a);
    EXPECT_EQ(Items(list.begin(), list.end()), list.items());
    list.clear();
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.findFirst("a"), nullptr);
}

TEST_P(NamedListTest, HearsOfANewName) {
    BaseObject first("a");
    BaseObject last("b");
    list.append(&first);
    list.append(&last);
    first.setName("b");
    EXPECT_EQ(list.findFirst("a"), nullptr);
    EXPECT_EQ(list.findFirst("b"), &first);
    EXPECT_EQ(list.findLast("b"), &last);
    last.setName("a");
    first.setName("a");
    EXPECT_EQ(list.findFirst("a"), &first);
    EXPECT_EQ(list.findLast("a"), &last);
    EXPECT_EQ(list.count("b"), 0U);
    list.clear();
}

TEST_P(NamedListTest, LosesARemovedObject) {
    BaseObject first("a");
    BaseObject last("a");
    list.append(&first);
    list.append(&last);
    EXPECT_TRUE(list.contains(&first));
    list.remove(&first);
    EXPECT_FALSE(list.contains(&first));
    EXPECT_EQ(list.findFirst("a"), &last);
    EXPECT_EQ(list.size(), GetParam() + 1);
    first.setName("b");
    EXPECT_EQ(list.findFirst("b"), nullptr);
    list.remove(&first);
    EXPECT_EQ(list.size(), GetParam() + 1);
    list.clear();
}

TEST_P(NamedListTest, RemovesEveryOccurrenceOfAnObject) {
    BaseObject object("a");
    list.append(&object);
    list.append(&object);
    EXPECT_EQ(list.count("a"), 2U);
    object.setName("b");
    EXPECT_EQ(list.count("b"), 2U);
    list.remove(&object);
    EXPECT_EQ(list.count("b"), 0U);
    EXPECT_EQ(list.size(), GetParam());
}

TEST_P(NamedListTest, RemovesByCondition) {
    BaseObject first("a");
    BaseObject last("b");
    list.append(&first);
    list.append(&last);
    list.removeIf([](const BaseObject* item) { return item->getName() != "b"; });
    EXPECT_EQ(list.items(), Items{&last});
    EXPECT_EQ(list.findFirst("a"), nullptr);
    EXPECT_EQ(list.findFirst("b"), &last);
    EXPECT_FALSE(list.contains(&first));
    list.clear();
}

TEST_P(NamedListTest, MayDieBeforeItsObjects) {
    BaseObject object("a");
    {
        List inner;
        for (BaseObject* item : list) inner.append(item);
        inner.append(&object);
    }
    object.setName("b");
    for (BaseObject& other : others) other.setName("x");
    EXPECT_EQ(list.count("x"), GetParam());
}

TEST_P(NamedListTest, SharesItsObjectsWithAnotherList) {
    List other;
    for (BaseObject* item : list) other.append(item);
    {
        BaseObject object("a");
        list.append(&object);
        other.append(&object);
        object.setName("b");
        EXPECT_EQ(list.findFirst("b"), &object);
        EXPECT_EQ(other.findFirst("b"), &object);
        other.remove(&object);
        EXPECT_EQ(list.findFirst("b"), &object);
        list.remove(&object);
    }
    EXPECT_EQ(list.items(), other.items());
}

TEST(NamedList, LosesAnObjectThatDiesOnceItIsLong) {
    std::deque<BaseObject> others(40, BaseObject("other"));
    List list;
    for (BaseObject& other : others) list.append(&other);
    {
        BaseObject object("a");
        list.append(&object);
        list.append(&object);
    }
    EXPECT_EQ(list.size(), 40U);
    EXPECT_EQ(list.findFirst("a"), nullptr);
    while (others.size() > 1) others.pop_front();
    EXPECT_EQ(list.items(), Items{&others.front()});
    others.pop_front();
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.findLast("other"), nullptr);
}

TEST(NamedList, LosesADyingObjectOfADerivedClass) {
    struct Tagged {
        virtual ~Tagged() = default;
        int tag = 0;
    };
    struct Unit : Tagged, BaseObject {
        using BaseObject::BaseObject;
    };
    NamedList<Unit> list;
    std::deque<Unit> units;
    for (int i = 0; i < 40; ++i) list.append(&units.emplace_back(std::to_string(i)));
    units.pop_front();
    EXPECT_EQ(list.findFirst("0"), nullptr);
    EXPECT_EQ(list.findFirst("1"), &units.front());
    EXPECT_EQ(list.size(), 39U);
}

/// The same list without an index: everything is found by a walk.
class PlainList {
public:
    BaseObject* findFirst(const std::string& name) const {
        for (BaseObject* item : items) {
            if (item->getName() == name) return item;
        }
        return nullptr;
    }

    BaseObject* findLast(const std::string& name) const {
        BaseObject* found = nullptr;
        for (BaseObject* item : items) found = item->getName() == name ? item : found;
        return found;
    }

    std::size_t count(const std::string& name) const {
        std::size_t found = 0;
        for (const BaseObject* item : items) found += item->getName() == name ? 1 : 0;
        return found;
    }

    Items items;
};

/// A NamedList and a PlainList that go through the same random changes.
class Comparison {
public:
    ~Comparison() { list_.clear(); }

    void change() {
        switch (numbers_.below(10)) {
            case 0:
            case 1:
            case 2:
            case 3: addNewOrDestroy(); break;
            case 4: withAnyObject([this](std::size_t i) { add(*objects_[i]); }); break;
            case 5:
            case 6: withAnyObject([this](std::size_t i) { objects_[i]->setName(anyName()); }); break;
            case 7: withAnyObject([this](std::size_t i) { remove(*objects_[i]); }); break;
            case 8: withAnyObject([this](std::size_t i) { destroy(i); }); break;
            default: removeRarely(); break;
        }
    }

    void expectEqual() const {
        ASSERT_EQ(list_.items(), plain_.items);
        for (const std::string& name : kNames) {
            ASSERT_EQ(list_.findFirst(name), plain_.findFirst(name)) << name;
            ASSERT_EQ(list_.findLast(name), plain_.findLast(name)) << name;
            ASSERT_EQ(list_.count(name), plain_.count(name)) << name;
        }
        for (const auto& object : objects_)
            ASSERT_EQ(list_.contains(object.get()),
                      std::ranges::find(plain_.items, object.get()) != plain_.items.end());
    }

    std::size_t longest() const { return longest_; }

private:
    static inline const std::vector<std::string> kNames = {"", "a", "b", "c", "A[0]", "a.b", "never used"};

    std::string anyName() { return kNames[numbers_.below(kNames.size() - 1)]; }

    template <class Action>
    void withAnyObject(Action action) {
        if (!objects_.empty()) action(numbers_.below(objects_.size()));
    }

    /// The number of objects swings between a few and a hundred.
    void addNewOrDestroy() {
        if (objects_.size() == 100) isGrowing_ = false;
        if (objects_.size() < 5) isGrowing_ = true;
        if (isGrowing_) {
            add(*objects_.emplace_back(std::make_unique<BaseObject>(anyName())));
        } else {
            withAnyObject([this](std::size_t i) { destroy(i); });
        }
    }

    void add(BaseObject& object) {
        list_.append(&object);
        plain_.items.push_back(&object);
        longest_ = std::max(longest_, list_.size());
    }

    void remove(BaseObject& object) {
        list_.remove(&object);
        std::erase(plain_.items, &object);
    }

    /// A long list hears of the death by itself; a short one must be told before.
    void destroy(std::size_t i) {
        std::erase(plain_.items, objects_[i].get());
        if (longest_ < 40) list_.remove(objects_[i].get());
        objects_.erase(objects_.begin() + static_cast<std::ptrdiff_t>(i));
    }

    void removeRarely() {
        if (numbers_.below(10) != 0) return;
        const std::string name = anyName();
        const auto hasName = [&](const BaseObject* item) { return item->getName() == name; };
        list_.removeIf(hasName);
        std::erase_if(plain_.items, hasName);
        if (numbers_.below(10) != 0) return;
        list_.clear();
        plain_.items.clear();
        longest_ = 0;
    }

    RandomNumbers numbers_;
    std::vector<std::unique_ptr<BaseObject>> objects_;
    List list_;
    PlainList plain_;
    bool isGrowing_ = true;
    std::size_t longest_ = 0;  ///< most entries since the list was empty
};

TEST(NamedList, GivesWhatAWalkGivesThroughRandomChanges) {
    Comparison comparison;
    std::size_t longest = 0;
    for (int i = 0; i < 3000; ++i) {
        comparison.change();
        ASSERT_NO_FATAL_FAILURE(comparison.expectEqual()) << "change " << i;
        longest = std::max(longest, comparison.longest());
    }
    EXPECT_GT(longest, 60U);
}

}  // namespace
}  // namespace tarnsim
