#pragma once

#include <string_view>

#include "src/faces/face.h"

namespace vb {
class RunTimeError;
}

namespace goods {

/// The suite's error log. Members carry their classic names.
class ErrorLog : public Face {
 public:
  /// Error 429 when it is not registered.
  explicit ErrorLog(late::Factory& factory);

  /// Logs the error and shows it to the user. `module` and `routine` say where it was trapped; `mode` is the editor's.
  void ErrorTrack(std::string_view module, std::string_view userName, std::string_view routine, const vb::RunTimeError& error,
                  std::string_view mode);
};

}  // namespace goods
