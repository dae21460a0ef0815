---@meta _

-- # The table velora
-- Scripts call the SDK through one global table, `velora`. These rules apply to all of it:
--
-- - Functions return at once. Results that take longer arrive as events, on a later frame: "The result arrives as
--   LoginDone" means that the callback set with `setOnLoginDone` is called.
-- - A call with bad arguments does nothing and returns nil. A few functions raise an error instead; their
--   descriptions say so. Arguments beyond those listed are ignored. Every function raises an error if a list argument
--   is longer than 1,048,576 elements.
-- - A parameter of type `Text` takes a string, or a number, which is converted to a string. The SDK receives it up to
--   its first zero byte.
-- - A parameter of type integer takes only Lua integers: 3, but not 3.0 or "3". The SDK receives the low 32 bits, with
--   sign. Setters of objects are less strict, see below.
-- - A type is marked `?` if the value can be nil even with good arguments: the SDK has no such result, or the event has
--   no object or data. If the SDK puts an empty object into a list, that element is nil, and `ipairs` ends there.
-- - Tables are copies, except that of `getSyncDownloadHandler`: changing one changes nothing else.
-- - "Defined by the SDK" and similar words refer to the SDK's own documentation. "Offline" refers to the offline
--   runtime of `velora-play`; the SDK may behave differently.
--
-- Objects of the seven classes have methods, as in `order:get_orderId()`. `tostring` returns a readable form of all
-- except PadEvent, and raises an error if the SDK has none. Descriptions of fields follow the fields' names; the SDK
-- defines what it stores there.
--
-- A setter converts its value to the field's type:
--
-- - A string field stores the empty string for a value that is neither a string nor a number.
-- - A number field stores 0 for a value that cannot be converted. 3.0 and "3" can be converted to an integer, 2.5
--   cannot.
-- - A boolean field takes any value: nil and false are false, all others true.
-- - A map or list field raises an error if the value is not a table. Elements that cannot be converted are left out; in
--   an integer map, such a value becomes 0.
-- - `set_arrPriceLocaleId` does the reverse: it ignores a value that is not a table, and raises an error for an element
--   that is neither a string nor a number.

-- ## The table

---A string, or a number, which is converted to a string.
---@alias velora.Text string|number

---The SDK, as scripts see it.
---@class velora
velora = {}

---An empty table, reserved for later use.
velora.utils = {}

-- ## Setting callbacks
-- Each event has one callback. `setOn…` replaces it, and does nothing if its argument is not a function. `getOn…`
-- returns it, or nil if none is set. An error in a callback is logged, and the next event is delivered as usual.

-- # Start and login
-- Starting the SDK, logging in and out, the account and its views, leaving the game.

-- ## Starting

---Starts the SDK. The result arrives as FinishInit.
function velora.zvInit() end

---Returns whether the SDK has started.
---@return boolean
function velora.isInit() end

---@alias velora.OnFinishInit fun(code: integer)

---Sets the callback of FinishInit, which occurs when the start of the SDK has ended. It receives `code`, one of
---`FINISH_INIT_*`.
---@param callback velora.OnFinishInit
function velora.setOnFinishInit(callback) end

---Returns the callback of FinishInit; nil if none is set.
---@return velora.OnFinishInit? callback
function velora.getOnFinishInit() end

---@alias velora.OnStartupDone fun()

---Sets the callback of StartupDone, which occurs when the SDK's start-up, with its splash screen, has ended. It
---receives nothing.
---@param callback velora.OnStartupDone
function velora.setOnStartupDone(callback) end

---Returns the callback of StartupDone; nil if none is set.
---@return velora.OnStartupDone? callback
function velora.getOnStartupDone() end

---@alias velora.OnStartupClickSplash fun()

---Sets the callback of StartupClickSplash, which occurs when the player taps the splash screen. It receives nothing.
---@param callback velora.OnStartupClickSplash
function velora.setOnStartupClickSplash(callback) end

---Returns the callback of StartupClickSplash; nil if none is set.
---@return velora.OnStartupClickSplash? callback
function velora.getOnStartupClickSplash() end

-- ### Codes of FinishInit
-- The values of `code` in FinishInit. Their meanings follow their names; the SDK decides when it sends each.

---@class velora
---@field FINISH_INIT_OK 0 The SDK has started.
---@field FINISH_INIT_FAILED 1 The start has failed.
---@field FINISH_INIT_MISSED 3 The start was missed; the SDK defines when.
---@field FINISH_INIT_NEED_UPDATE_PACKAGE 4 The game's package must be updated first.

-- ## Login

---Logs the player in. The result arrives as LoginDone.
function velora.zvLogin() end

---Logs the player out. The result arrives as LogoutDone.
function velora.zvLogout() end

---Lets the player log in with another account. The result arrives as LoginDone.
function velora.zvSwitchAccount() end

---Returns whether a player is logged in.
---@return boolean
function velora.hasLogin() end

---Tells the SDK that the game's own login has succeeded. The offline runtime only records the call.
function velora.zvGameLoginSuccess() end

---Returns the name of the player's login channel, to compare with `ZV_AUTH_NAME_*`; nil if the SDK has none.
---@return string?
function velora.getAuthTypeName() end

---@alias velora.OnLoginDone fun(code: integer)

---Sets the callback of LoginDone, which occurs when a login, a change of account or the binding of a guest account has
---ended. It receives `code`, one of `LOGIN_DONE_*`.
---@param callback velora.OnLoginDone
function velora.setOnLoginDone(callback) end

---Returns the callback of LoginDone; nil if none is set.
---@return velora.OnLoginDone? callback
function velora.getOnLoginDone() end

---@alias velora.OnLogoutDone fun(code: integer)

---Sets the callback of LogoutDone, which occurs when a logout has ended. It receives `code`, one of `LOGOUT_DONE_*`.
---@param callback velora.OnLogoutDone
function velora.setOnLogoutDone(callback) end

---Returns the callback of LogoutDone; nil if none is set.
---@return velora.OnLogoutDone? callback
function velora.getOnLogoutDone() end

---@alias velora.OnRegister fun()

---Sets the callback of Register, which occurs when a new account has been registered. It receives nothing.
---@param callback velora.OnRegister
function velora.setOnRegister(callback) end

---Returns the callback of Register; nil if none is set.
---@return velora.OnRegister? callback
function velora.getOnRegister() end

-- ### Codes of LoginDone
-- The values of `code` in LoginDone. Their meanings follow their names; the SDK decides when it sends each.

---@class velora
---@field LOGIN_DONE_OK 0 The player is logged in.
---@field LOGIN_DONE_CANCEL 1 The login was cancelled.
---@field LOGIN_DONE_WRONG_PASSWD 2 The password was wrong.
---@field LOGIN_DONE_NET_UNAVAILABLE 3 There is no network.
---@field LOGIN_DONE_SDK_SERV_ERR 4 The SDK's server reported an error.
---@field LOGIN_DONE_NET_TIME_OUT 5 The network did not reply in time.
---@field LOGIN_DONE_SDK_NOT_INIT 6 The SDK has not been started.
---@field LOGIN_DONE_UNKNOWN_ERR 10 The login failed for an unknown reason.
---@field LOGIN_DONE_NEED_GS_CONFIRM 11 The game server must confirm the login.
---@field LOGIN_DONE_NEED_RELOGIN 12 The player must log in again.
---@field LOGIN_DONE_BIND_OK 13 The account has been bound.
---@field LOGIN_DONE_GREEN 14 A result that the SDK calls green; it defines when.
---@field LOGIN_DONE_VELORA_BIND_OK 130 The guest account has been bound; offline, the success of `zvGuestBind`.
---@field LOGIN_DONE_VELORA_BIND_FAIL -130 The guest account could not be bound; offline, the failure of `zvGuestBind`.

-- ### Codes of LogoutDone
-- The values of `code` in LogoutDone. Their meanings follow their names; the SDK decides when it sends each.

---@class velora
---@field LOGOUT_DONE_OK 0 The player is logged out.
---@field LOGOUT_DONE_FAILED 1 The logout has failed.
---@field LOGOUT_DONE_NOLOGIN 2 No player was logged in.
---@field LOGOUT_DONE_NEED_RELOGIN 3 The player must log in again.

-- ### Login state codes
-- Integers: values of the property `LOGIN_STAT`.

---@class velora
---@field E_LS_NOT_LOGIN integer Value of `LOGIN_STAT`: not logged in. The SDK defines the value.
---@field E_LS_LOGIN_OK integer Value of `LOGIN_STAT`: logged in. The SDK defines the value.
---@field E_LS_NEED_GS_CONFIRM integer Value of `LOGIN_STAT`: the game server must confirm. The SDK defines the value.

-- ### Login channel codes
-- Integers: codes of the login channels.

---@class velora
---@field AUTH_UNLOGIN integer Login channel code. The SDK defines value and meaning.
---@field AUTH_NATIVE integer Login channel code. The SDK defines value and meaning.
---@field AUTH_GUEST integer Login channel code. The SDK defines value and meaning.
---@field AUTH_WEIBO integer Login channel code. The SDK defines value and meaning.
---@field AUTH_FACEBOOK integer Login channel code. The SDK defines value and meaning.
---@field AUTH_GOOGLE integer Login channel code. The SDK defines value and meaning.
---@field AUTH_MOBILE integer Login channel code. The SDK defines value and meaning.
---@field AUTH_QQ integer Login channel code. The SDK defines value and meaning.
---@field AUTH_WEIXIN integer Login channel code. The SDK defines value and meaning.
---@field AUTH_DUOKU integer Login channel code. The SDK defines value and meaning.
---@field AUTH_91 integer Login channel code. The SDK defines value and meaning.
---@field AUTH_BEETALK integer Login channel code. The SDK defines value and meaning.
---@field AUTH_KAKAO integer Login channel code. The SDK defines value and meaning.
---@field AUTH_TWITTER integer Login channel code. The SDK defines value and meaning.
---@field AUTH_DMM integer Login channel code. The SDK defines value and meaning.
---@field AUTH_STEAM integer Login channel code. The SDK defines value and meaning.
---@field AUTH_AMAZONE integer Login channel code. The SDK defines value and meaning.
---@field AUTH_LINE integer Login channel code. The SDK defines value and meaning.
---@field AUTH_LINE_GAME integer Login channel code. The SDK defines value and meaning.
---@field AUTH_BATTLE integer Login channel code. The SDK defines value and meaning.
---@field AUTH_PELIA integer Login channel code. The SDK defines value and meaning.
---@field AUTH_PSN integer Login channel code. The SDK defines value and meaning.
---@field AUTH_XIANLIAO integer Login channel code. The SDK defines value and meaning.
---@field AUTH_NINTENDO integer Login channel code. The SDK defines value and meaning.
---@field AUTH_DOUYIN integer Login channel code. The SDK defines value and meaning.
---@field AUTH_MOBILE_NOT_ZORVANE integer Login channel code. The SDK defines value and meaning.
---@field AUTH_APPLE integer Login channel code. The SDK defines value and meaning.
---@field AUTH_MOWANG integer Login channel code. The SDK defines value and meaning.

-- ### Login channel names
-- Strings: names of the login channels, to compare with `getAuthTypeName`.

---@class velora
---@field ZV_AUTH_NAME_UNLOGIN string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_NATIVE string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_GUEST string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_WEIBO string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_FACEBOOK string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_GameCenter string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_WECHAT string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_GARENA string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_BEETALK string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_QQ string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_GOOGLE string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_JOYBOMB string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_MOBILE string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_DUOKU string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_91 string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_KAKAO string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_TWITTER string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_DMM string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_STEAM string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_AMAZON string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_LINE string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_LINE_GMAE string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_BATTLE string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_PELIA string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_PSN string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_XIANLIAO string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_NINTENDO string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_DOUYIN string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_MOBILE_NOT_ZORVANE string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_APPLE string Login channel name, as from `getAuthTypeName`. The SDK defines the value.
---@field ZV_AUTH_NAME_MOWANG string Login channel name, as from `getAuthTypeName`. The SDK defines the value.

-- ## Account

---Binds the current guest account to a full account. The result arrives as LoginDone, with a code for the binding:
---`LOGIN_DONE_BIND_OK`, `LOGIN_DONE_VELORA_BIND_OK` or `LOGIN_DONE_VELORA_BIND_FAIL`.
function velora.zvGuestBind() end

---Returns whether the account is bound. Offline it is, whatever the name, after `zvGuestBind` has succeeded.
---@param name velora.Text what it may be bound to; the SDK defines the names
---@return boolean
function velora.isBinded(name) end

---Opens the SDK's account manager. CloseManagerView follows when it closes; offline it closes at once.
function velora.zvOpenManager() end

---@alias velora.OnCloseManagerView fun()

---Sets the callback of CloseManagerView, which occurs when the account manager has been closed. It receives nothing.
---@param callback velora.OnCloseManagerView
function velora.setOnCloseManagerView(callback) end

---Returns the callback of CloseManagerView; nil if none is set.
---@return velora.OnCloseManagerView? callback
function velora.getOnCloseManagerView() end

---Passes a key and its value to the SDK's JF sign-on data. The offline runtime only records the call.
---@param key velora.Text
---@param value velora.Text
---@param flag boolean the SDK defines its meaning
function velora.setJFSauthWithKey(key, value, flag) end

-- ## Agreement, real name, mobile number

---Shows the user agreement. The result arrives as ProtocolFinish.
---@param shown boolean the SDK defines its meaning; offline, true leads to `PROTOCOL_FINISH_ACCEPT`, else `…_CONFIRM`
function velora.zvShowCompactView(shown) end

---@alias velora.OnProtocolFinish fun(code: integer)

---Sets the callback of ProtocolFinish, which occurs when the player has accepted or refused the user agreement. It receives `code`, one
---of `PROTOCOL_FINISH_*`.
---@param callback velora.OnProtocolFinish
function velora.setOnProtocolFinish(callback) end

---Returns the callback of ProtocolFinish; nil if none is set.
---@return velora.OnProtocolFinish? callback
function velora.getOnProtocolFinish() end

---Opens the SDK's real-name registration. The offline runtime only records the call.
function velora.zvDoSdkRealNameRegister() end

---Passes a string to the SDK's anti-addiction service. The offline runtime only records the call.
---@param text velora.Text the SDK defines its form
function velora.zvAntiAddiction(text) end

---Verifies the player's mobile number. The result arrives as VerifySuccess or VerifyFailure.
---@param number integer the SDK defines its meaning; offline, the event's `text` is this number
function velora.zvVerifyMobile(number) end

---@alias velora.OnVerifySuccess fun(code: integer, text: string)

---Sets the callback of VerifySuccess, which occurs when the mobile number has been verified. It receives `code` and
---`text`, which the SDK defines; offline, `code` is 0 and `text` the number given to `zvVerifyMobile`.
---@param callback velora.OnVerifySuccess
function velora.setOnVerifySuccess(callback) end

---Returns the callback of VerifySuccess; nil if none is set.
---@return velora.OnVerifySuccess? callback
function velora.getOnVerifySuccess() end

---@alias velora.OnVerifyFailure fun(code: integer, text: string)

---Sets the callback of VerifyFailure, which occurs when the mobile number could not be verified. It receives `code` and
---`text`, which the SDK defines; offline, `text` is the number given to `zvVerifyMobile`.
---@param callback velora.OnVerifyFailure
function velora.setOnVerifyFailure(callback) end

---Returns the callback of VerifyFailure; nil if none is set.
---@return velora.OnVerifyFailure? callback
function velora.getOnVerifyFailure() end

-- ### Codes of ProtocolFinish
-- The values of `code` in ProtocolFinish. Their meanings follow their names; the SDK decides when it sends each.

---@class velora
---@field PROTOCOL_FINISH_CONFIRM 0 The agreement was confirmed.
---@field PROTOCOL_FINISH_ACCEPT 1 The agreement was accepted.
---@field PROTOCOL_FINISH_REJECT 2 The agreement was rejected.
---@field PROTOCOL_FINISH_NOT_NEED_SHOW 3 The agreement need not be shown.

-- ## Notices

---Requests the notice that is shown at the start. It arrives as StartupGetNoticeMsgDone.
---@param flag boolean the SDK defines its meaning
function velora.zvGetNotice(flag) end

---Requests the announcement. It arrives as StartupGetNoticeMsgDone.
function velora.zvGetAnnouncementInfo() end

---@alias velora.OnStartupGetNoticeMsgDone fun(text: string)

---Sets the callback of StartupGetNoticeMsgDone, which delivers a notice or announcement. It receives `text`, in a form
---that the SDK defines.
---@param callback velora.OnStartupGetNoticeMsgDone
function velora.setOnStartupGetNoticeMsgDone(callback) end

---Returns the callback of StartupGetNoticeMsgDone; nil if none is set.
---@return velora.OnStartupGetNoticeMsgDone? callback
function velora.getOnStartupGetNoticeMsgDone() end

-- ## Pausing and leaving

---Opens the SDK's pause view. ClosePauseView and ContinueGame follow when it closes; offline it closes at once.
function velora.zvOpenPauseView() end

---@alias velora.OnClosePauseView fun()

