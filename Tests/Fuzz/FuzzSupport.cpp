#include "Tests/Fuzz/FuzzSupport.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <typeinfo>
#include <unordered_map>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"
#include "Tests/Support/CapturedStreams.h"
#include "Tests/Support/RandomRun.h"

namespace tarnsim {

namespace {

constexpr std::uint64_t kMostParts = 200;
constexpr std::uint64_t kMostArrayUnits = 64;
constexpr std::size_t kMostImports = 8;

bool isPlainName(std::string_view name) {
    const auto isPlain = [](char c) { return isWordCharacter(c) || c == '.' || c == '-'; };
    return !name.empty() && name.size() < 40 && name.front() != '.' && std::ranges::all_of(name, isPlain);
}

/// An array of so many units that it takes long, but not of so many that the number is refused.
bool hasLargeArray(std::string_view text) {
    for (std::size_t at = text.find('['); at != std::string_view::npos; at = text.find('[', at + 1)) {
        std::uint64_t number = 0;
        for (std::size_t i = at + 1; i < text.size() && isDigit(text[i]); ++i) {
            number = std::min<std::uint64_t>(number * 10 + static_cast<std::uint64_t>(text[i] - '0'), 1ULL << 40U);
        }
        if (number > kMostArrayUnits && number < 1ULL << 31U) return true;
    }
    return false;
}

std::size_t countImports(std::string_view text) {
    std::size_t count = 0;
    for (const std::string_view word : {"Import", "Circuit"}) {
        for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
            const std::string_view line = text.substr(at, text.find('\n', at) - at);
            if (line.find_first_of("\"'") != std::string_view::npos) ++count;
        }
    }
    return count;
}

std::uint64_t sizeOf(const CircuitSpec& spec) {
    std::unordered_map<std::string, std::uint64_t> declared;
    std::uint64_t size = spec.netLines.size();
    for (const PortLine& line : spec.portLines) size += line.names.size();
    for (const PinLine& line : spec.pinLines) size += line.names.size();
    for (const auto& body : spec.subSpecs) {
        const std::uint64_t of = sizeOf(*body);
        declared[body->getName()] = std::max(declared[body->getName()], of);
        size += of;
    }
    for (const UnitLine& line : spec.unitLines) {
        const auto type = declared.find(line.type);
        size += line.names.size() * (type == declared.end() ? 1 : type->second + 1);
    }
    return std::min<std::uint64_t>(size, 1ULL << 30U);
}

const TemporaryFolder& folder() {
    static const TemporaryFolder folder;
    return folder;
}

}  // namespace

void check(bool holds, const std::string& text) {
    if (!holds) throw Finding(text);
}

void checkSame(const std::string& one, const std::string& other, const std::string& text) {
    if (one != other) throw Finding(text + ": " + firstDifference(one, other));
}

bool isNumberTooLarge(const std::exception& exception) {
    const std::string_view text = exception.what();
    return typeid(exception) == typeid(std::out_of_range) && (text == "stoul" || text == "stoi");
}

bool isRefusedValue(const std::exception& exception) {
    const std::string_view text = exception.what();
    const std::type_info& type = typeid(exception);
    if (type == typeid(std::out_of_range)) {
        return text.starts_with("Value: Index ") || text == "Number cannot be represented in value";
    }
    if (type == typeid(std::length_error)) return text.starts_with("Initializer ");
    if (type == typeid(std::domain_error)) return text.starts_with("Cannot interpret ");
    return type == typeid(std::bad_cast);
}

bool isPastTheMemory(const std::exception& exception) {
    const std::string_view text = exception.what();
    const auto isOfSize = [&](const char* size) { return text.ends_with(format("this->size() (which is %s)", size)); };
    return typeid(exception) == typeid(std::out_of_range) && (isOfSize("2048") || isOfSize("32768"));
}

bool completes(const std::function<void()>& action, std::initializer_list<bool (*)(const std::exception&)> rightEnds) {
    const CapturedStreams ignored;
    try {
        action();
        return true;
    } catch (const Error&) {
        return false;
    } catch (const std::exception& exception) {
        if (std::ranges::none_of(rightEnds, [&](const auto isRight) { return isRight(exception); })) throw;
        return false;
    }
}

FuzzInput::FuzzInput(std::string_view input) {
    std::string* part = &circuit;
    std::string unnamed;
    while (!input.empty()) {
        const std::size_t length = std::min(input.find('\n'), input.size() - 1) + 1;
        const std::string_view line = input.substr(0, length);
        input.remove_prefix(length);
        if (line.front() != '@') {
            part->append(line);
            continue;
        }
        const std::string name = trimmed(line.substr(1));
        part = name == "signals" ? &signals : isPlainName(name) ? &files[name] : &unnamed;
    }
}

bool FuzzInput::isModest() const {
    std::size_t imports = 0;
    const auto isBad = [&](const std::string& text) {
        imports += countImports(text);
        return hasLargeArray(text) || text.find("/dev") != std::string::npos ||
               text.find("/proc") != std::string::npos || text.find("/sys") != std::string::npos;
    };
    if (isBad(circuit)) return false;
    for (const auto& [name, text] : files) {
        if (isBad(text)) return false;
    }
    return imports <= kMostImports;
}

bool isSmall(const CircuitSpec& spec) {
    return sizeOf(spec) <= kMostParts;
}

FuzzFolder::FuzzFolder(const std::map<std::string, std::string>& files)
    : here_(folder().path("")), hasFiles_(!files.empty()) {
    for (const auto& [name, text] : files) folder().write(name, text);
}

FuzzFolder::~FuzzFolder() {
    if (!hasFiles_) return;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder().path(""), ignored)) {
        std::filesystem::remove_all(entry.path(), ignored);
    }
}

}  // namespace tarnsim
