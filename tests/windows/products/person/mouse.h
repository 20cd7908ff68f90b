#pragma once

#include "platform/windows/windows_gate.h"

namespace person {

POINT MiddleOf(HWND window);

/// The mouse's messages for clicks at a point of a window, in its own coordinates. They are posted: the pointer itself is the
/// display's, whose late news of where it stood would now and then carry a click elsewhere.
void Mouse(HWND window, POINT point, int times, UINT down, UINT up);
/// One click with the left button.
void ClickPoint(HWND window, POINT point);
/// The left button goes down at a point and comes up so many pixels further to the right.
void Drag(HWND window, POINT from, int right);

}  // namespace person
