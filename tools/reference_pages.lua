-- The parts of the reference that are not in the annotations, by page. The tests run the examples and check `replies`.
--   guide     chapters of docs/scripting.md
--   examples  scripts of examples/
--   example   a script and its output
--   replies   for each call: its name; the events that follow; the argument of offline.answer that makes it fail; the
--             event that follows the failure, or nil; the first argument of that event's callback (for an order, its
--             status). Arguments are Lua expressions.
local pages = {}

pages["Start and login"] = {
  guide = { "The first callback", "Logging in" },
  examples = { "login" },
  example = { [[
-- start.lua
velora.setOnFinishInit(function(code)
  print("started: " .. tostring(code == velora.FINISH_INIT_OK))
  velora.zvLogin()
end)
velora.setOnLoginDone(function(code)
  print("login: " .. tostring(code == velora.LOGIN_DONE_OK) .. ", hasLogin: " .. tostring(velora.hasLogin()))
  player.quit()
end)
velora.zvInit()
]], [[
started: true
login: true, hasLogin: true
]] },
  replies = {
    { "zvInit", { "FinishInit" }, "velora.FINISH_INIT_FAILED", "FinishInit", "velora.FINISH_INIT_FAILED" },
    { "zvLogin", { "LoginDone" }, "velora.LOGIN_DONE_WRONG_PASSWD", "LoginDone", "velora.LOGIN_DONE_WRONG_PASSWD" },
    { "zvSwitchAccount", { "LoginDone" }, "velora.LOGIN_DONE_CANCEL", "LoginDone", "velora.LOGIN_DONE_CANCEL" },
    { "zvGuestBind", { "LoginDone" }, "false", "LoginDone", "velora.LOGIN_DONE_VELORA_BIND_FAIL" },
    { "zvLogout", { "LogoutDone" }, "velora.LOGOUT_DONE_FAILED", "LogoutDone", "velora.LOGOUT_DONE_FAILED" },
    { "zvOpenManager", { "CloseManagerView" }, "false" },
    { "zvShowCompactView", { "ProtocolFinish" }, "velora.PROTOCOL_FINISH_REJECT", "ProtocolFinish",
      "velora.PROTOCOL_FINISH_REJECT" },
    { "zvVerifyMobile", { "VerifySuccess" }, "3", "VerifyFailure", "3" },
    { "zvGetNotice", { "StartupGetNoticeMsgDone" }, "false" },
    { "zvGetAnnouncementInfo", { "StartupGetNoticeMsgDone" }, "false" },
    { "zvOpenPauseView", { "ClosePauseView", "ContinueGame" }, "false" },
    { "zvOpenExitView", { "ExitApp" }, "false", "ExitOpenExitViewFailed" },
    { "exitApp", { "ExitApp" } },
  },
}

pages["Properties and commands"] = {
  guide = { "Constants", "Strings and numbers" },
  examples = { "login" },
  example = { [[
-- properties.lua
velora.setPropStr(velora.APP_VERSION, "1.2")
velora.setPropInt(velora.SCR_ORIENTATION, velora.E_SO_LANDSCAPE)
print(velora.getPropStr(velora.APP_VERSION) or "not set")
print(velora.getPropInt(velora.SCR_ORIENTATION, velora.E_SO_AUTO) == velora.E_SO_LANDSCAPE)

velora.setUserInfo(velora.USERINFO_NAME, "Anna")
print(velora.getUserInfo(velora.USERINFO_NAME) or "not set")

velora.setOnExtendFuncCall(function(text)
  print("reply: " .. text)
  player.quit()
end)
velora.zvExtendFunc("ping")
]], [[
1.2
true
Anna
reply: ping
]] },
  replies = { { "zvExtendFunc", { "ExtendFuncCall" }, "false" } },
}

