#include "tests/windows/products/person/eyes.h"

#include <algorithm>
#include <array>

#include "platform/windows/desktop/common_controls.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"
#include "tests/windows/products/person/patience.h"

namespace person {
namespace {

constexpr std::size_t kLongestText = 1024;
constexpr UINT kAnswerTime = 20'000;  // milliseconds

/// What is exchanged with a list in its own process.
struct Letter {
  LVITEMW item;
  RECT place;
  std::array<wchar_t, kLongestText> text;
};

/// The same with a tab control.
struct TabLetter {
  TCITEMW item;
  RECT place;
  std::array<wchar_t, kLongestText> text;
};

}  // namespace

LRESULT Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kAnswerTime, &answer);
  return static_cast<LRESULT>(answer);
}

std::string TextOf(HWND window) {
  std::array<wchar_t, kLongestText> text{};
  Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  return windows::Utf8(text.data());
}

std::string CaptionOf(HWND window) {
  std::string text = TextOf(window);
  std::erase(text, '&');
  return text;
}

std::string KindOf(HWND window) {
  std::array<wchar_t, 128> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return windows::Utf8(name.data());
}

std::string Quoted(const std::string& text) {
  return "\"" + text + "\"";
}

std::vector<HWND> WindowsOf(DWORD process) {
  std::vector<HWND> found = windows::TopLevelWindows();
  std::erase_if(found, [&](HWND window) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return owner != process || !IsWindowVisible(window);
  });
  return found;
}

std::vector<HWND> ChildrenOf(HWND window) {
  std::vector<HWND> children = windows::WindowsInside(window);
  std::erase_if(children, [](HWND child) { return !IsWindowVisible(child); });
  return children;
}

HWND FocusOf(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) ? info.hwndFocus : nullptr;
}

std::string Describe(DWORD process) {
  std::string text;
  for (HWND window : WindowsOf(process)) {
    text += "\n  " + KindOf(window) + " \"" + TextOf(window) + (IsWindowEnabled(window) ? "\"" : "\" (disabled)");
    if (GetForegroundWindow() == window) text += " (in front)";
    if (KindOf(window) != "#32770") continue;
    for (HWND child : ChildrenOf(window)) text += " [" + TextOf(child) + "]";
  }
  return text.empty() ? "\n  no window" : text;
}

bool IsFrameWhole(HWND frame) {
  RECT place{};
  GetWindowRect(frame, &place);
  const HDC screen = GetDC(nullptr);
  const LONG x = place.right - 20;
  const LONG y = (place.top + place.bottom) / 2;
  // A line is a change of colour on the way from the edge inwards; the upper one is as far down as half of its caption.
  const auto meetsLine = [&](POINT edge, POINT inwards, int steps) {
    const COLORREF first = GetPixel(screen, edge.x, edge.y);
    for (int step = 1; step <= steps; ++step) {
      if (GetPixel(screen, edge.x + step * inwards.x, edge.y + step * inwards.y) != first) return true;
    }
    return false;
  };
  constexpr int kNear = 5;
  constexpr int kBelowCaption = 15;
  const bool isWhole = meetsLine({place.left - 1, y}, {1, 0}, kNear) && meetsLine({place.right, y}, {-1, 0}, kNear) &&
                       meetsLine({x, place.bottom}, {0, -1}, kNear) && meetsLine({x, place.top - 1}, {0, 1}, kBelowCaption);
  ReleaseDC(nullptr, screen);
  return isWhole;
}

Elsewhere::Elsewhere(HWND window, std::size_t bytes) {
  DWORD id = 0;
  GetWindowThreadProcessId(window, &id);
  process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
  memory_ = VirtualAllocEx(process_, nullptr, bytes, MEM_COMMIT, PAGE_READWRITE);
  if (memory_ == nullptr) throw std::runtime_error("the window's process gives no memory");
}

Elsewhere::~Elsewhere() {
  VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
  CloseHandle(process_);
}

void Elsewhere::Write(const void* data, std::size_t bytes) const {
  WriteProcessMemory(process_, memory_, data, bytes, nullptr);
}

void Elsewhere::Read(const void* place, void* data, std::size_t bytes) const {
  ReadProcessMemory(process_, place, data, bytes, nullptr);
}

TabsOnScreen::TabsOnScreen(HWND tabs) : tabs_(tabs), there_(tabs, sizeof(TabLetter)) {}

