#include "base/controls/combo_box.h"

#include <algorithm>

#include "base/controls/control_members.h"
#include "base/controls/keys.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace controls {

namespace {
/// The runtime's "'Text' property is read-only": a DropDownList has no such entry.
constexpr long kNoSuchEntry = 383;
}  // namespace

void ComboBox::AddItem(std::string_view text) {
  AddItem(text, 0);
}

void ComboBox::AddItem(std::string_view text, std::int32_t itemData) {
  EnsureLoaded();
  entries_.push_back({std::string(text), itemData});
  newIndex_ = static_cast<int>(entries_.size()) - 1;
  Changed(Aspect::Items);
}

void ComboBox::RemoveItem(int index) {
  EnsureLoaded();
  if (index < 0 || index >= ListCount()) vb::Raise(vb::kInvalidCall);
  entries_.erase(entries_.begin() + index);
  newIndex_ = -1;
  ForgetEdits();
  if (listIndex_ == index) {
    listIndex_ = -1;
    PutText({});
  } else if (listIndex_ > index) {
    --listIndex_;
  }
  Changed(Aspect::Items);
}

void ComboBox::Clear() {
  EnsureLoaded();
  entries_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  PutText({});
  Changed(Aspect::Items);
}

int ComboBox::ListCount() const {
  EnsureLoaded();
  return static_cast<int>(entries_.size());
}

int ComboBox::ListIndex() const {
  EnsureLoaded();
  return listIndex_;
}

void ComboBox::SetListIndex(int index) {
  EnsureLoaded();
  if (index < -1 || index >= ListCount()) vb::Raise(vb::kInvalidPropertyValue);
  const bool differs = index != listIndex_;
  Select(index);
  if (differs && index >= 0) Click.Fire();
}

void ComboBox::Select(int index) {
  listIndex_ = index;
  PutText(index >= 0 ? entries_[static_cast<std::size_t>(index)].text : std::string());
  Changed(Aspect::Selection);
}

int ComboBox::NewIndex() const {
  EnsureLoaded();
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

void ComboBox::SetText(std::string_view text) {
  EnsureLoaded();
  if (style_ == ComboStyle::DropDown) {
    TakeEdited(std::string(text));
    return ForgetEdits();
  }
  for (int index = 0; index < ListCount(); ++index) {
    if (vb::EqualNoCase(List(index), text)) return SetListIndex(index);
  }
  vb::Raise(kNoSuchEntry, "'Text' property is read-only");
}

void ComboBox::Pick(int index) {
  EntryAt(index);
  Select(index);
  Click.Fire();
}

void ComboBox::TakeEdited(std::string text) {
  EnsureLoaded();
  if (IsEditable()) Edit(EditHistory::Edit::Typing, std::move(text), 0, 0);
}

void ComboBox::Edit(EditHistory::Edit edit, std::string text, int selStart, int selLength) {
  if (text == Text()) return;
  if (listIndex_ >= 0) editedEntry_ = listIndex_;
  listIndex_ = -1;
  TextEntry::Edit(edit, std::move(text), selStart, selLength);
}

void ComboBox::Restore(EditHistory::State state) {
  const bool isEntry = editedEntry_ >= 0 && editedEntry_ < ListCount() && List(editedEntry_) == state.text;
  listIndex_ = isEntry ? editedEntry_ : -1;
  TextEntry::Restore(std::move(state));
}

void ComboBox::OnKey(int keyCode, int shift) {
  MoveEntry(keyCode);
  TextEntry::OnKey(keyCode, shift);
}

void ComboBox::OnCharacter(int character) {
  if (IsEditable()) return TextEntry::OnCharacter(character);
  if (character >= ' ') PickByLetter(static_cast<char32_t>(character));
}

void ComboBox::MoveEntry(int keyCode) {
  int target = listIndex_;
  switch (keyCode) {
    case kKeyUp:
      target -= 1;
      break;
    case kKeyDown:
      target += 1;
      break;
    case kKeyHome:
    case kKeyEnd:
      if (IsEditable()) return;  // they belong to the typed text
      target = keyCode == kKeyHome ? 0 : ListCount() - 1;
      break;
    default:
      return;
  }
  if (ListCount() == 0) return;
  target = std::clamp(target, 0, ListCount() - 1);
  if (target != listIndex_) Pick(target);
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
  TextEntry::Reset();
  style_ = ComboStyle::DropDown;
  entries_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
}

void ComboBox::ForgetEdits() {
  TextEntry::ForgetEdits();
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
      Property<C>("ListIndex", &C::ListIndex, &C::SetListIndex),
      members::ReadOnly<C>("ListCount", &C::ListCount),
      members::ReadOnly<C>("NewIndex", &C::NewIndex),
      Indexed<C>("List", &C::List),
      Indexed<C>("ItemData", &C::ItemData, &C::SetItemData),
      {"AddItem", AddByName, {}, 1, 1},
      {"RemoveItem", RemoveByName, {}, 1, 1},
      members::Method<C>("Clear", &C::Clear),
      members::ReadOnly<C>("Style", &C::Style),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return TextEntry::FindMember(name);
}

}  // namespace controls
