#include "platform/windows/desktop/control_view.h"

#include <utility>

#include "base/controls/keyboard.h"
#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/desktop/window_class.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

int ShiftState(WPARAM mouseKeys) {
  return ((mouseKeys & MK_SHIFT) != 0 ? controls::kShift : 0) | ((mouseKeys & MK_CONTROL) != 0 ? controls::kCtrl : 0);
}

}  // namespace

ControlView::~ControlView() {
  if (handle_ == nullptr) return;
  const HWND handle = std::exchange(handle_, nullptr);
  RemoveWindowSubclass(handle, &ControlView::Subclass, 1);
  DestroyWindow(handle);
}

HWND ControlView::CreateChild(HWND parent, int id, const wchar_t* windowClass, const std::string& text, DWORD style,
                              DWORD extendedStyle) {
  SetLastError(ERROR_SUCCESS);
  handle_ = CreateWindowExW(extendedStyle, windowClass, Wide(text).c_str(), style | WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 10, 10,
                            parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ThisModule(), nullptr);
  if (handle_ == nullptr) RaiseNoWindow(model_.Name());
  Send(handle_, WM_SETFONT, window_.Measures().Font(), FALSE);
  SetWindowSubclass(handle_, &ControlView::Subclass, 1, reinterpret_cast<DWORD_PTR>(this));
  return handle_;
}

void ControlView::Update(controls::Aspect aspect) {
  switch (aspect) {
    case controls::Aspect::Enabled:
    case controls::Aspect::Visible:
    case controls::Aspect::Position:
    case controls::Aspect::Layout:
      window_.Arrange();
      break;
    case controls::Aspect::Colors:
      InvalidateRect(handle_, nullptr, TRUE);
      break;
    default:
      break;
  }
}

void ControlView::MouseMoved(POINT) {
  model_.MouseMove.Fire();
}

void ControlView::RightClick(int shift) {
  // The window may be gone once the handlers have run, so nothing of it is touched afterwards.
  controls::RightClickControl(model_, shift);
}

LRESULT CALLBACK ControlView::Subclass(HWND handle, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
  auto* view = reinterpret_cast<ControlView*>(data);
  if (message == WM_NCDESTROY) {
    // Whoever destroyed it: the handle may soon be another window's.
    RemoveWindowSubclass(handle, &ControlView::Subclass, 1);
    view->handle_ = nullptr;
    return DefSubclassProc(handle, message, wParam, lParam);
  }
  std::optional<LRESULT> answer;
  if (view->window_.IsRetired()) return DefSubclassProc(handle, message, wParam, lParam);
  view->window_.Guarded([&] { answer = view->Handle(message, wParam, lParam); });
  return answer ? *answer : DefSubclassProc(handle, message, wParam, lParam);
}

std::optional<LRESULT> ControlView::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETFOCUS:
      window_.FocusArrived(*this);
      break;
    case WM_MOUSEMOVE: {
      const POINT point = MousePoint(lParam);
      MouseMoved(point);
      // The system keeps the tip of a window, whichever cell the mouse moves to.
      if (std::string tip = ToolTipAt(point); tip != toolTip_) {
        toolTip_ = std::move(tip);
        window_.PopToolTip();
      }
      break;
    }
    case WM_RBUTTONDOWN:
      if (!OwnsRightButton()) break;
      RightButtonAt(MousePoint(lParam));
      return 0;
    case WM_RBUTTONUP:
      if (!OwnsRightButton()) break;
      window_.OpenNextMenuAt(std::nullopt);
      RightClick(ShiftState(wParam));
      return 0;
    case WM_CONTEXTMENU:
      // The menu key and Shift+F10 do what the right button does; the box of a text keeps its own menu.
      if (!OwnsRightButton()) break;
      if (lParam == -1) {
        POINT place = MenuPlace();
        ClientToScreen(handle_, &place);
        window_.OpenNextMenuAt(place);
        RightClick(0);
      }
      return 0;
    default:
      break;
  }
  return Intercept(message, wParam, lParam);
}

}  // namespace windows
