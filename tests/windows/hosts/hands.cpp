#include "tests/windows/hosts/hands.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "platform/windows/wide_text.h"

namespace hosts {
namespace {

constexpr UINT kLook = 20;  // milliseconds

BOOL CALLBACK NoteForm(HWND window, LPARAM found) {
  if (IsA(window, L"ShopForm") && IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  return TRUE;
}

struct Wanted {
  std::string caption;
  HWND found = nullptr;
};

BOOL CALLBACK TakeCaptioned(HWND window, LPARAM data) {
  auto& wanted = *reinterpret_cast<Wanted*>(data);
  std::string caption = TextOf(window);
  std::erase(caption, '&');
  if (IsWindowVisible(window) && caption == wanted.caption) wanted.found = window;
  return wanted.found == nullptr;
}

BOOL CALLBACK AppendLabel(HWND child, LPARAM text) {
  if (IsA(child, L"Static")) *reinterpret_cast<std::string*>(text) += TextOf(child);
  return TRUE;
}

}  // namespace

std::string TextOf(HWND window) {
  std::array<wchar_t, 1024> text{};
  GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  return windows::Utf8(text.data());
}

bool IsA(HWND window, const wchar_t* kind) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return lstrcmpiW(name.data(), kind) == 0;
}

HWND ChildCaptioned(HWND form, const std::string& caption) {
  Wanted wanted{caption};
  EnumChildWindows(form, TakeCaptioned, reinterpret_cast<LPARAM>(&wanted));
  return wanted.found;
}

std::vector<HWND> OpenForms() {
  std::vector<HWND> found;
  EnumThreadWindows(GetCurrentThreadId(), NoteForm, reinterpret_cast<LPARAM>(&found));
  return found;
}

Hands::Hands() : timer_(SetTimer(nullptr, 0, kLook, Look)) {
  present_ = this;
}

void Hands::Rest() {
  if (timer_ != 0) KillTimer(nullptr, timer_);
  timer_ = 0;
}

Hands::~Hands() {
  Rest();
  present_ = nullptr;
}

Hands::Deed Hands::Press(std::string caption) {
  return [caption = std::move(caption)](HWND form) {
    const HWND button = ChildCaptioned(form, caption);
    if (button == nullptr) std::fprintf(stderr, "no button %s on %s\n", caption.c_str(), TextOf(form).c_str());
    if (button == nullptr || !IsWindowEnabled(button)) return;
    SetActiveWindow(form);
    PostMessageW(button, BM_CLICK, 0, 0);
  };
}

std::string Hands::Said() const {
  std::string all;
  for (const Message& message : messages) all += message.title + ": " + message.text + "\n";
  return all;
}

void CALLBACK Hands::Look(HWND, UINT, UINT_PTR, DWORD) {
  if (present_ == nullptr) return;
  std::vector<HWND> usable;
  EnumThreadWindows(GetCurrentThreadId(), Note, reinterpret_cast<LPARAM>(&usable));
  if (!usable.empty()) present_->Meet(usable.front());
}

BOOL CALLBACK Hands::Note(HWND window, LPARAM found) {
  if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  if (IsA(window, L"#32770") || IsA(window, L"ShopForm")) reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  return TRUE;
}

void Hands::Meet(HWND window) {
  if (IsA(window, L"#32770")) {
    MeetMessage(window);
  } else {
    MeetForm(window);
  }
}

void Hands::MeetMessage(HWND box) {
  if (std::exchange(answered_, box) == box) return;  // it is on its way
  Message message{TextOf(box), {}};
  EnumChildWindows(box, AppendLabel, reinterpret_cast<LPARAM>(&message.text));
  messages.push_back(std::move(message));
  if (onMessage) return std::exchange(onMessage, nullptr)(box);
  for (const int answer : {IDNO, IDCANCEL, IDOK}) {
    if (GetDlgItem(box, answer) == nullptr && answer != IDOK) continue;
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(answer), 0);
    return;
  }
}

void Hands::MeetForm(HWND form) {
  answered_ = nullptr;
  const std::string caption = TextOf(form);
  if (std::ranges::find(met_, form) == met_.end()) {
    met_.push_back(form);
    forms.push_back(caption);
  }
  std::deque<Deed>& deeds = plan[caption];
  if (deeds.empty()) {
    PostMessageW(form, WM_CLOSE, 0, 0);
    return;
  }
  const Deed deed = std::move(deeds.front());
  deeds.pop_front();
  deed(form);
}

}  // namespace hosts
