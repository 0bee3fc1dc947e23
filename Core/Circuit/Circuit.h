#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Core/Circuit/ComponentFactory.h"
#include "Core/Components/Component.h"
#include "Core/Simulation/Net.h"
#include "Core/Support/Comment.h"
#include "Core/Support/NamedList.h"

namespace tarnsim {

class CircuitSpec;
class EventSimulator;
class Line;
class NetLine;
class PinLine;
class PortLine;
class UnitLine;
class Wiring;

/// A circuit: units, the nets between their ports, and the declarations of circuit types that its units may have. It is
/// itself a component, so it can be a unit of another circuit.
///
/// A declaration is a complete circuit that stands beside the units; no net reaches it, but it's reset, started and
/// simulated like all else. A unit of a declared type is a deep copy of the declaration: every instance has its own
/// units, ports, nets and histories. Declarations are local: a circuit doesn't see those of the circuit around it.
///
/// Everything that a circuit makes (units, declarations, nets, comments) it owns through its factories; the lists of
/// units and nets don't own. The root also knows the simulator, which it doesn't own.
///
/// Paths are names with `.` between them: `u1.a` is port `a` of unit `u1`, `x.u1.a` the same inside the circuit unit
/// `x`.
///
/// All refusals are Errors.
class Circuit : public Component {
public:
    /// A circuit of the type "Circuit".
    Circuit(const std::string& name, Circuit* parent);
    Circuit(const std::string& type, const std::string& name, Circuit* parent);
    /// A deep copy, without parent and without meta data. Library parts are made anew from type, name and parameters,
    /// so their state stays behind.
    Circuit(const Circuit& other);
    ~Circuit() override;

    // As a component: all of these are passed on to the units, reset and start to the declarations too.

    void onLoaded(Circuit* owner) override;
    void reset() override;
    void start(Time endTime) override;
    void evaluate(Time time) override;
    void disconnectPorts() override;
    void applyParameters() override {}
    Circuit* asCircuit() override { return this; }
    using Component::asCircuit;

    virtual std::unique_ptr<Circuit> cloneCircuit(const Circuit& source) const;
    /// Builds the declaration that `spec` describes, with `parent` around it.
    virtual std::unique_ptr<Circuit> createDeclaration(const CircuitSpec& spec, Circuit* parent) const;
    /// This circuit's first declaration of that type; null if there is none.
    virtual Circuit* findDeclaration(const std::string& type) const;

    /// Builds everything from a parsed file, in passes: declarations, units, ports, pins, nets, meta data, import
    /// paths, free comments. So a statement may use what stands below it. After an Error the circuit stays half built.
    void setSpec(const CircuitSpec& spec) { setSpec(spec, nullptr); }
    /// The same for statements that nobody needs afterwards. They go as soon as they are built, so that those of a
    /// large board don't stand beside all of its objects.
    void setSpec(CircuitSpec&& spec) { setSpec(spec, &spec); }
    /// What setSpec was given, as long as it lives; null after that.
    const CircuitSpec* getSpec() const { return spec_.lock().get(); }

    // Name and file.

    /// The file of this circuit. While the circuit is being built, an inline one answers with the file around it.
    std::string getFilePath() const;
    void setFilePath(const std::string& path);
    void clearFilePath() { filePath_.clear(); }
    /// The path of the file that this circuit's text stood in when it was loaded, as seen from the working directory;
    /// empty for a circuit that wasn't loaded. A file path is as its circuit statement has it, this one is where it
    /// was.
    const std::string& getSourceFile() const { return sourceFile_; }
    /// True until a file path is set or copied.
    bool isNotLoaded() const { return notLoaded_; }

    // Hierarchy.

    bool isRoot() const { return getParent() == nullptr; }
    /// `other` is this circuit or around it.
    bool isInside(const Circuit* other) const;
    /// The simulator of this circuit or of the nearest one around it that has one; null if none has.
    EventSimulator* findSimulator() const;
    void setSimulator(EventSimulator* simulator);
    /// For the simulator that prepares a run: finds the signals that are always the same.
    void layWires(EventSimulator& simulator);
    /// Whatever was laid here or by a circuit around this one.
    void cutWires();
    /// It has a parent and stands in a file of its own.
    bool hasOwnFile() const;
    /// It has a parent, no file of its own, and isn't a part of the library.
    bool isInline() const;
    /// The nearest circuit outwards, this one included, that isn't inline.
    const Circuit* getFileRoot() const;
    /// The file root's path as seen from the directory of the file around it, with `/` between the directories.
    std::string getRelativeFilePath() const;

