#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Core/Simulation/EventQueue.h"
#include "Core/Values/Time.h"

namespace tarnsim {

class Circuit;
class Component;
class Net;
class Port;

/// The kernel: works through a queue of components to be called, in order of time.
///
/// Its circuit, and copies of that, schedule with it until setSimulator gives them another one or null; it must live as
/// long. It carries no values; those are in the histories of ports and nets, written for any time at any moment. One
/// simulator serves one root circuit, which it doesn't own. The order of use is: construction, `prepare`, stimuli set
/// on ports, `run` once, then the tables. Nothing is ever forgotten, so a second `run` calls everything again.
class EventSimulator {
public:
    /// Makes itself known to `circuit`, so that its components can schedule.
    explicit EventSimulator(Circuit* circuit);
    virtual ~EventSimulator() = default;
    EventSimulator(const EventSimulator&) = delete;
    EventSimulator& operator=(const EventSimulator&) = delete;

    /// `target` is evaluated at `time` (absolute, ns), once for all calls with the same arguments. A time that the run
    /// has passed never comes.
    void schedule(Component* target, Time time) { schedule(target, 0, time); }
    /// The same with a tag that `target` gets back. A tag of 0 is a plain event.
    void schedule(Component* target, std::uint64_t tag, Time time) { schedule(numberOf({target, tag}), time); }
    /// The same for whoever schedules an event again and again.
    void schedule(EventNumber event, Time time) { queue_.insert(event, time); }
    EventNumber numberOf(const Event& event) { return events_.numberOf(event); }
    EventDirectory& events() { return events_; }

    /// Resets the circuit, looks which of its signals are always the same (see Wiring), then starts it.
    void prepare(Time endTime);

    /// Calls everything that is due up to and including `endTime`. What happens at one time happens in passes, as many
    /// as it takes; a pair (target, tag) is called at most once a time, which ends loops without delay.
    void run(Time endTime);

    Circuit* getCircuit() const { return circuit_; }
    /// The time that the run has reached: that of the first events beyond its end if there are any.
    Time getTime() const { return now_; }
    /// A byte that, once not 0, ends the run before the next point in time. Cleared by `run`. Not owned, may be null.
    void setAbortFlag(volatile char* flag) { abortFlag_ = flag; }

    // The table of results, on the standard output: a line for each stop, with the ports named by `inputs` and
    // `outputs` (paths through the hierarchy), then the nets. Raises an Error for a name that isn't there. Ends with
    // the first line that can't be written, which the stream remembers (`ferror`).

    /// Stops at 0, `step`, 2 * `step` and so on, up to the end of the run.
    void printEvery(const std::vector<std::string>& inputs, const std::vector<std::string>& outputs,
                    const std::vector<std::string>& nets, Time step);
    void printAt(const std::vector<std::string>& inputs, const std::vector<std::string>& outputs,
                 const std::vector<std::string>& nets, const std::vector<Time>& times);

private:
    struct Table;

    void workThrough(Time time);
    Table makeTable(const std::vector<std::string>& inputs, const std::vector<std::string>& outputs,
                    const std::vector<std::string>& nets) const;
    /// False if it can't be written.
    bool printRow(Table& table, Time time);

    Circuit* circuit_;  ///< not owned
    EventDirectory events_;
    EventQueue queue_{events_};
    std::uint32_t printedRows_ = 0;  ///< of the table being printed
    Time endTime_ = 0;               ///< of the present or last run
    volatile char* abortFlag_ = nullptr;
    Time now_ = 0;
};

}  // namespace tarnsim
