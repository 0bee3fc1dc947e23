#include "Core/Components/MemoryImages.h"

#include <cstdio>
#include <filesystem>
#include <optional>

#include "Core/Support/TextFile.h"

namespace tarnsim {

namespace {

std::string besideFile(const std::string& file, const std::string& name) {
    const std::string directory = std::filesystem::path(file).parent_path().string();
    return directory.empty() ? name : directory + "/" + name;
}

/// A file that was read.
struct Image {
    std::string path;
    std::string bytes;
};

/// The first `most` bytes of the image.
std::optional<Image> findImage(const Circuit& owner, const std::string& name, std::size_t most) {
    const auto read = [&](const std::string& neighbour) -> std::optional<Image> {
        std::string path = besideFile(neighbour, name);
        auto bytes = readBytes(path, most);
        return bytes ? std::optional(Image{std::move(path), std::move(*bytes)}) : std::nullopt;
    };
    // A circuit in braces has no file path of its own, and another's may be relative to the file that names it.
    if (auto image = read(owner.getFilePath())) return image;
    for (const Circuit* circuit : {&owner, owner.getParent()}) {
        if (circuit == nullptr || circuit->getSourceFile().empty()) continue;
        if (auto image = read(circuit->getSourceFile())) return image;
    }
    return std::nullopt;
}

/// Stores the bytes from position `first` of the image on and reports it.
void store(const Image& image, std::size_t first, std::uint32_t address, const Component& memory,
           const StoreByte& storeByte) {
    std::size_t stored = 0;
    for (std::size_t i = first; i < image.bytes.size(); ++i, ++stored) {
        const auto next = static_cast<std::uint32_t>(address + stored);
        Value byte(8);
        byte.setNumber(static_cast<unsigned char>(image.bytes[i]));
        if (storeByte(next, byte)) continue;
        std::fprintf(stderr,
                     "*** WARNING: file '%s' runs past the end of memory '%s': it is refused from address 0x%04x on.\n",
                     image.path.c_str(), memory.getName().c_str(), next);
        break;
    }
    std::printf("Loaded %d bytes from file '%s' into address 0x%04x in '%s'.\n", static_cast<int>(stored),
                image.path.c_str(), address, memory.getName().c_str());
}

}  // namespace

void loadMemoryImages(const Component& memory, std::string_view className, std::uint32_t size, const Circuit& owner,
                      const StoreByte& storeByte) {
    // An address of two bytes, a full memory, and the byte that is too many.
    const std::size_t mostBytes = std::size_t{size} + 3;
    const ParaMap& parameters = memory.getParameters();
    for (const char* key : {"cbmfile", "rawfile"}) {
        if (!parameters.has(key) || parameters.at(key).empty()) continue;
        const auto image = findImage(owner, parameters.at(key), mostBytes);
        if (!image) {
            std::fprintf(stderr, "*** Error: Memory component %s cannot find the specified file '%s'.\n",
                         std::string(className).c_str(), besideFile(owner.getFilePath(), parameters.at(key)).c_str());
            continue;
        }
        if (key == std::string_view("rawfile")) {
            std::uint32_t address = 0;
            parameters.get("rawaddress", &address);
            store(*image, 0, address, memory, storeByte);
        } else {
            const auto byteAt = [&](std::size_t i) {
                return i < image->bytes.size() ? static_cast<unsigned char>(image->bytes[i]) : 0U;
            };
            store(*image, 2, byteAt(0) | byteAt(1) << 8U, memory, storeByte);
        }
    }
}

}  // namespace tarnsim
