#include "offline/record.h"

#include <atomic>

namespace tarn::velora::offline {
namespace {

std::atomic<std::size_t> liveRecords = 0;

}  // namespace

Record::Record(const char* recordClass, std::string arguments)
    : recordClass_(recordClass), arguments_(std::move(arguments)) {
  ++liveRecords;
}

Record::~Record() { --liveRecords; }

bool Record::ReadText(const char* operation, const std::string& field, std::string& out) const {
  return Operation(operation).Text(Read(operation, field), out);
}

bool Record::ReadMap(const char* operation, const StringMap& field, StringMap& out) const {
  out = Read(operation, field);
  return Operation(operation).Flag(true);
}

std::size_t LiveRecords() { return liveRecords; }

}  // namespace tarn::velora::offline
