#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

namespace tarnsim {

/// What shows that a file was changed.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::int64_t size = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    bool operator==(const FileStamp&) const = default;
};

/// A file as it was when it was read.
struct FileSnapshot {
    std::string path;  ///< perhaps through links
    std::string contents;
    FileStamp stamp;
    mode_t mode = 0;
    uid_t owner = 0;
    gid_t group = 0;
};

/// Raises an Error for a directory, a device or a pipe, which no file can replace. What isn't there is no such thing.
void refuseSpecialFile(const std::string& path);

/// Reads all of a file. Raises an Error that gives the system's reason.
FileSnapshot readSnapshot(const std::string& path);

/// Puts `contents` in the place of a regular file: into a new file in the same folder, which takes over mode and, where
/// the system allows it, owner, and is renamed when everything is on the disk. Of a link the file behind it is
/// replaced. Raises an Error, and leaves the old file as it is, if that fails, or if the old file isn't the one that
/// was read any longer, or mustn't be written.
void replaceFile(const FileSnapshot& old, const std::string& contents);

/// Writes to an open file, such as the standard output, and makes sure that all of it arrives. Raises an Error.
void writeOutput(int descriptor, const std::string& text);

}  // namespace tarnsim
