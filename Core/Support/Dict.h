#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tarnsim {

/// A tree of named attributes: doubles, booleans, texts, sub-dictionaries and lists of sub-dictionaries.
///
/// An open slot that every object of the model has for whatever a host wants to attach to it. Keys are ordered by
/// bytes. A Dict owns the children that it made itself (`newChild` and all that go through it) and no others; they live
/// as long as it does, also when their key is taken by another one. Getters with `create` false raise an Error that
/// names the kind and the key.
///
/// Almost no object of a circuit has an attribute, so the maps are made at the first write: an empty Dict is a pointer.
class Dict {
public:
    using List = std::vector<Dict*>;

    Dict();
    virtual ~Dict();
    /// A deep copy: the copy owns a tree of its own and shares nothing with its source.
    Dict(const Dict& other);
    Dict& operator=(const Dict& other);

    bool isEmpty() const;

    bool hasDouble(const std::string& key) const;
    bool hasBool(const std::string& key) const;
    bool hasString(const std::string& key) const;
    bool hasDict(const std::string& key) const;
    bool hasList(const std::string& key) const;

    void setDouble(const std::string& key, double value);
    void setBool(const std::string& key, bool value);
    void setString(const std::string& key, const std::string& value);

    /// A missing key is inserted with 0, false or "" if `create` is set, and raises an Error if not.
    double getDouble(const std::string& key, bool create);
    bool getBool(const std::string& key, bool create);
    std::string getString(const std::string& key, bool create);

    /// Makes `key` refer to a Dict that somebody else owns and keeps alive.
    void setDict(const std::string& key, Dict* dict);
    /// A new child under `key`. A child that stood there before stays alive, but has no key.
    Dict& newDict(const std::string& key);
    Dict& getDict(const std::string& key, bool create);
    /// The child under `key`, made when missing.
    Dict& dict(const std::string& key) { return getDict(key, true); }

    /// Appends a Dict that somebody else owns.
    void appendToList(const std::string& key, Dict* dict);
    /// An empty list under `key`.
    List& newList(const std::string& key);
    List& getList(const std::string& key, bool create);
    /// The list under `key`, made when missing.
    List& list(const std::string& key) { return getList(key, true); }
    /// A new child at the end of the list `key`.
    Dict& newListItem(const std::string& key);
    /// The first item of the list `key` whose text `name` is `name`; made and appended when missing and `create` is
    /// set.
    Dict& findInList(const std::string& key, const std::string& name, bool create);

    /// A new empty Dict that lives as long as this one and stands under no key.
    Dict& newChild();

    /// Writes texts, doubles, dictionaries and lists through TLog, one indent step a level. Booleans aren't shown.
    void print() const;

private:
    struct Contents;

    Contents& contents();
    void copyFrom(const Contents& source);

    std::unique_ptr<Contents> contents_;  ///< null until something is stored
};

}  // namespace tarnsim
