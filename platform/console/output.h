#pragma once

#include <ostream>
#include <string_view>

namespace console {

/// The console's output: lines that start with a word and a colon, each flushed as soon as it is written.
class Output {
 public:
  explicit Output(std::ostream& stream) : stream_(stream) {}

  /// `word: rest`
  void Line(std::string_view word, std::string_view rest);
  /// A `text:` line for each line of `text`.
  void Text(std::string_view text);
  void Error(std::string_view what);
  /// An input line, as it came.
  void Echo(std::string_view line);
  /// The prompt shown to a person at a terminal; without a line end.
  void Prompt(std::string_view prompt);

  /// How many `error:` lines were written.
  int Errors() const { return errors_; }

  /// Statements, helper calls and pointer changes are written only while this is on.
  bool IsTracing() const { return tracing_; }
  void SetTracing(bool tracing) { tracing_ = tracing; }
  void Trace(std::string_view word, std::string_view rest) {
    if (tracing_) Line(word, rest);
  }

 private:
  std::ostream& stream_;
  int errors_ = 0;
  bool tracing_ = false;
};

}  // namespace console
