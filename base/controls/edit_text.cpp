#include "base/controls/edit_text.h"

#include "base/controls/form.h"
#include "base/vb/text.h"

namespace controls {

std::string Spliced(std::string_view text, int start, int length, std::string_view with) {
  return vb::Left(text, start) + std::string(with) + vb::Mid(text, long{start} + length + 1);
}

std::string JoinedLines(std::string_view text) {
  const auto isBreak = [](char c) { return c == '\r' || c == '\n'; };
  while (!text.empty() && isBreak(text.back())) text.remove_suffix(1);
  std::string joined;
  joined.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') continue;
    joined += isBreak(text[i]) ? ' ' : text[i];
  }
  return joined;
}

void PasteThroughKeyPress(Control& control, std::string_view text, const std::function<bool(std::string_view)>& insert) {
  for (std::size_t offset = 0; offset < text.size();) {
    const std::size_t begin = offset;
    const char32_t character = vb::NextCharacter(text, offset);
    std::string passed(text.substr(begin, offset - begin));
    if (character != '\r' && character != '\n') {
      if (character < ' ' && character != '\t') continue;
      int key = static_cast<int>(character);
      control.KeyPress.Fire(key);
      if (!control.Owner().IsLoaded()) return;
      if (key < ' ' && key != '\t') continue;
      passed.clear();
      vb::AppendCharacter(passed, static_cast<char32_t>(key));
    }
    if (!insert(passed)) return;
  }
}

}  // namespace controls
