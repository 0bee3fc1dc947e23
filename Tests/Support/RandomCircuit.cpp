#include "Tests/Support/RandomCircuit.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <utility>

#include "Core/Circuit/ComponentFactory.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

// At one time the simulator works in passes, each with the parts that the one before has woken. A pass by its number,
// or:
constexpr int kBeforeRun = 0;  ///< set by signal files and sources, all before the run
constexpr int kFirstPass = 1;  ///< parts with a delay
constexpr int kOpenPass = -1;  ///< not settled; who needs it to be one pass settles it
constexpr int kSeveralPasses = -2;

/// When the wires of one or more nets that are tied together change.
struct Wires {
    int pass = kOpenPass;
    bool isReadAtOnce = false;  ///< somebody relies on the pass
    bool isClosed = false;      ///< no more drivers
    bool isForDisplay = false;  ///< no readers: it may still change in the past
};

/// A port of a unit, of a declared circuit, or deep in one.
struct PartPort {
    std::string path;
    std::uint32_t width = 1;
    Direction direction = Direction::Input;
    int pass = kOpenPass;  ///< of an Input what it needs, of an Output what it gives
    bool isClosed = false;
    bool isForDisplay = false;
};

struct Signal {
    std::string net;
    std::uint32_t width;
    std::vector<std::string> paths;
    std::shared_ptr<Wires> wires;
};

/// A port of the body itself.
struct OwnPort {
    std::string name;
    std::uint32_t width;
    Direction direction;
    std::shared_ptr<Wires> wires;  ///< null for a port on no net
};

struct Declaration {
    std::string name;
    std::string fileText;  ///< as the statement names it; empty for one in braces
    std::vector<PartPort> ports;
    std::vector<PartPort> freePorts;
    std::vector<std::string> nets;
    std::size_t cost = 1;
};

struct Statement {
    std::string text;
    bool takesComment = true;  ///< a comment stays with it
    bool standsAlone = false;  ///< no comment near it
};

struct UnitText {
    std::string type;
    std::string instance;
};

/// One circuit body in the making.
struct Body {
    std::string directory;      ///< that the files it names are relative to
    std::string fileDirectory;  ///< where its text stands; files beside it are found, too
    std::size_t depth = 0;
    std::vector<Declaration> declarations;
    std::vector<Statement> declarationStatements;
    std::vector<UnitText> units;
    std::vector<Statement> arrays;
    std::vector<OwnPort> ports;
    std::vector<Signal> signals;
    std::vector<PartPort> freePorts;
    std::vector<std::pair<std::string, std::uint32_t>> feedback;  ///< inputs that may take a signal made later
    std::vector<std::string> deepNets;
    std::set<std::string> circuitNames, unitNames, portNames, netNames;
    std::size_t cost = 1;

    bool isRoot() const { return depth == 0; }
};

/// What a part needs of its inputs and gives at its outputs.
struct Timing {
    enum class Reads { Past, AtOnce, Present } reads = Reads::Past;
    int outputPass = kFirstPass;
};

using Parameters = std::vector<std::pair<std::string, std::string>>;

bool isOneOf(const std::string& text, std::initializer_list<std::string_view> list) {
    return std::ranges::find(list, text) != list.end();
}

bool isConnector(const std::string& type) {
    return isOneOf(type, {"Join", "Split", "Splice"});
}

bool isProcessor(const std::string& type) {
    return isOneOf(type, {"MOS6502", "W65C02"});
}

std::size_t costOf(const std::string& type) {
    if (isOneOf(type, {"27C64", "HM62256B"})) return 10;
    return type == "IDT7132LA" ? 4 : 1;
}

std::string parameterTextOf(const Parameters& parameters) {
    std::string text;
    for (const auto& [key, value] : parameters) {
        text.append(text.empty() ? "(" : ",").append(key);
        if (!value.empty()) text.append("=").append(value);
    }
    return text.empty() ? text : text + ")";
}

Timing timingOf(const std::string& type, const std::string& parameterText) {
    using Reads = Timing::Reads;
    if (isOneOf(type, {"High", "Low", "Const", "Oscillator"})) return {Reads::Past, kBeforeRun};
    // These set outputs for the future, too. For readers that is as if it had been done before the run; and a net that
    // is resolved for the future knows nothing of what its other drivers do until then.
    if (type == "IDT7132LA" || isProcessor(type)) return {Reads::Present, kSeveralPasses};
    if (isConnector(type)) return {Reads::AtOnce, kOpenPass};
    // These are made of parts that hand on without delay what others have computed.
    const int outputPass = isOneOf(type, {"74LS154", "74LS374", "74x574"}) ? kSeveralPasses : kFirstPass;
    if (isOneOf(type, {"74x273", "74x688"})) return {Reads::Past, outputPass};  // whose delay has no effect
    ParaMap parameters = ComponentFactory::getDefaults(type);
    parameters.parse(parameterText);
    std::uint32_t delay = isOneOf(type, {"27C64", "HM62256B"}) ? 0 : 1;
    parameters.get("delay", &delay);
    if (delay > 0) return {Reads::Past, outputPass};
    return {Reads::AtOnce, outputPass == kFirstPass ? kOpenPass : outputPass};
}

