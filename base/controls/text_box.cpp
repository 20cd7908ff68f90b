#include "base/controls/text_box.h"

#include <algorithm>

#include "base/controls/control_members.h"
#include "base/controls/keys.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace controls {

void TextBox::SetText(std::string_view text) {
  EnsureLoaded();
  std::string cut = maxLength_ > 0 ? vb::Left(text, maxLength_) : std::string(text);
  if (cut == Text()) return;
  PutText(std::move(cut));
  Changed(Aspect::Text);
  Change.Fire();
}

void TextBox::SetMaxLength(int length) {
  EnsureLoaded();
  if (length < 0) vb::Raise(vb::kInvalidPropertyValue);
  maxLength_ = length;
  Changed(Aspect::Layout);
}

void TextBox::SetLocked(bool locked) {
  EnsureLoaded();
  locked_ = locked;
  Changed(Aspect::Layout);
}

void TextBox::TakeEdited(std::string text, int selStart, int selLength) {
  EnsureLoaded();
  Edit(EditHistory::Edit::Typing, std::move(text), selStart, selLength);
}

void TextBox::OnKey(int keyCode, int shift) {
  MoveCaret(keyCode, (shift & kShift) != 0);
  TextEntry::OnKey(keyCode, shift);
}

/// Left, Right, Home and End.
void TextBox::MoveCaret(int keyCode, bool select) {
  const int length = static_cast<int>(vb::Len(Text()));
  const int start = SelStart();
  const int end = start + SelLength();
  switch (keyCode) {
    case kKeyLeft:
      // A selection made by keys grows and shrinks at its end; without Shift it collapses to its start.
      if (select) return SetSelLength(std::max(0, end - start - 1));
      return SetSelStart(end > start ? start : std::max(0, start - 1));
    case kKeyRight:
      if (select) return SetSelLength(end - start + 1);
      return SetSelStart(end > start ? end : start + 1);
    case kKeyHome:
      SetSelStart(0);
      if (select) SetSelLength(start);
      return;
    case kKeyEnd:
      if (select) return SetSelLength(length - start);
      return SetSelStart(length);
    default:
      return;
  }
}

void TextBox::Reset() {
  TextEntry::Reset();
  maxLength_ = 0;
  locked_ = false;
  multiLine_ = false;
  rightAligned_ = false;
}

const Control::LateMember* TextBox::FindMember(std::string_view name) const {
  using members::Property;
  static const members::MemberList<TextBox, LateMember> list = {
      {"SelText", [](TextBox& self, late::Arguments&) { return late::Value(self.SelText()); },
       [](TextBox& self, late::Arguments& arguments) { self.TypeOver(arguments[0].ToText()); }},
      Property<TextBox>("MaxLength", &TextBox::MaxLength, &TextBox::SetMaxLength),
      Property<TextBox>("Locked", &TextBox::Locked, &TextBox::SetLocked),
      Property<TextBox>("MultiLine", &TextBox::MultiLine, &TextBox::SetMultiLine),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return TextEntry::FindMember(name);
}

}  // namespace controls
