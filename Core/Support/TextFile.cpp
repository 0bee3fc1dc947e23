#include "Core/Support/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>

#include "Core/Support/Error.h"

namespace tarnsim {

namespace {

/// What goes on for ever, as /dev/zero does, mustn't take all memory; and a cell of that many hexadecimal digits has
/// bits that 32 bits can number.
constexpr std::size_t kMostInLine = std::size_t{256} << 20U;

constexpr std::size_t kBlockSize = 65536;

/// An open file, or one that couldn't be opened.
class InputFile {
public:
    /// `flags` are further ones of `open`.
    explicit InputFile(const std::string& path, int flags = 0)
        : number_(open(path.c_str(), O_RDONLY | O_CLOEXEC | flags)) {
        isOpen_ = number_ >= 0 && fstat(number_, &status_) == 0;
    }
    ~InputFile() {
        if (number_ >= 0) close(number_);
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    bool isOpen() const { return isOpen_; }
    /// What it was when it was opened.
    bool isDirectory() const { return S_ISDIR(status_.st_mode); }
    bool isRegular() const { return S_ISREG(status_.st_mode); }
    bool isDevice() const { return S_ISCHR(status_.st_mode); }

    void letReadingWait() const { fcntl(number_, F_SETFL, 0); }

    /// Appends up to `most` bytes and gives how many; 0 at the end, -1 if the system can't read on.
    ssize_t read(std::string& bytes, std::size_t most) const {
        const std::size_t size = bytes.size();
        bytes.resize(size + most);
        ssize_t count = 0;
        do {
            count = ::read(number_, bytes.data() + size, most);
        } while (count < 0 && errno == EINTR);
        bytes.resize(size + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        return count;
    }

    /// Raises an Error if somebody wrote to it since it was opened. One that was removed or replaced under its name
    /// stays what it was.
    void requireUnchanged(const std::string& path) const {
        struct stat now = {};
        if (!isRegular() || fstat(number_, &now) != 0) return;
        if (now.st_size == status_.st_size && now.st_mtim.tv_sec == status_.st_mtim.tv_sec &&
            now.st_mtim.tv_nsec == status_.st_mtim.tv_nsec) {
            return;
        }
        throw Error("Error: file '%s' was changed while it was read.", path.c_str());
    }

private:
    int number_;
    bool isOpen_ = false;
    struct stat status_ = {};
};

}  // namespace

bool fileExists(const std::string& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0;
}

FileIdentity::FileIdentity(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) return;
    device = status.st_dev;
    number = status.st_ino;
}

std::optional<std::string> readBytes(const std::string& path, std::size_t most) {
    // Opening a pipe would wait for somebody who writes to it.
    const InputFile file(path, O_NONBLOCK);
    if (!file.isOpen() || !(file.isRegular() || file.isDevice())) return std::nullopt;
    file.letReadingWait();
    std::string bytes;
    while (bytes.size() < most) {
        const ssize_t count = file.read(bytes, std::min(kBlockSize, most - bytes.size()));
        if (count < 0) return std::nullopt;
        if (count == 0) break;
    }
    file.requireUnchanged(path);
    return bytes;
}

class TextFile::Source : public InputFile {
public:
    using InputFile::InputFile;
};

TextFile::TextFile(const std::string& path) : path_(path), source_(std::make_unique<Source>(path)) {
    isOpen_ = source_->isOpen() && !source_->isDirectory();
    if (!isOpen_) source_.reset();
}

TextFile::TextFile(const std::string& path, const std::string& contents)
    : path_(path), isOpen_(true), block_(contents) {}

TextFile::~TextFile() = default;

bool TextFile::readOn() {
    block_.clear();
    position_ = 0;
    if (!source_) return false;
    const ssize_t count = source_->read(block_, kBlockSize);
    if (count < 0) throw Error("Error: cannot read file '%s'.", path_.c_str());
    if (count > 0) return true;
    source_->requireUnchanged(path_);
    source_.reset();
    return false;
}

bool TextFile::readLine(std::string& line) {
    line.clear();
    bool hasLineFeed = false;
    do {
        const std::size_t end = block_.find('\n', position_);
        hasLineFeed = end != std::string::npos;
        line.append(block_, position_, end - position_);
        position_ = end + 1;
        if (line.size() > kMostInLine) {
            throw Error("Error: line %d of file '%s' has more than %d characters.", lineCount_ + 1, path_.c_str(),
                        static_cast<int>(kMostInLine));
        }
    } while (!hasLineFeed && readOn());
    if (!hasLineFeed && line.empty()) return false;
    if (lineCount_ == std::numeric_limits<int>::max()) {
        throw Error("Error: file '%s' has more than %d lines.", path_.c_str(), lineCount_);
    }
    ++lineCount_;
    return true;
}

}  // namespace tarnsim
