#include "tests/windows/hosts/hands.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace hosts {

using windows::IsOfClass;

namespace {

constexpr UINT kLook = 20;  // milliseconds

}  // namespace

std::string TextOf(HWND window) {
  return windows::Utf8(windows::WindowText(window));
}

HWND ChildCaptioned(HWND form, const std::string& caption) {
  for (HWND window : windows::WindowsInside(form)) {
    std::string text = TextOf(window);
    std::erase(text, '&');
    if (IsWindowVisible(window) && text == caption) return window;
  }
  return nullptr;
}

std::vector<HWND> OpenForms() {
  std::vector<HWND> forms = windows::WindowsOfThread();
  std::erase_if(forms, [](HWND window) { return !IsOfClass(window, L"ShopForm") || !IsWindowVisible(window); });
  return forms;
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
  for (HWND window : windows::WindowsOfThread()) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
    if (IsOfClass(window, L"#32770")) return present_->MeetMessage(window);
    if (IsOfClass(window, L"ShopForm")) return present_->MeetForm(window);
  }
}

void Hands::MeetMessage(HWND box) {
  if (std::exchange(answered_, box) == box) return;  // it is on its way
  Message message{TextOf(box), {}};
  for (HWND child : windows::WindowsInside(box)) {
    if (IsOfClass(child, L"Static")) message.text += TextOf(child);
  }
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
