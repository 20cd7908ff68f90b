#include "platform/console/drawing/control_pictures.h"

#include <algorithm>

#include "base/vb/text.h"

namespace console {
namespace {

constexpr int kMinBoxWidth = 4;
constexpr int kMaxTextRows = 5;

Canvas OneLine(const controls::Control& control, std::string_view text) {
  Canvas sheet;
  sheet.Put(0, 0, MarkOf(control));
  sheet.Put(1, 0, text);
  return sheet;
}

/// The edit field of a line; `tail` is drawn inside it after the text.
std::string EditField(std::string_view text, int columns, std::string_view tail = {}, Align align = Align::Left) {
  const int width = std::max(columns - 3 - Length(tail), kMinBoxWidth);
  return '[' + Fit(text, width, align) + std::string(tail) + ']';
}

}  // namespace

std::string_view MarkOf(const controls::Control& control) {
  if (control.HasFocus()) return "»";
  return control.AcceptsInput() ? " " : "~";
}

std::string PlainCaption(std::string_view caption) {
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    plain += caption[i];
  }
  return plain;
}

Canvas DrawLabel(const controls::Label& label, int columns) {
  Canvas sheet;
  const std::string text = PlainCaption(label.Caption());
  if (label.Place().height < 2 * kTwipsPerRow - 60) columns = Length(text);
  int row = 0;
  for (const std::string& line : Wrapped(text, columns)) sheet.Put(0, row++, line);
  return sheet;
}

Canvas DrawTextBox(const controls::TextBox& box, int columns) {
  const int rows = box.MultiLine() ? std::clamp(box.Place().height / kTwipsPerRow, 1, kMaxTextRows) : 1;
  if (rows == 1) return OneLine(box, EditField(box.Text(), columns, {}, box.RightAligned() ? Align::Right : Align::Left));
  Canvas sheet;
  sheet.Put(0, 0, MarkOf(box));
  const auto lines = Wrapped(box.Text(), std::max(columns - 3, kMinBoxWidth));
  for (int row = 0; row < rows; ++row) {
    const auto index = static_cast<std::size_t>(row);
    sheet.Put(1, row, EditField(index < lines.size() ? lines[index] : "", columns));
  }
  return sheet;
}

Canvas DrawComboBox(const controls::ComboBox& combo, int columns) {
  return OneLine(combo, EditField(combo.Text(), columns, " v"));
}

Canvas DrawButton(const controls::CommandButton& button) {
  return OneLine(button, "< " + PlainCaption(button.Caption()) + " >");
}

Canvas DrawOption(const controls::OptionButton& option) {
  return OneLine(option, (option.Value() ? "(o) " : "( ) ") + PlainCaption(option.Caption()));
}

Canvas DrawCheckBox(const controls::CheckBox& box) {
  return OneLine(box, (box.IsChecked() ? "[x] " : "[ ] ") + PlainCaption(box.Caption()));
}

}  // namespace console
