#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/vb/date.h"
#include "base/vb/number.h"

namespace late {

class Object;
class Value;
struct Array;
using ObjectPtr = std::shared_ptr<Object>;
using ArrayPtr = std::shared_ptr<Array>;

struct Empty {};
struct Null {};
/// An optional argument that was left out.
struct Missing {};
/// Currency: ten-thousandths.
struct Currency {
  std::int64_t units = 0;
};

/// A value whose type is known only at run time, as it passes between late-bound components.
class Value {
 public:
  using Storage = std::variant<Empty, Null, Missing, bool, std::int16_t, std::int32_t, double, Currency, vb::Decimal, vb::Date,
                               std::string, ObjectPtr, ArrayPtr, Value*>;

  Value() = default;
  Value(Null) : storage_(Null{}) {}
  Value(Missing) : storage_(Missing{}) {}
  Value(bool value) : storage_(value) {}
  Value(std::int16_t value) : storage_(value) {}
  Value(std::int32_t value) : storage_(value) {}
  /// Values beyond 32 bits become doubles, as automation clients of this age expect.
  Value(std::int64_t value);
  Value(double value) : storage_(value) {}
  Value(Currency value) : storage_(value) {}
  Value(vb::Decimal value) : storage_(value) {}
  Value(vb::Date value) : storage_(value) {}
  Value(std::string value) : storage_(std::move(value)) {}
  Value(std::string_view value) : storage_(std::string(value)) {}
  Value(const char* value) : storage_(std::string(value)) {}
  Value(ObjectPtr value) : storage_(std::move(value)) {}
  template <class T>
  requires std::is_convertible_v<T*, Object*> Value(std::shared_ptr<T> value) : storage_(ObjectPtr(std::move(value))) {}
  Value(ArrayPtr value) : storage_(std::move(value)) {}

  /// An argument passed by reference: the callee's write reaches `target`, which must outlive the call.
  static Value ByRef(Value& target);
  bool IsByRef() const { return std::holds_alternative<Value*>(storage_); }
  /// The referred value, or this one.
  const Value& Deref() const;
  Value& Deref();

  // All questions and conversions look through a reference.
  bool IsEmpty() const { return Is<Empty>(); }
  bool IsNull() const { return Is<Null>(); }
  bool IsMissing() const { return Is<Missing>(); }
  bool IsText() const { return Is<std::string>(); }
  bool IsObject() const { return Is<ObjectPtr>(); }
  bool IsDate() const { return Is<vb::Date>(); }
  bool IsNumber() const;

  /// Conversions with the runtime's rules: Null is error 94, an impossible one error 13, out of range error 6.
  /// Empty is "", 0, false and the zero date.
  bool ToBool() const;
  std::int16_t ToInt16() const;
  std::int32_t ToInt32() const;
  double ToDouble() const;
  vb::Date ToDate() const;
  std::string ToText() const;
  /// The object; error 91 for Nothing, error 13 (424 in the classic runtime) for a value that is no object.
  ObjectPtr ToObject() const;
  ArrayPtr ToArray() const;

  /// ToText, but "" for Null, Empty and Missing: for texts of the screen.
  std::string TextOrEmpty() const;
  /// True only for a value that converts to true; Null and Empty are false.
  bool TrueOrFalse() const;

  template <class T>
  bool Is() const {
    return std::holds_alternative<T>(Deref().storage_);
  }
  template <class T>
  const T* If() const {
    return std::get_if<T>(&Deref().storage_);
  }
  const Storage& Alternatives() const { return Deref().storage_; }
  Storage& Alternatives() { return Deref().storage_; }

 private:
  Storage storage_;
};

/// A one- or two-dimensional array of values; the first index runs fastest, as in automation arrays: items[i + j * rows].
struct Array {
  std::size_t rows = 0;     ///< extent of the first index (fields of GetRows)
  std::size_t columns = 1;  ///< extent of the second index (records of GetRows); 1 for a list
  int dimensions = 1;
  std::vector<Value> items;

  static ArrayPtr List(std::vector<Value> items);
  static ArrayPtr Table(std::size_t rows, std::size_t columns);
  Value& At(std::size_t row, std::size_t column = 0) { return items[row + column * rows]; }
  const Value& At(std::size_t row, std::size_t column = 0) const { return items[row + column * rows]; }
};

}  // namespace late
