#include "platform/console/output.h"

#include "base/vb/text.h"

namespace console {

void Output::Line(std::string_view word, std::string_view rest) {
  stream_ << word << ':';
  if (!rest.empty()) stream_ << ' ' << rest;
  stream_ << '\n' << std::flush;
}

void Output::Text(std::string_view text) {
  do {
    stream_ << "text: " << vb::TakeLine(text).value_or("") << '\n';
  } while (!text.empty());
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
