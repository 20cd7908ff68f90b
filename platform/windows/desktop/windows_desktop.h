#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "base/controls/desktop.h"
#include "platform/windows/windows_gate.h"

namespace windows {

class FormWindow;

/// The desktop of real windows: one nested message loop a modal form. Belongs to one thread.
class WindowsDesktop : public controls::Desktop {
 public:
  WindowsDesktop();
  ~WindowsDesktop() override;

  controls::Answer MsgBox(controls::Form* owner, const controls::Message& message) override;
  controls::Menu* PopupMenu(controls::Form& form, controls::Menu& menu) override;
  void DoEvents() override;
  bool IsHighContrast() const override;
  void KeepWhileShown(std::string_view title, const std::vector<late::ObjectPtr>& objects,
                      const std::function<void()>& open) override;
  /// Once a message: a pasted text that is refused throughout sounds it once.
  void Beep() override;
  std::string ClipboardText() const override;
  void PutOnClipboard(const std::string& text) override;
  long RowsShown(const controls::Control& list) const override;

  void Changed(controls::Control& control, controls::Aspect aspect) override;
  void FormChanged(controls::Form& form) override;
  void FocusMoved(controls::Form& form, controls::Control* control) override;
  void EnteredByKey(controls::Control& control) override;
  void PointerChanged(controls::Form& form, bool hourglass) override;

  /// The window of a form, or of a control of one; null while it is not on the screen.
  HWND HandleOf(const controls::Form& form) const;
  HWND HandleOf(const controls::Control& control) const;

  bool IsWaiting() const { return hourglasses_ > 0; }
  /// Runs work that came from a window procedure; an exception waits for the message loop to raise it again.
  void Guarded(const std::function<void()>& work);

 protected:
  void Opening(controls::Form& form, controls::Form* owner) override;
  void RunModal(controls::Form& form) override;
  void Closed(controls::Form& form) override;

 private:
  struct Showing {
    std::unique_ptr<FormWindow> window;
    HWND owner = nullptr;
    int depth = 0;               ///< window procedures that were under way when it opened
    std::vector<HWND> disabled;  ///< the thread's windows that this form disabled, to be enabled again
  };
  FormWindow* WindowOf(const controls::Form& form) const;
  /// What a window on top of this form belongs to: the form's window, the host's active one when it has none, the host's main
  /// window when none is active.
  HWND OwnerFor(const controls::Form* form) const;
  /// Whether an open form's window was destroyed by another party. It is closed as soon as the forms above it are; until then
  /// nothing more is shown and messages answer themselves by their default button.
  bool IsCutOff() const;
  void CloseUnasked(controls::Form& form);
  /// Hands a message to the form on top or to the system.
  void Dispatch(MSG& message);
  void RaisePending();
  void DestroyLeaving();

  std::map<const controls::Form*, Showing> showings_;
  std::vector<Showing> leaving_;  // closed inside one of their own window procedures, which must end first
  int depth_ = 0;                 // window procedures under way
  int hourglasses_ = 0;
  bool hasBeeped_ = false;  // since the last message
  std::exception_ptr pending_;
};

}  // namespace windows
