#pragma once

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace tarnsim {

/// A line of m6502.txt or w65c02.txt, which tell how to read them.
struct PageLine {
    int opcode = 0;
    std::string mnemonic;
    std::string mode;
    std::string cycles;
    std::vector<std::string> trace;

    bool neverEnds() const { return cycles == "-"; }

    /// Bytes of the instruction.
    unsigned size() const {
        if (mode == "implied" || mode == "A") return 1;
        const bool isLong = mode.find("abs") != std::string::npos || mode == "zp,rel";
        return isLong ? 3 : 2;
    }
    /// Cycles where `holds` says which of the conditions p, t and d are met.
    template <class Holds>
    int cyclesWhere(Holds holds) const {
        int result = cycles.front() - '0';
        for (std::size_t i = 2; i < cycles.size(); i += 2) result += holds(cycles[i]) ? 1 : 0;
        return result;
    }
    std::string text() const {
        std::ostringstream stream;
        stream << std::hex << std::uppercase << opcode << " " << mnemonic << " " << mode;
        return stream.str();
    }
};

/// The page `name` beside the test whose source is `file`.
inline std::vector<PageLine> readPage(const char* file, const std::string& name) {
    std::ifstream stream(std::filesystem::path(file).parent_path() / name);
    std::vector<PageLine> lines;
    for (std::string text; std::getline(stream, text);) {
        if (text.starts_with("#")) continue;
        PageLine line;
        std::istringstream words(text);
        words >> std::hex >> line.opcode >> line.mnemonic >> line.mode >> line.cycles;
        for (std::string word; words >> word;) line.trace.push_back(word);
        lines.push_back(line);
    }
    return lines;
}

}  // namespace tarnsim
