#pragma once

#include "base/controls/control.h"
#include "base/controls/edit_history.h"

namespace controls {

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name) : Control(form, ControlKind::TextBox, std::move(name)) {}

  const std::string& Text() const;
  /// Fires Change when the text differs; the insertion point goes to the start, as the classic control's does.
  void SetText(std::string_view text);
  /// Selection in characters, from 0.
  int SelStart() const;
  int SelLength() const;
  void SetSelStart(int start);
  void SetSelLength(int length);
  std::string SelText() const;
  void SelectAll();
  /// 0 is no limit; counts characters.
  int MaxLength() const { return maxLength_; }
  void SetMaxLength(int length);
  bool Locked() const { return locked_; }
  void SetLocked(bool locked);
  bool MultiLine() const { return multiLine_; }
  void SetMultiLine(bool multiLine) { multiLine_ = multiLine; }
  /// Right-aligned text, for figures.
  bool RightAligned() const { return rightAligned_; }
  void SetRightAligned(bool right) { rightAligned_ = right; }

  /// What a keyboard does once the handlers let it: replaces the selection, within MaxLength, and fires Change.
  void TypeOver(std::string_view text);
  void EraseBack();
  void EraseForward();
  /// The desktop's own edit window changed: takes text and selection over and fires Change when the text differs.
  void TakeEdited(std::string text, int selStart, int selLength);
  /// Takes the last run of a person's edits back, then the undo itself. Text from code cannot be undone.
  bool CanUndo() const;
  void Undo();

  /// How pasted text is filtered: by default each character runs through KeyPress and is dropped when swallowed. A box with a
  /// filter of its own sets this instead (it gets the whole text and returns what to insert).
  std::function<std::string(std::string_view)> PasteFilter;
  /// Pastes as a person would: through PasteFilter or KeyPress, up to MaxLength. In a single-line box a line break becomes a
  /// blank, those at the end go.
  void Paste(std::string_view text);

  Event<> Change;

  void Reset() override;
  std::string TypeName() const override { return "TextBox"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  void Edit(EditHistory::Edit edit, std::string text, int caret);
  void Store(std::string text, int selStart, int selLength);

  std::string text_;
  int selStart_ = 0;
  int selLength_ = 0;
  EditHistory history_;
  int maxLength_ = 0;
  bool locked_ = false;
  bool multiLine_ = false;
  bool rightAligned_ = false;
};

}  // namespace controls
