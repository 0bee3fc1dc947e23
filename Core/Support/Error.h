#pragma once

#include <string>

namespace tarnsim {

/// The exception of the whole program: one finished message that a designer can read.
///
/// Thrown by value and caught by reference. It stands outside the standard exception hierarchy on purpose: a handler
/// that wants it must name it, and a standard exception (a refused `Value`, a number beyond 32 bits) is never mistaken
/// for a message about the design.
class Error {
public:
    /// Stores the text as it is, whatever its length.
    explicit Error(const std::string& text);

    /// Formats as printf does, into 2048 bytes with the terminator: what is longer is cut.
    explicit Error(const char* format, ...) __attribute__((format(printf, 2, 3)));

    const std::string& what() const { return message_; }

private:
    std::string message_;
};

}  // namespace tarnsim
