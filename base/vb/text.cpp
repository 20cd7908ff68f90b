#include "base/vb/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "base/vb/error.h"
#include "base/vb/letter_case.h"

namespace vb {
namespace {

constexpr char32_t kInvalidByteBase = 0xDC00;

bool IsAsciiByte(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

/// Eight bytes at a time: nearly all text of a shop is ASCII, and every cell of a grid comes through here.
bool IsAscii(std::string_view text) {
  std::size_t offset = 0;
  for (; offset + 8 <= text.size(); offset += 8) {
    std::uint64_t word;
    std::memcpy(&word, text.data() + offset, 8);
    if (word & 0x8080808080808080u) return false;
  }
  for (; offset < text.size(); ++offset) {
    if (!IsAsciiByte(text[offset])) return false;
  }
  return true;
}

/// The byte offset after the first `count` characters, at most the size.
std::size_t OffsetOf(std::string_view text, std::size_t count) {
  if (text.size() <= count) return text.size();  // a character is at least one byte
  if (IsAscii(text.substr(0, count))) return count;
  std::size_t offset = 0;
  for (; count > 0 && offset < text.size(); --count) NextCharacter(text, offset);
  return offset;
}

template <class AsciiRule, class Rule>
std::string Convert(std::string_view text, AsciiRule asciiRule, Rule rule) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    if (IsAsciiByte(text[offset])) {
      result.push_back(asciiRule(text[offset++]));
    } else {
      AppendCharacter(result, rule(NextCharacter(text, offset)));
    }
  }
  return result;
}

std::string Fold(std::string_view text) {
  return Convert(text, LowerAscii, FoldCharacter);
}

char32_t NextFolded(std::string_view text, std::size_t& offset) {
  if (IsAsciiByte(text[offset])) return static_cast<unsigned char>(LowerAscii(text[offset++]));
  return FoldCharacter(NextCharacter(text, offset));
}

/// The character position of the first hit that begins and ends between characters.
std::size_t FindCharacters(std::string_view text, std::string_view part) {
  std::size_t offset = 0;
  std::size_t position = 1;
  for (std::size_t hit = text.find(part); hit != std::string_view::npos; hit = text.find(part, hit + 1)) {
    for (; offset < hit; ++position) NextCharacter(text, offset);
    if (offset != hit) continue;
    std::size_t end = hit;
    while (end < hit + part.size()) NextCharacter(text, end);
    if (end == hit + part.size()) return position;
  }
  return 0;
}

}  // namespace

std::optional<std::string_view> TakeLine(std::string_view& rest) {
  if (rest.empty()) return std::nullopt;
  const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
  const std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end);
  rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest.size()));
  return line;
}

char32_t NextCharacter(std::string_view text, std::size_t& offset) {
  const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned char lead = byteAt(offset);
  const std::size_t start = offset++;
  if (lead < 0x80) return lead;
  const char32_t invalid = kInvalidByteBase + lead;
  const std::size_t length = lead >= 0xC2 && lead <= 0xDF ? 2 : (lead & 0xF0) == 0xE0 ? 3 : lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
  if (length == 0 || text.size() - start < length) return invalid;
  char32_t character = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned char next = byteAt(start + i);
    if ((next & 0xC0) != 0x80) return invalid;
    character = (character << 6) | (next & 0x3Fu);
  }
  const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (overlong || surrogate || character > 0x10FFFF) return invalid;
  offset = start + length;
  return character;
}