std::string TabsOnScreen::CaptionAt(LRESULT tab) const {
  auto* there = static_cast<TabLetter*>(there_.Memory());
  TabLetter letter{};
  letter.item.mask = TCIF_TEXT;
  letter.item.pszText = there->text.data();
  letter.item.cchTextMax = static_cast<int>(kLongestText);
  there_.Write(&letter, sizeof(letter));
  Ask(tabs_, TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&there->item));
  there_.Read(there, &letter, sizeof(letter));
  letter.text.back() = L'\0';
  return windows::Utf8(letter.text.data());
}

std::string TabsOnScreen::InFront() const {
  return CaptionAt(Ask(tabs_, TCM_GETCURSEL));
}

std::optional<POINT> TabsOnScreen::PlaceOf(const std::string& caption) const {
  const LRESULT count = Ask(tabs_, TCM_GETITEMCOUNT);
  for (LRESULT tab = 0; tab < count; ++tab) {
    if (CaptionAt(tab) != caption) continue;
    auto* there = static_cast<TabLetter*>(there_.Memory());
    Ask(tabs_, TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&there->place));
    RECT place{};
    there_.Read(&there->place, &place, sizeof(place));
    return POINT{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  }
  return std::nullopt;
}

ListOnScreen::ListOnScreen(HWND list)
    : list_(list), header_(reinterpret_cast<HWND>(Ask(list, LVM_GETHEADER))), there_(list, sizeof(Letter)) {}

int ListOnScreen::Rows() const {
  return static_cast<int>(Ask(list_, LVM_GETITEMCOUNT));
}

int ListOnScreen::Columns() const {
  return static_cast<int>(Ask(header_, HDM_GETITEMCOUNT));
}

bool ListOnScreen::IsSeen(int column) const {
  return Ask(list_, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)) > 0;
}

std::string ListOnScreen::HeadingAt(int column) const {
  auto* there = static_cast<Letter*>(there_.Memory());
  HDITEMW item{};
  item.mask = HDI_TEXT;
  item.pszText = there->text.data();
  item.cchTextMax = static_cast<int>(kLongestText);
  there_.Write(&item, sizeof(item));
  Ask(header_, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(there));
  std::array<wchar_t, kLongestText> text{};
  there_.Read(there->text.data(), text.data(), sizeof(text));
  return windows::Utf8(text.data());
}

Texts ListOnScreen::Headings() const {
  Texts headings;
  for (int column = 0; column < Columns(); ++column) {
    if (IsSeen(column)) headings.push_back(HeadingAt(column));
  }
  return headings;
}

RECT ListOnScreen::HeadingPlace(const std::string& heading) const {
  auto* there = static_cast<Letter*>(there_.Memory());
  for (int column = 0; column < Columns(); ++column) {
    if (!IsSeen(column) || HeadingAt(column) != heading) continue;
    Ask(header_, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&there->place));
    RECT place{};
    there_.Read(&there->place, &place, sizeof(place));
    return place;
  }
  throw std::runtime_error("no column " + heading);
}

std::string ListOnScreen::TextAt(int row, int column) const {
  auto* there = static_cast<Letter*>(there_.Memory());
  Letter letter{};
  letter.item.iSubItem = column;
  letter.item.pszText = there->text.data();
  letter.item.cchTextMax = static_cast<int>(kLongestText);
  there_.Write(&letter, sizeof(letter));
  Ask(list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&there->item));
  there_.Read(there, &letter, sizeof(letter));
  letter.text.back() = L'\0';
  return windows::Utf8(letter.text.data());
}

Texts ListOnScreen::Row(int row) const {
  Texts cells;
  for (int column = 0; column < Columns(); ++column) {
    if (IsSeen(column)) cells.push_back(TextAt(row, column));
  }
  return cells;
}

int ListOnScreen::SelectedRow() const {
  return static_cast<int>(Ask(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

bool ListOnScreen::IsTicked(int row) const {
  // State images count from 1: without a tick, with one.
  return (Ask(list_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK) >> 12) == 2;
}

POINT ListOnScreen::PlaceOf(int row) const {
  Ask(list_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  auto* there = static_cast<Letter*>(there_.Memory());
  Letter letter{};
  letter.place.left = LVIR_LABEL;
  there_.Write(&letter, sizeof(letter));
  Ask(list_, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&there->place));
  there_.Read(there, &letter, sizeof(letter));
  return {letter.place.left + 6, (letter.place.top + letter.place.bottom) / 2};
}

POINT ListOnScreen::PlaceOf(int row, const std::string& heading) const {
  POINT corner{HeadingPlace(heading).left, 0};
  MapWindowPoints(header_, list_, &corner, 1);
  return {corner.x + 8, PlaceOf(row).y};
}

POINT ListOnScreen::BoxOf(int row) const {
  const POINT text = PlaceOf(row);
  return {text.x - 16, text.y};
}

}  // namespace person
