#pragma once

namespace controls {

/// Key codes of KeyDown and KeyUp.
enum KeyCode {
  kKeyBack = 8,
  kKeyTab = 9,
  kKeyReturn = 13,
  kKeyEscape = 27,
  kKeySpace = 32,
  kKeyPageUp = 33,
  kKeyPageDown = 34,
  kKeyEnd = 35,
  kKeyHome = 36,
  kKeyLeft = 37,
  kKeyUp = 38,
  kKeyRight = 39,
  kKeyDown = 40,
  kKeyDelete = 46,
  kKeyD = 68,
  kKeyF1 = 112,
  kKeyF3 = 114,
  kKeyF4 = 115,
  kKeyF8 = 119,
  kKeyF10 = 121,
  kKeyF12 = 123,
};

/// Characters of KeyPress.
enum Character {
  kCharCtrlD = 4,
  kCharBack = 8,
  kCharTab = 9,
  kCharLineFeed = 10,
  kCharReturn = 13,
  kCharCtrlZ = 26,
  kCharEscape = 27,
  kCharApostrophe = 39
};

/// Shift states, added up.
enum ShiftState { kShift = 1, kCtrl = 2, kAlt = 4 };

/// Buttons of MouseDown and MouseUp.
enum MouseButton { kLeftButton = 1, kRightButton = 2 };

}  // namespace controls
