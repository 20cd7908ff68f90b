#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace controls {

/// A table as the clipboard carries it between programs: tabs between cells, CR LF after each row. A cell that holds a tab or a
/// line break, or begins with a quotation mark, is in quotation marks, those inside it doubled.
class TableText {
 public:
  void AddCell(std::string_view text);
  void EndRow();
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  bool isFirst_ = true;
};

/// The cells of such a text, a vector a row; rows without any text are left out. `separator` is between the cells.
std::vector<std::vector<std::string>> ReadTable(std::string_view text, char separator);

}  // namespace controls
