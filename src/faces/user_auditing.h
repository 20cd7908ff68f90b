#pragma once

#include <cstdint>
#include <string_view>

#include "base/vb/date.h"
#include "src/faces/face.h"

namespace ado {
class Connection;
}
namespace controls {
class Form;
}

namespace goods {

/// The suite's user auditing. Members carry their classic names.
class UserAuditing : public Face {
 public:
  UserAuditing() = default;
  /// Error 429 when it is not registered.
  explicit UserAuditing(late::Factory& factory);

  void OpenObject(const ado::Connection& connection, std::int32_t companyId, std::int32_t shopId, std::int32_t userId,
                  std::int32_t interfaceId, vb::Date time);
  /// When the action began that the next record is about.
  void LoggedTime(vb::Date time);
  /// Copies what the form's controls show into their tags, for a later record to compare with.
  void SaveInToTag(controls::Form& form);
  /// Records an action without a form, given by its letter.
  void SaveUserAuditingInfo(std::string_view requestId, std::string_view requestNo, std::string_view action);
  /// Records an entry made in a form, in mode "N" or "E".
  void SaveUserAuditingInfo(std::string_view requestId, std::string_view requestNo, std::string_view mode, controls::Form& form);
};

}  // namespace goods
