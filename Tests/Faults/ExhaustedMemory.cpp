// To be loaded before a program (LD_PRELOAD): from the allocation on whose number stands in ALLOCATIONS, counted from
// 0, there is no memory any more.

#include <cstddef>
#include <cstdlib>

// What the C library's functions are made of.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);
extern "C" void* __libc_memalign(std::size_t alignment, std::size_t size);

namespace {

bool isExhausted() {
    static bool isCounting = false;
    static long left = 0;
    if (!isCounting) {
        isCounting = true;
        left = std::atol(std::getenv("ALLOCATIONS"));
    }
    if (left == 0) return true;
    --left;
    return false;
}

}  // namespace

extern "C" void* malloc(std::size_t size) {
    return isExhausted() ? nullptr : __libc_malloc(size);
}

extern "C" void* calloc(std::size_t count, std::size_t size) {
    return isExhausted() ? nullptr : __libc_calloc(count, size);
}

extern "C" void* realloc(void* memory, std::size_t size) {
    return isExhausted() ? nullptr : __libc_realloc(memory, size);
}

extern "C" void* aligned_alloc(std::size_t alignment, std::size_t size) {
    return isExhausted() ? nullptr : __libc_memalign(alignment, size);
}
