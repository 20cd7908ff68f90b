#pragma once

#include "base/controls/combo_box.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/desktop/text_entry_view.h"

namespace windows {

class ComboBoxView : public TextEntryView {
 public:
  ComboBoxView(FormWindow& window, controls::ComboBox& combo) : TextEntryView(window, combo), combo_(combo) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  void OnCommand(int code) override;
  bool WantsNatively(const MSG& message) const override;
  void Pull() override;

 protected:
  bool HasEdit() const override { return combo_.Style() == controls::ComboStyle::DropDown; }
  bool OwnsRightButton() const override { return !HasEdit(); }
  std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool IsDropped() const { return Send(Handle(), CB_GETDROPPEDSTATE) != 0; }
  int SelectedEntry() const { return static_cast<int>(Send(Handle(), CB_GETCURSEL)); }
  void ShowEntries();
  void ShowText();

  controls::ComboBox& combo_;
  bool updating_ = false;
};

}  // namespace windows
