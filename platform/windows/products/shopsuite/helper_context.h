#pragma once

#include "platform/windows/com/com_factory.h"
#include "platform/windows/products/common/styled_desktop.h"
#include "platform/windows/workstation/windows_workstation.h"
#include "suite/helpers/surroundings.h"

namespace windows {

/// What the stand-ins of one apartment share. Gone with the last of them.
class HelperContext {
 public:
  suite::Surroundings& Surroundings() { return surroundings_; }

 private:
  StyledDesktop desktop_;
  WindowsWorkstation workstation_;
  ComFactory factory_;
  suite::Surroundings surroundings_{desktop_, workstation_, factory_, {}};
};

}  // namespace windows
