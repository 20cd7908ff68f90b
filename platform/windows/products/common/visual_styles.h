#pragma once

#include "platform/windows/windows_gate.h"

namespace windows {

/// Lets the windows made in this scope use the controls that this module's manifest names (resource 2), whatever the host's own.
class VisualStyles {
 public:
  VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;
  ~VisualStyles();

 private:
  ULONG_PTR cookie_ = 0;
};

/// Lets go of the module's activation context.
void ReleaseVisualStyles();

}  // namespace windows
