// Social wrappers with rules of their own.
#include "wrappers/wrappers.h"

namespace luavelora::wrappers {

// Passes a pointer and a count, for an empty list a null pointer.
Outcome zvDisplayQuests(lua_State* L) {
  if (!lua_istable(L, 1)) return Outcome::Error(kNeedsTable);
  std::int32_t length = 0;
  if (const char* error = ClaimedLength(L, 1, length)) return Outcome::Error(error);
  const std::vector<std::int32_t> quests = ReadIntList(L, 1, length);
  tarn::velora::zvDisplayQuests(quests.empty() ? nullptr : quests.data(), quests.size());
  return Outcome::Results(0);
}

}  // namespace luavelora::wrappers
