#include "platform/console/output.h"

namespace console {

void Output::Line(std::string_view word, std::string_view rest) {
  stream_ << word << ':';
  if (!rest.empty()) stream_ << ' ' << rest;
  stream_ << '\n' << std::flush;
}

void Output::Text(std::string_view text) {
  for (std::size_t start = 0;;) {
    const std::size_t end = text.find('\n', start);
    std::string_view line = text.substr(start, end == std::string_view::npos ? end : end - start);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    stream_ << "text: " << line << '\n';
    if (end == std::string_view::npos || end + 1 == text.size()) break;
    start = end + 1;
  }
  stream_ << std::flush;
}

void Output::Error(std::string_view what) {
  ++errors_;
  Line("error", what);
}

void Output::Echo(std::string_view line) {
  stream_ << "> " << line << '\n' << std::flush;
}

void Output::Prompt(std::string_view prompt) {
  stream_ << prompt << std::flush;
}

}  // namespace console
