// A small host for tests: one Lua state with the module initialised, against the offline runtime.
#pragma once

#include <gtest/gtest.h>

#include <lua.hpp>
#include <memory>
#include <string>
#include <vector>

#include "events/callbacks.h"
#include "module/lua_velora.h"
#include "offline/control.h"
#include "platform/event.h"

namespace tests {

namespace offline = tarn::velora::offline;

// Lets memory run out, for Lua's allocator and for operator new on the calling thread.
namespace memory {

// Lets every allocation after the next `allowed` ones fail, until Restore. Shrinking and freeing always succeed.
void FailAfter(long allowed);

// Lets allocations succeed again and returns whether one failed.
bool Restore();

// The allocator of the test states; blocks in use are counted.
void* LuaAllocator(void*, void* block, std::size_t oldSize, std::size_t newSize);
long LuaBlocksInUse();

// Returns the bytes allocated by Lua's allocator and operator new and not freed, on all threads.
long BytesInUse();

}  // namespace memory

class Host {
 public:
  // A state with the standard libraries and, unless `initialise` is false, the module.
  explicit Host(bool initialise = true);
  ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  // Runs a chunk named "test" and renders its results: "" for none, else the values joined by ", ", strings in
  // quotes with \0 for a zero byte, floats with a point, tables in braces with sorted keys, "error: text" for an error.
  std::string Run(const std::string& chunk);

  // The same for a file of tests/lua.
  std::string RunFile(const std::string& name);

  // Runs one frame and checks that the stack height is unchanged. Returns "" or the message of a Lua error that left
  // it.
  std::string Frame();

  // Closes the state before the host goes, and opens another.
  void Close();
  void Open(bool initialise = true);

  lua_State* L = nullptr;
};

// The catalogue's events by their type numbers. `make` returns a new one with nothing of its payload set or all of it.
struct EventRow {
  int type;
  const char* name;
  const char* layout;
  std::shared_ptr<tarn::velora::Event> (*make)(int type, bool filled);
};
extern const EventRow kEventRows[luavelora::kEventTypes];

inline std::shared_ptr<tarn::velora::Event> MakeEvent(int type, bool filled) {
  return kEventRows[type].make(type, filled);
}

// Runs a chunk, which must return these results and make exactly these SDK calls, "; " between them.
void Check(Host& host, const std::string& chunk, const std::string& results, const std::string& calls = "");

// Starts each test from an empty offline runtime, and checks at its end that every record and block is gone.
class VeloraTest : public testing::Test {
 protected:
  VeloraTest();
  void TearDown() override;
};

// The same with a host, which is closed before that.
class HostTest : public VeloraTest {
 protected:
  void TearDown() override;

  Host host;
};

}  // namespace tests
