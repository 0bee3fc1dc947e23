#pragma once

#include <cstdint>
#include <istream>
#include <memory>
#include <optional>
#include <string>

namespace tarnsim {

/// True if the file system answers for `path`, be it a file or a directory.
bool fileExists(const std::string& path);

/// Which file a path leads to, however it is written: the same for two paths to one file.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;

    /// Of a path that leads nowhere, the identity of no file.
    explicit FileIdentity(const std::string& path);
    bool operator==(const FileIdentity&) const = default;
};

/// The first `most` bytes of a file, or all if there are fewer; nothing if it isn't there, is no file (a directory, a
/// pipe), or can't be read.
std::optional<std::string> readBytes(const std::string& path, std::size_t most = std::string::npos);

/// A text file, read line by line.
class TextFile {
public:
    /// Opens the file if it can. A directory can't be opened as a text.
    explicit TextFile(const std::string& path);
    /// Stands for a file of that path with these contents; the disk isn't asked.
    TextFile(const std::string& path, const std::string& contents);

    bool isOpen() const { return stream_ != nullptr; }

    /// The next line without its line feed; a last line without one counts. False at the end. Raises an Error that
    /// names the file if the system can't read on, and for a line of more than 256 MiB.
    bool readLine(std::string& line);

private:
    std::string path_;
    std::unique_ptr<std::istream> stream_;  ///< null if the file can't be opened
    int lineCount_ = 0;                     ///< so far
};

}  // namespace tarnsim
