-- What set answers do to events and to getters of records, and which names offline.answer knows.
local function text(...)
  local parts = table.pack(...)
  for i = 1, parts.n do parts[i] = type(parts[i]) == "table" and "#" .. #parts[i] or tostring(parts[i]) end
  return table.concat(parts, ", ")
end

for setter, set in pairs(velora) do
  local name = setter:match("^setOn(.+)")
  if name and name ~= "LogoutDone" then set(function(...) print("  " .. name .. "(" .. text(...) .. ")") end) end
end
velora.setOnLogoutDone(function(...) print("LogoutDone(" .. text(...) .. ")") player.quit() end)

-- A code leaves the script's own text, a text leaves the code; false is a failure.
for _, answer in ipairs{0, 10, "found", false} do
  offline.answer("zvScannerQRCode", answer)
  velora.zvScannerQRCode("hello")
  offline.answer("zvPresentQRCodeScanner", answer)
  velora.zvPresentQRCodeScanner("number", 1)
  offline.answer("zvCreateQRCode", answer)
  velora.zvCreateQRCode("text", 300, 200, "code.png")
end

-- With false nothing comes but an account that is not there; without an answer all of it comes.
local quiet = {zvQueryMyAccount = velora, zvOpenManager = velora, zvOpenPauseView = velora, zvCloseWebView = velora,
  zvCloseFlash = velora, init = velora.download}
for name, module in pairs(quiet) do
  offline.answer(name, false)
  module[name]()
  offline.answer(name, nil)
end
offline.answer("extendFunc", false)
velora.download.extendFunc("nothing")
offline.answer("extendFunc", nil)
velora.zvOpenManager()
velora.zvOpenPauseView()
velora.zvCloseWebView()
velora.zvCloseFlash()
velora.download.init()
velora.download.extendFunc("all")
velora.zvLogout()

-- Getters: a number or a flag in the field's own type; anything else, and no answer, leaves the field's value.
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

-- With false, what returns a table returns none or an empty one.
velora.OrderInfo.regProduct("gold.60")
order:set_arrPriceLocaleId{"en"}
print(velora.OrderInfo.getProductList() ~= nil, #order:get_arrPriceLocaleId())
offline.answer("OrderInfo.getProductList", false)
offline.answer("OrderInfo.get_arrPriceLocaleId", false)
print(velora.OrderInfo.getProductList(), #order:get_arrPriceLocaleId())

-- The effect of an answer comes in the frame of its event.
velora.zvLogin()
local soon = os.clock() + 0.05
while os.clock() < soon do end
print("logged in", velora.hasLogin())

local function fails(...) print(select(2, pcall(offline.answer, ...))) end
fails("zvLogn", false)
fails("OrderInfo.get_acid", 1)
fails("get_aid", 1)
fails("ProductInfo.get_productId", "text")
fails("", nil)
