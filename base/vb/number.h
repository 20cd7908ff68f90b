#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Number rules of the classic runtime.
namespace vb {

/// An exact decimal number: units / 10^scale. Scale 0 to 18. Enough for the server's decimal(18,3).
struct Decimal {
  std::int64_t units = 0;
  int scale = 0;

  /// Reads "-12.500"; error 13 when the text is no plain decimal number, 6 when it has too many digits.
  static Decimal Parse(std::string_view text);
  double ToDouble() const;
  /// Shortest text without trailing zeros: "2.5", "-3", "0".
  std::string ToText() const;
  /// All digits of its scale: "2.500".
  std::string ToFixedText() const;

  friend bool operator==(const Decimal& a, const Decimal& b) { return Compare(a, b) == 0; }
  /// Compares the values, whatever the scales: negative, 0 or positive.
  static int Compare(const Decimal& a, const Decimal& b);
};

/// The leading number of the text, 0 when there is none. Blanks, tabs and line feeds inside are skipped; "." is the only
/// decimal separator; exponents with E or D; &H and &O are read.
double Val(std::string_view text);

/// Whether the whole text reads as a number.
bool IsNumeric(std::string_view text);

/// Plain figures of up to fifteen characters ("-12.5"), nearly all there is in a list's numbers, read without the runtime's whole
/// rules; nothing for any other text, which may be a number all the same.
std::optional<double> PlainNumber(std::string_view text);

/// The number that the whole text reads as; error 13 when IsNumeric is false.
double CDbl(std::string_view text);

/// Half to even; error 6 outside the range (tested after rounding).
std::int16_t CInt(double value);
std::int32_t CLng(double value);
std::int16_t CInt(std::string_view text);  // error 13 when the text is no number
std::int32_t CLng(std::string_view text);

/// 16-bit sum and difference; error 6 outside the range.
std::int16_t Add16(std::int16_t a, std::int16_t b);
std::int16_t Subtract16(std::int16_t a, std::int16_t b);

/// A double as text: 15 significant digits at most, "1E+15" style beyond, "-0.5" for small ones.
std::string NumberText(double value);

}  // namespace vb
