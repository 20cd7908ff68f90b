#include "base/controls/keyboard.h"

#include <algorithm>
#include <array>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/list_view.h"
#include "base/controls/tab_control.h"
#include "base/controls/text_box.h"
#include "base/vb/text.h"

namespace controls {

namespace {

/// The form is still the one that a person's keys reach.
bool IsActive(const Form& form) {
  return form.IsShown() && form.Desktop().ActiveForm() == &form;
}

/// Fires a key-down or key-up with the form's preview before the control. False when a handler swallowed the key or the form
/// is gone.
template <class Select>
bool FireKey(Form& form, int& code, int shift, Select event) {
  if (form.KeyPreview()) event(form).Fire(code, shift);
  if (code == 0 || !IsActive(form)) return false;
  if (Control* control = form.ActiveControl()) event(*control).Fire(code, shift);
  return code != 0 && IsActive(form);
}

bool FireKeyPress(Form& form, int& character) {
  if (form.KeyPreview()) form.KeyPress.Fire(character);
  if (character == 0 || !IsActive(form)) return false;
  if (Control* control = form.ActiveControl()) control->KeyPress.Fire(character);
  return character != 0 && IsActive(form);
}

/// Arrows move through the options of a group and select.
bool MoveOption(OptionButton& option, int keyCode) {
  const bool back = keyCode == kKeyUp || keyCode == kKeyLeft;
  if (!back && keyCode != kKeyDown && keyCode != kKeyRight) return false;
  std::vector<OptionButton*> group;
  for (Control* control : option.Owner().TabOrder()) {
    auto* other = dynamic_cast<OptionButton*>(control);
    if (other && other->SharesGroupWith(option) && other->CanFocus()) group.push_back(other);
  }
  if (back) std::reverse(group.begin(), group.end());
  const auto here = std::find(group.begin(), group.end(), &option);
  if (here == group.end()) return true;
  OptionButton* next = here + 1 == group.end() ? group.front() : *(here + 1);
  if (option.Owner().MoveFocus(next)) next->SetValue(true);
  return true;
}

void MoveComboEntry(ComboBox& combo, int keyCode) {
  const int count = combo.ListCount();
  if (count == 0) return;
  int target = combo.ListIndex();
  // Home and End belong to the typed text where there is one.
  const bool list = combo.Style() == ComboStyle::DropDownList;
  switch (keyCode) {
    case kKeyUp:
      target -= 1;
      break;
    case kKeyDown:
      target += 1;
      break;
    case kKeyHome:
      if (!list) return;
      target = 0;
      break;
    case kKeyEnd:
      if (!list) return;
      target = count - 1;
      break;
    default:
      return;
  }
  target = std::clamp(target, 0, count - 1);
  if (target != combo.ListIndex()) combo.Pick(target);
}

/// Left, Right, Home and End in typed text; with Shift they select.
void MoveCaret(TextBox& box, int keyCode, int shift) {
  const int length = static_cast<int>(vb::Len(box.Text()));
  const int start = box.SelStart();
  const int end = start + box.SelLength();
  const bool extend = (shift & kShift) != 0;
  switch (keyCode) {
    case kKeyLeft:
      // A selection made by keys grows and shrinks at its end; without Shift it collapses to its start.
      if (extend) return box.SetSelLength(std::max(0, end - start - 1));
      return box.SetSelStart(end > start ? start : std::max(0, start - 1));
    case kKeyRight:
      if (extend) return box.SetSelLength(end - start + 1);
      return box.SetSelStart(end > start ? end : start + 1);
    case kKeyHome:
      box.SetSelStart(0);
      if (extend) box.SetSelLength(start);
      return;
    case kKeyEnd:
      if (extend) return box.SetSelLength(length - start);
      return box.SetSelStart(length);
    default:
      return;
  }
}

/// What a control does with a key by itself, before any character.
void ActOnKey(Control& control, int keyCode, int shift) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    if (keyCode == kKeyDelete) return box->EraseForward();
    return MoveCaret(*box, keyCode, shift);
  }
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    if (keyCode == kKeyDelete) return combo->EraseForward();
    return MoveComboEntry(*combo, keyCode);
  }
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    MoveOption(*option, keyCode);
  } else if (auto* list = dynamic_cast<ListView*>(&control)) {
    list->NavigationKey(keyCode);
  } else if (auto* grid = dynamic_cast<FlexGrid*>(&control)) {
    grid->NavigationKey(keyCode, shift);
  } else if (auto* tab = dynamic_cast<TabControl*>(&control)) {
    const int step = keyCode == kKeyLeft ? -1 : keyCode == kKeyRight ? 1 : 0;
    for (int page = tab->Tab() + step; step != 0 && page >= 0 && page < tab->Tabs(); page += step) {
      if (tab->TabVisible(page)) return tab->SetTab(page);
    }
  }
}

