#include "tests/windows/hosts/bad_host.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <memory>

#include "base/vb/error.h"
#include "platform/windows/com/dispatch_object.h"
#include "tests/windows/desktop/windows_refused.h"
#include "tests/windows/hosts/bad_helper.h"
#include "tests/windows/hosts/trial_host.h"
#include "tests/windows/hosts/watchdog.h"

namespace hosts {
namespace {

constexpr long kAlreadyShown = 400;
constexpr long kNoWindow = 7;
constexpr DWORD kLook = 100;  // milliseconds
constexpr int kMostLooks = 300;

void OwnerDestroyed() {
  Host host;
  host.hands.plan[kRegister] = {[&](HWND form) {
    Expect(GetWindow(form, GW_OWNER) == host.splash, "the register belongs to the splash");
    DestroyWindow(host.splash);
  }};
  Expect(host.Show() == 0, "Show returns");
  Expect(host.hands.messages.empty(), "nobody is asked: " + host.hands.Said());
  // The next session is as good as the first.
  host.hands.plan[kRegister] = {Hands::Press("New")};
  Expect(host.Show() == 0, "Show returns again");
  Expect(host.hands.messages.size() == 1, "the register works: " + host.hands.Said());
}

void OwnerDestroyedByAnotherThread() {
  Host host;
  host.sentWork = [&] { DestroyWindow(host.splash); };
  host.hands.plan[kRegister] = {[&](HWND) {
    // The timer that works these hands must not be what wakes the loop.
    host.hands.Rest();
    host.SendWorkFromAnotherThread();
  }};
  Expect(host.Show() == 0, "Show returns");
}

void OwnerDestroyedWhileARequestIsChanged() {
  Host host;
  EditRemarks(host);
  host.hands.plan[kEditor].push_back([&](HWND) { DestroyWindow(host.splash); });
  Expect(host.Show() == 0, "Show returns");
  Expect(host.hands.messages.empty(), "nobody is asked: " + host.hands.Said());
  Expect(host.Answer("select grhremarks from mosGoodsRequestHeader where grhshopid=1 and grhremarks like '%!%'") != "",
         "what was typed is saved");
}

void OwnerDestroyedBelowThreeForms() {
  Host host;
  EditRemarks(host);
  host.hands.plan[kEditor].push_back(PressKeys(L"SysListView32", VK_F10, 1));
  host.hands.plan["Goods Request Details"] = {[&](HWND) { DestroyWindow(host.splash); }};
  Expect(host.Show() == 0, "Show returns");
  Expect(host.hands.forms.size() == 3, "register, editor and item entry were open");
}

void OwnerDestroyedBelowAMessage() {
  Host host;
  host.hands.plan[kRegister] = {Hands::Press("New")};
  host.hands.onMessage = [&](HWND) { DestroyWindow(host.splash); };
  Expect(host.Show() == 0, "Show returns");
  Expect(host.hands.messages.size() == 1, "one message: " + host.hands.Said());
}

void OwnerDestroyedBelowAMenu() {
  Host host;
  host.sentWork = [&] { DestroyWindow(host.splash); };
  host.hands.plan[kRegister] = {[&](HWND form) {
    const HWND list = ChildOfKind(form, L"SysListView32");
    PostMessageW(list, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(20, 40));
    PostMessageW(list, WM_RBUTTONUP, 0, MAKELPARAM(20, 40));
    host.hands.plan[kRegister] = {[&](HWND) {
      Expect(FindWindowW(L"#32768", nullptr) != nullptr, "the menu is open");
      host.hands.Rest();
      host.PostWork();
    }};
  }};
  Expect(host.Show() == 0, "Show returns");
}

void RegisterDestroyed() {
  Host host;
  host.hands.plan[kRegister] = {[](HWND form) { DestroyWindow(form); }};
  Expect(host.Show() == 0, "Show returns");
  Expect(IsWindowEnabled(host.splash), "the owner is enabled");
}

void HostQuits() {
  Host host;
  EditRemarks(host);
  host.hands.plan[kEditor].push_back([](HWND) { PostQuitMessage(5); });
  Expect(host.Show() == 0, "Show returns");
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) continue;
  Expect(message.message == WM_QUIT && message.wParam == 5, "the host still hears that it quits");
}

void HookRefusesTheRegister() {
  Host host;
  for (const wchar_t* refused : {L"ShopForm", L"SysListView32", L"Edit", L""}) {
    const WindowsRefused hook(refused);
    Expect(host.Show() == kNoWindow, "Show fails with its reason");
  }
  host.hands.plan[kRegister] = {Hands::Press("New")};
  Expect(host.Show() == 0 && host.hands.messages.size() == 1, "later the register works: " + host.hands.Said());
}

void HookRefusesTheEditor() {
  Host host;
  std::unique_ptr<WindowsRefused> hook;
  host.hands.plan[kRegister] = {PressKeys(L"SysListView32", VK_DOWN, 5), [&](HWND form) {
                                  hook = std::make_unique<WindowsRefused>(L"ShopForm");
                                  Hands::Press("Edit")(form);
                                }};
  Expect(host.Show() == 0, "Show returns");
  Expect(host.hands.messages.size() == 1, "the error is reported: " + host.hands.Said());
  Expect(host.hands.forms.size() == 1, "the register alone was seen");
}

void NoActiveWindow() {
  Host host(SW_SHOWNOACTIVATE);
  Expect(GetActiveWindow() == nullptr, "none of the host's windows is active");
  bool owned = false;
  host.hands.plan[kRegister] = {[&](HWND form) { owned = GetWindow(form, GW_OWNER) == host.main; }};
  Expect(host.Show() == 0, "Show returns");
  Expect(owned, "the register belongs to the host's window");
}

void TwoShows() {
  Host host;
  long second = 0;
  host.hands.plan[kRegister] = {[&](HWND) {
                                  try {
                                    host.Request("Another shop")->Call("Show");
                                  } catch (const vb::RunTimeError& error) {
                                    second = error.Number();
                                  }
                                },
                                Hands::Press("New")};
  Expect(host.Show() == 0, "the first Show returns");
  Expect(second == kAlreadyShown, "the second is refused");
  Expect(host.hands.messages.size() == 1 && host.hands.messages[0].title == "Shop",
         "the open register is the first caller's: " + host.hands.Said());
}

void EverythingLetGo() {
  Host host;
  late::ObjectPtr request = host.Request();
  IDispatch* shown = static_cast<windows::DispatchObject&>(*request).Dispatch().Get();
  shown->AddRef();
  request.reset();
  EditRemarks(host);
  host.hands.plan[kEditor].push_back([&](HWND) {
    host.connection.reset();
    host.database.reset();
    shown->Release();
  });
  std::wstring show = L"Show";
  LPOLESTR name = show.data();
  DISPID id = 0;
  DISPPARAMS none{};
  shown->GetIDsOfNames(IID_NULL, &name, 1, 0, &id);
  Expect(shown->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr) == S_OK, "Show returns");
  Expect(IsWindowEnabled(host.main), "the host's window is enabled");
}