    // Units, in order of addition.

    const std::vector<Component*>& getComponents() const { return children_.items(); }
    Component* findComponent(const std::string& name) const { return children_.findFirst(name); }
    std::size_t countComponents() const { return children_.size(); }
    std::size_t countComponents(const std::string& name) const { return children_.count(name); }
    bool hasComponent(const std::string& name) const { return findComponent(name) != nullptr; }

    /// Adds an object that somebody else owns, and keeps alive as long as it is a unit here. `line` (may be null) is
    /// where it comes from. A circuit of a type that is neither in the library nor declared here brings a copy of
    /// itself along as its declaration.
    void addChild(Component* component, const Line* line);
    /// Takes a unit off its nets and out of the list. It stays owned as it was.
    void removeComponent(Component* component);
    /// Takes a unit out of its circuit, if it has one, and adds it here; what owned it there hands it over.
    void moveChild(Component* component);
    /// `newComponent` takes the nets outside and the port ids of `oldComponent`, port by port of the same name, and its
    /// place in the circuit.
    void replaceChild(Component* oldComponent, Component* newComponent);
    /// A new unit that isn't in the list of units yet. Raises an Error for a type that neither the library nor a
    /// declaration has.
    Component* createUnit(const std::string& type, const std::string& name);
    /// A new unit.
    Component* addComponent(const std::string& type, const std::string& name);

    // Declarations.

    const std::vector<Circuit*>& getDeclarations() const { return declarations_.items(); }
    void addDeclaration(const CircuitSpec& spec);
    void copyDeclarationIn(const Circuit& circuit);
    /// Puts a copy of `circuit` in the place of the declaration of the same type.
    void replaceDeclaration(const Circuit& circuit);
    /// The same, and all units of the type become copies of the new one.
    void redefineDeclaration(const Circuit& circuit);
    /// Replaces each unit of the type of `circuit`, but `circuit` itself, by a copy of the declaration.
    void updateInstances(const Circuit& circuit);
    /// A copy of the declaration of that type, named `name`, or after the declaration with "_copy" behind it if `name`
    /// is empty. It's owned by this circuit, but isn't a unit yet. Null if there is no declaration.
    Circuit* instantiate(const std::string& type, const std::string& name);
    /// For Component::setType, when this circuit is the parent.
    void declarationTypeChanged() { declarationsByType_.clear(); }

    // Meta data: for each key its values.

    void setMetaData(const std::string& key, const std::string& value) { metaData_[key] = {value}; }
    void addMetaData(const std::string& key, const std::string& value) { metaData_[key].push_back(value); }
    std::vector<std::string> getMetaData(const std::string& key) const;
    std::string getMetaDataFirst(const std::string& key) const;
    std::vector<std::string> getMetaDataKeys() const;
    void removeMetaData(const std::string& key) { metaData_.erase(key); }

    // Free comments, in order. REQUIRES: index < countComments()

    void addComment(const std::string& text);
    /// Also deletes it.
    void removeComment(const Comment* comment);
    std::size_t countComments() const { return comments_.size(); }
    Comment* getComment(std::size_t index) const { return comments_[index].get(); }
    void setComment(std::size_t index, const std::string& text) { comments_[index]->setText(text); }
    /// The comment in front of the unit is a component's own.
    using Component::getComment;

    using Component::addPort;

    // Import paths, sorted; "./" is always one of them at first.

    /// A path below the directory of this circuit's file is kept relative to it.
    void addImportPath(const std::string& path);
    void removeImportPath(const std::string& path) { importPaths_.erase(path); }
    const std::set<std::string>& getImportPaths() const { return importPaths_; }

    // Lookup by path. Null, or an empty text, stands for "not found".

    struct SplitPath {
        std::vector<std::string> units;
        std::string leaf;
    };
    struct NetPath {
        std::string units;  ///< with `.` between them
        std::string leaf;
        const Circuit* circuit;  ///< where the walk ended; null if it didn't get there
        Net* net;
    };
    static SplitPath splitPath(const std::string& text);
    Port* findPort(std::string_view path) const;
    Circuit* findCircuit(const std::string& path) const;
    /// The last of several nets with one name is the result.
    NetPath resolveNetPath(const std::string& path) const;
    Net* findNet(std::string_view path) const;
    bool hasNet(std::string_view path) const { return findNet(path) != nullptr; }
    /// Raises an Error that lists the nets there are. `file` and `line` name the place that asks; `file` may be empty.
    Net* requireNet(const std::string& path, const std::string& file, int line) const;

