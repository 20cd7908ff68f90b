#pragma once

#include "base/controls/text_box.h"
#include "platform/windows/desktop/control_view.h"

namespace windows {

class TextBoxView : public ControlView {
 public:
  TextBoxView(FormWindow& window, controls::TextBox& box) : ControlView(window, box), box_(box) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  void OnCommand(int code) override;
  bool WantsNatively(const MSG& message) const override;
  void Pull() override;
  bool Copy() override;
  bool Cut() override;
  bool Paste() override;
  bool SelectAll() override;

 protected:
  bool OwnsRightButton() const override { return false; }
  std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  controls::TextBox& box_;
  bool updating_ = false;
  bool pasting_ = false;
};

}  // namespace windows
