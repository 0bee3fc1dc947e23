#pragma once

#include <string>

namespace tarnsim {

/// A column of the header of a signal file, or a cell of one of its vectors.
struct TestColumn {
    std::string value;      ///< of a column its name, of a cell its bits, most significant first
    bool reversed = false;  ///< a `~` stood in front
    std::string objectId;   ///< of a resolved column the id of its port or net, else empty
};

}  // namespace tarnsim
