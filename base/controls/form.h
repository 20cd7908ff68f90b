#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/control.h"
#include "base/controls/desktop.h"
#include "base/controls/scoped_flag.h"
#include "base/late/object.h"
#include "base/vb/error.h"

namespace controls {

class CommandButton;
class Menu;

/// Why a form is about to be unloaded.
enum UnloadMode { kClosedByUser = 0, kClosedByCode = 1 };

/// A modal form: a named set of controls with a life of its own. Lives in a shared_ptr; the object outlives its unloading and is
/// reused: loading gives the controls their design-time state, the class's other fields keep their values. Knows no window: a
/// Desktop shows it.
class Form : public late::Object {
 public:
  Form(controls::Desktop& desktop, std::string name);
  ~Form() override;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  controls::Desktop& Desktop() const { return desktop_; }

  /// Loads unless it is loaded: controls reset, Design, the Load handler. Does not show the form.
  void Load();
  bool IsLoaded() const { return state_ != State::Unloaded; }
  bool IsShown() const { return shown_; }
  /// Shows the form modally and returns when it is closed. Error 400 when it is shown already.
  void Show(Form* owner = nullptr);
  /// Asks QueryUnload, which may keep it open, then unloads. Whether it is unloaded now (also when it was not loaded).
  bool Unload();
  /// The title bar's close; the same as Unload, but QueryUnload gets kClosedByUser.
  bool CloseByUser();

  const std::string& Caption() const;
  void SetCaption(std::string_view caption);
  /// Size of the inner area in twips.
  int Width() const { return width_; }
  int Height() const { return height_; }
  void SetSize(int width, int height);
  bool IsResizable() const { return resizable_; }
  void SetResizable(bool resizable) { resizable_ = resizable; }
  bool KeyPreview() const { return keyPreview_; }
  void SetKeyPreview(bool preview) { keyPreview_ = preview; }
  Color BackColor() const;
  void SetBackColor(Color color);
  /// 0 default, 11 hourglass.
  int MousePointer() const { return mousePointer_; }
  void SetMousePointer(int pointer);
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }

  /// All controls in the order they were made (menus included).
  const std::vector<Control*>& Controls() const { return controls_; }
  /// By name without regard to case; null when there is none.
  Control* FindControl(std::string_view name) const;
  /// Controls in tab order (tab index, then order of making), frames, labels and menus included.
  std::vector<Control*> TabOrder() const;
  Control* ActiveControl() const { return activeControl_; }
  CommandButton* DefaultButton() const;
  CommandButton* CancelButton() const;

  /// Moves the focus: validates and leaves the control that has it, enters `control` (null for none). False when validation kept
  /// it.
  bool MoveFocus(Control* control);
  /// The next (previous) control that can take the focus, wrapping around at the end; null when none can.
  Control* NextInTabOrder(const Control* from, bool backwards = false) const;
  void FocusNext();
  /// The same as the Tab key goes: a group of options is one stop, its chosen option, the first where none is chosen.
  Control* NextTabStop(const Control* from, bool backwards = false) const;
  void TabOn(bool backwards = false);
  /// What Tab and access keys do: moves the focus, and tells the desktop that it came by key.
  void GoByKey(Control* control);
  /// The keystroke {TAB} sent to the form goes to the very next control: carried out when the key being handled is finished
  /// (PressKey does it), at once outside of one.
  void SendTab();
  bool TakePendingTab();
  /// Held while a key of this form is handled.
  ScopedFlag HandleKey() { return ScopedFlag(handlingKey_); }

  /// The control that an access key reaches (a label's is the next control that can take the focus); null when there is none.
  Control* FindAccessKey(char32_t upperCaseKey) const;

  Answer MsgBox(std::string_view text, int style, std::string_view title);
  /// Shows the menu's entries where the mouse is and fires Click of the one chosen; returns it, or null.
  Menu* PopupMenu(Menu& menu);

