-- Checks that the codes of each event count up from 0 and counts the orders, of which it keeps the last fifty.
next, orders, kept = {}, 0, {}
for _, name in ipairs{"FinishInit", "LoginDone", "LogoutDone", "ProtocolFinish"} do
  next[name] = 0
  velora["setOn" .. name](function(code) assert(code == next[name], name) next[name] = code + 1 end)
end
velora.setOnOrderCheckDone(function(order)
  orders = orders + 1
  kept[orders % 50] = order
  order:set_count(order:get_count() + 1)
end)
