#include "base/vb/number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "base/vb/decimal_digits.h"
#include "base/vb/error.h"

namespace vb {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsExponentLetter(char c) {
  return c == 'e' || c == 'E' || c == 'd' || c == 'D';
}
bool IsSign(char c) {
  return c == '+' || c == '-';
}

/// A number's text, scanned from `text`: digits, point and exponent in the form that from_chars reads.
struct ScannedNumber {
  std::string plain;
  std::size_t end = 0;   ///< bytes of `text` used
  long wholeDigits = 0;  ///< significant digits before the point; below 0 for zeros after it
  long exponent = 0;
  bool hasDigits = false;
};

/// Reads digits, one point and an exponent. A comma between the whole digits is skipped where the caller allows it.
ScannedNumber Scan(std::string_view text, bool allowCommas) {
  ScannedNumber number;
  std::size_t& i = number.end;
  bool point = false;
  bool significant = false;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '.' && !point) {
      point = true;
      number.plain.push_back(c);
    } else if (IsDigit(c)) {
      number.hasDigits = true;
      significant = significant || c != '0';
      if (significant ? !point : false) ++number.wholeDigits;
      if (!significant && point) --number.wholeDigits;
      number.plain.push_back(c);
    } else if (!(c == ',' && allowCommas && number.hasDigits && !point)) {
      break;
    }
  }
  if (!number.hasDigits || i >= text.size() || !IsExponentLetter(text[i])) return number;
  std::size_t digit = i + 1;
  const bool negative = digit < text.size() && text[digit] == '-';
  if (digit < text.size() && IsSign(text[digit])) ++digit;
  if (digit >= text.size() || !IsDigit(text[digit])) return number;
  for (; digit < text.size() && IsDigit(text[digit]); ++digit)
    number.exponent = std::min(number.exponent * 10 + (text[digit] - '0'), 99999L);
  if (negative) number.exponent = -number.exponent;
  number.plain.append("e").append(std::to_string(number.exponent));
  i = digit;
  return number;
}

/// Error 6 beyond the range of a double; what is too small for one is 0.
double ValueOf(const ScannedNumber& number) {
  double value = 0;
  const auto result = std::from_chars(number.plain.data(), number.plain.data() + number.plain.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  if (number.wholeDigits + number.exponent > 0) Raise(kOverflow);
  return 0;
}

/// "&H1F" and "&O17" after the ampersand. Up to four hexadecimal digits are a 16-bit integer, up to eight a 32-bit one, so that
/// &HFFFF is -1 as in the classic runtime. Nothing when no digit follows; `end` is set past the last one.
std::optional<double> ReadBased(std::string_view text, std::size_t& end) {
  if (text.size() < 2 || text[0] != '&') return std::nullopt;
  const char letter = text[1];
  const int base = letter == 'h' || letter == 'H' ? 16 : letter == 'o' || letter == 'O' ? 8 : 0;
  if (base == 0) return std::nullopt;
  std::uint64_t value = 0;
  const auto result = std::from_chars(text.data() + 2, text.data() + text.size(), value, base);
  if (result.ec == std::errc::invalid_argument) return std::nullopt;
  if (result.ec != std::errc() || value > 0xFFFFFFFFu) Raise(kOverflow);
  end = static_cast<std::size_t>(result.ptr - text.data());
  if (value <= 0xFFFF) return static_cast<std::int16_t>(static_cast<std::uint16_t>(value));
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

std::string_view TrimWhite(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// The number that the whole text reads as; nothing when it is none, error 6 when it is too large.
std::optional<double> ReadWhole(std::string_view text) {
  text = TrimWhite(text);
  std::size_t end = 0;
  if (const auto based = ReadBased(text, end)) return end == text.size() ? based : std::nullopt;
  bool negative = false;
  if (text.size() > 2 && text.front() == '(' && text.back() == ')') {
    negative = true;
    text = text.substr(1, text.size() - 2);
  } else if (!text.empty() && IsSign(text.front())) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  } else if (!text.empty() && IsSign(text.back())) {
    negative = text.back() == '-';
    text.remove_suffix(1);
  }
  const ScannedNumber number = Scan(text, true);
  if (!number.hasDigits || number.end != text.size()) return std::nullopt;
  const double value = ValueOf(number);
  return negative ? -value : value;
}

/// Half to even, whatever rounding mode the host process has set.
double RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5 || (rest == 0.5 && std::fmod(below, 2) == 0)) return below;
  return below + 1;
}

