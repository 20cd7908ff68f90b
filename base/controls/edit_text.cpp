#include "base/controls/edit_text.h"

#include "base/controls/form.h"
#include "base/vb/text.h"

namespace controls {

std::string Spliced(std::string_view text, int start, int length, std::string_view with) {
  return vb::Left(text, start) + std::string(with) + vb::Mid(text, long{start} + length + 1);
}

void PasteThroughKeyPress(Control& control, std::string_view text, bool keepLineBreaks,
                          const std::function<void(std::string_view)>& insert) {
  for (std::size_t offset = 0; offset < text.size();) {
    const std::size_t begin = offset;
    const char32_t character = vb::NextCharacter(text, offset);
    if (character == '\r' || character == '\n') {
      if (keepLineBreaks) insert(text.substr(begin, offset - begin));
      continue;
    }
    if (character < ' ' && character != '\t') continue;
    int key = static_cast<int>(character);
    control.KeyPress.Fire(key);
    if (!control.Owner().IsLoaded()) return;
    if (key < ' ' && key != '\t') continue;
    std::string passed;
    vb::AppendCharacter(passed, static_cast<char32_t>(key));
    insert(passed);
  }
}

}  // namespace controls
