-- After a frame that took a second, no burst of frames makes up for it.
local second = os.time()
local function waitForNext() repeat until os.time() ~= second second = os.time() end
player.onFrame(function(frame)
  if frame == 1 then
    waitForNext()
    waitForNext()
  elseif os.time() ~= second then
    player.quit(frame < 90)
  end
end)
