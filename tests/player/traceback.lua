-- An error is printed on stderr with a traceback.
local function inner(text) error(text) end
local function outer(text)
  inner(text)
  print("not reached")
end
player.quit()
outer("failed: 100% s")
