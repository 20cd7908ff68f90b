#pragma once

#include <istream>
#include <memory>

#include "platform/console/options.h"
#include "platform/console/output.h"

namespace console {

/// A shop around the component: the database, the helper components and the workstation that the options ask for, and a user
/// who is logged on. Opening raises the run-time error of what cannot be had.
class ShopSession {
 public:
  ShopSession(const Options& options, std::istream& commands, bool terminal, Output& output);
  ~ShopSession();

  /// Creates the component's class, hands the session over and shows it; returns when it is closed.
  void Run();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace console
