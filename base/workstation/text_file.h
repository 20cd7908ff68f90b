#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/workstation/workstation.h"

namespace workstation {

/// A text file opened for input whose bytes have been read. A file that begins with a byte order mark is UTF-8 or UTF-16 of
/// either byte order, as the mark says; half a UTF-16 pair becomes U+FFFD. Any other file is in the workstation's character set.
class TextFile : public InputFile {
 public:
  /// `toUtf8` converts from the workstation's character set; without it that set is UTF-8.
  explicit TextFile(std::string bytes, std::string (*toUtf8)(std::string_view) = nullptr);
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;
  std::optional<std::string> ReadLine() override;

 private:
  std::string text_;
  std::string_view rest_;
  std::string (*toUtf8_)(std::string_view);
};

}  // namespace workstation