void TypeInto(TextBox& box, int character) {
  if (character == kCharCtrlZ) return box.Undo();
  if (character == kCharBack) return box.EraseBack();
  if (character == kCharReturn || character == kCharLineFeed) {
    if (box.MultiLine()) box.TypeOver("\r\n");
    return;
  }
  if (character < ' ') return;
  std::string typed;
  vb::AppendCharacter(typed, static_cast<char32_t>(character));
  box.TypeOver(typed);
}

void TypeInto(ComboBox& combo, int character) {
  if (combo.Style() == ComboStyle::DropDownList) {
    if (character >= ' ') combo.PickByLetter(static_cast<char32_t>(character));
    return;
  }
  if (character == kCharCtrlZ) return combo.Undo();
  if (character == kCharBack) return combo.EraseBack();
  if (character < ' ') return;
  std::string typed;
  vb::AppendCharacter(typed, static_cast<char32_t>(character));
  combo.TypeOver(typed);
}

/// What a control does with a character that the handlers let pass, possibly changed.
void ActOnCharacter(Control& control, int character) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    TypeInto(*box, character);
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    TypeInto(*combo, character);
  } else if (auto* button = dynamic_cast<CommandButton*>(&control)) {
    if (character == kKeySpace || character == kCharReturn) button->Click.Fire();
  } else if (character != kKeySpace) {
    return;
  } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
    check->SetValue(1 - check->Value());
  } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    option->SetValue(true);
  } else if (auto* list = dynamic_cast<ListView*>(&control)) {
    if (const int line = list->SelectedItem(); list->CheckBoxes() && line > 0) list->CheckItem(line, !list->Item(line).Checked());
  }
}

/// The pages that Ctrl+Tab turns: those around the focus, else the form's first ones. Null when there are none.
TabControl* PagesToTurn(const Form& form) {
  for (Control* control = form.ActiveControl(); control; control = control->Container()) {
    if (auto* tab = dynamic_cast<TabControl*>(control)) return tab;
  }
  for (Control* control : form.TabOrder()) {
    auto* tab = dynamic_cast<TabControl*>(control);
    if (tab && tab->CanFocus()) return tab;
  }
  return nullptr;
}

/// The page after (before) the current one that can be seen, round and round; the current one when it is the only one.
int NextPage(const TabControl& tab, bool backwards) {
  const int step = backwards ? tab.Tabs() - 1 : 1;
  int page = tab.Tab();
  do {
    page = (page + step) % tab.Tabs();
  } while (!tab.TabVisible(page) && page != tab.Tab());
  return page;
}

/// Turns to the next page, with the focus on the first control there that takes it. False where there is no page to turn.
bool TurnPage(Form& form, bool backwards) {
  TabControl* tab = PagesToTurn(form);
  if (!tab) return false;
  const int page = NextPage(*tab, backwards);
  if (page == tab->Tab() || !form.MoveFocus(tab)) return true;
  tab->SetTab(page);
  if (!IsActive(form) || !tab->HasFocus()) return true;
  for (Control* control : form.TabOrder()) {
    if (control->Container() != tab || control->Page() != page || !control->TabStop() || !control->CanFocus()) continue;
    form.MoveFocus(control);
    break;
  }
  return true;
}

/// Keys that never reach the handlers: Tab, Ctrl+Tab where there are pages, Enter with a default button, Esc with a cancel
/// button. Whether it was one.
bool ActAsDialogKey(Form& form, const KeyStroke& key) {
  if (key.keyCode == kKeyTab && (key.shift & (kCtrl | kAlt)) == 0) {
    form.TabOn((key.shift & kShift) != 0);
    return true;
  }
  if (key.keyCode == kKeyTab && (key.shift & (kCtrl | kAlt)) == kCtrl) return TurnPage(form, (key.shift & kShift) != 0);
  if (key.shift != 0) return false;
  if (key.keyCode == kKeyReturn) {
    CommandButton* button = form.DefaultButton();
    if (!button) return false;
    if (auto* focused = dynamic_cast<CommandButton*>(form.ActiveControl())) button = focused;
    button->Click.Fire();
    return true;
  }
  if (key.keyCode == kKeyEscape) {
    CommandButton* button = form.CancelButton();
    if (!button) return false;
    button->Click.Fire();
    return true;
  }
  return false;
}

