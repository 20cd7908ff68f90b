#include "platform/text/drawing/canvas.h"

#include <algorithm>
#include <array>

#include "base/vb/text.h"

namespace text {
namespace {

char32_t Printable(char32_t character) {
  return character < U' ' ? U' ' : character;
}

std::string Repeated(std::string_view text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

struct Range {
  char32_t first, last;
};

template <std::size_t n>
bool IsIn(const std::array<Range, n>& ranges, char32_t character) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [&](const Range& range) { return character >= range.first && character <= range.last; });
}

// The blocks that item names are written in; not every character of the standard.
constexpr std::array kWide = {Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},   Range{0x3041, 0x33FF},  Range{0x3400, 0x4DBF},
                              Range{0x4E00, 0x9FFF},   Range{0xA000, 0xA4CF},   Range{0xAC00, 0xD7A3},  Range{0xF900, 0xFAFF},
                              Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6},  Range{0x1F300, 0x1F64F},
                              Range{0x1F680, 0x1F6FF}, Range{0x1F900, 0x1FAFF}, Range{0x20000, 0x3FFFD}};
constexpr std::array kCombining = {Range{0x0300, 0x036F}, Range{0x1AB0, 0x1AFF}, Range{0x1DC0, 0x1DFF}, Range{0x200B, 0x200F},
                                   Range{0x20D0, 0x20FF}, Range{0xFE00, 0xFE0F}, Range{0xFE20, 0xFE2F}};

/// As much of the text as fits into `width` columns.
std::string Cut(std::string_view text, int width) {
  std::string kept;
  for (std::size_t offset = 0; offset < text.size();) {
    const char32_t character = vb::NextCharacter(text, offset);
    width -= ColumnsOf(character);
    if (width < 0) break;
    vb::AppendCharacter(kept, character);
  }
  return kept;
}

}  // namespace

std::vector<Cell>& Canvas::Row(int row, int width) {
  if (static_cast<std::size_t>(row) >= rows_.size()) rows_.resize(static_cast<std::size_t>(row) + 1);
  std::vector<Cell>& cells = rows_[static_cast<std::size_t>(row)];
  if (cells.size() < static_cast<std::size_t>(width)) cells.resize(static_cast<std::size_t>(width));
  return cells;
}

void Canvas::Put(int column, int row, std::string_view text, Looks looks) {
  std::vector<Cell>& cells = Row(row, column);
  auto at = static_cast<std::size_t>(column);
  for (std::size_t offset = 0; offset < text.size();) {
    const char32_t character = Printable(vb::NextCharacter(text, offset));
    const auto width = static_cast<std::size_t>(ColumnsOf(character));
    if (width == 0) continue;
    if (cells.size() < at + width) cells.resize(at + width);
    cells[at] = {character, looks};
    if (width == 2) cells[at + 1] = {kCovered, looks};
    at += width;
  }
}

void Canvas::PutCaption(int column, int row, std::string_view caption, Looks looks) {
  Put(column, row, PlainCaption(caption), looks);
  for (std::size_t mark = caption.find('&'); mark != std::string_view::npos; mark = caption.find('&', mark + 2)) {
    if (mark + 1 >= caption.size() || caption[mark + 1] == '&') continue;
    AddLooks(column + Length(PlainCaption(caption.substr(0, mark))), row, 1, kUnderlined);
    return;
  }
}

void Canvas::AddLooks(int column, int row, int width, Looks looks) {
  std::vector<Cell>& cells = Row(row, column + width);
  for (int x = column; x < column + width; ++x) cells[static_cast<std::size_t>(x)].looks |= looks;
}

void Canvas::TakeSpots(int column, int row, const Canvas& sheet) {
  for (Spot spot : sheet.spots_) {
    spot.x += column;
    spot.y += row;
    spots_.push_back(spot);
  }
  if (sheet.caret_) caret_ = Point{sheet.caret_->x + column, sheet.caret_->y + row};
}

void Canvas::Paste(int column, int row, const Canvas& sheet) {
  for (int y = 0; y < sheet.Height(); ++y) {
    const std::vector<Cell>& from = sheet.rows_[static_cast<std::size_t>(y)];
    std::vector<Cell>& cells = Row(row + y, column + static_cast<int>(from.size()));
    for (std::size_t x = 0; x < from.size(); ++x) {
      if (from[x] != Cell{}) cells[static_cast<std::size_t>(column) + x] = from[x];
    }
  }
  TakeSpots(column, row, sheet);
}

