#include "tests/windows/products/person/mouse.h"

namespace person {
namespace {

LPARAM At(LONG x, LONG y) {
  return static_cast<LPARAM>(MAKELONG(x, y));
}

}  // namespace

POINT MiddleOf(HWND window) {
  RECT place{};
  GetClientRect(window, &place);
  return {place.right / 2, place.bottom / 2};
}

void Mouse(HWND window, POINT point, int times, UINT down, UINT up) {
  const LPARAM place = At(point.x, point.y);
  for (int time = 0; time < times; ++time) {
    const bool isSecond = time == 1 && down == WM_LBUTTONDOWN;
    PostMessageW(window, isSecond ? WM_LBUTTONDBLCLK : down, down == WM_LBUTTONDOWN ? MK_LBUTTON : MK_RBUTTON, place);
    PostMessageW(window, up, 0, place);
  }
}

void ClickPoint(HWND window, POINT point) {
  Mouse(window, point, 1, WM_LBUTTONDOWN, WM_LBUTTONUP);
}

void Drag(HWND window, POINT from, int right) {
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, At(from.x, from.y));
  PostMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, At(from.x + right, from.y));
  PostMessageW(window, WM_LBUTTONUP, 0, At(from.x + right, from.y));
}

}  // namespace person