  Event<> Loading;                       ///< the form's load handler
  Event<> Activated;                     ///< shown, or the focus came back from another form of the component
  Event<bool&, UnloadMode> QueryUnload;  ///< set true to stay open
  Event<> Unloading;
  Event<int&, int> KeyDown;  ///< with key preview, before the control
  Event<int&> KeyPress;
  Event<int&, int> KeyUp;
  Event<> HelpRequested;  ///< F1, unless a KeyDown handler swallowed it

  /// A session global or field that tools may read by name ("lngCurrentLine"); null value when unknown.
  using FieldReader = std::function<late::Value()>;
  void PublishField(std::string name, FieldReader reader);

  // Called by the desktop.
  void BecomeActive();  ///< fires Activated, then gives the first control the focus if none has it
  void SetShown(bool shown) { shown_ = shown; }
  /// The showing ended although the form is not unloaded: its window is gone, an error broke it off, it refused too often. The
  /// next Show loads it afresh; until then what it holds can still be read.
  void Abandon() { abandoned_ = true; }

  // Late-bound face: classic members, then controls and published fields by name.
  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override;
  bool Has(std::string_view member) const override;
  std::string TypeName() const override { return name_; }

 protected:
  /// Puts the controls into their design-time state (captions, positions, columns); runs before the load handler.
  virtual void Design() = 0;
  /// What the trap around every handler does with a run-time error.
  virtual void ReportError(std::string_view routine, const vb::RunTimeError& error) = 0;

  /// Runs `work`; a run-time error is reported under the routine's name and ends it. Whether it ran to its end.
  bool Trap(std::string_view routine, const std::function<void()>& work);

  /// Wires an event to a handler with a trap around it: On(cmdOK.Click, "cmdOK_Click", &frmRequest::cmdOK_Click).
  template <class... A, class Derived>
  void On(Event<A...>& event, std::string routine, void (Derived::*handler)(A...)) {
    event.Wire([this, routine = std::move(routine), handler](A... arguments) {
      Trap(routine, [&] { (static_cast<Derived*>(this)->*handler)(arguments...); });
    });
  }
  /// The same for a handler that is a lambda or function object.
  template <class... A, class Handler>
  void On(Event<A...>& event, std::string routine, Handler handler) {
    event.Wire([this, routine = std::move(routine), handler = std::move(handler)](A... arguments) {
      Trap(routine, [&] { handler(arguments...); });
    });
  }

 private:
  friend class Control;
  enum class State { Unloaded, Designing, Loaded };
  void Register(Control& control);
  void Forget(Control& control);
  /// Loads an unloaded form whose property or control is touched; not while the object is being made or destroyed.
  void EnsureLoaded() const;
  bool IsActive() const;
  /// SetFocus from code: at once on the active form, otherwise when the form becomes active.
  void RequestFocus(Control& control);
  /// Moves the focus on when the control that has it can no longer keep it. No validation.
  void LeaveUnreachable();
  Control* FirstAfter(const Control* from, bool backwards, const std::function<bool(const Control&)>& suits) const;
  bool Leave(Control& left, Control* entered, unsigned move);
  void Enter(Control* control);
  bool CloseWith(UnloadMode mode);
  void BecomeUnloaded();

  controls::Desktop& desktop_;
  std::string name_;
  State state_ = State::Unloaded;
  bool shown_ = false;
  bool closing_ = false;
  bool abandoned_ = false;
  std::string caption_;
  int width_ = 0, height_ = 0;
  bool resizable_ = false;
  bool keyPreview_ = false;
  Color backColor_ = kButtonFace;
  int mousePointer_ = 0;
  std::string tag_;
  std::vector<Control*> controls_;
  Control* activeControl_ = nullptr;
  Control* requestedFocus_ = nullptr;  // waits for the form to become active
  Control* leaving_ = nullptr;         // its validate or lost-focus handler is running
  unsigned focusMoves_ = 0;            // counts moves, so that a handler's own move wins over the one it interrupts
  bool pendingTab_ = false;
  bool handlingKey_ = false;
  std::vector<std::pair<std::string, FieldReader>> fields_;
};

/// Shows the hourglass on a form for as long as it lives.
class Hourglass {
 public:
  explicit Hourglass(Form& form);
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  std::shared_ptr<late::Object> keep_;
  Form& form_;
  int before_;
};

}  // namespace controls
