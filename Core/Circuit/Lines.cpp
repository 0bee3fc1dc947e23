#include "Core/Circuit/Lines.h"

#include <algorithm>
#include <cstdio>
#include <string_view>
#include <unordered_set>

#include "Core/Circuit/NamePatterns.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

/// Of one statement: a slip of the keyboard in the count of an array mustn't take all memory.
constexpr std::size_t kMostUnits = 16'000'000;

/// The first text that stands further ahead, too; null if there is none.
const std::string* firstRepeated(const std::vector<std::string>& texts) {
    constexpr std::size_t kFew = 16;
    if (texts.size() <= kFew) {
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            if (std::find(texts.begin(), text, *text) != text) return &*text;
        }
        return nullptr;
    }
    std::unordered_set<std::string_view> known;
    for (const std::string& text : texts) {
        if (!known.insert(text).second) return &text;
    }
    return nullptr;
}

}  // namespace

MetaDataLine::MetaDataLine(const std::string& name, const std::string& text, int number, const std::string& file)
    : Line(number, file), key(name), value(text) {}

NetLine::NetLine(const std::vector<std::string>& fields, int number, const std::string& file) : Line(number, file) {
    if (fields.size() < 3) {
        throw Error("Error in %s:%d: Net needs a name and at least one port: Net <name> <ports...>", fileName.c_str(),
                    lineNumber);
    }
    if (fields.size() == 3) {
        std::fprintf(stderr, "*** WARNING %s:%d: Only one port in Net. May indicate missing net name.\n",
                     fileName.c_str(), lineNumber);
    }
    name = fields[1];
    ports.assign(fields.begin() + 2, fields.end());
    if (const std::string* port = firstRepeated(ports)) {
        throw Error("Error in %s:%d: Repeated port: '%s'.", fileName.c_str(), lineNumber, port->c_str());
    }
}

std::string NetLine::sharedPort(const NetLine& other) const {
    const std::unordered_set<std::string> others(other.ports.begin(), other.ports.end());
    const auto shared = std::ranges::find_if(ports, [&](const std::string& port) { return others.contains(port); });
    return shared == ports.end() ? "" : *shared;
}

PinLine::PinLine(const std::vector<std::string>& fields, int number, const std::string& file) : Line(number, file) {
    if (fields.size() < 3) {
        throw Error("Error on line %d, in file %s: Pin takes at least 2 arguments: Pin <direction> <name>", lineNumber,
                    fileName.c_str());
    }
    direction = fields[1];
    names.assign(fields.begin() + 2, fields.end());
}

PortLine::PortLine(const std::vector<std::string>& fields, int number, const std::string& file) : Line(number, file) {
    if (fields.size() < 4) {
        throw Error("Error on line %d, in file %s: Port takes at least 3 arguments: Port <direction> <size> <name>",
                    lineNumber, fileName.c_str());
    }
    size = fields[2];
    // What ends at its first character, a NUL, holds nothing wrong but no number either.
    if (!isInteger(size) || size.front() == '\0') {
        throw Error("Error on line %d, in file %s: port size must be a number. '%s' is not.", lineNumber,
                    fileName.c_str(), size.c_str());
    }
    direction = fields[1];
    if (direction != "Input" && direction != "Output" && direction != "Inout") {
        throw Error("Error on line %d, in file %s: port direction must Input or Output, '%s' is neither.", lineNumber,
                    fileName.c_str(), direction.c_str());
    }
    names.assign(fields.begin() + 3, fields.end());
}

UnitLine::UnitLine(const std::vector<std::string>& fields, int number, const std::string& file) : Line(number, file) {
    if (fields.size() < 3) {
        throw Error("Error on line %d, in file %s: Unit takes at least 2 arguments: Unit <type> <name>", lineNumber,
                    fileName.c_str());
    }
    type = fields[1];
    const auto makeRoomFor = [this](std::size_t count) {
        if (names.size() + count > kMostUnits) {
            throw Error("Error on line %d, in file %s: Unit takes at most %d units.", lineNumber, fileName.c_str(),
                        static_cast<int>(kMostUnits));
        }
        // Left to itself the list of a large array would grow to double its size.
        if (names.empty()) names.reserve(count);
    };
    for (auto field = fields.begin() + 2; field != fields.end(); ++field) {
        const auto array = matchArrayName(*field);
        const int count = array ? std::stoi(std::string(array->count)) : 1;
        makeRoomFor(static_cast<std::size_t>(count));
        if (!array) names.push_back(*field);
        for (int i = 0; array && i < count; ++i) names.push_back(std::string(array->prefix) + format("[%d]", i));
    }
}

}  // namespace tarnsim
