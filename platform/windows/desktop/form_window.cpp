#include "platform/windows/desktop/form_window.h"

#include <algorithm>

#include "base/controls/scoped_flag.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/desktop/window_class.h"
#include "platform/windows/desktop/windows_desktop.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

using controls::Aspect;
using controls::ControlKind;

constexpr UINT kReturnFocus = WM_APP + 2;
constexpr int kFirstId = 100;
constexpr DWORD kExtendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

DWORD FrameStyle(const controls::Form& form) {
  const DWORD frame = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
  return form.IsResizable() ? frame | WS_THICKFRAME | WS_MAXIMIZEBOX : frame;
}

/// The part of a window's screen that windows may cover; of the first screen where there is no window.
RECT ScreenAround(HWND window) {
  MONITORINFO screen{};
  screen.cbSize = sizeof(screen);
  GetMonitorInfoW(MonitorFromWindow(window, window != nullptr ? MONITOR_DEFAULTTONEAREST : MONITOR_DEFAULTTOPRIMARY), &screen);
  return screen.rcWork;
}

/// The resolution that a form is shown in on this screen.
int DpiFor(const controls::Form& form, const RECT& screen) {
  RECT frame{};
  AdjustWindowRectEx(&frame, FrameStyle(form), FALSE, kExtendedStyle);
  const SIZE room{screen.right - screen.left - (frame.right - frame.left),
                  screen.bottom - screen.top - (frame.bottom - frame.top)};
  // A resizable form gives way in its lists' height.
  return FittingDpi(ScreenDpi(), room, form.Width(), form.IsResizable() ? 0 : form.Height());
}

/// Frames and tabs are drawn below the controls on them.
bool IsBackdrop(const controls::Control& control) {
  return control.Kind() == ControlKind::Frame || control.Kind() == ControlKind::TabControl;
}

}  // namespace

FormWindow::FormWindow(WindowsDesktop& desktop, controls::Form& form, HWND owner)
    : desktop_(desktop), form_(form), keep_(form.weak_from_this().lock()), metrics_(DpiFor(form, ScreenAround(owner))) {
  RECT frame{0, 0, metrics_.Pixels(form.Width()), metrics_.Pixels(form.Height())};
  AdjustWindowRectEx(&frame, FrameStyle(form), FALSE, kExtendedStyle);
  designSize_ = {frame.right - frame.left, frame.bottom - frame.top};
  if (form.IsResizable()) {
    // On a small screen the lists are shorter, so that the buttons below them can be reached.
    const RECT screen = ScreenAround(owner);
    designSize_ = {std::min(designSize_.cx, screen.right - screen.left), std::min(designSize_.cy, screen.bottom - screen.top)};
  }
  SetLastError(ERROR_SUCCESS);
  handle_ = CreateWindowExW(kExtendedStyle, FormClassName(&FormWindow::Procedure), Wide(form.Caption()).c_str(), FrameStyle(form),
                            0, 0, designSize_.cx, designSize_.cy, owner, nullptr, ThisModule(), this);
  if (handle_ == nullptr) RaiseNoWindow(form.Name());
  for (const WPARAM size : {WPARAM{ICON_SMALL}, WPARAM{ICON_BIG}}) Send(handle_, WM_SETICON, size, FormIcon(size));
  try {
    CreateViews();
    CreateToolTips();
    Place();
  } catch (...) {
    Destroy();
    throw;
  }
}

FormWindow::~FormWindow() {
  Destroy();
}

void FormWindow::Destroy() {
  retired_ = true;
  views_.clear();
  if (!gone_) {
    if (toolTips_ != nullptr) DestroyWindow(toolTips_);
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    DestroyWindow(handle_);
  }
}

void FormWindow::CreateViews() {
  // In tab order, so that a label comes before its box: screen readers name the box by it. Made later is lower: the backdrops
  // come last.
  std::vector<controls::Control*> models = form_.TabOrder();
  std::stable_sort(models.begin(), models.end(), [](auto* a, auto* b) { return IsBackdrop(*a) < IsBackdrop(*b); });
  int id = kFirstId;
  for (controls::Control* model : models) {
    auto view = MakeView(*this, *model);
    if (!view) continue;
    view->Create(handle_, id++);
    viewByHandle_[view->Handle()] = view.get();
    views_.push_back(std::move(view));
  }
}

