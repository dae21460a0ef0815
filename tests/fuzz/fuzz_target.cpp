// A fuzz target whose input is a program: calls of every function that a script sees, with every kind of argument;
// events; calls of the download handler; frames; collections; allocations that fail. Whatever the program, the host
// must stay sound and everything must be given back at its end.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "download/handler.h"
#include "events/callbacks.h"
#include "tests/harness.h"

namespace {

namespace offline = tarn::velora::offline;
using namespace tarn::velora;

// The input, byte by byte; zeros once it is used up.
class Program {
 public:
  Program(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}
  bool Done() const { return next_ == end_; }
  unsigned Byte() { return Done() ? 0 : *next_++; }
  unsigned Below(unsigned bound) { return Byte() % bound; }
  std::string Text() {
    std::string text;
    for (unsigned left = Below(9); left > 0; --left) text += static_cast<char>(Byte());
    return text;
  }

 private:
  const std::uint8_t* next_;
  const std::uint8_t* end_;
};

// The script side: what functions there are, and what a hostile script does with the objects in `pool`.
const char* const kPrelude = R"(
  functions, pool = {}, {}
  local names = {}
  for name, value in pairs(velora) do
    if type(value) == 'function' then names[#names + 1] = {name, value} end
    if type(value) == 'table' then for key, f in pairs(value) do names[#names + 1] = {name .. '.' .. key, f} end end
  end
  table.sort(names, function(a, b) return a[1] < b[1] end)
  for i, entry in ipairs(names) do functions[i] = entry[2] end
  function keep(...)
    for i = 1, select('#', ...) do
      local v = (select(i, ...))
      if v ~= nil then pool[#pool % 32 + 1] = v end
    end
  end
  deeds = {
    keep,
    function() error('deed') end,
    function() error({}) end,
    function() collectgarbage() end,
    function() for _, v in ipairs(pool) do if type(v) == 'userdata' then
      for _, c in pairs(velora) do if type(c) == 'table' and c.__gc then c.__gc(v) end end end end end,
    function() for k in pairs(pool) do pool[k] = nil end end,
    function(...) local v = pool[1] if type(v) == 'userdata' and v.set_textMsg then v:set_textMsg{a = 'b'} end end,
    function() velora.download.setSyncDownloadHandler() end,
    function() velora.zvLogin() velora.setOnLoginDone(error) end,
    function() setmetatable({}, {__gc = function() error('finaliser') end}) end,
    function() return deeds[1](velora.ShareInfo.new(), velora.OrderInfo.new(1.5)) end,
  }
  local plain = {t = 'text', i = 7, n = 1.5, b = true}
  local function value(kind)
    return plain[kind] or kind == 'l' and {'a', 2.5} or kind == 'h' and handler or pool[1]
  end
  local patterns = {'', 't', 'tt', 'ttt', 'ti', 'tiit', 'tiitt', 'tn', 'ttb', 'tb', 'i', 'b', 'l', 'tl', 'p', 'pt', 'pi',
    'pl', 'ttttttt', 'h'}
  function good(pattern)
    local values, n = {}, 0
    for kind in patterns[pattern % #patterns + 1]:gmatch('.') do n = n + 1 values[n] = value(kind) end
    return table.unpack(values, 1, n)
  end
  handler = {onInited = deeds[1], onProgress = deeds[2], onFinish = deeds[4]}
  claims = setmetatable({'a', 2.5}, {__len = function() return claim end}))";

void PushValue(lua_State* L, Program& program, int depth);

void PushTable(lua_State* L, Program& program, int depth) {
  lua_newtable(L);
  for (unsigned left = program.Below(5); left > 0; --left) {
    PushValue(L, program, depth + 1);
    if (lua_isnil(L, -1) || (lua_type(L, -1) == LUA_TNUMBER && lua_tonumber(L, -1) != lua_tonumber(L, -1))) {
      lua_pop(L, 1);
      lua_pushinteger(L, static_cast<lua_Integer>(left));
    }
    PushValue(L, program, depth + 1);
    lua_rawset(L, -3);
  }
}

void PushGlobalElement(lua_State* L, const char* table, unsigned index) {
  lua_getglobal(L, table);
  lua_rawgeti(L, -1, static_cast<lua_Integer>(index));
  lua_remove(L, -2);
}

void PushValue(lua_State* L, Program& program, int depth) {
  switch (program.Below(14)) {
    case 0:
      return lua_pushnil(L);
    case 1:
      return lua_pushboolean(L, program.Below(2) != 0);
    case 2:
      return lua_pushinteger(L, static_cast<lua_Integer>(program.Byte()) - 3);
    case 3:
      return lua_pushinteger(L, static_cast<lua_Integer>(std::uint64_t{1} << program.Below(64)));
    case 4:
      return lua_pushnumber(L, (static_cast<double>(program.Byte()) - 100) / 4);
    case 5:
      return lua_pushnumber(L, program.Below(2) != 0 ? 1e300 * 1e300 : 0.0 / 0.0 * 1e300);
    case 6: {
      char text[300] = {};  // owns nothing: pushing may raise
      const unsigned size = program.Below(16) == 0 ? sizeof text : program.Below(9);
      for (unsigned i = 0; i < size % 10; ++i) text[i] = static_cast<char>(program.Byte());
      lua_pushlstring(L, text, size);
      return;
    }
    case 7:
      return depth > 2 ? lua_pushnil(L) : PushTable(L, program, depth);
    case 8:
      return PushGlobalElement(L, "deeds", program.Below(11) + 1);
    case 9: {
      lua_pushinteger(L, static_cast<lua_Integer>(program.Byte()) - 20);
      lua_setglobal(L, "claim");
      lua_getglobal(L, "claims");
      return;
    }
    case 10:
      lua_getglobal(L, "handler");
      return;
    default:
      return PushGlobalElement(L, "pool", program.Below(32) + 1);
  }
}

// Arguments that good callers give: functions are reached whatever the fuzzer has learned.
void PushGoodArguments(lua_State* L, unsigned pattern) {
  lua_getglobal(L, "good");
  lua_pushinteger(L, pattern);
  lua_call(L, 1, LUA_MULTRET);
}

// Calls the function on the stack below its arguments and keeps what it gives.
void CallAndKeep(lua_State* L, int function) {
  lua_getglobal(L, "keep");
  lua_insert(L, function);
  if (lua_pcall(L, lua_gettop(L) - function - 1, LUA_MULTRET, 0) == LUA_OK)
    lua_pcall(L, lua_gettop(L) - function, 0, 0);
  lua_settop(L, function - 1);
}

void CallFunction(lua_State* L, Program& program) {
  const int function = lua_gettop(L) + 1;
  const unsigned low = program.Byte();
  PushGlobalElement(L, "functions", (low | program.Byte() << 8) % 512 + 1);
  const unsigned pattern = program.Byte();
  if (pattern < 200)
    PushGoodArguments(L, pattern);
  else
    for (unsigned left = pattern % 6; left > 0; --left) PushValue(L, program, 0);
  CallAndKeep(L, function);
}

void PostEvent(Program& program) {
  const int type = static_cast<int>(program.Below(64)) - 2;
  const bool known = type >= 0 && type < luavelora::kEventTypes;
  offline::Post(known ? tests::MakeEvent(type, program.Below(4) != 0) : std::make_shared<Event>(type));
}

void ListenToEverything(lua_State* L, Program& program) {
  PushGlobalElement(L, "deeds", program.Below(11) + 1);
  lua_setglobal(L, "deed");
  luaL_dostring(L, "for name, set in pairs(velora) do if name:find('^setOn') then set(deed) end end");
}

void CallHandler(Program& program) {
  auto& handler = luavelora::downloadHandler;
  const std::string text = program.Text();
  switch (program.Below(4)) {
    case 0:
      return handler.onInited();
    case 1:
      return handler.onProgress(text.c_str());
    case 2:
      return handler.onProgress(nullptr);
    default:
      return handler.onFinish(program.Below(2) == 0 ? nullptr : text.c_str(), text.data(), text.size());
  }
}

// Runs `step` as a host would, ready for a memory error or a finaliser's.
void Protected(lua_State* L, Program& program, void (*step)(lua_State*, Program&)) {
  struct Call {
    Program& program;
    void (*step)(lua_State*, Program&);
  } call{program, step};
  const int top = lua_gettop(L);
  lua_pushcfunction(L, [](lua_State* state) {
    const Call& inner = *static_cast<const Call*>(lua_touserdata(state, 1));
    inner.step(state, inner.program);
    return 0;
  });
  lua_pushlightuserdata(L, &call);
  lua_pcall(L, 1, 0, 0);
  lua_settop(L, top);
}

void Update(lua_State* L, Program&) { UpdateLuaVelora(L); }
void Init(lua_State* L, Program&) { InitLuaVelora(L); }
void Deinit(lua_State* L, Program&) { DeinitLuaVelora(L); }
void Collect(lua_State* L, Program&) { lua_gc(L, LUA_GCCOLLECT, 0); }

// One instruction. What it needs for itself it makes with memory; the shortage is for the module.
void Step(tests::Host& host, Program& program, bool& shortage) {
  lua_State* L = host.L;
  const unsigned instruction = program.Below(16);
  if (shortage && instruction > 8) return;
  switch (instruction) {
    case 0:
      return Protected(L, program, Update);
    case 1:
      return Protected(L, program, Deinit);
    case 2: {
      if (luavelora::downloadHandler.state() != nullptr && !shortage) CallHandler(program);
      return;
    }
    case 3: {
      const long allowed = static_cast<long>(program.Byte());
      shortage = true;
      return tests::memory::FailAfter(allowed);
    }
    case 4:
      shortage = false;
      tests::memory::Restore();
      return;
    case 5:
      return Protected(L, program, Init);
    case 6:
    case 7:
    case 8:
      return Protected(L, program, CallFunction);
    case 9:
      return Protected(L, program, ListenToEverything);
    case 10:
      lua_gc(L, LUA_GCSETPAUSE, program.Below(2) == 0 ? 0 : 200);
      return;
    case 11:
      return Protected(L, program, Collect);
    default:
      return PostEvent(program);
  }
}

void Demand(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "broken: %s\n", what);
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  offline::SetLogToStderr(false);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  {
    tests::Host host;
    Demand(host.Run(kPrelude).empty(), "prelude");
    Program program(data, size);
    bool shortage = false;
    while (!program.Done()) Step(host, program, shortage);
    tests::memory::Restore();
    for (int i = 0; i < 3; ++i) Protected(host.L, program, Collect);  // finalisers that raise come out here
    Demand(lua_gettop(host.L) == 0, "stack height");
    Demand(host.Run("return type(velora.isInit())") == "\"boolean\"", "the state after all");
  }
  offline::Reset();
  Demand(offline::LiveRecords() == 0, "a record is left");
  Demand(tests::memory::LuaBlocksInUse() == 0, "a Lua block is left");
  return 0;
}
