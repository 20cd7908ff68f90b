#include "base/vb/decimal_digits.h"

#include <array>
#include <charconv>
#include <cmath>

namespace vb {

DecimalDigits DecimalDigits::Of(double value) {
  DecimalDigits result;
  result.negative = std::signbit(value);
  std::array<char, 40> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value), std::chars_format::scientific, 14).ptr;
  // d.dddddddddddddde+xx
  result.digits.assign(1, buffer[0]).append(buffer.data() + 2, 14);
  const char* exponent = buffer.data() + 17;
  if (*exponent == '+') ++exponent;
  std::from_chars(exponent, end, result.exponent);
  ++result.exponent;
  result.Normalise();
  return result;
}

DecimalDigits DecimalDigits::Of(const Decimal& value) {
  DecimalDigits result;
  result.negative = value.units < 0;
  result.digits = std::to_string(value.units);
  if (result.negative) result.digits.erase(0, 1);
  result.exponent = static_cast<int>(result.digits.size()) - value.scale;
  result.Normalise();
  return result;
}

void DecimalDigits::RoundTo(int decimals) {
  const int kept = exponent + decimals;
  if (kept >= static_cast<int>(digits.size())) return;
  if (kept < 0) {
    digits.clear();
  } else {
    const bool up = digits[static_cast<std::size_t>(kept)] >= '5';
    digits.resize(static_cast<std::size_t>(kept));
    if (up) {
      while (!digits.empty() && digits.back() == '9') digits.pop_back();
      if (digits.empty()) {
        digits = "1";
        ++exponent;
      } else {
        ++digits.back();
      }
    }
  }
  Normalise();
}

void DecimalDigits::Normalise() {
  const std::size_t first = digits.find_first_not_of('0');
  if (first == std::string::npos) {
    *this = DecimalDigits();  // a zero has no sign either
    return;
  }
  digits.erase(0, first);
  exponent -= static_cast<int>(first);
  digits.erase(digits.find_last_not_of('0') + 1);
}

}  // namespace vb
