---@meta _

-- # velora-play
-- The player provides two more tables to its scripts: `player` ends the run and calls a function each frame;
-- `offline` observes and controls the offline runtime, which replaces the SDK. They do not exist in a game. Bad
-- arguments raise an error. `velora-play --help` lists the options and the exit statuses.

-- ## The run

---The run of a script.
---@class player
---@field terminal boolean whether stdout is a terminal, on which `\r` lets a script overwrite the current line
player = {}

---Ends the run after this frame.
---@param status? integer|boolean the exit status, from 0 to 255; true is 0, the default, and false is 1
function player.quit(status) end

---Sets the function that is called after each frame's update, replacing an earlier one; nil removes it. Frames are
---counted from 1. An error in the function ends the run.
---@param onFrame fun(frame: integer)|nil
function player.onFrame(onFrame) end

-- ## The offline runtime

---The offline runtime.
---@class offline
offline = {}

---Returns the calls of SDK operations since the last time, one string per call, such as `setPropInt("LEVEL", 7)`. Calls
---of getters and setters of records are not included.
---@return string[]
function offline.calls() end

---Returns the log lines since the last time, each as it is written to stderr.
---@return string[]
function offline.log() end

---Sets the result of an operation until it is set again. If the result arrives as an event, this sets its flag, code or
---order status. A value that the operation has no use for, such as a string for `zvLogin`, has the effect of nil. The
---methods of PadEvent are named `"PadRecord.get_x"`.
---@param name string an operation, such as `"zvLogin"`; methods with their class, such as `"OrderInfo.get_aid"`
---@param value string|boolean|integer|nil false means failure, no string or no record; nil restores the default
function offline.answer(name, value) end

---Queues an event, as the SDK does.
---@param event string|integer the name, such as `"LoginDone"`, or the number
---@param ... any the callback's arguments; an object can be a table of its fields, such as `{ keyCode = 96 }`
function offline.post(event, ...) end

---Calls a function of the download handler at once; does nothing if no handler is set. To simulate a download that is
---reported by events, use `offline.post`.
---@param operation "onInited"|"onProgress"|"onFinish"
---@param text? string for `onProgress` and `onFinish`
---@param bytes? string for `onFinish`
---@param count? integer for `onFinish`: the number of bytes; all if it is not given
function offline.download(operation, text, bytes, count) end
