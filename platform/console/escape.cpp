#include "platform/console/escape.h"

#include <array>
#include <utility>

namespace console {
namespace {

constexpr std::array<std::pair<char, char>, 5> kEscapes = {{{'"', '"'}, {'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}}};

}  // namespace

std::string Escape(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char character : text) {
    char letter = 0;
    for (const auto& [plain, code] : kEscapes) {
      if (plain == character) letter = code;
    }
    if (letter) escaped += '\\';
    escaped += letter ? letter : character;
  }
  return escaped;
}

std::string Quote(std::string_view text) {
  return '"' + Escape(text) + '"';
}

std::string Unescape(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char character = text[i];
    if (character == '\\' && i + 1 < text.size()) {
      for (const auto& [meant, code] : kEscapes) {
        if (code == text[i + 1]) {
          character = meant;
          ++i;
          break;
        }
      }
    }
    plain += character;
  }
  return plain;
}

}  // namespace console
