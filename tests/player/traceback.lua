-- An error goes to stderr with the way that led to it.
local function inner(text) error(text) end
local function outer(text)
  inner(text)
  print("not reached")
end
player.quit()
outer("as it must")
