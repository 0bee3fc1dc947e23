// Building a circuit from the statements of its file.

#include <stdexcept>
#include <string>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitSpec.h"
#include "Core/Circuit/Lines.h"
#include "Core/Circuit/NamePatterns.h"
#include "Core/Support/Error.h"

namespace tarnsim {

namespace {

/// Throws what `message` says of the word and the line number if the word is no direction.
Direction readDirection(const std::string& word, const char* kind, const Line& line) {
    if (word == "Input") return Direction::Input;
    if (word == "Output") return Direction::Output;
    if (word == "Inout") return Direction::Inout;
    throw Error("Unsupported %s direction '%s' on line %d.", kind, word.c_str(), line.lineNumber);
}

/// The name and the options of a port as written; both empty if the text isn't of that form.
struct PortText {
    std::string name;
    ParaMap options;

    explicit PortText(const std::string& text) {
        const auto parts = matchPortText(text);
        if (!parts) return;
        name = parts->name;
        options.parse(std::string(parts->list));
    }
};

/// A comment in front of a statement belongs to the first thing that the statement makes.
class CommentForTheFirst {
public:
    explicit CommentForTheFirst(const Line& line) : text_(line.getCommentText()) {}

    void giveTo(CommentableObject& object) {
        object.setCommentText(text_);
        text_.clear();
    }

private:
    std::string text_;
};

[[noreturn]] void refuseDuplicatePort(const std::string& name, const Line& line) {
    throw Error("Error in %s:%d: pin/port name duplication '%s'.", line.fileName.c_str(), line.lineNumber,
                name.c_str());
}

}  // namespace

void Circuit::setSpec(const CircuitSpec& spec, CircuitSpec* consumed) {
    spec_ = spec.watch();
    if (spec.isInline()) {
        clearFilePath();
    } else {
        setFilePath(spec.getFileName());
    }
    sourceFile_ = spec.getSourceFile();
    setName(spec.getName());
    buildFromSpec(spec, consumed);
    if (consumed != nullptr) consumed->forgetStatements();
    if (!spec.isInline()) onLoaded(this);
}

void Circuit::buildFromSpec(const CircuitSpec& spec, CircuitSpec* consumed) {
    for (const auto& subSpec : spec.subSpecs) addDeclaration(*subSpec);
    for (const UnitLine& line : spec.unitLines) addUnit(line);
    if (consumed != nullptr) consumed->forgetUnits();
    for (const PortLine& line : spec.portLines) addPort(line);
    for (const PinLine& line : spec.pinLines) addPin(line);
    addNets(spec.netLines);
    for (const MetaDataLine& line : spec.metaDataLines) addMetaData(line.key, line.value);
    for (const std::string& path : spec.importPaths) addImportPath(path);
    for (const std::string& comment : spec.freeComments) addComment(comment);
}

void Circuit::addUnit(const UnitLine& line) {
    CommentForTheFirst comment(line);
    for (const std::string& name : line.names) {
        Component* unit = makeUnit(line, name);
        comment.giveTo(*unit);
        addChild(unit, &line);
    }
}

Component* Circuit::makeUnit(const UnitLine& line, const std::string& name) {
    if (Component* part = componentFactory_.create(line.type, name)) return part;
    const Circuit* declaration = findDeclaration(line.type);
    Circuit* clone = declaration == nullptr ? nullptr : componentFactory_.copy(*declaration);
    if (clone == nullptr) {
        throw Error("Error at %s:%d: Component type not found: '%s'.", line.fileName.c_str(), line.lineNumber,
                    line.type.c_str());
    }
    clone->setName(name);
    return clone;
}

void Circuit::addPort(const PortLine& line) {
    // The line has made sure that this is a number; one beyond 32 bits is refused by stoi itself.
    const int size = std::stoi(line.size);
    if (size < 0) {
        throw Error("Error in %s:%d: port size must not be negative, %d is.", line.fileName.c_str(), line.lineNumber,
                    size);
    }
    const Direction direction = readDirection(line.direction, "port", line);
    CommentForTheFirst comment(line);
    for (const std::string& text : line.names) {
        comment.giveTo(*makePort(text, static_cast<std::uint32_t>(size), direction, line));
    }
}

Port* Circuit::makePort(const std::string& text, std::uint32_t size, Direction direction, const Line& line) {
    const PortText port(text);
    if (Component::findPort(port.name) != nullptr) refuseDuplicatePort(port.name, line);
    Port* made = portFactory().createPort(size, direction, port.name);
    made->setOptions(port.options.map());
    Component::addPort(made);
    return made;
}

void Circuit::addPin(const PinLine& line) {
    const Direction direction = readDirection(line.direction, "pin", line);
    CommentForTheFirst comment(line);
    for (const std::string& text : line.names) comment.giveTo(*makePin(text, direction, line));
}

Port* Circuit::makePin(const std::string& text, Direction direction, const Line& line) {
    // Unlike a port, a pin is looked for by its text with the options: `a` and `a(ztr=off)` make two pins.
    if (findPort(text) != nullptr) refuseDuplicatePort(text, line);
    const PortText pin(text);
    Port* made = portFactory().createPin(direction, pin.name);
    made->setOptions(pin.options.map());
    Component::addPort(made);
    return made;
}

void Circuit::addNets(const std::vector<NetLine>& lines) {
    // Nets name units in any order.
    constexpr std::size_t kAhead = 8;
    const auto unitOf = [](const std::string& path) { return std::string_view(path).substr(0, path.find('.')); };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i + 2 * kAhead < lines.size()) {
            for (const std::string& path : lines[i + 2 * kAhead].ports) children_.expect(unitOf(path));
        }
        if (i + kAhead < lines.size()) {
            for (const std::string& path : lines[i + kAhead].ports) children_.expectObject(unitOf(path));
        }
        addNet(lines[i]);
    }
}

void Circuit::addNet(const NetLine& line) {
    std::vector<Port*> ports;
    ports.reserve(line.ports.size());
    for (const std::string& path : line.ports) ports.push_back(requirePort(path, line));
    createNet(line.name, ports)->setCommentText(line.getCommentText());
}

Port* Circuit::requirePort(const std::string& path, const Line& line) const {
    Port* port = findPort(path);
    if (port == nullptr) {
        throw Error("Error at %s:%d: Port not found: '%s'.", line.fileName.c_str(), line.lineNumber, path.c_str());
    }
    return port;
}

}  // namespace tarnsim
