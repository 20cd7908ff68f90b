#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/controls/form.h"

namespace goods {

/// Where a refused save puts the focus, so that it can be mended.
enum class SaveField { Date, CustomerRequests, Finished, Ok };

/// What a save touches of the editor.
class SavePort {
 public:
  /// The window that asks, waits and is audited.
  virtual controls::Form& Window() = 0;
  virtual void GoTo(SaveField field) = 0;
  /// Shows the number that a new request has got.
  virtual void ShowRequestNo(const std::string& number) = 0;
  /// A new request is written and about to be committed under this id and number.
  virtual void Committing(std::int32_t requestId, const std::string& number) = 0;
  /// Tells why the request can be saved no more; what was entered is still shown.
  virtual void ForbidSaving(std::string_view reason) = 0;
  /// The user has decided to save over the change of this time.
  virtual void TakeAsSeen(const std::string& updateTime) = 0;

 protected:
  ~SavePort() = default;
};

}  // namespace goods
