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

  bool shortage = false;  // memory runs out, or has

 private:
  const std::uint8_t* next_;
  const std::uint8_t* end_;
};

// The script side, which reads the program with `byte`: what functions there are, what they are called with, and what
// a hostile script does with the objects in `pool`.
const char* const kPrelude = R"(
  local pool, functions, names = {}, {}, {}
  for name, value in pairs(velora) do
    if type(value) == 'function' then names[#names + 1] = {name, value} end
    if type(value) == 'table' then for key, f in pairs(value) do names[#names + 1] = {name .. '.' .. key, f} end end
  end
  table.sort(names, function(a, b) return a[1] < b[1] end)
  for i, entry in ipairs(names) do functions[i] = entry[2] end
  local function below(n) return byte() % n end
  local function keep(...)
    for i = 1, select('#', ...) do
      local v = (select(i, ...))
      if v ~= nil then pool[#pool % 32 + 1] = v end
    end
  end
  local deeds = {
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
    function() keep(velora.ShareInfo.new(), velora.OrderInfo.new(1.5)) end,
  }
  local handler = {onInited = deeds[1], onProgress = deeds[2], onFinish = deeds[4]}
  local claimed
  local claims = setmetatable({'a', 2.5}, {__len = function() return claimed end})
  local value
  local function fromPool() return pool[below(32) + 1] end
  local makers = {
    function() return nil end,
    function() return below(2) ~= 0 end,
    function() return byte() - 3 end,
    function() return 1 << below(64) end,
    function() return (byte() - 100) / 4 end,
    function() return below(2) ~= 0 and 1 / 0 or 0 / 0 end,
    function()
      local text = ''
      for _ = 1, below(9) do text = text .. string.char(byte()) end
      return below(16) == 0 and text .. ('\0'):rep(300) or text
    end,
    function(depth)
      local t = {}
      for i = 1, depth < 3 and below(5) or 0 do
        local key = value(depth + 1)
        if key == nil or key ~= key then key = i end
        t[key] = value(depth + 1)
      end
      return t
    end,
    function() return deeds[below(#deeds) + 1] end,
    function() claimed = byte() - 20 return claims end,
    function() return handler end,
    fromPool, fromPool, fromPool,
  }
  function value(depth) return makers[below(#makers) + 1](depth) end

  -- Arguments that good callers give: functions are reached whatever the fuzzer has learned.
  local good = {t = 'text', i = 7, n = 1.5, b = true, l = {'a', 2.5}, h = handler}
  local patterns = {'', 't', 'tt', 'ttt', 'ti', 'tiit', 'tiitt', 'tn', 'ttb', 'tb', 'i', 'b', 'l', 'tl', 'p', 'pt', 'pi',
    'pl', 'ttttttt', 'h'}
  local function finish(ok, ...) if ok then keep(...) end end
  function call()
    local f = functions[(byte() | byte() << 8) % 512 + 1]
    local pattern, values, n = byte(), {}, 0
    if pattern < 200 then
      for kind in patterns[pattern % #patterns + 1]:gmatch('.') do n = n + 1 values[n] = good[kind] or pool[1] end
    else
      for i = 1, pattern % 6 do n = i values[n] = value(0) end
    end
    finish(pcall(f, table.unpack(values, 1, n)))
  end
  function listen()
    local deed = deeds[below(#deeds) + 1]
    for name, set in pairs(velora) do if name:find('^setOn') then set(deed) end end
  end)";

int Byte(lua_State* L) {
  lua_pushinteger(L, static_cast<lua_Integer>(static_cast<Program*>(lua_touserdata(L, lua_upvalueindex(1)))->Byte()));
  return 1;
}

int Call(lua_State* L) {
  lua_getglobal(L, "call");
  lua_call(L, 0, 0);
  return 0;
}

int Listen(lua_State* L) {
  lua_getglobal(L, "listen");
  lua_call(L, 0, 0);
  return 0;
}

int Collect(lua_State* L) {
  lua_gc(L, LUA_GCCOLLECT, 0);
  return 0;
}

template <auto& entryPoint>
int Enter(lua_State* L) {
  entryPoint(L);
  return 0;
}

// Runs `step` as a host would, ready for a memory error or a finaliser's.
template <lua_CFunction step>
void Protected(lua_State* L, Program&) {
  lua_pushcfunction(L, step);
  if (lua_pcall(L, 0, 0, 0) != LUA_OK) lua_pop(L, 1);
}

void CallHandler(lua_State*, Program& program) {
  auto& handler = luavelora::downloadHandler;
  if (handler.state() == nullptr || program.shortage) return;
  std::string text(program.Below(9), ' ');
  for (char& byte : text) byte = static_cast<char>(program.Byte());
  const char* shown = program.Below(2) == 0 ? nullptr : text.c_str();
  switch (program.Below(3)) {
    case 0:
      return handler.onInited();
    case 1:
      return handler.onProgress(shown);
    default:
      return handler.onFinish(shown, text.data(), text.size());
  }
}

void RunOut(lua_State*, Program& program) {
  program.shortage = true;
  tests::memory::FailAfter(static_cast<long>(program.Byte()));
}

void EndShortage(lua_State*, Program& program) {
  program.shortage = false;
  tests::memory::Restore();
}

void SetPause(lua_State* L, Program& program) { lua_gc(L, LUA_GCSETPAUSE, program.Below(2) == 0 ? 0 : 200); }

void PostEvent(lua_State*, Program& program) {
  const int type = static_cast<int>(program.Below(64)) - 2;
  const bool known = type >= 0 && type < luavelora::kEventTypes;
  offline::Post(known ? tests::MakeEvent(type, program.Below(4) != 0) : std::make_shared<Event>(type));
}

constexpr void (*kInstructions[])(lua_State*, Program&) = {
    Protected<Enter<UpdateLuaVelora>>, Protected<Enter<DeinitLuaVelora>>, CallHandler, RunOut, EndShortage,
    Protected<Enter<InitLuaVelora>>, Protected<Call>, Protected<Call>, Protected<Call>,
    // Not while memory runs out: the shortage is for the module.
    Protected<Listen>, SetPause, Protected<Collect>, PostEvent, PostEvent, PostEvent, PostEvent};
constexpr unsigned kFirstThatNeedsMemory = 9;

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
    Program program(data, size);
    lua_pushlightuserdata(host.L, &program);
    lua_pushcclosure(host.L, Byte, 1);
    lua_setglobal(host.L, "byte");
    Demand(host.Run(kPrelude).empty(), "prelude");
    while (!program.Done()) {
      const unsigned instruction = program.Below(std::size(kInstructions));
      if (!program.shortage || instruction < kFirstThatNeedsMemory) kInstructions[instruction](host.L, program);
    }
    tests::memory::Restore();
    for (int i = 0; i < 3; ++i) Protected<Collect>(host.L, program);  // finalisers that raise come out here
    Demand(lua_gettop(host.L) == 0, "stack height");
    Demand(host.Run("return type(velora.isInit())") == "\"boolean\"", "the state after all");
  }
  offline::Reset();
  Demand(offline::LiveRecords() == 0, "a record is left");
  Demand(tests::memory::LuaBlocksInUse() == 0, "a Lua block is left");
  return 0;
}
