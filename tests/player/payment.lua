-- Each payment wrapper and the product registry, with good and with bad arguments; run with --trace.
local function fails(f, ...) print(select(2, pcall(f, ...))) end

velora.zvQuerySkuDetails("inapp", {"gold.60", 7})
velora.zvQuerySkuDetails("inapp", {})
velora.zvQuerySkuDetails("inapp", "gold.60")
velora.zvQuerySkuDetails(nil, {})
fails(function() velora.zvQuerySkuDetails("inapp", {"gold.60", {}}) end)

local order = velora.OrderInfo.new("gold.60")
for _, name in ipairs{"zvCheckOrder", "zvConsume"} do
  velora[name](order)
  velora[name]()
  velora[name]("gold.60")
  velora[name](velora.ShareInfo.new())
end
for _, name in ipairs{"zvVerifyOrder", "zvPrePay", "zvQueryInventory", "zvGetCheckedOrders"} do velora[name](1) end
for _, name in ipairs{"zvRemoveCheckedOrders", "getFFChannelByPid", "DRPF"} do
  velora[name](12)
  velora[name]({})
  velora[name]()
end

local product = velora.ProductInfo.new()
product:set_productId("gold.60")
product:set_productName("Gold")
product:set_productPrice(0.99)
product:set_exchangeRatio(10)
velora.OrderInfo.regProduct(product)
product:set_sdkPids{b = 2, a = "one"}
velora.OrderInfo.regProduct(product)
velora.OrderInfo.regProduct({})
print(velora.OrderInfo.hasProduct(order), velora.OrderInfo.hasProduct({}))
velora.OrderInfo.setProductType("gold.60", velora.PRODUCT_TYPE_AUTORENEWABLE)
velora.OrderInfo.setProductType("gold.60", 1.0)
print(velora.OrderInfo.getProductType("gold.60"), velora.OrderInfo.getProductType({}))
print(velora.OrderInfo.getProductList()["gold.60"]:get_productPrice())
order:obj2Json()
order:produceCartInfo()
fails(function() velora.OrderInfo.new({}) end)
fails(function() order:set_arrPriceLocaleId{"en", false} end)
fails(function() product:set_sdkPids("x") end)
velora.SkuDetailsInfo.new(1, 2, 3, 4, 5, 6, 7)
velora.SkuDetailsInfo.new(1, 2, 3)
player.quit()
