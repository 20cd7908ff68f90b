#include "platform/console/command_line.h"

#include <charconv>

#include "base/vb/text.h"
#include "platform/console/escape.h"

namespace console {
namespace {

constexpr std::string_view kBlanks = " \t";

}  // namespace

std::string_view Words::Take() {
  const std::size_t start = rest_.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) {
    rest_ = {};
    return {};
  }
  const std::size_t end = std::min(rest_.find_first_of(kBlanks, start), rest_.size());
  const std::string_view word = rest_.substr(start, end - start);
  rest_.remove_prefix(end);
  return word;
}

std::string_view Words::Need(std::string_view what) {
  const std::string_view word = Take();
  if (word.empty()) throw CommandError(std::string(what) + " is missing");
  return word;
}

long Words::NeedNumber(std::string_view what) {
  const std::string_view word = Need(what);
  long number = 0;
  if (!ReadNumber(word, number)) throw CommandError(std::string(what) + " must be a whole number, not " + Quote(word));
  return number;
}

bool Words::AtEnd() const {
  return rest_.find_first_not_of(kBlanks) == std::string_view::npos;
}

std::string_view Words::Raw() const {
  return rest_.empty() ? rest_ : rest_.substr(1);
}

std::string Words::Text() const {
  return Unescape(Raw());
}

void Words::End() const {
  if (!AtEnd()) throw CommandError("nothing expected behind the command, but there is " + Quote(vb::Trim(rest_)));
}

bool ReadNumber(std::string_view text, long& number) {
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  if (text.empty() || text.size() > 10) return false;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

PropertyPath ParsePropertyPath(std::string_view text) {
  PropertyPath path;
  text = vb::Trim(text);
  if (const std::size_t open = text.find('('); open != std::string_view::npos) {
    if (text.back() != ')') throw CommandError("a closing bracket is missing in " + Quote(text));
    const std::string_view inside = text.substr(open + 1, text.size() - open - 2);
    for (const std::string& part : vb::Split(inside, ",")) {
      long index = 0;
      if (!ReadNumber(vb::Trim(part), index)) throw CommandError("an index must be a whole number, not " + Quote(part));
      path.indexes.push_back(index);
    }
    text = vb::RTrim(text.substr(0, open));
  }
  path.names = vb::Split(text, ".");
  for (const std::string& name : path.names) {
    if (name.empty() || name.find_first_of(kBlanks) != std::string::npos) {
      throw CommandError("a name is expected, not " + Quote(text));
    }
  }
  return path;
}

}  // namespace console
