#include "Core/Support/TextFile.h"

#include <sys/stat.h>

#include "Core/Support/Error.h"

namespace tarnsim {

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

TextFile::TextFile(const std::string& path) : path_(path) {
    struct stat status = {};
    const bool isDirectory = stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    if (!isDirectory) stream_.open(path);
}

bool TextFile::readLine(std::string& line) {
    if (std::getline(stream_, line)) return true;
    if (stream_.bad()) throw Error("Error: cannot read file '%s'.", path_.c_str());
    return false;
}

}  // namespace tarnsim
