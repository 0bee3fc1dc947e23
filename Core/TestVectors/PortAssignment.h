#pragma once

#include <string>

#include "Core/Support/Comment.h"

namespace tarnsim {

class Circuit;

/// A line `clk.en = H` of a signal file: the value of a port at time 0.
class PortAssignment : public CommentableObject {
public:
    /// Parses the line. Raises an Error unless it has exactly one `=` with something behind it.
    PortAssignment(const std::string& line, const std::string& comment);

    const std::string& name() const { return name_; }
    void setName(const std::string& name) { name_ = name; }
    const std::string& value() const { return value_; }
    void setValue(const std::string& value) { value_ = value; }
    /// Empty until resolved.
    const std::string& objectId() const { return objectId_; }
    void setObjectId(const std::string& objectId) { objectId_ = objectId; }

    /// Takes the id of the port of that name, if `circuit` has it.
    void resolve(Circuit& circuit);

private:
    std::string name_;
    std::string objectId_;
    std::string value_;
};

}  // namespace tarnsim
