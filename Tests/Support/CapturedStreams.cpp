#include "Tests/Support/CapturedStreams.h"

#include <cstdlib>
#include <memory>
#include <new>

namespace tarnsim {

namespace {

/// Open to the end of the process.
std::FILE* nowhere() {
    static const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen("/dev/null", "w"), &std::fclose);
    return file.get();
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
