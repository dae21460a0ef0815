-- Controller events: the arguments of each callback, and the PadEvent, which has further fields. offline.post queues
-- the events in place of a controller; it takes a PadEvent as a table of its fields.
-- Play it with: velora-play examples/controller.lua

local BUTTONS = { [velora.PAD_KEYCODE_BUTTON_A] = "A", [velora.PAD_KEYCODE_BUTTON_R2] = "R2" }

velora.setOnControllerKeyDown(function(key, pad)
  print("down " .. BUTTONS[key] .. " on controller " .. pad:get_deviceId())
end)

velora.setOnControllerKeyUp(function(key)
  print("up " .. BUTTONS[key])
end)

velora.setOnControllerKeyPressure(function(key, pressure)
  print("pressure of " .. BUTTONS[key] .. " " .. pressure)
end)

velora.setOnControllerLeftStick(function(x, y)
  print("left stick at " .. x .. ", " .. y)
end)

velora.setOnControllerStateEvent(function(pad)
  local connected = pad:get_state() == velora.PAD_ACTION_CONNECTED
  print("controller " .. pad:get_deviceId() .. (connected and " connected" or " gone"))
  if not connected then
    player.quit()
  end
end)

local a, r2 = velora.PAD_KEYCODE_BUTTON_A, velora.PAD_KEYCODE_BUTTON_R2
offline.post("ControllerStateEvent", { deviceId = 1, state = velora.PAD_ACTION_CONNECTED })
offline.post("ControllerKeyDown", a, { deviceId = 1, keyCode = a, action = velora.PAD_ACTION_DOWN })
offline.post("ControllerKeyUp", a, { deviceId = 1, keyCode = a, action = velora.PAD_ACTION_UP })
offline.post("ControllerKeyPressure", r2, 0.75, { deviceId = 1, keyCode = r2, pressure = 0.75 })
offline.post("ControllerLeftStick", -1.0, 0.5, { deviceId = 1, x = -1.0, y = 0.5 })
offline.post("ControllerStateEvent", { deviceId = 1, state = velora.PAD_ACTION_DISCONNECTED })
