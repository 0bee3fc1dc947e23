#include "Core/Support/Dict.h"

#include <algorithm>
#include <iterator>

#include "Core/Support/Error.h"
#include "Core/Support/TLog.h"

namespace tarnsim {

struct Dict::Contents {
    std::map<std::string, double> doubles;
    std::map<std::string, bool> bools;
    std::map<std::string, std::string> strings;
    std::map<std::string, Dict*> dicts;  // not owned
    std::map<std::string, List> lists;   // items not owned
    std::vector<std::unique_ptr<Dict>> ownedDicts;
};

namespace {

/// The value under `key`, inserted when missing and `create` is set; otherwise `kind` and key go into the Error.
template <class Map>
typename Map::mapped_type& valueOf(Map& map, const std::string& key, bool create, const char* kind) {
    const auto found = map.find(key);
    if (found != map.end()) return found->second;
    if (!create) throw Error("No such %s: '%s'", kind, key.c_str());
    return map[key];
}

}  // namespace

Dict::Dict() = default;
Dict::~Dict() = default;

Dict::Dict(const Dict& other) {
    if (other.contents_) copyFrom(*other.contents_);
}

Dict& Dict::operator=(const Dict& other) {
    if (this == &other) return *this;
    const std::unique_ptr<Contents> former = std::move(contents_);
    if (other.contents_) copyFrom(*other.contents_);
    // Children live as long as this object, also those that it has no key for any longer; the source may be one of
    // them.
    if (former && !former->ownedDicts.empty()) {
        std::ranges::move(former->ownedDicts, std::back_inserter(contents().ownedDicts));
    }
    return *this;
}

Dict::Contents& Dict::contents() {
    if (!contents_) contents_ = std::make_unique<Contents>();
    return *contents_;
}

void Dict::copyFrom(const Contents& source) {
    Contents& target = contents();
    target.doubles = source.doubles;
    target.bools = source.bools;
    target.strings = source.strings;
    for (const auto& [key, child] : source.dicts) newDict(key) = *child;
    for (const auto& [key, items] : source.lists) {
        newList(key);
        for (const Dict* item : items) newListItem(key) = *item;
    }
}

bool Dict::isEmpty() const {
    return !contents_ || (contents_->doubles.empty() && contents_->bools.empty() && contents_->strings.empty() &&
                          contents_->dicts.empty() && contents_->lists.empty());
}

bool Dict::hasDouble(const std::string& key) const {
    return contents_ && contents_->doubles.contains(key);
}

bool Dict::hasBool(const std::string& key) const {
    return contents_ && contents_->bools.contains(key);
}

bool Dict::hasString(const std::string& key) const {
    return contents_ && contents_->strings.contains(key);
}

bool Dict::hasDict(const std::string& key) const {
    return contents_ && contents_->dicts.contains(key);
}

bool Dict::hasList(const std::string& key) const {
    return contents_ && contents_->lists.contains(key);
}

void Dict::setDouble(const std::string& key, double value) {
    contents().doubles[key] = value;
}

void Dict::setBool(const std::string& key, bool value) {
    contents().bools[key] = value;
}

void Dict::setString(const std::string& key, const std::string& value) {
    contents().strings[key] = value;
}

double Dict::getDouble(const std::string& key, bool create) {
    return valueOf(contents().doubles, key, create, "double");
}

bool Dict::getBool(const std::string& key, bool create) {
    return valueOf(contents().bools, key, create, "bool");
}

std::string Dict::getString(const std::string& key, bool create) {
    return valueOf(contents().strings, key, create, "string");
}

void Dict::setDict(const std::string& key, Dict* dict) {
    contents().dicts[key] = dict;
}

Dict& Dict::newDict(const std::string& key) {
    Dict& child = newChild();
    setDict(key, &child);
    return child;
}

Dict& Dict::getDict(const std::string& key, bool create) {
    if (create && !hasDict(key)) return newDict(key);
    return *valueOf(contents().dicts, key, false, "dict");
}

void Dict::appendToList(const std::string& key, Dict* dict) {
    list(key).push_back(dict);
}

Dict::List& Dict::newList(const std::string& key) {
    return contents().lists[key] = {};
}

Dict::List& Dict::getList(const std::string& key, bool create) {
    return valueOf(contents().lists, key, create, "list");
}

Dict& Dict::newListItem(const std::string& key) {
    Dict& child = newChild();
    appendToList(key, &child);
    return child;
}

Dict& Dict::findInList(const std::string& key, const std::string& name, bool create) {
    for (Dict* item : getList(key, create)) {
        if (item->hasString("name") && item->getString("name", false) == name) return *item;
    }
    if (!create) throw Error("No such dict with name='%s' in list '%s'", name.c_str(), key.c_str());
    Dict& item = newListItem(key);
    item.setString("name", name);
    return item;
}

Dict& Dict::newChild() {
    return *contents().ownedDicts.emplace_back(std::make_unique<Dict>());
}

void Dict::print() const {
    static const Contents kNothing;
    const Contents& shown = contents_ ? *contents_ : kNothing;
    {
        TLog section(nullptr);
        for (const auto& [key, value] : shown.strings) section.log("%s: '%s'", key.c_str(), value.c_str());
    }
    {
        TLog section(nullptr);
        for (const auto& [key, value] : shown.doubles) section.log("%s: %5.1f", key.c_str(), value);
    }
    {
        TLog section(nullptr);
        for (const auto& [key, child] : shown.dicts) {
            section.log("%s:", key.c_str());
            child->print();
        }
    }
    TLog section(nullptr);
    for (const auto& [key, items] : shown.lists) {
        section.log("%s (%d):", key.c_str(), static_cast<int>(items.size()));
        for (std::size_t i = 0; i < items.size(); ++i) {
            section.log("[%d]", static_cast<int>(i));
            items[i]->print();
        }
    }
}

}  // namespace tarnsim
