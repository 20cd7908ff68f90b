#pragma once

#include "base/controls/text_box.h"
#include "platform/windows/desktop/text_entry_view.h"

namespace windows {

class TextBoxView : public TextEntryView {
 public:
  TextBoxView(FormWindow& window, controls::TextBox& box) : TextEntryView(window, box), box_(box) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  void OnCommand(int code) override;
  bool WantsNatively(const MSG& message) const override;
  void Pull() override;
  bool SelectAll() override;

 protected:
  bool OwnsRightButton() const override { return false; }
  std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  controls::TextBox& box_;
  bool updating_ = false;
};

}  // namespace windows
