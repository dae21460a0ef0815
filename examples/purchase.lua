-- A purchase: registers a product and queries its price, checks an order, and consumes it after the player has received
-- the goods. The check of a second order fails.
-- A game starts the SDK and logs in first, as login.lua does. Play it with: velora-play examples/purchase.lua

local product = velora.ProductInfo.new()
product:set_productId("oil.60")
product:set_productName("A can of oil")
product:set_productPrice(0.99)
velora.OrderInfo.regProduct(product)

local function placeOrder() velora.zvCheckOrder(velora.OrderInfo.new("oil.60")) end

velora.setOnQuerySkuDetailsFinished(function(items)
  for _, item in ipairs(items) do
    print(item:get_title() .. " costs " .. item:get_price() .. " " .. item:get_priceCurrencyCode() .. ".")
  end
  placeOrder()
end)

velora.setOnOrderCheckDone(function(order)
  if order:get_orderStatus() == velora.ORDER_S_SDK_CHECK_OK then
    print("Paid: " .. order:get_orderId() .. ". The player gets " .. order:get_productName() .. ".")
    -- The SDK keeps the order until it is consumed, so that a game that ends here finds it at its next start.
    print("Orders to consume: " .. #velora.zvGetCheckedOrders() .. ".")
    velora.zvConsume(order)
  else
    print("Not paid: " .. order:get_orderId() .. " has status " .. order:get_orderStatus() .. ".")
    player.quit()
  end
end)

velora.setOnOrderCosumeDone(function(order) -- the name is spelt this way
  local left = velora.zvGetCheckedOrders() or {} -- nil if there are none
  print("Consumed: " .. tostring(order:get_orderStatus() == velora.ORDER_S_GS_CHECK_OK) .. ", left: " .. #left .. ".")
  offline.answer("zvCheckOrder", velora.ORDER_S_SDK_CHECK_ERR) -- the next check fails
  placeOrder()
end)

velora.zvQuerySkuDetails(velora.ITEM_TYPE_CONSUMABLE, { "oil.60" })