void AppendCharacter(std::string& text, char32_t character) {
  const auto append = [&](char32_t byte) { text.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
  if (character < 0x80) {
    append(character);
  } else if (character >= kInvalidByteBase + 0x80 && character <= kInvalidByteBase + 0xFF) {
    append(character - kInvalidByteBase);
  } else if (character < 0x800) {
    append(0xC0 | (character >> 6));
    append(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    append(0xE0 | (character >> 12));
    append(0x80 | ((character >> 6) & 0x3F));
    append(0x80 | (character & 0x3F));
  } else {
    append(0xF0 | (character >> 18));
    append(0x80 | ((character >> 12) & 0x3F));
    append(0x80 | ((character >> 6) & 0x3F));
    append(0x80 | (character & 0x3F));
  }
}

std::size_t Len(std::string_view text) {
  if (IsAscii(text)) return text.size();
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < text.size(); ++count) NextCharacter(text, offset);
  return count;
}

std::string Left(std::string_view text, long count) {
  if (count < 0) Raise(kInvalidCall);
  return std::string(text.substr(0, OffsetOf(text, static_cast<std::size_t>(count))));
}

std::string Right(std::string_view text, long count) {
  if (count < 0) Raise(kInvalidCall);
  const std::size_t length = Len(text);
  const auto wanted = static_cast<std::size_t>(count);
  return std::string(wanted >= length ? text : text.substr(OffsetOf(text, length - wanted)));
}

std::string Mid(std::string_view text, long start) {
  if (start < 1) Raise(kInvalidCall);
  return std::string(text.substr(OffsetOf(text, static_cast<std::size_t>(start - 1))));
}

std::string Mid(std::string_view text, long start, long count) {
  if (start < 1 || count < 0) Raise(kInvalidCall);
  const std::string_view rest = text.substr(OffsetOf(text, static_cast<std::size_t>(start - 1)));
  return std::string(rest.substr(0, OffsetOf(rest, static_cast<std::size_t>(count))));
}

std::size_t InStr(std::string_view text, std::string_view part) {
  if (part.empty()) return 1;
  return FindCharacters(text, part);
}

std::size_t InStrNoCase(std::string_view text, std::string_view part) {
  if (part.empty()) return 1;
  if (IsAscii(text) && IsAscii(part)) {
    const auto same = [](char a, char b) { return LowerAscii(a) == LowerAscii(b); };
    const auto hit = std::search(text.begin(), text.end(), part.begin(), part.end(), same);
    return hit == text.end() ? 0 : static_cast<std::size_t>(hit - text.begin()) + 1;
  }
  return FindCharacters(Fold(text), Fold(part));  // folding keeps the number of characters
}

std::string UCase(std::string_view text) {
  return Convert(text, UpperAscii, UpperCharacter);
}
std::string LCase(std::string_view text) {
  return Convert(text, LowerAscii, LowerCharacter);
}

std::string_view LTrim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view RTrim(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text) {
  return LTrim(RTrim(text));
}

int CompareNoCase(std::string_view a, std::string_view b) {
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() && j < b.size()) {
    const char32_t left = NextFolded(a, i);
    const char32_t right = NextFolded(b, j);
    if (left != right) return left < right ? -1 : 1;
  }
  return static_cast<int>(i < a.size()) - static_cast<int>(j < b.size());
}

bool EqualNoCase(std::string_view a, std::string_view b) {
  return a == b || CompareNoCase(a, b) == 0;
}

int CompareServer(std::string_view a, std::string_view b) {
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() || j < b.size()) {
    const char32_t left = i < a.size() ? NextFolded(a, i) : U' ';
    const char32_t right = j < b.size() ? NextFolded(b, j) : U' ';
    if (left != right) return left < right ? -1 : 1;
  }
  return 0;
}

std::string Space(long count) {
  return std::string(count > 0 ? static_cast<std::size_t>(count) : 0, ' ');
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  std::size_t start = 0;
  if (!what.empty()) {
    for (std::size_t hit; (hit = text.find(what, start)) != std::string_view::npos; start = hit + what.size()) {
      result.append(text.substr(start, hit - start)).append(with);
    }
  }
  return result.append(text.substr(start));
}

std::string DoubleApostrophes(std::string_view text) {
  return Replace(text, "'", "''");
}

std::vector<std::string> Split(std::string_view text, std::string_view delimiter) {
  std::vector<std::string> parts;
  if (text.empty()) return parts;
  std::size_t start = 0;
  if (!delimiter.empty()) {
    for (std::size_t hit; (hit = text.find(delimiter, start)) != std::string_view::npos; start = hit + delimiter.size()) {
      parts.emplace_back(text.substr(start, hit - start));
    }
  }
  parts.emplace_back(text.substr(start));
  return parts;
}

}  // namespace vb
