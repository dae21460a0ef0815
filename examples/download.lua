-- A download with a handler: the service calls its three functions directly, not through the event queue. Setting a
-- handler disables the queued download events for good.
-- Play it with: velora-play examples/download.lua

velora.download.setSyncDownloadHandler{
  onInited = function()
    print("the download begins")
  end,
  onProgress = function(percent) -- a string, here from "0" to "100"
    print(percent .. " %")
  end,
  onFinish = function(name, bytes) -- bytes is a string of any bytes, or nil if there are none
    if bytes then
      print(name .. " received, " .. #bytes .. " bytes, the last is " .. bytes:byte(-1))
    else
      print(name .. " was not received")
    end
  end,
}
-- The module keeps the three functions, not the table.
print("handler set: " .. tostring(velora.download.getSyncDownloadHandler() ~= nil))

-- Offline nothing is downloaded: offline.download makes the service's calls, one every tenth frame.
offline.download("onInited")
player.onFrame(function(frame)
  if frame % 10 ~= 0 then
    return
  end
  local percent = frame // 10 * 25
  offline.download("onProgress", tostring(percent))
  if percent == 100 then
    offline.download("onFinish", "coast.map", "map\0\1\2\255")
    velora.download.setSyncDownloadHandler() -- removes the handler
    print("handler set: " .. tostring(velora.download.getSyncDownloadHandler() ~= nil))
    player.quit()
  end
end)
