-- Setting a handler disables the service's own events, including undelivered ones, but not posted events.
for _, name in ipairs{"DownloadInited", "DownloadProgress", "DownloadFinish", "DownloadFinish2"} do
  velora["setOn" .. name](function(...) print(name, ...) end)
end

-- Some of these are queued when the handler is set and some are not, depending on the runtime's thread.
for i = 1, 200 do velora.download.extendFunc("own " .. i) end
velora.download.init()
offline.post("DownloadProgress", "posted before")
velora.download.setSyncDownloadHandler{onInited = print, onProgress = print, onFinish = print}
velora.download.extendFunc("while it is off")
velora.download.init()
print(velora.download.query())
offline.post("DownloadProgress", "posted after")
velora.zvLogout()
velora.setOnLogoutDone(function() player.quit() end)
