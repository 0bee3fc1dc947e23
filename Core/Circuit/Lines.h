#pragma once

#include <string>
#include <vector>

#include "Core/Support/Comment.h"

namespace tarnsim {

// The statements of a circuit file, one class for each kind. A constructor takes the fields of the statement, the
// keyword first, and raises an Error that names file and line if its shape is wrong.

/// Where a statement stands, and the comment above or behind it.
class Line : public CommentableObject {
public:
    Line(int number, const std::string& file) : lineNumber(number), fileName(file) {}
    Line(const Line&) = default;
    Line& operator=(const Line&) = default;
    Line(Line&&) noexcept = default;
    Line& operator=(Line&&) noexcept = default;
    ~Line() override = default;

    int lineNumber;
    std::string fileName;
};

/// `MetaData <key> "<value>"`
class MetaDataLine : public Line {
public:
    MetaDataLine(const std::string& name, const std::string& text, int number, const std::string& file);

    std::string key;
    std::string value;
};

/// `Net <name> <port>...` A net with one port is taken for a slip, perhaps a forgotten name, and warned of on the error
/// stream.
class NetLine : public Line {
public:
    NetLine(const std::vector<std::string>& fields, int number, const std::string& file);

    /// The first of this net's ports that the other net names too; empty if there is none.
    std::string sharedPort(const NetLine& other) const;

    std::string name;
    std::vector<std::string> ports;  ///< paths as written
};

/// `Pin <direction> <name>...`
class PinLine : public Line {
public:
    PinLine(const std::vector<std::string>& fields, int number, const std::string& file);

    std::vector<std::string> names;
    std::string direction;  ///< as written; checked when the circuit is built
};

/// `Port <direction> <size> <name>...`
class PortLine : public Line {
public:
    PortLine(const std::vector<std::string>& fields, int number, const std::string& file);

    std::vector<std::string> names;
    std::string direction;  ///< Input, Output or Inout
    std::string size;       ///< a decimal number, perhaps with a sign
};

/// `Unit <type> <instance>...` An instance `name[n]` stands for `name[0]` to `name[n-1]`. All together are 16 million
/// at most.
class UnitLine : public Line {
public:
    UnitLine(const std::vector<std::string>& fields, int number, const std::string& file);

    std::string type;
    std::vector<std::string> names;  ///< arrays written out
};

}  // namespace tarnsim