pages["Payment"] = {
  guide = { "Products", "A purchase", "A purchase that fails" },
  examples = { "purchase" },
  example = { [[
-- buy.lua
velora.setOnOrderCheckDone(function(order)
  if order and order:get_orderStatus() == velora.ORDER_S_SDK_CHECK_OK then
    print("paid, the player gets " .. order:get_productId())
    velora.zvConsume(order)
  else
    print("not paid")
    player.quit()
  end
end)
velora.setOnOrderCosumeDone(function(order)
  print("consumed: " .. tostring(order ~= nil and order:get_orderStatus() == velora.ORDER_S_GS_CHECK_OK))
  offline.answer("zvCheckOrder", velora.ORDER_S_SDK_CHECK_CANCEL)
  velora.zvCheckOrder(velora.OrderInfo.new("lamp"))
end)

velora.OrderInfo.regProduct("lamp")
velora.zvCheckOrder(velora.OrderInfo.new("lamp"))
]], [[
paid, the player gets lamp
consumed: true
not paid
]] },
  replies = {
    { "zvQuerySkuDetails", { "QuerySkuDetailsFinished" }, "false", "QuerySkuDetailsFinished", "{}" },
    { "zvCheckOrder", { "OrderCheckDone" }, "velora.ORDER_S_SDK_CHECK_CANCEL", "OrderCheckDone",
      "velora.ORDER_S_SDK_CHECK_CANCEL" },
    { "zvConsume", { "OrderCosumeDone" }, "false", "OrderCosumeDone", "velora.ORDER_S_GS_CHECK_ERR" },
  },
}

