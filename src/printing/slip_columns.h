#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "src/printing/slip_settings.h"

namespace goods {

/// One item line of the slip, ready to be set in its columns.
struct SlipLine {
  std::string itemCode;
  std::string description;
  std::string quantity;
  std::string unit;
  std::string costPrice;
  std::string totalCost;
  std::string sellingPrice;
};

/// The slip's columns. Every column but the first begins with one separating blank that its width includes, so that a line is
/// exactly `pagewidth` wide as long as its texts fit; a longer figure pushes the rest of the line to the right.
class SlipColumns {
 public:
  /// Error 6 when a width leaves the 16-bit range, 5 when nothing is left for the description, 11 when the dashes have no step.
  explicit SlipColumns(const SlipSettings& settings);

  std::string Headings() const;
  std::string Line(long number, const SlipLine& line) const;
  /// "Grand Total:  " ending with the description column, and the quantity in its own.
  std::string QuantityTotal(std::string_view quantity) const;
  /// One page-wide line that ends with "Grand Total : " and the cost.
  std::string CostTotal(std::string_view cost) const;
  /// Empty where there is nothing worth a line.
  const std::string& DashedLine() const { return dashedLine_; }

 private:
  SlipSettings settings_;
  std::int16_t itemCodeWidth_ = 0;
  std::int16_t descriptionWidth_ = 0;
  std::string dashedLine_;
};

/// Text moved to the right edge of `width` characters; as it is when it is longer.
std::string RightAligned(std::string_view text, long width);
/// Text in the middle of `width` characters, blanks in front only; as it is when it is longer.
std::string Centred(std::string_view text, long width);

}  // namespace goods
