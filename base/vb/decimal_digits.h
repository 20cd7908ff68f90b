#pragma once

#include <string>

#include "base/vb/number.h"

namespace vb {

/// A number as its significant decimal digits: 0.DIGITS times 10^exponent. Zero has no digits.
/// Rounding happens here, on what a person reads, never on the binary fraction itself.
struct DecimalDigits {
  bool negative = false;
  std::string digits;  ///< no leading and no trailing zeros
  int exponent = 0;

  /// 15 significant digits, all that a double keeps of any number typed in. The value must be finite.
  static DecimalDigits Of(double value);
  static DecimalDigits Of(const Decimal& value);

  /// Half away from zero at the given number of decimals.
  void RoundTo(int decimals);

 private:
  void Normalise();
};

}  // namespace vb
