#include "base/controls/combo_box.h"

#include <algorithm>

#include "base/controls/control_members.h"
#include "base/controls/edit_text.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace controls {

namespace {
/// The runtime's "'Text' property is read-only": a DropDownList has no such entry.
constexpr long kNoSuchEntry = 383;

int Length(std::string_view text) {
  return static_cast<int>(vb::Len(text));
}
}  // namespace

void ComboBox::AddItem(std::string_view text) {
  AddItem(text, 0);
}

void ComboBox::AddItem(std::string_view text, std::int32_t itemData) {
  Touch();
  entries_.push_back({std::string(text), itemData});
  newIndex_ = static_cast<int>(entries_.size()) - 1;
  Changed(Aspect::Items);
}

void ComboBox::RemoveItem(int index) {
  Touch();
  if (index < 0 || index >= ListCount()) vb::Raise(vb::kInvalidCall);
  entries_.erase(entries_.begin() + index);
  newIndex_ = -1;
  ForgetEdits();
  if (listIndex_ == index) {
    listIndex_ = -1;
    text_.clear();
    selStart_ = selLength_ = 0;
  } else if (listIndex_ > index) {
    --listIndex_;
  }
  Changed(Aspect::Items);
}

void ComboBox::Clear() {
  Touch();
  entries_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  text_.clear();
  selStart_ = selLength_ = 0;
  ForgetEdits();
  Changed(Aspect::Items);
}

int ComboBox::ListCount() const {
  Touch();
  return static_cast<int>(entries_.size());
}

int ComboBox::ListIndex() const {
  Touch();
  return listIndex_;
}

void ComboBox::SetListIndex(int index) {
  Touch();
  if (index < -1 || index >= ListCount()) vb::Raise(vb::kInvalidPropertyValue);
  const bool differs = index != listIndex_;
  Select(index);
  if (differs && index >= 0) Click.Fire();
}

void ComboBox::Select(int index) {
  ForgetEdits();
  listIndex_ = index;
  text_ = index >= 0 ? entries_[static_cast<std::size_t>(index)].text : std::string();
  selStart_ = selLength_ = 0;
  Changed(Aspect::Selection);
}

int ComboBox::NewIndex() const {
  Touch();
  return newIndex_;
}

const ComboBox::Entry& ComboBox::EntryAt(int index) const {
  if (index < 0 || index >= ListCount()) vb::Raise(vb::kInvalidPropertyIndex);
  return entries_[static_cast<std::size_t>(index)];
}

const std::string& ComboBox::List(int index) const {
  return EntryAt(index).text;
}

std::int32_t ComboBox::ItemData(int index) const {
  return EntryAt(index).itemData;
}

void ComboBox::SetItemData(int index, std::int32_t data) {
  EntryAt(index);
  entries_[static_cast<std::size_t>(index)].itemData = data;
}

std::string ComboBox::Text() const {
  Touch();
  return text_;
}

void ComboBox::SetText(std::string_view text) {
  Touch();
  if (style_ == ComboStyle::DropDown) {
    TakeEdited(std::string(text));
    return ForgetEdits();
  }
  for (int index = 0; index < ListCount(); ++index) {
    if (vb::EqualNoCase(List(index), text)) return SetListIndex(index);
  }
  vb::Raise(kNoSuchEntry, "'Text' property is read-only");
}

int ComboBox::SelStart() const {
  Touch();
  return selStart_;
}

int ComboBox::SelLength() const {
  Touch();
  return selLength_;
}

void ComboBox::SetSelStart(int start) {
  Touch();
  if (start < 0) vb::Raise(vb::kInvalidPropertyValue);
  selStart_ = std::min(start, Length(text_));
  selLength_ = 0;
  Changed(Aspect::Selection);
}

void ComboBox::SetSelLength(int length) {
  Touch();
  if (length < 0) vb::Raise(vb::kInvalidPropertyValue);
  selLength_ = std::min(length, Length(text_) - selStart_);
  Changed(Aspect::Selection);
}

void ComboBox::SelectAll() {
  SetSelStart(0);
  SetSelLength(Length(text_));
}

void ComboBox::Pick(int index) {
  EntryAt(index);
  Select(index);
  Click.Fire();
}

void ComboBox::TypeOver(std::string_view text) {
  Touch();
  if (style_ != ComboStyle::DropDown) return;
  const int caret = selStart_ + Length(text);
  Edit(EditHistory::Edit::Typing, Spliced(text_, selStart_, selLength_, text), caret);
}

