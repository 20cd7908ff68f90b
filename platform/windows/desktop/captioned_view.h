#pragma once

#include "base/controls/buttons.h"
#include "platform/windows/desktop/control_view.h"

namespace windows {

/// Push buttons, options, check boxes, labels and frames: one window class or another with a caption. The model decides what a
/// click does; the window only shows the outcome.
class CaptionedView : public ControlView {
 public:
  CaptionedView(FormWindow& window, controls::Captioned& captioned) : ControlView(window, captioned), captioned_(captioned) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  void OnCommand(int code) override;

 private:
  void ShowValue();

  controls::Captioned& captioned_;
};

}  // namespace windows
