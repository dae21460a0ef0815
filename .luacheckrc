-- luacheck reads this file, but stays in the folder that it was started in, which may lie below.
local path = "types/luacheck.lua"
for _ = 1, 10 do
  local file = io.open(path)
  if file then
    file:close()
    break
  end
  path = "../" .. path
end

local annotated = dofile(path)
stds.velora = annotated.velora
stds.player = annotated.player

std = "lua53+velora+player"
exclude_files = { "types/velora.lua", "types/player.lua", "build" }
