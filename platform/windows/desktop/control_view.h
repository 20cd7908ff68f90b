#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/controls/control.h"
#include "platform/windows/desktop/common_controls.h"

namespace windows {

class FormWindow;

/// The window of one control. Shows the model and forwards what a person does with the mouse; keys come to the model through
/// FormWindow. Holds no rule of the forms.
class ControlView {
 public:
  ControlView(FormWindow& window, controls::Control& model) : window_(window), model_(model) {}
  virtual ~ControlView();
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  HWND Handle() const { return handle_; }
  controls::Control& Model() const { return model_; }
  /// Makes the window, showing what the model says.
  virtual void Create(HWND parent, int id) = 0;
  /// Brings the window up to date with the model.
  virtual void Update(controls::Aspect aspect);
  /// WM_COMMAND's notification code.
  virtual void OnCommand(int code) { (void)code; }
  /// WM_NOTIFY; the answer where there is one.
  virtual std::optional<LRESULT> OnNotify(NMHDR& header) {
    (void)header;
    return std::nullopt;
  }
  /// Whether the window itself is to handle this key message (caret movement, an open list).
  virtual bool WantsNatively(const MSG& message) const {
    (void)message;
    return false;
  }
  /// Takes text and selection over from the window, before and after what it handled itself.
  virtual void Pull() {}
  /// Clipboard by keyboard or menu; false when the control has none.
  virtual bool Copy() { return false; }
  virtual bool Cut() { return false; }
  virtual bool Paste() { return false; }
  virtual bool SelectAll() { return false; }
  /// The tool tip at a point of the window.
  virtual std::string ToolTipAt(POINT point) const {
    (void)point;
    return model_.ToolTipText();
  }
  virtual void MouseMoved(POINT point);
  /// The model has handled a key that came down here: what it reached comes into view.
  virtual void FollowKey(int keyCode) { (void)keyCode; }

 protected:
  HWND CreateChild(HWND parent, int id, const wchar_t* windowClass, const std::string& text, DWORD style,
                   DWORD extendedStyle = 0);
  /// Called with each message before the window's own procedure; an answer suppresses it.
  virtual std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) {
    (void)message, (void)wParam, (void)lParam;
    return std::nullopt;
  }
  /// Whether the right button is the model's. A box that is typed into keeps the system's menu.
  virtual bool OwnsRightButton() const { return true; }
  /// The right button went down: lists select the line below it.
  virtual void RightButtonAt(POINT point) { (void)point; }
  /// Where a menu opens that was asked for by key, in the window's coordinates.
  virtual POINT MenuPlace() const { return {}; }
  FormWindow& Window() const { return window_; }

 private:
  static LRESULT CALLBACK Subclass(HWND handle, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR view);
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void RightClick(int shift);

  FormWindow& window_;
  controls::Control& model_;
  HWND handle_ = nullptr;
  std::string toolTip_;  ///< of the place where the mouse was last
};

/// The view for a model of any kind; null for kinds without a window of their own (menus, picture boxes).
std::unique_ptr<ControlView> MakeView(FormWindow& window, controls::Control& model);

}  // namespace windows
