---@meta _

-- # The table velora
-- Everything that scripts see of the SDK lies in one global table, `velora`. Rules that hold throughout:
--
-- - Functions return at once. What takes longer is answered by a callback, on a later frame; "answered by LoginDone"
--   means the callback set with `setOnLoginDone`.
-- - A call with wrong arguments does nothing and gives nil. Few raise an error instead; where one does, it is said.
--   Arguments beyond those listed are ignored. Any function raises an error where a list that it is given is longer than
--   1,048,576 elements.
-- - A text is a string, or a number, which is taken as its string. It ends before its first zero byte.
-- - An integer has to be one for Lua: 3 is one, 3.0 and "3" are not. The SDK gets its low 32 bits, with sign. Setters of
--   objects are not so strict, see below.
-- - What can be nil though all arguments are right is marked `?`: a result that the SDK does not have, an object or
--   bytes that an event came without. In a list of objects an element can be missing where the SDK gave an empty one;
--   `ipairs` ends there.
-- - Tables come as copies, but for that of `getSyncDownloadHandler`: changing one changes nothing but that table.
--
-- Objects of the seven classes have methods, as `order:get_orderId()`; `tostring` gives a readable form of all but
-- PadEvent, and raises an error where the SDK has none. A setter takes what it can use: a value that is no text is stored
-- as the empty string, one that does not convert to the field's kind of number as 0 (3.0 and "3" do, 2.5 is no integer),
-- and of any value as a boolean its truth counts. A setter of a map or list leaves out elements that it cannot use, but
-- stores 0 for a value of an integer map, and raises an error where the value is no table; `set_arrPriceLocaleId` does it
-- the other way about: it does nothing for what is no table, and raises an error for an element without text.

-- ## The table

---A text: a string, or a number, which is taken as its string.
---@alias velora.Text string|number

---The SDK, as scripts see it.
---@class velora
velora = {}

---Empty; kept for what may come.
velora.utils = {}

-- ## Setting callbacks
-- An event has one callback. `setOn…` puts a function in charge of it, in place of the one before, and leaves all as it
-- is when given anything else; `getOn…` gives that function, or nil. An error in a callback is logged, and the next
-- event comes as ever.

-- # Start and login
-- Starting the SDK, logging in and out, the account, the views around it, and leaving the game.

-- ## Starting

---Starts the SDK; answered by FinishInit.
function velora.zvInit() end

---Whether the SDK has started.
---@return boolean
function velora.isInit() end

---The start has come to its end. `code` is one of `FINISH_INIT_*`.
---@alias velora.OnFinishInit fun(code: integer)
---@param callback velora.OnFinishInit
function velora.setOnFinishInit(callback) end
---@return velora.OnFinishInit? callback
function velora.getOnFinishInit() end

---The SDK's start-up, with its splash screen, is done.
---@alias velora.OnStartupDone fun()
---@param callback velora.OnStartupDone
function velora.setOnStartupDone(callback) end
---@return velora.OnStartupDone? callback
function velora.getOnStartupDone() end

---The player has tapped the splash screen.
---@alias velora.OnStartupClickSplash fun()
---@param callback velora.OnStartupClickSplash
function velora.setOnStartupClickSplash(callback) end
---@return velora.OnStartupClickSplash? callback
function velora.getOnStartupClickSplash() end

-- ### Codes of FinishInit
-- What `code` of the callback FinishInit can be.

---@class velora
---@field FINISH_INIT_OK 0
---@field FINISH_INIT_FAILED 1
---@field FINISH_INIT_MISSED 3
---@field FINISH_INIT_NEED_UPDATE_PACKAGE 4

-- ## Login

---Logs the player in; answered by LoginDone.
function velora.zvLogin() end

---Logs the player out; answered by LogoutDone.
function velora.zvLogout() end

---Lets the player log in as somebody else; answered by LoginDone.
function velora.zvSwitchAccount() end

---Whether a player is logged in.
---@return boolean
function velora.hasLogin() end

---Tells the SDK that the game's own login has succeeded.
function velora.zvGameLoginSuccess() end

---The name of the way in which the player has logged in; compare `ZV_AUTH_NAME_*`.
---@return string?
function velora.getAuthTypeName() end

---A login, a change of account or the binding of a guest account has ended. `code` is one of `LOGIN_DONE_*`.
---@alias velora.OnLoginDone fun(code: integer)
---@param callback velora.OnLoginDone
function velora.setOnLoginDone(callback) end
---@return velora.OnLoginDone? callback
function velora.getOnLoginDone() end

---A logout has ended. `code` is one of `LOGOUT_DONE_*`.
---@alias velora.OnLogoutDone fun(code: integer)
---@param callback velora.OnLogoutDone
function velora.setOnLogoutDone(callback) end
---@return velora.OnLogoutDone? callback
function velora.getOnLogoutDone() end

---A new account has been registered.
---@alias velora.OnRegister fun()
---@param callback velora.OnRegister
function velora.setOnRegister(callback) end
---@return velora.OnRegister? callback
function velora.getOnRegister() end

-- ### Codes of LoginDone
-- What `code` of the callback LoginDone can be.

---@class velora
---@field LOGIN_DONE_OK 0
---@field LOGIN_DONE_CANCEL 1
---@field LOGIN_DONE_WRONG_PASSWD 2
---@field LOGIN_DONE_NET_UNAVAILABLE 3
---@field LOGIN_DONE_SDK_SERV_ERR 4
---@field LOGIN_DONE_NET_TIME_OUT 5
---@field LOGIN_DONE_SDK_NOT_INIT 6
---@field LOGIN_DONE_UNKNOWN_ERR 10
---@field LOGIN_DONE_NEED_GS_CONFIRM 11
---@field LOGIN_DONE_NEED_RELOGIN 12
---@field LOGIN_DONE_BIND_OK 13
---@field LOGIN_DONE_GREEN 14
---@field LOGIN_DONE_VELORA_BIND_OK 130
---@field LOGIN_DONE_VELORA_BIND_FAIL -130

-- ### Codes of LogoutDone
-- What `code` of the callback LogoutDone can be.

---@class velora
---@field LOGOUT_DONE_OK 0
---@field LOGOUT_DONE_FAILED 1
---@field LOGOUT_DONE_NOLOGIN 2
---@field LOGOUT_DONE_NEED_RELOGIN 3

-- ### Login state codes
-- Integers: values of the property `LOGIN_STAT`.

---@class velora
---@field E_LS_NOT_LOGIN integer
---@field E_LS_LOGIN_OK integer
---@field E_LS_NEED_GS_CONFIRM integer

-- ### Login channel codes
-- Integers that stand for the ways to log in.

---@class velora
---@field AUTH_UNLOGIN integer
---@field AUTH_NATIVE integer
---@field AUTH_GUEST integer
---@field AUTH_WEIBO integer
---@field AUTH_FACEBOOK integer
---@field AUTH_GOOGLE integer
---@field AUTH_MOBILE integer
---@field AUTH_QQ integer
---@field AUTH_WEIXIN integer
---@field AUTH_DUOKU integer
---@field AUTH_91 integer
---@field AUTH_BEETALK integer
---@field AUTH_KAKAO integer
---@field AUTH_TWITTER integer
---@field AUTH_DMM integer
---@field AUTH_STEAM integer
---@field AUTH_AMAZONE integer
---@field AUTH_LINE integer
---@field AUTH_LINE_GAME integer
---@field AUTH_BATTLE integer
---@field AUTH_PELIA integer
---@field AUTH_PSN integer
---@field AUTH_XIANLIAO integer
---@field AUTH_NINTENDO integer
---@field AUTH_DOUYIN integer
---@field AUTH_MOBILE_NOT_ZORVANE integer
---@field AUTH_APPLE integer
---@field AUTH_MOWANG integer

-- ### Login channel names
-- Strings that name the ways to log in, to compare with `getAuthTypeName`.

---@class velora
---@field ZV_AUTH_NAME_UNLOGIN string
---@field ZV_AUTH_NAME_NATIVE string
---@field ZV_AUTH_NAME_GUEST string
---@field ZV_AUTH_NAME_WEIBO string
---@field ZV_AUTH_NAME_FACEBOOK string
---@field ZV_AUTH_NAME_GameCenter string
---@field ZV_AUTH_NAME_WECHAT string
---@field ZV_AUTH_NAME_GARENA string
---@field ZV_AUTH_NAME_BEETALK string
---@field ZV_AUTH_NAME_QQ string
---@field ZV_AUTH_NAME_GOOGLE string
---@field ZV_AUTH_NAME_JOYBOMB string
---@field ZV_AUTH_NAME_MOBILE string
---@field ZV_AUTH_NAME_DUOKU string
---@field ZV_AUTH_NAME_91 string
---@field ZV_AUTH_NAME_KAKAO string
---@field ZV_AUTH_NAME_TWITTER string
---@field ZV_AUTH_NAME_DMM string
---@field ZV_AUTH_NAME_STEAM string
---@field ZV_AUTH_NAME_AMAZON string
---@field ZV_AUTH_NAME_LINE string
---@field ZV_AUTH_NAME_LINE_GMAE string
---@field ZV_AUTH_NAME_BATTLE string
---@field ZV_AUTH_NAME_PELIA string
---@field ZV_AUTH_NAME_PSN string
---@field ZV_AUTH_NAME_XIANLIAO string
---@field ZV_AUTH_NAME_NINTENDO string
---@field ZV_AUTH_NAME_DOUYIN string
---@field ZV_AUTH_NAME_MOBILE_NOT_ZORVANE string
---@field ZV_AUTH_NAME_APPLE string
---@field ZV_AUTH_NAME_MOWANG string

-- ## Account

---Binds the guest account in use to a real one; answered by LoginDone, with a code for the binding:
---`LOGIN_DONE_BIND_OK`, `LOGIN_DONE_VELORA_BIND_OK` or `LOGIN_DONE_VELORA_BIND_FAIL`.
function velora.zvGuestBind() end

---Whether the account is bound to what `name` names.
---@param name velora.Text
---@return boolean
function velora.isBinded(name) end

---Opens the SDK's account manager; CloseManagerView tells when it closes.
function velora.zvOpenManager() end

---The account manager has been closed.
---@alias velora.OnCloseManagerView fun()
---@param callback velora.OnCloseManagerView
function velora.setOnCloseManagerView(callback) end
---@return velora.OnCloseManagerView? callback
function velora.getOnCloseManagerView() end

---Hands a key and its value to the SDK's JF sign-on data.
---@param key velora.Text
---@param value velora.Text
---@param flag boolean passed to the SDK as it is
function velora.setJFSauthWithKey(key, value, flag) end

-- ## Agreement, real name, mobile number

---Shows the user agreement; answered by ProtocolFinish.
---@param shown boolean passed to the SDK as it is
function velora.zvShowCompactView(shown) end

---The user agreement has been answered. `code` is one of `PROTOCOL_FINISH_*`.
---@alias velora.OnProtocolFinish fun(code: integer)
---@param callback velora.OnProtocolFinish
function velora.setOnProtocolFinish(callback) end
---@return velora.OnProtocolFinish? callback
function velora.getOnProtocolFinish() end

---Opens the SDK's real-name registration.
function velora.zvDoSdkRealNameRegister() end

---Hands a text to the SDK's anti-addiction service.
---@param text velora.Text
function velora.zvAntiAddiction(text) end

---Has the player's mobile number verified; answered by VerifySuccess or VerifyFailure.
---@param number integer passed to the SDK as it is
function velora.zvVerifyMobile(number) end

---The mobile number has been verified.
---@alias velora.OnVerifySuccess fun(code: integer, text: string)
---@param callback velora.OnVerifySuccess
function velora.setOnVerifySuccess(callback) end
---@return velora.OnVerifySuccess? callback
function velora.getOnVerifySuccess() end

---The mobile number has not been verified; `code` and `text` say why.
---@alias velora.OnVerifyFailure fun(code: integer, text: string)
---@param callback velora.OnVerifyFailure
function velora.setOnVerifyFailure(callback) end
---@return velora.OnVerifyFailure? callback
function velora.getOnVerifyFailure() end

-- ### Codes of ProtocolFinish
-- What `code` of the callback ProtocolFinish can be.

---@class velora
---@field PROTOCOL_FINISH_CONFIRM 0
---@field PROTOCOL_FINISH_ACCEPT 1
---@field PROTOCOL_FINISH_REJECT 2
---@field PROTOCOL_FINISH_NOT_NEED_SHOW 3

-- ## Notices

---Asks for the notice of the start-up; answered by StartupGetNoticeMsgDone.
---@param flag boolean passed to the SDK as it is
function velora.zvGetNotice(flag) end

---Asks for the announcement; answered by StartupGetNoticeMsgDone.
function velora.zvGetAnnouncementInfo() end

---The notice or announcement asked for is here.
---@alias velora.OnStartupGetNoticeMsgDone fun(text: string)
---@param callback velora.OnStartupGetNoticeMsgDone
function velora.setOnStartupGetNoticeMsgDone(callback) end
---@return velora.OnStartupGetNoticeMsgDone? callback
function velora.getOnStartupGetNoticeMsgDone() end

