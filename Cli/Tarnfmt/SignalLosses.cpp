#include "Cli/Tarnfmt/SignalLosses.h"

#include "Core/Support/Text.h"
#include "Core/Support/TextFile.h"
#include "Core/TestVectors/LineKind.h"
#include "Core/TestVectors/TestSequence.h"

namespace tarnsim {

namespace {

std::string optionsSubject(const std::string& name) {
    return "the options of '" + name + "'";
}

std::string assignmentSubject(const std::string& name) {
    return "the assignment to '" + name + "'";
}

void addHeader(const TestVectorHeader& header, Facts& facts) {
    const int line = header.getLineNumber();
    facts.push_back({"the header",
                     {{"comment", header.getCommentText()}, {"separator", header.hasDeltaTime() ? "==(dT)=>" : "=>"}},
                     line});
    for (int i = 1; i < header.columnCount(); ++i) {
        if (i == header.separatorColumn()) continue;
        facts.push_back({"column '" + header.columnName(i) + "'",
                         {{"position", std::to_string(i)}, {"reversal", header.isReversed(i) ? "~" : ""}},
                         line});
    }
}

/// The cell in a column of the header, counted as people count: the time is the first.
void addCell(const TestVectorHeader& header, int column, const TestColumn& cell, Fact& fact) {
    const std::string name = format("cell %d ('%s')", column + 1, header.columnName(column).c_str());
    fact.aspects[name] = (cell.reversed ? "~" : "") + cell.value;
}

void addVector(const TestVectorHeader& header, const TestVector& vector, Facts& facts) {
    Fact fact{format("the vector at %d", vector.time()),
              {{"comment", vector.getCommentText()}, {"delta time", std::to_string(vector.deltaTime())}},
              vector.getLineNumber()};
    int column = 1;
    for (const TestColumn& cell : vector.inputs()) addCell(header, column++, cell, fact);
    column = header.separatorColumn() + 1;
    for (const TestColumn& cell : vector.outputs()) addCell(header, column++, cell, fact);
    facts.push_back(fact);
}

Facts factsOf(const TestSequence& sequence) {
    Facts facts;
    for (const std::string& comment : sequence.comments())
        facts.push_back({"the file's comment '" + comment + "'", {}});
    for (const auto& options : sequence.options()) {
        Fact fact{optionsSubject(options->name()), {{"comment", options->getCommentText()}}};
        for (const auto& [key, value] : options->options()) fact.aspects["value '" + key + "'"] = value;
        facts.push_back(fact);
    }
    for (const auto& assignment : sequence.assignments()) {
        facts.push_back({assignmentSubject(assignment->name()),
                         {{"value", assignment->value()}, {"comment", assignment->getCommentText()}}});
    }
    addHeader(*sequence.header(), facts);
    for (const auto& vector : sequence.vectors()) addVector(*sequence.header(), *vector, facts);
    return facts;
}

}  // namespace

SignalSource::SignalSource(const std::string& contents) {
    TextFile file("", contents);
    std::string line;
    while (file.readLine(line)) {
        ++line_;
        prepareLine(line);
        if (line.empty()) continue;
        handleRecord(line);
        lineOfComment_ = 0;
    }
    if (lineOfComment_ != 0) losses_.push_back({lineOfComment_, "loses the comment behind the last line"});
}

void SignalSource::addCommentLine(const std::string& /*text*/) {
    if (lineOfComment_ == 0) lineOfComment_ = line_;
}

void SignalSource::handleRecord(const std::string& line) {
    const LineKind kind = lineKindOf(line);
    if (kind == LineKind::ComponentOptions) handleOptions(line);
    if (kind == LineKind::PortAssignment) lines_.add(assignmentSubject(PortAssignment(line, "").name()), line_);
}

void SignalSource::handleOptions(const std::string& line) {
    const ComponentOptions options(line, "");
    lines_.add(optionsSubject(options.name()), line_);
    const std::size_t close = line.rfind(')');
    const std::string rest = trimmed(line.substr(close + 1));
    if (!rest.empty()) losses_.push_back({line_, "leaves out '" + rest + "', which has no effect"});
    const std::string list = line.substr(0, close).substr(line.find('(') + 1);
    if (split(list, ',').size() > options.options().size()) {
        losses_.push_back({line_, "leaves out repetitions in '" + line + "'"});
    }
}

std::vector<Loss> lossesOf(const TestSequence& before, const TestSequence& after, const SignalSource& source) {
    std::vector<Loss> losses = source.losses();
    const std::vector<Loss> found = lossesBetween(factsOf(before), factsOf(after), source.lines());
    losses.insert(losses.end(), found.begin(), found.end());
    return losses;
}

}  // namespace tarnsim