---Sets the callback of ClosePauseView, which occurs when the pause view has been closed. It receives nothing.
---@param callback velora.OnClosePauseView
function velora.setOnClosePauseView(callback) end

---Returns the callback of ClosePauseView; nil if none is set.
---@return velora.OnClosePauseView? callback
function velora.getOnClosePauseView() end

---@alias velora.OnContinueGame fun()

---Sets the callback of ContinueGame, which occurs when the game is to go on after a pause. It receives nothing.
---@param callback velora.OnContinueGame
function velora.setOnContinueGame(callback) end

---Returns the callback of ContinueGame; nil if none is set.
---@return velora.OnContinueGame? callback
function velora.getOnContinueGame() end

---Asks the player whether to leave the game. ExitApp follows if the player agrees, ExitOpenExitViewFailed if the SDK
---has no such view.
function velora.zvOpenExitView() end

---Leaves the game through the SDK. Offline, ExitApp follows.
function velora.exitApp() end

---@alias velora.OnExitApp fun()

---Sets the callback of ExitApp, which occurs when the game is to end. It receives nothing.
---@param callback velora.OnExitApp
function velora.setOnExitApp(callback) end

---Returns the callback of ExitApp; nil if none is set.
---@return velora.OnExitApp? callback
function velora.getOnExitApp() end

---@alias velora.OnExitOpenExitViewFailed fun()

---Sets the callback of ExitOpenExitViewFailed, which occurs when the exit view could not be opened, so that the game
---has to ask the player itself. It receives nothing.
---@param callback velora.OnExitOpenExitViewFailed
function velora.setOnExitOpenExitViewFailed(callback) end

---Returns the callback of ExitOpenExitViewFailed; nil if none is set.
---@return velora.OnExitOpenExitViewFailed? callback
function velora.getOnExitOpenExitViewFailed() end

-- # Properties and commands
-- The SDK's settings by name, information about the player, the channel and the device, and commands.

-- ## Properties
-- Properties are named by strings. The names that the SDK knows are among the SDK constants, for example
-- `velora.GAMEID`.

---Sets a string property.
---@param name velora.Text
---@param value velora.Text
function velora.setPropStr(name, value) end

---Returns a string property; nil if the SDK has none of that name.
---@param name velora.Text
---@param second? any a string or number is passed to the SDK (offline: returned if nothing is set); all else is ignored
---@return string?
function velora.getPropStr(name, second) end

---Sets an integer property.
---@param name velora.Text
---@param value integer
function velora.setPropInt(name, value) end

---Returns an integer property.
---@param name velora.Text
---@param number integer passed to the SDK, which defines its meaning (offline: returned if nothing is set)
---@return integer
function velora.getPropInt(name, number) end

---Returns whether the SDK has a feature, as in `velora.hasFeature(velora.MODE_HAS_SHARE)`. Returns false, not nil, if
---the argument is neither a string nor a number. Offline, a feature exists if the integer property of its name is set
---and not 0.
---@param feature velora.Text
---@return boolean
function velora.hasFeature(feature) end

---Sets an option of the SDK. The option's name decides which type of value the SDK reads, and nothing checks it: pass
---an integer, a string or a boolean accordingly. Raises an error for a value of any other type. Offline, names that
---begin with the word `int` or `bool` take that type and all others a string.
---@param name velora.Text
---@param value integer|velora.Text|boolean
function velora.zvLumoSetOption(name, value) end

-- ### Feature modes
-- Strings: names of features, for `hasFeature`, and of the properties that switch them.

---@class velora
---@field MODE_NO_LOGIN string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_LOGOUT string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_MANAGER string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_PAUSE_VIEW string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_NEED_UNITED_LOGIN string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_EXIT_VIEW string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_GUEST string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_GUEST_BIND string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_NATIVE_GUEST_LOGIN string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_FRIEND string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_RANK string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_SHARE string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_MOREGAME_BTN string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_SWITCH_ACCOUNT string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_NEARBY string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_QUERYSKUDETAILS string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_CONVERSATION string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_FAQS string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_ACHIEVEMENT string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_CC_RECORD string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_SWRVE string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_HELPSHIFT string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_GOOGLEGAMESERVICE string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_FEEDBACK string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_SHOWVIEW string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_ANNOUNCEMENT string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_VERIFYMOBILE string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_HAS_QUERYORDER string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_REAL_NAME string Feature name, for `hasFeature`. The SDK defines value and meaning.
---@field MODE_QR_CODE string Feature name, for `hasFeature`. The SDK defines value and meaning.

-- ## Player information

---Stores a piece of player information for the SDK.
---@param key velora.Text one of `USERINFO_*`, except `USERINFO_STAGE_*`, which are values
---@param value velora.Text
function velora.setUserInfo(key, value) end

---Returns a piece of player information; nil if the SDK has none under that key.
---@param key velora.Text one of `USERINFO_*`, except `USERINFO_STAGE_*`, which are values
---@return string?
function velora.getUserInfo(key) end

---Sends the player information to the SDK's server. Its key `USERINFO_STAGE` tells at which moment of the game. The
---offline runtime only records the call.
function velora.zvUpLoadUserInfo() end

-- ### Player information, first set
-- Strings: keys of the player information. The `USERINFO_STAGE_*` are values of `USERINFO_STAGE`.

---@class velora
---@field USERINFO_STAGE string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_STAGE_CREATE_ROLE string Value of `USERINFO_STAGE`. The SDK defines value and meaning.
---@field USERINFO_STAGE_ENTER_SERVER string Value of `USERINFO_STAGE`. The SDK defines value and meaning.
---@field USERINFO_STAGE_LEVEL_UP string Value of `USERINFO_STAGE`. The SDK defines value and meaning.
---@field USERINFO_STAGE_FF_SUCESS string Value of `USERINFO_STAGE`. The SDK defines value and meaning.
---@field USERINFO_STAGE_LEAVE_SERVER string Value of `USERINFO_STAGE`. The SDK defines value and meaning.
---@field USERINFO_STAGE_ENTER_MAIN string Value of `USERINFO_STAGE`. The SDK defines value and meaning.
---@field USERINFO_STAGE_CHOOSE_SERVER string Value of `USERINFO_STAGE`. The SDK defines value and meaning.
---@field USERINFO_UID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_NAME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_AID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_GRADE string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_HOSTID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_HOSTNAME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_BALANCE string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_BALANCE_ARRAY string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_VIP string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_EXP string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_ROLE_TYPE_ID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_ROLE_TYPE_NAME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_MENPAI_ID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_MENPAI_NAME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_MENPAI_ROLE_ID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_MENPAI_ROLE_NAME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_CAPABILITY string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_GANG_ID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_GANG_NAME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_GANG_ROLE_ID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_GANG_ROLE_NAME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_RANKING string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_ORG string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_REGION_ID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_REGION_NAME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_ROLE_CTIME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_FRIEND string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_ROLE_LEVELMTIME string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.

-- ### Player information, second set
-- Strings: more keys of the player information.

---@class velora
---@field USERINFO_VIP_SCORE string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_RANK_LEVEL string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_RANK_EXP string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_RANK_LEVEL_2 string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_RANK_EXP_2 string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_GOLD_1 string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_GOLD_2 string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_CUP_COUNT_1 string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_CUP_COUNT_2 string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_TOTAL_KILL string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_TOTAL_HEAD string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_AVG_KD string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_MAX_KD string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_MAX_CK string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_MAIN_WEAPON_ID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_VICE_WEAPON_ID string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_EXT_KEY string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.
---@field USERINFO_EXT_VALUE string Key for `setUserInfo` and `getUserInfo`. The SDK defines value and meaning.

-- ## Channel and device

---Returns the channel through which the game is distributed; nil if the SDK has none. Offline it is `offline`.
---@return string?
function velora.getChannel() end

---Returns the application channel; nil if the SDK has none.
---@return string?
function velora.getAppChannel() end

---Returns the name of the platform that the game runs on; nil if the SDK has none.
---@return string?
function velora.getPlatform() end

---Returns the SDK's id of this device; nil if the SDK has none.
---@return string?
function velora.getUdid() end

---Returns the channel that the SDK derives from the device's subscriber number (IMSI); nil if there is none.
---@return string?
function velora.getChannelByImsi() end

---Returns the channel that the SDK derives from the device's subscriber number, in its extended form; nil if there is
---none.
---@return string?
function velora.getChannelByImsiEx() end

---Returns the carrier that the SDK derives from the device's subscriber number, to compare with `CCTYPE_*`; nil if
---there is none.
---@return string?
function velora.getCCTypeByImsi() end

---Returns a version of the SDK; nil if the SDK has none of that name.
---@param text velora.Text which version; the SDK defines the names, and offline any will do
---@return string?
function velora.getSDKVersion(text) end

---Returns whether the SDK has a platform.
---@param name velora.Text the SDK defines the names; offline there is only `offline_platform`
---@return boolean
function velora.zvHasPlatform(name) end

-- ## Commands

---Sends an extension command to the SDK. Its reply arrives as ExtendFuncCall; offline the reply is the command.
---@param command velora.Text the SDK defines the commands
function velora.zvExtendFunc(command) end

---@alias velora.OnExtendFuncCall fun(text: string)

---Sets the callback of ExtendFuncCall, which occurs when the SDK replies to an extension command or calls the game. It
---receives `text`, in a form that the SDK defines; offline it is the command given to `zvExtendFunc`.
---@param callback velora.OnExtendFuncCall
function velora.setOnExtendFuncCall(callback) end

---Returns the callback of ExtendFuncCall; nil if none is set.
---@return velora.OnExtendFuncCall? callback
function velora.getOnExtendFuncCall() end

---Sends a generic command to the SDK. The offline runtime only records the call.
---@param command velora.Text the SDK defines the commands
function velora.zvvGenericFunctionCall(command) end

---Reports a success to the SDK. The offline runtime only records the call.
---@param text velora.Text the SDK defines its form
function velora.zvCallbackSuccess(text) end

---Reports a failure to the SDK. The offline runtime only records the call.
---@param text velora.Text the SDK defines its form
function velora.zvCallbackFail(text) end

---Passes two strings to the SDK's update interface. The offline runtime only records the call.
---@param first velora.Text the SDK defines its meaning
---@param second velora.Text the SDK defines its meaning
function velora.zvUpdateApi(first, second) end

---Sets the command line that the SDK keeps; nil, no argument and an empty string clear it. Raises an error for any
---other value, and for a second argument after a string.
---@param text? velora.Text
function velora.setCmdLineParameter(text) end

---Returns the command line that the SDK keeps; nil if there is none.
---@return string?
function velora.getCmdLineParameter() end

---Writes a string to the SDK's JF log. The offline runtime only records the call.
---@param text velora.Text
function velora.zvJFLog(text) end

-- # Payment
-- Products, store items and orders. A product is registered with `OrderInfo.regProduct`, an order made with
-- `OrderInfo.new`, checked with `zvCheckOrder` and, once the player has the goods, consumed with `zvConsume`.

-- ## Orders and store items

---Asks the store for the details of items. They arrive as QuerySkuDetailsFinished. Raises an error if an id is neither
---a string nor a number.
---@param itemType velora.Text one of `ITEM_TYPE_*`
---@param productIds velora.Text[]
function velora.zvQuerySkuDetails(itemType, productIds) end

---Checks an order, which starts the purchase. The result arrives as OrderCheckDone.
---@param order velora.OrderInfo the SDK works on this record, not on a copy
function velora.zvCheckOrder(order) end

---Consumes an order. Call it after the player has received the goods. The result arrives as OrderCosumeDone.
---@param order velora.OrderInfo
function velora.zvConsume(order) end

---Tells the SDK to verify an order; the SDK decides which. The offline runtime only records the call.
function velora.zvVerifyOrder() end

---Tells the SDK to prepare a payment. The offline runtime only records the call.
function velora.zvPrePay() end

---Tells the SDK to query the store's inventory. The offline runtime only records the call.
function velora.zvQueryInventory() end

---Returns the orders that are checked and not yet consumed; nil, not an empty table, if there are none.
---@return velora.OrderInfo[]? orders
function velora.zvGetCheckedOrders() end

---Removes an order from the list of checked orders.
---@param orderId velora.Text
function velora.zvRemoveCheckedOrders(orderId) end

---Returns the FF channel of a product; nil if the SDK has none. Offline, registered products have one.
---@param productId velora.Text
---@return string?
function velora.getFFChannelByPid(productId) end

---Passes a string to DRPF, one of the SDK's reports, and returns the SDK's code. Offline the code is 0.
---@param text velora.Text the SDK defines its form
---@return integer
function velora.DRPF(text) end

---@alias velora.OnQuerySkuDetailsFinished fun(skus: velora.SkuDetailsInfo[])

---Sets the callback of QuerySkuDetailsFinished, which delivers the store's items. It receives `skus`, a list of
---`SkuDetailsInfo`; empty if there are none or if the query has failed.
---@param callback velora.OnQuerySkuDetailsFinished
function velora.setOnQuerySkuDetailsFinished(callback) end

---Returns the callback of QuerySkuDetailsFinished; nil if none is set.
---@return velora.OnQuerySkuDetailsFinished? callback
function velora.getOnQuerySkuDetailsFinished() end

---@alias velora.OnOrderCheckDone fun(order: velora.OrderInfo?)

---Sets the callback of OrderCheckDone, which occurs when an order has been checked. It receives `order`, whose
---`get_orderStatus` tells the result, or nil if the SDK sends none.
---@param callback velora.OnOrderCheckDone
function velora.setOnOrderCheckDone(callback) end

---Returns the callback of OrderCheckDone; nil if none is set.
---@return velora.OnOrderCheckDone? callback
function velora.getOnOrderCheckDone() end

---@alias velora.OnOrderCosumeDone fun(order: velora.OrderInfo?)

---Sets the callback of OrderCosumeDone, which occurs when an order has been consumed. The event's name is spelt this
---way. It receives `order`, whose `get_orderStatus` tells the result, or nil if the SDK sends none.
---@param callback velora.OnOrderCosumeDone
function velora.setOnOrderCosumeDone(callback) end

---Returns the callback of OrderCosumeDone; nil if none is set.
---@return velora.OnOrderCosumeDone? callback
function velora.getOnOrderCosumeDone() end

-- ### Store item types
-- Strings: kinds of store items.

---@class velora
---@field ITEM_TYPE_CONSUMABLE string For `zvQuerySkuDetails`. The SDK defines value and meaning.
---@field ITEM_TYPE_NON_CONSUMABLE string For `zvQuerySkuDetails`. The SDK defines value and meaning.
---@field ITEM_TYPE_SUBSCRIPTION string For `zvQuerySkuDetails`. The SDK defines value and meaning.
---@field ITEM_TYPE_AUTO_RECURRING_SUBSCRIPTIONS string For `zvQuerySkuDetails`. The SDK defines value and meaning.
---@field ITEM_TYPE_ALL string For `zvQuerySkuDetails`. The SDK defines value and meaning.

-- ## OrderInfo

