#include "base/controls/list_view.h"

#include <algorithm>

#include "base/controls/form.h"
#include "base/controls/keys.h"
#include "base/controls/pulled_column.h"
#include "base/vb/error.h"

namespace controls {

namespace {

constexpr long kIndexOutOfBounds = 35600;

[[noreturn]] void RaiseIndex() {
  vb::Raise(kIndexOutOfBounds, "Index out of bounds");
}

const std::string& TextAt(const std::vector<std::string>& texts, int index) {
  static const std::string none;
  const auto place = static_cast<std::size_t>(index - 1);
  return place < texts.size() ? texts[place] : none;
}

void SetTextAt(std::vector<std::string>& texts, int index, std::string_view text) {
  const auto place = static_cast<std::size_t>(index - 1);
  if (place >= texts.size()) texts.resize(place + 1);
  texts[place] = text;
}

}  // namespace

void ListItem::CheckIndex(int index) const {
  if (index < 1 || index >= list_->ColumnCount()) vb::Raise(vb::kInvalidPropertyValue);
}

void ListItem::SetText(std::string_view text) {
  text_ = text;
  list_->Changed(Aspect::Items);
}

const std::string& ListItem::SubItem(int index) const {
  CheckIndex(index);
  return TextAt(subItems_, index);
}

void ListItem::SetSubItem(int index, std::string_view text) {
  CheckIndex(index);
  SetTextAt(subItems_, index, text);
  list_->Changed(Aspect::Items);
}

Color ListItem::CellForeColor(int column) const {
  const auto place = static_cast<std::size_t>(column);
  return place < colors_.size() ? colors_[place] : kDefaultColor;
}

void ListItem::SetCellForeColor(int column, Color color) {
  if (CellForeColor(column) == color) return;
  if (column != 0) CheckIndex(column);
  colors_.resize(static_cast<std::size_t>(list_->ColumnCount()), kDefaultColor);
  colors_[static_cast<std::size_t>(column)] = color;
  list_->Changed(Aspect::Items);
}

void ListItem::SetForeColor(Color color) {
  for (int column = 0; column < list_->ColumnCount(); ++column) SetCellForeColor(column, color);
}

const std::string& ListItem::SubItemToolTip(int index) const {
  CheckIndex(index);
  return TextAt(toolTips_, index);
}

void ListItem::SetSubItemToolTip(int index, std::string_view text) {
  CheckIndex(index);
  SetTextAt(toolTips_, index, text);
}

void ListItem::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  list_->Changed(Aspect::Items);
}

void ListView::CheckLine(int index) const {
  if (index < 1 || index > Count()) RaiseIndex();
}

void ListView::CheckColumn(int index) const {
  if (index < 1 || index > ColumnCount()) RaiseIndex();
}

void ListView::AddColumn(std::string_view text, int width, ColumnAlignment alignment) {
  EnsureLoaded();
  columns_.push_back({std::string(text), width, alignment});
  Changed(Aspect::Layout);
}

int ListView::ColumnCount() const {
  EnsureLoaded();
  return static_cast<int>(columns_.size());
}

const ColumnHeader& ListView::Column(int index) const {
  CheckColumn(index);
  return columns_[static_cast<std::size_t>(index) - 1];
}

void ListView::SetColumnWidth(int index, int width) {
  CheckColumn(index);
  columns_[static_cast<std::size_t>(index) - 1].width = width;
  Changed(Aspect::Layout);
}

void ListView::PullColumn(int index, int width) {
  SetColumnWidth(index, Column(index).width == 0 ? 0 : PulledWidth(width));
}

void ListView::SetColumnAlignment(int index, ColumnAlignment alignment) {
  CheckColumn(index);
  if (alignment < ColumnAlignment::Left || alignment > ColumnAlignment::Center) vb::Raise(vb::kInvalidPropertyValue);
  columns_[static_cast<std::size_t>(index) - 1].alignment = alignment;
  Changed(Aspect::Layout);
}

void ListView::SetColumnText(int index, std::string_view text) {
  CheckColumn(index);
  columns_[static_cast<std::size_t>(index) - 1].text = text;
  Changed(Aspect::Layout);
}

void ListView::SetCheckBoxes(bool checkBoxes) {
  EnsureLoaded();
  checkBoxes_ = checkBoxes;
  Changed(Aspect::Layout);
}

int ListView::Count() const {
  EnsureLoaded();
  return static_cast<int>(items_.size());
}

ListItem& ListView::Item(int index) {
  CheckLine(index);
  return *items_[static_cast<std::size_t>(index) - 1];
}

const ListItem& ListView::Item(int index) const {
  CheckLine(index);
  return *items_[static_cast<std::size_t>(index) - 1];
}

std::shared_ptr<ListItem> ListView::SharedItem(int index) const {
  CheckLine(index);
  return items_[static_cast<std::size_t>(index) - 1];
}

int ListView::IndexOf(const ListItem& item) const {
  const auto place = std::find_if(items_.begin(), items_.end(), [&](const auto& held) { return held.get() == &item; });
  return place == items_.end() ? 0 : static_cast<int>(place - items_.begin()) + 1;
}

ListItem& ListView::Add(std::string_view text) {
  return Insert(Count() + 1, text);
}