    /// Names from below the root down to this circuit.
    std::vector<std::string> getPathFromRoot() const;
    std::string getPortPath(const Port* port) const;
    /// What getPortPath gives for each port on a net of this circuit, found in one walk.
    std::unordered_map<const Port*, std::string> pathsOfNetPorts() const;
    std::string getPortPathById(const std::string& id) const;
    std::string getComponentPathById(const std::string& id) const;
    std::string getNetPath(const Net* net) const;
    std::string getNetPathById(const std::string& id) const;

    // Nets, in order of addition.

    const std::vector<Net*>& getNets() const { return nets_.items(); }
    /// A net over ports of this circuit (their inside) and of others (their outside). Nets that hang on these ports
    /// already become one with it. Raises an Error if there is a net of that name.
    Net* createNet(const std::string& name, const std::vector<Port*>& ports);
    /// The same, named after the first port. Null for no ports.
    Net* createNet(const std::vector<Port*>& ports);
    /// Lists a net that somebody else owns. The name that must be free is `name`, or if that is empty the net's own.
    void addNet(Net* net, const std::string& name);
    /// `newNet` takes the name and the listing of `oldNet`.
    void replaceNet(Net* oldNet, Net* newNet);
    void renameNet(Net* net, const std::string& name);
    /// Detaches all ports and takes the net out of the list.
    void deleteNet(Net* net);
    /// Removes all nets that have fewer ports than this, here and in the units.
    void pruneNets(std::size_t minPorts);

    /// Warns of the inputs of units, at any depth, that hang on no net. This circuit's own ports aren't checked.
    void checkConnections() const;
    /// Writes what is in the circuit through TLog; `deep` goes into units and declarations.
    void print(bool deep) const;

protected:
    /// A new unit of a class of the library, made from its constructor's arguments: for chips that are made of others.
    template <class Part, class... Arguments>
    Part& addPart(Arguments&&... arguments) {
        auto part = std::make_unique<Part>(std::forward<Arguments>(arguments)...);
        Part& unit = *part;
        componentFactory_.adopt(std::move(part));
        addChild(&unit, nullptr);
        return unit;
    }

private:
    // One pass of setSpec each.

    /// `consumed` is the same spec if its statements may go, and null if not.
    void setSpec(const CircuitSpec& spec, CircuitSpec* consumed);
    void buildFromSpec(const CircuitSpec& spec, CircuitSpec* consumed);
    void addUnit(const UnitLine& line);
    void addPort(const PortLine& line);
    void addPin(const PinLine& line);
    void addNets(const std::vector<NetLine>& lines);
    void addNet(const NetLine& line);
    Component* makeUnit(const UnitLine& line, const std::string& name);
    Port* makePort(const std::string& text, std::uint32_t size, Direction direction, const Line& line);
    Port* makePin(const std::string& text, Direction direction, const Line& line);
    Port* requirePort(const std::string& path, const Line& line) const;

    class Counterparts;
    void copyChildren(const Circuit& other);
    void copyNets(const Circuit& other);

    /// Where the names of units in front of a path lead to; null if one of them isn't there. Leaves the last name.
    const Component* walk(std::string_view& path) const;
    std::vector<Net*> collectNets(const std::vector<Port*>& ports) const;
    static Net* mergeNets(const std::vector<Net*>& nets, const std::string& name);
    void removeEmptyNets();
    /// Before this circuit dies: detaches all ports of all nets that die with it.
    void dissolveNets();
    friend ComponentFactory;  // passes that on to the circuits that it owns

    std::string filePath_;  ///< empty for a circuit declared inline
    std::string sourceFile_;
    bool notLoaded_ = true;
    std::weak_ptr<const CircuitSpec> spec_;
    NamedList<Component> children_;  ///< not owned here
    /// Not owned here; none twice. Watched from the first one on: a net that was taken over from a unit dies with that.
    NamedList<Net, 0> nets_;
    std::map<std::string, std::vector<std::string>> metaData_;
    std::vector<std::unique_ptr<Comment>> comments_;
    ComponentFactory componentFactory_;  ///< owns units and declarations
    NetFactory netFactory_;              ///< owns nets
    std::set<std::string> importPaths_{"./"};
    bool netsAreDissolved_ = false;
    NamedList<Circuit> declarations_;  ///< not owned here
    /// The first declaration of each type; empty until asked for, and again after a change.
    mutable std::unordered_map<std::string, Circuit*> declarationsByType_;
    EventSimulator* simulator_ = nullptr;  ///< not owned
    std::unique_ptr<Wiring> wiring_;       ///< null but for the root of a prepared run
};

}  // namespace tarnsim
