-- How call lines show arguments of every kind, and in which order they come; run with --trace.
velora.getPropStr("quote \" back \\ line \n bell \a zero \0 end")
velora.setUserInfo(7, 2.0)
velora.setPropInt("LEVEL", -5)
velora.setPropInt("LEVEL", 5.0) -- refused: no line
velora.setJFSauthWithKey("key", "value", true)
velora.zvUpdateRank("speed", 0.1)
velora.zvLumoSetOption("int.fps", 7)
velora.zvLumoSetOption("text", 7.0)
velora.zvLumoSetOption("bool.on", false)
velora.setCmdLineParameter()
velora.zvDeleteInviters{ "anna", 7, {}, "ben" }
velora.zvDeleteInviters{}
velora.zvDisplayQuests{ 1, 4294967298, "3", "x" }
velora.zvDisplayQuests{}
velora.zvPushGameVoice(("\0"):rep(960))

local order, product = velora.OrderInfo.new("gold.60"), velora.ProductInfo.new()
velora.zvCheckOrder(order)
velora.zvShare(velora.ShareInfo.new("spring"))
velora.zvQueryRank(velora.QueryRankInfo.new())
velora.SkuDetailsInfo.new(1, 2, 3, 4, 5, 6, 7)
product:set_productId("gold.60")
product:set_productPrice(0.99)
velora.OrderInfo.regProduct(product)
product:set_sdkPids{ b = 2, a = "one" }
velora.OrderInfo.regProduct(product)
order:obj2Json()
tostring(order)

velora.download.setSyncDownloadHandler{ onInited = print, onProgress = print, onFinish = print }
offline.download("onFinish", "done", "a\0b")
velora.download.query()
player.quit(7)
