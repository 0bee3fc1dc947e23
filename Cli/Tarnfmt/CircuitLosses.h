#pragma once

#include <string>
#include <vector>

#include "Cli/Tarnfmt/Losses.h"
#include "Core/Circuit/FileParser.h"

namespace tarnsim {

class CircuitSpec;

/// The text of one circuit file by itself, without those that it names: where its statements stand, and what only the
/// text shows. A file that can't be loaded is no use here.
class CircuitSource : public FileParser {
public:
    explicit CircuitSource(const std::string& contents);

    const SourceLines& lines() const { return lines_; }
    /// What no normal form keeps: imports, and text that a reader skips.
    const std::vector<Loss>& losses() const { return losses_; }
    /// The first line of the comment that stands behind the last statement; 0 if there is none.
    int lineOfLastComment() const { return lineOfComment_; }

    void addCommentLine(const std::string& text) override;

private:
    using Fields = std::vector<std::string>;

    void handleStatement(const std::string& line);
    void handleCircuit(const Fields& fields, const std::string& line);
    void handleUnit(const Fields& fields);
    void handlePorts(const Fields& fields, std::size_t firstName);
    void addQuoted(const std::string& kind, const std::string& line);
    /// What stands there is skipped by every reader.
    void addIdleText(const std::string& text);
    std::string subject(const std::string& kind, const std::string& name) const;

    int line_ = 0;
    int lineOfComment_ = 0;
    std::vector<std::string> place_;  ///< the open bodies
    SourceLines lines_;
    std::vector<Loss> losses_;
};

/// What the circuit file `before` would lose if `after` stood in its place, in the order of the lines.
std::vector<Loss> lossesOf(const CircuitSpec& before, const CircuitSpec& after, const CircuitSource& source);

}  // namespace tarnsim
