-- A download by handler table: its three functions are called by the download service itself, not from the event queue.
-- With a handler set, the queued download events stay off.
-- Play it with: velora-play examples/download.lua

velora.download.setSyncDownloadHandler{
  onInited = function()
    print("the download begins")
  end,
  onProgress = function(percent) -- a text; here it counts from 0 to 100
    print(percent .. " %")
  end,
  onFinish = function(name, bytes) -- bytes is a string of any bytes, or nil where there are none
    if bytes then
      print(name .. " is here, " .. #bytes .. " bytes, the last is " .. bytes:byte(-1))
    else
      print(name .. " did not come")
    end
  end,
}
-- The module keeps the three functions, not the table that they came in.
print("handler set: " .. tostring(velora.download.getSyncDownloadHandler() ~= nil))

-- Offline nothing comes over a wire: the script plays the service, a step every tenth frame.
offline.download("onInited")
player.onFrame(function(frame)
  if frame % 10 ~= 0 then
    return
  end
  local percent = frame // 10 * 25
  offline.download("onProgress", tostring(percent))
  if percent == 100 then
    offline.download("onFinish", "coast.map", "map\0\1\2\255")
    velora.download.setSyncDownloadHandler() -- without an argument: off again
    print("handler set: " .. tostring(velora.download.getSyncDownloadHandler() ~= nil))
    player.quit()
  end
end)
