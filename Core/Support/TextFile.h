#pragma once

#include <fstream>
#include <string>

namespace tarnsim {

/// True if the file system answers for `path`, be it a file or a directory.
bool fileExists(const std::string& path);

/// A text file, read line by line.
class TextFile {
public:
    /// Opens the file if it can. A directory can't be opened as a text.
    explicit TextFile(const std::string& path);

    bool isOpen() const { return stream_.is_open(); }

    /// The next line without its line feed; a last line without one counts. False at the end. Raises an Error that
    /// names the file if the system can't read on.
    bool readLine(std::string& line);

private:
    std::string path_;
    std::ifstream stream_;
};

}  // namespace tarnsim