-- ## Pausing and leaving

---Opens the SDK's pause view; ClosePauseView and ContinueGame tell when it closes.
function velora.zvOpenPauseView() end

---The pause view has been closed.
---@alias velora.OnClosePauseView fun()
---@param callback velora.OnClosePauseView
function velora.setOnClosePauseView(callback) end
---@return velora.OnClosePauseView? callback
function velora.getOnClosePauseView() end

---The game is to go on after a pause.
---@alias velora.OnContinueGame fun()
---@param callback velora.OnContinueGame
function velora.setOnContinueGame(callback) end
---@return velora.OnContinueGame? callback
function velora.getOnContinueGame() end

---Asks the player whether to leave; answered by ExitApp, or by ExitOpenExitViewFailed where there is no such view.
function velora.zvOpenExitView() end

---Leaves the game through the SDK; answered by ExitApp.
function velora.exitApp() end

---The game is to end now.
---@alias velora.OnExitApp fun()
---@param callback velora.OnExitApp
function velora.setOnExitApp(callback) end
---@return velora.OnExitApp? callback
function velora.getOnExitApp() end

---The exit view could not be opened: the game has to ask for itself.
---@alias velora.OnExitOpenExitViewFailed fun()
---@param callback velora.OnExitOpenExitViewFailed
function velora.setOnExitOpenExitViewFailed(callback) end
---@return velora.OnExitOpenExitViewFailed? callback
function velora.getOnExitOpenExitViewFailed() end

-- # Properties and commands
-- The SDK's settings by name, what it knows of the player, the channel and the device, and free-form commands.

-- ## Properties
-- The names are texts; those that the SDK knows are among the SDK constants, as `velora.GAMEID`.

---Sets a text property.
---@param name velora.Text
---@param value velora.Text
function velora.setPropStr(name, value) end

---The text property of that name.
---@param name velora.Text
---@param second? any a text goes to the SDK as well (offline: the answer where nothing is set); all else is ignored
---@return string?
function velora.getPropStr(name, second) end

---Sets an integer property.
---@param name velora.Text
---@param value integer
function velora.setPropInt(name, value) end

---The integer property of that name.
---@param name velora.Text
---@param number integer goes to the SDK as well (offline: the answer where nothing is set)
---@return integer
function velora.getPropInt(name, number) end

---Whether a feature is there, as `velora.hasFeature(velora.MODE_HAS_SHARE)`. False, not nil, for an argument that is no
---text.
---@param feature velora.Text
---@return boolean
function velora.hasFeature(feature) end

---Sets an option of the SDK. The SDK expects a value of the form that the option's name asks for: give an integer where
---it takes one, a text or a boolean where it takes that. Another value raises an error.
---@param name velora.Text
---@param value integer|velora.Text|boolean
function velora.zvLumoSetOption(name, value) end

-- ### Feature modes
-- Strings: names of features, for `hasFeature`, and of the properties that switch them.

---@class velora
---@field MODE_NO_LOGIN string
---@field MODE_HAS_LOGOUT string
---@field MODE_HAS_MANAGER string
---@field MODE_HAS_PAUSE_VIEW string
---@field MODE_NEED_UNITED_LOGIN string
---@field MODE_EXIT_VIEW string
---@field MODE_HAS_GUEST string
---@field MODE_HAS_GUEST_BIND string
---@field MODE_HAS_NATIVE_GUEST_LOGIN string
---@field MODE_HAS_FRIEND string
---@field MODE_HAS_RANK string
---@field MODE_HAS_SHARE string
---@field MODE_HAS_MOREGAME_BTN string
---@field MODE_HAS_SWITCH_ACCOUNT string
---@field MODE_HAS_NEARBY string
---@field MODE_HAS_QUERYSKUDETAILS string
---@field MODE_HAS_CONVERSATION string
---@field MODE_HAS_FAQS string
---@field MODE_HAS_ACHIEVEMENT string
---@field MODE_HAS_CC_RECORD string
---@field MODE_HAS_SWRVE string
---@field MODE_HAS_HELPSHIFT string
---@field MODE_HAS_GOOGLEGAMESERVICE string
---@field MODE_HAS_FEEDBACK string
---@field MODE_HAS_SHOWVIEW string
---@field MODE_HAS_ANNOUNCEMENT string
---@field MODE_HAS_VERIFYMOBILE string
---@field MODE_HAS_QUERYORDER string
---@field MODE_REAL_NAME string
---@field MODE_QR_CODE string

-- ## Player information

---Stores what the game knows of the player, under a key, for the SDK.
---@param key velora.Text one of `USERINFO_*`, but for `USERINFO_STAGE_*`, which are values
---@param value velora.Text
function velora.setUserInfo(key, value) end

---What is stored under a key.
---@param key velora.Text one of `USERINFO_*`, but for `USERINFO_STAGE_*`, which are values
---@return string?
function velora.getUserInfo(key) end

---Sends the player information to the SDK's server; `USERINFO_STAGE` says at which moment.
function velora.zvUpLoadUserInfo() end

-- ### Player information, first set
-- Strings: keys of the player information. The `USERINFO_STAGE_*` are values of `USERINFO_STAGE`.

---@class velora
---@field USERINFO_STAGE string
---@field USERINFO_STAGE_CREATE_ROLE string
---@field USERINFO_STAGE_ENTER_SERVER string
---@field USERINFO_STAGE_LEVEL_UP string
---@field USERINFO_STAGE_FF_SUCESS string
---@field USERINFO_STAGE_LEAVE_SERVER string
---@field USERINFO_STAGE_ENTER_MAIN string
---@field USERINFO_STAGE_CHOOSE_SERVER string
---@field USERINFO_UID string
---@field USERINFO_NAME string
---@field USERINFO_AID string
---@field USERINFO_GRADE string
---@field USERINFO_HOSTID string
---@field USERINFO_HOSTNAME string
---@field USERINFO_BALANCE string
---@field USERINFO_BALANCE_ARRAY string
---@field USERINFO_VIP string
---@field USERINFO_EXP string
---@field USERINFO_ROLE_TYPE_ID string
---@field USERINFO_ROLE_TYPE_NAME string
---@field USERINFO_MENPAI_ID string
---@field USERINFO_MENPAI_NAME string
---@field USERINFO_MENPAI_ROLE_ID string
---@field USERINFO_MENPAI_ROLE_NAME string
---@field USERINFO_CAPABILITY string
---@field USERINFO_GANG_ID string
---@field USERINFO_GANG_NAME string
---@field USERINFO_GANG_ROLE_ID string
---@field USERINFO_GANG_ROLE_NAME string
---@field USERINFO_RANKING string
---@field USERINFO_ORG string
---@field USERINFO_REGION_ID string
---@field USERINFO_REGION_NAME string
---@field USERINFO_ROLE_CTIME string
---@field USERINFO_FRIEND string
---@field USERINFO_ROLE_LEVELMTIME string

-- ### Player information, second set
-- Strings: more keys of the player information.

---@class velora
---@field USERINFO_VIP_SCORE string
---@field USERINFO_RANK_LEVEL string
---@field USERINFO_RANK_EXP string
---@field USERINFO_RANK_LEVEL_2 string
---@field USERINFO_RANK_EXP_2 string
---@field USERINFO_GOLD_1 string
---@field USERINFO_GOLD_2 string
---@field USERINFO_CUP_COUNT_1 string
---@field USERINFO_CUP_COUNT_2 string
---@field USERINFO_TOTAL_KILL string
---@field USERINFO_TOTAL_HEAD string
---@field USERINFO_AVG_KD string
---@field USERINFO_MAX_KD string
---@field USERINFO_MAX_CK string
---@field USERINFO_MAIN_WEAPON_ID string
---@field USERINFO_VICE_WEAPON_ID string
---@field USERINFO_EXT_KEY string
---@field USERINFO_EXT_VALUE string

-- ## Channel and device

---The channel through which the game is distributed.
---@return string?
function velora.getChannel() end

---The application channel.
---@return string?
function velora.getAppChannel() end

---The name of the platform that the game runs on.
---@return string?
function velora.getPlatform() end

---The SDK's id of this device.
---@return string?
function velora.getUdid() end

---The channel that follows from the device's subscriber number (IMSI).
---@return string?
function velora.getChannelByImsi() end

---The same in the SDK's extended form.
---@return string?
function velora.getChannelByImsiEx() end

---The carrier that follows from the device's subscriber number; compare `CCTYPE_*`.
---@return string?
function velora.getCCTypeByImsi() end

---A version of the SDK.
---@param text velora.Text which one; passed to the SDK as it is
---@return string?
function velora.getSDKVersion(text) end

---Whether the platform of that name is at hand.
---@param name velora.Text
---@return boolean
function velora.zvHasPlatform(name) end

-- ## Commands

---Gives the SDK an extension command; what it answers comes as ExtendFuncCall.
---@param command velora.Text
function velora.zvExtendFunc(command) end

---The SDK answers an extension command, or calls the game.
---@alias velora.OnExtendFuncCall fun(text: string)
---@param callback velora.OnExtendFuncCall
function velora.setOnExtendFuncCall(callback) end
---@return velora.OnExtendFuncCall? callback
function velora.getOnExtendFuncCall() end

---Gives the SDK a generic command.
---@param command velora.Text
function velora.zvvGenericFunctionCall(command) end

---Reports a success to the SDK.
---@param text velora.Text
function velora.zvCallbackSuccess(text) end

---Reports a failure to the SDK.
---@param text velora.Text
function velora.zvCallbackFail(text) end

---Hands two texts to the SDK's update interface.
---@param first velora.Text
---@param second velora.Text
function velora.zvUpdateApi(first, second) end

---Sets the command line that the SDK keeps; nil, no argument and an empty text clear it. Any other value, and a second
---argument after a text, raise an error.
---@param text? velora.Text
function velora.setCmdLineParameter(text) end

---The command line that the SDK keeps; nil when there is none.
---@return string?
function velora.getCmdLineParameter() end

---Writes a text to the SDK's JF log.
---@param text velora.Text
function velora.zvJFLog(text) end

-- # Payment
-- Products, store items and orders. A product is registered with `OrderInfo.regProduct`, an order made with
-- `OrderInfo.new`, checked with `zvCheckOrder` and, once the player has the goods, consumed with `zvConsume`.

-- ## Orders and store items

---Asks the store about its items; answered by QuerySkuDetailsFinished. An id that is no text raises an error.
---@param itemType velora.Text one of `ITEM_TYPE_*`
---@param productIds velora.Text[]
function velora.zvQuerySkuDetails(itemType, productIds) end

---Has an order checked, which is how a purchase begins; answered by OrderCheckDone.
---@param order velora.OrderInfo the SDK works on this very record
function velora.zvCheckOrder(order) end

---Has an order consumed, once the player has the goods; answered by OrderCosumeDone.
---@param order velora.OrderInfo
function velora.zvConsume(order) end

---Has the SDK verify the order at hand.
function velora.zvVerifyOrder() end

---Prepares a payment.
function velora.zvPrePay() end

---Has the SDK query the store's inventory.
function velora.zvQueryInventory() end

---The orders that are checked and not yet consumed; nil, not an empty table, when there are none.
---@return velora.OrderInfo[]? orders
function velora.zvGetCheckedOrders() end

---Takes an order off the list of checked orders.
---@param orderId velora.Text
function velora.zvRemoveCheckedOrders(orderId) end

---The FF channel of a product, as the payment side calls it.
---@param productId velora.Text
---@return string?
function velora.getFFChannelByPid(productId) end

---Hands a text to DRPF, one of the SDK's reports, and gives its code.
---@param text velora.Text
---@return integer
function velora.DRPF(text) end

---The store has described its items.
---@alias velora.OnQuerySkuDetailsFinished fun(skus: velora.SkuDetailsInfo[])
---@param callback velora.OnQuerySkuDetailsFinished
function velora.setOnQuerySkuDetailsFinished(callback) end
---@return velora.OnQuerySkuDetailsFinished? callback
function velora.getOnQuerySkuDetailsFinished() end

---An order has been checked; `get_orderStatus` says with what outcome.
---@alias velora.OnOrderCheckDone fun(order: velora.OrderInfo?)
---@param callback velora.OnOrderCheckDone
function velora.setOnOrderCheckDone(callback) end
---@return velora.OnOrderCheckDone? callback
function velora.getOnOrderCheckDone() end

---An order has been consumed; `get_orderStatus` says with what outcome. The event is spelt like this.
---@alias velora.OnOrderCosumeDone fun(order: velora.OrderInfo?)
---@param callback velora.OnOrderCosumeDone
function velora.setOnOrderCosumeDone(callback) end
---@return velora.OnOrderCosumeDone? callback
function velora.getOnOrderCosumeDone() end

-- ### Store item types
-- Strings that name the kinds of store items.

---@class velora
---@field ITEM_TYPE_CONSUMABLE string
---@field ITEM_TYPE_NON_CONSUMABLE string
---@field ITEM_TYPE_SUBSCRIPTION string
---@field ITEM_TYPE_AUTO_RECURRING_SUBSCRIPTIONS string
---@field ITEM_TYPE_ALL string

-- ## OrderInfo

