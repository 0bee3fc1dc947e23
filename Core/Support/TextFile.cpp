#include "Core/Support/TextFile.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>

#include "Core/Support/Error.h"

namespace tarnsim {

namespace {

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
    if (!isOpen()) return false;
    if (std::getline(*stream_, line)) return true;
    if (stream_->bad()) throw Error("Error: cannot read file '%s'.", path_.c_str());
    return false;
}

}  // namespace tarnsim
