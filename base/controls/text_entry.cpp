#include "base/controls/text_entry.h"

#include <algorithm>

#include "base/controls/control_members.h"
#include "base/controls/edit_text.h"
#include "base/controls/keys.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace controls {

namespace {
int Length(std::string_view text) {
  return static_cast<int>(vb::Len(text));
}
}  // namespace

const std::string& TextEntry::Text() const {
  EnsureLoaded();
  return text_;
}

int TextEntry::SelStart() const {
  EnsureLoaded();
  return selStart_;
}

int TextEntry::SelLength() const {
  EnsureLoaded();
  return selLength_;
}

void TextEntry::SetSelStart(int start) {
  EnsureLoaded();
  if (start < 0) vb::Raise(vb::kInvalidPropertyValue);
  selStart_ = std::min(start, Length(text_));
  selLength_ = 0;
  Changed(Aspect::Selection);
}

void TextEntry::SetSelLength(int length) {
  EnsureLoaded();
  if (length < 0) vb::Raise(vb::kInvalidPropertyValue);
  selLength_ = std::min(length, Length(text_) - selStart_);
  Changed(Aspect::Selection);
}

std::string TextEntry::SelText() const {
  EnsureLoaded();
  return vb::Mid(text_, selStart_ + 1, selLength_);
}

void TextEntry::SelectAll() {
  SetSelStart(0);
  SetSelLength(Length(text_));
}

void TextEntry::TypeOver(std::string_view text) {
  EnsureLoaded();
  if (!IsEditable()) return;
  std::string fits(text);
  if (MaxLength() > 0) fits = vb::Left(text, std::max(0, MaxLength() - (Length(text_) - selLength_)));
  const int caret = selStart_ + Length(fits);
  Edit(EditHistory::Edit::Typing, Spliced(text_, selStart_, selLength_, fits), caret, 0);
}

void TextEntry::EraseBack() {
  EnsureLoaded();
  if (!IsEditable()) return;
  if (selLength_ > 0) return TypeOver("");
  if (selStart_ > 0) Edit(EditHistory::Edit::EraseBack, Spliced(text_, selStart_ - 1, 1, ""), selStart_ - 1, 0);
}

void TextEntry::EraseForward() {
  EnsureLoaded();
  if (!IsEditable()) return;
  if (selLength_ > 0) return TypeOver("");
  Edit(EditHistory::Edit::EraseForward, Spliced(text_, selStart_, 1, ""), selStart_, 0);
}

void TextEntry::Edit(EditHistory::Edit edit, std::string text, int selStart, int selLength) {
  if (text != text_) history_.Before(edit, text_, selStart_, selLength_);
  Store(std::move(text), selStart, selLength);
}

void TextEntry::Store(std::string text, int selStart, int selLength) {
  const bool differs = text != text_;
  text_ = std::move(text);
  selStart_ = std::clamp(selStart, 0, Length(text_));
  selLength_ = std::clamp(selLength, 0, Length(text_) - selStart_);
  if (differs) history_.After(selStart_);
  Changed(differs ? Aspect::Text : Aspect::Selection);
  if (differs) Change.Fire();
}

void TextEntry::PutText(std::string text) {
  text_ = std::move(text);
  selStart_ = selLength_ = 0;
  ForgetEdits();
}

bool TextEntry::CanUndo() const {
  return IsEditable() && history_.CanUndo();
}

void TextEntry::Undo() {
  EnsureLoaded();
  if (!CanUndo()) return;
  Restore(history_.Exchange({text_, selStart_, selLength_}));
  history_.EndRun();
}

void TextEntry::Restore(EditHistory::State state) {
  Store(std::move(state.text), state.selStart, state.selLength);
}

void TextEntry::Paste(std::string_view text) {
  EnsureLoaded();
  if (!IsEditable()) return;
  const std::string kept = MultiLine() ? std::string(text) : JoinedLines(text);
  history_.EndRun();
  if (PasteFilter) {
    TypeOver(PasteFilter(kept));
  } else {
    PasteThroughKeyPress(*this, kept, [this](std::string_view passed) {
      TypeOver(passed);
      return MaxLength() == 0 || Length(text_) - selLength_ < MaxLength();
    });
  }
  history_.EndRun();
}

void TextEntry::OnKey(int keyCode, int) {
  if (keyCode == kKeyDelete) EraseForward();
}

void TextEntry::OnCharacter(int character) {
  if (character == kCharCtrlZ) return Undo();
  if (character == kCharBack) return EraseBack();
  if (MultiLine() && (character == kCharReturn || character == kCharLineFeed)) return TypeOver("\r\n");
  if (character < ' ') return;
  std::string typed;
  vb::AppendCharacter(typed, static_cast<char32_t>(character));
  TypeOver(typed);
}

void TextEntry::Reset() {
  Control::Reset();
  PutText({});
}

const Control::LateMember* TextEntry::FindMember(std::string_view name) const {
  using T = TextEntry;
  using members::Property;
  static const members::MemberList<T, LateMember> list = {
      Property<T>("Text", &T::Text, &T::SetText),
      Property<T>("", &T::Text, &T::SetText),
      Property<T>("SelStart", &T::SelStart, &T::SetSelStart),
      Property<T>("SelLength", &T::SelLength, &T::SetSelLength),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Control::FindMember(name);
}

}  // namespace controls
