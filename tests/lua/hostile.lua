-- Shared by the hostile tests, which define inject(n, k): injects their n-th fault into all operations of the SDK but
-- the next k, and returns whether an operation has had a fault since the last call.
order, share, product = velora.OrderInfo.new("o"), velora.ShareInfo.new("s"), velora.ProductInfo.new()
function noop() end

-- Runs `action` whenever the collector finishes a cycle, which it does at every chance, until `stop` is called.
function runInFinalizers(action)
  local function plant() setmetatable({}, {__gc = function() if action then plant() action() end end}) end
  function stop() action = nil collectgarbage("setpause", 200) collectgarbage("setstepmul", 200) end
  collectgarbage("setpause", 0) collectgarbage("setstepmul", 1000000)
  pcall(plant)
end

-- Calls every function of the module in many ways, as call(k, f, ...), each time with three new objects; k counts from
-- 0 while `call` returns true. No float comes twice, so that its conversion to a string allocates.
local function callAll(call)
  local o, s, p, fresh = {}, {}, {}, 0
  local function try(f, ...)
    local k = 0
    repeat
      order, share, product = velora.OrderInfo.new("o"), velora.ShareInfo.new("s"), velora.ProductInfo.new()
      velora.OrderInfo.regProduct(product) product:set_sdkPids{a = "b"}
      share:set_toUserList{"a"} share:set_textMsg{k = "v"}
      local objects, arguments = {[o] = order, [s] = share, [p] = product}, table.pack(...)
      fresh = fresh + 1
      for i = 1, arguments.n do
        local v = arguments[i]
        arguments[i] = objects[v] or math.type(v) == "float" and v + fresh or v
      end
      local again = call(k, f, table.unpack(arguments, 1, arguments.n))
      k = k + 1
    until not again
  end
  for _, f in pairs(velora) do
    if type(f) == "function" then
      try(f) try(f, o) try(f, s) try(f, {1.5, 2.5, k = 1.5}) try(f, 1.5, {1.5, "x"})
      try(f, 1.5, 2.5) try(f, 1.5, 1) try(f, 1.5, 1, 2, 3.5, 4.5) try(f, 1.5, 2.5, true)
    elseif type(f) == "table" then
      for key, g in pairs(f) do
        if key ~= "__gc" then
          for _, self in ipairs{o, s, p} do try(g, self, 1.5) try(g, self, {1.5, 2.5, k = 1.5}) try(g, self) end
          try(g, 1.5, 2, 3, 4, 5, 6, 7.5)
        end
      end
    end
  end
end

-- The collector runs in the module's own functions only, and finishes a cycle, with `finalizer` at its end, as soon as
-- one of them allocates. Returns whether there were many calls, and whether many raised the finalizer's error.
function callWithFinalizer(finalizer)
  collectgarbage("stop") collectgarbage("setpause", 0) collectgarbage("setstepmul", 1000000)
  local calls, raised, action = 0, 0, noop
  local function finish() action() end
  callAll(function(_, f, ...)
    calls, action = calls + 1, finalizer
    setmetatable({}, {__gc = finish})
    collectgarbage("restart")
    local ok, message = pcall(f, ...)
    collectgarbage("stop")
    if not ok and tostring(message):find("__gc", 1, true) then raised = raised + 1 end
    action = noop
    if calls % 500 == 0 then collectgarbage() end
  end)
  collectgarbage() collectgarbage("setpause", 200) collectgarbage("setstepmul", 200) collectgarbage("restart")
  return calls > 4000, raised > 100
end

-- Lets each operation fail in turn, which must raise an error with `text` in it.
function callWhatFails(failure, text)
  callAll(function(k, f, ...)
    inject(failure, k)
    local ok, message = pcall(f, ...)
    local failed = inject(0)
    assert(not failed or not ok and message:find(text, 1, true), message)
    return failed
  end)
  local download, handler = velora.download, {onInited = noop, onProgress = noop, onFinish = noop}
  for k = 0, 2 do -- until the old handler is removed, it stays
    download.setSyncDownloadHandler(handler)
    inject(failure, k)
    assert(not pcall(download.setSyncDownloadHandler, {onInited = print, onProgress = print, onFinish = print}))
    local kept = download.getSyncDownloadHandler()
    assert(inject(0) and (kept and kept.onInited) == (k < 2 and noop or nil))
  end
end

-- Makes each operation call a script, with the fault `callScript`, that finalizes and clears all that the call uses.
function callWhatCallsBack(callScript)
  local handler = {onInited = noop, onFinish = noop, onProgress = function()
    share:set_linkParams{k = "v"} share:set_toUserList{"b"} product:set_sdkPids{}
    velora.OrderInfo.__gc(order) velora.ShareInfo.__gc(share) velora.ProductInfo.__gc(product)
    velora.download.setSyncDownloadHandler()
    collectgarbage()
    error("in the middle")
  end}
  callAll(function(k, f, ...)
    velora.download.setSyncDownloadHandler(handler)
    inject(callScript, k)
    pcall(f, ...)
    local called = inject(0)
    assert(not called or f == velora.download.setSyncDownloadHandler or
      select("#", order:get_aid()) + select("#", share:get_title()) == 0 and not product:get_productId())
    return called
  end)
  product = velora.ProductInfo.new()
  inject(callScript, 2) -- when the handler is there
  velora.download.setSyncDownloadHandler{onInited = noop, onFinish = noop, onProgress = function()
    product:set_productName("inner")
  end}
  local early = product:get_productName()
  product:set_productName("outer")
  inject(callScript)
  return early, tostring(product):find("outer") ~= nil, inject(0), product:get_productName()
end
