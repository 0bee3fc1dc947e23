#include "Core/Support/Dict.h"

#include "Core/Support/TLog.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(Dict, BeginsEmpty) {
    const Dict dict;
    EXPECT_TRUE(dict.isEmpty());
    EXPECT_FALSE(dict.hasDouble("x") || dict.hasBool("x") || dict.hasString("x") || dict.hasDict("x") ||
                 dict.hasList("x"));
}

TEST(Dict, IsNotEmptyWithOneEntryOfAnyKind) {
    Dict entries[5];
    entries[0].setDouble("x", 0.0);
    entries[1].setBool("x", false);
    entries[2].setString("x", "");
    entries[3].newDict("x");
    entries[4].newList("x");
    for (const Dict& dict : entries) EXPECT_FALSE(dict.isEmpty());
}

TEST(Dict, IsEmptyWithAChildThatHasNoKey) {
    Dict dict;
    EXPECT_TRUE(dict.newChild().isEmpty());
    EXPECT_TRUE(dict.isEmpty());
}

TEST(Dict, HoldsOneKeyInEachKind) {
    Dict dict;
    dict.setDouble("x", 1.5);
    dict.setBool("x", true);
    dict.setString("x", "text");
    EXPECT_FALSE(dict.hasDict("x"));
    EXPECT_FALSE(dict.hasList("x"));
    dict.newDict("x");
    dict.newList("x");
    EXPECT_EQ(dict.getDouble("x", false), 1.5);
    EXPECT_TRUE(dict.getBool("x", false));
    EXPECT_EQ(dict.getString("x", false), "text");
    EXPECT_TRUE(dict.hasDouble("x") && dict.hasBool("x") && dict.hasString("x") && dict.hasDict("x") &&
                dict.hasList("x"));
}

TEST(Dict, ReplacesAValue) {
    Dict dict;
    dict.setDouble("x", 1.5);
    dict.setDouble("x", 2.5);
    dict.setBool("x", true);
    dict.setBool("x", false);
    dict.setString("x", "a");
    dict.setString("x", "b");
    EXPECT_EQ(dict.getDouble("x", true), 2.5);
    EXPECT_FALSE(dict.getBool("x", true));
    EXPECT_EQ(dict.getString("x", true), "b");
}

TEST(Dict, NamesAMissingKeyByItsKind) {
    Dict dict;
    EXPECT_EQ(errorOf([&] { dict.getDouble("x", false); }), "No such double: 'x'");
    EXPECT_EQ(errorOf([&] { dict.getBool("x", false); }), "No such bool: 'x'");
    EXPECT_EQ(errorOf([&] { dict.getString("x", false); }), "No such string: 'x'");
    EXPECT_EQ(errorOf([&] { dict.getDict("x", false); }), "No such dict: 'x'");
    EXPECT_EQ(errorOf([&] { dict.getList("x", false); }), "No such list: 'x'");
    EXPECT_TRUE(dict.isEmpty());
}

TEST(Dict, CreatesAMissingKeyOnDemand) {
    Dict dict;
    EXPECT_EQ(dict.getDouble("x", true), 0.0);
    EXPECT_FALSE(dict.getBool("x", true));
    EXPECT_EQ(dict.getString("x", true), "");
    EXPECT_TRUE(dict.getDict("x", true).isEmpty());
    EXPECT_TRUE(dict.getList("x", true).empty());
    EXPECT_TRUE(dict.hasDouble("x") && dict.hasBool("x") && dict.hasString("x") && dict.hasDict("x") &&
                dict.hasList("x"));
}

TEST(Dict, GivesTheSameChildEachTime) {
    Dict dict;
    Dict& child = dict.dict("a");
    EXPECT_EQ(&dict.dict("a"), &child);
    EXPECT_EQ(&dict.getDict("a", false), &child);
    EXPECT_EQ(&dict.getDict("a", true), &child);
}

