#pragma once

#include "base/controls/text_entry.h"

namespace controls {

class TextBox : public TextEntry {
 public:
  static constexpr ControlKind kKind = ControlKind::TextBox;
  TextBox(Form& form, std::string name) : TextEntry(form, kKind, std::move(name)) {}

  /// Cut at MaxLength. Fires Change when the text differs; the insertion point goes to the start, as the classic control's does.
  void SetText(std::string_view text) override;
  int MaxLength() const override { return maxLength_; }
  void SetMaxLength(int length);
  bool Locked() const { return locked_; }
  void SetLocked(bool locked);
  bool IsEditable() const override { return !locked_; }
  bool MultiLine() const override { return multiLine_; }
  void SetMultiLine(bool multiLine) { multiLine_ = multiLine; }
  /// Right-aligned text, for figures.
  bool RightAligned() const { return rightAligned_; }
  void SetRightAligned(bool right) { rightAligned_ = right; }

  /// The desktop's own edit window changed: takes text and selection over and fires Change when the text differs.
  void TakeEdited(std::string text, int selStart, int selLength);

  void OnKey(int keyCode, int shift) override;
  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "TextBox"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  void MoveCaret(int keyCode, bool select);

  int maxLength_ = 0;
  bool locked_ = false;
  bool multiLine_ = false;
  bool rightAligned_ = false;
};

}  // namespace controls
