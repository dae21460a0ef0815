// Each function of the table `offline` calls one of the runtime's control functions.
#include "player/offline_table.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "offline/control.h"
#include "platform/download.h"
#include "player/arguments.h"
#include "player/event_maker.h"
#include "player/event_pass.h"
#include "player/suggest.h"

namespace player {
namespace {

namespace offline = tarn::velora::offline;

using Lines = std::vector<std::string>;
using luavelora::Outcome;

Outcome PushLines(lua_State* L, const Lines& lines) {
  return luavelora::PushProtected(L, [&](lua_State* state) {
    lua_createtable(state, static_cast<int>(lines.size()), 0);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      lua_pushlstring(state, lines[i].data(), lines[i].size());
      lua_rawseti(state, -2, static_cast<lua_Integer>(i + 1));
    }
  });
}

// offline.calls(): the SDK calls since the last time.
Outcome Calls(lua_State* L) { return PushLines(L, offline::TakeCalls()); }

// offline.log(): the log lines since the last time.
Outcome Log(lua_State* L) { return PushLines(L, offline::TakeLog()); }

offline::Answer ReadAnswer(lua_State* L, int index) {
  switch (lua_type(L, index)) {
    case LUA_TNIL:
      return {};
    case LUA_TBOOLEAN:
      return lua_toboolean(L, index) != 0;
    case LUA_TNUMBER:
      return std::int64_t{CheckInteger(L, index)};
    case LUA_TSTRING:
      return std::string(CheckString(L, index));
    default:
      throw ArgumentError(index, TypeMismatch(L, index, "string, boolean, integer or nil"));
  }
}

// offline.answer(name, value): sets what an operation returns.
Outcome Answer(lua_State* L) {
  const std::string name(CheckString(L, 1));
  offline::Answer answer = ReadAnswer(L, 2);
  try {
    offline::SetAnswer(name, std::move(answer));
  } catch (const std::invalid_argument& error) {
    Suggestion suggestion(name);
    for (const std::string_view operation : offline::OperationNames()) suggestion.Consider(operation);
    throw ArgumentError(1, error.what() + suggestion.Text());
  }
  return Outcome::Results(0);
}

// offline.post(event, ...): queues an event.
Outcome Post(lua_State* L) {
  offline::Post(MakeEvent(L));
  return Outcome::Results(0);
}

// The arguments of the handlers' functions. The strings are on the Lua stack.
struct DownloadArguments {
  const char* text = nullptr;
  const char* bytes = nullptr;
  std::uint64_t count = 0;
};

DownloadArguments ReadDownloadArguments(lua_State* L) {
  DownloadArguments arguments;
  if (!lua_isnoneornil(L, 2)) arguments.text = CheckString(L, 2).data();
  const std::string_view bytes = lua_isnoneornil(L, 3) ? std::string_view() : CheckString(L, 3);
  arguments.bytes = bytes.data();
  const auto length = static_cast<lua_Integer>(bytes.size());
  const lua_Integer count = lua_isnoneornil(L, 4) ? length : CheckInteger(L, 4);
  // Without bytes any count is allowed, since the handler reads nothing from a null pointer.
  if (count < 0 || (arguments.bytes != nullptr && count > length))
    throw ArgumentError(4, "integer from 0 to " + std::to_string(length) + " expected, got " + std::to_string(count));
  arguments.count = static_cast<std::uint64_t>(count);
  return arguments;
}

using Handler = tarn::velora::download::SyncDownloadHandler;

struct DownloadOperation {
  std::string_view name;
  int highestArgument;
  void (*call)(Handler& handler, const DownloadArguments& arguments);
};

constexpr DownloadOperation kDownloadOperations[] = {
    {"onInited", 1, [](Handler& handler, const DownloadArguments&) { handler.onInited(); }},
    {"onProgress", 2, [](Handler& handler, const DownloadArguments& given) { handler.onProgress(given.text); }},
    {"onFinish", 4,
     [](Handler& handler, const DownloadArguments& given) { handler.onFinish(given.text, given.bytes, given.count); }},
};

// offline.download(operation, ...): calls every registered handler at once.
Outcome Download(lua_State* L) {
  const std::string_view name = CheckString(L, 1);
  for (const DownloadOperation& operation : kDownloadOperations) {
    if (operation.name != name) continue;
    if (lua_gettop(L) > operation.highestArgument)
      throw ArgumentError(operation.highestArgument + 1, TypeMismatch(L, operation.highestArgument + 1, "no value"));
    const DownloadArguments arguments = ReadDownloadArguments(L);
    const HandlerCall call(name);
    for (Handler* handler : offline::Handlers()) operation.call(*handler, arguments);
    return Outcome::Results(0);
  }
  throw ArgumentError(1, "invalid operation '" + std::string(name) + "'");
}

constexpr luaL_Reg kFunctions[] = {Row<"calls", Calls>(), Row<"answer", Answer>(),     Row<"post", Post>(),
                                   Row<"log", Log>(),     Row<"download", Download>(), {nullptr, nullptr}};

}  // namespace

void OpenOfflineTable(lua_State* L) {
  luaL_newlib(L, kFunctions);
  lua_setglobal(L, "offline");
}

}  // namespace player
