#include "suite/helpers/lookup_rows.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/vb/number.h"
#include "base/vb/text.h"

namespace suite {
namespace {

/// A field as text; a text is taken over, not copied.
std::string TextOf(late::Value&& value) {
  if (auto* text = std::get_if<std::string>(&value.Alternatives())) return std::move(*text);
  return value.TextOrEmpty();
}

}  // namespace

void LookupRows::Read(ado::Recordset& recordset, const std::vector<std::string>& fieldNames) {
  std::vector<int> fields;
  for (const std::string& name : fieldNames) {
    int found = -1;
    for (int field = 0; field < recordset.FieldCount() && found < 0; ++field) {
      if (vb::EqualNoCase(recordset.FieldName(field), name)) found = field;
    }
    fields.push_back(found);
  }
  rows_.clear();
  constexpr int kBlockRows = 1024;
  while (!recordset.Eof()) {
    const late::ArrayPtr block = recordset.GetRows(kBlockRows);
    for (std::size_t record = 0; record < block->columns; ++record) {
      std::vector<std::string>& row = rows_.emplace_back();
      row.reserve(fields.size());
      for (const int field : fields) {
        row.push_back(field < 0 ? std::string() : TextOf(std::move(block->At(static_cast<std::size_t>(field), record))));
      }
    }
  }
  foldedField_ = static_cast<std::size_t>(-1);
  Restart();
}

void LookupRows::Restart() {
  order_.resize(rows_.size());
  std::iota(order_.begin(), order_.end(), std::size_t{0});
  filter_.clear();
  Apply();
}

void LookupRows::Filter(std::size_t field, std::string_view text) {
  if (foldedField_ != field) {
    folded_.clear();
    folded_.reserve(rows_.size());
    for (const auto& row : rows_) folded_.push_back(vb::LCase(row[field]));
    foldedField_ = field;
  }
  filter_ = vb::LCase(text);
  Apply();
}

void LookupRows::SortBy(std::size_t field, bool ascending) {
  struct Key {
    bool numeric;
    double number;
    std::string text;
  };
  std::vector<Key> keys;
  keys.reserve(rows_.size());
  for (const auto& row : rows_) {
    const bool numeric = vb::IsNumeric(row[field]);
    keys.push_back({numeric, numeric ? vb::CDbl(row[field]) : 0, numeric ? std::string() : vb::LCase(row[field])});
  }
  const auto less = [&](std::size_t a, std::size_t b) {
    const Key& left = keys[a];
    const Key& right = keys[b];
    if (left.numeric != right.numeric) return left.numeric;
    return left.numeric ? left.number < right.number : left.text < right.text;
  };
  std::stable_sort(order_.begin(), order_.end(),
                   [&](std::size_t a, std::size_t b) { return ascending ? less(a, b) : less(b, a); });
  Apply();
}

std::size_t LookupRows::FirstBeginningWith(std::size_t field, std::string_view text) const {
  const auto length = static_cast<long>(vb::Len(text));
  const auto found = std::find_if(shown_.begin(), shown_.end(),
                                  [&](std::size_t row) { return vb::EqualNoCase(vb::Left(rows_[row][field], length), text); });
  return found == shown_.end() ? 0 : static_cast<std::size_t>(found - shown_.begin());
}

void LookupRows::Apply() {
  if (filter_.empty()) {
    shown_ = order_;
    return;
  }
  shown_.clear();
  for (const std::size_t row : order_) {
    if (folded_[row].find(filter_) != std::string::npos) shown_.push_back(row);
  }
}

}  // namespace suite
