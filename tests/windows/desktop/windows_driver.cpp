#include "tests/windows/desktop/windows_driver.h"

#include <array>
#include <gtest/gtest.h>

#include "base/controls/keyboard.h"
#include "base/controls/text_box.h"
#include "base/vb/text.h"
#include "platform/windows/desktop/clipboard.h"
#include "platform/windows/desktop/list_window.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/desktop/metrics.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace counter {
namespace {

constexpr const wchar_t* kClassName = L"TestHands";
constexpr UINT kWork = WM_APP + 1;
constexpr UINT_PTR kLookForMessageBox = 1;

/// Keys held down while it lives.
class Held {
 public:
  explicit Held(int shift) {
    GetKeyboardState(before_.data());
    std::array<BYTE, 256> state = before_;
    const auto hold = [&](int key, bool held) { state[static_cast<std::size_t>(key)] = held ? 0x80 : 0; };
    hold(VK_SHIFT, (shift & controls::kShift) != 0);
    hold(VK_CONTROL, (shift & controls::kCtrl) != 0);
    hold(VK_MENU, (shift & controls::kAlt) != 0);
    SetKeyboardState(state.data());
  }
  ~Held() { SetKeyboardState(before_.data()); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  std::array<BYTE, 256> before_{};
};

/// The message box of this thread that is open, null for none.
HWND OpenMessageBox() {
  for (HWND window : windows::WindowsOfThread()) {
    if (windows::IsOfClass(window, L"#32770") && IsWindowVisible(window)) return window;
  }
  return nullptr;
}

}  // namespace

std::unique_ptr<ControlDriver> MakeDriver() {
  return std::make_unique<WindowsDriver>();
}

DrivenDesktop::DrivenDesktop() {
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  description.lpfnWndProc = &DrivenDesktop::Procedure;
  description.hInstance = windows::ThisModule();
  description.lpszClassName = kClassName;
  RegisterClassExW(&description);
  window_ = CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windows::ThisModule(), nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetTimer(window_, kLookForMessageBox, 20, nullptr);
}

DrivenDesktop::~DrivenDesktop() {
  DestroyWindow(window_);
}

void DrivenDesktop::Opened(controls::Form& form) {
  WindowsDesktop::Opened(form);
  PostMessageW(window_, kWork, 0, 0);
}

LRESULT CALLBACK DrivenDesktop::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* desktop = reinterpret_cast<DrivenDesktop*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (desktop == nullptr || (message != kWork && message != WM_TIMER)) return DefWindowProcW(handle, message, wParam, lParam);
  if (message == kWork) {
    desktop->Guarded([&] { desktop->Work(); });
  } else {
    desktop->AnswerMessageBox();
    desktop->LeaveMenu();
  }
  return 0;
}

void DrivenDesktop::Work() {
  controls::Form* form = ActiveForm();
  if (form == nullptr) return;
  const auto keep = form->weak_from_this().lock();
  if (!hands.empty()) {
    const auto work = std::move(hands.front());
    hands.pop_front();
    work(*form);
  }
  if (form->IsShown()) PostMessageW(HandleOf(*form), WM_CLOSE, 0, 0);
}

void DrivenDesktop::AnswerMessageBox() {
  const HWND box = OpenMessageBox();
  if (box == nullptr || answers.empty()) return;
  messageOwners.push_back(GetWindow(box, GW_OWNER));
  for (HWND child : windows::WindowsInside(box)) {
    const std::wstring text = windows::WindowText(child);
    if (windows::IsOfClass(child, L"Static") && !text.empty()) messages.push_back(windows::Utf8(text));
  }
  const auto answer = static_cast<int>(answers.front());
  answers.pop_front();
  windows::Send(box, WM_COMMAND, answer, GetDlgItem(box, answer));
}

void DrivenDesktop::LeaveMenu() {
  const HWND menu = FindWindowW(L"#32768", nullptr);
  if (menu == nullptr || !IsWindowVisible(menu) || GetWindowThreadProcessId(menu, nullptr) != GetCurrentThreadId()) return;
  RECT place{};
  GetWindowRect(menu, &place);
  menus.push_back(place);
  EndMenu();
}

void WindowsDriver::Work(controls::Form& form, std::function<void()> hands) {
  desktop_.hands.push_front([hands = std::move(hands)](controls::Form&) { hands(); });
  form.Show();
}

void WindowsDriver::Press(std::string_view name) {
  controls::KeyStroke key;
  if (!controls::ParseKey(name, key)) throw std::invalid_argument("no such key: " + std::string(name));
  const HWND focus = GetFocus();
  ASSERT_NE(focus, nullptr) << "nothing has the focus to press " << name;
  if (key.keyCode == 0) {
    PostMessageW(focus, WM_CHAR, static_cast<WPARAM>(key.character), 1);
    desktop_.DoEvents();
    return;
  }
  const Held held(key.shift);
  const bool system = (key.shift & controls::kAlt) != 0;
  PostMessageW(focus, system ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(key.keyCode), system ? (1 << 29) | 1 : 1);
  desktop_.DoEvents();
}

