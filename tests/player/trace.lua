-- How call lines show texts, containers and records, and in which order they come; run with --trace.
velora.getPropStr("quote \" back \\ line \n bell \a zero \0 end")
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
player.quit(7)
