#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "platform/terminal/signals.h"
#include "platform/terminal/terminal_event.h"
#include "platform/text/drawing/canvas.h"

namespace terminal {

inline constexpr int kMinWidth = 80;
inline constexpr int kMinHeight = 24;

/// The terminal that the program runs on, full screen for as long as this lives; given back as it was at the end, also when the
/// program crashes.
class Screen {
 public:
  /// Why the standard streams cannot be worked on full screen; nothing when they can.
  static std::optional<std::string> WhyNot();

  Screen();
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  int Width() const;
  int Height() const;
  /// Shows the upper left part of the picture that fits; the cursor at the caret, hidden without one.
  void Show(const text::Canvas& picture);
  /// Waits for the next event.
  Event Next();
  /// Whether another event waits already, so that nobody would see what is shown before it.
  bool HasWaiting() const;
  /// Offers a text to the system's clipboard; not every terminal takes it.
  void CopyOut(std::string_view text);
  void Alarm();
  /// Gives the terminal back and stops the process until it is resumed.
  void Suspend();

 private:
  void Enter();
  void Leave();
  std::optional<Event> Read();
  std::optional<Event> KeyEvent(int code);
  std::optional<Event> MouseEvent();
  Event ByteEvent(int byte);
  Event PasteEvent();
  Event AltEvent();
  int ByteWithin(int milliseconds);
  void Wait();

  Signals signals_;
  bool isUtf8_ = false;
  bool hasEnded_ = false;
  struct Press {
    int x = -1, y = -1;
    long milliseconds = 0;
  };
  Press lastPress_;
};

}  // namespace terminal
