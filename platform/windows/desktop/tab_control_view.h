#pragma once

#include <vector>

#include "base/controls/tab_control.h"
#include "platform/windows/desktop/control_view.h"

namespace windows {

class TabControlView : public ControlView {
 public:
  TabControlView(FormWindow& window, controls::TabControl& tab) : ControlView(window, tab), tab_(tab) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;

 private:
  void ShowPages();

  controls::TabControl& tab_;
  std::vector<int> shownPages_;  // the model's page of each of the window's tabs
};

}  // namespace windows
