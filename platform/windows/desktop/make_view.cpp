#include "platform/windows/desktop/captioned_view.h"
#include "platform/windows/desktop/combo_box_view.h"
#include "platform/windows/desktop/flex_grid_view.h"
#include "platform/windows/desktop/list_view_view.h"
#include "platform/windows/desktop/tab_control_view.h"
#include "platform/windows/desktop/text_box_view.h"

namespace windows {

using controls::ControlKind;

std::unique_ptr<ControlView> MakeView(FormWindow& window, controls::Control& model) {
  switch (model.Kind()) {
    case ControlKind::TextBox:
      return std::make_unique<TextBoxView>(window, static_cast<controls::TextBox&>(model));
    case ControlKind::ComboBox:
      return std::make_unique<ComboBoxView>(window, static_cast<controls::ComboBox&>(model));
    case ControlKind::ListView:
      return std::make_unique<ListViewView>(window, static_cast<controls::ListView&>(model));
    case ControlKind::FlexGrid:
      return std::make_unique<FlexGridView>(window, static_cast<controls::FlexGrid&>(model));
    case ControlKind::TabControl:
      return std::make_unique<TabControlView>(window, static_cast<controls::TabControl&>(model));
    case ControlKind::CommandButton:
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
    case ControlKind::Label:
    case ControlKind::Frame:
      return std::make_unique<CaptionedView>(window, static_cast<controls::Captioned&>(model));
    case ControlKind::PictureBox:
    case ControlKind::Menu:
      return nullptr;
  }
  return nullptr;
}

}  // namespace windows
