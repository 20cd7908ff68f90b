// Runs a program and presses on through every window it opens: OK on a message, the close button on a form. Writes down what it
// saw, so that a test can tell what a user would have met.
#include <chrono>
#include <cstdio>
#include <set>
#include <string>

#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace {

constexpr DWORD kLook = 100;          // milliseconds between two looks
constexpr int kMostLooks = 10 * 180;  // then the program is given up

std::string TextOf(HWND window) {
  return windows::Utf8(windows::WindowText(window));
}

struct Looker {
  DWORD process;
  std::set<HWND> answered;
};

/// The text of a message box: its labels one after the other.
std::string MessageOf(HWND box) {
  std::string text;
  for (HWND child : windows::WindowsInside(box)) {
    if (windows::IsOfClass(child, L"Static")) text += TextOf(child);
  }
  for (char& c : text) {
    if (c == '\n' || c == '\r') c = ' ';
  }
  return text;
}

void Answer(Looker& looker, HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != looker.process || !IsWindowVisible(window) || !IsWindowEnabled(window)) return;
  if (windows::IsOfClass(window, L"#32770")) {
    if (looker.answered.insert(window).second) std::printf("message: %s\n", MessageOf(window).c_str());
    PostMessageW(window, WM_COMMAND, IDOK, 0);
  } else if (windows::IsOfClass(window, L"ShopForm")) {
    if (looker.answered.insert(window).second) std::printf("form: %s\n", TextOf(window).c_str());
    PostMessageW(window, WM_CLOSE, 0, 0);
  }
}

}  // namespace

int wmain(int count, wchar_t** words) {
  std::wstring line;
  for (int i = 1; i < count; ++i) line.append(i > 1 ? L" " : L"").append(L"\"").append(words[i]).append(L"\"");
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION program{};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &program)) {
    std::printf("cannot start: %s\n", windows::Utf8(line).c_str());
    return 2;
  }
  Looker looker{program.dwProcessId, {}};
  int looks = 0;
  while (WaitForSingleObject(program.hProcess, kLook) == WAIT_TIMEOUT && ++looks < kMostLooks) {
    for (HWND window : windows::TopLevelWindows()) Answer(looker, window);
    std::fflush(stdout);
  }
  DWORD code = 0;
  GetExitCodeProcess(program.hProcess, &code);
  if (code == STILL_ACTIVE) TerminateProcess(program.hProcess, 1);
  std::printf("ended: %lu\n", code);
  return code == 0 ? 0 : 1;
}
