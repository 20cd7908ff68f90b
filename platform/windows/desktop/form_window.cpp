#include "platform/windows/desktop/form_window.h"

#include <algorithm>

#include "base/controls/buttons.h"
#include "platform/windows/desktop/button_views.h"
#include "platform/windows/desktop/combo_view.h"
#include "platform/windows/desktop/grid_view.h"
#include "platform/windows/desktop/lines_view.h"
#include "platform/windows/desktop/tab_view.h"
#include "platform/windows/desktop/text_view.h"
#include "platform/windows/desktop/window_class.h"
#include "platform/windows/desktop/windows_desktop.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

using controls::Aspect;
using controls::ControlKind;

constexpr UINT kFlush = WM_APP + 1;
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

/// Frames and tabs are drawn below what stands on them.
bool IsBackdrop(const controls::Control& control) {
  return control.Kind() == ControlKind::Frame || control.Kind() == ControlKind::TabControl;
}

/// Makes the field of a combo as high as its place, so that it lines up with the text boxes beside it.
void FitCombo(HWND combo, LONG height) {
  RECT window{};
  GetWindowRect(combo, &window);
  const auto field = static_cast<LONG>(SendMessageW(combo, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0));
  const LONG wanted = field + height - (window.bottom - window.top);
  if (wanted > 0 && wanted != field) SendMessageW(combo, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), wanted);
}

}  // namespace

std::unique_ptr<ControlView> MakeView(FormWindow& window, controls::Control& model) {
  switch (model.Kind()) {
    case ControlKind::TextBox:
      return std::make_unique<TextView>(window, static_cast<controls::TextBox&>(model));
    case ControlKind::ComboBox:
      return std::make_unique<ComboView>(window, static_cast<controls::ComboBox&>(model));
    case ControlKind::ListView:
      return std::make_unique<LinesView>(window, static_cast<controls::ListView&>(model));
    case ControlKind::FlexGrid:
      return std::make_unique<GridView>(window, static_cast<controls::FlexGrid&>(model));
    case ControlKind::TabControl:
      return std::make_unique<TabView>(window, static_cast<controls::TabControl&>(model));
    case ControlKind::CommandButton:
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
    case ControlKind::Label:
    case ControlKind::Frame:
      return std::make_unique<CaptionView>(window, static_cast<controls::Captioned&>(model));
    default:
      return nullptr;
  }
}

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
  for (const WPARAM size : {ICON_SMALL, ICON_BIG})
    SendMessageW(handle_, WM_SETICON, size, reinterpret_cast<LPARAM>(FormIcon(size)));
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
  for (const auto& [color, brush] : brushes_) DeleteObject(brush);
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
  toolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, handle_, nullptr, ThisModule(), nullptr);
  // Long texts break into lines.
  SendMessageW(toolTips_, TTM_SETMAXTIPWIDTH, 0, metrics_.Pixels(6000));
  for (const auto& view : views_) {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = handle_;
    tool.uId = reinterpret_cast<UINT_PTR>(view->Handle());
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(toolTips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
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
  // What the form paints below its transparent frames takes their lines away, unless they are drawn again.
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

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
  if (!std::exchange(flushPosted_, true)) PostMessageW(handle_, kFlush, 0, 0);
}

void FormWindow::Arrange() {
  arrange_ = true;
  if (!std::exchange(flushPosted_, true)) PostMessageW(handle_, kFlush, 0, 0);
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
    // Where a window stays as it was, nothing is drawn anew.
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
  movingFocus_ = true;
  SetFocus(view != nullptr ? view->Handle() : handle_);
  movingFocus_ = false;
  if (view != nullptr) view->Update(Aspect::Selection);
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
  HBRUSH& brush = brushes_[color];
  if (brush == nullptr) brush = CreateSolidBrush(ScreenColor(color));
  return brush;
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
      if (ControlView* view = ViewOf(form_.ActiveControl())) {
        movingFocus_ = true;
        SetFocus(view->Handle());
        movingFocus_ = false;
      }
      return true;
    case kFlush:
      Flush();
      return true;
    default:
      return false;
  }
}

}  // namespace windows
