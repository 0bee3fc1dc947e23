#pragma once

#include <cstdint>
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
/// pipe), or can't be read. Raises an Error if somebody changes it meanwhile.
std::optional<std::string> readBytes(const std::string& path, std::size_t most = std::string::npos);

/// A text file, read line by line.
class TextFile {
public:
    /// Opens the file if it can. A directory can't be opened as a text.
    explicit TextFile(const std::string& path);
    /// Stands for a file of that path with these contents; the disk isn't asked.
    TextFile(const std::string& path, const std::string& contents);
    ~TextFile();

    bool isOpen() const { return isOpen_; }

    /// The next line without its line feed; a last line without one counts. False at the end. Raises an Error that
    /// names the file if the system can't read on, for a line of more than 256 MiB, and if somebody changed the file
    /// since it was opened: half a file may look like a whole one.
    bool readLine(std::string& line);

private:
    class Source;

    bool readOn();

    std::string path_;
    std::unique_ptr<Source> source_;  ///< null at the end of the file
    bool isOpen_;
    std::string block_;         ///< what was read last
    std::size_t position_ = 0;  ///< in the block, of the next line
    int lineCount_ = 0;         ///< so far
};

}  // namespace tarnsim
