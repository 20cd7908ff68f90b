#include "platform/windows/desktop/windows_desktop.h"

#include <algorithm>
#include <utility>

#include "base/controls/form.h"
#include "base/controls/menu.h"
#include "base/controls/text_entry.h"
#include "platform/windows/desktop/clipboard.h"
#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/list_window.h"
#include "platform/windows/desktop/shown_objects.h"
#include "platform/windows/handles.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace windows {
namespace {

constexpr int kMostRefusals = 3;  // of a form that must close because its window is gone

/// What a window of this thread is put over while none is active, because the person has switched to another program: the first
/// visible window without an owner, or what was opened over it last. Null when there is none.
HWND MainWindowOfThread() {
  const std::vector<HWND> windows = WindowsOfThread();
  const auto found = std::ranges::find_if(
      windows, [](HWND window) { return IsWindowVisible(window) && GetWindow(window, GW_OWNER) == nullptr; });
  if (found == windows.end()) return nullptr;
  const HWND last = GetLastActivePopup(*found);
  const bool isHere = last != nullptr && IsWindowVisible(last) && GetWindowThreadProcessId(last, nullptr) == GetCurrentThreadId();
  return isHere ? last : *found;
}

/// The visible, enabled top-level windows of this thread except one.
std::vector<HWND> EnabledWindowsOfThread(HWND except) {
  std::vector<HWND> windows = WindowsOfThread();
  std::erase_if(windows, [&](HWND window) { return window == except || !IsWindowVisible(window) || !IsWindowEnabled(window); });
  return windows;
}

}  // namespace

WindowsDesktop::WindowsDesktop() = default;
WindowsDesktop::~WindowsDesktop() = default;

FormWindow* WindowsDesktop::WindowOf(const controls::Form& form) const {
  const auto found = showings_.find(&form);
  return found == showings_.end() || found->second.window->IsGone() ? nullptr : found->second.window.get();
}

HWND WindowsDesktop::HandleOf(const controls::Form& form) const {
  const FormWindow* window = WindowOf(form);
  return window != nullptr ? window->Handle() : nullptr;
}

HWND WindowsDesktop::HandleOf(const controls::Control& control) const {
  const FormWindow* window = WindowOf(control.Owner());
  const ControlView* view = window != nullptr ? window->ViewOf(&control) : nullptr;
  return view != nullptr ? view->Handle() : nullptr;
}

HWND WindowsDesktop::OwnerFor(const controls::Form* form) const {
  const HWND window = form != nullptr ? HandleOf(*form) : nullptr;
  if (window != nullptr) return window;
  const HWND active = GetActiveWindow();
  return active != nullptr ? active : MainWindowOfThread();
}

bool WindowsDesktop::IsCutOff() const {
  return std::ranges::any_of(Stack(), [this](const controls::Form* form) {
    const auto found = showings_.find(form);
    return found != showings_.end() && found->second.window->IsGone();
  });
}

void WindowsDesktop::Opening(controls::Form& form, controls::Form* owner) {
  if (IsCutOff()) return;  // closed again unseen
  Showing opened;
  opened.owner = OwnerFor(owner);
  opened.depth = depth_;
  opened.window = std::make_unique<FormWindow>(*this, form, opened.owner);
  Showing& showing = showings_[&form] = std::move(opened);
  for (HWND window : EnabledWindowsOfThread(showing.window->Handle())) {
    EnableWindow(window, FALSE);
    showing.disabled.push_back(window);
  }
  showing.window->Show();
}

void WindowsDesktop::Closed(controls::Form& form) {
  const auto found = showings_.find(&form);
  if (found == showings_.end()) return;
  Showing showing = std::move(found->second);
  showings_.erase(found);
  // The owner is enabled before the window goes: otherwise the system would activate some other program's window.
  for (HWND window : showing.disabled) EnableWindow(window, TRUE);
  // What was opened over the form, a preview, stays in front.
  const bool isInFront = !showing.window->IsGone() && GetActiveWindow() == showing.window->Handle();
  if (isInFront && showing.owner != nullptr) SetActiveWindow(showing.owner);
  if (showing.depth == depth_) return;
  showing.window->Retire();
  leaving_.push_back(std::move(showing));
}

void WindowsDesktop::Guarded(const std::function<void()>& work) {
  ++depth_;
  try {
    work();
  } catch (...) {
    if (!pending_) pending_ = std::current_exception();
  }
  --depth_;
}

void WindowsDesktop::DestroyLeaving() {
  std::erase_if(leaving_, [&](const Showing& showing) { return showing.depth >= depth_; });
}

void WindowsDesktop::RaisePending() {
  if (pending_) std::rethrow_exception(std::exchange(pending_, nullptr));
}

