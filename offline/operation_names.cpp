// The operation names that SetAnswer accepts.
#include <span>
#include <string_view>

#include "offline/control.h"

namespace tarn::velora::offline {
namespace {

#define NAME(text) #text

constexpr std::string_view kOperations[] = {
#define VELORA_OPERATION(name) #name,
#include "platform/operations.def"
#define VELORA_DOWNLOAD_HANDLER_OPERATION(name) #name,
#include "platform/download.def"
#define VELORA_CLASS_FIELD(Record, name, family) NAME(Record) ".get_" #name, NAME(Record) ".set_" #name,
#define VELORA_CLASS_FIELD_READ_ONLY(Record, name, family) NAME(Record) ".get_" #name,
#define VELORA_CLASS_MEMBER(Record, name, family)
#define VELORA_CLASS_OPERATION(Record, name) NAME(Record) "." #name,
#include "platform/records.def"
};

}  // namespace

std::span<const std::string_view> OperationNames() { return kOperations; }

}  // namespace tarn::velora::offline
