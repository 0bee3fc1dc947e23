#include "Core/Values/Logic.h"

#include "Core/Support/Error.h"

namespace tarnsim {

Value Logic::combine(const Value& a, const Value& b, const LetterTable& table) {
    if (a.width() != b.width()) throw Error("Mismatching value sizes. ");
    Value result(a);
    for (std::size_t i = 0; i < result.width(); ++i) result[i] = combine(a[i], b[i], table);
    return result;
}

Value Logic::Not(const Value& a) {
    Value result(a);
    for (std::size_t i = 0; i < result.width(); ++i) result[i] = Not(a[i]);
    return result;
}

}  // namespace tarnsim
