#include "Core/Support/Error.h"

#include <cstdarg>
#include <cstdio>

namespace tarnsim {

Error::Error(const std::string& text) : message_(text) {}

Error::Error(const char* format, ...) {
    char buffer[2048];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    if (length > 0) message_ = buffer;
}

}  // namespace tarnsim