---A payment order. The functions that are not methods, such as `regProduct`, are the SDK's product registry.
---@class velora.OrderInfo
---@field get_aid fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_aid fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_count fun(self: velora.OrderInfo): integer The quantity.
---@field set_count fun(self: velora.OrderInfo, value: integer) The quantity.
---@field get_curOrderChannel fun(self: velora.OrderInfo): string? The current channel of the order.
---@field get_externalChannelId fun(self: velora.OrderInfo): string? The id of an external channel.
---@field set_externalChannelId fun(self: velora.OrderInfo, value: velora.Text) The id of an external channel.
---@field get_ffChannel fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field get_jfCode fun(self: velora.OrderInfo): integer Defined by the SDK.
---@field set_jfCode fun(self: velora.OrderInfo, value: integer) Defined by the SDK.
---@field get_jfExtInfo fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_jfExtInfo fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_extendJson fun(self: velora.OrderInfo): string? Further data as JSON.
---@field set_extendJson fun(self: velora.OrderInfo, value: velora.Text) Further data as JSON.
---@field get_jfAasFfCode fun(self: velora.OrderInfo): integer Defined by the SDK.
---@field set_jfAasFfCode fun(self: velora.OrderInfo, value: integer) Defined by the SDK.
---@field get_jfAasFfRule fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_jfAasFfRule fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_jfMessage fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_jfMessage fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_veloraJfExtCid fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_veloraJfExtCid fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_jfGas3Url fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_jfGas3Url fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_jfSubCode fun(self: velora.OrderInfo): integer Defined by the SDK.
---@field set_jfSubCode fun(self: velora.OrderInfo, value: integer) Defined by the SDK.
---@field get_orderChannel fun(self: velora.OrderInfo): string? The channel of the order.
---@field set_orderChannel fun(self: velora.OrderInfo, value: velora.Text) The channel of the order.
---@field get_orderCurrency fun(self: velora.OrderInfo): string? The currency.
---@field set_orderCurrency fun(self: velora.OrderInfo, value: velora.Text) The currency.
---@field get_orderDesc fun(self: velora.OrderInfo): string? The description.
---@field set_orderDesc fun(self: velora.OrderInfo, value: velora.Text) The description.
---@field get_orderErrReason fun(self: velora.OrderInfo): string? Why the order failed.
---@field set_orderErrReason fun(self: velora.OrderInfo, value: velora.Text) Why the order failed.
---@field get_orderErrCode fun(self: velora.OrderInfo): string? The error code, a string.
---@field get_orderEtc fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_orderEtc fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_orderId fun(self: velora.OrderInfo): string? The order's id.
---@field set_orderId fun(self: velora.OrderInfo, value: velora.Text) The order's id.
---@field get_orderStatus fun(self: velora.OrderInfo): integer One of `ORDER_*`.
---@field set_orderStatus fun(self: velora.OrderInfo, value: integer) One of `ORDER_*`.
---@field get_productCurrentPrice fun(self: velora.OrderInfo): number The current price, in single precision.
---@field set_productCurrentPrice fun(self: velora.OrderInfo, value: number) The current price, in single precision.
---@field get_productExchangeRatio fun(self: velora.OrderInfo): number The exchange ratio, a float: 1.0 if it is 1.
---@field get_productId fun(self: velora.OrderInfo): string? The product's id.
---@field set_productId fun(self: velora.OrderInfo, value: velora.Text) The product's id.
---@field get_productName fun(self: velora.OrderInfo): string? The product's name.
---@field get_productPrice fun(self: velora.OrderInfo): number The product's price, in single precision.
---@field get_qrCodeParams fun(self: velora.OrderInfo): string? Parameters of an order by QR code.
---@field set_qrCodeParams fun(self: velora.OrderInfo, value: velora.Text) Parameters of an order by QR code.
---@field get_sdkOrderId fun(self: velora.OrderInfo): string? The SDK's id of the order.
---@field set_sdkOrderId fun(self: velora.OrderInfo, value: velora.Text) The SDK's id of the order.
---@field get_sdkPids fun(self: velora.OrderInfo): table<string, string>? Product ids by channel.
---@field get_serverId fun(self: velora.OrderInfo): string? The game server.
---@field set_serverId fun(self: velora.OrderInfo, value: velora.Text) The game server.
---@field get_signature fun(self: velora.OrderInfo): string? The signature.
---@field set_signature fun(self: velora.OrderInfo, value: velora.Text) The signature.
---@field get_uid fun(self: velora.OrderInfo): string? The user id.
---@field set_uid fun(self: velora.OrderInfo, value: velora.Text) The user id.
---@field get_userData fun(self: velora.OrderInfo): string? The game's own data.
---@field set_userData fun(self: velora.OrderInfo, value: velora.Text) The game's own data.
---@field get_userName fun(self: velora.OrderInfo): string? The user's name.
---@field set_userName fun(self: velora.OrderInfo, value: velora.Text) The user's name.
---@field get_receipt fun(self: velora.OrderInfo): string? The store's receipt.
---@field get_qrCodeOrder fun(self: velora.OrderInfo): boolean Whether it is an order by QR code.
---@field set_qrCodeOrder fun(self: velora.OrderInfo, value: boolean) Whether it is an order by QR code.
---@field get_arrPriceLocaleId fun(self: velora.OrderInfo): string[] Locale ids of prices.
---@field set_arrPriceLocaleId fun(self: velora.OrderInfo, value: velora.Text[]) Strings or numbers only.
---@field get_channelGoodsTypes fun(self: velora.OrderInfo): table<string, integer>? Goods types by channel.
---@field get_jellRatios fun(self: velora.OrderInfo): table<string, integer>? Ratios by channel.
---@field get_jellyExtra fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field get_cpOrderId fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_cpOrderId fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_jfExtraJson fun(self: velora.OrderInfo): string? Defined by the SDK.
---@field set_jfExtraJson fun(self: velora.OrderInfo, value: velora.Text) Defined by the SDK.
---@field get_timeStamp fun(self: velora.OrderInfo): integer The time stamp, 64 bits.
---@field get_orderType fun(self: velora.OrderInfo): integer The type of the order.
---@field set_orderType fun(self: velora.OrderInfo, value: integer) The type of the order.
velora.OrderInfo = {}

---Creates an order for a product. Raises an error if `productId` is neither a string nor a number, or if the SDK
---returns no order.
---@param productId velora.Text
---@return velora.OrderInfo
function velora.OrderInfo.new(productId) end

---Registers a product: by its id alone, or by the id, name, price, exchange ratio and `sdkPids` of a `ProductInfo`. The
---other fields of a `ProductInfo` are not passed on.
---@param product velora.Text|velora.ProductInfo
function velora.OrderInfo.regProduct(product) end

---Returns whether a product, or the product of an order, is registered. Returns false, not nil, for any other argument.
---@param product velora.Text|velora.OrderInfo
---@return boolean
function velora.OrderInfo.hasProduct(product) end

---Returns the registered products by id; nil, not an empty table, if there are none. Each product is a copy.
---@return table<string, velora.ProductInfo>? products
function velora.OrderInfo.getProductList() end

---Returns the type of a product, one of `PRODUCT_TYPE_*`.
---@param productId velora.Text
---@return integer
function velora.OrderInfo.getProductType(productId) end

---Sets the type of a product.
---@param productId velora.Text
---@param productType integer one of `PRODUCT_TYPE_*`
function velora.OrderInfo.setProductType(productId, productType) end

---Returns the order as JSON; nil if the SDK returns none.
---@return string?
function velora.OrderInfo:obj2Json() end

---Returns the SDK's cart information for this order; nil if the SDK returns none.
---@return string?
function velora.OrderInfo:produceCartInfo() end

-- ### Order states
-- The values of an order's `orderStatus`. Their meanings follow their names; the SDK decides when it sets which.

---@class velora
---@field ORDER_S_PREPARING 0 The order is being prepared.
---@field ORDER_S_SDK_CHECKING 1 The SDK is checking the order.
---@field ORDER_S_SDK_CHECK_OK 2 The SDK has accepted the order; offline, the success of `zvCheckOrder`.
---@field ORDER_S_SDK_CHECK_ERR 3 The SDK's check has failed; offline, the failure of `zvCheckOrder`.
---@field ORDER_S_GS_CHECKING 4 The game server is checking the order.
---@field ORDER_S_GS_CHECK_OK 5 The game server has accepted the order; offline, the success of `zvConsume`.
---@field ORDER_S_GS_CHECK_ERR 6 The game server's check has failed; offline, the failure of `zvConsume`.
---@field ORDER_S_WRONG_PRODUCT_ID 7 The product id is wrong.
---@field ORDER_S_WRONG_ORDER_ID 8 The order id is wrong.
---@field ORDER_ZV_OS_SDK_INVALID_CURRENCY 9 The currency is invalid.
---@field ORDER_S_SDK_CHECK_RESTORE_OK 10 The SDK has restored an earlier purchase.
---@field ORDER_S_SDK_CHECK_CANCEL 11 The SDK's check was cancelled.
---@field ORDER_S_SDK_CHANNEL_IN_BLACKLIST 430 The channel is on a blacklist.

-- ### Product types
-- The results of `getProductType` and the values for `setProductType`.

---@class velora
---@field PRODUCT_TYPE_CONSUMABLE 0 A product that is used up and can be bought again.
---@field PRODUCT_TYPE_NONCONSUMABLE 1 A product that is bought once.
---@field PRODUCT_TYPE_AUTORENEWABLE 2 A subscription that renews itself.
---@field PRODUCT_TYPE_NONRENEWABLE 3 A subscription that does not renew itself.
---@field PRODUCT_TYPE_PROMOCODE 4 A product that comes with a promotion code.

-- ## ProductInfo

---A product for the registry. It is a copy: changes reach the registry only through `OrderInfo.regProduct`.
---@class velora.ProductInfo
---@field get_productId fun(self: velora.ProductInfo): string The product's id.
---@field set_productId fun(self: velora.ProductInfo, value: velora.Text) The product's id.
---@field get_productName fun(self: velora.ProductInfo): string Its name.
---@field set_productName fun(self: velora.ProductInfo, value: velora.Text) Its name.
---@field get_productPrice fun(self: velora.ProductInfo): number Its price, in single precision.
---@field set_productPrice fun(self: velora.ProductInfo, value: number) Its price, in single precision.
---@field get_exchangeRatio fun(self: velora.ProductInfo): integer Its exchange ratio.
---@field set_exchangeRatio fun(self: velora.ProductInfo, value: integer) Its exchange ratio.
---@field get_sdkPids fun(self: velora.ProductInfo): table<string, string> Product ids by channel.
---@field set_sdkPids fun(self: velora.ProductInfo, value: table<velora.Text, velora.Text>) Product ids by channel.
---@field get_channelGoodsTypes fun(self: velora.ProductInfo): table<string, integer> Goods types by channel.
---@field set_channelGoodsTypes fun(self: velora.ProductInfo, value: table<velora.Text, integer>) Goods types.
---@field get_jellRatios fun(self: velora.ProductInfo): table<string, integer> Ratios by channel.
---@field set_jellRatios fun(self: velora.ProductInfo, value: table<velora.Text, integer>) Ratios by channel.
---@field get_jellyExtra fun(self: velora.ProductInfo): string Defined by the SDK.
---@field set_jellyExtra fun(self: velora.ProductInfo, value: velora.Text) Defined by the SDK.
---@field get_ffChannel fun(self: velora.ProductInfo): string Defined by the SDK.
---@field set_ffChannel fun(self: velora.ProductInfo, value: velora.Text) Defined by the SDK.
velora.ProductInfo = {}

---Creates an empty product with an exchange ratio of 1.
---@return velora.ProductInfo
function velora.ProductInfo.new() end

-- ## SkuDetailsInfo

---The store's description of an item. All fields are strings, even the price in micros.
---@class velora.SkuDetailsInfo
---@field get_description fun(self: velora.SkuDetailsInfo): string? The description.
---@field set_description fun(self: velora.SkuDetailsInfo, value: velora.Text) The description.
---@field get_price fun(self: velora.SkuDetailsInfo): string? The price as shown to the player.
---@field set_price fun(self: velora.SkuDetailsInfo, value: velora.Text) The price as shown to the player.
---@field get_priceAmountMicros fun(self: velora.SkuDetailsInfo): string? The price in millionths.
---@field set_priceAmountMicros fun(self: velora.SkuDetailsInfo, value: velora.Text) The price in millionths.
---@field get_priceCurrencyCode fun(self: velora.SkuDetailsInfo): string? The currency code.
---@field set_priceCurrencyCode fun(self: velora.SkuDetailsInfo, value: velora.Text) The currency code.
---@field get_productId fun(self: velora.SkuDetailsInfo): string? The item's id.
---@field set_productId fun(self: velora.SkuDetailsInfo, value: velora.Text) The item's id.
---@field get_title fun(self: velora.SkuDetailsInfo): string? The title.
---@field set_title fun(self: velora.SkuDetailsInfo, value: velora.Text) The title.
---@field get_type fun(self: velora.SkuDetailsInfo): string? The type of the item.
---@field set_type fun(self: velora.SkuDetailsInfo, value: velora.Text) The type of the item.
velora.SkuDetailsInfo = {}

---Creates a store item from seven strings. The SDK defines which field each of them fills; offline it is the order of
---the getters. Raises an error if the SDK returns no record.
---@param text1 velora.Text
---@param text2 velora.Text
---@param text3 velora.Text
---@param text4 velora.Text
---@param text5 velora.Text
---@param text6 velora.Text
---@param text7 velora.Text
---@return velora.SkuDetailsInfo
function velora.SkuDetailsInfo.new(text1, text2, text3, text4, text5, text6, text7) end

-- # Friends and ranks
-- Accounts of other players, invitations, rankings, achievements and quests.

-- ## Friends

---Requests the player's own account. It arrives as QueryMyAccountFinished.
function velora.zvQueryMyAccount() end

---Requests the player's friends. They arrive as QueryFriendListFinished.
function velora.zvQueryFriendList() end

---Requests the friends who play this game. They arrive as QueryFriendListInGameFinished.
function velora.zvQueryFriendListInGame() end

---Requests the accounts that can be invited. They arrive as QueryAvailablesInviteesFinished.
function velora.zvQueryAvailablesInvitees() end

---Requests the accounts that have invited the player. They arrive as QueryInviterListFinished.
function velora.zvQueryInviterList() end

---Removes accounts from the list of inviters. Raises an error if the argument is not a table. Leaves out elements that
---are neither strings nor numbers.
---@param accountIds velora.Text[]
function velora.zvDeleteInviters(accountIds) end

---Sends a friend request. The result arrives as QueryApplyFriendFinished.
---@param accountId velora.Text
function velora.zvApplyFriend(accountId) end

---Invites friends. The result arrives as QueryInviteFriendListFinished; offline it lists both strings.
---@param first velora.Text the SDK defines its meaning
---@param second velora.Text the SDK defines its meaning
function velora.zvInviteFriendList(first, second) end

---Asks whether the SDK's "daren" data has been updated. The result arrives as QueryIsDarenUpdated.
function velora.zvIsDarenUpdated() end

---Opens the page of other games. The offline runtime only records the call.
function velora.zvMoreGame() end

---@alias velora.OnQueryMyAccountFinished fun(account: velora.AccountInfo?)

---Sets the callback of QueryMyAccountFinished, which delivers the player's own account. It receives `account`, or nil
---if the SDK sends none.
---@param callback velora.OnQueryMyAccountFinished
function velora.setOnQueryMyAccountFinished(callback) end

---Returns the callback of QueryMyAccountFinished; nil if none is set.
---@return velora.OnQueryMyAccountFinished? callback
function velora.getOnQueryMyAccountFinished() end

---@alias velora.OnQueryFriendListFinished fun(accounts: velora.AccountInfo[])

---Sets the callback of QueryFriendListFinished, which delivers the player's friends. It receives `accounts`, a list of
---`AccountInfo`; empty if there are none or if the query has failed.
---@param callback velora.OnQueryFriendListFinished
function velora.setOnQueryFriendListFinished(callback) end

---Returns the callback of QueryFriendListFinished; nil if none is set.
---@return velora.OnQueryFriendListFinished? callback
function velora.getOnQueryFriendListFinished() end

---@alias velora.OnQueryFriendListInGameFinished fun(accounts: velora.AccountInfo[])

---Sets the callback of QueryFriendListInGameFinished, which delivers the friends who play this game. It receives
---`accounts`, a list of `AccountInfo`; empty if there are none or if the query has failed.
---@param callback velora.OnQueryFriendListInGameFinished
function velora.setOnQueryFriendListInGameFinished(callback) end

---Returns the callback of QueryFriendListInGameFinished; nil if none is set.
---@return velora.OnQueryFriendListInGameFinished? callback
function velora.getOnQueryFriendListInGameFinished() end

---@alias velora.OnQueryAvailablesInviteesFinished fun(accounts: velora.AccountInfo[])

---Sets the callback of QueryAvailablesInviteesFinished, which delivers the accounts that can be invited. It receives
---`accounts`, a list of `AccountInfo`; empty if there are none or if the query has failed.
---@param callback velora.OnQueryAvailablesInviteesFinished
function velora.setOnQueryAvailablesInviteesFinished(callback) end

---Returns the callback of QueryAvailablesInviteesFinished; nil if none is set.
---@return velora.OnQueryAvailablesInviteesFinished? callback
function velora.getOnQueryAvailablesInviteesFinished() end

---@alias velora.OnQueryInviterListFinished fun(accounts: velora.AccountInfo[])

---Sets the callback of QueryInviterListFinished, which delivers the accounts that have invited the player. It receives
---`accounts`, a list of `AccountInfo`; empty if there are none or if the query has failed.
---@param callback velora.OnQueryInviterListFinished
function velora.setOnQueryInviterListFinished(callback) end

---Returns the callback of QueryInviterListFinished; nil if none is set.
---@return velora.OnQueryInviterListFinished? callback
function velora.getOnQueryInviterListFinished() end

---@alias velora.OnQueryApplyFriendFinished fun(success: boolean)

---Sets the callback of QueryApplyFriendFinished, which occurs when a friend request has been sent or has failed. It
---receives `success`.
---@param callback velora.OnQueryApplyFriendFinished
function velora.setOnQueryApplyFriendFinished(callback) end

---Returns the callback of QueryApplyFriendFinished; nil if none is set.
---@return velora.OnQueryApplyFriendFinished? callback
function velora.getOnQueryApplyFriendFinished() end

---@alias velora.OnQueryInviteFriendListFinished fun(texts: string[])

---Sets the callback of QueryInviteFriendListFinished, which occurs when friends have been invited. It receives `texts`,
---a list of strings that the SDK defines; offline they are the two strings given to `zvInviteFriendList`, or none after
---a failure.
---@param callback velora.OnQueryInviteFriendListFinished
function velora.setOnQueryInviteFriendListFinished(callback) end

---Returns the callback of QueryInviteFriendListFinished; nil if none is set.
---@return velora.OnQueryInviteFriendListFinished? callback
function velora.getOnQueryInviteFriendListFinished() end

---@alias velora.OnQueryIsDarenUpdated fun(updated: boolean)

---Sets the callback of QueryIsDarenUpdated, the reply to `zvIsDarenUpdated`. It receives `updated`, whether the "daren"
---data has been updated.
---@param callback velora.OnQueryIsDarenUpdated
function velora.setOnQueryIsDarenUpdated(callback) end

