#include "Tests/Support/CapturedStreams.h"

#include <cstdlib>
#include <new>

namespace tarnsim {

namespace {

/// Open to the end of the process.
std::FILE* nowhere() {
    static std::FILE* const file = std::fopen("/dev/null", "w");
    return file;
}

}  // namespace

// The C library lets a program assign to its streams.
CapturedStreams::CapturedStreams()
    : output_(open_memstream(&bytes_, &size_)), formerOutput_(stdout), formerErrors_(stderr) {
    if (output_ == nullptr || nowhere() == nullptr) throw std::bad_alloc();
    stdout = output_;
    stderr = nowhere();
}

CapturedStreams::~CapturedStreams() {
    stdout = formerOutput_;
    stderr = formerErrors_;
    std::fclose(output_);
    std::free(bytes_);
}

std::string CapturedStreams::output() {
    std::fflush(output_);
    return {bytes_, size_};
}

}  // namespace tarnsim
