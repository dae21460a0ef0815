-- Run before the module starts, so that `last` is finalised when the state has closed. answered() reports what must
-- not be: an object that answers then, or one that is made.
local getters = {OrderInfo = "get_count", ShareInfo = "get_type", ProductInfo = "get_exchangeRatio",
  PadEvent = "get_x", AccountInfo = "get_rank", QueryRankInfo = "get_count", SkuDetailsInfo = "get_title"}
weak, kept = setmetatable({}, {__mode = "k"}), {}

function count(class)
  local n = 0
  for object in pairs(kept) do n = n + select("#", velora[class][getters[class]](object)) end
  return n
end

last = setmetatable({}, {__gc = function()
  for class in pairs(getters) do if count(class) > 0 then answered() end end
  if velora.OrderInfo.new("late") or velora.ShareInfo.new() or velora.ProductInfo.new() then answered() end
end})
