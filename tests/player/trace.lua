-- Played with --trace: the format of strings, containers and records, and the order of calls and events.
velora.getPropStr("quote \" back \\ line \n bell \a 100% s zero \0 end")
velora.setPropInt("LEVEL", 5.0) -- refused: no line
velora.setCmdLineParameter()
velora.zvDeleteInviters{ "anna", 7, {}, "ben" }
velora.zvDisplayQuests{ 1, 4294967298, "3", "x" }

local order, product = velora.OrderInfo.new("gold.60"), velora.ProductInfo.new()
velora.zvCheckOrder(order)
product:set_productId("gold.60")
product:set_productPrice(0.99)
product:set_sdkPids{ b = 2, a = "one" }
velora.OrderInfo.regProduct(product)
tostring(order)

velora.download.setSyncDownloadHandler{ onInited = print, onProgress = print, onFinish = print }
offline.download("onFinish", "done", "a\0b")
velora.download.query()

-- Each event precedes the calls of its callback, even if that ends with a tail call or sets its own hook.
local function none() end
velora.setOnLoginDone(function() velora.isInit() return velora.hasLogin() end)
velora.setOnDownloadFinish2(function()
  debug.sethook(none, "c")
  velora.isInit()
end)
velora.setOnDownloadInited(function() debug.sethook() player.quit(7) end)
velora.setOnOrderCosumeDone(none)
velora.setOnOrderCheckDone(function()
  velora.setOnOrderCheckDone(none)
  for _, event in ipairs{ { "LoginDone", -1 }, { "ShareFinished", true }, { "LoginDone", 5 },
      { "OrderCheckDone", order }, { "OrderCosumeDone" }, { "QueryFriendListFinished", { {}, false } },
      { "ControllerLeftStick", 0.5, 2 }, { 60 }, { "QueryInviteFriendListFinished", { "anna", "7% s" } },
      { "DownloadFinish2", "a\"b", "a\0b" }, { "DownloadInited" } } do
    offline.post(table.unpack(event))
  end
end)
