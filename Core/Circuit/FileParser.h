#pragma once

#include <string>

namespace tarnsim {

/// What the parsers of both kinds of files share: taking the comment off a line.
class FileParser {
public:
    virtual ~FileParser() = default;

    /// Receives the text of each comment, without `#` and trimmed.
    virtual void addCommentLine(const std::string& text) = 0;

    /// Trims the line, hands what stands behind the first `#` to addCommentLine, cuts it off, and trims again. There is
    /// no way to write a `#` that isn't a comment.
    void prepareLine(std::string& line);

private:
    void stripComment(std::string& line);
};

}  // namespace tarnsim
