#include "tests/platform/terminal/picture.h"

#include <algorithm>

#include "base/vb/text.h"

namespace live {
namespace {

std::u32string Wide(const std::string& text) {
  std::u32string wide;
  for (std::size_t offset = 0; offset < text.size();) wide += vb::NextCharacter(text, offset);
  return wide;
}

std::string Narrow(const std::u32string& text) {
  std::string narrow;
  for (const char32_t character : text) vb::AppendCharacter(narrow, character);
  return narrow;
}

constexpr std::size_t kNone = std::u32string::npos;

}  // namespace

std::optional<Picture> Picture::Find(const std::vector<std::string>& screen, const std::string& title) {
  std::vector<Line> lines;
  lines.reserve(screen.size());
  for (const std::string& line : screen) lines.push_back(Wide(line));
  for (std::size_t y = 0; y < lines.size(); ++y) {
    std::size_t x = kNone;
    for (const char32_t* after : {U" ─", U" ┐", U" - scanning ─"}) x = std::min(x, lines[y].find(U"┌─ " + Wide(title) + after));
    if (x == kNone) continue;
    const std::size_t right = lines[y].find(U'┐', x);
    Picture found;
    found.x_ = static_cast<int>(x) + 1;
    found.y_ = static_cast<int>(y) + 1;
    for (std::size_t row = y + 1; row < lines.size() && lines[row].size() > x; ++row) {
      if (lines[row][x] == U'└') return right == kNone ? std::nullopt : std::optional(found);
      found.lines_.push_back(lines[row].substr(x + 1, right - x - 1));
    }
  }
  return std::nullopt;
}

std::optional<std::size_t> Picture::HeadingLine() const {
  for (std::size_t y = 0; y + 1 < lines_.size(); ++y) {
    if (lines_[y + 1].find(U"─┼─") != kNone) return y;
  }
  return std::nullopt;
}

bool Picture::HasFocusAt(const std::string& place) const {
  if (place == "list") {
    const auto heading = HeadingLine();
    return heading && lines_[*heading].find(U'»') < lines_[*heading].find(U'│', 3);
  }
  const Line wide = Wide(place);
  for (std::size_t y = 0; y < lines_.size(); ++y) {
    const Line& line = lines_[y];
    if (const std::size_t at = line.find(wide); at != kNone) {
      const std::size_t next = line.find_first_not_of(U' ', at + wide.size());
      if (next != kNone && line.substr(next, 2) == U"»[") return true;
      // The box may also be below its label.
      if (y + 1 < lines_.size() && lines_[y + 1].find(U"»[", at) <= at + 1) return true;
    }
    for (const char32_t* button : {U"»< ", U"»(o) ", U"»( ) ", U"»[x] ", U"»[ ] "}) {
      if (line.find(button + wide) != kNone) return true;
    }
  }
  return false;
}

/// A field's text without its brackets and the arrow of a drop-down list.
std::optional<std::string> Picture::FieldAt(std::size_t line, std::size_t from) const {
  const std::size_t open = lines_[line].find(U'[', from);
  const std::size_t close = lines_[line].find(U']', from);
  if (open == kNone || close == kNone) return std::nullopt;
  std::string text = Narrow(lines_[line].substr(open + 1, close - open - 1));
  if (text.ends_with(" v")) text.resize(text.size() - 2);
  return vb::Trim(text).empty() ? "" : std::string(vb::Trim(text));
}

std::optional<std::string> Picture::Focused() const {
  for (std::size_t y = 0; y < lines_.size(); ++y) {
    if (const std::size_t mark = lines_[y].find(U"»["); mark != kNone) return FieldAt(y, mark);
  }
  return std::nullopt;
}

std::optional<std::string> Picture::After(const std::string& label) const {
  for (std::size_t y = 0; y < lines_.size(); ++y) {
    if (const std::size_t at = lines_[y].find(Wide(label)); at != kNone) return FieldAt(y, at + Wide(label).size());
  }
  return std::nullopt;
}

bool Picture::HasSelected(const std::string& cell) const {
  return std::any_of(lines_.begin(), lines_.end(), [&](const Line& line) {
    const std::size_t mark = line.find(U" >");
    return mark < line.find(U'│', 3) && line.find(Wide(cell)) != kNone;
  });
}

int Picture::RowCount() const {
  const auto heading = HeadingLine();
  if (!heading) return -1;
  int rows = 0;
  for (std::size_t y = *heading + 2; y < lines_.size() && lines_[y].find(U" │ ") != kNone; ++y) ++rows;
  return rows;
}

bool Picture::HasInFront(const std::string& page) const {
  const Line bracketed = Wide("[" + page + "]");
  return std::any_of(lines_.begin(), lines_.end(), [&](const Line& line) { return line.find(bracketed) != kNone; });
}

std::string Picture::Message() const {
  std::string message;
  for (std::size_t y = 0; y + 1 < lines_.size(); ++y) {
    const std::string line = Narrow(lines_[y]);
    message += (y == 0 ? "" : " ") + std::string(vb::RTrim(line.substr(std::min<std::size_t>(line.size(), 1))));
  }
  return message;
}

std::optional<Picture::Place> Picture::PlaceAfter(const std::string& label) const {
  for (std::size_t y = 0; y < lines_.size(); ++y) {
    const std::size_t at = lines_[y].find(Wide(label));
    const std::size_t open = at == kNone ? kNone : lines_[y].find(U'[', at + Wide(label).size());
    if (open != kNone) return Place{x_ + static_cast<int>(open) + 1, y_ + static_cast<int>(y)};
  }
  return std::nullopt;
}

std::optional<Picture::Place> Picture::PlaceOfList() const {
  const auto heading = HeadingLine();
  if (!heading) return std::nullopt;
  std::size_t row = *heading + 2;
  for (std::size_t y = row; y < lines_.size(); ++y) {
    if (const std::size_t mark = lines_[y].find(U" >"); mark < 6) row = y;
  }
  return Place{x_ + 8, y_ + static_cast<int>(row)};
}

std::optional<Picture::Place> Picture::PlaceOf(const std::string& text) const {
  for (std::size_t y = 0; y < lines_.size(); ++y) {
    if (const std::size_t at = lines_[y].find(Wide(text)); at != kNone) {
      return Place{x_ + static_cast<int>(at), y_ + static_cast<int>(y)};
    }
  }
  return std::nullopt;
}

bool Picture::IsDropDown(const Place& place) const {
  const Line& line = lines_[static_cast<std::size_t>(place.y - y_)];
  const std::size_t close = line.find(U']', static_cast<std::size_t>(place.x - x_));
  return close != kNone && close >= 2 && line.substr(close - 2, 2) == U" v";
}

}  // namespace live
