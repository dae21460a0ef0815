---@meta _

-- # velora-play
-- The player gives its scripts two more tables: `player`, to end the run and to follow its frames, and `offline`, to
-- watch and steer the offline runtime that stands in the SDK's place. A game has neither. Wrong arguments raise an
-- error here.

-- ## The run

---The run of a script.
---@class player
---@field terminal boolean whether the output goes to a terminal, where a line can be drawn again after `\r`
player = {}

---Ends the run after this frame.
---@param status? integer|boolean the exit status, from 0 to 255; true stands for 0, the default, and false for 1
function player.quit(status) end

---Calls a function after each frame's update, in place of the one before; nil ends that. Frames count from 1. An error
---in the function ends the run.
---@param onFrame fun(frame: integer)|nil
function player.onFrame(onFrame) end

-- ## The offline runtime

---The offline runtime.
---@class offline
offline = {}

---The calls of SDK operations since the last time, a line each, as `setPropInt("LEVEL", 7)`. A record's own getters and
---setters are no lines.
---@return string[]
function offline.calls() end

---The log lines since the last time, each as it goes to stderr.
---@return string[]
function offline.log() end

---Sets what an operation answers from now on. Where an event is the answer, it takes its flag, code or order status
---from this. The methods of PadEvent are called `"PadRecord.get_x"`.
---@param name string an operation, as `"zvLogin"`; one of a record has its class in front, as `"OrderInfo.get_aid"`
---@param value string|boolean|integer|nil false: a failure, no text or no record; nil: the default again
function offline.answer(name, value) end

---Queues an event, as if the SDK had.
---@param event string|integer the name, as `"LoginDone"`, or the number
---@param ... any what the callback is to receive; an object can be a table of its fields, as `{ keyCode = 96 }`
function offline.post(event, ...) end

---Calls a function of the download handler, here and now; without a handler nothing happens. Downloads that are told by
---events are played with `offline.post`.
---@param operation "onInited"|"onProgress"|"onFinish"
---@param text? string for `onProgress` and `onFinish`
---@param bytes? string for `onFinish`
---@param count? integer for `onFinish`: how many of the bytes, all where it is not given
function offline.download(operation, text, bytes, count) end
