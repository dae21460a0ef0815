-- Every failure that offline.answer can cause: the events that follow, and that the state has not changed.
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

local order, share, ranks = velora.OrderInfo.new("lamp"), velora.ShareInfo.new(), velora.QueryRankInfo.new()
local rows = {
  {"zvInit", false}, {"zvInit", velora.FINISH_INIT_NEED_UPDATE_PACKAGE}, {"zvLogin", false},
  {"zvLogin", velora.LOGIN_DONE_NET_TIME_OUT}, {"zvSwitchAccount", false},
  {"zvLogin", 0}, {"zvLogout", velora.LOGOUT_DONE_NOLOGIN},
  {"zvGuestBind", false}, {"zvOpenExitView", false}, {"zvQuerySkuDetails", false, "inapp", {"lamp"}},
  {"zvConsume", false, order}, {"zvCheckOrder", false, velora.OrderInfo.new("oil")},
  {"zvCheckOrder", velora.ORDER_S_SDK_CHECK_CANCEL, velora.OrderInfo.new("oil")}, {"zvShare", false, share},
  {"zvQueryFriendList", false}, {"zvQueryFriendListInGame", false}, {"zvQueryAvailablesInvitees", false},
  {"zvQueryInviterList", false}, {"zvQueryMyAccount", false}, {"zvQueryRank", false, ranks},
  {"zvIsDarenUpdated", false}, {"zvApplyFriend", false, "anna"}, {"zvInviteFriendList", false, "anna", "text"},
  {"zvUpdateRank", false, "speed", 1}, {"zvUpdateAchievement", false, "climber", 1}, {"zvDisplayQuests", false, {1}},
  {"zvGetUsePushNotification", false}, {"zvSetUsePushNotification", false, false},
  {"zvSendPushNotification", false, "text", {"anna"}}, {"zvSendLocalNotification", false, "text"},
  {"zvCancelLocalNotification", false, 1}, {"zvConnectToChannel", velora.CONNECT_CANCELED},
  {"zvDisConnectFromChannel", false}, {"zvSelectChannelOption", false, 1}, {"zvOpenNearby", false},
  {"zvOpenVespera", false}, {"zvShowConversation", false}, {"zvShowFAQs", false}, {"zvShowWeb", false, "url"},
  {"zvOpenWebView", false, "url"}, {"zvShowBoard", false, "a", "b", "c"}, {"zvShowRewardView", false, {"oil"}},
  {"zvShowCompactView", false, true}, {"zvShowCompactView", velora.PROTOCOL_FINISH_NOT_NEED_SHOW, true},
  {"zvGetNotice", false, true}, {"zvGetAnnouncementInfo", false}, {"zvVerifyMobile", false, 5},
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