void Canvas::Cover(int column, int row, const Canvas& sheet) {
  const int width = sheet.Width();
  for (int y = 0; y < sheet.Height(); ++y) {
    std::vector<Cell>& cells = Row(row + y, column + width);
    for (int x = 0; x < width; ++x) cells[static_cast<std::size_t>(column) + static_cast<std::size_t>(x)] = sheet.At(x, y);
  }
  std::erase_if(spots_, [&](const Spot& spot) {
    return spot.x >= column && spot.x + spot.width <= column + width && spot.y >= row &&
           spot.y + spot.height <= row + sheet.Height();
  });
  TakeSpots(column, row, sheet);
}

Canvas Canvas::Part(int column, int row, int width, int height) const {
  Canvas part;
  for (int y = 0; y < std::min(height, Height() - row); ++y) {
    const std::vector<Cell>& from = rows_[static_cast<std::size_t>(row) + static_cast<std::size_t>(y)];
    const int end = std::min(static_cast<int>(from.size()), column + width);
    std::vector<Cell>& cells = part.Row(y, 0);
    if (end > column) cells.assign(from.begin() + column, from.begin() + end);
  }
  for (Spot spot : spots_) {
    spot.x -= column;
    spot.y -= row;
    if (spot.x + spot.width > 0 && spot.y + spot.height > 0 && spot.x < width && spot.y < height) part.spots_.push_back(spot);
  }
  if (caret_) part.caret_ = Point{caret_->x - column, caret_->y - row};
  return part;
}

void Canvas::Box(int column, int row, int width, int height, std::string_view title, std::string_view note) {
  const int inside = width - 2;
  const auto edge = [&](std::string_view left, std::string_view text, std::string_view right) {
    std::string line(left);
    if (!text.empty() && inside > 3) {
      const std::string shown = Fit(text, std::min(Length(text), inside - 3));
      line.append("─ ").append(shown).append(" ").append(Repeated("─", inside - 3 - Length(shown)));
    } else {
      line.append(Repeated("─", inside));
    }
    return line.append(right);
  };
  Put(column, row, edge("┌", title, "┐"));
  for (int y = 1; y < height - 1; ++y) {
    Put(column, row + y, "│");
    Put(column + width - 1, row + y, "│");
  }
  Put(column, row + height - 1, edge("└", note, "┘"));
}

const Spot* Canvas::SpotAt(int column, int row) const {
  const auto found = std::find_if(spots_.rbegin(), spots_.rend(), [&](const Spot& spot) { return spot.Holds(column, row); });
  return found == spots_.rend() ? nullptr : &*found;
}

int Canvas::Width() const {
  std::size_t width = 0;
  for (const auto& cells : rows_) width = std::max(width, cells.size());
  return static_cast<int>(width);
}

Cell Canvas::At(int column, int row) const {
  if (column < 0 || row < 0 || row >= Height()) return {};
  const std::vector<Cell>& cells = rows_[static_cast<std::size_t>(row)];
  return static_cast<std::size_t>(column) < cells.size() ? cells[static_cast<std::size_t>(column)] : Cell{};
}

std::vector<std::string> Canvas::Lines() const {
  std::vector<std::string> lines;
  for (const auto& cells : rows_) {
    std::string line;
    std::size_t end = cells.size();
    while (end > 0 && cells[end - 1].character == U' ') --end;
    for (std::size_t x = 0; x < end; ++x) {
      if (cells[x].character != kCovered) vb::AppendCharacter(line, cells[x].character);
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

std::string PlainCaption(std::string_view caption) {
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    plain += caption[i];
  }
  return plain;
}

int ColumnsOf(char32_t character) {
  if (character < 0x300) return 1;
  if (IsIn(kCombining, character)) return 0;
  return IsIn(kWide, character) ? 2 : 1;
}

int Length(std::string_view text) {
  int length = 0;
  for (std::size_t offset = 0; offset < text.size();) length += ColumnsOf(vb::NextCharacter(text, offset));
  return length;
}

std::string Fit(std::string_view text, int width, Align align) {
  if (width <= 0) return {};
  std::string shown;
  for (std::size_t offset = 0; offset < text.size();) vb::AppendCharacter(shown, Printable(vb::NextCharacter(text, offset)));
  if (Length(shown) > width) shown = Cut(shown, width - 1) + "…";
  const int room = width - Length(shown);
  const int before = align == Align::Left ? 0 : align == Align::Right ? room : room / 2;
  return vb::Space(before) + shown + vb::Space(room - before);
}

std::vector<std::string> Wrapped(std::string_view text, int width) {
  std::vector<std::string> lines;
  for (const std::string& paragraph : vb::Split(vb::Replace(vb::Replace(text, "\r\n", "\n"), "\r", "\n"), "\n")) {
    std::string line;
    for (const std::string& word : vb::Split(paragraph, " ")) {
      if (!line.empty() && Length(line) + 1 + Length(word) > width) {
        lines.push_back(std::move(line));
        line.clear();
      }
      if (!line.empty()) line += ' ';
      line += word;
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace text