---Returns the callback of QueryIsDarenUpdated; nil if none is set.
---@return velora.OnQueryIsDarenUpdated? callback
function velora.getOnQueryIsDarenUpdated() end

-- ## Ranks, achievements and quests

---Requests a ranking. It arrives as QueryRankFinished.
---@param query velora.QueryRankInfo
function velora.zvQueryRank(query) end

---Reports a score. The result arrives as QueryRankUpdateFinished.
---@param name velora.Text the ranking
---@param score number|string a string must convert to a number
function velora.zvUpdateRank(name, score) end

---Opens a leaderboard. The offline runtime only records the call.
---@param name velora.Text
function velora.zvDisplayLeaderboard(name) end

---Reports the progress of an achievement. The result arrives as QueryRankUpdateAchievement.
---@param name velora.Text
---@param progress integer
function velora.zvUpdateAchievement(name, progress) end

---Opens the list of achievements. The offline runtime only records the call.
function velora.zvDisplayAchievement() end

---Reports how often a game event has happened. The offline runtime only records the call.
---@param name velora.Text
---@param count integer
function velora.zvUpdateEvent(name, count) end

---Opens a view of quests. QuestCompleted follows for each completed quest; offline, for every quest shown. Raises an
---error if the argument is not a table. An element that does not convert to an integer counts as 0.
---@param quests integer[]
function velora.zvDisplayQuests(quests) end

---@alias velora.OnQueryRankFinished fun(accounts: velora.AccountInfo[])

---Sets the callback of QueryRankFinished, which delivers a ranking. It receives `accounts`, a list of `AccountInfo`;
---empty if there are none or if the query has failed.
---@param callback velora.OnQueryRankFinished
function velora.setOnQueryRankFinished(callback) end

---Returns the callback of QueryRankFinished; nil if none is set.
---@return velora.OnQueryRankFinished? callback
function velora.getOnQueryRankFinished() end

---@alias velora.OnQueryRankUpdateFinished fun(success: boolean)

---Sets the callback of QueryRankUpdateFinished, which occurs when a score has been reported or could not be. It
---receives `success`.
---@param callback velora.OnQueryRankUpdateFinished
function velora.setOnQueryRankUpdateFinished(callback) end

---Returns the callback of QueryRankUpdateFinished; nil if none is set.
---@return velora.OnQueryRankUpdateFinished? callback
function velora.getOnQueryRankUpdateFinished() end

---@alias velora.OnQueryRankUpdateAchievement fun(success: boolean)

---Sets the callback of QueryRankUpdateAchievement, which occurs when the progress of an achievement has been reported
---or could not be. It receives `success`.
---@param callback velora.OnQueryRankUpdateAchievement
function velora.setOnQueryRankUpdateAchievement(callback) end

---Returns the callback of QueryRankUpdateAchievement; nil if none is set.
---@return velora.OnQueryRankUpdateAchievement? callback
function velora.getOnQueryRankUpdateAchievement() end

---@alias velora.OnQuestCompleted fun(text: string)

---Sets the callback of QuestCompleted, which occurs when a quest has been completed. It receives `text`, which names
---the quest in a form that the SDK defines; offline it is the quest's number.
---@param callback velora.OnQuestCompleted
function velora.setOnQuestCompleted(callback) end

---Returns the callback of QuestCompleted; nil if none is set.
---@return velora.OnQuestCompleted? callback
function velora.getOnQuestCompleted() end

-- ## AccountInfo

---An account: a friend, an inviter, a place in a ranking. Most accounts come through callbacks.
---@class velora.AccountInfo
---@field get_accountId fun(self: velora.AccountInfo): string? The account's id.
---@field set_accountId fun(self: velora.AccountInfo, value: velora.Text) The account's id.
---@field get_icon fun(self: velora.AccountInfo): string? The picture.
---@field set_icon fun(self: velora.AccountInfo, value: velora.Text) The picture.
---@field get_idType fun(self: velora.AccountInfo): string? The type of the id.
---@field set_idType fun(self: velora.AccountInfo, value: velora.Text) The type of the id.
---@field get_nickname fun(self: velora.AccountInfo): string? The nickname.
---@field set_nickname fun(self: velora.AccountInfo, value: velora.Text) The nickname.
---@field get_rank fun(self: velora.AccountInfo): integer The place in the ranking, 64 bits.
---@field set_rank fun(self: velora.AccountInfo, value: integer) The place in the ranking, 64 bits.
---@field get_rankScore fun(self: velora.AccountInfo): number The score in the ranking.
---@field set_rankScore fun(self: velora.AccountInfo, value: number) The score in the ranking.
---@field get_relationType fun(self: velora.AccountInfo): string? The account's relation to the player.
---@field set_relationType fun(self: velora.AccountInfo, value: velora.Text) The account's relation to the player.
---@field get_remark fun(self: velora.AccountInfo): string? A remark.
---@field set_remark fun(self: velora.AccountInfo, value: velora.Text) A remark.
---@field get_statusMessage fun(self: velora.AccountInfo): string? The status message.
---@field set_statusMessage fun(self: velora.AccountInfo, value: velora.Text) The status message.
---@field get_inGame fun(self: velora.AccountInfo): boolean Whether it plays this game.
---@field set_inGame fun(self: velora.AccountInfo, value: boolean) Whether it plays this game.
velora.AccountInfo = {}

---Creates an account. Pass no argument rather than nil, which is a bad argument. Raises an error if the SDK returns no
---record.
---@overload fun(): velora.AccountInfo
---@param text velora.Text the SDK defines its meaning
---@return velora.AccountInfo
function velora.AccountInfo.new(text) end

-- ## QueryRankInfo

---A ranking query: which ranking, among whom, and how many places.
---@class velora.QueryRankInfo
---@field get_type fun(self: velora.QueryRankInfo): string? One of `QUERY_RANK_TYPE_*`.
---@field set_type fun(self: velora.QueryRankInfo, value: velora.Text) One of `QUERY_RANK_TYPE_*`.
---@field get_scope fun(self: velora.QueryRankInfo): string? One of `QUERY_RANK_SCOPE_*`.
---@field set_scope fun(self: velora.QueryRankInfo, value: velora.Text) One of `QUERY_RANK_SCOPE_*`.
---@field get_count fun(self: velora.QueryRankInfo): integer How many places.
---@field set_count fun(self: velora.QueryRankInfo, value: integer) How many places.
velora.QueryRankInfo = {}

---Creates a ranking query. Pass no argument rather than nil, which is a bad argument. Raises an error if the SDK
---returns no record.
---@overload fun(): velora.QueryRankInfo
---@param text velora.Text the SDK defines its meaning
---@return velora.QueryRankInfo
function velora.QueryRankInfo.new(text) end

-- ### Kinds and scopes of a ranking
-- Strings of the SDK, for `set_type` and `set_scope` of a query.

---@class velora
---@field QUERY_RANK_TYPE_SCORE string Rank by score. The SDK defines the value.
---@field QUERY_RANK_TYPE_GRADE string Rank by grade. The SDK defines the value.
---@field QUERY_RANK_SCOPE_ALL string Rank among all players. The SDK defines the value.
---@field QUERY_RANK_SCOPE_FRIEND string Rank among friends. The SDK defines the value.

-- # Sharing
-- A request is filled field by field, checked with `zvCheckArgs` and sent with `zvShare`.

-- ## Sending a request

---Sends a share request. The result arrives as ShareFinished.
---@param share velora.ShareInfo
function velora.zvShare(share) end

---Returns whether a share request is complete enough to be sent.
---@param share velora.ShareInfo
---@return boolean
function velora.zvCheckArgs(share) end

---Returns the message of the last request that was shared; nil if there is none. Offline it is the request's `text`, or
---its `title` if that is empty.
---@return string?
function velora.getLastShareMessage() end

---@alias velora.OnShareFinished fun(success: boolean)

---Sets the callback of ShareFinished, which occurs when a request has been shared or could not be. It receives
---`success`.
---@param callback velora.OnShareFinished
function velora.setOnShareFinished(callback) end

---Returns the callback of ShareFinished; nil if none is set.
---@return velora.OnShareFinished? callback
function velora.getOnShareFinished() end

-- ## ShareInfo

---A share request. The maps `…Params` and `…Msg` and the list of recipients reach the SDK when the request is sent,
---checked or converted with `tostring`; every other field at once.
---@class velora.ShareInfo
---@field get_aLinkParams fun(self: velora.ShareInfo): table<string, string> Defined by the SDK.
---@field set_aLinkParams fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>) Defined by the SDK.
---@field get_altTextMsg fun(self: velora.ShareInfo): table<string, string> Defined by the SDK.
---@field set_altTextMsg fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>) Defined by the SDK.
---@field get_desc fun(self: velora.ShareInfo): string? The description.
---@field set_desc fun(self: velora.ShareInfo, value: velora.Text) The description.
---@field get_extJson fun(self: velora.ShareInfo): string? Further data as JSON.
---@field set_extJson fun(self: velora.ShareInfo, value: velora.Text) Further data as JSON.
---@field get_failMsg fun(self: velora.ShareInfo): string? The message shown when sharing fails.
---@field set_failMsg fun(self: velora.ShareInfo, value: velora.Text) The message shown when sharing fails.
---@field get_iLinkParams fun(self: velora.ShareInfo): table<string, string> Defined by the SDK.
---@field set_iLinkParams fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>) Defined by the SDK.
---@field get_image fun(self: velora.ShareInfo): string? The picture.
---@field set_image fun(self: velora.ShareInfo, value: velora.Text) The picture.
---@field get_link fun(self: velora.ShareInfo): string? The link.
---@field set_link fun(self: velora.ShareInfo, value: velora.Text) The link.
---@field get_linkParams fun(self: velora.ShareInfo): table<string, string> Parameters of the link.
---@field set_linkParams fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>) Parameters of the link.
---@field get_linkTextMsg fun(self: velora.ShareInfo): table<string, string> Defined by the SDK.
---@field set_linkTextMsg fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>) Defined by the SDK.
---@field get_musicUrl fun(self: velora.ShareInfo): string? The address of the music.
---@field set_musicUrl fun(self: velora.ShareInfo, value: velora.Text) The address of the music.
---@field get_objectValue fun(self: velora.ShareInfo): string? Defined by the SDK.
---@field set_objectValue fun(self: velora.ShareInfo, value: velora.Text) Defined by the SDK.
---@field get_roomId fun(self: velora.ShareInfo): string? The id of the room to invite to.
---@field set_roomId fun(self: velora.ShareInfo, value: velora.Text) The id of the room to invite to.
---@field get_roomToken fun(self: velora.ShareInfo): string? The token of that room.
---@field set_roomToken fun(self: velora.ShareInfo, value: velora.Text) The token of that room.
---@field get_scope fun(self: velora.ShareInfo): string? One of `SHARE_SCOPE_*`.
---@field set_scope fun(self: velora.ShareInfo, value: velora.Text) One of `SHARE_SCOPE_*`.
---@field get_shareChannel fun(self: velora.ShareInfo): integer One of `ZV_SHARE_TYPE_*`.
---@field set_shareChannel fun(self: velora.ShareInfo, value: integer) One of `ZV_SHARE_TYPE_*`.
---@field get_subTextMsg fun(self: velora.ShareInfo): table<string, string> Defined by the SDK.
---@field set_subTextMsg fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>) Defined by the SDK.
---@field get_templateId fun(self: velora.ShareInfo): string? The id of a template.
---@field set_templateId fun(self: velora.ShareInfo, value: velora.Text) The id of a template.
---@field get_text fun(self: velora.ShareInfo): string? The text.
---@field set_text fun(self: velora.ShareInfo, value: velora.Text) The text.
---@field get_tag fun(self: velora.ShareInfo): string? The tag.
---@field set_tag fun(self: velora.ShareInfo, value: velora.Text) The tag.
---@field get_textMsg fun(self: velora.ShareInfo): table<string, string> Defined by the SDK.
---@field set_textMsg fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>) Defined by the SDK.
---@field get_timelineType fun(self: velora.ShareInfo): string? The kind of timeline.
---@field set_timelineType fun(self: velora.ShareInfo, value: velora.Text) The kind of timeline.
---@field get_title fun(self: velora.ShareInfo): string? The title.
---@field set_title fun(self: velora.ShareInfo, value: velora.Text) The title.
---@field get_toUser fun(self: velora.ShareInfo): string? The recipient.
---@field set_toUser fun(self: velora.ShareInfo, value: velora.Text) The recipient.
---@field get_toUserList fun(self: velora.ShareInfo): string[] The recipients.
---@field set_toUserList fun(self: velora.ShareInfo, value: velora.Text[]) The recipients.
---@field get_type fun(self: velora.ShareInfo): string? One of `SHARE_TYPE_*`.
---@field set_type fun(self: velora.ShareInfo, value: velora.Text) One of `SHARE_TYPE_*`.
---@field get_u3dShareBitmap fun(self: velora.ShareInfo): string? Defined by the SDK.
---@field set_u3dShareBitmap fun(self: velora.ShareInfo, value: velora.Text) Defined by the SDK.
---@field get_u3dshareThumb fun(self: velora.ShareInfo): string? Spelt with a small s, unlike `u3dShareBitmap`.
---@field set_u3dshareThumb fun(self: velora.ShareInfo, value: velora.Text) Spelt with a small s.
---@field get_videoUrl fun(self: velora.ShareInfo): string? The address of the video.
---@field set_videoUrl fun(self: velora.ShareInfo, value: velora.Text) The address of the video.
---@field get_showShareDialog fun(self: velora.ShareInfo): boolean Whether the SDK asks where to share.
---@field set_showShareDialog fun(self: velora.ShareInfo, value: boolean) Whether the SDK asks where to share.
---@field get_shareThumb fun(self: velora.ShareInfo): string? The small picture.
---@field set_shareThumb fun(self: velora.ShareInfo, value: velora.Text) The small picture.
---@field get_shareBitmap fun(self: velora.ShareInfo): string? The picture data.
---@field set_shareBitmap fun(self: velora.ShareInfo, value: velora.Text) The picture data.
---@field get_path fun(self: velora.ShareInfo): string? The page of a mini program.
---@field set_path fun(self: velora.ShareInfo, value: velora.Text) The page of a mini program.
---@field get_userName fun(self: velora.ShareInfo): string? The name of a mini program.
---@field set_userName fun(self: velora.ShareInfo, value: velora.Text) The name of a mini program.
---@field get_miniProgramType fun(self: velora.ShareInfo): integer `MINIPROGRAM_TYPE_*`, `MINIPTOGRAM_TYPE_RELEASE`.
---@field set_miniProgramType fun(self: velora.ShareInfo, value: integer) `MINIPROGRAM_TYPE_*`.
---@field get_shareData fun(self: velora.ShareInfo): table<string, string>? Further data by name.
---@field set_shareData fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>) Further data by name.
velora.ShareInfo = {}

---Creates a share request. Pass no argument rather than nil, which is a bad argument. Raises an error if the SDK
---returns no record.
---@overload fun(): velora.ShareInfo
---@param text velora.Text the SDK defines its meaning
---@return velora.ShareInfo
function velora.ShareInfo.new(text) end

-- ### Kinds and scopes of a request
-- Strings of the SDK: `SHARE_TYPE_*` for `set_type`, `SHARE_SCOPE_*` for `set_scope`.

---@class velora
---@field SHARE_SCOPE_TOUSER string Share with one user. The SDK defines the value.
---@field SHARE_SCOPE_CIRCLE string Share with a circle. The SDK defines the value.
---@field SHARE_SCOPE_MULTIUSER string Share with several users. The SDK defines the value.
---@field SHARE_TYPE_INVITE string Share an invitation. The SDK defines the value.
---@field SHARE_TYPE_IMAGE string Share a picture. The SDK defines the value.
---@field SHARE_TYPE_LINK string Share a link. The SDK defines the value.
---@field SHARE_TYPE_VIDEO string Share a video. The SDK defines the value.
---@field SHARE_TYPE_AUDIO string Share a sound recording. The SDK defines the value.
---@field SHARE_TYPE_GIF string Share a GIF picture. The SDK defines the value.
---@field SHARE_TYPE_TEXT_ONLY string Share only text. The SDK defines the value.
---@field SHARE_TYPE_ATTENTION string Kind of request: attention. The SDK defines value and meaning.
---@field SHARE_TYPE_GAME_REQUEST string Share a game request. The SDK defines the value.
---@field SHARE_TYPE_GET_TOKEN string Kind of request: get a token. The SDK defines value and meaning.
---@field SHARE_TYPE_GET_RTMP string Kind of request: get an RTMP address. The SDK defines value and meaning.
---@field SHARE_TYPE_CLEAR_TOKEN string Kind of request: clear a token. The SDK defines value and meaning.
---@field SHARE_TYPE_MINI_PROGRAM string Share a mini program. The SDK defines the value.
---@field SHARE_TYPE_MUSIC string Share music. The SDK defines the value.

-- ### Share channel codes
-- Integers, for `set_shareChannel` of a request.

