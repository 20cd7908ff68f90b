// Sorting of whole rows. Each key is read once from its cell; the rows move once, at the end.

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <deque>
#include <numeric>
#include <utility>

#include "base/controls/flex_grid.h"
#include "base/vb/error.h"
#include "base/vb/letter_case.h"
#include "base/vb/number.h"
#include "base/vb/text.h"

namespace controls {

namespace {

enum class KeyKind { Generic, Number, Text };

/// The keys of one column, for the rows in their order before sorting.
struct KeyColumn {
  KeyColumn() = default;
  KeyColumn(KeyColumn&&) = default;  // a copy's texts would point into the folded ones of the other
  KeyColumn(const KeyColumn&) = delete;
  KeyColumn& operator=(const KeyColumn&) = delete;
  KeyColumn& operator=(KeyColumn&&) = delete;

  KeyKind kind = KeyKind::Text;
  std::vector<double> numbers;
  std::vector<const std::string*> texts;  // the cells' own, or folded ones
  std::deque<std::string> folded;
  std::vector<char> isNumber;  // generic keys alone
};

/// Comparing folded texts byte by byte orders like a comparison without regard to case.
std::string Folded(const std::string& text) {
  static const std::array<char, 128> ascii = [] {
    std::array<char, 128> table{};
    for (std::size_t c = 0; c < table.size(); ++c) table[c] = static_cast<char>(vb::FoldCharacter(static_cast<char32_t>(c)));
    return table;
  }();
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    if (const auto byte = static_cast<unsigned char>(text[offset]); byte < ascii.size()) {
      folded += ascii[byte];
      ++offset;
      continue;
    }
    vb::AppendCharacter(folded, vb::FoldCharacter(vb::NextCharacter(text, offset)));
  }
  return folded;
}

double NumberOf(const std::string& text) {
  const auto plain = vb::PlainNumber(text);
  return plain ? *plain : vb::Val(text);
}

/// Whether the cell counts as a number in a generic sort.
bool ReadGenericNumber(const std::string& text, double& number) {
  if (text.empty() || std::isalpha(static_cast<unsigned char>(text.front()))) return false;
  const auto plain = vb::PlainNumber(text);
  if (!plain && !vb::IsNumeric(text)) return false;
  number = plain ? *plain : vb::CDbl(text);
  return true;
}

bool InGenericOrder(const std::string& above, const std::string& below) {
  double first = 0;
  double second = 0;
  if (ReadGenericNumber(above, first) && ReadGenericNumber(below, second)) return first <= second;
  return vb::CompareNoCase(above, below) <= 0;
}

using CellTexts = std::vector<const std::string*>;

void FoldAll(KeyColumn& keys, const CellTexts& cells) {
  keys.texts.reserve(cells.size());
  for (const std::string* cell : cells) keys.texts.push_back(&keys.folded.emplace_back(Folded(*cell)));
}

/// A generic column of numbers alone, or without any, needs no look at each pair.
void ReadGenericKeys(KeyColumn& keys, const CellTexts& cells) {
  std::size_t numbers = 0;
  for (const std::string* cell : cells) {
    double number = 0;
    const bool isNumber = ReadGenericNumber(*cell, number);
    numbers += isNumber ? 1 : 0;
    keys.isNumber.push_back(isNumber ? 1 : 0);
    keys.numbers.push_back(number);
  }
  keys.kind = numbers == cells.size() ? KeyKind::Number : numbers == 0 ? KeyKind::Text : KeyKind::Generic;
  if (keys.kind != KeyKind::Number) FoldAll(keys, cells);
}

KeyColumn ReadKeys(GridSort kind, const CellTexts& cells) {
  KeyColumn keys;
  if (kind <= GridSort::GenericDescending) {
    ReadGenericKeys(keys, cells);
  } else if (kind <= GridSort::NumericDescending) {
    keys.kind = KeyKind::Number;
    keys.numbers.reserve(cells.size());
    for (const std::string* cell : cells) keys.numbers.push_back(NumberOf(*cell));
  } else if (kind <= GridSort::TextNoCaseDescending) {
    FoldAll(keys, cells);
  } else {
    keys.texts = cells;
  }
  return keys;
}

int Compare(const KeyColumn& keys, std::size_t a, std::size_t b) {
  if (keys.kind == KeyKind::Number || (keys.kind == KeyKind::Generic && keys.isNumber[a] && keys.isNumber[b])) {
    return keys.numbers[a] < keys.numbers[b] ? -1 : keys.numbers[b] < keys.numbers[a] ? 1 : 0;
  }
  return keys.texts[a]->compare(*keys.texts[b]);
}

void SortByNumber(std::vector<std::size_t>& order, const std::vector<double>& keys, bool descending) {
  // The keys travel with the row numbers, so that comparing needs no detour.
  std::vector<std::pair<double, std::size_t>> pairs;
  pairs.reserve(order.size());
  for (const std::size_t row : order) pairs.emplace_back(keys[row], row);
  if (descending) {
    std::stable_sort(pairs.begin(), pairs.end(), [](const auto& a, const auto& b) { return b.first < a.first; });
  } else {
    std::stable_sort(pairs.begin(), pairs.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  }
  for (std::size_t place = 0; place < order.size(); ++place) order[place] = pairs[place].second;
}

/// A text with its first sixteen bytes as numbers beside it: nearly every comparison ends without touching the text itself.
struct TextKey {
  std::uint64_t head = 0;
  std::uint64_t next = 0;
  const std::string* text = nullptr;
  std::size_t row = 0;

  TextKey(const std::string& whole, std::size_t number)
      : head(Bytes(whole, 0)), next(Bytes(whole, 8)), text(&whole), row(number) {}

  friend bool operator<(const TextKey& a, const TextKey& b) {
    if (a.head != b.head) return a.head < b.head;
    if (a.next != b.next) return a.next < b.next;
    return *a.text < *b.text;
  }

 private:
  /// Eight bytes of the text as one number that orders as they do; nought where the text has ended.
  static std::uint64_t Bytes(const std::string& text, std::size_t from) {
    std::uint64_t number = 0;
    for (std::size_t i = from; i < from + 8; ++i) {
      number = number << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0u);
    }
    return number;
  }
};

void SortByText(std::vector<std::size_t>& order, const std::vector<const std::string*>& texts, bool descending) {
  std::vector<TextKey> keys;
  keys.reserve(order.size());
  for (const std::size_t row : order) keys.emplace_back(*texts[row], row);
  if (descending) {
    std::stable_sort(keys.begin(), keys.end(), [](const TextKey& a, const TextKey& b) { return b < a; });
  } else {
    std::stable_sort(keys.begin(), keys.end());
  }
  for (std::size_t place = 0; place < order.size(); ++place) order[place] = keys[place].row;
}

void SortOrder(std::vector<std::size_t>& order, const std::vector<KeyColumn>& columns, bool descending) {
  if (columns.size() == 1 && columns.front().kind == KeyKind::Number)
    return SortByNumber(order, columns.front().numbers, descending);
  if (columns.size() == 1 && columns.front().kind == KeyKind::Text) {
    return SortByText(order, columns.front().texts, descending);
  }
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    for (const KeyColumn& keys : columns) {
      const int result = Compare(keys, a, b);
      if (result != 0) return descending ? result > 0 : result < 0;
    }
    return false;
  });
}

