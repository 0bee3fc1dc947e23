#include <algorithm>
#include <cstdint>
#include <numeric>

#include "Core/Circuit/ComponentFactory.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Core/Components/Component.h"
#include "Core/Simulation/PinSpec.h"
#include "Core/Support/ParaMap.h"
#include "Core/Support/Text.h"
#include "Tests/Fuzz/FuzzSupport.h"
#include "Tests/Fuzz/FuzzTargets.h"

namespace tarnsim {

namespace {

/// A list of that many bits costs nothing yet.
constexpr std::int32_t kMostBits = 100'000;

/// Pin expressions end in nothing but an Error.
void tryPinSpec(const std::string& expression) {
    completes([&] {
        const std::int32_t maxBit = PinSpec::maxBitOf(expression);
        if (maxBit > kMostBits) return;
        const PinSpec spec(expression);
        check(spec.maxBit() == maxBit, "an expression has two highest bits");
        check(spec.size() == spec.getBits().size(), "an expression has two sizes");
        if (expression.empty()) return;
        for (const std::int32_t bit : spec.getBits()) {
            check(bit >= 0 && bit <= maxBit, "a bit is out of range");
            if (spec.size() > 300) continue;  // looked for from the front
            check(spec.contains(bit), "a bit isn't in its own list");
            check(spec.bitAt(static_cast<std::size_t>(spec.indexOf(bit))) == bit, "a bit isn't where it was found");
        }
    });
}

/// So do lists of parameters; only a number may be beyond 32 bits.
void tryParameters(const std::string& text) {
    ParaMap parameters;
    if (completes([&] { parameters.parse(text); })) {
        const ParaMap again(parameters.toString());
        check(again.map() == parameters.map(), "parameters read back differently");
        check(parameters.toStringExcept(parameters).empty(), "parameters differ from themselves");
    }
    for (const std::string& key : parameters.keys()) {
        float fraction = 0;
        bool flag = false;
        std::uint32_t number = 0;
        parameters.get(key, &fraction);
        parameters.get(key, &flag);
        completes([&] { parameters.get(key, &number); }, {isNumberTooLarge});
    }
}

/// The part named so, or for any other text some part.
std::string partTypeOf(const std::string& text) {
    if (ComponentFactory::isBuiltIn(text)) return text;
    const std::size_t sum = std::accumulate(text.begin(), text.end(), std::size_t{0},
                                            [](std::size_t n, char c) { return n + static_cast<unsigned char>(c); });
    return std::string(componentTypes()[sum % componentTypes().size()].typeName());
}

/// Takes the first line off the front.
std::string takeLine(std::string_view& text) {
    const std::size_t length = std::min(text.find('\n'), text.size());
    std::string line(text.substr(0, length));
    text.remove_prefix(std::min(length + 1, text.size()));
    return line;
}

}  // namespace

// Three lines: the type of a part, a pin expression, and parameters without their parentheses. The part may also refuse
// a value.
void fuzzExpressions(std::string_view input) {
    const std::string type = partTypeOf(takeLine(input));
    const std::string expression = takeLine(input);
    const std::string parameters(input);
    if (parameters.find("/dev") != std::string::npos || parameters.find("/proc") != std::string::npos) return;

    const FuzzFolder here({});
    tryPinSpec(expression);
    tryParameters(parameters);
    tryParameters("(" + parameters + ")");
    ComponentFactory factory;
    completes([&] { factory.create(type, "u(" + parameters + ")"); }, {isNumberTooLarge, isRefusedValue});
    for (const char* joint : {"Join", "Split", "Splice"}) {
        completes([&] { factory.create(joint, "u(size=8,a=" + expression + ")"); }, {isNumberTooLarge});
    }
}

}  // namespace tarnsim
