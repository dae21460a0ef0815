#include "events/pump.h"

#include <bitset>
#include <exception>
#include <memory>
#include <utility>
#include <vector>

#include "binding/callback_error.h"
#include "events/callbacks.h"
#include "events/catalogue.h"
#include "platform/event.h"
#include "platform/log.h"
#include "platform/operations.h"

namespace luavelora {
namespace {

using tarn::velora::Event;

// One pass. It is outside the protected call that runs it, so that the batch is released even after a Lua error.
struct Pass {
  std::vector<std::shared_ptr<Event>> batch;
  std::size_t next = 0;
  bool collectorPaused = false;  // until the next callback has its arguments

  // Releases the events in queue order; the order of a vector's own destructor is unspecified.
  ~Pass() {
    for (auto& event : batch) event.reset();
  }
};

constexpr int kTableIndex = 1;

void ResumeCollector(lua_State* L, Pass& pass) {
  if (std::exchange(pass.collectorPaused, false)) lua_gc(L, LUA_GCRESTART, 0);
}

// Calls the function on top of the stack with the event's arguments and pops it. Logs an error of the function. Once
// the function is called, this raises nothing.
template <class Layout>
void Deliver(lua_State* L, ModuleState& state, Pass& pass, const Event& event) {
  const int arguments = PushArguments(L, state, static_cast<const Layout&>(event));
  ResumeCollector(L, pass);
  if (lua_pcallk(L, arguments, 0, 0, 0, nullptr) != LUA_OK) {
    LogCallbackError(L);
    lua_pop(L, 1);
  }
}

using DeliverFunction = void (*)(lua_State*, ModuleState&, Pass&, const Event&);

constexpr DeliverFunction kDeliver[] = {
#define VELORA_EVENT(type, name, Layout) Deliver<tarn::velora::Layout>,
#include "platform/events.def"
};

constexpr int kTypes[] = {
#define VELORA_EVENT(type, name, Layout) type,
#include "platform/events.def"
};
constexpr bool InOrder() {
  for (int i = 0; i < kEventTypes; ++i)
    if (kTypes[i] != i) return false;
  return true;
}
static_assert(InOrder(), "the rows of events.def are in the order of their type numbers");

// If the log library throws, the line is lost.
void LogUnknownType(std::int32_t type) {
  try {
    tarn::log::LogError(tarn::velora::LogChannel, "Unknown velora event %d", type);
  } catch (const std::exception&) {
    // The next event follows.
  }
}

// Delivers the rest of the batch. Runs in protected mode. Gets the callback table once, since it stays the same while
// the state lives. Reads the slot again for every event, since callbacks may change it. A slot that was empty is not
// read again until a callback has run.
void DeliverRest(lua_State* L, Pass& pass) {
  ModuleState* state = ModuleStateOf(L);
  if (state == nullptr) return;
  GetSdkCallbackTable(L, kCallbackTable);
  std::bitset<kEventTypes> empty;  // the slots found empty since a callback ran
  for (; pass.next < pass.batch.size(); ++pass.next) {
    const Event* reference = pass.batch[pass.next].get();
    if (reference == nullptr) continue;
    const Event& event = *reference;
    const auto type = static_cast<std::uint32_t>(event.type);
    if (type < kEventTypes && empty[type]) continue;
    const bool wanted = lua_rawgeti(L, kTableIndex, event.type) != LUA_TNIL;
    if (wanted && type < kEventTypes) {
      kDeliver[type](L, *state, pass, event);
      empty.reset();
      continue;
    }
    lua_pop(L, 1);
    if (wanted)
      LogUnknownType(event.type);
    else if (type < kEventTypes)
      empty.set(type);
  }
  lua_settop(L, 0);
}

}  // namespace

Outcome RunPass(lua_State* L) {
  Pass pass;
  tarn::velora::SwapEvents(pass.batch);
  auto rest = [&pass](lua_State* state) { DeliverRest(state, pass); };
  while (pass.next < pass.batch.size()) {
    const int status = Protected(L, 0, rest);
    ResumeCollector(L, pass);
    if (status == LUA_OK) break;
    if (status != LUA_ERRGCMM) return Outcome::Rethrow();
    LogCallbackError(L);
    lua_pop(L, 1);
    // The finalizer of another object raised before the callback was called. The event is delivered again, with the
    // collector, which must have been running, paused while its arguments are built: no finalizer runs then.
    lua_gc(L, LUA_GCSTOP, 0);
    pass.collectorPaused = true;
  }
  return Outcome::Results(0);
}

}  // namespace luavelora
