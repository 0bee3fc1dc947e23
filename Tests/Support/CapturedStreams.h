#pragma once

#include <cstddef>
#include <cstdio>
#include <string>

namespace tarnsim {

/// Keeps what is printed while the object lives in memory. The files under the streams stay as they are, so a report of
/// a sanitizer still reaches the terminal.
class CapturedStreams {
public:
    CapturedStreams();
    ~CapturedStreams();
    CapturedStreams(const CapturedStreams&) = delete;
    CapturedStreams& operator=(const CapturedStreams&) = delete;

    /// What came to the standard output so far.
    std::string output();

private:
    char* bytes_ = nullptr;
    std::size_t size_ = 0;
    std::FILE* output_;
    std::FILE* formerOutput_;
    std::FILE* formerErrors_;
};

}  // namespace tarnsim
