#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/controls/form.h"
#include "base/controls/keyboard.h"
#include "platform/windows/desktop/control_view.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/desktop/metrics.h"
#include "platform/windows/handles.h"

namespace windows {

class WindowsDesktop;

/// The window of one form: its frame, the views of its controls, focus, keys, tool tips and growing. Lives from the form's
/// showing to its closing.
class FormWindow {
 public:
  /// Raises error 7 when the system, or a hook of the host's, refuses the window or one inside it.
  FormWindow(WindowsDesktop& desktop, controls::Form& form, HWND owner);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  HWND Handle() const { return handle_; }
  controls::Form& Form() const { return form_; }
  const Metrics& Measures() const { return metrics_; }

  void Show();
  /// The form has left the screen: the window may wait for its destruction, but no message of it reaches the model any more.
  void Retire();
  bool IsRetired() const { return retired_; }
  /// Whether another party has destroyed the window: as a rule the one that destroys its owner.
  bool IsGone() const { return gone_; }
  /// Caption, size and colour from the model.
  void UpdateFrame();
  void UpdateControl(controls::Control& control, controls::Aspect aspect);
  void FocusMoved(controls::Control* control);
  /// Positions, visibility and enabled state of all controls, once the messages at hand are done.
  void Arrange();
  /// A key message for this form: handled by the model's keyboard, by the control's window (then its text is taken over), or not
  /// at all (false).
  bool HandleKey(const MSG& message);
  /// A window got the system's focus, by mouse mostly: the model follows, or takes it back.
  void FocusArrived(ControlView& view);
  /// Runs work that came from a window procedure: no exception passes through the system, it waits for the message loop.
  void Guarded(const std::function<void()>& work);
  ControlView* ViewOf(const controls::Control* control) const;
  /// Takes the tool tip away until the mouse rests again.
  void PopToolTip() const { Send(toolTips_, TTM_POP); }
  /// Where on the screen the form's next menu opens: at the line that a key was pressed on, else at the mouse.
  void OpenNextMenuAt(std::optional<POINT> place) { menuPlace_ = place; }
  std::optional<POINT> TakeMenuPlace() { return std::exchange(menuPlace_, std::nullopt); }

 private:
  struct Dirty {
    controls::Control* control;
    controls::Aspect aspect;
    auto operator<=>(const Dirty&) const = default;  // NOLINT(modernize-use-nullptr): mistaken for a comparison with 0
  };

  static constexpr UINT kFlushMessage = WM_APP + 1;

  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
  bool Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer);
  LRESULT Paint(UINT message, WPARAM wParam, LPARAM lParam);
  bool Notify(NMHDR& header, LRESULT& answer);
  void Destroy();
  /// Another party destroys the window: the form is closed once the messages at hand are done.
  void BecomeGone();
  void CreateViews();
  void CreateToolTips();
  void ShowToolTip(NMTTDISPINFOW& info);
  void Flush();
  /// Not by the person: FocusArrived does nothing.
  void FocusWindow(HWND window);
  void Place();
  /// The form and all forms above it, once the messages at hand are done.
  void Redraw();
  RECT PlaceOf(const controls::Control& control) const;
  /// How far each edge of a control, or of the form for null, is from where it was designed, in pixels: an edge follows the
  /// edge of the container that it is anchored to.
  RECT EdgesMoved(const controls::Control* control) const;
  ControlView* ViewOf(HWND child) const;
  /// Joins the two halves in which the system may hand over a character; 0 for the first of them.
  char32_t Whole(char32_t unit);
  bool RunClipboardKey(ControlView& view, WPARAM key, bool control, bool shift);
  void RunNatively(ControlView& view, const MSG& message);
  void PressKeyAndFollow(const controls::KeyStroke& key);
  HBRUSH BrushFor(controls::Color color);

  WindowsDesktop& desktop_;
  controls::Form& form_;
  std::shared_ptr<late::Object> keep_;
  Metrics metrics_;
  HWND handle_ = nullptr;
  HWND toolTips_ = nullptr;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::map<HWND, ControlView*> viewByHandle_;
  std::map<const ControlView*, RECT> placed_;  // in pixels of the window
  std::map<controls::Color, Owned<HBRUSH>> brushes_;
  std::set<Dirty> dirty_;
  bool flushPosted_ = false;
  bool arrange_ = false;
  bool movingFocus_ = false;
  bool retired_ = false;
  bool gone_ = false;
  SIZE designSize_{};
  char32_t firstHalf_ = 0;
  std::wstring toolTipText_;
  std::optional<POINT> menuPlace_;
};

}  // namespace windows
