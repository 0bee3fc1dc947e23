#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "Core/Support/CreationNumber.h"
#include "Core/Support/Dict.h"
#include "Core/Support/PointerList.h"

namespace tarnsim {

class BaseObject;

/// Somebody who keeps objects by their names and so must hear when a name changes or an object dies.
class NameWatcher {
public:
    /// `object` already has its new name.
    virtual void nameChanged(BaseObject& object, const std::string& formerName) = 0;
    /// `object` is being destroyed; only its BaseObject part is still there.
    virtual void objectDestroyed(BaseObject& object) = 0;

protected:
    ~NameWatcher() = default;
};

/// Everything in a model that has a name: a Dict with a name, a random id that a copy keeps, and a creation number of
/// its own by which things are put into an order that is the same on every run.
class BaseObject : public Dict {
public:
    explicit BaseObject(const std::string& name);
    ~BaseObject() override;
    /// The same attributes, name and id; nobody watches the copy.
    BaseObject(const BaseObject& other);
    BaseObject& operator=(const BaseObject&) = delete;

    const std::string& getName() const { return name_; }
    void setName(const std::string& name);

    /// Two draws of the C library's generator in hexadecimal, the second in front. The generator isn't seeded, so ids
    /// repeat from run to run; they tell objects of one process apart, and no more.
    std::string getId() const;
    void setId(const std::string& id);

    std::uint64_t getCreationNumber() const { return creationNumber_.value(); }

    /// `watcher` isn't owned and must stop watching before it dies. Watching twice has no effect.
    void watchName(NameWatcher* watcher);
    void stopWatchingName(NameWatcher* watcher);

private:
    std::string name_;
    CreationNumber creationNumber_;
    std::uint32_t firstDraw_;   ///< the id until somebody sets another: kept as numbers, since a board has a million
    std::uint32_t secondDraw_;  ///< objects and hardly anybody asks for an id
    std::unique_ptr<std::string> givenId_;   ///< an id set from outside
    PointerList<NameWatcher> nameWatchers_;  ///< not owned
};

}  // namespace tarnsim