void ConnectionClosed() {
  Host host;
  host.hands.plan[kRegister] = {[&](HWND) { host.connection->Call("Close"); }, Hands::Press("Edit"), Hands::Press("Print")};
  Expect(host.Show() == 0, "Show returns");
  Expect(!host.hands.messages.empty(), "errors are reported");
}

/// The file of the program that a window belongs to.
std::wstring ProgramOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  std::array<wchar_t, MAX_PATH> path{};
  auto length = static_cast<DWORD>(path.size());
  const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
  if (!QueryFullProcessImageNameW(handle, 0, path.data(), &length)) length = 0;
  CloseHandle(handle);
  return {path.data(), length};
}

void ViewerPlanted() {
  std::array<wchar_t, MAX_PATH> windows{};
  std::array<wchar_t, MAX_PATH> folder{};
  GetWindowsDirectoryW(windows.data(), MAX_PATH);
  GetTempPathW(MAX_PATH, folder.data());
  const std::wstring planted = std::wstring(folder.data()) + L"notepad.exe";
  Expect(CopyFileW((std::wstring(windows.data()) + L"\\system32\\hostname.exe").c_str(), planted.c_str(), FALSE) != 0,
         "another program is named like the viewer");
  SetCurrentDirectoryW(folder.data());
  Host host;
  host.hands.plan[kRegister] = {Hands::Press("Print")};
  host.hands.plan["Print"] = {Hands::Press("OK")};
  Expect(host.Show() == 0 && host.hands.messages.empty(), "the slip is shown: " + host.hands.Said());
  HWND viewer = nullptr;
  for (int look = 0; look < kMostLooks && viewer == nullptr; ++look, Sleep(kLook)) viewer = FindWindowW(L"Notepad", nullptr);
  const std::wstring program = ProgramOf(viewer);
  Expect(lstrcmpiW(program.c_str(), (std::wstring(windows.data()) + L"\\notepad.exe").c_str()) == 0,
         "by the system's own viewer");
  PostMessageW(viewer, WM_CLOSE, 0, 0);
  DeleteFileW(planted.c_str());
}

