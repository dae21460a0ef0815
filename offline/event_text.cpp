// The string form of events.
#include <tuple>

#include "offline/calls.h"
#include "offline/record.h"
#include "platform/account_info.h"
#include "platform/event.h"
#include "platform/order_info.h"
#include "platform/pad_record.h"
#include "platform/sku_details_info.h"

namespace tarn::velora::offline {
namespace {

template <class Field>
void AppendField(std::string& line, const Field& field) {
  Append(line, field);
}

void AppendField(std::string& line, std::uint8_t flag) { Append(line, flag != 0); }

template <class Class>
void AppendField(std::string& line, const std::shared_ptr<Class>& reference) {
  if (const auto* record = dynamic_cast<const Record*>(reference.get()))
    Append(line, *record);
  else
    line += reference == nullptr ? "null" : "record";
}

template <class Class>
void AppendField(std::string& line, const std::vector<std::shared_ptr<Class>>& records) {
  AppendList(line, records, [&](const auto& record) { AppendField(line, record); });
}

template <class Layout>
void AppendPayload(std::string& line, const Event& event) {
  [[maybe_unused]] const auto& layout = static_cast<const Layout&>(event);
  [[maybe_unused]] const char* separator = "";
  std::apply([&](auto... field) { ((line += separator, AppendField(line, layout.*field), separator = ", "), ...); },
             kPayload<Layout>);
}

}  // namespace

std::string EventText(const Event& event) {
  std::string line;
  switch (event.type) {
#define VELORA_EVENT(number, name, Layout) \
  case number:                             \
    line = #name "(";                      \
    AppendPayload<Layout>(line, event);    \
    break;
#include "platform/events.def"
    default:
      line = std::to_string(event.type) + "(";
  }
  return line += ')';
}

}  // namespace tarn::velora::offline