template <class Integer>
Integer ToInteger(double value) {
  const double rounded = RoundHalfEven(value);
  const bool inRange = rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
                       rounded <= static_cast<double>(std::numeric_limits<Integer>::max());
  if (!inRange) Raise(kOverflow);
  return static_cast<Integer>(rounded);
}

std::int16_t Narrow16(int value) {
  if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max()) Raise(kOverflow);
  return static_cast<std::int16_t>(value);
}

}  // namespace

double Val(std::string_view text) {
  std::string packed;
  if (text.find_first_of(" \t\n") != std::string_view::npos) {
    for (const char c : text) {
      if (c != ' ' && c != '\t' && c != '\n') packed.push_back(c);
    }
    text = packed;
  }
  std::size_t end = 0;
  if (const auto based = ReadBased(text, end)) return *based;
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && IsSign(text.front())) text.remove_prefix(1);
  const ScannedNumber number = Scan(text, false);
  if (!number.hasDigits) return 0;
  const double value = ValueOf(number);
  return negative && value != 0 ? -value : value;
}

bool IsNumeric(std::string_view text) {
  try {
    return ReadWhole(text).has_value();
  } catch (const RunTimeError&) {
    return false;  // a number that no double holds
  }
}

std::optional<double> PlainNumber(std::string_view text) {
  constexpr std::size_t kExactDigits = 15;
  if (text.empty() || text.size() > kExactDigits || text.find_first_not_of("0123456789.-") != std::string_view::npos) return {};
  double number = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number, std::chars_format::fixed);
  if (result.ec != std::errc() || result.ptr != end) return {};
  return number;
}

double CDbl(std::string_view text) {
  const auto value = ReadWhole(text);
  if (!value) Raise(kTypeMismatch);
  return *value;
}

std::int16_t CInt(double value) {
  return ToInteger<std::int16_t>(value);
}
std::int32_t CLng(double value) {
  return ToInteger<std::int32_t>(value);
}
std::int16_t CInt(std::string_view text) {
  return CInt(CDbl(text));
}
std::int32_t CLng(std::string_view text) {
  return CLng(CDbl(text));
}

std::int16_t Add16(std::int16_t a, std::int16_t b) {
  return Narrow16(a + b);
}
std::int16_t Subtract16(std::int16_t a, std::int16_t b) {
  return Narrow16(a - b);
}

std::string NumberText(double value) {
  if (std::isnan(value)) return "-1.#IND";
  if (std::isinf(value)) return value < 0 ? "-1.#INF" : "1.#INF";
  constexpr double kPlainLimit = 1e15;
  if (std::fabs(value) < kPlainLimit && value == std::floor(value)) return std::to_string(static_cast<std::int64_t>(value));
  const DecimalDigits number = DecimalDigits::Of(value);
  const int count = static_cast<int>(number.digits.size());
  std::string text = number.negative ? "-" : "";
  if (number.exponent > 15 || count - number.exponent > 15) {
    // No more than 15 digits fit before or after the point.
    const int exponent = number.exponent - 1;
    text.append(number.digits, 0, 1);
    if (count > 1) text.append(".").append(number.digits, 1);
    text.append(exponent < 0 ? "E-" : "E+");
    if (std::abs(exponent) < 10) text.append("0");
    return text.append(std::to_string(std::abs(exponent)));
  }
  if (number.exponent <= 0)
    return text.append("0.").append(static_cast<std::size_t>(-number.exponent), '0').append(number.digits);
  const auto whole = static_cast<std::size_t>(number.exponent);
  if (count <= number.exponent) return text.append(number.digits).append(whole - number.digits.size(), '0');
  return text.append(number.digits, 0, whole).append(".").append(number.digits, whole);
}

}  // namespace vb
