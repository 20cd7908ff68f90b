#include <array>

#include "base/controls/keyboard.h"
#include "base/vb/text.h"

namespace controls {

namespace {

struct NamedKey {
  std::string_view name;
  int keyCode;
  char32_t character;
};

constexpr std::array kNamedKeys = {
    NamedKey{"Enter", kKeyReturn, kCharReturn},
    NamedKey{"Esc", kKeyEscape, kCharEscape},
    NamedKey{"Escape", kKeyEscape, kCharEscape},
    NamedKey{"Tab", kKeyTab, kCharTab},
    NamedKey{"Backspace", kKeyBack, kCharBack},
    NamedKey{"Delete", kKeyDelete, 0},
    NamedKey{"Space", kKeySpace, ' '},
    NamedKey{"Up", kKeyUp, 0},
    NamedKey{"Down", kKeyDown, 0},
    NamedKey{"Left", kKeyLeft, 0},
    NamedKey{"Right", kKeyRight, 0},
    NamedKey{"Home", kKeyHome, 0},
    NamedKey{"End", kKeyEnd, 0},
    NamedKey{"PageUp", kKeyPageUp, 0},
    NamedKey{"PageDown", kKeyPageDown, 0},
};

/// Takes "Ctrl+" and the like off the front of a key's name.
int TakeShifts(std::string_view& name) {
  struct Prefix {
    std::string_view text;
    int shift;
  };
  constexpr std::array prefixes = {Prefix{"Shift+", kShift}, Prefix{"Ctrl+", kCtrl}, Prefix{"Alt+", kAlt}};
  int shift = 0;
  for (bool found = true; found;) {
    found = false;
    for (const Prefix& prefix : prefixes) {
      if (name.size() > prefix.text.size() && vb::EqualNoCase(name.substr(0, prefix.text.size()), prefix.text)) {
        name.remove_prefix(prefix.text.size());
        shift |= prefix.shift;
        found = true;
      }
    }
  }
  return shift;
}

bool ReadFunctionKey(std::string_view name, KeyStroke& key) {
  if (name.size() < 2 || name.size() > 3 || (name[0] != 'F' && name[0] != 'f')) return false;
  int number = 0;
  for (const char digit : name.substr(1)) {
    if (digit < '0' || digit > '9') return false;
    number = number * 10 + (digit - '0');
  }
  if (number < 1 || number > 12) return false;
  key.keyCode = kKeyF1 + number - 1;
  return true;
}

bool IsLetter(char32_t c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// One character; letters, digits and the blank have key codes.
bool ReadCharacter(std::string_view name, KeyStroke& key) {
  if (vb::Len(name) != 1) return false;
  std::size_t offset = 0;
  const char32_t character = vb::NextCharacter(name, offset);
  const char32_t upper = IsLetter(character) ? character & ~char32_t{0x20} : character;
  if (IsLetter(character) || (character >= '0' && character <= '9') || character == ' ') key.keyCode = static_cast<int>(upper);
  if ((key.shift & kAlt) != 0) {
    std::size_t start = 0;
    key.character = key.keyCode != 0 ? 0 : vb::NextCharacter(vb::UCase(name), start);
  } else if ((key.shift & kCtrl) != 0) {
    key.character = IsLetter(character) ? upper - 'A' + 1 : 0;
  } else {
    if (IsLetter(character) && upper == character) key.shift |= kShift;
    key.character = (key.shift & kShift) != 0 ? upper : character;
  }
  return true;
}

}  // namespace

bool ParseKey(std::string_view name, KeyStroke& key) {
  KeyStroke read;
  read.shift = TakeShifts(name);
  bool known = ReadFunctionKey(name, read);
  for (const NamedKey& named : kNamedKeys) {
    if (known || !vb::EqualNoCase(name, named.name)) continue;
    read.keyCode = named.keyCode;
    read.character = (read.shift & kAlt) != 0 ? 0 : named.character;
    // Ctrl+Enter types a line feed.
    if ((read.shift & kCtrl) != 0 && named.character == kCharReturn) read.character = kCharLineFeed;
    known = true;
  }
  if (!known && !ReadCharacter(name, read)) return false;
  key = read;
  return true;
}

}  // namespace controls
