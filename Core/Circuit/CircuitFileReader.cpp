#include "Core/Circuit/CircuitFileReader.h"

#include <utility>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitSpec.h"

namespace tarnsim {

CircuitFileReader::CircuitFileReader() = default;
CircuitFileReader::~CircuitFileReader() = default;

void CircuitFileReader::load(const std::string& fileName, Circuit* circuit) {
    CircuitSpec spec(fileName);
    circuit->setSpec(std::move(spec));
}

std::unique_ptr<Circuit> CircuitFileReader::load(const std::string& fileName) {
    CircuitSpec spec(fileName);
    auto circuit = std::make_unique<Circuit>(spec.getName(), nullptr);
    circuit->setSpec(std::move(spec));
    return circuit;
}

Circuit* CircuitFileReader::loadAndKeep(const std::string& fileName) {
    return circuits_.emplace_back(load(fileName)).get();
}

}  // namespace tarnsim
