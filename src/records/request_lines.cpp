#include "src/records/request_lines.h"

#include <algorithm>
#include <string_view>

#include "base/vb/format.h"
#include "base/vb/number.h"

namespace goods {
namespace {

/// The tag of the item list once lines were changed.
constexpr std::string_view kChanged = "C";

/// A text that is there already is not written again.
void SetCell(controls::ListItem& item, RequestLineColumn column, std::string_view text) {
  if (item.SubItem(column) != text) item.SetSubItem(column, text);
}

void Write(controls::ListItem& item, const RequestLine& line) {
  SetCell(item, kLineItemCode, line.itemCode);
  SetCell(item, kLineItemName, line.itemName);
  SetCell(item, kLineQty, line.quantity);
  SetCell(item, kLineItemId, std::to_string(line.itemId));
  SetCell(item, kLineRemarks, line.remarks);
  SetCell(item, kLineUnit, line.unit);
  SetCell(item, kLinePartCode, line.partCode);
}

}  // namespace

std::string QuantityText(double quantity) {
  return vb::Format(quantity, "#0.000");
}

RequestLine RequestLines::At(int line) const {
  const controls::ListItem& item = list_.Item(line);
  return {item.SubItem(kLineItemCode), item.SubItem(kLineItemName), item.SubItem(kLineQty),     ItemId(line),
          item.SubItem(kLineRemarks),  item.SubItem(kLineUnit),     item.SubItem(kLinePartCode)};
}

std::vector<RequestLine> RequestLines::All() const {
  std::vector<RequestLine> lines;
  lines.reserve(static_cast<std::size_t>(Count()));
  for (int line = 1; line <= Count(); ++line) lines.push_back(At(line));
  return lines;
}

std::int32_t RequestLines::ItemId(int line) const {
  return vb::CLng(vb::Val(list_.Item(line).SubItem(kLineItemId)));
}

int RequestLines::LineOf(std::int32_t itemId) const {
  for (int line = 1; line <= Count(); ++line) {
    if (ItemId(line) == itemId) return line;
  }
  return 0;
}

double RequestLines::Quantity(int line) const {
  return vb::Val(list_.Item(line).SubItem(kLineQty));
}

bool RequestLines::HasQuantity() const {
  for (int line = 1; line <= Count(); ++line) {
    if (Quantity(line) > 0) return true;
  }
  return false;
}

void RequestLines::Append(const RequestLine& line) {
  Write(list_.Add(std::to_string(Count() + 1)), line);
}

void RequestLines::Change(int line, const RequestLine& to) {
  Write(list_.Item(line), to);
}

void RequestLines::SetQuantity(int line, double quantity) {
  list_.Item(line).SetSubItem(kLineQty, QuantityText(quantity));
}

void RequestLines::Remove(int line) {
  list_.Remove(line);
}

void RequestLines::Renumber() {
  for (int line = 1; line <= Count(); ++line) list_.Item(line).SetText(std::to_string(line));
}

void RequestLines::Become(const std::vector<RequestLine>& lines) {
  int place = 1;
  for (auto line = lines.begin(); line != lines.end(); ++line, ++place) {
    const auto comesLater = [&](std::int32_t id) {
      return std::find_if(line, lines.end(), [&](auto& l) { return l.itemId == id; }) != lines.end();
    };
    while (place <= Count() && !comesLater(ItemId(place))) Remove(place);
    const bool isHere = place <= Count() && ItemId(place) == line->itemId;
    Write(isHere ? list_.Item(place) : list_.Insert(place, {}), *line);
  }
  while (Count() >= place) Remove(Count());
  Renumber();
}

void RequestLines::GoTo(int line) {
  list_.Select(line);
  list_.EnsureVisible(line);
}

void RequestLines::MarkChanged(bool changed) {
  list_.SetTag(std::string(changed ? kChanged : ""));
}

bool RequestLines::IsChanged() const {
  return list_.Tag() == kChanged;
}

}  // namespace goods
