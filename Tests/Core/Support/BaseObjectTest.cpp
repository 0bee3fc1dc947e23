#include "Core/Support/BaseObject.h"

#include <cstdlib>
#include <set>
#include <type_traits>
#include <vector>

#include "Core/Support/Text.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// Notes what it hears, as "old>new" and "name died".
class Listener final : public NameWatcher {
public:
    void nameChanged(BaseObject& object, const std::string& formerName) override {
        heard.push_back(formerName + ">" + object.getName());
    }
    void objectDestroyed(BaseObject& object) override { heard.push_back(object.getName() + " died"); }

    std::vector<std::string> heard;
};

using Heard = std::vector<std::string>;

TEST(BaseObject, BeginsWithItsNameAndNoAttributes) {
    const BaseObject object("alu");
    EXPECT_EQ(object.getName(), "alu");
    EXPECT_TRUE(object.isEmpty());
}

TEST(BaseObject, HasAnIdOfTwoDrawsWithTheSecondInFront) {
    std::srand(7);
    const auto first = static_cast<unsigned>(std::rand());
    const auto second = static_cast<unsigned>(std::rand());
    std::srand(7);
    EXPECT_EQ(BaseObject("a").getId(), format("%x%x", second, first));
}

TEST(BaseObject, HasAnIdOfItsOwn) {
    std::set<std::string> ids;
    for (int i = 0; i < 1000; ++i) ids.insert(BaseObject("same").getId());
    EXPECT_EQ(ids.size(), 1000U);
}

TEST(BaseObject, TakesAnotherId) {
    BaseObject object("a");
    object.setId("beef");
    EXPECT_EQ(object.getId(), "beef");
    EXPECT_EQ(BaseObject(object).getId(), "beef");
    object.setId("");
    EXPECT_EQ(object.getId(), "");
}

TEST(BaseObject, IsCopiedWithAttributesNameAndId) {
    BaseObject object("a");
    object.setString("s", "text");
    object.dict("child").setDouble("d", 1.5);
    BaseObject copy(object);
    EXPECT_EQ(copy.getName(), "a");
    EXPECT_EQ(copy.getId(), object.getId());
    EXPECT_EQ(copy.getString("s", false), "text");
    EXPECT_EQ(copy.dict("child").getDouble("d", false), 1.5);
    EXPECT_NE(&copy.dict("child"), &object.dict("child"));
}

TEST(BaseObject, HasACreationNumberOfItsOwnAlsoAsACopy) {
    const BaseObject first("a");
    const BaseObject second("a");
    const BaseObject copy(first);
    EXPECT_LT(first.getCreationNumber(), second.getCreationNumber());
    EXPECT_LT(second.getCreationNumber(), copy.getCreationNumber());
}

TEST(BaseObject, IsDestroyedThroughItsBase) {
    EXPECT_TRUE(std::has_virtual_destructor_v<BaseObject>);
    EXPECT_TRUE((std::is_base_of_v<Dict, BaseObject>));
}

TEST(BaseObject, TellsItsNewNameToWhoeverWatches) {
    Listener one;
    Listener two;
    BaseObject object("a");
    object.watchName(&one);
    object.watchName(&two);
    object.setName("b");
    object.setName("c");
    EXPECT_EQ(one.heard, (Heard{"a>b", "b>c"}));
    EXPECT_EQ(two.heard, one.heard);
    object.stopWatchingName(&one);
    object.stopWatchingName(&two);
}

TEST(BaseObject, SaysNothingWhenTheNameStays) {
    Listener listener;
    BaseObject object("a");
    object.watchName(&listener);
    object.setName("a");
    EXPECT_EQ(listener.heard, Heard{});
    object.stopWatchingName(&listener);
}

TEST(BaseObject, TellsAWatcherOnceThatWatchesTwice) {
    Listener listener;
    BaseObject object("a");
    object.watchName(&listener);
    object.watchName(&listener);
    object.setName("b");
    EXPECT_EQ(listener.heard, Heard{"a>b"});
    object.stopWatchingName(&listener);
    object.setName("c");
    EXPECT_EQ(listener.heard, Heard{"a>b"});
}

TEST(BaseObject, TellsWhoeverWatchesThatItDies) {
    Listener listener;
    {
        BaseObject object("a");
        object.watchName(&listener);
    }
    EXPECT_EQ(listener.heard, Heard{"a died"});
}

TEST(BaseObject, DoesNotPassItsWatchersToACopy) {
    Listener listener;
    BaseObject object("a");
    object.watchName(&listener);
    {
        BaseObject copy(object);
        copy.setName("b");
    }
    EXPECT_EQ(listener.heard, Heard{});
    object.stopWatchingName(&listener);
}

}  // namespace
}  // namespace tarnsim
