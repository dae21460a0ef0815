-- Played with --strict: only the reports in strict.err are printed.
local v, order, share = velora, velora.OrderInfo.new("gold.60"), velora.ShareInfo.new()

local function call(rows)
  for _, row in ipairs(rows) do row[1](table.unpack(row, 2)) end
end

-- The format of arguments.
v.zvUpdateRank("speed", {})
v.setPropInt("a \"b\"\\\n\1 100% s", 5.0)
v.setPropInt(("long"):rep(100), 0.5, 1 << 62, -1e300, true, nil, print, io.stdout, share)
v.setPropInt(("ö"):rep(50), coroutine.create(print))

-- Wrappers, callbacks, class functions, methods, downloads; also functions that never call the SDK.
v.setOnLoginDone(nil)
v:setOnLoginDone(print)
call{
  { v.isBinded }, { v.hasFeature, {} }, { v.zvCheckOrder, "gold.60" }, { v.OrderInfo.hasProduct, {} },
  { v.SkuDetailsInfo.new, "id" }, { order.set_aid, "x" }, { order.set_arrPriceLocaleId, order, "x" },
  { v.OrderInfo.get_aid, share }, { v.OrderInfo.set_aid, nil, 5 }, { v.ProductInfo.get_productId, order },
  { v.ProductInfo.set_sdkPids, {}, {} }, { v.ShareInfo.get_textMsg }, { v.ShareInfo.set_toUserList, order, {} },
  { v.PadEvent.get_x, {} }, { v.ShareInfo.__tostring, order }, { v.download.extendFunc, {} },
  { v.download.setSyncDownloadHandler, "x" },
}
local finalized = v.OrderInfo.new("gold.60")
finalized:__gc()
finalized:__gc()
finalized:get_aid()

-- Accepted calls that lose elements or values.
call{
  { v.zvDeleteInviters, { "anna", {}, 7, false } }, { v.zvSendPushNotification, "text", { print, "ben" } },
  { v.zvSendPushNotification, {}, { print } }, { share.set_toUserList, share, { "anna", share } },
  { order.set_count, order, "three" }, { order.set_count, order, "3" }, { order.set_count, order, 3.5 },
  { order.set_productCurrentPrice, order, "cheap" }, { order.set_userData, order, {} },
  { order.set_userData, order, 5 }, { order.set_qrCodeOrder, order, "yes" },
  { v.AccountInfo.set_rankScore, v.AccountInfo.new() },
}

-- Names that do not exist.
for _, name in ipairs{ "LOGIN_DONE_CANCELLED", "zvLogn", "zvlogin", "setOnLoginDnoe", "nothingLikeIt", 5 } do
  assert(v[name] == nil)
end
pcall(function() velora.zvConsumeOrder(order) end)
assert(rawget(v, "zvLogn") == nil)

-- Calls that a real SDK would probably refuse.
v.zvLogin()
v.zvCheckOrder(velora.OrderInfo.new("rope"))
v.OrderInfo.regProduct("gold.60")
v.zvCheckOrder(order)

-- Accepted calls that return nil or nothing, and calls that raise an error.
offline.answer("getChannel", false)
local product = v.ProductInfo.new()
call{
  { v.getChannel }, { v.getCmdLineParameter }, { v.zvGetCheckedOrders }, { v.OrderInfo.getProductList },
  { v.getOnLoginDone }, { v.download.getSyncDownloadHandler }, { v.download.setSyncDownloadHandler },
  { v.setOnFinishInit, print, 1 }, { v.getPropStr, "NAME", {} }, { v.setPropStr, "NAME", 5 }, { v.hasFeature, "x" },
  { v.OrderInfo.hasProduct, "gold.60" }, { order.set_arrPriceLocaleId, order, {} }, { order.get_aid, order },
  { share.get_textMsg, share }, { share.set_textMsg, share, { a = 1 } }, { share.get_shareData, share },
  { product.get_sdkPids, product }, { tostring, order }, { tostring, share }, { tostring, product }, { v.isInit },
}
order:set_aid(nil)
product:set_productId()
local _, message = pcall(function() v.zvShowRewardView("x") end)
assert(message == "strict.lua:" .. debug.getinfo(1, "l").currentline - 1 .. ": ptrmust be table")
assert(not pcall(v.zvLumoSetOption, "x", {}))
assert(not pcall(v.setCmdLineParameter, {}))
assert(not pcall(share.set_textMsg, share, 1))

-- Ways to call: pcall, tail calls, coroutines, metamethods, finalizers, chunks.
pcall(v.isBinded)
local function tail() return v.isBinded() end
tail()
local twice = coroutine.wrap(function() v.isBinded() coroutine.yield() v.isBinded() end)
twice()
twice()
coroutine.wrap(v.isBinded)()
local nested = setmetatable({}, { __len = function() v.isBinded() pcall(v.zvShowRewardView, "x") return 0 end })
v.zvShowRewardView(nested)
share:set_toUserList(nested)
for _ = 1, 300 do
  coroutine.wrap(function() pcall(v.zvShowRewardView) end)()
end
setmetatable({}, { __gc = function() v.zvLogin() v.isBinded() end })
collectgarbage()
load("velora.isBinded()", "=[a chunk]")()

-- Code without line numbers, and a chunk name with an escape code.
load(string.dump(load("velora.isBinded()", "@stripped.lua"), true))()
load("velora.isBinded()", "=\27[31m")()

-- A script can set its own hook; when it is removed, the player's is restored.
assert(debug.gethook() == nil)
local function hook() end
debug.sethook(hook, "c", 5)
v.isBinded()
local current, mask, count = debug.gethook()
assert(current == hook and mask == "c" and count == 5)
debug.sethook()
coroutine.wrap(function() v.isBinded() end)()
local suspended = coroutine.create(function() v.isBinded() end)
debug.sethook(suspended, hook, "", 1000)
assert(debug.gethook(suspended) == hook and debug.gethook() == nil)
debug.sethook(suspended)
coroutine.resume(suspended)

v.setOnReceiveMsgNotification(function() v.isBinded() end)
offline.post("ReceiveMsgNotification")
velora.setOnFinishInit(function()
  velora.zvLogin()
  velora.exitApp()
end)
velora.setOnExitApp(function() player.quit() end)
velora.zvInit()
v.download.setSyncDownloadHandler{ onInited = function() v.isBinded() end, onProgress = print, onFinish = print }
player.onFrame(function(frame)
  if frame > 2 then return end
  offline.download("onInited")
  v.isBinded(nil)
end)
