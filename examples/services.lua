-- Some services in a row, each answering through a callback that goes on to the next: a QR code made, a local
-- notification sent and cancelled, a web view opened and closed.
-- A game starts the SDK first, as login.lua does. Play it with: velora-play examples/services.lua

local LINK = "https://example.com/lighthouse"

velora.setOnCreateQRCodeDone(function(path)
  print("QR code: " .. path) -- offline the file is only named, not drawn
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
  offline.post("WebviewNativeCall", "tideTable", "{\"day\":1}") -- as a page does that calls the game
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
