#include "suite/engine/values/types.h"

#include <algorithm>

#include "suite/engine/values/errors.h"

namespace suite {
namespace {

/// An integer's own decimal type, for where it meets a decimal.
Type AsDecimal(const Type& type) {
  if (type.kind == Kind::Decimal) return type;
  return Type::DecimalOf(type.kind == Kind::BigInt ? 18 : type.kind == Kind::Int ? 10 : 5, 0);
}

}  // namespace

Type Type::DecimalOf(int precision, int scale) {
  Type type{Kind::Decimal};
  type.precision = static_cast<std::uint8_t>(precision);
  type.scale = static_cast<std::uint8_t>(scale);
  return type;
}

Type Type::TextOf(int length) {
  Type type{Kind::Text};
  type.length = length;
  return type;
}

std::int64_t Type::Pack() const {
  return static_cast<std::int64_t>(kind) | static_cast<std::int64_t>(precision) << 8 | static_cast<std::int64_t>(scale) << 16 |
         static_cast<std::int64_t>(fixed) << 24 | static_cast<std::int64_t>(assign) << 25 |
         static_cast<std::int64_t>(length) << 26;
}

Type Type::Unpack(std::int64_t packed) {
  Type type{static_cast<Kind>(packed & 0xff)};
  type.precision = static_cast<std::uint8_t>(packed >> 8 & 0xff);
  type.scale = static_cast<std::uint8_t>(packed >> 16 & 0xff);
  type.fixed = (packed >> 24 & 1) != 0;
  type.assign = (packed >> 25 & 1) != 0;
  type.length = static_cast<std::int32_t>(packed >> 26);
  return type;
}

std::string TypeName(const Type& type) {
  switch (type.kind) {
    case Kind::Null:
      return "void";
    case Kind::Text:
      return (type.fixed ? "char" : "varchar") + (type.length ? "(" + std::to_string(type.length) + ")" : std::string());
    case Kind::Guid:
      return "uniqueidentifier";
    case Kind::Bit:
      return "bit";
    case Kind::TinyInt:
      return "tinyint";
    case Kind::SmallInt:
      return "smallint";
    case Kind::Int:
      return "int";
    case Kind::BigInt:
      return "bigint";
    case Kind::Decimal:
      return "decimal(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
    case Kind::Float:
      return "float";
    case Kind::DateTime:
      return "datetime";
  }
  return {};
}

Type CommonType(const Type& a, const Type& b) {
  const Kind kind = std::max(a.kind, b.kind);
  if (kind == Kind::Text) {
    if (a.kind == Kind::Null) return b;
    if (b.kind == Kind::Null) return a;
    return Type::TextOf(a.length && b.length ? std::max(a.length, b.length) : 0);
  }
  if (kind != Kind::Decimal) return Type::Of(kind);
  if (!a.IsNumber()) return b;
  if (!b.IsNumber()) return a;
  const Type left = AsDecimal(a), right = AsDecimal(b);
  const int scale = std::max(left.scale, right.scale);
  const int whole = std::max(left.precision - left.scale, right.precision - right.scale);
  return Type::DecimalOf(std::min(whole + scale, 38), scale);
}

std::int64_t PowerOfTen(int exponent) {
  if (exponent < 0 || exponent > kMaxDigits) RaiseOverflow("decimal");
  std::int64_t power = 1;
  for (int i = 0; i < exponent; ++i) power *= 10;
  return power;
}

}  // namespace suite
