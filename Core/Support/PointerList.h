#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace tarnsim {

/// A list of pointers that mostly has one entry or none, and then needs no memory but its own word. A board has a
/// million of them. The objects aren't owned, and stand at even addresses.
template <class T>
class PointerList {
public:
    PointerList() = default;
    ~PointerList() {
        if (isMany()) delete many();
    }
    PointerList(const PointerList&) = delete;
    PointerList& operator=(const PointerList&) = delete;

    /// Good until the list changes.
    std::span<T* const> items() const {
        if (isMany()) return *many();
        return {&only_, only_ == nullptr ? std::size_t{0} : std::size_t{1}};
    }
    bool empty() const { return only_ == nullptr; }

    /// REQUIRES: place <= items().size(), item isn't null
    void insert(std::size_t place, T* item) {
        if (only_ == nullptr) {
            only_ = item;
            return;
        }
        if (!isMany()) keep(new std::vector<T*>{only_});
        many()->insert(many()->begin() + static_cast<std::ptrdiff_t>(place), item);
    }
    /// Every occurrence.
    void remove(const T* item) {
        if (!isMany()) {
            if (only_ == item) only_ = nullptr;
            return;
        }
        std::erase(*many(), item);
        if (many()->size() > 1) return;
        T* rest = many()->empty() ? nullptr : many()->front();
        delete many();
        only_ = rest;
    }

private:
    bool isMany() const { return (reinterpret_cast<std::uintptr_t>(only_) & 1U) != 0; }
    std::vector<T*>* many() const {
        return reinterpret_cast<std::vector<T*>*>(reinterpret_cast<std::uintptr_t>(only_) - 1);
    }
    void keep(std::vector<T*>* many) { only_ = reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(many) + 1); }

    T* only_ = nullptr;  ///< or, with the lowest bit set, a vector of several
};

}  // namespace tarnsim