---@class velora
---@field ZV_SHARE_TYPE_ANY integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_WEIBO integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_WEIXIN_FRIEND integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_WEIXIN_TIMELINE integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_PELIA_FRIEND integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_PELIA_TIMELINE integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_QQ integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_QZONE integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_PLUS integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_FACEBOOK integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_GARENA integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_KAKAO integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_TWITTER integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_ZALO integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_VK integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_LINE integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_FACEBOOK_MESSENGER integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_FACEBOOK_LIKE integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_WEIBO_ATTENTION integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_WEIXIN_ATTENTION integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_NAVER_CAFE integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_WHATSAPP integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_INSTAGRAM integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_YOUTUBE integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_BAIDU_TIEBA integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_STARLIT_TIMELINE integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_STARLIT_FRIEND integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_XIAN_LIAO integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_INSTAGRAM_2 integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_TWITTER_2 integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_LINE_2 integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_LINE_GAME integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_MINI_PROGRAM integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_DOUYIN integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_KUAISHOU integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_KAKAO_STORY integer Channel for `set_shareChannel`. The SDK defines value and meaning.
---@field ZV_SHARE_TYPE_TIKTOK integer Channel for `set_shareChannel`. The SDK defines value and meaning.

-- ### Mini program
-- A property name, a string, and integers for `set_miniProgramType`. `MINIPTOGRAM_TYPE_RELEASE` is spelt this way.

---@class velora
---@field MINI_PROGRAM_RELEASE_TYPE string Property name. The SDK defines value and meaning.
---@field MINIPTOGRAM_TYPE_RELEASE integer Released, for `set_miniProgramType`. Spelt this way. The SDK defines the value.
---@field MINIPROGRAM_TYPE_TEST integer Test version, for `set_miniProgramType`. The SDK defines the value.
---@field MINIPROGRAM_TYPE_PREVIEW integer Preview, for `set_miniProgramType`. The SDK defines the value.

-- # Notifications
-- Messages to players who are not in the game: push notifications over the network, local ones from this device.

-- ## Push notifications

---Asks whether push notifications are enabled. The result arrives as PushGetUserPushFinished.
function velora.zvGetUsePushNotification() end

---Enables or disables push notifications. The result arrives as PushSetUserPushFinished.
---@param enabled boolean
function velora.zvSetUsePushNotification(enabled) end

---Sends a push notification to other players. The result arrives as PushSendPushNotificationFinished. Leaves out
---elements that are neither strings nor numbers.
---@param text velora.Text
---@param accountIds velora.Text[]
function velora.zvSendPushNotification(text, accountIds) end

---@alias velora.OnPushGetUserPushFinished fun(enabled: boolean)

---Sets the callback of PushGetUserPushFinished, the reply to `zvGetUsePushNotification`. It receives `enabled`, whether
---push notifications are enabled.
---@param callback velora.OnPushGetUserPushFinished
function velora.setOnPushGetUserPushFinished(callback) end

---Returns the callback of PushGetUserPushFinished; nil if none is set.
---@return velora.OnPushGetUserPushFinished? callback
function velora.getOnPushGetUserPushFinished() end

---@alias velora.OnPushSetUserPushFinished fun(success: boolean)

---Sets the callback of PushSetUserPushFinished, which occurs when push notifications have been enabled or disabled or
---could not be. It receives `success`.
---@param callback velora.OnPushSetUserPushFinished
function velora.setOnPushSetUserPushFinished(callback) end

---Returns the callback of PushSetUserPushFinished; nil if none is set.
---@return velora.OnPushSetUserPushFinished? callback
function velora.getOnPushSetUserPushFinished() end

---@alias velora.OnPushSendPushNotificationFinished fun(success: boolean)

---Sets the callback of PushSendPushNotificationFinished, which occurs when a push notification has been sent or could
---not be. It receives `success`.
---@param callback velora.OnPushSendPushNotificationFinished
function velora.setOnPushSendPushNotificationFinished(callback) end

---Returns the callback of PushSendPushNotificationFinished; nil if none is set.
---@return velora.OnPushSendPushNotificationFinished? callback
function velora.getOnPushSendPushNotificationFinished() end

-- ## Local notifications

---Sends a notification on this device. The result arrives as PushSendLocalNotificationFinished.
---@param text velora.Text
function velora.zvSendLocalNotification(text) end

---Cancels a local notification. The result arrives as CancelLocalPushFinished.
---@param id integer the SDK defines the ids; offline any cancels
function velora.zvCancelLocalNotification(id) end

---Returns whether the SDK has a notification. Offline it has one after `zvSendLocalNotification` has succeeded and
---until `zvCancelLocalNotification` succeeds.
---@return boolean
function velora.zvHasNotification() end

---@alias velora.OnPushSendLocalNotificationFinished fun(code: integer)

---Sets the callback of PushSendLocalNotificationFinished, which occurs when a local notification has been sent or could
---not be. It receives `code`, which the SDK defines; offline it is 0 for success and 1 for a failure.
---@param callback velora.OnPushSendLocalNotificationFinished
function velora.setOnPushSendLocalNotificationFinished(callback) end

---Returns the callback of PushSendLocalNotificationFinished; nil if none is set.
---@return velora.OnPushSendLocalNotificationFinished? callback
function velora.getOnPushSendLocalNotificationFinished() end

---@alias velora.OnCancelLocalPushFinished fun(success: boolean)

---Sets the callback of CancelLocalPushFinished, which occurs when a local notification has been cancelled or could not
---be. It receives `success`.
---@param callback velora.OnCancelLocalPushFinished
function velora.setOnCancelLocalPushFinished(callback) end

---Returns the callback of CancelLocalPushFinished; nil if none is set.
---@return velora.OnCancelLocalPushFinished? callback
function velora.getOnCancelLocalPushFinished() end

-- ## Messages received

---@alias velora.OnReceiveMsgNotification fun()

---Sets the callback of ReceiveMsgNotification, which occurs when a message notification has been received. It receives
---nothing.
---@param callback velora.OnReceiveMsgNotification
function velora.setOnReceiveMsgNotification(callback) end

---Returns the callback of ReceiveMsgNotification; nil if none is set.
---@return velora.OnReceiveMsgNotification? callback
function velora.getOnReceiveMsgNotification() end

---@alias velora.OnReceiveMsgEnterGame fun(first: string, second: string)

---Sets the callback of ReceiveMsgEnterGame, which occurs when the player has entered the game from a message. It
---receives two strings, `first` and `second`, which the SDK defines.
---@param callback velora.OnReceiveMsgEnterGame
function velora.setOnReceiveMsgEnterGame(callback) end

---Returns the callback of ReceiveMsgEnterGame; nil if none is set.
---@return velora.OnReceiveMsgEnterGame? callback
function velora.getOnReceiveMsgEnterGame() end

-- # Channels
-- The connection between the account and a channel account.

-- ## Connecting

---Connects the account to the channel. The result arrives as ConnectToChannelFinished.
function velora.zvConnectToChannel() end

---Disconnects the account from the channel. The result arrives as DisconnectToChannelFinished.
function velora.zvDisConnectFromChannel() end

---Returns whether the channel is connected.
---@return boolean
function velora.zvHasChannelConnected() end

---Returns the account's id in the channel; nil if the SDK has none. Offline there is one while the channel is
---connected.
---@return string?
function velora.zvGetChannelID() end

---Selects an option of the channel. The result arrives as SelectChannelOptionFinished.
---@param option integer the SDK defines the options
function velora.zvSelectChannelOption(option) end

---Tells the SDK the player's zone, that is, the game server. The offline runtime only records the call.
---@param zone velora.Text
function velora.zvSetZone(zone) end

---@alias velora.OnConnectToChannelFinished fun(code: integer)

---Sets the callback of ConnectToChannelFinished, which occurs when an attempt to connect to the channel has ended. It
---receives `code`, one of `CONNECT_*`.
---@param callback velora.OnConnectToChannelFinished
function velora.setOnConnectToChannelFinished(callback) end

---Returns the callback of ConnectToChannelFinished; nil if none is set.
---@return velora.OnConnectToChannelFinished? callback
function velora.getOnConnectToChannelFinished() end

---@alias velora.OnDisconnectToChannelFinished fun(code: integer)

---Sets the callback of DisconnectToChannelFinished, which occurs when an attempt to disconnect from the channel has
---ended. It receives `code`, which the SDK defines; offline it is 0 for success and 1 for a failure.
---@param callback velora.OnDisconnectToChannelFinished
function velora.setOnDisconnectToChannelFinished(callback) end

---Returns the callback of DisconnectToChannelFinished; nil if none is set.
---@return velora.OnDisconnectToChannelFinished? callback
function velora.getOnDisconnectToChannelFinished() end

---@alias velora.OnSelectChannelOptionFinished fun(success: boolean)

---Sets the callback of SelectChannelOptionFinished, which occurs when a channel option has been selected or could not
---be. It receives `success`.
---@param callback velora.OnSelectChannelOptionFinished
function velora.setOnSelectChannelOptionFinished(callback) end

---Returns the callback of SelectChannelOptionFinished; nil if none is set.
---@return velora.OnSelectChannelOptionFinished? callback
function velora.getOnSelectChannelOptionFinished() end

-- ### Codes of ConnectToChannelFinished
-- The values of `code` in ConnectToChannelFinished. Their meanings follow their names; the SDK decides when it sends
-- each.

---@class velora
---@field CONNECT_OK 0 The channel is connected.
---@field CONNECT_FAILED 1 The connection has failed.
---@field CONNECT_NEWID 2 The result concerns a new id; the SDK defines when.
---@field CONNECT_USEDID 3 The result concerns an id that is in use; the SDK defines when.
---@field CONNECT_MODIFIED 4 The connection was modified; the SDK defines when.
---@field CONNECT_CANCELED 5 The connection was cancelled.
---@field CONNECT_SIGN_CANCELED 6 The sign-in to the channel was cancelled.

-- # Views and QR codes
-- Web pages and the SDK's own views over the game, the floating button, QR codes.

-- ## Web views and boards

---Opens a web page in the SDK's web view. Offline, ShowViewOpened or ShowViewFailed follows.
---@param url velora.Text
function velora.zvOpenWebView(url) end

---Closes the web view. Offline, ShowViewClosed follows.
function velora.zvCloseWebView() end

---Shows a web page of the SDK. Offline, ShowViewOpened or ShowViewFailed follows.
---@param url velora.Text one of `ZV_WEB_*`, or another string that the SDK knows
function velora.zvShowWeb(url) end

---Shows a board. Offline, ShowViewOpened or ShowViewFailed follows.
---@param first velora.Text the SDK defines its meaning
---@param second velora.Text the SDK defines its meaning
---@param third velora.Text the SDK defines its meaning
function velora.zvShowBoard(first, second, third) end

---@alias velora.OnWebviewNativeCall fun(first: string, second: string)

---Sets the callback of WebviewNativeCall, which occurs when a page in the web view calls the game. It receives two
---strings, `first` and `second`, which the page and the SDK define.
---@param callback velora.OnWebviewNativeCall
function velora.setOnWebviewNativeCall(callback) end

---Returns the callback of WebviewNativeCall; nil if none is set.
---@return velora.OnWebviewNativeCall? callback
function velora.getOnWebviewNativeCall() end

-- ### Web pages
-- Strings: web pages of the SDK.

---@class velora
---@field ZV_WEB_NOTICE_INTRO string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_NOTICE_INGAME string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_PROMOTION_MAIN string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_PROMOTION_EVENT string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_PROMOTION_ETC string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_COUPON string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_CUSTOMER_SUPPORT_HOME string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_CUSTOMER_SUPPORT_FAQ string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_CUSTOMER_SUPPORT_INQUIRY string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_CUSTOMER_SUPPORT_GUIDE string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_CUSTOMER_SUPPORT_HISTORY string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_GAME_REVIEW string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.
---@field ZV_WEB_FREE_CHARGEVIEW string Web page of the SDK, for `zvShowWeb`. The SDK defines value and meaning.

-- ## Other views

---Shows the view of rewards. ShowViewRewarded follows when the player has earned a reward; offline ShowViewOpened or
---ShowViewFailed and, at the end, ShowViewClosed follow as well. Raises an error if the argument is not a table. Leaves
---out elements that are neither strings nor numbers.
---@param rewards velora.Text[]
function velora.zvShowRewardView(rewards) end

---Opens the conversation with customer support. Offline, ShowViewOpened or ShowViewFailed follows.
function velora.zvShowConversation() end

---Opens the frequently asked questions. Offline, ShowViewOpened or ShowViewFailed follows.
function velora.zvShowFAQs() end

---Opens the view of players nearby. Offline, ShowViewOpened or ShowViewFailed follows.
function velora.zvOpenNearby() end

---Opens the VESPERA view. Offline, ShowViewOpened or ShowViewFailed follows.
function velora.zvOpenVespera() end

---Closes the flash view. Offline, ShowViewClosed follows.
function velora.zvCloseFlash() end

---Shows or hides the SDK's floating button. The argument is converted to a boolean: 0 shows the button, no argument
---hides it. The offline runtime only records the call.
---@param visible? any
function velora.zvSetFloatBtnVisible(visible) end

---@alias velora.OnShowViewOpened fun()

---Sets the callback of ShowViewOpened, which occurs when a view has opened. It receives nothing.
---@param callback velora.OnShowViewOpened
function velora.setOnShowViewOpened(callback) end

---Returns the callback of ShowViewOpened; nil if none is set.
---@return velora.OnShowViewOpened? callback
function velora.getOnShowViewOpened() end

---@alias velora.OnShowViewFailed fun()

---Sets the callback of ShowViewFailed, which occurs when a view could not be opened. It receives nothing.
---@param callback velora.OnShowViewFailed
function velora.setOnShowViewFailed(callback) end

---Returns the callback of ShowViewFailed; nil if none is set.
---@return velora.OnShowViewFailed? callback
function velora.getOnShowViewFailed() end

---@alias velora.OnShowViewClosed fun()

---Sets the callback of ShowViewClosed, which occurs when a view has been closed. It receives nothing.
---@param callback velora.OnShowViewClosed
function velora.setOnShowViewClosed(callback) end

---Returns the callback of ShowViewClosed; nil if none is set.
---@return velora.OnShowViewClosed? callback
function velora.getOnShowViewClosed() end

---@alias velora.OnShowViewRewarded fun()

---Sets the callback of ShowViewRewarded, which occurs when the player has earned the reward of a view. It receives
---nothing.
---@param callback velora.OnShowViewRewarded
function velora.setOnShowViewRewarded(callback) end

---Returns the callback of ShowViewRewarded; nil if none is set.
---@return velora.OnShowViewRewarded? callback
function velora.getOnShowViewRewarded() end

-- ## QR codes

---Creates a QR code as a picture. The result arrives as CreateQRCodeDone. Offline nothing is drawn.
---@param text velora.Text what the code contains
---@param width integer
---@param height integer
---@param path velora.Text the SDK defines its meaning; offline the event's `text` is this string
---@param icon? any a string or number is passed to the SDK, which defines its meaning; any other value is ignored
function velora.zvCreateQRCode(text, width, height, path, icon) end

---Scans a QR code. The result arrives as CodeScannerFinish.
---@param text velora.Text the SDK defines its meaning; offline it is what the scanner reads
function velora.zvScannerQRCode(text) end

---Opens the QR code scanner. The result arrives as CodeScannerFinish.
---@param text velora.Text the SDK defines its meaning; offline it is what the scanner reads
---@param number integer the SDK defines its meaning
function velora.zvPresentQRCodeScanner(text, number) end

---@alias velora.OnCreateQRCodeDone fun(text: string)

---Sets the callback of CreateQRCodeDone, which occurs when a QR code has been created or could not be. It receives
---`text`, which the SDK defines; offline it is the `path` given to `zvCreateQRCode`, or empty after a failure.
---@param callback velora.OnCreateQRCodeDone
function velora.setOnCreateQRCodeDone(callback) end

---Returns the callback of CreateQRCodeDone; nil if none is set.
---@return velora.OnCreateQRCodeDone? callback
function velora.getOnCreateQRCodeDone() end

---@alias velora.OnCodeScannerFinish fun(code: integer, text: string)

---Sets the callback of CodeScannerFinish, which occurs when a scan has ended. It receives `code`, one of
---`CODE_SCANNER_*`, and `text`, which the SDK defines; offline it is the string with which the scanner was opened, or
---empty after a failure.
---@param callback velora.OnCodeScannerFinish
function velora.setOnCodeScannerFinish(callback) end

---Returns the callback of CodeScannerFinish; nil if none is set.
---@return velora.OnCodeScannerFinish? callback
function velora.getOnCodeScannerFinish() end

-- ### Codes of CodeScannerFinish
-- The values of `code` in CodeScannerFinish. Their meanings follow their names; the SDK decides when it sends each.

---@class velora
---@field CODE_SCANNER_SUCCESS 0 A code was read.
---@field CODE_SCANNER_PARAM_INVALID 1 A parameter was invalid.
---@field CODE_SCANNER_UID_MISMATCH 2 The user id does not match.
---@field CODE_SCANNER_RETURN_GAME 3 The player returned to the game.
---@field CODE_SCANNER_QR_CODE_INVALID 5 The QR code is invalid.
---@field CODE_SCANNER_PERMISSIONS_DENY 4 A permission was denied.
---@field CODE_SCANNER_FAIL 10 The scan has failed.
---@field CODE_SCANNER_PICTURE_EMPTY 11 The picture is empty.
---@field CODE_SCANNER_EXT_QRCODE_SUEESS 21 An "EXT" QR code was read. The name is spelt this way.
---@field CODE_SCANNER_CHANNEL_NOT_SUPPORT 31 The channel does not support scanning.