pages["Friends and ranks"] = {
  guide = { "Friends and ranks" },
  examples = { "friends" },
  example = { [[
-- ranks.lua
local query = velora.QueryRankInfo.new()
query:set_type(velora.QUERY_RANK_TYPE_SCORE)
query:set_scope(velora.QUERY_RANK_SCOPE_FRIEND)
query:set_count(2)

velora.setOnQueryFriendListFinished(function(accounts)
  print("friends: " .. #accounts)
  velora.zvQueryRank(query)
end)
velora.setOnQueryRankFinished(function(accounts)
  for _, account in ipairs(accounts) do
    print(account:get_rank(), account:get_nickname(), account:get_rankScore())
  end
  player.quit()
end)
velora.zvQueryFriendList()
]], "friends: 2\n1\tRank 1\t990.0\n2\tRank 2\t980.0\n" },
  replies = {
    { "zvQueryMyAccount", { "QueryMyAccountFinished" }, "false", "QueryMyAccountFinished", "nil" },
    { "zvQueryFriendList", { "QueryFriendListFinished" }, "false", "QueryFriendListFinished", "{}" },
    { "zvQueryFriendListInGame", { "QueryFriendListInGameFinished" }, "false", "QueryFriendListInGameFinished", "{}" },
    { "zvQueryAvailablesInvitees", { "QueryAvailablesInviteesFinished" }, "false", "QueryAvailablesInviteesFinished",
      "{}" },
    { "zvQueryInviterList", { "QueryInviterListFinished" }, "false", "QueryInviterListFinished", "{}" },
    { "zvApplyFriend", { "QueryApplyFriendFinished" }, "false", "QueryApplyFriendFinished", "false" },
    { "zvInviteFriendList", { "QueryInviteFriendListFinished" }, "false", "QueryInviteFriendListFinished", "{}" },
    { "zvIsDarenUpdated", { "QueryIsDarenUpdated" }, "false", "QueryIsDarenUpdated", "false" },
    { "zvQueryRank", { "QueryRankFinished" }, "false", "QueryRankFinished", "{}" },
    { "zvUpdateRank", { "QueryRankUpdateFinished" }, "false", "QueryRankUpdateFinished", "false" },
    { "zvUpdateAchievement", { "QueryRankUpdateAchievement" }, "false", "QueryRankUpdateAchievement", "false" },
    { "zvDisplayQuests", { "QuestCompleted" }, "false" },
  },
}

pages["Sharing"] = {
  guide = { "Sharing" },
  examples = { "share" },
  example = { [[
-- share.lua
local share = velora.ShareInfo.new()
share:set_type(velora.SHARE_TYPE_LINK)
share:set_text("Come up, one can see the sea.")
share:set_link("https://example.com/lighthouse")

velora.setOnShareFinished(function(success)
  print("shared: " .. tostring(success))
  print("message: " .. (velora.getLastShareMessage() or "none"))
  player.quit()
end)
if velora.zvCheckArgs(share) then velora.zvShare(share) end
]], [[
shared: true
message: Come up, one can see the sea.
]] },
  replies = { { "zvShare", { "ShareFinished" }, "false", "ShareFinished", "false" } },
}

pages["Notifications"] = {
  guide = { "Rehearsing failures" },
  examples = { "services" },
  example = { [[
-- notify.lua
velora.setOnPushSendLocalNotificationFinished(function()
  print("notification: " .. tostring(velora.zvHasNotification()))
  velora.zvCancelLocalNotification(1)
end)
velora.setOnCancelLocalPushFinished(function(success)
  print("cancelled: " .. tostring(success))
  player.quit()
end)
velora.zvSendLocalNotification("The lamp is burning low.")
]], [[
notification: true
cancelled: true
]] },
  replies = {
    { "zvGetUsePushNotification", { "PushGetUserPushFinished" }, "false", "PushGetUserPushFinished", "false" },
    { "zvSetUsePushNotification", { "PushSetUserPushFinished" }, "false", "PushSetUserPushFinished", "false" },
    { "zvSendPushNotification", { "PushSendPushNotificationFinished" }, "false", "PushSendPushNotificationFinished",
      "false" },
    { "zvSendLocalNotification", { "PushSendLocalNotificationFinished" }, "false",
      "PushSendLocalNotificationFinished", "1" },
    { "zvCancelLocalNotification", { "CancelLocalPushFinished" }, "false", "CancelLocalPushFinished", "false" },
  },
}

pages["Channels"] = {
  guide = { "Rehearsing failures" },
  examples = {},
  example = { [[
-- connect.lua
velora.setOnConnectToChannelFinished(function(code)
  if code == velora.CONNECT_OK then
    print("connected as " .. (velora.zvGetChannelID() or "nobody"))
    velora.zvDisConnectFromChannel()
  else
    print("not connected: code " .. code)
    offline.answer("zvConnectToChannel", nil)
    velora.zvConnectToChannel()
  end
end)
velora.setOnDisconnectToChannelFinished(function()
  print("connected: " .. tostring(velora.zvHasChannelConnected()))
  player.quit()
end)
offline.answer("zvConnectToChannel", velora.CONNECT_CANCELED)
velora.zvConnectToChannel()
]], [[
not connected: code 5
connected as offline_channel_id
connected: false
]] },
  replies = {
    { "zvConnectToChannel", { "ConnectToChannelFinished" }, "velora.CONNECT_FAILED", "ConnectToChannelFinished",
      "velora.CONNECT_FAILED" },
    { "zvDisConnectFromChannel", { "DisconnectToChannelFinished" }, "false", "DisconnectToChannelFinished", "1" },
    { "zvSelectChannelOption", { "SelectChannelOptionFinished" }, "false", "SelectChannelOptionFinished", "false" },
  },
}

local function opened(call) return { call, { "ShowViewOpened" }, "false", "ShowViewFailed" } end

pages["Views and QR codes"] = {
  guide = { "Rehearsing failures", "Replacing functions" },
  examples = { "services" },
  example = { [[
-- page.lua
velora.setOnShowViewOpened(function()
  print("page open")
  velora.zvCloseWebView()
end)
velora.setOnShowViewClosed(function()
  print("page closed")
  velora.zvScannerQRCode("ticket")
end)
velora.setOnCodeScannerFinish(function(code, text)
  if code == velora.CODE_SCANNER_SUCCESS then print("read: " .. text) end
  player.quit()
end)
velora.zvOpenWebView("https://example.com/lighthouse")
]], [[
page open
page closed
read: ticket
]] },
  replies = {
    opened("zvOpenWebView"), opened("zvShowWeb"), opened("zvShowBoard"), opened("zvShowConversation"),
    opened("zvShowFAQs"), opened("zvOpenNearby"), opened("zvOpenVespera"),
    { "zvCloseWebView", { "ShowViewClosed" }, "false" },
    { "zvCloseFlash", { "ShowViewClosed" }, "false" },
    { "zvShowRewardView", { "ShowViewOpened", "ShowViewRewarded", "ShowViewClosed" }, "false", "ShowViewFailed" },
    { "zvCreateQRCode", { "CreateQRCodeDone" }, "false", "CreateQRCodeDone", '""' },
    { "zvScannerQRCode", { "CodeScannerFinish" }, "velora.CODE_SCANNER_PERMISSIONS_DENY", "CodeScannerFinish",
      "velora.CODE_SCANNER_PERMISSIONS_DENY" },
    { "zvPresentQRCodeScanner", { "CodeScannerFinish" }, "false", "CodeScannerFinish", "velora.CODE_SCANNER_FAIL" },
  },
}

pages["Controllers"] = {
  guide = { "Rehearsing failures" },
  examples = { "controller" },
  example = { [[
-- press.lua
velora.setOnControllerKeyDown(function(keyCode, pad)
  print("A: " .. tostring(keyCode == velora.PAD_KEYCODE_BUTTON_A))
  if pad then print("controller " .. pad:get_deviceId()) end
  player.quit()
end)
local a = velora.PAD_KEYCODE_BUTTON_A
offline.post("ControllerKeyDown", a, { keyCode = a, deviceId = 1 }) -- no call causes controller events: post them
]], [[
A: true
controller 1
]] },
}

pages["Recording, voice and analytics"] = {
  guide = { "Rehearsing failures" },
  examples = {},
  example = { [[
-- record.lua
if velora.getCCPerformance() ~= velora.CC_PERFORMANCE_NOT_SUPPORT then velora.zvCCStartService() end
print("recording: " .. tostring(velora.isCCRecording()))
velora.zvPushGameVoice("\0\0\1\1") -- 48000 Hz, 16 bits, 2 channels
velora.zvTrackCustomEvent("lamp", "lit")
print(table.concat(offline.calls(), "\n"))
player.quit()
]], [[
recording: true
getCCPerformance()
zvCCStartService()
isCCRecording()
zvPushGameVoice(<4 bytes>, 4, 48000, 16, 2)
zvTrackCustomEvent("lamp", "lit")
]] },
}

pages["Downloads"] = {
  guide = { "Downloads" },
  examples = { "download" },
  example = { [[
-- map.lua
velora.setOnDownloadProgress(function(text) print("progress: " .. text) end)
velora.setOnDownloadFinish(function() end) -- DownloadFinish2 has more
velora.setOnDownloadFinish2(function(text, bytes)
  print("end: " .. text .. (bytes and ", " .. #bytes .. " bytes" or ", no data"))
  if not bytes then player.quit() end
end)
offline.post("DownloadFinish2", "empty.map", "")
velora.download.extendFunc("coast.map") -- offline the events come, but nothing is downloaded
]], [[
end: empty.map, 0 bytes
progress: coast.map
end: coast.map, no data
]] },
  replies = {
    { "download.init", { "DownloadInited" }, "false" },
    { "download.query", { "DownloadProgress" }, "false" },
    { "download.extendFunc", { "DownloadProgress", "DownloadFinish", "DownloadFinish2" }, "false" },
  },
}

pages["SDK constants"] = {
  guide = { "Constants" },
  examples = {},
  example = { [[
-- region.lua
velora.setPropStr(velora.GAME_REGION, velora.GAME_REGION_JP)
print(velora.getPropStr(velora.GAME_REGION) == velora.GAME_REGION_JP)
player.quit()
]], "true\n" },
}

pages["velora-play"] = {
  guide = { "Rehearsing failures", "Testing a script" },
  examples = { "tour" },
  example = { [[
-- run.lua
velora.setOnShareFinished(function(success) print("shared: " .. tostring(success)) end)
velora.setOnLogoutDone(function(code) print("logged out elsewhere: code " .. code) end)
offline.answer("zvShare", false) -- sharing fails from now on
velora.zvShare(velora.ShareInfo.new())
print(table.concat(offline.calls(), " "))

player.onFrame(function(frame)
  if frame == 30 then offline.post("LogoutDone", velora.LOGOUT_DONE_NEED_RELOGIN) end
  if frame == 40 then player.quit() end
end)
]], [[
New() zvShare(ShareInfo())
shared: false
logged out elsewhere: code 3
]] },
}

return pages
