-- Run before InitLuaVelora, so that `last` is finalized after the module's state has closed. Calls used() for an object
-- that is valid then, and if one can be created.
local getters = {OrderInfo = "get_count", ShareInfo = "get_type", ProductInfo = "get_exchangeRatio",
  PadEvent = "get_x", AccountInfo = "get_rank", QueryRankInfo = "get_count", SkuDetailsInfo = "get_title"}
weak, kept = setmetatable({}, {__mode = "k"}), {}

function count(class)
  local n = 0
  for object in pairs(kept) do n = n + select("#", velora[class][getters[class]](object)) end
  return n
end

last = setmetatable({}, {__gc = function()
  for class in pairs(getters) do if count(class) > 0 then used() end end
  if velora.OrderInfo.new("late") or velora.ShareInfo.new() or velora.ProductInfo.new() then used() end
end})
