-- A walk through the whole module: start and log in, shop, meet friends, share, press a button, download, leave.
-- Play it with velora-play. Whatever the SDK has to think about is answered on a later frame, through a callback.

-- Far more frames than any event takes to come.
local PATIENCE = 600

local function say(format, ...)
  print(string.format(format, ...))
end

-- What is not there reads as nil.
local function show(label, value)
  say("  %-16s %s", label, value == nil and "(none)" or tostring(value))
end

local function pause(frames)
  for _ = 1, frames do
    coroutine.yield()
  end
end

-- Calls a function and lets frames pass until its event comes; returns what the event's callback receives.
local function ask(event, operation, ...)
  local answer
  velora["setOn" .. event](function(...)
    answer = table.pack(...)
  end)
  operation(...)
  for _ = 1, PATIENCE do
    if answer then
      return table.unpack(answer, 1, answer.n)
    end
    coroutine.yield()
  end
  error("no " .. event .. " came within " .. PATIENCE .. " frames")
end

-- The name of the module's constant that begins with `prefix` and has this value.
local function nameOf(prefix, value)
  for name, constant in pairs(velora) do
    if constant == value and name:sub(1, #prefix) == prefix then
      return name
    end
  end
  return tostring(value)
end

local function start()
  say("First the SDK has to start. zvInit returns at once; the outcome comes as FinishInit.")
  local code = ask("FinishInit", velora.zvInit)
  show("FinishInit", nameOf("FINISH_INIT_", code))
  assert(code == velora.FINISH_INIT_OK, "the SDK did not start")
  show("isInit", velora.isInit())

  say("\nNow the login, which is answered by LoginDone in the same manner.")
  show("hasLogin", velora.hasLogin())
  code = ask("LoginDone", velora.zvLogin)
  show("LoginDone", nameOf("LOGIN_DONE_", code))
  assert(code == velora.LOGIN_DONE_OK, "the login failed")
  show("hasLogin", velora.hasLogin())
end

local function remember()
  say("\nThe SDK keeps properties: texts and integers, by name.")
  velora.setPropStr("GAME_NAME", "Tour of the Lighthouse")
  velora.setPropInt("LEVEL", 7)
  show("GAME_NAME", velora.getPropStr("GAME_NAME"))
  show("LEVEL", velora.getPropInt("LEVEL", 0))
  show("HIGH_SCORE", velora.getPropInt("HIGH_SCORE", -1))

  say("\nIt keeps one command line, which can be cleared again.")
  velora.setCmdLineParameter("--windowed --volume 40")
  show("command line", velora.getCmdLineParameter())
  velora.setCmdLineParameter()
  show("command line", velora.getCmdLineParameter())

  say("\nAnd it knows where the game runs.")
  show("channel", velora.getChannel())
  show("app channel", velora.getAppChannel())
  show("platform", velora.getPlatform())
  show("device id", velora.getUdid())
end

local function shop()
  say("\nThe lamp needs oil. The game tells the SDK what it sells, and asks what the store says of it.")
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

  say("\nOne can, please. The SDK checks the order; the game hands out the oil and has the order consumed.")
  local order = ask("OrderCheckDone", velora.zvCheckOrder, velora.OrderInfo.new("oil.60"))
  show("order", order:get_orderId() .. " for " .. order:get_productName())
  show("after the check", nameOf("ORDER_S_", order:get_orderStatus()))
  show("orders waiting", #velora.zvGetCheckedOrders())
  order = ask("OrderCosumeDone", velora.zvConsume, order)
  show("once consumed", nameOf("ORDER_S_", order:get_orderStatus()))
  show("orders waiting", velora.zvGetCheckedOrders())
end

local function meetFriends()
  say("\nWho else is here? A list of accounts comes back.")
  for _, friend in ipairs(ask("QueryFriendListFinished", velora.zvQueryFriendList)) do
    show(friend:get_nickname(), friend:get_inGame() and "is playing" or "is ashore")
  end

  say("\nAnd who keeps the brightest light?")
  local query = velora.QueryRankInfo.new()
  query:set_type(velora.QUERY_RANK_TYPE_SCORE)
  query:set_scope(velora.QUERY_RANK_SCOPE_ALL)
  query:set_count(3)
  for _, keeper in ipairs(ask("QueryRankFinished", velora.zvQueryRank, query)) do
    show("place " .. keeper:get_rank(), string.format("%s, %.0f points", keeper:get_nickname(), keeper:get_rankScore()))
  end
end

local function share()
  say("\nThe view from the top is worth a link. Its parameters say where the visitor is to come in.")
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

  say("\nThe same link as a QR code. Offline nothing is drawn; the answer names the file all the same.")
  show("QR code", ask("CreateQRCodeDone", velora.zvCreateQRCode, request:get_link(), 200, 200, "lighthouse.png"))
end

local function pressButton()
  say("\nThere is no controller here, but offline.post queues any event, as if the SDK had.")
  local key = velora.PAD_KEYCODE_BUTTON_A
  local pressed, pad = ask("ControllerKeyDown", offline.post, "ControllerKeyDown", key, { keyCode = key, deviceId = 1 })
  show("button down", nameOf("PAD_KEYCODE_", pressed))
  show("on controller", pad:get_deviceId())
end

local function download()
  say("\nA download talks to a table of three functions, without waiting for the next frame.")
  say("Offline nothing comes over a wire: offline.download plays the service's part.")
  -- On a terminal the progress is one line, drawn again and again.
  local redraw = player.terminal and "\r%s" or "%s\n"
  velora.download.setSyncDownloadHandler{
    onInited = function() show("download", "begins") end,
    onProgress = function(percent)
      local line = string.format("  %3d %%  [%-20s]", percent, ("#"):rep(tonumber(percent) // 5))
      io.write(redraw:format(line))
      io.flush()
    end,
    onFinish = function(name, bytes) show("download", name .. " is here, " .. #(bytes or "") .. " bytes") end,
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

local function stumble()
  say("\nA callback with a mistake in it ends no game. Each error is logged, and the next event comes as ever:")
  velora.setOnReceiveMsgNotification(function()
    error("this callback has a bad day")
  end)
  offline.log() -- what came before is of no interest
  offline.post("ReceiveMsgNotification")
  offline.post("ReceiveMsgNotification")
  pause(1)
  for _, line in ipairs(offline.log()) do -- the lines go to stderr as well
    show("in the log", line)
  end
end

local function leave()
  say("\nTime to leave.")
  local code = ask("LogoutDone", velora.zvLogout)
  show("LogoutDone", nameOf("LOGOUT_DONE_", code))
  assert(code == velora.LOGOUT_DONE_OK, "the logout failed")
  show("hasLogin", velora.hasLogin())
end

-- The tour is a coroutine, resumed once per frame: `ask` and `pause` hand the frame back.
local story = coroutine.create(function()
  say("Good day. This is the tour of the module, played offline: no account, no network.\n")
  for _, chapter in ipairs{ start, remember, shop, meetFriends, share, pressButton, download, stumble, leave } do
    chapter()
  end
  say("\nThat was the tour. Goodbye.")
  player.quit(0)
end)

player.onFrame(function()
  local ok, message = coroutine.resume(story)
  if not ok then
    error(debug.traceback(story, message), 0)
  end
end)
