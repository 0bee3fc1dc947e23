// The entry of each fuzz target: TARNSIM_FUZZ_TARGET is its function.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <typeinfo>

#include "Core/Support/Error.h"
#include "Tests/Fuzz/FuzzSupport.h"
#include "Tests/Fuzz/FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace tarnsim;
    try {
        TARNSIM_FUZZ_TARGET({reinterpret_cast<const char*>(bytes), size});
        return 0;
    } catch (const Finding& finding) {
        dprintf(STDERR_FILENO, "FINDING: %s\n", finding.what().c_str());
    } catch (const Error& error) {
        dprintf(STDERR_FILENO, "FINDING: an Error: %s\n", error.what().c_str());
    } catch (const std::exception& exception) {
        dprintf(STDERR_FILENO, "FINDING: %s: %s\n", typeid(exception).name(), exception.what());
    }
    std::abort();
}
