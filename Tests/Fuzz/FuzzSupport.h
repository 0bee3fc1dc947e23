#pragma once

#include <exception>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "Core/Circuit/CircuitSpec.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {

/// Something that a target found not to hold. Outside of the standard exceptions, as those may be right.
class Finding {
public:
    explicit Finding(const std::string& text) : text_(text) {}
    const std::string& what() const { return text_; }

private:
    std::string text_;
};

/// Raises a Finding unless `holds`.
void check(bool holds, const std::string& text);
/// The same unless the texts are equal, with the first line that isn't.
void checkSame(const std::string& one, const std::string& other, const std::string& text);

// Standard exceptions that may end a run. They are told by their texts, so that the same exception out of a container
// is a finding.

/// A number in a file that is beyond 32 bits.
bool isNumberTooLarge(const std::exception& exception);
/// A value that refuses what it is given.
bool isRefusedValue(const std::exception& exception);
/// An image that runs past the end of a memory which has no other way to refuse it.
bool isPastTheMemory(const std::exception& exception);

/// Runs `action`, with nothing printed. False if it ended in an Error or in one of the named exceptions; others go on.
bool completes(const std::function<void()>& action,
               std::initializer_list<bool (*)(const std::exception&)> rightEnds = {});

/// Several files in one input: the circuit file, and behind each line `@name` a file of that name, `@signals` for the
/// signal file. What stands there under a name that is no plain one counts for nothing.
struct FuzzInput {
    explicit FuzzInput(std::string_view input);

    /// Whether it's worth a try: without devices, bombs of files that import others, or huge arrays, which cost time
    /// and memory and say nothing new.
    bool isModest() const;

    std::string circuit;
    std::string signals;
    std::map<std::string, std::string> files;
};

/// A limit to what a circuit is made of, all copies counted: parts, ports and nets.
bool isSmall(const CircuitSpec& spec);

/// A temporary folder with these files, which is the working directory while the object lives.
class FuzzFolder {
public:
    explicit FuzzFolder(const std::map<std::string, std::string>& files);
    ~FuzzFolder();
    FuzzFolder(const FuzzFolder&) = delete;
    FuzzFolder& operator=(const FuzzFolder&) = delete;

private:
    WorkingDirectory here_;
    bool hasFiles_;
};

}  // namespace tarnsim
