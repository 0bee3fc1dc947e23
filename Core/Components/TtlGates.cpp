#include "Core/Components/TtlGates.h"

namespace tarnsim {

void DM74LS244::evaluate(Time time) {
    const Time then = inputTime(time);
    for (Half& half : halves) {
        switch (half.G.level(then)) {
            case 'H': half.Y.set(Value("ZZZZ"), time); break;
            case 'U': half.Y.set(Value("UUUU"), time); break;
            default: half.Y.set(half.A.get(then), time); break;
        }
    }
}

}  // namespace tarnsim
