#pragma once

#include <string>
#include <vector>

#include "Cli/Tarnfmt/Losses.h"
#include "Core/Circuit/FileParser.h"

namespace tarnsim {

class TestSequence;

/// The text of a signal file: where its options and assignments stand, and what only the text shows. A file that can't
/// be loaded is no use here.
class SignalSource : public FileParser {
public:
    explicit SignalSource(const std::string& contents);

    const SourceLines& lines() const { return lines_; }
    /// What no normal form keeps: the comment behind the last record, and text that a reader skips.
    const std::vector<Loss>& losses() const { return losses_; }

    void addCommentLine(const std::string& text) override;

private:
    void handleRecord(const std::string& line);
    void handleOptions(const std::string& line);

    int line_ = 0;
    int lineOfComment_ = 0;  ///< of the first line of the one that the next record takes
    SourceLines lines_;
    std::vector<Loss> losses_;
};

/// What the signal file `before` would lose if `after` stood in its place, in the order of the lines.
std::vector<Loss> lossesOf(const TestSequence& before, const TestSequence& after, const SignalSource& source);

}  // namespace tarnsim
