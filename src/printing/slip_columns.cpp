#include "src/printing/slip_columns.h"

#include "base/vb/error.h"
#include "base/vb/number.h"
#include "base/vb/text.h"

namespace goods {
namespace {

long Length(std::string_view text) {
  return static_cast<long>(vb::Len(text));
}

/// A left-aligned cell: separating blank, then the text cut and padded to the rest of the width.
std::string LeftCell(std::string_view text, std::int16_t width) {
  const std::string cut = vb::Left(text, width - 1);
  return " " + cut + vb::Space(width - 1 - Length(cut));
}

/// A right-aligned cell: separating blank, then the text at the right; a longer text is never cut.
std::string RightCell(std::string_view text, std::int16_t width) {
  return " " + RightAligned(text, width - 1);
}

/// A heading is never cut, also where its column would cut.
std::string HeadingCell(std::string_view title, std::int16_t width) {
  return " " + std::string(title) + vb::Space(width - 1 - Length(title));
}

std::int16_t DescriptionWidth(const SlipSettings& settings, std::int16_t itemCodeWidth) {
  std::int16_t width = settings.pagewidth;
  for (const std::int16_t taken : {settings.SlNo, settings.Qty, settings.Unit, itemCodeWidth})
    width = vb::Subtract16(width, taken);
  if (settings.showcostintrans) width = vb::Subtract16(vb::Subtract16(width, settings.Rate), settings.Amount);
  if (settings.showspintransrep) width = vb::Subtract16(width, settings.Rate);
  if (width < 1) vb::Raise(vb::kInvalidCall);
  return width;
}

std::string Dashes(const SlipSettings& settings) {
  const std::int16_t step = vb::Add16(settings.spaceinlinecode, 1);
  if (step == 0) vb::Raise(vb::kDivisionByZero);
  std::string line;
  for (int dash = 1; dash <= settings.pagewidth / step; ++dash) {
    line += dash == 1 ? std::string("-") : vb::Space(settings.spaceinlinecode) + "-";
  }
  return line == "-" ? std::string() : line;
}

}  // namespace

std::string RightAligned(std::string_view text, long width) {
  return vb::Space(width - Length(text)) + std::string(text);
}

std::string Centred(std::string_view text, long width) {
  const long room = width - Length(text);
  return vb::Space(room > 0 ? vb::CLng(static_cast<double>(room) / 2) : 0) + std::string(text);
}

SlipColumns::SlipColumns(const SlipSettings& settings)
    : settings_(settings),
      itemCodeWidth_(settings.showitemcodeinprint ? vb::Add16(settings.Unit, 3) : std::int16_t{0}),
      descriptionWidth_(DescriptionWidth(settings, itemCodeWidth_)),
      dashedLine_(Dashes(settings)) {}

std::string SlipColumns::Headings() const {
  std::string line = RightAligned("Sl.No", settings_.SlNo);
  if (settings_.showitemcodeinprint) line += HeadingCell("Code", itemCodeWidth_);
  line += HeadingCell("Item Description", descriptionWidth_);
  line += RightCell("Quantity", settings_.Qty) + RightCell("Unit", settings_.Unit);
  if (settings_.showcostintrans) line += RightCell("Cost Pr", settings_.Rate) + RightCell("Total Cost", settings_.Amount);
  if (settings_.showspintransrep) line += RightCell("Sell Pr", settings_.Rate);
  return line;
}

std::string SlipColumns::Line(long number, const SlipLine& item) const {
  std::string line = RightAligned(std::to_string(number), settings_.SlNo);
  if (settings_.showitemcodeinprint) line += LeftCell(item.itemCode, itemCodeWidth_);
  line += LeftCell(item.description, descriptionWidth_);
  line += RightCell(item.quantity, settings_.Qty) + RightCell(item.unit, settings_.Unit);
  if (settings_.showcostintrans) line += RightCell(item.costPrice, settings_.Rate) + RightCell(item.totalCost, settings_.Amount);
  if (settings_.showspintransrep) line += RightCell(item.sellingPrice, settings_.Rate);
  return line;
}

std::string SlipColumns::QuantityTotal(std::string_view quantity) const {
  // The cost total has no place on this line: with both asked for, only the quantity's is printed.
  const std::int16_t end = vb::Add16(vb::Add16(settings_.SlNo, itemCodeWidth_), descriptionWidth_);
  return RightAligned("Grand Total:  ", end) + RightCell(quantity, settings_.Qty);
}

std::string SlipColumns::CostTotal(std::string_view cost) const {
  return RightAligned("Grand Total : " + std::string(cost), settings_.pagewidth);
}

}  // namespace goods
