#pragma once

#include <gtest/gtest.h>

#include <exception>
#include <filesystem>
#include <functional>
#include <string>

#include "Core/Support/Error.h"

namespace tarnsim {

/// The message of the Error that `action` raises; "(no Error)" if it raises none.
inline std::string errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.what();
    }
    return "(no Error)";
}

/// The text of the standard exception of just this type that `action` raises; "(none)" if it raises none.
template <class Exception>
std::string standardExceptionOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Exception& exception) {
        return exception.what();
    }
    return "(none)";
}

/// What `action` writes to the standard output, or the error stream.
std::string outputOf(const std::function<void()>& action);
std::string errorOutputOf(const std::function<void()>& action);

/// A folder that is there while the object lives.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// The path of `name` in the folder.
    std::string path(const std::string& name) const { return (folder_ / name).string(); }
    /// Writes a file, with the folders above it, and gives its path.
    std::string write(const std::string& name, const std::string& text) const;

private:
    std::filesystem::path folder_;
};

/// Makes a folder the working directory while the object lives.
class WorkingDirectory {
public:
    explicit WorkingDirectory(const std::string& path) : former_(std::filesystem::current_path()) {
        std::filesystem::current_path(path);
    }
    ~WorkingDirectory() { std::filesystem::current_path(former_); }
    WorkingDirectory(const WorkingDirectory&) = delete;
    WorkingDirectory& operator=(const WorkingDirectory&) = delete;

private:
    std::filesystem::path former_;
};

}  // namespace tarnsim
