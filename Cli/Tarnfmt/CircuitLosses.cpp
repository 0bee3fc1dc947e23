#include "Cli/Tarnfmt/CircuitLosses.h"

#include <algorithm>
#include <set>

#include "Core/Circuit/CircuitSpec.h"
#include "Core/Circuit/ComponentFactory.h"
#include "Core/Circuit/NamePatterns.h"
#include "Core/Support/Text.h"
#include "Core/Support/TextFile.h"

namespace tarnsim {

namespace {

using Place = std::vector<std::string>;

std::string subjectOf(const std::string& kind, const std::string& name, const Place& place) {
    std::string text = kind;
    text.append(" '").append(name).append("'");
    if (place.empty()) return text;
    text.append(" in circuit '").append(place.front());
    for (auto each = place.begin() + 1; each != place.end(); ++each) text.append(".").append(*each);
    return text.append("'");
}

/// A port as its statement writes it, split up. A text that isn't of the form stands for itself, so that it's missed
/// when it has gone.
struct WrittenPort {
    std::string name;
    std::string list;

    explicit WrittenPort(const std::string& text) {
        const auto parts = matchPortText(text);
        name = parts ? parts->name : text;
        if (parts) list = parts->list;
    }

    /// What differs from a port without options.
    std::string options() const { return ParaMap(list).toStringExcept(ParaMap("(ztr=on)")); }
};

/// The same for a unit. The name of a unit of a declared type is all of the text.
struct WrittenUnit {
    std::string name;
    std::string list;

    WrittenUnit(const std::string& type, const std::string& text) : name(text) {
        const auto parts = ComponentFactory::isBuiltIn(type) ? matchInstanceText(text) : std::nullopt;
        if (!parts) return;
        name = parts->name;
        list = parts->list;
    }

    std::string parameters(const std::string& type) const {
        const ParaMap defaults = ComponentFactory::getDefaults(type);
        ParaMap all = defaults;
        all.parse(list);
        return all.toStringExcept(defaults);
    }
};

/// A comment belongs to the first name of a statement.
std::string commentFor(const Line& line, std::size_t n) {
    return n == 0 ? line.getCommentText() : "";
}

template <class PortStatement>
void addPorts(const PortStatement& line, const std::string& width, const Place& place, Facts& facts) {
    for (std::size_t i = 0; i < line.names.size(); ++i) {
        const WrittenPort port(line.names[i]);
        facts.push_back({subjectOf("port", port.name, place),
                         {{"direction", line.direction},
                          {"width", width},
                          {"options", port.options()},
                          {"comment", commentFor(line, i)}}});
    }
}

void addUnits(const UnitLine& line, const Place& place, Facts& facts) {
    for (std::size_t i = 0; i < line.names.size(); ++i) {
        const WrittenUnit unit(line.type, line.names[i]);
        facts.push_back(
            {subjectOf("unit", unit.name, place),
             {{"type", line.type}, {"parameters", unit.parameters(line.type)}, {"comment", commentFor(line, i)}}});
    }
}

void addNet(const NetLine& line, const Place& place, Facts& facts) {
    std::string ports;
    for (const std::string& port : line.ports) ports.append(port).append(" ");
    facts.push_back({subjectOf("net", line.name, place), {{"ports", ports}, {"comment", line.getCommentText()}}});
}

/// Of an inline circuit only that it's there: its body has facts of its own. Of one with a file the file, and where it
/// is found, since that depends on the import paths.
void addCircuit(const CircuitSpec& spec, const Place& place, Facts& facts) {
    Fact fact{subjectOf("circuit", spec.getName(), place), {}};
    if (!spec.isInline()) fact.aspects = {{"path", spec.getFileName()}, {"file", spec.getSourceFile()}};
    facts.push_back(fact);
}

/// Each once: a second look into the same directory finds nothing.
std::vector<std::string> importPathsOf(const CircuitSpec& spec) {
    std::vector<std::string> paths;
    for (const std::string& path : spec.importPaths) {
        if (std::ranges::find(paths, path) == paths.end()) paths.push_back(path);
    }
    return paths;
}

Facts factsOf(const CircuitSpec& spec, const Place& place) {
    Facts facts;
    for (const MetaDataLine& line : spec.metaDataLines) {
        facts.push_back({subjectOf("meta data", line.key, place), {{"value", line.value}}});
    }
    for (const std::string& comment : spec.freeComments) {
        facts.push_back({subjectOf("comment", trimmed(comment), place), {{"text", comment}}});
    }
    for (const std::string& path : importPathsOf(spec)) facts.push_back({subjectOf("import path", path, place), {}});
    for (const auto& circuit : spec.subSpecs) addCircuit(*circuit, place, facts);
    for (const PinLine& line : spec.pinLines) addPorts(line, "1", place, facts);
    for (const PortLine& line : spec.portLines) addPorts(line, std::to_string(std::stoi(line.size)), place, facts);
    for (const UnitLine& line : spec.unitLines) addUnits(line, place, facts);
    for (const NetLine& line : spec.netLines) addNet(line, place, facts);
    return facts;
}

const CircuitSpec* findInline(const CircuitSpec& spec, const std::string& name) {
    const auto found = std::ranges::find_if(
        spec.subSpecs, [&](const auto& circuit) { return circuit->getName() == name && circuit->isInline(); });
    return found == spec.subSpecs.end() ? nullptr : found->get();
}

void compareBodies(const CircuitSpec& before, const CircuitSpec& after, const Place& place, const SourceLines& lines,
                   std::vector<Loss>& losses) {
    const std::vector<Loss> found = lossesBetween(factsOf(before, place), factsOf(after, place), lines);
    losses.insert(losses.end(), found.begin(), found.end());
    for (const auto& circuit : before.subSpecs) {
        const CircuitSpec* counterpart = circuit->isInline() ? findInline(after, circuit->getName()) : nullptr;
        if (counterpart == nullptr) continue;
        Place inside = place;
        inside.push_back(circuit->getName());
        compareBodies(*circuit, *counterpart, inside, lines, losses);
    }
}

/// A quoted value of a line, and what stands behind it.
struct QuotedValue {
    std::string value;
    std::string rest;

