-- luacheck reads this file, but stays in the folder that it was started in, which may be inside this one.
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

-- Globals that the test programs set, those that scripts set for these, and metamethods, which are not annotated.
files["tests/lua"] = {
  allow_defined = true,
  ignore = { "131" },
  read_globals = { "answer", "byte", "calls", "inject", "light", "report", "used", "velora.OrderInfo.__gc",
    "velora.ShareInfo.__gc", "velora.ProductInfo.__gc" },
}
