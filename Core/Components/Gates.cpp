#include "Core/Components/Gates.h"

namespace tarnsim {

void Inv::evaluate(Time time) {
    out.set(Logic::Not(in.get(inputTime(time))), time);
}

}  // namespace tarnsim
