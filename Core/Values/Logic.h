#pragma once

#include "Core/Values/Value.h"

namespace tarnsim {

/// The gate operations, bit by bit over two values of one width; the result is a new value of that width. Only `U`
/// counts as unknown: `Z` and `X` act as `H` in And and Nand, as `L` in Or and Nor, as neither in Xor and Xnor, and Not
/// makes `L` of them. (An input that floats reads `U` through its port long before it gets here.)
///
/// Raises Error if the widths differ.
class Logic {
public:
    virtual ~Logic() = default;

    static Value And(const Value& a, const Value& b);
    static Value Nand(const Value& a, const Value& b);
    static Value Or(const Value& a, const Value& b);
    static Value Nor(const Value& a, const Value& b);
    static Value Xor(const Value& a, const Value& b);
    static Value Xnor(const Value& a, const Value& b);
    static Value Not(const Value& a);
};

}  // namespace tarnsim
