#pragma once
// The library's one way to report a broken precondition: an internal error
// of module "ORQ" with the condition's own text, file and line. Never returns.
#include "gen_internal_error.h"

#define ORQ_REQUIRE(cond) GEN_REQUIRE("ORQ", cond)
#define ORQ_INTERNAL_ERROR(text) ::gen_internal_error(text, "ORQ", __FILE__, __LINE__)