---A payment order. The functions without an object, as `regProduct`, are the SDK's register of products.
---@class velora.OrderInfo
---@field get_aid fun(self: velora.OrderInfo): string?
---@field set_aid fun(self: velora.OrderInfo, value: velora.Text)
---@field get_count fun(self: velora.OrderInfo): integer How many of the product.
---@field set_count fun(self: velora.OrderInfo, value: integer)
---@field get_curOrderChannel fun(self: velora.OrderInfo): string? The channel that the order goes through now.
---@field get_externalChannelId fun(self: velora.OrderInfo): string? The id of an external channel.
---@field set_externalChannelId fun(self: velora.OrderInfo, value: velora.Text)
---@field get_ffChannel fun(self: velora.OrderInfo): string?
---@field get_jfCode fun(self: velora.OrderInfo): integer
---@field set_jfCode fun(self: velora.OrderInfo, value: integer)
---@field get_jfExtInfo fun(self: velora.OrderInfo): string?
---@field set_jfExtInfo fun(self: velora.OrderInfo, value: velora.Text)
---@field get_extendJson fun(self: velora.OrderInfo): string? Further data as JSON.
---@field set_extendJson fun(self: velora.OrderInfo, value: velora.Text)
---@field get_jfAasFfCode fun(self: velora.OrderInfo): integer
---@field set_jfAasFfCode fun(self: velora.OrderInfo, value: integer)
---@field get_jfAasFfRule fun(self: velora.OrderInfo): string?
---@field set_jfAasFfRule fun(self: velora.OrderInfo, value: velora.Text)
---@field get_jfMessage fun(self: velora.OrderInfo): string?
---@field set_jfMessage fun(self: velora.OrderInfo, value: velora.Text)
---@field get_veloraJfExtCid fun(self: velora.OrderInfo): string?
---@field set_veloraJfExtCid fun(self: velora.OrderInfo, value: velora.Text)
---@field get_jfGas3Url fun(self: velora.OrderInfo): string?
---@field set_jfGas3Url fun(self: velora.OrderInfo, value: velora.Text)
---@field get_jfSubCode fun(self: velora.OrderInfo): integer
---@field set_jfSubCode fun(self: velora.OrderInfo, value: integer)
---@field get_orderChannel fun(self: velora.OrderInfo): string? The channel of the order.
---@field set_orderChannel fun(self: velora.OrderInfo, value: velora.Text)
---@field get_orderCurrency fun(self: velora.OrderInfo): string? The currency.
---@field set_orderCurrency fun(self: velora.OrderInfo, value: velora.Text)
---@field get_orderDesc fun(self: velora.OrderInfo): string? The description.
---@field set_orderDesc fun(self: velora.OrderInfo, value: velora.Text)
---@field get_orderErrReason fun(self: velora.OrderInfo): string? Why the order failed.
---@field set_orderErrReason fun(self: velora.OrderInfo, value: velora.Text)
---@field get_orderErrCode fun(self: velora.OrderInfo): string? The error code, a text.
---@field get_orderEtc fun(self: velora.OrderInfo): string?
---@field set_orderEtc fun(self: velora.OrderInfo, value: velora.Text)
---@field get_orderId fun(self: velora.OrderInfo): string? The order's id.
---@field set_orderId fun(self: velora.OrderInfo, value: velora.Text)
---@field get_orderStatus fun(self: velora.OrderInfo): integer One of `ORDER_*`.
---@field set_orderStatus fun(self: velora.OrderInfo, value: integer)
---@field get_productCurrentPrice fun(self: velora.OrderInfo): number The price now, in single precision.
---@field set_productCurrentPrice fun(self: velora.OrderInfo, value: number)
---@field get_productExchangeRatio fun(self: velora.OrderInfo): number The exchange ratio, as a float: 1.0.
---@field get_productId fun(self: velora.OrderInfo): string? The product's id.
---@field set_productId fun(self: velora.OrderInfo, value: velora.Text)
---@field get_productName fun(self: velora.OrderInfo): string? The product's name.
---@field get_productPrice fun(self: velora.OrderInfo): number The product's price, in single precision.
---@field get_qrCodeParams fun(self: velora.OrderInfo): string? Parameters of an order by QR code.
---@field set_qrCodeParams fun(self: velora.OrderInfo, value: velora.Text)
---@field get_sdkOrderId fun(self: velora.OrderInfo): string? The SDK's id of the order.
---@field set_sdkOrderId fun(self: velora.OrderInfo, value: velora.Text)
---@field get_sdkPids fun(self: velora.OrderInfo): table<string, string>? Product ids by channel.
---@field get_serverId fun(self: velora.OrderInfo): string? The game server.
---@field set_serverId fun(self: velora.OrderInfo, value: velora.Text)
---@field get_signature fun(self: velora.OrderInfo): string? The signature.
---@field set_signature fun(self: velora.OrderInfo, value: velora.Text)
---@field get_uid fun(self: velora.OrderInfo): string? The user id.
---@field set_uid fun(self: velora.OrderInfo, value: velora.Text)
---@field get_userData fun(self: velora.OrderInfo): string? The game's own data.
---@field set_userData fun(self: velora.OrderInfo, value: velora.Text)
---@field get_userName fun(self: velora.OrderInfo): string? The user's name.
---@field set_userName fun(self: velora.OrderInfo, value: velora.Text)
---@field get_receipt fun(self: velora.OrderInfo): string? The store's receipt.
---@field get_qrCodeOrder fun(self: velora.OrderInfo): boolean Whether it is an order by QR code.
---@field set_qrCodeOrder fun(self: velora.OrderInfo, value: boolean)
---@field get_arrPriceLocaleId fun(self: velora.OrderInfo): string[] Locale ids of prices.
---@field set_arrPriceLocaleId fun(self: velora.OrderInfo, value: velora.Text[]) Every element has to be a text.
---@field get_channelGoodsTypes fun(self: velora.OrderInfo): table<string, integer>? Goods types by channel.
---@field get_jellRatios fun(self: velora.OrderInfo): table<string, integer>? Ratios by channel.
---@field get_jellyExtra fun(self: velora.OrderInfo): string?
---@field get_cpOrderId fun(self: velora.OrderInfo): string?
---@field set_cpOrderId fun(self: velora.OrderInfo, value: velora.Text)
---@field get_jfExtraJson fun(self: velora.OrderInfo): string?
---@field set_jfExtraJson fun(self: velora.OrderInfo, value: velora.Text)
---@field get_timeStamp fun(self: velora.OrderInfo): integer The time stamp, 64 bits.
---@field get_orderType fun(self: velora.OrderInfo): integer The type of the order.
---@field set_orderType fun(self: velora.OrderInfo, value: integer)
velora.OrderInfo = {}

---Makes an order for a product. Raises an error where `productId` is no text, or the SDK gives no order.
---@param productId velora.Text
---@return velora.OrderInfo
function velora.OrderInfo.new(productId) end

---Registers a product: by its id alone, or with id, name, price, ratio and `sdkPids`.
---@param product velora.Text|velora.ProductInfo
function velora.OrderInfo.regProduct(product) end

---Whether a product, or the product of an order, is registered. False, not nil, for any other argument.
---@param product velora.Text|velora.OrderInfo
---@return boolean
function velora.OrderInfo.hasProduct(product) end

---The registered products by id; nil when there are none. Each is a copy.
---@return table<string, velora.ProductInfo>? products
function velora.OrderInfo.getProductList() end

---The type of a product: one of `PRODUCT_TYPE_*`.
---@param productId velora.Text
---@return integer
function velora.OrderInfo.getProductType(productId) end

---Sets the type of a product.
---@param productId velora.Text
---@param productType integer one of `PRODUCT_TYPE_*`
function velora.OrderInfo.setProductType(productId, productType) end

---The order as JSON; nil where the SDK gives none.
---@return string?
function velora.OrderInfo:obj2Json() end

---The SDK's cart information for this order.
---@return string?
function velora.OrderInfo:produceCartInfo() end

-- ### Order states
-- What `get_orderStatus` of an order gives.

---@class velora
---@field ORDER_S_PREPARING 0
---@field ORDER_S_SDK_CHECKING 1
---@field ORDER_S_SDK_CHECK_OK 2
---@field ORDER_S_SDK_CHECK_ERR 3
---@field ORDER_S_GS_CHECKING 4
---@field ORDER_S_GS_CHECK_OK 5
---@field ORDER_S_GS_CHECK_ERR 6
---@field ORDER_S_WRONG_PRODUCT_ID 7
---@field ORDER_S_WRONG_ORDER_ID 8
---@field ORDER_ZV_OS_SDK_INVALID_CURRENCY 9
---@field ORDER_S_SDK_CHECK_RESTORE_OK 10
---@field ORDER_S_SDK_CHECK_CANCEL 11
---@field ORDER_S_SDK_CHANNEL_IN_BLACKLIST 430

-- ### Product types
-- What `getProductType` gives and `setProductType` takes.

---@class velora
---@field PRODUCT_TYPE_CONSUMABLE 0
---@field PRODUCT_TYPE_NONCONSUMABLE 1
---@field PRODUCT_TYPE_AUTORENEWABLE 2
---@field PRODUCT_TYPE_NONRENEWABLE 3
---@field PRODUCT_TYPE_PROMOCODE 4

-- ## ProductInfo

---A product for the register. It is a copy of its own: changes reach the register by `OrderInfo.regProduct` only.
---@class velora.ProductInfo
---@field get_productId fun(self: velora.ProductInfo): string The product's id.
---@field set_productId fun(self: velora.ProductInfo, value: velora.Text)
---@field get_productName fun(self: velora.ProductInfo): string Its name.
---@field set_productName fun(self: velora.ProductInfo, value: velora.Text)
---@field get_productPrice fun(self: velora.ProductInfo): number Its price, in single precision.
---@field set_productPrice fun(self: velora.ProductInfo, value: number)
---@field get_exchangeRatio fun(self: velora.ProductInfo): integer Its exchange ratio.
---@field set_exchangeRatio fun(self: velora.ProductInfo, value: integer)
---@field get_sdkPids fun(self: velora.ProductInfo): table<string, string> Product ids by channel.
---@field set_sdkPids fun(self: velora.ProductInfo, value: table<velora.Text, velora.Text>)
---@field get_channelGoodsTypes fun(self: velora.ProductInfo): table<string, integer> Goods types by channel.
---@field set_channelGoodsTypes fun(self: velora.ProductInfo, value: table<velora.Text, integer>)
---@field get_jellRatios fun(self: velora.ProductInfo): table<string, integer> Ratios by channel.
---@field set_jellRatios fun(self: velora.ProductInfo, value: table<velora.Text, integer>)
---@field get_jellyExtra fun(self: velora.ProductInfo): string
---@field set_jellyExtra fun(self: velora.ProductInfo, value: velora.Text)
---@field get_ffChannel fun(self: velora.ProductInfo): string
---@field set_ffChannel fun(self: velora.ProductInfo, value: velora.Text)
velora.ProductInfo = {}

---Makes an empty product, with an exchange ratio of 1.
---@return velora.ProductInfo
function velora.ProductInfo.new() end

-- ## SkuDetailsInfo

---The store's description of an item. All fields are texts, the price in micros as well.
---@class velora.SkuDetailsInfo
---@field get_description fun(self: velora.SkuDetailsInfo): string? The description.
---@field set_description fun(self: velora.SkuDetailsInfo, value: velora.Text)
---@field get_price fun(self: velora.SkuDetailsInfo): string? The price as the player reads it.
---@field set_price fun(self: velora.SkuDetailsInfo, value: velora.Text)
---@field get_priceAmountMicros fun(self: velora.SkuDetailsInfo): string? The price in millionths.
---@field set_priceAmountMicros fun(self: velora.SkuDetailsInfo, value: velora.Text)
---@field get_priceCurrencyCode fun(self: velora.SkuDetailsInfo): string? The currency code.
---@field set_priceCurrencyCode fun(self: velora.SkuDetailsInfo, value: velora.Text)
---@field get_productId fun(self: velora.SkuDetailsInfo): string? The item's id.
---@field set_productId fun(self: velora.SkuDetailsInfo, value: velora.Text)
---@field get_title fun(self: velora.SkuDetailsInfo): string? The title.
---@field set_title fun(self: velora.SkuDetailsInfo, value: velora.Text)
---@field get_type fun(self: velora.SkuDetailsInfo): string? The type of the item.
---@field set_type fun(self: velora.SkuDetailsInfo, value: velora.Text)
velora.SkuDetailsInfo = {}

---Makes a description from seven texts. Which field each fills is up to the SDK; offline it is the order of the
---getters. Raises an error where the SDK gives no record.
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

---Asks for the player's own account; answered by QueryMyAccountFinished.
function velora.zvQueryMyAccount() end

---Asks for the player's friends; answered by QueryFriendListFinished.
function velora.zvQueryFriendList() end

---Asks for the friends that play this game; answered by QueryFriendListInGameFinished.
function velora.zvQueryFriendListInGame() end

---Asks for those who can be invited; answered by QueryAvailablesInviteesFinished.
function velora.zvQueryAvailablesInvitees() end

