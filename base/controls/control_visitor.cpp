#include "base/controls/control_visitor.h"

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/list_view.h"
#include "base/controls/menu.h"
#include "base/controls/tab_control.h"
#include "base/controls/text_box.h"

namespace controls {

void CheckBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void ComboBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void CommandButton::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void FlexGrid::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void Frame::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void Label::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void ListView::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void Menu::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void OptionButton::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void PictureBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void TabControl::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}
void TextBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace controls
