local testing = require("tests.testing")
local case, equal = testing.case, testing.equal

-- Opens a shop that stores the goods that it gives in `goods`.
local function open()
  local shop, goods = testing.load("game.shop"), {}
  function shop.give(productId) goods[#goods + 1] = productId end
  shop.open()
  testing.settle()
  return shop, goods
end

local function left() return #(velora.zvGetCheckedOrders() or {}) end

case("the player buys a lamp", function()
  local shop, goods = open()
  equal(shop.prices.lamp, "0.00")
  shop.buy("lamp")
  testing.settle()
  testing.settle() -- the callback has made another call
  equal(table.concat(goods, " "), "lamp")
  equal(shop.message, nil)
  equal(left(), 0)
end)

case("the store finds nothing", function()
  testing.answer("zvQuerySkuDetails", false)
  local shop = open()
  equal(next(shop.prices), nil)
end)

case("the player cancels", function()
  testing.answer("zvCheckOrder", velora.ORDER_S_SDK_CHECK_CANCEL)
  local shop, goods = open()
  shop.buy("lamp")
  testing.settle()
  equal(shop.message, "cancelled")
  equal(#goods, 0)
end)

case("the payment fails", function()
  testing.answer("zvCheckOrder", velora.ORDER_S_SDK_CHECK_ERR)
  local shop, goods = open()
  shop.buy("lamp")
  testing.settle()
  equal(shop.message, "not paid")
  testing.answer("OrderInfo.get_orderErrReason", "the card is not accepted")
  shop.buy("lamp")
  testing.settle()
  equal(shop.message, "not paid: the card is not accepted")
  equal(#goods, 0)
end)

case("an order is paid for, but not finished", function()
  testing.answer("zvConsume", false)
  local shop, goods = open()
  shop.buy("oil")
  testing.settle()
  testing.settle()
  equal(shop.message, "not finished; the game tries again when it starts")
  equal(left(), 1)

  testing.answer("zvConsume", nil)
  shop.finishOrders()
  testing.settle()
  equal(left(), 0)
  equal(table.concat(goods, " "), "oil") -- given once
end)

case("an order comes from an earlier run, or none at all", function()
  local _, goods = open()
  offline.post("OrderCheckDone") -- with no order in it
  offline.post("OrderCheckDone", { orderId = "A-17", productId = "lamp", orderStatus = velora.ORDER_S_SDK_CHECK_OK })
  testing.settle()
  testing.settle()
  equal(table.concat(goods, " "), "lamp")
end)

testing.run()
