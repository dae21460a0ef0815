-- The script side of the fuzzer, which reads the program with `byte`: what functions there are, what they are called
-- with, and what a hostile script does with the objects in `pool`.
local pool, functions, names = {}, {}, {}
for name, value in pairs(velora) do
  if type(value) == "function" then names[#names + 1] = {name, value} end
  if type(value) == "table" then for key, f in pairs(value) do names[#names + 1] = {name .. "." .. key, f} end end
end
table.sort(names, function(a, b) return a[1] < b[1] end)
for i, entry in ipairs(names) do functions[i] = entry[2] end
local function below(n) return byte() % n end
local function keep(...)
  for i = 1, select("#", ...) do
    local v = (select(i, ...))
    if v ~= nil then pool[#pool % 32 + 1] = v end
  end
end
local callbacks = {
  keep,
  function() error("fault") end,
  function() error({}) end,
  function() collectgarbage() end,
  function() for _, v in ipairs(pool) do if type(v) == "userdata" then
    for _, c in pairs(velora) do if type(c) == "table" and c.__gc then c.__gc(v) end end end end end,
  function() for k in pairs(pool) do pool[k] = nil end end,
  function() local v = pool[1] if type(v) == "userdata" and v.set_textMsg then v:set_textMsg{a = "b"} end end,
  function() velora.download.setSyncDownloadHandler() end,
  function() velora.zvLogin() velora.setOnLoginDone(error) end,
  function() setmetatable({}, {__gc = function() error("finalizer") end}) end,
  function() keep(velora.ShareInfo.new(), velora.OrderInfo.new(1.5)) end,
}
local handler = {onInited = callbacks[1], onProgress = callbacks[2], onFinish = callbacks[4]}
local claimed
local claims = setmetatable({"a", 2.5}, {__len = function() return claimed end})
local value
local function fromPool() return pool[below(32) + 1] end
local makers = {
  function() return nil end,
  function() return below(2) ~= 0 end,
  function() return byte() - 3 end,
  function() return 1 << below(64) end,
  function() return (byte() - 100) / 4 end,
  function() return below(2) ~= 0 and 1 / 0 or 0 / 0 end,
  function()
    local text = ""
    for _ = 1, below(9) do text = text .. string.char(byte()) end
    return below(16) == 0 and text .. ("\0"):rep(300) or text
  end,
  function(depth)
    local t = {}
    for i = 1, depth < 3 and below(5) or 0 do
      local key = value(depth + 1)
      if key == nil or key ~= key then key = i end
      t[key] = value(depth + 1)
    end
    return t
  end,
  function() return callbacks[below(#callbacks) + 1] end,
  function() claimed = byte() - 20 return claims end,
  function() return handler end,
  fromPool, fromPool, fromPool,
}
function value(depth) return makers[below(#makers) + 1](depth) end

-- Valid arguments: functions are reached whatever the fuzzer has learned.
local good = {t = "text", i = 7, n = 1.5, b = true, l = {"a", 2.5}, h = handler}
local patterns = {"", "t", "tt", "ttt", "ti", "tiit", "tiitt", "tn", "ttb", "tb", "i", "b", "l", "tl", "p", "pt", "pi",
  "pl", "ttttttt", "h"}
local function finish(ok, ...) if ok then keep(...) end end
function call()
  local f = functions[(byte() | byte() << 8) % #functions + 1]
  local pattern, values, n = byte(), {}, 0
  if pattern < 200 then
    for kind in patterns[pattern % #patterns + 1]:gmatch(".") do n = n + 1 values[n] = good[kind] or pool[1] end
  else
    for i = 1, pattern % 6 do n = i values[n] = value(0) end
  end
  finish(pcall(f, table.unpack(values, 1, n)))
end
function listen()
  local fault = callbacks[below(#callbacks) + 1]
  for name, set in pairs(velora) do if name:find("^setOn") then set(fault) end end
end
