#include "base/vb/text.h"
#include "suite/engine/functions/server_functions.h"

namespace suite {
namespace {

/// Matches a folded text against a folded pattern, character by character; a later % takes over from an earlier one.
class Matcher {
 public:
  Matcher(std::string_view text, std::string_view pattern, char32_t escape) : text_(text), pattern_(pattern), escape_(escape) {}

  bool Run() {
    std::size_t text = 0, pattern = 0;
    bool anywhere = false;
    std::size_t retryText = 0, retryPattern = 0;
    for (;;) {
      if (pattern < pattern_.size() && pattern_[pattern] == '%' && escape_ != U'%') {
        anywhere = true;
        retryPattern = ++pattern;
        retryText = text;
        if (pattern == pattern_.size()) return true;
        continue;
      }
      if (pattern == pattern_.size() && text == text_.size()) return true;
      if (pattern < pattern_.size() && text < text_.size() && One(text, pattern)) continue;
      if (!anywhere || retryText >= text_.size()) return false;
      vb::NextCharacter(text_, retryText);
      text = retryText;
      pattern = retryPattern;
    }
  }

 private:
  /// One character of the text against one item of the pattern; moves both when it fits.
  bool One(std::size_t& text, std::size_t& pattern) const {
    std::size_t afterText = text, afterPattern = pattern;
    const char32_t c = vb::NextCharacter(text_, afterText);
    char32_t p = vb::NextCharacter(pattern_, afterPattern);
    bool fits = false;
    if (escape_ && p == escape_ && afterPattern < pattern_.size()) {
      p = vb::NextCharacter(pattern_, afterPattern);
      fits = p == c;
    } else if (p == U'_') {
      fits = true;
    } else if (p == U'[' && pattern_.find(']', afterPattern) != std::string_view::npos) {
      fits = InSet(c, afterPattern);
    } else {
      fits = p == c;
    }
    if (!fits) return false;
    text = afterText;
    pattern = afterPattern;
    return true;
  }

  /// After "[": the set up to "]".
  bool InSet(char32_t c, std::size_t& pattern) const {
    bool negated = false, found = false;
    if (pattern < pattern_.size() && pattern_[pattern] == '^') {
      negated = true;
      ++pattern;
    }
    while (pattern < pattern_.size() && pattern_[pattern] != ']') {
      const char32_t low = vb::NextCharacter(pattern_, pattern);
      char32_t high = low;
      if (pattern + 1 < pattern_.size() && pattern_[pattern] == '-' && pattern_[pattern + 1] != ']') {
        ++pattern;
        high = vb::NextCharacter(pattern_, pattern);
      }
      found = found || (c >= low && c <= high);
    }
    if (pattern < pattern_.size()) ++pattern;
    return found != negated;
  }

  std::string_view text_;
  std::string_view pattern_;
  char32_t escape_;
};

}  // namespace

bool MatchLike(std::string_view text, std::string_view pattern, std::string_view escape) {
  const std::string foldedText = vb::LCase(text), foldedPattern = vb::LCase(pattern);
  char32_t escapeCharacter = 0;
  if (!escape.empty()) {
    std::size_t offset = 0;
    const std::string folded = vb::LCase(escape);
    escapeCharacter = vb::NextCharacter(folded, offset);
    if (offset != folded.size())
      RaiseServer(kInvalidEscape, "Invalid escape character '" + std::string(escape) + "' was specified in a LIKE predicate.");
  }
  return Matcher(foldedText, foldedPattern, escapeCharacter).Run();
}

}  // namespace suite
