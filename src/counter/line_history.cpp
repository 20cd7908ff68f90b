#include "src/counter/line_history.h"

#include <algorithm>
#include <cmath>

#include "src/records/request_lines.h"

namespace goods {
namespace {

using Lines = LineHistory::Lines;

constexpr std::size_t kMostChanges = 8;
constexpr double kNothing = 0.0005;  // base units: less than the three decimals of a quantity

template <class AnyLines>
auto FindItem(AnyLines& lines, std::int32_t itemId) {
  return std::ranges::find(lines, itemId, &RequestLine::itemId);
}

/// The lines of `lines` that `others` has not, or has otherwise.
Lines DifferentIn(const Lines& lines, const Lines& others) {
  Lines different;
  std::ranges::copy_if(lines, std::back_inserter(different),
                       [&](const RequestLine& line) { return std::ranges::find(others, line) == others.end(); });
  return different;
}

std::string ToTell(const Lines& before, const Lines& after) {
  const Lines from = DifferentIn(after, before);
  const Lines to = DifferentIn(before, after);
  const auto one = [](std::string_view what, const RequestLine& line) {
    return std::string(what) + line.itemCode + " " + line.itemName + ", " + line.quantity;
  };
  if (from.size() == 1 && to.empty()) return one("Taken out again: ", from.front());
  if (from.empty() && to.size() == 1) return one("Back again: ", to.front());
  if (from.size() == 1 && to.size() == 1 && from.front().itemId == to.front().itemId) return one("As before: ", to.front());
  return "Taken back: " + std::to_string(std::max(from.size(), to.size())) + " lines";
}

/// Adds to the quantity of the item's line; a line that comes to nothing goes.
void AddQuantity(Lines& lines, std::int32_t itemId, double quantity) {
  const auto line = FindItem(lines, itemId);
  if (line == lines.end()) return;
  const double sum = line->Quantity() + quantity;
  if (std::abs(sum) < kNothing) {
    lines.erase(line);
  } else {
    line->quantity = QuantityText(sum);
  }
}

/// Takes a change out of lines that were changed once more since: quantities are what is added and taken off.
void TakeOut(const Lines& before, const Lines& after, Lines& lines) {
  for (const RequestLine& line : DifferentIn(after, before)) {
    const auto earlier = FindItem(before, line.itemId);
    AddQuantity(lines, line.itemId, (earlier == before.end() ? 0 : earlier->Quantity()) - line.Quantity());
  }
  for (std::size_t place = 0; place < before.size(); ++place) {
    const RequestLine& line = before[place];
    if (FindItem(after, line.itemId) != after.end()) continue;
    if (FindItem(lines, line.itemId) != lines.end()) {
      AddQuantity(lines, line.itemId, line.Quantity());
    } else {
      lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(std::min(place, lines.size())), line);
    }
  }
}

}  // namespace

void LineHistory::Start(Lines lines) {
  lines_ = std::move(lines);
  changes_.clear();
}

void LineHistory::NoteChange(Lines lines) {
  if (lines == lines_) return;
  changes_.push_back({std::move(lines_), lines});
  if (changes_.size() > kMostChanges) changes_.pop_front();
  lines_ = std::move(lines);
}

std::optional<LineHistory::TakenBack> LineHistory::TakeBack() {
  if (changes_.empty()) return std::nullopt;
  const Change change = std::move(changes_.back());
  changes_.pop_back();
  if (lines_ == change.after) {
    lines_ = change.before;
  } else {
    TakeOut(change.before, change.after, lines_);
  }
  return TakenBack{lines_, ToTell(change.before, change.after)};
}

}  // namespace goods
