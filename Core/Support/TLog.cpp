#include "Core/Support/TLog.h"

#include <cstdarg>
#include <cstdio>

namespace tarnsim {

const char* TLog::indentText = "   ";
bool TLog::enabled = true;
std::int32_t TLog::indentLevel = -1;

namespace {

void printLine(const char* indentText, std::int32_t level, const char* format, va_list arguments) {
    for (std::int32_t i = 0; i < level; ++i) std::printf("%s", indentText);
    std::vprintf(format, arguments);
    std::printf("\n");
    std::fflush(stdout);
}

}  // namespace

TLog::TLog(const char* format, ...) {
    ++indentLevel;
    if (!enabled || format == nullptr) return;
    va_list arguments;
    va_start(arguments, format);
    printLine(indentText, indentLevel, format, arguments);
    va_end(arguments);
}

TLog::~TLog() {
    --indentLevel;
}

void TLog::log(const char* format, ...) {
    if (!enabled) return;
    va_list arguments;
    va_start(arguments, format);
    printLine(indentText, indentLevel, format, arguments);
    va_end(arguments);
}

}  // namespace tarnsim
