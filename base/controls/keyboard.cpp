#include "base/controls/keyboard.h"

#include "base/controls/buttons.h"
#include "base/controls/tab_control.h"
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

/// The pages that Ctrl+Tab turns: those around the focus, else the form's first ones. Null when there are none.
TabControl* PagesToTurn(const Form& form) {
  for (Control* control = form.ActiveControl(); control; control = control->Container()) {
    if (auto* tab = As<TabControl>(control)) return tab;
  }
  for (Control* control : form.TabOrder()) {
    auto* tab = As<TabControl>(control);
    if (tab && tab->CanFocus()) return tab;
  }
  return nullptr;
}

/// The page after (before) the current one that can be seen, wrapping around; the current one when it is the only one.
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
    if (auto* focused = As<CommandButton>(form.ActiveControl())) button = focused;
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
    if (code == kKeyF1 && key.shift == 0) return form.HelpRequested.Fire();
    if ((key.shift & kAlt) == 0 && form.ActiveControl()) form.ActiveControl()->OnKey(code, key.shift);
    if (!IsActive(form)) return;
  }
  if ((key.shift & kAlt) != 0) {
    PressAccessKey(form, key.keyCode != 0 ? static_cast<char32_t>(key.keyCode) : key.character);
    return;
  }
  if (key.character == 0) return;
  int character = static_cast<int>(key.character);
  if (FireKeyPress(form, character) && form.ActiveControl()) form.ActiveControl()->OnCharacter(character);
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
    auto* tab = As<TabControl>(control);
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
    // The key-up follows even when the key-down was swallowed, and goes to the control that has the focus by then.
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
      // A label before a button leads to it without clicking.
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
  control.ClickedByPerson();
  if (IsActive(form)) control.MouseUp.Fire(kLeftButton, 0);
}

void RightClickControl(Control& control, int shift) {
  Form& form = control.Owner();
  const auto keep = form.weak_from_this().lock();
  if (control.CanFocus() && !control.HasFocus() && !form.MoveFocus(&control)) return;
  control.MouseDown.Fire(kRightButton, shift);
  if (form.IsShown()) control.MouseUp.Fire(kRightButton, shift);
}

}  // namespace controls
