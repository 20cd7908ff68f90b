#include "suite/engine/values/conversion.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <sqlite3.h>

#include "base/ado/constants.h"
#include "base/vb/error.h"
#include "base/vb/text.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr std::int64_t kDay = 86400000;
/// The server counts days from 1 January 1900 where a number becomes a date.
constexpr std::int64_t kServerDayZero = 2 * kDay;

std::int64_t CheckedInteger(std::int64_t value, const Type& to, int error = 8115) {
  std::int64_t min = 0, max = 0;
  switch (to.kind) {
    case Kind::Bit:
      return value != 0 ? 1 : 0;
    case Kind::TinyInt:
      max = 255;
      break;
    case Kind::SmallInt:
      min = std::numeric_limits<std::int16_t>::min();
      max = std::numeric_limits<std::int16_t>::max();
      break;
    case Kind::Int:
      min = std::numeric_limits<std::int32_t>::min();
      max = std::numeric_limits<std::int32_t>::max();
      break;
    default:
      return value;
  }
  if (value < min || value > max) {
    if (error == 248)
      RaiseServer(kTextOverflowsInt,
                  "The conversion of the varchar value '" + std::to_string(value) + "' overflowed an int column.");
    RaiseOverflow(TypeName(to));
  }
  return value;
}

std::int64_t TextToInteger(std::string_view text, const Type& to) {
  const std::string_view trimmed = vb::Trim(text);
  if (trimmed.empty()) return 0;
  std::string_view digits = trimmed;
  if (digits.front() == '+') digits.remove_prefix(1);
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (end != digits.data() + digits.size() || digits.empty()) RaiseConversion(text, TypeName(to));
  if (error == std::errc::result_out_of_range) {
    RaiseServer(kTextOverflowsInt, "The conversion of the varchar value '" + std::string(text) + "' overflowed an int column.");
  }
  return CheckedInteger(value, to, 248);
}

[[noreturn]] void RaiseNumberConversion(const Type& to) {
  RaiseServer(kInvalidNumberConversion,
              "Error converting data type varchar to " + std::string(to.kind == Kind::Float ? "float" : "numeric") + ".");
}

double TextToDouble(std::string_view text, const Type& to) {
  std::string_view trimmed = vb::Trim(text);
  if (trimmed.empty()) return 0;
  if (trimmed.front() == '+') trimmed.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), value);
  if (error != std::errc() || end != trimmed.data() + trimmed.size()) RaiseNumberConversion(to);
  return value;
}

std::int64_t TextToUnits(std::string_view text, const Type& to) {
  const std::string_view trimmed = vb::Trim(text);
  if (trimmed.empty() || trimmed.find_first_not_of("+-.0123456789") != std::string_view::npos) RaiseNumberConversion(to);
  try {
    const vb::Decimal value = vb::Decimal::Parse(trimmed.front() == '+' ? trimmed.substr(1) : trimmed);
    return Rescale(value.units, value.scale, to.scale, to.precision);
  } catch (const ServerError&) {
    throw;
  } catch (const vb::RunTimeError& error) {
    if (error.Number() == vb::kOverflow) RaiseOverflow(TypeName(to));
    RaiseNumberConversion(to);
  }
}

/// Text as it fits the type: cut (or refused when it is stored), padded for char(n).
std::string_view FitText(std::string_view text, const Type& to, std::string& buffer) {
  if (to.length <= 0 || to.kind == Kind::Guid) return text;
  const auto limit = static_cast<std::size_t>(to.length);
  if (text.size() > limit || to.fixed) {
    const std::size_t length = vb::Len(text);
    if (length > limit) {
      if (to.assign && vb::Len(vb::RTrim(text)) > limit) RaiseTruncation();
      buffer = vb::Left(text, to.length);
      return buffer;
    }
    if (to.fixed && length < limit) {
      std::string padded(text);
      padded.append(limit - length, ' ');
      buffer = std::move(padded);
      return buffer;
    }
  }
  return text;
}

std::string NumberAsText(const Cell& value, const Type& from) {
  switch (from.kind) {
    case Kind::Decimal:
      return vb::Decimal{value.integer, from.scale}.ToFixedText();
    case Kind::Float:
      return vb::NumberText(value.form == Cell::Form::Real ? value.real : static_cast<double>(value.integer));
    default:
      return std::to_string(value.integer);
  }
}

Cell ToText(const Cell& value, const Type& from, const Type& to, std::string& buffer, int style) {
  if (value.form == Cell::Form::Text) return Cell::Of(FitText(value.text, to, buffer));
  if (from.kind == Kind::DateTime) {
    buffer = ServerDateText(value.integer, style);
  } else {
    buffer = NumberAsText(value, from);
    if (to.length > 0 && buffer.size() > static_cast<std::size_t>(to.length)) {
      // A number that does not fit is never cut to another number.
      if (!from.IsInteger() || to.assign) RaiseOverflow(TypeName(to));
      buffer = "*";
    }
  }
  return Cell::Of(FitText(buffer, to, buffer));
}

double AsDouble(const Cell& value, const Type& from) {
  if (from.kind == Kind::Decimal) return static_cast<double>(value.integer) / static_cast<double>(PowerOfTen(from.scale));
  return value.form == Cell::Form::Real ? value.real : static_cast<double>(value.integer);
}

