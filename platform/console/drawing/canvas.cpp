#include "platform/console/drawing/canvas.h"

#include <algorithm>

#include "base/vb/text.h"

namespace console {
namespace {

char32_t Printable(char32_t character) {
  return character < U' ' ? U' ' : character;
}

std::string Repeated(std::string_view text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

}  // namespace

void Canvas::Put(int column, int row, std::string_view text) {
  if (static_cast<std::size_t>(row) >= rows_.size()) rows_.resize(static_cast<std::size_t>(row) + 1);
  std::u32string& cells = rows_[static_cast<std::size_t>(row)];
  auto at = static_cast<std::size_t>(column);
  for (std::size_t offset = 0; offset < text.size(); ++at) {
    if (cells.size() <= at) cells.resize(at + 1, U' ');
    cells[at] = Printable(vb::NextCharacter(text, offset));
  }
}

void Canvas::Paste(int column, int row, const Canvas& sheet) {
  for (std::size_t y = 0; y < sheet.rows_.size(); ++y) {
    const std::size_t target = static_cast<std::size_t>(row) + y;
    if (rows_.size() <= target) rows_.resize(target + 1);
    std::u32string& cells = rows_[target];
    for (std::size_t x = 0; x < sheet.rows_[y].size(); ++x) {
      const std::size_t at = static_cast<std::size_t>(column) + x;
      if (cells.size() <= at) cells.resize(at + 1, U' ');
      if (sheet.rows_[y][x] != U' ') cells[at] = sheet.rows_[y][x];
    }
  }
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

int Canvas::Width() const {
  std::size_t width = 0;
  for (const auto& cells : rows_) width = std::max(width, cells.size());
  return static_cast<int>(width);
}

std::vector<std::string> Canvas::Lines() const {
  std::vector<std::string> lines;
  for (const auto& cells : rows_) {
    std::string line;
    const std::size_t last = cells.find_last_not_of(U' ');
    for (std::size_t i = 0; last != std::u32string::npos && i <= last; ++i) vb::AppendCharacter(line, cells[i]);
    lines.push_back(std::move(line));
  }
  return lines;
}

int Length(std::string_view text) {
  return static_cast<int>(vb::Len(text));
}

std::string Fit(std::string_view text, int width, Align align) {
  if (width <= 0) return {};
  std::string shown;
  for (std::size_t offset = 0; offset < text.size();) vb::AppendCharacter(shown, Printable(vb::NextCharacter(text, offset)));
  const int length = Length(shown);
  if (length > width) return vb::Left(shown, width - 1) + "…";
  const int before = align == Align::Left ? 0 : align == Align::Right ? width - length : (width - length) / 2;
  return vb::Space(before) + shown + vb::Space(width - length - before);
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

}  // namespace console