---Asks for those who have invited the player; answered by QueryInviterListFinished.
function velora.zvQueryInviterList() end

---Takes accounts off the list of inviters. Raises an error where the argument is no table; elements that are no texts
---are left out.
---@param accountIds velora.Text[]
function velora.zvDeleteInviters(accountIds) end

---Asks somebody to be a friend; answered by QueryApplyFriendFinished.
---@param accountId velora.Text
function velora.zvApplyFriend(accountId) end

---Invites friends; answered by QueryInviteFriendListFinished.
---@param first velora.Text passed to the SDK as it is
---@param second velora.Text passed to the SDK as it is
function velora.zvInviteFriendList(first, second) end

---Asks whether the "daren" data has been updated; answered by QueryIsDarenUpdated.
function velora.zvIsDarenUpdated() end

---Opens the page of further games.
function velora.zvMoreGame() end

---The player's own account is here; nil where the SDK has none.
---@alias velora.OnQueryMyAccountFinished fun(account: velora.AccountInfo?)
---@param callback velora.OnQueryMyAccountFinished
function velora.setOnQueryMyAccountFinished(callback) end
---@return velora.OnQueryMyAccountFinished? callback
function velora.getOnQueryMyAccountFinished() end

---The friends are here.
---@alias velora.OnQueryFriendListFinished fun(accounts: velora.AccountInfo[])
---@param callback velora.OnQueryFriendListFinished
function velora.setOnQueryFriendListFinished(callback) end
---@return velora.OnQueryFriendListFinished? callback
function velora.getOnQueryFriendListFinished() end

---The friends that play this game are here.
---@alias velora.OnQueryFriendListInGameFinished fun(accounts: velora.AccountInfo[])
---@param callback velora.OnQueryFriendListInGameFinished
function velora.setOnQueryFriendListInGameFinished(callback) end
---@return velora.OnQueryFriendListInGameFinished? callback
function velora.getOnQueryFriendListInGameFinished() end

---Those who can be invited are here.
---@alias velora.OnQueryAvailablesInviteesFinished fun(accounts: velora.AccountInfo[])
---@param callback velora.OnQueryAvailablesInviteesFinished
function velora.setOnQueryAvailablesInviteesFinished(callback) end
---@return velora.OnQueryAvailablesInviteesFinished? callback
function velora.getOnQueryAvailablesInviteesFinished() end

---Those who have invited the player are here.
---@alias velora.OnQueryInviterListFinished fun(accounts: velora.AccountInfo[])
---@param callback velora.OnQueryInviterListFinished
function velora.setOnQueryInviterListFinished(callback) end
---@return velora.OnQueryInviterListFinished? callback
function velora.getOnQueryInviterListFinished() end

---A friend request has been sent, or not.
---@alias velora.OnQueryApplyFriendFinished fun(success: boolean)
---@param callback velora.OnQueryApplyFriendFinished
function velora.setOnQueryApplyFriendFinished(callback) end
---@return velora.OnQueryApplyFriendFinished? callback
function velora.getOnQueryApplyFriendFinished() end

---Friends have been invited; the texts say whom.
---@alias velora.OnQueryInviteFriendListFinished fun(invited: string[])
---@param callback velora.OnQueryInviteFriendListFinished
function velora.setOnQueryInviteFriendListFinished(callback) end
---@return velora.OnQueryInviteFriendListFinished? callback
function velora.getOnQueryInviteFriendListFinished() end

---Whether the "daren" data has been updated.
---@alias velora.OnQueryIsDarenUpdated fun(updated: boolean)
---@param callback velora.OnQueryIsDarenUpdated
function velora.setOnQueryIsDarenUpdated(callback) end
---@return velora.OnQueryIsDarenUpdated? callback
function velora.getOnQueryIsDarenUpdated() end

-- ## Ranks, achievements and quests

---Asks for a ranking; answered by QueryRankFinished.
---@param query velora.QueryRankInfo
function velora.zvQueryRank(query) end

---Reports a score; answered by QueryRankUpdateFinished.
---@param name velora.Text the ranking
---@param score number|string a string has to read as a number
function velora.zvUpdateRank(name, score) end

---Opens a leaderboard.
---@param name velora.Text
function velora.zvDisplayLeaderboard(name) end

---Reports the progress of an achievement; answered by QueryRankUpdateAchievement.
---@param name velora.Text
---@param progress integer
function velora.zvUpdateAchievement(name, progress) end

---Opens the list of achievements.
function velora.zvDisplayAchievement() end

---Reports that a game event has happened so often.
---@param name velora.Text
---@param count integer
function velora.zvUpdateEvent(name, count) end

---Opens a view of quests; QuestCompleted tells of those that are completed. Raises an error where the argument is no
---table; elements that do not convert to an integer count as 0.
---@param quests integer[]
function velora.zvDisplayQuests(quests) end

---The ranking is here.
---@alias velora.OnQueryRankFinished fun(accounts: velora.AccountInfo[])
---@param callback velora.OnQueryRankFinished
function velora.setOnQueryRankFinished(callback) end
---@return velora.OnQueryRankFinished? callback
function velora.getOnQueryRankFinished() end

---A score has been reported, or not.
---@alias velora.OnQueryRankUpdateFinished fun(success: boolean)
---@param callback velora.OnQueryRankUpdateFinished
function velora.setOnQueryRankUpdateFinished(callback) end
---@return velora.OnQueryRankUpdateFinished? callback
function velora.getOnQueryRankUpdateFinished() end

---The progress of an achievement has been reported, or not.
---@alias velora.OnQueryRankUpdateAchievement fun(success: boolean)
---@param callback velora.OnQueryRankUpdateAchievement
function velora.setOnQueryRankUpdateAchievement(callback) end
---@return velora.OnQueryRankUpdateAchievement? callback
function velora.getOnQueryRankUpdateAchievement() end

---A quest has been completed.
---@alias velora.OnQuestCompleted fun(quest: string)
---@param callback velora.OnQuestCompleted
function velora.setOnQuestCompleted(callback) end
---@return velora.OnQuestCompleted? callback
function velora.getOnQuestCompleted() end

-- ## AccountInfo

---An account: a friend, an inviter, a place in a ranking. Mostly it comes through a callback.
---@class velora.AccountInfo
---@field get_accountId fun(self: velora.AccountInfo): string? The account's id.
---@field set_accountId fun(self: velora.AccountInfo, value: velora.Text)
---@field get_icon fun(self: velora.AccountInfo): string? The picture.
---@field set_icon fun(self: velora.AccountInfo, value: velora.Text)
---@field get_idType fun(self: velora.AccountInfo): string? What kind of id it is.
---@field set_idType fun(self: velora.AccountInfo, value: velora.Text)
---@field get_nickname fun(self: velora.AccountInfo): string? The nickname.
---@field set_nickname fun(self: velora.AccountInfo, value: velora.Text)
---@field get_rank fun(self: velora.AccountInfo): integer The place in the ranking, 64 bits.
---@field set_rank fun(self: velora.AccountInfo, value: integer)
---@field get_rankScore fun(self: velora.AccountInfo): number The score in the ranking.
---@field set_rankScore fun(self: velora.AccountInfo, value: number)
---@field get_relationType fun(self: velora.AccountInfo): string? How the account stands to the player.
---@field set_relationType fun(self: velora.AccountInfo, value: velora.Text)
---@field get_remark fun(self: velora.AccountInfo): string? A remark.
---@field set_remark fun(self: velora.AccountInfo, value: velora.Text)
---@field get_statusMessage fun(self: velora.AccountInfo): string? The status message.
---@field set_statusMessage fun(self: velora.AccountInfo, value: velora.Text)
---@field get_inGame fun(self: velora.AccountInfo): boolean Whether it plays this game.
---@field set_inGame fun(self: velora.AccountInfo, value: boolean)
velora.AccountInfo = {}

---Makes an account. A nil given counts as a wrong argument; leave it out instead. Raises an error where the SDK gives
---no record.
---@overload fun(): velora.AccountInfo
---@param text velora.Text passed to the SDK as it is
---@return velora.AccountInfo
function velora.AccountInfo.new(text) end

-- ## QueryRankInfo

---Which ranking to ask for, among whom, and how many places.
---@class velora.QueryRankInfo
---@field get_type fun(self: velora.QueryRankInfo): string? One of `QUERY_RANK_TYPE_*`.
---@field set_type fun(self: velora.QueryRankInfo, value: velora.Text)
---@field get_scope fun(self: velora.QueryRankInfo): string? One of `QUERY_RANK_SCOPE_*`.
---@field set_scope fun(self: velora.QueryRankInfo, value: velora.Text)
---@field get_count fun(self: velora.QueryRankInfo): integer How many places.
---@field set_count fun(self: velora.QueryRankInfo, value: integer)
velora.QueryRankInfo = {}

---Makes a query. A nil given counts as a wrong argument; leave it out instead. Raises an error where the SDK gives no
---record.
---@overload fun(): velora.QueryRankInfo
---@param text velora.Text passed to the SDK as it is
---@return velora.QueryRankInfo
function velora.QueryRankInfo.new(text) end

-- ### Kinds and scopes of a ranking
-- Strings of the SDK, for `set_type` and `set_scope` of a query.

---@class velora
---@field QUERY_RANK_TYPE_SCORE string
---@field QUERY_RANK_TYPE_GRADE string
---@field QUERY_RANK_SCOPE_ALL string
---@field QUERY_RANK_SCOPE_FRIEND string

-- # Sharing
-- A request is filled field by field, tested with `zvCheckArgs` and sent with `zvShare`.

-- ## Sending a request

---Shares; answered by ShareFinished.
---@param share velora.ShareInfo
function velora.zvShare(share) end

---Whether a request is complete enough to be shared.
---@param share velora.ShareInfo
---@return boolean
function velora.zvCheckArgs(share) end

---The message of the last request that was shared.
---@return string?
function velora.getLastShareMessage() end

---The request has been shared, or not.
---@alias velora.OnShareFinished fun(success: boolean)
---@param callback velora.OnShareFinished
function velora.setOnShareFinished(callback) end
---@return velora.OnShareFinished? callback
function velora.getOnShareFinished() end

-- ## ShareInfo

---A share request. The maps `…Params` and `…Msg` and the list of recipients reach the SDK when the request is sent,
---checked or turned into a string; every other field at once.
---@class velora.ShareInfo
---@field get_aLinkParams fun(self: velora.ShareInfo): table<string, string>
---@field set_aLinkParams fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>)
---@field get_altTextMsg fun(self: velora.ShareInfo): table<string, string>
---@field set_altTextMsg fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>)
---@field get_desc fun(self: velora.ShareInfo): string? The description.
---@field set_desc fun(self: velora.ShareInfo, value: velora.Text)
---@field get_extJson fun(self: velora.ShareInfo): string? Further data as JSON.
---@field set_extJson fun(self: velora.ShareInfo, value: velora.Text)
---@field get_failMsg fun(self: velora.ShareInfo): string? The message shown when sharing fails.
---@field set_failMsg fun(self: velora.ShareInfo, value: velora.Text)
---@field get_iLinkParams fun(self: velora.ShareInfo): table<string, string>
---@field set_iLinkParams fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>)
---@field get_image fun(self: velora.ShareInfo): string? The picture.
---@field set_image fun(self: velora.ShareInfo, value: velora.Text)
---@field get_link fun(self: velora.ShareInfo): string? The link.
---@field set_link fun(self: velora.ShareInfo, value: velora.Text)
---@field get_linkParams fun(self: velora.ShareInfo): table<string, string> Parameters of the link.
---@field set_linkParams fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>)
---@field get_linkTextMsg fun(self: velora.ShareInfo): table<string, string>
---@field set_linkTextMsg fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>)
---@field get_musicUrl fun(self: velora.ShareInfo): string? The address of the music.
---@field set_musicUrl fun(self: velora.ShareInfo, value: velora.Text)
---@field get_objectValue fun(self: velora.ShareInfo): string?
---@field set_objectValue fun(self: velora.ShareInfo, value: velora.Text)
---@field get_roomId fun(self: velora.ShareInfo): string? The id of the room to invite to.
---@field set_roomId fun(self: velora.ShareInfo, value: velora.Text)
---@field get_roomToken fun(self: velora.ShareInfo): string? The token of that room.
---@field set_roomToken fun(self: velora.ShareInfo, value: velora.Text)
---@field get_scope fun(self: velora.ShareInfo): string? One of `SHARE_SCOPE_*`.
---@field set_scope fun(self: velora.ShareInfo, value: velora.Text)
---@field get_shareChannel fun(self: velora.ShareInfo): integer One of `ZV_SHARE_TYPE_*`.
---@field set_shareChannel fun(self: velora.ShareInfo, value: integer)
---@field get_subTextMsg fun(self: velora.ShareInfo): table<string, string>
---@field set_subTextMsg fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>)
---@field get_templateId fun(self: velora.ShareInfo): string? The id of a template.
---@field set_templateId fun(self: velora.ShareInfo, value: velora.Text)
---@field get_text fun(self: velora.ShareInfo): string? The text.
---@field set_text fun(self: velora.ShareInfo, value: velora.Text)
---@field get_tag fun(self: velora.ShareInfo): string? The tag.
---@field set_tag fun(self: velora.ShareInfo, value: velora.Text)
---@field get_textMsg fun(self: velora.ShareInfo): table<string, string>
---@field set_textMsg fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>)
---@field get_timelineType fun(self: velora.ShareInfo): string? The kind of timeline.
---@field set_timelineType fun(self: velora.ShareInfo, value: velora.Text)
---@field get_title fun(self: velora.ShareInfo): string? The title.
---@field set_title fun(self: velora.ShareInfo, value: velora.Text)
---@field get_toUser fun(self: velora.ShareInfo): string? The recipient.
---@field set_toUser fun(self: velora.ShareInfo, value: velora.Text)
---@field get_toUserList fun(self: velora.ShareInfo): string[] The recipients.
---@field set_toUserList fun(self: velora.ShareInfo, value: velora.Text[])
---@field get_type fun(self: velora.ShareInfo): string? One of `SHARE_TYPE_*`.
---@field set_type fun(self: velora.ShareInfo, value: velora.Text)
---@field get_u3dShareBitmap fun(self: velora.ShareInfo): string?
---@field set_u3dShareBitmap fun(self: velora.ShareInfo, value: velora.Text)
---@field get_u3dshareThumb fun(self: velora.ShareInfo): string? Spelt with a small s, unlike `u3dShareBitmap`.
---@field set_u3dshareThumb fun(self: velora.ShareInfo, value: velora.Text)
---@field get_videoUrl fun(self: velora.ShareInfo): string? The address of the video.
---@field set_videoUrl fun(self: velora.ShareInfo, value: velora.Text)
---@field get_showShareDialog fun(self: velora.ShareInfo): boolean Whether the SDK asks where to share.
---@field set_showShareDialog fun(self: velora.ShareInfo, value: boolean)
---@field get_shareThumb fun(self: velora.ShareInfo): string? The small picture.
---@field set_shareThumb fun(self: velora.ShareInfo, value: velora.Text)
---@field get_shareBitmap fun(self: velora.ShareInfo): string? The picture data.
---@field set_shareBitmap fun(self: velora.ShareInfo, value: velora.Text)
---@field get_path fun(self: velora.ShareInfo): string? The page of a mini program.
---@field set_path fun(self: velora.ShareInfo, value: velora.Text)
---@field get_userName fun(self: velora.ShareInfo): string? The name of a mini program.
---@field set_userName fun(self: velora.ShareInfo, value: velora.Text)
---@field get_miniProgramType fun(self: velora.ShareInfo): integer `MINIPROGRAM_TYPE_*`, `MINIPTOGRAM_TYPE_RELEASE`.
---@field set_miniProgramType fun(self: velora.ShareInfo, value: integer)
---@field get_shareData fun(self: velora.ShareInfo): table<string, string>? Further data by name.
---@field set_shareData fun(self: velora.ShareInfo, value: table<velora.Text, velora.Text>)
velora.ShareInfo = {}

