#include "Core/Circuit/FileParser.h"

#include "Core/Support/Text.h"

namespace tarnsim {

void FileParser::prepareLine(std::string& line) {
    stripComment(line);
    trim(line);
}

void FileParser::stripComment(std::string& line) {
    const std::size_t hash = line.find('#');
    if (hash == std::string::npos) return;
    const std::string comment = trimmed(std::string_view(line).substr(hash + 1));
    line.erase(hash);
    addCommentLine(comment);
}

}  // namespace tarnsim
