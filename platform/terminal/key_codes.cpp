#include "platform/terminal/key_codes.h"

#include <array>
#include <cstdlib>
#include <curses.h>
#include <string>
#include <string_view>

#include "base/vb/text.h"

// The library's macros are in the way of names of ours.
#undef move
#undef timeout

namespace terminal {
namespace {

using controls::KeyStroke;

KeyStroke Named(const std::string& name) {
  KeyStroke key;
  controls::ParseKey(name, key);
  return key;
}

struct CodeName {
  int code;
  const char* name;
};
constexpr std::array kCodes = {
    CodeName{KEY_UP, "Up"},
    CodeName{KEY_DOWN, "Down"},
    CodeName{KEY_LEFT, "Left"},
    CodeName{KEY_RIGHT, "Right"},
    CodeName{KEY_HOME, "Home"},
    CodeName{KEY_FIND, "Home"},
    CodeName{KEY_END, "End"},
    CodeName{KEY_SELECT, "End"},
    CodeName{KEY_PPAGE, "PageUp"},
    CodeName{KEY_NPAGE, "PageDown"},
    CodeName{KEY_DC, "Delete"},
    CodeName{KEY_BACKSPACE, "Backspace"},
    CodeName{KEY_ENTER, "Enter"},
    CodeName{KEY_BTAB, "Shift+Tab"},
    CodeName{KEY_SDC, "Shift+Delete"},
    CodeName{KEY_SLEFT, "Shift+Left"},
    CodeName{KEY_SRIGHT, "Shift+Right"},
    CodeName{KEY_SR, "Shift+Up"},
    CodeName{KEY_SF, "Shift+Down"},
    CodeName{KEY_SHOME, "Shift+Home"},
    CodeName{KEY_SEND, "Shift+End"},
    CodeName{KEY_SPREVIOUS, "Shift+PageUp"},
    CodeName{KEY_SNEXT, "Shift+PageDown"},
};

struct ExtendedName {
  std::string_view prefix;
  const char* name;
};
constexpr std::array kExtended = {
    ExtendedName{"kUP", "Up"},     ExtendedName{"kDN", "Down"},    ExtendedName{"kLFT", "Left"},
    ExtendedName{"kRIT", "Right"}, ExtendedName{"kHOM", "Home"},   ExtendedName{"kEND", "End"},
    ExtendedName{"kDC", "Delete"}, ExtendedName{"kPRV", "PageUp"}, ExtendedName{"kNXT", "PageDown"},
};

/// The description numbers the held keys: 1 and the sum of Shift 1, Alt 2 and Ctrl 4.
std::string HeldKeys(int number) {
  const int held = number - 1;
  return std::string(held & 1 ? "Shift+" : "") + (held & 2 ? "Alt+" : "") + (held & 4 ? "Ctrl+" : "");
}

/// Function keys count on over the ones with Shift, Ctrl, both and Alt held.
std::optional<KeyStroke> FunctionKey(int number) {
  constexpr int kKeys = 12;
  constexpr std::array<const char*, 5> kHeld = {"", "Shift+", "Ctrl+", "Ctrl+Shift+", "Alt+"};
  const auto group = static_cast<std::size_t>((number - 1) / kKeys);
  if (number < 1 || group >= kHeld.size()) return std::nullopt;
  return Named(kHeld[group] + ("F" + std::to_string((number - 1) % kKeys + 1)));
}

}  // namespace

std::optional<KeyStroke> KeyOf(int code, const char* name) {
  if (code >= KEY_F(1) && code <= KEY_F(60)) return FunctionKey(code - KEY_F0);
  for (const CodeName& known : kCodes) {
    if (known.code == code) return Named(known.name);
  }
  if (!name) return std::nullopt;
  const std::string_view extended = name;
  for (const ExtendedName& known : kExtended) {
    if (!extended.starts_with(known.prefix)) continue;
    const std::string number(extended.substr(known.prefix.size()));
    const int held = number.empty() ? 2 : std::atoi(number.c_str());
    if (held >= 2 && held <= 8) return Named(HeldKeys(held) + known.name);
  }
  return std::nullopt;
}

KeyStroke ControlKey(int character) {
  switch (character) {
    case '\r':
      return Named("Enter");
    case '\n':
      return Named("Ctrl+Enter");
    case '\t':
      return Named("Tab");
    case '\b':
    case 0x7F:
      return Named("Backspace");
    case 0x1B:
      return Named("Esc");
    case 0:
      return Named("Ctrl+Space");
    default:
      return character <= 26 ? Named(std::string("Ctrl+") + static_cast<char>('A' + character - 1)) : KeyStroke{};
  }
}

KeyStroke TypedKey(char32_t character, bool alt) {
  std::string name = alt ? "Alt+" : "";
  vb::AppendCharacter(name, character);
  KeyStroke key = Named(name);
  if (key.keyCode == 0 && key.character == 0) key.character = character;
  return key;
}

}  // namespace terminal
