-- Field tables of posted records: each field takes the values that convert to its type.
local function show(value)
  if type(value) ~= "table" then return type(value) == "string" and string.format("%q", value) or tostring(value) end
  local parts = {}
  for key, element in pairs(value) do parts[#parts + 1] = show(key) .. "=" .. show(element) end
  table.sort(parts)
  return "{" .. table.concat(parts, " ") .. "}"
end

local rows = {
  {"sdkPids", {a = "b\0x", c = 1}}, {"sdkPids", {a = 1.5, b = 2.0, c = -1e100, d = true}}, {"sdkPids", {"x", 2}},
  {"sdkPids", {}}, {"arrPriceLocaleId", {1, 2}}, {"arrPriceLocaleId", {"en", 1.5}}, {"arrPriceLocaleId", {}},
  {"channelGoodsTypes", {a = 1, b = 2.0, c = 1 << 62 | 5}}, {"jellRatios", {7, 8}}, {"jellRatios", {}},
  {"aid", 2.0}, {"aid", 1 << 53 | 1}, {"aid", false}, {"count", 3.0}, {"count", true}, {"count", -0x1p63},
  {"productPrice", 2}, {"qrCodeOrder", 2}, {"timeStamp", 1 << 40}, {"receipt", "r\0x"}, {"orderErrCode", "E1"},
}
velora.setOnOrderCheckDone(function(order)
  local name, value = table.unpack(table.remove(rows, 1))
  print(name .. " = " .. show(value) .. " stores " .. show(order["get_" .. name](order)))
  if #rows == 0 then player.quit() end
end)
for _, row in ipairs(rows) do offline.post("OrderCheckDone", {[row[1]] = row[2]}) end

for _, row in ipairs{{"channelGoodsTypes", {a = "1"}}, {"channelGoodsTypes", {a = 1.5}}, {"channelGoodsTypes", 1},
    {"sdkPids", {a = {}}}, {"sdkPids", {[true] = "a"}}, {"sdkPids", "text"}, {"arrPriceLocaleId", {a = 1}},
    {"arrPriceLocaleId", "en"}, {"aid", {}}, {"aid", print}, {"count", "1"}, {"count", 1.5}, {"count", 0x1p63},
    {"count", {1}}, {"sdkPids", {"a", print}}} do
  print(select(2, pcall(offline.post, "OrderCheckDone", {[row[1]] = row[2]})))
end