---Makes a request. A nil given counts as a wrong argument; leave it out instead. Raises an error where the SDK gives no
---record.
---@overload fun(): velora.ShareInfo
---@param text velora.Text passed to the SDK as it is
---@return velora.ShareInfo
function velora.ShareInfo.new(text) end

-- ### Kinds and scopes of a request
-- Strings of the SDK: `SHARE_TYPE_*` for `set_type`, `SHARE_SCOPE_*` for `set_scope`.

---@class velora
---@field SHARE_SCOPE_TOUSER string
---@field SHARE_SCOPE_CIRCLE string
---@field SHARE_SCOPE_MULTIUSER string
---@field SHARE_TYPE_INVITE string
---@field SHARE_TYPE_IMAGE string
---@field SHARE_TYPE_LINK string
---@field SHARE_TYPE_VIDEO string
---@field SHARE_TYPE_AUDIO string
---@field SHARE_TYPE_GIF string
---@field SHARE_TYPE_TEXT_ONLY string
---@field SHARE_TYPE_ATTENTION string
---@field SHARE_TYPE_GAME_REQUEST string
---@field SHARE_TYPE_GET_TOKEN string
---@field SHARE_TYPE_GET_RTMP string
---@field SHARE_TYPE_CLEAR_TOKEN string
---@field SHARE_TYPE_MINI_PROGRAM string
---@field SHARE_TYPE_MUSIC string

-- ### Share channel codes
-- Integers, for `set_shareChannel` of a request.

---@class velora
---@field ZV_SHARE_TYPE_ANY integer
---@field ZV_SHARE_TYPE_WEIBO integer
---@field ZV_SHARE_TYPE_WEIXIN_FRIEND integer
---@field ZV_SHARE_TYPE_WEIXIN_TIMELINE integer
---@field ZV_SHARE_TYPE_PELIA_FRIEND integer
---@field ZV_SHARE_TYPE_PELIA_TIMELINE integer
---@field ZV_SHARE_TYPE_QQ integer
---@field ZV_SHARE_TYPE_QZONE integer
---@field ZV_SHARE_TYPE_PLUS integer
---@field ZV_SHARE_TYPE_FACEBOOK integer
---@field ZV_SHARE_TYPE_GARENA integer
---@field ZV_SHARE_TYPE_KAKAO integer
---@field ZV_SHARE_TYPE_TWITTER integer
---@field ZV_SHARE_TYPE_ZALO integer
---@field ZV_SHARE_TYPE_VK integer
---@field ZV_SHARE_TYPE_LINE integer
---@field ZV_SHARE_TYPE_FACEBOOK_MESSENGER integer
---@field ZV_SHARE_TYPE_FACEBOOK_LIKE integer
---@field ZV_SHARE_TYPE_WEIBO_ATTENTION integer
---@field ZV_SHARE_TYPE_WEIXIN_ATTENTION integer
---@field ZV_SHARE_TYPE_NAVER_CAFE integer
---@field ZV_SHARE_TYPE_WHATSAPP integer
---@field ZV_SHARE_TYPE_INSTAGRAM integer
---@field ZV_SHARE_TYPE_YOUTUBE integer
---@field ZV_SHARE_TYPE_BAIDU_TIEBA integer
---@field ZV_SHARE_TYPE_STARLIT_TIMELINE integer
---@field ZV_SHARE_TYPE_STARLIT_FRIEND integer
---@field ZV_SHARE_TYPE_XIAN_LIAO integer
---@field ZV_SHARE_TYPE_INSTAGRAM_2 integer
---@field ZV_SHARE_TYPE_TWITTER_2 integer
---@field ZV_SHARE_TYPE_LINE_2 integer
---@field ZV_SHARE_TYPE_LINE_GAME integer
---@field ZV_SHARE_TYPE_MINI_PROGRAM integer
---@field ZV_SHARE_TYPE_DOUYIN integer
---@field ZV_SHARE_TYPE_KUAISHOU integer
---@field ZV_SHARE_TYPE_KAKAO_STORY integer
---@field ZV_SHARE_TYPE_TIKTOK integer

-- ### Mini program
-- The key of the property for the kind of mini program, a string, and integers for `set_miniProgramType`. The first of
-- these is spelt so by the SDK.

---@class velora
---@field MINI_PROGRAM_RELEASE_TYPE string
---@field MINIPTOGRAM_TYPE_RELEASE integer spelt so by the SDK
---@field MINIPROGRAM_TYPE_TEST integer
---@field MINIPROGRAM_TYPE_PREVIEW integer

-- # Notifications
-- Messages to players who are not in the game: push notifications from afar, local ones from this device.

-- ## Push notifications

---Asks whether push notifications are on; answered by PushGetUserPushFinished.
function velora.zvGetUsePushNotification() end

---Switches push notifications on or off; answered by PushSetUserPushFinished.
---@param enabled boolean
function velora.zvSetUsePushNotification(enabled) end

---Sends a push notification to other players; answered by PushSendPushNotificationFinished. Elements that are no texts
---are left out.
---@param text velora.Text
---@param accountIds velora.Text[]
function velora.zvSendPushNotification(text, accountIds) end

---Whether push notifications are on.
---@alias velora.OnPushGetUserPushFinished fun(enabled: boolean)
---@param callback velora.OnPushGetUserPushFinished
function velora.setOnPushGetUserPushFinished(callback) end
---@return velora.OnPushGetUserPushFinished? callback
function velora.getOnPushGetUserPushFinished() end

---Push notifications have been switched, or not.
---@alias velora.OnPushSetUserPushFinished fun(success: boolean)
---@param callback velora.OnPushSetUserPushFinished
function velora.setOnPushSetUserPushFinished(callback) end
---@return velora.OnPushSetUserPushFinished? callback
function velora.getOnPushSetUserPushFinished() end

---A push notification has been sent, or not.
---@alias velora.OnPushSendPushNotificationFinished fun(success: boolean)
---@param callback velora.OnPushSendPushNotificationFinished
function velora.setOnPushSendPushNotificationFinished(callback) end
---@return velora.OnPushSendPushNotificationFinished? callback
function velora.getOnPushSendPushNotificationFinished() end

-- ## Local notifications

---Sends a notification on this device; answered by PushSendLocalNotificationFinished.
---@param text velora.Text
function velora.zvSendLocalNotification(text) end

---Cancels a local notification; answered by CancelLocalPushFinished.
---@param id integer
function velora.zvCancelLocalNotification(id) end

---Whether a notification is pending.
---@return boolean
function velora.zvHasNotification() end

---A local notification has been sent; `code` is the SDK's.
---@alias velora.OnPushSendLocalNotificationFinished fun(code: integer)
---@param callback velora.OnPushSendLocalNotificationFinished
function velora.setOnPushSendLocalNotificationFinished(callback) end
---@return velora.OnPushSendLocalNotificationFinished? callback
function velora.getOnPushSendLocalNotificationFinished() end

---A local notification has been cancelled, or not.
---@alias velora.OnCancelLocalPushFinished fun(success: boolean)
---@param callback velora.OnCancelLocalPushFinished
function velora.setOnCancelLocalPushFinished(callback) end
---@return velora.OnCancelLocalPushFinished? callback
function velora.getOnCancelLocalPushFinished() end

-- ## Messages received

---A message notification has come in.
---@alias velora.OnReceiveMsgNotification fun()
---@param callback velora.OnReceiveMsgNotification
function velora.setOnReceiveMsgNotification(callback) end
---@return velora.OnReceiveMsgNotification? callback
function velora.getOnReceiveMsgNotification() end

---The player has entered the game by way of a message; the two texts are the SDK's.
---@alias velora.OnReceiveMsgEnterGame fun(first: string, second: string)
---@param callback velora.OnReceiveMsgEnterGame
function velora.setOnReceiveMsgEnterGame(callback) end
---@return velora.OnReceiveMsgEnterGame? callback
function velora.getOnReceiveMsgEnterGame() end

-- # Channels
-- The connection between the account and a channel account.

-- ## Connecting

---Connects to the channel; answered by ConnectToChannelFinished.
function velora.zvConnectToChannel() end

---Ends the connection; answered by DisconnectToChannelFinished.
function velora.zvDisConnectFromChannel() end

---Whether the channel is connected.
---@return boolean
function velora.zvHasChannelConnected() end

---The id in the channel.
---@return string?
function velora.zvGetChannelID() end

---Selects one of the channel's options; answered by SelectChannelOptionFinished.
---@param option integer
function velora.zvSelectChannelOption(option) end

---Tells the SDK the zone, that is the game server, of the player.
---@param zone velora.Text
function velora.zvSetZone(zone) end

---An attempt to connect has ended. `code` is one of `CONNECT_*`.
---@alias velora.OnConnectToChannelFinished fun(code: integer)
---@param callback velora.OnConnectToChannelFinished
function velora.setOnConnectToChannelFinished(callback) end
---@return velora.OnConnectToChannelFinished? callback
function velora.getOnConnectToChannelFinished() end

---An attempt to disconnect has ended; `code` is the SDK's.
---@alias velora.OnDisconnectToChannelFinished fun(code: integer)
---@param callback velora.OnDisconnectToChannelFinished
function velora.setOnDisconnectToChannelFinished(callback) end
---@return velora.OnDisconnectToChannelFinished? callback
function velora.getOnDisconnectToChannelFinished() end

---An option has been selected, or not.
---@alias velora.OnSelectChannelOptionFinished fun(success: boolean)
---@param callback velora.OnSelectChannelOptionFinished
function velora.setOnSelectChannelOptionFinished(callback) end
---@return velora.OnSelectChannelOptionFinished? callback
function velora.getOnSelectChannelOptionFinished() end

-- ### Codes of ConnectToChannelFinished
-- What `code` of the callback ConnectToChannelFinished can be.

---@class velora
---@field CONNECT_OK 0
---@field CONNECT_FAILED 1
---@field CONNECT_NEWID 2
---@field CONNECT_USEDID 3
---@field CONNECT_MODIFIED 4
---@field CONNECT_CANCELED 5
---@field CONNECT_SIGN_CANCELED 6

-- # Views and QR codes
-- Web pages and the SDK's own views over the game, the floating button, QR codes.

-- ## Web views and boards

