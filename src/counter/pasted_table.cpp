#include "src/counter/pasted_table.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "base/controls/table_text.h"
#include "base/vb/text.h"

namespace goods {
namespace {

constexpr std::size_t kMaxDecimals = 3;

using Cells = std::vector<std::string>;

/// Where a row has its code, its quantity and its remarks.
using Columns = std::array<std::size_t, 3>;
constexpr Columns kAsWritten = {0, 1, 2};

bool IsDigit(char character) {
  return std::isdigit(static_cast<unsigned char>(character)) != 0;
}

std::string CellOf(const Cells& cells, std::size_t column) {
  return column < cells.size() ? std::string(vb::Trim(cells[column])) : std::string();
}

char SeparatorOf(std::string_view text) {
  for (const char separator : {'\t', ';'}) {
    if (text.find(separator) != std::string_view::npos) return separator;
  }
  return ',';
}

/// The places of the item list's headings; those of a table without them where one is missing.
Columns ColumnsUnder(const Cells& headings) {
  Columns columns{};
  constexpr std::array<std::string_view, 3> kNames = {"Item Code", "Qty.", "Request Remarks"};
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    const auto found = std::ranges::find(headings, kNames.at(i));
    if (found == headings.end()) return kAsWritten;
    columns.at(i) = static_cast<std::size_t>(found - headings.begin());
  }
  return columns;
}

bool IsHeading(const Cells& first) {
  if (ColumnsUnder(first) != kAsWritten) return true;
  const std::string quantity = CellOf(first, kAsWritten[1]);
  return !quantity.empty() && std::ranges::none_of(quantity, IsDigit);
}

/// The decimal sign of a written number: the last of its points and commas, unless that one separates thousands, as every other
/// one does. '\0' for none.
char DecimalSignOf(std::string_view written, bool hasDecimalComma) {
  const std::size_t last = written.find_last_of(".,");
  if (last == std::string_view::npos) return '\0';
  const char sign = written[last];
  if (sign == ',' && !hasDecimalComma) return '\0';
  return std::ranges::count(written, sign) > 1 ? '\0' : sign;
}

/// The digits of a whole number that may be written in groups, "1,234,567" or "12,34,567"; nothing when it is none.
std::optional<std::string> WithoutGroups(std::string_view written) {
  constexpr std::size_t kLastGroup = 3;
  const std::size_t first = std::min(written.find_first_of("., "), written.size());
  std::string digits;
  std::size_t group = 0;
  for (const char character : written) {
    if (IsDigit(character)) {
      digits += character;
      ++group;
    } else if (character == written[first] && group >= 1 && group <= kLastGroup) {
      group = 0;
    } else {
      return std::nullopt;
    }
  }
  if (first < written.size() && group != kLastGroup) return std::nullopt;
  return digits;
}

}  // namespace

PastedTable ReadPastedLines(std::string_view text) {
  const char separator = SeparatorOf(text);
  PastedTable table;
  table.hasDecimalComma = separator != ',';
  std::vector<Cells> rows = controls::ReadTable(text, separator);
  Columns columns = kAsWritten;
  if (!rows.empty() && IsHeading(rows.front())) {
    table.headings = rows.front();
    columns = ColumnsUnder(table.headings);
    rows.erase(rows.begin());
  }
  for (Cells& cells : rows) {
    PastedRow row{CellOf(cells, columns[0]), CellOf(cells, columns[1]), CellOf(cells, columns[2]), {}};
    row.cells = std::move(cells);
    table.rows.push_back(std::move(row));
  }
  return table;
}

std::optional<std::string> QuantityAsTyped(std::string_view written, bool hasDecimalComma) {
  const char sign = DecimalSignOf(written, hasDecimalComma);
  const std::size_t end = sign == '\0' ? written.size() : written.rfind(sign);
  const std::optional<std::string> whole = WithoutGroups(written.substr(0, end));
  std::string_view decimals = written.substr(std::min(end + 1, written.size()));
  if (!whole || !std::ranges::all_of(decimals, IsDigit) || (whole->empty() && decimals.empty())) return std::nullopt;
  while (decimals.ends_with('0')) decimals.remove_suffix(1);
  if (decimals.size() > kMaxDecimals) return std::nullopt;
  const std::string units = whole->empty() ? "0" : *whole;
  return decimals.empty() ? units : units + "." + std::string(decimals);
}

}  // namespace goods
