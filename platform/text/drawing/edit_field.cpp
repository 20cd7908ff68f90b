#include "platform/text/drawing/edit_field.h"

#include <algorithm>

#include "base/vb/text.h"

namespace text {
namespace {

constexpr int kMinBoxWidth = 4;

int FieldWidth(int columns, std::string_view tail) {
  return std::max(columns - 3 - Length(tail), kMinBoxWidth);
}

std::u32string Characters(std::string_view text) {
  std::u32string characters;
  for (std::size_t offset = 0; offset < text.size();) characters += vb::NextCharacter(text, offset);
  return characters;
}

int WidthOf(std::u32string_view characters) {
  int width = 0;
  for (const char32_t character : characters) width += ColumnsOf(character);
  return width;
}

std::string Utf8(std::u32string_view characters) {
  std::string text;
  for (const char32_t character : characters) vb::AppendCharacter(text, character);
  return text;
}

/// How many characters from `start` fit into a row.
std::size_t RowLength(std::u32string_view rest, int width) {
  std::size_t fits = 0;
  while (fits < rest.size() && rest[fits] != U'\r' && rest[fits] != U'\n' && WidthOf(rest.substr(0, fits + 1)) <= width) ++fits;
  if (fits == rest.size() || rest[fits] == U'\r' || rest[fits] == U'\n') return fits;
  const std::size_t blank = rest.substr(0, fits).rfind(U' ');
  return blank == std::u32string_view::npos ? std::max<std::size_t>(fits, 1) : blank + 1;
}

/// The one row of a single-line box: the part around the caret.
TextRow PartAround(const std::u32string& all, int caret, int width) {
  TextRow row;
  auto start = static_cast<std::size_t>(0);
  const auto end = static_cast<std::size_t>(caret);
  while (start < end && WidthOf(std::u32string_view(all).substr(start, end - start)) >= width) ++start;
  std::size_t length = 0;
  while (start + length < all.size() && WidthOf(std::u32string_view(all).substr(start, length + 1)) <= width) ++length;
  row.start = static_cast<int>(start);
  row.text = all.substr(start, length);
  return row;
}

std::size_t RowWith(const std::vector<TextRow>& rows, int caret) {
  std::size_t row = 0;
  while (row + 1 < rows.size() && rows[row + 1].start <= caret) ++row;
  return row;
}

}  // namespace

std::vector<TextRow> RowsOf(std::string_view text, int width) {
  const std::u32string all = Characters(text);
  std::vector<TextRow> rows;
  std::size_t start = 0;
  while (true) {
    const std::size_t length = RowLength(std::u32string_view(all).substr(start), width);
    rows.push_back({static_cast<int>(start), all.substr(start, length)});
    start += length;
    if (start >= all.size()) return rows;
    const bool lineEnds = all[start] == U'\r' || all[start] == U'\n';
    if (!lineEnds) continue;
    start += all[start] == U'\r' && start + 1 < all.size() && all[start + 1] == U'\n' ? 2 : 1;
    if (start == all.size()) {
      rows.push_back({static_cast<int>(start), {}});
      return rows;
    }
  }
}

std::string EditField(std::string_view text, int columns, std::string_view tail, Align align) {
  return '[' + Fit(text, FieldWidth(columns, tail), align) + std::string(tail) + ']';
}

Canvas DrawEditing(controls::TextEntry& entry, int columns, int rows, std::string_view tail) {
  const int width = FieldWidth(columns, tail);
  const int selectionStart = entry.SelStart();
  const int caret = selectionStart + entry.SelLength();
  std::vector<TextRow> shown;
  std::size_t first = 0;
  if (rows == 1) {
    shown.push_back(PartAround(Characters(entry.Text()), caret, width));
  } else {
    shown = RowsOf(entry.Text(), width);
    const std::size_t current = RowWith(shown, caret);
    first = current < static_cast<std::size_t>(rows) ? 0 : current - static_cast<std::size_t>(rows) + 1;
  }
  Canvas sheet;
  for (int y = 0; y < rows; ++y) {
    const std::size_t index = first + static_cast<std::size_t>(y);
    const TextRow row = index < shown.size() ? shown[index] : TextRow{static_cast<int>(vb::Len(entry.Text())), {}};
    sheet.Put(0, y, EditField(Utf8(row.text), columns, tail));
    const auto columnOf = [&](int position) {
      const auto inRow = static_cast<std::size_t>(std::clamp(position - row.start, 0, static_cast<int>(row.text.size())));
      return 1 + std::min(WidthOf(std::u32string_view(row.text).substr(0, inRow)), width - 1);
    };
    const int from = columnOf(selectionStart);
    const int to = columnOf(caret);
    sheet.Mark({.control = &entry, .part = Spot::Part::Text, .index = row.start, .x = 1, .y = y, .width = width});
    if (entry.SelLength() > 0 && to > from) sheet.AddLooks(from, y, to - from, kChosen);
    if (index < shown.size() && index == RowWith(shown, caret)) sheet.SetCaret({to, y});
  }
  return sheet;
}

}  // namespace text