TEST(Dict, KeepsAChildWhoseKeyIsTakenByAnother) {
    Dict dict;
    Dict& first = dict.newDict("a");
    Dict& second = dict.newDict("a");
    EXPECT_NE(&first, &second);
    EXPECT_EQ(&dict.dict("a"), &second);
    first.setString("name", "still there");
    EXPECT_EQ(first.getString("name", false), "still there");
}

TEST(Dict, RefersToADictOfSomebodyElse) {
    Dict other;
    {
        Dict dict;
        dict.setDict("a", &other);
        dict.appendToList("l", &other);
        EXPECT_EQ(&dict.dict("a"), &other);
        EXPECT_EQ(dict.list("l"), Dict::List{&other});
    }
    other.setString("x", "outlives the one that refers to it");
    EXPECT_TRUE(other.hasString("x"));
}

TEST(Dict, KeepsTheOrderOfAList) {
    Dict dict;
    Dict other;
    Dict& first = dict.newListItem("l");
    dict.appendToList("l", &other);
    Dict& last = dict.newListItem("l");
    EXPECT_EQ(dict.list("l"), (Dict::List{&first, &other, &last}));
    EXPECT_EQ(&dict.getList("l", false), &dict.list("l"));
}

TEST(Dict, MakesAListWhenItIsAskedFor) {
    Dict dict;
    EXPECT_TRUE(dict.list("l").empty());
    EXPECT_TRUE(dict.hasList("l"));
    EXPECT_TRUE(dict.newList("m").empty());
    EXPECT_TRUE(dict.hasList("m"));
}

TEST(Dict, FindsAnItemByItsName) {
    Dict dict;
    dict.newListItem("ports");  // has no name at all
    dict.newListItem("ports").setString("name", "q");
    Dict& first = dict.newListItem("ports");
    first.setString("name", "p");
    dict.newListItem("ports").setString("name", "p");
    EXPECT_EQ(&dict.findInList("ports", "p", false), &first);
    EXPECT_EQ(&dict.findInList("ports", "p", true), &first);
    EXPECT_EQ(dict.list("ports").size(), 4U);
}

TEST(Dict, AddsAMissingItemOnce) {
    Dict dict;
    Dict& item = dict.findInList("ports", "p", true);
    EXPECT_EQ(item.getString("name", false), "p");
    EXPECT_EQ(&dict.findInList("ports", "p", true), &item);
    EXPECT_EQ(dict.list("ports"), Dict::List{&item});
}

TEST(Dict, NamesAMissingItem) {
    Dict dict;
    EXPECT_EQ(errorOf([&] { dict.findInList("ports", "p", false); }), "No such list: 'ports'");
    dict.newListItem("ports");
    EXPECT_EQ(errorOf([&] { dict.findInList("ports", "p", false); }), "No such dict with name='p' in list 'ports'");
    EXPECT_EQ(dict.list("ports").size(), 1U);
}

/// One entry of each kind, and children in two levels.
void fill(Dict& dict) {
    dict.setDouble("d", 1.5);
    dict.setBool("b", true);
    dict.setString("s", "text");
    dict.dict("child").dict("grandchild").setString("s", "deep");
    dict.newListItem("l").setString("name", "first");
    dict.newListItem("l").setString("name", "second");
    dict.newList("none");
}

void expectFilled(Dict& dict) {
    EXPECT_EQ(dict.getDouble("d", false), 1.5);
    EXPECT_TRUE(dict.getBool("b", false));
    EXPECT_EQ(dict.getString("s", false), "text");
    EXPECT_EQ(dict.getDict("child", false).getDict("grandchild", false).getString("s", false), "deep");
    ASSERT_EQ(dict.getList("l", false).size(), 2U);
    EXPECT_EQ(dict.list("l")[0]->getString("name", false), "first");
    EXPECT_EQ(dict.list("l")[1]->getString("name", false), "second");
    EXPECT_TRUE(dict.getList("none", false).empty());
}

