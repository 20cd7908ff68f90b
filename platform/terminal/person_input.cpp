// What a person's keys, mouse and pasted texts do to the form on top.

#include <algorithm>

#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/keyboard.h"
#include "base/controls/list_view.h"
#include "base/controls/tab_control.h"
#include "base/controls/text_box.h"
#include "platform/terminal/terminal_desktop.h"

namespace terminal {
namespace {

using controls::As;
using controls::KeyStroke;

constexpr int kWheelRows = 3;

controls::TextEntry* EntryOf(controls::Control* control) {
  if (auto* box = As<controls::TextBox>(control)) return box;
  auto* combo = As<controls::ComboBox>(control);
  return combo && combo->IsEditable() ? combo : nullptr;
}

bool IsKey(const KeyStroke& key, int code, int shift) {
  return key.keyCode == code && key.shift == shift;
}

}  // namespace

void TerminalDesktop::EnteredByKey(controls::Control& control) {
  auto* entry = EntryOf(&control);
  if (entry && !entry->MultiLine()) entry->SelectAll();
}

void TerminalDesktop::HandleKey(controls::Form& form, const Event& event) {
  scrolled_.clear();
  KeyStroke key = event.key;
  // Where nothing can be typed, a character with the eighth bit is a letter with Alt.
  if (event.withAlt != 0 && !EntryOf(form.ActiveControl())) {
    key = {};
    controls::ParseKey(std::string("Alt+") + static_cast<char>(event.withAlt), key);
  }
  if (!HandleOwnKey(form, key)) controls::PressKey(form, key);
}

/// Keys that are the desktop's, as the system's are with real windows.
bool TerminalDesktop::HandleOwnKey(controls::Form& form, const KeyStroke& key) {
  controls::Control* control = form.ActiveControl();
  controls::TextEntry* entry = EntryOf(control);
  if (entry && EditByKey(*entry, key)) return true;
  if (auto* combo = As<controls::ComboBox>(control)) {
    if (IsKey(key, controls::kKeyF4, 0) || IsKey(key, controls::kKeyDown, controls::kAlt)) {
      DropDown(*combo);
      return true;
    }
  }
  if (IsKey(key, controls::kKeyF4, controls::kAlt)) {
    form.CloseByUser();
    return true;
  }
  if (IsKey(key, controls::kKeyF10, controls::kShift) && control) {
    controls::RightClickControl(*control);
    return true;
  }
  const bool isPage = key.keyCode == controls::kKeyPageDown || key.keyCode == controls::kKeyPageUp;
  if (isPage && key.shift == controls::kCtrl) {
    // Terminals have no Ctrl+Tab.
    const int shift = controls::kCtrl | (key.keyCode == controls::kKeyPageUp ? controls::kShift : 0);
    controls::PressKey(form, {controls::kKeyTab, shift, 0});
    return true;
  }
  // In a list it takes the last change back.
  if (IsKey(key, 'Z', controls::kCtrl) && !entry && !As<controls::ListView>(control)) {
    screen_.Suspend();
    return true;
  }
  return false;
}

bool TerminalDesktop::EditByKey(controls::TextEntry& entry, const KeyStroke& key) {
  if (key.keyCode == controls::kKeyUp && key.shift == 0) return MoveByRow(entry, -1);
  if (key.keyCode == controls::kKeyDown && key.shift == 0) return MoveByRow(entry, 1);
  if (key.shift != controls::kCtrl) return false;
  switch (key.keyCode) {
    case 'A':
      entry.SelectAll();
      return true;
    case 'X':
    case 'C':
      if (entry.SelLength() > 0) PutOnClipboard(entry.SelText());
      if (key.keyCode == 'X' && entry.SelLength() > 0) entry.TypeOver("");
      return true;
    case 'V':
      entry.Paste(ClipboardText());
      return true;
    default:
      return false;
  }
}

/// Whether the box has more than one line on the screen; the caret stays where there is no line to go to.
bool TerminalDesktop::MoveByRow(controls::TextEntry& entry, int rows) {
  if (!entry.MultiLine() || !composed_.Caret()) return false;
  const text::Point caret = *composed_.Caret();
  for (const text::Spot& spot : composed_.Spots()) {
    if (spot.control != &entry || spot.part != text::Spot::Part::Text || spot.y != caret.y + rows) continue;
    entry.SetSelStart(static_cast<int>(spot.index) + std::max(0, caret.x - spot.x));
  }
  return true;
}

void TerminalDesktop::HandlePaste(controls::Form& form, const std::string& text) {
  PutOnClipboard(text);
  if (auto* entry = EntryOf(form.ActiveControl())) return entry->Paste(text);
  KeyStroke paste;
  controls::ParseKey("Ctrl+V", paste);
  controls::PressKey(form, paste);
}

void TerminalDesktop::HandleMouse(controls::Form& form, const Event& event) {
  const text::Spot* found = composed_.SpotAt(event.x, event.y);
  if (!found || !found->control || &found->control->Owner() != &form) return;
  const text::Spot spot = *found;
  controls::Control& control = *spot.control;
  if (event.button == Event::Button::WheelUp || event.button == Event::Button::WheelDown) {
    return ScrollList(spot, event.button == Event::Button::WheelUp ? -kWheelRows : kWheelRows);
  }
  if (!control.AcceptsInput()) return;
  if (spot.part == text::Spot::Part::Row) return ClickRow(spot, event);
  if (event.button == Event::Button::Right) return controls::RightClickControl(control);
  switch (spot.part) {
    case text::Spot::Part::Heading:
      if (!form.MoveFocus(&control)) return;
      if (auto* grid = As<controls::FlexGrid>(&control)) grid->ClickHeading(spot.column);
      if (auto* list = As<controls::ListView>(&control)) list->ColumnClick.Fire(static_cast<int>(spot.column));
      return;
    case text::Spot::Part::Box: {
      auto* list = As<controls::ListView>(&control);
      const int line = static_cast<int>(spot.index);
      if (list && form.MoveFocus(list)) list->CheckItem(line, !list->Item(line).Checked());
      return;
    }
    case text::Spot::Part::Page: {
      auto* tab = As<controls::TabControl>(&control);
      if (tab && form.MoveFocus(tab)) tab->SetTab(static_cast<int>(spot.index));
      return;
    }
    case text::Spot::Part::DropDown:
      if (!form.MoveFocus(&control)) return;
      Paint();
      if (auto* combo = As<controls::ComboBox>(&control)) DropDown(*combo);
      return;
    case text::Spot::Part::Text:
      if (auto* entry = EntryOf(&control)) entry->SetSelStart(static_cast<int>(spot.index) + event.x - spot.x);
      return;
    default:
      break;
  }
  switch (control.Kind()) {
    case controls::ControlKind::CommandButton:
    case controls::ControlKind::OptionButton:
    case controls::ControlKind::CheckBox:
      return controls::ClickControl(control);
    default:
      if (control.CanFocus()) form.MoveFocus(&control);
  }
}

void TerminalDesktop::ClickRow(const text::Spot& spot, const Event& event) {
  controls::Form& form = spot.control->Owner();
  const std::weak_ptr<late::Object> keep = form.weak_from_this();
  if (!form.MoveFocus(spot.control)) return;
  const bool isRight = event.button == Event::Button::Right;
  if (auto* grid = As<controls::FlexGrid>(spot.control)) {
    if (event.button == Event::Button::LeftTwice) return grid->DblClick.Fire();
    if (isRight) {
      grid->SetRow(spot.index);
    } else {
      grid->ClickCell(spot.index, ColumnAt(spot, event.x));
    }
  } else if (auto* list = As<controls::ListView>(spot.control)) {
    if (event.button == Event::Button::LeftTwice) return list->DblClick.Fire();
    list->ClickItem(static_cast<int>(spot.index));
  }
  if (isRight && !keep.expired() && form.IsShown()) controls::RightClickControl(*spot.control);
}

long TerminalDesktop::ColumnAt(const text::Spot& row, int x) const {
  for (const text::Spot& spot : composed_.Spots()) {
    if (spot.control == row.control && spot.part == text::Spot::Part::Heading && x >= spot.x && x < spot.x + spot.width) {
      return spot.column;
    }
  }
  return 0;
}

/// Moves what a list shows; its current row stays, and is shown again with the next key.
void TerminalDesktop::ScrollList(const text::Spot& spot, int rows) {
  long first = 0;
  for (const text::Spot& row : composed_.Spots()) {
    if (row.control != spot.control || row.part != text::Spot::Part::Row) continue;
    first = first == 0 ? row.index : std::min(first, row.index);
  }
  if (first > 0) scrolled_[spot.control] = std::max(1L, first + rows);
}

/// Moves the model's mouse to the current cell, so that the form sets the tool tip of that cell. Not every terminal has a mouse.
void TerminalDesktop::LookAtCurrentCell(controls::Form& form) {
  auto* grid = As<controls::FlexGrid>(form.ActiveControl());
  if (!grid || grid->Row() < grid->FixedRows() || grid->Row() >= grid->Rows() || grid->Col() >= grid->Cols()) return;
  const CellLookedAt now{grid, grid->Row(), grid->Col()};
  if (now == lookedAt_) return;
  lookedAt_ = now;
  grid->MoveMouse(grid->Row(), grid->Col());
}

}  // namespace terminal
