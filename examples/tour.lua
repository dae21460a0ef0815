-- A tour of the module: login, properties, a purchase, friends and ranks, sharing, a controller, a download, errors.
-- Play it with: velora-play examples/tour.lua

local MAX_FRAMES = 600 -- the number of frames to wait for an event

local function say(format, ...)
  print(string.format(format, ...))
end

-- Prints a value, nil as "(none)".
local function show(label, value)
  say("  %-16s %s", label, value == nil and "(none)" or tostring(value))
end

local function pause(frames)
  for _ = 1, frames do
    coroutine.yield()
  end
end

-- Calls a function, waits for its event, and returns the arguments of the event's callback.
local function ask(event, operation, ...)
  local received
  velora["setOn" .. event](function(...)
    received = table.pack(...)
  end)
  operation(...)
  for _ = 1, MAX_FRAMES do
    if received then
      return table.unpack(received, 1, received.n)
    end
    coroutine.yield()
  end
  error("no " .. event .. " within " .. MAX_FRAMES .. " frames")
end

-- Returns the name of the constant that begins with `prefix` and has this value.
local function nameOf(prefix, value)
  for name, constant in pairs(velora) do
    if constant == value and name:sub(1, #prefix) == prefix then
      return name
    end
  end
  return tostring(value)
end

local function start()
  say("Start the SDK. zvInit returns at once; the result arrives as the event FinishInit.")
  local code = ask("FinishInit", velora.zvInit)
  show("FinishInit", nameOf("FINISH_INIT_", code))
  assert(code == velora.FINISH_INIT_OK, "the SDK did not start")
  show("isInit", velora.isInit())

  say("\nLog in. The result arrives as LoginDone.")
  show("hasLogin", velora.hasLogin())
  code = ask("LoginDone", velora.zvLogin)
  show("LoginDone", nameOf("LOGIN_DONE_", code))
  assert(code == velora.LOGIN_DONE_OK, "the login failed")
  show("hasLogin", velora.hasLogin())
end

local function setProperties()
  say("\nThe SDK stores properties by name: strings and integers.")
  velora.setPropStr("GAME_NAME", "Tour of the Lighthouse")
  velora.setPropInt("LEVEL", 7)
  show("GAME_NAME", velora.getPropStr("GAME_NAME"))
  show("LEVEL", velora.getPropInt("LEVEL", 0))
  show("HIGH_SCORE", velora.getPropInt("HIGH_SCORE", -1))

  say("\nIt stores a command line, which can be cleared.")
  velora.setCmdLineParameter("--windowed --volume 40")
  show("command line", velora.getCmdLineParameter())
  velora.setCmdLineParameter()
  show("command line", velora.getCmdLineParameter())

  say("\nIt also identifies the channel, the platform and the device.")
  show("channel", velora.getChannel())
  show("app channel", velora.getAppChannel())
  show("platform", velora.getPlatform())
  show("device id", velora.getUdid())
end

local function shop()
  say("\nRegister products, then ask the store for their titles and prices.")
  local goods = { { "oil.60", "A can of oil", 0.99 }, { "oil.300", "A barrel of oil", 3.99 } }
  for _, row in ipairs(goods) do
    local product = velora.ProductInfo.new()
    product:set_productId(row[1])
    product:set_productName(row[2])
    product:set_productPrice(row[3])
    velora.OrderInfo.regProduct(product)
  end
  local ids = { "oil.60", "oil.300" }
  local items = ask("QuerySkuDetailsFinished", velora.zvQuerySkuDetails, velora.ITEM_TYPE_CONSUMABLE, ids)
  for _, item in ipairs(items) do
    show(item:get_productId(), item:get_title() .. ", " .. item:get_price() .. " " .. item:get_priceCurrencyCode())
  end

  say("\nBuy a can of oil. The SDK checks the order; the player gets the oil and the game consumes the order.")
  local order = ask("OrderCheckDone", velora.zvCheckOrder, velora.OrderInfo.new("oil.60"))
  show("order", order:get_orderId() .. " for " .. order:get_productName())
  show("after the check", nameOf("ORDER_S_", order:get_orderStatus()))
  show("orders left", #velora.zvGetCheckedOrders())
  order = ask("OrderCosumeDone", velora.zvConsume, order)
  show("when consumed", nameOf("ORDER_S_", order:get_orderStatus()))
  show("orders left", velora.zvGetCheckedOrders())
end

local function queryFriends()
  say("\nQuery the friends. The result is a list of accounts.")
  for _, friend in ipairs(ask("QueryFriendListFinished", velora.zvQueryFriendList)) do
    show(friend:get_nickname(), friend:get_inGame() and "is playing" or "is not playing")
  end

  say("\nQuery a ranking.")
  local query = velora.QueryRankInfo.new()
  query:set_type(velora.QUERY_RANK_TYPE_SCORE)
  query:set_scope(velora.QUERY_RANK_SCOPE_ALL)
  query:set_count(3)
  for _, account in ipairs(ask("QueryRankFinished", velora.zvQueryRank, query)) do
    local name, score = account:get_nickname(), account:get_rankScore()
    show("place " .. account:get_rank(), string.format("%s, %.0f points", name, score))
  end
end

local function share()
  say("\nShare a link with a parameter.")
  local request = velora.ShareInfo.new()
  request:set_type(velora.SHARE_TYPE_LINK)
  request:set_scope(velora.SHARE_SCOPE_CIRCLE)
  request:set_text("Come up, one can see the sea.")
  request:set_link("https://example.com/lighthouse")
  request:set_linkParams{ floor = "7" }
  show("zvCheckArgs", velora.zvCheckArgs(request))
  show("floor", request:get_linkParams().floor)
  show("ShareFinished", ask("ShareFinished", velora.zvShare, request))
  show("last message", velora.getLastShareMessage())

  say("\nCreate a QR code of the link. Offline no file is written, but the event has its name.")
  show("QR code", ask("CreateQRCodeDone", velora.zvCreateQRCode, request:get_link(), 200, 200, "lighthouse.png"))
end

local function pressButton()
  say("\nPress a button. Without a controller, offline.post queues the event in place of the SDK.")
  local key = velora.PAD_KEYCODE_BUTTON_A
  local pressed, pad = ask("ControllerKeyDown", offline.post, "ControllerKeyDown", key, { keyCode = key, deviceId = 1 })
  show("button down", nameOf("PAD_KEYCODE_", pressed))
  show("on controller", pad:get_deviceId())
end

local function download()
  say("\nDownload a file. The service calls three functions of a table, without waiting for the next frame.")
  say("Offline nothing is downloaded; offline.download makes these calls in place of the service.")
  -- On a terminal, each progress line overwrites the one before.
  local redraw = player.terminal and "\r%s" or "%s\n"
  velora.download.setSyncDownloadHandler{
    onInited = function() show("download", "begins") end,
    onProgress = function(percent)
      local line = string.format("  %3d %%  [%-20s]", percent, ("#"):rep(tonumber(percent) // 5))
      io.write(redraw:format(line))
      io.flush()
    end,
    onFinish = function(name, bytes) show("download", name .. " received, " .. #(bytes or "") .. " bytes") end,
  }
  offline.download("onInited")
  for percent = 0, 100, 10 do
    offline.download("onProgress", tostring(percent))
    pause(5)
  end
  if player.terminal then print() end
  offline.download("onFinish", "coast.map", ("~"):rep(512))
  velora.download.setSyncDownloadHandler()
  show("handler", velora.download.getSyncDownloadHandler())
end

local function raiseErrors()
  say("\nAn error in a callback does not end the game. It is logged, and the next event is delivered:")
  velora.setOnReceiveMsgNotification(function()
    error("error in this callback")
  end)
  offline.log() -- drops the earlier lines
  offline.post("ReceiveMsgNotification")
  offline.post("ReceiveMsgNotification")
  pause(1)
  for _, line in ipairs(offline.log()) do -- the lines are written to stderr as well
    show("in the log", line)
  end
end

local function logOut()
  say("\nLog out.")
  local code = ask("LogoutDone", velora.zvLogout)
  show("LogoutDone", nameOf("LOGOUT_DONE_", code))
  assert(code == velora.LOGOUT_DONE_OK, "the logout failed")
  show("hasLogin", velora.hasLogin())
end

-- The tour is a coroutine that is resumed once per frame, so that `ask` and `pause` can wait.
local tour = coroutine.create(function()
  say("A tour of the module, played offline, without an account and without a network.\n")
  local chapters = { start, setProperties, shop, queryFriends, share, pressButton, download, raiseErrors, logOut }
  for _, chapter in ipairs(chapters) do
    chapter()
  end
  say("\nThe tour has ended.")
  player.quit(0)
end)

player.onFrame(function()
  local ok, message = coroutine.resume(tour)
  if not ok then
    error(debug.traceback(tour, message), 0)
  end
end)
