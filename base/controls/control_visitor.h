#pragma once

namespace controls {

class CheckBox;
class ComboBox;
class CommandButton;
class FlexGrid;
class Frame;
class Label;
class ListView;
class Menu;
class OptionButton;
class PictureBox;
class TabControl;
class TextBox;

/// An operation with one function for each kind of control; Control::Accept calls the one of its kind. A new kind is one more
/// function here, and every desktop that lacks it no longer compiles.
class ControlVisitor {
 public:
  virtual ~ControlVisitor() = default;
  virtual void Visit(CheckBox& box) = 0;
  virtual void Visit(ComboBox& combo) = 0;
  virtual void Visit(CommandButton& button) = 0;
  virtual void Visit(FlexGrid& grid) = 0;
  virtual void Visit(Frame& frame) = 0;
  virtual void Visit(Label& label) = 0;
  virtual void Visit(ListView& list) = 0;
  virtual void Visit(Menu& menu) = 0;
  virtual void Visit(OptionButton& option) = 0;
  virtual void Visit(PictureBox& box) = 0;
  virtual void Visit(TabControl& tab) = 0;
  virtual void Visit(TextBox& box) = 0;
};

}  // namespace controls
