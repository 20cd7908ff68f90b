#pragma once

#include <cstdint>
#include <string>

namespace suite {

/// How a session reads dates with separators (set dateformat). Eight digits are year, month and day in each.
enum class DateOrder : std::uint8_t { MonthDayYear, DayMonthYear, YearMonthDay };

/// Kinds of the server's types, by rising precedence: where two meet in an expression the lower is converted to the higher.
enum class Kind : std::uint8_t { Null, Text, Guid, Bit, TinyInt, SmallInt, Int, BigInt, Decimal, Float, DateTime };

/// A server type. Its values in the store:
///  - bit and the integers as integers; float as real; text and uniqueidentifier as text with the server's collation;
///  - decimal(p,s) as the integer value * 10^s, so that sums and comparisons are exact;
///  - datetime as integer milliseconds since 30 December 1899, so that ranges and indexes work on it.
struct Type {
  Kind kind = Kind::Null;
  std::uint8_t precision = 0;  ///< of Decimal
  std::uint8_t scale = 0;      ///< of Decimal
  bool fixed = false;          ///< char(n): padded with blanks
  bool assign = false;         ///< as target of a conversion: text that does not fit is an error, not cut
  std::int32_t length = 0;     ///< of Text, in characters; 0 has no limit

  static Type Of(Kind kind) { return Type{kind}; }
  static Type DecimalOf(int precision, int scale);
  static Type TextOf(int length);

  bool IsText() const { return kind == Kind::Text || kind == Kind::Guid; }
  bool IsInteger() const { return kind >= Kind::Bit && kind <= Kind::BigInt; }
  bool IsNumber() const { return kind >= Kind::Bit && kind <= Kind::Float; }

  /// The type as one number, for the store's function arguments, and back.
  std::int64_t Pack() const;
  static Type Unpack(std::int64_t packed);
};

inline constexpr int kMaxDigits = 18;

/// "varchar(50)", "decimal(18,3)", as messages name it.
std::string TypeName(const Type& type);
/// The type both sides are brought to before they are compared, united or chosen between.
Type CommonType(const Type& a, const Type& b);
/// 10^exponent; exponents 0 to 18.
std::int64_t PowerOfTen(int exponent);

}  // namespace suite
