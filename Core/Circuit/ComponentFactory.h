#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Core/Components/Component.h"
#include "Core/Support/Error.h"
#include "Core/Support/ParaMap.h"

namespace tarnsim {

class Circuit;

/// For callers that want to tell an unknown type from other errors. The library itself reports one as a plain Error,
/// with the place of the statement.
class ComponentNotFound : public Error {
public:
    using Error::Error;
};

/// The name and the parameter text of a unit as a file writes them: `u1` or `u1(delay=5)`. Both are empty if the text
/// isn't of that form.
struct InstanceText {
    std::string name;
    std::string parameters;  ///< with its parentheses; empty without any

    explicit InstanceText(const std::string& text);
};

/// Makes parts of the library by their type names, and owns the units and declarations of one circuit.
class ComponentFactory {
public:
    ComponentFactory() = default;
    virtual ~ComponentFactory() = default;
    ComponentFactory(const ComponentFactory&) = delete;
    ComponentFactory& operator=(const ComponentFactory&) = delete;

    /// Whether the library has a part of that name. Names are the ones of files: "74LS00", not "DM74LS00".
    static bool isBuiltIn(const std::string& type);
    /// The default parameters of a part; empty for an unknown type.
    static ParaMap getDefaults(const std::string& type);
    /// The help text of a part; empty for an unknown type.
    static std::string getDocumentation(const std::string& type);

    /// A new part, with its parameters applied over the defaults. Null for an unknown type. Owned by this factory.
    Component* create(const std::string& type, const std::string& instanceText);
    /// A deep copy of `circuit`, or null if its class refuses to be copied. Owned by this factory.
    Circuit* copy(const Circuit& circuit);

    /// Detaches all ports of all nets of the circuits owned here, for the one that is about to destroy them.
    void dissolveNets();

    /// Takes over an object.
    Component* adopt(std::unique_ptr<Component> component);
    /// Hands an object over to the caller; null if this factory doesn't own it.
    std::unique_ptr<Component> release(const Component* component);

private:
    std::vector<std::unique_ptr<Component>> components_;
};

}  // namespace tarnsim
