#pragma once

#include <cstdint>

namespace tarnsim {

/// The indenting log for a person who looks into a model. Writes to the standard output and flushes each line.
///
/// An object is a scope guard: its construction goes one level deeper, its destruction comes back. The first object
/// takes the level from -1 to 0, so what is logged while it alone lives isn't indented, and a nested object's lines are
/// indented by one step.
class TLog {
public:
    /// Goes one level deeper, then prints the formatted line at that level. A null `format` prints nothing.
    explicit TLog(const char* format, ...) __attribute__((format(printf, 2, 3)));
    virtual ~TLog();

    TLog(const TLog&) = delete;
    TLog& operator=(const TLog&) = delete;

    /// Prints one line at the present level.
    virtual void log(const char* format, ...) __attribute__((format(printf, 2, 3)));

    /// Whether anything is printed. Levels count on while the log is off.
    static void enable() { enabled = true; }
    static void disable() { enabled = false; }

    /// The text of one indent step; the caller keeps it alive.
    static void setIndentText(const char* text) { indentText = text; }

private:
    static const char* indentText;
    static bool enabled;
    static std::int32_t indentLevel;
};

}  // namespace tarnsim
