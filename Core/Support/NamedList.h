#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
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
template <class T, std::size_t longestWalk = 16>
class NamedList {
public:
    using const_iterator = typename std::vector<T*>::const_iterator;

    NamedList() = default;
    NamedList(const NamedList&) = delete;
    NamedList& operator=(const NamedList&) = delete;

    const std::vector<T*>& items() const { return items_; }
    const_iterator begin() const { return items_.begin(); }
    const_iterator end() const { return items_.end(); }
    std::size_t size() const { return items_.size(); }
    bool empty() const { return items_.empty(); }
    T* operator[](std::size_t i) const { return items_[i]; }

    void append(T* item) {
        if (items_.empty()) items_.reserve(kFewest);
        items_.push_back(item);
        if (index_) {
            index_->add(item);
        } else if (items_.size() > longestWalk) {
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

    // Hints that the name will be looked up before long: what that is going to touch is fetched, the index first, and
    // the object at a second hint. In a list of thousands of objects, looked up in any order, waiting for memory is
    // most of it.

    void expect(std::string_view name) const {
        if (index_) index_->fetchSlot(name);
    }
    void expectObject(std::string_view name) const {
        if (index_) index_->fetchObject(name);
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
    /// against its object. An open hash table, so that finding a unit of a large board touches few places in memory.
    class Index final : public NameWatcher {
    public:
        explicit Index(NamedList& list) : list_(list), slots_(32) {}
        Index(const Index&) = delete;
        Index& operator=(const Index&) = delete;

        ~Index() {
            for (const Slot& slot : slots_) {
                if (slot.object != nullptr) slot.object->stopWatchingName(this);
            }
        }

        void add(T* item) {
            put({item, hashOf(item->getName()), nextPosition_++});
            item->watchName(this);
        }

        void remove(const T* item) {
            if (!drop(*item)) return;
            const_cast<T*>(item)->stopWatchingName(this);
        }

        template <class Better>
        T* find(std::string_view name, Better better) const {
            const Slot* best = nullptr;
            forEach(name, [&](const Slot& slot) {
                if (best == nullptr || better(slot.position, best->position)) best = &slot;
            });
            return best == nullptr ? nullptr : static_cast<T*>(best->object);
        }

        void fetchSlot(std::string_view name) const { __builtin_prefetch(&slots_[home(hashOf(name))]); }
        void fetchObject(std::string_view name) const {
            const std::uint32_t hash = hashOf(name);
            std::size_t at = home(hash);
            while (slots_[at].object != nullptr && slots_[at].hash != hash) at = next(at);
            if (slots_[at].object == nullptr) return;
            const auto* object = reinterpret_cast<const char*>(slots_[at].object);
            for (std::size_t line = 0; line < sizeof(T); line += 64) __builtin_prefetch(object + line);
        }

        std::size_t count(std::string_view name) const {
            std::size_t count = 0;
            forEach(name, [&](const Slot& /*slot*/) { ++count; });
            return count;
        }

        bool contains(const T* item) const {
            bool isThere = false;
            forEach(item->getName(), [&](const Slot& slot) { isThere = isThere || slot.object == item; });
            return isThere;
        }

        void nameChanged(BaseObject& object, const std::string& formerName) override {
            std::vector<Slot> renamed;
            takeAll(object, formerName, [&](const Slot& slot) { renamed.push_back(slot); });
            for (Slot& slot : renamed) {
                slot.hash = hashOf(object.getName());
                put(slot);
            }
        }

        void objectDestroyed(BaseObject& object) override {
            if (!drop(object)) return;
            std::erase_if(list_.items_, [&](const BaseObject* each) { return each == &object; });
        }

    private:
        struct Slot {
            BaseObject* object = nullptr;  ///< null in a free slot; in the end only this part of an item is left
            std::uint32_t hash = 0;
            std::uint32_t position = 0;  ///< order in the list; positions only grow, as objects are only appended
        };

        static std::uint32_t hashOf(std::string_view name) {
            return static_cast<std::uint32_t>(std::hash<std::string_view>{}(name));
        }
        std::size_t next(std::size_t at) const { return (at + 1) & (slots_.size() - 1); }
        std::size_t home(std::uint32_t hash) const { return hash & (slots_.size() - 1); }

        /// Calls `visit` for each entry of that name.
        template <class Visitor>
        void forEach(std::string_view name, Visitor visit) const {
            const std::uint32_t hash = hashOf(name);
            for (std::size_t at = home(hash); slots_[at].object != nullptr; at = next(at)) {
                if (slots_[at].hash == hash && slots_[at].object->getName() == name) visit(slots_[at]);
            }
        }

        void put(const Slot& slot) {
            if (++size_ > slots_.size() / 4 * 3) {
                std::vector<Slot> former(2 * slots_.size());
                former.swap(slots_);
                for (const Slot& each : former) {
                    if (each.object != nullptr) slots_[freeSlot(each.hash)] = each;
                }
            }
            slots_[freeSlot(slot.hash)] = slot;
        }
        std::size_t freeSlot(std::uint32_t hash) const {
            std::size_t at = home(hash);
            while (slots_[at].object != nullptr) at = next(at);
            return at;
        }

        /// Takes the entries of the object out and calls `visit` for each.
        template <class Visitor>
        void takeAll(const BaseObject& object, std::string_view name, Visitor visit) {
            for (std::size_t at = home(hashOf(name)); slots_[at].object != nullptr;) {
                if (slots_[at].object == &object) {
                    visit(slots_[at]);
                    vacate(at);
                } else {
                    at = next(at);
                }
            }
        }
        /// False if it had none. Asks for no memory: this is how objects die, also for want of it.
        bool drop(const BaseObject& object) {
            bool isDropped = false;
            takeAll(object, object.getName(), [&](const Slot& /*slot*/) { isDropped = true; });
            return isDropped;
        }
        /// What stands behind the slot moves up as far as it is found from its home.
        void vacate(std::size_t hole) {
            for (std::size_t at = next(hole); slots_[at].object != nullptr; at = next(at)) {
                const std::size_t mask = slots_.size() - 1;
                if (((at - home(slots_[at].hash)) & mask) < ((at - hole) & mask)) continue;
                slots_[hole] = slots_[at];
                hole = at;
            }
            slots_[hole] = Slot();
            --size_;
        }

        NamedList& list_;
        std::vector<Slot> slots_;  ///< a power of two, a quarter of them free
        std::size_t size_ = 0;
        std::uint32_t nextPosition_ = 0;
    };

    /// The smallest block of memory holds three pointers, which is what a gate needs.
    static constexpr std::size_t kFewest = 3;

    std::vector<T*> items_;         ///< not owned
    std::unique_ptr<Index> index_;  ///< null while the list is short
};

}  // namespace tarnsim
