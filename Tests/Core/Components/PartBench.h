#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "Core/Components/Component.h"
#include "Core/Simulation/Port.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {

/// Any letter that a pin can hold.
inline constexpr std::string_view kPinLetters = "LHUZX";

/// What a table of steps tells of one of them.
struct BenchStep {
    std::string inputs;   ///< as PartBench::set takes them
    std::string outputs;  ///< as PartBench::step gives them
};

/// A part on a bench: the test sets its ports, has it evaluated and reads its ports, with neither circuit nor simulator
/// around. So nothing resolves and nothing is scheduled, and an input without net holds any letter, `Z` and `X` too.
class PartBench {
public:
    /// `delay` (ns) is how long after its inputs the part is evaluated.
    PartBench(Component& part, std::uint32_t delay) : part_(part), delay_(static_cast<Time>(delay)) {}

    /// Sets ports from a text like "A=HLHL clk=L".
    void set(const std::string& assignments, Time time) {
        std::istringstream words(assignments);
        for (std::string word; words >> word;) {
            const std::size_t equals = word.rfind('=');
            port(word.substr(0, equals)).set(Value(word.substr(equals + 1)), time);
        }
    }

    /// The letters of ports, for "Q _Q" such as "H L".
    std::string read(const std::string& ports, Time time) const {
        std::string text;
        for (const Port* each : named(ports)) text += (text.empty() ? "" : " ") + std::string(each->get(time).c_str());
        return text;
    }

    /// Goes 100 ns on, sets inputs, evaluates one delay later and reads outputs then. In parentheses stands what that
    /// evaluation didn't write.
    std::string step(const std::string& assignments, const std::string& outputs) {
        now_ += 100;
        set(assignments, now_);
        const std::vector<Port*> ports = named(outputs);
        std::vector<std::size_t> records;
        for (const Port* each : ports) records.push_back(each->recordCount());
        part_.evaluate(now_ + delay_);
        std::string text;
        for (std::size_t i = 0; i < ports.size(); ++i) {
            const std::string letters = ports[i]->get(now_ + delay_).c_str();
            const bool isWritten = ports[i]->recordCount() > records[i];
            text += (i == 0 ? "" : " ") + (isWritten ? letters : "(" + letters + ")");
        }
        return text;
    }

    void expectSteps(const std::string& outputs, const std::vector<BenchStep>& steps) {
        std::string done;
        for (const BenchStep& each : steps) {
            done += "\n  " + each.inputs;
            EXPECT_EQ(step(each.inputs, outputs), each.outputs) << outputs << " after" << done;
        }
    }

    /// Forgets all, as before a run.
    void reset() {
        part_.reset();
        now_ = -100;
    }

    /// When the inputs of the last step were set.
    Time now() const { return now_; }

private:
    Port& port(const std::string& name) const {
        Port* found = part_.findPort(name);
        if (found == nullptr) throw Error("The part has no port '%s'.", name.c_str());
        return *found;
    }
    std::vector<Port*> named(const std::string& names) const {
        std::vector<Port*> ports;
        std::istringstream words(names);
        for (std::string word; words >> word;) ports.push_back(&port(word));
        return ports;
    }

    Component& part_;
    Time delay_;
    Time now_ = -100;
};

/// How many ns after a rise of `input` the evaluation of a part first has another result on `output`: the delay with
/// which it reads. The other inputs are set at 0 already.
inline Time readingDelay(Component& part, const std::string& input, const std::string& output) {
    constexpr Time kRise = 1000;
    const Port* out = part.findPort(output);
    part.findPort(input)->set(Value("L"), 0);
    part.findPort(input)->set(Value("H"), kRise);
    part.evaluate(kRise - 1);
    const Value before = out->get(kRise - 1);
    for (Time time = kRise; time < 2 * kRise; ++time) {
        part.evaluate(time);
        if (out->get(time) != before) return time - kRise;
    }
    return -1;
}

}  // namespace tarnsim