ListItem& ListView::Insert(int index, std::string_view text) {
  if (index < 1 || index > Count() + 1) RaiseIndex();
  auto item = std::make_shared<ListItem>(*this);
  ListItem& line = *item;
  items_.insert(items_.begin() + (index - 1), std::move(item));
  if (items_.size() == 1) {
    selected_ = 1;
  } else if (selected_ >= index) {
    ++selected_;
  }
  line.SetText(text);
  return line;
}

void ListView::Remove(int index) {
  CheckLine(index);
  items_.erase(items_.begin() + (index - 1));
  // The next line becomes the selected one, the last when there is none after it.
  if (selected_ > index) --selected_;
  selected_ = std::min(selected_, static_cast<int>(items_.size()));
  visibleLine_ = std::clamp(visibleLine_, 1, std::max(1, static_cast<int>(items_.size())));
  Changed(Aspect::Items);
}

void ListView::Clear() {
  EnsureLoaded();
  items_.clear();
  selected_ = 0;
  visibleLine_ = 1;
  Changed(Aspect::Items);
}

int ListView::SelectedItem() const {
  EnsureLoaded();
  return selected_;
}

void ListView::Select(int index) {
  if (index != 0) CheckLine(index);
  allSelected_ = false;
  selected_ = index;
  Changed(Aspect::Selection);
}

void ListView::EnsureVisible(int index) {
  CheckLine(index);
  visibleLine_ = index;
  Changed(Aspect::Selection);
}

void ListView::ClickItem(int index) {
  Select(index);
  const std::shared_ptr<ListItem> line = SharedItem(index);
  ItemClick.Fire(*line);
  if (Owner().IsLoaded()) Click.Fire();
}

void ListView::MoveMouse(int index, int column) {
  CheckLine(index);
  CheckColumn(column);
  mouseLine_ = index;
  mouseColumn_ = column;
  MouseMove.Fire();
}

const std::string& ListView::ToolTipAt(int index, int column) const {
  CheckColumn(column);
  if (column == 1) return ToolTipText();
  const std::string& tip = Item(index).SubItemToolTip(column - 1);
  return tip.empty() ? ToolTipText() : tip;
}

const std::string& ListView::ToolTipUnderMouse() const {
  const bool isOverCell = mouseLine_ >= 1 && mouseLine_ <= Count() && mouseColumn_ <= ColumnCount();
  return isOverCell ? ToolTipAt(mouseLine_, mouseColumn_) : ToolTipText();
}

void ListView::MoveTo(int index) {
  CheckLine(index);
  if (selected_ == index) return;
  Select(index);
  EnsureVisible(index);
  const std::shared_ptr<ListItem> line = SharedItem(index);
  ItemClick.Fire(*line);
}

bool ListView::NavigationKey(int keyCode) {
  const auto page = [this] { return static_cast<int>(Owner().Desktop().RowsShown(*this)); };
  int target = selected_;
  switch (keyCode) {
    case kKeyUp:
      target -= 1;
      break;
    case kKeyDown:
      target += 1;
      break;
    case kKeyPageUp:
      target -= page();
      break;
    case kKeyPageDown:
      target += page();
      break;
    case kKeyHome:
      target = 1;
      break;
    case kKeyEnd:
      target = Count();
      break;
    default:
      return false;
  }
  if (Count() > 0) MoveTo(std::clamp(target, 1, Count()));
  return true;
}

void ListView::OnKey(int keyCode, int shift) {
  const bool isCtrl = shift == kCtrl;
  if (isCtrl && keyCode == 'A') {
    allSelected_ = true;
  } else if (isCtrl && keyCode == 'C') {
    Copy();
  } else if (isCtrl && keyCode == 'V') {
    Pasted.Fire(Owner().Desktop().ClipboardText());
  } else {
    NavigationKey(keyCode);
  }
}

void ListView::Copy() const {
  if (selected_ == 0 && !allSelected_) return;
  TableText table;
  for (const ColumnHeader& column : columns_) {
    if (column.width != 0) table.AddCell(column.text);
  }
  table.EndRow();
  const int first = allSelected_ ? 1 : selected_;
  const int last = allSelected_ ? Count() : selected_;
  for (int line = first; line <= last; ++line) CopyLine(Item(line), table);
  Owner().Desktop().PutOnClipboard(table.Text());
}

void ListView::CopyLine(const ListItem& line, TableText& table) const {
  for (int column = 1; column <= ColumnCount(); ++column) {
    if (Column(column).width != 0) table.AddCell(column == 1 ? line.Text() : line.SubItem(column - 1));
  }
  table.EndRow();
}

void ListView::OnCharacter(int character) {
  if (character != kKeySpace || !checkBoxes_) return;
  if (const int line = SelectedItem(); line > 0) CheckItem(line, !Item(line).Checked());
}

void ListView::CheckItem(int index, bool checked) {
  const std::shared_ptr<ListItem> line = SharedItem(index);
  line->SetChecked(checked);
  ItemCheck.Fire(*line);
}

void ListView::Reset() {
  Control::Reset();
  columns_.clear();
  items_.clear();
  checkBoxes_ = allSelected_ = false;
  selected_ = 0;
  visibleLine_ = 1;
  mouseLine_ = mouseColumn_ = 0;
}

}  // namespace controls
