#include "Cli/Termination.h"

#include <cstdio>
#include <exception>
#include <new>

namespace tarnsim {

namespace {

std::terminate_handler runtimeTerminate = nullptr;

/// An exception that found no memory for itself is none.
bool isMemoryExhausted() {
    if (!std::current_exception()) return true;
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return true;
    } catch (...) {
        return false;
    }
}

/// What was printed may still sit in a buffer, as it does when the output goes to a pipe.
void flushAndTerminate() {
    std::fflush(stdout);
    if (isMemoryExhausted()) std::fputs("Error: there is not enough memory.\n", stderr);
    runtimeTerminate();
}

}  // namespace

void prepareTermination() {
    runtimeTerminate = std::set_terminate(flushAndTerminate);
}

}  // namespace tarnsim
