#include "base/controls/table_text.h"

#include <algorithm>
#include <utility>

#include "base/vb/text.h"

namespace controls {
namespace {

bool NeedsQuotes(std::string_view text) {
  return text.starts_with('"') || text.find_first_of("\t\r\n") != std::string_view::npos;
}

/// Reads a table character by character.
class TableReader {
 public:
  TableReader(std::string_view text, char separator) : text_(text), separator_(separator) {}

  std::vector<std::vector<std::string>> Rows() {
    while (at_ < text_.size()) {
      row_.push_back(Cell());
      if (at_ < text_.size() && text_[at_] == separator_) {
        ++at_;
        if (at_ == text_.size()) row_.emplace_back();
      } else {
        EndRow();
      }
    }
    EndRow();
    return std::move(rows_);
  }

 private:
  static bool IsBreak(char character) { return character == '\r' || character == '\n'; }

  std::string Cell() {
    std::string cell;
    // A quotation mark that is never closed is part of the text: the rows after it are not swallowed.
    if (at_ < text_.size() && text_[at_] == '"' && QuotedCell(cell)) return cell;
    while (at_ < text_.size() && text_[at_] != separator_ && !IsBreak(text_[at_])) cell += text_[at_++];
    return cell;
  }

  bool QuotedCell(std::string& cell) {
    std::string inside;
    for (std::size_t at = at_ + 1; at < text_.size(); ++at) {
      if (text_[at] != '"') {
        inside += text_[at];
      } else if (at + 1 < text_.size() && text_[at + 1] == '"') {
        inside += text_[at++];
      } else {
        const std::size_t next = at + 1;
        if (next < text_.size() && text_[next] != separator_ && !IsBreak(text_[next])) return false;
        at_ = next;
        cell = std::move(inside);
        return true;
      }
    }
    return false;
  }

  void EndRow() {
    if (at_ < text_.size()) at_ += text_.substr(at_).starts_with("\r\n") ? 2 : 1;
    std::vector<std::string> row = std::exchange(row_, {});
    if (std::any_of(row.begin(), row.end(), [](const std::string& cell) { return !vb::Trim(cell).empty(); })) {
      rows_.push_back(std::move(row));
    }
  }

  std::string_view text_;
  char separator_;
  std::size_t at_ = 0;
  std::vector<std::string> row_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace

void TableText::AddCell(std::string_view text) {
  if (!std::exchange(isFirst_, false)) text_ += '\t';
  if (!NeedsQuotes(text)) {
    text_ += text;
    return;
  }
  text_ += '"';
  for (const char character : text) {
    if (character == '"') text_ += '"';
    text_ += character;
  }
  text_ += '"';
}

void TableText::EndRow() {
  text_ += "\r\n";
  isFirst_ = true;
}

std::vector<std::vector<std::string>> ReadTable(std::string_view text, char separator) {
  return TableReader(text, separator).Rows();
}

}  // namespace controls
