#include "Tests/Support/RandomCircuit.h"

#include <algorithm>
#include <numeric>

#include "Core/Circuit/ComponentRegistry.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"
#include "Tests/Support/RandomRun.h"
#include "Tests/Support/RandomSignals.h"

namespace tarnsim {

namespace {

using Census = std::map<std::string, std::size_t>;

/// Counts what is in a loaded circuit, all levels together, each kind by a word of its own.
void take(Census& census, const Circuit& circuit, std::size_t depth = 0) {
    const auto count = [&](const std::string& what, bool isThere = true) { census[what] += isThere ? 1 : 0; };
    count(format("level %zu", depth));
    for (const Component* unit : circuit.getComponents()) {
        const std::string& type = unit->getType();
        count(type);
        const ParaMap defaults = ComponentFactory::getDefaults(type);
        count("parameters", !unit->getParameterTextExcept(defaults).empty());
        count("comment of a unit", !unit->hasNoComment());
        const bool isElement = unit->getName().find("[1]") != std::string::npos;
        const bool isDeclared = findComponentType(type) == nullptr;
        if (isElement) count(isDeclared ? "array of a declared circuit" : "array");
        if (isDeclared) {
            const Circuit* declared = circuit.findDeclaration(type);
            count(declared->hasOwnFile() ? "unit of a circuit in a file" : "unit of a circuit in braces");
            take(census, dynamic_cast<const Circuit&>(*unit), depth + 1);
        }
    }
    for (const Circuit* declaration : circuit.getDeclarations()) {
        const auto users = std::ranges::count(circuit.getComponents(), declaration->getType(),
                                              [](const Component* unit) { return unit->getType(); });
        count("declaration used more than once", users > 1);
        count("unused declaration", users == 0);
        // Meta data stays with the declaration.
        count("meta data of a declaration", !declaration->getMetaDataKeys().empty());
    }
    for (const Port* port : circuit.getPorts()) {
        const char* const directions[] = {"Input", "Output", "Inout"};
        count(directions[static_cast<std::size_t>(port->direction())]);
        count("wide port", port->width() > 1);
        count("port that lets Z through", !port->getZtr());
        count("comment of a port", !port->hasNoComment());
    }
    for (const Net* net : circuit.getNets()) {
        count("net");
        count("net with one port", net->getPorts().size() == 1);
        count("comment of a net", !net->hasNoComment());
        const auto drivers = std::ranges::count_if(net->getPorts(), [&](Port* port) { return net->isDriver(*port); });
        count("net with several drivers", drivers > 1);
        const auto isDeep = [&](const Port* port) { return std::ranges::count(circuit.getPortPath(port), '.') > 1; };
        count("net to a port deep in a unit", std::ranges::any_of(net->getPorts(), isDeep));
    }
    census["free comment"] += circuit.countComments();
    census["import path"] += circuit.getImportPaths().size() - 1;
    census["meta data"] += circuit.getMetaDataKeys().size();
}

/// The circuits of some seeds: what they hold, and what was done to make them.
Census censusOf(bool saveable, std::uint32_t seeds) {
    Census census;
    for (std::uint32_t seed = 1; seed <= seeds; ++seed) {
        SCOPED_TRACE(format("seed %u", seed));
        const Workplace here;
        RandomChoices choices(seed);
        RandomCircuitStyle style;
        style.saveable = saveable;
        const RandomCircuit random = makeRandomCircuit(choices, style);
        random.writeTo(".");
        std::unique_ptr<Circuit> circuit;
        std::string error;
        streamsOf([&] { error = errorOf([&] { circuit = CircuitFileReader().load(RandomCircuit::kFile); }); });
        EXPECT_EQ(error, "(no Error)");
        if (circuit == nullptr) continue;
        take(census, *circuit);
        for (const char* what : {"memory image", "feedback", "file declared twice", "statements in any order", "Import",
                                 "comment behind a statement"}) {
            if (random.made.contains(what)) ++census[what];
        }
    }
    return census;
}

const Texts kKinds = {
    "level 0",
    "level 1",
    "level 2",
    "level 3",
    "unit of a circuit in a file",
    "unit of a circuit in braces",
    "declaration used more than once",
    "file declared twice",
    "array",
    "array of a declared circuit",
    "parameters",
    "memory image",
    "Input",
    "Output",
    "Inout",
    "wide port",
    "net",
    "net with one port",
    "net with several drivers",
    "net to a port deep in a unit",
    "feedback",
    "comment of a unit",
    "comment of a port",
    "comment of a net",
    "free comment",
    "comment behind a statement",
    "meta data",
    "meta data of a declaration",
    "import path",
    "statements in any order",
};

TEST(RandomCircuit, HasEverythingThatSavingKeeps) {
    Census census = censusOf(true, 200);
    for (const ComponentType& type : componentTypes())
        EXPECT_GE(census[std::string(type.typeName())], 3u) << type.typeName();
    for (const std::string& what : kKinds) EXPECT_GE(census[what], 3u) << what;
    EXPECT_EQ(census["unused declaration"], 0u);
    EXPECT_EQ(census["Import"], 0u);
}

TEST(RandomCircuit, HasAllTheRestToo) {
    Census census = censusOf(false, 40);
    for (const char* what :
         {"unused declaration", "port that lets Z through", "Import", "array", "comment of a unit"}) {
        EXPECT_GE(census[what], 3u) << what;
    }
}

// What a fuzzer feeds on.
TEST(RandomCircuit, IsMadeOfAnyBytes) {
    std::size_t units = 0;
    for (std::uint32_t seed = 0; seed < 30; ++seed) {
        SCOPED_TRACE(format("seed %u", seed));
        std::vector<std::uint8_t> bytes;
        RandomChoices choices(seed);
        for (std::size_t left = choices.below(1500); left > 0; --left) {
            bytes.push_back(static_cast<std::uint8_t>(choices.below(256)));
        }
        ByteChoices fromBytes(bytes.data(), bytes.size());
        RandomCircuitStyle style;
        style.saveable = fromBytes.onceIn(2);
        const RandomCircuit random = makeRandomCircuit(fromBytes, style);

        const Workplace here;
        random.writeTo(".");
        here.write("test.sig", makeRandomSignals(fromBytes, random).text);
        std::unique_ptr<Circuit> circuit;
        std::string error;
        streamsOf([&] { error = errorOf([&] { circuit = CircuitFileReader().load(RandomCircuit::kFile); }); });
        ASSERT_EQ(error, "(no Error)");
        units += circuit->countComponents();
        runRandomCircuit(*circuit, "test.sig", random);
    }
    EXPECT_GT(units, 30u);
}

TEST(RandomCircuit, IsNearlyEmptyWithoutBytes) {
    ByteChoices nothing(nullptr, 0);
    const RandomCircuit random = makeRandomCircuit(nothing);
    EXPECT_EQ(random.files, (std::map<std::string, std::string>{{RandomCircuit::kFile, "Pin Input p0\n"}}));
    ASSERT_EQ(random.inputs.size(), 1u);
    EXPECT_EQ(random.inputs[0].path, "p0");
    EXPECT_EQ(makeRandomSignals(nothing, random).text, "time p0 =>\n");
}

TEST(RandomCircuit, IsTheSameForTheSameBytes) {
    std::vector<std::uint8_t> bytes(1000);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{7});
    ByteChoices one(bytes.data(), bytes.size());
    ByteChoices other(bytes.data(), bytes.size());
    EXPECT_EQ(makeRandomCircuit(one).files, makeRandomCircuit(other).files);
}

TEST(Choices, BytesAreUsedUpAndThenAllIsZero) {
    const std::uint8_t bytes[] = {7, 1, 2, 255};
    ByteChoices choices(bytes, sizeof bytes);
    EXPECT_EQ(choices.below(1), 0u);  // takes nothing
    EXPECT_EQ(choices.below(5), 2u);
    EXPECT_EQ(choices.below(1000), 258u);
    EXPECT_EQ(choices.between(10, 265), 265u);
    EXPECT_EQ(choices.below(256), 0u);
    EXPECT_EQ(choices.between(3, 9), 3u);
    EXPECT_FALSE(choices.onceIn(2));
}

}  // namespace

}  // namespace tarnsim
