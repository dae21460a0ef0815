// The runtime's controller records.
#include "platform/pad_record.h"

#include "offline/record.h"

namespace tarn::velora::offline {
namespace {

class Pad final : public PadRecord, public Record {
 public:
  explicit Pad(std::string arguments) : Record("PadRecord", std::move(arguments)) {}

#define RECORD_CLASS "PadRecord"
#define RECORD_FIELDS "platform/pad_record.def"
#include "offline/record_fields.inc"
};

}  // namespace

std::shared_ptr<PadRecord> MakePad(const Fields& fields) { return MakeFilled<Pad>(fields); }

}  // namespace tarn::velora::offline
