-- Each service wrapper and the download table, with good and with bad arguments; run with --trace.
local function fails(f) print(select(2, pcall(f))) end

for _, name in ipairs{"zvOpenNearby", "zvGetUsePushNotification", "zvConnectToChannel", "zvDisConnectFromChannel",
    "zvShowConversation", "zvShowFAQs", "zvCCStartService", "zvCCStopService", "zvFlushCustomEvents",
    "zvGetAnnouncementInfo", "zvCloseWebView", "zvCloseFlash", "zvOpenVespera", "zvHasNotification",
    "zvHasChannelConnected", "isCCRecording", "isCCRecordMic", "getCCPerformance", "getCCWindowState",
    "zvGetChannelID"} do
  velora[name](1)
end
for _, name in ipairs{"zvShowWeb", "zvOpenWebView", "zvCollectEvent", "zvSendLocalNotification", "zvSetZone",
    "zvSetUserIdentifier", "zvScannerQRCode"} do
  velora[name]("text")
  velora[name](1.5)
  velora[name](true)
end
velora.zvTrackCustomEvent("name", 1)
velora.zvTrackCustomEvent("name")
velora.zvShowBoard("a", 2, "c")
velora.zvShowBoard("a", 2)
velora.zvPresentQRCodeScanner("text", -1)
velora.zvPresentQRCodeScanner("text", -1.0)
velora.zvSendProfile("text", false)
velora.zvSendProfile("text", 0)
for _, name in ipairs{"zvCancelLocalNotification", "zvSelectChannelOption", "zvVerifyMobile"} do
  velora[name](2147483648)
  velora[name]("1")
end
for _, name in ipairs{"zvSetUsePushNotification", "zvGetNotice", "zvShowCompactView"} do
  velora[name](true)
  velora[name](nil)
end
velora.zvSetFloatBtnVisible(0)
velora.zvSetFloatBtnVisible()
velora.zvShowRewardView{"coin", 5}
fails(function() velora.zvShowRewardView() end)
velora.zvSendPushNotification("hello", {"anna"})
velora.zvSendPushNotification("hello", "anna")
velora.zvCreateQRCode("text", 300, 200, "code.png")
velora.zvCreateQRCode("text", 300, 200, "code.png", "icon.png")
velora.zvCreateQRCode("text", 300, 200, "code.png", false)
velora.zvCreateQRCode("text", 300.0, 200, "code.png")
velora.zvPushGameVoice(("\0"):rep(960))
velora.zvPushGameVoice("abcd", 2, 8000, 8, 1)
velora.zvPushGameVoice("abcd", -1, 8000.0)
velora.zvPushGameVoice({})

local download = velora.download
for _, name in ipairs{"init", "query", "getDownloadSDKVersion", "getOrbitSessionId", "disableDownloadFinish2"} do
  download[name](1)
end
download.extendFunc(7)
download.extendFunc({})
local function show(...)
  local values = table.pack(...)
  for i = 1, values.n do values[i] = string.format("%q", values[i] or "nil") end
  print(table.concat(values, " "))
end
download.setSyncDownloadHandler{onInited = show, onProgress = show, onFinish = show}
offline.download("onInited")
offline.download("onProgress", "50 %")
offline.download("onFinish", nil, "a\0b")
offline.download("onFinish", "done", nil)
download.setSyncDownloadHandler("x")
fails(function() download.setSyncDownloadHandler{} end)
download.setSyncDownloadHandler()
print(download.getSyncDownloadHandler())
player.quit()
