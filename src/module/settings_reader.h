#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/vb/error.h"
#include "src/module/session.h"

namespace goods {

/// ShopSetting.txt of the application folder as it was when this object was made. One setting a line: key, one character (a
/// blank), ":=", value. The first line with a key counts; case does not.
class SettingsFile {
 public:
  /// Reads the file and shows nothing. `failureToldOf`: the user knows already that it cannot be opened.
  explicit SettingsFile(basGoodsRequest& session, bool failureToldOf = false);

  /// The value of a setting as written. Empty when no line carries the key (message box), or when the file cannot be opened: that
  /// is told of once (message box and error report), not for every key.
  std::string FileCode(std::string_view key);
  /// The same without any message: `otherwise` when file or key is absent. For optional settings.
  std::string QuietFileCode(std::string_view key, std::string_view otherwise) const;
  /// Whether the user has been told that the file cannot be opened.
  bool FailureToldOf() const { return failureToldOf_; }

 private:
  const std::string* Find(std::string_view key) const;
  void TellOfFailure();

  basGoodsRequest& session_;
  std::vector<std::pair<std::string, std::string>> settings_;  ///< key in upper case, value; in the order of the file
  std::optional<vb::RunTimeError> failure_;
  bool failureToldOf_;
};

}  // namespace goods
