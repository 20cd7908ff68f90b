#pragma once

#include <string>

#include "base/controls/keyboard.h"

namespace terminal {

/// What a person, or the system, does to a terminal.
struct Event {
  enum class Kind {
    Key,
    Mouse,
    Paste,   ///< `text` came as one piece
    Redraw,  ///< the window has another size, or the program was stopped for a while
    Stop,    ///< the program is to be suspended
    End      ///< hung up, ended or at the end of its input; there will be nothing else
  };
  enum class Button { Left, LeftTwice, Right, WheelUp, WheelDown };

  Kind kind = Kind::Key;
  controls::KeyStroke key = {};
  /// The key of an 8-bit character where it may also be a letter with Alt; 0 otherwise.
  char32_t withAlt = 0;
  Button button = Button::Left;
  int x = 0, y = 0;
  std::string text = {};
};

}  // namespace terminal
