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
        NameWatcher* watcher = nameWatchers_.front();
        nameWatchers_.pop_front();
        watcher->objectDestroyed(*this);
    }
}

void BaseObject::setName(const std::string& name) {
    if (name == name_) return;
    const std::string formerName = std::exchange(name_, name);
    for (NameWatcher* watcher : nameWatchers_) watcher->nameChanged(*this, formerName);
}

std::string BaseObject::getId() const {
    return givenId_ ? *givenId_ : format("%x%x", secondDraw_, firstDraw_);
}

void BaseObject::setId(const std::string& id) {
    givenId_ = std::make_unique<std::string>(id);
}

void BaseObject::watchName(NameWatcher* watcher) {
    if (std::ranges::find(nameWatchers_, watcher) == nameWatchers_.end()) nameWatchers_.push_front(watcher);
}

void BaseObject::stopWatchingName(NameWatcher* watcher) {
    nameWatchers_.remove(watcher);
}

}  // namespace tarnsim
