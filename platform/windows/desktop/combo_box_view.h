#pragma once

#include "base/controls/combo_box.h"
#include "platform/windows/desktop/control_view.h"
#include "platform/windows/desktop/messages.h"

namespace windows {

class ComboBoxView : public ControlView {
 public:
  ComboBoxView(FormWindow& window, controls::ComboBox& combo) : ControlView(window, combo), combo_(combo) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  void OnCommand(int code) override;
  bool WantsNatively(const MSG& message) const override;
  void Pull() override;
  bool Copy() override;
  bool Cut() override;
  bool Paste() override;

 protected:
  bool OwnsRightButton() const override { return combo_.Style() == controls::ComboStyle::DropDownList; }
  std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool IsDropped() const { return Send(Handle(), CB_GETDROPPEDSTATE) != 0; }
  int SelectedEntry() const { return static_cast<int>(Send(Handle(), CB_GETCURSEL)); }
  void ShowEntries();
  void ShowText();

  controls::ComboBox& combo_;
  bool updating_ = false;
  bool pasting_ = false;
};

}  // namespace windows
