#include "Cli/CircuitVerifier.h"

#include <algorithm>
#include <exception>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/CircuitSpec.h"
#include "Core/Simulation/EventSimulator.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"
#include "Core/TestVectors/ExpectedOutputs.h"
#include "Core/TestVectors/TestSequence.h"

namespace tarnsim {

namespace {

/// Loaded circuits live as long as the process: whoever got hold of one through a verifier may go on with it.
Circuit* keepToTheEnd(std::unique_ptr<Circuit> circuit) {
    static std::vector<std::unique_ptr<Circuit>> circuits;
    return circuits.emplace_back(std::move(circuit)).get();
}

std::vector<std::string> splitNames(const std::string& list) {
    std::vector<std::string> names = split(list, ',');
    for (std::string& name : names) trim(name);
    return names;
}

}  // namespace

CircuitVerifier::CircuitVerifier(const std::string& circuitFile, const std::string& ioFile) {
    const CircuitSpec spec(circuitFile);
    ownSequence_ = std::make_unique<TestSequence>(ioFile);
    sequence_ = ownSequence_.get();
    circuit_ = keepToTheEnd(std::make_unique<Circuit>(spec.getName(), nullptr));
    circuit_->setSpec(spec);
    setUp();
}

CircuitVerifier::CircuitVerifier(Circuit* circuit, TestSequence* sequence, bool verify)
    : circuit_(circuit), sequence_(sequence), verifyOutputs_(verify) {
    setUp();
}

CircuitVerifier::~CircuitVerifier() {
    // The circuit outlives the simulator and mustn't name it any longer.
    if (simulator_ && circuit_->findSimulator() == simulator_.get()) circuit_->setSimulator(nullptr);
}

void CircuitVerifier::setUp() {
    simulator_ = std::make_unique<EventSimulator>(circuit_);
    const TestVectorHeader* header = sequence_->header();
    for (int i = 0; i < header->inputCount(); ++i) registerInput(header->inputName(i));
    for (const auto& assignment : sequence_->assignments()) registerInput(assignment->name());
    endTime_ = sequence_->lastEndTime();
    simulator_->prepare(endTime_);
    for (const auto& vector : sequence_->vectors()) applyVector(*vector);
    for (const auto& assignment : sequence_->assignments()) applyAssignment(assignment->name(), assignment->value());
}

void CircuitVerifier::registerInput(const std::string& name) {
    Port* port = circuit_->findPort(name);
    if (port == nullptr) throw Error("Can't find port_name '%s'.", name.c_str());
    if (port->direction() == Direction::Output) {
        throw Error("Can't use an output to drive the value of an internal net (port '%s')", name.c_str());
    }
    inputPorts_[name] = port;
}

void CircuitVerifier::applyVector(const TestVector& vector) {
    const TestVectorHeader* header = sequence_->header();
    for (int i = 0; i < header->inputCount(); ++i) {
        const std::string name = header->inputName(i);
        const auto raise = [&](const std::string& reason) {
            throw Error(format("Error when initializing input '%s' at time = %d (column %d in '%s'): ", name.c_str(),
                               vector.time(), i + 2, sequence_->fileName().c_str()) +
                        reason);
        };
        // The one place where what a Value refuses becomes a message about the file.
        try {
            applyInput(name, vector.input(i), vector.time());
        } catch (const Error& error) {
            raise(error.what());
        } catch (const std::exception& error) {
            raise(error.what());
        } catch (const std::string& text) {
            raise(text);
        } catch (const char* text) {
            raise(text);
        } catch (...) {
            raise("Unknown exception thrown.");
        }
    }
}

void CircuitVerifier::applyInput(const std::string& name, const std::string& text, Time time) {
    Port* port = inputPorts_.at(name);
    port->set(Value(normalizedStimulus(text, port->width())), time);
}

void CircuitVerifier::applyAssignment(const std::string& name, const std::string& text) {
    Port* port = inputPorts_.at(name);
    Value value(port->width());
    value.setHex(text);
    port->set(value, 0);
}

void CircuitVerifier::checkConnections() const {
    circuit_->checkConnections();
}

Component* CircuitVerifier::requireComponent(const std::string& name) const {
    Component* component = circuit_->findComponent(name);
    if (component == nullptr) throw Error("Erroneous component option: can't find component '%s'.", name.c_str());
    return component;
}

void CircuitVerifier::applyOptions() {
    for (const auto& option : sequence_->options()) {
        Component* component = requireComponent(option->name());
        // A second line for the same component saves what the first one set, and that is what it gets back.
        savedParameters_[component] = component->getParameters();
        for (const auto& [key, value] : option->options()) component->getParameters()[key] = value;
        component->applyParameters();
    }
}

void CircuitVerifier::restoreParameters() {
    for (const auto& option : sequence_->options()) {
        Component* component = requireComponent(option->name());
        component->getParameters() = savedParameters_.at(component);
        component->applyParameters();
    }
}

void CircuitVerifier::run() {
    applyOptions();
    simulator_->run(endTime_ == kLatestTime ? endTime_ : endTime_ + 1);
    restoreParameters();
}

bool CircuitVerifier::runAndVerify() {
    run();
    failures_ = 0;
    if (!verifyOutputs_) return true;
    const ExpectedOutputs expectations(*sequence_);
    const TestVectorHeader* header = sequence_->header();
    for (const auto& vector : sequence_->vectors()) {
        for (int i = 0; i < header->outputCount(); ++i) checkOutput(expectations, header->outputName(i), *vector);
    }
    return failures_ == 0;
}

void CircuitVerifier::checkOutput(const ExpectedOutputs& expectations, const std::string& name,
                                  const TestVector& vector) {
    const Port* port = simulator_->getCircuit()->findPort(name);
    if (port == nullptr) throw Error("No such output: '%s'", name.c_str());
    compare(expectations, *port, vector.endTime(), name);
}

void CircuitVerifier::compare(const ExpectedOutputs& expectations, const Port& port, Time time,
                              const std::string& name) {
    const Value actual = port.get(time);
    std::string expected = Value::hexToBits(expectations.at(name, time));
    if (expected.size() > actual.width()) expected.erase(0, expected.size() - actual.width());
    if (actual.matches(expected)) return;
    ++failures_;
    reportMismatch(time, name, Value(expected), actual);
}

void CircuitVerifier::printResults(std::int32_t resolution, const std::string& pins, const std::string& nets) {
    const TestVectorHeader* header = sequence_->header();
    std::vector<std::string> inputs;
    for (int i = 0; i < header->inputCount(); ++i) inputs.push_back(header->inputName(i));
    std::vector<std::string> outputs;
    for (int i = 0; i < header->outputCount(); ++i) outputs.push_back(header->outputName(i));
    std::ranges::copy(splitNames(pins), std::back_inserter(outputs));

    if (resolution >= 1) {
        simulator_->printEvery(inputs, outputs, splitNames(nets), resolution);
        return;
    }
    std::vector<Time> times;
    for (const auto& vector : sequence_->vectors()) times.push_back(vector->time());
    simulator_->printAt(inputs, outputs, splitNames(nets), times);
}

std::string normalizedStimulus(const std::string& text, std::uint32_t size) {
    std::string bits = trimmed(text);
    if (isHexText(bits)) bits = Value::hexToBits(bits);
    if (bits.size() >= size) return bits.substr(bits.size() - size);
    const bool isDefined = std::ranges::none_of(bits, isUndefinedLetter);
    return std::string(size - bits.size(), isDefined ? 'L' : 'U') + bits;
}

}  // namespace tarnsim
