-- Failures that offline.answer can cause, apart from those in the reference: the events that follow, and that the state
-- has not changed.
local function text(...)
  local parts = table.pack(...)
  for i = 1, parts.n do parts[i] = type(parts[i]) == "table" and "#" .. #parts[i] or tostring(parts[i]) end
  return table.concat(parts, ", ")
end

local function setAllCallbacks()
  for setter, set in pairs(velora) do
    local name = setter:match("^setOn(.+)")
    if name then set(function(...) print("  " .. name .. "(" .. text(...) .. ")") end) end
  end
  velora.setOnExtendFuncCall(print) -- prints the command as a title for the following lines
  velora.setOnExitApp(function()
    print(velora.isInit(), velora.hasLogin(), velora.isBinded(""), velora.zvHasNotification(),
      velora.zvHasChannelConnected(), velora.getLastShareMessage() == nil, #velora.zvGetCheckedOrders())
    offline.answer("zvGetCheckedOrders", false)
    print(velora.zvGetCheckedOrders())
    velora.setOnPushGetUserPushFinished(function(enabled) print(enabled) player.quit() end)
    velora.zvGetUsePushNotification()
  end)
end

local order, share = velora.OrderInfo.new("lamp"), velora.ShareInfo.new()
local rows = {
  {"zvInit", false}, {"zvInit", velora.FINISH_INIT_NEED_UPDATE_PACKAGE}, {"zvLogin", false},
  {"zvLogin", velora.LOGIN_DONE_NET_TIME_OUT}, {"zvSwitchAccount", false},
  {"zvLogin", 0}, {"zvLogout", velora.LOGOUT_DONE_NOLOGIN}, {"zvGuestBind", false}, {"zvConsume", false, order},
  {"zvCheckOrder", false, velora.OrderInfo.new("oil")},
  {"zvCheckOrder", velora.ORDER_S_SDK_CHECK_CANCEL, velora.OrderInfo.new("oil")}, {"zvShare", false, share},
  {"zvSetUsePushNotification", false, false}, {"zvSendLocalNotification", false, "text"},
  {"zvConnectToChannel", velora.CONNECT_CANCELED}, {"zvShowCompactView", false, true},
  {"zvShowCompactView", velora.PROTOCOL_FINISH_NOT_NEED_SHOW, true}, {"zvVerifyMobile", false, 5},
  {"zvVerifyMobile", 3, 5},
}

velora.setOnOrderCheckDone(function()
  setAllCallbacks()
  for _, row in ipairs(rows) do
    local name, answer = row[1], row[2]
    velora.zvExtendFunc(name .. " " .. tostring(answer))
    offline.answer(name, answer)
    velora[name](table.unpack(row, 3))
    offline.answer(name, nil)
  end
  velora.exitApp()
end)
velora.zvCheckOrder(order) -- so that it can fail to be consumed
