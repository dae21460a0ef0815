-- Sells products. Gives the player each paid product exactly once, even if its order is delivered again.
local shop = { prices = {}, message = nil }

local PRODUCTS = { "lamp", "oil" }

local given = {} -- by order id; a game must save this, so that it survives a restart

-- The game replaces this function, which receives the id of a product.
function shop.give() end

local function finish(order)
  local id = order:get_orderId()
  if not given[id] then
    given[id] = true
    shop.give(order:get_productId())
  end
  velora.zvConsume(order)
end

-- Registers the products and asks for their prices. Finishes orders that were paid for in an earlier run.
function shop.open()
  for _, id in ipairs(PRODUCTS) do velora.OrderInfo.regProduct(id) end
  velora.zvQuerySkuDetails(velora.ITEM_TYPE_CONSUMABLE, PRODUCTS)
  shop.finishOrders()
end

function shop.finishOrders()
  for _, order in ipairs(velora.zvGetCheckedOrders() or {}) do finish(order) end
end

function shop.buy(productId)
  shop.message = nil
  velora.zvCheckOrder(velora.OrderInfo.new(productId))
end

velora.setOnQuerySkuDetailsFinished(function(items)
  shop.prices = {}
  for _, item in ipairs(items) do shop.prices[item:get_productId()] = item:get_price() end
end)

velora.setOnOrderCheckDone(function(order)
  if not order then return end
  local status = order:get_orderStatus()
  if status == velora.ORDER_S_SDK_CHECK_OK then
    finish(order)
  elseif status == velora.ORDER_S_SDK_CHECK_CANCEL then
    shop.message = "cancelled"
  else
    local reason = order:get_orderErrReason() or ""
    shop.message = "not paid" .. (reason ~= "" and ": " .. reason or "")
  end
end)

velora.setOnOrderCosumeDone(function(order)
  if order:get_orderStatus() ~= velora.ORDER_S_GS_CHECK_OK then
    shop.message = "not finished; the game tries again when it starts"
  end
end)

return shop
