#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Core/Support/ParaMap.h"
#include "Core/Values/Time.h"
#include "Core/Values/Value.h"

namespace tarnsim {

class Circuit;
class Component;
class EventSimulator;
class ExpectedOutputs;
class Port;
class PortAssignment;
class TestSequence;
class TestVector;

/// One run of a circuit under a test sequence: all stimuli are set when it is made, then the simulator runs once to the
/// end, then outputs are compared and tables printed from what the ports remember.
///
/// Construction does all the loading and may raise an Error, as every other step may; the object is of no use then. How
/// a mismatch is reported is a derived class's choice.
class CircuitVerifier {
public:
    /// Loads both files.
    CircuitVerifier(const std::string& circuitFile, const std::string& ioFile);
    /// Takes objects that the caller owns and keeps alive. Without `verify`, runAndVerify compares nothing.
    CircuitVerifier(Circuit* circuit, TestSequence* sequence, bool verify);
    /// A circuit that was loaded here lives on to the end of the process.
    virtual ~CircuitVerifier();
    CircuitVerifier(const CircuitVerifier&) = delete;
    CircuitVerifier& operator=(const CircuitVerifier&) = delete;

    /// Warns of unconnected inputs of units at any depth.
    void checkConnections() const;
    /// Simulates, with the sequence's component options in force for as long.
    void run();
    /// Simulates and compares. True if nothing failed.
    bool runAndVerify();
    /// Prints the sequence's inputs and outputs, the ports named by `pins` and the nets named by `nets` (lists with
    /// commas), every `resolution` ns, or below 1 at the times of the vectors.
    void printResults(std::int32_t resolution, const std::string& pins, const std::string& nets);

    std::uint32_t getFailureCount() const { return failures_; }
    /// The last sample's time; the run goes 1 ns further.
    Time getEndTime() const { return endTime_; }
    void setEndTime(Time time) { endTime_ = time; }
    /// A stimulus of the signal file as `port` takes it: trimmed, hexadecimal digits written out if there is nothing
    /// else in it, the high end cut off, or filled up with `L`, or with `U` if the text isn't fully defined.
    static std::string normalize(const Port& port, const std::string& text);

    Circuit* getCircuit() const { return circuit_; }
    EventSimulator* getSimulator() const { return simulator_.get(); }

private:
    /// The circuit outlives its simulator and mustn't name it any longer.
    struct DeleteSimulator {
        void operator()(EventSimulator* simulator) const;
    };

    /// `name` was expected to show one value at `time` and shows another one.
    virtual void reportMismatch(Time time, const std::string& name, const Value& expected, const Value& actual) = 0;

    /// A column of the header, looked up once for all vectors.
    struct InputColumn {
        std::string name;
        Port* port;
    };
    struct OutputColumn {
        std::string name;
        const Port* port;  ///< null until it is asked for
        std::optional<int> expectation;
    };

    void setUp(Circuit* circuit);
    void registerInput(const std::string& name);
    void applyVector(const std::vector<InputColumn>& columns, const TestVector& vector);
    static void applyCell(Port& port, std::string_view text, Time time);
    void applyAssignment(const PortAssignment& assignment);
    void applyOptions();
    void restoreParameters();
    Component* requireComponent(const std::string& name) const;
    void checkOutput(OutputColumn& column, Time time);
    void compare(const OutputColumn& column, Time time);
    std::vector<std::string> inputNames() const;
    std::vector<std::string> outputNames() const;

    Time endTime_ = 0;
    std::uint32_t failures_ = 0;
    Circuit* circuit_ = nullptr;        ///< not owned
    TestSequence* sequence_ = nullptr;  ///< not owned here
    std::unique_ptr<EventSimulator, DeleteSimulator> simulator_;
    std::map<std::string, Port*> inputPorts_;    ///< what the test drives, by the names of the test file
    std::unique_ptr<TestSequence> ownSequence_;  ///< the one that was loaded here
    bool verifyOutputs_ = true;
    std::unique_ptr<ExpectedOutputs> expectations_;        ///< while outputs are compared
    std::map<const Component*, ParaMap> savedParameters_;  ///< of components with options, during a run
};

}  // namespace tarnsim