void BadHelpers(Mischief mischief) {
  const std::vector<std::string> helpers = {"ShopCommon.clsCommonDB", "ShopCommon.clsCommonGen", "Lookup.clsFetch",
                                            "Theme.clsFormcolor",     "Audit.clsUserAuditing",   "GridPrefs.clsMasterGridSetting",
                                            "ErrLog.ErrorDetails"};
  Host host;
  const auto visit = [&](const std::string& who) {
    std::fprintf(stderr, "%s misbehaves\n", who.c_str());
    host.hands.messages.clear();
    EditRemarks(host);
    host.hands.plan[kEditor] = {PressKeys(L"SysListView32", VK_F10, 1)};
    for (const char* button : {"New", "Delete", "Print"}) host.hands.plan[kRegister].push_back(Hands::Press(button));
    host.Show();
  };
  for (const std::string& helper : helpers) {
    const BadHelper bad(helper, mischief);
    visit(helper);
  }
  std::vector<std::unique_ptr<BadHelper>> bad;
  for (const std::string& helper : helpers) bad.push_back(std::make_unique<BadHelper>(helper, mischief));
  visit("everybody");
  const bool takesErrors = mischief != Mischief::Missing && mischief != Mischief::Nameless && mischief != Mischief::Throwing;
  Expect(host.hands.messages.empty() == takesErrors, "errors that no helper takes are shown: " + host.hands.Said());
  bad.clear();
  host.hands.messages.clear();
  host.hands.plan[kRegister] = {Hands::Press("New")};
  Expect(host.Show() == 0 && host.hands.messages.size() == 1, "with good helpers all is well again: " + host.hands.Said());
}

struct Case {
  const char* name;
  std::function<void()> play;
};

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = {
      {"owner_destroyed", OwnerDestroyed},
      {"owner_destroyed_by_another_thread", OwnerDestroyedByAnotherThread},
      {"owner_destroyed_while_a_request_is_changed", OwnerDestroyedWhileARequestIsChanged},
      {"owner_destroyed_below_three_forms", OwnerDestroyedBelowThreeForms},
      {"owner_destroyed_below_a_message", OwnerDestroyedBelowAMessage},
      {"owner_destroyed_below_a_menu", OwnerDestroyedBelowAMenu},
      {"register_destroyed", RegisterDestroyed},
      {"host_quits", HostQuits},
      {"hook_refuses_the_register", HookRefusesTheRegister},
      {"hook_refuses_the_editor", HookRefusesTheEditor},
      {"no_active_window", NoActiveWindow},
      {"two_shows", TwoShows},
      {"everything_let_go", EverythingLetGo},
      {"connection_closed", ConnectionClosed},
      {"viewer_planted", ViewerPlanted},
      {"helpers_missing", [] { BadHelpers(Mischief::Missing); }},
      {"helpers_nameless", [] { BadHelpers(Mischief::Nameless); }},
      {"helpers_throwing", [] { BadHelpers(Mischief::Throwing); }},
      {"helpers_giving_nothing", [] { BadHelpers(Mischief::Nothing); }},
      {"helpers_giving_nonsense", [] { BadHelpers(Mischief::Nonsense); }},
      {"helpers_without_end", [] { BadHelpers(Mischief::Endless); }},
  };
  return cases;
}

}  // namespace

std::vector<std::string> CaseNames() {
  std::vector<std::string> names;
  for (const Case& one : Cases()) names.emplace_back(one.name);
  return names;
}

int Play(const std::string& name) {
  const auto found = std::ranges::find_if(Cases(), [&](const Case& one) { return one.name == name; });
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  StartWatchdog();
  try {
    found->play();
  } catch (const std::exception& error) {
    Expect(false, error.what());
  }
  return AnyFailed() ? 1 : 0;
}

}  // namespace hosts