void FormWindow::CreateToolTips() {
  SetLastError(ERROR_SUCCESS);
  toolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, handle_, nullptr, ThisModule(), nullptr);
  if (toolTips_ == nullptr) RaiseNoWindow(form_.Name());
  // Long texts break into lines.
  Send(toolTips_, TTM_SETMAXTIPWIDTH, 0, metrics_.Pixels(6000));
  for (const auto& view : views_) {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = handle_;
    tool.uId = reinterpret_cast<UINT_PTR>(view->Handle());
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    Send(toolTips_, TTM_ADDTOOLW, 0, &tool);
  }
}

void FormWindow::Show() {
  const HWND owner = GetWindow(handle_, GW_OWNER);
  const RECT screen = ScreenAround(owner);
  RECT around = screen;
  if (owner != nullptr && IsWindowVisible(owner)) GetWindowRect(owner, &around);
  // Over the middle of its owner, but never beyond an edge of the screen; the title stays in reach in any case.
  const auto place = [](LONG from, LONG to, LONG size, LONG first, LONG last) {
    return std::max(first, std::min(from + (to - from - size) / 2, last - size));
  };
  const int left = place(around.left, around.right, designSize_.cx, screen.left, screen.right);
  const int top = place(around.top, around.bottom, designSize_.cy, screen.top, screen.bottom);
  SetWindowPos(handle_, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  ShowWindow(handle_, SW_SHOW);
  UpdateWindow(handle_);
}

void FormWindow::Retire() {
  retired_ = true;
  ShowWindow(handle_, SW_HIDE);
}

void FormWindow::BecomeGone() {
  gone_ = true;
  retired_ = true;
  // A menu of the form's would wait for its owner. The message wakes a loop that waits while another thread's call destroys.
  GUITHREADINFO thread{};
  thread.cbSize = sizeof(thread);
  if (GetGUIThreadInfo(GetCurrentThreadId(), &thread) && thread.hwndMenuOwner == handle_) EndMenu();
  PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void FormWindow::UpdateFrame() {
  SetWindowTextW(handle_, Wide(form_.Caption()).c_str());
  Redraw();
}

void FormWindow::Redraw() {
  // The form paints over the lines of its transparent frames, so they are drawn again.
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

ControlView* FormWindow::ViewOf(const controls::Control* control) const {
  for (const auto& view : views_) {
    if (&view->Model() == control) return view.get();
  }
  return nullptr;
}

ControlView* FormWindow::ViewOf(HWND child) const {
  // A combo's edit window and a list's heading belong to the control around them.
  for (HWND window = child; window != nullptr && window != handle_; window = GetParent(window)) {
    if (const auto found = viewByHandle_.find(window); found != viewByHandle_.end()) return found->second;
  }
  return nullptr;
}

void FormWindow::FocusMoved(controls::Control* control) {
  if (arrange_ || !dirty_.empty()) Flush();  // the control may just have been shown or enabled
  // With another window in front (a preview), the focus waits until the form is active again.
  const HWND active = GetActiveWindow();
  if (active != nullptr && active != handle_) return;
  ControlView* view = ViewOf(control);
  FocusWindow(view != nullptr ? view->Handle() : handle_);
  if (view != nullptr) view->Update(Aspect::Selection);
}

void FormWindow::FocusWindow(HWND window) {
  const controls::ScopedFlag moving(movingFocus_);
  SetFocus(window);
}

void FormWindow::FocusArrived(ControlView& view) {
  if (movingFocus_ || &view.Model() == form_.ActiveControl()) return;
  view.Pull();  // the click that brings the focus has set the caret already
  if (!form_.MoveFocus(&view.Model())) PostMessageW(handle_, kReturnFocus, 0, 0);
}

void FormWindow::Guarded(const std::function<void()>& work) {
  desktop_.Guarded(work);
}

HBRUSH FormWindow::BrushFor(controls::Color color) {
  Owned<HBRUSH>& brush = brushes_[color];
  if (!brush) brush.reset(CreateSolidBrush(ScreenColor(color)));
  return brush.get();
}

LRESULT CALLBACK FormWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
  }
  auto* window = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  LRESULT answer = 0;
  bool handled = false;
  if (message == WM_DESTROY && window != nullptr && window->handle_ != nullptr && !window->retired_) window->BecomeGone();
  if (window != nullptr && window->handle_ != nullptr && !window->retired_) {
    window->Guarded([&] { handled = window->Handle(message, wParam, lParam, answer); });
  }
  return handled ? answer : DefWindowProcW(handle, message, wParam, lParam);
}

LRESULT FormWindow::Paint(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto dc = reinterpret_cast<HDC>(wParam);
  if (message == WM_ERASEBKGND) {
    RECT client{};
    GetClientRect(handle_, &client);
    FillRect(dc, &client, BrushFor(form_.BackColor()));
    return 1;
  }
  const ControlView* view = ViewOf(reinterpret_cast<HWND>(lParam));
  if (view == nullptr) return 0;
  controls::Control& control = view->Model();
  const bool isField = control.Kind() == ControlKind::TextBox || control.Kind() == ControlKind::ComboBox;
  // What cannot be typed into looks like the form around it.
  const controls::Color back = isField && !control.Enabled() ? form_.BackColor() : control.BackColor();
  SetBkColor(dc, ScreenColor(back));
  SetTextColor(dc, ScreenColor(control.ForeColor()));
  return reinterpret_cast<LRESULT>(BrushFor(back));
}

bool FormWindow::Notify(NMHDR& header, LRESULT& answer) {
  if (header.hwndFrom == toolTips_) {
    if (header.code == TTN_GETDISPINFOW) ShowToolTip(reinterpret_cast<NMTTDISPINFOW&>(header));
    return false;
  }
  ControlView* view = ViewOf(header.hwndFrom);
  if (view == nullptr || view->Handle() != header.hwndFrom) return false;
  const std::optional<LRESULT> given = view->OnNotify(header);
  if (given) answer = *given;
  return given.has_value();
}

void FormWindow::ShowToolTip(NMTTDISPINFOW& info) {
  const ControlView* view = ViewOf(reinterpret_cast<HWND>(info.hdr.idFrom));
  if (view == nullptr) return;
  POINT mouse{};
  GetCursorPos(&mouse);
  ScreenToClient(view->Handle(), &mouse);
  toolTipText_ = Wide(view->ToolTipAt(mouse));
  info.lpszText = toolTipText_.data();
}

bool FormWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
  switch (message) {
    case WM_CLOSE:
      // The task list closes a form below an open one, too; only the one on top can be closed.
      if (IsWindowEnabled(handle_)) form_.CloseByUser();
      return true;
    case WM_SIZE:
      Place();
      Redraw();
      return true;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {designSize_.cx, designSize_.cy};
      return true;
    case WM_COMMAND:
      if (ControlView* view = ViewOf(reinterpret_cast<HWND>(lParam))) view->OnCommand(HIWORD(wParam));
      return true;
    case WM_NOTIFY:
      return Notify(*reinterpret_cast<NMHDR*>(lParam), answer);
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_ERASEBKGND:
      answer = Paint(message, wParam, lParam);
      return answer != 0;
    case WM_SETCURSOR:
      if (!desktop_.IsWaiting()) return false;
      SetCursor(LoadCursorW(nullptr, IDC_WAIT));
      answer = TRUE;
      return true;
    case WM_SETFOCUS:
    case kReturnFocus:
      // Coming back from another window, the system asks the frame; the model knows the control.
      if (ControlView* view = ViewOf(form_.ActiveControl())) FocusWindow(view->Handle());
      return true;
    case kFlushMessage:
      Flush();
      return true;
    default:
      return false;
  }
}

}  // namespace windows
