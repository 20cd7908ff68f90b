#pragma once

#include "base/controls/control.h"
#include "base/controls/edit_history.h"

namespace controls {

/// What text box and combo box share: a text that a person types into, with selection and undo. Positions in characters, from 0.
class TextEntry : public Control {
 public:
  using Control::Control;

  const std::string& Text() const;
  virtual void SetText(std::string_view text) = 0;
  int SelStart() const;
  int SelLength() const;
  /// The insertion point; nothing is selected then. Beyond the text it goes to its end; a negative one is error 380.
  void SetSelStart(int start);
  void SetSelLength(int length);
  std::string SelText() const;
  void SelectAll();

  /// Whether a person can change the text by typing.
  virtual bool IsEditable() const = 0;
  /// 0 is no limit; counts characters.
  virtual int MaxLength() const { return 0; }
  virtual bool MultiLine() const { return false; }

  /// What a keyboard does once the handlers let it: replaces the selection, within MaxLength, and fires Change.
  void TypeOver(std::string_view text);
  void EraseBack();
  void EraseForward();
  /// Takes the last run of a person's edits back, then the undo itself. Text from code cannot be undone. Fires Change.
  bool CanUndo() const;
  void Undo();

  /// How pasted text is filtered: by default each character runs through KeyPress and is dropped when swallowed. A box with a
  /// filter of its own sets this instead (it gets the whole text and returns what to insert).
  std::function<std::string(std::string_view)> PasteFilter;
  /// Pastes as a person would: through PasteFilter or KeyPress, up to MaxLength. In a single-line box a line break becomes a
  /// blank, those at the end go.
  void Paste(std::string_view text);

  Event<> Change;

  void OnKey(int keyCode, int shift) override;
  void OnCharacter(int character) override;
  void Reset() override;

 protected:
  const LateMember* FindMember(std::string_view name) const override;

  /// An edit by a person; it can be undone.
  virtual void Edit(EditHistory::Edit edit, std::string text, int selStart, int selLength);
  /// Puts back what an undo found.
  virtual void Restore(EditHistory::State state);
  /// A text from code: nothing selected, no Change.
  void PutText(std::string text);
  virtual void ForgetEdits() { history_.Forget(); }

 private:
  void Store(std::string text, int selStart, int selLength);

  std::string text_;
  int selStart_ = 0;
  int selLength_ = 0;
  EditHistory history_;
};

}  // namespace controls
