#include "Core/Circuit/CircuitFileWriter.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <fstream>
#include <limits>
#include <map>
#include <optional>
#include <ostream>
#include <vector>

#include "Core/Circuit/Circuit.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

constexpr Direction kDirections[] = {Direction::Input, Direction::Output, Direction::Inout};

const char* nameOf(Direction direction) {
    switch (direction) {
        case Direction::Input: return "Input";
        case Direction::Output: return "Output";
        case Direction::Inout: break;
    }
    return "Inout";
}

/// In plain ASCII. Not `quote`, which leaves the bytes of UTF-8 characters as they are.
std::string quotedAscii(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '\\' || c == '"') {
            quoted += '\\';
            quoted += c;
        } else if (c == '\n') {
            quoted += "\\n";
        } else if (c == '\t') {
            quoted += "\\t";
        } else if (c == '\r') {
            quoted += "\\r";
        } else if (c >= 32 && c <= 126) {
            quoted += c;
        } else {
            quoted += format("\\x%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
        }
    }
    return quoted + '"';
}

bool hasUnitOfType(const Circuit& circuit, const std::string& type) {
    return std::ranges::any_of(circuit.getComponents(), [&](const Component* unit) { return unit->getType() == type; });
}

/// The file of a declaration, as the file around it names it.
std::string filePathOf(const Circuit& declaration) {
    std::string path = declaration.getFilePath();
    const Circuit* parent = declaration.getParent();
    if (parent == nullptr) return path;
    const std::string parentFile = parent->getFilePath();
    const std::size_t slash = parentFile.rfind('/');
    if (slash == std::string::npos || slash == 0) return path;
    const std::string directory = parentFile.substr(0, slash + 1);
    const std::size_t place = path.find(directory);
    if (place != std::string::npos) path.erase(place, directory.size());
    return path;
}

/// The name of a unit that belongs to an array.
struct ElementName {
    std::string base;
    std::int64_t index;
};

/// What stands behind the first `[`, digits and `]` decides, even if there is no digit; what follows doesn't.
std::optional<ElementName> parseArrayName(const std::string& name) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    const std::size_t open = name.find('[');
    if (open == std::string::npos) return std::nullopt;
    std::int64_t index = 0;
    std::size_t at = open + 1;
    for (; at < name.size() && isDigit(name[at]); ++at) index = std::min(index * 10 + (name[at] - '0'), kMost);
    if (at == name.size() || name[at] != ']') return std::nullopt;
    return ElementName{name.substr(0, open), index};
}

/// One run over a circuit and the declarations in it.
class BodyWriter {
public:
    explicit BodyWriter(std::ostream& stream) : stream_(stream) {}

    void writeBody(const Circuit& circuit) {
        writeMetaData(circuit);
        writeComments(circuit);
        writeImportPaths(circuit);
        writeDeclarations(circuit);
        writePins(circuit);
        writePorts(circuit);
        writeUnits(circuit);
        writeNets(circuit);
    }

private:
    using Texts = std::vector<std::string>;

    void writeLine(const std::string& text) {
        for (int i = 0; i < indent_; ++i) stream_ << "   ";
        stream_ << text << '\n';
    }

    /// A statement with a list of names, none if there is no name.
    void writeList(std::string statement, const Texts& names) {
        if (names.empty()) return;
        for (const std::string& name : names) statement.append(" ").append(name);
        writeLine(statement);
    }

    void writeBlankLineIf(bool isNeeded) {
        if (isNeeded) stream_ << '\n';
    }

    void writeComment(const std::string& text) {
        for (const std::string& line : split(text, '\n')) writeLine("# " + line);
    }

    void writeMetaData(const Circuit& circuit) {
        const Texts keys = circuit.getMetaDataKeys();
        for (const std::string& key : keys) {
            for (const std::string& value : circuit.getMetaData(key)) {
                writeLine("MetaData " + key + " " + quotedAscii(value));
            }
        }
        writeBlankLineIf(!keys.empty());
    }

    void writeComments(const Circuit& circuit) {
        for (std::size_t i = 0; i < circuit.countComments(); ++i) {
            writeComment(circuit.getComment(i)->getText());
            stream_ << '\n';
        }
    }

    void writeImportPaths(const Circuit& circuit) {
        bool isAnyWritten = false;
        for (const std::string& path : circuit.getImportPaths()) {
            if (path == "./") continue;
            writeLine("ImportPath \"" + path + "\"");
            isAnyWritten = true;
        }
        writeBlankLineIf(isAnyWritten);
    }