    explicit QuotedValue(const std::string& line) {
        const std::size_t open = line.find_first_of("\"'");
        const std::size_t close = open == std::string::npos ? open : line.find(line[open], open + 1);
        if (close == std::string::npos) return;
        value = line.substr(open + 1, close - open - 1);
        rest = trimmed(line.substr(close + 1));
    }
};

/// The list gives a key twice, or more than one value for a key: one of them counts.
bool hasIdleItems(const std::string& list) {
    if (list.size() < 3) return false;
    std::set<std::string> keys;
    for (const std::string& item : split(std::string_view(list).substr(1, list.size() - 2), ',')) {
        const std::vector<std::string> pieces = split(item, '=');
        if (pieces.size() > 2 || (!pieces.empty() && !keys.insert(pieces[0]).second)) return true;
    }
    return false;
}

}  // namespace

CircuitSource::CircuitSource(const std::string& contents) {
    TextFile file("", contents);
    std::string line;
    while (file.readLine(line)) {
        ++line_;
        const bool endsComment = line.empty();
        prepareLine(line);
        if (!line.empty()) handleStatement(line);
        if (endsComment || !line.empty()) lineOfComment_ = 0;
    }
}

void CircuitSource::addCommentLine(const std::string& /*text*/) {
    if (lineOfComment_ == 0) lineOfComment_ = line_;
}

std::string CircuitSource::subject(const std::string& kind, const std::string& name) const {
    return subjectOf(kind, name, place_);
}

void CircuitSource::addIdleText(const std::string& text) {
    if (!text.empty()) losses_.push_back({line_, "leaves out '" + text + "', which has no effect"});
}

void CircuitSource::handleStatement(const std::string& line) {
    const Fields fields = splitWords(line);
    const std::string& keyword = fields[0];
    if (keyword == "Import") {
        const QuotedValue file(line);
        losses_.push_back({line_, "has the contents of '" + file.value + "' in place of the Import"});
        addIdleText(file.rest);
    } else if (keyword == "ImportPath") {
        const QuotedValue path(line);
        lines_.add(subjectOf("import path", path.value, {}), line_);  // of the whole load, wherever it stands
        addIdleText(path.rest);
    } else if (keyword == "MetaData") {
        lines_.add(subject("meta data", fields[1]), line_);
        addIdleText(QuotedValue(line).rest);
    } else if (keyword == "Circuit") {
        handleCircuit(fields, line);
    } else if (keyword == "}") {
        if (!place_.empty()) place_.pop_back();
    } else if (keyword == "Unit") {
        handleUnit(fields);
    } else if (keyword == "Net") {
        lines_.add(subject("net", fields[1]), line_);
    } else {
        handlePorts(fields, keyword == "Pin" ? 2 : 3);
    }
}

void CircuitSource::handleCircuit(const Fields& fields, const std::string& line) {
    lines_.add(subject("circuit", fields[1]), line_);
    if (fields[2].front() != '{') {
        addIdleText(QuotedValue(line).rest);
        return;
    }
    place_.push_back(fields[1]);
    // Quotes and keywords play no part in this form, so the brace is the first one behind the name.
    const std::size_t name = line.find(fields[1], line.find_first_of(kWhiteSpace));
    addIdleText(trimmed(line.substr(line.find('{', name + fields[1].size()) + 1)));
}

void CircuitSource::handleUnit(const Fields& fields) {
    for (std::size_t i = 2; i < fields.size(); ++i) {
        const UnitLine unit({fields[0], fields[1], fields[i]}, line_, "");
        if (unit.names.empty()) losses_.push_back({line_, "leaves out '" + fields[i] + "', which makes no unit"});
        for (const std::string& text : unit.names) {
            const WrittenUnit written(fields[1], text);
            lines_.add(subject("unit", written.name), line_);
            if (hasIdleItems(written.list)) losses_.push_back({line_, "leaves out repetitions in '" + text + "'"});
        }
    }
}

void CircuitSource::handlePorts(const Fields& fields, std::size_t firstName) {
    for (std::size_t i = firstName; i < fields.size(); ++i) {
        const WrittenPort port(fields[i]);
        lines_.add(subject("port", port.name), line_);
        if (hasIdleItems(port.list)) losses_.push_back({line_, "leaves out repetitions in '" + fields[i] + "'"});
    }
}

std::vector<Loss> lossesOf(const CircuitSpec& before, const CircuitSpec& after, const CircuitSource& source) {
    std::vector<Loss> losses = source.losses();
    compareBodies(before, after, {}, source.lines(), losses);
    std::vector<std::string> pathsBefore = importPathsOf(before);
    std::vector<std::string> pathsAfter = importPathsOf(after);
    if (pathsBefore != pathsAfter) {
        std::ranges::sort(pathsBefore);
        std::ranges::sort(pathsAfter);
        if (pathsBefore == pathsAfter) losses.push_back({0, "changes the order of the import paths"});
    }
    if (before.hasPendingComment()) {
        losses.push_back({source.lineOfLastComment(), "loses the comment behind the last statement"});
    }
    return losses;
}

}  // namespace tarnsim
