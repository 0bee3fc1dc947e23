#include "Core/Components/Gates.h"

namespace tarnsim {

void Inv::evaluate(Time time) {
    out.setLevel(Logic::Not(in.level(inputTime(time))), time);
}

}  // namespace tarnsim