    void writeDeclarations(const Circuit& circuit) {
        bool isAnyWritten = false;
        for (const Circuit* declaration : circuit.getDeclarations()) {
            const std::string& type = declaration->getType();
            if (!hasUnitOfType(circuit, type)) continue;
            isAnyWritten = true;
            if (!declaration->isInline()) {
                writeLine("Circuit " + type + " \"" + filePathOf(*declaration) + "\"");
                continue;
            }
            writeLine("Circuit " + type + " {");
            ++indent_;
            writeBody(*declaration);
            --indent_;
            writeLine("}");
        }
        writeBlankLineIf(isAnyWritten);
    }

    void writePins(const Circuit& circuit) {
        bool isAnyWritten = false;
        for (const Direction direction : kDirections) {
            const std::string statement = std::string("Pin ") + nameOf(direction);
            Texts names;
            for (const Port* port : circuit.getPorts()) {
                if (port->width() != 1 || port->direction() != direction) continue;
                isAnyWritten = true;
                if (port->hasNoComment()) {
                    names.push_back(port->getName());
                } else {
                    writeComment(port->getCommentText());
                    writeList(statement, {port->getName()});
                }
            }
            writeList(statement, names);
        }
        writeBlankLineIf(isAnyWritten);
    }

    void writePorts(const Circuit& circuit) {
        bool isAnyWritten = false;
        for (const Direction direction : kDirections) {
            const auto statementFor = [&](std::uint32_t width) {
                return format("Port %s %d", nameOf(direction), static_cast<int>(width));
            };
            std::map<std::uint32_t, Texts> namesByWidth;
            for (const Port* port : circuit.getPorts()) {
                if (port->width() <= 1 || port->direction() != direction) continue;
                isAnyWritten = true;
                if (port->hasNoComment()) {
                    namesByWidth[port->width()].push_back(port->getName());
                } else {
                    writeComment(port->getCommentText());
                    writeList(statementFor(port->width()), {port->getName()});
                }
            }
            for (const auto& [width, names] : namesByWidth) writeList(statementFor(width), names);
        }
        writeBlankLineIf(isAnyWritten);
    }

    void writeUnits(const Circuit& circuit) {
        struct Array {
            std::string type;
            std::int64_t highestIndex = 0;
        };
        std::map<std::string, Array> arrays;
        std::map<std::string, Texts> namesByType;
        for (const Component* unit : circuit.getComponents()) {
            const std::string& type = unit->getType();
            if (const auto element = parseArrayName(unit->getName())) {
                Array& array = arrays[element->base];
                array.type = type;
                array.highestIndex = std::max(array.highestIndex, element->index);
                continue;
            }
            const std::string text =
                unit->getName() + unit->getParameterTextExcept(ComponentFactory::getDefaults(type));
            if (unit->hasNoComment()) {
                namesByType[type].push_back(text);
            } else {
                writeComment(unit->getCommentText());
                writeList("Unit " + type, {text});
            }
        }
        for (const auto& [base, array] : arrays) {
            namesByType[array.type].push_back(base + "[" + std::to_string(array.highestIndex + 1) + "]");
        }
        for (const auto& [type, names] : namesByType) writeList("Unit " + type, names);
        writeBlankLineIf(circuit.countComponents() > 0);
    }

    void writeNets(const Circuit& circuit) {
        const auto paths = circuit.pathsOfNetPorts();
        for (const Net* net : circuit.getNets()) {
            writeComment(net->getCommentText());
            std::string statement = "Net " + net->getName();
            for (const Port* port : net->getPorts()) statement.append(" ").append(paths.at(port));
            writeLine(statement);
        }
        writeBlankLineIf(!circuit.getNets().empty());
    }

    std::ostream& stream_;
    int indent_ = 0;
};

}  // namespace

void CircuitFileWriter::save(const std::string& fileName, bool withHeader) const {
    std::ofstream file(fileName);
    if (!file.is_open()) throw Error("Cannot save file '%s'", fileName.c_str());
    write(file, withHeader);
}

void CircuitFileWriter::write(std::ostream& stream, bool withHeader) const {
    if (withHeader) {
        const std::time_t now = std::time(nullptr);
        stream << "#\n# File generated at " << std::ctime(&now) << "#\n\n";
    }
    BodyWriter(stream).writeBody(*circuit_);
}

}  // namespace tarnsim
