-- Each wrapper of start-up, login and properties, with good and with bad arguments; run with --trace.
local bad = { {}, true, print }

for _, name in ipairs{"zvInit", "zvLogin", "zvLogout", "zvSwitchAccount", "zvOpenManager", "zvGameLoginSuccess",
    "zvUpLoadUserInfo", "zvDoSdkRealNameRegister", "zvGuestBind", "exitApp", "zvOpenExitView", "zvOpenPauseView",
    "isInit", "hasLogin", "getChannel", "getAppChannel", "getPlatform", "getAuthTypeName", "getUdid",
    "getChannelByImsi", "getChannelByImsiEx", "getCCTypeByImsi", "getCmdLineParameter"} do
  velora[name]({})
end

for _, name in ipairs{"getUserInfo", "getSDKVersion", "isBinded", "zvHasPlatform", "hasFeature", "zvAntiAddiction",
    "zvExtendFunc", "zvvGenericFunctionCall", "zvCallbackSuccess", "zvCallbackFail", "zvJFLog", "getPropStr"} do
  velora[name]("quote \" back \\ line \n bell \a zero \0 end")
  velora[name](7)
  velora[name](2.0)
  velora[name]()
  for _, value in ipairs(bad) do velora[name](value) end
end
velora.getPropStr("name", "second")
velora.getPropStr("name", false)

for _, name in ipairs{"setUserInfo", "setPropStr", "zvUpdateApi"} do
  velora[name]("first", 2)
  velora[name]("first")
  velora[name]("first", {})
  velora[name](nil, "second")
end
for _, name in ipairs{"setPropInt", "getPropInt"} do
  velora[name]("LEVEL", -5)
  velora[name]("LEVEL", 4294967297)
  velora[name]("LEVEL", 5.0)
  velora[name]("LEVEL")
end
velora.setJFSauthWithKey("key", "value", true)
velora.setJFSauthWithKey("key", "value", 1)

velora.zvLumoSetOption("int.fps", 7)
velora.zvLumoSetOption("text", 7.0)
velora.zvLumoSetOption("bool.on", false)
velora.zvLumoSetOption("text")
print(pcall(velora.zvLumoSetOption, "text", {}))
print(select(2, pcall(function() velora.zvLumoSetOption("text", nil) end)))

velora.setCmdLineParameter("-windowed")
velora.setCmdLineParameter("")
velora.setCmdLineParameter()
print(select(2, pcall(function() velora.setCmdLineParameter({}) end)))
print(select(2, pcall(function() velora.setCmdLineParameter("a", "b") end)))
player.quit(7)
