#include "platform/console/drawing/control_pictures.h"

#include <algorithm>

#include "base/vb/text.h"
#include "platform/console/control_finder.h"

namespace console {
namespace {

constexpr int kLeastBoxWidth = 4;
constexpr int kMostTextRows = 5;

Canvas OneLine(const controls::Control& control, std::string_view text) {
  Canvas sheet;
  sheet.Put(0, 0, MarkOf(control));
  sheet.Put(1, 0, text);
  return sheet;
}

}  // namespace

std::string_view MarkOf(const controls::Control& control) {
  if (control.HasFocus()) return "»";
  return IsReallyEnabled(control) ? " " : "~";
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
  const int width = std::max(columns - 3, kLeastBoxWidth);
  const int rows = box.MultiLine() ? std::clamp(box.Place().height / kTwipsPerRow, 1, kMostTextRows) : 1;
  if (rows == 1) return OneLine(box, '[' + Fit(box.Text(), width, box.RightAligned() ? Align::Right : Align::Left) + ']');
  Canvas sheet;
  sheet.Put(0, 0, MarkOf(box));
  const auto lines = Wrapped(box.Text(), width);
  for (int row = 0; row < rows; ++row) {
    const auto index = static_cast<std::size_t>(row);
    sheet.Put(1, row, '[' + Fit(index < lines.size() ? lines[index] : "", width) + ']');
  }
  return sheet;
}

Canvas DrawComboBox(const controls::ComboBox& combo, int columns) {
  return OneLine(combo, '[' + Fit(combo.Text(), std::max(columns - 5, kLeastBoxWidth)) + " v]");
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
