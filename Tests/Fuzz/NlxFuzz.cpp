#include "Core/Circuit/Circuit.h"
#include "Tests/Fuzz/FuzzSupport.h"
#include "Tests/Fuzz/FuzzTargets.h"

namespace tarnsim {

// Beside an Error, loading may end in a number beyond 32 bits (the size of an array or a port, a parameter), in what a
// part's values refuse (the value of a constant), and in an image that is too large for its memory.
void fuzzNlx(std::string_view input) {
    const FuzzInput files(input);
    if (!files.isModest()) return;
    const FuzzFolder here(files.files);
    completes(
        [&] {
            CircuitSpec spec("circuit.nlx", files.circuit);
            if (!isSmall(spec)) return;
            Circuit circuit(spec.getName(), nullptr);
            circuit.setSpec(std::move(spec));
            circuit.checkConnections();
            circuit.print(true);
            for (const Net* net : circuit.getNets()) {
                for (const Port* port : net->getPorts()) check(port != nullptr, "a net has a port that isn't there");
            }
        },
        {isNumberTooLarge, isRefusedValue, isPastTheMemory});
}

}  // namespace tarnsim