void WindowsDriver::PressFurther(char key, wchar_t character) {
  const Held held(controls::kCtrl | controls::kAlt);
  const HWND focus = GetFocus();
  PostMessageW(focus, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
  PostMessageW(focus, WM_CHAR, character, 1);
  desktop_.DoEvents();
}

void WindowsDriver::Type(controls::Control& control, std::string_view text) {
  controls::Form& form = control.Owner();
  const HWND window = desktop_.HandleOf(control);
  if (!control.HasFocus()) SetFocus(window);
  desktop_.DoEvents();
  if (!control.HasFocus()) return;
  if (auto* box = dynamic_cast<controls::TextBox*>(&control); box && box->SelLength() == 0) {
    SendMessageW(window, EM_SETSEL, 0x7FFF, 0x7FFF);
  }
  for (std::size_t offset = 0; offset < text.size() && controls::CanGoOnTyping(form, control);) {
    const std::size_t begin = offset;
    vb::NextCharacter(text, offset);
    Press(text.substr(begin, offset - begin));
  }
}

void WindowsDriver::Paste(controls::Control& control, std::string_view text) {
  const HWND window = desktop_.HandleOf(control);
  if (!control.HasFocus()) SetFocus(window);
  desktop_.DoEvents();
  windows::PutOnClipboard(window, std::string(text));
  SendMessageW(window, WM_PASTE, 0, 0);
  desktop_.DoEvents();
}

void WindowsDriver::ClickAt(HWND window, int x, int y) {
  const auto place = static_cast<LPARAM>(MAKELONG(x, y));
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
  PostMessageW(window, WM_LBUTTONUP, 0, place);
  desktop_.DoEvents();
}

void WindowsDriver::Click(controls::Control& control) {
  desktop_.DoEvents();
  const HWND window = desktop_.HandleOf(control);
  RECT inside{};
  GetClientRect(window, &inside);
  if (IsWindowEnabled(window)) ClickAt(window, inside.right / 2, inside.bottom / 2);
}

void WindowsDriver::Pick(controls::ComboBox& combo, int entry) {
  const HWND window = desktop_.HandleOf(combo);
  if (!combo.HasFocus()) SetFocus(window);
  desktop_.DoEvents();
  windows::Send(window, CB_SETCURSEL, entry);
  windows::Send(GetParent(window), WM_COMMAND, MAKELONG(GetDlgCtrlID(window), CBN_SELENDOK), window);
  desktop_.DoEvents();
}

void WindowsDriver::ClickLine(controls::ListView& list, int line) {
  desktop_.DoEvents();
  const HWND window = desktop_.HandleOf(list);
  const RECT place = windows::ListWindow(window).ItemPlace(line - 1, LVIR_LABEL).value();
  ClickAt(window, place.left + 4, (place.top + place.bottom) / 2);
}

void WindowsDriver::CheckLine(controls::ListView& list, int line, bool checked) {
  desktop_.DoEvents();
  if (list.Item(line).Checked() == checked) return;
  const HWND window = desktop_.HandleOf(list);
  const RECT label = windows::ListWindow(window).ItemPlace(line - 1, LVIR_LABEL).value();
  ClickAt(window, label.left - 10, (label.top + label.bottom) / 2);
}

void WindowsDriver::ClickCell(controls::FlexGrid& grid, long row, long col) {
  desktop_.DoEvents();
  const HWND window = desktop_.HandleOf(grid);
  const RECT place = windows::ListWindow(window).CellPlace(static_cast<int>(row - grid.FixedRows()), static_cast<int>(col));
  ClickAt(window, place.left + 4, (place.top + place.bottom) / 2);
}

void WindowsDriver::ClickHeading(controls::FlexGrid& grid, long col) {
  desktop_.DoEvents();
  const windows::ListWindow list(desktop_.HandleOf(grid));
  const RECT place = list.HeadingPlace(col).value();
  ClickAt(list.Heading(), (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

std::string WindowsDriver::Read(controls::Control& control, std::string_view property) {
  const std::string model = control.Get(property).TextOrEmpty();
  const HWND window = desktop_.HandleOf(control);
  // A control that cannot be shown in the form's state has nothing to read from; one that is on the screen has a window.
  if (window == nullptr) {
    EXPECT_FALSE(control.Owner().IsShown() && control.Kind() != controls::ControlKind::PictureBox &&
                 control.Kind() != controls::ControlKind::Menu)
        << control.Name() << " has no window";
    return model;
  }
  desktop_.DoEvents();
  std::string shown = model;
  const bool isCombo = control.Kind() == controls::ControlKind::ComboBox;
  if (property == "Text" && (isCombo || control.Kind() == controls::ControlKind::TextBox)) {
    shown = windows::Utf8(windows::WindowText(window));
  } else if (property == "ListIndex") {
    shown = std::to_string(static_cast<int>(SendMessageW(window, CB_GETCURSEL, 0, 0)));
  } else if (property == "Value") {
    const bool checked = SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
    shown = control.Kind() == controls::ControlKind::CheckBox ? (checked ? "1" : "0") : (checked ? "True" : "False");
  }
  EXPECT_EQ(shown, model) << control.Name() << "." << property << " as shown, and as it is";
  return shown;
}

std::string WindowsDriver::Focus(const controls::Form& form) const {
  const HWND focus = GetFocus();
  for (const controls::Control* control : form.Controls()) {
    const HWND window = desktop_.HandleOf(*control);
    if (window != nullptr && (window == focus || IsChild(window, focus))) return control->Name();
  }
  return "";
}

}  // namespace counter