void ComboBox::EraseBack() {
  Touch();
  if (style_ != ComboStyle::DropDown) return;
  if (selLength_ > 0) return TypeOver("");
  if (selStart_ > 0) Edit(EditHistory::Edit::EraseBack, Spliced(text_, selStart_ - 1, 1, ""), selStart_ - 1);
}

void ComboBox::EraseForward() {
  Touch();
  if (style_ != ComboStyle::DropDown) return;
  if (selLength_ > 0) return TypeOver("");
  Edit(EditHistory::Edit::EraseForward, Spliced(text_, selStart_, 1, ""), selStart_);
}

void ComboBox::TakeEdited(std::string text) {
  Touch();
  if (style_ != ComboStyle::DropDown) return;
  Edit(EditHistory::Edit::Typing, std::move(text), 0);
}

void ComboBox::Edit(EditHistory::Edit edit, std::string text, int caret) {
  if (text == text_) return;
  if (listIndex_ >= 0) editedEntry_ = listIndex_;
  history_.Before(edit, text_, selStart_, selLength_);
  listIndex_ = -1;
  Store(std::move(text), caret, 0);
}

void ComboBox::Store(std::string text, int selStart, int selLength) {
  text_ = std::move(text);
  selStart_ = std::clamp(selStart, 0, Length(text_));
  selLength_ = std::clamp(selLength, 0, Length(text_) - selStart_);
  history_.After(selStart_);
  Changed(Aspect::Text);
  Change.Fire();
}

bool ComboBox::CanUndo() const {
  return style_ == ComboStyle::DropDown && history_.CanUndo();
}

void ComboBox::Undo() {
  Touch();
  if (!CanUndo()) return;
  const EditHistory::State before = history_.Exchange({text_, selStart_, selLength_});
  const bool isEntry = editedEntry_ >= 0 && editedEntry_ < ListCount() && List(editedEntry_) == before.text;
  listIndex_ = isEntry ? editedEntry_ : -1;
  Store(before.text, before.selStart, before.selLength);
  history_.EndRun();
}

void ComboBox::Paste(std::string_view text) {
  Touch();
  if (style_ != ComboStyle::DropDown) return;
  history_.EndRun();
  PasteThroughKeyPress(*this, JoinedLines(text), [this](std::string_view passed) {
    TypeOver(passed);
    return true;
  });
  history_.EndRun();
}

bool ComboBox::PickByLetter(char32_t character) {
  std::string typed;
  vb::AppendCharacter(typed, character);
  const int count = ListCount();
  for (int step = 1; step <= count; ++step) {
    const int index = (listIndex_ + step) % count;
    if (!vb::EqualNoCase(vb::Left(List(index), 1), typed)) continue;
    if (index != listIndex_) Pick(index);
    return true;
  }
  return false;
}

void ComboBox::Reset() {
  Control::Reset();
  style_ = ComboStyle::DropDown;
  entries_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  text_.clear();
  selStart_ = selLength_ = 0;
  ForgetEdits();
}

void ComboBox::ForgetEdits() {
  history_.Forget();
  editedEntry_ = -1;
}

namespace {

late::Value AddByName(ComboBox& self, late::Arguments& arguments) {
  self.AddItem(arguments[0].ToText());
  return {};
}

late::Value RemoveByName(ComboBox& self, late::Arguments& arguments) {
  self.RemoveItem(arguments[0].ToInt32());
  return {};
}

}  // namespace

const Control::LateMember* ComboBox::FindMember(std::string_view name) const {
  using members::Indexed;
  using members::Property;
  using C = ComboBox;
  static const members::MemberList<C, LateMember> list = {
      {"Text", [](C& self, late::Arguments&) { return late::Value(self.Text()); },
       [](C& self, late::Arguments& arguments) { self.SetText(arguments[0].ToText()); }},
      {"", [](C& self, late::Arguments&) { return late::Value(self.Text()); },
       [](C& self, late::Arguments& arguments) { self.SetText(arguments[0].ToText()); }},
      Property<C>("ListIndex", &C::ListIndex, &C::SetListIndex),
      members::ReadOnly<C>("ListCount", &C::ListCount),
      members::ReadOnly<C>("NewIndex", &C::NewIndex),
      Indexed<C>("List", &C::List),
      Indexed<C>("ItemData", &C::ItemData, &C::SetItemData),
      {"AddItem", AddByName, {}, 1, 1},
      {"RemoveItem", RemoveByName, {}, 1, 1},
      members::Method<C>("Clear", &C::Clear),
      members::ReadOnly<C>("Style", &C::Style),
      Property<C>("SelStart", &C::SelStart, &C::SetSelStart),
      Property<C>("SelLength", &C::SelLength, &C::SetSelLength),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Control::FindMember(name);
}

}  // namespace controls