-- # Controllers
-- Input from game controllers. Each callback receives a `PadEvent` with the details.

-- ## Controller callbacks

---@alias velora.OnControllerKeyDown fun(keyCode: integer, pad: velora.PadEvent?)

---Sets the callback of ControllerKeyDown, which occurs when a key goes down. It receives `keyCode`, one of
---`PAD_KEYCODE_*`, and `pad`, the event's `PadEvent`.
---@param callback velora.OnControllerKeyDown
function velora.setOnControllerKeyDown(callback) end

---Returns the callback of ControllerKeyDown; nil if none is set.
---@return velora.OnControllerKeyDown? callback
function velora.getOnControllerKeyDown() end

---@alias velora.OnControllerKeyUp fun(keyCode: integer, pad: velora.PadEvent?)

---Sets the callback of ControllerKeyUp, which occurs when a key goes up. It receives `keyCode`, one of `PAD_KEYCODE_*`,
---and `pad`, the event's `PadEvent`.
---@param callback velora.OnControllerKeyUp
function velora.setOnControllerKeyUp(callback) end

---Returns the callback of ControllerKeyUp; nil if none is set.
---@return velora.OnControllerKeyUp? callback
function velora.getOnControllerKeyUp() end

---@alias velora.OnControllerKeyPressure fun(keyCode: integer, pressure: number, pad: velora.PadEvent?)

---Sets the callback of ControllerKeyPressure, which occurs when the pressure on a key has changed. It receives
---`keyCode`, one of `PAD_KEYCODE_*`, `pressure` and `pad`, the event's `PadEvent`.
---@param callback velora.OnControllerKeyPressure
function velora.setOnControllerKeyPressure(callback) end

---Returns the callback of ControllerKeyPressure; nil if none is set.
---@return velora.OnControllerKeyPressure? callback
function velora.getOnControllerKeyPressure() end

---@alias velora.OnControllerLeftStick fun(x: number, y: number, pad: velora.PadEvent?)

---Sets the callback of ControllerLeftStick, which occurs when the left stick has moved. It receives its position `x`
---and `y` and `pad`, the event's `PadEvent`.
---@param callback velora.OnControllerLeftStick
function velora.setOnControllerLeftStick(callback) end

---Returns the callback of ControllerLeftStick; nil if none is set.
---@return velora.OnControllerLeftStick? callback
function velora.getOnControllerLeftStick() end

---@alias velora.OnControllerRightStick fun(x: number, y: number, pad: velora.PadEvent?)

---Sets the callback of ControllerRightStick, which occurs when the right stick has moved. It receives its position `x`
---and `y` and `pad`, the event's `PadEvent`.
---@param callback velora.OnControllerRightStick
function velora.setOnControllerRightStick(callback) end

---Returns the callback of ControllerRightStick; nil if none is set.
---@return velora.OnControllerRightStick? callback
function velora.getOnControllerRightStick() end

---@alias velora.OnControllerStateEvent fun(pad: velora.PadEvent?)

---Sets the callback of ControllerStateEvent, which occurs when a controller connects or disconnects. It receives `pad`,
---the event's `PadEvent`.
---@param callback velora.OnControllerStateEvent
function velora.setOnControllerStateEvent(callback) end

---Returns the callback of ControllerStateEvent; nil if none is set.
---@return velora.OnControllerStateEvent? callback
function velora.getOnControllerStateEvent() end

-- ## PadEvent

---A controller event. It comes only through callbacks, and may be kept.
---@class velora.PadEvent
---@field get_action fun(self: velora.PadEvent): integer `PAD_ACTION_*`; the SDK decides which getter has which.
---@field get_deviceId fun(self: velora.PadEvent): integer The id of the controller.
---@field get_eventTime fun(self: velora.PadEvent): integer The time of the event, 64 bits.
---@field get_keyCode fun(self: velora.PadEvent): integer One of `PAD_KEYCODE_*`.
---@field get_motionKeyCode fun(self: velora.PadEvent): integer The key code of a movement.
---@field get_pressure fun(self: velora.PadEvent): number The pressure on a key.
---@field get_state fun(self: velora.PadEvent): integer `PAD_ACTION_*`; the SDK decides which getter has which.
---@field get_stateAction fun(self: velora.PadEvent): integer `PAD_ACTION_*`; the SDK decides which getter has which.
---@field get_x fun(self: velora.PadEvent): number The x position of a stick.
---@field get_y fun(self: velora.PadEvent): number The y position of a stick.
velora.PadEvent = {}

-- ### Key codes
-- The values of `keyCode` in callbacks and of `get_keyCode`. Those up to `PAD_KEYCODE_BUTTON_START` are Android's key
-- event codes of the same names.

---@class velora
---@field PAD_KEYCODE_BACK 4 The Back button.
---@field PAD_KEYCODE_DPAD_UP 19 Directional pad, up.
---@field PAD_KEYCODE_DPAD_DOWN 20 Directional pad, down.
---@field PAD_KEYCODE_DPAD_LEFT 21 Directional pad, left.
---@field PAD_KEYCODE_DPAD_RIGHT 22 Directional pad, right.
---@field PAD_KEYCODE_BUTTON_A 96 The A button.
---@field PAD_KEYCODE_BUTTON_B 97 The B button.
---@field PAD_KEYCODE_BUTTON_X 99 The X button.
---@field PAD_KEYCODE_BUTTON_Y 100 The Y button.
---@field PAD_KEYCODE_BUTTON_L1 102 The L1 button.
---@field PAD_KEYCODE_BUTTON_R1 103 The R1 button.
---@field PAD_KEYCODE_BUTTON_L2 104 The L2 button.
---@field PAD_KEYCODE_BUTTON_R2 105 The R2 button.
---@field PAD_KEYCODE_BUTTON_THUMBL 106 The left thumb stick, pressed.
---@field PAD_KEYCODE_BUTTON_THUMBR 107 The right thumb stick, pressed.
---@field PAD_KEYCODE_BUTTON_START 108 The Start button.
---@field PAD_KEYCODE_BUTTON_HELP 198 The Help button.
---@field PAD_KEYCODE_BUTTON_KEYBOARD 199 The Keyboard button.
---@field PAD_KEYCODE_LEFT_STICK 200 The left stick, as a key.
---@field PAD_KEYCODE_RIGHT_STICK 201 The right stick, as a key.

-- ### Key actions and connection states
-- `DOWN`, `UP` and `PRESSURE` are actions of a key, the other three are states of a controller.

---@class velora
---@field PAD_ACTION_DOWN 0 A key goes down.
---@field PAD_ACTION_UP 1 A key goes up.
---@field PAD_ACTION_PRESSURE -1 The pressure on a key has changed.
---@field PAD_ACTION_DISCONNECTED 0 The controller is disconnected.
---@field PAD_ACTION_CONNECTED 1 The controller is connected.
---@field PAD_ACTION_CONNECTING 2 The controller is connecting.

-- # Recording, voice and analytics
-- The recording service, game voice, and reports for statistics.

-- ## Recording

---Starts the recording service.
function velora.zvCCStartService() end

---Stops the recording service.
function velora.zvCCStopService() end

---Returns whether the recording service is recording.
---@return boolean
function velora.isCCRecording() end

---Returns whether the recording service records the microphone as well.
---@return boolean
function velora.isCCRecordMic() end

---Returns how well the device supports recording: `CC_PERFORMANCE_NOT_SUPPORT`, `CC_PERFORMANCE_GOOD` or
---`CC_PERFORMANCE_SOSO`.
---@return integer
function velora.getCCPerformance() end

---Returns the state of the recording service's window; the SDK defines the values. Offline it is 1 while the service
---runs, else 0.
---@return integer
function velora.getCCWindowState() end

---Passes game voice data to the SDK. The offline runtime only records the call.
---@param data velora.Text any bytes, zero bytes included
---@param size? integer number of bytes; all of them if it is 0, negative, larger than the data or not an integer
---@param sampleRate? integer 48000 if it is not an integer
---@param bitsPerSample? integer 16 if it is not an integer
---@param channels? integer 2 if it is not an integer
function velora.zvPushGameVoice(data, size, sampleRate, bitsPerSample, channels) end

-- ### CC settings and performance codes
-- Strings: names of the recording service's properties. Integers: results of `getCCPerformance`.

---@class velora
---@field SHOULDSCCPAUSED string Property name. The SDK defines value and meaning.
---@field CC_SHOW_FPS_SETTING string Property name. The SDK defines value and meaning.
---@field CC_DEFAULT_FPS string Property name. The SDK defines value and meaning.
---@field CC_WINDOW_STATE string Property name. The SDK defines value and meaning.
---@field CC_PERFORMANCE string Property name. The SDK defines value and meaning.
---@field CC_PERFORMANCE_NOT_SUPPORT integer Result of `getCCPerformance`: not supported. The SDK defines the value.
---@field CC_PERFORMANCE_GOOD integer Result of `getCCPerformance`: good. The SDK defines the value.
---@field CC_PERFORMANCE_SOSO integer Result of `getCCPerformance`: so-so. The SDK defines the value.

-- ## Analytics

---Reports an event to the SDK's statistics. The offline runtime only records the call.
---@param event velora.Text
function velora.zvCollectEvent(event) end

---Tracks an event that the game defines. The offline runtime only records the call.
---@param name velora.Text
---@param value velora.Text
function velora.zvTrackCustomEvent(name, value) end

---Sends the tracked events that have not been sent yet. The offline runtime only records the call.
function velora.zvFlushCustomEvents() end

---Sends the player's profile. The offline runtime only records the call.
---@param text velora.Text the SDK defines its form
---@param flag boolean the SDK defines its meaning
function velora.zvSendProfile(text, flag) end

---Sets the identifier of the player in the statistics. The offline runtime only records the call.
---@param identifier velora.Text
function velora.zvSetUserIdentifier(identifier) end

-- ### Analytics keys
-- Strings: keys and values for analytics reports.

---@class velora
---@field SWRVE_FUNC string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_FUNC_EVENT string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_EVENT_NAME string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_FUNC_PURCHASE string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_PURCHASE_ITEM string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_PURCHASE_CURRENCY string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_PURCHASE_COST string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_PURCHASE_QUANTITY string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_FUNC_CURRENCYGIVEN string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_CURRENCYGIVEN_CURRENCY string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_CURRENCYGIVEN_AMOUNT string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_FUNC_IAP string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_IAP_QUANTITY string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_IAP_PRODUCTID string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_IAP_PRODUCTPRICE string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_IAP_CURRENCY string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_IAP_REWARDS string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_FUNC_USERUPDATE string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_USERUPDATE_ATTRIBUTES string Key or value of an analytics report. The SDK defines value and meaning.
---@field SWRVE_RESOURCE string Key or value of an analytics report. The SDK defines value and meaning.

-- ### Collection report codes
-- Integers: results of start, login and payment.

---@class velora
---@field COLLECT_SDKINIT_FAIL integer Code of a report. The SDK defines value and meaning.
---@field COLLECT_SDKLOGIN_FAIL integer Code of a report. The SDK defines value and meaning.
---@field COLLECT_SDKFF_FAIL integer Code of a report. The SDK defines value and meaning.
---@field COLLECT_SDKINIT_SUCC integer Code of a report. The SDK defines value and meaning.
---@field COLLECT_SDKLOGIN_SUCC integer Code of a report. The SDK defines value and meaning.
---@field COLLECT_SDKFF_SUCC integer Code of a report. The SDK defines value and meaning.

-- # Downloads
-- The SDK's download service. It reports in one of two ways: by queued events, through the callbacks, or by direct
-- calls of a handler. Setting or removing a handler disables the queued events for good: the SDK is told to stop them,
-- and nothing in the module enables them again.

-- ## The download service

---The SDK's download service.
---@class velora.download
velora.download = {}

---Starts the download service. Offline, DownloadInited follows.
function velora.download.init() end

---Returns the state of the service, in a form that the SDK defines; nil if it has nothing to report. Offline,
---DownloadProgress follows with the same string.
---@return string?
function velora.download.query() end

---Sends a command to the service. Offline, DownloadProgress, DownloadFinish and DownloadFinish2 follow, each with the
---command as its `text`, and nothing is downloaded.
---@param command velora.Text the SDK defines the commands
function velora.download.extendFunc(command) end

---Returns the version of the download service; nil if there is none.
---@return string?
function velora.download.getDownloadSDKVersion() end

---Returns the service's session id; nil if there is none.
---@return string?
function velora.download.getOrbitSessionId() end

---Stops the service from sending DownloadFinish2.
function velora.download.disableDownloadFinish2() end

---The three functions that the service calls directly, instead of queueing events. All three must be present.
---@class velora.SyncDownloadHandler
---@field onInited fun() Called when the service has started.
---@field onProgress fun(text: string?) Called as a download advances. The SDK defines the string; nil if it sends none.
---@field onFinish fun(text: string, bytes: string?) Called at the end; `bytes` is nil for an empty file or no data.

---Sets the download handler or, with no argument at all, removes it; any other value that is not a table changes
---nothing. The module keeps the three functions, not the table. A table that lacks one of them raises an error and
---leaves no handler. Every call that sets or removes a handler, and one that fails, disables the queued download events
---for good.
---@overload fun()
---@param handler velora.SyncDownloadHandler
function velora.download.setSyncDownloadHandler(handler) end

---Returns the module's own table of the handler's three functions, which must not be changed; nil if no handler is set.
---@return velora.SyncDownloadHandler?
function velora.download.getSyncDownloadHandler() end

-- ## Download callbacks

---@alias velora.OnDownloadInited fun()

---Sets the callback of DownloadInited, which occurs when the download service has started. It receives nothing.
---@param callback velora.OnDownloadInited
function velora.setOnDownloadInited(callback) end

---Returns the callback of DownloadInited; nil if none is set.
---@return velora.OnDownloadInited? callback
function velora.getOnDownloadInited() end

---@alias velora.OnDownloadProgress fun(text: string)

---Sets the callback of DownloadProgress, which occurs while a download advances. It receives `text`, in a form that the
---SDK defines; offline it is the command given to `extendFunc` or what `query` returned.
---@param callback velora.OnDownloadProgress
function velora.setOnDownloadProgress(callback) end

---Returns the callback of DownloadProgress; nil if none is set.
---@return velora.OnDownloadProgress? callback
function velora.getOnDownloadProgress() end

---@alias velora.OnDownloadFinish fun(text: string)

---Sets the callback of DownloadFinish, which occurs when a download has ended. It receives `text`, in a form that the
---SDK defines; offline it is the command given to `extendFunc`.
---@param callback velora.OnDownloadFinish
function velora.setOnDownloadFinish(callback) end

---Returns the callback of DownloadFinish; nil if none is set.
---@return velora.OnDownloadFinish? callback
function velora.getOnDownloadFinish() end

---@alias velora.OnDownloadFinishBytes fun(bytes: string?)

---Sets the callback of DownloadFinishBytes, which occurs when a download has ended. It receives `bytes`, the data as a
---string of any bytes: empty for an empty file, nil if the SDK sends no data. The offline runtime does not send this
---event by itself.
---@param callback velora.OnDownloadFinishBytes
function velora.setOnDownloadFinishBytes(callback) end

---Returns the callback of DownloadFinishBytes; nil if none is set.
---@return velora.OnDownloadFinishBytes? callback
function velora.getOnDownloadFinishBytes() end

---@alias velora.OnDownloadFinish2 fun(text: string, bytes: string?)

