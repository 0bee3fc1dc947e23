#pragma once

#include <memory>
#include <string>
#include <vector>

namespace tarnsim {

class Circuit;

/// Loads circuit files, and keeps what it is asked to keep. What goes wrong is an Error.
class CircuitFileReader {
public:
    CircuitFileReader();
    virtual ~CircuitFileReader();
    CircuitFileReader(const CircuitFileReader&) = delete;
    CircuitFileReader& operator=(const CircuitFileReader&) = delete;

    /// Builds the file's contents into `circuit`.
    void load(const std::string& fileName, Circuit* circuit);
    /// A new root circuit, the caller's own.
    std::unique_ptr<Circuit> load(const std::string& fileName);
    /// A new root circuit that lives as long as this reader.
    Circuit* loadAndKeep(const std::string& fileName);

private:
    std::vector<std::unique_ptr<Circuit>> circuits_;
};

}  // namespace tarnsim
