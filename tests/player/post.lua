-- Each event through offline.post, by name and by number, and what its callback receives.
local payloads = {
  CodeScannerFinish = {-7, "text"}, ConnectToChannelFinished = {1}, DisconnectToChannelFinished = {2},
  SelectChannelOptionFinished = {true}, ControllerKeyDown = {96, {keyCode = 96}}, ControllerKeyUp = {97, {}},
  ControllerKeyPressure = {98, 0.25, {pressure = 0.25}}, ControllerLeftStick = {0.5, -1, {x = 0.5}},
  ControllerRightStick = {1, 0, {}}, ControllerStateEvent = {{state = 1}}, ExtendFuncCall = {"{}"}, FinishInit = {3},
  LoginDone = {-130}, LogoutDone = {2}, OrderCheckDone = {{orderId = "A1", orderStatus = 2}},
  OrderCosumeDone = {velora.OrderInfo.new("gold.60")}, ProtocolFinish = {1},
  PushSendPushNotificationFinished = {false}, PushSendLocalNotificationFinished = {4}, PushGetUserPushFinished = {true},
  PushSetUserPushFinished = {2}, CancelLocalPushFinished = {0}, CreateQRCodeDone = {"code.png"},
  QuerySkuDetailsFinished = {{{productId = "a"}, {productId = "b"}}}, QuestCompleted = {"quest"},
  ReceiveMsgEnterGame = {"one", "two"}, ShareFinished = {true}, StartupGetNoticeMsgDone = {"notice"},
  VerifySuccess = {0, "ok"}, VerifyFailure = {1, "no"}, WebviewNativeCall = {"name", "{}"},
  QueryFriendListFinished = {{{nickname = "Anna"}, false, {nickname = "Ben"}}}, QueryAvailablesInviteesFinished = {{}},
  QueryMyAccountFinished = {{nickname = "Me"}}, QueryApplyFriendFinished = {true}, QueryIsDarenUpdated = {true},
  QueryFriendListInGameFinished = {{velora.AccountInfo.new()}}, QueryInviteFriendListFinished = {{"a", "b"}},
  QueryInviterListFinished = {{}}, QueryRankFinished = {{{nickname = "First", rank = 1}}},
  QueryRankUpdateFinished = {true}, QueryRankUpdateAchievement = {false}, DownloadProgress = {"50"},
  DownloadFinish = {"done"}, DownloadFinishBytes = {"a\0b"}, DownloadFinish2 = {"done", nil},
}
local lines = {}

local function describe(value)
  if type(value) == "table" then
    local parts = {}
    for k, v in pairs(value) do parts[#parts + 1] = k .. "=" .. describe(v) end
    table.sort(parts)
    return "{" .. table.concat(parts, " ") .. "}"
  elseif type(value) == "userdata" then
    return value.get_nickname and "account " .. value:get_nickname()
      or value.get_orderId and "order " .. value:get_orderId() .. " " .. value:get_productId()
      or value.get_priceAmountMicros and "sku " .. value:get_productId()
      or "pad " .. value:get_keyCode() .. " " .. value:get_state() .. " " .. value:get_pressure() .. " " .. value:get_x()
  end
  return type(value) == "string" and string.format("%q", value) or tostring(value)
end

for setter, set in pairs(velora) do
  local name = setter:match("^setOn(.+)")
  if name then
    set(function(...)
      local parts = {}
      for i = 1, select("#", ...) do parts[i] = describe((select(i, ...))) end
      lines[#lines + 1] = name .. "(" .. table.concat(parts, ", ") .. ")"
    end)
    offline.post(name, table.unpack(payloads[name] or {}))
  end
end
offline.post(15, 9)
offline.post(60)
for _, bad in ipairs{{"NoSuchEvent"}, {"LoginDone", "text"}, {"LoginDone", 1, 2}, {"OrderCheckDone", {nothing = 1}},
    {"OrderCheckDone", velora.ShareInfo.new()}} do
  print(select(2, pcall(function() offline.post(table.unpack(bad)) end)))
end

player.onFrame(function()
  table.sort(lines)
  print(table.concat(lines, "\n"))
  print(#offline.log(), #offline.calls() > 0, #offline.calls())
  player.quit()
end)
