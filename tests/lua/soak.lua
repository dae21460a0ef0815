-- A game: frame(n) is its n-th frame, total() the events that it has received.
local received = 0
local function count() received = received + 1 end
for name, set in pairs(velora) do if name:find("^setOn") then set(count) end end
velora.setOnQueryFriendListFinished(function(accounts)
  count()
  friends = accounts
  for i = 1, #accounts, 10 do last = accounts[i]:get_nickname() .. tostring(accounts[i]) end
end)
velora.setOnOrderCheckDone(function(order)
  count()
  velora.zvConsume(order)
  if order:get_count() > 2 then error("bad order") end
end)
local product = velora.ProductInfo.new()
function frame(n)
  velora.setPropStr("FRAME", n)
  if n % 50 == 0 then velora.zvLogin() end
  if n % 50 == 25 then velora.zvLogout() end
  if n % 10 == 3 then
    local order = velora.OrderInfo.new("gold." .. n % 7)
    order:set_count(n % 4)
    order:set_userData(("x"):rep(n % 300))
    velora.zvCheckOrder(order)
  end
  if n % 20 == 7 then
    local share = velora.ShareInfo.new()
    share:set_linkParams{frame = n, kind = "soak"}
    share:set_toUserList{"anna", "ben", n}
    velora.zvShare(share)
  end
  if n % 30 == 11 then
    product:set_productId("gold." .. n % 7)
    product:set_sdkPids{store = n}
    velora.OrderInfo.regProduct(product)
    velora.OrderInfo.getProductList()
  end
  if n % 40 == 13 then pcall(velora.zvShowRewardView) pcall(velora.OrderInfo.new, {}) end
  if n % 1000 == 0 then collectgarbage() end
end
function total() return received end
