// The suite's numbered messages. Texts are what the user reads; keep them
// exactly as they stand, tools and regression logs compare them.
#include "gen_message_service.h"

#include <algorithm>
#include <iterator>

namespace {
using K = GEN_MESSAGE_KIND;
// clang-format off
const GEN_MESSAGE_DEF k_messages[] = {
  {189000, "ORQ_FAILED_TO_LOAD_LIBRARY", K::OK_ONLY, "Can't open dockable window -- can't load library \"%1!s!\". %2!s!."},
};
// clang-format on
}  // namespace

const GEN_MESSAGE_DEF* gen_find_message(int number)
{
  const auto it = std::find_if(std::begin(k_messages), std::end(k_messages),
                               [number](const GEN_MESSAGE_DEF& def) { return def.number == number; });
  return it == std::end(k_messages) ? nullptr : it;
}
