#include "Core/Support/BaseObject.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "Core/Support/Text.h"

namespace tarnsim {

BaseObject::BaseObject(const std::string& name)
    : name_(name),
      firstDraw_(static_cast<std::uint32_t>(std::rand())),
      secondDraw_(static_cast<std::uint32_t>(std::rand())) {}

BaseObject::BaseObject(const BaseObject& other)
    : Dict(other),
      name_(other.name_),
      firstDraw_(other.firstDraw_),
      secondDraw_(other.secondDraw_),
      givenId_(other.givenId_ ? std::make_unique<std::string>(*other.givenId_) : nullptr) {}

BaseObject::~BaseObject() {
    while (!nameWatchers_.empty()) {
        NameWatcher* watcher = nameWatchers_.items().front();
        nameWatchers_.remove(watcher);
        watcher->objectDestroyed(*this);
    }
}

void BaseObject::setName(const std::string& name) {
    if (name == name_) return;
    const std::string formerName = std::exchange(name_, name);
    for (NameWatcher* watcher : nameWatchers_.items()) watcher->nameChanged(*this, formerName);
}

std::string BaseObject::getId() const {
    return givenId_ ? *givenId_ : format("%x%x", secondDraw_, firstDraw_);
}

void BaseObject::setId(const std::string& id) {
    givenId_ = std::make_unique<std::string>(id);
}

void BaseObject::watchName(NameWatcher* watcher) {
    const auto known = nameWatchers_.items();
    if (std::ranges::find(known, watcher) == known.end()) nameWatchers_.insert(0, watcher);
}

void BaseObject::stopWatchingName(NameWatcher* watcher) {
    nameWatchers_.remove(watcher);
}

}  // namespace tarnsim
