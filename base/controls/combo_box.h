#pragma once

#include "base/controls/text_entry.h"

namespace controls {

enum class ComboStyle { DropDown = 0, DropDownList = 2 };

/// Combo box with item data. DropDown lets text be typed; DropDownList only picks.
class ComboBox : public TextEntry {
 public:
  static constexpr ControlKind kKind = ControlKind::ComboBox;
  ComboBox(Form& form, std::string name) : TextEntry(form, kKind, std::move(name)) {}

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

  /// DropDown: sets the typed text, deselects any entry, fires Change. DropDownList: selects the entry of that text, error 383
  /// when there is none.
  void SetText(std::string_view text) override;
  bool IsEditable() const override { return style_ == ComboStyle::DropDown; }

  /// What a person does: picks an entry (fires Click also for the current one), or edits the text of a DropDown. An undo that
  /// brings back the text of the entry picked before brings back the entry.
  void Pick(int index);
  void TakeEdited(std::string text);
  /// The next entry that starts with the letter, wrapping around at the end. False when there is none.
  bool PickByLetter(char32_t character);

  void OnKey(int keyCode, int shift) override;
  void OnCharacter(int character) override;
  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "ComboBox"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;
  void Edit(EditHistory::Edit edit, std::string text, int selStart, int selLength) override;
  void Restore(EditHistory::State state) override;
  void ForgetEdits() override;

 private:
  struct Entry {
    std::string text;
    std::int32_t itemData = 0;
  };
  const Entry& EntryAt(int index) const;
  void Select(int index);
  void MoveEntry(int keyCode);

  ComboStyle style_ = ComboStyle::DropDown;
  std::vector<Entry> entries_;
  int listIndex_ = -1;
  int newIndex_ = -1;
  int editedEntry_ = -1;  // the one whose text was typed over
};

}  // namespace controls
