// The table `velora.download` and the handler through which the SDK calls Lua.
#include "download/handler.h"
#include "tests/harness.h"

namespace tests {
namespace {

struct Download : HostTest {
  Download() { Prepare(host); }

  static void Prepare(Host& fresh) {
    fresh.Run(
        "d = velora.download log = {} function note(name) return function(...) "
        "log[#log + 1] = table.pack(name, ...) end end "
        "function take() local l = log log = {} return table.unpack(l) end "
        "handler = {onInited = note('inited'), onProgress = note('progress'), onFinish = note('finish')}");
  }
};

const char* const kOff = "enableAsyncEvent(false); removeSyncDownloadHandler(<handler>)";
const char* const kOn =
    "enableAsyncEvent(false); removeSyncDownloadHandler(<handler>); addSyncDownloadHandler(<handler>)";

TEST_F(Download, RegisteringFollowsItsSteps) {
  const char* const kInvalid = "error: test:1: setSyncDownloadHandler with invalid lua handler";
  Check(host, "return d.getSyncDownloadHandler()", "");
  for (const char* bad : {"return d.setSyncDownloadHandler(5)", "return d.setSyncDownloadHandler(nil)"})
    Check(host, bad, "");
  Check(host, "return d.setSyncDownloadHandler(handler, 1)", "", kOn);
  Check(host,
        "local t = d.getSyncDownloadHandler() return t ~= handler, t.onInited == handler.onInited, "
        "t.onProgress == handler.onProgress, t.onFinish == handler.onFinish",
        "true, true, true, true");
  Check(host, "d.setSyncDownloadHandler('x') kept = d.getSyncDownloadHandler() return kept ~= nil", "true");
  Check(host, "d.setSyncDownloadHandler{onInited = print, onProgress = print}", kInvalid, kOff);
  Check(host, "return d.getSyncDownloadHandler()", "");
  Check(host, "return kept", "{}");
  Check(host, "d.setSyncDownloadHandler(setmetatable({}, {__index = handler}))", kInvalid, kOff);
  Check(host, "d.setSyncDownloadHandler{onInited = print, onProgress = print, onFinish = {}}", kInvalid, kOff);
  Check(host, "return d.setSyncDownloadHandler(handler)", "", kOn);
  Check(host, "d.setSyncDownloadHandler(d.getSyncDownloadHandler())", kInvalid, kOff);
  Check(host, "return kept, d.getSyncDownloadHandler()", "{}");
  Check(host, "return d.setSyncDownloadHandler(handler)", "", kOn);
  Check(host, "return d.setSyncDownloadHandler()", "", kOff);
  Check(host, "return kept, d.getSyncDownloadHandler()", "{}");
  EXPECT_TRUE(offline::Handlers().empty());
}

TEST_F(Download, ErrorsOfTheFunctionsAreLogged) {
  host.Run(
      "d.setSyncDownloadHandler{onInited = function() error('one', 0) end, onProgress = function() error({}) end, "
      "onFinish = function() d.setSyncDownloadHandler() error('three', 0) end}");
  auto* handler = offline::Handlers().at(0);
  handler->onInited();
  handler->onProgress("x");
  while (lua_checkstack(host.L, LUA_MINSTACK)) lua_settop(host.L, lua_gettop(host.L) + LUA_MINSTACK);
  handler->onInited();
  lua_settop(host.L, 0);
  handler->onFinish("x", nullptr, 0);
  handler->onInited();  // unregistered by then
  EXPECT_EQ(offline::TakeLog(), (std::vector<std::string>{
                                    "[VELORA] 0 [Velora callback err] one",
                                    "[VELORA] 0 [Velora callback err] (error object is a table value)",
                                    "[VELORA] 0 [Velora callback err] stack overflow",
                                    "[VELORA] 0 [Velora callback err] three",
                                }));
  EXPECT_EQ(lua_gettop(host.L), 0);
}

TEST_F(Download, AHandlerRegisteredInACoroutineOutlivesIt) {
  host.Run(
      "local co = coroutine.create(function() d.setSyncDownloadHandler(handler) coroutine.yield() end) "
      "coroutine.resume(co) co = nil collectgarbage() collectgarbage()");
  offline::Handlers().at(0)->onProgress("x");
  EXPECT_EQ(host.Run("return take()"), "{\"n\"=2, [1]=\"progress\", [2]=\"x\"}");
}

TEST_F(Download, TheLastStateThatRegistersWins) {
  Host second;
  Prepare(second);
  host.Run("d.setSyncDownloadHandler(handler)");
  second.Run("d.setSyncDownloadHandler(handler)");
  auto* handler = offline::Handlers().at(0);
  handler->onInited();
  EXPECT_EQ(host.Run("return take()"), "");
  EXPECT_EQ(second.Run("return take()"), "{\"n\"=1, [1]=\"inited\"}");
  host.Close();
  handler->onProgress("x");
  EXPECT_EQ(second.Run("return take()"), "{\"n\"=2, [1]=\"progress\", [2]=\"x\"}");
  second.Close();
  handler->onInited();
  handler->onProgress("x");
  handler->onFinish("x", "y", 1);
  EXPECT_EQ(luavelora::downloadHandler.state(), nullptr);
}

// Objects created before InitLuaVelora are finalized after the module's state.
TEST_F(Download, NothingRegistersWhileTheStateCloses) {
  Host late(false);
  late.Run(
      "keep = setmetatable({}, {__gc = function() velora.download.setSyncDownloadHandler{onInited = print, "
      "onProgress = print, onFinish = print} end})");
  InitLuaVelora(late.L);
  late.Run(
      "later = setmetatable({}, {__gc = function() velora.download.setSyncDownloadHandler{onInited = print, "
      "onProgress = print, onFinish = print} end})");
  late.Close();
  EXPECT_EQ(luavelora::downloadHandler.state(), nullptr);
  for (auto* handler : offline::Handlers()) handler->onInited();
}

}  // namespace
}  // namespace tests
