// type_info and the exceptions of dynamic_cast and typeid, with Visual C++'s layout.
#pragma once
#include <vcruntime_exception.h>

#include <cstddef>

struct alignas(16) __type_info_node {  // a list header of the system
  void* _Header[2];
};
extern "C" {
extern __type_info_node __type_info_root_node;
struct __std_type_info_data {
  const char* _UndecoratedName;
  const char _DecoratedName[1];
  __std_type_info_data() = delete;
};
__declspec(dllimport) int __cdecl __std_type_info_compare(const __std_type_info_data* left,
                                                          const __std_type_info_data* right);
__declspec(dllimport) std::size_t __cdecl __std_type_info_hash(const __std_type_info_data* data);
__declspec(dllimport) const char* __cdecl __std_type_info_name(__std_type_info_data* data, __type_info_node* root);
}

#pragma warning(push)
class type_info {
 public:
  type_info(const type_info&) = delete;
  type_info& operator=(const type_info&) = delete;
  virtual ~type_info() noexcept;  // not inline: the runtime defines the virtual table

  std::size_t hash_code() const noexcept { return __std_type_info_hash(&_Data); }
  bool operator==(const type_info& other) const noexcept { return __std_type_info_compare(&_Data, &other._Data) == 0; }
  bool before(const type_info& other) const noexcept { return __std_type_info_compare(&_Data, &other._Data) < 0; }
  const char* name() const noexcept { return __std_type_info_name(&_Data, &__type_info_root_node); }
  const char* raw_name() const noexcept { return _Data._DecoratedName; }

 private:
  mutable __std_type_info_data _Data;
};
#pragma warning(pop)

namespace std {

using ::type_info;

class bad_cast : public exception {
 public:
  bad_cast() noexcept : exception("bad cast", 1) {}
  static bad_cast __construct_from_string_literal(const char* message) noexcept { return bad_cast(message, 1); }

 private:
  bad_cast(const char* message, int) noexcept : exception(message, 1) {}
};

class bad_typeid : public exception {
 public:
  bad_typeid() noexcept : exception("bad typeid", 1) {}
  static bad_typeid __construct_from_string_literal(const char* message) noexcept { return bad_typeid(message, 1); }

 private:
  friend class __non_rtti_object;
  bad_typeid(const char* message, int) noexcept : exception(message, 1) {}
};

class __non_rtti_object : public bad_typeid {
 public:
  static __non_rtti_object __construct_from_string_literal(const char* message) noexcept {
    return __non_rtti_object(message, 1);
  }

 private:
  __non_rtti_object(const char* message, int) noexcept : bad_typeid(message, 1) {}
};

}  // namespace std
