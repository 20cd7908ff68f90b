#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/ado/recordset.h"

namespace suite {

/// The rows that a lookup offers, as texts of its fields, with the order and the filter that the user sees them in.
class LookupRows {
 public:
  /// All rows in the order they came, without a filter.
  void Restart();
  /// Reads the rest of the recordset; fields that it lacks stay empty.
  void Read(ado::Recordset& recordset, const std::vector<std::string>& fieldNames);

  std::size_t Count() const { return rows_.size(); }
  const std::vector<std::string>& Row(std::size_t row) const { return rows_[row]; }
  /// Row numbers in the order they are shown, after sort and filter.
  const std::vector<std::size_t>& Shown() const { return shown_; }

  /// Shows the rows whose `field` contains the text, without regard to case; all of them for an empty text.
  void Filter(std::size_t field, std::string_view text);
  /// Sorts by a field: figures by value before texts, texts without regard to case. Equal rows keep their order. The filter
  /// stays.
  void SortBy(std::size_t field, bool ascending);
  /// The first shown place whose field begins with the text; 0 when none does.
  std::size_t FirstBeginningWith(std::size_t field, std::string_view text) const;

 private:
  void Apply();

  std::vector<std::vector<std::string>> rows_;
  std::vector<std::size_t> order_;
  std::vector<std::size_t> shown_;
  std::vector<std::string> folded_;  // the filter's field in one letter case, so that a key press folds nothing
  std::size_t foldedField_ = static_cast<std::size_t>(-1);
  std::string filter_;
};

}  // namespace suite
