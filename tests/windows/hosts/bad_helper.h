#pragma once

#include <string>

#include "platform/windows/windows_gate.h"

namespace hosts {

/// What a helper component of somebody else's may do to its callers.
enum class Mischief {
  Missing,   ///< its class cannot be made
  Nameless,  ///< knows no member
  Throwing,  ///< every member fails with an error of its own
  Nothing,   ///< every member gives a null object
  Nonsense,  ///< every member gives something of the wrong type: an error, an array, an interface that is no IDispatch
  Endless,   ///< every member, the default one as well, gives the object itself
};

/// While it lives, objects of a registered class are made by a helper that misbehaves; in this process alone. Throws
/// std::runtime_error when nothing is registered under the ProgID.
class BadHelper {
 public:
  BadHelper(const std::string& progId, Mischief mischief);
  BadHelper(const BadHelper&) = delete;
  BadHelper& operator=(const BadHelper&) = delete;
  ~BadHelper();

 private:
  DWORD registered_ = 0;
};

}  // namespace hosts
