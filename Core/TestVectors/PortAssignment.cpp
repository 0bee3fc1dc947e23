#include "Core/TestVectors/PortAssignment.h"

#include <vector>

#include "Core/Circuit/Circuit.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

PortAssignment::PortAssignment(const std::string& line, const std::string& comment) : CommentableObject(comment) {
    const std::vector<std::string> pieces = split(line, '=');
    if (pieces.size() > 2) throw Error("Too many equal signs in port assignment: '%s'", line.c_str());
    if (pieces.size() < 2) throw Error("Too few equal signs in port assignment: '%s'", line.c_str());
    name_ = trimmed(pieces[0]);
    value_ = trimmed(pieces[1]);
}

void PortAssignment::resolve(Circuit& circuit) {
    if (const Port* port = circuit.findPort(name_)) objectId_ = port->getId();
}

}  // namespace tarnsim
