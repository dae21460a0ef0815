// The base class of the runtime's records. Any thread may call their getters and setters. record_fields.inc defines a
// class's members and accessors from its .def file.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "offline/calls.h"
#include "offline/control.h"
#include "offline/field_value.h"
#include "offline/json.h"
#include "platform/field_families.h"
#include "platform/types.h"

namespace tarn::velora::offline {

class Record {
 public:
  // `arguments` are those of the record's `New`, in the form of call lines.
  Record(const char* recordClass, std::string arguments);
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  const char* RecordClass() const { return recordClass_; }
  const std::string& Arguments() const { return arguments_; }

  // Returns the fields that differ from their defaults as JSON. `self` is this record as its own class.
  template <class Derived>
  std::string Json(const Derived& self) const {
    JsonObject object;
    std::lock_guard lock(mutex_);
    Derived::EachField(self, [&](const char* name, const auto& field) { object.AddUnlessDefault(name, field); });
    return object.Text();
  }

 protected:
  ~Record();

  // The bodies of getters and setters. Each runs the hook first. Getters return the canned result if its type fits.
  bool ReadText(const char* operation, const std::string& field, std::string& out) const;
  bool ReadMap(const char* operation, const StringMap& field, StringMap& out) const;

  template <class Value>
  Value Read(const char* operation, const Value& field) const {
    RunHook(operation);
    std::lock_guard lock(mutex_);
    return field;
  }

  template <class Number>
  Number ReadNumber(const char* operation, const Number& field) const {
    const Number stored = Read(operation, field);
    return Operation(operation).Number(stored);
  }

  template <class Container>
  Container ReadContainer(const char* operation, const Container& field) const {
    Container content = Read(operation, field);
    if (!Operation(operation).Flag(true)) content.clear();
    return content;
  }

  template <class Value>
  void Write(const char* operation, Value& field, families::Parameter<Value> value) {
    RunHook(operation);
    Value newValue = value;
    std::lock_guard lock(mutex_);  // declared last, so that the old value is destroyed without the lock
    std::swap(field, newValue);
  }

  // The body of toString. The default result is `Class(arguments) {fields}`.
  template <class Derived>
  bool TextForm(const char* operation, const Derived& self, std::string& out) const {
    const auto& record = static_cast<const Record&>(self);
    return Call(operation, record).Text(FormatArguments(record) + " " + Json(self), out);
  }

 private:
  const char* const recordClass_;
  const std::string arguments_;
  mutable std::mutex mutex_;  // guards the fields of the derived class
};

// Sets the fields named in `fields`. Takes no lock, so the record must not be shared yet. Throws std::invalid_argument
// if the class has no such field or the value does not convert to its type.
template <class Derived>
void Fill(Derived& record, const Fields& fields) {
  for (const auto& [name, value] : fields) {
    bool found = false;
    Derived::EachField(record, [&, &fieldName = name, &fieldValue = value](std::string_view candidate, auto& field) {
      if (candidate != fieldName) return;
      found = true;
      try {
        Store(fieldValue, field);
      } catch (const std::invalid_argument& error) {
        throw std::invalid_argument(std::string(record.RecordClass()) + " field '" + fieldName + "': " + error.what());
      }
    });
    if (!found) throw std::invalid_argument(std::string(record.RecordClass()) + " has no field '" + name + "'");
  }
}

// Returns a new record with those fields. Throws as Fill does.
template <class Derived>
std::shared_ptr<Derived> MakeFilled(const Fields& fields) {
  auto record = std::make_shared<Derived>(std::string());
  Fill(*record, fields);
  return record;
}

// Returns a new record, or null if the operation's canned result is false.
template <class Derived>
std::shared_ptr<Derived> CreateRecord(const char* operation, std::string arguments) {
  if (!Operation(operation).Flag(true)) return nullptr;
  return std::make_shared<Derived>(std::move(arguments));
}

}  // namespace tarn::velora::offline