---Opens a web page in the SDK's web view.
---@param url velora.Text
function velora.zvOpenWebView(url) end

---Closes the web view.
function velora.zvCloseWebView() end

---Shows a web page of the SDK.
---@param url velora.Text passed to the SDK as it is; `ZV_WEB_*` name the SDK's own pages
function velora.zvShowWeb(url) end

---Shows a board.
---@param first velora.Text passed to the SDK as it is
---@param second velora.Text passed to the SDK as it is
---@param third velora.Text passed to the SDK as it is
function velora.zvShowBoard(first, second, third) end

---The page in the web view calls the game.
---@alias velora.OnWebviewNativeCall fun(name: string, arguments: string)
---@param callback velora.OnWebviewNativeCall
function velora.setOnWebviewNativeCall(callback) end
---@return velora.OnWebviewNativeCall? callback
function velora.getOnWebviewNativeCall() end

-- ### Web pages
-- Strings that name the SDK's own web pages.

---@class velora
---@field ZV_WEB_NOTICE_INTRO string
---@field ZV_WEB_NOTICE_INGAME string
---@field ZV_WEB_PROMOTION_MAIN string
---@field ZV_WEB_PROMOTION_EVENT string
---@field ZV_WEB_PROMOTION_ETC string
---@field ZV_WEB_COUPON string
---@field ZV_WEB_CUSTOMER_SUPPORT_HOME string
---@field ZV_WEB_CUSTOMER_SUPPORT_FAQ string
---@field ZV_WEB_CUSTOMER_SUPPORT_INQUIRY string
---@field ZV_WEB_CUSTOMER_SUPPORT_GUIDE string
---@field ZV_WEB_CUSTOMER_SUPPORT_HISTORY string
---@field ZV_WEB_GAME_REVIEW string
---@field ZV_WEB_FREE_CHARGEVIEW string

-- ## Other views

---Shows the view of rewards; ShowViewRewarded tells when a reward is due. Raises an error where the argument is no
---table; elements that are no texts are left out.
---@param rewards velora.Text[]
function velora.zvShowRewardView(rewards) end

---Opens the conversation with the support.
function velora.zvShowConversation() end

---Opens the frequently asked questions.
function velora.zvShowFAQs() end

---Opens the view of players nearby.
function velora.zvOpenNearby() end

---Opens the VESPERA view.
function velora.zvOpenVespera() end

---Closes the flash view.
function velora.zvCloseFlash() end

---Shows or hides the SDK's floating button. Any value will do, by its truth: 0 shows it, no argument hides it.
---@param visible? any
function velora.zvSetFloatBtnVisible(visible) end

---A view has opened.
---@alias velora.OnShowViewOpened fun()
---@param callback velora.OnShowViewOpened
function velora.setOnShowViewOpened(callback) end
---@return velora.OnShowViewOpened? callback
function velora.getOnShowViewOpened() end

---A view could not be opened.
---@alias velora.OnShowViewFailed fun()
---@param callback velora.OnShowViewFailed
function velora.setOnShowViewFailed(callback) end
---@return velora.OnShowViewFailed? callback
function velora.getOnShowViewFailed() end

---A view has been closed.
---@alias velora.OnShowViewClosed fun()
---@param callback velora.OnShowViewClosed
function velora.setOnShowViewClosed(callback) end
---@return velora.OnShowViewClosed? callback
function velora.getOnShowViewClosed() end

---The player has earned the reward of a view.
---@alias velora.OnShowViewRewarded fun()
---@param callback velora.OnShowViewRewarded
function velora.setOnShowViewRewarded(callback) end
---@return velora.OnShowViewRewarded? callback
function velora.getOnShowViewRewarded() end

-- ## QR codes

---Makes a QR code as a picture; answered by CreateQRCodeDone.
---@param text velora.Text what the code is to say
---@param width integer
---@param height integer
---@param path velora.Text passed to the SDK as it is; its answer names a file
---@param icon? any a text is passed to the SDK as it is; anything else is ignored
function velora.zvCreateQRCode(text, width, height, path, icon) end

---Scans a QR code; answered by CodeScannerFinish.
---@param text velora.Text passed to the SDK as it is
function velora.zvScannerQRCode(text) end

---Opens the QR code scanner; answered by CodeScannerFinish.
---@param text velora.Text passed to the SDK as it is
---@param number integer passed to the SDK as it is
function velora.zvPresentQRCodeScanner(text, number) end

---A QR code has been made.
---@alias velora.OnCreateQRCodeDone fun(path: string)
---@param callback velora.OnCreateQRCodeDone
function velora.setOnCreateQRCodeDone(callback) end
---@return velora.OnCreateQRCodeDone? callback
function velora.getOnCreateQRCodeDone() end

---A scan has ended. `code` is one of `CODE_SCANNER_*`, `text` what was read.
---@alias velora.OnCodeScannerFinish fun(code: integer, text: string)
---@param callback velora.OnCodeScannerFinish
function velora.setOnCodeScannerFinish(callback) end
---@return velora.OnCodeScannerFinish? callback
function velora.getOnCodeScannerFinish() end

-- ### Codes of CodeScannerFinish
-- What `code` of the callback CodeScannerFinish can be.

---@class velora
---@field CODE_SCANNER_SUCCESS 0
---@field CODE_SCANNER_PARAM_INVALID 1
---@field CODE_SCANNER_UID_MISMATCH 2
---@field CODE_SCANNER_RETURN_GAME 3
---@field CODE_SCANNER_QR_CODE_INVALID 5
---@field CODE_SCANNER_PERMISSIONS_DENY 4
---@field CODE_SCANNER_FAIL 10
---@field CODE_SCANNER_PICTURE_EMPTY 11
---@field CODE_SCANNER_EXT_QRCODE_SUEESS 21 spelt so by the SDK
---@field CODE_SCANNER_CHANNEL_NOT_SUPPORT 31

-- # Controllers
-- What happens on a game controller. Each callback receives a `PadEvent` that can be asked for more.

-- ## Controller callbacks

---A key goes down. `keyCode` is one of `PAD_KEYCODE_*`.
---@alias velora.OnControllerKeyDown fun(keyCode: integer, pad: velora.PadEvent?)
---@param callback velora.OnControllerKeyDown
function velora.setOnControllerKeyDown(callback) end
---@return velora.OnControllerKeyDown? callback
function velora.getOnControllerKeyDown() end

---A key goes up. `keyCode` is one of `PAD_KEYCODE_*`.
---@alias velora.OnControllerKeyUp fun(keyCode: integer, pad: velora.PadEvent?)
---@param callback velora.OnControllerKeyUp
function velora.setOnControllerKeyUp(callback) end
---@return velora.OnControllerKeyUp? callback
function velora.getOnControllerKeyUp() end

---The pressure on a key has changed.
---@alias velora.OnControllerKeyPressure fun(keyCode: integer, pressure: number, pad: velora.PadEvent?)
---@param callback velora.OnControllerKeyPressure
function velora.setOnControllerKeyPressure(callback) end
---@return velora.OnControllerKeyPressure? callback
function velora.getOnControllerKeyPressure() end

---The left stick has moved.
---@alias velora.OnControllerLeftStick fun(x: number, y: number, pad: velora.PadEvent?)
---@param callback velora.OnControllerLeftStick
function velora.setOnControllerLeftStick(callback) end
---@return velora.OnControllerLeftStick? callback
function velora.getOnControllerLeftStick() end

---The right stick has moved.
---@alias velora.OnControllerRightStick fun(x: number, y: number, pad: velora.PadEvent?)
---@param callback velora.OnControllerRightStick
function velora.setOnControllerRightStick(callback) end
---@return velora.OnControllerRightStick? callback
function velora.getOnControllerRightStick() end

---A controller has come or gone.
---@alias velora.OnControllerStateEvent fun(pad: velora.PadEvent?)
---@param callback velora.OnControllerStateEvent
function velora.setOnControllerStateEvent(callback) end
---@return velora.OnControllerStateEvent? callback
function velora.getOnControllerStateEvent() end

-- ## PadEvent

---What the SDK knows of a controller event. It comes through callbacks only, and may be kept.
---@class velora.PadEvent
---@field get_action fun(self: velora.PadEvent): integer `PAD_ACTION_*`, as far as the SDK puts them here.
---@field get_deviceId fun(self: velora.PadEvent): integer Which controller.
---@field get_eventTime fun(self: velora.PadEvent): integer When it happened, 64 bits.
---@field get_keyCode fun(self: velora.PadEvent): integer One of `PAD_KEYCODE_*`.
---@field get_motionKeyCode fun(self: velora.PadEvent): integer The key code of a movement.
---@field get_pressure fun(self: velora.PadEvent): number The pressure on a key.
---@field get_state fun(self: velora.PadEvent): integer `PAD_ACTION_*`, as far as the SDK puts them here.
---@field get_stateAction fun(self: velora.PadEvent): integer `PAD_ACTION_*`, as far as the SDK puts them here.
---@field get_x fun(self: velora.PadEvent): number The x of a stick.
---@field get_y fun(self: velora.PadEvent): number The y of a stick.
velora.PadEvent = {}

-- ### Key codes
-- What `keyCode` of a callback, and `get_keyCode`, can be.

---@class velora
---@field PAD_KEYCODE_BACK 4
---@field PAD_KEYCODE_DPAD_UP 19
---@field PAD_KEYCODE_DPAD_DOWN 20
---@field PAD_KEYCODE_DPAD_LEFT 21
---@field PAD_KEYCODE_DPAD_RIGHT 22
---@field PAD_KEYCODE_BUTTON_A 96
---@field PAD_KEYCODE_BUTTON_B 97
---@field PAD_KEYCODE_BUTTON_X 99
---@field PAD_KEYCODE_BUTTON_Y 100
---@field PAD_KEYCODE_BUTTON_L1 102
---@field PAD_KEYCODE_BUTTON_R1 103
---@field PAD_KEYCODE_BUTTON_L2 104
---@field PAD_KEYCODE_BUTTON_R2 105
---@field PAD_KEYCODE_BUTTON_THUMBL 106
---@field PAD_KEYCODE_BUTTON_THUMBR 107
---@field PAD_KEYCODE_BUTTON_START 108
---@field PAD_KEYCODE_BUTTON_HELP 198
---@field PAD_KEYCODE_BUTTON_KEYBOARD 199
---@field PAD_KEYCODE_LEFT_STICK 200
---@field PAD_KEYCODE_RIGHT_STICK 201

-- ### Key actions and connection states
-- `DOWN`, `UP` and `PRESSURE` are what happens to a key, the other three what becomes of a controller.

---@class velora
---@field PAD_ACTION_DOWN 0
---@field PAD_ACTION_UP 1
---@field PAD_ACTION_PRESSURE -1
---@field PAD_ACTION_DISCONNECTED 0
---@field PAD_ACTION_CONNECTED 1
---@field PAD_ACTION_CONNECTING 2

-- # Recording, voice and analytics

-- ## Recording

---Starts the recording service.
function velora.zvCCStartService() end

---Stops the recording service.
function velora.zvCCStopService() end

---Whether the recording service records.
---@return boolean
function velora.isCCRecording() end

---Whether it records the microphone as well.
---@return boolean
function velora.isCCRecordMic() end

---How well the device copes with recording: one of `CC_PERFORMANCE_NOT_SUPPORT`, `CC_PERFORMANCE_GOOD` and
---`CC_PERFORMANCE_SOSO`.
---@return integer
function velora.getCCPerformance() end

---The state of the recording service's window.
---@return integer
function velora.getCCWindowState() end

---Gives the SDK game voice data.
---@param data velora.Text any bytes
---@param size? integer how many of them; 0, a negative one, more than there are and what is no integer mean all
---@param sampleRate? integer 48000 where it is no integer
---@param bitsPerSample? integer 16 where it is no integer
---@param channels? integer 2 where it is no integer
function velora.zvPushGameVoice(data, size, sampleRate, bitsPerSample, channels) end

-- ### CC settings and performance codes
-- Strings: keys of the recording service's properties. The integers `CC_PERFORMANCE_…` are what `getCCPerformance`
-- gives.

---@class velora
---@field SHOULDSCCPAUSED string
---@field CC_SHOW_FPS_SETTING string
---@field CC_DEFAULT_FPS string
---@field CC_WINDOW_STATE string
---@field CC_PERFORMANCE string
---@field CC_PERFORMANCE_NOT_SUPPORT integer
---@field CC_PERFORMANCE_GOOD integer
---@field CC_PERFORMANCE_SOSO integer

-- ## Analytics

---Reports an event to the SDK's statistics.
---@param event velora.Text
function velora.zvCollectEvent(event) end

---Tracks an event of the game's own.
---@param name velora.Text
---@param value velora.Text
function velora.zvTrackCustomEvent(name, value) end

---Sends the tracked events that still wait.
function velora.zvFlushCustomEvents() end

---Sends the player's profile.
---@param text velora.Text passed to the SDK as it is
---@param flag boolean passed to the SDK as it is
function velora.zvSendProfile(text, flag) end

---Sets the identifier under which the player is counted.
---@param identifier velora.Text
function velora.zvSetUserIdentifier(identifier) end

