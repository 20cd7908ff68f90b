#pragma once

#include "platform/windows/desktop/windows_desktop.h"
#include "platform/windows/products/common/visual_styles.h"

namespace windows {

/// The desktop of a DLL whose host may know nothing of visual styles.
class StyledDesktop : public WindowsDesktop {
 public:
  controls::Answer MsgBox(controls::Form* owner, const controls::Message& message) override {
    const VisualStyles styles;
    return WindowsDesktop::MsgBox(owner, message);
  }

 protected:
  void Opening(controls::Form& form, controls::Form* owner) override {
    const VisualStyles styles;
    WindowsDesktop::Opening(form, owner);
  }
  void RunModal(controls::Form& form) override {
    const VisualStyles styles;
    WindowsDesktop::RunModal(form);
  }
};

}  // namespace windows