TEST(Dict, SharesNothingWithItsCopy) {
    Dict copy;
    {
        Dict source;
        fill(source);
        Dict constructed(source);
        expectFilled(constructed);
        EXPECT_NE(&constructed.dict("child"), &source.dict("child"));
        constructed.dict("child").dict("grandchild").setString("s", "changed");
        constructed.list("l")[0]->setString("name", "changed");
        constructed.setString("s", "changed");
        expectFilled(source);
        copy = source;
    }
    expectFilled(copy);
}

TEST(Dict, CopiesADictOfSomebodyElseIntoAChildOfItsOwn) {
    Dict copy;
    {
        Dict other;
        other.setString("s", "other");
        Dict source;
        source.setDict("a", &other);
        source.appendToList("l", &other);
        copy = source;
        EXPECT_NE(&copy.dict("a"), &other);
    }
    EXPECT_EQ(copy.dict("a").getString("s", false), "other");
    EXPECT_EQ(copy.list("l")[0]->getString("s", false), "other");
}

TEST(Dict, LosesWhatItHeldWhenItIsAssignedTo) {
    Dict source;
    source.setString("new", "");
    Dict target;
    fill(target);
    target = source;
    EXPECT_TRUE(target.hasString("new"));
    EXPECT_FALSE(target.hasDouble("d") || target.hasBool("b") || target.hasString("s") || target.hasDict("child") ||
                 target.hasList("l"));
    target = Dict();
    EXPECT_TRUE(target.isEmpty());
}

// A child lives as long as its parent, also when an assignment takes its key away. Today it's freed.
TEST(Dict, KeepsItsFormerChildrenAliveWhenItIsAssignedTo) {
    Dict target;
    Dict& child = target.dict("child");
    child.setString("s", "still there");
    target = Dict();
    EXPECT_TRUE(target.isEmpty());
    EXPECT_EQ(child.getString("s", false), "still there");
}

TEST(Dict, MayBeAssignedToItself) {
    Dict dict;
    fill(dict);
    const Dict& self = dict;
    dict = self;
    expectFilled(dict);
}

TEST(Dict, MayBeAssignedOneOfItsChildren) {
    Dict dict;
    fill(dict.dict("inner"));
    dict = dict.dict("inner");
    expectFilled(dict);
}

TEST(Dict, PrintsTextsDoublesDictsAndListsInThisOrder) {
    Dict dict;
    dict.newListItem("ports").setString("name", "p");
    dict.newListItem("ports").setDouble("width", 8);
    dict.dict("b").dict("inner").setString("s", "deep");
    dict.dict("a").setString("s", "text");
    dict.setDouble("wide", 12345.67);
    dict.setDouble("narrow", -1.25);
    dict.setString("z", "");
    dict.setString("B", "capital");
    dict.setBool("flag", true);
    EXPECT_EQ(outputOf([&] { dict.print(); }),
              "B: 'capital'\n"
              "z: ''\n"
              "narrow:  -1.2\n"
              "wide: 12345.7\n"
              "a:\n"
              "   s: 'text'\n"
              "b:\n"
              "   inner:\n"
              "      s: 'deep'\n"
              "ports (2):\n"
              "[0]\n"
              "   name: 'p'\n"
              "[1]\n"
              "   width:   8.0\n");
}

TEST(Dict, PrintsItsSectionsOneStepBelowWhoeverLogs) {
    Dict dict;
    dict.setString("s", "text");
    EXPECT_EQ(outputOf([&] {
                  TLog log("Net n");
                  dict.print();
                  log.log("done");
              }),
              "Net n\n   s: 'text'\ndone\n");
}

TEST(Dict, PrintsNothingWhenItIsEmpty) {
    EXPECT_EQ(outputOf([] {
                  Dict().print();
                  const TLog log("the level is as before");
              }),
              "the level is as before\n");
}

}  // namespace
}  // namespace tarnsim
