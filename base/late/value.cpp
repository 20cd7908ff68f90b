#include "base/late/value.h"

#include <limits>

#include "base/late/object.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace late {
namespace {

template <class... Rules>
struct Overloaded : Rules... {
  using Rules::operator()...;
};
template <class... Rules>
Overloaded(Rules...) -> Overloaded<Rules...>;

/// Half to even on the exact units.
std::int64_t RoundToInteger(const vb::Decimal& value) {
  std::int64_t power = 1;
  for (int i = 0; i < value.scale; ++i) power *= 10;
  const std::int64_t whole = value.units / power;
  const std::int64_t twice = value.units % power * 2;
  const std::int64_t rest = twice < 0 ? -twice : twice;
  const bool away = rest > power || (rest == power && whole % 2 != 0);
  return away ? whole + (value.units < 0 ? -1 : 1) : whole;
}

vb::Decimal AsDecimal(Currency value) {
  return {value.units, 4};
}

constexpr long kUnsupportedType = 458;

/// The value of an object where a plain value is wanted: its default member, or that of the object which this is, and so on.
/// Error 91 for Nothing, 13 when it has no default member, 458 when there is no end of objects.
Value DefaultOf(ObjectPtr object) {
  constexpr int kMaxObjects = 64;
  for (int depth = 0; depth < kMaxObjects; ++depth) {
    if (!object) vb::Raise(vb::kObjectNotSet);
    if (!object->Has("")) vb::Raise(vb::kTypeMismatch);
    Value value = object->Get("");
    const auto* next = value.If<ObjectPtr>();
    if (!next) return value;
    object = ObjectPtr(*next);
  }
  vb::Raise(kUnsupportedType);
}

template <class Integer>
Integer Narrow(std::int64_t value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) vb::Raise(vb::kOverflow);
  return static_cast<Integer>(value);
}

template <class Integer>
Integer FromDouble(double value) {
  if constexpr (sizeof(Integer) == 2) {
    return vb::CInt(value);
  } else {
    return vb::CLng(value);
  }
}

template <class Integer>
Integer ToInteger(const Value& value) {
  return std::visit(Overloaded{
                        [](Empty) -> Integer { return 0; },
                        [](Null) -> Integer { vb::Raise(vb::kInvalidUseOfNull); },
                        [](bool flag) -> Integer { return flag ? -1 : 0; },
                        [](std::int16_t number) -> Integer { return number; },
                        [](std::int32_t number) -> Integer { return Narrow<Integer>(number); },
                        [](double number) { return FromDouble<Integer>(number); },
                        [](Currency number) { return Narrow<Integer>(RoundToInteger(AsDecimal(number))); },
                        [](const vb::Decimal& number) { return Narrow<Integer>(RoundToInteger(number)); },
                        [](vb::Date date) { return FromDouble<Integer>(date.days); },
                        [](const std::string& text) { return FromDouble<Integer>(vb::CDbl(text)); },
                        [](const ObjectPtr& object) { return ToInteger<Integer>(DefaultOf(object)); },
                        [](const auto&) -> Integer { vb::Raise(vb::kTypeMismatch); },
                    },
                    value.Alternatives());
}

vb::Date CheckedDate(double days) {
  constexpr double kFirst = -657434;       // 1 January 100
  constexpr double kBehindLast = 2958466;  // the day after 31 December 9999
  if (!(days > kFirst - 1 && days < kBehindLast)) vb::Raise(vb::kOverflow);
  return vb::Date{days};
}

bool TextToBool(const std::string& text) {
  const std::string_view trimmed = vb::Trim(text);
  if (vb::EqualNoCase(trimmed, "True")) return true;
  if (vb::EqualNoCase(trimmed, "False")) return false;
  return vb::CDbl(trimmed) != 0;
}

}  // namespace

Value::Value(std::int64_t value) {
  if (value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max()) {
    storage_ = static_cast<std::int32_t>(value);
  } else {
    storage_ = static_cast<double>(value);
  }
}

Value Value::ByRef(Value& target) {
  Value reference;
  reference.storage_ = &target.Deref();
  return reference;
}

const Value& Value::Deref() const {
  const Value* value = this;
  while (const auto* reference = std::get_if<Value*>(&value->storage_)) value = *reference;
  return *value;
}

Value& Value::Deref() {
  Value* value = this;
  while (const auto* reference = std::get_if<Value*>(&value->storage_)) value = *reference;
  return *value;
}

