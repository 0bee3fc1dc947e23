#include "Cli/CircuitVerifier.h"

#include <algorithm>
#include <array>
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

/// A letter that is none of the hexadecimal digits, so that a text of them stands for itself.
bool isBitLetter(char c) {
    return isLevel(c) || isUndefinedLetter(c);
}

/// A port whose values have as many letters as it has bits: its width is known, and no value wraps.
bool hasPlainWidth(const Port& port) {
    return port.width() > 0 && port.width() <= kMaxValueWidth;
}

/// That `actual` is what `expected` ends with, to the letter, as nearly all outputs of nearly all runs are.
bool isTheSame(std::string_view actual, std::string_view expected) {
    return expected.ends_with(actual) && std::ranges::all_of(actual, isBitLetter);
}

}  // namespace

CircuitVerifier::CircuitVerifier(const std::string& circuitFile, const std::string& ioFile) {
    CircuitSpec spec(circuitFile);
    ownSequence_ = std::make_unique<TestSequence>(ioFile);
    sequence_ = ownSequence_.get();
    Circuit* circuit = keepToTheEnd(std::make_unique<Circuit>(spec.getName(), nullptr));
    circuit->setSpec(std::move(spec));
    setUp(circuit);
}

CircuitVerifier::CircuitVerifier(Circuit* circuit, TestSequence* sequence, bool verify)
    : sequence_(sequence), verifyOutputs_(verify) {
    setUp(circuit);
}

CircuitVerifier::~CircuitVerifier() = default;

void CircuitVerifier::DeleteSimulator::operator()(EventSimulator* simulator) const {
    Circuit* circuit = simulator->getCircuit();
    if (circuit->findSimulator() == simulator) circuit->setSimulator(nullptr);
    delete simulator;
}

void CircuitVerifier::setUp(Circuit* circuit) {
    circuit_ = circuit;
    simulator_.reset(new EventSimulator(circuit_));
    for (const std::string& name : inputNames()) registerInput(name);
    for (const auto& assignment : sequence_->assignments()) registerInput(assignment->name());
    endTime_ = sequence_->lastEndTime();
    simulator_->prepare(endTime_);
    std::vector<InputColumn> columns;
    for (const std::string& name : inputNames()) columns.push_back({name, inputPorts_.at(name)});
    for (const auto& vector : sequence_->vectors()) applyVector(columns, *vector);
    for (const auto& assignment : sequence_->assignments()) applyAssignment(*assignment);
}

void CircuitVerifier::registerInput(const std::string& name) {
    Port* port = circuit_->findPort(name);
    if (port == nullptr) throw Error("Can't find port_name '%s'.", name.c_str());
    if (port->direction() == Direction::Output) {
        throw Error("Can't use an output to drive the value of an internal net (port '%s')", name.c_str());
    }
    inputPorts_[name] = port;
}

void CircuitVerifier::applyVector(const std::vector<InputColumn>& columns, const TestVector& vector) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int column = static_cast<int>(i) + 2;
        const auto raise = [&](const std::string& reason) {
            throw Error(format("Error when initializing input '%s' at time = %d (column %d in '%s'): ",
                               columns[i].name.c_str(), vector.time(), column, sequence_->fileName().c_str()) +
                        reason);
        };
        // The one place where what a Value refuses becomes a message about the file.
        try {
            applyCell(*columns[i].port, vector.inputText(static_cast<int>(i)), vector.time());
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

void CircuitVerifier::applyCell(Port& port, std::string_view text, Time time) {
    // Nearly every cell: there is nothing to do but to cut it.
    const std::size_t size = port.width();
    if (hasPlainWidth(port) && text.size() >= size && std::ranges::all_of(text, isBitLetter)) {
        return port.setLetters(text.substr(text.size() - size), time);
    }
    port.set(Value(normalize(port, std::string(text))), time);
}

std::string CircuitVerifier::normalize(const Port& port, const std::string& text) {
    std::string bits = trimmed(text);
    if (isHexText(bits)) bits = Value::hexToBits(bits);
    const std::size_t size = port.width();
    if (bits.size() >= size) return bits.substr(bits.size() - size);
    const bool isDefined = std::ranges::none_of(bits, isUndefinedLetter);
    return std::string(size - bits.size(), isDefined ? 'L' : 'U') + bits;
}

void CircuitVerifier::applyAssignment(const PortAssignment& assignment) {
    Port* port = inputPorts_.at(assignment.name());
    Value value(port->width());
    value.setHex(assignment.value());
    port->set(value, 0);
}

std::vector<std::string> CircuitVerifier::inputNames() const {
    const TestVectorHeader* header = sequence_->header();
    return header == nullptr ? std::vector<std::string>() : header->inputNames();
}

std::vector<std::string> CircuitVerifier::outputNames() const {
    const TestVectorHeader* header = sequence_->header();
    return header == nullptr ? std::vector<std::string>() : header->outputNames();
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
    expectations_ = std::make_unique<ExpectedOutputs>(*sequence_);
    std::vector<OutputColumn> columns;
    for (const std::string& name : outputNames()) columns.push_back({name, nullptr, expectations_->columnOf(name)});
    for (const auto& vector : sequence_->vectors()) {
        for (OutputColumn& column : columns) checkOutput(column, vector->endTime());
    }
    return failures_ == 0;
}

void CircuitVerifier::checkOutput(OutputColumn& column, Time time) {
    if (column.port == nullptr) column.port = simulator_->getCircuit()->findPort(column.name);
    if (column.port == nullptr) throw Error("No such output: '%s'", column.name.c_str());
    if (hasPlainWidth(*column.port)) {
        std::array<char, kMaxValueWidth> actual;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled next
        column.port->lettersAt(time, actual.data());
        const std::string_view expected = expectations_->textAt(column.expectation, time);
        if (isTheSame({actual.data(), column.port->width()}, expected)) return;
    }
    compare(column, time);
}

void CircuitVerifier::compare(const OutputColumn& column, Time time) {
    const Value actual = column.port->get(time);
    std::string expected = Value::hexToBits(expectations_->textAt(column.expectation, time));
    if (expected.size() > actual.width()) expected.erase(0, expected.size() - actual.width());
    if (actual.matches(expected)) return;
    ++failures_;
    reportMismatch(time, column.name, Value(expected), actual);
}

void CircuitVerifier::printResults(std::int32_t resolution, const std::string& pins, const std::string& nets) {
    const std::vector<std::string> inputs = inputNames();
    std::vector<std::string> outputs = outputNames();
    std::ranges::copy(splitNames(pins), std::back_inserter(outputs));

    if (resolution >= 1) {
        simulator_->printEvery(inputs, outputs, splitNames(nets), resolution);
        return;
    }
    std::vector<Time> times;
    for (const auto& vector : sequence_->vectors()) times.push_back(vector->time());
    simulator_->printAt(inputs, outputs, splitNames(nets), times);
}

}  // namespace tarnsim