/// Moves each row to its place, round by round of rows that change places with each other. Uses `order` up.
template <class Iterator>
void MoveInto(std::vector<std::size_t>& order, Iterator rows) {
  for (std::size_t start = 0; start < order.size(); ++start) {
    if (order[start] == start) continue;
    auto first = std::move(rows[static_cast<long>(start)]);
    std::size_t place = start;
    while (order[place] != start) {
      const std::size_t from = std::exchange(order[place], place);
      rows[static_cast<long>(place)] = std::move(rows[static_cast<long>(from)]);
      place = from;
    }
    order[place] = place;
    rows[static_cast<long>(place)] = std::move(first);
  }
}

}  // namespace

FlexGrid::RowRange FlexGrid::SortedRows() const {
  const long last = static_cast<long>(rows_.size()) - 1;
  if (row_ == rowSel_) return {fixedRows_, last};
  const auto [top, bottom] = std::minmax(row_, rowSel_);
  return {std::max(top, fixedRows_), std::min(bottom, last)};
}

bool FlexGrid::IsInOrder(long col) const {
  if (col < 0 || col >= Cols()) vb::Raise(vb::kInvalidPropertyIndex, "Subscript out of range");
  if (inOrderBy_ == col) return true;
  for (std::size_t row = static_cast<std::size_t>(fixedRows_) + 1; row < rows_.size(); ++row) {
    if (!InGenericOrder(CellText(rows_[row - 1], col), CellText(rows_[row], col))) return false;
  }
  inOrderBy_ = col;
  return true;
}

void FlexGrid::Sort(GridSort kind) {
  EnsureLoaded();
  if (kind == GridSort::None) return;
  if (kind < GridSort::None || kind > GridSort::TextDescending) vb::Raise(vb::kInvalidPropertyValue);
  const auto [first, last] = SortedRows();
  if (last <= first || columns_.empty()) return;
  const auto count = static_cast<std::size_t>(last - first + 1);
  const auto begin = rows_.begin() + first;

  std::vector<KeyColumn> columns;
  for (long col = std::min(col_, colSel_); col <= std::max(col_, colSel_); ++col) {
    CellTexts cells;
    cells.reserve(count);
    for (auto row = begin; row != begin + static_cast<long>(count); ++row) cells.push_back(&CellText(*row, col));
    columns.push_back(ReadKeys(kind, cells));
  }

  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  SortOrder(order, columns, static_cast<int>(kind) % 2 == 0);

  MoveInto(order, begin);
  ItemsChanged();
}

}  // namespace controls
