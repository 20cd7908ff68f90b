#pragma once

#include "base/controls/control.h"
#include "base/controls/edit_history.h"

namespace controls {

enum class ComboStyle { DropDown = 0, DropDownList = 2 };

/// Combo box with item data. DropDown lets text be typed; DropDownList only picks.
class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string name) : Control(form, ControlKind::ComboBox, std::move(name)) {}

  ComboStyle Style() const { return style_; }
  void SetStyle(ComboStyle style) { style_ = style; }

  /// Appends an entry; NewIndex is its index.
  void AddItem(std::string_view text);
  void AddItem(std::string_view text, std::int32_t itemData);
  void RemoveItem(int index);
  /// Empties list and text; ListIndex becomes -1.
  void Clear();
  int ListCount() const;
  /// -1 when no entry is selected. Setting it fires Click when it changes to an entry (not for -1); outside -1..ListCount-1 error
  /// 380.
  int ListIndex() const;
  void SetListIndex(int index);
  int NewIndex() const;
  /// Error 381 outside the list.
  const std::string& List(int index) const;
  std::int32_t ItemData(int index) const;
  void SetItemData(int index, std::int32_t data);

  /// The text shown; for a DropDownList the selected entry's.
  std::string Text() const;
  /// DropDown: sets the typed text, deselects any entry, fires Change. DropDownList: selects the entry of that text, error 383
  /// when there is none.
  void SetText(std::string_view text);
  int SelStart() const;
  int SelLength() const;
  void SetSelStart(int start);
  void SetSelLength(int length);
  void SelectAll();

  /// What a person does: picks an entry (fires Click also for the current one), or edits the text of a DropDown.
  void Pick(int index);
  void TypeOver(std::string_view text);
  void EraseBack();
  void EraseForward();
  void TakeEdited(std::string text);
  /// Takes the last run of edits of a DropDown's text back, and with the text of the entry picked before that entry; then the
  /// undo itself. Fires Change.
  bool CanUndo() const;
  void Undo();
  void Paste(std::string_view text);
  /// The next entry that starts with the letter, round and round. False when there is none.
  bool PickByLetter(char32_t character);

  Event<> Change;

  void Reset() override;
  std::string TypeName() const override { return "ComboBox"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  struct Entry {
    std::string text;
    std::int32_t itemData = 0;
  };
  const Entry& EntryAt(int index) const;
  void Select(int index);
  void Edit(EditHistory::Edit edit, std::string text, int caret);
  void Store(std::string text, int selStart, int selLength);
  void ForgetEdits();

  ComboStyle style_ = ComboStyle::DropDown;
  std::vector<Entry> entries_;
  int listIndex_ = -1;
  int newIndex_ = -1;
  std::string text_;
  int selStart_ = 0;
  int selLength_ = 0;
  EditHistory history_;
  int editedEntry_ = -1;  // the one whose text was typed over
};

}  // namespace controls