void WindowsDesktop::Dispatch(MSG& message) {
  hasBeeped_ = false;
  const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
  if (isKey && ActiveForm() != nullptr) {
    FormWindow* top = WindowOf(*ActiveForm());
    if (top != nullptr && (message.hwnd == top->Handle() || IsChild(top->Handle(), message.hwnd))) {
      bool handled = false;
      Guarded([&] { handled = top->HandleKey(message); });
      if (handled) return;
    }
  }
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

void WindowsDesktop::CloseUnasked(controls::Form& form) {
  for (int refusals = 0; form.IsShown() && refusals < kMostRefusals; ++refusals) form.CloseByUser();
}

void WindowsDesktop::RunModal(controls::Form& form) {
  while (form.IsShown()) {
    if (IsCutOff()) return CloseUnasked(form);
    MSG message{};
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got <= 0) {
      // The host quits: this loop ends, and so must those around it.
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    Dispatch(message);
    DestroyLeaving();
    RaisePending();
  }
}

bool WindowsDesktop::IsHighContrast() const {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof(contrast);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

void WindowsDesktop::Beep() {
  if (!std::exchange(hasBeeped_, true)) MessageBeep(MB_OK);
}

std::string WindowsDesktop::ClipboardText() const {
  return windows::ClipboardText(OwnerFor(ActiveForm()));
}

void WindowsDesktop::PutOnClipboard(const std::string& text) {
  windows::PutOnClipboard(OwnerFor(ActiveForm()), text);
}

long WindowsDesktop::RowsShown(const controls::Control& list) const {
  const HWND window = HandleOf(list);
  const long rows = window != nullptr ? ListWindow(window).CountPerPage() : 0;
  return rows > 0 ? rows : Desktop::RowsShown(list);
}

void WindowsDesktop::KeepWhileShown(std::string_view title, const std::vector<late::ObjectPtr>& objects,
                                    const std::function<void()>& open) {
  const std::wstring wide = Wide(title);
  const std::vector<HWND> before = WindowsTitled(wide);
  open();
  for (HWND window : WindowsTitled(wide)) {
    if (std::ranges::find(before, window) == before.end()) return KeepWhileOpen(window, objects);
  }
}

void WindowsDesktop::DoEvents() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Dispatch(message);
  }
}

controls::Answer WindowsDesktop::MsgBox(controls::Form* owner, const controls::Message& message) {
  if (IsCutOff()) return message.AnswerOf(message.DefaultButton());
  const HWND window = OwnerFor(owner != nullptr ? owner : ActiveForm());
  // The style numbers are the system's own.
  UINT style = static_cast<UINT>(message.style);
  if (window == nullptr) style |= MB_TASKMODAL;
  const int answer = MessageBoxW(window, Wide(message.text).c_str(), Wide(message.title).c_str(), style);
  return answer == 0 ? message.AnswerOf(message.DefaultButton()) : static_cast<controls::Answer>(answer);
}

controls::Menu* WindowsDesktop::PopupMenu(controls::Form& form, controls::Menu& menu) {
  const Owned<HMENU> popup(CreatePopupMenu());
  const auto& entries = menu.Entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!entries[i]->Visible()) continue;
    if (entries[i]->IsSeparator()) {
      AppendMenuW(popup.get(), MF_SEPARATOR, 0, nullptr);
    } else {
      AppendMenuW(popup.get(), entries[i]->Enabled() ? MF_STRING : MF_STRING | MF_GRAYED, i + 1,
                  Wide(entries[i]->Caption()).c_str());
    }
  }
  POINT place{};
  GetCursorPos(&place);
  if (FormWindow* window = WindowOf(form)) place = window->TakeMenuPlace().value_or(place);
  const auto chosen = static_cast<std::size_t>(
      TrackPopupMenuEx(popup.get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, place.x, place.y, OwnerFor(&form), nullptr));
  return chosen == 0 ? nullptr : entries[chosen - 1];
}

void WindowsDesktop::Changed(controls::Control& control, controls::Aspect aspect) {
  if (FormWindow* window = WindowOf(control.Owner())) window->UpdateControl(control, aspect);
}

void WindowsDesktop::FormChanged(controls::Form& form) {
  if (FormWindow* window = WindowOf(form)) window->UpdateFrame();
}

void WindowsDesktop::FocusMoved(controls::Form& form, controls::Control* control) {
  if (FormWindow* window = WindowOf(form)) window->FocusMoved(control);
}

// What is typed next takes the place of the text, as everywhere in the system.
void WindowsDesktop::EnteredByKey(controls::Control& control) {
  auto* entry = dynamic_cast<controls::TextEntry*>(&control);
  if (entry != nullptr && !entry->MultiLine()) entry->SelectAll();
}

void WindowsDesktop::PointerChanged(controls::Form&, bool hourglass) {
  hourglasses_ += hourglass ? 1 : -1;
  SetCursor(LoadCursorW(nullptr, IsWaiting() ? IDC_WAIT : IDC_ARROW));
}

}  // namespace windows
