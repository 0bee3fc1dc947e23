#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Core/Support/BaseObject.h"

namespace tarnsim {

/// A list of named objects in order of addition, in which names are found without a walk.
///
/// The objects aren't owned. Two of them may have one name: `findFirst` and `findLast` give what a walk over the list
/// would find first and last. Names may change at any time through the objects themselves; the list hears of it.
/// An owner whose objects die before the list is destroyed clears the list first.
///
/// Short lists (the ports of a gate) are walked, as that's faster and needs no memory. A longer one builds an index by
/// name, and from then on an object that dies leaves the list by itself. With a `longestWalk` of 0 that holds for all.
template <class T>
class NamedList {
public:
    using const_iterator = typename std::vector<T*>::const_iterator;

    /// A list of more than `longestWalk` objects gets an index.
    explicit NamedList(std::size_t longestWalk = 16) : longestWalk_(longestWalk) {}
    NamedList(const NamedList&) = delete;
    NamedList& operator=(const NamedList&) = delete;

    const std::vector<T*>& items() const { return items_; }
    const_iterator begin() const { return items_.begin(); }
    const_iterator end() const { return items_.end(); }
    std::size_t size() const { return items_.size(); }
    bool empty() const { return items_.empty(); }
    T* operator[](std::size_t i) const { return items_[i]; }

    void append(T* item) {
        items_.push_back(item);
        if (index_) {
            index_->add(item);
        } else if (items_.size() > longestWalk_) {
            index_ = std::make_unique<Index>(*this);
            for (T* each : items_) index_->add(each);
        }
    }

    /// Removes every occurrence of `item`.
    void remove(const T* item) {
        if (index_) index_->remove(item);
        std::erase(items_, item);
    }

    /// Removes every object for which `condition` holds.
    template <class Condition>
    void removeIf(Condition condition) {
        std::erase_if(items_, [&](T* item) {
            const bool isRemoved = condition(item);
            if (isRemoved && index_) index_->remove(item);
            return isRemoved;
        });
    }

    void clear() {
        index_.reset();
        items_.clear();
    }

    /// Null if no object has the name.
    T* findFirst(std::string_view name) const {
        if (index_)
            return index_->find(name, [](std::uint64_t candidate, std::uint64_t best) { return candidate < best; });
        const auto found = std::ranges::find_if(items_, [&](const T* item) { return item->getName() == name; });
        return found == items_.end() ? nullptr : *found;
    }

    /// Null if no object has the name.
    T* findLast(std::string_view name) const {
        if (index_)
            return index_->find(name, [](std::uint64_t candidate, std::uint64_t best) { return candidate > best; });
        const auto found =
            std::find_if(items_.rbegin(), items_.rend(), [&](const T* item) { return item->getName() == name; });
        return found == items_.rend() ? nullptr : *found;
    }

    std::size_t count(std::string_view name) const {
        if (index_) return index_->count(name);
        return static_cast<std::size_t>(
            std::ranges::count_if(items_, [&](const T* item) { return item->getName() == name; }));
    }

    bool contains(const T* item) const {
        return index_ ? index_->contains(item) : std::ranges::find(items_, item) != items_.end();
    }

private:
    /// From the hash of a name to the objects that have it. The names themselves aren't copied: an entry is checked
    /// against its object.
    class Index final : public NameWatcher {
    public:
        explicit Index(NamedList& list) : list_(list) {}
        Index(const Index&) = delete;
        Index& operator=(const Index&) = delete;

        ~Index() {
            for (const auto& [hash, entry] : entries_) entry.item->stopWatchingName(this);
        }

        void add(T* item) {
            entries_.emplace(hashOf(item->getName()), Entry{item, item, nextPosition_++});
            item->watchName(this);
        }

        void remove(const T* item) {
            const auto [first, last] = entries_.equal_range(hashOf(item->getName()));
            for (auto it = first; it != last;) {
                if (it->second.item != item) {
                    ++it;
                    continue;
                }
                it->second.item->stopWatchingName(this);
                it = entries_.erase(it);
            }
        }

        template <class Better>
        T* find(std::string_view name, Better better) const {
            const Entry* best = nullptr;
            const auto [first, last] = entries_.equal_range(hashOf(name));
            for (auto it = first; it != last; ++it) {
                const Entry& entry = it->second;
                if (entry.item->getName() == name && (best == nullptr || better(entry.position, best->position)))
                    best = &entry;
            }
            return best == nullptr ? nullptr : best->item;
        }

        std::size_t count(std::string_view name) const {
            const auto [first, last] = entries_.equal_range(hashOf(name));
            return static_cast<std::size_t>(
                std::count_if(first, last, [&](const auto& each) { return each.second.item->getName() == name; }));
        }

        bool contains(const T* item) const {
            const auto [first, last] = entries_.equal_range(hashOf(item->getName()));
            return std::any_of(first, last, [&](const auto& each) { return each.second.item == item; });
        }

        void nameChanged(BaseObject& object, const std::string& formerName) override {
            for (Entry& entry : takeEntries(object, formerName)) entries_.emplace(hashOf(object.getName()), entry);
        }

        void objectDestroyed(BaseObject& object) override {
            for (const Entry& entry : takeEntries(object, object.getName())) std::erase(list_.items_, entry.item);
        }

    private:
        struct Entry {
            T* item;
            const BaseObject* object;  ///< the same, for when only this part of it is left
            std::uint64_t position;    ///< order in the list; positions only grow, as objects are only appended
        };

        static std::size_t hashOf(std::string_view name) { return std::hash<std::string_view>{}(name); }

        std::vector<Entry> takeEntries(const BaseObject& object, const std::string& name) {
            std::vector<Entry> taken;
            const auto [first, last] = entries_.equal_range(hashOf(name));
            for (auto it = first; it != last;) {
                if (it->second.object == &object) {
                    taken.push_back(it->second);
                    it = entries_.erase(it);
                } else {
                    ++it;
                }
            }
            return taken;
        }

        NamedList& list_;
        std::unordered_multimap<std::size_t, Entry> entries_;
        std::uint64_t nextPosition_ = 0;
    };

    std::size_t longestWalk_;
    std::vector<T*> items_;         ///< not owned
    std::unique_ptr<Index> index_;  ///< null while the list is short
};

}  // namespace tarnsim
