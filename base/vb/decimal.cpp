#include <array>
#include <charconv>

#include "base/vb/decimal_digits.h"
#include "base/vb/error.h"
#include "base/vb/number.h"

namespace vb {
namespace {

constexpr int kGreatestScale = 18;

std::int64_t PowerOfTen(int exponent) {
  std::int64_t power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

Decimal Decimal::Parse(std::string_view text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  std::string digits(negative ? "-" : "");
  const std::size_t point = text.find('.');
  std::string_view whole = text.substr(0, point);
  std::string_view fraction = point == std::string_view::npos ? std::string_view() : text.substr(point + 1);
  if (whole.empty() && fraction.empty()) Raise(kTypeMismatch);
  for (const std::string_view part : {whole, fraction}) {
    for (const char c : part) {
      if (!IsDigit(c)) Raise(kTypeMismatch);
    }
  }
  while (fraction.size() > kGreatestScale && fraction.back() == '0') fraction.remove_suffix(1);
  if (fraction.size() > kGreatestScale) Raise(kOverflow);
  digits.append(whole).append(fraction);
  Decimal result;
  result.scale = static_cast<int>(fraction.size());
  if (std::from_chars(digits.data(), digits.data() + digits.size(), result.units).ec != std::errc()) Raise(kOverflow);
  return result;
}

double Decimal::ToDouble() const {
  constexpr std::int64_t kExactInDouble = std::int64_t{1} << 53;
  if (units > -kExactInDouble && units < kExactInDouble) {
    return static_cast<double>(units) / static_cast<double>(PowerOfTen(scale));  // both exact, so one correct rounding
  }
  const std::string text = ToFixedText();
  double result = 0;
  std::from_chars(text.data(), text.data() + text.size(), result);
  return result;
}

std::string Decimal::ToText() const {
  std::string text = ToFixedText();
  if (scale == 0) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Decimal::ToFixedText() const {
  std::string text = std::to_string(units);
  if (scale == 0) return text;
  const std::size_t sign = units < 0 ? 1 : 0;
  const auto least = static_cast<std::size_t>(scale) + 1 + sign;
  if (text.size() < least) text.insert(sign, least - text.size(), '0');
  text.insert(text.size() - static_cast<std::size_t>(scale), 1, '.');
  return text;
}

int Decimal::Compare(const Decimal& a, const Decimal& b) {
  const auto order = [](std::int64_t left, std::int64_t right) { return left < right ? -1 : left > right ? 1 : 0; };
  if (a.scale == b.scale) return order(a.units, b.units);
  const std::int64_t powerA = PowerOfTen(a.scale);
  const std::int64_t powerB = PowerOfTen(b.scale);
  if (const int whole = order(a.units / powerA, b.units / powerB)) return whole;
  // Remainders are below 10^scale and carry the sign, so both fit when brought to the greatest scale.
  return order(a.units % powerA * PowerOfTen(kGreatestScale - a.scale), b.units % powerB * PowerOfTen(kGreatestScale - b.scale));
}

}  // namespace vb