---Sets the callback of DownloadFinish2, which occurs when a download has ended, unless `disableDownloadFinish2` was
---called. It receives `text`, in a form that the SDK defines, and `bytes`, the data as a string of any bytes: empty for
---an empty file, nil if the SDK sends no data. (A handler's `onFinish` receives nil for both.) Offline, `text` is the
---command given to `extendFunc`, and there is no data.
---@param callback velora.OnDownloadFinish2
function velora.setOnDownloadFinish2(callback) end

---Returns the callback of DownloadFinish2; nil if none is set.
---@return velora.OnDownloadFinish2? callback
function velora.getOnDownloadFinish2() end

-- # SDK constants
-- The other names and codes of the SDK. The SDK defines their values and may change them, so use the constants, not
-- their values. Strings are names of properties (for `setPropStr`, `getPropStr`, `setPropInt` and `getPropInt`) or
-- values of such a property; integers are codes.

-- ## Application, channel and server identity
-- Strings: names of properties that identify the game.

---@class velora
---@field SDK_NAME string Property name. The SDK defines value and meaning.
---@field GAMEID string Property name. The SDK defines value and meaning.
---@field PROTOCOL_GAMEID string Property name. The SDK defines value and meaning.
---@field GAME_VERSION string Property name. The SDK defines value and meaning.
---@field DERIVE_CHANNEL string Property name. The SDK defines value and meaning.
---@field REQUEST_CMCC_FFTYPE string Property name. The SDK defines value and meaning.
---@field DEFAULT_CMCC_FFTYPE string Property name. The SDK defines value and meaning.
---@field CMCC_FFTYPE_URL string Property name. The SDK defines value and meaning.
---@field APP_NAME string Property name. The SDK defines value and meaning.
---@field APPID string Property name. The SDK defines value and meaning.
---@field APP_KEY string Property name. The SDK defines value and meaning.
---@field APP_SECRET string Property name. The SDK defines value and meaning.
---@field CPID string Property name. The SDK defines value and meaning.
---@field CP_KEY string Property name. The SDK defines value and meaning.
---@field SERVER_ID string Property name. The SDK defines value and meaning.
---@field SCR_ORIENTATION string Property name. The SDK defines value and meaning.
---@field PACKET_ID string Property name. The SDK defines value and meaning.
---@field USER_ID string Property name. The SDK defines value and meaning.
---@field BUOY_PRIVATEKEY string Property name. The SDK defines value and meaning.
---@field EXCHANGE_RATE string Property name. The SDK defines value and meaning.
---@field EXCHANGE_UNIT string Property name. The SDK defines value and meaning.
---@field CHANNEL_ID string Property name. The SDK defines value and meaning.
---@field REFRESH_TOKEN string Property name. The SDK defines value and meaning.

-- ## Screen orientation codes
-- Integers: values of the property `SCR_ORIENTATION`.

---@class velora
---@field E_SO_PORTRAIT integer Value of `SCR_ORIENTATION`. The SDK defines value and meaning.
---@field E_SO_LANDSCAPE integer Value of `SCR_ORIENTATION`. The SDK defines value and meaning.
---@field E_SO_LANDSCAPE_REVERSE integer Value of `SCR_ORIENTATION`. The SDK defines value and meaning.
---@field E_SO_AUTO integer Value of `SCR_ORIENTATION`. The SDK defines value and meaning.
---@field E_SO_LANDSCAPE_SENSOR integer Value of `SCR_ORIENTATION`. The SDK defines value and meaning.
---@field E_SO_PORTRAIT_SENSOR integer Value of `SCR_ORIENTATION`. The SDK defines value and meaning.

-- ## Update check and login status
-- Strings: property names.

---@class velora
---@field SDK_UPDATE_CHECK_STRICT string Property name. The SDK defines value and meaning.
---@field FF_CB_URL string Property name. The SDK defines value and meaning.
---@field LOGIN_STAT string Property name. The SDK defines value and meaning.

-- ## Session, device and price limit
-- Strings: the values for no session and no device. `C_MAX_PRICE` is an integer.

---@class velora
---@field S_NOT_LOGIN_SESSION string The session while nobody is logged in. The SDK defines the value.
---@field INVALID_DEVICE_ID string The device id if there is none. The SDK defines the value.
---@field C_MAX_PRICE integer The highest price, cut to an integer. The SDK defines the value.

-- ## Account, device and session keys
-- Strings: property names, the value `INVALID_UID`, and values of `WEB_LOGIN_STATUS`.

---@class velora
---@field INVALID_UID string The user id if there is none. The SDK defines the value.
---@field PSEUDO_UID string Property name. The SDK defines value and meaning.
---@field UID string Property name. The SDK defines value and meaning.
---@field WEB_UID string Property name. The SDK defines value and meaning.
---@field WEB_SESSION string Property name. The SDK defines value and meaning.
---@field WEB_LOGIN_STATUS string Property name. The SDK defines value and meaning.
---@field WEB_LOGIN_SUCCESS string Value of `WEB_LOGIN_STATUS`: logged in. The SDK defines the value.
---@field WEB_LOGIN_FAIL string Value of `WEB_LOGIN_STATUS`: the login has failed. The SDK defines the value.
---@field UEMAIL string Property name. The SDK defines value and meaning.
---@field UBIRTHDAY string Property name. The SDK defines value and meaning.
---@field UGENDER string Property name. The SDK defines value and meaning.
---@field UHOMETOWN string Property name. The SDK defines value and meaning.
---@field UAGE string Property name. The SDK defines value and meaning.
---@field CHANNEL_UID string Property name. The SDK defines value and meaning.
---@field FB_UID string Property name. The SDK defines value and meaning.
---@field FULL_UID string Property name. The SDK defines value and meaning.
---@field GAME_UID string Property name. The SDK defines value and meaning.
---@field GAME_NAME string Property name. The SDK defines value and meaning.
---@field DEVICE_ID string Property name. The SDK defines value and meaning.
---@field UDID string Property name. The SDK defines value and meaning.
---@field DEVICE_IP string Property name. The SDK defines value and meaning.
---@field RSA_PUBLIC string Property name. The SDK defines value and meaning.
---@field RSA_PRIVATE string Property name. The SDK defines value and meaning.
---@field USR_NAME string Property name. The SDK defines value and meaning.
---@field SESSION string Property name. The SDK defines value and meaning.
---@field LOGIN_CHANNEL string Property name. The SDK defines value and meaning.
---@field SPLASH string Property name. The SDK defines value and meaning.

-- ## Switches and their values
-- Strings: property names. Integers: their values.

---@class velora
---@field HAS_SPLASH integer Value of `SPLASH`: there is a splash screen. The SDK defines the value.
---@field NOT_HAS_SPLASH integer Value of `SPLASH`: there is none. The SDK defines the value.
---@field DEBUG_MODE string Property name. The SDK defines value and meaning.
---@field DEBUG_MODE_TRUE integer Value of `DEBUG_MODE`. The SDK defines value and meaning.
---@field DEBUG_MODE_FALSE integer Value of `DEBUG_MODE`. The SDK defines value and meaning.
---@field DEBUG_LOG string Property name. The SDK defines value and meaning.
---@field RETRIEVE_USER string Property name. The SDK defines value and meaning.
---@field RETRIEVE_USER_TRUE integer Value of `RETRIEVE_USER`. The SDK defines value and meaning.
---@field RETRIEVE_USER_FALSE integer Value of `RETRIEVE_USER`. The SDK defines value and meaning.
---@field APP_CHANNEL string Property name. The SDK defines value and meaning.

-- ## Caller-thread keys
-- Strings: properties that select the thread of a listener, one of `LISTENER_CB_*`.

---@class velora
---@field LOGIN_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field WEB_LOGIN_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field LEAVE_SDK_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field LOGOUT_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field ORDER_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field CONTINUE_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field EXIT_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field FRIEND_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field RANK_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field QUEST_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field SHARE_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field QUERYSKUDETAILS_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field CONTROLLER_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field PUSH_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field SHOW_VIEW_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field WEBVIEW_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field VERIFY_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field CODESCANNER_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field EXTEND_FUNC_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.
---@field PROTOCOL_FINISH_CALLER_THREAD string Property that takes `LISTENER_CB_*`. The SDK defines value and meaning.

-- ## Listener callback threads and FF_COOLPAD
-- Integers: values of the caller-thread properties, and a payment code.

---@class velora
---@field LISTENER_CB_CALLER integer Value of a `*_CALLER_THREAD` property. The SDK defines value and meaning.
---@field LISTENER_CB_UI integer Value of a `*_CALLER_THREAD` property. The SDK defines value and meaning.
---@field LISTENER_CB_GL integer Value of a `*_CALLER_THREAD` property. The SDK defines value and meaning.
---@field FF_COOLPAD integer Payment code. The SDK defines value and meaning.

-- ## Game engine
-- A property name, a string, and its values, integers.

---@class velora
---@field GAME_ENGINE string Property name. The SDK defines value and meaning.
---@field ENGINE_COCOS integer Value of `GAME_ENGINE`. The SDK defines value and meaning.
---@field ENGINE_UNITY3D integer Value of `GAME_ENGINE`. The SDK defines value and meaning.
---@field ENGINE_TARN integer Value of `GAME_ENGINE`. The SDK defines value and meaning.
---@field ENGINE_UNREAL integer Value of `GAME_ENGINE`. The SDK defines value and meaning.

-- ## External login switches
-- Strings: properties that allow a way to log in.

---@class velora
---@field ENABLE_EXLOGIN_GUEST string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_GUEST_NEW string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_WEIBO string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_WEIBO_NEW string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_MOBILE string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_MOBILE_NEW string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_GOOGLEPLUS string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_GOOGL string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_FACEBOOK string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_NATIVE string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_WECHAT string Property that allows a way to log in. The SDK defines value and meaning.
---@field ENABLE_EXLOGIN_QQ string Property that allows a way to log in. The SDK defines value and meaning.

-- ## Anti-addiction, proxy, friend queries, forum, guest origin, currency and application data
-- Strings: property names.

---@class velora
---@field IS_ANTI_ADDICTION string Property name. The SDK defines value and meaning.
---@field PROXYSERVER_ADDRESS string Property name. The SDK defines value and meaning.
---@field ZV_OAUTH_ACCESS_TOKEN string Property name. The SDK defines value and meaning.
---@field ZV_CDN_SERVER string Property name. The SDK defines value and meaning.
---@field ZV_LINE_ERROR_CODE string Property name. The SDK defines value and meaning.
---@field ZV_QUERY_FRIENDS_START_INDEX string Property name. The SDK defines value and meaning.
---@field ZV_QUERY_FRIENDS_COUNT string Property name. The SDK defines value and meaning.
---@field ZV_QUERY_FRIENDS_IN_GAME_START_INDEX string Property name. The SDK defines value and meaning.
---@field ZV_QUERY_FRIENDS_IN_GAME_COUNT string Property name. The SDK defines value and meaning.
---@field ZV_QUERY_FRIENDS_TOTAL string Property name. The SDK defines value and meaning.
---@field ZV_QUERY_FRIENDS_IN_GAME_TOTAL string Property name. The SDK defines value and meaning.
---@field AVATAR_URL string Property name. The SDK defines value and meaning.
---@field FORUM_URL string Property name. The SDK defines value and meaning.
---@field FORUM_TITLE string Property name. The SDK defines value and meaning.
---@field ORIGIN_GUEST_UID string Property name. The SDK defines value and meaning.
---@field ORIGIN_GUEST_SESSION string Property name. The SDK defines value and meaning.
---@field CURRENCY string Property name. The SDK defines value and meaning.
---@field RATE string Property name. The SDK defines value and meaning.
---@field APP_DATA string Property name. The SDK defines value and meaning.
---@field APP_LOCATION string Property name. The SDK defines value and meaning.
---@field APP_VERSION string Property name. The SDK defines value and meaning.

-- ## Splash screen
-- Strings: property names. Integers: their values.

---@class velora
---@field SPLASH_COLOR string Property name. The SDK defines value and meaning.
---@field SPLASH_TIME string Property name. The SDK defines value and meaning.
---@field SPLASH_SECOND string Property name. The SDK defines value and meaning.
---@field SPLASH_SECOND_MAXTIME string Property name. The SDK defines value and meaning.
---@field SPLASH_TYPE string Property name. The SDK defines value and meaning.
---@field SPLASH_TYPE_PNG integer Value of `SPLASH_TYPE`. The SDK defines value and meaning.
---@field SPLASH_TYPE_MEDIA integer Value of `SPLASH_TYPE`. The SDK defines value and meaning.
---@field SPLASH_PNG_SCALE_TYPE string Property name. The SDK defines value and meaning.
---@field SPLASH_PNG_CENTER_INSIDE integer Value of `SPLASH_PNG_SCALE_TYPE`. The SDK defines value and meaning.
---@field SPLASH_PNG_CENTER_CROP integer Value of `SPLASH_PNG_SCALE_TYPE`. The SDK defines value and meaning.

-- ## Floating button position
-- A property name, a string, and its values, integers.

---@class velora
---@field FLOAT_BTN_POS string Property name. The SDK defines value and meaning.
---@field FLOAT_BTN_POS_LEFT_TOP integer Value of `FLOAT_BTN_POS`. The SDK defines value and meaning.
---@field FLOAT_BTN_POS_LEFT_CENTER integer Value of `FLOAT_BTN_POS`. The SDK defines value and meaning.
---@field FLOAT_BTN_POS_LEFT_BOTTOM integer Value of `FLOAT_BTN_POS`. The SDK defines value and meaning.
---@field FLOAT_BTN_POS_RIGHT_TOP integer Value of `FLOAT_BTN_POS`. The SDK defines value and meaning.
---@field FLOAT_BTN_POS_RIGHT_CENTER integer Value of `FLOAT_BTN_POS`. The SDK defines value and meaning.
---@field FLOAT_BTN_POS_RIGHT_BOTTOM integer Value of `FLOAT_BTN_POS`. The SDK defines value and meaning.
---@field FLOAT_BTN_POS_CENTER_TOP integer Value of `FLOAT_BTN_POS`. The SDK defines value and meaning.
---@field FLOAT_BTN_POS_CENTER_BOTTOM integer Value of `FLOAT_BTN_POS`. The SDK defines value and meaning.

-- ## FFTYPE, LIANYUN, SINGLE_CB, MONTHTYPE and role keys
-- Strings: property names and values of `MONTHTYPE`. Integers: values of `FFTYPE`.

---@class velora
---@field FFTYPE string Property name. The SDK defines value and meaning.
---@field FFTYPE_STANDALONE integer Value of `FFTYPE`. The SDK defines value and meaning.
---@field FFTYPE_ONLINE integer Value of `FFTYPE`. The SDK defines value and meaning.
---@field LIANYUN string Property name. The SDK defines value and meaning.
---@field SINGLE_CB string Property name. The SDK defines value and meaning.
---@field MONTHTYPE string Property name. The SDK defines value and meaning.
---@field MONTHTYPE_OTHER string Value of `MONTHTYPE`. The SDK defines value and meaning.
---@field MONTHTYPE_SUBMONTH string Value of `MONTHTYPE`. The SDK defines value and meaning.
---@field MONTHTYPE_UNSUBMONTH string Value of `MONTHTYPE`. The SDK defines value and meaning.
---@field GAME_INNER_SWITCH_USER string Property name. The SDK defines value and meaning.
---@field CPCODE string Property name. The SDK defines value and meaning.
---@field CREATE_ROLE string Property name. The SDK defines value and meaning.

-- ## Login and bind type, social application keys, single sign-on checks
-- Strings: property names.

---@class velora
---@field LOGIN_TYPE string Property name. The SDK defines value and meaning.
---@field BIND_TYPE string Property name. The SDK defines value and meaning.
---@field AUTH_CHANNEL string Property name. The SDK defines value and meaning.
---@field WEIBO_SSO_APP_KEY string Property name. The SDK defines value and meaning.
---@field WEIBO_APP_KEY string Property name. The SDK defines value and meaning.
---@field WEIBO_SSO_URL string Property name. The SDK defines value and meaning.
---@field WEIBO_REDIRECT_URI string Property name. The SDK defines value and meaning.
---@field SHARE_PELIA_API string Property name. The SDK defines value and meaning.
---@field SHARE_WEIXIN_API string Property name. The SDK defines value and meaning.
---@field WECHAT_APP_KEY string Property name. The SDK defines value and meaning.
---@field SHARE_WEIBO_API string Property name. The SDK defines value and meaning.
---@field SHARE_QQ_API string Property name. The SDK defines value and meaning.
---@field QQ_APP_ID string Property name. The SDK defines value and meaning.
---@field SHARE_XIANLIAO_API string Property name. The SDK defines value and meaning.
---@field SHIP_SINAWEIBO_SSO_CHECK string Property name. The SDK defines value and meaning.
---@field SHIP_WEIXIN_SSO_CHECK string Property name. The SDK defines value and meaning.
---@field SHIP_QQ_SSO_CHECK string Property name. The SDK defines value and meaning.
---@field SHIP_PELIA_SSO_CHECK string Property name. The SDK defines value and meaning.
---@field SHIP_XIANLIAO_SSO_CHECK string Property name. The SDK defines value and meaning.
---@field SHIP_DOUYIN_SSO_CHECK string Property name. The SDK defines value and meaning.
---@field FF_METHOD string Property name. The SDK defines value and meaning.
---@field DOUYIN_CLIENT_KEY string Property name. The SDK defines value and meaning.
---@field ENABLE_NAVIGATION_BAR string Property name. The SDK defines value and meaning.
---@field ENABLE_FORCE_DOWNLOAD string Property name. The SDK defines value and meaning.

-- ## Launcher, advertising, carrier and external channel
-- Strings: property names, carriers (`CCTYPE_*`), to compare with `getCCTypeByImsi`, and `CHANNEL_UNKNOW`.

---@class velora
---@field LAUNCHER_NAME string Property name. The SDK defines value and meaning.
---@field APPSFLYER_DEV_KEY string Property name. The SDK defines value and meaning.
---@field ADVERTISER_APPID string Property name. The SDK defines value and meaning.
---@field TIMELINE_KEY string Property name. The SDK defines value and meaning.
---@field CHANNEL_UNKNOW string An unknown channel. The SDK defines the value.
---@field CCTYPE_UNKNOW string Carrier, to compare with `getCCTypeByImsi`: unknown. The SDK defines the value.
---@field CCTYPE_CMCC string Carrier, to compare with `getCCTypeByImsi`. The SDK defines value and meaning.
---@field CCTYPE_CUCC string Carrier, to compare with `getCCTypeByImsi`. The SDK defines value and meaning.
---@field CCTYPE_CTCC string Carrier, to compare with `getCCTypeByImsi`. The SDK defines value and meaning.
---@field EXTERNAL_CHANNEL string Property name. The SDK defines value and meaning.
---@field EXTERNAL_OP_LIST string Property name. The SDK defines value and meaning.
---@field EXTRA_DATA string Property name. The SDK defines value and meaning.
---@field TIMESTAMP string Property name. The SDK defines value and meaning.
---@field PLATFORM_KEY string Property name. The SDK defines value and meaning.

-- ## Game regions
-- Strings: the property `GAME_REGION` and its values.

---@class velora
---@field GAME_REGION string Property name. The SDK defines value and meaning.
---@field GAME_REGION_CN string Value of `GAME_REGION`. The SDK defines value and meaning.
---@field GAME_REGION_AS string Value of `GAME_REGION`. The SDK defines value and meaning.
---@field GAME_REGION_US string Value of `GAME_REGION`. The SDK defines value and meaning.
---@field GAME_REGION_SA string Value of `GAME_REGION`. The SDK defines value and meaning.
---@field GAME_REGION_JP string Value of `GAME_REGION`. The SDK defines value and meaning.

-- ## Languages
-- Strings: values of `LANGUAGE_CODE`, and two more property names.

---@class velora
---@field LANGUAGE_CODE_ZH_CN string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_ZH_HK string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_ZH_TW string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_EN string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_ES_EUR string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_ES string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_PT_EUR string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_PT string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_AR string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_DE string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_FR string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_IN string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_IT string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_JA string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_KO string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_MS string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_NL string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_RU string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_TH string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_VI string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field LANGUAGE_CODE_AUTO string Value of `LANGUAGE_CODE`. The SDK defines value and meaning.
---@field GAME_SELECT_LANGUAGE string Property name. The SDK defines value and meaning.
---@field GAME_SUPPORT_LANGUAGE string Property name. The SDK defines value and meaning.

-- ## Inner modes, data report mode, product and package
-- Strings: property names. Integers: values of `DATA_REPORT_MODE`.

---@class velora
---@field INNER_MODE_SECOND_CHANNEL string Property name. The SDK defines value and meaning.
---@field INNER_MODE_SPECIAL_LOGIN_CHANNEL string Property name. The SDK defines value and meaning.
---@field CALL_LIFECYCLE_AFTER_INIT string Property name. The SDK defines value and meaning.
---@field DK_APPID string Property name. The SDK defines value and meaning.
---@field DK_APP_KEY string Property name. The SDK defines value and meaning.
---@field DATA_REPORT_MODE string Property name. The SDK defines value and meaning.
---@field DATA_REPORT_MODE_DEFAULT integer Value of `DATA_REPORT_MODE`. The SDK defines value and meaning.
---@field DATA_REPORT_MODE_AFTER_LOGIN integer Value of `DATA_REPORT_MODE`. The SDK defines value and meaning.
---@field PRODUCT_NAME_PREFIX string Property name. The SDK defines value and meaning.
---@field PACKAGE_URL string Property name. The SDK defines value and meaning.
---@field HAS_3N string Property name. The SDK defines value and meaning.
---@field FF_TOKEN string Property name. The SDK defines value and meaning.
---@field PF string Property name. The SDK defines value and meaning.
---@field PFKEY string Property name. The SDK defines value and meaning.

-- ## Domain and social application ids
-- Strings: property names.

---@class velora
---@field VELORA_DOMAIN string Property name. The SDK defines value and meaning.
---@field QQ_APPID string Property name. The SDK defines value and meaning.
---@field QQ_APP_KEY string Property name. The SDK defines value and meaning.
---@field WX_APPID string Property name. The SDK defines value and meaning.
---@field WX_APP_KEY string Property name. The SDK defines value and meaning.
---@field OFFER_ID string Property name. The SDK defines value and meaning.

-- ## Verification, language, country, user and store
-- Strings: property names.

---@class velora
---@field VERIFY_MODE string Property name. The SDK defines value and meaning.
---@field LANGUAGE_CODE string Property name. The SDK defines value and meaning.
---@field COUNTRY_CODE string Property name. The SDK defines value and meaning.
---@field USER_TYPE string Property name. The SDK defines value and meaning.
---@field USER_KEY string Property name. The SDK defines value and meaning.
---@field VERIFY_TYPE string Property name. The SDK defines value and meaning.
---@field STORE_TYPE string Property name. The SDK defines value and meaning.
---@field PURCHASE_REG_SERVER string Property name. The SDK defines value and meaning.

-- ## SDK server, order addresses and logging
-- Strings: property names.

---@class velora
---@field REQUEST_VELORA_SERVER string Property name. The SDK defines value and meaning.
---@field VELORA_SERVER_KEY string Property name. The SDK defines value and meaning.
---@field VELORA_CREATEORDER_URL string Property name. The SDK defines value and meaning.
---@field VELORA_QUERYORDER_URL string Property name. The SDK defines value and meaning.
---@field VELORA_CONSUMEORDER_URL string Property name. The SDK defines value and meaning.
---@field VELORA_SERVER_PRIVATEPARAM string Property name. The SDK defines value and meaning.
---@field VELORA_SERVER_EXTPARAM string Property name. The SDK defines value and meaning.
---@field VELORA_EXT_INFO string Property name. The SDK defines value and meaning.
---@field CHANNEL_EXT_INFO string Property name. The SDK defines value and meaning.
---@field ENABLE_GOOGE_PLAY_PROMO_CODES string Property name. The SDK defines value and meaning.
---@field ENABLE_KAKAO_GAME_SHOP string Property name. The SDK defines value and meaning.
---@field VELORA_JF_TIMEOUT string Property name. The SDK defines value and meaning.
---@field VELORA_JF_GAS3 string Property name. The SDK defines value and meaning.
---@field VELORA_JF_GAS3_WEB string Property name. The SDK defines value and meaning.
---@field VELORA_JF_CREATEINDEX string Property name. The SDK defines value and meaning.
---@field VELORA_JF_GAS3_URL string Property name. The SDK defines value and meaning.
---@field VELORA_SERVER_MODE string Property name. The SDK defines value and meaning.
---@field SHARE_ERR_CODE string Property name. The SDK defines value and meaning.
---@field JF_OPEN_LOG_URL string Property name. The SDK defines value and meaning.
---@field JF_FF_LOG_URL string Property name. The SDK defines value and meaning.
---@field VELORA_LOG_STATUS string Property name. The SDK defines value and meaning.
---@field JF_CLIENT_LOG_URL string Property name. The SDK defines value and meaning.
---@field JF_LOG_KEY string Property name. The SDK defines value and meaning.
---@field JF_CLIENT_KEY string Property name. The SDK defines value and meaning.
---@field JF_GAMEID string Property name. The SDK defines value and meaning.
---@field XM_GAMEID string Property name. The SDK defines value and meaning.
---@field YY_GAMEID string Property name. The SDK defines value and meaning.
---@field HAS_FF_CB string Property name. The SDK defines value and meaning.
---@field NEED_PLAY_GAME_SERVICE string Property name. The SDK defines value and meaning.
---@field VELORA_SERVER_URL string Property name. The SDK defines value and meaning.
---@field CODE_SCANNER_FF_URL string Property name. The SDK defines value and meaning.
---@field ENABLE_VELORA_GUEST_DISCONNECT string Property name. The SDK defines value and meaning.
---@field ENABLE_VELORA_GUEST_UI string Property name. The SDK defines value and meaning.
---@field ENABLE_VELORA_PERMISSION_UI string Property name. The SDK defines value and meaning.
---@field ZV_CALLBACK_MESSAGE string Property name. The SDK defines value and meaning.
---@field MINI_RESPONSE string Property name. The SDK defines value and meaning.
---@field ZV_ERROR_CODE string Property name. The SDK defines value and meaning.
---@field SUCCESS_ACTIVITY_CALSSS string Property name. The SDK defines value and meaning.
---@field FAIL_ACTIVITY_CALSSS string Property name. The SDK defines value and meaning.
---@field FLOATBTN_CLOSED string Property name. The SDK defines value and meaning.
---@field UPDATE_CHECK_URL string Property name. The SDK defines value and meaning.
---@field UPDATE_DOWNLOAD_URL string Property name. The SDK defines value and meaning.
---@field ZV_COMPACT_URL string Property name. The SDK defines value and meaning.
---@field ZV_COMPACT_LAN string Property name. The SDK defines value and meaning.
---@field ZV_COMPACT_SHOW_AGREE_LINE string Property name. The SDK defines value and meaning.
---@field ZV_COMPACT_AGREE_LINE_TEXT string Property name. The SDK defines value and meaning.
---@field ENABLE_TV string Property name. The SDK defines value and meaning.
---@field SAUTH_STR string Property name. The SDK defines value and meaning.
---@field SAUTH_JSON string Property name. The SDK defines value and meaning.
---@field VELORA_JF_GAS_TOKEN string Property name. The SDK defines value and meaning.
---@field VELORA_JF_GET_SDKUID string Property name. The SDK defines value and meaning.

-- ## Device report fields
-- Strings: names of the fields of a device report.

---@class velora
---@field SDC_LOG_DEVICE_HEIGHT string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_DEVICE_WIDTH string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_OS_NAME string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_OS_VER string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_MAC_ADDR string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_DEVICE_MODEL string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_UDID string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_APP_CHANNEL string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_APP_VER string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_APP_NETWORK string Field of a device report. The SDK defines value and meaning.
---@field SDC_LOG_APP_ISP string Field of a device report. The SDK defines value and meaning.

-- ## Skins, web view background, overseas log addresses
-- Strings: property names, and values of `SKIN_TYPE` and `WEBVIEW_BKCOLOR`.

---@class velora
---@field SKIN_TYPE string Property name. The SDK defines value and meaning.
---@field SKIN_BLACK string Value of `SKIN_TYPE`. The SDK defines value and meaning.
---@field SKIN_DEFAULT string Value of `SKIN_TYPE`. The SDK defines value and meaning.
---@field SKIN_CHINESE_WHITE string Value of `SKIN_TYPE`. The SDK defines value and meaning.
---@field SKIN_CHINESE_BLACK string Value of `SKIN_TYPE`. The SDK defines value and meaning.
---@field WEBVIEW_BKCOLOR string Property name. The SDK defines value and meaning.
---@field WEBVIEW_BKCOLOR_WHITE string Value of `WEBVIEW_BKCOLOR`. The SDK defines value and meaning.
---@field WEBVIEW_BKCOLOR_TRANSPARENT string Value of `WEBVIEW_BKCOLOR`. The SDK defines value and meaning.
---@field VELORA_DRPF_URL string Property name. The SDK defines value and meaning.
---@field JF_OVERSEA_FF_LOG_URL string Property name. The SDK defines value and meaning.
---@field JF_OVERSEA_OPEN_LOG_URL string Property name. The SDK defines value and meaning.
---@field JF_OVERSEA_CLIENT_LOG_URL string Property name. The SDK defines value and meaning.

-- ## Patch service and real-name verification
-- Strings: property names. Integers: values of `REAL_NAME_VERIFIED`.

---@class velora
---@field EB string Property name. The SDK defines value and meaning.
---@field VELORA_VELPATCH_CHECK_URL string Property name. The SDK defines value and meaning.
---@field VELORA_VELPATCH_LOG_URL string Property name. The SDK defines value and meaning.
---@field REAL_NAME_VERIFIED string Property name. The SDK defines value and meaning.
---@field REAL_NAME_VERIFIED_NO integer Value of `REAL_NAME_VERIFIED`. The SDK defines value and meaning.
---@field REAL_NAME_VERIFIED_UNDER_18 integer Value of `REAL_NAME_VERIFIED`. The SDK defines value and meaning.
---@field REAL_NAME_VERIFIED_18_AND_ABOVE integer Value of `REAL_NAME_VERIFIED`. The SDK defines value and meaning.
---@field REAL_NAME_VERIFIED_AND_STATUS_UNKNOWN integer Value of `REAL_NAME_VERIFIED`. The SDK defines value and meaning.

-- ## Detection, location service, SDK switcher, VESPERA, web view options, welcome window
-- Strings: property names. Integers: values of `WELCOME_WINDOW_TYPE`.

---@class velora
---@field NOT_ENABLE_DETECT string Property name. The SDK defines value and meaning.
---@field X_LBS_TOKEN string Property name. The SDK defines value and meaning.
---@field VELORA_LBS_URL string Property name. The SDK defines value and meaning.
---@field SDK_SWITCHER_URL string Property name. The SDK defines value and meaning.
---@field SDK_SWITCHER_URL_DEFAULT string Property name. The SDK defines value and meaning.
---@field SDK_SWITCHER_DATA string Property name. The SDK defines value and meaning.
---@field VESPERA_URL string Property name. The SDK defines value and meaning.
---@field VESPERA_TID string Property name. The SDK defines value and meaning.
---@field VESPERA_SERVERLIST string Property name. The SDK defines value and meaning.
---@field VESPERA_APPVER string Property name. The SDK defines value and meaning.
---@field VESPERA_USR_AVATARID string Property name. The SDK defines value and meaning.
---@field VESPERA_USR_STATUS string Property name. The SDK defines value and meaning.
---@field VESPERA_CUSTOM_LOG string Property name. The SDK defines value and meaning.
---@field WEBVIEW_CLBTN string Property name. The SDK defines value and meaning.
---@field WEBVIEW_FULLFIT string Property name. The SDK defines value and meaning.
---@field WEBVIEW_SUPPORT_BACK_KEY string Property name. The SDK defines value and meaning.
---@field CLEAR_FOCUS_WHEN_STARTUP string Property name. The SDK defines value and meaning.
---@field WELCOME_WINDOW_TYPE string Property name. The SDK defines value and meaning.
---@field WELCOME_WINDOW_TYPE_DEFAULT integer Value of `WELCOME_WINDOW_TYPE`. The SDK defines value and meaning.
---@field WELCOME_WINDOW_TYPE_TOAST integer Value of `WELCOME_WINDOW_TYPE`. The SDK defines value and meaning.
---@field WELCOME_WINDOW_TYPE_NONE integer Value of `WELCOME_WINDOW_TYPE`. The SDK defines value and meaning.

-- ## Permissions, login data, flow, device utilities, source, screen size, guest account
-- Strings: property names, and names of device utilities.

---@class velora
---@field REMOVE_PERMISSION_LIST string Property name. The SDK defines value and meaning.
---@field VELORA_LOGIN_JSON string Property name. The SDK defines value and meaning.
---@field FLOW_CODE string Property name. The SDK defines value and meaning.
---@field FLOW_KEY string Property name. The SDK defines value and meaning.
---@field USERINFO_NUMBER string Property name. The SDK defines value and meaning.
---@field TRANS_ID string Property name. The SDK defines value and meaning.
---@field VESPERA_DUMPID string Property name. The SDK defines value and meaning.
---@field MEDIA_PROJECTION_MANAGER_IN_USE string Property name. The SDK defines value and meaning.
---@field VELORAUTILS_GET_CPUNAME string Name of a device utility. The SDK defines value and meaning.
---@field VELORAUTILS_GET_CPUMHZ string Name of a device utility. The SDK defines value and meaning.
---@field VELORAUTILS_GET_CPUCORE string Name of a device utility. The SDK defines value and meaning.
---@field VELORAUTILS_IS_DEVICEROOTED3 string Name of a device utility. The SDK defines value and meaning.
---@field VELORA_QRCODE_FILE string Property name. The SDK defines value and meaning.
---@field SOURCE_APP_CHANNEL string Property name. The SDK defines value and meaning.
---@field SOURCE_PLATFORM string Property name. The SDK defines value and meaning.
---@field PRI_SAC string Property name. The SDK defines value and meaning.
---@field PRI_SP string Property name. The SDK defines value and meaning.
---@field VELORA_WIDTH string Property name. The SDK defines value and meaning.
---@field VELORA_HEIGHT string Property name. The SDK defines value and meaning.
---@field VELORA_GUEST_LOGIN_STATE string Property name. The SDK defines value and meaning.
---@field VELORA_HAS_LOCAL_GUEST_ACCOUNT string Property name. The SDK defines value and meaning.
---@field GUEST_RECOVERY_CODE string Property name. The SDK defines value and meaning.
---@field GUEST_BIND_JSON string Property name. The SDK defines value and meaning.

-- ## Project, product, server address, order UI, QR scanner, IPv6
-- Strings: property names.

---@class velora
---@field PROJECT_ID string Property name. The SDK defines value and meaning.
---@field PRODUCT_CODE string Property name. The SDK defines value and meaning.
---@field SDK_SERVER_URL string Property name. The SDK defines value and meaning.
---@field ENABLE_VELORA_CREATEORDER_UI string Property name. The SDK defines value and meaning.
---@field ENABLE_CHANNEL_QRCODESCANNER string Property name. The SDK defines value and meaning.
---@field JF_AIM_INFO string Property name. The SDK defines value and meaning.
---@field ENABLE_IP_V6 string Property name. The SDK defines value and meaning.