/// The ports that a part has with these parameters.
std::vector<PartPort> portsOf(const std::string& type, const std::string& parameterText) {
    static std::map<std::string, std::vector<PartPort>> known;
    const bool hasShape = isConnector(type) || isOneOf(type, {"BusBuffer", "Const", "Demux1to4"});
    if (!hasShape && known.contains(type)) return known[type];
    ComponentFactory factory;
    std::vector<PartPort> ports;
    for (const Port* port : factory.create(type, "u" + (hasShape ? parameterText : ""))->getPorts()) {
        ports.push_back({port->getName(), port->width(), port->direction()});
    }
    if (!hasShape) known[type] = ports;
    return ports;
}

std::string directoryOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash);
}

class Generator {
public:
    Generator(Choices& choices, const RandomCircuitStyle& style) : c_(choices), style_(style), left_(style.budget) {}

    RandomCircuit make() {
        usesImportPath_ = c_.onceIn(3);
        Body root;
        fill(root);
        if (std::ranges::none_of(root.ports, [](const OwnPort& port) { return port.direction == Direction::Input; })) {
            addOwnPort(root, 1, Direction::Input, nullptr);
        }
        result_.files[RandomCircuit::kFile] = textOf(root, "");
        for (const OwnPort& port : root.ports) {
            auto& list = port.direction == Direction::Output ? result_.outputs : result_.inputs;
            list.push_back({port.name, port.width});
        }
        for (const PartPort& port : root.freePorts) {
            if (port.direction == Direction::Output) {
                result_.outputs.push_back({port.path, port.width});
            } else if (port.pass == kOpenPass || port.pass == kBeforeRun || !style_.saveable) {
                result_.inputs.push_back({port.path, port.width});
            }
        }
        result_.nets = netPathsOf(root);
        return std::move(result_);
    }

private:
    using WiresPointer = std::shared_ptr<Wires>;

    void count(const std::string& what) { ++result_.made[what]; }

    // Names and numbers.

    /// `stem` with a number behind its first `#`, or at its end, that makes it one of its kind.
    std::string uniqueName(std::set<std::string>& names, const std::string& stem) {
        for (std::size_t number = names.size();; ++number) {
            std::string name = stem;
            const std::size_t place = std::min(name.find('#'), name.size());
            name.replace(place, 1, std::to_string(number));
            if (names.insert(name).second) return name;
        }
    }

    std::string numberText(std::size_t number) {
        switch (c_.below(8)) {
            case 1: return format("0x%zX", number);
            case 2: return format("$%zx", number);
            case 3: {
                std::string bits;
                for (std::size_t rest = number; rest > 0 || bits.empty(); rest /= 2) {
                    bits.insert(bits.begin(), rest % 2 == 0 ? '0' : '1');
                }
                return "0b" + bits;
            }
            case 4: return format("0%zu", number);
            default: return std::to_string(number);
        }
    }

    std::uint32_t width() {
        if (c_.onceIn(40)) return static_cast<std::uint32_t>(c_.between(33, 255));
        if (c_.onceIn(4)) return static_cast<std::uint32_t>(c_.between(1, 20));
        static const std::vector<std::uint32_t> usual = {1, 1, 2, 4, 8, 8, 16};
        return c_.oneOf(usual);
    }

    // Parameters.

    /// Some bits of a bus, as a connector takes them.
    std::string segment(std::size_t first, std::size_t last) {
        if (first == last && !c_.onceIn(4)) return std::to_string(first);
        if (c_.onceIn(3)) std::swap(first, last);
        return format("%zu:%zu", last, first);
    }

    Parameters connectorParameters(const std::string& type) {
        const std::size_t size = width();
        const std::string sizeKey = type == "Join" ? "out" : type == "Split" ? "in" : "size";
        Parameters parameters = {{sizeKey, numberText(size)}};
        const std::size_t ports = c_.between(1, 4);
        const char* const stems[] = {"a", "bus", "Q", "d_"};
        const std::string stem = stems[c_.below(4)];
        std::vector<std::string> expressions(ports);
        const auto add = [&](std::size_t port, const std::string& text) {
            if (!expressions[port].empty()) expressions[port] += ";";
            expressions[port] += text;
        };
        if (type == "Join") {  // every bit at most once
            for (std::size_t bit = 0; bit < size;) {
                const std::size_t last = c_.between(bit, std::min(size - 1, bit + 7));
                const std::size_t port = c_.below(ports);
                if (!c_.onceIn(8)) add(port, segment(bit, last));
                bit = last + 1;
            }
        } else {
            for (std::size_t port = 0; port < ports; ++port) {
                for (std::size_t left = c_.between(1, 3); left > 0; --left) {
                    const std::size_t first = c_.below(size);
                    add(port, segment(first, c_.between(first, std::min(size - 1, first + 15))));
                }
            }
        }
        for (std::size_t port = 0; port < ports; ++port) {
            if (!expressions[port].empty()) parameters.emplace_back(stem + std::to_string(port), expressions[port]);
        }
        return parameters;
    }

