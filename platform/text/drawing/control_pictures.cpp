#include "platform/text/drawing/control_pictures.h"

#include <algorithm>

#include "base/vb/text.h"
#include "platform/text/drawing/edit_field.h"

namespace text {
namespace {

constexpr int kMaxTextRows = 5;

Looks LooksOf(const controls::Control& control) {
  return control.AcceptsInput() ? kPlain : kDim;
}

/// Before the text a mark of the focus or of a disabled control.
Canvas Marked(const controls::Control& control, const Canvas& inside) {
  Canvas sheet;
  sheet.Put(0, 0, MarkOf(control), LooksOf(control));
  if (control.HasFocus()) sheet.SetCaret({0, 0});
  sheet.Paste(1, 0, inside);
  return sheet;
}

Canvas OneLine(const controls::Control& control, std::string_view text) {
  Canvas inside;
  inside.Put(0, 0, text, LooksOf(control));
  return Marked(control, inside);
}

/// A caption between what is before and after it.
Canvas WithCaption(const controls::Captioned& control, std::string_view before, std::string_view after = {}) {
  Canvas inside;
  inside.Put(0, 0, before, LooksOf(control));
  inside.PutCaption(Length(before), 0, control.Caption(), LooksOf(control));
  inside.Put(Length(before) + Length(PlainCaption(control.Caption())), 0, after, LooksOf(control));
  return Marked(control, inside);
}

bool IsWorkedIn(const controls::TextEntry& entry, const Surface& surface) {
  return surface.isScreen && entry.HasFocus();
}

}  // namespace

std::string_view MarkOf(const controls::Control& control) {
  if (control.HasFocus()) return "»";
  return control.AcceptsInput() ? " " : "~";
}

Canvas DrawLabel(const controls::Label& label, int columns) {
  Canvas sheet;
  const bool isOneLine = label.Place().height < 2 * kTwipsPerRow - 60;
  if (isOneLine && label.Caption().find_first_of("\r\n") == std::string::npos) {
    sheet.PutCaption(0, 0, label.Caption(), LooksOf(label));
    return sheet;
  }
  const std::string text = PlainCaption(label.Caption());
  int row = 0;
  for (const std::string& line : Wrapped(text, isOneLine ? Length(text) : columns)) sheet.Put(0, row++, line, LooksOf(label));
  return sheet;
}

Canvas DrawTextBox(controls::TextBox& box, int columns, const Surface& surface) {
  const int rows = box.MultiLine() ? std::clamp(box.Place().height / kTwipsPerRow, 1, kMaxTextRows) : 1;
  if (IsWorkedIn(box, surface)) return Marked(box, DrawEditing(box, columns, rows));
  if (rows == 1) return OneLine(box, EditField(box.Text(), columns, {}, box.RightAligned() ? Align::Right : Align::Left));
  Canvas inside;
  const auto lines = Wrapped(box.Text(), Length(EditField("", columns)) - 2);
  for (int row = 0; row < rows; ++row) {
    const auto index = static_cast<std::size_t>(row);
    inside.Put(0, row, EditField(index < lines.size() ? lines[index] : "", columns), LooksOf(box));
  }
  return Marked(box, inside);
}

Canvas DrawComboBox(controls::ComboBox& combo, int columns, const Surface& surface) {
  constexpr std::string_view kArrow = " v";
  const bool edited = IsWorkedIn(combo, surface) && combo.IsEditable();
  Canvas sheet =
      edited ? Marked(combo, DrawEditing(combo, columns, 1, kArrow)) : OneLine(combo, EditField(combo.Text(), columns, kArrow));
  const int width = sheet.Width();
  sheet.Mark({.control = &combo, .part = Spot::Part::DropDown, .x = edited ? width - 3 : 0, .width = edited ? 3 : width});
  return sheet;
}

Canvas DrawButton(const controls::CommandButton& button) {
  return WithCaption(button, "< ", " >");
}

Canvas DrawOption(const controls::OptionButton& option) {
  return WithCaption(option, option.Value() ? "(o) " : "( ) ");
}

Canvas DrawCheckBox(const controls::CheckBox& box) {
  return WithCaption(box, box.IsChecked() ? "[x] " : "[ ] ");
}

}  // namespace text
