#include "platform/terminal/screen.h"

#include <array>
#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <curses.h>
#include <cwchar>
#include <langinfo.h>
#include <poll.h>
#include <string_view>
#include <sys/ioctl.h>
#include <term.h>
#include <unistd.h>

#include "base/vb/text.h"
#include "platform/terminal/key_codes.h"

// The library's macros are in the way of names of ours.
#undef move
#undef timeout
#undef lines
#undef columns

namespace terminal {
namespace {

constexpr int kEscapeMilliseconds = 25;
constexpr int kDoubleClickMilliseconds = 400;
constexpr short kRedPair = 1;
constexpr int kPasteBegins = KEY_MAX + 1;
constexpr int kPasteEnds = KEY_MAX + 2;
// What the library has no word for: text that is pasted comes between two marks, text that is copied goes to the clipboard.
constexpr std::string_view kPasteOn = "\x1B[?2004h";
constexpr std::string_view kPasteOff = "\x1B[?2004l";
constexpr std::size_t kMaxPaste = 16 << 20;

bool hasColors = false;

void WriteOut(std::string_view sequence) {
  std::fflush(stdout);
  (void)!write(STDOUT_FILENO, sequence.data(), sequence.size());
}

std::string InBase64(std::string_view text) {
  constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string encoded;
  for (std::size_t at = 0; at < text.size(); at += 3) {
    const std::string_view group = text.substr(at, 3);
    unsigned bits = 0;
    for (std::size_t i = 0; i < 3; ++i) bits = bits << 8 | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0u);
    for (std::size_t digit = 0; digit < 4; ++digit) {
      encoded += digit <= group.size() ? kDigits[bits >> (18 - 6 * digit) & 63] : '=';
    }
  }
  return encoded;
}

long Milliseconds() {
  using namespace std::chrono;
  return static_cast<long>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

/// The terminal is given back before a crash ends the program; what the library needs for it may no longer be whole.
void GiveBackAndDie(int signal) {
  (void)!write(STDOUT_FILENO, kPasteOff.data(), kPasteOff.size());
  endwin();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

constexpr std::array kCrashes = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

/// Of the locale's character set, or a plain one that looks like it.
wchar_t Shown(char32_t character) {
  std::array<char, MB_LEN_MAX> bytes{};
  std::mbstate_t state{};
  const auto wide = static_cast<wchar_t>(character);
  if (wcrtomb(bytes.data(), wide, &state) != static_cast<std::size_t>(-1)) return wide;
  switch (character) {
    case U'─':
      return L'-';
    case U'│':
      return L'|';
    case U'┌':
    case U'┐':
    case U'└':
    case U'┘':
    case U'┼':
      return L'+';
    case U'»':
      return L'>';
    case U'…':
      return L'.';
    case U'▲':
      return L'^';
    case U'▼':
      return L'v';
    default:
      return L'?';
  }
}

attr_t Attributes(text::Looks looks) {
  attr_t attributes = A_NORMAL;
  if (looks & text::kDim) attributes |= A_DIM;
  if (looks & text::kChosen) attributes |= A_REVERSE;
  if (looks & text::kUnderlined) attributes |= A_UNDERLINE;
  if ((looks & text::kRed) && !hasColors) attributes |= A_BOLD;
  return attributes;
}

int ContinuationBytes(int lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return 1;
  if (lead >= 0xE0 && lead <= 0xEF) return 2;
  if (lead >= 0xF0 && lead <= 0xF4) return 3;
  return 0;
}

/// Line ends come as the Enter key's character.
std::string WithLineEnds(std::string_view pasted) {
  std::string text;
  for (std::size_t i = 0; i < pasted.size(); ++i) {
    if (pasted[i] == '\r' && i + 1 < pasted.size() && pasted[i + 1] == '\n') continue;
    text += pasted[i] == '\r' || pasted[i] == '\n' ? "\r\n" : std::string(1, pasted[i]);
  }
  return text;
}

}  // namespace

std::optional<std::string> Screen::WhyNot() {
  if (!isatty(STDIN_FILENO) || !isatty(STDOUT_FILENO)) return "the input or the output is no terminal";
  const char* type = std::getenv("TERM");
  int found = 0;
  if (!type || !*type || setupterm(nullptr, STDOUT_FILENO, &found) != OK) {
    return "terminals of type \"" + std::string(type ? type : "") + "\" are unknown here";
  }
  if (!cursor_address || !clear_screen) {
    return "a terminal of type \"" + std::string(type) + "\" cannot place text";
  }
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 && (size.ws_col < kMinWidth || size.ws_row < kMinHeight)) {
    return "the terminal has " + std::to_string(size.ws_col) + " x " + std::to_string(size.ws_row) + " characters, " +
           std::to_string(kMinWidth) + " x " + std::to_string(kMinHeight) + " are needed";
  }
  return std::nullopt;
}

Screen::Screen() {
  std::setlocale(LC_CTYPE, "");
  isUtf8_ = std::string_view(nl_langinfo(CODESET)) == "UTF-8";
  set_escdelay(kEscapeMilliseconds);
  if (!newterm(nullptr, stdout, stdin)) throw std::runtime_error("the terminal cannot be worked on");
  Enter();
  for (const int crash : kCrashes) std::signal(crash, GiveBackAndDie);
}

Screen::~Screen() {
  for (const int crash : kCrashes) std::signal(crash, SIG_DFL);
  Leave();
}

void Screen::Enter() {
  raw();
  noecho();
  nonl();
  keypad(stdscr, TRUE);
  nodelay(stdscr, TRUE);
  // Presses alone: the library would wait for what makes a click.
  mousemask(BUTTON1_PRESSED | BUTTON3_PRESSED | BUTTON4_PRESSED | BUTTON5_PRESSED, nullptr);
  mouseinterval(0);
  // Some terminals keep to their plain arrows whatever the description says.
  for (const auto& [sequence, key] :
       {std::pair{"\x1B[A", KEY_UP}, {"\x1B[B", KEY_DOWN}, {"\x1B[C", KEY_RIGHT}, {"\x1B[D", KEY_LEFT}}) {
    define_key(sequence, key);
  }
  define_key("\x1B[200~", kPasteBegins);
  define_key("\x1B[201~", kPasteEnds);
  const char* noColor = std::getenv("NO_COLOR");
  hasColors = (!noColor || !*noColor) && has_colors();
  if (hasColors) {
    start_color();
    use_default_colors();
    init_pair(kRedPair, COLOR_RED, -1);
  }
  WriteOut(kPasteOn);
}

void Screen::Leave() {
  WriteOut(kPasteOff);
  endwin();
}

void Screen::Suspend() {
  Leave();
  Signals::StopNow();
  WriteOut(kPasteOn);
  clearok(stdscr, TRUE);
  refresh();
}

int Screen::Width() const {
  return COLS;
}

int Screen::Height() const {
  return LINES;
}

void Screen::Show(const text::Canvas& picture) {
  for (int y = 0; y < Height(); ++y) {
    for (int x = 0; x < Width(); ++x) {
      const text::Cell cell = picture.At(x, y);
      if (cell.character == text::kCovered) continue;
      const std::array<wchar_t, 2> character = {Shown(cell.character), 0};
      cchar_t shown{};
      const short pair = hasColors && (cell.looks & text::kRed) ? kRedPair : static_cast<short>(0);
      setcchar(&shown, character.data(), Attributes(cell.looks), pair, nullptr);
      mvadd_wch(y, x, &shown);
    }
  }
  if (const auto& caret = picture.Caret(); caret && caret->x < Width() && caret->y < Height()) {
    curs_set(1);
    ::wmove(stdscr, caret->y, caret->x);
  } else {
    curs_set(0);
  }
  refresh();
}

bool Screen::HasWaiting() const {
  pollfd input{STDIN_FILENO, POLLIN, 0};
  return !hasEnded_ && poll(&input, 1, 0) > 0;
}

void Screen::CopyOut(std::string_view text) {
  constexpr std::size_t kMaxTaken = 74994;  // what terminals take at most
  if (text.size() <= kMaxTaken) WriteOut("\x1B]52;c;" + InBase64(text) + "\a");
}

void Screen::Alarm() {
  beep();
}

void Screen::Wait() {
  std::array<pollfd, 2> sources = {pollfd{STDIN_FILENO, POLLIN, 0}, pollfd{signals_.Descriptor(), POLLIN, 0}};
  poll(sources.data(), sources.size(), -1);
  if ((sources[0].revents & (POLLHUP | POLLERR)) != 0 && (sources[0].revents & POLLIN) == 0) hasEnded_ = true;
}

Event Screen::Next() {
  while (true) {
    switch (signals_.Take()) {
      case Asked::End:
        hasEnded_ = true;
        break;
      case Asked::Stop:
        return {.kind = Event::Kind::Stop};
      case Asked::Redraw:
        clearok(stdscr, TRUE);
        return {.kind = Event::Kind::Redraw};
      case Asked::Nothing:
        break;
    }
    if (hasEnded_) return {.kind = Event::Kind::End};
    if (auto event = Read()) return *event;
    Wait();
  }
}

std::optional<Event> Screen::Read() {
  const int code = wgetch(stdscr);
  if (code == ERR) {
    // A readable input without a byte has come to its end.
    pollfd input{STDIN_FILENO, POLLIN, 0};
    int waiting = 0;
    if (poll(&input, 1, 0) > 0 && (ioctl(STDIN_FILENO, FIONREAD, &waiting) != 0 || waiting == 0)) hasEnded_ = true;
    return hasEnded_ ? std::optional(Event{.kind = Event::Kind::End}) : std::nullopt;
  }
  switch (code) {
    case KEY_RESIZE:
      return Event{.kind = Event::Kind::Redraw};
    case KEY_MOUSE:
      return MouseEvent();
    case kPasteBegins:
      return PasteEvent();
    case kPasteEnds:
      return std::nullopt;
    case 0x1B:
      return AltEvent();
    default:
      return code > 0xFF ? KeyEvent(code) : std::optional(ByteEvent(code));
  }
}

std::optional<Event> Screen::KeyEvent(int code) {
  const auto key = KeyOf(code, keyname(code));
  return key ? std::optional(Event{.key = *key}) : std::nullopt;
}

int Screen::ByteWithin(int milliseconds) {
  wtimeout(stdscr, milliseconds);
  const int byte = wgetch(stdscr);
  nodelay(stdscr, TRUE);
  return byte;
}

/// Esc, or what came right after it with Alt held.
Event Screen::AltEvent() {
  const int next = wgetch(stdscr);
  if (next == ERR) return {.key = ControlKey(0x1B)};
  if (next == 0x1B || next > 0xFF) {
    ungetch(next);
    return {.key = ControlKey(0x1B)};
  }
  if (next < 0x20 || next == 0x7F) {
    Event event{.key = ControlKey(next)};
    event.key.shift |= controls::kAlt;
    return event;
  }
  return {.key = TypedKey(ByteEvent(next).key.character, true)};
}

Event Screen::ByteEvent(int byte) {
  if (byte < 0x20 || byte == 0x7F) return {.key = ControlKey(byte)};
  if (byte < 0x80) return {.key = TypedKey(static_cast<char32_t>(byte), false)};
  const auto withAlt = static_cast<char32_t>(byte & 0x7F);
  if (!isUtf8_) {
    std::mbstate_t state{};
    const char narrow = static_cast<char>(byte);
    wchar_t wide = 0;
    if (mbrtowc(&wide, &narrow, 1, &state) != 1) return {.key = TypedKey(withAlt, true)};
    return {.key = TypedKey(static_cast<char32_t>(wide), false), .withAlt = withAlt};
  }
  std::string bytes(1, static_cast<char>(byte));
  for (int left = ContinuationBytes(byte); left > 0; --left) {
    const int next = ByteWithin(kEscapeMilliseconds);
    if (next < 0x80 || next > 0xBF) {
      // No whole character: a letter with the eighth bit for Alt.
      if (next != ERR) ungetch(next);
      return {.key = TypedKey(withAlt, true)};
    }
    bytes += static_cast<char>(next);
  }
  if (bytes.size() == 1) return {.key = TypedKey(withAlt, true)};
  std::size_t offset = 0;
  return {.key = TypedKey(vb::NextCharacter(bytes, offset), false)};
}

Event Screen::PasteEvent() {
  std::string pasted;
  while (pasted.size() < kMaxPaste) {
    const int code = ByteWithin(1000);
    if (code == kPasteEnds || code == ERR) break;
    if (code <= 0xFF) pasted += static_cast<char>(code);
  }
  if (!isUtf8_) {
    std::string converted;
    for (const char byte : pasted) vb::AppendCharacter(converted, static_cast<unsigned char>(byte));
    pasted = std::move(converted);
  }
  return {.kind = Event::Kind::Paste, .text = WithLineEnds(pasted)};
}

std::optional<Event> Screen::MouseEvent() {
  MEVENT mouse{};
  if (getmouse(&mouse) != OK) return std::nullopt;
  Event event{.kind = Event::Kind::Mouse, .x = mouse.x, .y = mouse.y};
  if (mouse.bstate & BUTTON4_PRESSED) {
    event.button = Event::Button::WheelUp;
  } else if (mouse.bstate & BUTTON5_PRESSED) {
    event.button = Event::Button::WheelDown;
  } else if (mouse.bstate & BUTTON3_PRESSED) {
    event.button = Event::Button::Right;
  } else if (mouse.bstate & BUTTON1_PRESSED) {
    const long now = Milliseconds();
    const bool again =
        lastPress_.x == mouse.x && lastPress_.y == mouse.y && now - lastPress_.milliseconds < kDoubleClickMilliseconds;
    lastPress_ = again ? Press{} : Press{mouse.x, mouse.y, now};
    event.button = again ? Event::Button::LeftTwice : Event::Button::Left;
  } else {
    return std::nullopt;
  }
  return event;
}

}  // namespace terminal
