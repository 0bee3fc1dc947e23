#pragma once

#include <map>
#include <string>

#include "Core/Support/Comment.h"

namespace tarnsim {

class Circuit;

/// A line `U5(delay=20, fast)` of a signal file: parameters that one component has for the length of the run. A key
/// without a value means "true".
class ComponentOptions : public CommentableObject {
public:
    /// Parses the line; what stands behind the last `)` is ignored. Raises an Error for a malformed one.
    ComponentOptions(const std::string& line, const std::string& comment);

    const std::string& name() const { return name_; }
    void setName(const std::string& name) { name_ = name; }
    /// Empty until resolved.
    const std::string& objectId() const { return objectId_; }

    const std::map<std::string, std::string>& options() const { return options_; }
    /// Empty for an absent key.
    std::string option(const std::string& key) const;
    void setOption(const std::string& key, const std::string& value) { options_[key] = value; }
    void removeOption(const std::string& key) { options_.erase(key); }
    /// Adds the items of a list `a=1, b`. Raises an Error for an item with more than one `=` and for an empty one.
    void parseOptions(const std::string& text);
    /// `a=1,b=true`
    std::string toString() const;

    /// Takes the id of the component of that name, if `circuit` has it.
    void resolve(Circuit& circuit);

private:
    std::string name_;
    std::string objectId_;
    std::map<std::string, std::string> options_;
};

}  // namespace tarnsim
