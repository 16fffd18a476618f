#pragma once
// Internal errors: a broken precondition or programming fault. The report
// names the failed condition, the module, the source file and the line, goes
// to standard error and the debug log, and never returns.
#include "gen_export.h"

#include <QString>

// A tool may install its own handler (to show a dialog, or to throw in a
// test). Whatever the handler does, control never returns to the caller:
// when a handler returns, the process aborts.
using GEN_INTERNAL_ERROR_HANDLER = void (*)(const QString& report, const char* condition,
                                            const char* module, const char* file, int line);

// Returns the previous handler; null restores the default (report and abort).
GEN_EXPORT GEN_INTERNAL_ERROR_HANDLER gen_set_internal_error_handler(GEN_INTERNAL_ERROR_HANDLER handler);

// The report text exactly as the default handler prints it.
GEN_EXPORT QString gen_format_internal_error(const char* condition, const char* module,
                                             const char* file, int line);

[[noreturn]] GEN_EXPORT void gen_internal_error(const char* condition, const char* module,
                                               const char* file, int line);
[[noreturn]] GEN_EXPORT void gen_internal_error(const QString& text, const char* module,
                                               const char* file, int line);

// The one way to check a precondition: the condition's own text is the report.
#define GEN_REQUIRE(module, cond)                                                      \
  do {                                                                                 \
    if (!(cond)) ::gen_internal_error(#cond, module, __FILE__, __LINE__);              \
  } while (false)
