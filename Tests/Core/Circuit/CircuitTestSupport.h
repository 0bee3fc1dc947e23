#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitFileReader.h"
#include "Core/Circuit/CircuitFileWriter.h"
#include "Core/Circuit/CircuitSpec.h"
#include "Core/Support/Text.h"
#include "Core/Support/TextFile.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {

/// A temporary folder that is the working directory while the object lives, so that messages name files briefly.
class Workplace {
public:
    Workplace() : there_(folder_.path(".")) {}

    void write(const std::string& name, const std::string& text) const { folder_.write(name, text); }
    void makeDirectory(const std::string& name) const { std::filesystem::create_directories(folder_.path(name)); }

private:
    TemporaryFolder folder_;
    WorkingDirectory there_;
};

/// The statements of a file `board.nlx` with this text.
inline std::unique_ptr<CircuitSpec> specFrom(const std::string& text) {
    const Workplace here;
    here.write("board.nlx", text);
    return std::make_unique<CircuitSpec>("board.nlx");
}

/// The circuit of a file `board.nlx` with this text.
inline std::unique_ptr<Circuit> circuitFrom(const std::string& text) {
    const Workplace here;
    here.write("board.nlx", text);
    return CircuitFileReader().load("board.nlx");
}

/// The file that the circuit is saved to, without header.
inline std::string savedText(const Circuit& circuit) {
    const TemporaryFolder folder;
    CircuitFileWriter(&circuit).save(folder.path("saved.nlx"), false);
    return readBytes(folder.path("saved.nlx")).value();
}

/// A file `board.nlx` with this text, loaded and saved.
inline std::string savedFrom(const std::string& text) {
    return savedText(*circuitFrom(text));
}

/// Saves the circuit, expects this file, and loads it again. The file must say all that it says itself: saved once more
/// it is the same.
inline std::unique_ptr<Circuit> savedAndLoaded(const Circuit& board, const std::string& file) {
    const Workplace here;
    CircuitFileWriter(&board).save("saved.nlx", false);
    EXPECT_EQ(readBytes("saved.nlx").value(), file);
    auto again = CircuitFileReader().load("saved.nlx");
    EXPECT_EQ(savedText(*again), file);
    return again;
}

/// The Error that reading a file `board.nlx` with this text ends in, without building a circuit.
inline std::string errorOfReading(const std::string& text) {
    return errorOf([&] { specFrom(text); });
}

/// The Error that reading and building end in.
inline std::string errorOfLoading(const std::string& text) {
    return errorOf([&] { circuitFrom(text); });
}

/// What an action writes to the two streams.
struct Streams {
    std::string output;
    std::string error;
};

inline Streams streamsOf(const std::function<void()>& action) {
    Streams streams;
    streams.output = outputOf([&] { streams.error = errorOutputOf(action); });
    return streams;
}

template <class List>
std::vector<std::string> namesOf(const List& list) {
    std::vector<std::string> names;
    for (const auto* each : list) names.push_back(each->getName());
    return names;
}

using Texts = std::vector<std::string>;

}  // namespace tarnsim
