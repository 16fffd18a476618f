#pragma once
// The library's one way to report a broken precondition: an internal error
// of module "ORQ" with the condition's own text, file and line. Never returns.
#include "gen_internal_error.h"

// Stringified here, not passed on to GEN_REQUIRE: an argument passed through
// another macro is expanded first, and NULL would read "__null".
#define ORQ_REQUIRE(cond)                                                                          \
  do {                                                                                             \
    if (!(cond)) ::gen_internal_error(#cond, "ORQ", __FILE__, __LINE__);                           \
  } while (false)
#define ORQ_INTERNAL_ERROR(text) ::gen_internal_error(text, "ORQ", __FILE__, __LINE__)
