#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Core/Circuit/FileParser.h"

namespace tarnsim {

class TestSequence;
class TextFile;

/// Reads a signal file into a TestSequence, line by line. Used for one file. The format is told in Docs/Formats.md.
class TestSequenceFileReader : public FileParser {
public:
    /// Clears `sequence`, then fills it. Raises an Error that names the line; what was read before it stays in
    /// `sequence`.
    void read(const std::string& path, TestSequence& sequence);
    /// The same as if the file held `contents`.
    void read(const std::string& path, const std::string& contents, TestSequence& sequence);

    /// A comment above the first record belongs to the file, every other one to the next record.
    void addCommentLine(const std::string& text) override;

private:
    void readLines(TextFile& file, const std::string& path, TestSequence& sequence);
    void handleLine(const std::string& line);
    void addHeader(const std::string& line);
    void addVector(const std::string& line);
    std::string takeComment();
    void validate() const;

    int lineNumber_ = 0;
    std::string fileName_;
    TestSequence* sequence_ = nullptr;  ///< not owned
    std::string pendingComment_;
    bool beforeFirstRecord_ = true;
    std::vector<std::string_view> words_;  ///< of a vector; kept for its room
};

}  // namespace tarnsim
