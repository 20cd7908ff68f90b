// Where a form's controls are in its window, and when changes of the models reach their windows.

#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/messages.h"

namespace windows {
namespace {

using controls::Aspect;
using controls::ControlKind;

/// Makes the field of a combo as high as its place, so that it lines up with the text boxes beside it.
void FitCombo(HWND combo, LONG height) {
  RECT window{};
  GetWindowRect(combo, &window);
  const auto field = static_cast<LONG>(Send(combo, CB_GETITEMHEIGHT, -1));
  const LONG wanted = field + height - (window.bottom - window.top);
  if (wanted > 0 && wanted != field) Send(combo, CB_SETITEMHEIGHT, -1, wanted);
}

}  // namespace

void FormWindow::UpdateControl(controls::Control& control, Aspect aspect) {
  const ControlKind kind = control.Kind();
  // Texts follow at once, so that a person's next key meets them; lists and grids change thousands of times before they are
  // looked at.
  const bool atOnce = kind == ControlKind::TextBox || (kind == ControlKind::ComboBox && aspect != Aspect::Items);
  if (atOnce && (aspect == Aspect::Text || aspect == Aspect::Selection)) {
    if (ControlView* view = ViewOf(&control)) view->Update(aspect);
    return;
  }
  if (kind == ControlKind::PictureBox) Arrange();
  dirty_.insert({&control, aspect});
  if (!std::exchange(flushPosted_, true)) PostMessageW(handle_, kFlushMessage, 0, 0);
}

void FormWindow::Arrange() {
  arrange_ = true;
  if (!std::exchange(flushPosted_, true)) PostMessageW(handle_, kFlushMessage, 0, 0);
}

void FormWindow::Flush() {
  flushPosted_ = false;
  for (const Dirty& change : std::exchange(dirty_, {})) {
    if (ControlView* view = ViewOf(change.control)) view->Update(change.aspect);
  }
  if (std::exchange(arrange_, false)) Place();
}

RECT FormWindow::PlaceOf(const controls::Control& control) const {
  const controls::Position& place = control.Place();
  int left = place.left;
  int top = place.top;
  for (const controls::Control* container = control.Container(); container != nullptr; container = container->Container()) {
    left += container->Place().left;
    top += container->Place().top;
  }
  const RECT moved = EdgesMoved(&control);
  return {metrics_.Pixels(left) + moved.left, metrics_.Pixels(top) + moved.top, metrics_.Pixels(left + place.width) + moved.right,
          metrics_.Pixels(top + place.height) + moved.bottom};
}

RECT FormWindow::EdgesMoved(const controls::Control* control) const {
  if (control == nullptr) {
    RECT client{};
    GetClientRect(handle_, &client);
    return {0, 0, client.right - metrics_.Pixels(form_.Width()), client.bottom - metrics_.Pixels(form_.Height())};
  }
  const RECT around = EdgesMoved(control->Container());
  const int anchors = control->Anchors();
  const bool right = (anchors & controls::kAnchorRight) != 0;
  const bool bottom = (anchors & controls::kAnchorBottom) != 0;
  const bool left = !right || (anchors & controls::kAnchorLeft) != 0;
  const bool top = !bottom || (anchors & controls::kAnchorTop) != 0;
  return {left ? around.left : around.right, top ? around.top : around.bottom, right ? around.right : around.left,
          bottom ? around.bottom : around.top};
}

void FormWindow::Place() {
  for (const auto& view : views_) {
    controls::Control& control = view->Model();
    const RECT rect = PlaceOf(control);
    // A window that keeps its place is not redrawn.
    if (RECT& placed = placed_[view.get()]; !EqualRect(&placed, &rect)) {
      placed = rect;
      // A combo's height includes its list.
      const bool isCombo = control.Kind() == ControlKind::ComboBox;
      const LONG height = isCombo ? metrics_.Pixels(3600) : rect.bottom - rect.top;
      SetWindowPos(view->Handle(), nullptr, rect.left, rect.top, rect.right - rect.left, height, SWP_NOZORDER | SWP_NOACTIVATE);
      if (isCombo) FitCombo(view->Handle(), rect.bottom - rect.top);
    }
    bool enabled = control.Enabled();
    for (controls::Control* c = control.Container(); c != nullptr; c = c->Container()) enabled = enabled && c->Enabled();
    if (IsWindowEnabled(view->Handle()) != (enabled ? TRUE : FALSE)) EnableWindow(view->Handle(), enabled);
    const bool isVisible = (GetWindowLongW(view->Handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (isVisible != control.IsShown()) ShowWindow(view->Handle(), isVisible ? SW_HIDE : SW_SHOWNA);
  }
}

}  // namespace windows
