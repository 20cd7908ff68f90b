#include "tests/windows/hosts/trial_host.h"

#include <cstdio>

#include "base/vb/date.h"
#include "base/vb/error.h"
#include "platform/windows/window_queries.h"

namespace hosts {
namespace {

constexpr UINT kWork = WM_APP + 1;

bool failed = false;

LRESULT CALLBACK HostProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto* host = reinterpret_cast<const Host*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == kWork && host != nullptr && host->sentWork) host->sentWork();
  return DefWindowProcW(window, message, wParam, lParam);
}

DWORD CALLBACK SendWork(void* window) {
  Sleep(300);  // the register waits for its messages by then
  SendMessageW(static_cast<HWND>(window), kWork, 0, 0);
  return 0;
}

HWND MakeWindow(const wchar_t* title, int show) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  description.lpfnWndProc = HostProcedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = L"BadHost";
  RegisterClassExW(&description);
  const HWND window = CreateWindowExW(0, description.lpszClassName, title, WS_OVERLAPPEDWINDOW, 20, 20, 500, 300, nullptr,
                                      nullptr, description.hInstance, nullptr);
  ShowWindow(window, show);
  if (show == SW_SHOW) SetActiveWindow(window);
  return window;
}

}  // namespace

void Expect(bool holds, const std::string& what) {
  if (!holds) std::fprintf(stderr, "not so: %s\n", what.c_str());
  failed = failed || !holds;
}

bool AnyFailed() {
  return failed;
}

Host::Host(int show) : main(MakeWindow(L"Host", show)) {
  SetWindowLongPtrW(main, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  if (show == SW_SHOW) splash = MakeWindow(L"Splash", show);
}

Host::~Host() {
  SetWindowLongPtrW(main, GWLP_USERDATA, 0);
}

late::ObjectPtr Host::Request(const char* title) {
  const late::ObjectPtr request = factory.Create("tq8v4461.clsGoodsRequest");
  request->PutRef("adocon", connection);
  request->Put("strMsgboxCaption", title);
  for (const char* id : {"intCompanyID", "intUserID", "intShopID"}) request->Put(id, std::int32_t{1});
  request->Put("dtProcessDate", vb::MakeDate(2024, 3, 15));
  return request;
}

long Host::Show(const late::ObjectPtr& request) {
  long number = 0;
  try {
    request->Call("Show");
  } catch (const vb::RunTimeError& error) {
    number = error.Number();
    std::fprintf(stderr, "Show: %ld %s\n", number, error.Description().c_str());
  }
  Expect(IsWindowEnabled(main), "the host's window is enabled");
  Expect(OpenForms().empty(), "no form is left on the screen");
  return number;
}

std::string Host::Answer(const std::string& query) {
  return connection->Call("Execute", {query}).ToObject()->Call("GetString").ToText();
}

void Host::PostWork() const {
  PostMessageW(main, kWork, 0, 0);
}

void Host::SendWorkFromAnotherThread() const {
  CloseHandle(CreateThread(nullptr, 0, SendWork, main, 0, nullptr));
}

HWND ChildOfKind(HWND form, const wchar_t* kind) {
  HWND widest = nullptr;
  RECT most{};
  for (HWND child = GetWindow(form, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    RECT place{};
    GetWindowRect(child, &place);
    if (!windows::IsOfClass(child, kind) || !IsWindowVisible(child) || place.right - place.left <= most.right - most.left)
      continue;
    most = place;
    widest = child;
  }
  return widest;
}

Hands::Deed PressKeys(const wchar_t* kind, WPARAM key, int times) {
  return [=](HWND form) {
    const HWND child = ChildOfKind(form, kind);
    SetFocus(child);
    for (int time = 0; time < times; ++time) PostMessageW(child, WM_KEYDOWN, key, 1);
  };
}

void EditRemarks(Host& host) {
  host.hands.plan[kRegister] = {PressKeys(L"SysListView32", VK_DOWN, 5), Hands::Press("Edit")};
  host.hands.plan[kEditor] = {[](HWND form) {
    const HWND remarks = ChildOfKind(form, L"Edit");
    SetFocus(remarks);
    PostMessageW(remarks, WM_CHAR, L'!', 1);
  }};
}

}  // namespace hosts