Cell ToDate(const Cell& value, const Type& from, DateOrder order) {
  if (value.form == Cell::Form::Text) return Cell::Of(ParseServerDate(value.text, order));
  constexpr double kFirstDay = -53690, kLastDay = 2958463;  // 1 January 1753 and 31 December 9999, from 1 January 1900 on
  const double days = AsDouble(value, from);
  if (!(days >= kFirstDay && days < kLastDay + 1)) RaiseOverflow("datetime");
  return Cell::Of(std::int64_t{std::llround(days * static_cast<double>(kDay)) + kServerDayZero});
}

Cell ToInteger(const Cell& value, const Type& from, const Type& to) {
  if (value.form == Cell::Form::Text) return Cell::Of(TextToInteger(value.text, to));
  if (from.kind == Kind::DateTime) return Cell::Of(std::int64_t{(value.integer - kServerDayZero + kDay / 2) / kDay});
  if (from.IsInteger()) return Cell::Of(CheckedInteger(value.integer, to));
  const double number = AsDouble(value, from);
  if (to.kind == Kind::Bit) return Cell::Of(std::int64_t{number != 0});
  if (!(std::fabs(number) < 9.2e18)) RaiseOverflow(TypeName(to));
  return Cell::Of(CheckedInteger(static_cast<std::int64_t>(number), to));  // cut, not rounded
}

Cell ToDecimal(const Cell& value, const Type& from, const Type& to) {
  if (value.form == Cell::Form::Text) return Cell::Of(TextToUnits(value.text, to));
  if (from.kind == Kind::Float)
    return Cell::Of(Rescale(DoubleToUnits(AsDouble(value, from), to.scale), to.scale, to.scale, to.precision));
  return Cell::Of(Rescale(value.integer, from.kind == Kind::Decimal ? from.scale : 0, to.scale, to.precision));
}

}  // namespace

std::int64_t Rescale(std::int64_t units, int oldScale, int newScale, int precision) {
  if (units == std::numeric_limits<std::int64_t>::min()) RaiseOverflow("decimal");  // it has no absolute value
  if (newScale > oldScale) {
    const std::int64_t power = PowerOfTen(newScale - oldScale);
    if (std::abs(units) > std::numeric_limits<std::int64_t>::max() / power) RaiseOverflow("decimal");
    units *= power;
  } else if (newScale < oldScale) {
    const std::int64_t power = PowerOfTen(oldScale - newScale);
    const std::int64_t rest = units % power;
    units /= power;
    if (std::abs(rest) >= power - std::abs(rest)) units += rest < 0 ? -1 : 1;
  }
  if (precision < kMaxDigits + 1 && std::abs(units) >= PowerOfTen(precision)) {
    RaiseOverflow(TypeName(Type::DecimalOf(precision, newScale)));
  }
  return units;
}

std::int64_t DoubleToUnits(double value, int scale) {
  const double scaled = value * static_cast<double>(PowerOfTen(scale));
  if (!(std::fabs(scaled) < 9.2e18)) RaiseOverflow("decimal");
  constexpr double kExact = 9007199254740992.0;  // beyond, a double has no fraction left, and the product may not be exact
  if (std::fabs(scaled) >= kExact) {
    const double whole = std::trunc(value);
    return static_cast<std::int64_t>(whole) * PowerOfTen(scale) +
           std::llround((value - whole) * static_cast<double>(PowerOfTen(scale)));
  }
  const double rounded = std::round(scaled);
  // Near a half the binary value may be on the wrong side of the decimal one that the user sees; 15 digits decide.
  if (std::fabs(std::fabs(scaled - std::trunc(scaled)) - 0.5) < 1e-4 && std::fabs(scaled) < 1e14) {
    return static_cast<std::int64_t>(std::round(scaled + std::copysign(std::fabs(scaled) * 2e-15 + 1e-9, scaled)));
  }
  return static_cast<std::int64_t>(rounded);
}

Cell Convert(const Cell& value, const Type& from, const Type& to, std::string& buffer, int style, DateOrder order) {
  if (value.form == Cell::Form::Null) return value;
  switch (to.kind) {
    case Kind::Null:
      return value;
    case Kind::Text:
    case Kind::Guid:
      return ToText(value, from, to, buffer, style);
    case Kind::Bit:
    case Kind::TinyInt:
    case Kind::SmallInt:
    case Kind::Int:
    case Kind::BigInt:
      return ToInteger(value, from, to);
    case Kind::Decimal:
      return ToDecimal(value, from, to);
    case Kind::Float:
      return value.form == Cell::Form::Text ? Cell::Of(TextToDouble(value.text, to)) : Cell::Of(AsDouble(value, from));
    case Kind::DateTime:
      return from.kind == Kind::DateTime ? value : ToDate(value, from, order);
  }
  return value;
}

void BindCell(sqlite3_stmt* statement, int index, const Cell& cell, bool keep) {
  switch (cell.form) {
    case Cell::Form::Null:
      sqlite3_bind_null(statement, index);
      break;
    case Cell::Form::Integer:
      sqlite3_bind_int64(statement, index, cell.integer);
      break;
    case Cell::Form::Real:
      sqlite3_bind_double(statement, index, cell.real);
      break;
    case Cell::Form::Text: {
      // A null pointer would bind null, not the empty text.
      const char* text = cell.text.data() ? cell.text.data() : "";
      sqlite3_bind_text64(statement, index, text, cell.text.size(), keep ? SQLITE_TRANSIENT : SQLITE_STATIC, SQLITE_UTF8);
      break;
    }
  }
}

}  // namespace suite
