#include "base/controls/combo_box.h"
#include "base/controls/keyboard.h"
#include "base/controls/list_view.h"
#include "base/controls/text_box.h"
#include "base/vb/text.h"
#include "platform/console/acting_commands.h"
#include "platform/console/control_finder.h"
#include "platform/console/escape.h"

namespace console {
namespace {

using controls::Control;

/// The control as one whose text a person types into; null for another, and for a combo box that only picks.
controls::TextEntry* EntryOf(Control& control) {
  if (auto* combo = controls::As<controls::ComboBox>(&control)) return combo->IsEditable() ? combo : nullptr;
  return controls::As<controls::TextBox>(&control);
}

void MoveToEnd(controls::TextEntry& entry) {
  entry.SetSelStart(static_cast<int>(vb::Len(entry.Text())));
}

/// False when a handler keeps the focus elsewhere or closes the form: then nothing more of the command reaches the control.
bool TakeFocus(Control& control) {
  controls::Form& form = control.Owner();
  return control.HasFocus() || (form.MoveFocus(&control) && controls::CanGoOnTyping(form, control));
}

controls::KeyStroke StrokeOf(std::string_view text, std::size_t& offset) {
  controls::KeyStroke key;
  const std::size_t start = offset;
  const char32_t character = vb::NextCharacter(text, offset);
  if (character == U'\r' && offset < text.size() && text[offset] == '\n') ++offset;
  if (character == U'\r' || character == U'\n') {
    controls::ParseKey("Enter", key);
  } else if (character == U'\t') {
    controls::ParseKey("Tab", key);
  } else if (!controls::ParseKey(text.substr(start, offset - start), key)) {
    key.character = character;
  }
  return key;
}

/// Presses the characters one after another; a message, or a handler that moves the focus on, ends it.
void TypeCharacters(TextDesktop& desktop, Control& control, std::string_view text) {
  const int messages = desktop.MessagesOpened();
  controls::Form& form = control.Owner();
  for (std::size_t offset = 0; offset < text.size();) {
    controls::PressKey(form, StrokeOf(text, offset));
    if (desktop.MessagesOpened() != messages || !controls::CanGoOnTyping(form, control)) return;
  }
}

void Focus(TextDesktop& desktop, Words& words) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  words.End();
  TakeFocus(control);
}

void Type(TextDesktop& desktop, Words& words) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  if (!TakeFocus(control)) return;
  if (auto* entry = EntryOf(control); entry && entry->SelLength() == 0) MoveToEnd(*entry);
  TypeCharacters(desktop, control, words.Text());
}

controls::TextEntry& NeedEntry(Control& control) {
  if (auto* entry = EntryOf(control)) return *entry;
  throw CommandError(control.Name() + " takes no text");
}

void Set(TextDesktop& desktop, Words& words) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  controls::TextEntry& entry = NeedEntry(control);
  if (!TakeFocus(control)) return;
  entry.SelectAll();
  if (const std::string text = words.Text(); !text.empty()) {
    TypeCharacters(desktop, control, text);
  } else if (!entry.Text().empty()) {
    controls::KeyStroke erase;
    controls::ParseKey("Delete", erase);
    controls::PressKey(control.Owner(), erase);
  }
}

void Paste(TextDesktop& desktop, Words& words) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  if (auto* list = controls::As<controls::ListView>(&control)) {
    if (TakeFocus(control)) list->Pasted.Fire(words.Text());
    return;
  }
  controls::TextEntry& entry = NeedEntry(control);
  if (!TakeFocus(control)) return;
  MoveToEnd(entry);
  entry.Paste(words.Text());
}

void Press(TextDesktop& desktop, Words& words) {
  Control& control = ControlToFocus(desktop, words.Need("a control"));
  if (!words.HasText()) throw CommandError("the key is missing");
  const std::string text = words.Text();
  const std::string_view name = vb::Trim(text).empty() ? std::string_view(text) : vb::Trim(text);
  controls::KeyStroke key;
  if (name == " ") {
    key = {controls::kKeySpace, 0, U' '};
  } else if (!controls::ParseKey(name, key)) {
    throw CommandError("no key " + Quote(name));
  }
  if (TakeFocus(control)) controls::PressKey(control.Owner(), key);
}

}  // namespace

CommandGroup KeyboardCommands(TextDesktop& desktop) {
  using Run = void (*)(TextDesktop&, Words&);
  const auto on = [&desktop](Run run) { return [&desktop, run](Words& words) { run(desktop, words); }; };
  CommandGroup group{"With the keyboard", {}};
  const auto add = [&](std::string_view verb, std::string_view arguments, std::string_view purpose, auto run) {
    group.commands.push_back({verb, arguments, purpose, Moment::FormActive, std::move(run)});
  };
  add("focus", "NAME", "move the focus there", on(Focus));
  add("type", "NAME TEXT", "at the end of the text, or over what is selected", on(Type));
  add("set", "NAME [TEXT]", "over the whole text", on(Set));
  add("paste", "NAME TEXT", "at the end of the text, or into a list", on(Paste));
  add("press", "NAME KEY", "Enter, Esc, Tab, Delete, Up, F3, Shift+F3, Ctrl+D, Alt+X ...", on(Press));
  return group;
}

}  // namespace console
