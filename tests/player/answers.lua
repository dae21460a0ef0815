-- The effects of offline.answer on events and on getters of records, and the names that it accepts.
local function text(...)
  local parts = table.pack(...)
  for i = 1, parts.n do parts[i] = tostring(type(parts[i]) == "table" and parts[i][1] or parts[i]) end
  return table.concat(parts, ", ")
end

for setter, set in pairs(velora) do
  local name = setter:match("^setOn(.+)")
  if name and name ~= "LogoutDone" then set(function(...) print("  " .. name .. "(" .. text(...) .. ")") end) end
end
velora.setOnLogoutDone(function(...) print("LogoutDone(" .. text(...) .. ")") player.quit() end)

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
velora.zvLogout()

-- A getter returns a number or a boolean in the field's type. Any other answer, or none, keeps the field's value.
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

local function fails(...) print(select(2, pcall(offline.answer, ...))) end
fails("zvLogn", false)
fails("OrderInfo.get_acid", 1)
fails("get_aid", 1)
fails("ProductInfo.get_productId", "text")
fails("", nil)
