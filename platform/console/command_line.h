#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace console {

/// A command that could not be carried out; becomes an `error:` line.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The words of one command, taken from left to right.
class Words {
 public:
  explicit Words(std::string_view rest) : rest_(rest) {}

  /// The next word, blanks before it skipped; "" at the end.
  std::string_view Take();
  /// The next word; an error that names what is missing at the end.
  std::string_view Need(std::string_view what);
  long NeedNumber(std::string_view what);
  bool AtEnd() const;
  /// Whether anything, a blank at least, follows the last word.
  bool HasText() const { return !rest_.empty(); }
  /// The rest of the line after one blank, with its escapes resolved.
  std::string Text() const;
  /// The rest of the line after one blank, unchanged.
  std::string_view Raw() const;
  /// An error when words are left.
  void End() const;

 private:
  std::string_view rest_;
};

/// `name.name.name(1,2)`: names from the outside in, with the whole-number indexes of the last one.
struct PropertyPath {
  std::vector<std::string> names;
  std::vector<long> indexes;
};
PropertyPath ParsePropertyPath(std::string_view text);

/// A whole number of at most nine digits with an optional sign; false when the text is none.
bool ReadNumber(std::string_view text, long& number);

}  // namespace console
