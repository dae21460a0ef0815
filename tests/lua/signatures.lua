-- A row for each wrapper: what it takes, a letter per argument, and after ">" what it returns, by name.
-- Arguments: t text, i integer, n number, b boolean, l list, s strict list, O S Q records, c the command line, o an
-- option's value. Results: s string or nothing, b boolean, i integer, x what has tests of its own.
signatures = {
  [""] = [[zvInit zvLogin zvLogout zvSwitchAccount zvOpenManager zvGameLoginSuccess zvUpLoadUserInfo
    zvDoSdkRealNameRegister zvGuestBind exitApp zvOpenExitView zvOpenPauseView zvVerifyOrder zvPrePay zvQueryInventory
    zvQueryFriendList zvQueryAvailablesInvitees zvQueryMyAccount zvQueryFriendListInGame zvQueryInviterList
    zvIsDarenUpdated zvMoreGame zvDisplayAchievement zvOpenNearby zvGetUsePushNotification zvConnectToChannel
    zvDisConnectFromChannel zvShowConversation zvShowFAQs zvCCStartService zvCCStopService zvFlushCustomEvents
    zvGetAnnouncementInfo zvCloseWebView zvCloseFlash zvOpenVespera zvSetFloatBtnVisible
    init disableDownloadFinish2]],
  [">b"] = "isInit hasLogin zvHasNotification zvHasChannelConnected isCCRecording isCCRecordMic",
  [">i"] = "getCCPerformance getCCWindowState",
  [">s"] = [[getChannel getAppChannel getPlatform getAuthTypeName getUdid getChannelByImsi getChannelByImsiEx
    getCCTypeByImsi getLastShareMessage zvGetChannelID query getDownloadSDKVersion getOrbitSessionId]],
  [">x"] = "getCmdLineParameter zvGetCheckedOrders",
  t = [[zvAntiAddiction zvExtendFunc zvvGenericFunctionCall zvCallbackSuccess zvCallbackFail zvJFLog
    zvRemoveCheckedOrders zvApplyFriend zvDisplayLeaderboard zvShowWeb zvOpenWebView zvCollectEvent
    zvSendLocalNotification zvSetZone zvSetUserIdentifier zvScannerQRCode zvPushGameVoice extendFunc]],
  ["t>b"] = "isBinded zvHasPlatform hasFeature", ["t>i"] = "DRPF",
  ["t>s"] = "getUserInfo getSDKVersion getPropStr getFFChannelByPid",
  tt = "setUserInfo setPropStr zvUpdateApi zvInviteFriendList zvTrackCustomEvent",
  ti = "setPropInt zvUpdateAchievement zvUpdateEvent zvPresentQRCodeScanner", ["ti>i"] = "getPropInt",
  tn = "zvUpdateRank", tb = "zvSendProfile", ttb = "setJFSauthWithKey", ttt = "zvShowBoard",
  i = "zvCancelLocalNotification zvSelectChannelOption zvVerifyMobile",
  b = "zvSetUsePushNotification zvGetNotice zvShowCompactView",
  l = "zvDeleteInviters zvShowRewardView zvDisplayQuests",
  tl = "zvSendPushNotification", ts = "zvQuerySkuDetails", tiit = "zvCreateQRCode", to = "zvLumoSetOption",
  c = "setCmdLineParameter",
  O = "zvCheckOrder zvConsume", S = "zvShare", ["S>b"] = "zvCheckArgs", Q = "zvQueryRank",
}
