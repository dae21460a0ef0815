-- Played with --watch: each run changes the module that it requires, which starts the next run. The first run ends with
-- player.quit, the second because of the change, the third with os.exit, the fourth with an error in the module.
local folder = ...
local file = folder .. "/watched.lua"
package.path = folder .. "/?.lua"

local function write(code)
  local stream = assert(io.open(file, "w"))
  stream:write(code)
  stream:close()
end

if not io.open(file) then write("return 1") end
local found, run = pcall(require, "watched")
print(found and run or "an error")
atTheEnd = setmetatable({}, { __gc = function() print("the end", velora.hasLogin()) end })
velora.setOnLoginDone(function()
  if run == 1 then
    write("return 2 --")
    player.quit()
  elseif run == 2 then
    write("return 3 ----")
  elseif run == 3 then
    write("return ( ------")
    os.exit(4)
  elseif found then
    os.remove(file)
    io.popen("kill -INT $PPID"):close()
  else
    write("return 5 --------")
  end
end)
velora.zvLogin()