-- ### Analytics keys
-- Strings: keys and values for analytics reports.

---@class velora
---@field SWRVE_FUNC string
---@field SWRVE_FUNC_EVENT string
---@field SWRVE_EVENT_NAME string
---@field SWRVE_FUNC_PURCHASE string
---@field SWRVE_PURCHASE_ITEM string
---@field SWRVE_PURCHASE_CURRENCY string
---@field SWRVE_PURCHASE_COST string
---@field SWRVE_PURCHASE_QUANTITY string
---@field SWRVE_FUNC_CURRENCYGIVEN string
---@field SWRVE_CURRENCYGIVEN_CURRENCY string
---@field SWRVE_CURRENCYGIVEN_AMOUNT string
---@field SWRVE_FUNC_IAP string
---@field SWRVE_IAP_QUANTITY string
---@field SWRVE_IAP_PRODUCTID string
---@field SWRVE_IAP_PRODUCTPRICE string
---@field SWRVE_IAP_CURRENCY string
---@field SWRVE_IAP_REWARDS string
---@field SWRVE_FUNC_USERUPDATE string
---@field SWRVE_USERUPDATE_ATTRIBUTES string
---@field SWRVE_RESOURCE string

-- ### Collection report codes
-- Integers that report how start, login and payment went.

---@class velora
---@field COLLECT_SDKINIT_FAIL integer
---@field COLLECT_SDKLOGIN_FAIL integer
---@field COLLECT_SDKFF_FAIL integer
---@field COLLECT_SDKINIT_SUCC integer
---@field COLLECT_SDKLOGIN_SUCC integer
---@field COLLECT_SDKFF_SUCC integer

-- # Downloads
-- The SDK's download service. Progress comes in one of two ways: as events, through the callbacks, or at once, through
-- a handler. Setting or removing a handler switches the events off for good.

-- ## The download service

---The SDK's download service.
---@class velora.download
velora.download = {}

---Starts the service; answered by DownloadInited.
function velora.download.init() end

---What the service is doing.
---@return string?
function velora.download.query() end

---Gives the service a command. Offline DownloadProgress and DownloadFinish answer with its text.
---@param command velora.Text
function velora.download.extendFunc(command) end

---The version of the download service.
---@return string?
function velora.download.getDownloadSDKVersion() end

---The service's session id.
---@return string?
function velora.download.getOrbitSessionId() end

---Does without the event DownloadFinish2.
function velora.download.disableDownloadFinish2() end

---The three functions that the service calls while it works, instead of queueing events.
---@class velora.SyncDownloadHandler
---@field onInited fun() The service has started.
---@field onProgress fun(progress: string?) How far it is.
---@field onFinish fun(text: string, bytes: string?) A download is complete; `bytes` is nil where there are none.

---Sets the handler, or with no argument at all removes it; nil changes nothing. The module keeps the three functions,
---not the table. A table without all three raises an error and leaves no handler.
---@overload fun()
---@param handler velora.SyncDownloadHandler
function velora.download.setSyncDownloadHandler(handler) end

---The module's own table of the handler's three functions, which is not to be changed; nil when none is set.
---@return velora.SyncDownloadHandler?
function velora.download.getSyncDownloadHandler() end

-- ## Download callbacks

---The service has started.
---@alias velora.OnDownloadInited fun()
---@param callback velora.OnDownloadInited
function velora.setOnDownloadInited(callback) end
---@return velora.OnDownloadInited? callback
function velora.getOnDownloadInited() end

---How far a download is.
---@alias velora.OnDownloadProgress fun(progress: string)
---@param callback velora.OnDownloadProgress
function velora.setOnDownloadProgress(callback) end
---@return velora.OnDownloadProgress? callback
function velora.getOnDownloadProgress() end

---A download is complete.
---@alias velora.OnDownloadFinish fun(text: string)
---@param callback velora.OnDownloadFinish
function velora.setOnDownloadFinish(callback) end
---@return velora.OnDownloadFinish? callback
function velora.getOnDownloadFinish() end

---A download is complete; `bytes` may hold any bytes.
---@alias velora.OnDownloadFinishBytes fun(bytes: string?)
---@param callback velora.OnDownloadFinishBytes
function velora.setOnDownloadFinishBytes(callback) end
---@return velora.OnDownloadFinishBytes? callback
function velora.getOnDownloadFinishBytes() end

---A download is complete; `bytes` may hold any bytes, and is nil where there are none.
---@alias velora.OnDownloadFinish2 fun(text: string, bytes: string?)
---@param callback velora.OnDownloadFinish2
function velora.setOnDownloadFinish2(callback) end
---@return velora.OnDownloadFinish2? callback
function velora.getOnDownloadFinish2() end

-- # SDK constants
-- The SDK's further names and codes, by family. Their values are the SDK's own and may change with it: compare them and
-- pass them on, but do not write them out. Strings name properties (for `setPropStr`, `getPropStr`, `setPropInt` and
-- `getPropInt`) or are values of such a property; integers are codes.

-- ## Application, channel and server identity
-- Strings: properties that say who the game is.

---@class velora
---@field SDK_NAME string
---@field GAMEID string
---@field PROTOCOL_GAMEID string
---@field GAME_VERSION string
---@field DERIVE_CHANNEL string
---@field REQUEST_CMCC_FFTYPE string
---@field DEFAULT_CMCC_FFTYPE string
---@field CMCC_FFTYPE_URL string
---@field APP_NAME string
---@field APPID string
---@field APP_KEY string
---@field APP_SECRET string
---@field CPID string
---@field CP_KEY string
---@field SERVER_ID string
---@field SCR_ORIENTATION string
---@field PACKET_ID string
---@field USER_ID string
---@field BUOY_PRIVATEKEY string
---@field EXCHANGE_RATE string
---@field EXCHANGE_UNIT string
---@field CHANNEL_ID string
---@field REFRESH_TOKEN string

-- ## Screen orientation codes
-- Integers: values of the property `SCR_ORIENTATION`.

---@class velora
---@field E_SO_PORTRAIT integer
---@field E_SO_LANDSCAPE integer
---@field E_SO_LANDSCAPE_REVERSE integer
---@field E_SO_AUTO integer
---@field E_SO_LANDSCAPE_SENSOR integer
---@field E_SO_PORTRAIT_SENSOR integer

-- ## Update check and login status
-- Strings: property names.

---@class velora
---@field SDK_UPDATE_CHECK_STRICT string
---@field FF_CB_URL string
---@field LOGIN_STAT string

-- ## Session, device and price limit
-- Strings that stand for no session and no device, and an integer.

---@class velora
---@field S_NOT_LOGIN_SESSION string
---@field INVALID_DEVICE_ID string
---@field C_MAX_PRICE integer the highest price, cut to an integer

-- ## Account, device and session keys
-- Strings: property names, `INVALID_UID`, which stands for none, and values of `WEB_LOGIN_STATUS`.

---@class velora
---@field INVALID_UID string
---@field PSEUDO_UID string
---@field UID string
---@field WEB_UID string
---@field WEB_SESSION string
---@field WEB_LOGIN_STATUS string
---@field WEB_LOGIN_SUCCESS string
---@field WEB_LOGIN_FAIL string
---@field UEMAIL string
---@field UBIRTHDAY string
---@field UGENDER string
---@field UHOMETOWN string
---@field UAGE string
---@field CHANNEL_UID string
---@field FB_UID string
---@field FULL_UID string
---@field GAME_UID string
---@field GAME_NAME string
---@field DEVICE_ID string
---@field UDID string
---@field DEVICE_IP string
---@field RSA_PUBLIC string
---@field RSA_PRIVATE string
---@field USR_NAME string
---@field SESSION string
---@field LOGIN_CHANNEL string
---@field SPLASH string

-- ## Switches and their values
-- Strings: property names. Integers: their values.

---@class velora
---@field HAS_SPLASH integer
---@field NOT_HAS_SPLASH integer
---@field DEBUG_MODE string
---@field DEBUG_MODE_TRUE integer
---@field DEBUG_MODE_FALSE integer
---@field DEBUG_LOG string
---@field RETRIEVE_USER string
---@field RETRIEVE_USER_TRUE integer
---@field RETRIEVE_USER_FALSE integer
---@field APP_CHANNEL string

-- ## Caller-thread keys
-- Strings: properties that choose the thread of a listener, one of `LISTENER_CB_*`.

---@class velora
---@field LOGIN_CALLER_THREAD string
---@field WEB_LOGIN_CALLER_THREAD string
---@field LEAVE_SDK_CALLER_THREAD string
---@field LOGOUT_CALLER_THREAD string
---@field ORDER_CALLER_THREAD string
---@field CONTINUE_CALLER_THREAD string
---@field EXIT_CALLER_THREAD string
---@field FRIEND_CALLER_THREAD string
---@field RANK_CALLER_THREAD string
---@field QUEST_CALLER_THREAD string
---@field SHARE_CALLER_THREAD string
---@field QUERYSKUDETAILS_CALLER_THREAD string
---@field CONTROLLER_CALLER_THREAD string
---@field PUSH_CALLER_THREAD string
---@field SHOW_VIEW_THREAD string
---@field WEBVIEW_CALLER_THREAD string
---@field VERIFY_CALLER_THREAD string
---@field CODESCANNER_CALLER_THREAD string
---@field EXTEND_FUNC_CALLER_THREAD string
---@field PROTOCOL_FINISH_CALLER_THREAD string

-- ## Listener callback threads and FF_COOLPAD
-- Integers: values of the caller-thread properties, and a payment code.

---@class velora
---@field LISTENER_CB_CALLER integer
---@field LISTENER_CB_UI integer
---@field LISTENER_CB_GL integer
---@field FF_COOLPAD integer

-- ## Game engine
-- A property name, a string, and its values, integers.

---@class velora
---@field GAME_ENGINE string
---@field ENGINE_COCOS integer
---@field ENGINE_UNITY3D integer
---@field ENGINE_TARN integer
---@field ENGINE_UNREAL integer

-- ## External login switches
-- Strings: properties that allow a way to log in.

---@class velora
---@field ENABLE_EXLOGIN_GUEST string
---@field ENABLE_EXLOGIN_GUEST_NEW string
---@field ENABLE_EXLOGIN_WEIBO string
---@field ENABLE_EXLOGIN_WEIBO_NEW string
---@field ENABLE_EXLOGIN_MOBILE string
---@field ENABLE_EXLOGIN_MOBILE_NEW string
---@field ENABLE_EXLOGIN_GOOGLEPLUS string
---@field ENABLE_EXLOGIN_GOOGL string
---@field ENABLE_EXLOGIN_FACEBOOK string
---@field ENABLE_EXLOGIN_NATIVE string
---@field ENABLE_EXLOGIN_WECHAT string
---@field ENABLE_EXLOGIN_QQ string

-- ## Anti-addiction, proxy, friend queries, forum, guest origin, currency and application data
-- Strings: property names.

---@class velora
---@field IS_ANTI_ADDICTION string
---@field PROXYSERVER_ADDRESS string
---@field ZV_OAUTH_ACCESS_TOKEN string
---@field ZV_CDN_SERVER string
---@field ZV_LINE_ERROR_CODE string
---@field ZV_QUERY_FRIENDS_START_INDEX string
---@field ZV_QUERY_FRIENDS_COUNT string
---@field ZV_QUERY_FRIENDS_IN_GAME_START_INDEX string
---@field ZV_QUERY_FRIENDS_IN_GAME_COUNT string
---@field ZV_QUERY_FRIENDS_TOTAL string
---@field ZV_QUERY_FRIENDS_IN_GAME_TOTAL string
---@field AVATAR_URL string
---@field FORUM_URL string
---@field FORUM_TITLE string
---@field ORIGIN_GUEST_UID string
---@field ORIGIN_GUEST_SESSION string
---@field CURRENCY string
---@field RATE string
---@field APP_DATA string
---@field APP_LOCATION string
---@field APP_VERSION string

-- ## Splash screen
-- Strings: property names. Integers: their values.

---@class velora
---@field SPLASH_COLOR string
---@field SPLASH_TIME string
---@field SPLASH_SECOND string
---@field SPLASH_SECOND_MAXTIME string
---@field SPLASH_TYPE string
---@field SPLASH_TYPE_PNG integer
---@field SPLASH_TYPE_MEDIA integer
---@field SPLASH_PNG_SCALE_TYPE string
---@field SPLASH_PNG_CENTER_INSIDE integer
---@field SPLASH_PNG_CENTER_CROP integer

-- ## Floating button position
-- A property name, a string, and its values, integers.

---@class velora
---@field FLOAT_BTN_POS string
---@field FLOAT_BTN_POS_LEFT_TOP integer
---@field FLOAT_BTN_POS_LEFT_CENTER integer
---@field FLOAT_BTN_POS_LEFT_BOTTOM integer
---@field FLOAT_BTN_POS_RIGHT_TOP integer
---@field FLOAT_BTN_POS_RIGHT_CENTER integer
---@field FLOAT_BTN_POS_RIGHT_BOTTOM integer
---@field FLOAT_BTN_POS_CENTER_TOP integer
---@field FLOAT_BTN_POS_CENTER_BOTTOM integer

