#include "src/faces/error_log.h"

#include <cstdint>

#include "base/vb/error.h"

namespace goods {

ErrorLog::ErrorLog(late::Factory& factory) : Face(factory.Create("ErrLog.ErrorDetails")) {}

void ErrorLog::ErrorTrack(std::string_view module, std::string_view userName, std::string_view routine,
                          const vb::RunTimeError& error, std::string_view mode) {
  Component().Call("ErrorTrack", {module, userName, routine, static_cast<std::int32_t>(error.Number()), error.Source(),
                                  error.Description(), mode, true});
}

}  // namespace goods
