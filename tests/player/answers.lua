-- The effects of offline.answer on events, on getters of records and on the state, and the names that it accepts.
local function text(...)
  local parts = table.pack(...)
  for i = 1, parts.n do parts[i] = tostring(type(parts[i]) == "table" and parts[i][1] or parts[i]) end
  return table.concat(parts, ", ")
end

local function show(name)
  return function(...) print("  " .. name .. "(" .. text(...) .. ")") end
end

for setter, set in pairs(velora) do
  local name = setter:match("^setOn(.+)")
  if name then set(show(name)) end
end

-- A code keeps the script's string, a string keeps the code; false is a failure.
for _, answer in ipairs{0, 10, "found", false} do
  offline.answer("zvScannerQRCode", answer)
  velora.zvScannerQRCode("hello")
  offline.answer("zvPresentQRCodeScanner", answer)
  velora.zvPresentQRCodeScanner("number", 1)
  offline.answer("zvCreateQRCode", answer)
  velora.zvCreateQRCode("text", 300, 200, "code.png")
end

velora.zvQueryFriendList() velora.zvQuerySkuDetails("inapp", {"lamp"})

-- A getter returns a number or a boolean in the field's type. Any other value, or nil, keeps the field's value.
local order, account = velora.OrderInfo.new("gold.60"), velora.AccountInfo.new()
order:set_count(3)
for _, row in ipairs{{"OrderInfo", order, "count"}, {"OrderInfo", order, "qrCodeOrder"},
    {"OrderInfo", order, "productPrice"}, {"OrderInfo", order, "productExchangeRatio"},
    {"OrderInfo", order, "timeStamp"}, {"AccountInfo", account, "rankScore"}} do
  local class, object, field = table.unpack(row)
  local get = object["get_" .. field]
  local values = {}
  for _, answer in ipairs{42, (1 << 32) + 7, true, false, "text"} do
    offline.answer(class .. ".get_" .. field, answer)
    values[#values + 1] = tostring(get(object))
  end
  offline.answer(class .. ".get_" .. field, nil)
  print(field, table.concat(values, " "), get(object))
end

-- With false, a function that returns a table returns nil or an empty table.
velora.OrderInfo.regProduct("gold.60")
order:set_arrPriceLocaleId{"en"}
print(velora.OrderInfo.getProductList() ~= nil, #order:get_arrPriceLocaleId())
offline.answer("OrderInfo.getProductList", false)
offline.answer("OrderInfo.get_arrPriceLocaleId", false)
print(velora.OrderInfo.getProductList(), #order:get_arrPriceLocaleId())

-- An operation changes the state in the frame of its event, not before.
velora.zvLogin()
local stop = os.clock() + 0.05
while os.clock() < stop do end
print("logged in", velora.hasLogin())

for _, row in ipairs{{"zvLogn", false}, {"OrderInfo.get_acid", 1}, {"get_aid", 1},
    {"ProductInfo.get_productId", "text"}, {"", nil}} do
  print(select(2, pcall(offline.answer, row[1], row[2])))
end

-- Failures, apart from those in the reference: the events that follow, and that the state has not changed.
local lamp, share = velora.OrderInfo.new("lamp"), velora.ShareInfo.new()
local rows = {
  {"zvInit", false}, {"zvInit", velora.FINISH_INIT_NEED_UPDATE_PACKAGE}, {"zvLogin", false},
  {"zvLogin", velora.LOGIN_DONE_NET_TIME_OUT}, {"zvSwitchAccount", false},
  {"zvLogin", 0}, {"zvLogout", velora.LOGOUT_DONE_NOLOGIN}, {"zvGuestBind", false}, {"zvConsume", false, lamp},
  {"zvCheckOrder", false, velora.OrderInfo.new("oil")},
  {"zvCheckOrder", velora.ORDER_S_SDK_CHECK_CANCEL, velora.OrderInfo.new("oil")}, {"zvShare", false, share},
  {"zvSetUsePushNotification", false, false}, {"zvSendLocalNotification", false, "text"},
  {"zvConnectToChannel", velora.CONNECT_CANCELED}, {"zvShowCompactView", false, true},
  {"zvShowCompactView", velora.PROTOCOL_FINISH_NOT_NEED_SHOW, true}, {"zvVerifyMobile", false, 5},
  {"zvVerifyMobile", 3, 5},
}

velora.setOnOrderCheckDone(function()
  velora.setOnOrderCheckDone(show("OrderCheckDone"))
  velora.setOnExtendFuncCall(print) -- prints the command as a title for the following lines
  for _, row in ipairs(rows) do
    local name, answer = row[1], row[2]
    velora.zvExtendFunc(name .. " " .. tostring(answer))
    offline.answer(name, answer)
    velora[name](table.unpack(row, 3))
    offline.answer(name, nil)
  end
  velora.exitApp()
end)
velora.setOnExitApp(function()
  print(velora.isInit(), velora.hasLogin(), velora.isBinded(""), velora.zvHasNotification(),
    velora.zvHasChannelConnected(), velora.getLastShareMessage() == nil, #velora.zvGetCheckedOrders())
  offline.answer("zvGetCheckedOrders", false)
  print(velora.zvGetCheckedOrders())
  velora.setOnPushGetUserPushFinished(function(enabled) print(enabled) player.quit() end)
  velora.zvGetUsePushNotification()
end)
velora.zvCheckOrder(lamp) -- so that it can fail to be consumed
