// A fuzz target whose input is a program: calls of all functions that a script sees, with all kinds of arguments;
// events; calls of the download handler; frames; collections; failing allocations. No program may break the host, and
// at its end all memory must have been freed.
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

// Reads the input byte by byte, then zeros.
class Program {
 public:
  Program(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}
  bool Done() const { return next_ == end_; }
  unsigned Byte() { return Done() ? 0 : *next_++; }
  unsigned Below(unsigned bound) { return Byte() % bound; }

  bool failsAllocations = false;  // from RunOutOfMemory to RestoreMemory

 private:
  const std::uint8_t* next_;
  const std::uint8_t* end_;
};

int Byte(lua_State* L) {
  lua_pushinteger(L, static_cast<lua_Integer>(static_cast<Program*>(lua_touserdata(L, lua_upvalueindex(1)))->Byte()));
  return 1;
}

constexpr char kCall[] = "call", kListen[] = "listen", kCollect[] = "collectgarbage";
template <const char* function>
int Script(lua_State* L) {
  lua_getglobal(L, function);
  lua_call(L, 0, 0);
  return 0;
}

template <auto& entryPoint>
int Enter(lua_State* L) {
  entryPoint(L);
  return 0;
}

// Runs `step` as a host does, in protected mode: a memory error, or one of a finalizer, may leave it.
template <lua_CFunction step>
void RunStep(lua_State* L, Program&) {
  lua_pushcfunction(L, step);
  if (lua_pcall(L, 0, 0, 0) != LUA_OK) lua_pop(L, 1);
}

void CallHandler(lua_State*, Program& program) {
  auto& handler = luavelora::downloadHandler;
  if (handler.state() == nullptr || program.failsAllocations) return;
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

void RunOutOfMemory(lua_State*, Program& program) {
  program.failsAllocations = true;
  tests::memory::FailAfter(static_cast<long>(program.Byte()));
}

void RestoreMemory(lua_State*, Program& program) {
  program.failsAllocations = false;
  tests::memory::Restore();
}

void SetPause(lua_State* L, Program& program) { lua_gc(L, LUA_GCSETPAUSE, program.Below(2) == 0 ? 0 : 200); }

void PostEvent(lua_State*, Program& program) {
  const int type = static_cast<int>(program.Below(luavelora::kEventTypes + 4)) - 2;
  const bool known = type >= 0 && type < luavelora::kEventTypes;
  offline::Post(known ? tests::MakeEvent(type, program.Below(4) != 0) : std::make_shared<Event>(type));
}

constexpr void (*kInstructions[])(lua_State*, Program&) = {
    RunStep<Enter<UpdateLuaVelora>>, RunStep<Enter<DeinitLuaVelora>>, CallHandler, RunOutOfMemory, RestoreMemory,
    RunStep<Enter<InitLuaVelora>>, RunStep<Script<kCall>>, RunStep<Script<kCall>>, RunStep<Script<kCall>>,
    // Not while allocations fail: these use memory outside the module.
    RunStep<Script<kListen>>, SetPause, RunStep<Script<kCollect>>, PostEvent, PostEvent, PostEvent, PostEvent};
constexpr unsigned kFirstThatNeedsMemory = 9;

void Require(bool condition, const char* what) {
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
    Require(host.RunFile("fuzz.lua").empty(), "prelude");
    while (!program.Done()) {
      const unsigned instruction = program.Below(std::size(kInstructions));
      if (!program.failsAllocations || instruction < kFirstThatNeedsMemory) kInstructions[instruction](host.L, program);
    }
    tests::memory::Restore();
    for (int i = 0; i < 3; ++i)
      RunStep<Script<kCollect>>(host.L, program);  // runs the remaining finalizers, even if some raise
    Require(lua_gettop(host.L) == 0, "stack height");
    Require(host.Run("return type(velora.isInit())") == "\"boolean\"", "the state does not work any more");
  }
  offline::Reset();
  Require(offline::LiveRecords() == 0, "a record is not freed");
  Require(tests::memory::LuaBlocksInUse() == 0, "a Lua block is not freed");
  return 0;
}
