#include "Cli/Tarnfmt/FileReplacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <utility>

#include "Core/Support/Error.h"

namespace tarnsim {

namespace {

/// With what the system says about the last call.
[[noreturn]] void fail(const std::string& what) {
    const std::string reason = std::strerror(errno);
    throw Error(what + ": " + reason);
}

/// A descriptor that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    /// Hands it over to the caller.
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

FileStamp stampOf(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

[[noreturn]] void refuseChanged() {
    throw Error(std::string("was changed by somebody else meanwhile"));
}

std::string readAll(int descriptor) {
    std::string bytes;
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t count = read(descriptor, block.data(), block.size());
        if (count == 0) return bytes;
        if (count > 0) {
            bytes.append(block.data(), static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            fail("cannot be read");
        }
    }
}

void writeAll(int descriptor, const std::string& text) {
    std::size_t written = 0;
    while (written < text.size()) {
        const ssize_t count = write(descriptor, text.data() + written, text.size() - written);
        if (count >= 0) {
            written += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            fail("cannot be written");
        }
    }
}

/// Waits for the disk. A pipe or a terminal has none.
void synchronize(int descriptor) {
    if (fsync(descriptor) != 0 && errno != EINVAL && errno != ENOTSUP && errno != EROFS) fail("cannot be written");
}

/// The new file beside the old one. It goes away again unless it takes the old one's place.
class NewFile {
public:
    explicit NewFile(const std::string& folder) : path_(folder + "/.tarnfmt-XXXXXX"), file_(mkostemp()) {}
    ~NewFile() {
        if (!path_.empty()) unlink(path_.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    void write(const std::string& contents) const { writeAll(file_.number(), contents); }

    void takeAttributesOf(const FileSnapshot& old) const {
        struct stat status = {};
        if (fstat(file_.number(), &status) != 0) fail("cannot be written");
        // A user may change somebody else's file but can't make a new one that belongs to them; it's the user's then.
        if (status.st_uid != old.owner || status.st_gid != old.group) {
            std::ignore = fchown(file_.number(), old.owner, old.group);
        }
        if (fchmod(file_.number(), old.mode) != 0) fail("cannot be written");
    }

    void finish() {
        synchronize(file_.number());
        if (close(file_.release()) != 0) fail("cannot be written");
    }

    void renameTo(const std::string& path) {
        if (std::rename(path_.c_str(), path.c_str()) != 0) fail("cannot be replaced");
        path_.clear();
    }

private:
    int mkostemp() {
        const int file = ::mkostemp(path_.data(), O_CLOEXEC);
        if (file >= 0) return file;
        path_.clear();
        fail("no file can be made in its folder");
    }

    std::string path_;  ///< empty when there is no such file
    Descriptor file_;
};

/// The file that a path leads to, past all links.
std::string targetOf(const std::string& path) {
    char* resolved = realpath(path.c_str(), nullptr);
    if (resolved == nullptr) fail("cannot be found any longer");
    std::string target = resolved;
    std::free(resolved);
    return target;
}

void requireUnchanged(const std::string& target, const FileSnapshot& old) {
    struct stat status = {};
    if (lstat(target.c_str(), &status) != 0) fail("cannot be found any longer");
    if (stampOf(status) != old.stamp) refuseChanged();
}

}  // namespace

void refuseSpecialFile(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0 || S_ISREG(status.st_mode)) return;
    throw Error(std::string("is no regular file, it cannot be replaced"));
}

FileSnapshot readSnapshot(const std::string& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.number() < 0) fail("cannot be read");
    struct stat status = {};
    if (fstat(file.number(), &status) != 0) fail("cannot be read");
    FileSnapshot snapshot;
    snapshot.path = path;
    snapshot.stamp = stampOf(status);
    snapshot.mode = status.st_mode & 07777;
    snapshot.owner = status.st_uid;
    snapshot.group = status.st_gid;
    snapshot.contents = readAll(file.number());
    if (fstat(file.number(), &status) != 0) fail("cannot be read");
    if (S_ISREG(status.st_mode) && stampOf(status) != snapshot.stamp) refuseChanged();
    return snapshot;
}

void replaceFile(const FileSnapshot& old, const std::string& contents) {
    const std::string target = targetOf(old.path);
    if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) fail("cannot be written");
    const std::string folder = std::filesystem::path(target).parent_path().string();
    NewFile file(folder);
    file.write(contents);
    file.takeAttributesOf(old);
    file.finish();
    requireUnchanged(target, old);
    file.renameTo(target);
    // The new name is to outlive a power failure too. Both files are whole without it, so nothing depends on it.
    const Descriptor directory(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.number() >= 0) std::ignore = fsync(directory.number());
}

void writeOutput(int descriptor, const std::string& text) {
    writeAll(descriptor, text);
    synchronize(descriptor);
}

}  // namespace tarnsim
