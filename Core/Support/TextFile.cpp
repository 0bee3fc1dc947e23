#include "Core/Support/TextFile.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <limits>
#include <sstream>

#include "Core/Support/Error.h"

namespace tarnsim {

namespace {

/// What goes on for ever, as /dev/zero does, mustn't take all memory; and a cell of that many hexadecimal digits has
/// bits that 32 bits can number.
constexpr std::size_t kMostInLine = std::size_t{256} << 20U;

bool isDirectory(const std::string& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

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
    struct stat status = {};
    const bool isFile = stat(path.c_str(), &status) == 0 && (S_ISREG(status.st_mode) || S_ISCHR(status.st_mode));
    if (!isFile) return std::nullopt;
    std::ifstream stream(path, std::ios::binary);
    if (!stream.is_open()) return std::nullopt;
    std::string bytes;
    std::array<char, 65536> block{};
    do {
        const std::size_t wanted = std::min(block.size(), most - bytes.size());
        stream.read(block.data(), static_cast<std::streamsize>(wanted));
        bytes.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    } while (stream.good() && bytes.size() < most);
    return stream.bad() ? std::nullopt : std::optional(bytes);
}

TextFile::TextFile(const std::string& path) : path_(path) {
    if (isDirectory(path)) return;
    auto file = std::make_unique<std::ifstream>(path);
    if (file->is_open()) stream_ = std::move(file);
}

TextFile::TextFile(const std::string& path, const std::string& contents)
    : path_(path), stream_(std::make_unique<std::istringstream>(contents)) {}

bool TextFile::readLine(std::string& line) {
    line.clear();
    if (!isOpen() || !stream_->good()) return false;
    std::array<char, 4096> part;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
    while (true) {
        stream_->getline(part.data(), part.size());
        if (stream_->bad()) throw Error("Error: cannot read file '%s'.", path_.c_str());
        const auto count = static_cast<std::size_t>(stream_->gcount());
        const bool hasLineFeed = stream_->good();
        line.append(part.data(), hasLineFeed ? count - 1 : count);  // a line feed counts and isn't stored
        if (hasLineFeed || stream_->eof()) break;
        stream_->clear();  // the part is full, and the line goes on
        if (line.size() > kMostInLine) {
            throw Error("Error: line %d of file '%s' has more than %d characters.", lineCount_ + 1, path_.c_str(),
                        static_cast<int>(kMostInLine));
        }
    }
    if (stream_->eof() && line.empty()) return false;
    if (lineCount_ == std::numeric_limits<int>::max()) {
        throw Error("Error: file '%s' has more than %d lines.", path_.c_str(), lineCount_);
    }
    ++lineCount_;
    return true;
}

}  // namespace tarnsim
