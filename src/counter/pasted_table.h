#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace goods {

/// A row of a pasted table of lines.
struct PastedRow {
  std::string code;
  std::string quantity;  ///< as it was written
  std::string remarks;
  std::vector<std::string> cells;  ///< all of the row
};

/// A table of lines as another program or a list of this one copies it: code, quantity and perhaps remarks in each row.
struct PastedTable {
  std::vector<std::string> headings;  ///< of its columns; empty where it has none
  std::vector<PastedRow> rows;
  bool hasDecimalComma = true;  ///< "2,5" is two and a half; not where commas separate the cells
};

/// Cells are separated by tabs, where there are none by semicolons, else by commas. A first row whose quantity has no digit is
/// taken for headings; where they name the columns of the item list, these are taken and not the first three.
PastedTable ReadPastedLines(std::string_view text);

/// A written quantity as item entry takes it, with a decimal point and without thousands separators or zeros at the end:
/// "1.234,50" is "1234.5". Nothing when it is no number, is negative or has more than three decimals.
std::optional<std::string> QuantityAsTyped(std::string_view written, bool hasDecimalComma);

}  // namespace goods
