-- What the sweep's scenarios prepare with and what they run. report() calls the download handler.
function listen(callback)
  for name, set in pairs(velora) do if name:find("^setOn") then set(callback) end end
end

-- Fills the objects of objects.lua.
function fill()
  objects.ProductInfo:set_productId("p") objects.ProductInfo:set_sdkPids{a = "b"}
  objects.ShareInfo:set_textMsg{a = "b"} objects.ShareInfo:set_toUserList{"a"} objects.ShareInfo:set_shareData{a = "b"}
  velora.OrderInfo.regProduct(objects.ProductInfo)
  for _, o in pairs(objects) do tostring(o) end
end

handler = {onInited = print, onProgress = function() end, onFinish = function() end}
function nest() return select(2, string.gsub("x", "x", nest)) end
function nothing() end
function plant()
  collectgarbage("stop") collectgarbage("setpause", 0) collectgarbage("setstepmul", 1000000)
  setmetatable({}, {__gc = function() error("finalizer") end})
end
function restart() collectgarbage("restart") end

function wrappers()
  local good = {objects.OrderInfo, objects.ShareInfo, objects.QueryRankInfo, {"a", 2.5}, {a = 1}, "text", 1.5, 7}
  for name, f in pairs(velora) do
    if type(f) == "function" and not name:find("^[sg]etOn") then
      pcall(f)
      for _, a in ipairs(good) do pcall(f, a) pcall(f, 1.5, a) end
      pcall(f, "a", "b", true) pcall(f, "a", 1, 2, "b", "c") pcall(f, 1.5, {2.5, "b"}) pcall(f, "a", 1)
    end
  end
end

function callbacks()
  listen(print)
  for name, f in pairs(velora) do if name:find("^getOn") then f() end end
end

function constructorsAndRegistry()
  local p = velora.ProductInfo.new() p:set_sdkPids{a = "b"} p:set_productId(1.5) velora.OrderInfo.regProduct(p)
  velora.OrderInfo.regProduct(2.5) velora.OrderInfo.hasProduct(1.5) velora.OrderInfo.setProductType(1.5, 2)
  velora.OrderInfo.getProductType(1.5) velora.OrderInfo.getProductList()
  velora.SkuDetailsInfo.new(1.5, 2, 3, 4, 5, 6, 7) velora.OrderInfo.new(1.5) velora.QueryRankInfo.new()
  velora.QueryRankInfo.new(1.5) velora.AccountInfo.new() velora.AccountInfo.new(1.5) velora.ShareInfo.new()
  local share = velora.ShareInfo.new(1.5)
  velora.zvCheckArgs(share) velora.zvShare(share) velora.zvGetCheckedOrders()
end

function accessors()
  for name, object in pairs(objects) do
    for key, f in pairs(velora[name]) do
      if key:find("^set_") then
        if not pcall(f, object, {a = 1, [2] = "x"}) then pcall(f, object, "text") end
        pcall(f, object, 1.5) pcall(f, object, {"a", 5.5})
      elseif key:find("^get_") or key == "obj2Json" or key == "produceCartInfo" then
        f(object)
      end
    end
    tostring(object)
  end
end

function download()
  velora.download.setSyncDownloadHandler(handler) velora.download.getSyncDownloadHandler()
  pcall(velora.download.setSyncDownloadHandler, {}) velora.download.query() velora.download.extendFunc(1.5)
  velora.download.getDownloadSDKVersion() velora.download.getOrbitSessionId() velora.download.init()
  velora.download.disableDownloadFinish2() velora.download.setSyncDownloadHandler(handler)
end

function overflow() xpcall(nest, report) end

-- Nests nearly as deep, so that memory runs out near the limit only. The collector would free what that leaves.
function makeRoom()
  collectgarbage("stop")
  keepsStopped = true
  local depth = 0
  local function descend()
    depth = depth + 1
    return depth < 190 and select(2, string.gsub("x", "x", descend))
  end
  descend()
end
