#include "base/vb/format.h"

#include <cmath>

#include "base/vb/decimal_digits.h"

namespace vb {
namespace {

/// A number picture taken apart. Characters before and after the places are literal.
struct Picture {
  std::string_view before, after;
  std::size_t leastWhole = 0;  ///< digits before the point that are always shown
  int leastDecimals = 0;
  int mostDecimals = 0;
  bool thousands = false;
  bool point = false;
};

Picture ReadPicture(std::string_view text) {
  constexpr std::string_view kPlaces = "0#,.";
  Picture picture;
  const std::size_t first = text.find_first_of(kPlaces);
  if (first == std::string_view::npos) {
    picture.before = text;
    return picture;
  }
  std::size_t last = text.find_first_not_of(kPlaces, first);
  if (last == std::string_view::npos) last = text.size();
  picture.before = text.substr(0, first);
  picture.after = text.substr(last);
  for (const char c : text.substr(first, last - first)) {
    if (c == '.') {
      picture.point = true;
    } else if (c == ',') {
      picture.thousands = true;
    } else if (picture.point) {
      ++picture.mostDecimals;
      if (c == '0') picture.leastDecimals = picture.mostDecimals;
    } else if (c == '0' || picture.leastWhole > 0) {
      ++picture.leastWhole;  // a # after a 0 is also a place that is always shown
    }
  }
  return picture;
}

std::string WithThousands(const std::string& digits) {
  std::string result;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) result.push_back(',');
    result.push_back(digits[i]);
  }
  return result;
}

std::string FormatDigits(DecimalDigits number, std::string_view pictureText) {
  const Picture picture = ReadPicture(pictureText);
  number.RoundTo(picture.mostDecimals);

  std::string whole;
  std::string decimals;
  if (number.exponent > 0) {
    whole = number.digits.substr(0, static_cast<std::size_t>(number.exponent));
    whole.resize(static_cast<std::size_t>(number.exponent), '0');
    if (number.digits.size() > whole.size()) decimals = number.digits.substr(whole.size());
  } else if (!number.digits.empty()) {
    decimals.assign(static_cast<std::size_t>(-number.exponent), '0').append(number.digits);
  }
  if (whole.size() < picture.leastWhole) whole.insert(0, picture.leastWhole - whole.size(), '0');
  if (decimals.size() < static_cast<std::size_t>(picture.leastDecimals))
    decimals.resize(static_cast<std::size_t>(picture.leastDecimals), '0');

  std::string text = number.negative ? "-" : "";
  text.append(picture.before).append(picture.thousands ? WithThousands(whole) : whole);
  if (picture.point) text.append(".").append(decimals);
  return text.append(picture.after);
}

}  // namespace

std::string Format(double value, std::string_view picture) {
  if (picture.empty() || !std::isfinite(value)) return NumberText(value);
  return FormatDigits(DecimalDigits::Of(value), picture);
}

std::string Format(const Decimal& value, std::string_view picture) {
  if (picture.empty()) return value.ToText();
  return FormatDigits(DecimalDigits::Of(value), picture);
}

std::string FormatText(std::string_view text, std::string_view picture) {
  return IsNumeric(text) ? Format(CDbl(text), picture) : std::string(text);
}

}  // namespace vb
