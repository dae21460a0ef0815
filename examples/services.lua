-- A sequence of services, each started by the callback of the one before: creates a QR code, sends and cancels a local
-- notification, opens and closes a web view.
-- A game starts the SDK first, as login.lua does. Play it with: velora-play examples/services.lua

local LINK = "https://example.com/lighthouse"

velora.setOnCreateQRCodeDone(function(path)
  print("QR code: " .. path) -- offline no file is written
  velora.zvSendLocalNotification("The lamp is burning low.")
end)

velora.setOnPushSendLocalNotificationFinished(function(code)
  print("notification sent with code " .. code .. ", pending: " .. tostring(velora.zvHasNotification()))
  velora.zvCancelLocalNotification(1)
end)

velora.setOnCancelLocalPushFinished(function(done)
  print("cancelled: " .. tostring(done) .. ", pending: " .. tostring(velora.zvHasNotification()))
  velora.zvOpenWebView(LINK)
end)

velora.setOnShowViewOpened(function()
  print("web view open")
  offline.post("WebviewNativeCall", "tideTable", "{\"day\":1}") -- simulates a page that calls the game
end)

velora.setOnWebviewNativeCall(function(name, arguments)
  print("the page calls " .. name .. " with " .. arguments)
  velora.zvCloseWebView()
end)

velora.setOnShowViewClosed(function()
  print("web view closed")
  player.quit()
end)

velora.zvCreateQRCode(LINK, 200, 200, "lighthouse.png")
