#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/control.h"
#include "base/controls/message_box.h"

namespace controls {

class Form;
class Menu;

/// Shows forms to a user: real windows, text, or a test's script. Holds no rules of the forms. The base class keeps the
/// stack of modal forms and the order of events; derived classes show and drive them.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// The order of a modal showing: Opening, the form's activation, Opened, RunModal until the form is unloaded, then the form
  /// below (if any) is activated again. A form that is unloaded during its activation is not run.
  void ShowModal(Form& form, Form* owner);
  /// Called by Form once it is unloaded.
  void Unloaded(Form& form);
  /// The form on top, null for none.
  Form* ActiveForm() const { return stack_.empty() ? nullptr : stack_.back(); }
  const std::vector<Form*>& Stack() const { return stack_; }

  virtual Answer MsgBox(Form* owner, const Message& message) = 0;
  /// Shows the visible entries; returns the chosen one, or null. Its Click is fired by Form::PopupMenu.
  virtual Menu* PopupMenu(Form& form, Menu& menu) = 0;
  /// Lets pending events run.
  virtual void DoEvents() {}
  /// Runs `open`, which has another component show a window with this title, and keeps that component's objects for as long as
  /// the window is there. Where there are no windows they are released at once.
  virtual void KeepWhileShown(std::string_view title, const std::vector<late::ObjectPtr>& objects,
                              const std::function<void()>& open) {
    (void)title, (void)objects;
    open();
  }
  /// Whether the person has asked the system for colours of high contrast; nothing should be coloured over them then.
  virtual bool IsHighContrast() const { return false; }
  /// The system's alarm, for typed input that is refused.
  virtual void Beep() {}
  /// The text on the system's clipboard, empty when it holds none. Where there is no system's, what was put there last.
  virtual std::string ClipboardText() const { return clipboard_; }
  virtual void PutOnClipboard(const std::string& text) { clipboard_ = text; }
  /// How many rows of a list or grid a person sees at once: so far a page key goes. Every desktop that draws them knows better.
  virtual long RowsShown(const Control&) const { return 10; }

  // Notes about what the model did; the default desktop ignores them.
  virtual void Changed(Control&, Aspect) {}
  virtual void FormChanged(Form&) {}
  virtual void FocusMoved(Form&, Control*) {}
  /// The focus came to the control by Tab or by its access key.
  virtual void EnteredByKey(Control&) {}
  virtual void PointerChanged(Form&, bool hourglass) { (void)hourglass; }

 protected:
  virtual void Opening(Form&, Form* owner) { (void)owner; }
  virtual void Opened(Form&) {}
  /// Works until `form` is no longer shown (or the desktop gives up). Not "loaded": a handler that goes on after unloading its
  /// form may touch a control and so load it again, unseen.
  virtual void RunModal(Form& form) = 0;
  /// The form left the screen: it was unloaded, or its showing ended with an exception.
  virtual void Closed(Form&) {}

 private:
  void Drop(Form& form);

  std::vector<Form*> stack_;
  std::string clipboard_;
};

}  // namespace controls