-- ## FFTYPE, LIANYUN, SINGLE_CB, MONTHTYPE and role keys
-- Strings: property names and values of `MONTHTYPE`. Integers: values of `FFTYPE`.

---@class velora
---@field FFTYPE string
---@field FFTYPE_STANDALONE integer
---@field FFTYPE_ONLINE integer
---@field LIANYUN string
---@field SINGLE_CB string
---@field MONTHTYPE string
---@field MONTHTYPE_OTHER string
---@field MONTHTYPE_SUBMONTH string
---@field MONTHTYPE_UNSUBMONTH string
---@field GAME_INNER_SWITCH_USER string
---@field CPCODE string
---@field CREATE_ROLE string

-- ## Login and bind type, social application keys, single sign-on checks
-- Strings: property names.

---@class velora
---@field LOGIN_TYPE string
---@field BIND_TYPE string
---@field AUTH_CHANNEL string
---@field WEIBO_SSO_APP_KEY string
---@field WEIBO_APP_KEY string
---@field WEIBO_SSO_URL string
---@field WEIBO_REDIRECT_URI string
---@field SHARE_PELIA_API string
---@field SHARE_WEIXIN_API string
---@field WECHAT_APP_KEY string
---@field SHARE_WEIBO_API string
---@field SHARE_QQ_API string
---@field QQ_APP_ID string
---@field SHARE_XIANLIAO_API string
---@field SHIP_SINAWEIBO_SSO_CHECK string
---@field SHIP_WEIXIN_SSO_CHECK string
---@field SHIP_QQ_SSO_CHECK string
---@field SHIP_PELIA_SSO_CHECK string
---@field SHIP_XIANLIAO_SSO_CHECK string
---@field SHIP_DOUYIN_SSO_CHECK string
---@field FF_METHOD string
---@field DOUYIN_CLIENT_KEY string
---@field ENABLE_NAVIGATION_BAR string
---@field ENABLE_FORCE_DOWNLOAD string

-- ## Launcher, advertising, carrier and external channel
-- Strings: property names. `CCTYPE_*` are to compare with `getCCTypeByImsi`, `CHANNEL_UNKNOW` an unknown channel.

---@class velora
---@field LAUNCHER_NAME string
---@field APPSFLYER_DEV_KEY string
---@field ADVERTISER_APPID string
---@field TIMELINE_KEY string
---@field CHANNEL_UNKNOW string
---@field CCTYPE_UNKNOW string
---@field CCTYPE_CMCC string
---@field CCTYPE_CUCC string
---@field CCTYPE_CTCC string
---@field EXTERNAL_CHANNEL string
---@field EXTERNAL_OP_LIST string
---@field EXTRA_DATA string
---@field TIMESTAMP string
---@field PLATFORM_KEY string

-- ## Game regions
-- Strings: the property `GAME_REGION` and its values.

---@class velora
---@field GAME_REGION string
---@field GAME_REGION_CN string
---@field GAME_REGION_AS string
---@field GAME_REGION_US string
---@field GAME_REGION_SA string
---@field GAME_REGION_JP string

-- ## Languages
-- Strings: values of `LANGUAGE_CODE`, and two more property names.

---@class velora
---@field LANGUAGE_CODE_ZH_CN string
---@field LANGUAGE_CODE_ZH_HK string
---@field LANGUAGE_CODE_ZH_TW string
---@field LANGUAGE_CODE_EN string
---@field LANGUAGE_CODE_ES_EUR string
---@field LANGUAGE_CODE_ES string
---@field LANGUAGE_CODE_PT_EUR string
---@field LANGUAGE_CODE_PT string
---@field LANGUAGE_CODE_AR string
---@field LANGUAGE_CODE_DE string
---@field LANGUAGE_CODE_FR string
---@field LANGUAGE_CODE_IN string
---@field LANGUAGE_CODE_IT string
---@field LANGUAGE_CODE_JA string
---@field LANGUAGE_CODE_KO string
---@field LANGUAGE_CODE_MS string
---@field LANGUAGE_CODE_NL string
---@field LANGUAGE_CODE_RU string
---@field LANGUAGE_CODE_TH string
---@field LANGUAGE_CODE_VI string
---@field LANGUAGE_CODE_AUTO string
---@field GAME_SELECT_LANGUAGE string
---@field GAME_SUPPORT_LANGUAGE string

-- ## Inner modes, data report mode, product and package
-- Strings: property names. Integers: values of `DATA_REPORT_MODE`.

---@class velora
---@field INNER_MODE_SECOND_CHANNEL string
---@field INNER_MODE_SPECIAL_LOGIN_CHANNEL string
---@field CALL_LIFECYCLE_AFTER_INIT string
---@field DK_APPID string
---@field DK_APP_KEY string
---@field DATA_REPORT_MODE string
---@field DATA_REPORT_MODE_DEFAULT integer
---@field DATA_REPORT_MODE_AFTER_LOGIN integer
---@field PRODUCT_NAME_PREFIX string
---@field PACKAGE_URL string
---@field HAS_3N string
---@field FF_TOKEN string
---@field PF string
---@field PFKEY string

-- ## Domain and social application ids
-- Strings: property names.

---@class velora
---@field VELORA_DOMAIN string
---@field QQ_APPID string
---@field QQ_APP_KEY string
---@field WX_APPID string
---@field WX_APP_KEY string
---@field OFFER_ID string

-- ## Verification, language, country, user and store
-- Strings: property names.

---@class velora
---@field VERIFY_MODE string
---@field LANGUAGE_CODE string
---@field COUNTRY_CODE string
---@field USER_TYPE string
---@field USER_KEY string
---@field VERIFY_TYPE string
---@field STORE_TYPE string
---@field PURCHASE_REG_SERVER string

-- ## SDK server, order addresses and logging
-- Strings: property names.

---@class velora
---@field REQUEST_VELORA_SERVER string
---@field VELORA_SERVER_KEY string
---@field VELORA_CREATEORDER_URL string
---@field VELORA_QUERYORDER_URL string
---@field VELORA_CONSUMEORDER_URL string
---@field VELORA_SERVER_PRIVATEPARAM string
---@field VELORA_SERVER_EXTPARAM string
---@field VELORA_EXT_INFO string
---@field CHANNEL_EXT_INFO string
---@field ENABLE_GOOGE_PLAY_PROMO_CODES string
---@field ENABLE_KAKAO_GAME_SHOP string
---@field VELORA_JF_TIMEOUT string
---@field VELORA_JF_GAS3 string
---@field VELORA_JF_GAS3_WEB string
---@field VELORA_JF_CREATEINDEX string
---@field VELORA_JF_GAS3_URL string
---@field VELORA_SERVER_MODE string
---@field SHARE_ERR_CODE string
---@field JF_OPEN_LOG_URL string
---@field JF_FF_LOG_URL string
---@field VELORA_LOG_STATUS string
---@field JF_CLIENT_LOG_URL string
---@field JF_LOG_KEY string
---@field JF_CLIENT_KEY string
---@field JF_GAMEID string
---@field XM_GAMEID string
---@field YY_GAMEID string
---@field HAS_FF_CB string
---@field NEED_PLAY_GAME_SERVICE string
---@field VELORA_SERVER_URL string
---@field CODE_SCANNER_FF_URL string
---@field ENABLE_VELORA_GUEST_DISCONNECT string
---@field ENABLE_VELORA_GUEST_UI string
---@field ENABLE_VELORA_PERMISSION_UI string
---@field ZV_CALLBACK_MESSAGE string
---@field MINI_RESPONSE string
---@field ZV_ERROR_CODE string
---@field SUCCESS_ACTIVITY_CALSSS string
---@field FAIL_ACTIVITY_CALSSS string
---@field FLOATBTN_CLOSED string
---@field UPDATE_CHECK_URL string
---@field UPDATE_DOWNLOAD_URL string
---@field ZV_COMPACT_URL string
---@field ZV_COMPACT_LAN string
---@field ZV_COMPACT_SHOW_AGREE_LINE string
---@field ZV_COMPACT_AGREE_LINE_TEXT string
---@field ENABLE_TV string
---@field SAUTH_STR string
---@field SAUTH_JSON string
---@field VELORA_JF_GAS_TOKEN string
---@field VELORA_JF_GET_SDKUID string

-- ## Device report fields
-- Strings: names of the fields of a device report.

---@class velora
---@field SDC_LOG_DEVICE_HEIGHT string
---@field SDC_LOG_DEVICE_WIDTH string
---@field SDC_LOG_OS_NAME string
---@field SDC_LOG_OS_VER string
---@field SDC_LOG_MAC_ADDR string
---@field SDC_LOG_DEVICE_MODEL string
---@field SDC_LOG_UDID string
---@field SDC_LOG_APP_CHANNEL string
---@field SDC_LOG_APP_VER string
---@field SDC_LOG_APP_NETWORK string
---@field SDC_LOG_APP_ISP string

-- ## Skins, web view background, overseas log addresses
-- Strings: property names, and values of `SKIN_TYPE` and `WEBVIEW_BKCOLOR`.

---@class velora
---@field SKIN_TYPE string
---@field SKIN_BLACK string
---@field SKIN_DEFAULT string
---@field SKIN_CHINESE_WHITE string
---@field SKIN_CHINESE_BLACK string
---@field WEBVIEW_BKCOLOR string
---@field WEBVIEW_BKCOLOR_WHITE string
---@field WEBVIEW_BKCOLOR_TRANSPARENT string
---@field VELORA_DRPF_URL string
---@field JF_OVERSEA_FF_LOG_URL string
---@field JF_OVERSEA_OPEN_LOG_URL string
---@field JF_OVERSEA_CLIENT_LOG_URL string

-- ## Patch service and real-name verification
-- Strings: property names. Integers: values of `REAL_NAME_VERIFIED`.

---@class velora
---@field EB string
---@field VELORA_VELPATCH_CHECK_URL string
---@field VELORA_VELPATCH_LOG_URL string
---@field REAL_NAME_VERIFIED string
---@field REAL_NAME_VERIFIED_NO integer
---@field REAL_NAME_VERIFIED_UNDER_18 integer
---@field REAL_NAME_VERIFIED_18_AND_ABOVE integer
---@field REAL_NAME_VERIFIED_AND_STATUS_UNKNOWN integer

-- ## Detection, location service, SDK switcher, VESPERA, web view options, welcome window
-- Strings: property names. Integers: values of `WELCOME_WINDOW_TYPE`.

---@class velora
---@field NOT_ENABLE_DETECT string
---@field X_LBS_TOKEN string
---@field VELORA_LBS_URL string
---@field SDK_SWITCHER_URL string
---@field SDK_SWITCHER_URL_DEFAULT string
---@field SDK_SWITCHER_DATA string
---@field VESPERA_URL string
---@field VESPERA_TID string
---@field VESPERA_SERVERLIST string
---@field VESPERA_APPVER string
---@field VESPERA_USR_AVATARID string
---@field VESPERA_USR_STATUS string
---@field VESPERA_CUSTOM_LOG string
---@field WEBVIEW_CLBTN string
---@field WEBVIEW_FULLFIT string
---@field WEBVIEW_SUPPORT_BACK_KEY string
---@field CLEAR_FOCUS_WHEN_STARTUP string
---@field WELCOME_WINDOW_TYPE string
---@field WELCOME_WINDOW_TYPE_DEFAULT integer
---@field WELCOME_WINDOW_TYPE_TOAST integer
---@field WELCOME_WINDOW_TYPE_NONE integer

-- ## Permissions, login data, flow, device utilities, source, screen size, guest account
-- Strings: property names, and names of what device utilities can be asked for.

---@class velora
---@field REMOVE_PERMISSION_LIST string
---@field VELORA_LOGIN_JSON string
---@field FLOW_CODE string
---@field FLOW_KEY string
---@field USERINFO_NUMBER string
---@field TRANS_ID string
---@field VESPERA_DUMPID string
---@field MEDIA_PROJECTION_MANAGER_IN_USE string
---@field VELORAUTILS_GET_CPUNAME string
---@field VELORAUTILS_GET_CPUMHZ string
---@field VELORAUTILS_GET_CPUCORE string
---@field VELORAUTILS_IS_DEVICEROOTED3 string
---@field VELORA_QRCODE_FILE string
---@field SOURCE_APP_CHANNEL string
---@field SOURCE_PLATFORM string
---@field PRI_SAC string
---@field PRI_SP string
---@field VELORA_WIDTH string
---@field VELORA_HEIGHT string
---@field VELORA_GUEST_LOGIN_STATE string
---@field VELORA_HAS_LOCAL_GUEST_ACCOUNT string
---@field GUEST_RECOVERY_CODE string
---@field GUEST_BIND_JSON string

-- ## Project, product, server address, order UI, QR scanner, IPv6
-- Strings: property names.

---@class velora
---@field PROJECT_ID string
---@field PRODUCT_CODE string
---@field SDK_SERVER_URL string
---@field ENABLE_VELORA_CREATEORDER_UI string
---@field ENABLE_CHANNEL_QRCODESCANNER string
---@field JF_AIM_INFO string
---@field ENABLE_IP_V6 string
