#pragma once

#include <string_view>

namespace tarnsim {

/// The kinds of lines of a signal file, in the order in which they are tried. A line, cleaned of comment and blanks, is
/// of the first kind whose pattern it matches as a whole.
enum class LineKind {
    ComponentOptions,  ///< [a-zA-Z0-9_][a-zA-Z0-9_]*[(].*[)].*
    PortAssignment,    ///< [a-zA-Z0-9_][a-zA-Z0-9_.]*\s*=\s*[a-zA-Z0-9_]+.*
    Header,            ///< time.*
    TestVector,        ///< [0-9]+ .*
    Empty,             ///< nothing
    NoMatch,
};

/// One walk over the line, however long it is.
LineKind lineKindOf(std::string_view line);

}  // namespace tarnsim
