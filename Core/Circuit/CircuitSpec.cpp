#include "Core/Circuit/CircuitSpec.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <utility>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"
#include "Core/Support/TextFile.h"

namespace tarnsim {

namespace {

/// `name` in the directory of `file`. A file without a directory leaves it as it is.
std::string inDirectoryOf(const std::string& file, const std::string& name) {
    const std::size_t slash = file.rfind('/');
    return slash == std::string::npos ? name : file.substr(0, slash + 1) + name;
}

// Bodies are built, copied and freed level by level on the stack, files read likewise; both fit into a small one. No
// board is that deep, and each file is open while those that it imports are read: a process has 1,024 in most places.
constexpr int kDeepestBody = 1000;
constexpr std::size_t kDeepestImport = 500;

std::size_t countPorts(std::span<const NetLine> nets) {
    std::size_t count = 0;
    for (const NetLine& net : nets) count += net.ports.size();
    return count;
}

}  // namespace

CircuitSpec::CircuitSpec(const std::string& fileName)
    : name_(fileName), fileName_(fileName), current_(this), parentSpec_(nullptr) {
    parseFile(fileName);
    forgetPorts();
}

CircuitSpec::CircuitSpec(const std::string& fileName, const std::string& contents)
    : name_(fileName), fileName_(fileName), current_(this), parentSpec_(nullptr) {
    TextFile file(fileName, contents);
    parseLines(file, fileName);
    forgetPorts();
}

CircuitSpec::CircuitSpec(CircuitSpec* parent, const std::string& name)
    : name_(name), lineNumber_(parent->lineNumber_), current_(this), parentSpec_(parent), depth_(parent->depth_ + 1) {}

void CircuitSpec::addCommentLine(const std::string& text) {
    current_->pendingComment_ += text + "\n";
}

std::string CircuitSpec::getFileName() const {
    const CircuitSpec* body = this;
    while (body->fileName_.empty() && body->parentSpec_ != nullptr) body = body->parentSpec_;
    return body->fileName_;
}

std::size_t CircuitSpec::countUnits() const {
    std::size_t count = 0;
    for (const UnitLine& line : unitLines) count += line.names.size();
    return count;
}

bool CircuitSpec::hasPendingComment() const {
    return current_->pendingComment_.find_first_not_of(kWhiteSpace) != std::string::npos;
}

void CircuitSpec::parseFile(const std::string& path) {
    const std::string found = resolveFile(path);
    TextFile file(found);
    if (!file.isOpen()) throw Error("Error: File not found: '" + path + "'.");
    parseLines(file, found);
}

void CircuitSpec::parseLines(TextFile& file, const std::string& found) {
    filesBeingRead_.emplace_back(found);
    const std::string outerFile = std::exchange(fileBeingRead_, found);
    if (current_->sourceFile_.empty()) current_->sourceFile_ = found;
    std::string line;
    while (file.readLine(line)) handleLine(line);
    fileBeingRead_ = outerFile;
    filesBeingRead_.pop_back();
    current_->checkSharedPorts();
}

void CircuitSpec::handleLine(std::string& line) {
    ++current_->lineNumber_;
    // Only a line without any character ends a comment block; one with blanks doesn't.
    const bool isEmpty = line.empty();
    prepareLine(line);
    if (!line.empty()) handleStatement(line);
    if (isEmpty) flushComment();
}

void CircuitSpec::flushComment() {
    if (hasPendingComment()) current_->freeComments.push_back(std::exchange(current_->pendingComment_, ""));
}

void CircuitSpec::handleStatement(const std::string& line) {
    const Fields fields = splitWords(line);
    const std::string& keyword = fields[0];
    if (keyword == "Import") {
        flushComment();
        const std::string path = relativeToCurrent(quotedValue(line));
        checkImport(path);
        includeFile(path);
    } else if (keyword == "ImportPath") {
        flushComment();
        importPaths.push_back(quotedValue(line));
    } else if (keyword == "Unit") {
        addRecord(&CircuitSpec::unitLines, fields);
    } else if (keyword == "Net") {
        addRecord(&CircuitSpec::netLines, fields);
    } else if (keyword == "Port") {
        addRecord(&CircuitSpec::portLines, fields);
    } else if (keyword == "Pin") {
        addRecord(&CircuitSpec::pinLines, fields);
    } else if (keyword == "MetaData") {
        flushComment();
        const std::string value = quotedValue(line);
        current_->metaDataLines.emplace_back(fields[1], value, current_->lineNumber_, fileName_);
    } else if (keyword == "Circuit") {
        handleCircuit(fields, line);
    } else if (keyword == "}") {
        handleClosingBrace(fields);
    } else {
        // The top-level count on purpose: inside a nested body it stands at the line that opened the body.
        throw Error("Error in %s:%d: Illegal keyword: '%s'.", fileName_.c_str(), lineNumber_, keyword.c_str());
    }
}

template <class Record>
void CircuitSpec::addRecord(std::vector<Record> CircuitSpec::*records, const Fields& fields) {
    // The name of the top-level file also for statements of a body that is read from another one.
    Record record(fields, current_->lineNumber_, fileName_);
    record.setCommentText(std::exchange(current_->pendingComment_, ""));
    (current_->*records).push_back(std::move(record));
}

void CircuitSpec::handleCircuit(const Fields& fields, const std::string& line) {
    flushComment();
    if (fields.size() < 3) {
        throw Error("Circuit syntax error in %s:%d.", current_->getFileName().c_str(), current_->lineNumber_);
    }
    if (fields[2].front() == '{') {
        pushBody(fields[1], "");
    } else if (fields[2].front() == '"') {
        const std::string file = quotedValue(line);
        const std::string path = relativeToCurrent(file);
        checkImport(path);
        pushBody(fields[1], file);
        CircuitSpec* body = current_;
        body->isReadingOwnFile_ = true;
        includeFile(path);
        body->isReadingOwnFile_ = false;
        current_->checkSharedPorts();
        current_ = current_->parentSpec_;
    } else {
        throw Error("Unrecognized field following Circuit keyword in %s:%d: '%s'", current_->getFileName().c_str(),
                    current_->lineNumber_, fields[2].c_str());
    }
}

void CircuitSpec::handleClosingBrace(const Fields& fields) {
    flushComment();
    if (fields.size() > 1) {
        throw Error("Unrecognized field following } keyword in %s:%d: '%s'", current_->getFileName().c_str(),
                    current_->lineNumber_, (fields.size() > 2 ? fields[2] : fields[1]).c_str());
    }
    current_->checkSharedPorts();
    if (current_->parentSpec_ == nullptr || current_->isReadingOwnFile_) {
        throw Error("Error in %s:%d: } without an open Circuit.", current_->getFileName().c_str(),
                    current_->lineNumber_);
    }
    current_ = current_->parentSpec_;
}

void CircuitSpec::pushBody(const std::string& name, const std::string& file) {
    if (current_->depth_ == kDeepestBody) {
        throw Error("Error in %s:%d: Circuits are nested more than %d deep.", current_->getFileName().c_str(),
                    current_->lineNumber_, kDeepestBody);
    }
    auto body = std::make_unique<CircuitSpec>(current_, name);
    body->fileName_ = file;
    if (file.empty()) body->sourceFile_ = fileBeingRead_;
    current_ = current_->subSpecs.emplace_back(std::move(body)).get();
}

void CircuitSpec::checkImport(const std::string& path) const {
    // Nothing in a file decides whether it is imported, so one that comes round to itself never ends.
    if (std::ranges::find(filesBeingRead_, FileIdentity(resolveFile(path))) != filesBeingRead_.end()) {
        throw Error("Error in %s:%d: '%s' is being read already, it imports itself.", current_->getFileName().c_str(),
                    current_->lineNumber_, path.c_str());
    }
    if (filesBeingRead_.size() > kDeepestImport) {
        throw Error("Error in %s:%d: Imports are nested more than %d deep.", current_->getFileName().c_str(),
                    current_->lineNumber_, static_cast<int>(kDeepestImport));
    }
}

void CircuitSpec::includeFile(const std::string& path) {
    CircuitSpec* body = current_;
    const std::string fileName = std::exchange(body->fileName_, path);
    const int lineNumber = std::exchange(body->lineNumber_, 0);
    parseFile(path);
    body->fileName_ = fileName;
    body->lineNumber_ = lineNumber;
}

std::string CircuitSpec::quotedValue(const std::string& line) const {
    const std::size_t open = line.find_first_of("\"'");
    const std::size_t close = open == std::string::npos ? open : line.find(line[open], open + 1);
    if (close == std::string::npos) {
        throw Error("Error in %s:%d: Syntax error in path specification statement.", fileName_.c_str(),
                    current_->lineNumber_);
    }
    if (close == open + 1) {
        std::fprintf(stderr, "Warning: Empty Import (-Path) or MetaData statement in %s:%d", fileName_.c_str(),
                     current_->lineNumber_);
    }
    return line.substr(open + 1, close - open - 1);
}

std::string CircuitSpec::relativeToCurrent(const std::string& name) const {
    std::string path = inDirectoryOf(current_->fileName_, name);
    if (!current_->isInline() || fileExists(path)) return path;
    // An inline body has no file of its own, but its designer looks from the file that it stands in.
    std::string nearby = inDirectoryOf(current_->getFileName(), name);
    return fileExists(nearby) ? nearby : path;
}

std::string CircuitSpec::resolveFile(const std::string& path) const {
    if (fileExists(path)) return path;
    const std::string name = std::filesystem::path(path).filename().string();
    for (const std::string& directory : importPaths) {
        std::string candidate = directory;
        candidate.append("/").append(name);
        if (fileExists(candidate)) return candidate;
    }
    return path;
}

namespace {

/// To clear a list leaves it its memory.
template <class List>
void release(List& list) {
    List().swap(list);
}

}  // namespace

void CircuitSpec::forgetUnits() {
    release(unitLines);
}

void CircuitSpec::forgetStatements() {
    for (const auto& body : subSpecs) body->forgetStatements();
    forgetUnits();
    release(netLines);
    release(portLines);
    release(pinLines);
    release(metaDataLines);
    release(freeComments);
    forgetPorts();
}

void CircuitSpec::forgetPorts() {
    for (const auto& body : subSpecs) body->forgetPorts();
    release(namedPorts_);
    namedPortCount_ = checkedNets_ = 0;
}

CircuitSpec::NamedPort& CircuitSpec::placeOf(const std::string& port, std::uint32_t hash) {
    const std::size_t mask = namedPorts_.size() - 1;
    std::size_t at = hash & mask;
    while (namedPorts_[at].net != 0) {
        const NamedPort& each = namedPorts_[at];
        if (each.hash == hash && netLines[each.net - std::size_t{1}].ports[each.port] == port) break;
        at = (at + 1) & mask;
    }
    return namedPorts_[at];
}

void CircuitSpec::makeRoomForPorts(std::size_t count) {
    if (count + count / 2 <= namedPorts_.size()) return;
    std::vector<NamedPort> former(std::bit_ceil(count + count / 2 + 1));
    former.swap(namedPorts_);
    const std::size_t mask = namedPorts_.size() - 1;
    for (const NamedPort& each : former) {
        if (each.net == 0) continue;
        std::size_t at = each.hash & mask;
        while (namedPorts_[at].net != 0) at = (at + 1) & mask;
        namedPorts_[at] = each;
    }
}

void CircuitSpec::checkSharedPorts() {
    // The pair that a comparison of each net with all later ones would find first. Nets that were checked before share
    // nothing, so only those that came since are looked at.
    std::optional<std::pair<std::size_t, std::size_t>> clash;
    makeRoomForPorts(namedPortCount_ + countPorts(std::span(netLines).subspan(checkedNets_)));
    for (; checkedNets_ < netLines.size(); ++checkedNets_) {
        const auto& ports = netLines[checkedNets_].ports;
        for (std::size_t i = 0; i < ports.size(); ++i) {
            const auto hash = static_cast<std::uint32_t>(std::hash<std::string>{}(ports[i]));
            NamedPort& place = placeOf(ports[i], hash);
            if (place.net == 0) {
                place = {hash, static_cast<std::uint32_t>(checkedNets_ + 1), static_cast<std::uint32_t>(i)};
                ++namedPortCount_;
                continue;
            }
            const std::pair pair(place.net - std::size_t{1}, checkedNets_);
            if (!clash || pair < *clash) clash = pair;
        }
    }
    if (!clash) return;
    const NetLine& a = netLines[clash->first];
    const NetLine& b = netLines[clash->second];
    throw Error("Error in line %s:%d: net '%s' and net '%s' shares the pin '%s'.", a.fileName.c_str(), a.lineNumber,
                a.name.c_str(), b.name.c_str(), a.sharedPort(b).c_str());
}

}  // namespace tarnsim