    std::string valueFor(const std::string& type, const std::string& key) {
        if (key == "delay") return c_.onceIn(8) ? "0" : numberText(c_.between(1, 60));
        if (key == "family") {
            if (type == "74x273") return "LS";
            if (type == "74x688") return c_.oneOf({"LS", "ALS"});
            return c_.oneOf({"LS", "ALS", "AS", "F"});
        }
        if (key == "size") {
            const std::size_t size = width();
            return numberText(size % 32 == 31 ? size - 1 : size);  // a Const of 31 bits takes no number
        }
        if (key == "frequency") return std::to_string(c_.between(2, 60) * 1'000'000);
        if (key == "offset") return numberText(c_.below(100));
        if (key == "value") return numberText(c_.below(70'000));
        return numberText(c_.between(1, 60));  // times of a processor
    }

    Parameters parametersFor(const std::string& type) {
        if (isConnector(type)) return connectorParameters(type);
        Parameters parameters;
        for (const std::string& key : ComponentFactory::getDefaults(type).keys()) {
            if (c_.onceIn(2)) parameters.emplace_back(key, valueFor(type, key));
        }
        if (type == "Demux1to4" && c_.onceIn(2)) {
            parameters.emplace_back("bus_io", c_.oneOf({"yes", "no", "true", "1", "0", "TRUE", "maybe"}));
        }
        if (type == "74x174" && c_.onceIn(2)) {
            const std::string key = c_.oneOf({"delay", "family"});
            parameters.emplace_back(key, valueFor(type, key));
        }
        if (isOneOf(type, {"27C64", "HM62256B"}) && !c_.onceIn(3)) {
            parameters.emplace_back("delay", valueFor(type, "delay"));
        }
        if (type == "IDT7132LA" && c_.onceIn(2)) {
            parameters.emplace_back("device", c_.oneOf({"LA20", "LA25", "LA35", "LA55", "LA100"}));
        }
        if (isOneOf(type, {"27C64", "HM62256B", "IDT7132LA"}) && c_.onceIn(3)) addImage(parameters);
        if (c_.onceIn(16)) {
            const std::string key = c_.oneOf({"note", "x", "$1"});
            parameters.emplace_back(key, c_.oneOf({"", "top%", "a+b/c"}));
        }
        if (c_.onceIn(4)) c_.shuffle(parameters);
        return parameters;
    }

    /// A memory image that any memory has room for, wherever the circuit's file is.
    void addImage(Parameters& parameters) {
        count("memory image");
        const bool isRaw = c_.onceIn(2);
        std::string bytes;
        if (!isRaw) bytes = {static_cast<char>(c_.below(256)), static_cast<char>(c_.below(4))};
        for (std::size_t left = c_.below(20); left > 0; --left) bytes += static_cast<char>(c_.below(256));
        const std::string name = format("image%zu.bin", ++images_);
        result_.files[name] = bytes;
        result_.files["lib/" + name] = bytes;
        parameters.emplace_back(isRaw ? "rawfile" : "cbmfile", name);
        if (isRaw && c_.onceIn(2)) parameters.emplace_back("rawaddress", numberText(c_.below(1000)));
    }

    // Wires.

    Signal& addSignal(Body& body, std::uint32_t width, WiresPointer wires = nullptr) {
        const std::string name = uniqueName(body.netNames, c_.oneOf({"n", "n", "/BUS", "data-", "n[#]", "~q", "A#:0"}));
        body.signals.push_back({name, width, {}, wires ? wires : std::make_shared<Wires>()});
        return body.signals.back();
    }

    OwnPort& addOwnPort(Body& body, std::uint32_t width, Direction direction, WiresPointer wires) {
        const std::string name = uniqueName(body.portNames, c_.oneOf({"p", "clk", "_RD", "D", "q<#>", "A=B", "x[#]"}));
        body.ports.push_back({name, width, direction, std::move(wires)});
        count(direction == Direction::Input ? "Input" : direction == Direction::Output ? "Output" : "Inout");
        return body.ports.back();
    }

    Signal& addInputSignal(Body& body, std::uint32_t width) {
        Signal& signal = addSignal(body, width);
        if (body.isRoot()) signal.wires->pass = kBeforeRun;
        signal.paths.push_back(addOwnPort(body, width, Direction::Input, signal.wires).name);
        return signal;
    }

    template <class Condition>
    Signal* findSignal(Body& body, std::uint32_t width, Condition isFit) {
        std::vector<Signal*> fit;
        for (Signal& signal : body.signals) {
            if (signal.width == width && !signal.wires->isForDisplay && isFit(*signal.wires)) fit.push_back(&signal);
        }
        return fit.empty() ? nullptr : c_.oneOf(fit);
    }

    /// Whether a driver that acts in that pass can join.
    bool takesDriver(const Wires& wires, int pass) const {
        if (!style_.saveable) return true;
        if (wires.isClosed) return false;
        return !wires.isReadAtOnce || wires.pass == pass;
    }

    static void addDriver(Wires& wires, int pass) {
        if (wires.pass == kOpenPass) wires.pass = pass;
        if (wires.pass != pass) wires.pass = kSeveralPasses;
    }

    /// Whether a reader can join that needs all to come in the pass `need`; the open pass stands for any one.
    bool takesReaderAtOnce(const Wires& wires, int need) const {
        if (!style_.saveable || wires.pass == kOpenPass) return true;
        return wires.pass != kSeveralPasses && (need == kOpenPass || wires.pass == need);
    }

    /// `need` is settled if it's open.
    void addReaderAtOnce(Wires& wires, int& need) {
        if (wires.pass == kOpenPass) wires.pass = need == kOpenPass ? static_cast<int>(c_.below(2)) : need;
        if (need == kOpenPass) need = wires.pass;
        wires.isReadAtOnce = true;
    }

    // Units.

    /// Puts an input on a net, or leaves it free. An `atOnce` input settles `pass`, or waits for no other one.
    void connectInput(Body& body, const PartPort& port, bool atOnce, int& pass, bool mayFeedBack = true) {
        const auto fits = [&](const Wires& wires) { return !atOnce || takesReaderAtOnce(wires, pass); };
        const std::size_t way = c_.below(10);
        Signal* signal = nullptr;
        if (way == 8 && !atOnce && mayFeedBack) {
            body.feedback.emplace_back(port.path, port.width);
            return;
        }
        if (way >= 1 && way <= 7) signal = findSignal(body, port.width, fits);
        const bool mayBeInput = !style_.saveable || !body.isRoot() || !atOnce || pass <= kBeforeRun;
        if (signal == nullptr && (way >= 8 || (way % 2 == 1)) && mayBeInput) {
            signal = &addInputSignal(body, port.width);
        }
        if (signal == nullptr) {
            body.freePorts.push_back(port);
            return;
        }
        if (atOnce) addReaderAtOnce(*signal->wires, pass);
        signal->paths.push_back(port.path);
    }

    void connectOutput(Body& body, const PartPort& port, bool mayJoin = true) {
        const std::size_t way = c_.below(8);
        if (way == 0) {
            body.freePorts.push_back(port);
            return;
        }
        Signal* signal = nullptr;
        if (way == 1 && mayJoin && !((port.isForDisplay || port.isClosed) && style_.saveable)) {
            signal = findSignal(body, port.width, [&](const Wires& wires) { return takesDriver(wires, port.pass); });
            if (signal != nullptr) count("net with several drivers");
        }
        if (signal == nullptr) signal = &addSignal(body, port.width);
        addDriver(*signal->wires, port.pass);
        signal->wires->isClosed |= port.isClosed;
        signal->wires->isForDisplay = port.isForDisplay && style_.saveable;
        signal->paths.push_back(port.path);
    }

    /// The port of a part that reads and writes its bus whenever it likes, or of a circuit that may hold anything.
    void connectBus(Body& body, const PartPort& port) {
        const std::size_t way = c_.below(5);
        if (way == 0) {
            body.freePorts.push_back(port);
            return;
        }
        Signal* signal = nullptr;
        if (way >= 3 && !style_.saveable) signal = findSignal(body, port.width, [](const Wires&) { return true; });
        if (signal == nullptr) {
            signal = &addSignal(body, port.width);
            if (way == 1) addInout(body, *signal);
        }
        addDriver(*signal->wires, kSeveralPasses);
        signal->wires->isClosed |= port.isClosed;
        signal->paths.push_back(port.path);
    }

    void addInout(Body& body, Signal& signal) {
        addDriver(*signal.wires, body.isRoot() ? kBeforeRun : kSeveralPasses);
        signal.paths.push_back(addOwnPort(body, signal.width, Direction::Inout, signal.wires).name);
    }

    /// Ties nets together: they change as one.
    void connectSplice(Body& body, const std::vector<PartPort>& ports) {
        auto wires = std::make_shared<Wires>();
        const auto canTie = [&](const Wires& other) {
            if (!style_.saveable) return true;
            if (wires->isClosed || other.isClosed || other.isForDisplay) return false;
            return wires->pass == other.pass || (!wires->isReadAtOnce && !other.isReadAtOnce);
        };
        for (const PartPort& port : ports) {
            const std::size_t way = c_.below(6);
            if (way == 0) continue;
            Signal* signal = way >= 3 ? findSignal(body, port.width, canTie) : nullptr;
            if (signal == nullptr) {
                signal = &addSignal(body, port.width, wires);
                if (way == 1 && takesDriver(*wires, body.isRoot() ? kBeforeRun : kSeveralPasses)) {
                    addInout(body, *signal);
                }
            } else if (signal->wires != wires) {
                tie(body, wires, signal->wires);
            }
            signal->paths.push_back(port.path);
        }
    }

    static void tie(Body& body, const WiresPointer& wires, const WiresPointer& others) {
        if (others->pass != kOpenPass) addDriver(*wires, others->pass);
        wires->isReadAtOnce |= others->isReadAtOnce;
        wires->isClosed |= others->isClosed;
        wires->isForDisplay |= others->isForDisplay;
        const WiresPointer former = others;  // which may be one of those that change
        for (Signal& signal : body.signals) {
            if (signal.wires == former) signal.wires = wires;
        }
        for (OwnPort& port : body.ports) {
            if (port.wires == former) port.wires = wires;
        }
    }

    void connectPart(Body& body, const std::string& name, const std::string& type, const std::string& parameterText) {
        std::vector<PartPort> ports = portsOf(type, parameterText);
        for (PartPort& port : ports) port.path = name + "." + port.path;
        if (type == "Splice") return connectSplice(body, ports);
        const Timing timing = timingOf(type, parameterText);
        const bool atOnce = timing.reads != Timing::Reads::Past;
        int pass = timing.reads == Timing::Reads::Present ? kBeforeRun : kOpenPass;
        const std::size_t free = body.freePorts.size();
        for (PartPort& port : ports) {
            if (port.direction == Direction::Input) connectInput(body, port, atOnce, pass);
        }
        if (atOnce && pass == kOpenPass) pass = kBeforeRun;
        for (std::size_t i = free; atOnce && i < body.freePorts.size(); ++i) body.freePorts[i].pass = pass;
        for (PartPort& port : ports) {
            port.pass = timing.outputPass == kOpenPass ? pass + 1 : timing.outputPass;
            port.isClosed = timing.reads == Timing::Reads::Present || port.direction == Direction::Inout;
            if (port.direction == Direction::Output) {
                port.isForDisplay = type == "IDT7132LA";  // whose busy lines are told for the past
                connectOutput(body, port);
            } else if (port.direction == Direction::Inout) {
                connectBus(body, port);
            }
        }
    }

    std::string unitName(Body& body) {
        return uniqueName(body.unitNames, c_.oneOf({"u", "g", "reg_", "U", "7x", "ic#]", "t[x#]"}));
    }

    /// False if it's too large.
    bool spend(Body& body, std::size_t cost) {
        if (cost > left_) return false;
        left_ -= cost;
        body.cost += cost;
        return true;
    }

    std::string partType() { return std::string(componentTypes()[c_.below(componentTypes().size())].typeName()); }

    bool mayStandIn(const Body& body, const std::string& type, std::size_t number) const {
        if (!isProcessor(type) || !style_.saveable) return true;
        return number == 1 && body.isRoot() && !result_.made.contains(type);
    }

    void addPart(Body& body) {
        const std::string type = partType();
        if (!mayStandIn(body, type, 1) || !spend(body, costOf(type))) return;
        const std::string parameters = parameterTextOf(parametersFor(type));
        const std::string name = unitName(body);
        count(type);
        if (!parameters.empty()) count("parameters");
        const std::string emptyList = parameters.empty() && c_.onceIn(16) ? "()" : "";
        body.units.push_back({type, name + parameters + emptyList});
        connectPart(body, name, type, parameters);
        const bool isWord = std::ranges::all_of(name, isWordCharacter);
        const bool isDelayed = timingOf(type, parameters).reads == Timing::Reads::Past;
        if (body.isRoot() && isWord && isDelayed) result_.delayedUnits.push_back(name);
    }

    /// Units that stand as one name with a number in the file.
    void addArray(Body& body) {
        const bool isDeclared = !body.declarations.empty() && c_.onceIn(2);
        const Declaration* declaration = isDeclared ? &c_.oneOf(body.declarations) : nullptr;
        const std::string type = isDeclared ? declaration->name : partType();
        const std::size_t size = c_.between(1, 4);
        if (isConnector(type) || !mayStandIn(body, type, size)) return;
        if (!spend(body, size * (declaration != nullptr ? declaration->cost : costOf(type)))) return;
        count(declaration != nullptr ? "array of a declared circuit" : "array");
        if (declaration == nullptr) count(type);
        const std::string base = uniqueName(body.unitNames, c_.oneOf({"arr", "bit_", "r"}));
        std::vector<std::string> elements;
        for (std::size_t i = 0; i < size; ++i) elements.push_back(base + format("[%zu]", i));
        Statement statement{"Unit " + type + " " + base + format("[%zu]", size), false, true};
        if (declaration == nullptr && c_.onceIn(4)) {  // the same, written out
            statement.text = "Unit " + type;
            for (const std::string& element : elements) statement.text += " " + element + "()";
        }
        if (!style_.saveable && c_.onceIn(2)) {
            statement.takesComment = true;
            statement.standsAlone = false;
            if (declaration == nullptr) statement.text += " " + base + format("[%zu](note=x)", size + 1);
        }
        body.arrays.push_back(statement);
        for (const std::string& element : elements) {
            declaration != nullptr ? connectInstance(body, element, *declaration)
                                   : connectPart(body, element, type, "");
        }
    }

    // Hierarchy.

    void addInstance(Body& body) {
        const bool isNew = body.declarations.empty() || c_.onceIn(2);
        if (isNew) {
            if (body.depth == style_.maxDepth) return;
            addDeclaration(body);
        }
        const Declaration declaration = isNew ? body.declarations.back() : c_.oneOf(body.declarations);
        // A new declaration must have a unit, whatever it costs.
        if (!spend(body, declaration.cost) && !isNew) return;
        if (!isNew) count("declared circuit used again");
        const std::string name = unitName(body);
        body.units.push_back({declaration.name, name});
        connectInstance(body, name, declaration);
    }

    void addDeclaration(Body& body) {
        Declaration declaration;
        declaration.name = uniqueName(body.circuitNames, c_.oneOf({"Block", "half-adder", "T_#x", "cpu/"}));
        if (!body.isRoot()) count("declaration in a declaration");
        const auto known =
            std::ranges::find_if(body.declarations, [](const Declaration& each) { return !each.fileText.empty(); });
        if (known != body.declarations.end() && c_.onceIn(2)) {
            const std::string name = std::exchange(declaration, *known).name;
            declaration.name = name;
            count("file declared twice");
        } else {
            makeDeclaration(body, declaration);
        }
        if (!declaration.fileText.empty()) {
            body.declarationStatements.push_back(
                {"Circuit " + declaration.name + " \"" + declaration.fileText + "\"", false});
        }
        body.declarations.push_back(std::move(declaration));
    }

    void makeDeclaration(Body& body, Declaration& declaration) {
        const bool isFile = c_.onceIn(2);
        std::string place;
        Body inner;
        inner.depth = body.depth + 1;
        if (isFile) {
            const std::string name = format("part%zu.nlx", ++files_);
            declaration.fileText = name;
            place = body.directory.empty() && c_.onceIn(2) ? "" : "lib/";
            if (body.directory.empty() && place == "lib/") {
                // What isn't there is looked for on the import path by its last name.
                const bool isImported = usesImportPath_ && body.fileDirectory.empty() && c_.onceIn(2);
                declaration.fileText = (isImported ? c_.oneOf({"", "missing/"}) : place) + name;
            }
            place += name;
            inner.directory = directoryOf(body.directory.empty() ? declaration.fileText
                                                                 : body.directory + "/" + declaration.fileText);
            inner.fileDirectory = directoryOf(place);
        } else {
            inner.fileDirectory = body.fileDirectory;
        }
        fill(inner);
        const std::string indent(inner.depth * 3, ' ');
        if (isFile) {
            result_.files[place] = textOf(inner, "");
            count("declared in a file");
        } else {
            std::string text = "Circuit " + declaration.name + " {";
            if (c_.onceIn(8)) text += commentText(false);
            text += "\n" + textOf(inner, indent) + std::string(body.depth * 3, ' ') + "}";
            body.declarationStatements.push_back({text, false});
            count("declared inline");
        }
        for (const OwnPort& port : inner.ports) {
            PartPort outside{port.name, port.width, port.direction};
            if (port.wires != nullptr) {
                outside.pass = port.wires->pass;
                outside.isClosed = port.wires->isClosed;
                outside.isForDisplay = port.wires->isForDisplay;
            }
            if (outside.pass == kOpenPass && port.direction != Direction::Input) outside.pass = kSeveralPasses;
            if (outside.pass == kSeveralPasses && port.direction == Direction::Input) outside.pass = kOpenPass;
            declaration.ports.push_back(outside);
        }
        declaration.freePorts = inner.freePorts;
        declaration.nets = netPathsOf(inner);
        declaration.cost = inner.cost;
    }

    void connectInstance(Body& body, const std::string& name, const Declaration& declaration) {
        for (PartPort port : declaration.ports) {
            port.path = name + "." + port.path;
            connectPort(body, port);
        }
        for (PartPort port : declaration.freePorts) {
            port.path = name + "." + port.path;
            if (!c_.onceIn(6) || port.direction == Direction::Inout) {
                body.freePorts.push_back(port);
            } else {
                count("net to a port deep in a unit");
                connectPort(body, port);
            }
        }
        for (const std::string& net : declaration.nets) {
            if (body.deepNets.size() < 30) body.deepNets.push_back(name + "." + net);
        }
    }

    /// A port of a circuit, where an input may go straight to an output: a loop of such ones is no circuit.
    void connectPort(Body& body, const PartPort& port) {
        int pass = port.pass;
        switch (port.direction) {
            case Direction::Input: connectInput(body, port, pass != kOpenPass, pass, false); break;
            case Direction::Output: connectOutput(body, port, false); break;
            case Direction::Inout: connectBus(body, port); break;
        }
    }

    static std::vector<std::string> netPathsOf(const Body& body) {
        std::vector<std::string> paths;
        for (const Signal& signal : body.signals) {
            if (!signal.paths.empty()) paths.push_back(signal.net);
        }
        paths.insert(paths.end(), body.deepNets.begin(), body.deepNets.end());
        return paths;
    }

    // Bodies.

    void fill(Body& body) {
        for (std::size_t left = c_.below(style_.maxUnits + 1); left > 0; --left) {
            switch (c_.below(9)) {
                case 6: addArray(body); break;
                case 7:
                case 8: addInstance(body); break;
                default: addPart(body); break;
            }
        }
        if (!style_.saveable && body.depth < style_.maxDepth && c_.onceIn(8)) {
            addDeclaration(body);
            count("unused declaration");
        }
        for (const auto& [path, width] : body.feedback) {
            if (Signal* signal = findSignal(body, width, [](const Wires&) { return true; })) {
                signal->paths.push_back(path);
                count("feedback");
            } else {
                body.freePorts.push_back({path, width, Direction::Input});
            }
        }
        for (std::size_t i = 0; i < body.signals.size(); ++i) {
            if (c_.onceIn(3)) {
                Signal& signal = body.signals[i];
                signal.paths.push_back(addOwnPort(body, signal.width, Direction::Output, signal.wires).name);
            }
        }
        if (c_.onceIn(8)) {
            const std::uint32_t size = width();
            addOwnPort(body, size, static_cast<Direction>(c_.below(3)), nullptr);
        }
    }

    // Text.

    std::string commentText(bool mayBeEmpty) {
        static const std::vector<std::string> texts = {
            "",
            "adds two bits",
            "  Unit And u99",
            "\"quoted\" and 'single' } {",
            "# twice",
            "caf\xC3\xA9 \xE2\x86\x92",
            "tab\tinside  and blanks",
        };
        const std::string start = c_.oneOf({" #", " # ", "\t#"});
        return start + texts[c_.between(mayBeEmpty ? 0 : 1, texts.size() - 1)];
    }

    void writeComment(std::string& text, const std::string& indent, bool mayBeEmpty) {
        for (std::size_t lines = c_.between(1, 3); lines > 0; --lines) {
            text += indent + trimmed(commentText(mayBeEmpty || lines > 1)) + "\n";
            if (c_.onceIn(6)) text += indent + "  \n";  // ends no comment, as it isn't empty
        }
    }

    void write(std::string& text, const std::string& indent, const Statement& statement) {
        if (c_.onceIn(16)) {
            writeComment(text, indent, false);
            text += "\n";
            count("free comment");
        }
        if (c_.onceIn(8)) text += "\n";
        if (!statement.standsAlone && c_.onceIn(6)) {
            writeComment(text, indent, statement.takesComment);
            count("comment of a " + statement.text.substr(0, statement.text.find(' ')));
        }
        text += indent + statement.text;
        if (!statement.standsAlone && c_.onceIn(10)) {
            text += commentText(statement.takesComment);
            count("comment behind a statement");
        }
        text += c_.onceIn(12) ? " \t\n" : "\n";
    }

    std::string blank() { return !c_.onceIn(10) ? " " : c_.oneOf({"  ", "\t", " \t "}); }

    std::vector<Statement> metaData() {
        std::vector<Statement> statements;
        if (!c_.onceIn(4)) return statements;
        for (std::size_t left = c_.between(1, 3); left > 0; --left) {
            std::string value = c_.oneOf({"somebody", "  two  words ", "a=b; {c} [d]", "", "it's", "100%"});
            if (!style_.saveable && c_.onceIn(2)) value = c_.oneOf({"C:\\new\\x", "tab\there", "caf\xC3\xA9"});
            const char* quote = value.find('\'') == std::string::npos && c_.onceIn(3) ? "'" : "\"";
            std::string text = "MetaData";
            text += blank();
            text += c_.oneOf({"author", "pos_x", "9"});
            statements.push_back({text + " " + quote + value + quote, false});
            count("MetaData");
        }
        return statements;
    }

    /// A statement for each, or for several of a kind.
    void addPorts(std::vector<Statement>& statements, const Body& body) {
        std::string lastHead;
        for (const OwnPort& port : body.ports) {
            const char* const words[] = {"Input", "Output", "Inout"};
            const std::string direction = words[static_cast<std::size_t>(port.direction)];
            const std::string head = port.width == 1 && !c_.onceIn(6)
                                         ? "Pin " + direction
                                         : format("Port %s %u", direction.c_str(), port.width);
            std::string name = port.name;
            if (!style_.saveable && port.direction == Direction::Output && c_.onceIn(3)) {
                name += c_.oneOf({"(ztr=off)", "(ztr=on)"});
                count("port option");
            }
            if (head == lastHead && !c_.onceIn(3)) {
                statements.back().text += blank() + name;
            } else {
                statements.push_back({head + blank() + name});
            }
            lastHead = head;
        }
    }

    void addUnits(std::vector<Statement>& statements, const Body& body) {
        std::string lastType;
        for (const UnitText& unit : body.units) {
            if (unit.type == lastType && !c_.onceIn(3)) {
                statements.back().text += blank() + unit.instance;
            } else {
                statements.push_back({"Unit" + blank() + unit.type + " " + unit.instance});
            }
            lastType = unit.type;
        }
        statements.insert(statements.end(), body.arrays.begin(), body.arrays.end());
    }

    void addNets(std::vector<Statement>& statements, const Body& body) {
        for (const Signal& signal : body.signals) {
            if (signal.paths.empty()) continue;
            std::vector<std::string> paths = signal.paths;
            if (c_.onceIn(3)) c_.shuffle(paths);
            std::string text = "Net" + blank() + signal.net;
            for (const std::string& path : paths) text += blank() + path;
            statements.push_back({text});
            count(paths.size() == 1 ? "net with one port" : "net");
        }
    }

    std::string textOf(const Body& body, const std::string& indent) {
        std::vector<Statement> statements = metaData();
        statements.insert(statements.end(), body.declarationStatements.begin(), body.declarationStatements.end());
        addPorts(statements, body);
        addUnits(statements, body);
        addNets(statements, body);
        if (c_.onceIn(4)) {
            c_.shuffle(statements);
            count("statements in any order");
        }
        std::string text;
        if (body.isRoot()) writeImportPaths(text);
        if (!style_.saveable && c_.onceIn(4)) writeImport(body, statements, text, indent);
        for (const Statement& statement : statements) write(text, indent, statement);
        if (indent.empty() && !text.empty() && c_.onceIn(4)) text.pop_back();  // the last line's end isn't needed
        return text;
    }

    void writeImportPaths(std::string& text) {
        std::vector<std::string> paths;
        if (usesImportPath_) paths.push_back(c_.oneOf({"lib", "lib/", "./lib"}));
        if (c_.onceIn(6)) paths.push_back(c_.oneOf({"nowhere", "./", "other place"}));
        for (const std::string& path : paths) {
            write(text, "", {"ImportPath \"" + path + "\"", false});
            count("ImportPath");
        }
    }

    /// Moves the last statements into a file of their own.
    void writeImport(const Body& body, std::vector<Statement>& statements, std::string& text,
                     const std::string& indent) {
        const std::string name = format("import%zu.nlx", ++files_);
        std::string imported;
        const std::size_t kept = c_.below(statements.size() + 1);
        for (std::size_t i = kept; i < statements.size(); ++i) write(imported, "", statements[i]);
        statements.resize(kept);
        result_.files[body.directory.empty() ? name : "lib/" + name] = imported;
        write(text, indent, {"Import \"" + name + "\"", false});
        count("Import");
    }

    Choices& c_;
    RandomCircuitStyle style_;
    RandomCircuit result_;
    std::size_t left_;
    std::size_t files_ = 0;
    std::size_t images_ = 0;
    bool usesImportPath_ = false;
};

}  // namespace

void RandomCircuit::writeTo(const std::string& folder) const {
    for (const auto& [name, text] : files) {
        const std::filesystem::path path = std::filesystem::path(folder) / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }
}

RandomCircuit makeRandomCircuit(Choices& choices, const RandomCircuitStyle& style) {
    return Generator(choices, style).make();
}

}  // namespace tarnsim
