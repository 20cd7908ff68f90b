#include "base/workstation/text_file.h"

#include <cstddef>
#include <utility>

#include "base/vb/text.h"

namespace workstation {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
constexpr char32_t kReplacement = 0xFFFD;

/// UTF-16 without its mark as UTF-8. A last byte without its other half is dropped.
std::string FromUtf16(std::string_view bytes, bool isLittleEndian) {
  const auto unit = [&](std::size_t at) -> char32_t {
    const char32_t first = static_cast<unsigned char>(bytes[at]), second = static_cast<unsigned char>(bytes[at + 1]);
    return isLittleEndian ? second << 8 | first : first << 8 | second;
  };
  const auto isHalf = [](char32_t character, char32_t firstOfHalves) { return (character & 0xFC00) == firstOfHalves; };
  std::string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t character = unit(at);
    if (isHalf(character, 0xD800) && at + 3 < bytes.size() && isHalf(unit(at + 2), 0xDC00)) {
      character = 0x10000 + ((character & 0x3FF) << 10) + (unit(at += 2) & 0x3FF);
    } else if (isHalf(character, 0xD800) || isHalf(character, 0xDC00)) {
      character = kReplacement;
    }
    vb::AppendCharacter(text, character);
  }
  return text;
}

}  // namespace

TextFile::TextFile(std::string bytes, std::string (*toUtf8)(std::string_view))
    : text_(std::move(bytes)), rest_(text_), toUtf8_(toUtf8) {
  const bool isLittleEndian = rest_.starts_with(kLittleEndianMark);
  if (isLittleEndian || rest_.starts_with(kBigEndianMark)) {
    text_ = FromUtf16(rest_.substr(kLittleEndianMark.size()), isLittleEndian);
    rest_ = text_;
  } else if (rest_.starts_with(kUtf8Mark)) {
    rest_.remove_prefix(kUtf8Mark.size());
  } else {
    return;
  }
  toUtf8_ = nullptr;
}

std::optional<std::string> TextFile::ReadLine() {
  const std::optional<std::string_view> line = vb::TakeLine(rest_);
  if (!line) return std::nullopt;
  return toUtf8_ ? toUtf8_(*line) : std::string(*line);
}

}  // namespace workstation
