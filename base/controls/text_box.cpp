#include "base/controls/text_box.h"

#include <algorithm>

#include "base/controls/control_members.h"
#include "base/controls/edit_text.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace controls {

namespace {
int Length(std::string_view text) {
  return static_cast<int>(vb::Len(text));
}
}  // namespace

const std::string& TextBox::Text() const {
  Touch();
  return text_;
}

void TextBox::SetText(std::string_view text) {
  Touch();
  // Like the classic control: text from code is cut at the greatest length.
  std::string cut = maxLength_ > 0 ? vb::Left(text, maxLength_) : std::string(text);
  if (cut == text_) return;
  text_ = std::move(cut);
  selStart_ = 0;
  selLength_ = 0;
  history_.Forget();
  Changed(Aspect::Text);
  Change.Fire();
}

int TextBox::SelStart() const {
  Touch();
  return selStart_;
}

int TextBox::SelLength() const {
  Touch();
  return selLength_;
}

void TextBox::SetSelStart(int start) {
  Touch();
  if (start < 0) vb::Raise(vb::kInvalidPropertyValue);
  selStart_ = std::min(start, Length(text_));
  selLength_ = 0;
  Changed(Aspect::Selection);
}

void TextBox::SetSelLength(int length) {
  Touch();
  if (length < 0) vb::Raise(vb::kInvalidPropertyValue);
  selLength_ = std::min(length, Length(text_) - selStart_);
  Changed(Aspect::Selection);
}

std::string TextBox::SelText() const {
  Touch();
  return vb::Mid(text_, selStart_ + 1, selLength_);
}

void TextBox::SelectAll() {
  SetSelStart(0);
  SetSelLength(Length(text_));
}

void TextBox::SetMaxLength(int length) {
  Touch();
  if (length < 0) vb::Raise(vb::kInvalidPropertyValue);
  maxLength_ = length;
  Changed(Aspect::Layout);
}

void TextBox::SetLocked(bool locked) {
  Touch();
  locked_ = locked;
  Changed(Aspect::Layout);
}

void TextBox::TypeOver(std::string_view text) {
  Touch();
  if (locked_) return;
  std::string fits(text);
  if (maxLength_ > 0) fits = vb::Left(text, std::max(0, maxLength_ - (Length(text_) - selLength_)));
  const int caret = selStart_ + Length(fits);
  Edit(EditHistory::Edit::Typing, Spliced(text_, selStart_, selLength_, fits), caret);
}

void TextBox::EraseBack() {
  Touch();
  if (locked_) return;
  if (selLength_ > 0) return TypeOver("");
  if (selStart_ == 0) return;
  Edit(EditHistory::Edit::EraseBack, Spliced(text_, selStart_ - 1, 1, ""), selStart_ - 1);
}

void TextBox::EraseForward() {
  Touch();
  if (locked_) return;
  if (selLength_ > 0) return TypeOver("");
  Edit(EditHistory::Edit::EraseForward, Spliced(text_, selStart_, 1, ""), selStart_);
}

void TextBox::Edit(EditHistory::Edit edit, std::string text, int caret) {
  if (text != text_) history_.Before(edit, text_, selStart_, selLength_);
  Store(std::move(text), caret, 0);
}

void TextBox::TakeEdited(std::string text, int selStart, int selLength) {
  Touch();
  if (text != text_) history_.Before(EditHistory::Edit::Typing, text_, selStart_, selLength_);
  Store(std::move(text), selStart, selLength);
}

void TextBox::Store(std::string text, int selStart, int selLength) {
  const bool differs = text != text_;
  text_ = std::move(text);
  selStart_ = std::clamp(selStart, 0, Length(text_));
  selLength_ = std::clamp(selLength, 0, Length(text_) - selStart_);
  if (differs) history_.After(selStart_);
  Changed(differs ? Aspect::Text : Aspect::Selection);
  if (differs) Change.Fire();
}

bool TextBox::CanUndo() const {
  return !locked_ && history_.CanUndo();
}

void TextBox::Undo() {
  Touch();
  if (!CanUndo()) return;
  const EditHistory::State before = history_.Exchange({text_, selStart_, selLength_});
  Store(before.text, before.selStart, before.selLength);
  history_.EndRun();
}

void TextBox::Paste(std::string_view text) {
  Touch();
  if (locked_) return;
  const std::string kept = multiLine_ ? std::string(text) : JoinedLines(text);
  history_.EndRun();
  if (PasteFilter) {
    TypeOver(PasteFilter(kept));
  } else {
    PasteThroughKeyPress(*this, kept, [this](std::string_view passed) {
      TypeOver(passed);
      return maxLength_ == 0 || Length(text_) - selLength_ < maxLength_;
    });
  }
  history_.EndRun();
}

void TextBox::Reset() {
  Control::Reset();
  text_.clear();
  selStart_ = 0;
  selLength_ = 0;
  maxLength_ = 0;
  locked_ = false;
  multiLine_ = false;
  rightAligned_ = false;
  history_.Forget();
}

const Control::LateMember* TextBox::FindMember(std::string_view name) const {
  using members::Property;
  static const members::MemberList<TextBox, LateMember> list = {
      Property<TextBox>("Text", &TextBox::Text, &TextBox::SetText),
      Property<TextBox>("", &TextBox::Text, &TextBox::SetText),
      Property<TextBox>("SelStart", &TextBox::SelStart, &TextBox::SetSelStart),
      Property<TextBox>("SelLength", &TextBox::SelLength, &TextBox::SetSelLength),
      {"SelText", [](TextBox& self, late::Arguments&) { return late::Value(self.SelText()); },
       [](TextBox& self, late::Arguments& arguments) { self.TypeOver(arguments[0].ToText()); }},
      Property<TextBox>("MaxLength", &TextBox::MaxLength, &TextBox::SetMaxLength),
      Property<TextBox>("Locked", &TextBox::Locked, &TextBox::SetLocked),
      Property<TextBox>("MultiLine", &TextBox::MultiLine, &TextBox::SetMultiLine),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Control::FindMember(name);
}

}  // namespace controls
