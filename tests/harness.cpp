// The test host, its rendering of Lua values, and its memory that can run out.
#include "tests/harness.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>
#if defined(_WIN32)
#define malloc_usable_size _msize
#endif

namespace tests {
namespace memory {
namespace {

thread_local long allowedAllocations = -1;  // negative: no limit
thread_local bool failed = false;
long luaBlocks = 0;
std::atomic<long> bytes = 0;  // other threads allocate too

bool Allow() {
  if (allowedAllocations < 0) return true;
  if (allowedAllocations > 0) {
    --allowedAllocations;
    return true;
  }
  failed = true;
  return false;
}

}  // namespace

void FailAfter(long allowed) {
  failed = false;
  allowedAllocations = allowed;
}

bool Restore() {
  allowedAllocations = -1;
  return failed;
}

void* LuaAllocator(void*, void* block, std::size_t oldSize, std::size_t newSize) {
  if (block == nullptr) oldSize = 0;  // Lua names the kind of object there
  if (newSize > oldSize && !Allow()) return nullptr;
  bytes += static_cast<long>(newSize) - static_cast<long>(oldSize);
  luaBlocks += (newSize != 0) - (block != nullptr);
  if (newSize != 0) return std::realloc(block, newSize);
  std::free(block);
  return nullptr;
}

long LuaBlocksInUse() { return luaBlocks; }

long BytesInUse() { return bytes; }

static void* TryAllocate(std::size_t size) noexcept {
  void* block = Allow() ? std::malloc(size == 0 ? 1 : size) : nullptr;
  if (block != nullptr) bytes += static_cast<long>(malloc_usable_size(block));
  return block;
}

static void* Allocate(std::size_t size) {
  void* block = TryAllocate(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

static void Free(void* block) {
  if (block != nullptr) bytes -= static_cast<long>(malloc_usable_size(block));
  std::free(block);
}

}  // namespace memory

// Renders the value at `index`, as Host::Run says.
static std::string Render(lua_State* L, int index) {
  index = lua_absindex(L, index);
  switch (lua_type(L, index)) {
    case LUA_TSTRING: {
      std::size_t size = 0;
      const char* bytes = lua_tolstring(L, index, &size);
      std::string text;
      for (std::size_t i = 0; i < size; ++i) text += bytes[i] == '\0' ? std::string("\\0") : std::string(1, bytes[i]);
      return '"' + text + '"';
    }
    case LUA_TTABLE: {
      std::vector<std::string> entries;
      lua_pushnil(L);
      while (lua_next(L, index) != 0) {
        const std::string key = Render(L, -2);
        entries.push_back((lua_type(L, -2) == LUA_TSTRING ? key : '[' + key + ']') + '=' + Render(L, -1));
        lua_pop(L, 1);
      }
      std::sort(entries.begin(), entries.end());
      std::string text;
      for (const std::string& entry : entries) text += (text.empty() ? "" : ", ") + entry;
      return '{' + text + '}';
    }
    case LUA_TUSERDATA:
    case LUA_TFUNCTION:
    case LUA_TTHREAD:
      return luaL_typename(L, index);
    default: {
      const std::string text = luaL_tolstring(L, index, nullptr);
      lua_pop(L, 1);
      return text;
    }
  }
}

Host::Host(bool initialise) { Open(initialise); }

void Host::Open(bool initialise) {
  Close();
  L = lua_newstate(memory::LuaAllocator, nullptr);
  luaL_openlibs(L);
  // If VELORA_AGGRESSIVE_GC is set, a full cycle runs at every allocation, which finds values that are not anchored.
  if (std::getenv("VELORA_AGGRESSIVE_GC") != nullptr) {
    lua_gc(L, LUA_GCSETPAUSE, 0);
    lua_gc(L, LUA_GCSETSTEPMUL, 1000000);
  }
  if (!initialise) return;
  InitLuaVelora(L);
  EXPECT_EQ(lua_gettop(L), 0);
}

Host::~Host() { Close(); }

void Host::Close() {
  if (L != nullptr) lua_close(L);
  L = nullptr;
}

// Calls the chunk on top of the stack if `status` is LUA_OK.
static std::string Call(lua_State* L, int status) {
  const int top = lua_gettop(L) - 1;
  std::string text;
  if (status == LUA_OK) status = lua_pcall(L, 0, LUA_MULTRET, 0);
  if (status != LUA_OK) {
    const char* error = lua_tostring(L, -1);
    text = "error: " + (error == nullptr ? Render(L, -1) : std::string(error));
  } else {
    for (int i = top + 1; i <= lua_gettop(L); ++i) text += (text.empty() ? "" : ", ") + Render(L, i);
  }
  lua_settop(L, top);
  return text;
}

std::string Host::Run(const std::string& chunk) {
  return Call(L, luaL_loadbuffer(L, chunk.data(), chunk.size(), "=test"));
}

std::string Host::RunFile(const std::string& name) {
  return Call(L, luaL_loadfile(L, (VELORA_TEST_LUA + name).c_str()));
}

std::string Host::Frame() {
  const int top = lua_gettop(L);
  lua_pushcfunction(L, [](lua_State* state) {
    UpdateLuaVelora(state);
    return lua_gettop(state);
  });
  std::string text;
  if (lua_pcall(L, 0, LUA_MULTRET, 0) != LUA_OK) {
    text = lua_tostring(L, -1);
    lua_pop(L, 1);
  }
  EXPECT_EQ(lua_gettop(L), top);
  lua_settop(L, top);
  return text;
}

namespace {

// Members of the same name have the same value in every layout.
template <class Layout>
void Fill(Layout& event) {
  using namespace tarn::velora;
  static constexpr unsigned char kBytes[] = {'a', 0, 'b'};
  static constexpr ByteBlock kBlock{kBytes, sizeof kBytes}, kEmptyBlock{kBytes, 0};
  const std::string cut("te\0xt", 5);
  if constexpr (requires { event.code; }) event.code = -2147483647 - 1;
  if constexpr (requires { event.flag; }) event.flag = 2;
  if constexpr (requires { event.text; }) event.text = cut;
  if constexpr (requires { event.first; }) event.first = "a", event.second = cut;
  if constexpr (requires { event.texts; }) event.texts = {std::string(60, 'a'), cut, ""};
  if constexpr (requires { event.keyCode; }) event.keyCode = -96;
  if constexpr (requires { event.pressure; }) event.pressure = 0.25f;
  if constexpr (requires { event.x; }) event.x = 0.5f, event.y = -1;
  if constexpr (requires { event.pad; }) event.pad = offline::MakePad({});
  if constexpr (requires { event.order; }) event.order = offline::MakeOrder({});
  if constexpr (requires { event.account; }) event.account = offline::MakeAccount({});
  if constexpr (requires { event.accounts; })
    event.accounts = {offline::MakeAccount({}), nullptr, offline::MakeAccount({})};
  if constexpr (requires { event.skus; }) event.skus = {offline::MakeSku({}), nullptr, offline::MakeSku({})};
  if constexpr (requires { event.bytes; }) event.bytes = requires {
      event.text;
    }
  ? &kEmptyBlock : &kBlock;
}

template <class Layout>
std::shared_ptr<tarn::velora::Event> Make(int type, bool filled) {
  auto event = std::make_shared<Layout>(type);
  if (filled) Fill(*event);
  return event;
}

}  // namespace

const EventRow kEventRows[] = {
#define VELORA_EVENT(type, name, Layout) {type, #name, #Layout, Make<tarn::velora::Layout>},
#include "platform/events.def"
};

void Check(Host& host, const std::string& chunk, const std::string& results, const std::string& calls) {
  tarn::velora::offline::TakeCalls();
  EXPECT_EQ(host.Run(chunk), results) << chunk;
  std::string made;
  for (const std::string& call : tarn::velora::offline::TakeCalls()) made += (made.empty() ? "" : "; ") + call;
  EXPECT_EQ(made, calls) << chunk;
}

VeloraTest::VeloraTest() {
  tarn::velora::offline::SetLogToStderr(false);
  tarn::velora::offline::Reset();
}

void HostTest::TearDown() {
  host.Close();
  VeloraTest::TearDown();
}

void VeloraTest::TearDown() {
  tarn::velora::offline::Reset();
  EXPECT_EQ(tarn::velora::offline::TakeCalls().size() + tarn::velora::offline::TakeLog().size(), 0u);
  EXPECT_EQ(tarn::velora::offline::LiveRecords(), 0u);
  EXPECT_EQ(memory::LuaBlocksInUse(), 0);
}

}  // namespace tests

// The program's own allocation functions, so that they can be made to fail.
void* operator new(std::size_t size) { return tests::memory::Allocate(size); }
void* operator new[](std::size_t size) { return tests::memory::Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return tests::memory::TryAllocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return tests::memory::TryAllocate(size); }
void operator delete(void* block) noexcept { tests::memory::Free(block); }
void operator delete[](void* block) noexcept { tests::memory::Free(block); }
void operator delete(void* block, std::size_t) noexcept { tests::memory::Free(block); }
void operator delete[](void* block, std::size_t) noexcept { tests::memory::Free(block); }
