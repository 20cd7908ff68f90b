#pragma once

#include "platform/windows/com/com_factory.h"
#include "platform/windows/com/late_dispatch.h"
#include "platform/windows/products/common/styled_desktop.h"
#include "platform/windows/workstation/windows_workstation.h"
#include "src/entry/module.h"

namespace windows {

/// The component's module-wide state in one apartment: session, forms and what they work on. Gone with the last class object, so
/// that nothing of the host's is held longer.
class Component {
 public:
  Component() = default;
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;
  // Helpers may still hold forms and controls; those must not outlive the session they refer to.
  ~Component() { DisconnectLateObjects(); }

  goods::Module& Module() { return module_; }

 private:
  StyledDesktop desktop_;
  WindowsWorkstation workstation_;
  ComFactory factory_;
  goods::Module module_{goods::Services{desktop_, workstation_, factory_}};
};

}  // namespace windows
