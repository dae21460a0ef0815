// What the runtime's records have in common: fields that any thread may read and write, filling by name, string forms.
// record_fields.inc makes a class's members and accessors from its .def file.
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
  // `madeWith` is the arguments that the record was made with, in the form of call lines.
  Record(const char* recordClass, std::string madeWith);
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  const char* RecordClass() const { return recordClass_; }
  const std::string& MadeWith() const { return madeWith_; }

  // Returns the fields of the record, which is `self`, that differ from their defaults, as JSON.
  template <class Derived>
  std::string Json(const Derived& self) const {
    JsonObject object;
    std::lock_guard lock(mutex_);
    Derived::EachField(self, [&](const char* name, const auto& field) { object.AddUnlessDefault(name, field); });
    return object.Text();
  }

 protected:
  ~Record();

  // The getters and setters of a class, by shape. Each runs the hook first.
  bool ReadText(const char* operation, const std::string& field, std::string& out) const;
  bool ReadMap(const char* operation, const StringMap& field, StringMap& out) const;

  template <class Value>
  Value Read(const char* operation, const Value& field) const {
    RunHook(operation);
    std::lock_guard lock(mutex_);
    return field;
  }

  // A set answer that is not a number is ignored.
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
    Value fresh = value;
    std::lock_guard lock(mutex_);  // released before the old value is
    std::swap(field, fresh);
  }

  // A string producer of the record: call line, set answer, else `Class(made with) {fields}`.
  template <class Derived>
  bool TextForm(const char* operation, const Derived& self, std::string& out) const {
    const auto& record = static_cast<const Record&>(self);
    return Call(operation, record).Text(Joined(record) + " " + Json(self), out);
  }

 private:
  const char* const recordClass_;
  const std::string madeWith_;
  mutable std::mutex mutex_;  // of the fields
};

// Sets the fields named in `fields` of a record that nobody else has yet. Throws std::invalid_argument for a name that
// the class does not have and for a value that does not fit.
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

// A new record with those fields. Throws as Fill does.
template <class Derived>
std::shared_ptr<Derived> MakeFilled(const Fields& fields) {
  auto record = std::make_shared<Derived>(std::string());
  Fill(*record, fields);
  return record;
}

// Returns the result of a factory: a new record, or none if the set answer is false.
template <class Derived>
std::shared_ptr<Derived> Produce(const char* operation, std::string madeWith) {
  if (!Operation(operation).Flag(true)) return nullptr;
  return std::make_shared<Derived>(std::move(madeWith));
}

}  // namespace tarn::velora::offline