/// KeyDown to what the control does with the key; ends early where a handler swallows it.
void HandleDownAndPress(Form& form, const KeyStroke& key) {
  if (key.keyCode != 0) {
    int code = key.keyCode;
    if (!FireKey(
            form, code, key.shift, [](auto& target) -> auto& { return target.KeyDown; }))
      return;
    if ((key.shift & kAlt) == 0 && form.ActiveControl()) ActOnKey(*form.ActiveControl(), code, key.shift);
    if (!IsActive(form)) return;
  }
  if ((key.shift & kAlt) != 0) {
    PressAccessKey(form, key.keyCode != 0 ? static_cast<char32_t>(key.keyCode) : key.character);
    return;
  }
  if (key.character == 0) return;
  int character = static_cast<int>(key.character);
  if (FireKeyPress(form, character) && form.ActiveControl()) ActOnCharacter(*form.ActiveControl(), character);
}

bool HasAccessKey(const std::string& caption, char32_t key) {
  for (std::size_t mark = caption.find('&'); mark != std::string::npos; mark = caption.find('&', mark + 2)) {
    const std::string upper = vb::UCase(vb::Mid(std::string_view(caption).substr(mark + 1), 1, 1));
    std::size_t offset = 0;
    if (!upper.empty() && upper != "&") return vb::NextCharacter(upper, offset) == key;
  }
  return false;
}

/// Switches to the page whose caption has the access key.
bool SwitchPage(Form& form, char32_t key) {
  for (Control* control : form.Controls()) {
    auto* tab = dynamic_cast<TabControl*>(control);
    if (!tab || !tab->CanFocus()) continue;
    for (int page = 0; page < tab->Tabs(); ++page) {
      if (!tab->TabVisible(page) || !HasAccessKey(tab->TabCaption(page), key)) continue;
      if (form.MoveFocus(tab)) tab->SetTab(page);
      return true;
    }
  }
  return false;
}

}  // namespace

void PressKey(Form& form, const KeyStroke& key) {
  if (!IsActive(form)) return;
  const auto keep = form.weak_from_this().lock();
  {
    const ScopedFlag handling = form.HandleKey();
    if (!ActAsDialogKey(form, key)) HandleDownAndPress(form, key);
    // The key comes up again whoever swallowed it, over the control that has the focus by then.
    if (IsActive(form)) {
      int code = key.keyCode;
      if (form.KeyPreview()) form.KeyUp.Fire(code, key.shift);
      if (IsActive(form) && form.ActiveControl()) form.ActiveControl()->KeyUp.Fire(code, key.shift);
    }
  }
  if (form.TakePendingTab() && IsActive(form)) form.FocusNext();
}

bool CanGoOnTyping(const Form& form, const Control& control) {
  return IsActive(form) && form.ActiveControl() == &control;
}

bool PressAccessKey(Form& form, char32_t upperCaseKey) {
  Control* control = form.FindAccessKey(upperCaseKey);
  if (!control) return SwitchPage(form, upperCaseKey);
  switch (control->Kind()) {
    case ControlKind::CommandButton:
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
      // A label in front of a button leads to it without clicking.
      if (control->AccessKey() == upperCaseKey) {
        ClickControl(*control);
        return true;
      }
      break;
    default:
      break;
  }
  form.GoByKey(control);
  return true;
}

void ClickControl(Control& control) {
  Form& form = control.Owner();
  const auto keep = form.weak_from_this().lock();
  if (control.Kind() == ControlKind::Menu) return control.Click.Fire();
  if (!control.Enabled() || !control.IsShown()) return;
  if (control.CanFocus() && !form.MoveFocus(&control)) return;
  control.MouseDown.Fire(kLeftButton, 0);
  if (!IsActive(form)) return;
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    option->SetValue(true);
  } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
    check->SetValue(1 - check->Value());
  } else {
    control.Click.Fire();
  }
  if (IsActive(form)) control.MouseUp.Fire(kLeftButton, 0);
}

}  // namespace controls
