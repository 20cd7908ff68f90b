#include "tests/windows/products/person/hands.h"

#include <algorithm>
#include <cctype>
#include <map>

#include "platform/windows/desktop/common_controls.h"
#include "platform/windows/wide_text.h"
#include "tests/windows/products/person/mouse.h"
#include "tests/windows/products/person/patience.h"

namespace person {
namespace {

constexpr const char* kFormKind = "ShopForm";
constexpr const char* kMessageKind = "#32770";
constexpr const char* kMenuKind = "#32768";

void Send(std::vector<INPUT>& inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void AddKey(std::vector<INPUT>& inputs, WORD key, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  inputs.push_back(input);
}

/// A key with the keys held meanwhile.
void Stroke(WORD key, const std::vector<WORD>& held) {
  std::vector<INPUT> inputs;
  for (WORD with : held) AddKey(inputs, with, false);
  AddKey(inputs, key, false);
  AddKey(inputs, key, true);
  for (WORD with : held) AddKey(inputs, with, true);
  Send(inputs);
}

void TypeCharacter(wchar_t character) {
  const SHORT key = VkKeyScanW(character);
  if (key == -1) throw std::runtime_error("this keyboard has no such character");
  Stroke(LOBYTE(key), (HIBYTE(key) & 1) != 0 ? std::vector<WORD>{VK_SHIFT} : std::vector<WORD>{});
}

void PressNamed(std::string name) {
  static const std::map<std::string, WORD> named = {
      {"Enter", VK_RETURN}, {"Esc", VK_ESCAPE},   {"Tab", VK_TAB},       {"F1", VK_F1},     {"F3", VK_F3},
      {"F8", VK_F8},        {"F10", VK_F10},      {"Delete", VK_DELETE}, {"Down", VK_DOWN}, {"Up", VK_UP},
      {"Home", VK_HOME},    {"PageUp", VK_PRIOR}, {"PageDown", VK_NEXT}, {"Menu", VK_APPS}, {"Space", VK_SPACE}};
  static const std::map<std::string, WORD> holding = {{"Ctrl+", VK_CONTROL}, {"Alt+", VK_MENU}, {"Shift+", VK_SHIFT}};
  std::vector<WORD> held;
  for (const auto& [prefix, key] : holding) {
    if (!name.starts_with(prefix)) continue;
    held.push_back(key);
    name.erase(0, prefix.size());
  }
  const auto found = named.find(name);
  if (found == named.end() && name.size() != 1) throw std::runtime_error("no such key: " + name);
  Stroke(found != named.end() ? found->second : static_cast<WORD>(std::toupper(static_cast<unsigned char>(name[0]))), held);
}

bool IsMenuOpen(DWORD process) {
  const auto windows = WindowsOf(process);
  return std::any_of(windows.begin(), windows.end(), [](HWND window) { return KindOf(window) == kMenuKind; });
}

}  // namespace

void FormOnScreen::ComeToFront() {
  Wait([&] { return IsWindowVisible(form_) && IsWindowEnabled(form_) && GetForegroundWindow() == form_; },
       Quoted(TextOf(form_)) + " in front");
}

HWND FormOnScreen::Captioned(const std::string& caption) const {
  HWND found = nullptr;
  Wait(
      [&] {
        for (HWND child : ChildrenOf(form_)) {
          if (CaptionOf(child) == caption) return (found = child) != nullptr;
        }
        return false;
      },
      Quoted(caption));
  return found;
}

HWND FormOnScreen::Behind(const std::string& label) const {
  RECT place{};
  GetWindowRect(Captioned(label), &place);
  HWND nearest = nullptr;
  LONG distance = 0;
  for (HWND child : ChildrenOf(form_)) {
    const std::string kind = KindOf(child);
    if ((kind != "Edit" && kind != "ComboBox") || GetParent(child) != form_) continue;
    RECT field{};
    GetWindowRect(child, &field);
    const LONG middle = (place.top + place.bottom) / 2;
    if (field.left < place.left || middle < field.top || middle > field.bottom) continue;
    if (nearest == nullptr || field.left < distance) {
      nearest = child;
      distance = field.left;
    }
  }
  return nearest != nullptr ? nearest : Below(place, label);
}

HWND FormOnScreen::Below(const RECT& label, const std::string& caption) const {
  for (HWND child : ChildrenOf(form_)) {
    const std::string kind = KindOf(child);
    RECT field{};
    GetWindowRect(child, &field);
    const bool isBelow = field.left == label.left && field.top >= label.bottom && field.top < 2 * label.bottom - label.top;
    if ((kind == "Edit" || kind == "ComboBox") && isBelow) return child;
  }
  throw std::runtime_error("nothing to type into behind " + Quoted(caption));
}

void FormOnScreen::ClickAt(HWND window) {
  ComeToFront();
  Wait([&] { return IsWindowEnabled(window) != FALSE; }, Quoted(CaptionOf(window)) + " to be enabled");
  ClickPoint(window, MiddleOf(window));
}

void FormOnScreen::Click(const std::string& caption) {
  ClickAt(Captioned(caption));
}

void FormOnScreen::TurnTo(const std::string& page) {
  ComeToFront();
  for (HWND child : ChildrenOf(form_)) {
    if (KindOf(child) != "SysTabControl32") continue;
    const TabsOnScreen tabs(child);
    std::optional<POINT> place;
    Wait([&] { return (place = tabs.PlaceOf(page)).has_value(); }, "the tab " + Quoted(page));
    ClickPoint(child, *place);
    Wait([&] { return tabs.InFront() == page; }, "the page " + Quoted(page));
    return;
  }
  throw std::runtime_error("no pages on " + Quoted(TextOf(form_)));
}

void FormOnScreen::Press(const std::string& key) {
  ComeToFront();
  PressNamed(key);
}

void FormOnScreen::Type(const std::string& text) {
  ComeToFront();
  for (wchar_t character : windows::Wide(text)) TypeCharacter(character);
}

void FormOnScreen::GoBehind(const std::string& label) {
  const HWND field = Behind(label);
  if (FocusOf(form_) != field) ClickAt(field);
  HasFocusBehind(label);
}

void FormOnScreen::Write(const std::string& label, const std::string& text) {
  GoBehind(label);
  ComeToFront();
  PressNamed("Ctrl+A");
  Type(text);
  Shows(label, text);
}

void FormOnScreen::Choose(const std::string& label, const std::string& entry) {
  const HWND list = Behind(label);
  ClickAt(list);
  const auto isOpen = [&] { return Ask(list, CB_GETDROPPEDSTATE) != 0; };
  Wait(isOpen, "the entries behind " + Quoted(label));
  PressNamed("Home");
  Wait([&] { return Ask(list, CB_GETCURSEL) == 0; }, "the first entry behind " + Quoted(label));
  const LRESULT count = Ask(list, CB_GETCOUNT);
  for (LRESULT next = 1; next < count && TextOf(list) != entry; ++next) {
    PressNamed("Down");
    Wait([&] { return Ask(list, CB_GETCURSEL) == next; }, "the next entry behind " + Quoted(label));
  }
  PressNamed("Enter");
  Wait([&] { return !isOpen(); }, "the entries behind " + Quoted(label) + " to close");
  Shows(label, entry);
}

void FormOnScreen::CloseByTitleBar() {
  ComeToFront();
  PostMessageW(form_, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void FormOnScreen::Pull(int right, int down) {
  ComeToFront();
  RECT place{};
  GetWindowRect(form_, &place);
  SetWindowPos(form_, nullptr, 0, 0, place.right - place.left + right, place.bottom - place.top + down,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormOnScreen::Maximize() {
  ComeToFront();
  PostMessageW(form_, WM_SYSCOMMAND, SC_MAXIMIZE, 0);
  Wait([&] { return IsZoomed(form_) != FALSE; }, Quoted(TextOf(form_)) + " to fill the screen");
}

void FormOnScreen::Shows(const std::string& label, const std::string& text) {
  const HWND field = Behind(label);
  std::string seen;
  WaitUntil([&] { return (seen = TextOf(field)) == text; },
            [&] { return Quoted(label) + " shows " + Quoted(seen) + " and not " + Quoted(text) + Describe(process_); });
}

void FormOnScreen::Holds(const std::string& text) {
  std::string seen;
  WaitUntil([&] { return (seen = TextOf(FocusOf(form_))) == text; },
            [&] { return "the box with the focus holds " + Quoted(seen) + " and not " + Quoted(text) + Describe(process_); });
}

void FormOnScreen::HasInFront(const std::string& page) {
  Wait(
      [&] {
        for (HWND child : ChildrenOf(form_)) {
          if (KindOf(child) == "SysTabControl32" && TabsOnScreen(child).InFront() == page) return true;
        }
        return false;
      },
      "the page " + Quoted(page));
}

void FormOnScreen::HasFocusBehind(const std::string& label) {
  const HWND field = Behind(label);
  Wait(
      [&] {
        const HWND focus = FocusOf(form_);
        return focus == field || IsChild(field, focus);
      },
      "the focus behind " + Quoted(label));
}

void FormOnScreen::HasFocusOn(const std::string& caption) {
  const HWND window = Captioned(caption);
  Wait([&] { return FocusOf(form_) == window; }, "the focus on " + Quoted(caption));
}

void FormOnScreen::HasWholeFrame(const std::string& caption) {
  const HWND frame = Captioned(caption);
  Wait([&] { return IsFrameWhole(frame); }, "the frame " + Quoted(caption) + " with its four lines");
}

void FormOnScreen::IsUsable(const std::string& caption, bool usable) {
  const HWND window = Captioned(caption);
  Wait([&] { return (IsWindowEnabled(window) != FALSE) == usable; }, Quoted(caption) + (usable ? " enabled" : " disabled"));
}

void FormOnScreen::Goes() {
  Wait([&] { return !IsWindowVisible(form_); }, "the window to close");
}

Person::Person(const Program& program) : program_(program) {
  // A pointer that lies about would point at entries of lists that open below it.
  SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
}

FormOnScreen Person::Meets(const std::string& title) {
  HWND found = nullptr;
  WaitUntil(
      [&] {
        for (HWND window : WindowsOf(program_.Id())) {
          if (KindOf(window) == kFormKind && IsWindowEnabled(window) && TextOf(window) == title) found = window;
        }
        return found != nullptr && GetForegroundWindow() == found && FocusOf(found) != nullptr;
      },
      [&] { return "never met " + Quoted(title) + "; on the screen:" + Describe(program_.Id()); });
  return FormOnScreen(program_.Id(), found);
}

std::string Person::Answers(const std::string& caption) {
  HWND box = nullptr;
  HWND button = nullptr;
  const auto isThere = [&] {
    for (HWND window : WindowsOf(program_.Id())) {
      if (KindOf(window) != kMessageKind || !IsWindowEnabled(window)) continue;
      for (HWND child : ChildrenOf(window)) {
        if (KindOf(child) == "Button" && CaptionOf(child) == caption) button = child;
      }
      box = window;
    }
    return button != nullptr && GetForegroundWindow() == box;
  };
  WaitUntil(isThere,
            [&] { return "no message to answer with " + Quoted(caption) + "; on the screen:" + Describe(program_.Id()); });
  std::string text;
  for (HWND child : ChildrenOf(box)) {
    if (KindOf(child) == "Static") text += TextOf(child);
  }
  for (char& c : text) {
    if (c == '\n' || c == '\r') c = ' ';
  }
  ClickPoint(button, MiddleOf(button));
  WaitUntil([&] { return !IsWindowVisible(box); }, [&] { return "the message stays: " + text; });
  return text;
}

void Person::MeetsMenu() {
  WaitUntil([&] { return IsMenuOpen(program_.Id()); }, [&] { return "no menu; on the screen:" + Describe(program_.Id()); });
}

void Person::LeavesMenu() {
  PressNamed("Esc");
  WaitUntil([&] { return !IsMenuOpen(program_.Id()); }, [] { return "the menu stays"; });
}

void Person::Picks(char accessKey) {
  MeetsMenu();
  PressNamed(std::string(1, accessKey));
}

}  // namespace person