bool Value::IsNumber() const {
  return Is<std::int16_t>() || Is<std::int32_t>() || Is<double>() || Is<Currency>() || Is<vb::Decimal>();
}

bool Value::ToBool() const {
  return std::visit(Overloaded{
                        [](Empty) { return false; },
                        [](Null) -> bool { vb::Raise(vb::kInvalidUseOfNull); },
                        [](bool flag) { return flag; },
                        [](std::int16_t number) { return number != 0; },
                        [](std::int32_t number) { return number != 0; },
                        [](double number) { return number != 0; },
                        [](Currency number) { return number.units != 0; },
                        [](const vb::Decimal& number) { return number.units != 0; },
                        [](vb::Date date) { return date.days != 0; },
                        [](const std::string& text) { return TextToBool(text); },
                        [](const ObjectPtr& object) { return DefaultOf(object).ToBool(); },
                        [](const auto&) -> bool { vb::Raise(vb::kTypeMismatch); },
                    },
                    Alternatives());
}

std::int16_t Value::ToInt16() const {
  return ToInteger<std::int16_t>(*this);
}
std::int32_t Value::ToInt32() const {
  return ToInteger<std::int32_t>(*this);
}

double Value::ToDouble() const {
  return std::visit(Overloaded{
                        [](Empty) { return 0.0; },
                        [](Null) -> double { vb::Raise(vb::kInvalidUseOfNull); },
                        [](bool flag) { return flag ? -1.0 : 0.0; },
                        [](std::int16_t number) { return static_cast<double>(number); },
                        [](std::int32_t number) { return static_cast<double>(number); },
                        [](double number) { return number; },
                        [](Currency number) { return AsDecimal(number).ToDouble(); },
                        [](const vb::Decimal& number) { return number.ToDouble(); },
                        [](vb::Date date) { return date.days; },
                        [](const std::string& text) { return vb::CDbl(text); },
                        [](const ObjectPtr& object) { return DefaultOf(object).ToDouble(); },
                        [](const auto&) -> double { vb::Raise(vb::kTypeMismatch); },
                    },
                    Alternatives());
}

vb::Date Value::ToDate() const {
  if (const auto* date = If<vb::Date>()) return *date;
  if (const auto* text = If<std::string>()) return vb::ParseDate(*text);
  if (const auto* object = If<ObjectPtr>()) return DefaultOf(*object).ToDate();
  return CheckedDate(ToDouble());
}

std::string Value::ToText() const {
  return std::visit(Overloaded{
                        [](Empty) { return std::string(); },
                        [](Null) -> std::string { vb::Raise(vb::kInvalidUseOfNull); },
                        [](bool flag) { return std::string(flag ? "True" : "False"); },
                        [](std::int16_t number) { return std::to_string(number); },
                        [](std::int32_t number) { return std::to_string(number); },
                        [](double number) { return vb::NumberText(number); },
                        [](Currency number) { return AsDecimal(number).ToText(); },
                        [](const vb::Decimal& number) { return number.ToText(); },
                        [](vb::Date date) { return vb::DateText(date); },
                        [](const std::string& text) { return text; },
                        [](const ObjectPtr& object) { return DefaultOf(object).ToText(); },
                        [](const auto&) -> std::string { vb::Raise(vb::kTypeMismatch); },
                    },
                    Alternatives());
}

ObjectPtr Value::ToObject() const {
  const auto* object = If<ObjectPtr>();
  if (!object) vb::Raise(vb::kTypeMismatch);
  if (!*object) vb::Raise(vb::kObjectNotSet);
  return *object;
}

ArrayPtr Value::ToArray() const {
  const auto* array = If<ArrayPtr>();
  if (!array || !*array) vb::Raise(vb::kTypeMismatch);
  return *array;
}

std::string Value::TextOrEmpty() const {
  return IsNull() || IsEmpty() || IsMissing() ? std::string() : ToText();
}

bool Value::TrueOrFalse() const {
  if (IsNull() || IsEmpty() || IsMissing()) return false;
  try {
    return ToBool();
  } catch (const vb::RunTimeError&) {
    return false;
  }
}

ArrayPtr Array::List(std::vector<Value> items) {
  auto array = std::make_shared<Array>();
  array->rows = items.size();
  array->items = std::move(items);
  return array;
}

ArrayPtr Array::Table(std::size_t rows, std::size_t columns) {
  auto array = std::make_shared<Array>();
  array->rows = rows;
  array->columns = columns;
  array->dimensions = 2;
  array->items.resize(rows * columns);
  return array;
}

}  // namespace late
